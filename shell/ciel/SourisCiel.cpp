#include "shell/ciel/SourisCiel.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/ciel/DessinCiel.hpp"
#include "shell/complements/LignesLoin.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/Saisie.hpp"
#include "sights/Reduction.hpp"
#include "sky/Cadrans.hpp"
#include "sky/LettreGrecque.hpp"

#include <algorithm>
#include <numeric>
#include <optional>
#include <string>
#include <utility>

namespace velmaris::ciel {
namespace {

constexpr std::size_t kMessageAzimut = 21;
constexpr std::size_t kMessageHauteur = 22;

Point CentreDe(const Controle &astre) {
  return {astre.place.gauche + astre.place.largeur / 2, astre.place.haut + astre.place.hauteur / 2};
}

void DessineCadrans(Bureau &bureau, float az, float h) {
  Ciel &c = bureau.ciel;
  DessineCadranAzimut(c.picAZ, az);
  DessineCadranHauteur(c.picHE, h);
  c.Label35.legende = bureau.messages[kMessageAzimut] + Format(az, "###.00") + " °";
  c.Label36.legende = bureau.messages[kMessageHauteur] + Format(h, "###.00") + " °";
}

/// The dials show azimuth and height of a point of the horizontal chart; on the other one they hide.
void CadransSous(Bureau &bureau, Point point) {
  Ciel &c = bureau.ciel;
  const CadreCiel cadre = CadreDe(c);
  const bool montre = cadre.carte == CarteCiel::Horizontale;
  if (montre && ADeLaPlace(cadre)) {
    const HorizonPointe sous = LitHorizonPointe(cadre, point);
    DessineCadrans(bureau, static_cast<float>(sous.az), static_cast<float>(sous.h));
  }
  for (Controle *cadran : {&c.PicAZ, &c.PicHE, &c.Label35, &c.Label36}) {
    cadran->visible = montre;
  }
}

void MontreNom(Ciel &c, std::string_view nom) {
  c.Bayer1.legende.clear();
  c.Bayer2.legende.clear();
  c.Label2.legende = nom;
}

void MontreEtoile(Bureau &bureau, std::size_t i) {
  Ciel &c = bureau.ciel;
  const std::string &bayer = c.Laet[i].infobulle;
  c.Bayer1.legende = bayer.substr(0, 1);
  c.Bayer2.legende = SansBlancs(std::string_view(bayer).substr(std::min<std::size_t>(2, bayer.size())));
  c.Label2.legende = bureau.etoiles.EtoileNom[i];
}

/// Label and border of a star turn red, or take their own colours again.
void Allume(Ciel &c, std::size_t i, bool rouge) {
  Controle &marque = c.Shet[i];
  Controle &label = c.Laet[i];
  marque.bordure = rouge ? kRouge : marque.couleur;
  if (rouge) {
    label.couleur = kRouge;
  } else {
    RendCouleur(label);
  }
}

/// All labels go to the back, one after the other, so that the last one lies behind all; then one to the front.
void MetDevant(Ciel &c, std::size_t i) {
  std::iota(c.pile.rbegin(), c.pile.rend(), std::size_t{1});
  const auto place = std::find(c.pile.begin(), c.pile.end(), i);
  std::rotate(place, place + 1, c.pile.end());
  if (c.etoileDevant != 0) {
    c.Laet[c.etoileDevant].opaque = false;
  }
  c.etoileDevant = i;
  c.Laet[i].opaque = true;
  c.Laet[i].fond = c.picture1.fond;
}

/// Chooses a kind of body in the sight panel, as its option does.
void ChoisitCorps(Bureau &bureau, std::size_t corps) { PoseOption(bureau, bureau.donnees.Option7[corps]); }

/// Chooses the line of a list that has a text; a text that isn't there changes nothing.
void ChoisitTexte(Bureau &bureau, Controle &liste, const std::string &texte) {
  const auto ligne = std::find(liste.liste.begin(), liste.liste.end(), texte);
  if (ligne != liste.liste.end()) {
    PoseRang(bureau, liste, static_cast<int>(ligne - liste.liste.begin()), static_cast<int>(liste.liste.size()));
  }
}

bool EstEtoile(int indice) { return indice >= 1 && std::cmp_less_equal(indice, kEtoilesCiel); }

/// The mark of a body whose label or picture the keyboard stands on: a picture is its own.
const Controle *MarqueDe(const Ciel &c, const Controle *astre) {
  const auto rang = static_cast<std::size_t>(astre->indice);
  if (astre->nom == "Laet") {
    return &c.Shet[rang];
  }
  if (astre->nom == "LaP") {
    return &c.Shapla[rang];
  }
  return astre;
}

/// The bodies on show within the chart, each by the control that is pressed to choose it.
ListeControles AstresMontres(Bureau &bureau) {
  const Ciel &c = bureau.ciel;
  ListeControles montres;
  for (Controle *astre : ControlesDe(bureau, kFenetreCiel)) {
    if (astre->parent != "Picture1" || astre->genre == Genre::Marque || !astre->visible) {
      continue;
    }
    const Point p = CentreDe(*MarqueDe(c, astre));
    if (p.x >= 0 && p.x <= c.picture1.largeur && p.y >= 0 && p.y <= c.picture1.hauteur) {
      montres.push_back(astre);
    }
  }
  return montres;
}

/// How far a body lies in a direction; what lies aside counts twice.
/// @return none when it lies not that way
std::optional<double> Eloignement(Point de, Point vers, Direction direction) {
  const double dx = vers.x - de.x;
  const double dy = vers.y - de.y;
  const bool couche = direction == Direction::Gauche || direction == Direction::Droite;
  const bool recule = direction == Direction::Gauche || direction == Direction::Haut;
  const double avance = (couche ? dx : dy) * (recule ? -1 : 1);
  const double ecart = 2 * (couche ? dy : dx);
  return avance > 0 ? std::optional(avance * avance + ecart * ecart) : std::nullopt;
}

} // namespace

bool SeChoisit(const Bureau &bureau, const Controle &astre) {
  if (astre.nom != "Laet") {
    return true;
  }
  const Observation o = LitPanneau(bureau.donnees);
  ValeursVisee valeurs = bureau.visee;
  Passe([&] { LitEstime(o, valeurs); });
  std::vector<std::string> visibles;
  Passe([&] {
    visibles = ListeVisibles(bureau.etoiles, {o.jour, o.mois, o.annee}, DateDeVisee(o), valeurs.LatEstimee,
                             valeurs.LonEstimee);
  });
  return std::find(visibles.begin(), visibles.end(), astre.legende) != visibles.end();
}

std::string AideAstre(const Bureau &bureau, const Controle &astre) {
  const std::string_view bayer = astre.infobulle;
  std::string aide = bayer.empty() ? std::string() : std::string(LettreGrecque(bayer.substr(0, 1)));
  aide += bayer.substr(std::min<std::size_t>(1, bayer.size()));
  if (!SeChoisit(bureau, astre)) {
    aide += (aide.empty() ? "" : "\n") + bureau.ciel.TexteHorsListe.legende;
  }
  return aide;
}

void Survole(Bureau &bureau, const Controle &astre, const Controle &pointe) {
  if (astre.nom == "Laet") {
    Laet_MouseMove(bureau, astre.indice);
  } else if (pointe.nom == "Shapla") {
    Shapla_MouseMove(bureau, astre.indice);
  } else if (astre.nom == "LaP") {
    LaP_MouseMove(bureau, astre.indice);
  } else if (astre.nom == "SOL") {
    SOL_MouseMove(bureau);
  } else {
    Lune_MouseMove(bureau);
  }
}

void Picture1_MouseMove(Bureau &bureau, double x, double y) {
  MontreNom(bureau.ciel, "");
  CadransSous(bureau, {x, y});
}

void Laet_MouseMove(Bureau &bureau, int indice) {
  if (!EstEtoile(indice)) {
    return;
  }
  Ciel &c = bureau.ciel;
  const auto i = static_cast<std::size_t>(indice);
  MontreEtoile(bureau, i);
  AviseLigneLoin(bureau, i);
  for (std::size_t j = 1; j <= kEtoilesCiel; ++j) {
    // A text that is empty is found in every other.
    Allume(c, j, bureau.etoiles.EtoileBayer[j].find(c.Bayer2.legende) != std::string_view::npos);
  }
  MetDevant(c, i);
  CadransSous(bureau, CentreDe(c.Shet[i]));
}

void LaP_MouseMove(Bureau &bureau, int indice) {
  const Controle &label = bureau.ciel.LaP.at(static_cast<std::size_t>(indice));
  MontreNom(bureau.ciel, label.legende);
  CadransSous(bureau, CentreDe(label));
}

void Shapla_MouseMove(Bureau &bureau, int indice) {
  const auto k = static_cast<std::size_t>(indice);
  MontreNom(bureau.ciel, bureau.ciel.LaP.at(k).legende);
  CadransSous(bureau, CentreDe(bureau.ciel.Shapla.at(k)));
}

void SOL_MouseMove(Bureau &bureau) {
  MontreNom(bureau.ciel, bureau.ciel.TexteSoleil.legende);
  CadransSous(bureau, CentreDe(bureau.ciel.SOL));
}

void Lune_MouseMove(Bureau &bureau) {
  MontreNom(bureau.ciel, bureau.ciel.TexteLune.legende);
  CadransSous(bureau, CentreDe(bureau.ciel.Lune));
}

void List1_Click(Bureau &bureau, int /*indice*/) {
  Ciel &c = bureau.ciel;
  const auto rang = static_cast<std::size_t>(c.List1.rang);
  if (c.List1.rang < 0 || rang >= c.List1.liste.size()) {
    return;
  }
  const std::string choix = c.List1.liste[rang];
  std::size_t retenue = 0;
  for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
    const bool choisie = bureau.etoiles.EtoileNom[i] == choix;
    Allume(c, i, choisie);
    retenue = choisie ? i : retenue;
  }
  if (retenue != 0) {
    CadransSous(bureau, CentreDe(c.Shet[retenue]));
    MontreEtoile(bureau, retenue);
  }
}

void SOL_Click(Bureau &bureau, int /*indice*/) {
  ChoisitCorps(bureau, 0);
  SelAstre(bureau, 0);
  bureau.premierPlan = kFenetreDonnees;
}

void Lune_Click(Bureau &bureau, int /*indice*/) {
  ChoisitCorps(bureau, 1);
  SelAstre(bureau, 1);
  bureau.premierPlan = kFenetreDonnees;
}

void LaP_Click(Bureau &bureau, int indice) {
  ChoisitCorps(bureau, 2);
  ChoisitTexte(bureau, bureau.donnees.Combo7, bureau.ciel.LaP.at(static_cast<std::size_t>(indice)).legende);
  SelAstre(bureau, 2);
  bureau.premierPlan = kFenetreDonnees;
}

void Laet_Click(Bureau &bureau, int indice) {
  Donnees &d = bureau.donnees;
  if (!EstEtoile(indice)) {
    return;
  }
  const Controle &label = bureau.ciel.Laet[static_cast<std::size_t>(indice)];
  if (label.legende.empty()) {
    return;
  }
  if (Val(label.etiquette) == kNavigable) {
    d.Check3.valeur = 0;
    Check3_Click(bureau, -1);
  }
  ChoisitCorps(bureau, 3);
  SelAstre(bureau, 3);
  ChoisitTexte(bureau, d.Combo8, label.legende);
  bureau.premierPlan = kFenetreDonnees;
}

void DeplaceAstre(Bureau &bureau, Direction direction) {
  Ciel &c = bureau.ciel;
  const Point milieu{c.picture1.largeur / 2, c.picture1.hauteur / 2};
  const Point de = c.astreCourant == nullptr ? milieu : CentreDe(*MarqueDe(c, c.astreCourant));
  const Controle *proche = nullptr;
  double moindre = 0;
  for (const Controle *astre : AstresMontres(bureau)) {
    const Point p = CentreDe(*MarqueDe(c, astre));
    const std::optional<double> loin = c.astreCourant == nullptr
                                           ? (p.x - de.x) * (p.x - de.x) + (p.y - de.y) * (p.y - de.y)
                                           : Eloignement(de, p, direction);
    if (astre != c.astreCourant && loin && (proche == nullptr || *loin < moindre)) {
      proche = astre;
      moindre = *loin;
    }
  }
  if (proche != nullptr) {
    c.astreCourant = proche;
    Survole(bureau, *proche, *MarqueDe(c, proche));
  }
}

void PrendAstre(Bureau &bureau) {
  for (Controle *astre : ControlesDe(bureau, kFenetreCiel)) {
    if (astre == bureau.ciel.astreCourant) {
      ClicControle(bureau, *astre);
    }
  }
}

} // namespace velmaris::ciel

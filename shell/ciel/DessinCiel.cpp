#include "shell/ciel/DessinCiel.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/ciel/MomentCiel.hpp"
#include "shell/visee/PanneauDirect.hpp"
#include "shell/visee/Saisie.hpp"
#include "sky/Constellations.hpp"
#include "sky/TraceCiel.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace velmaris {
namespace {

constexpr double kMarqueNavigable = 200;
constexpr double kPointsNavigable = 14;
constexpr double kSousEtoile = 100;              ///< from a star to its label
constexpr double kSousPlanete = 200;             ///< from a planet to its label
constexpr double kInterligne = 25;               ///< height of a label for each point of its font
constexpr std::string_view kSansNom = "    ";    ///< of a star that has none: something to point at
constexpr std::string_view kSousHorizon = "   "; ///< of a star that isn't in the sky

void Ajuste(const Ports &ports, Controle &label) {
  label.place.largeur = ports.largeurTexte(label.legende, label.taille, label.gras);
  label.place.hauteur = label.taille * kInterligne;
}

void Centre(Controle &astre, Point p) {
  astre.place.gauche = p.x - astre.place.largeur / 2;
  astre.place.haut = p.y - astre.place.hauteur / 2;
}

/// Places the Sun or the Moon from what its routine has left.
/// @param tour  a whole turn in the unit of the equatorial pair's second number
void PlaceLuminaire(Ciel &c, const CadreCiel &cadre, Controle &astre, double tour) {
  if (cadre.carte == CarteCiel::Horizontale) {
    PrendHorizonCiel(c.angles, astre.etiquette);
    Centre(astre, ProjetteHorizon(cadre, c.angles.AngleAz, c.angles.AngleHaut));
    return;
  }
  // The first number of the pair is taken for the declination. The Sun's pair stands the other way round, so that its
  // picture on this chart is not where the Sun is.
  const PaireX place = LitPaireX(c.Label1.legende);
  c.angles.AngleDec = Simple(place.gauche + 90);
  c.angles.AngleAD = Simple(place.droite);
  Centre(astre, ProjetteEquateur(cadre, c.angles.AngleAD, c.angles.AngleDec, tour));
}

/// Latitude and longitude of the panel and the present moment.
/// @throws Erreur 13 when the clock makes no date
RegardCiel LitRegard(const Observation &o, Horloge &horloge) {
  RegardCiel regard;
  Passe([&] { regard.latitude = Simple(LatitudeEstimee(o)); });
  Passe([&] { regard.longitude = Simple(LongitudeEstimee(o)); });
  LitHorloge(horloge);
  regard.date = LitDateHeure(horloge.JourGMT + "/" + horloge.MoisGMT + "/" + horloge.AnGMT + "  " + horloge.HeureGMT);
  return regard;
}

Point Projette(const CadreCiel &cadre, const AnglesCiel &angles) {
  return cadre.carte == CarteCiel::Horizontale ? ProjetteHorizon(cadre, angles.AngleAz, angles.AngleHaut)
                                               : ProjetteEquateur(cadre, angles.AngleAD, angles.AngleDec);
}

/// A star of the short list stands out. Its new size counts from the next drawing on.
void DistingueNavigable(const Ports &ports, Controle &marque, Controle &label) {
  marque.bordure = kNavigable;
  marque.place.largeur = kMarqueNavigable;
  marque.place.hauteur = kMarqueNavigable;
  label.couleur = kNavigable;
  label.etiquette = std::to_string(kNavigable);
  if (!label.gras || label.taille != kPointsNavigable) {
    label.gras = true;
    label.taille = kPointsNavigable;
    Ajuste(ports, label);
  }
}

void MontreEtoile(Bureau &bureau, const CadreCiel &cadre, std::size_t i) {
  Ciel &c = bureau.ciel;
  Controle &marque = c.Shet[i];
  Controle &label = c.Laet[i];
  const std::string_view nom = bureau.etoiles.EtoileNom[i];
  const bool levee = c.angles.AngleHaut > 0;
  if (!nom.empty() && (levee || cadre.carte == CarteCiel::Equatoriale)) {
    c.List1.liste.emplace_back(nom);
  }
  const Point p = Projette(cadre, c.angles);
  PoseMots(bureau.ports, label, !levee ? kSousHorizon : nom.empty() ? kSansNom : nom);
  RendCouleur(label);
  label.place.gauche = GaucheLabel(cadre, p.x, label.place.largeur);
  label.place.haut = p.y + kSousEtoile;
  Centre(marque, p);
  marque.couleur = CouleurEtoile(c.angles.AngleHaut);
  marque.bordure = marque.couleur;
  if (EstNavigable(nom)) {
    DistingueNavigable(bureau.ports, marque, label);
  }
}

void TraceEtoiles(Bureau &bureau, const CadreCiel &cadre, const DateEtoile &jour, const RegardCiel &regard) {
  Ciel &c = bureau.ciel;
  std::array<Point, kEtoilesCiel + 1> coins{};
  for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
    const bool placee = Passe([&] { CalculeEtoile(c.angles, bureau.etoiles, i, jour, regard); });
    if (placee) {
      MontreEtoile(bureau, cadre, i);
    }
    c.Shet[i].visible = placee;
    c.Laet[i].visible = placee;
    coins[i] = {c.Shet[i].place.gauche, c.Shet[i].place.haut};
  }
  TraceConstellations(c.picture1, {coins, {c.Shet[1].place.largeur / 2, c.Shet[1].place.hauteur / 2}});
}

/// @param k  its number among the planets of the chart
void AffPlanete(Bureau &bureau, const CadreCiel &cadre, std::size_t k, const RegardCiel &regard) {
  Ciel &c = bureau.ciel;
  Controle &marque = c.Shapla[k];
  Controle &label = c.LaP[k];
  PlaceEquateur place;
  const bool placee = Passe([&] { place = CalculePlanete(c.angles, kPlanetesCiel[k], bureau.horloge, regard); });
  if (placee) {
    const Point p = cadre.carte == CarteCiel::Horizontale ? ProjetteHorizon(cadre, c.angles.AngleAz, c.angles.AngleHaut)
                                                          : ProjetteEquateur(cadre, place.a, place.dec + 90);
    PoseMots(bureau.ports, label, NomSurCarte(kPlanetesCiel[k]));
    label.place.gauche = GaucheLabel(cadre, p.x, label.place.largeur);
    label.place.haut = p.y + kSousPlanete;
    marque.place.gauche = GaucheMarque(cadre, p.x, marque.place.largeur);
    marque.place.haut = p.y - marque.place.hauteur / 2;
  }
  marque.visible = placee;
  label.visible = placee;
}

void TraceLuminaires(Bureau &bureau, const CadreCiel &cadre) {
  Ciel &c = bureau.ciel;
  c.SOL.visible = Passe([&] {
    PosSoleil(bureau, true, true);
    PlaceLuminaire(c, cadre, c.SOL, 360);
  });
  // On the equatorial chart the height is still that of the last body of the drawing before.
  c.picture1.fond = FondCiel(c.angles.AngleHaut);
  c.Lune.visible = Passe([&] {
    PosLune(bureau, true, true);
    PlaceLuminaire(c, cadre, c.Lune, 24);
  });
}

/// The line chosen in the list of stars stays chosen while its star is there.
void RetrouveChoix(Controle &liste, const std::string &choix) {
  const auto ligne = std::find(liste.liste.begin(), liste.liste.end(), choix);
  liste.rang = choix.empty() || ligne == liste.liste.end() ? -1 : static_cast<int>(ligne - liste.liste.begin());
}

} // namespace

CadreCiel CadreDe(const Ciel &c) {
  return {c.Picture1.place.largeur, c.Picture1.place.hauteur, c.HScroll1.valeur / 100.0,
          c.Option1[0].choisi ? CarteCiel::Equatoriale : CarteCiel::Horizontale};
}

void PoseMots(const Ports &ports, Controle &label, std::string_view mots) {
  if (label.legende != mots || label.place.largeur == 0) {
    label.legende = mots;
    Ajuste(ports, label);
  }
}

void RendCouleur(Controle &label) { label.couleur = static_cast<Couleur>(Val(label.etiquette)); }

void TraceCiel(Bureau &bureau) {
  Ciel &c = bureau.ciel;
  const CadreCiel cadre = CadreDe(c);
  if (!ADeLaPlace(cadre)) {
    return;
  }
  const ALHeureDuCiel heure(bureau);
  const auto rang = static_cast<std::size_t>(c.List1.rang);
  const std::string choix = c.List1.rang >= 0 && rang < c.List1.liste.size() ? c.List1.liste[rang] : std::string();
  Efface(c.picture1);
  TraceLuminaires(bureau, cadre);
  c.List1.liste.clear();
  const Observation o = LitPanneau(bureau.donnees);
  Passe([&] {
    const RegardCiel regard = LitRegard(o, bureau.horloge);
    TraceEtoiles(bureau, cadre, {o.jour, o.mois, o.annee}, regard);
    for (std::size_t k = 0; k < c.LaP.size(); ++k) {
      AffPlanete(bureau, cadre, k, regard);
    }
    DitMoment(bureau, regard.latitude, regard.longitude);
  });
  c.picture1.epaisseur = 1;
  TraceEchelleCiel(c.picture1, cadre);
  TraceHauteurs(c.picture1, cadre);
  RetrouveChoix(c.List1, choix);
}

} // namespace velmaris

#include "shell/carte/Carte.hpp"

#include "chart/Lieux.hpp"
#include "chart/Projection.hpp"
#include "chart/Terres.hpp"
#include "chart/TraceCarte.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/droites/Droites.hpp"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr int kFichierOuvert = 55;
constexpr std::string_view kCleTerres = "Terres"; ///< of the setting
constexpr std::size_t kIles = 3;                  ///< boxes of the module, by what they show
constexpr std::size_t kEaux = 2;
constexpr std::size_t kObjets = 1;
constexpr std::size_t kVilles = 0;

/// A polygon file and what shows it.
struct Couche {
  std::string_view fichier;
  Couleur couleur;
  std::optional<Teinte> teinte; ///< of what its closed outlines enclose
  bool (*demandee)(const Donnees &);
};

bool EauxDemandees(const Donnees &d) { return d.Check1[kEaux].valeur == 1; }

/// In the order in which they are drawn.
constexpr std::array<Couche, 5> kCouches = {
    {{"Contours.Asc", Rvb(100, 100, 100), Teinte::Terre, [](const Donnees &d) { return d.OpCarte[1].choisi; }},
     {"Totale.asc", kNoir, Teinte::Terre, [](const Donnees &d) { return d.OpCarte[0].choisi; }},
     {"Iles.Asc", Rvb(130, 150, 130), Teinte::Terre, [](const Donnees &d) { return d.Check1[kIles].valeur == 1; }},
     {"Rivieres.Asc", Rvb(0, 150, 180), std::nullopt, EauxDemandees},
     {"Lacs.Asc", kBleu, Teinte::Eau, EauxDemandees}}};

/// The local time of day, a fraction of the day in whole seconds.
double HeureDuJour(const Bureau &bureau) {
  const ValeurDate date = bureau.horloge.locale();
  return ((date.heure * 60.0 + date.minute) * 60.0 + date.seconde) / 86400.0;
}

std::string LitDonnees(const Bureau &bureau, std::string_view nom) {
  return LitFichier(TrouveFichier(bureau.dossiers, std::string(nom)));
}

/// What the outlines just read enclose. It is kept while its file is the same.
std::shared_ptr<const Anneaux> AnneauxLus(Bureau &bureau, std::string_view nom, TerresLues lues) {
  TerresLues &gardees = bureau.carte.terres[std::string(nom)];
  if (!gardees.anneaux || gardees.taille != lues.taille || gardees.date != lues.date) {
    lues.anneaux = std::make_shared<const Anneaux>(AnneauxFermes(bureau.carte.polygone));
    gardees = std::move(lues);
  }
  return gardees.anneaux;
}

/// The outlines just read, filled below all lines.
void Teint(Bureau &bureau, std::string_view nom, Teinte teinte, TerresLues lues) {
  const VueCarte vue = ChoisitVue(bureau.feuille, bureau.image1);
  AjouteAire(bureau.image1, AireSurCarte(vue, bureau.feuille, teinte, AnneauxLus(bureau, nom, std::move(lues))));
}

/// Cities or user's objects; what can't be read is told, and the chart stays as drawn.
void ChargeLieux(Bureau &bureau, std::string_view nom, std::size_t message,
                 void (*trace)(const Feuille &, Surface &, std::string_view)) {
  try {
    trace(bureau.feuille, bureau.image1, LitDonnees(bureau, nom));
  } catch (const Erreur &) {
    bureau.ports.boite({.texte = bureau.messages[message]});
  }
}

/// Notes where a drawing of the chart stands in the surface's list. One that repeats the drawing right before it is
/// dropped, since it leaves nothing to see: steps of the zoom without a sheet.
void NoteDessin(CarteOuverte &carte, Surface &surface, std::size_t debut, const LieuCarte &lieu) {
  if (carte.effacements != surface.effacements) {
    carte.dessins.clear();
    carte.effacements = surface.effacements;
  }
  carte.lieu = lieu;
  if (carte.dessins.empty() || carte.dessins.back().fin != debut ||
      !RetireRepetition(surface, carte.dessins.back().debut, debut)) {
    carte.dessins.push_back({debut, surface.traces.size()});
  }
}

void PoseTerres(Bureau &bureau, bool teintees) {
  bureau.image1.teintee = teintees;
  bureau.donnees.PU_Terres.valeur = teintees ? 1 : 0;
}

LieuCarte LieuDe(const Feuille &feuille) {
  return EstMonde(feuille) ? LieuCarte{kSansFeuille, 0.0F, 0.0F}
                           : LieuCarte{feuille.OrigineFeuille, feuille.EchelleX, feuille.EchelleY};
}

/// A chart drawn elsewhere goes, with all that lies on it: a zoom without a sheet leaves the centre that was chosen by
/// hand, and the whole world comes back.
void EffaceAutreVue(Bureau &bureau) {
  const CarteOuverte &carte = bureau.carte;
  const bool montre = !carte.dessins.empty() && carte.effacements == bureau.image1.effacements;
  if (montre && carte.lieu != LieuDe(bureau.feuille)) {
    Efface(bureau.image1);
  }
}

} // namespace

void OuvreCartes(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  Surface &surface = bureau.image1;
  EffaceAutreVue(bureau);
  const LieuCarte lieu = LieuDe(bureau.feuille);
  const std::size_t debut = surface.traces.size();
  surface.plumeLevee = true;
  bureau.pointeurOccupe = true;
  const double notee = HeureDuJour(bureau);
  d.Label51.legende.clear();
  d.Label51.infobulle = "Polygones chargés";
  std::vector<const Couche *> couches;
  std::vector<std::string_view> fichiers;
  for (const Couche &couche : kCouches) {
    if (couche.demandee(d)) {
      couches.push_back(&couche);
      fichiers.push_back(couche.fichier);
    }
  }
  LecturesCarte lectures = LancePolygones(bureau.dossiers, fichiers);
  for (std::size_t i = 0; i < couches.size(); ++i) {
    const Couche &couche = *couches[i];
    ChargePolygone(bureau, lectures[i].get(), couche.fichier, couche.couleur, couche.teinte);
  }
  if (d.Check1[kVilles].valeur == 1) {
    ChargeLieux(bureau, "Villes.txt", 1, TraceVilles);
  }
  if (d.Check1[kObjets].valeur == 1) {
    ChargeLieux(bureau, "Utilisateur.txt", 2, TraceObjets);
  }
  const double secondes = Int((HeureDuJour(bureau) - notee) * 24 * 60 * 60);
  if (secondes > 1) {
    d.Label51.legende = bureau.messages[26] + TexteGeneral(secondes) + bureau.messages[27];
  }
  bureau.pointeurOccupe = false;
  NoteDessin(bureau.carte, surface, debut, lieu);
  surface.plumeLevee = true;
}

void ChargePolygone(Bureau &bureau, PolygoneLu lu, std::string_view nom, Couleur couleur,
                    std::optional<Teinte> teinte) {
  CarteOuverte &carte = bureau.carte;
  try {
    carte.polygone = std::move(lu.polygone);
    if (carte.fichierReste) {
      throw Erreur(kFichierOuvert);
    }
    if (lu.refus) {
      carte.fichierReste = lu.ouvert;
      throw Erreur(*lu.refus);
    }
    bureau.donnees.Label51.infobulle += " + " + std::to_string(lu.points);
    bureau.ports.respire();
    if (teinte) {
      Teint(bureau, nom, *teinte, std::move(lu.fichier));
    }
    bureau.image1.genre = GenreLigne::Cote;
    Affiche(carte.polygone, bureau.feuille, bureau.image1, couleur, bureau.ports.respire);
  } catch (const Erreur &) {
    bureau.ports.boite({.texte = bureau.messages[3] + std::string(nom)});
  }
  bureau.image1.genre = GenreLigne::Libre;
}

void Command17_Click(Bureau &bureau, int /*indice*/) { OuvreCartes(bureau); }

void LitTerres(Bureau &bureau) { PoseTerres(bureau, LitReglage(bureau, kCleTerres, "1") != "0"); }

void PU_Terres_Click(Bureau &bureau, int /*indice*/) {
  PoseTerres(bureau, !bureau.image1.teintee);
  EcritReglage(bureau, kCleTerres, bureau.image1.teintee ? "1" : "0");
}

void Command16_Click(Bureau &bureau, int /*indice*/) {
  Efface(bureau.image1);
  RetraceDroites(bureau);
}

void PU_Centre_Click(Bureau &bureau, int /*indice*/) {
  Feuille &feuille = bureau.feuille;
  const SourisCarte &souris = bureau.souris;
  // Before a first drawing there is no scale to measure the move with: the whole world is drawn.
  if (feuille.EchelleX != 0.0F && feuille.EchelleY != 0.0F) {
    Origine centre = feuille.OrigineFeuille;
    centre.latitude = Simple(centre.latitude - ((double{souris.ClicY} - feuille.CentreY) / feuille.EchelleY) / 60);
    centre.longitude = Simple(centre.longitude - ((double{souris.ClicX} - feuille.CentreX) / feuille.EchelleX) / 60);
    feuille.OrigineFeuille = Enroule(centre);
  }
  Efface(bureau.image1);
  OuvreCartes(bureau);
}

} // namespace velmaris

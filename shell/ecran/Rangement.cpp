#include "shell/ecran/Rangement.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/visee/PanneauDirect.hpp"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Disposition"; ///< setting: whether the places are kept
constexpr std::string_view kClePlaces = "Places";
constexpr int kDistance = 1;
constexpr int kDetails = 3;
constexpr int kSoleil = 8;

void PoseGarde(Bureau &bureau, bool garde) {
  bureau.gardeDisposition = garde;
  bureau.donnees.PU_Disposition.valeur = garde ? 1 : 0;
}

std::vector<ModuleRange> ModulesMontres(Donnees &d) {
  std::vector<ModuleRange> montres;
  for (const int numero : kNumerosModules) {
    if (const Controle *module = Module(d, numero); module->visible) {
      montres.push_back({numero, module->place});
    }
  }
  return montres;
}

void Remet(Bureau &bureau, const ModuleRange &range) {
  Controle &module = *Module(bureau.donnees, range.numero);
  module.visible = true;
  module.place.gauche = range.place.gauche;
  module.place.haut = range.place.haut;
  if (range.numero == kDistance) {
    PoseDistance(bureau, true);
  } else if (range.numero == kSoleil) {
    PositionLive(bureau);
  }
  MontreMemoire(bureau.donnees, bureau.donnees.Frame10.visible);
}

/// One module in the kept text.
struct PlaceGardee {
  int numero = 0;
  bool visible = false;
  double gauche = 0.0;
  double haut = 0.0;
};

/// The kept text: number, 1 for one on show, left and top in 1/1440 inch, for each module.
/// @return none where it isn't one that `GardeDisposition` has written
std::vector<PlaceGardee> LitPlaces(const std::string &texte) {
  std::vector<PlaceGardee> places;
  std::istringstream mots(texte);
  std::array<std::string, 4> mot;
  while (mots >> mot[0] >> mot[1] >> mot[2] >> mot[3]) {
    places.push_back({static_cast<int>(Val(mot[0])), mot[1] == "1", Val(mot[2]), Val(mot[3])});
  }
  const bool entier = places.size() == kNumerosModules.size() &&
                      std::equal(places.begin(), places.end(), kNumerosModules.begin(),
                                 [](const PlaceGardee &place, int numero) { return place.numero == numero; });
  return entier ? places : std::vector<PlaceGardee>();
}

} // namespace

void PU_Ranger_Click(Bureau &bureau, int /*indice*/) {
  const std::vector<ModuleRange> montres = ModulesMontres(bureau.donnees);
  if (montres.empty()) {
    for (const ModuleRange &range : bureau.modulesRanges) {
      Remet(bureau, range);
    }
    if (bureau.modulesRanges.empty()) {
      Avise(bureau, bureau.etat.TexteSansModule.legende);
    }
    return;
  }
  bureau.modulesRanges = montres;
  for (const ModuleRange &range : montres) {
    FermeModule(bureau, range.numero);
  }
}

void PU_Disposition_Click(Bureau &bureau, int /*indice*/) {
  PoseGarde(bureau, !bureau.gardeDisposition);
  EcritReglage(bureau, kCle, bureau.gardeDisposition ? "1" : "0");
  GardeDisposition(bureau);
}

void LitDisposition(Bureau &bureau) { PoseGarde(bureau, LitReglage(bureau, kCle, "0") == "1"); }

void RemetDisposition(Bureau &bureau) {
  if (!bureau.gardeDisposition) {
    return;
  }
  Donnees &d = bureau.donnees;
  for (const PlaceGardee &place : LitPlaces(LitReglage(bureau, kClePlaces))) {
    Controle &module = *Module(d, place.numero);
    TireModule(bureau, module, place.gauche, place.haut); // a smaller screen keeps it in reach
    const bool vide = place.numero == kDistance || (place.numero == kDetails && d.Label70[0].legende.empty());
    module.visible = place.visible && !vide;
  }
  MontreMemoire(d, d.Frame10.visible);
  PositionLive(bureau);
}

void GardeDisposition(Bureau &bureau) {
  if (!bureau.gardeDisposition) {
    return;
  }
  std::string texte;
  for (const int numero : kNumerosModules) {
    const Controle &module = *Module(bureau.donnees, numero);
    texte += (texte.empty() ? "" : " ") + std::to_string(numero) + (module.visible ? " 1 " : " 0 ") +
             TexteGeneral(module.place.gauche) + " " + TexteGeneral(module.place.haut);
  }
  EcritReglage(bureau, kClePlaces, texte);
}

} // namespace velmaris

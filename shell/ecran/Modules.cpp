#include "shell/ecran/Modules.hpp"

#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/visee/PanneauDirect.hpp"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

constexpr double kHautModules = 1080.0; ///< top of the right-hand modules under the toolbar
constexpr double kHautCarteSousSoleil = 3370.0;
constexpr double kGaucheDroites = 3060.0; ///< left of module 10 beside module 7
constexpr double kResteTitre = 900.0;     ///< of a module's title that stays in the window
constexpr double kHautTitre = 300.0;      ///< of its title line
constexpr double kHautRange = 1215.0;     ///< top of module 10 once all are put away

constexpr std::size_t kLegendeMemoire = 5; ///< caption under "Mémoire"

/// The panels by the order of their numbers.
constexpr std::array<Controle Donnees::*, kNumerosModules.size()> kPanneaux = {
    &Donnees::Frame1, &Donnees::Frame2, &Donnees::Frame9,       &Donnees::Frame4,
    &Donnees::Frame7, &Donnees::Frame8, &Donnees::FOptionCarte, &Donnees::Frame10};

/// Shows module 10 at a place, with "Mémoire" in the toolbar.
void MontreDroitesEn(Donnees &d, double gauche, double haut) {
  MontreMemoire(d, true);
  d.Frame10.visible = true;
  d.Frame10.place.gauche = gauche;
  d.Frame10.place.haut = haut;
}

} // namespace

Controle *Module(Donnees &d, int numero) {
  const auto *const place = std::find(kNumerosModules.begin(), kNumerosModules.end(), numero);
  if (place == kNumerosModules.end()) {
    return nullptr;
  }
  return &(d.*kPanneaux.at(static_cast<std::size_t>(place - kNumerosModules.begin())));
}

void MontreMemoire(Donnees &d, bool visible) {
  d.Command8.visible = visible;
  d.Label50[kLegendeMemoire].visible = visible;
}

void PoseDistance(Bureau &bureau, bool mesure) {
  Donnees &d = bureau.donnees;
  bureau.souris.ModeDistance = mesure ? -1 : 0;
  d.PU_Distance.valeur = mesure ? 1 : 0;
  d.Image1.pointeur = mesure ? Pointeur::Croix : Pointeur::Normal;
}

void LacheModule(Bureau &bureau) {
  bureau.ModuleDeplace = 0;
  bureau.donnees.Label62.visible = false;
}

void TireModule(Bureau &bureau, Controle &module, double gauche, double haut) {
  LacheModule(bureau);
  const Place &surface = bureau.donnees.Image1.place;
  module.place.gauche =
      std::clamp(gauche, kResteTitre - module.place.largeur, surface.gauche + surface.largeur - kResteTitre);
  module.place.haut = std::clamp(haut, 0.0, surface.haut + surface.hauteur - kHautTitre);
}

void SaisitModule(Bureau &bureau, int numero) {
  if (bureau.ModuleDeplace == numero) {
    LacheModule(bureau);
    return;
  }
  bureau.ModuleDeplace = static_cast<std::int16_t>(numero);
  Controle &aide = bureau.donnees.Label62;
  aide.visible = true;
  aide.place.gauche = 8300;
  aide.place.haut = 5900;
}

void FermeModule(Bureau &bureau, int numero) {
  Donnees &d = bureau.donnees;
  LacheModule(bureau);
  if (Controle *module = Module(d, numero); module != nullptr) {
    module->visible = false;
  }
  switch (numero) {
  case 1:
    PoseDistance(bureau, false);
    break;
  case 7:
    d.Frame9.visible = false;
    break;
  case 8:
    d.Soleil.place.gauche = kHorsDeVue;
    break;
  case 10:
    MontreMemoire(d, d.Frame10.visible);
    break;
  default:
    break;
  }
}

void DeplaceModule(Bureau &bureau, double x, double y) {
  Controle *module = Module(bureau.donnees, bureau.ModuleDeplace);
  if (module == nullptr) {
    return;
  }
  bureau.donnees.Label62.place.gauche = x - 1700;
  bureau.donnees.Label62.place.haut = y - 800;
  module->place.gauche = x;
  module->place.haut = y;
}

void Command23_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Frame10.visible = !d.Frame10.visible;
  MontreMemoire(d, d.Frame10.visible);
}

void Command20_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Frame7.visible = !d.Frame7.visible;
  d.Frame9.visible = d.Frame9.visible && d.Frame7.visible;
}

void Command7_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Frame8.visible = !d.Frame8.visible;
  if (!d.Frame8.visible) {
    d.Soleil.place.gauche = kHorsDeVue;
    d.FOptionCarte.place.haut = kHautModules;
  }
  PositionLive(bureau);
  d.Frame8.place.haut = kHautModules;
  d.FOptionCarte.place.haut =
      d.FOptionCarte.visible && d.Frame8.visible ? d.Frame8.place.hauteur + kHautModules : kHautModules;
}

void Command21_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.FOptionCarte.visible = !d.FOptionCarte.visible;
  d.FOptionCarte.place.haut = !d.Frame8.visible && d.FOptionCarte.visible ? kHautModules : kHautCarteSousSoleil;
}

void Command22_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Frame4.visible = !d.Frame4.visible;
  if (d.Frame4.visible) {
    MontreDroitesEn(d, d.Frame4.place.gauche, d.Frame4.place.haut - d.Frame10.place.hauteur);
  }
}

void Command9_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Frame2.visible = !d.Frame2.visible;
  if (d.Frame2.visible) {
    d.Frame7.visible = false;
    d.Frame9.visible = false;
    MontreDroitesEn(d, d.Frame2.place.gauche - 3420, d.Frame2.place.haut);
  }
}

void Command26_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  if (!d.Label70[0].legende.empty()) {
    d.Frame9.visible = !d.Frame9.visible;
    if (d.Frame9.visible) {
      d.Frame9.place.gauche = d.Frame7.place.gauche + d.Frame7.place.largeur;
      d.Frame9.place.haut = d.Frame7.place.haut + d.Frame7.place.hauteur - d.Frame9.place.hauteur;
    }
  } else {
    Avise(bureau, bureau.etat.TexteSansCalcul.legende);
  }
  LacheModule(bureau);
}

void MontreDroitesMultiples(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  MontreMemoire(d, true);
  d.Frame10.visible = true;
  if (d.Frame7.visible && d.Frame10.place.gauche - d.Frame7.place.largeur < d.Frame7.place.gauche) {
    d.Frame7.place.gauche = 0;
    d.Frame10.place.gauche = kGaucheDroites;
  }
}

void AccordeModules(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  for (Controle Donnees::*module : kPanneaux) {
    Controle &panneau = d.*module;
    TireModule(bureau, panneau, panneau.place.gauche, panneau.place.haut);
  }
  MontreMemoire(d, d.Frame10.visible);
}

void PU_Clear_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  PoseDistance(bureau, false);
  d.Label62.visible = false;
  MontreMemoire(d, false);
  for (Controle Donnees::*module : kPanneaux) {
    (d.*module).visible = false;
  }
  d.Frame10.place.haut = kHautRange;
  d.Soleil.place.gauche = kHorsDeVue;
}

void OpCarte_Click(Bureau &bureau, int indice) {
  const int etat = indice == 0 ? 2 : 1;
  PoseValeur(bureau, bureau.donnees.Check1[3], etat);
  PoseValeur(bureau, bureau.donnees.Check1[2], etat);
}

} // namespace velmaris

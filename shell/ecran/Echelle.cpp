#include "shell/ecran/Echelle.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Taille";
constexpr std::array<int, 8> kTailles = {80, 90, 100, 110, 125, 150, 175, 200}; ///< percent
constexpr double kCent = 100.0;
constexpr double kLargeurCiel = 13300.0; ///< that the strip under the sky's chart takes, 1/1440 inch
constexpr double kHauteurCiel = 6600.0;  ///< strip, slider and a chart that can be read

double Facteur(const Bureau &bureau) { return bureau.taille / kCent; }

void PoseTaille(Bureau &bureau, int taille) {
  bureau.taille = taille;
  bureau.donnees.PU_TailleAuto.valeur = taille == kTailleAutomatique ? 1 : 0;
}

void Choisit(Bureau &bureau, int taille) {
  PoseTaille(bureau, taille);
  EcritReglage(bureau, kCle, std::to_string(taille));
}

} // namespace

Ecran EcranDe(double largeur, double hauteur, int pixelsHaut) {
  largeur = std::max(largeur, kMoindreLargeur);
  const double haut = std::max(hauteur, kMoindreHauteur) - kBarreTitre;
  const double echelle = std::max(kEchelleMinimale, haut * kUnitesParPixel / kHauteurJuste);
  return {largeur * kUnitesParPixel / echelle, haut * kUnitesParPixel / echelle, pixelsHaut, echelle};
}

double EchelleContenu(const Bureau &bureau, double largeur, double hauteur) {
  return std::min(largeur / bureau.largeurFenetre, hauteur / bureau.hauteurFenetre) * kUnitesParPixel * Facteur(bureau);
}

double EchelleFenetre(const Bureau &bureau) { return bureau.ecran.echelle * Facteur(bureau); }

double EchelleCiel(const Bureau &bureau, double largeur, double hauteur) {
  return std::min(
      {EchelleFenetre(bureau), largeur * kUnitesParPixel / kLargeurCiel, hauteur * kUnitesParPixel / kHauteurCiel});
}

double EchellePage(const CadreFenetre &cadre, double largeur, double hauteur) {
  return std::min(largeur * kUnitesParPixel / cadre.largeur, hauteur * kUnitesParPixel / cadre.hauteur);
}

double EchelleDialogue(const Bureau &bureau, const CadreFenetre &cadre, double largeur, double hauteur) {
  return std::min({EchelleFenetre(bureau), largeur * kUnitesParPixel / cadre.largeur,
                   (hauteur - kBarreTitre) * kUnitesParPixel / cadre.hauteur});
}

void LitTaille(Bureau &bureau) {
  const double lue = Val(LitReglage(bureau, kCle, ""));
  const auto *connue = std::find(kTailles.begin(), kTailles.end(), static_cast<int>(lue));
  PoseTaille(bureau, connue == kTailles.end() ? kTailleAutomatique : *connue);
}

void PU_TaillePlus_Click(Bureau &bureau, int /*indice*/) {
  Choisit(bureau, *std::min(std::upper_bound(kTailles.begin(), kTailles.end(), bureau.taille), kTailles.end() - 1));
}

void PU_TailleMoins_Click(Bureau &bureau, int /*indice*/) {
  const auto *plusGrande = std::lower_bound(kTailles.begin(), kTailles.end(), bureau.taille);
  Choisit(bureau, *(plusGrande == kTailles.begin() ? plusGrande : plusGrande - 1));
}

void PU_TailleAuto_Click(Bureau &bureau, int /*indice*/) { Choisit(bureau, kTailleAutomatique); }

void PU_PleinEcran_Click(Bureau &bureau, int /*indice*/) {
  bureau.pleinEcran = !bureau.pleinEcran;
  bureau.donnees.PU_PleinEcran.valeur = bureau.pleinEcran ? 1 : 0;
}

} // namespace velmaris

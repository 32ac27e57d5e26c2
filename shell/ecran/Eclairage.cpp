#include "shell/ecran/Eclairage.hpp"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Nuit";

/// By their place in `Eclairage`: a program that knows no dusk reads it as day.
constexpr std::array<std::string_view, 3> kTextes = {"0", "2", "1"};

void PoseEclairage(Bureau &bureau, Eclairage eclairage) {
  bureau.eclairage = eclairage;
  bureau.donnees.PU_Nuit.valeur = eclairage == Eclairage::Nuit ? 1 : 0;
  bureau.donnees.PU_Crepuscule.valeur = eclairage == Eclairage::Crepuscule ? 1 : 0;
}

void Choisit(Bureau &bureau, Eclairage eclairage) {
  PoseEclairage(bureau, eclairage);
  EcritReglage(bureau, kCle, kTextes.at(static_cast<std::size_t>(eclairage)));
}

} // namespace

void LitEclairage(Bureau &bureau) {
  const std::string texte = LitReglage(bureau, kCle);
  const auto *choix = std::find(kTextes.begin(), kTextes.end(), texte);
  const bool crepuscule = texte.empty() && bureau.sombreAilleurs;
  PoseEclairage(bureau, choix != kTextes.end() ? static_cast<Eclairage>(choix - kTextes.begin())
                        : crepuscule           ? Eclairage::Crepuscule
                                               : Eclairage::Jour);
}

void SuitBureauSombre(Bureau &bureau, bool sombre) {
  bureau.sombreAilleurs = sombre;
  LitEclairage(bureau);
}

void TourneEclairage(Bureau &bureau) {
  Choisit(bureau, bureau.eclairage == Eclairage::Jour         ? Eclairage::Crepuscule
                  : bureau.eclairage == Eclairage::Crepuscule ? Eclairage::Nuit
                                                              : Eclairage::Jour);
}

void PU_Nuit_Click(Bureau &bureau, int /*indice*/) {
  Choisit(bureau, bureau.eclairage == Eclairage::Nuit ? Eclairage::Jour : Eclairage::Nuit);
}

void PU_Crepuscule_Click(Bureau &bureau, int /*indice*/) {
  Choisit(bureau, bureau.eclairage == Eclairage::Crepuscule ? Eclairage::Jour : Eclairage::Crepuscule);
}

} // namespace velmaris

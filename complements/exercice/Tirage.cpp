#include "complements/exercice/Tirage.hpp"

#include <cmath>

namespace velmaris {
namespace {

/// Even over [0, 1): the engine's 53 highest bits.
double Unite(Tirage &tirage) {
  constexpr int kBitsPerdus = 11;
  constexpr double kPas = 0x1p-53;
  return static_cast<double>(tirage.moteur() >> kBitsPerdus) * kPas;
}

} // namespace

double TireEntre(Tirage &tirage, double de, double a) { return de + (a - de) * Unite(tirage); }

int TireEntier(Tirage &tirage, int de, int a) {
  return de + static_cast<int>(std::floor((a - de + 1.0) * Unite(tirage)));
}

bool TireChance(Tirage &tirage, double chance) { return Unite(tirage) < chance; }

double TireNormale(Tirage &tirage, double ecart) {
  constexpr int kDouze = 12; ///< each of variance 1/12
  double somme = 0;
  for (int i = 0; i < kDouze; ++i) {
    somme += Unite(tirage);
  }
  return (somme - kDouze / 2.0) * ecart;
}

} // namespace velmaris

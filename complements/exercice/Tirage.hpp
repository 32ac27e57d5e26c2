#pragma once

#include <cstdint>
#include <random>

namespace velmaris {

/// Draws that are the same on every machine for one seed: the engine is the standard's, the laws are plain arithmetic.
struct Tirage {
  std::mt19937_64 moteur;
};

/// Even over [de, a). The draw moves on.
double TireEntre(Tirage &tirage, double de, double a);

/// A whole number, even over [de, a]. The draw moves on.
int TireEntier(Tirage &tirage, int de, int a);

/// Whether something of this chance happens. The draw moves on.
bool TireChance(Tirage &tirage, double chance);

/// A normal of mean 0, by the sum of twelve: it never goes beyond six deviations. The draw moves on by twelve.
double TireNormale(Tirage &tirage, double ecart);

} // namespace velmaris

#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/ciel/Refus.hpp"

#include <erfa.h>
#include <erfam.h>

#include <optional>
#include <random>
#include <vector>

/// What the judges of the sky of today share.
namespace velmaris::essais {

/// The sky at a Terrestrial Time, with Universal Time 69 s behind it.
inline CielDuMoment CielTT(double jour, double fraction = 0) {
  return PrepareCiel({{jour, fraction}, {jour, fraction - 69.0 / ERFA_DAYSEC}});
}

/// Why something is refused; nothing when it isn't.
template <class Appel> std::optional<RaisonRefus> RaisonDe(Appel &&appel) {
  try {
    appel();
  } catch (const Refus &refus) {
    return refus.raison;
  }
  return std::nullopt;
}

/// Angle between two places, seconds of arc.
inline double Ecart(double ad1, double dec1, double ad2, double dec2) {
  return eraSeps(ad1 * ERFA_DD2R, dec1 * ERFA_DD2R, ad2 * ERFA_DD2R, dec2 * ERFA_DD2R) * ERFA_DR2AS;
}

/// Angle between two vectors, seconds of arc.
inline double Ecart(Vecteur3 a, Vecteur3 b) { return eraSepp(a.data(), b.data()) * ERFA_DR2AS; }

/// Julian days spread over some years, the same in every run.
inline std::vector<double> JoursAuHasard(int nombre, int annee1, int annee2) {
  std::mt19937_64 hasard(18);
  std::uniform_real_distribution<double> jour(ERFA_DJ00 + (annee1 - 2000) * 365.25,
                                              ERFA_DJ00 + (annee2 - 2000) * 365.25);
  std::vector<double> jours;
  for (int i = 0; i < nombre; ++i) {
    jours.push_back(jour(hasard));
  }
  return jours;
}

} // namespace velmaris::essais

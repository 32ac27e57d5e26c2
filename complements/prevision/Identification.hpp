#pragma once

#include "complements/prevision/CielDuPlan.hpp"

#include <cstddef>
#include <optional>
#include <vector>

namespace velmaris {

/// A body that was seen and isn't known. Of height and azimuth one may be missing.
struct AstreInconnu {
  std::optional<double> lecture{};   ///< by the sextant of the plan's settings, degrees
  std::optional<double> apparente{}; ///< or over the sensible horizon through the air, degrees
  std::optional<double> azimut{};    ///< true, degrees
  double douteHauteur = 1;           ///< standard deviation, degrees: of the reading's height, the position with it
  double douteAzimut = 5;            ///< degrees
};

/// A body that it may be.
struct AstreProbable {
  std::size_t rang = 0;    ///< in `CielDuJour::astres`
  double ecartHauteur = 0; ///< seen less computed, degrees
  double ecartAzimut = 0;  ///< seen less computed, degrees in [-180, 180)
  double distance = 0;     ///< in doubts, both together
  double chance = 0;       ///< among all that are told, 0 to 1: distance and brightness together
};

/// The bodies that it may be, the likeliest first: planets and stars over the horizon, the Sun and the Moon never,
/// since nobody takes them for another. A body twice as bright is twice as likely, up to magnitude -1.
/// @param ciel      without presets will do
/// @param reglages  as the sky was looked at with
/// @param combien   at most
/// @return none without a height or an azimuth, or when all are over five doubts off
std::vector<AstreProbable> IdentifieAstre(const CielDuPlan &ciel, const ReglagesPlan &reglages,
                                          const AstreInconnu &inconnu, std::size_t combien = 8);

} // namespace velmaris

#pragma once

#include "complements/serie/LecturesPretes.hpp"

#include <array>
#include <optional>
#include <vector>

namespace velmaris {

/// A place that readings of one body lead to.
struct LieuAjuste {
  LieuNavire lieu;         ///< of the ship at the reference time
  double varianceNord = 0; ///< of the latitude, minutes squared
  double varianceEst = 0;  ///< of the longitude, minutes of arc of longitude squared
  double covariance = 0;
  double khi2 = 0;                           ///< of the readings alone
  std::vector<double> ecarts;                ///< of the readings that count: over the assumed error
  std::vector<std::array<double, 2>> pentes; ///< of their heights, by latitude and longitude, over the assumed error
  std::vector<double> azimuts;               ///< degrees, of all readings
  std::vector<double> residus;               ///< minutes, of all readings
};

/// What holds a longitude that readings don't tell.
struct LongitudeTenue {
  double longitude = 0; ///< degrees, at the reference time
  double ecartType = 0; ///< minutes of arc
};

/// Least squares of readings on the sky, the ship's place at a time the unknown.
/// @param depart   where it starts, at the reference time
/// @param tenue    holds the longitude; nothing for readings that tell it
/// @return nothing where they can't tell a place, or none is found within thirty degrees of the start
/// Theory: Gauss and Newton with halved steps; slopes by the azimuth and those of the ship's track.
std::optional<LieuAjuste> AjusteLieu(const BaseLectures &base, const std::vector<LecturePrete> &lectures,
                                     const InstantUTC &reference, const LieuNavire &depart,
                                     const std::optional<LongitudeTenue> &tenue);

} // namespace velmaris

#pragma once

#include "complements/ciel/Instants.hpp"
#include "foundations/Surface.hpp"

#include <optional>
#include <vector>

namespace velmaris {

/// One reading of a plot.
struct PointDuDessin {
  double minutes = 0;  ///< of time, from the plot's origin
  double hauteur = 0;  ///< degrees
  double residu = 0;   ///< minutes of arc
  bool compte = true;  ///< else it is drawn hollow
  bool marque = false; ///< ringed: improbable, or the highest
};

/// What a plot of readings shows.
struct TraceLectures {
  InstantUTC origine;                  ///< the time of 0 minutes
  std::vector<PointDuDessin> lectures; ///< by any order
  std::vector<Point> course;           ///< minutes across, degrees up; by growing minutes
  double ecartType = 0.7;              ///< assumed error of a reading, minutes: the residuals' band is twice as wide
  std::optional<double> passage;       ///< minutes, of an upright line
};

/// Where a reading stands on the plot: among the heights, and among the residuals below.
/// @{
Point PlaceDeLecture(const Surface &surface, const TraceLectures &trace, const PointDuDessin &lecture);
Point PlaceDuResidu(const Surface &surface, const TraceLectures &trace, const PointDuDessin &lecture);
/// @}

/// Draws a plot anew: time across; above, the heights with the sky's course as a line; below, what is left of them,
/// with lines at twice the assumed error. Without a course it is left empty.
void DessineLectures(Surface &surface, const TraceLectures &trace);

} // namespace velmaris

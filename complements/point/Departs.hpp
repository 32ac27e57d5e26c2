#pragma once

#include "complements/point/Equations.hpp"

#include <vector>

namespace velmaris {

/// No two lines that cross at less than this make a fix, degrees.
inline constexpr double kCroisementMin = 15;

/// The places that a search can start from: the crossings of the two circles that cross most squarely, both moved along
/// the track to the time of the fix.
/// @return two, one where the circles only come near each other, or none where no two have different centres
std::vector<LieuNavire> DepartsDe(const SystemePoint &systeme);

/// Whether some two lines cross at `kCroisementMin` or more.
/// @param azimuts  of the bodies, degrees
bool SeCroisent(std::span<const double> azimuts);

/// Whether azimuths leave no gap of 180 degrees or more.
bool FontLeTour(std::vector<double> azimuts);

} // namespace velmaris

#pragma once

#include "complements/point/Equations.hpp"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace velmaris {

/// No two lines that cross at less than this make a fix, degrees.
inline constexpr double kCroisementMin = 15;

/// Two sights of a system.
using PaireVisees = std::array<std::size_t, 2>;

/// The pairs that a search can start from, the one whose circles cross most squarely first; each next one has a sight
/// that those before haven't.
/// @return at most four; none where there is but one sight
std::vector<PaireVisees> PairesDe(const SystemePoint &systeme);

/// The crossings of a pair's circles, both moved along the track to the time of the fix.
/// @return two, one where the circles only come near each other, none where they have one centre
std::vector<LieuNavire> DepartsDe(const SystemePoint &systeme, const PaireVisees &paire);

/// Whether some two lines cross at `kCroisementMin` or more.
/// @param azimuts  of the bodies, degrees
bool SeCroisent(std::span<const double> azimuts);

/// Whether azimuths leave no gap of 180 degrees or more.
bool FontLeTour(std::vector<double> azimuts);

} // namespace velmaris

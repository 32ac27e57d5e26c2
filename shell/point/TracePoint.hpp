#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/point/CalquePoint.hpp"

namespace velmaris {

/// The solution that is looked at: of two, the one that the user has chosen.
const SolutionPoint *SolutionVue(const PointOuvert &point, const FichePoint &fiche);

/// The fix that is looked at: by the sky of today, else by the told lines; the second of two solutions where that one
/// is wanted.
/// @return null without a fix
const SolutionPoint *SolutionRetenue(const PointOuvert &point);

/// What is drawn of a fix: its lines, its ellipse, the ship's track.
/// @param solution  that is looked at
PointTrace TraceDe(const PointOuvert &point, const SolutionPoint &solution);

} // namespace velmaris

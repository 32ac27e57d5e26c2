#pragma once

#include "complements/point/Epreuve.hpp"
#include "complements/point/Equations.hpp"
#include "complements/point/Point.hpp"

namespace velmaris {

/// What a state that no step makes better says of the place, the sights and the errors.
/// @param visees  all sights of the caller, those that don't count too
SolutionPoint JugeEquilibre(const SystemePoint &systeme, const EquilibrePoint &equilibre,
                            std::span<const ViseePoint> visees, const ReglagesPoint &reglages);

/// The ellipse of a covariance of miles north and east, its half axes by the root of a factor.
EllipsePoint EllipseDe(double nordNord, double nordEst, double estEst, double facteur);

} // namespace velmaris

#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/point/Route.hpp"

namespace velmaris {

/// A body that is seen at a height.
struct AstreVu {
  PlaceGeocentrique place;
  double hauteur = 0; ///< degrees: the centre from the place, without air
};

/// The place that has two bodies at their heights; where none has, the one that comes nearest.
/// @param pres         of the two crossings the one nearer to it is taken
/// @param hauteurOeil  metres
/// Theory: the crossing of two circles on the sphere, then Newton's steps on the spheroid, held where both bodies stand
/// in one vertical.
LieuNavire LieuParHauteurs(const AstreVu &a, const AstreVu &b, const LieuNavire &pres, double hauteurOeil);

} // namespace velmaris

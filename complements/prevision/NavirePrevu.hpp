#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/point/Route.hpp"

namespace velmaris {

/// A ship that a plan is made for: where she is at one time, and how she goes on from there. Without a leg and a
/// current she stands.
struct NavirePrevu {
  InstantUTC heure{}; ///< when she is at `lieu`
  LieuNavire lieu{};
  RouteNavire route{};
  double hauteurOeil = 0; ///< metres
};

/// Her place at a time, before `heure` too.
LieuNavire LieuDuNavire(const NavirePrevu &navire, const InstantUTC &utc);

/// The same with the height of the eye.
Station StationDuNavire(const NavirePrevu &navire, const InstantUTC &utc);

/// Hours that zone time is ahead of UTC at a longitude: whole ones, each zone 15 degrees wide.
/// @param longitude  degrees, east positive, any turn
/// @return -12 to 12
int FuseauDe(double longitude);

} // namespace velmaris

#include "complements/prevision/NavirePrevu.hpp"

#include "complements/point/Sphere.hpp"

#include <cmath>

namespace velmaris {

LieuNavire LieuDuNavire(const NavirePrevu &navire, const InstantUTC &utc) {
  return Deplace(navire.route, navire.lieu, navire.heure, utc).lieu;
}

Station StationDuNavire(const NavirePrevu &navire, const InstantUTC &utc) {
  const LieuNavire lieu = LieuDuNavire(navire, utc);
  return {lieu.latitude, lieu.longitude, navire.hauteurOeil};
}

int FuseauDe(double longitude) {
  constexpr double kZone = 15; ///< degrees
  return static_cast<int>(std::lround(LongitudeUnTour(longitude) / kZone));
}

} // namespace velmaris

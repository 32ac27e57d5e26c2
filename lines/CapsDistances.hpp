#pragma once

#include <string>

namespace velmaris {

/// One end of a track, as its fields stand. East is positive here.
struct BoutRoute {
  std::string latitudeDegres;
  std::string latitudeMinutes;
  std::string longitudeDegres;
  std::string longitudeMinutes;
  bool sud = false;
  bool ouest = false;
};

/// A place in decimal degrees, north and east positive.
struct PlaceRoute {
  double latitude = 0.0;
  double longitude = 0.0;
};

/// Course and distance between two places. The course is that of a mean-latitude track while the distance is along
/// the great circle: the two don't belong to one track.
struct CapDistance {
  bool memePoint = false; ///< both ends are one place: there is neither
  float cap = 0.0F;       ///< degrees
  double milles = 0.0;    ///< nautical miles
};

/// An end of a track from its fields.
PlaceRoute LitBout(const BoutRoute &bout);

/// Course and distance from a place to another. Past the antimeridian the difference of longitude is taken from 360
/// while it is in radians: such tracks are wrong, and known to be.
/// @throws Erreur 5 or 11 when the ends are so near, or so exactly opposite, that the cosine of the arc rounds to 1
CapDistance CalculeCapDistance(const PlaceRoute &depart, const PlaceRoute &arrivee);

/// Whether going from A to B by the shorter way is going west.
/// The tests are made in degrees; with radians every pair on the two sides of Greenwich counts as near.
/// @param A, B  longitudes, east positive
bool DirectionWest(double A, float B);

} // namespace velmaris

#pragma once

#include "foundations/Horloge.hpp"
#include "sights/Observation.hpp"

#include <string>

namespace velmaris {

/// The sub-solar point.
struct PointSolaire {
  float LatSoleil = 0.0F; ///< degrees, south negative
  float LonSoleil = 0.0F; ///< degrees, west positive
};

/// Where the Sun stands now, seen from the estimated position.
struct SoleilDirect {
  double azimut = 0.0;  ///< degrees
  double hauteur = 0.0; ///< degrees
  double AD = 0.0;      ///< right ascension, degrees
  double Dec = 0.0;     ///< declination, degrees
  PointSolaire point;
};

/// Place of the Sun for the present moment at the position of the fields: the theory of the Sun sight in 64 bits.
/// The day is the local date and not the GMT date, so around midnight it is one off within the hours of the time zone.
/// @param observation  only its position is read
/// @param horloge      read afresh; its record and texts are refreshed
SoleilDirect CalculeSoleilDirect(const Observation &observation, Horloge &horloge);

/// The sub-solar point in words: "N 20.05    W 123.04", degrees and minutes around a point.
std::string TextePointSolaire(const PointSolaire &point);

} // namespace velmaris

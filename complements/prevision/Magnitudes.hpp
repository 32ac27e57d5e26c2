#pragma once

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Places.hpp"

namespace velmaris {

/// How the Sun lights a body that is seen from the Earth's centre.
struct EclairementAstre {
  double distanceSoleil = 0; ///< of the body, astronomical units
  double distance = 0;       ///< from the Earth, astronomical units
  double phase = 0;          ///< angle at the body between Sun and Earth, degrees in [0, 180]
  double elongation = 0;     ///< angle at the Earth between Sun and body, degrees in [0, 180]
};

/// @param astre  with a distance
EclairementAstre EclairementDe(const PlaceGeocentrique &astre, const PlaceGeocentrique &soleil);

/// The part of the disk that is lit, 0 to 1.
double PartEclairee(const EclairementAstre &eclairage);

/// Sine of the latitude of Saturn's rings that counts for its light: the mean of Sun and Earth, 0 when they see
/// different sides.
double OuvertureAnneaux(const CielDuMoment &ciel, const PlaceGeocentrique &saturne, const PlaceGeocentrique &soleil);

/// Visual magnitude of the Sun, the Moon or a planet.
/// @param ouverture  of Saturn's rings, as `OuvertureAnneaux` gives it; no other body heeds it
/// Source: planets by Mallama and Hilton (2018); Mars without the terms of its rotation and seasons, 0.1 at most; the
/// Moon by Allen (1973), the Sun -26.74 at one astronomical unit.
double MagnitudeDe(GenreAstre genre, const EclairementAstre &eclairage, double ouverture = 0);

/// Faintest magnitude that a sextant's telescope shows in the twilight: a rule of thumb, linear between -4 with the
/// Sun's centre on the horizon, -1.5 at 3 degrees under it, 1 at 6, 2.5 at 9, 4 at 12 and 6 from 18 on. By day it is
/// -5: Sun and Moon alone.
/// @param depression  of the Sun's centre under the horizon, degrees; negative above it
double MagnitudeVisible(double depression);

} // namespace velmaris

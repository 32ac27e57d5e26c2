#pragma once

#include "foundations/Horloge.hpp"
#include "foundations/ValeurDate.hpp"

#include <string>

namespace velmaris {

/// Julian day of a civil date: Julian calendar up to 1582 October 4 of the count, Gregorian after.
/// @param horloge  where the time of day comes from, read afresh; null to take the date's own time
/// @return days
double JourJulien(const ValeurDate &date, Horloge *horloge);

/// Local sidereal time.
/// @param date       civil date and time, UTC, reckoned in the Gregorian calendar always
/// @param longitude  degrees, east positive
/// @return degrees, normally in [0, 360]; exactly 360 stays 360 and exactly 0 stays 0
/// @throws Erreur 6 when the year of a January or February date leaves 16 bits
/// Source: mean sidereal time at Greenwich, IAU 1982, on the day count from 2000 January 1.5.
double TempsSideralLocal(const ValeurDate &date, double longitude);

/// Azimuth and altitude of an equatorial place.
/// @param ra   right ascension, degrees
/// @param dec  declination, degrees; left in radians
/// @param lat  latitude, degrees, north positive; left in radians
/// @param lon  longitude, degrees, east positive
/// @return azimuth "X" altitude, degrees: the azimuth from north through east as a 32-bit value, the altitude as a
///         64-bit one. A cosine of the azimuth of 1 or beyond gives an azimuth near 57238.5, or 360 less that.
/// @throws Erreur 11 at a pole or in the zenith
std::string CelesteVersHorizon(const ValeurDate &date, double ra, double &dec, double &lat, double lon);

} // namespace velmaris

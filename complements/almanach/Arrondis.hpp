#pragma once

#include <cmath>
#include <string>

/// The one rounding of printed figures: half a unit goes away from zero.
namespace velmaris {

/// Degrees as tenths of a minute.
inline long DixiemesDe(double degres) { return std::lround(degres * 600); }

/// An angle of one turn as tenths of a minute, in [0, 216000).
inline long DixiemesUnTour(double degres) {
  constexpr long kTour = 216000;
  return ((DixiemesDe(degres) % kTour) + kTour) % kTour;
}

/// Tenths of a unit: of a minute or of a magnitude.
inline long ArrondiDixieme(double minutes) { return std::lround(minutes * 10); }

/// Hours as minutes, 0 to 1440; the last is 24 h 00.
inline long MinutesDe(double heures) { return std::lround(heures * 60); }

/// Tenths as a text: "-0.3".
/// @param virgule  the sign before decimals
std::string TexteDixiemes(long dixiemes, char virgule);

/// An angle: "123 45.6", the degrees in as many places as asked for, with blanks before them.
/// @param dixiemes  of a minute, not negative
std::string TexteAngle(long dixiemes, char virgule, int places = 3);

/// A declination: "N 02 34.5". What rounds to 0 is north.
/// @param dixiemes  of a minute, north positive
std::string TexteDeclinaison(long dixiemes, char virgule);

/// A time of day: "07 42".
std::string TexteHeureMinutes(long minutes);

/// An equation of time: "-03:42".
/// @param secondes  rounded to whole ones
std::string TexteEquation(double secondes);

} // namespace velmaris

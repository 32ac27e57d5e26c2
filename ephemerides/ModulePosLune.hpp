#pragma once

#include "ephemerides/SerieLune.hpp"

#include <string>
#include <string_view>

namespace velmaris {

/// The Moon at one moment: what a caller sets, what CalculLune fills, then what TopoLune fills.
struct Lune {
  // The moment, in Universal Time; no difference between time scales is applied.
  double LuneAn = 0.0;
  double LuneMois = 0.0;
  double LuneJour = 0.0;
  double LuneHeure = 0.0;
  double LuneMinute = 0.0;
  float LuneSeconde = 0.0F;

  // Geocentric, by CalculLune.
  double LuneJD = 0.0;         ///< Julian day
  double LuneLongitude = 0.0;  ///< apparent ecliptic longitude, radians, not within one turn
  double LuneLatitude = 0.0;   ///< ecliptic latitude, radians
  double LuneDistance = 0.0;   ///< km from the Earth's centre
  double LuneParallaxe = 0.0;  ///< horizontal parallax, radians, of whole thousandths of a second of arc
  double LuneAD = 0.0;         ///< right ascension, hours; topocentric after TopoLune
  double LuneDecl = 0.0;       ///< declination, degrees; topocentric after TopoLune
  double LuneObliquite = 0.0;  ///< true obliquity, radians
  double LuneLongSoleil = 0.0; ///< longitude of the Sun, radians
  double LunePhase = 0.0;      ///< phase angle, radians

  // For an observer, by TopoLune.
  float LuneDemiDiametre = 0.0F; ///< semi-diameter, minutes of arc
  float LuneAzimut = 0.0F;       ///< degrees, from north through east
  float LuneHauteur = 0.0F;      ///< altitude, degrees
  std::string LuneTexteDecl;     ///< "D = +12° 05' 7.31''"
  std::string LuneTexteAD;       ///< the label and "07 h 32 m 11.04s"
};

/// The Moon from the Earth's centre, for the moment in the record. The old calendar holds up to 1582 October 15, a day
/// longer than in history. A failure leaves what was filled before it.
/// @param lune  its moment is read, `LuneJD` to `LunePhase` are filled
/// @throws Erreur 6 when the date is beyond the range of numbers, 11 at a declination of exactly 90 degrees or where a
///         quotient has no value
/// Source: lunar theory ELP 2000-82, truncated, with IAU 1980 nutation; the Sun by Newcomb's elements.
void CalculLune(Lune &lune);

/// Ecliptic latitude of the Moon, of the series and a last term in the time alone.
/// @param lune  `LuneLatitude` is filled
/// @param T     Julian centuries from J2000.0
void LatitudeLune(Lune &lune, const ArgumentsLune &arguments, double T);

/// The Moon as an observer sees it from a spherical Earth, after CalculLune for the same record. A failure leaves what
/// was filled before it.
/// @param lune       `LuneDemiDiametre` to `LuneTexteAD` are filled
/// @param ra         right ascension: its old value isn't read; left topocentric, hours. Callers give `LuneAD`
/// @param dec        declination, likewise; left topocentric, degrees. Callers give `LuneDecl`
/// @param latitude   degrees, north positive
/// @param longitude  degrees, east positive
/// @param labelAD    words before the right ascension (numbered text 33)
/// @throws Erreur 11 in the zenith, at a pole or where a quotient has no value, 6 when a value leaves its width.
///         A cosine of the azimuth of 1 or beyond gives no failure but an azimuth of 360 less 57238.5, or 57238.5.
void TopoLune(Lune &lune, double &ra, double &dec, float latitude, float longitude, std::string_view labelAD);

} // namespace velmaris

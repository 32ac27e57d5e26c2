#pragma once

#include "foundations/Angles.hpp"

namespace velmaris {

/// Degrees per radian of the Moon's theory.
inline constexpr double kDegLune = 180.0 / kPiCourt;
/// Radians per second of arc with which the nutation is added: six digits, the results depend on them.
inline constexpr double kArcSecLune = 4.84814e-06;

/// Julian centuries from J2000.0 and their powers, each the product of the one before.
struct PuissancesLune {
  double T, T2, T3, T4;
};

/// Centuries of a Julian day.
/// @param jd  days; Universal Time serves as the theory's time
/// @throws Erreur 6 when a power leaves 64 bits
PuissancesLune TempsLune(double jd);

/// The arguments of the Moon's series, radians. `Omega`, `M` and `Lp` are whole, all others lie within one turn.
struct ArgumentsLune {
  double Lm = 0.0;    ///< mean longitude of the Moon
  double Omega = 0.0; ///< longitude of the ascending node
  double D = 0.0;     ///< mean elongation
  double M = 0.0;     ///< mean anomaly of the Sun
  double l = 0.0;     ///< mean anomaly of the Moon
  double F = 0.0;     ///< argument of latitude
  double Ve = 0.0;    ///< mean longitude of Venus
  double Te = 0.0;    ///< mean longitude of the Earth
  double Ma = 0.0;    ///< mean longitude of Mars
  double Ju = 0.0;    ///< mean longitude of Jupiter
  double Lp = 0.0;    ///< mean longitude of the Moon from the fixed equinox of J2000.0
};

/// The arguments for a time. No term holds Mercury, Saturn, Uranus or Neptune.
/// Source: mean elements published with the lunar theory ELP 2000-82.
ArgumentsLune CalculeArgumentsLune(const PuissancesLune &temps);

/// Angle brought into one turn by the short two pi, in 64 bits.
/// @param x  radians
double UnTourLune(double x);

/// Periodic part of the longitude: 405 terms, seconds of arc.
/// Each series is summed in the order of its table, an argument as the sum of its products in the order of the columns
/// with the phase last; every sine is worked out for itself, so that the sum is the same to the last bit everywhere.
/// Source: ELP 2000-82, truncated at 0.00096 second of arc.
double SerieLongitude(const ArgumentsLune &arguments);

/// Periodic part of the latitude without its term in the time alone: 200 terms, seconds of arc.
/// Source: ELP 2000-82, truncated at 0.01009 second of arc.
double SerieLatitude(const ArgumentsLune &arguments);

/// Distance: the constant and 105 terms, km.
/// Source: ELP 2000-82, truncated at 0.10326 km.
double SerieDistance(const ArgumentsLune &arguments);

} // namespace velmaris

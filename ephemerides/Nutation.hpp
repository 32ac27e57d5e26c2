#pragma once

/// Nutation in longitude and obliquity of the ecliptic.
/// Source: IAU 1980 theory of nutation (Wahr 1981, Seidelmann 1982), its rows of 0.0003 second of arc and more; mean
/// obliquity of Laskar (1986, Astron. Astrophys. 157, 59).
namespace velmaris {

/// The five arguments of the nutation, in radians. A caller that has its own gives them; nothing reduces them.
struct ArgumentsNutation {
  double D = 0.0;     ///< mean elongation of the Moon
  double M = 0.0;     ///< mean anomaly of the Sun
  double Mp = 0.0;    ///< mean anomaly of the Moon
  double F = 0.0;     ///< argument of latitude of the Moon
  double Omega = 0.0; ///< longitude of the Moon's ascending node
};

/// The 63 sine terms in longitude, largest first.
/// @param T  Julian centuries from J2000.0, for the parts of the coefficients that grow with time
/// @return 0.0001 second of arc
double SommeNutationLongitude(const ArgumentsNutation &arguments, double T);

/// The 38 cosine terms in obliquity, largest first.
/// @param T  as in longitude
/// @return 0.0001 second of arc
double SommeNutationObliquite(const ArgumentsNutation &arguments, double T);

/// The arguments of the planetary places: linear in time, without the published terms in its square and cube.
/// @param temps  Julian centuries from J2000.0 in longitude, units of ten thousand years in obliquity
ArgumentsNutation ArgumentsLineaires(double temps);

/// Nutation in longitude.
/// @param JD  Julian day
/// @return degrees
double NutationLongitude(double JD);

/// True obliquity of the ecliptic: the mean one of Laskar's polynomial and the nutation. The arguments of that nutation
/// run on the polynomial's own time, a hundred times too slowly: it creeps around its value at J2000.0, minus 5.8
/// seconds of arc, instead of swinging by 9 to either side. Places are defined with it.
/// @param JD  Julian day
/// @return degrees
double ObliquiteVraie(double JD);

} // namespace velmaris

#pragma once

#include <optional>
#include <string>

namespace velmaris {

/// Pi as the angle routines hold it, cut at twelve decimals.
inline constexpr double kPiCourt = 3.141592653589;
/// Two pi as the angle routines hold it.
inline constexpr double kDeuxPiCourt = 6.283185307178;
/// Radians per degree of the sight reductions and of the sheet: short by design, the results depend on it.
inline constexpr double kRadCourt = 0.017453292;
/// Kilometres in an astronomical unit, as a whole number.
inline constexpr double kUniteAstronomique = 149597870.0;

/// Degrees as radians by the short pi, in the order of the sheet's figures: the product comes before the quotient.
constexpr double EnRadiansCourt(double degres) { return degres * kPiCourt / 180; }

/// Degrees brought into one turn, as by adding 360 while negative, then taking it off while above 360: exactly 360
/// stays 360. Whole turns go in one exact step, for a century of days makes 36000 of them.
double UnTourDegres(double degres);

/// Brings an angle into one turn.
/// @param x  radians; the 32-bit rounding of the caller's value stays in the result
/// @return radians in [0, 6.283185307178), as far as rounding allows
double ReduitDeuxPi(float x);

/// Angle of the point (x, y), by quadrant.
/// @return radians in [0, 2 pi)
/// @throws Erreur 11 when x is 0
double ArcTanQuadrant(double y, double x);

/// Arc cosine through the arctangent.
/// @return radians
/// @throws Erreur 11 when |x| = 1, 5 when |x| > 1
double ArcCosinus(double x);

/// Arc cosine that never fails.
/// @return radians, or exactly 999 when |x| >= 1: the sentinel that callers take for an angle
double ArcCosDouble(double x);

/// Arc sine through the arctangent.
/// @return radians
/// @throws Erreur 11 when |x| = 1, 5 when |x| > 1
double ArcSinDouble(double x);

/// As ArcCosDouble, for a caller that holds a generic number.
double ArcCosVal(double x);

/// As ArcSinDouble, for a caller that holds a generic number.
double ArcSinVal(double x);

/// Arc sine in degrees, with its two ends: 90 and -90 for 1 and -1.
/// @throws Erreur 5 when |x| > 1
double ArcSinDegres(double x);

/// Hours, minutes and seconds of time as degrees: 15 * (h + m / 60 + s / 3600), the sign of h not carried over.
/// @param s  seconds; a missing one counts as 0 and is left at 0
double HeuresEnDegres(double h, double m, std::optional<double> &s);

/// Degrees, minutes and seconds as degrees; the sign of the whole is that of d alone.
double SexaEnDegres(double d, double m, double s);

/// Degrees as 00°00'00'': a negative angle bears a minus on every field, the seconds are rounded without a carry.
std::string DegresEnTexte(double x);

/// Degrees as 00h00m00s, with the signs and the rounding of DegresEnTexte.
/// @param x  degrees; left in hours
std::string HeuresEnTexte(double &x);

/// Degrees as 00.00, whole degrees and minutes, without a sign.
std::string DegresPointMinutes(double x);

/// Angle in sixteen columns, right-justified; a longer text loses its left end.
/// @param valeur   degrees
/// @param genre    "DMS" for degrees, anything else for hours; left trimmed and in capitals
/// @param montrePlus  whether a positive value bears its sign
/// A seconds field whose general text is 60 carries and is left empty, and so a minutes field of 60; 59.96 prints 60.0.
std::string FormatAngle(double valeur, std::string &genre, bool montrePlus);

/// A place in tenths of a minute: "47° 10.3' N  004° 44.1' W".
/// @param latitude, longitude  degrees, north and west positive; the longitude is brought within 180
/// @return empty past a pole
std::string TexteTenue(double latitude, double longitude);

/// Logarithm to base 10, through a natural logarithm of ten of 15 digits.
/// @throws Erreur 5 when x <= 0
double LogDecimal(double x);

/// Astronomical units as kilometres.
/// @param d  astronomical units; left in kilometres
double UAEnKm(double &d);

} // namespace velmaris

#pragma once

#include <string>
#include <string_view>

/// Heliocentric places of Venus, the Earth, Mars, Jupiter and Saturn, ecliptic and equinox of the date.
/// A place is a text L|B|R: longitude and latitude in degrees, radius vector in astronomical units. The text is the
/// precision of every planetary place: its longitude has been through 32 bits and has seven digits, the others fifteen.
/// Source: VSOP87, variant D (Bretagnon and Francou 1988), untruncated. The clock's Universal Time serves as its time.
namespace velmaris {

/// Longitude of a heliocentric text from the sum of its series, every step rounded to 32 bits. The unreduced sum is
/// rounded first: a planet that has made many turns since 2000 has lost some seconds of arc before it is reduced.
/// @param somme  radians, not reduced to a turn
/// @return degrees in [0, 360); a negative trifle can round to 360
/// @throws Erreur 6 when the sum or its degrees leave 32 bits
float LongitudeDeSomme(double somme);

/// The texts of one planet each.
/// @param JD  Julian day; there is no limit of date
/// @return L|B|R
/// @throws Erreur 6 when a sum leaves its width: dates beyond millions of years
std::string SeriesVenus(double JD);
std::string SeriesTerre(double JD);
std::string SeriesMars(double JD);
std::string SeriesJupiter(double JD);
std::string SeriesSaturne(double JD);

/// Heliocentric place of a planet.
/// @param nom  VENUS, EARTH, MARS, JUPITER or SATURNE, in any case, blanks around it allowed
/// @param JD   Julian day
/// @return L|B|R with "." as the decimal point whatever the user's settings; empty for any other name
/// @throws Erreur 6 as the series do
std::string PositionHelio(std::string_view nom, double JD);

/// One field of a text of three fields with bars between them.
/// @param cle    L, X or RA for the first field, B, Y or DECL for the second, R, Z or DIST for the third; left in
///               capitals
/// @param texte  L|B|R; a field may have an exponent
/// @return the field's number; 0 for a key that is none of these
/// @throws Erreur 5 when the bar that ends the first or second field isn't there: so for the empty text of a body
///         without series
double ExtraitCoord(std::string &cle, std::string_view texte);

} // namespace velmaris

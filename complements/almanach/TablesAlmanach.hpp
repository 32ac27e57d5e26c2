#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// Tables that a sight is reduced with on paper. All entries are rounded, as they are printed: tenths of a minute of
/// arc unless it is told otherwise. Between two entries the reader takes what lies between.
namespace velmaris {

/// A function of one number.
struct TableSimple {
  std::vector<double> x;
  std::vector<long> y;
};

/// A function of two numbers, a row for each of the first.
struct TableDouble {
  std::vector<double> x;            ///< of the rows
  std::vector<double> y;            ///< of the columns
  std::vector<std::vector<long>> z; ///< rows of columns
};

/// @name Dip of the sea's horizon, to be taken off.
/// @{
/// By metres, then by feet.
TableSimple TableDepression();
TableSimple TableDepressionPieds();
/// @}

/// Altitudes of the tables of refraction, degrees: every 10 minutes up to 10 degrees, then in growing steps up to 90.
std::vector<double> HauteursRefraction();

/// Refraction at 1010 hPa and 10 degrees Celsius by apparent altitude, to be taken off: the correction of stars and
/// planets.
TableSimple TableRefraction();

/// Correction of the Sun by apparent altitude of its limb (rows, degrees) and its semidiameter (columns, minutes), to
/// be added: refraction, parallax of 0.147', semidiameter.
/// @param demiDiametres  tenths of a minute, the columns
/// @param superieur      of the upper limb
TableDouble TableSoleil(const std::vector<long> &demiDiametres, bool superieur);

/// Percents by which air of a temperature (rows, degrees Celsius) and a pressure (columns, hPa) bends more than that of
/// `TableRefraction`.
TableDouble TableAir();

/// What is to be added for so many percents (columns) at an apparent altitude (rows, degrees).
TableDouble TableCorrectionAir();

/// Parallax of a planet by apparent altitude (rows, degrees) and horizontal parallax (columns, minutes), to be added.
TableDouble TableParallaxe();

/// Least horizontal parallax of the Moon that the tables hold, minutes.
inline constexpr double kParallaxeLuneMin = 53.8;

/// Correction of the Moon's lower limb by its apparent altitude, degrees, at the least horizontal parallax, to be
/// added: refraction, parallax, semidiameter as it is seen from the place.
TableSimple TableBordLune();

/// What comes to that by horizontal parallax (rows, minutes) and apparent altitude (columns, degrees), to be added.
/// @param superieur  of the upper limb; all its entries are negative
TableDouble TableLuneParallaxe(bool superieur);

/// What the Earth's shape adds to the Moon's altitude, by altitude (rows, degrees) and azimuth from the elevated pole
/// (columns, degrees), at a latitude and the mean parallax.
TableDouble TableFormeTerre(double latitude);

/// Latitudes of those tables, degrees.
std::vector<double> LatitudesFormeTerre();

/// How far the body of an increment goes in an hour.
enum class TauxIncrement { Soleil, Belier, Lune };

/// Increment of GHA.
/// @param secondes  since the hour, 0 to 3600
long Increment(TauxIncrement taux, int secondes);

/// Correction for v or d: in the middle of the minute.
/// @param minute    0 to 59
/// @param dixiemes  v or d, tenths of a minute an hour
long CorrectionVD(int minute, long dixiemes);

/// Highest v or d of the pages, tenths of a minute.
inline constexpr long kVDMax = 180;

/// @name Polaris
/// @{
/// What is to be added to its altitude by its local hour angle (rows, degrees 0 to 180) and its distance from the pole
/// (columns, minutes).
TableDouble TablePolaire(const std::vector<long> &distances);
/// What further is to be added, by local hour angle (rows) and altitude (columns, degrees).
TableDouble TablePolaireHauteur();
/// Its azimuth from north, tenths of a degree, by local hour angle (rows) and latitude (columns, degrees), west of the
/// pole while the hour angle is under 180 degrees.
/// @param distance  from the pole, minutes
TableDouble TablePolaireAzimut(double distance);
/// @}

/// @name The intercept by hand
/// Logarithms are -1,000,000 log10, so that all are positive and are added alone.
/// @{
inline constexpr int kPasHaversine = 10;      ///< minutes between two entries
inline constexpr long kHaversineUn = 1000000; ///< natural haversines are in millionths
/// Haversines of 0 to 180 degrees: logarithms (0 degrees has none: `kSansLogarithme`) and natural ones.
struct TableHaversines {
  std::vector<long> logarithmes;
  std::vector<long> naturels;
};
inline constexpr long kSansLogarithme = 9999999;
TableHaversines Haversines();
/// Logarithms of the cosines of 0 to 90 degrees; the last is `kSansLogarithme`.
std::vector<long> LogarithmesCosinus();
/// @}

} // namespace velmaris

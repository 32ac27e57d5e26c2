#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// The coefficients of the theories, constant data in the order of the published tables. Their definitions are
/// generated from `ephemerides/tables/` when the program is built, the decimal figures unchanged; the generator stops
/// the build when a table isn't the one that was published.
namespace velmaris {

/// One term A * cos(B + C * t), t in thousands of Julian years from J2000.0.
struct TermeVsop {
  double A; ///< radians for a longitude or latitude, astronomical units for a radius vector
  double B; ///< radians
  double C; ///< radians per thousand Julian years
};

/// Highest power of the time, plus one.
inline constexpr std::size_t kPuissances = 6;

/// The terms of one coordinate by the power of t that multiplies their sum; a power may have none.
using CoordonneeVsop = std::array<std::span<const TermeVsop>, kPuissances>;

/// Heliocentric spherical variables of one planet, ecliptic and equinox of the date.
/// Source: VSOP87, variant D (Bretagnon and Francou 1988, Astron. Astrophys. 202, 309; catalogue VI/81), untruncated.
struct SeriesPlanete {
  CoordonneeVsop L; ///< longitude
  CoordonneeVsop B; ///< latitude
  CoordonneeVsop R; ///< radius vector
};

extern const SeriesPlanete kSeriesVenus;
extern const SeriesPlanete kSeriesTerre;
extern const SeriesPlanete kSeriesMars;
extern const SeriesPlanete kSeriesJupiter;
extern const SeriesPlanete kSeriesSaturne;

/// One row of the nutation: the multiples of the five arguments, the sine coefficient in longitude and the cosine
/// coefficient in obliquity, each with its part in Julian centuries, in 0.0001 second of arc.
struct TermeNutation {
  std::int8_t D;     ///< of the Moon's mean elongation
  std::int8_t M;     ///< of the Sun's mean anomaly
  std::int8_t Mp;    ///< of the Moon's mean anomaly
  std::int8_t F;     ///< of the Moon's argument of latitude
  std::int8_t Omega; ///< of the longitude of the Moon's node
  double psi;
  double psiT;
  double eps; ///< with epsT both 0: the row is no term of the obliquity
  double epsT;
};

/// Rows of 0.0003 second of arc and more, the largest first; 38 of them are terms of the obliquity too.
/// Source: IAU 1980 theory of nutation (Wahr 1981, Seidelmann 1982).
extern const std::array<TermeNutation, 63> kNutation;

/// One term of the Moon: amplitude * sin (longitude, latitude) or cos (distance) of the multiples of the arguments,
/// with the phase added last.
struct TermeLune {
  double amplitude; ///< seconds of arc for longitude and latitude, kilometres for the distance
  std::int8_t D;    ///< of the mean elongation
  std::int8_t M;    ///< of the Sun's mean anomaly
  std::int8_t l;    ///< of the Moon's mean anomaly
  std::int8_t F;    ///< of the argument of latitude
  std::int8_t Ve;   ///< of the mean longitude of Venus
  std::int8_t Te;   ///< of the mean longitude of the Earth
  std::int8_t Ma;   ///< of the mean longitude of Mars
  std::int8_t Ju;   ///< of the mean longitude of Jupiter
  std::int8_t Lp;   ///< of the Moon's mean longitude with precession
  double phase;     ///< degrees
};

/// The Moon's series, truncated.
/// Source: ELP 2000-82 (Chapront-Touzé and Chapront 1983, Astron. Astrophys. 124, 50; catalogue VI/79).
extern const std::array<TermeLune, 405> kLuneLongitude; ///< 375 terms of the Moon, Sun and node, then 30 with planets
extern const std::array<TermeLune, 200> kLuneLatitude;  ///< 188 and 12; one more term, whose form differs, is no row
extern const std::array<TermeLune, 105> kLuneDistance;  ///< after the constant distance, none with planets

} // namespace velmaris

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// The coefficients of the complements, constant data that the build generates from `ephemerides/tables` and
/// `complements/ciel/tables` once it has checked them.
namespace velmaris {

/// Terms A cos(B + C t) of one coordinate and one power of t, a column each, so that neighbours are worked out
/// together. Each column begins on a 32-byte boundary and is filled to a multiple of four with terms of amplitude 0.
struct TermesCiel {
  std::span<const double> A; ///< radians or astronomical units
  std::span<const double> B; ///< radians
  std::span<const double> C; ///< radians per thousand Julian years
};

/// One coordinate by the power of t that multiplies each sum.
using CoordonneeCiel = std::array<TermesCiel, 6>;

/// Heliocentric place of a planet, ecliptic and equinox of the date: VSOP87D, untruncated, as `Series.hpp` has it.
struct SeriesCiel {
  CoordonneeCiel L; ///< longitude, radians
  CoordonneeCiel B; ///< latitude, radians
  CoordonneeCiel R; ///< radius vector, astronomical units
};

extern const SeriesCiel kCielVenus;
extern const SeriesCiel kCielTerre;
extern const SeriesCiel kCielMars;
extern const SeriesCiel kCielJupiter;
extern const SeriesCiel kCielSaturne;

/// True place of a star, ICRS at epoch J2000.0.
struct EtoileIcrs {
  double ad = 0;        ///< degrees
  double dec = 0;       ///< degrees
  double muAd = 0;      ///< milliseconds of arc a year, times the cosine of the declination
  double muDec = 0;     ///< milliseconds of arc a year
  double parallaxe = 0; ///< milliseconds of arc
  double magnitude = 0; ///< visual; of a variable star the mean
};

inline constexpr std::size_t kNombreEtoilesIcrs = 246;

/// The rows of the star table in their order; nothing where no catalogue of bright stars has the star.
extern const std::array<std::optional<EtoileIcrs>, kNombreEtoilesIcrs> kEtoilesIcrs;

/// The Moon's table: pieces of equal length, each with the Chebyshev coefficients of X, Y and Z in metres.
struct TableLune {
  double debut = 0;             ///< first day, Julian, TT
  double jours = 0;             ///< length of a piece
  std::size_t morceaux = 0;     ///< how many there are
  std::size_t coefficients = 0; ///< of each coordinate
  std::span<const std::int32_t> valeurs;
};

extern const TableLune kTableLune;

} // namespace velmaris

#pragma once

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numbers>

/// The committed data of the world chart, and distances on it.
namespace velmaris::essais {

inline const std::filesystem::path kDonnees = VELMARIS_DONNEES;

/// A place in degrees, north and east positive.
struct Lieu {
  double lat = 0;
  double lon = 0;
};

inline double Radians(double degres) { return degres * std::numbers::pi / 180; }

/// Miles between two places, on the great circle.
inline double Milles(const Lieu &a, const Lieu &b) {
  const double lat = std::sin(Radians(b.lat - a.lat) / 2);
  const double lon = std::sin(Radians(b.lon - a.lon) / 2);
  const double h = lat * lat + std::cos(Radians(a.lat)) * std::cos(Radians(b.lat)) * lon * lon;
  return 2 * std::asin(std::min(1.0, std::sqrt(h))) * 180 * 60 / std::numbers::pi;
}

} // namespace velmaris::essais

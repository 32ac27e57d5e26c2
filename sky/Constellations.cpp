#include "sky/Constellations.hpp"

#include <cmath>

namespace velmaris {
namespace {

/// Two ends this far apart across the chart lie on either side of its edge.
constexpr double kEcartMaximal = 4000;

} // namespace

void TraceLigne(Surface &carte, const ReperesEtoiles &reperes, std::size_t a, std::optional<std::size_t> b,
                std::size_t &retenue) {
  const auto place = [&](std::size_t etoile) {
    const Point coin = reperes.coins[etoile];
    return Point{coin.x + reperes.demi.x, coin.y + reperes.demi.y};
  };
  const Point debut = place(a);
  const Point fin = place(b.value_or(retenue));
  if (std::abs(debut.x - fin.x) < kEcartMaximal) {
    Ligne(carte, debut, fin, kJaune);
  }
  retenue = a;
}

void TraceConstellations(Surface &carte, const ReperesEtoiles &reperes) {
  std::size_t retenue = 0;
  for (const SegmentCiel &segment : kSegments) {
    TraceLigne(carte, reperes, segment.a, segment.b, retenue);
  }
}

} // namespace velmaris

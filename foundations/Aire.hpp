#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace velmaris {

/// A point of a surface, in 1/1440 inch, y growing downward.
struct Point {
  double x = 0.0;
  double y = 0.0;
  bool operator==(const Point &) const = default;
};

/// A point of a ring, in a plane of its own.
struct PointAnneau {
  float x = 0.0F;
  float y = 0.0F;
  bool operator==(const PointAnneau &) const = default;
};

/// A closed outline; its last point isn't its first again.
struct Anneau {
  std::vector<PointAnneau> points;
  PointAnneau bas;  ///< least x and least y of them
  PointAnneau haut; ///< greatest x and greatest y
  bool operator==(const Anneau &) const = default;
};

/// Outlines that are filled together: what lies within an even number of them stays free.
using Anneaux = std::vector<Anneau>;

/// What a filled shape stands for; what comes later lies over what comes before.
enum class Teinte : std::uint8_t { Terre, Eau };

/// A filled shape of a surface, without an outline of its own.
struct Aire {
  Teinte teinte = Teinte::Terre;
  std::shared_ptr<const Anneaux> anneaux;
  Point origine; ///< where (0, 0) of the rings' plane lies on the surface, 1/1440 inch
  Point unite;   ///< what one of the plane's unit takes there along each axis, 1/1440 inch
  bool operator==(const Aire &) const = default;
};

/// A rectangle of a surface, 1/1440 inch.
struct Cadrage {
  Point debut; ///< least x and least y
  Point fin;   ///< greatest x and greatest y
};

/// The rings of a shape as a surface shows them: cut off along a rectangle, without those that lie outside of it or are
/// too small to be seen, and without points that can't be told from the one before.
/// @param pas  what can't be told apart, 1/1440 inch
std::vector<std::vector<Point>> Decoupe(const Aire &aire, const Cadrage &cadrage, double pas);

} // namespace velmaris

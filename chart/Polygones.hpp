#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmaris {

/// Points that the outlines of one file can have.
inline constexpr std::size_t kPointsPolygone = 60001;

/// The outlines of one polygon file. x runs from 0 at 180 degrees west to 1 at 180 degrees east; y from 0 at the south
/// pole to 1 / sqrt(2) at the north pole. A point with x above 1 is no point: it cuts the outline. (0, 0) ends the
/// data.
struct Polygone {
  std::vector<float> PolyX = std::vector<float>(kPointsPolygone);
  std::vector<float> PolyY = std::vector<float>(kPointsPolygone);
};

/// Makes every point (0, 0).
void Vide(Polygone &polygone);

/// Reads a polygon file: one point a line, x up to the first blank and y after it. A line without a blank holds y
/// alone, and x is 0.
/// @param polygone  empty; what was read before a failure stays in it
/// @param octets    the file
/// @return the number of points
/// @throws Erreur 9 at the line after the last point that there is room for, 6 when a coordinate leaves 32 bits
std::size_t LitPolygone(Polygone &polygone, std::string_view octets);

} // namespace velmaris

#pragma once

#include "foundations/Surface.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace velmaris {

/// Where the stars' marks are.
struct ReperesEtoiles {
  std::span<const Point> coins; ///< upper left corner of each mark, by the number of its star; 0 stands for nothing
  Point demi;                   ///< half the size of the first star's mark, which serves for every star
};

/// Two stars that a line joins, by their numbers.
struct SegmentCiel {
  std::uint8_t a;
  std::uint8_t b;
};

/// The lines of the constellations, in drawing order. Three of them join a star to itself and can't be seen.
// clang-format off
inline constexpr std::array<SegmentCiel, 146> kSegments = {{
    {173, 171}, {171, 175}, {175, 102}, {102, 177}, {177, 178}, {178, 102}, {102, 175}, {175, 176}, {176, 75},
    {75, 173}, {173, 171}, {181, 24}, {24, 191}, {50, 113}, {50, 86}, {86, 144}, {144, 115}, {115, 17}, {17, 113},
    {91, 60}, {108, 91}, {87, 108}, {60, 87}, {18, 87}, {98, 18}, {8, 98}, {154, 57}, {53, 57}, {53, 53}, {119, 53},
    {14, 119}, {154, 14}, {14, 117}, {121, 128}, {94, 121}, {42, 94}, {43, 42}, {22, 43}, {128, 22}, {84, 13},
    {131, 84}, {26, 131}, {13, 26}, {158, 26}, {96, 158}, {19, 96}, {132, 49}, {132, 132}, {83, 132}, {123, 83},
    {97, 162}, {97, 163}, {163, 165}, {15, 97}, {11, 27}, {27, 28}, {110, 79}, {112, 79}, {12, 105}, {45, 12},
    {61, 45}, {120, 61}, {63, 120}, {40, 44}, {44, 88}, {88, 48}, {48, 33}, {33, 74}, {74, 40}, {9, 10}, {10, 170},
    {170, 20}, {153, 1}, {89, 95}, {58, 95}, {7, 127}, {127, 56}, {239, 127}, {127, 51}, {51, 242}, {140, 147},
    {114, 69}, {47, 39}, {39, 145}, {145, 188}, {188, 188}, {188, 187}, {187, 92}, {92, 39}, {2, 1}, {1, 153},
    {153, 82}, {195, 41}, {3, 66}, {167, 168}, {168, 35}, {35, 104}, {104, 167}, {4, 149}, {149, 30}, {149, 174},
    {174, 136}, {136, 100}, {135, 227}, {227, 229}, {229, 230}, {230, 129}, {129, 222}, {222, 219}, {219, 218},
    {218, 216}, {216, 32}, {32, 23}, {23, 59}, {215, 59}, {59, 70}, {240, 29}, {29, 143}, {103, 234}, {77, 234},
    {234, 236}, {78, 106}, {106, 37}, {6, 106}, {80, 217}, {217, 223}, {223, 130}, {130, 80}, {184, 190}, {190, 139},
    {139, 179}, {179, 180}, {180, 183}, {122, 71}, {71, 202}, {202, 197}, {197, 201}, {201, 90}, {90, 204},
    {204, 202}, {34, 99}, {99, 133}, {133, 76}, {76, 34}, {148, 198}, {138, 198},
}};
// clang-format on

/// Draws one line between two stars, unless their places are 4000 units or more apart across the chart: the edge lies
/// between them. The first star's size serves for every star: the line ends a little off the centre of a large mark.
/// @param b        none for the star named first in the last call
/// @param retenue  number of that star; left at `a`
void TraceLigne(Surface &carte, const ReperesEtoiles &reperes, std::size_t a, std::optional<std::size_t> b,
                std::size_t &retenue);

/// Draws the lines of all constellations.
void TraceConstellations(Surface &carte, const ReperesEtoiles &reperes);

} // namespace velmaris

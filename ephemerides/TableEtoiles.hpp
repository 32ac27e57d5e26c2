#pragma once

#include <array>
#include <string_view>

namespace velmaris {

inline constexpr int kNombreLignesEtoiles = 246;

/// The star table: "(" Bayer label of five characters ")" name "X" right ascension "X" declination.
extern const std::array<std::string_view, kNombreLignesEtoiles> kLignesEtoiles;

} // namespace velmaris

#pragma once

#include "complements/controle/ViseeTypee.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The fields of the check's settings, in their order.
enum class ChampReglage : std::uint8_t { Pression, Temperature, Rivage, UT1, Arc };

inline constexpr std::size_t kChampsReglages = 5;

/// A typed number, with a point or a comma, within its limits.
/// @return nothing for any other text
std::optional<double> LitNombreBorne(std::string_view texte, double moindre, double plusGrand);

/// A sextant's arc errors: a reading in degrees and its correction in minutes, pairs parted by semicolons, readings
/// from 0 to 180 and growing, corrections up to 10 minutes. Numbers have a point or a comma.
/// @return nothing for any other text; an empty table for an empty one
std::optional<std::vector<ErreurArc>> LitErreursArc(std::string_view texte);

/// What the fields set; one that is empty or can't be used leaves what is usual.
struct ReglagesLus {
  ReglagesControle reglages;
  std::array<bool, kChampsReglages> bons{}; ///< whether each field is empty or can be used
};

ReglagesLus LitReglages(const std::array<std::string, kChampsReglages> &textes);

} // namespace velmaris

#pragma once

#include "complements/serie/Lectures.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmaris {

/// The readings of a file, or the line at fault.
struct SerieLue {
  std::vector<LectureSerie> lectures;
  std::size_t ligneFautive = 0; ///< from 1; 0 when all lines were read
};

/// Reads a file of readings: a line each, "JJ/MM/AAAA HH:MM:SS DEG MIN", UTC, whole degrees from 0 to 120, minutes
/// under 60, with a decimal point or comma; the second may have a fraction. Empty lines, and those that begin with "#",
/// are passed over.
/// @param octets  the whole file, UTF-8 or Windows-1252
SerieLue LitSerie(std::string_view octets);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <array>
#include <optional>
#include <string>

namespace velmaris {

/// A comparison of the watch as it is typed, and which of its fields can be used.
struct ReleveSaisi {
  ReleveMontre releve;           ///< means something while all fields are good
  std::array<bool, 3> bons = {}; ///< date and time, error, rate
};

/// Reads a comparison: day/month/year hour:minute:second in UTC, seconds ahead, seconds gained a day; numbers with a
/// point or a comma. An empty date is the present moment, an empty rate 0.
/// @param textes    date and time, error, rate
/// @param present   seconds since 1970, UTC
ReleveSaisi LitReleve(const std::array<std::string, 3> &textes, std::int64_t present);

/// Shows the comparisons in the log's window, the latest first.
void AccordeMontre(Bureau &bureau);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// The weather that was typed belongs to its day: brings the fields to the day of the page, those of the day before are
/// kept for when that is looked at again.
/// @param jour  "21/06/2026"; empty leaves all as it is
void SuitJourMeteo(Bureau &bureau, const std::string &jour);

/// Keeps the fields for the next start; the last thirty days are known.
void GardeMeteo(Bureau &bureau);

} // namespace velmaris

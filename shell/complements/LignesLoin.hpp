#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <string>

namespace velmaris {

/// Whether a row of the star table lies over 5 minutes from its star, so that no sight of it is to be trusted. All rows
/// are laid on their stars when the first is asked for.
/// @param rang  1 to 246; no other row does
bool EstLoin(Bureau &bureau, std::size_t rang);

/// Marks such rows in the two lists of stars.
void MarqueListes(Bureau &bureau);

/// Marks such rows on the sky's chart.
void MarqueCiel(Bureau &bureau);

/// Says in the status line how far a star's row lies off it, where it does.
void AviseLigneLoin(Bureau &bureau, std::size_t rang);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Fields, readings and distances as one text, the same while nothing of them has changed.
std::string TexteSerie(Bureau &bureau);

/// Keeps fields, readings and distances in the settings, where they have changed: a program that is killed loses none.
void GardeSerie(Bureau &bureau);

/// Puts what was kept into the window: readings and distances of any day, fields alone while they are of these two
/// days.
/// @return whether it was
bool ReprendSerieGardee(Bureau &bureau);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Opens the user's guide in the chosen language: the help file beside the program where the desktop has a reader for
/// it, else the same pages by the desktop's browser. A guide that isn't installed is told.
void OuvreAide(Bureau &bureau);

} // namespace velmaris

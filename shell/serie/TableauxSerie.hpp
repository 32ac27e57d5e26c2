#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Brings the table of readings in line with the list, and with what the page in front makes of them.
void PoseLectures(Bureau &bureau);

/// Brings the tables of distances and of bodies for them in line.
void PoseDistances(Bureau &bureau);

} // namespace velmaris

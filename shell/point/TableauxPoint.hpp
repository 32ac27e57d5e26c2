#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Brings the table of sights in line with the fix: time, body, azimuth, residual, assumed error, how far the others
/// control it, remark. The row that the keyboard is at stays.
void PoseTableauVisees(Bureau &bureau);

/// Brings the table of legs in line.
void PoseTableauJambes(Bureau &bureau);

} // namespace velmaris

#pragma once

#include "shell/Bureau.hpp"

class QWidget;

namespace velmaris::qt {

/// Answers what the core asks of the outside with the toolkit's boxes and the system's names of days and months.
/// With a system that names no language the program's own is taken.
/// @param bureau  its ports are set
/// @param parent  the window that boxes lie over; may be null before it is there
void BranchePorts(Bureau &bureau, QWidget *const &parent);

} // namespace velmaris::qt

#pragma once

namespace velmaris::qt {

/// Tells assistive tools what the widgets of our own are: a module is a group, a drawing surface a canvas, a caption
/// that does something a link, and a closed list has a name beside its choice. Changes the toolkit's list of factories,
/// once for the program's life.
void PoseRolesAccessibles();

} // namespace velmaris::qt

#pragma once

class QPainter;

namespace velmaris::qt {

/// The sea by day, with the Sun over the horizon, two lines of position that cross, and the ship where they do.
/// @param p  on a square of 24 units
void VignetteJour(QPainter &p);

/// The same by night, with the Moon and stars.
void VignetteNuit(QPainter &p);

} // namespace velmaris::qt

#pragma once

#include "lines/Feuille.hpp"

namespace velmaris {

/// Draws the scale bar of the sheet at the foot of the surface, with a band of ticks that follows `Zoom`.
/// Reads `Zoom` and `EchelleY`.
void TraceEchelle(const Feuille &feuille, Surface &surface);

} // namespace velmaris

#pragma once

#include "lines/Feuille.hpp"

namespace velmaris {

/// Draws the grid of the sheet: meridians and parallels by a minute step that follows `Zoom`, the whole degrees with
/// their figures, and between them the tens of minutes while `Zoom` is below 251.
/// Reads `CentreX`, `CentreY`, `EchelleX`, `EchelleY`, `Zoom`, `CouleurGrille`, and the position of the fields.
/// Leaves the draw width at 1 and the ink black.
void TraceGrille(const Feuille &feuille, Surface &surface, const Observation &observation);

} // namespace velmaris

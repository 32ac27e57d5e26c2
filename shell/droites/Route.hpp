#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Entering the speed or the distance of dead reckoning: it turns blue, the given one, and the other black, the one
/// that is worked out.
/// @{
void Text2_Entre(Bureau &bureau, int indice);
void Text15_Entre(Bureau &bureau, int indice);
/// @}

/// "Calcul" of dead reckoning, and each change of speed or distance: carries the estimated position of the panel along
/// the course. Missing fields leave everything as it is.
/// @throws Erreur 6 when a result leaves 32 bits
void CalculEstime(Bureau &bureau, int indice);

/// A click on the dead-reckoning position: it goes into the sight panel, its captions empty, and there is no
/// dead-reckoning point to carry lines to any more.
void PositionEstimee_Click(Bureau &bureau, int indice);

/// "Calcul" of courses and distances.
/// @throws Erreur 5 or 11 for ends that are almost one place, or exactly opposite
void Command10_Click(Bureau &bureau, int indice);

/// Copies the stored position of a line into the end of the track that is selected; after the departure the arrival is
/// selected.
/// @param ligne  0 to 3
void RemplitBoutRoute(Bureau &bureau, int ligne);

} // namespace velmaris

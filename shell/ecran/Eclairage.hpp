#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Reads from the settings by what light the program is seen. Before the user has chosen one, it is dusk where the
/// desktop is set to dark colours, else day.
void LitEclairage(Bureau &bureau);

/// The desktop is set to dark colours, or to light ones: the view follows as long as the user has chosen none.
void SuitBureauSombre(Bureau &bureau, bool sombre);

/// The next view in turn: day, dusk, night, and day again; it is kept at once. Windows are painted otherwise, no colour
/// of the record changes.
void TourneEclairage(Bureau &bureau);

/// The view of that entry, or the day's when it is on show.
/// @{
void PU_Nuit_Click(Bureau &bureau, int indice);
void PU_Crepuscule_Click(Bureau &bureau, int indice);
/// @}

} // namespace velmaris

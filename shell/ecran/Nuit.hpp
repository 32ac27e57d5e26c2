#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Reads from the settings whether the program is seen by night.
void LitNuit(Bureau &bureau);

/// The night view, or the day's again; it is kept at once. Windows are painted otherwise, no colour of the record
/// changes.
void PU_Nuit_Click(Bureau &bureau, int indice);

} // namespace velmaris

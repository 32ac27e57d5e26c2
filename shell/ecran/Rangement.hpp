#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// F12: puts all modules away that are on show, or brings those back that it has put away last, each where it stood.
/// The legs' module takes its mode along, "Mémoire" goes with the four lines.
void PU_Ranger_Click(Bureau &bureau, int indice);

/// "Garder la disposition": the modules' places are kept for the next start, or no longer.
void PU_Disposition_Click(Bureau &bureau, int indice);

/// Reads whether the modules' places are kept.
void LitDisposition(Bureau &bureau);

/// Puts the modules back as they were kept, once the start sequence has run; nothing where they aren't. The legs'
/// module and empty details stay away.
void RemetDisposition(Bureau &bureau);

/// Keeps the modules' places for the next start, where that is wanted.
void GardeDisposition(Bureau &bureau);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>

namespace velmaris {

/// What a click on a line's button does: the index of the selected `Option1`.
enum class ModeDroite : std::uint8_t {
  Enregistre = 0,       ///< stores the panel in the line
  TransporteDroite = 1, ///< carries the line to the point of the line in `Combo5`
  Affiche = 2,          ///< puts the line in the panel and on the sheet
  Efface = 3,           ///< erases the line
  TransporteEstime = 4, ///< carries the line to the dead-reckoning point
  Centre = 5,           ///< makes the line the first one of a new sheet
  Retire = 6            ///< takes the line off the sheet
};

/// Selects a mode, as a click on its option does.
void PoseMode(Bureau &bureau, ModeDroite mode);

/// Leaves a mode that writes, "Enregistrer" or "Effacer", for "Afficher": what undo or a recovery brings back is not
/// armed.
void DesarmeMode(Bureau &bureau);

/// A click on a mode: the list of target lines is there for a transport to one.
void Option1_Click(Bureau &bureau, int indice);

/// A click on a line's button, F5 to F8: what the selected mode says. While "Caps et distances" is open it touches
/// neither sheet nor store and copies the stored position into that module instead.
/// It may run again from within itself, and holds no state across such a call.
/// @param ligne  0 to 3
void Droite_Click(Bureau &bureau, int ligne);

/// Draws a line again in the selected mode, one of those that draw: no click of the user, so that "Caps et distances"
/// is left alone, and a sight that can't be reduced is skipped.
/// @param ligne  0 to 3
void RejoueDroite(Bureau &bureau, int ligne);

/// "Mémoire": erases the four lines after one question.
void Command8_Click(Bureau &bureau, int indice);

} // namespace velmaris

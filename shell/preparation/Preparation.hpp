#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Opens the plan, or brings it to the front: the menu, the toolbar and Ctrl+K. The first time its fields are those of
/// the plan that was kept, while its day isn't over, else the panel's.
void OuvrePreparation_Click(Bureau &bureau, int indice);

/// Brings the plan's window in line with what it shows, while it is open and something has changed.
void AccordePreparation(Bureau &bureau);

/// The events of the plan's window; its controls bear the names of others in the main window.
namespace preparation {

/// A field of day, ship or sextant was typed in: what it holds is used at once.
void Champ_Change(Bureau &bureau, int indice);
/// "Du panneau", "Maintenant".
void Command1_Click(Bureau &bureau, int indice);
/// Another page comes to the front.
void Onglets1_Click(Bureau &bureau, int indice);
/// The time was moved.
void HScroll1_Change(Bureau &bureau, int indice);
/// Event before, steps of ten and of one minute, event after.
void Pas_Click(Bureau &bureau, int indice);
/// The moment of a time for stars that has its best set: the slider goes there.
void Mieux_Click(Bureau &bureau, int indice);
/// A box was ticked.
void Case_Click(Bureau &bureau, int indice);
/// The chart was pressed: the body there is chosen.
void Carte_Presse(Bureau &bureau, int indice);
/// A row of the bodies is chosen.
void Astres_Click(Bureau &bureau, int indice);
/// "Au panneau", Return on a row, a double click: the chosen body in the sight's panel.
void Prend_Click(Bureau &bureau, int indice);
/// The same with the likely body of the current row.
void Inconnus_Valide(Bureau &bureau, int indice);
/// A set is chosen: its lines are sketched.
void Jeux_Click(Bureau &bureau, int indice);
/// Compass bearing, variation or body have changed.
void Compas_Change(Bureau &bureau, int indice);
/// A field of the unknown body was typed in.
void Inconnu_Change(Bureau &bureau, int indice);
/// "Emporter...", "Fermer".
void Command2_Click(Bureau &bureau, int indice);

} // namespace preparation
} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Opens the window of runs, or brings it to the front: the menu and Ctrl+R. The first time it holds what was kept,
/// else the panel's figures. The keyboard is at "Marque".
void OuvreSerie_Click(Bureau &bureau, int indice);

/// Brings the window in line with what it shows, while it is open and something has changed.
void AccordeSerie(Bureau &bureau);

/// The events of the window; its controls bear the names of others in the main window.
namespace serie {

/// A field of ship, sextant or doubt was typed in, or a limb chosen: what it holds is used at once.
void Champ_Change(Bureau &bureau, int indice);
/// Another body: its usual limb is chosen.
void Combo1_Click(Bureau &bureau, int indice);
/// The artificial horizon, on or off.
void Check1_Click(Bureau &bureau, int indice);
/// "Du panneau".
void Command1_Click(Bureau &bureau, int indice);
/// Another page comes to the front.
void Onglets1_Click(Bureau &bureau, int indice);
/// A reading is chosen: its figures go into the fields.
void Lectures_Click(Bureau &bureau, int indice);
/// Its box was pressed: it counts, or no longer.
void Lectures_Coche(Bureau &bureau, int indice);
/// Return in the fields of a reading: from the time to the angle, then it is added.
void Text4_Valide(Bureau &bureau, int indice);
/// "Ajouter", "Changer", "Ôter", "Tout ôter", "Du registre", "Ouvrir...", "Garder...".
void Command3_Click(Bureau &bureau, int indice);
/// "Marque": a reading of this second, its angle to come.
void Marque_Click(Bureau &bureau, int indice);
/// "Prendre" the run's one reading.
void Prend_Click(Bureau &bureau, int indice);
/// "Prendre comme position estimée" what noon has found.
void PrendMidi_Click(Bureau &bureau, int indice);
/// A distance is chosen: its figures go into the fields.
void Distances_Click(Bureau &bureau, int indice);
/// Its box was pressed.
void Distances_Coche(Bureau &bureau, int indice);
/// Return on a body for a distance: it goes into the fields, with its limbs.
void Candidats_Valide(Bureau &bureau, int indice);
/// Another body of a distance: its usual limb is chosen.
void Combo3_Click(Bureau &bureau, int indice);
/// Return in the fields of a distance.
void Text5_Valide(Bureau &bureau, int indice);
/// "Ajouter", "Changer", "Ôter" a distance.
void Command4_Click(Bureau &bureau, int indice);
/// "Garder à la montre".
void PrendLune_Click(Bureau &bureau, int indice);
/// "Fermer".
void Command2_Click(Bureau &bureau, int indice);

} // namespace serie
} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Opens the window of printed pages, or brings it to the front: the menu, the toolbar and Ctrl+Shift+A. The first time
/// its fields are those that were used last, else the month from today on and the latitudes around the panel's.
void OuvrePapier_Click(Bureau &bureau, int indice);

/// Brings the window in line with what it shows, while it is open and something has changed.
void AccordePapier(Bureau &bureau);

/// The events of the window of printed pages; its controls bear the names of others in the main window.
namespace papier {

/// Another tab comes to the front: its pages are made anew, but for the almanac's.
void Onglets1_Click(Bureau &bureau, int indice);
/// A field of the almanac was typed in: what can't be used is marked.
void Text1_Change(Bureau &bureau, int indice);
/// Return in a field of the almanac: "Calculer".
void Text1_Valide(Bureau &bureau, int indice);
/// "Calculer", "Arrêter".
void Command1_Click(Bureau &bureau, int indice);
/// What other pages are made of has changed: they are made at once.
void Champ_Change(Bureau &bureau, int indice);
/// The page before, the next one.
void Page_Click(Bureau &bureau, int indice);
/// "PDF...", "Imprimer...", "CSV...", "Fermer".
void Command2_Click(Bureau &bureau, int indice);

} // namespace papier
} // namespace velmaris

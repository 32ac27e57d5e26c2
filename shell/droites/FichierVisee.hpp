#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// "Sauve": writes the sight of the panel to a file that the user names. A file that can't be written is told, and an
/// old one of that name stays whole; the program goes on.
void Command3_Click(Bureau &bureau, int indice);

/// "Ouvre": takes the sheet's state back, asks for a file and loads it.
void Command4_Click(Bureau &bureau, int indice);

/// Opens a file that is named from outside, as "Ouvre" does with the one that the user chooses; the window's title
/// bears its name. A file that can't be read is told, one that is too large isn't, and nothing else changes.
void OuvreVisee(Bureau &bureau, const std::filesystem::path &chemin);

/// Takes up a sight that was typed before, as "Ouvre" does with one from a file: the sheet's state is taken back, the
/// panel filled, the sight reduced and drawn.
void ReprendVisee(Bureau &bureau, const Observation &observation);

/// The file that a failure leaves the sight of the panel in.
std::filesystem::path FichierSecours(const Bureau &bureau);

/// "Ouvrir la visée de secours": opens that file without the dialog, whose folder stays where it is.
void PU_Secours_Click(Bureau &bureau, int indice);

/// Loads a sight from a file into the panel, reduces it and draws its sheet; it is in none of the lines, and the next
/// click on one stores it. What the file says wrongly is passed over. A file of over 31 lines never finishes loading:
/// the program lives on until it is left. A file that can't be read is told, one that is too large isn't, and the panel
/// stays.
/// @return whether it was loaded
bool ChargeVisee(Bureau &bureau, const std::filesystem::path &chemin);

} // namespace velmaris

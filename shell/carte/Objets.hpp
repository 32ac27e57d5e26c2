#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// "Config": opens the editor of the user's objects beside the main window, or brings it to the front.
void Command18_Click(Bureau &bureau, int indice);

/// The editor goes with the program: what it holds is written, and a write that fails is told.
void QuitteObjets(Bureau &bureau);

/// Builds the two position texts of an entry from the fields. A minute is a hundredth of a degree and two thirds: it
/// is rounded to whole hundredths, and 100 of them stay in their place. A comma counts as the point.
/// @param objet  its latitude and longitude are replaced
/// @throws Erreur 13 when minutes or hundredths aren't wholly a number, 6 when they leave 64 bits
void ConstruitPosition(const Utilisateur &fenetre, Objet &objet);

/// The events of the editor; its controls bear the names of others in the main window.
namespace objets {

/// "Nouveau": the fields become a new entry at the end of the list.
void Command1_Click(Bureau &bureau, int indice);
/// "Modifier": the fields replace the entry selected.
void Command3_Click(Bureau &bureau, int indice);
/// "Supprimer": writes the file without the entry selected, and reads it again, so that the numbers close up.
void Command4_Click(Bureau &bureau, int indice);
/// "Fermer", Escape and the close button: writes what has changed, then closes. When it can't be written the user
/// says whether to close all the same.
void Command2_Click(Bureau &bureau, int indice);
/// A click in the list: the entry goes into the fields.
void List1_Click(Bureau &bureau, int indice);
/// A field or a side has changed: with an entry selected, "Modifier" becomes usable.
void Champ_Change(Bureau &bureau, int indice);
/// The entry mode; what the fields hold is not converted.
/// @param indice  0 for minutes, 1 for hundredths
void Option1_Click(Bureau &bureau, int indice);

} // namespace objets
} // namespace velmaris

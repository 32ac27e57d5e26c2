#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Name of the file of the user's objects.
inline constexpr const char *kFichierObjets = "Utilisateur.txt";

/// An entry as its line of the file, without a line end: latitude, longitude, radius, name, a blank between.
std::string LigneObjet(const Objet &objet);

/// The entry that a line holds. A longitude ends at a blank within its place.
/// @throws Erreur 5 when a field can't be found, 6 when the radius leaves 16 bits
Objet ObjetDeLigne(std::string_view ligne);

/// Whether an entry's own line is read back as that entry, wherever it stands in the file; fields are found by place,
/// so a latitude that is too short would cut the longitude.
bool SeRelit(const Objet &objet);

/// The tables as the file holds them. A deleted entry is left out; one without a latitude ends the text.
std::string TexteObjets(const Utilisateur &fenetre);

/// Reads the file of the objects into the tables and the list, and stops the main window's clock. Without a file both
/// are empty. A line that can't be read, or one entry too many, ends the reading with one box; the entries before stay.
void LitFichier(Bureau &bureau);

/// The tables and the list take the entries of a text that `TexteObjets` has made, to be written; the count and the
/// selection follow.
void RemetObjets(Utilisateur &u, std::string_view texte);

/// Replaces the file of the objects in the user's data folder. A file that holds more than the tables, or that could
/// not be read, is set aside first; so is one that isn't any more as it was read, which is told.
/// @throws Erreur 75 when that can't be done; the old file is then whole
void EcritFichier(Bureau &bureau);

} // namespace velmaris

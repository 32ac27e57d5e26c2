#pragma once

#include <string>
#include <string_view>

namespace velmaris {

/// Appends a key to an object under way: a comma first unless the object was just opened.
void AjouteCle(std::string &sortie, std::string_view cle);

/// Appends a text in quotes; bytes that aren't UTF-8 are replaced.
void AjouteTexte(std::string &sortie, std::string_view texte);

/// Appends the shortest text that reads back to the same 64-bit value; null for what isn't a number.
void AjouteNombre(std::string &sortie, double valeur);

/// Appends the shortest text that reads back to the same 32-bit value; null for what isn't a number.
void AjouteNombre(std::string &sortie, float valeur);

/// Appends the member "erreur" of an object under way, with its number and its text.
void AjouteErreur(std::string &sortie, int numero, std::string_view texte);

} // namespace velmaris

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A whole file, read with one allocation.
/// @throws Erreur 53 when there is none, 75 when it is a directory or can't be read
std::string LitFichier(const std::filesystem::path &chemin);

/// Replaces a file: written beside it, flushed to the disk, then renamed over it.
/// @throws Erreur 75 when it can't be written; an old file of that name is then whole
void EcritFichier(const std::filesystem::path &chemin, std::string_view octets);

/// Appends a line to a file, flushed to the disk when this returns; what is there is never rewritten. A new file gets
/// its title line first, and a last line without its end is closed first.
/// @param titre, ligne  without line ends
/// @throws Erreur 75 when it can't be written
void AjouteLigne(const std::filesystem::path &chemin, std::string_view titre, std::string_view ligne);

/// Text of a file as UTF-8: taken as it is when it is valid UTF-8, else read as Windows-1252. A byte order mark goes.
std::string EnUtf8(std::string_view octets);

/// UTF-8 text as Windows-1252; a character that it lacks becomes "?".
std::string EnWindows1252(std::string_view texte);

/// The lines of a text; CR LF, LF and CR all end a line, the last one needs no end.
std::vector<std::string_view> Lignes(std::string_view texte);

} // namespace velmaris

#pragma once

#include "foundations/Erreur.hpp"
#include "foundations/Patience.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Bytes of the largest file that is read; the program's own files hold about a hundredth of it.
inline constexpr std::size_t kTailleLue = std::size_t{64} << 20U;

/// Error 75 of a file that is there and too large to be read.
struct FichierTropGrand : Erreur {
  FichierTropGrand() : Erreur(75) {}
};

/// A whole file, read with one allocation. One that grows meanwhile is read up to the size that it had.
/// @throws Erreur 53 when there is none, 75 when it is a directory or can't be read; FichierTropGrand when it holds
/// more than `kTailleLue`, before anything is allocated
std::string LitFichier(const std::filesystem::path &chemin);

/// Replaces a file: written beside it, flushed to the disk, then renamed over it. A new file has the permissions that
/// the user gives to new files, a replaced one keeps its own.
/// @param registre  folder in which a note tells, until all is done, where the unfinished file lies; empty for none
/// @throws Erreur 75 when it can't be written, or is no file or one that may not be written; an old file of that name
/// is then whole
void EcritFichier(const std::filesystem::path &chemin, std::string_view octets,
                  const std::filesystem::path &registre = {});

/// Removes what writings that were killed have left: unfinished files in that folder, those that its notes name, and
/// the notes. What doesn't bear the name of an unfinished file, or is younger than a day, stays.
void BalaieProvisoires(const std::filesystem::path &registre);

/// Where a file is to go before a line is appended to another of its name.
/// @param debut   its first octets, as many as two long lines take
/// @param taille  octets
/// @return a path in the same folder that no file has; empty when the file is to be gone on with
using Releve = std::function<std::filesystem::path(std::string_view debut, std::uintmax_t taille)>;

/// Appends lines to a file, all or none, flushed to the disk when this returns; what is there is never rewritten. A new
/// file gets its title line first, and a last line without its end is closed first. A file that is relieved gets its
/// new name first, while no other program writes to it.
/// @param titre, lignes  without line ends
/// @param patience       with another program that holds the file
/// @param releve         none for a file that goes on for ever
/// @return false when it holds it longer; nothing is then written
/// @throws Erreur 75 when it can't be written
bool AjouteLignes(const std::filesystem::path &chemin, std::string_view titre, const std::vector<std::string> &lignes,
                  Patience &patience, const Releve &releve = {});

/// Text of a file as UTF-8: taken as it is when it is valid UTF-8, else read as Windows-1252. A byte order mark goes.
std::string EnUtf8(std::string_view octets);

/// UTF-8 text as Windows-1252; a character that it lacks becomes "?".
std::string EnWindows1252(std::string_view texte);

/// The lines of a text; CR LF, LF and CR all end a line, the last one needs no end.
/// @param auPlus  how many are wanted; those after them are left out
std::vector<std::string_view> Lignes(std::string_view texte, std::size_t auPlus = std::string_view::npos);

} // namespace velmaris

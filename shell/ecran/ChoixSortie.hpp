#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>
#include <string_view>

namespace velmaris {

/// Asks the user for a file that isn't a sight's: as ChoisitFichier, but the window's title, which the dialog makes of
/// a sight's file, stays.
/// @param fenetre  name of the window that asks; it comes to the front again
/// @return its path; empty when the user gave up
std::filesystem::path ChoisitSansTitre(Bureau &bureau, const std::string &titre, const std::string &nom,
                                       const std::string &motif, std::string_view fenetre);

/// Asks the user for a file to write, in the program's own dialog: a name without an extension gets that of the
/// proposed one, a folder that can't be shown is told, and one that is there already is replaced only after a question.
/// The window's title stays.
/// @param titre    of the dialog
/// @param nom      that is proposed, with its extension
/// @param motif    of the files that it lists
/// @param fenetre  name of the window that asks; it comes to the front again
/// @return its path; empty when the user gave up
std::filesystem::path ChoisitSortie(Bureau &bureau, const std::string &titre, const std::string &nom,
                                    const std::string &motif, std::string_view fenetre);

} // namespace velmaris

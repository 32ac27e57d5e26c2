#pragma once

#include "shell/bureau/Bureau.hpp"

#include <filesystem>
#include <vector>

namespace velmaris {

/// Enters sights from files into the log: each is read and reduced by the told road, on records of its own, and a line
/// of it appended to the journal; the panel stays as it is. What makes no sight is told in one box.
void EntreFichiers(Bureau &bureau, const std::vector<std::filesystem::path> &chemins);

namespace registre {

/// "CSV...": the rows meant, in a file of the journal's form that the user names.
void Command4_Click(Bureau &bureau, int indice);
/// ".LoP...": each of the rows meant in a file; one in the file that the user names, more of them beside it, each by
/// its day and time. Of these none replaces a file that is there.
void Command5_Click(Bureau &bureau, int indice);

} // namespace registre
} // namespace velmaris

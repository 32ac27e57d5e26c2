#pragma once

#include "shell/Bureau.hpp"

namespace velmaris {

/// "Sauve": writes the sight of the panel to a file that the user names. A file that can't be written is told, and an
/// old one of that name stays whole; the program goes on.
void Command3_Click(Bureau &bureau, int indice);

/// "Ouvre": takes the sheet's state back, asks for a file and loads it.
void Command4_Click(Bureau &bureau, int indice);

/// Loads a sight from a file into the panel, reduces it and draws its sheet; it is in none of the lines, and the next
/// click on one stores it. What the file says wrongly is passed over. A file of over 31 lines never finishes loading:
/// the program lives on until it is left. A file that can't be read is told, and the panel stays.
void ChargeVisee(Bureau &bureau, const std::filesystem::path &chemin);

} // namespace velmaris

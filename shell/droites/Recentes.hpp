#pragma once

#include "shell/bureau/Bureau.hpp"

#include <filesystem>
#include <vector>

namespace velmaris {

/// The sights' files that were opened or saved last, the latest first; those that have gone are left out.
std::vector<std::filesystem::path> ViseesRecentes(const Bureau &bureau);

/// Notes a file as the latest. One whose name isn't UTF-8 can't be kept.
void NoteRecente(Bureau &bureau, const std::filesystem::path &chemin);

/// The arrow beside "Ouvre", and "Ouvre" held down: the menu of these files opens under it.
void OuvreRecentes(Bureau &bureau, int indice);

/// An entry of that menu: its file is opened.
/// @param indice  its place in the menu
void Recente_Click(Bureau &bureau, int indice);

/// Whether a file bears the name of a sight's: one that is dropped on the window is opened then.
bool EstNomDeVisee(const std::filesystem::path &chemin);

} // namespace velmaris

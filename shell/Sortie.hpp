#pragma once

#include "shell/bureau/Bureau.hpp"

#include <exception>
#include <vector>

namespace velmaris {

/// The exit sequence: one question, then position and chart options are kept and the program ends.
void Sortie_Click(Bureau &bureau, int indice);

/// The settings that an exit keeps, as the main window has them.
std::vector<CleValeur> ReglagesSortie(const Donnees &donnees);

/// What is left to do when a failure reaches the program's edge: the sight of the panel goes to "secours.LoP" in the
/// user's data folder, a changed list of objects to its file, and one box tells the failure and the place. Where the
/// session is kept, that box offers to start again with it, which `recommence` then says. The caller ends the program.
/// @param erreur  the failure
void Secours(Bureau &bureau, const std::exception &erreur);

} // namespace velmaris

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velmaris {

/// Tells one file.
/// @param sortie  its lines are appended; each thread has its own
/// @return false when they hold an error
using EcritUnFichier = std::function<bool(const std::string &fichier, std::string &sortie)>;

/// Takes what has been gathered and empties it.
/// @return false when it isn't taken, which ends the work
using VideSortie = std::function<bool(std::string &sortie)>;

/// Tells many files on all cores; what they tell comes in their order.
/// @param ecrit  any thread calls it
/// @param vide   called from here alone
/// @return whether no file holds an error and all was taken
bool TraiteLot(const std::vector<std::string> &fichiers, const EcritUnFichier &ecrit, const VideSortie &vide);

} // namespace velmaris

#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace velmaris {

/// What a run of a program leaves.
struct Passage {
  int etat = -1; ///< exit status, or 128 and the signal that ended it
  std::string sortie;
  std::string erreurs;
};

/// Runs a program to its end.
/// @param arguments  after the program's own name
Passage Lance(std::vector<std::string> arguments, const std::string &programme = VELMARIS_CALCUL);

/// The objects of an output, one a line; a last line without an end is a failure.
std::vector<nlohmann::ordered_json> Objets(const std::string &sortie);

/// The keys of an object, in their order.
std::vector<std::string> Cles(const nlohmann::ordered_json &objet);

} // namespace velmaris

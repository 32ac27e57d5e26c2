#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
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
/// @param versFichier  what standard output is written to instead of `sortie`, empty for nothing else
Passage Lance(std::vector<std::string> arguments, const std::string &programme = VELMARIS_CALCUL,
              const std::string &versFichier = {});

/// The objects of an output, one a line; a last line without an end is a failure.
std::vector<nlohmann::ordered_json> Objets(const std::string &sortie);

using Variables = std::map<std::string, std::string>;

/// The variables that tell the language of messages, set for the life of the scope; an absent one isn't set.
class Environnement {
public:
  explicit Environnement(const Variables &voulu);
  ~Environnement();
  Environnement(const Environnement &) = delete;
  Environnement &operator=(const Environnement &) = delete;
  Environnement(Environnement &&) = delete;
  Environnement &operator=(Environnement &&) = delete;

private:
  std::map<std::string, std::optional<std::string>> avant_;
};

/// The keys of an object, in their order.
std::vector<std::string> Cles(const nlohmann::ordered_json &objet);

} // namespace velmaris

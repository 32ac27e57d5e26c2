#include "calcul/outils/Langue.hpp"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

struct Tournure {
  std::string_view anglais, francais;
};

/// Ends and beginnings of the parser's sentences.
constexpr std::array<Tournure, 1> kSuites = {{{" is required", " manque"}}};
constexpr std::array<Tournure, 2> kDebuts = {{{"The following argument was not expected: ", "de trop : "},
                                              {"The following arguments were not expected: ", "de trop : "}}};
constexpr std::string_view kManque = " missing"; ///< after an option's name and what it wants

} // namespace

std::string DitEnLangue(const std::string &mots, const Langue &langue) {
  if (!langue.francais) {
    return mots == "A subcommand is required" ? "a command is required" : mots;
  }
  if (mots == "A subcommand is required") {
    return "un verbe manque";
  }
  for (const Tournure &t : kSuites) {
    if (mots.ends_with(t.anglais)) {
      return mots.substr(0, mots.size() - t.anglais.size()) + std::string(t.francais);
    }
  }
  for (const Tournure &t : kDebuts) {
    if (mots.starts_with(t.anglais)) {
      return std::string(t.francais) + mots.substr(t.anglais.size());
    }
  }
  if (mots.ends_with(kManque)) {
    return mots.substr(0, mots.find(':')) + " : sa valeur manque";
  }
  return mots;
}

} // namespace velmaris

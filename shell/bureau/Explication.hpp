#pragma once

#include "foundations/Erreur.hpp"

#include <string>
#include <utility>

namespace velmaris {

/// A run-time error whose cause the shell knows: words for the user that name the field and the remedy, in the language
/// of the moment.
struct ErreurExpliquee : Erreur {
  ErreurExpliquee(int n, std::string mots) : Erreur(n), explication(std::move(mots)) {}
  std::string explication; ///< a whole sentence, empty when nothing is known
};

} // namespace velmaris

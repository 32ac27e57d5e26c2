#pragma once

#include "complements/papier/Feuillet.hpp"

#include <variant>
#include <vector>

/// What the tests of printed pages share.
namespace velmaris::essais {

/// The words of a page, in the order in which they are painted.
inline std::vector<MotFeuillet> MotsDe(const Feuillet &page) {
  std::vector<MotFeuillet> mots;
  for (const ElementFeuillet &e : page.elements) {
    if (const auto *mot = std::get_if<MotFeuillet>(&e)) {
      mots.push_back(*mot);
    }
  }
  return mots;
}

} // namespace velmaris::essais

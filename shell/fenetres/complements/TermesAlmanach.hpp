#pragma once

#include "complements/papier/MotsAlmanach.hpp"
#include "shell/fenetres/Controles.hpp"

#include <array>
#include <span>

namespace velmaris {

/// Name of an almanac's words in language files.
inline constexpr std::string_view kFenetreTermes = "TermesAlmanach";

/// The words of an almanac's pages; no control shows them.
struct TermesAlmanach {
  std::array<Controle, kMotsAlmanach> MotAlmanach; ///< in the order of the names of words
};

using LigneTermesAlmanach = LigneDe<TermesAlmanach>;

/// The table of the words.
std::span<const LigneTermesAlmanach> TableTermesAlmanach();

/// Fills the record with its words as the table has them.
void InitialiseTermesAlmanach(TermesAlmanach &fenetre);

/// Runs over all words in the order of their table.
template <class Fonction> void PourChaque(TermesAlmanach &termes, Fonction &&fonction) {
  for (const LigneTermesAlmanach &ligne : TableTermesAlmanach()) {
    fonction(ligne, ligne.acces(termes));
  }
}

} // namespace velmaris

#pragma once

#include "shell/fenetres/Controles.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// One row of a table whose words are all there.
struct RangeeTexte {
  std::vector<std::string> textes; ///< column by column
  bool cochee = false;
  TonLigne ton = TonLigne::Ordinaire;
  bool operator==(const RangeeTexte &) const = default;
};

/// Gives a table its columns and rows, where they differ from those that it has; as long as their number is the same,
/// the row that the keyboard is at stays.
void PoseRangees(Tableau &tableau, std::vector<Colonne> colonnes, std::vector<RangeeTexte> rangees);

} // namespace velmaris

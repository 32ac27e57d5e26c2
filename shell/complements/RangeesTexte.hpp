#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
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

/// Columns by their captions, widths, and from which to which they hold numbers.
/// @param mots      what the columns are called
/// @param largeurs  in the order of the columns, layout units
/// @param premier   first column of numbers, which stand to the right
/// @param dernier   the last one
template <std::size_t N>
std::vector<Colonne> ColonnesDe(const std::array<Controle, N> &mots, const std::array<double, N> &largeurs,
                                std::size_t premier, std::size_t dernier) {
  std::vector<Colonne> colonnes;
  for (std::size_t i = 0; i < N; ++i) {
    const bool nombre = i >= premier && i <= dernier;
    colonnes.push_back({mots.at(i).legende, largeurs.at(i), nombre ? Cote::Droite : Cote::Gauche});
  }
  return colonnes;
}

/// Gives a table its columns and rows, where they differ from those that it has; as long as their number is the same,
/// the row that the keyboard is at stays.
void PoseRangees(Tableau &tableau, std::vector<Colonne> colonnes, std::vector<RangeeTexte> rangees);

} // namespace velmaris

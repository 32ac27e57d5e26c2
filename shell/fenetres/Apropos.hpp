#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the about box in language files.
inline constexpr std::string_view kFenetreApropos = "apropos";

/// The about box: what the program is, its version, who made it, and links to them.
struct Apropos {
  std::array<Controle, 2> Image1; ///< two pictures on one spot, of which one shows
  Controle Label1;                ///< the program's name
  std::array<Controle, 4> Label2; ///< what it is, its authors, its licence, its version
  Controle Label5;                ///< link to the program's site
  Controle Label3;                ///< link that writes to the authors
  Controle Label4;                ///< opens a box about the data
  Controle Command1;              ///< closes

  CadreFenetre cadre{kFenetreApropos, "", 6450, 4500};
  double momentImage = 0.0; ///< of the last swap of the pictures, days
};

using LigneApropos = LigneDe<Apropos>;

/// The table of the box's controls, in the order of the keyboard.
std::span<const LigneApropos> TableApropos();

/// Fills the record with its controls as the table has them: the first picture shows and none was swapped.
void InitialiseApropos(Apropos &fenetre);

/// Runs over all controls of the box in the order of its table.
template <class Fonction> void PourChaque(Apropos &fenetre, Fonction &&fonction) {
  for (const LigneApropos &ligne : TableApropos()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris

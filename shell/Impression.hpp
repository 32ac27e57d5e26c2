#pragma once

#include "shell/Controles.hpp"

#include <array>
#include <span>

namespace velmaris {

/// Name of the print page.
inline constexpr std::string_view kFenetreImpression = "Impression";

/// The print page's rows, one a line of position: they fill as lines are reduced, whether or not the page shows.
struct Impression {
  std::array<Controle, 4> Frame4;  ///< a row with its title; hidden until it is filled
  std::array<Controle, 4> Label32; ///< time
  std::array<Controle, 4> Label33; ///< latitude
  std::array<Controle, 4> Label34; ///< longitude
  std::array<Controle, 4> Label35; ///< azimuth
  std::array<Controle, 4> Label36; ///< intercept
};

using LigneImpression = LigneDe<Impression>;

/// The table of the page's controls.
std::span<const LigneImpression> TableImpression();

/// Fills the record with its controls as the table has them.
void InitialiseImpression(Impression &page);

/// Runs over all controls of the page in the order of its table.
template <class Fonction> void PourChaque(Impression &page, Fonction &&fonction) {
  for (const LigneImpression &ligne : TableImpression()) {
    fonction(ligne, ligne.acces(page));
  }
}

} // namespace velmaris

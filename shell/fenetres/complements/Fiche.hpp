#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the check sheet in language files.
inline constexpr std::string_view kFenetreFiche = "Fiche";

/// Steps that the told reduction and today's are laid side by side in.
inline constexpr std::size_t kEtapesFiche = 15;

/// The check sheet: the sight whose results are shown, told and by the sky of today, step by step; what air, horizon
/// and sextant are set to. It lives beside the main window.
struct Fiche {
  Controle Verdict;
  std::array<Controle, 4> Colonne; ///< titles
  std::array<Controle, kEtapesFiche> Etape, Dit, Actuel, Raison;
  Controle TitreCauses, TitreGlissades;
  std::array<Controle, 4> Causes, Glissades; ///< the first ones, one a line
  Controle Frame1;                           ///< "Réglages du contrôle"
  std::array<Controle, 5> Label1, Text1;     ///< pressure, temperature, near shore, UT1 - UTC, arc errors
  Controle Command1, Command2;

  /// Words that no control shows.
  Controle TexteControle, TexteContre, TexteSansVisee, TexteReste, TexteRefuse, TexteAucune;
  std::array<Controle, 4> MotGrade;     ///< in the order of `GradeControle`
  std::array<Controle, 11> MotCause;    ///< in the order of `Cause`
  std::array<Controle, 11> CauseBreve;  ///< the same in a word
  std::array<Controle, 7> MotRefus;     ///< in the order of `RaisonRefus`
  std::array<Controle, 10> MotGlissade; ///< in the order of `GenreGlissade`
  Controle GlissadeBreve;
  Controle TexteLigneLoin; ///< of a star whose row lies off it

  CadreFenetre cadre{kFenetreFiche, "", 11400, 8310};
};

using LigneFiche = LigneDe<Fiche>;

/// The table of the sheet's controls, in the order of the keyboard.
std::span<const LigneFiche> TableFiche();

/// Fills the record with its controls as the table has them.
void InitialiseFiche(Fiche &fenetre);

/// Runs over all controls of the sheet in the order of its table.
template <class Fonction> void PourChaque(Fiche &fenetre, Fonction &&fonction) {
  for (const LigneFiche &ligne : TableFiche()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris

#pragma once

#include "shell/fenetres/Controles.hpp"
#include "sights/JugementVisee.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the status line in language files.
inline constexpr std::string_view kFenetreEtat = "Etat";

/// Fields and lists of the main window that have names of their own, those of a sight first; their ranges stand in the
/// same order.
inline constexpr std::size_t kChampsNommes = 36;

/// The line under the drawing surface: where the pointer is, what a refused field takes, what a tool waits for, why a
/// click did nothing. It is a record of its own within the main window.
struct Etat {
  Controle Position; ///< of the pointer
  Controle Dit;      ///< what is told

  std::array<Controle, kChampsNommes> Domaine; ///< what each field takes, those of a sight first
  std::array<Controle, 7> TexteMode;           ///< what each use of the four buttons waits for
  Controle TexteModule, TexteDepart, TexteBranche, TexteCapsDepart, TexteCapsArrivee;
  Controle TexteRefus, TexteSansCalcul, TexteSansDistance, TexteBorneZoom;
  Controle TexteCopie, TexteSansCopie, TexteSansModule, TexteSansLecture;
  Controle TexteManque, TexteHorsBornes, TexteResultatPerime;
  Controle TexteAnnule, TexteRetabli, TexteRienAnnuler, TexteRienRetablir;

  std::string avis; ///< told for a while
  int restant = 0;  ///< beats of the clock that it is still told
};

using LigneEtat = LigneDe<Etat>;

/// The table of the line's controls and words.
std::span<const LigneEtat> TableEtat();

/// Fills the record with its controls as the table has them.
void InitialiseEtat(Etat &etat);

/// Runs over all controls of the line in the order of its table.
template <class Fonction> void PourChaque(Etat &etat, Fonction &&fonction) {
  for (const LigneEtat &ligne : TableEtat()) {
    fonction(ligne, ligne.acces(etat));
  }
}

} // namespace velmaris

#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the log's window in language files.
inline constexpr std::string_view kFenetreRegistre = "Registre";

/// Columns of the log: date, body, reading, intercept, azimuth, check, note.
inline constexpr std::size_t kColonnesRegistre = 7;

/// The log: all sights ever reduced, in a list that is filtered; the watch, as it was compared. It lives beside the
/// main window, and shows more rows as it is made larger.
struct Registre {
  std::array<Controle, 3> Label1, Text1; ///< filters: text, body, day
  Controle Check1;                       ///< "Masquées"
  Controle Label2;                       ///< how many rows there are
  Controle Table1;
  Controle Label3, Text2;                ///< the note of the current row
  Controle Command1;                     ///< "Reprendre"
  std::array<Controle, 4> Command2;      ///< "Droite 1" to "Droite 4"
  std::array<Controle, 2> Command3;      ///< "Masquer" and "Montrer", on one spot
  Controle Command4, Command5;           ///< "CSV..." and ".LoP..."
  Controle Command6;                     ///< "Au point"
  Controle Command7;                     ///< "Fermer"
  Controle Frame1, List1;                ///< the watch
  std::array<Controle, 3> Label4, Text3; ///< its date, error and rate, to be added
  Controle Command8;                     ///< "Ajouter"

  /// Words that no control shows.
  std::array<Controle, kColonnesRegistre> Colonne;
  Controle TexteLecture, TexteVisees, TexteSur, TexteCassees, TexteIllisible, TexteMasquee, TexteJourRefuse;
  Controle TexteSansChoix, TexteSansAstre, TexteAuPoint, TexteMuet, TexteExportees, TexteEntrees, TexteNonEntrees;
  Controle TexteCsv, TexteLoP, TexteReleveRefuse, TexteParJour;

  CadreFenetre cadre{kFenetreRegistre, "", 14400, 9300, false, 14400, 6180};
};

using LigneRegistre = LigneDe<Registre>;

/// The table of the log's controls, in the order of the keyboard.
std::span<const LigneRegistre> TableRegistre();

/// Fills the record with its controls as the table has them.
void InitialiseRegistre(Registre &fenetre);

/// Runs over all controls of the log in the order of its table.
template <class Fonction> void PourChaque(Registre &fenetre, Fonction &&fonction) {
  for (const LigneRegistre &ligne : TableRegistre()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris

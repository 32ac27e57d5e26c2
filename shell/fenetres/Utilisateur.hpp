#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmaris {

/// Name of the editor of the user's objects.
inline constexpr std::string_view kFenetreUtilisateur = "Utilisateur";

/// Entries of the tables, numbers 0 to 2000; a list that would fill the last one is one too many.
inline constexpr std::size_t kEntreesObjets = 2001;

/// One of the user's own points of the globe, with a circle to draw around it on the chart.
struct Objet {
  std::string Latitude;   ///< signed decimal degrees with two decimals, "+" North
  std::string Longitude;  ///< the same form, "+" West
  std::int16_t Rayon = 0; ///< of the circle, nautical miles
  std::string Nom;        ///< "PlusRien" marks a deleted entry
  bool operator==(const Objet &) const = default;
};

/// The editor of the user's objects, which lives beside the main window.
struct Utilisateur {
  Controle Label3, List1, Label1, Text4, Label2, Text3;
  std::array<Controle, 2> Option1;
  Controle Frame5, Text8, Label23, Text9, Label11;
  std::array<Controle, 2> OptN;
  Controle Frame6, Text6, Label25, Text7, Label19;
  std::array<Controle, 2> OptE;
  Controle Command1, Command3, Command4, Command2, Label4, Text1, Label5, Text2;
  // Words of its boxes.
  Controle TexteLigne, TexteDeCote, TexteAutreMain, TexteNonEcrit, TexteRienPerdu, TexteFermer;
  std::array<Controle, 6> TexteChamp; ///< what the fields of a place hold, and in what unit

  CadreFenetre cadre{kFenetreUtilisateur, "", 8100, 5640};
  std::vector<Objet> tables;     ///< while it is open, all the entries
  std::string etiquetteCommand1; ///< tag of `Command1`: the count of entries
  std::string etiquetteCommand3; ///< tag of `Command3`: the number of the entry selected, empty for none
  std::int16_t Precision = 60;   ///< parts of a degree that are typed: 60 minutes, or 100 hundredths
  std::int16_t Modifie = 0;      ///< -1 while the tables differ from the file
  bool fidele = true;            ///< a write would give back every line of the file that was read
  /// What the user's own file held when it was last read or written; none where there was none to read.
  std::optional<std::string> octetsLus;
};

using LigneUtilisateur = LigneDe<Utilisateur>;

/// The table of the editor's controls, in the order of the keyboard.
std::span<const LigneUtilisateur> TableUtilisateur();

/// Fills the record with its controls as the table has them: no name, no entry, the mode of minutes.
void InitialiseUtilisateur(Utilisateur &fenetre);

/// Runs over all controls of the editor in the order of its table.
template <class Fonction> void PourChaque(Utilisateur &fenetre, Fonction &&fonction) {
  for (const LigneUtilisateur &ligne : TableUtilisateur()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

/// The count of entries, as the tag of `Command1` holds it.
std::size_t CompteObjets(const Utilisateur &fenetre);

} // namespace velmaris

#pragma once

#include "shell/fenetres/Controles.hpp"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace velmaris {

/// Name of the dialog for choosing a file.
inline constexpr std::string_view kFenetreFSelect = "FSelect";

/// The dialog for choosing a file to open or to save.
struct FSelect {
  Controle Label1, FName, Label2, File1, Label3, Dir1, Drive1, OK, Quitter, Command1;
  Controle TexteVolume; ///< what `Drive1` chooses
  Controle TexteNom;    ///< what `FName` takes
  Controle TexteSansDossier, TexteExiste;

  CadreFenetre cadre{kFenetreFSelect, "Fichier", 9300, 6300};
  bool chargee = false;                       ///< it has been loaded, with its language; it stays so for the run
  bool nomPropose = false;                    ///< it was opened with a name to save under, not with its pattern
  bool accepte = false;                       ///< a name was accepted since it was last shown
  std::string suffixe{};                      ///< of a file that is to be written, which a typed path may lack
  bool ditRefus = false;                      ///< a folder that can't be shown is told in a box
  std::filesystem::path dossier;              ///< path of `Dir1` and `File1`
  std::string motif = "*.*";                  ///< pattern of `File1`
  std::vector<std::filesystem::path> chemins; ///< the folders that `Dir1` lists, line by line
  std::string etiquette;                      ///< tag of `Dir1`: the chosen folder, ending in a separator
};

using LigneFSelect = LigneDe<FSelect>;

/// The table of the dialog's controls, in the order of the keyboard.
std::span<const LigneFSelect> TableFSelect();

/// Fills the record with its controls as the table has them.
void InitialiseFSelect(FSelect &fenetre);

/// Runs over all controls of the dialog in the order of its table.
template <class Fonction> void PourChaque(FSelect &fenetre, Fonction &&fonction) {
  for (const LigneFSelect &ligne : TableFSelect()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris

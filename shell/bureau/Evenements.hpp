#pragma once

#include "shell/bureau/Bureau.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// What can happen to a control.
enum class Evenement : std::uint8_t {
  Clic,       ///< pressed, chosen, ticked: by the user or by code
  DoubleClic, ///< pressed twice
  ClicLong,   ///< held down for a while
  Valide,     ///< Return on a list that has a use of its own for it; a row of a table pressed twice too
  Coche,      ///< the box of a table's current row was pressed
  Relache,    ///< a choice made by the user, once mouse or key is released
  Change,     ///< its text or value has changed, by the user or by code
  Entre,      ///< a field takes the focus
  Quitte,     ///< a field loses it
  Survol,     ///< the mouse moves over a picture
  Presse      ///< the left button goes down on a surface: `pointe` tells where
};

/// Whether anything happens at that event of that control.
bool Ecoute(const Controle &controle, Evenement evenement);

/// Runs the function of a control's event; nothing when it has none.
void Declenche(Bureau &bureau, Controle &controle, Evenement evenement);

/// @name Set from code: the control changes and its function runs, in the same statement.
/// @{

/// Sets the text of a field, or of a list with the line that bears it; the function runs only when the text is
/// another one.
void PoseTexte(Bureau &bureau, Controle &controle, std::string texte);
/// Selects an option; the others of its group are left.
void PoseOption(Bureau &bureau, Controle &controle);
/// Selects an option of a group by its number; one that doesn't exist changes nothing.
template <std::size_t N> void PoseChoix(Bureau &bureau, std::array<Controle, N> &options, int rang) {
  if (rang >= 0 && static_cast<std::size_t>(rang) < N) {
    PoseOption(bureau, options[static_cast<std::size_t>(rang)]);
  }
}
/// Chooses a line of a list, -1 for none; one past its entries changes nothing.
/// @param nombre  entries that the list can have
void PoseRang(Bureau &bureau, Controle &controle, int rang, int nombre);
/// Sets a box or the slider; the function runs only when the value is another one.
void PoseValeur(Bureau &bureau, Controle &controle, int valeur);
/// @}

/// @name Done by the user: a disabled or hidden control does nothing.
/// @{

/// Presses a command, a picture or a module.
void ClicControle(Bureau &bureau, Controle &controle);
/// Presses a surface at a place, 1/1440 inch.
void PresseSurface(Bureau &bureau, Controle &controle, Point point);
/// Moves the mouse over a picture.
void SurvoleControle(Bureau &bureau, Controle &controle);
/// Brings a window to the front.
/// @param fenetre  its name
void ActiveFenetre(Bureau &bureau, std::string_view fenetre);
/// Presses a list or a picture twice.
void DoubleClicControle(Bureau &bureau, Controle &controle);
/// Holds a command down for a while.
void ClicLongControle(Bureau &bureau, Controle &controle);
/// Return while the control has the keyboard.
/// @return false when it has no use for it, and Return means what it means in its window
bool ValideControle(Bureau &bureau, Controle &controle);
/// Chooses an option.
void ClicOption(Bureau &bureau, Controle &controle);
/// Ticks a box, or clears it from its ticked or greyed state.
void ClicCase(Bureau &bureau, Controle &controle);
/// Moves the slider, within its limits.
void BougeCurseur(Bureau &bureau, Controle &controle, int valeur);
/// Enters a field or a list: the whole text is selected, so that typing replaces it.
void EntreChamp(Bureau &bureau, Controle &controle);
/// Leaves a field.
void QuitteChamp(Bureau &bureau, Controle &controle);
/// Types into a field.
void SaisitTexte(Bureau &bureau, Controle &controle, std::string texte);
/// Chooses a line of a list.
void ChoisitLigne(Bureau &bureau, Controle &controle, int rang);
/// Chooses rows of a table and moves to one. What answers that leaves the rows as they are: the toolkit is among them.
/// @param choisies  in ascending order; those that the table hasn't are left out
/// @param courante  row, `kSansLigne` for none
void ChoisitLignes(Bureau &bureau, Controle &controle, std::vector<std::size_t> choisies, int courante);
/// Presses the box of a row, which becomes the current one.
void CocheLigne(Bureau &bureau, Controle &controle, int ligne);
/// Return on a row, or a double click: it becomes the current one.
void ValideLigne(Bureau &bureau, Controle &controle, int ligne);
/// @}

} // namespace velmaris

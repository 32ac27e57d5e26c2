#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string_view>

namespace velmaris {

/// The start sequence: geometry, stored lines, settings, language, clock and fields, once the Sun's place. Opens the
/// settings store of the user's data folder when none is set.
/// @param ecran  the screen; under 700 pixels of height the compact layout is taken
void Donnees_Charge(Bureau &bureau, const Ecran &ecran);

/// The clock's tick, every 1400 milliseconds: the live panel while it shows, and the window's title.
void Timer1_Tick(Bureau &bureau);

/// Milliseconds between two ticks.
inline constexpr int kPeriodeTimer1 = 1400;

/// Code of the key F1; the other function keys follow it.
inline constexpr int kToucheF1 = 112;

/// A key of the window, whatever control has the focus. What fails under it is passed over: the same failure under a
/// button ends the program.
/// @param code  112 for F1 to 123 for F12
/// @return whether the key does something here
bool Donnees_KeyDown(Bureau &bureau, int code);

/// "Aide": does what the key F1 does.
void Command5_Click(Bureau &bureau, int indice);

/// A letter with the control key: S saves, O opens, P shows the print page, Q leaves, each by its button;
/// I opens the check sheet, L the log, G the fix in figures, K the plan, R runs of readings, E practice; with the shift
/// key A opens the printed pages.
/// @param lettre  a capital; a small letter with the shift key
/// @return whether it does something here
bool ToucheControle(Bureau &bureau, char lettre);

/// The same letter in a window of the complements: those that open one of these windows.
bool ToucheComplement(Bureau &bureau, char lettre);

/// The menu key: the menu of the results under the pointer; else that of the drawing surface, at the pointer where that
/// is over it, or else under the control that has the keyboard.
/// @param pointe   control under the pointer, null for none
/// @param place    of the pointer on the drawing surface, 1/1440 inch
/// @param clavier  control that has the keyboard, null for none
/// @return whether a menu is to be opened
bool ToucheMenu(Bureau &bureau, const Controle *pointe, Point place, const Controle *clavier);

/// The keys of the zoom: a failure under them is passed over, as under a function key.
/// @param crans  above 0 nearer, below 0 farther
void ZoomeTouche(Bureau &bureau, int crans);

/// Return in a field: the field is left, and the "Calcul" of its module is pressed.
/// @return false for a field of no such module
bool RetourDansChamp(Bureau &bureau, Controle &champ);

/// The choice of the language: 0 French, 1 English. The flag that stays is the one that can be chosen.
void Image10_Click(Bureau &bureau, int indice);

/// A complement's button in the toolbar: as its entry in the menu.
void Complement_Click(Bureau &bureau, int indice);

/// Takes the last gesture of a window back, or makes it again: the lists of readings have their own, the other windows
/// share those of the panel.
/// @param fenetre   its name
/// @param retablit  makes again what was taken back
/// @return false for a window that changes nothing of the kind
bool RevientDans(Bureau &bureau, std::string_view fenetre, bool retablit);

} // namespace velmaris

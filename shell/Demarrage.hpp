#pragma once

#include "shell/bureau/Bureau.hpp"

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
/// @param code  112 for F1 to 121 for F10
/// @return whether the key does something here
bool Donnees_KeyDown(Bureau &bureau, int code);

/// The keys of the zoom: a failure under them is passed over, as under a function key.
/// @param crans  above 0 nearer, below 0 farther
void ZoomeTouche(Bureau &bureau, int crans);

/// Return in a field: the field is left, and the "Calcul" of its module is pressed.
/// @return false for a field of no such module
bool RetourDansChamp(Bureau &bureau, Controle &champ);

/// The choice of the language: 0 French, 1 English. The flag that stays is the one that can be chosen.
void Image10_Click(Bureau &bureau, int indice);

} // namespace velmaris

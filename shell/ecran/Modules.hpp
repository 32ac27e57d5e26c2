#pragma once

#include "shell/bureau/Bureau.hpp"

#include <array>

namespace velmaris {

/// Numbers of the modules; 5 and 6 stand for nothing.
inline constexpr std::array<int, 8> kNumerosModules = {1, 2, 3, 4, 7, 8, 9, 10};

/// The panel of a module by its number.
/// @return null for another number
Controle *Module(Donnees &donnees, int numero);

/// Shows "Mémoire" and its caption in the toolbar, or hides them.
void MontreMemoire(Donnees &donnees, bool visible);

/// Legs are measured on the chart, or no longer; the module that tells them stays as it is.
void PoseDistance(Bureau &bureau, bool mesure);

/// Takes a module with the mouse, or lets go of the one that is held.
void SaisitModule(Bureau &bureau, int numero);
template <int Numero> void SaisitModule(Bureau &bureau, int /*indice*/) { SaisitModule(bureau, Numero); }

/// The close picture of a module: hides it and what goes with it.
void FermeModule(Bureau &bureau, int numero);
template <int Numero> void FermeModule(Bureau &bureau, int /*indice*/) { FermeModule(bureau, Numero); }

/// A module whose title is drawn along with the button held goes to a place; its title stays in reach.
/// @param gauche, haut  1/1440 inch, in the window
void TireModule(Bureau &bureau, Controle &module, double gauche, double haut);

/// Lets go of the module that is held, if any.
void LacheModule(Bureau &bureau);

/// The held module, if any, goes to a place with its help label.
/// @param x, y  1/1440 inch, on the drawing surface
void DeplaceModule(Bureau &bureau, double x, double y);

/// Module buttons of the toolbar.
/// @{
void Command23_Click(Bureau &bureau, int indice); ///< " multiples": module 10, with "Mémoire"
void Command20_Click(Bureau &bureau, int indice); ///< "simples": module 7, and module 3 hides with it
void Command7_Click(Bureau &bureau, int indice);  ///< " Soleil": module 8
void Command21_Click(Bureau &bureau, int indice); ///< " Carte": module 9, under module 8
void Command22_Click(Bureau &bureau, int indice); ///< "Estime": module 4, with module 10 over it
void Command9_Click(Bureau &bureau, int indice);  ///< "Cap": module 2, with module 10 beside it
/// @}

/// "Détails": module 3, aligned with the foot of module 7; nothing before a first reduction.
void Command26_Click(Bureau &bureau, int indice);

/// Shows module 10 with "Mémoire", at the end of a load; beside module 7 where the two would overlap.
void MontreDroitesMultiples(Bureau &bureau);

/// Puts all modules away, and ends the measuring of legs.
void PU_Clear_Click(Bureau &bureau, int indice);

/// "Carte globale" greys islands and lakes, "Contours précis" ticks them.
void OpCarte_Click(Bureau &bureau, int indice);

/// Brings the modules within reach of a screen that may be smaller than the one that they were placed on, and the
/// toolbar in line with those that show.
void AccordeModules(Bureau &bureau);

} // namespace velmaris

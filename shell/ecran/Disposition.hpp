#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Height of the screen in pixels under which the compact layout is taken.
inline constexpr int kPixelsCompacts = 700;

/// Lays out window, drawing surface and its captions for a screen, and gives the surfaces their sizes.
void DisposeFenetre(Bureau &bureau, const Ecran &ecran);

/// Moves the results of the sight up and makes its captions small, so that a low screen holds them.
void DispositionCompacte(Donnees &donnees);

} // namespace velmaris

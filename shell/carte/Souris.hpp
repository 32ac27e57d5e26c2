#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>
#include <optional>

namespace velmaris {

enum class BoutonSouris : std::uint8_t { Gauche, Droit, Autre };

/// The mouse on the drawing surface; places are in 1/1440 inch, on the surface.
/// @{

/// A button goes down. The right one sets the points of a route while legs are measured; the left one opens the menu
/// unless it holds a module.
void Image1_MouseDown(Bureau &bureau, BoutonSouris bouton, double x, double y);
/// The pointer moves: a held module follows it while the left button is down, the coordinate label follows it, and the
/// present leg is measured to it.
void Image1_MouseMove(Bureau &bureau, bool boutonGauche, double x, double y);
/// A button goes up: with the right one, the leg just ended joins the list. The help label hides with any.
void Image1_MouseUp(Bureau &bureau, BoutonSouris bouton);
/// @}

/// Whether anything follows the pointer.
bool SuitPointeur(const Bureau &bureau);

/// The present leg as far as it has been measured, to be seen while the pointer moves; it isn't on the surface yet.
struct Elastique {
  Point debut;
  Point fin;
  bool operator==(const Elastique &) const = default;
};
std::optional<Elastique> BrancheEnCours(const Bureau &bureau);

/// "Reset": the list, the figures and the start of the next leg are forgotten; with "Toujours Visible" the legs and
/// the chart leave the surface too, and the chart is drawn again.
void Command19_Click(Bureau &bureau, int indice);

/// "Distance" and its menu entry: legs are measured, or no longer.
void PU_Distance_Click(Bureau &bureau, int indice);

/// "Coordonnées" and its menu entry: the coordinate label shows, or no longer.
void PU_Coord_Click(Bureau &bureau, int indice);

} // namespace velmaris

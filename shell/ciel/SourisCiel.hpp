#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>
#include <string>

namespace velmaris {

/// Where an arrow key leads.
enum class Direction : std::uint8_t { Gauche, Droite, Haut, Bas };

/// What mouse and keyboard show and choose on the chart of the sky.
namespace ciel {

/// The mouse over the chart, outside of every body: the dials follow it on the horizontal chart.
/// @param x, y  1/1440 inch, on the chart
void Picture1_MouseMove(Bureau &bureau, double x, double y);
/// The mouse over a star's label: its constellation lights up.
/// @param indice  number of the star, from 1
void Laet_MouseMove(Bureau &bureau, int indice);
/// The mouse over a planet's label.
/// @param indice  0 Venus, 1 Mars, 2 Jupiter, 3 Saturn
void LaP_MouseMove(Bureau &bureau, int indice);
/// The mouse over a planet's disc: its name, and azimuth and height of the disc.
/// @param indice  as for LaP_MouseMove
void Shapla_MouseMove(Bureau &bureau, int indice);
/// The mouse over the Sun's picture.
void SOL_MouseMove(Bureau &bureau);
/// The mouse over the Moon's picture.
void Lune_MouseMove(Bureau &bureau);
/// The mouse over a body of the chart.
/// @param astre   its label or picture
/// @param pointe  what lies under the mouse: that, or the body's mark
void Survole(Bureau &bureau, const Controle &astre, const Controle &pointe);

/// Whether a click on a body of the chart chooses it: a star only if it is in the list of visible stars of the
/// position and the moment in the fields.
/// @param astre  its label or picture
bool SeChoisit(const Bureau &bureau, const Controle &astre);

/// What the tip of a body tells: a star's letter and constellation, and whether a click can't choose it.
/// @param astre  its label or picture
std::string AideAstre(const Bureau &bureau, const Controle &astre);

/// A star chosen in the list is shown on the chart.
void List1_Click(Bureau &bureau, int indice);

/// A body chosen on the chart becomes that of the next sight, and the main window comes to the front.
/// @{
void SOL_Click(Bureau &bureau, int indice);
void Lune_Click(Bureau &bureau, int indice);
void LaP_Click(Bureau &bureau, int indice);
void Laet_Click(Bureau &bureau, int indice);
/// @}

/// An arrow key on the chart: the keyboard goes to the nearest body on show in that direction, as the mouse would, or
/// to the body nearest the middle when it stands on none; at the last one it stays.
void DeplaceAstre(Bureau &bureau, Direction direction);
/// Return on the chart: the body that the keyboard stands on is chosen as by a click; nothing when there is none.
void PrendAstre(Bureau &bureau);

} // namespace ciel
} // namespace velmaris

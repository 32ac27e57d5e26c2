#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>

namespace velmaris {

/// "Astres": opens the sky window beside the main one, or brings it to the front.
void Command13_Click(Bureau &bureau, int indice);

/// Makes the sky window anew for its opening: texts, size, pictures, the stars' names, and a first drawing.
void Ciel_Charge(Bureau &bureau);

/// The sky window's inside has a new size: its parts find their places, and the chart is drawn anew.
/// @param largeur, hauteur  1/1440 inch
void Ciel_Redimensionne(Bureau &bureau, double largeur, double hauteur);

/// Closes the sky window, by its button, Escape, or the exit; nothing when it isn't open.
void Ciel_Ferme(Bureau &bureau);

/// Writes the template of the sky window's texts; an author's tool. A write that fails is told.
void Ciel_EcritLangue(Bureau &bureau);

/// Draws the whole sky anew for the present moment and the estimated position: places, colours and names of all
/// bodies, the list of stars, constellations and scale. A body that has no place at that moment is hidden, and the
/// others go on.
void TraceCiel(Bureau &bureau);

/// Where an arrow key leads.
enum class Direction : std::uint8_t { Gauche, Droite, Haut, Bas };

/// The events of the sky window; its controls bear the names of others in the main window.
namespace ciel {

/// The automatic redraw's moment has come.
void Timer1_Tick(Bureau &bureau);
/// The sky is turned.
void HScroll1_Change(Bureau &bureau, int indice);
/// "Rafraichissement automatique": the timer runs exactly while it is ticked.
void Check2_Click(Bureau &bureau, int indice);
/// "Rafraichir".
void Command1_Click(Bureau &bureau, int indice);
/// "Fermer".
void Command4_Click(Bureau &bureau, int indice);
/// The chart is chosen.
/// @param indice  1 "Horizontale", 0 "Equatoriale"
void Option1_Click(Bureau &bureau, int indice);

/// The mouse over the chart, outside of every body: the dials follow it on the horizontal chart.
/// @param x, y  1/1440 inch, on the chart
void Picture1_MouseMove(Bureau &bureau, double x, double y);
/// The mouse over a star's label: its constellation lights up.
/// @param indice  number of the star, from 1
void Laet_MouseMove(Bureau &bureau, int indice);
/// The mouse over a planet's label.
/// @param indice  0 Venus, 1 Mars, 2 Jupiter, 3 Saturn
void LaP_MouseMove(Bureau &bureau, int indice);
void SOL_MouseMove(Bureau &bureau);
void Lune_MouseMove(Bureau &bureau);

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

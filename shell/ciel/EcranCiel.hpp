#pragma once

#include "shell/bureau/Bureau.hpp"

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

/// The events of the sky window; its controls bear the names of others in the main window.
namespace ciel {

/// The automatic redraw's moment has come.
void Timer1_Tick(Bureau &bureau);
/// The sky is turned.
void HScroll1_Change(Bureau &bureau, int indice);
/// "Rafraichissement automatique": the timer runs exactly while it is ticked.
void Check2_Click(Bureau &bureau, int indice);
/// "Rafraichir": the present sky.
void Command1_Click(Bureau &bureau, int indice);
/// A step of time back, or forth: the automatic redraw ends, "Rafraichir" goes back to the present.
/// @{
void Recule_Click(Bureau &bureau, int indice);
void Avance_Click(Bureau &bureau, int indice);
/// @}
/// "Fermer".
void Command4_Click(Bureau &bureau, int indice);
/// The chart is chosen.
/// @param indice  1 "Horizontale", 0 "Equatoriale"
void Option1_Click(Bureau &bureau, int indice);

} // namespace ciel
} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// "Imprime": shows the print page beside the main window, or brings it to the front.
void Command11_Click(Bureau &bureau, int indice);

/// The page comes to the front: its button shows, and it takes a new picture of the drawing surface.
void Impression_Activate(Bureau &bureau);

/// The page is put away; its rows stay.
void Impression_Ferme(Bureau &bureau);

/// The events of the page; its controls bear the names of others in the main window.
namespace impression {

/// "Imprimer": the page without its button goes to the printer. A failure is told, and leaves the button hidden until
/// the page comes to the front again.
void Command1_Click(Bureau &bureau, int indice);
/// A click on the page or its picture puts the page away.
void Image1_Click(Bureau &bureau, int indice);

} // namespace impression
} // namespace velmaris

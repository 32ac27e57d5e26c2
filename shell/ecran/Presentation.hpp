#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// "A propos": puts all modules away, then shows the about box and waits until it is closed.
void PU_Apropos_Click(Bureau &bureau, int indice);

/// Opens an address by the desktop's program for it; when there is none the address is shown, to be copied.
/// @param adresse  a web or mail address, or the path of a file
void OuvreAdresse(Bureau &bureau, const std::string &adresse);

/// The events of the about box; its controls bear the names of others in the main window.
namespace apropos {

/// The link that writes to the authors, with the program's version as the subject.
void Label3_Click(Bureau &bureau, int indice);
/// What the program's data and theories are.
void Label4_Click(Bureau &bureau, int indice);
/// The link to the program's site.
void Label5_Click(Bureau &bureau, int indice);
/// The mouse moves over the picture: it swaps with the other one, at most once in a little under a second.
void Image1_MouseMove(Bureau &bureau, int indice);
/// "Fermer": the box closes, and the main window comes to the front.
void Command1_Click(Bureau &bureau, int indice);

} // namespace apropos
} // namespace velmaris

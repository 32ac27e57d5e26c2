#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>
#include <string_view>

namespace velmaris {

/// What a control's module has worked out, one result a line with its caption and unit: the results of a sight, its
/// details, the live position, the position by dead reckoning, course and distance, the legs. Of the status line, what
/// it tells.
/// @return empty for a module without results, or without any yet
std::string ResultatsDe(Bureau &bureau, const Controle &controle);

/// Ctrl+C outside of a field's selection: the results that lie under the pointer, else those of the module that has the
/// keyboard, else, with the keyboard on the drawing surface, its picture. The status line tells what was copied.
/// @param pointe   control under the pointer, null for none
/// @param clavier  control that has the keyboard, null for none
void Copie(Bureau &bureau, const Controle *pointe, const Controle *clavier);

/// Opens the menu that copies the results under the pointer.
/// @return false where there are none
bool OuvreMenuCopie(Bureau &bureau, const Controle &pointe);

/// Its entry.
void MC_Copier_Click(Bureau &bureau, int indice);
/// "L'image de la feuille".
void PU_CopieImage_Click(Bureau &bureau, int indice);
/// "Les coordonnées de ce point": those of the place where the menu of the drawing surface was opened.
void PU_CopiePoint_Click(Bureau &bureau, int indice);

/// "Enregistrer l'image...": asks for a file, whose suffix chooses the form; without one it is PNG. What fails is told.
void PU_Image_Click(Bureau &bureau, int indice);

/// Writes the picture of a surface into a file, in the form that its name ends with: PNG, SVG or PDF. What can't be
/// written, and a form that isn't known, is told in a box.
/// @param fenetre  the window that the box belongs to, empty for the one that the user is in
/// @return whether it was written
bool EcritImageDe(Bureau &bureau, const Surface &surface, const std::filesystem::path &chemin,
                  std::string_view fenetre = {});

} // namespace velmaris

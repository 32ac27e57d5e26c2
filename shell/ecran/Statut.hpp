#pragma once

#include "foundations/Angles.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Whether the drawing surface has a scale, so that a point of it is a place.
bool AUneEchelle(const Feuille &feuille);

/// The pointer is over a point of the drawing surface: its place is told while the surface has a scale.
void SuitPosition(Bureau &bureau, Point point);
/// The pointer has left the drawing surface.
void PerdPosition(Bureau &bureau);

/// Brings what the line tells in line with the program: a notice, else what a tool waits for, what is to be
/// mended in the sight, what the four buttons do; else nothing.
void AccordeStatut(Bureau &bureau);

/// Puts what each field and list takes into its tool tip, in the language of the program. One that tells what a
/// calculation has found stays.
void PoseDomaines(Bureau &bureau);

} // namespace velmaris

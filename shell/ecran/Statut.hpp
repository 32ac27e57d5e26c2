#pragma once

#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// A place as the status line has it, in tenths of a minute: "47° 10.3' N  004° 44.1' W".
/// @param latitude, longitude  degrees, north and west positive; the longitude is brought within 180
/// @return empty past a pole
std::string TexteTenue(double latitude, double longitude);

/// Whether the drawing surface has a scale, so that a point of it is a place.
bool AUneEchelle(const Feuille &feuille);

/// The pointer is over a point of the drawing surface: its place is told while the surface has a scale.
void SuitPosition(Bureau &bureau, Point point);
/// The pointer has left the drawing surface.
void PerdPosition(Bureau &bureau);

/// Brings what the line tells in line with the program: a notice, else what a tool waits for, else nothing.
void AccordeStatut(Bureau &bureau);

/// Puts what each field of a sight takes into its tool tip, in the language of the program.
void PoseDomaines(Bureau &bureau);

} // namespace velmaris

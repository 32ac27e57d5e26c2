#pragma once

#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"

#include <string_view>

namespace velmaris {

/// Draws the cities that lie on the surface: two circles for the larger ones, which always bear their name; the others
/// bear theirs on a sheet of less than 1000 miles.
/// @param octets  their file
/// @throws Erreur 5 at a line whose fields can't be found, 11 while there is no scale; the surface keeps what came
/// first
void TraceVilles(const Feuille &feuille, Surface &surface, std::string_view octets);

/// Draws the user's objects that lie on the surface, each with its circle and its name. Leaves the surface's text
/// colour black.
/// @param octets  their file
/// @throws Erreur 5 at a line whose fields can't be found, 11 while there is no scale; the surface keeps what came
/// first
void TraceObjets(const Feuille &feuille, Surface &surface, std::string_view octets);

} // namespace velmaris

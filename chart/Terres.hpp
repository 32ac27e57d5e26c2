#pragma once

#include "chart/Polygones.hpp"
#include "chart/Projection.hpp"
#include "foundations/Aire.hpp"

#include <memory>

namespace velmaris {

/// What of a file's outlines can be filled: the closed ones, and those that end at 180 degrees. These are closed along
/// that meridian, and over the south pole where they go from one side of it to the other: Antarctica.
Anneaux AnneauxFermes(const Polygone &polygone);

/// Filled outlines on the surface, in the same places as their lines.
Aire AireSurCarte(const VueCarte &vue, const Feuille &feuille, Teinte teinte, std::shared_ptr<const Anneaux> anneaux);

} // namespace velmaris

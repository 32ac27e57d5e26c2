#pragma once

#include "chart/Polygones.hpp"
#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"

#include <functional>

namespace velmaris {

/// Draws outlines over what the surface holds, in the view around the sheet or of the whole world. A pair of points is
/// drawn when both are real and lie on the surface or within 100 units of the chart's scale factor outside it. Joined
/// pairs are one polyline.
/// @param polygone  emptied at the end
/// @param feuille   its scales are replaced for the whole world
/// @param respire   called every 10000 points
/// @throws Erreur 11 around a sheet on a surface without height
void Affiche(Polygone &polygone, Feuille &feuille, Surface &surface, Couleur couleur,
             const std::function<void()> &respire);

} // namespace velmaris

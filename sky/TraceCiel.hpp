#pragma once

#include "foundations/Surface.hpp"
#include "sky/ProjectionCiel.hpp"

namespace velmaris {

/// Draws the scale on the sky's chart: every 15 degrees a tick over the horizon line, with the azimuth in degrees or
/// the hour of right ascension. Both charts place it by the azimuth.
/// @param carte  its font and colour of texts are left changed
void TraceEchelleCiel(Surface &carte, const CadreCiel &cadre);

/// Draws the scale of height on the horizontal chart, of declination on the equatorial one, at both edges: a short tick
/// and its figure every 10 degrees, every 30 on the equatorial chart.
/// @param carte  its font and colour of texts are left changed
void TraceHauteurs(Surface &carte, const CadreCiel &cadre);

} // namespace velmaris

#pragma once

#include "foundations/Surface.hpp"

namespace velmaris {

/// Draws the azimuth dial: a grey cross, twelve points, a needle with its head and tail, and the four letters.
/// @param cadran  cleared first; its width is the dial's
/// @param azimut  degrees
void DessineCadranAzimut(Surface &cadran, float azimut);

/// Draws the height dial: a quarter circle of points and a needle from the corner.
/// @param cadran   cleared first
/// @param hauteur  degrees
void DessineCadranHauteur(Surface &cadran, float hauteur);

} // namespace velmaris

#pragma once

#include "foundations/Surface.hpp"

#include <cstdint>

namespace velmaris {

/// The two charts of the sky; neither has a perspective.
enum class CarteCiel : std::uint8_t {
  Equatoriale = 0, ///< right ascension to the left, declination up
  Horizontale = 1  ///< azimuth to the right, height up
};

/// What a point of the sky's chart depends on besides its two angles.
struct CadreCiel {
  double W = 0.0; ///< width, 1/1440 inch
  double H = 0.0; ///< height, 1/1440 inch
  double S = 0.0; ///< shift to the right, half widths: 0 to 2
  CarteCiel carte = CarteCiel::Horizontale;
};

/// Azimuth and height under a point, degrees.
struct HorizonPointe {
  double az = 0.0;
  double h = 0.0;
};

/// Whether the chart has a size: one without draws nothing.
bool ADeLaPlace(const CadreCiel &cadre);

/// Turns a place to the right by the shift, and from beyond the right edge back by one width.
double Decale(const CadreCiel &cadre, double x);

/// A point of the horizontal chart, shifted. What is below the horizon lies under the lower edge.
/// @param az, h  degrees
Point ProjetteHorizon(const CadreCiel &cadre, double az, double h);

/// A point of the equatorial chart, shifted.
/// @param a      right ascension in the unit of `tour`
/// @param dec90  declination + 90, degrees
/// @param tour   what a whole turn is: 360 for degrees, 24 for hours
Point ProjetteEquateur(const CadreCiel &cadre, double a, double dec90, double tour = 360.0);

/// Azimuth and height under a point of the horizontal chart. An azimuth of exactly 360 stays.
/// @param cadre  with a size
HorizonPointe LitHorizonPointe(const CadreCiel &cadre, Point point);

/// Left edge of a body's label: centred under the body, pushed back where it would leave the chart.
/// @param x        of the body's centre
/// @param largeur  of the label
double GaucheLabel(const CadreCiel &cadre, double x, double largeur);

/// Left edge of a planet's mark: centred on it, pushed back at the right edge alone.
double GaucheMarque(const CadreCiel &cadre, double x, double largeur);

} // namespace velmaris

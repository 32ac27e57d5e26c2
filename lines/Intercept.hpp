#pragma once

#include "lines/Feuille.hpp"

#include <cstdint>

namespace velmaris {

/// Draws the line of position of `Azimut` and `Intercept` from a point, with its mile ticks and its figure.
/// Reads `AngleDroite`, `LongueurIntercept`, `EchelleY`, `Zoom` and `TransportEnCours` of the sheet. With an azimuth
/// of exactly 180 or an intercept of 0 only the figure is printed, where the drawing position stands.
/// @param x, y     the point, surface units
/// @param couleur  a colour's number, as a 32-bit value
/// @param drapeau  left -1 when `Zoom` is under 250, so that ticks are drawn, else 0
void AffIntercept(const Feuille &feuille, Surface &surface, const ValeursVisee &valeurs, double x, double y,
                  float couleur, std::int16_t &drapeau);

} // namespace velmaris

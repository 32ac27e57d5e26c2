#pragma once

#include "shell/bureau/Bureau.hpp"
#include "sky/ProjectionCiel.hpp"

#include <string_view>

namespace velmaris {

/// Border of a star of the short list, and the colour that its label keeps in its tag.
inline constexpr Couleur kNavigable = 0x00FF00;

/// Draws the whole sky anew for the present moment and the estimated position: places, colours and names of all
/// bodies, the list of stars, constellations and scale. A body that has no place at that moment is hidden, and the
/// others go on.
void TraceCiel(Bureau &bureau);

/// The chart as it stands: its size, its kind and how far it is turned.
CadreCiel CadreDe(const Ciel &ciel);

/// Words of a body's label, which is as wide as they are.
void PoseMots(const Ports &ports, Controle &label, std::string_view mots);

/// A star's label takes the colour that it keeps in its tag.
void RendCouleur(Controle &label);

} // namespace velmaris

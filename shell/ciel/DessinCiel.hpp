#pragma once

#include "shell/bureau/Bureau.hpp"
#include "sky/ProjectionCiel.hpp"

#include <string_view>

namespace velmaris {

/// The chart as it stands: its size, its kind and how far it is turned.
CadreCiel CadreDe(const Ciel &ciel);

/// Words of a body's label, which is as wide as they are.
void PoseMots(const Ports &ports, Controle &label, std::string_view mots);

/// A star's label takes the colour that it keeps in its tag.
void RendCouleur(Controle &label);

} // namespace velmaris

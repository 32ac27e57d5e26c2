#pragma once

#include "foundations/Surface.hpp"

#include <string>

namespace velmaris {

/// Shapes that the drawings of the complements share. Places and lengths are in 1/1440 inch.

/// A text in a colour of its own; the surface's stays.
void EcritEnCouleur(Surface &s, Point place, Couleur couleur, std::string mots, RoleTexte role);

/// A ring.
/// @param largeur  of its pen, points of the screen
void Rond(Surface &s, Point centre, double rayon, Couleur couleur, int largeur = 1);

/// A filled dot: a ring as broad as its radius, and a bar that closes what its middle may leave open.
/// @param pixels  how large, points of the screen
void Disque(Surface &s, Point centre, int pixels, Couleur couleur);

/// A straight line.
void Segment(Surface &s, Point debut, Point fin, const Plume &plume);

} // namespace velmaris

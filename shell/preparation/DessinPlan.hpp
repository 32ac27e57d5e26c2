#pragma once

#include "complements/prevision/CielDuPlan.hpp"
#include "complements/prevision/JeuxAstres.hpp"
#include "foundations/Surface.hpp"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// What the round chart shows beside the sky.
struct CarteDuPlan {
  std::vector<std::size_t> astres;               ///< by their places in the sky, those that are shown
  std::optional<std::size_t> choisi;             ///< ringed
  double haut = 0;                               ///< the direction that is up, degrees
  std::array<std::string, 4> cardinaux;          ///< letters of north, east, south and west
  std::function<std::string(const Astre &)> nom; ///< words beside a body
  /// How wide words are in a font, 1/1440 inch; none for a guess.
  std::function<double(const std::string &, const Police &)> largeur;
};

/// Where a body stands on the chart: the zenith in the middle, directions clockwise as on a compass.
Point PlaceSurCarte(const Surface &surface, double hauteur, double azimut, double haut);

/// Draws the round chart anew. Each name stands beside its body, inside the horizon, where no other does: the chosen
/// body's first, then those of Sun, Moon and planets, then stars by half magnitudes, those left out as if they were
/// three of these fainter; stars over magnitude 3.5, and those left out over 1.5, have none. One that finds no place is
/// left out.
void DessineCarte(Surface &surface, const CielDuPlan &ciel, const CarteDuPlan &carte);

/// The body nearest to a point of the chart.
/// @return nothing where none is near
std::optional<std::size_t> AstreSous(const Surface &surface, const CielDuPlan &ciel, const CarteDuPlan &carte,
                                     Point point);

/// One body of a set as it is sketched.
struct DirectionEsquissee {
  double azimut = 0; ///< degrees
  std::string nom;
};

/// Draws the lines that a set of bodies gives around one place, north up: each across its body's direction, an arrow to
/// the body, with its number in the order of shooting and its name, away from the lines.
/// @param carte  gives the letters of the directions and how wide words are
void DessineEsquisse(Surface &surface, const std::vector<DirectionEsquissee> &astres, const CarteDuPlan &carte);

} // namespace velmaris

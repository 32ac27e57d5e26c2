#pragma once

#include "complements/point/Equations.hpp"

#include <span>
#include <vector>

namespace velmaris {

/// What a walk to the place came to, and which unknowns beyond it were refused.
struct Recherche {
  SystemePoint systeme; ///< with the unknowns that were granted
  EquilibrePoint equilibre;
  bool serree = false; ///< no two lines cross there well enough to make a fix
  std::vector<AvisPoint> refus;
};

/// Adds the common errors and the speed over the ground as unknowns where they are asked for and the sights allow it.
/// @param quarts  each of the caller's sights' watch
void AjouteInconnues(Recherche &recherche, const ReglagesPoint &reglages, std::span<const int> quarts);

} // namespace velmaris

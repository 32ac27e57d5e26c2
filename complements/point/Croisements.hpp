#pragma once

#include "complements/ciel/Vecteurs.hpp"
#include "complements/point/Route.hpp"

#include <array>
#include <optional>

namespace velmaris {

/// A circle of equal height on the sphere.
struct CercleHauteur {
  LieuNavire sous;    ///< its centre, which has the body overhead
  double hauteur = 0; ///< degrees
};

/// Where two circles cross: two places, which are one where they only touch.
struct Croisement {
  std::array<LieuNavire, 2> lieux;
  bool coupe = false; ///< false where they don't meet: both places are then the one that lies between
};

/// Crosses two circles, in closed form by vectors.
/// @return nothing where they have one centre, or two that face each other
std::optional<Croisement> CroiseCercles(const CercleHauteur &a, const CercleHauteur &b);

/// A circle with its trigonometry, for many pairs.
struct CerclePret {
  Vecteur3 sous{};    ///< direction of the centre
  double sinus = 0;   ///< of the height
  double cosinus = 0; ///< of the height
};

CerclePret PretDe(const CercleHauteur &cercle);

/// How squarely two circles cross: the sine of the angle between the directions to their centres.
/// @return 0 to 1; 0 where they don't cross
double FranchiseCroisement(const CerclePret &a, const CerclePret &b);

/// The circle turned by what takes one place to another, so that the second has the height that the first had.
CercleHauteur TourneCercle(const CercleHauteur &cercle, const LieuNavire &de, const LieuNavire &a);

} // namespace velmaris

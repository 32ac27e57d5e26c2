#pragma once

#include "complements/point/Route.hpp"

#include <array>
#include <cstddef>

namespace velmaris {

/// What the end of a way hangs on.
enum ParametreRoute : std::size_t {
  kLatitudeDepart,  ///< degrees
  kLongitudeDepart, ///< degrees
  kEcartCap,        ///< degrees
  kEcartVitesse,    ///< part of the speed
  kEcartNord,       ///< knots
  kEcartEst,        ///< knots
  kParametresRoute
};

/// The end of a way, and by how many degrees it moves with one unit of each parameter.
struct ArriveePentes {
  Arrivee arrivee;
  std::array<double, kParametresRoute> latitude{};
  std::array<double, kParametresRoute> longitude{};
};

/// As `SuitTroncons`, with the slopes, in closed form.
ArriveePentes SuitAvecPentes(const std::vector<Troncon> &troncons, const Courant &courant, const LieuNavire &depart,
                             const EcartRoute &ecart);

} // namespace velmaris

#pragma once

#include "complements/ciel/Instants.hpp"

#include <array>
#include <cstddef>
#include <vector>

namespace velmaris {

/// A ship's place, on the sphere whose minute of arc is a mile.
struct LieuNavire {
  double latitude = 0;  ///< degrees, north positive
  double longitude = 0; ///< degrees, east positive, in [-180, 180)
};

/// One leg: what is steered and logged from a time on.
struct Jambe {
  InstantUTC depuis;
  double cap = 0;     ///< degrees, true
  double vitesse = 0; ///< knots, through the water
};

/// A current, one over the whole run.
struct Courant {
  double direction = 0; ///< degrees, true, that it sets to
  double vitesse = 0;   ///< knots
};

/// How the ship goes. Before the first leg the first holds, after the last the last; without a leg the ship drifts.
struct RouteNavire {
  std::vector<Jambe> jambes; ///< in any order
  Courant courant;
};

/// What the run may be off by: one constant each over the whole run.
struct EcartRoute {
  double cap = 0;     ///< degrees, added to every course
  double vitesse = 0; ///< part of the speed, added: 0.05 for a log that is 5 % slow
  double nord = 0;    ///< knots, added to the current
  double est = 0;     ///< knots, added to the current
};

/// A stretch of the way between two times, in the order in which it is gone.
struct Troncon {
  double heures = 0;  ///< negative when it is gone backward
  double cap = 0;     ///< degrees, true
  double vitesse = 0; ///< knots, through the water
};

/// The stretches from one time to another, one for each leg between them.
std::vector<Troncon> TronconsEntre(const RouteNavire &route, const InstantUTC &de, const InstantUTC &a);

/// Where a way ends.
struct Arrivee {
  LieuNavire lieu;
  bool auPole = false; ///< the way leads over a pole: it is held at its edge, where longitudes mean nothing any more
};

/// The latitude that no way passes, degrees: a rhumb line winds round the pole for ever.
inline constexpr double kLatitudeMax = 89.99;

/// Moves a ship along stretches. The result of course, speed and current is a rhumb line on each.
/// @param ecart  by how much the run is off
/// Source: meridional parts of the sphere; along a parallel, and near it, their mean rate.
Arrivee SuitTroncons(const std::vector<Troncon> &troncons, const Courant &courant, const LieuNavire &depart,
                     const EcartRoute &ecart = {});

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

/// Moves a ship along its track from one time to another; backward it goes the same track.
Arrivee Deplace(const RouteNavire &route, const LieuNavire &depart, const InstantUTC &de, const InstantUTC &a);

} // namespace velmaris

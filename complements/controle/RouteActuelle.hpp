#pragma once

#include "complements/controle/ViseeTypee.hpp"

namespace velmaris {

/// A sight by the sky of today, with all that the check compares.
struct RouteActuelle {
  CielDuMoment ciel;
  PlaceGeocentrique place;
  PlaceTopocentrique vue; ///< from the estimated position
  EtapesHauteur etapes;
  double intercept = 0; ///< miles
};

/// Reduces a sight.
/// @throws Refus of its time, its body or its place; LieuImpossible where the figures leave all bounds
RouteActuelle SuitRoute(const ViseeTypee &visee, double dut1);

/// The intercept of a sight whose body's place is known, miles.
/// @throws Refus LieuImpossible
double InterceptActuel(const ViseeTypee &visee, const PlaceGeocentrique &place);

} // namespace velmaris

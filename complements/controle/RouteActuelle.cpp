#include "complements/controle/RouteActuelle.hpp"

#include "complements/ciel/Refus.hpp"

#include <cmath>

namespace velmaris {

RouteActuelle SuitRoute(const ViseeTypee &visee, double dut1) {
  RouteActuelle route;
  ExigePlace(visee.astre);
  route.ciel = PrepareCiel(MomentDe(visee.date, dut1));
  route.place = PlaceDe(route.ciel, visee.astre);
  route.vue = VueDe(route.place, visee.station);
  route.etapes = CorrigeLecture(visee.lecture, route.place, visee.station);
  route.intercept = (route.etapes.observee - route.vue.hauteurCentre) * 60;
  if (!std::isfinite(route.intercept)) {
    throw Refus(RaisonRefus::LieuImpossible);
  }
  return route;
}

double InterceptActuel(const ViseeTypee &visee, const PlaceGeocentrique &place) {
  const double observee = CorrigeLecture(visee.lecture, place, visee.station).observee;
  const double intercept = (observee - VueDe(place, visee.station).hauteurCentre) * 60;
  if (!std::isfinite(intercept)) {
    throw Refus(RaisonRefus::LieuImpossible);
  }
  return intercept;
}

} // namespace velmaris

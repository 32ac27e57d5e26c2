#include "complements/prevision/Compas.hpp"

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Traversees.hpp"

#include <cmath>

namespace velmaris {

AmplitudesDuJour AmplitudesSoleil(const CielDuJour &ciel, const Journee &journee, const NavirePrevu &navire,
                                  double pression, double temperature) {
  constexpr double kMinutes = 60;
  const auto vue = [&](double secondes) {
    const InstantUTC utc = PlusTard(journee.debut, secondes);
    return VueDe(PlaceDuJour(ciel, 0, SitueInstant(ciel, utc)), StationDuNavire(navire, utc));
  };
  const auto hauteur = [&](double secondes) { return vue(secondes).hauteur; };
  const double duree = SecondesEntre(journee.debut, journee.fin);
  AmplitudesDuJour jour;
  for (const Traversee &t : TraverseesDe(hauteur, {0, duree})) {
    const PlaceTopocentrique la = vue(t.t);
    const InstantUTC utc = PlusTard(journee.debut, t.t);
    AmplitudeSoleil a{{utc, LieuDuNavire(navire, utc), la.hauteur, la.azimut}, t.monte, AmplitudeDe(la.azimut)};
    const double bord = la.hauteur - la.demiDiametre / kMinutes;
    a.bordInferieur = ApparenteDe(bord, pression, temperature) * kMinutes + Depression(navire.hauteurOeil);
    jour.amplitudes.push_back(a);
  }
  if (jour.amplitudes.empty()) {
    jour.absence = hauteur(duree / 2) >= 0 ? RaisonAbsence::ToujoursAuDessus : RaisonAbsence::ToujoursAuDessous;
  }
  return jour;
}

double AmplitudeDe(double azimut) {
  const double a = AngleUnTour(azimut);
  return a < 180 ? 90 - a : a - 270;
}

EcartCompas EcartDuCompas(double azimut, double compas, double declinaison) {
  return {LongitudeUnTour(azimut - compas), LongitudeUnTour(azimut - compas - declinaison)};
}

double AzimutVrai(double compas, double declinaison, double deviation) {
  return AngleUnTour(compas + declinaison + deviation);
}

} // namespace velmaris

#include "lines/Estime.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kHeuresParJour = 24;
constexpr double kMinutesParJour = 1440;

/// The interval between two hours: the date value of its whole minutes, without what their difference as fractions of
/// a day would lose.
/// @return days; nothing when one of them is no time of day
std::optional<double> Intervalle(const RouteEstimee &route) {
  double t0 = 0;
  double t1 = 0;
  if (!Passe([&] { t0 = LitHeure(route.HeureDebut); }) || !Passe([&] { t1 = LitHeure(route.HeureFin); })) {
    return std::nullopt;
  }
  if (t0 > t1) {
    t1 += 1;
  }
  return std::round((t1 - t0) * kMinutesParJour) / kMinutesParJour;
}

/// Degrees and minutes of a caption.
std::string DegresEtMinutes(float valeur, const char *masque) {
  return Format(Fix(std::abs(valeur)), masque) + "." + Format(std::abs(valeur - Fix(valeur)) * 60, "00");
}

} // namespace

std::optional<PointEstime> EstimePoint(const RouteEstimee &route, const Observation &depart) {
  const std::optional<double> duree = Intervalle(route);
  if ((route.distance.empty() && route.vitesse.empty()) || route.route.empty() || !duree) {
    return std::nullopt;
  }
  PointEstime p;
  p.Duree = *duree;
  if (p.Duree != 0 && route.vitesseDonnee) {
    p.Dist = Val(route.vitesse) * p.Duree * kHeuresParJour;
    p.distance = Format(p.Dist, "#0");
  } else if (p.Duree != 0) {
    p.Dist = Val(route.distance);
    p.vitesse = Format(p.Dist / (p.Duree * kHeuresParJour), "#0");
  }
  const double R = Val(route.route) * kPiCourt / 180.0;
  float La = Simple((Val(depart.latitudeDegres) * 60 + Val(depart.latitudeMinutes)) / 60);
  if (depart.sud) {
    La = -La;
  }
  double Lo = (Val(depart.longitudeDegres) * 60 + Val(depart.longitudeMinutes)) / 60;
  if (depart.est) {
    Lo = -Lo;
  }
  const double dLat = std::cos(R) * p.Dist / 60;
  const double dLon = Divise(std::sin(R) * p.Dist, std::cos(La * kRadCourt)) / 60;
  p.LatEstimeTransport = Simple(La + dLat);
  p.LonEstimeTransport = Simple(Lo - dLon);
  return p;
}

std::string LegendeLatitude(float latitude) { return (latitude > 0 ? "N" : "S") + DegresEtMinutes(latitude, "00"); }

std::string LegendeLongitude(float longitude) {
  return (longitude < 0 ? "E" : "W") + DegresEtMinutes(longitude, "000");
}

} // namespace velmaris

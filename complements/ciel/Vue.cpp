#include "complements/ciel/Vue.hpp"

#include "complements/ciel/Refus.hpp"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kRotation = 7.292115E-5; ///< the Earth's turning, radians a second
constexpr double kHauteurMax = 1E6;       ///< metres: what is higher isn't on the Earth

/// A body's direction in the rotating frame.
Vecteur3 DirectionTerrestre(const PlaceGeocentrique &place) {
  Vecteur3 direction{};
  eraS2c(-place.gha * ERFA_DD2R, place.declinaison * ERFA_DD2R, direction.data());
  return direction;
}

} // namespace

Repere RepereDe(const Station &station) {
  const bool possible = std::fabs(station.latitude) <= 90 && std::isfinite(station.longitude) &&
                        std::fabs(station.hauteur) <= kHauteurMax;
  if (!possible) {
    throw Refus(RaisonRefus::LieuImpossible);
  }
  const double longitude = station.longitude * ERFA_DD2R;
  const double latitude = station.latitude * ERFA_DD2R;
  Repere repere;
  Vecteur3 metres{};
  eraGd2gc(ERFA_WGS84, longitude, latitude, station.hauteur, metres.data());
  repere.station = Fois(1 / ERFA_DAU, metres);
  eraS2c(longitude, latitude, repere.zenith.data());
  repere.est = {-std::sin(longitude), std::cos(longitude), 0};
  repere.nord = {-std::sin(latitude) * std::cos(longitude), -std::sin(latitude) * std::sin(longitude),
                 std::cos(latitude)};
  repere.vitesse = {-kRotation / ERFA_CMPS * metres[1], kRotation / ERFA_CMPS * metres[0], 0};
  return repere;
}

HauteurAzimut SurHorizon(const Repere &repere, const Vecteur3 &direction) {
  const double est = Scalaire(direction, repere.est);
  const double nord = Scalaire(direction, repere.nord);
  const double haut = Scalaire(direction, repere.zenith);
  return {std::atan2(haut, std::hypot(est, nord)) * ERFA_DR2D, eraAnp(std::atan2(est, nord)) * ERFA_DR2D};
}

DuCentre VersCentre(const Repere &repere, const HauteurAzimut &vu, double distance) {
  const double h = vu.hauteur * ERFA_DD2R;
  const double az = vu.azimut * ERFA_DD2R;
  Vecteur3 direction = Fois(std::sin(h), repere.zenith);
  direction = Ajoute(direction, std::cos(h) * std::sin(az), repere.est);
  direction = Ajoute(direction, std::cos(h) * std::cos(az), repere.nord);
  direction = Unitaire(Ajoute(direction, -1, repere.vitesse));
  if (distance <= 0) {
    return {SurHorizon(repere, direction).hauteur, 0};
  }
  // Along the line of sight to where it is as far from the Earth's centre as the body.
  const double projete = Scalaire(repere.station, direction);
  const double reste = distance * distance - Scalaire(repere.station, repere.station) + projete * projete;
  const double longueur = std::sqrt(std::max(reste, 0.0)) - projete;
  return {SurHorizon(repere, Ajoute(repere.station, longueur, direction)).hauteur, longueur};
}

PlaceTopocentrique VueDe(const PlaceGeocentrique &place, const Station &station) {
  return VueDuRepere(place, RepereDe(station));
}

PlaceTopocentrique VueDuRepere(const PlaceGeocentrique &place, const Repere &repere) {
  const Vecteur3 duCentre = DirectionTerrestre(place);
  const HauteurAzimut centre = SurHorizon(repere, duCentre);
  PlaceTopocentrique vue;
  vue.hauteurCentre = centre.hauteur;
  vue.azimutCentre = centre.azimut;
  Vecteur3 direction = duCentre;
  if (place.parallaxe > 0) {
    const Vecteur3 duLieu = Ajoute(Fois(place.distance, duCentre), -1, repere.station);
    vue.distance = Longueur(duLieu);
    direction = Unitaire(duLieu);
    const double sinus = std::sin(place.demiDiametre * ERFA_DD2R / 60) * place.distance / vue.distance;
    vue.demiDiametre = std::asin(std::min(sinus, 1.0)) * ERFA_DR2D * 60;
  } else {
    vue.distance = place.distance;
  }
  const HauteurAzimut vu = SurHorizon(repere, Unitaire(Ajoute(direction, 1, repere.vitesse)));
  vue.hauteur = vu.hauteur;
  vue.azimut = vu.azimut;
  return vue;
}

} // namespace velmaris

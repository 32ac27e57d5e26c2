#pragma once

#include "complements/ciel/Vecteurs.hpp"
#include "complements/point/Route.hpp"

#include <cmath>
#include <numbers>

/// Places on the sphere as directions, and back.
namespace velmaris {

inline constexpr double kRadian = std::numbers::pi / 180; ///< in a degree

/// A longitude of any turn, degrees in [-180, 180).
inline double LongitudeUnTour(double degres) {
  const double reste = degres - 360 * std::floor((degres + 180) / 360);
  return reste >= 180 ? reste - 360 : reste;
}

/// An angle of any turn, degrees in [0, 360).
inline double AngleUnTour(double degres) {
  const double reste = degres - 360 * std::floor(degres / 360);
  return reste >= 360 ? 0 : reste;
}

/// The direction of a place from the Earth's centre, x to Greenwich, z to the north pole.
inline Vecteur3 DirectionDe(const LieuNavire &lieu) {
  const double c = std::cos(lieu.latitude * kRadian);
  return {c * std::cos(lieu.longitude * kRadian), c * std::sin(lieu.longitude * kRadian),
          std::sin(lieu.latitude * kRadian)};
}

/// The place that a vector other than 0 points to.
inline LieuNavire LieuDe(const Vecteur3 &v) {
  return {std::atan2(v[2], std::hypot(v[0], v[1])) / kRadian, LongitudeUnTour(std::atan2(v[1], v[0]) / kRadian)};
}

inline Vecteur3 ProduitVectoriel(const Vecteur3 &a, const Vecteur3 &b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// The place at a distance along a great circle.
/// @param azimut    degrees, from north by east
/// @param distance  degrees
inline LieuNavire GrandCercle(const LieuNavire &depart, double azimut, double distance) {
  const double lat = depart.latitude * kRadian;
  const double lon = depart.longitude * kRadian;
  const Vecteur3 nord{-std::sin(lat) * std::cos(lon), -std::sin(lat) * std::sin(lon), std::cos(lat)};
  const Vecteur3 est{-std::sin(lon), std::cos(lon), 0};
  const double a = azimut * kRadian;
  const Vecteur3 vers = Ajoute(Fois(std::cos(a), nord), std::sin(a), est);
  return LieuDe(Ajoute(Fois(std::cos(distance * kRadian), DirectionDe(depart)), std::sin(distance * kRadian), vers));
}

/// Angle between two places, degrees, exact when small too.
inline double EcartLieux(const LieuNavire &a, const LieuNavire &b) {
  const Vecteur3 u = DirectionDe(a);
  const Vecteur3 v = DirectionDe(b);
  return std::atan2(Longueur(ProduitVectoriel(u, v)), Scalaire(u, v)) / kRadian;
}

} // namespace velmaris

#include "complements/lunaire/Distance.hpp"

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Vue.hpp"
#include "complements/point/Sphere.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;

/// A direction over the horizon: east, north, up.
Vecteur3 Direction(double hauteur, double azimut) {
  const double h = hauteur * kRadian;
  const double az = azimut * kRadian;
  return {std::cos(h) * std::sin(az), std::cos(h) * std::cos(az), std::sin(h)};
}

/// Angle between directions, degrees, exact when small too.
double Angle(const Vecteur3 &a, const Vecteur3 &b) {
  return std::atan2(Longueur(ProduitVectoriel(a, b)), Scalaire(a, b)) / kRadian;
}

/// A direction as the air bends it: raised in its own vertical.
Vecteur3 Pliee(const Vecteur3 &direction, const AirMesure &air) {
  const double plat = std::hypot(direction[0], direction[1]);
  if (plat == 0) {
    return direction;
  }
  const double hauteur = std::atan2(direction[2], plat) / kRadian;
  const double apparente = ApparenteDe(hauteur, air.pression, air.temperature) * kRadian;
  const double part = std::cos(apparente) / plat;
  return {direction[0] * part, direction[1] * part, std::sin(apparente)};
}

/// A disk without air and the point of its limb that is measured.
struct Disque {
  Vecteur3 centre{};
  Vecteur3 vers{};    ///< at a right angle to the centre: to the other body, or away from it
  Vecteur3 travers{}; ///< at right angles to both
  double rayon = 0;   ///< radians; 0 for a point
  double angle = 0;   ///< of the measured point, radians from `vers`
};

Disque DisqueDe(const PlaceTopocentrique &vue, const Vecteur3 &autre, BordDistance bord) {
  Disque d;
  d.centre = Direction(vue.hauteur, vue.azimut);
  const Vecteur3 perpendiculaire = ProduitVectoriel(d.centre, autre);
  const double sinus = Longueur(perpendiculaire);
  if (bord == BordDistance::Centre || sinus == 0) {
    return d;
  }
  d.rayon = vue.demiDiametre / kMinutes * kRadian;
  d.travers = Fois(1 / sinus, perpendiculaire);
  d.vers = Fois(bord == BordDistance::Proche ? 1 : -1, ProduitVectoriel(d.travers, d.centre));
  return d;
}

/// The limb's point at an angle, in air.
Vecteur3 PointDuBord(const Disque &d, double angle, const AirMesure &air) {
  if (d.rayon == 0) {
    return Pliee(d.centre, air);
  }
  const double r = std::sin(d.rayon);
  const Vecteur3 plan = Ajoute(Fois(std::cos(angle), d.vers), std::sin(angle), d.travers);
  return Pliee(Ajoute(Fois(std::cos(d.rayon), d.centre), r, plan), air);
}

/// Brings the measured point to where the distance to the other one is greatest or least, by a parabola.
void Touche(Disque &d, const Vecteur3 &autre, const AirMesure &air) {
  constexpr double kPas = 0.05; ///< radians
  constexpr double kAngleMax = 1;
  if (d.rayon == 0) {
    return;
  }
  const double avant = Angle(PointDuBord(d, d.angle - kPas, air), autre);
  const double milieu = Angle(PointDuBord(d, d.angle, air), autre);
  const double apres = Angle(PointDuBord(d, d.angle + kPas, air), autre);
  const double courbure = avant - 2 * milieu + apres;
  const double pas = courbure == 0 ? 0 : -kPas / 2 * (apres - avant) / courbure;
  d.angle = std::fabs(d.angle + pas) < kAngleMax ? d.angle + pas : d.angle;
}

} // namespace

DistanceVue VoitDistance(const PlaceGeocentrique &lune, BordDistance bordLune, const PlaceGeocentrique &astre,
                         BordDistance bordAstre, const Station &station, const AirMesure &air) {
  constexpr int kTours = 3;
  const PlaceTopocentrique vueLune = VueDe(lune, station);
  const PlaceTopocentrique vueAstre = VueDe(astre, station);
  DistanceVue d;
  d.hauteurLune = vueLune.hauteur;
  d.hauteurAstre = vueAstre.hauteur;
  d.azimutLune = vueLune.azimut;
  d.azimutAstre = vueAstre.azimut;
  d.demiDiametreLune = vueLune.demiDiametre;
  d.geocentrique = EcartLieux({lune.declinaison, -lune.gha}, {astre.declinaison, -astre.gha});
  const Vecteur3 versLune = Direction(vueLune.hauteur, vueLune.azimut);
  const Vecteur3 versAstre = Direction(vueAstre.hauteur, vueAstre.azimut);
  d.sansAir = Angle(versLune, versAstre);
  Disque disqueLune = DisqueDe(vueLune, versAstre, bordLune);
  Disque disqueAstre = DisqueDe(vueAstre, versLune, bordAstre);
  for (int tour = 0; tour < kTours; ++tour) {
    Touche(disqueLune, PointDuBord(disqueAstre, disqueAstre.angle, air), air);
    Touche(disqueAstre, PointDuBord(disqueLune, disqueLune.angle, air), air);
  }
  d.distance = Angle(PointDuBord(disqueLune, disqueLune.angle, air), PointDuBord(disqueAstre, disqueAstre.angle, air));
  return d;
}

} // namespace velmaris

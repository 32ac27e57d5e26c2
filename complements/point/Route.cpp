#include "complements/point/Route.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kSecondesParHeure = 3600;
constexpr double kMinutes = 60; ///< of arc in a degree, miles in a degree

/// Mean secant of the latitudes between two, which a rhumb line's longitude grows by, and its slopes by either end.
struct SecanteMoyenne {
  double valeur;
  double parDebut; ///< a degree
  double parFin;   ///< a degree
};

SecanteMoyenne MoyenneSecante(double debut, double fin) {
  constexpr double kProches = 1E-4; ///< radians: nearer than that, differences lose digits
  const double a = debut * kRadian;
  const double b = fin * kRadian;
  const double ecart = b - a;
  if (std::fabs(ecart) < kProches) {
    const double milieu = (a + b) / 2;
    const double tangente = std::tan(milieu);
    const double secante = 1 / std::cos(milieu);
    const double pente = secante * tangente / 2 * kRadian;
    return {secante * (1 + ecart * ecart / 24 * (1 + 2 * tangente * tangente)), pente, pente};
  }
  const double moyenne = (std::asinh(std::tan(b)) - std::asinh(std::tan(a))) / ecart;
  return {moyenne, (moyenne - 1 / std::cos(a)) / ecart * kRadian, (1 / std::cos(b) - moyenne) / ecart * kRadian};
}

/// A speed over the ground and its slopes by what the run is off by, knots.
struct VitesseFond {
  double nord;
  double est;
  std::array<double, kParametresRoute> parNord{};
  std::array<double, kParametresRoute> parEst{};
};

VitesseFond VitesseDe(const Troncon &troncon, const Courant &courant, const EcartRoute &ecart) {
  const double cap = (troncon.cap + ecart.cap) * kRadian;
  const double vers = courant.direction * kRadian;
  const double vitesse = troncon.vitesse * (1 + ecart.vitesse);
  VitesseFond v{vitesse * std::cos(cap) + courant.vitesse * std::cos(vers) + ecart.nord,
                vitesse * std::sin(cap) + courant.vitesse * std::sin(vers) + ecart.est};
  v.parNord[kEcartCap] = -vitesse * std::sin(cap) * kRadian;
  v.parEst[kEcartCap] = vitesse * std::cos(cap) * kRadian;
  v.parNord[kEcartVitesse] = troncon.vitesse * std::cos(cap);
  v.parEst[kEcartVitesse] = troncon.vitesse * std::sin(cap);
  v.parNord[kEcartNord] = 1;
  v.parEst[kEcartEst] = 1;
  return v;
}

void SuitTroncon(const Troncon &troncon, const Courant &courant, const EcartRoute &ecart, ArriveePentes &a) {
  const VitesseFond v = VitesseDe(troncon, courant, ecart);
  LieuNavire &lieu = a.arrivee.lieu;
  const double degres = troncon.heures / kMinutes; ///< that one knot makes
  const double voulue = lieu.latitude + v.nord * degres;
  const double fin = std::clamp(voulue, -kLatitudeMax, kLatitudeMax);
  a.arrivee.auPole = a.arrivee.auPole || fin != voulue;
  const SecanteMoyenne secante = MoyenneSecante(lieu.latitude, fin);
  for (std::size_t i = 0; i < kParametresRoute; ++i) {
    const double avant = a.latitude[i];
    a.latitude[i] += v.parNord[i] * degres;
    a.longitude[i] +=
        degres * (v.parEst[i] * secante.valeur + v.est * (secante.parDebut * avant + secante.parFin * a.latitude[i]));
  }
  lieu.latitude = fin;
  lieu.longitude += v.est * degres * secante.valeur;
}

} // namespace

std::vector<Troncon> TronconsEntre(const RouteNavire &route, const InstantUTC &de, const InstantUTC &a) {
  struct Debut {
    double heure;
    const Jambe *jambe;
  };
  std::vector<Debut> debuts;
  debuts.reserve(route.jambes.size());
  for (const Jambe &jambe : route.jambes) {
    debuts.push_back({SecondesEntre(de, jambe.depuis) / kSecondesParHeure, &jambe});
  }
  std::stable_sort(debuts.begin(), debuts.end(), [](const Debut &x, const Debut &y) { return x.heure < y.heure; });
  const double duree = SecondesEntre(de, a) / kSecondesParHeure;
  const double tot = std::min(duree, 0.0);
  const double tard = std::max(duree, 0.0);
  std::vector<Troncon> troncons;
  double depuis = tot;
  const Jambe *jambe = debuts.empty() ? nullptr : debuts.front().jambe;
  const auto ferme = [&](double jusque) {
    if (jusque > depuis) {
      troncons.push_back({jusque - depuis, jambe == nullptr ? 0 : jambe->cap, jambe == nullptr ? 0 : jambe->vitesse});
      depuis = jusque;
    }
  };
  for (const Debut &debut : debuts) {
    ferme(std::clamp(debut.heure, tot, tard));
    jambe = debut.heure < tard ? debut.jambe : jambe;
  }
  ferme(tard);
  if (duree < 0) {
    std::reverse(troncons.begin(), troncons.end());
    for (Troncon &troncon : troncons) {
      troncon.heures = -troncon.heures;
    }
  }
  return troncons;
}

ArriveePentes SuitAvecPentes(const std::vector<Troncon> &troncons, const Courant &courant, const LieuNavire &depart,
                             const EcartRoute &ecart) {
  ArriveePentes a;
  a.arrivee.lieu = depart;
  a.latitude[kLatitudeDepart] = 1;
  a.longitude[kLongitudeDepart] = 1;
  for (const Troncon &troncon : troncons) {
    SuitTroncon(troncon, courant, ecart, a);
  }
  a.arrivee.lieu.longitude = LongitudeUnTour(a.arrivee.lieu.longitude);
  return a;
}

Arrivee SuitTroncons(const std::vector<Troncon> &troncons, const Courant &courant, const LieuNavire &depart,
                     const EcartRoute &ecart) {
  return SuitAvecPentes(troncons, courant, depart, ecart).arrivee;
}

Arrivee Deplace(const RouteNavire &route, const LieuNavire &depart, const InstantUTC &de, const InstantUTC &a) {
  return SuitTroncons(TronconsEntre(route, de, a), route.courant, depart);
}

} // namespace velmaris

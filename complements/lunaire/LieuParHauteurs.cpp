#include "complements/lunaire/LieuParHauteurs.hpp"

#include "complements/point/Croisements.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// The circle of a body's height as it would be from the Earth's centre, for a start.
CercleHauteur CercleDe(const AstreVu &vu) {
  const double parallaxe = vu.place.parallaxe / 60 * std::cos(vu.hauteur * kRadian);
  return {{vu.place.declinaison, LongitudeUnTour(-vu.place.gha)}, vu.hauteur + parallaxe};
}

LieuNavire Depart(const AstreVu &a, const AstreVu &b, const LieuNavire &pres) {
  const std::optional<Croisement> croisement = CroiseCercles(CercleDe(a), CercleDe(b));
  if (!croisement) {
    return pres;
  }
  const auto &[premier, second] = croisement->lieux;
  return EcartLieux(premier, pres) <= EcartLieux(second, pres) ? premier : second;
}

} // namespace

LieuNavire LieuParHauteurs(const AstreVu &a, const AstreVu &b, const LieuNavire &pres, double hauteurOeil) {
  constexpr int kTours = 12;
  constexpr double kTenue = 1E-6;      ///< what holds a place that two parallel lines leave free
  constexpr double kAssezPres = 1E-10; ///< degrees
  constexpr double kPasMax = 3;        ///< degrees
  constexpr double kCosinusMin = 1E-3;
  LieuNavire lieu = Depart(a, b, pres);
  for (int tour = 0; tour < kTours; ++tour) {
    double nn = kTenue;
    double ne = 0;
    double ee = kTenue;
    double n = 0;
    double e = 0;
    for (const AstreVu *vu : {&a, &b}) {
      const PlaceTopocentrique vue = VueDe(vu->place, {lieu.latitude, lieu.longitude, hauteurOeil});
      const double ecart = vu->hauteur - vue.hauteur;
      const double nord = std::cos(vue.azimut * kRadian);
      const double est = std::sin(vue.azimut * kRadian);
      nn += nord * nord;
      ne += nord * est;
      ee += est * est;
      n += nord * ecart;
      e += est * ecart;
    }
    const double determinant = nn * ee - ne * ne;
    const double pasNord = std::clamp((ee * n - ne * e) / determinant, -kPasMax, kPasMax);
    const double pasEst = std::clamp((nn * e - ne * n) / determinant, -kPasMax, kPasMax);
    lieu.latitude = std::clamp(lieu.latitude + pasNord, -kLatitudeMax, kLatitudeMax);
    lieu.longitude =
        LongitudeUnTour(lieu.longitude + pasEst / std::max(std::cos(lieu.latitude * kRadian), kCosinusMin));
    if (std::hypot(pasNord, pasEst) < kAssezPres) {
      break;
    }
  }
  return lieu;
}

} // namespace velmaris

#include "complements/serie/Ajustement.hpp"

#include "complements/point/Route.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kLoin = 30; ///< degrees

/// Readings with the ship's way to each.
struct Systeme {
  const BaseLectures &base;
  const std::vector<LecturePrete> &lectures;
  std::vector<std::vector<Troncon>> routes; ///< from the reference time to each reading
  std::optional<LongitudeTenue> tenue;
};

/// The readings from a place, and the normal equations there.
struct Etat {
  LieuAjuste lieu;
  double nn = 0, ne = 0, ee = 0; ///< the normal matrix
  double n = 0, e = 0;           ///< its right side, minutes
  double khi2 = 0;               ///< with what holds the longitude
};

void AjouteLecture(const Systeme &s, std::size_t i, Etat &etat) {
  const LecturePrete &l = s.lectures[i];
  const ArriveePentes a = SuitAvecPentes(s.routes[i], s.base.route.courant, etat.lieu.lieu, {});
  const PlaceTopocentrique vue = VueDe(l.place, StationDe(s.base, a.arrivee.lieu));
  const double residu = (l.observee - vue.hauteur) * kMinutes;
  etat.lieu.azimuts.push_back(vue.azimut);
  etat.lieu.residus.push_back(residu);
  if (!l.compte) {
    return;
  }
  const double parNord = std::cos(vue.azimut * kRadian);
  const double parEst = std::sin(vue.azimut * kRadian) * std::cos(a.arrivee.lieu.latitude * kRadian);
  const double sigma = s.base.ecartType;
  const double x = (parNord * a.latitude[kLatitudeDepart] + parEst * a.longitude[kLatitudeDepart]) / sigma;
  const double y = (parNord * a.latitude[kLongitudeDepart] + parEst * a.longitude[kLongitudeDepart]) / sigma;
  const double r = residu / sigma;
  etat.lieu.ecarts.push_back(r);
  etat.lieu.pentes.push_back({x, y});
  etat.lieu.khi2 += r * r;
  etat.nn += x * x;
  etat.ne += x * y;
  etat.ee += y * y;
  etat.n += x * r;
  etat.e += y * r;
}

Etat EtatDe(const Systeme &s, const LieuNavire &lieu) {
  Etat etat;
  etat.lieu.lieu = lieu;
  for (std::size_t i = 0; i < s.lectures.size(); ++i) {
    AjouteLecture(s, i, etat);
  }
  etat.khi2 = etat.lieu.khi2;
  if (s.tenue) {
    const double poids = 1 / (s.tenue->ecartType * s.tenue->ecartType);
    const double ecart = LongitudeUnTour(s.tenue->longitude - lieu.longitude) * kMinutes;
    etat.ee += poids;
    etat.e += poids * ecart;
    etat.khi2 += poids * ecart * ecart;
  }
  return etat;
}

/// The determinant of the normal matrix; 0 where it tells no place.
double Determinant(const Etat &etat) {
  constexpr double kPlat = 1E-12; ///< part of its product
  const double produit = etat.nn * etat.ee;
  const double determinant = produit - etat.ne * etat.ne;
  return determinant > kPlat * produit ? determinant : 0;
}

LieuNavire Avance(const LieuNavire &lieu, double nord, double est) {
  constexpr double kPasMax = 5; ///< degrees
  return {std::clamp(lieu.latitude + std::clamp(nord / kMinutes, -kPasMax, kPasMax), -kLatitudeMax, kLatitudeMax),
          LongitudeUnTour(lieu.longitude + std::clamp(est / kMinutes, -kPasMax, kPasMax))};
}

bool EstLoin(const LieuNavire &a, const LieuNavire &b) {
  return !(std::fabs(a.latitude - b.latitude) < kLoin) || std::fabs(LongitudeUnTour(a.longitude - b.longitude)) > kLoin;
}

} // namespace

std::optional<LieuAjuste> AjusteLieu(const BaseLectures &base, const std::vector<LecturePrete> &lectures,
                                     const InstantUTC &reference, const LieuNavire &depart,
                                     const std::optional<LongitudeTenue> &tenue) {
  constexpr int kTours = 60;
  constexpr int kMoities = 8;
  constexpr double kAssezPres = 1E-7; ///< minutes
  Systeme s{base, lectures, {}, tenue};
  for (const LecturePrete &l : lectures) {
    s.routes.push_back(TronconsEntre(base.route, reference, l.utc));
  }
  Etat etat = EtatDe(s, depart);
  for (int tour = 0; tour < kTours; ++tour) {
    const double determinant = Determinant(etat);
    if (determinant == 0) {
      return std::nullopt;
    }
    double nord = (etat.ee * etat.n - etat.ne * etat.e) / determinant;
    double est = (etat.nn * etat.e - etat.ne * etat.n) / determinant;
    Etat suivant = EtatDe(s, Avance(etat.lieu.lieu, nord, est));
    for (int moitie = 0; moitie < kMoities && suivant.khi2 > etat.khi2; ++moitie) {
      nord /= 2;
      est /= 2;
      suivant = EtatDe(s, Avance(etat.lieu.lieu, nord, est));
    }
    if (EstLoin(suivant.lieu.lieu, depart)) {
      return std::nullopt;
    }
    const bool fini = std::hypot(nord, est) < kAssezPres || !(suivant.khi2 < etat.khi2);
    if (suivant.khi2 <= etat.khi2) {
      etat = std::move(suivant);
    }
    if (fini) {
      break;
    }
  }
  const double determinant = Determinant(etat);
  if (determinant == 0) {
    return std::nullopt;
  }
  etat.lieu.varianceNord = etat.ee / determinant;
  etat.lieu.varianceEst = etat.nn / determinant;
  etat.lieu.covariance = -etat.ne / determinant;
  return std::move(etat.lieu);
}

} // namespace velmaris

#include "complements/almanach/JourDuCiel.hpp"
#include "complements/ciel/TablesCiel.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// The 57 stars of navigation by their rows of the star table, in the order of their numbers.
constexpr std::array kEtoilesNavigation{26,  31, 132, 58,  2,   72,  1,   89,  97,  10, 121, 48, 42, 20,  21,
                                        43,  47, 136, 4,   114, 113, 39,  139, 92,  24, 119, 60, 57, 68,  3,
                                        66,  18, 138, 8,   71,  90,  34,  122, 155, 79, 25,  32, 36, 124, 135,
                                        118, 63, 77,  147, 106, 29,  107, 56,  62,  5,  65,  84};
constexpr int kPolaris = 112;

/// Apparent longitude on the ecliptic of the date, degrees. The mean obliquity is near enough for the age of a moon.
double Longitude(const CielDuMoment &ciel, GenreAstre genre) {
  constexpr double kJ2000 = 2451545.0;
  constexpr double kSiecle = 36525;
  const double siecles = (ciel.tt.jour - kJ2000 + ciel.tt.fraction) / kSiecle;
  const double e = (23.43928 - 0.01300 * siecles) * kRadian;
  const PlaceGeocentrique place = PlaceDe(ciel, {genre, 0});
  const Vecteur3 v = DirectionDe({place.declinaison, place.ascension});
  return std::atan2(v[1] * std::cos(e) + v[2] * std::sin(e), v[0]) / kRadian;
}

double Elongation(const InstantUTC &utc, double dut1) {
  const CielDuMoment ciel = PrepareCiel({TTDe(utc), UT1De(utc, dut1)});
  return LongitudeUnTour(Longitude(ciel, GenreAstre::Lune) - Longitude(ciel, GenreAstre::Soleil));
}

} // namespace

double AgeDeLaLune(const InstantUTC &utc, double dut1) {
  constexpr double kParJour = 12.190749; ///< mean growth of the elongation, degrees a day
  constexpr double kJour = 86400;
  constexpr int kTours = 6;
  const auto nouvelleLune = [&](double age) {
    for (int tour = 0; tour < kTours; ++tour) {
      age += Elongation(PlusTard(utc, -age * kJour), dut1) / kParJour;
    }
    return age;
  };
  const double age = nouvelleLune(AngleUnTour(Elongation(utc, dut1)) / kParJour);
  return age >= 0 ? age : nouvelleLune(age + 360 / kParJour);
}

std::vector<EtoileAlmanach> EtoilesDuMoment(const CielDuMoment &ciel, const Etoiles &etoiles, OrdreEtoiles ordre) {
  std::vector<EtoileAlmanach> toutes;
  const auto ajoute = [&](int rang, int numero) {
    const auto i = static_cast<std::size_t>(rang);
    const PlaceGeocentrique place = PlaceDe(ciel, {GenreAstre::Etoile, rang});
    toutes.push_back({rang, numero, std::string(etoiles.EtoileNom[i]), kEtoilesIcrs[i - 1]->magnitude,
                      AngleUnTour(-place.ascension), place.declinaison});
  };
  int numero = 0;
  for (const int rang : kEtoilesNavigation) {
    ajoute(rang, ++numero);
  }
  if (ordre == OrdreEtoiles::Nom) {
    std::sort(toutes.begin(), toutes.end(),
              [](const EtoileAlmanach &a, const EtoileAlmanach &b) { return a.nom < b.nom; });
  } else {
    std::sort(toutes.begin(), toutes.end(),
              [](const EtoileAlmanach &a, const EtoileAlmanach &b) { return a.sha < b.sha; });
  }
  ajoute(kPolaris, 0);
  return toutes;
}

} // namespace velmaris

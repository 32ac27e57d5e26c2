#include "complements/ciel/VersLecture.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;      ///< of arc in a degree
constexpr double kAssezPres = 1E-13; ///< degrees
constexpr int kTours = 60;           ///< each leaves a fifth of what was wrong at most, on the horizon

} // namespace

double ApparenteDe(double sansAir, double pression, double temperature) {
  double apparente = sansAir;
  for (int tour = 0; tour < kTours; ++tour) {
    const double suivante = sansAir + Refraction(apparente, pression, temperature) / kMinutes;
    const double pas = suivante - apparente;
    apparente = suivante;
    if (!(std::fabs(pas) > kAssezPres)) {
      break;
    }
  }
  return apparente;
}

double LecturePour(const LectureSextant &lecture, const PlaceGeocentrique &place, const Station &station,
                   double topocentrique) {
  const double facteur = lecture.horizonArtificiel ? 2 : 1;
  LectureSextant essai = lecture;
  essai.lecture = topocentrique * facteur;
  for (int tour = 0; tour < kTours; ++tour) {
    const double pas = topocentrique - CorrigeLecture(essai, place, station).topocentrique;
    essai.lecture += pas * facteur;
    if (!(std::fabs(pas) > kAssezPres)) {
      break;
    }
  }
  return essai.lecture;
}

} // namespace velmaris

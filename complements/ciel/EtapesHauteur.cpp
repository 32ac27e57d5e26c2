#include "complements/ciel/EtapesHauteur.hpp"

#include "complements/ciel/Vue.hpp"

#include <erfam.h>

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60; ///< of arc in a degree
constexpr double kPiedsParMetre = 1 / 0.3048;
constexpr double kAssezPres = 1E-13; ///< degrees
constexpr int kToursRetour = 60;     ///< of the way down: each leaves a fifth of what was wrong at most, on the horizon

/// The arc error at a reading, minutes.
double ErreurDeLArc(std::span<const ErreurArc> table, double lecture) {
  if (table.empty()) {
    return 0;
  }
  const auto apres =
      std::find_if(table.begin(), table.end(), [&](const ErreurArc &rangee) { return rangee.lecture >= lecture; });
  if (apres == table.begin()) {
    return table.front().correction;
  }
  if (apres == table.end()) {
    return table.back().correction;
  }
  const ErreurArc &avant = *(apres - 1);
  const double part = (lecture - avant.lecture) / (apres->lecture - avant.lecture);
  return avant.correction + part * (apres->correction - avant.correction);
}

double DepressionDe(const LectureSextant &lecture) {
  if (lecture.horizonArtificiel) {
    return 0;
  }
  return lecture.distanceHorizon ? DepressionCourte(lecture.hauteurOeil, *lecture.distanceHorizon)
                                 : Depression(lecture.hauteurOeil);
}

double SigneDuContact(Contact contact) {
  switch (contact) {
  case Contact::Inferieur:
    return 1;
  case Contact::Superieur:
    return -1;
  case Contact::Centre:
    break;
  }
  return 0;
}

/// From the seen height of a limb to that of the centre, from the place and from the Earth's centre. The augmented
/// semidiameter depends on the body's distance, which the height of the centre gives.
void OteLieu(Contact contact, const PlaceGeocentrique &place, const Station &station, double bord,
             EtapesHauteur &etapes) {
  constexpr int kTours = 3;
  const Repere repere = RepereDe(station);
  const double azimut = VueDe(place, station).azimut;
  const double distance = place.parallaxe > 0 ? place.distance : 0;
  const double signe = distance > 0 ? SigneDuContact(contact) : 0;
  const double sinus = std::sin(place.demiDiametre / kMinutes * ERFA_DD2R);
  etapes.topocentrique = bord;
  DuCentre centre = VersCentre(repere, {bord, azimut}, distance);
  for (int tour = 0; tour < kTours && signe != 0; ++tour) {
    etapes.demiDiametre = signe * std::asin(std::min(sinus * distance / centre.distance, 1.0)) * ERFA_DR2D * kMinutes;
    etapes.topocentrique = bord + etapes.demiDiametre / kMinutes;
    centre = VersCentre(repere, {etapes.topocentrique, azimut}, distance);
  }
  etapes.observee = centre.hauteur;
  etapes.parallaxe = (etapes.observee - etapes.topocentrique) * kMinutes;
}

} // namespace

double Depression(double hauteurOeil) { return 1.76 * std::sqrt(std::max(hauteurOeil, 0.0)); }

double DepressionCourte(double hauteurOeil, double distance) {
  const double pieds = std::max(hauteurOeil, 0.0) * kPiedsParMetre;
  if (!(distance > 0) || distance >= 1.17 * std::sqrt(pieds)) {
    return Depression(hauteurOeil);
  }
  return std::atan(pieds / (6076.1 * distance) + distance / 8268) * ERFA_DR2D * kMinutes;
}

double Refraction(double apparente, double pression, double temperature) {
  const double h = std::max(apparente, -1.0);
  const double normale = 0.0167 / std::tan((h + 7.32 / (h + 4.32)) * ERFA_DD2R);
  const double facteur = 0.28 * pression / (std::max(temperature, -100.0) + 273);
  return std::max(normale * facteur * kMinutes, 0.0);
}

EtapesHauteur CorrigeLecture(const LectureSextant &lecture, const PlaceGeocentrique &place, const Station &station) {
  EtapesHauteur etapes;
  etapes.lecture = lecture.lecture;
  etapes.erreurArc = ErreurDeLArc(lecture.erreursArc, lecture.lecture);
  etapes.collimation = lecture.collimation;
  etapes.corrigee = lecture.lecture + (etapes.erreurArc + etapes.collimation) / kMinutes;
  if (lecture.horizonArtificiel) {
    etapes.corrigee /= 2;
  }
  etapes.depression = DepressionDe(lecture);
  etapes.apparente = etapes.corrigee - etapes.depression / kMinutes;
  etapes.refraction = Refraction(etapes.apparente, lecture.pression, lecture.temperature);
  OteLieu(lecture.contact, place, station, etapes.apparente - etapes.refraction / kMinutes, etapes);
  return etapes;
}

double ApparenteDe(double sansAir, double pression, double temperature) {
  double apparente = sansAir;
  for (int tour = 0; tour < kToursRetour; ++tour) {
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
  for (int tour = 0; tour < kToursRetour; ++tour) {
    const double pas = topocentrique - CorrigeLecture(essai, place, station).topocentrique;
    essai.lecture += pas * facteur;
    if (!(std::fabs(pas) > kAssezPres)) {
      break;
    }
  }
  return essai.lecture;
}

} // namespace velmaris

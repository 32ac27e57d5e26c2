#include "complements/controle/ViseeTypee.hpp"

#include "complements/ciel/Refus.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr double kEntierMax = 1E6; ///< no field of a date or a time goes further

bool EstLointain(const Observation &o) { return o.corps == Corps::Planetes || o.corps == Corps::Etoiles; }

int Entier(const std::string &champ, RaisonRefus raison) {
  const double valeur = Val(champ);
  if (std::fabs(valeur) > kEntierMax || valeur != Fix(valeur)) {
    throw Refus(raison);
  }
  return static_cast<int>(valeur);
}

/// A year of two digits as the calendar of a star's or a planet's sight has it.
int AnneeEntiere(int annee) {
  constexpr int kSiecle = 100;
  constexpr int kDernieresDeDeuxMille = 29;
  if (annee < 0 || annee >= kSiecle) {
    return annee;
  }
  return annee + (annee <= kDernieresDeDeuxMille ? 2000 : 1900);
}

DateCivile LitDateCivile(const Observation &o) {
  DateCivile date;
  date.annee = Entier(o.annee, RaisonRefus::AnneeHorsLimites);
  if (EstLointain(o)) {
    date.annee = AnneeEntiere(date.annee);
  }
  date.mois = Entier(o.mois, RaisonRefus::DateImpossible);
  date.jour = Entier(o.jour, RaisonRefus::DateImpossible);
  date.heure = Entier(o.heure, RaisonRefus::HeureImpossible);
  date.minute = Entier(o.minute, RaisonRefus::HeureImpossible);
  date.seconde = Val(o.seconde);
  if (std::fabs(date.seconde) > kEntierMax) {
    throw Refus(RaisonRefus::HeureImpossible);
  }
  return date;
}

Astre LitAstre(const Observation &o) {
  constexpr GenreAstre kPlanetes[] = {GenreAstre::Venus, GenreAstre::Mars, GenreAstre::Jupiter, GenreAstre::Saturne};
  switch (o.corps) {
  case Corps::Lune:
    return {GenreAstre::Lune, 0};
  case Corps::Planetes:
    if (o.planete < 0 || o.planete >= kNombrePlanetes) {
      throw Refus(RaisonRefus::RangInconnu);
    }
    return {kPlanetes[o.planete], 0};
  case Corps::Etoiles:
    return {GenreAstre::Etoile, o.etoile + 1};
  case Corps::Soleil:
  case Corps::Aucun:
  default:
    return {GenreAstre::Soleil, 0};
  }
}

/// A number with a decimal comma; 0 for what is none.
double LitVirguleOuZero(const std::string &champ) {
  double valeur = 0;
  Passe([&] { valeur = LitVirgule(champ); });
  return valeur;
}

double LitAngle(const Observation &o) {
  const double fraction = Val(o.lectureFraction);
  const double minutes = Val(o.lectureMinutes) + (o.fraction == Fraction::Secondes ? fraction / 60 : fraction / 100);
  return Val(o.lectureDegres) + minutes / 60;
}

Contact LitContact(const Observation &o) {
  if (EstLointain(o) || o.bord == Bord::Centre || o.bord == Bord::Aucun) {
    return Contact::Centre;
  }
  return o.bord == Bord::Superieur ? Contact::Superieur : Contact::Inferieur;
}

} // namespace

ViseeTypee LitVisee(const Observation &observation, const ReglagesControle &reglages) {
  ViseeTypee visee;
  visee.astre = LitAstre(observation);
  visee.date = LitDateCivile(observation);
  LectureSextant &lecture = visee.lecture;
  lecture.lecture = LitAngle(observation);
  lecture.collimation = LitVirguleOuZero(observation.collimation);
  lecture.hauteurOeil = std::max(LitVirguleOuZero(observation.hauteurOeil), 0.0);
  lecture.distanceHorizon = reglages.distanceHorizon;
  lecture.horizonArtificiel = observation.horizon != Horizon::Naturel;
  lecture.contact = LitContact(observation);
  lecture.pression = reglages.pression;
  lecture.temperature = reglages.temperature;
  lecture.erreursArc = reglages.erreursArc;
  visee.station = {LatitudeEstimee(observation), -LongitudeEstimee(observation), lecture.hauteurOeil};
  return visee;
}

} // namespace velmaris

#include "complements/almanach/JourDuCiel.hpp"

#include "complements/point/Sphere.hpp"
#include "complements/prevision/Magnitudes.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kBaseLune = 14 * 60 + 19.0; ///< minutes an hour: what the Moon's increments go by
constexpr double kBaseSoleil = 15 * 60;
constexpr std::array kErrants{GenreAstre::Soleil, GenreAstre::Lune,    GenreAstre::Venus,
                              GenreAstre::Mars,   GenreAstre::Jupiter, GenreAstre::Saturne};
static_assert(kErrants.size() == kErrantsAlmanach);

/// The bodies of an hour, as pages need them, with what the day's figures need.
struct HeureDuCiel {
  double belier = 0;
  double ut1 = 0; ///< hours of the day
  std::array<PlaceGeocentrique, kErrantsAlmanach> places{};
};

HeureDuCiel HeureDe(const CielDuMoment &ciel) {
  constexpr double kHeures = 24;
  HeureDuCiel heure{ciel.tempsSideral};
  // A Julian day begins at noon.
  heure.ut1 = (std::remainder(ciel.ut1.jour - 0.5, 1.0) + ciel.ut1.fraction) * kHeures;
  for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
    heure.places[i] = PlaceDe(ciel, AstreAlmanachDe(i));
  }
  return heure;
}

/// How far an angle goes in an hour, degrees.
double Chemin(double de, double a) { return AngleUnTour(a - de); }

/// When an hour angle goes through a turn's end, hours.
/// @param angles  at the day's 25 hours, degrees
/// @param angleA  the angle at any time of the day, degrees
template <class Angle> std::vector<double> PassagesDe(const std::array<double, 25> &angles, Angle &&angleA) {
  std::vector<double> heures;
  for (std::size_t h = 0; h + 1 < angles.size(); ++h) {
    const double chemin = Chemin(angles[h], angles[h + 1]);
    const double reste = Chemin(angles[h], 360);
    if (reste >= chemin) {
      continue;
    }
    double t = static_cast<double>(h) + reste / chemin;
    t -= LongitudeUnTour(angleA(t)) / chemin;
    if (t >= 0 && t < 24) {
      heures.push_back(t);
    }
  }
  return heures;
}

InstantUTC A(const DateCivile &date, double heures) {
  constexpr double kSecondes = 3600;
  return PlusTard(UTCDe(date), heures * kSecondes);
}

CielDuMoment CielDe(const InstantUTC &utc, double dut1) { return PrepareCiel({TTDe(utc), UT1De(utc, dut1)}); }

void PosePassages(JourAlmanach &jour, const std::array<HeureDuCiel, 25> &heures, double dut1) {
  const auto passages = [&](double tour, auto &&angle) {
    std::array<double, 25> angles{};
    std::transform(heures.begin(), heures.end(), angles.begin(), [&](const HeureDuCiel &h) { return angle(h) + tour; });
    return PassagesDe(angles, [&](double t) { return angle(HeureDe(CielDe(A(jour.date, t), dut1))) + tour; });
  };
  for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
    jour.astres[i].meridien = passages(0, [i](const HeureDuCiel &h) { return h.places[i].gha; });
  }
  jour.luneInferieur = passages(180, [](const HeureDuCiel &h) { return h.places[kLuneAlmanach].gha; });
  jour.belier = passages(0, [](const HeureDuCiel &h) { return h.belier; });
}

/// What a day tells once of each body.
void PoseAstres(JourAlmanach &jour, const std::array<HeureDuCiel, 25> &heures, const CielDuMoment &midi) {
  constexpr double kHeures = 24;
  const HeureDuCiel &milieu = heures[12];
  const PlaceGeocentrique &soleil = milieu.places[kSoleilAlmanach];
  for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
    AstreAlmanach &astre = jour.astres[i];
    const PlaceGeocentrique &place = milieu.places[i];
    astre.hp = place.parallaxe;
    astre.demiDiametre = place.demiDiametre;
    const GenreAstre genre = kErrants[i];
    const double ouverture = genre == GenreAstre::Saturne ? OuvertureAnneaux(midi, place, soleil) : 0;
    astre.magnitude = MagnitudeDe(genre, EclairementDe(place, soleil), ouverture);
    if (i == kLuneAlmanach) {
      jour.partLune = PartEclairee(EclairementDe(place, soleil));
      continue;
    }
    double chemin = 0;
    for (std::size_t h = 0; h + 1 < heures.size(); ++h) {
      chemin += Chemin(heures[h].places[i].gha, heures[h + 1].places[i].gha);
    }
    astre.v = chemin * kMinutes / kHeures - kBaseSoleil;
    astre.d = (heures.back().places[i].declinaison - heures.front().places[i].declinaison) * kMinutes / kHeures;
  }
}

/// True less mean Sun, seconds.
double Equation(const HeureDuCiel &heure) {
  constexpr double kDegresParHeure = 15;
  constexpr double kSecondesParDegre = 240;
  const double moyen = (heure.ut1 - 12) * kDegresParHeure;
  return LongitudeUnTour(heure.places[kSoleilAlmanach].gha - moyen) * kSecondesParDegre;
}

} // namespace

Astre AstreAlmanachDe(std::size_t rang) { return {kErrants.at(rang), 0}; }

DateCivile JourPlusTard(const DateCivile &date, int jours) {
  const InstantUTC debut = UTCDe({date.annee, date.mois, date.jour});
  const DateCivile plusTard = CivileDe({debut.jour + jours, 0});
  return {plusTard.annee, plusTard.mois, plusTard.jour};
}

CielDuMoment CielDeLHeure(const DateCivile &date, int heure, double dut1) {
  const DateCivile jour = heure < 24 ? date : JourPlusTard(date, 1);
  return PrepareCiel(MomentDe({jour.annee, jour.mois, jour.jour, heure % 24}, dut1));
}

JourAlmanach JourSansHorizons(const DateCivile &date, double dut1) {
  JourAlmanach jour;
  jour.date = date;
  std::array<HeureDuCiel, 25> heures;
  CielDuMoment midi;
  for (std::size_t h = 0; h < heures.size(); ++h) {
    const CielDuMoment ciel = CielDeLHeure(date, static_cast<int>(h), dut1);
    heures[h] = HeureDe(ciel);
    if (h == 12) {
      midi = ciel;
    }
  }
  for (std::size_t h = 0; h < jour.heures.size(); ++h) {
    HeureAlmanach &heure = jour.heures[h];
    heure.belier = heures[h].belier;
    for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
      heure.astres[i] = {heures[h].places[i].gha, heures[h].places[i].declinaison};
    }
    const PlaceGeocentrique &lune = heures[h].places[kLuneAlmanach];
    const PlaceGeocentrique &apres = heures[h + 1].places[kLuneAlmanach];
    heure.vLune = Chemin(lune.gha, apres.gha) * kMinutes - kBaseLune;
    heure.dLune = (apres.declinaison - lune.declinaison) * kMinutes;
    heure.hpLune = lune.parallaxe;
  }
  PosePassages(jour, heures, dut1);
  PoseAstres(jour, heures, midi);
  jour.equation0 = Equation(heures[0]);
  jour.equation12 = Equation(heures[12]);
  jour.ageLune = AgeDeLaLune(A(date, 12), dut1);
  return jour;
}

} // namespace velmaris

#pragma once

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Places.hpp"
#include "complements/serie/Lectures.hpp"

#include <span>
#include <vector>

namespace velmaris {

/// A reading with its sky: nothing of it is worked out again.
struct LecturePrete {
  InstantUTC utc;
  PlaceGeocentrique place; ///< of the body
  double observee = 0;     ///< degrees: the centre from the place, without air
  bool compte = true;
};

/// Makes readings ready.
/// @throws Refus of time, body or place; LieuImpossible where the figures leave all bounds
std::vector<LecturePrete> PrepareLectures(const BaseLectures &base, std::span<const LectureSerie> lectures);

/// Makes sure that the estimated position is one: a track would hold any latitude at its edge.
/// @throws Refus LieuImpossible
void ExigeLieu(const BaseLectures &base);

/// The base with an assumed error that is one.
BaseLectures BaseSaine(BaseLectures base);

/// The ship's estimated place at a time.
LieuNavire LieuDeLaBase(const BaseLectures &base, const InstantUTC &utc);

/// A place of the ship as a station at the eye's height.
Station StationDe(const BaseLectures &base, const LieuNavire &lieu);

/// The body's place at a time.
/// @throws Refus of time or body
PlaceGeocentrique PlaceA(const Astre &astre, const InstantUTC &utc, double dut1);

/// An instant to the nearest second.
InstantUTC ALaSeconde(const InstantUTC &utc);

/// The mean time of readings.
/// @param compte  whether one counts; without any the result is the first reading's time
template <class Lecture, class Compte> InstantUTC MilieuDe(std::span<const Lecture> lectures, Compte &&compte) {
  double somme = 0;
  int nombre = 0;
  for (const Lecture &lecture : lectures) {
    if (compte(lecture)) {
      somme += SecondesEntre(lectures.front().utc, lecture.utc);
      ++nombre;
    }
  }
  return PlusTard(lectures.front().utc, nombre > 0 ? somme / nombre : 0);
}

} // namespace velmaris

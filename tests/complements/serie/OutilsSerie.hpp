#pragma once

#include "../point/OutilsPoint.hpp"
#include "../point/Parts.hpp"
#include "complements/serie/Serie.hpp"

#include <random>
#include <vector>

/// What the tests of runs and noons share: readings made by another road, from a ship that goes by small steps.
namespace velmaris::essais {

/// Readings as the ship's book has them.
struct Livre {
  BaseLectures base; ///< with the true position
  std::vector<LectureSerie> lectures;
};

/// The body's height without air from a ship that was at the base's position, by ERFA's vectors.
double HauteurVraie(const BaseLectures &base, const InstantUTC &utc);

/// A reading without error.
LectureSerie LectureVraie(const BaseLectures &base, const InstantUTC &utc);

/// Puts a reading off by minutes of height.
void Fausse(const BaseLectures &base, LectureSerie &lecture, double minutes);

/// A ship under way somewhere at some time from 1990 to 2034, with a sextant of some index error; no body yet.
BaseLectures BaseAuHasard(std::mt19937_64 &alea, double latitudeMax);

/// A body over the horizon of the base, at its time.
void ChoisitAstre(std::mt19937_64 &alea, BaseLectures &base, double bas, double haut);

/// A run without errors, of some readings over some minutes around the time of the base's position.
Livre SerieAuHasard(std::mt19937_64 &alea, int moins, int plus);

} // namespace velmaris::essais

#pragma once

#include "sights/Observation.hpp"

/// A whole sight by outside libraries alone: ERFA for time, stars, Sun, Moon (good for 10") and the Earth, libnova's
/// series for planets, another closed form for the refraction.
namespace velmaris::essais {

/// A body as a place sees it.
struct VueJugee {
  double hauteur = 0;      ///< degrees, of the centre, without air
  double demiDiametre = 0; ///< minutes of arc, augmented
  double gha = 0;          ///< degrees, from the Earth's centre
  double declinaison = 0;  ///< degrees, from the Earth's centre
};

/// The body of a sight from its estimated position.
VueJugee VueParJuges(const Observation &observation);

/// What the sextant of a ship at the estimated position would show, degrees.
double LectureJuste(const Observation &observation);

/// How far the reading puts the ship nearer to the body than the estimated position, miles; good for some miles.
double InterceptJuge(const Observation &observation);

} // namespace velmaris::essais

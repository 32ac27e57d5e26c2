#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/point/Route.hpp"

#include <cstdint>

namespace velmaris {

/// Which limb of a disk is brought to the other body.
enum class BordDistance : std::uint8_t {
  Proche,   ///< the one nearer to the other body
  Lointain, ///< the farther one
  Centre,   ///< of stars and planets
};

/// Air that light is bent by.
struct AirMesure {
  double pression = 1010;  ///< hPa
  double temperature = 10; ///< degrees Celsius
};

/// A distance as it is seen from a place.
struct DistanceVue {
  double distance = 0;         ///< degrees: of the limbs, in air, as a sextant without error shows it
  double sansAir = 0;          ///< degrees: of the centres, from the place, without air
  double geocentrique = 0;     ///< degrees: of the centres, from the Earth's centre
  double hauteurLune = 0;      ///< degrees: of the Moon's centre, from the place, without air
  double hauteurAstre = 0;     ///< degrees: of the other body's centre
  double azimutLune = 0;       ///< degrees in [0, 360)
  double azimutAstre = 0;      ///< degrees in [0, 360)
  double demiDiametreLune = 0; ///< minutes, augmented, without air
};

/// The distance of two bodies' limbs from a place, by vectors: parallax on the spheroid, semidiameters augmented, each
/// point of a limb bent where it stands. The limb's point is the one of the airy disk that comes nearest to the other
/// body, or farthest from it.
/// @param station  its height is that of the eye
/// @throws Refus LieuImpossible
DistanceVue VoitDistance(const PlaceGeocentrique &lune, BordDistance bordLune, const PlaceGeocentrique &astre,
                         BordDistance bordAstre, const Station &station, const AirMesure &air);

} // namespace velmaris

#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/lunaire/Distance.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// Why a body is of no use for a lunar distance.
enum class RaisonSansLunaire : std::uint8_t {
  LuneBasse, ///< the Moon stands under 10 degrees
  AstreBas,  ///< the body does
  TropPres,  ///< under 10 degrees apart
  TropLoin,  ///< over 120 degrees apart, beyond what a sextant measures
  TropLent,  ///< the distance moves by under 15 minutes of arc an hour
  LuneNeuve, ///< the Moon is within 15 degrees of the Sun: not to be seen
  SansPlace, ///< it has no place, or isn't a body for it
};

/// One body for a lunar distance.
struct CandidatLunaire {
  Astre astre;
  std::optional<RaisonSansLunaire> raison;       ///< nothing for a body that will do
  DistanceVue vue;                               ///< of the limbs below
  BordDistance bordLune = BordDistance::Proche;  ///< the lit limb
  BordDistance bordAstre = BordDistance::Centre; ///< near for the Sun
  double cadence = 0;                            ///< of the distance in air, minutes of arc an hour, growing positive
  double secondes = 0;                           ///< of time that one minute of arc is worth; 0 when it doesn't move
};

/// Ranks bodies for a lunar distance at a moment: those that will do first, the fastest distance first.
/// @param candidats  the Sun, planets, stars bright enough to be seen; others are told as SansPlace
/// @param dut1       UT1 - UTC, seconds
/// @throws Refus of time or place
std::vector<CandidatLunaire> ClasseLunaires(const InstantUTC &utc, const LieuNavire &lieu, double hauteurOeil,
                                            std::span<const Astre> candidats, const AirMesure &air = {},
                                            double dut1 = 0);

/// Which limb of the Moon is lit towards a body, or away from it.
/// @param lune, soleil, astre  from the Earth's centre at one moment; for the Sun's own distance `astre` is the Sun
/// @return Proche or Lointain
BordDistance BordEclaire(const PlaceGeocentrique &lune, const PlaceGeocentrique &soleil,
                         const PlaceGeocentrique &astre);

} // namespace velmaris

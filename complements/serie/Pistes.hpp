#pragma once

#include "complements/serie/Lectures.hpp"

#include <cstdint>
#include <vector>

namespace velmaris {

/// What may be wrong with a run whose slope or height isn't the sky's.
enum class GenrePiste : std::uint8_t {
  AutreAstre,    ///< another body was shot
  Heure,         ///< the clock was read some whole hours off
  CoteLatitude,  ///< north for south, or the reverse
  CoteLongitude, ///< east for west, or the reverse
  DeuxCotes,     ///< both
};

/// One thing that would explain a run.
struct Piste {
  GenrePiste genre = GenrePiste::AutreAstre;
  Astre astre;                ///< the body that it would be: another one, or the same
  int heures = 0;             ///< to be added to the times, of an hour that is off
  double pente = 0;           ///< of the height then, minutes of arc a minute
  double ecartPente = 0;      ///< the readings' slope less that one
  double ecartHauteur = 0;    ///< the readings' height less that one, minutes
  double invraisemblance = 0; ///< squares of both over their doubts: the least is the likeliest
};

/// What a run shows, to be explained.
struct AllureSerie {
  InstantUTC milieu;
  double hauteur = 0;    ///< degrees at the middle: the readings' mean height without air
  double pente = 0;      ///< minutes of arc a minute
  double ecartPente = 0; ///< its standard deviation
};

/// The likeliest explanations: a body over the horizon whose height is within a degree and a half and whose slope
/// within three deviations.
/// @return the likeliest first, eight at most
/// @throws Refus of time or place
std::vector<Piste> CherchePistes(const BaseLectures &base, const AllureSerie &allure);

} // namespace velmaris

#pragma once

#include "complements/serie/Lectures.hpp"

#include <optional>

namespace velmaris {

/// When a body passes the ship's meridian.
struct PassageMeridien {
  InstantUTC heure;         ///< of the passage, the centre from the Earth's centre
  bool inferieur = false;   ///< below the pole
  LieuNavire lieu;          ///< of the ship then
  double hauteur = 0;       ///< degrees: the centre from the place, without air
  bool versNord = false;    ///< the body then stands to the north
  bool sansSommet = false;  ///< there is no top within three hours of it, near a pole: the rest is of the passage
  InstantUTC sommet;        ///< when the height is greatest, below the pole least, for the ship under way
  double hauteurSommet = 0; ///< degrees, at that time
  double correction = 0;    ///< seconds from the top to the passage: about 15.28 (tan lat - tan dec) for each minute of
                            ///< arc an hour of northing less that of the declination
};

/// The passage nearest to a time.
/// @param base       body, position, course
/// @param inferieur  below the pole; nothing for whichever is nearer
/// @throws Refus of time, body or place
PassageMeridien PassagePresDe(const BaseLectures &base, const InstantUTC &heure, std::optional<bool> inferieur = {});

} // namespace velmaris

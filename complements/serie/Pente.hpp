#pragma once

#include "complements/serie/LecturesPretes.hpp"

namespace velmaris {

/// How a body's height stands and moves.
struct AllureCiel {
  double hauteur = 0; ///< degrees: the centre from the place, without air
  double pente = 0;   ///< minutes of arc a minute of time
};

/// The moments that a slope is taken from, half a minute to either side.
inline constexpr double kDemiPas = 30; ///< seconds

/// A body's two places around a moment.
struct PlacesAutour {
  PlaceGeocentrique avant;
  PlaceGeocentrique apres;
};

/// Height and slope that the sky has for the ship under way.
/// @param avant, apres  the ship half a minute earlier and later
AllureCiel AllureDe(const BaseLectures &base, const PlacesAutour &places, const LieuNavire &avant,
                    const LieuNavire &apres);

} // namespace velmaris

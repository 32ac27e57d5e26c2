#pragma once

#include "complements/ciel/EtapesHauteur.hpp"

namespace velmaris {

/// The way down of `Refraction`: where a body stands that would stand at a height without air.
/// @param sansAir      degrees
/// @param pression     hPa
/// @param temperature  degrees Celsius
/// @return degrees; the refraction there leads back to `sansAir`
double ApparenteDe(double sansAir, double pression, double temperature);

/// The way down of `CorrigeLecture`: the reading whose corrections lead to a height.
/// @param lecture        all but the reading itself, which isn't looked at
/// @param topocentrique  degrees: the centre from the place, without air
/// @return degrees, as the arc would show it
/// @throws Refus LieuImpossible
double LecturePour(const LectureSextant &lecture, const PlaceGeocentrique &place, const Station &station,
                   double topocentrique);

} // namespace velmaris

#pragma once

#include "ephemerides/ModulePosLune.hpp"
#include "sights/Reduction.hpp"

namespace velmaris {

/// Reduces a sight of the Moon to intercept and azimuth. The parallax is inside the computed height; the semi-diameter
/// is the day's own. A statement that fails is passed over and its target keeps its value; a failure inside the Moon's
/// routines goes on with the next statement here, the record half filled.
/// @param observation  the fields; collimation and an empty fraction are written back
/// @param valeurs      `Azimut`, `HauteurCalculee`, `Intercept` are left in it
/// @param lune         the Moon's record, left with this moment and place
Reduction Calcul_DroiteLUN(Observation &observation, ValeursVisee &valeurs, Lune &lune, AffichageDroite &affichage,
                           const TexteMsg &messages);

/// Gives the Moon's record the date and time of a sight.
void PoseMomentLune(const Observation &observation, Lune &lune);

} // namespace velmaris

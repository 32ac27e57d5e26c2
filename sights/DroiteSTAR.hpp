#pragma once

#include "ephemerides/Etoiles.hpp"
#include "sights/Reduction.hpp"

namespace velmaris {

/// Reduces a sight of the chosen star to intercept and azimuth. The numbers travel as text from routine to routine.
/// No statement is passed over: a failure reaches the caller with what was written before it.
/// @param observation  the fields; an empty fraction is written back
/// @param valeurs      reads `LatEstimee`, `LonEstimee`; `Azimut`, `HauteurCalculee`, `Intercept` are left in it
/// @throws Erreur 13 for an impossible date or time, an empty eye height or collimation;
///         11 where a cosine of the horizon is exactly 0
/// Source: the star's place by annual precession from J2000.0, on the date alone.
Reduction Calcul_DroiteSTAR(Observation &observation, ValeursVisee &valeurs, const Etoiles &etoiles,
                            AffichageDroite &affichage, const TexteMsg &messages);

/// Azimuth and height of a star at a moment, from the estimated position.
/// @param AD   left as right ascension, degrees
/// @param Dec  left as declination, radians
/// @return azimuth "X" height, degrees
std::string HorizonEtoile(const Etoiles &etoiles, int etoile, const DateEtoile &jour, const ValeurDate &date,
                          double latitude, double longitudeEst, double &AD, double &Dec);

} // namespace velmaris

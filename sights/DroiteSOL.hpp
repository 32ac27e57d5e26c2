#pragma once

#include "sights/Affichage.hpp"
#include "sights/Corrections.hpp"
#include "sights/Observation.hpp"

namespace velmaris {

/// What a reduction of the Sun tells besides the shared azimuth and intercept.
struct ReductionSoleil {
  bool faite = false;         ///< false when the reading was 0 and nothing changed
  HauteurObservee<float> lue; ///< the reading and its corrections
  double Hc = 0.0;            ///< computed height, degrees, that the intercept was formed with
};

/// Reduces a sight of the Sun to intercept and azimuth. A statement that fails is passed over and its target keeps
/// its value: at a meridian passage the azimuth of the sight before stays.
/// @param observation  the fields; eye height, collimation and an empty fraction are written back
/// @param valeurs      reads `HeureDecimale`, `LatEstimee`, `LonEstimee`; `Azimut` and `Intercept` are left in it
/// @param affichage    labels, tool tip and detail lines; left alone by a reading of 0
/// Source: low-precision Sun of 1900.0, every named value stored in 32 bits.
ReductionSoleil Calcul_DroiteSOL(Observation &observation, ValeursVisee &valeurs, AffichageDroite &affichage,
                                 const TexteMsg &messages);

/// Place of the Sun at the moment of a sight, by the theory and the widths of its reduction.
struct LieuSoleil {
  float AHG = 0.0F; ///< Greenwich hour angle, degrees in one turn
  float Dec = 0.0F; ///< declination, degrees
};

/// @param heure  hours, GMT
LieuSoleil LieuDuSoleil(const Observation &observation, double heure);

/// Height of the Sun at the moment of a sight, by the theory and the widths of its reduction.
/// @param heure                hours, GMT
/// @param latitude, longitude  degrees, north and west positive
/// @return degrees; 0 where it has no value
double HauteurSoleil(const Observation &observation, double heure, float latitude, float longitude);

} // namespace velmaris

#pragma once

#include "sights/Reduction.hpp"

namespace velmaris {

/// Reduces a sight of the chosen planet to intercept and azimuth. The place comes as one line of text and is taken
/// apart; a declination between 0 and -1 degree comes out north. No statement is passed over.
/// @param observation  the fields; an empty fraction is written back
/// @param valeurs      `Azimut`, `HauteurCalculee`, `Intercept` are left in it
/// @throws Erreur 13 for an impossible date or time, an empty eye height or collimation;
///         11 where a cosine of the horizon is exactly 0
Reduction Calcul_DroitePLA(Observation &observation, ValeursVisee &valeurs, AffichageDroite &affichage,
                           const TexteMsg &messages);

/// A planet's apparent place, taken from its line of text.
struct PlacePlanete {
  double AD = 0.0;   ///< right ascension, degrees
  double Dec = 0.0;  ///< declination, degrees
  double Dist = 0.0; ///< km, of whole thousandths
};

/// Takes apart the line of a planet's apparent place.
/// @throws Erreur 9 when it has no three fields, 5 when a field is shorter than its marks
PlacePlanete LitPlacePlanete(const std::string &ligne);

/// Name of a planet in the list, as it stands there.
/// @throws Erreur 9 for a place that isn't in the list
std::string NomPlanete(int planete);

} // namespace velmaris

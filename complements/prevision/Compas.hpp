#pragma once

#include "complements/prevision/Journee.hpp"

#include <optional>

namespace velmaris {

/// The Sun on the sensible horizon: its centre at height 0 from the place, without air. Its lower limb is then seen
/// half a diameter over the sea's horizon from the water, two thirds of one from a bridge.
struct AmplitudeSoleil {
  EvenementCiel moment{};
  bool lever = false;
  double amplitude = 0;     ///< degrees, from east at rise and from west at set, north positive
  double bordInferieur = 0; ///< height of its lower limb over the visible horizon then, minutes of arc
};

/// The Sun's amplitudes of a day: rise, then set, on the moving ship.
/// @param pression     hPa
/// @param temperature  degrees Celsius
struct AmplitudesDuJour {
  std::vector<AmplitudeSoleil> amplitudes{}; ///< in the order of time: none where the Sun doesn't cross the horizon
  RaisonAbsence absence = RaisonAbsence::Aucune;
};
AmplitudesDuJour AmplitudesSoleil(const CielDuJour &ciel, const Journee &journee, const NavirePrevu &navire,
                                  double pression = 1010, double temperature = 10);

/// The amplitude that an azimuth is, degrees: from east or from west, whichever is nearer, north positive.
double AmplitudeDe(double azimut);

/// What the compass is off by.
struct EcartCompas {
  double total = 0;     ///< true bearing less compass bearing, degrees in [-180, 180), east positive
  double deviation = 0; ///< the part that the ship's iron makes: total less variation, east positive
};

/// The compass error by a body.
/// @param azimut       true, degrees
/// @param compas       bearing by the compass, degrees
/// @param declinaison  variation, degrees, east positive
/// East positive means: compass bearing + variation + deviation = true bearing.
EcartCompas EcartDuCompas(double azimut, double compas, double declinaison);

/// The true bearing of what the compass shows, degrees in [0, 360).
double AzimutVrai(double compas, double declinaison, double deviation);

} // namespace velmaris

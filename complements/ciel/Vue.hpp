#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/ciel/Vecteurs.hpp"

namespace velmaris {

/// A place on the Earth as a frame of its own, in the rotating frame whose x goes to Greenwich and z to the pole.
struct Repere {
  Vecteur3 station{}; ///< from the Earth's centre, astronomical units
  Vecteur3 est{};     ///< directions of the horizon
  Vecteur3 nord{};
  Vecteur3 zenith{};  ///< of the plumb line, as the spheroid has it
  Vecteur3 vitesse{}; ///< of the place by the Earth's turning, in units of light's
};

/// @throws Refus LieuImpossible
Repere RepereDe(const Station &station);

/// Height and azimuth of a direction.
struct HauteurAzimut {
  double hauteur = 0; ///< degrees
  double azimut = 0;  ///< degrees in [0, 360)
};

/// A body seen from a place whose frame is known: `VueDe` without the frame, for many bodies from one place.
PlaceTopocentrique VueDuRepere(const PlaceGeocentrique &place, const Repere &repere);

HauteurAzimut SurHorizon(const Repere &repere, const Vecteur3 &direction);

/// A body as it stands from the Earth's centre.
struct DuCentre {
  double hauteur = 0;  ///< degrees, over the horizon of the place
  double distance = 0; ///< from the place, astronomical units; 0 for a star
};

/// The way back from what is seen from the place to the Earth's centre.
/// @param vu        from the place, without air
/// @param distance  from the Earth's centre, astronomical units; 0 for a star
DuCentre VersCentre(const Repere &repere, const HauteurAzimut &vu, double distance);

} // namespace velmaris

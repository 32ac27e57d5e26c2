#pragma once

#include "ephemerides/Etoiles.hpp"
#include "foundations/Horloge.hpp"
#include "foundations/Surface.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace velmaris {

/// The angles worked out last on the sky's chart, whatever body they were of.
struct AnglesCiel {
  float AngleAz = 0.0F;   ///< azimuth, degrees
  float AngleHaut = 0.0F; ///< height, degrees
  float AngleAD = 0.0F;   ///< right ascension, degrees; of the Moon hours
  float AngleDec = 0.0F;  ///< declination + 90, degrees
};

/// Where and when the sky is seen.
struct RegardCiel {
  float latitude = 0.0F;  ///< degrees, south negative
  float longitude = 0.0F; ///< degrees, west positive
  ValeurDate date;        ///< UTC
};

/// A place among the stars.
struct PlaceEquateur {
  double a = 0.0;   ///< right ascension, degrees
  double dec = 0.0; ///< declination, degrees
};

/// The planets on the chart, in drawing order, as the routine of places takes them.
inline constexpr std::array<std::string_view, 4> kPlanetesCiel = {"VENUS", "MARS", "JUPITER", "SATURNE"};

/// Whether a star is of the short list: those that navigators shoot.
bool EstNavigable(std::string_view nom);

/// Number of stars in the short list.
inline constexpr int kNombreNavigables = 26;

/// Place of a star of the short list by its brightness, 0 for Sirius; the list's number for any other star.
int RangEclat(std::string_view nom);

/// Colour of a star: the sky's own at or under the horizon, white above.
/// @param hauteur  degrees
Couleur CouleurEtoile(float hauteur);

/// Background of the chart: dark once the Sun is at or under the horizon.
/// @param hauteur  degrees
Couleur FondCiel(float hauteur);

/// Takes azimuth "X" height into the angles.
/// @throws Erreur 6 when one leaves 32 bits
void PrendHorizonCiel(AnglesCiel &angles, std::string_view texte);

/// Works out a star's place: all four angles are those of the star.
/// @param rang  number of the star, from 1
/// @param jour  the date for its place
/// @throws Erreur as CoordEtoile and CelesteVersHorizon
void CalculeEtoile(AnglesCiel &angles, const Etoiles &etoiles, std::size_t rang, const DateEtoile &jour,
                   const RegardCiel &regard);

/// Works out a planet's place now: azimuth and height are those of the planet.
/// A declination between 0 and -1 degree comes out north.
/// @param nom      as the routine of places takes it
/// @param horloge  read afresh
/// @return right ascension and declination
/// @throws Erreur as PositionPlanete and CelesteVersHorizon
PlaceEquateur CalculePlanete(AnglesCiel &angles, std::string_view nom, Horloge &horloge, const RegardCiel &regard);

/// A planet's name as its label shows it: "Venus".
std::string NomSurCarte(std::string_view nom);

} // namespace velmaris

#pragma once

#include "foundations/Horloge.hpp"

#include <string>

/// Apparent geocentric places of the planets: light time, aberration, FK5, nutation, photometry.
/// A place is one line of five fields, right ascension " |" declination " | " distance " | " diameter " | " magnitude:
/// hours and degrees in sixteen columns, kilometres, degrees in ten characters, and the magnitude's general text.
namespace velmaris {

/// A date and time as typed, one text a field.
struct DateHeureTexte {
  std::string jour;
  std::string mois;
  std::string annee;
  std::string heure;
  std::string minute;
  std::string seconde;
};

/// Reduction of an ecliptic longitude to the FK5 system.
/// @param JD      Julian day
/// @param lambda  longitude, degrees
/// @param beta    latitude, degrees
/// @return degrees, to be added to the longitude
/// Source: Bretagnon and Francou 1988, for the dynamical equinox of VSOP87.
double CorrectionFK5L(double JD, double lambda, double beta);

/// Reduction of an ecliptic latitude to the FK5 system.
/// @return degrees, to be added to the latitude
double CorrectionFK5B(double JD, double lambda);

/// Apparent place of a planet.
/// The distance is that of the moment itself. Light time is passed once, and the Earth goes back by it like the planet:
/// that is the aberration. No difference between Universal and dynamical time is made.
/// Diameter and magnitude are those of the name as it is written: "Venus", "Mars", "Jupiter" and "SATURNE" have them;
/// any other spelling gives the same place with a diameter of zero and no magnitude.
/// @param nom  as PositionHelio takes it; left trimmed
/// @param JD   Julian day, Universal Time
/// @return the line of five fields
/// @throws Erreur 5 for a body without series (the Sun, Mercury, Uranus, Neptune, "Saturn"), 11 for the Earth itself or
///         where a quotient has no denominator, 6 beyond all dates
std::string PlaceApparente(std::string &nom, double JD);

/// Apparent place of a planet at a date and time as typed.
/// Each field is the number at its start, and an empty one 0, before the whole is read as a date.
/// @param nom  left trimmed
/// @throws Erreur 13 for an impossible date or time, or a fraction in a field; else as PlaceApparente
std::string PositionPlanete(std::string &nom, const DateHeureTexte &champs);

/// Apparent place of a planet now: the local date with the time of UTC. While the two dates differ, around midnight,
/// the place is a day off.
/// @param nom      left trimmed
/// @param horloge  read afresh; its texts are left
/// @throws Erreur as PlaceApparente
std::string PositionPlanete(std::string &nom, Horloge &horloge);

} // namespace velmaris

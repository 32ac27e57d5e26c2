#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/TablesCiel.hpp"

namespace velmaris {

/// Apparent place from the Earth's centre, true equator and equinox of the date: light time, aberration, the Sun's
/// deflection. Of a planet with moons it is that of the whole system, of Venus the centre of the disk, not of its
/// light.
struct PlaceGeocentrique {
  double ascension = 0;    ///< degrees in [0, 360)
  double declinaison = 0;  ///< degrees, north positive
  double gha = 0;          ///< Greenwich hour angle, degrees in [0, 360), west positive
  double distance = 0;     ///< when the light left, astronomical units; 0 for none known
  double demiDiametre = 0; ///< minutes of arc, from the Earth's centre; 0 for a star
  double parallaxe = 0;    ///< horizontal, at the equator, minutes of arc; 0 for a star
};

/// Place of a body, within 0.5" (Sun, stars), 1" (planets), 2" (Moon) from 1995 to 2030.
/// @throws Refus RangInconnu, EtoileSansPlace, or LuneHorsTable outside 1900 to 2100
PlaceGeocentrique PlaceDe(const CielDuMoment &ciel, const Astre &astre);

/// Place of a star that stands at any true place of J2000.0, in the table or not.
PlaceGeocentrique PlaceEtoile(const CielDuMoment &ciel, const EtoileIcrs &etoile);

/// A place on the Earth, WGS84.
struct Station {
  double latitude = 0;  ///< degrees, north positive, [-90, 90]
  double longitude = 0; ///< degrees, east positive
  double hauteur = 0;   ///< metres above the spheroid
};

/// A body from a place on the Earth, without air.
struct PlaceTopocentrique {
  double hauteur = 0;       ///< degrees, from the place itself: parallax and diurnal aberration are in it
  double azimut = 0;        ///< degrees in [0, 360), from true north by east, from the place itself
  double hauteurCentre = 0; ///< degrees, from the Earth's centre: the computed height of sight reduction
  double azimutCentre = 0;  ///< degrees in [0, 360), from the Earth's centre
  double distance = 0;      ///< from the place, astronomical units; 0 for none known
  double demiDiametre = 0;  ///< minutes of arc, augmented
};

/// A body seen from a place.
/// @throws Refus LieuImpossible
PlaceTopocentrique VueDe(const PlaceGeocentrique &place, const Station &station);

} // namespace velmaris

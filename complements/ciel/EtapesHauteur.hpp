#pragma once

#include "complements/ciel/Places.hpp"

#include <cstdint>
#include <optional>
#include <span>

namespace velmaris {

/// Which part of the disk touches the horizon.
enum class Contact : std::uint8_t { Inferieur, Centre, Superieur };

/// One row of the table of a sextant's own arc errors, rows by growing reading.
struct ErreurArc {
  double lecture = 0;    ///< degrees
  double correction = 0; ///< minutes of arc, to be added to the reading
};

/// A reading and all that it is corrected by.
struct LectureSextant {
  double lecture = 0;     ///< degrees, as the arc shows it: of the double height off an artificial horizon
  double collimation = 0; ///< index correction, minutes of arc, to be added
  double hauteurOeil = 0; ///< metres above the sea
  std::optional<double> distanceHorizon{}; ///< sea miles to a shore that hides the horizon; none for the open sea
  bool horizonArtificiel = false;          ///< half of the corrected angle is the height, without dip
  Contact contact = Contact::Centre;
  double pression = 1010;                  ///< hPa
  double temperature = 10;                 ///< degrees Celsius
  std::span<const ErreurArc> erreursArc{}; ///< linear between rows, beyond them that of the end; empty for none
};

/// The way from a reading to the observed height, step by step.
struct EtapesHauteur {
  double lecture = 0;       ///< degrees, as read
  double erreurArc = 0;     ///< minutes, added
  double collimation = 0;   ///< minutes, added
  double corrigee = 0;      ///< degrees, with both; halved off an artificial horizon
  double depression = 0;    ///< minutes, taken off: dip of the horizon or short of it; 0 off an artificial one
  double apparente = 0;     ///< degrees, corrected by it
  double refraction = 0;    ///< minutes, taken off
  double demiDiametre = 0;  ///< minutes, added: augmented, negative for an upper limb, 0 for the centre and for stars
  double topocentrique = 0; ///< degrees: the centre from the place, without air
  double parallaxe = 0;     ///< minutes, added, the Earth's flattening in it
  double observee = 0;      ///< degrees: Ho, the centre from the Earth's centre
};

/// Dip of the open sea's horizon, 1.76' times the root of the eye's height.
/// @param hauteurOeil  metres; a negative one counts as 0
/// @return minutes of arc
double Depression(double hauteurOeil);

/// Dip of a waterline that lies nearer than the horizon; beyond that the horizon's own.
/// @param hauteurOeil  metres
/// @param distance     sea miles
/// @return minutes of arc
/// Source: American Practical Navigator, table 14.
double DepressionCourte(double hauteurOeil, double distance);

/// The almanac's refraction: 0.0167 degrees over tan(H + 7.32/(H + 4.32)), times 0.28 P/(T + 273).
/// @param apparente    degrees; what is lower than one degree under the horizon gets the refraction there
/// @param pression     hPa
/// @param temperature  degrees Celsius; under -100 it counts as that
/// @return minutes of arc, not negative
double Refraction(double apparente, double pression, double temperature);

/// Corrects a reading of a body, whose place is known, from about where it was taken.
/// @param station  its height is that of the eye
/// @throws Refus LieuImpossible
EtapesHauteur CorrigeLecture(const LectureSextant &lecture, const PlaceGeocentrique &place, const Station &station);

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

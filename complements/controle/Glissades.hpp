#pragma once

#include "complements/controle/ViseeTypee.hpp"

#include <cstdint>
#include <vector>

namespace velmaris {

/// One slip of hand or eye.
enum class GenreGlissade : std::uint8_t {
  LectureDegres, ///< the reading by 1 or 10 degrees
  Heure,         ///< the time by an hour
  Minute,        ///< the time by a minute
  Secondes,      ///< the time by some tens of seconds
  Jour,          ///< the day before or after
  Chiffres,      ///< two neighbouring digits of a field changed places
  Collimation,   ///< the sign of the index correction
  Bord,          ///< another limb
  CoteLatitude,  ///< north for south, or the reverse
  CoteLongitude, ///< east for west, or the reverse
};

/// A field that digits can change places in.
enum class ChampGlisse : std::uint8_t {
  Aucun,
  Jour,
  Mois,
  Annee,
  Heure,
  Minute,
  Seconde,
  LatitudeDegres,
  LatitudeMinutes,
  LongitudeDegres,
  LongitudeMinutes,
  LectureDegres,
  LectureMinutes,
  LectureFraction,
  Collimation,
  HauteurOeil,
};

/// A slip that would explain a large intercept.
struct Glissade {
  GenreGlissade genre = GenreGlissade::LectureDegres;
  double ajout = 0; ///< what the typed figure would have to be changed by: degrees, hours, minutes, seconds or days
  ChampGlisse champ = ChampGlisse::Aucun; ///< of changed digits
  Contact contact = Contact::Centre;      ///< the limb that it would be
  Observation corrigee;                   ///< the sight as it would be, to be typed anew
  double intercept = 0;                   ///< what would be left, miles
};

/// Intercepts over this are searched for a slip, miles.
inline constexpr double kInterceptSuspect = 10;
/// What a slip may leave, miles.
inline constexpr double kResteGlissade = 2;

/// Searches the single slips that would leave a small intercept.
/// @return best first: the one that leaves least; empty when none leaves little
/// @throws Refus of a sight that has no figure of today
std::vector<Glissade> ChercheGlissades(const Observation &observation, const ReglagesControle &reglages);

} // namespace velmaris

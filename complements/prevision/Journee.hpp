#pragma once

#include "complements/prevision/CielDuJour.hpp"
#include "complements/prevision/NavirePrevu.hpp"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

namespace velmaris {

/// A moment at which something is seen from the ship.
struct EvenementCiel {
  InstantUTC utc{};
  LieuNavire lieu{};  ///< the ship's then
  double hauteur = 0; ///< of the body's centre from the place, without air, degrees
  double azimut = 0;  ///< of the centre, true, degrees in [0, 360)
};

/// Why something isn't seen that day.
enum class RaisonAbsence : std::uint8_t {
  Aucune,            ///< it is seen
  ToujoursAuDessus,  ///< the body stays above that height all day: up all day, or a night that never gets so dark
  ToujoursAuDessous, ///< it stays below: down all day, or a day that never gets so bright
  AutreJour,         ///< it crosses that height, but not in this direction on this day
  LuneHorsTable,     ///< the Moon is known from 1900 to 2100
};

/// All crossings of one height in one direction on one day.
struct Passages {
  std::vector<EvenementCiel> moments{}; ///< in the order of time: none, one, rarely two
  RaisonAbsence absence = RaisonAbsence::Aucune;
};

/// Rise, meridian passage and set of a body.
struct AstreDuMatinAuSoir {
  Passages lever{};    ///< the upper limb on the sea's horizon
  Passages meridien{}; ///< upper passage: the ship's own hour angle is 0
  Passages coucher{};
};

/// One of the twilights.
struct Crepuscule {
  Passages matin{}; ///< the Sun's centre comes up through its height
  Passages soir{};  ///< it goes down through it
};

/// What kind of time for stars it is.
enum class GenrePrise : std::uint8_t {
  Soir,
  Matin,
  NuitBlanche, ///< from evening to morning in one: nautical twilight never ends
  JourNoir,    ///< from morning to evening in one: civil twilight never begins
};

/// A time at which stars and the horizon are both seen: the Sun's centre 6 to 12 degrees under the horizon.
struct FenetrePrise {
  InstantUTC debut{}; ///< of the day itself, when the window begins before
  InstantUTC fin{};
  GenrePrise genre = GenrePrise::Soir;
};

/// A day as it is lived aboard.
struct Journee {
  InstantUTC debut{}; ///< 0 h of zone time
  InstantUTC fin{};   ///< 24 h
  int fuseau = 0;     ///< hours that zone time is ahead of UTC
  AstreDuMatinAuSoir soleil{};
  AstreDuMatinAuSoir lune{};
  Crepuscule civil{};                   ///< the Sun's centre 6 degrees under the sensible horizon, without dip and air
  Crepuscule nautique{};                ///< 12 degrees
  Crepuscule astronomique{};            ///< 18 degrees
  std::vector<FenetrePrise> fenetres{}; ///< in the order of time
};

/// Which day.
struct JourCivil {
  int annee = 2000;
  int mois = 1;
  int jour = 1;
  std::optional<int> fuseau{}; ///< hours that zone time is ahead of UTC; nothing for the one of the ship's longitude
};

/// Where the day begins.
/// @throws Refus DateImpossible, AnneeHorsLimites
InstantUTC DebutDuJour(const JourCivil &jour, const NavirePrevu &navire);

/// The sky of a civil day, prepared: its 24 hours from `DebutDuJour` on and one more on either side.
/// @return nothing when it was stopped
/// @throws Refus DateImpossible, AnneeHorsLimites
std::optional<CielDuJour> CielDeLaJournee(const Etoiles &etoiles, const JourCivil &jour, const NavirePrevu &navire,
                                          double dut1 = 0, const std::stop_token &arret = {});

/// Twilights, rises, passages and sets of a day on a moving ship, each to a tenth of a second of the sky. Rise and set:
/// the upper limb on the visible horizon, with the dip of the eye, 34' of refraction, today's semidiameter and
/// parallax. The altitude is sampled every ten minutes and its highest and lowest points are looked for too, so that a
/// night of minutes is found.
/// @param ciel  as `CielDeLaJournee` prepares it for the same day
/// @return nothing when it was stopped
/// @throws Refus DateImpossible, AnneeHorsLimites, LieuImpossible
std::optional<Journee> CalculeJournee(const CielDuJour &ciel, const JourCivil &jour, const NavirePrevu &navire,
                                      const std::stop_token &arret = {});

/// Instants for stars: from begin to end of each window, evenly, both ends with them.
/// @param pas  minutes, over 0: the steps are as long or a little shorter
std::vector<InstantUTC> InstantsDePrise(const Journee &journee, double pas);

} // namespace velmaris

#pragma once

#include "complements/ciel/Instants.hpp"
#include "complements/prevision/Journee.hpp"
#include "ephemerides/Etoiles.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// The figures of an almanac on paper, from the sky of today. Nothing is rounded here: `Arrondis.hpp` has the one
/// rounding by which pages and tables print them.
namespace velmaris {

/// In which order the stars stand.
enum class OrdreEtoiles : std::uint8_t { Nom, Sha };

/// What an almanac is asked for.
struct DemandeAlmanach {
  DateCivile debut{};              ///< first day; its time doesn't count
  DateCivile fin{};                ///< last day, which is part of it
  std::vector<double> latitudes{}; ///< for twilights, rises and sets, degrees, north positive; their order is kept
  double dut1 = 0;                 ///< UT1 - UTC, seconds
  OrdreEtoiles ordre = OrdreEtoiles::Nom;
};

inline constexpr int kJoursAlmanachMax = 400;
inline constexpr std::size_t kLatitudesAlmanachMax = 24;

/// Bodies with hourly figures, in their order here: Sun, Moon, Venus, Mars, Jupiter, Saturn.
inline constexpr std::size_t kErrantsAlmanach = 6;
inline constexpr std::size_t kSoleilAlmanach = 0;
inline constexpr std::size_t kLuneAlmanach = 1;
inline constexpr std::size_t kVenusAlmanach = 2;

/// What can't be printed of a demand.
enum class DefautAlmanach : std::uint8_t {
  Date,     ///< a day that the calendar hasn't, or outside 1901 to 2099
  Ordre,    ///< the end lies before the beginning
  TropLong, ///< over 400 days
  Latitude, ///< one that is none
  TropDeLatitudes,
};

/// Whether a demand can be fulfilled.
/// @return nothing when it can
std::optional<DefautAlmanach> DefautDe(const DemandeAlmanach &demande);

/// How many days a demand without defect has.
int NombreDeJours(const DemandeAlmanach &demande);

/// Place of a body at an hour, from the Earth's centre.
struct PlaceAlmanach {
  double gha = 0;         ///< degrees in [0, 360), west positive
  double declinaison = 0; ///< degrees, north positive
};

/// One hour.
struct HeureAlmanach {
  double belier = 0; ///< GHA of Aries, degrees in [0, 360)
  std::array<PlaceAlmanach, kErrantsAlmanach> astres{};
  double vLune = 0;  ///< how much more than 14 degrees 19.0 minutes the Moon's GHA grows until the next hour, minutes
  double dLune = 0;  ///< how much its declination changes until then, minutes, northward positive
  double hpLune = 0; ///< horizontal parallax, minutes
};

/// A body's figures of a day.
struct AstreAlmanach {
  double v = 0;  ///< how much more than 15 degrees its GHA grows an hour, minutes, mean of the day's 24; not the Moon's
  double d = 0;  ///< change of declination an hour, minutes, northward positive, the same mean; not the Moon's
  double hp = 0; ///< horizontal parallax at 12 h, minutes
  double demiDiametre = 0;        ///< at 12 h, minutes
  double magnitude = 0;           ///< at 12 h
  std::vector<double> meridien{}; ///< upper passages at Greenwich, hours of UT in [0, 24): one, seldom none or two
};

/// Times of one kind on one day, at longitude 0.
struct HeuresHorizon {
  std::vector<double> heures{};                  ///< UT in [0, 24), which is local mean time there; seldom two
  RaisonAbsence absence = RaisonAbsence::Aucune; ///< why there is none
};

/// The Sun at a latitude, at sea level.
struct SoleilHorizon {
  HeuresHorizon nautiqueMatin{}; ///< the centre 12 degrees under the horizon, from the Earth's centre
  HeuresHorizon civilMatin{};    ///< 6 degrees
  HeuresHorizon lever{};         ///< 50 minutes
  HeuresHorizon coucher{};
  HeuresHorizon civilSoir{};
  HeuresHorizon nautiqueSoir{};
};

/// The Moon at a latitude, at sea level: its upper limb with 34 minutes of refraction and the parallax of the moment.
struct LuneHorizon {
  HeuresHorizon lever{};
  HeuresHorizon coucher{};
};

/// One day.
struct JourAlmanach {
  DateCivile date{};
  std::array<HeureAlmanach, 24> heures{};
  std::array<AstreAlmanach, kErrantsAlmanach> astres{};
  std::vector<double> luneInferieur{}; ///< lower passages of the Moon, hours of UT
  std::vector<double> belier{};        ///< upper passages of Aries, hours of UT
  double equation0 = 0;                ///< equation of time at 0 h: true less mean Sun, seconds
  double equation12 = 0;               ///< at 12 h
  double ageLune = 0;                  ///< days since new moon, at 12 h
  double partLune = 0;                 ///< of its disk that is lit at 12 h, 0 to 1
  std::vector<LuneHorizon> lune{};     ///< for each latitude
};

/// A star.
struct EtoileAlmanach {
  int rang = 0;    ///< row of the star table
  int numero = 0;  ///< 1 to 57 by growing right ascension; 0 for Polaris
  std::string nom; ///< as the panel's list has it
  double magnitude = 0;
  double sha = 0;         ///< sidereal hour angle, degrees in [0, 360)
  double declinaison = 0; ///< degrees, north positive
};

/// Up to three days that stand on one double page.
struct PeriodeAlmanach {
  std::size_t premier = 0;               ///< of `Almanach::jours`
  std::size_t nombre = 0;                ///< 1 to 3
  DateCivile milieu{};                   ///< the day whose 12 h the stars and whose twilights the Sun's are
  std::vector<EtoileAlmanach> etoiles{}; ///< the 57 and Polaris, which is the last
  std::vector<SoleilHorizon> soleil{};   ///< for each latitude
};

/// An almanac.
struct Almanach {
  DemandeAlmanach demande{};
  std::vector<JourAlmanach> jours{};
  std::array<std::vector<LuneHorizon>, 2> suivants{}; ///< the Moon's rises and sets of the two days after the last
  std::vector<PeriodeAlmanach> periodes{};
};

/// Works out the figures; each hour is worked out for itself, none is interpolated. Rises and sets are taken from the
/// day's sky (`CielDuJour`).
/// @param etoiles  the star table, whose names are taken
/// @param arret    asked each day
/// @param dit      is told how far the work is, 0 to 1; may be empty
/// @return nothing when it was stopped
/// @throws Refus DateImpossible or LieuImpossible for a demand with a defect
std::optional<Almanach> CalculeAlmanach(const DemandeAlmanach &demande, const Etoiles &etoiles,
                                        const std::stop_token &arret = {}, const std::function<void(double)> &dit = {});

} // namespace velmaris

#pragma once

#include "complements/ciel/Refus.hpp"
#include "complements/controle/Causes.hpp"
#include "complements/controle/Glissades.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "ephemerides/Etoiles.hpp"
#include "sights/Observation.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace velmaris {

/// What a reduction left, as it left it.
struct ResultatDit {
  double Ho = 0;        ///< degrees
  double Hc = 0;        ///< degrees, that the intercept was formed with
  double azimut = 0;    ///< degrees
  double intercept = 0; ///< miles
  bool operator==(const ResultatDit &) const = default;
};

/// The same by the sky of today.
struct ResultatActuel {
  double Ho = 0;          ///< degrees, from the Earth's centre
  double Hc = 0;          ///< degrees, from the Earth's centre
  double azimut = 0;      ///< degrees in [0, 360), from the Earth's centre
  double intercept = 0;   ///< miles
  double gha = 0;         ///< degrees in [0, 360)
  double declinaison = 0; ///< degrees, north positive
};

/// How far the told line lies from the sky.
enum class GradeControle : std::uint8_t {
  SansActuel,    ///< there is no figure of today: `refus` tells why
  Accord,        ///< up to 0.5 mile
  Maniere,       ///< up to 1.5 miles: the told theory's manner
  Avertissement, ///< more
};

inline constexpr double kAccord = 0.5;  ///< miles
inline constexpr double kManiere = 1.5; ///< miles

/// The steps of the two roads, in the order in which they are gone.
enum class EtapeControle : std::uint8_t {
  EcartTemps,      ///< TT - UT, seconds
  AngleHoraire,    ///< at Greenwich, degrees
  Declinaison,     ///< degrees
  AngleLocal,      ///< local hour angle, degrees
  Lecture,         ///< degrees, as read
  ErreurArc,       ///< minutes, added
  Collimation,     ///< minutes, added
  Depression,      ///< minutes, taken off
  Refraction,      ///< minutes, taken off
  DemiDiametre,    ///< minutes, added
  Parallaxe,       ///< minutes, added
  HauteurVraie,    ///< Ho, degrees
  HauteurCalculee, ///< Hc, degrees
  Azimut,          ///< degrees
  Intercept,       ///< miles
};

/// The unit of a step.
enum class UniteControle : std::uint8_t { Secondes, Degres, Minutes };

/// One step, side by side. Differences are told in minutes, those of the time in seconds.
struct LigneControle {
  EtapeControle etape = EtapeControle::EcartTemps;
  UniteControle unite = UniteControle::Degres;
  std::optional<double> dit;    ///< nothing where the told reduction hasn't the step, or failed in it
  std::optional<double> actuel; ///< nothing without a figure of today
  std::optional<Cause> raison;  ///< of a difference over 0.1 minute (of the time: one second)
};

/// A sight checked against the sky of today. It holds no words: they belong to the windows.
struct FicheControle {
  Astre astre;
  DateCivile utc;                       ///< the time as typed, meaningful unless `refus` is of date or time
  ResultatDit dit;                      ///< as it was given
  std::optional<ResultatActuel> actuel; ///< nothing when `refus` tells why
  std::optional<RaisonRefus> refus;
  GradeControle grade = GradeControle::SansActuel;
  double ecart = 0;                  ///< intercept of today less the told one, miles; 0 without a figure of today
  std::vector<PartCause> causes;     ///< that are named: over 0.3 minute each, largest first; Horizon before all
  double inexplique = 0;             ///< what the named causes leave of the difference, miles
  std::vector<Glissade> glissades;   ///< that would explain a large intercept, best first
  std::vector<LigneControle> lignes; ///< all steps in their order
};

/// Checks a sight that has been reduced. It changes nothing and never throws; any thread may call it.
/// @param observation  as it was typed, or as its reduction left it
/// @param dit          what the reduction left
/// @param etoiles      the star table, split
FicheControle ControleVisee(const Observation &observation, const ResultatDit &dit, const Etoiles &etoiles,
                            const ReglagesControle &reglages = {});

} // namespace velmaris

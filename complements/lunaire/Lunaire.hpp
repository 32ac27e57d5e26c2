#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Refus.hpp"
#include "complements/lunaire/Distance.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// How many distances are joined at most.
inline constexpr std::size_t kDistancesMax = 30;
/// A distance that moves slower tells no time, minutes of arc an hour.
inline constexpr double kCadenceMin = 10;

/// One measured distance.
struct MesureLunaire {
  InstantUTC montre; ///< the watch's reading, taken for UTC
  Astre astre;       ///< the Sun, a planet or a star
  BordDistance bordLune = BordDistance::Proche;
  BordDistance bordAstre = BordDistance::Centre; ///< of the Sun the near limb as a rule
  double lecture = 0;                            ///< degrees, as the arc shows it
  double collimation = 0;                        ///< index correction, minutes of arc, to be added
  std::optional<double> hauteurLune;  ///< degrees: apparent height of the Moon's limb below, by index and dip corrected
  std::optional<double> hauteurAstre; ///< degrees: of the other body's; both or none
  Contact contactLune = Contact::Inferieur; ///< which limb that height is of
  Contact contactAstre = Contact::Centre;   ///< the same of the other body
  bool ecartee = false;                     ///< left out by the user; it keeps its residual
  bool operator==(const MesureLunaire &) const = default;
};

/// What distances are reduced by.
struct ReglagesLunaire {
  LieuNavire lieu;      ///< of the ship at `heureLieu`, estimated
  InstantUTC heureLieu; ///< by the watch
  RouteNavire route;
  double hauteurOeil = 0; ///< metres
  AirMesure air;
  double dut1 = 0;            ///< UT1 - UTC, seconds
  double ecartType = 0.5;     ///< assumed error of a distance, minutes of arc; over 0
  double ecartHauteur = 1;    ///< assumed error of a height, minutes of arc
  double douteLieu = 10;      ///< standard deviation of the position, miles north and east each; only distances without
                              ///< heights lean on it
  double etendue = 6;         ///< hours that the watch is searched by, either way; up to 24
  double chanceAlarme = 0.01; ///< that distances without a blunder raise an alarm
};

/// What is to be known of the clock from the Moon; the words for it belong to the windows.
enum class AvisLunaire : std::uint8_t {
  SansMesure,       ///< no distance that counts: no time
  Trop,             ///< over thirty: no answer
  SansCiel,         ///< the sky has no answer: `refus` tells why
  PasUnAstre,       ///< a body that can't be: the Moon herself, the equinox
  SansSolution,     ///< at no time within the search has the sky such distances
  TropLent,         ///< they move too slowly to tell a time: `cadence` tells how slowly
  DeuxSolutions,    ///< a second time agrees as well
  BordSombre,       ///< a limb of the Moon that isn't lit
  Basse,            ///< a body under 5 degrees, where the air isn't known
  SousHorizon,      ///< a body under the horizon at the time found
  Desaccord,        ///< the distances disagree by more than their assumed errors: one chance in a hundred
  MesureImprobable, ///< one is improbable, and which one is told
  ErreurSansNom,    ///< one is, but which one can't be told
};

/// What one distance makes of the time.
struct ResiduLunaire {
  double residu = 0;      ///< minutes of arc, measured less the sky's
  double ecartType = 0;   ///< assumed, with what its heights are in doubt by, minutes
  double statistique = 0; ///< standardised test; 0 when there is none
  double cadence = 0;     ///< of the distance, minutes of arc an hour, growing positive
  DistanceVue vue;        ///< the sky's
  LieuNavire lieu;        ///< of the ship: as her run has it, or as the heights have it
};

/// One time that agrees with the distances.
struct SolutionLunaire {
  double retard = 0;    ///< seconds that the watch is slow by: to be added to its readings
  double ecartType = 0; ///< seconds
  double cadence = 0;   ///< that all distances together have, minutes of arc an hour, without sign
  double khi2 = 0;
  int surplus = 0;                       ///< distances more than the one unknown
  double chance = 1;                     ///< that distances of their assumed error disagree as much
  std::vector<ResiduLunaire> residus;    ///< in the order of the distances
  double seuil = 0;                      ///< of the statistics; 0 without a test
  std::optional<std::size_t> improbable; ///< by its place among the distances
  bool sansNom = false;                  ///< one is improbable, but which one can't be told
};

/// The clock from the Moon. It holds no words: they belong to the windows.
struct FicheLunaire {
  std::vector<AvisLunaire> avis; ///< by their order above, each once
  std::optional<RaisonRefus> refus;
  std::optional<SolutionLunaire> solution; ///< the likelier time; of two as likely the one nearer to the watch
  std::optional<SolutionLunaire> seconde;  ///< with DeuxSolutions
  double cadence = 0;                      ///< with TropLent: minutes of arc an hour, without sign
};

/// Finds the true time from distances of the Moon. It changes nothing and never throws; any thread may call it.
/// Theory: the distance that the sky shows is worked out from the place for any time, limbs and air included, and the
/// time sought at which it is the measured one. With both heights the place is that which has them at the time tried,
/// so that nothing hangs on the estimated position but which of the two crossings is meant; without them it is the
/// estimated one, whose doubt is in that of the time.
FicheLunaire ReduitLunaires(std::span<const MesureLunaire> mesures, const ReglagesLunaire &reglages);

} // namespace velmaris

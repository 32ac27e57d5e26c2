#pragma once

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/prevision/CielDuJour.hpp"
#include "complements/prevision/NavirePrevu.hpp"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmaris {

/// Why a body isn't proposed; the first that holds is the first to be told.
enum class RaisonPale : std::uint8_t {
  SousHorizon,     ///< under the visible horizon
  LigneLoin,       ///< the row of the star table lies off its star: the told sight of it would be wrong
  PerduCrepuscule, ///< too faint for the Sun's height
  PresDuSoleil,
  PresDeLaLune,
  TropBas,
  TropHaut,
  HorsArc, ///< the sextant's arc ends before the reading: off an artificial horizon
};
inline constexpr std::size_t kRaisonsPales = 8;

/// Several reasons; a bit for each, by the order above.
using RaisonsPales = std::bitset<kRaisonsPales>;

/// Whether a reason is among them.
inline bool Tient(const RaisonsPales &raisons, RaisonPale raison) { return raisons[static_cast<std::size_t>(raison)]; }

/// The one to be told.
/// @return nothing for a body that is as it should be
std::optional<RaisonPale> PremiereRaison(const RaisonsPales &raisons);

/// What the plan goes by.
struct ReglagesPlan {
  LectureSextant sextant{}; ///< index, arc errors, horizon and air; its reading, contact and eye height don't count
  Contact bordSoleil = Contact::Inferieur;
  std::optional<Contact> bordLune{}; ///< nothing for the limb that is lit
  double hauteurMin = 10;            ///< degrees, apparent
  double hauteurMax = 75;            ///< degrees, apparent
  double ecartSoleil = 15;           ///< degrees: what stands nearer is lost in its light
  double ecartLune = 5;              ///< degrees
  double arcMax = 125;               ///< degrees: the end of the sextant's arc
};

/// One body at a moment.
struct AstreDuPlan {
  Astre astre{};
  double hauteur = 0;                 ///< from the place, without air, degrees
  double apparente = 0;               ///< over the sensible horizon through the air, degrees; under it without meaning
  double azimut = 0;                  ///< true, degrees in [0, 360)
  double magnitude = 0;               ///< visual
  double mouvement = 0;               ///< of the height, minutes of arc a minute of time, the ship's way in it
  std::optional<double> prereglage{}; ///< what the sextant shows, degrees; nothing under the horizon
  Contact contact = Contact::Centre;  ///< what is brought to the horizon
  RaisonsPales raisons{}; ///< none for a body that may be proposed; under the horizon no more are looked for
};

/// The Moon's face.
struct PhaseLune {
  double phase = 0;    ///< angle at the Moon between Sun and Earth, degrees: 0 full, 180 new
  double eclairee = 0; ///< part of the disk, 0 to 1
  double bord = 0;     ///< direction of the middle of the lit limb from the zenith, degrees in [0, 360), clockwise
                       ///< as it is seen
  bool croissante = false;
  Contact meilleur = Contact::Inferieur; ///< upper or lower limb, the one that is lit
};

/// The whole sky of a moment, as the ship sees it.
struct CielDuPlan {
  InstantUTC utc{};
  LieuNavire lieu{};                 ///< the ship's
  double hauteurOeil = 0;            ///< metres
  double hauteurSoleil = 0;          ///< of its centre, without air, degrees
  double azimutSoleil = 0;           ///< degrees
  bool soleilMonte = false;          ///< morning
  double magnitudeVisible = 0;       ///< the faintest that is seen
  std::vector<AstreDuPlan> astres{}; ///< as many as `CielDuJour::astres`, in its order
  std::optional<PhaseLune> lune{};
};

/// Whether the sextant's readings are worked out: they take most of the time.
enum class Prereglages : std::uint8_t { Sans, Avec };

/// Looks at the sky of a moment: well under a millisecond.
/// @throws Refus LieuImpossible
CielDuPlan RegardeCiel(const CielDuJour &ciel, const NavirePrevu &navire, const InstantUTC &utc,
                       const ReglagesPlan &reglages, Prereglages prereglages = Prereglages::Avec);

} // namespace velmaris

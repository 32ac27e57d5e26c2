#pragma once

#include "complements/ciel/Places.hpp"
#include "complements/ciel/Refus.hpp"
#include "complements/controle/Controle.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "complements/point/Route.hpp"

#include <cstdint>
#include <optional>

namespace velmaris {

/// Which figures a fix is made from.
enum class TheoriePoint : std::uint8_t {
  Actuelle, ///< the readings and the sky of today
  Dite,     ///< the lines as they are drawn
};

/// A height by the sky of today: both figures are the centre's from the place, without air.
struct HauteurActuelle {
  double observee = 0;     ///< degrees, free of any position
  PlaceGeocentrique place; ///< of the body, at the time of the sight
};

/// A height as a told line has it, on the sphere.
struct HauteurDite {
  double observee = 0; ///< degrees: told computed height and intercept
  LieuNavire sous;     ///< the place that has the body overhead
};

/// One sight's height, ready for any number of fixes: nothing of the sky is worked out again. A value without ties.
struct HauteurPreparee {
  InstantUTC utc;                          ///< of the sight, corrected by the watch
  LieuNavire estime;                       ///< the position typed with it; it only orders solutions that are as likely
  double hauteurOeil = 0;                  ///< metres
  bool artificiel = false;                 ///< off an artificial horizon
  double apparente = 0;                    ///< degrees, that the assumed error goes by
  std::optional<HauteurActuelle> actuelle; ///< nothing when `refus` tells why
  std::optional<RaisonRefus> refus;
  std::optional<HauteurDite> dite; ///< nothing without told figures that are numbers
};

/// Prepares a sight for fixes.
/// @param dit            what its reduction left; nothing when it has none
/// @param corrigeMontre  seconds, added to the typed time: what the watch was slow by. The told line keeps the body's
///                       place of the typed time, turned by the Earth's rotation in the meantime
/// @param dut1           UT1 - UTC, seconds
/// @throws Refus DateImpossible, HeureImpossible or AnneeHorsLimites: without a time there is no place in the run
HauteurPreparee PrepareHauteur(const ViseeTypee &visee, const std::optional<ResultatDit> &dit, double corrigeMontre = 0,
                               double dut1 = 0);

/// The height that a body has from a place, degrees: from the place without air, or as told lines have it.
/// @param theorie  one that the sight has figures of
double HauteurDuLieu(const HauteurPreparee &hauteur, TheoriePoint theorie, const LieuNavire &lieu);

/// The direction that the body has from there, degrees in [0, 360).
/// @param theorie  one that the sight has figures of
double AzimutDuLieu(const HauteurPreparee &hauteur, TheoriePoint theorie, const LieuNavire &lieu);

/// Assumed error of an altitude: the given one, and under 10 degrees 15 % of what refraction is more there than at 10
/// degrees, their squares added: 1.5' at 3 degrees and 4.4' on the horizon for 0.7'.
/// @param base       minutes of arc
/// @param apparente  degrees
/// @return minutes of arc
/// Source of the share: refraction at the horizon varies by a fifth and more (Schaefer and Liller, 1990), at 10 degrees
/// by some hundredths with air pressure and temperature.
double ErreurSupposee(double base, double apparente);

} // namespace velmaris

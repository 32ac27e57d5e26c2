#pragma once

#include "complements/prevision/CielDuPlan.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace velmaris {

/// What a set of bodies is judged by.
struct ReglagesJeux {
  double erreur = 0.7;            ///< assumed error of an altitude over 10 degrees, minutes of arc, as the fix has it
  double magnitudeMax = 3;        ///< no body is fainter
  std::size_t plusBrillants = 20; ///< at most so many are looked at, the brightest; over 4
  std::size_t garde = 5;          ///< how many sets of each count
};

/// Some bodies for a fix.
struct JeuAstres {
  std::vector<std::size_t> astres{}; ///< by their places in `CielDuJour::astres`, in the order in which to take them
  double trace = 0;                  ///< of the fix's covariance, square miles
};

/// The best sets of three, four and five.
inline constexpr std::array<std::size_t, 3> kNombresDuJeu{3, 4, 5};
using MeilleursJeux = std::array<std::vector<JeuAstres>, kNombresDuJeu.size()>; ///< each the best first

/// One body as a set counts it.
struct PoidsAstre {
  double azimut = 0; ///< degrees
  double ecart = 0;  ///< assumed error of its altitude, minutes of arc
};

/// Trace of the covariance of a fix, by two unknowns for three bodies and fewer, by three with the error that all
/// altitudes share for four and more.
/// @return square miles; infinite where they don't make a fix
double TraceDuJeu(std::span<const PoidsAstre> astres);

/// The best sets at a moment: the smallest traces among all sets of bodies without a reason against them that are
/// bright enough. Nothing is passed over but what can't be better. Order in each set: by magnitude, a body towards the
/// Sun counted up to one magnitude fainter, one away from it up to one brighter; the bright end first in the evening,
/// the faint end in the morning, so that east comes first on both.
/// @throws nothing
MeilleursJeux ChoisitJeux(const CielDuPlan &ciel, const ReglagesJeux &reglages);

/// The best sets of one moment among many.
struct JeuxDuMoment {
  InstantUTC utc{};
  MeilleursJeux jeux{};
};

/// The best sets of many moments, a whole night say.
/// @param arret  asked at each moment
/// @return nothing when it was stopped
/// @throws Refus LieuImpossible
std::optional<std::vector<JeuxDuMoment>> JeuxDesMoments(const CielDuJour &ciel, const NavirePrevu &navire,
                                                        std::span<const InstantUTC> moments, const ReglagesPlan &plan,
                                                        const ReglagesJeux &reglages,
                                                        const std::stop_token &arret = {});

} // namespace velmaris

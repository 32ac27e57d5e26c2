#pragma once

#include "complements/exercice/Exercice.hpp"
#include "complements/exercice/Tirage.hpp"

#include <optional>
#include <vector>

namespace velmaris {

/// A body at a time.
struct RendezVous {
  Astre astre;
  InstantUTC utc;
};

/// The voyage that sights are looked for on.
struct CadreExercice {
  ConditionsExercice conditions;
  RouteNavire route;
  LieuNavire lieu;      ///< true, at `reference`
  InstantUTC reference; ///< noon of the day, by the ship's longitude, whole seconds
};

/// What a day offers.
struct OffreExercice {
  std::vector<RendezVous> visees; ///< by time
  std::vector<Astre> caches;      ///< bodies that clouds hide
};

/// The ship's true place at a time.
LieuNavire LieuVrai(const CadreExercice &cadre, const InstantUTC &utc);

/// The sights that a day offers on a subject. The draw moves on.
/// @return nothing where the day doesn't offer enough: white nights, a Moon that is down
/// @throws Refus of the time
std::optional<OffreExercice> OffreDuJour(const CadreExercice &cadre, Tirage &tirage);

} // namespace velmaris

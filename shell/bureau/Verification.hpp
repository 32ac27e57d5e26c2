#pragma once

#include "complements/controle/Controle.hpp"
#include "sights/Observation.hpp"

#include <optional>

namespace velmaris {

/// A sight and what its reduction has left.
struct ViseeDite {
  Observation observation;
  ResultatDit dit;
  bool operator==(const ViseeDite &) const = default;
};

/// The sight whose results are shown, and its check against the sky of today once it is worked out.
struct Verification {
  std::optional<ViseeDite> visee;    ///< none before a reduction, and after one that failed
  ReglagesControle reglages;         ///< of air, horizon and sextant
  std::optional<ViseeDite> verifiee; ///< that `fiche` is of, by these settings
  FicheControle fiche;               ///< means something while `verifiee` is `visee`
};

} // namespace velmaris

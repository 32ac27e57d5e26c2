#pragma once

#include "complements/exercice/Correction.hpp"
#include "complements/exercice/Exercice.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// The practice as its window shows it. It goes on until another one is begun, whether the window is open or not.
struct ExerciceOuvert {
  std::optional<ExerciceComplet> enCours;         ///< none before a first one
  std::vector<std::optional<Observation>> typees; ///< by its sights: what the panel held when each was reduced last
  std::optional<CorrectionExercice> correction;   ///< once it was asked for, of `corrigees`
  std::optional<LieuNavire> point;                ///< the fix that was judged
  std::vector<std::size_t> corrigees;             ///< sights that are judged, in the order of the correction's
  std::vector<Exercice> anciens;                  ///< practices before it: their sights stay out of the log too
  bool repris = false;                            ///< the store was asked for the last practice of an earlier start
  bool aMontrer = true;                           ///< something has changed that the window doesn't show yet
  std::string langue;                             ///< that the window's words are in
};

} // namespace velmaris

#pragma once

#include "complements/controle/Glissades.hpp"
#include "complements/exercice/Exercice.hpp"
#include "sights/Observation.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// What a typed sight shows against the one that was offered.
enum class AvisCorrection : std::uint8_t {
  PasOfferte,  ///< no sight of this body was offered
  Illisible,   ///< `refus` tells what the fields lack
  Temps,       ///< the time isn't that of the offered sight
  Lecture,     ///< the reading isn't the one that was shown
  Collimation, ///< the index correction isn't the measured one
  HauteurOeil, ///< the height of the eye isn't the given one
  Bord,        ///< another limb
  Loin,        ///< the line lies over three of its deviations and a mile off the truth
};

/// One typed sight judged.
struct VerdictVisee {
  std::vector<AvisCorrection> avis;   ///< by their order above, each once; empty for a good one
  std::optional<std::size_t> offerte; ///< which of the offered sights it is, the nearest in time of its body
  std::optional<RaisonRefus> refus;
  double ecart = 0;                ///< miles from the true place to the line, positive towards the body
  std::vector<Glissade> glissades; ///< single slips that would explain it: first those that agree best with what was
                                   ///< shown, of these the one that leaves least
};

/// How good the user's own fix is.
struct VerdictPoint {
  double distance = 0;  ///< miles from the true place
  double direction = 0; ///< degrees, true, from the true place to the fix
  double attendu = 0;   ///< miles that 95 of 100 fixes of these sights lie within; 0 where they make none
  double estime = 0;    ///< miles that the dead reckoning was off
};

/// A practice judged.
struct CorrectionExercice {
  std::vector<VerdictVisee> visees;  ///< in the order of the typed ones
  std::optional<VerdictPoint> point; ///< with a typed fix
};

/// Judges what the user made of a practice. It changes nothing and never throws; any thread may call it.
/// @param typees  his sights, as the fields of the panel have them
/// @param point   his fix, at the time that was asked for
CorrectionExercice CorrigeExercice(const ExerciceComplet &complet, std::span<const Observation> typees,
                                   const std::optional<LieuNavire> &point);

} // namespace velmaris

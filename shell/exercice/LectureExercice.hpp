#pragma once

#include "shell/complements/ExerciceEnCours.hpp"

#include <optional>

namespace velmaris {

/// Puts seed and conditions into the fields.
void PoseDemande(FenetreExercice &fenetre, const DemandeExercice &demande);

/// The practice that the fields ask for; a field that can't be used is marked.
/// @return nothing while there is one
std::optional<DemandeExercice> LitDemandeExercice(FenetreExercice &fenetre);

/// The user's fix; a field that can't be used is marked, an empty one isn't.
/// @return nothing without both
std::optional<LieuNavire> LitPointExercice(FenetreExercice &fenetre);

/// The graded practice that the fields hold.
/// @return its place, 0 to 9; -1 for a practice of the user's own
int NiveauDesChamps(FenetreExercice &fenetre);

} // namespace velmaris

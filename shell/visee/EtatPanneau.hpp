#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// What a control holds by its user's doing, as a text.
/// @return nothing for one that its user can't change
std::optional<std::string> ValeurTenue(const Controle &controle);

/// Whether a control holds nothing of its own: the short list of stars is made from the fields as they are when it is
/// made, and shows what the whole list has chosen.
bool EstSuiveur(const Donnees &donnees, const Controle &controle);

/// Pours a sight into the panel as a stored line is poured: each choice and field with what its change sets in motion.
/// @param visibles  of the box that shortens the list of stars
void VerseVisee(Bureau &bureau, const Observation &observation, int visibles);

/// What the controls of the main window hold, those that follow another left out, in the order of its table.
std::vector<EtatControle> PriseControles(Donnees &donnees);

/// Puts what controls held back into them. Those of the sight come first, in the order in which a stored line is
/// poured, each with what its change sets in motion; all others take their value and nothing runs. A control or a value
/// that doesn't exist is passed over.
void RemetControles(Bureau &bureau, const std::vector<EtatControle> &controles);

} // namespace velmaris

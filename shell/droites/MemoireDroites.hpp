#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>

namespace velmaris {

/// A field of a stored line, empty when it was never stored.
/// @param champ  with its opening bracket, as in "T3("
std::string LitChampDroite(const Bureau &bureau, std::string_view champ, int ligne);

/// Stores the sight of the panel in a line, with the azimuth and intercept last computed: all of it or, after a crash,
/// what was there.
/// @throws Erreur 6 when azimuth or intercept leave 32 bits a thousandfold; nothing is stored then
void EnregistreDroite(Bureau &bureau, int ligne);

/// Erases a line in the store, all of it at once.
void EffaceDroite(Bureau &bureau, int ligne);

/// Pours a stored line into the panel, field by field, each with what its change sets in motion. A choice that doesn't
/// exist changes nothing.
void ChargeDroite(Bureau &bureau, int ligne);

/// A stored line as a sight of its own; the panel stays as it is. A choice that doesn't exist is none.
/// @return nothing for a line that was never stored, or erased
std::optional<Observation> ObservationGardee(Bureau &bureau, int ligne);

/// Shows what the store holds of the four lines: date, time, and the body's name as the button's tool tip.
void MajListeDroites(Bureau &bureau);

/// Fills a row of the print page from the panel and shows it.
/// @param rangee  row of the page, 0 to 3
/// @param ligne   line that its title tells, 0 to 3
void PublieLigneImpression(Bureau &bureau, int rangee, int ligne);

} // namespace velmaris

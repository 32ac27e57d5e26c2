#pragma once

#include "shell/bureau/Bureau.hpp"

#include <functional>
#include <optional>
#include <string>

namespace velmaris {

/// What stands at the end of a line of position.
struct NomDroite {
  std::string astre;  ///< the body's name
  std::string heure;  ///< of the sight, as typed
  std::string minute; ///< likewise
};

/// The name of the line of a sight at hand, if it is its own.
/// @param reduite  whether the sight was reduced
std::optional<NomDroite> NomReduite(const Bureau &bureau, const Observation &observation, bool reduite);

/// Draws on the main window's surface, and names the line of position that it got thereby, if any: body and time stand
/// at one of its two ends, in a layer of their own.
/// @param nom  none where the line isn't that of the sight at hand: one that can't be reduced draws the last one's
/// @param trace  what draws
void TraceNommee(Bureau &bureau, const std::optional<NomDroite> &nom, const std::function<void()> &trace);

/// Reads from the settings whether names of lines are to be seen: at first they are.
void LitBouts(Bureau &bureau);

/// Names of lines are to be seen, or no longer; kept at once.
void PU_Bouts_Click(Bureau &bureau, int indice);

} // namespace velmaris

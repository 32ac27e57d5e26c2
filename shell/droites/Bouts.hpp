#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

namespace velmaris {

/// How far a surface was drawn.
struct EtatDessin {
  std::uint64_t effacements = 0;
  std::size_t traces = 0;
};
EtatDessin EtatDe(const Surface &surface);

/// Names the line of position that the main window's surface got since then, if any: body and time stand at one of its
/// two ends, in a layer of their own.
/// @param astre  the body's name
/// @param heure, minute  of the sight, as typed
void NommeBout(Bureau &bureau, const EtatDessin &avant, const std::string &astre, const std::string &heure,
               const std::string &minute);

/// Reads from the settings whether names of lines are to be seen: at first they are.
void LitBouts(Bureau &bureau);

/// Names of lines are to be seen, or no longer; kept at once.
void PU_Bouts_Click(Bureau &bureau, int indice);

} // namespace velmaris

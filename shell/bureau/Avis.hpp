#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Tells something in the status line for a while: why a click did nothing, say. It stops nothing and asks nothing.
void Avise(Bureau &bureau, std::string mots);

/// Tells what a field takes whose text was refused, and so has been emptied.
/// @param tape  the text that was refused
void AviseRefus(Bureau &bureau, const Controle &champ, const std::string &tape);

/// A beat of the clock, after some of which nothing is told any more.
void VieillitAvis(Bureau &bureau);

} // namespace velmaris

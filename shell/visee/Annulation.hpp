#pragma once

#include "shell/bureau/Bureau.hpp"

#include <functional>
#include <string>

namespace velmaris {

/// The state that undo puts back, as it is now.
EtatRevocable PriseEtat(Bureau &bureau);

/// Enters a gesture that has changed something, after which none can be redone; past `kPasGardes` the oldest goes.
void RetientPas(Annulations &annulations, PasRevocable pas);

/// Runs a gesture of the user and keeps it to be undone, where it has changed something. One that fails is kept too:
/// what it had done stands.
/// @param nom  what the user is told of it when it is undone
void RetientGeste(Bureau &bureau, const std::string &nom, const std::function<void()> &geste);

} // namespace velmaris

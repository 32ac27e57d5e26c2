#pragma once

#include "shell/Reprise.hpp"

namespace velmaris {

/// Puts a session into a program that has just started: panel, zoom, grid, modules, sheet with its lines and
/// transports, chart, results, objects that no file has. Nothing is reduced but to draw stored lines again, as a zoom
/// does, nothing is entered in the journal.
void ReprendSession(Bureau &bureau, const Session &session);

/// Asks once whether the session that a program before has left is to be taken up, where there is one; it is asked of
/// by no later start. A program that is ended while it asks leaves it to be asked again.
/// @param sansQuestion  the user has asked for it already
void ProposeReprise(Bureau &bureau, bool sansQuestion);

} // namespace velmaris

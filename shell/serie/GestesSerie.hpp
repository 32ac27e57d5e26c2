#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <functional>
#include <string>

namespace velmaris {

/// Runs a gesture of the window's user and keeps it to be undone, where readings, distances or fields are others after
/// it; past `kPasGardes` the oldest goes.
/// @param nom  what the user is told of it when it is undone
void RetientGesteSerie(Bureau &bureau, const std::string &nom, const std::function<void()> &geste);

/// Notes that the main window has a gesture more, made from this one: here too it is the latest to be undone.
/// @param avant  how many it had before: nothing is noted where it has no more now
void NoteGesteAuPanneau(Bureau &bureau, std::size_t avant);

/// Tells something in the window until its next gesture, and in the status line for a while.
void DitSerie(Bureau &bureau, const std::string &mots);

/// Takes the latest gesture back: in the window's lists, or in the panel where it put a result there. What it was, or
/// that there is none, is told in the window.
void AnnuleSerie(Bureau &bureau);

/// Makes the gesture that was taken back last again.
void RetablitSerie(Bureau &bureau);

} // namespace velmaris

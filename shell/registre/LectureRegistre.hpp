#pragma once

#include "shell/bureau/Bureau.hpp"

#include <functional>
#include <string>
#include <vector>

namespace velmaris {

/// Reads journals, notes and watch again, and filters the rows by what the window's fields hold: beside the interface,
/// what comes being shown once it is there. An older reading that is still under way is given up. Rows that are chosen
/// stay so where they still show.
void DemandeRegistre(Bureau &bureau);

/// The same at once: for what can't wait. Files that haven't changed aren't read again.
void LitRegistreAussitot(Bureau &bureau);

/// A beat of the clock: lines that wait are tried again; while the window shows, journals that have changed are read
/// again.
void BatRegistre(Bureau &bureau);

/// Says something of rows: a line each in "masques.csv", for those of which it says something new. A file that can't be
/// written is told once, and nothing is then said.
/// @param identites  of the rows
/// @param dit        what is said, given what was
void Annote(Bureau &bureau, const std::vector<std::string> &identites, const std::function<void(Annotation &)> &dit);

/// Adds a comparison of the watch to "montre.csv", in the same way.
void AjouteReleve(Bureau &bureau, const ReleveMontre &releve);

/// The present moment as the files have it.
std::string InstantPresent(const Bureau &bureau);

} // namespace velmaris

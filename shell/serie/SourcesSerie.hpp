#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Adds the readings of the chosen body that the log has: among the rows that are ticked for the fix, where some are of
/// it, else among those of the last watch; of these the ones within an hour of the latest. Eye and index become those
/// of the latest.
/// @return how many have come
std::size_t ReprendDuRegistre(Bureau &bureau, const Astre &astre);

/// Asks for a file of readings, which take the place of the listed ones. A line that is none is told.
/// @return whether there are others
bool OuvreLectures(Bureau &bureau);

/// Asks for a file, and writes the readings that have their angle.
void EcritLectures(Bureau &bureau);

/// A file of readings as `LitSerie` takes it, times to the second, minutes to the thousandth.
std::string TexteLectures(const std::vector<LectureListee> &lectures);

} // namespace velmaris

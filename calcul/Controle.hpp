#pragma once

#include <string>

namespace velmaris {

/// Reduces one saved sight, checks it against the sky of today and tells both as one JSON object on a line. A reading
/// of 0 is told as `reduit` tells it. Without a figure of today "actuel" and "ecart" are null, and "erreur" has the
/// reason. Any thread may call it.
/// @param fichier  the file's name, also told in the object
/// @param dut1     UT1 - UTC, seconds
/// @param sortie   the line is appended to it
/// @return false when the object holds an error: no such file, no reduction, or no figure of today
bool ControleFichier(const std::string &fichier, double dut1, std::string &sortie);

} // namespace velmaris

#pragma once

#include "complements/point/Point.hpp"

#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// What a fix is asked for, as it is typed.
struct DemandePointDit {
  std::vector<std::string> fichiers;
  std::optional<double> cap;     ///< degrees, true
  std::optional<double> vitesse; ///< knots
  std::string route;             ///< a file's name; empty for none
  std::string heure;             ///< of the fix; empty for that of the last sight
  std::string theorie = "actuelle";
  std::optional<double> ecartType; ///< assumed error of a height, minutes
  double dut1 = 0;                 ///< UT1 - UTC, seconds
};

/// Reduces saved sights and tells their fix as one JSON object on a line. A sight that isn't in it has a line of its
/// own before, as `reduit` tells it, and a residual of null. Common errors are unknowns where the sights allow it.
/// @param sortie  the lines are appended to it
/// @return false when a line holds an error: a file, a route, or no fix
bool EcritPoint(const DemandePointDit &demande, std::string &sortie);

} // namespace velmaris

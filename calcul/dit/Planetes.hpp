#pragma once

#include <string>

namespace velmaris {

/// A planet and a moment, as the command line gives them.
struct DemandePlanete {
  std::string nom;
  double JD = 0.0; ///< Julian day, UTC
};

/// Tells one place of a planet as one JSON object on a line.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error: a body without series, or a date beyond all reckoning
using EcritPlanete = bool (*)(const DemandePlanete &demande, std::string &sortie);

/// The heliocentric place, L|B|R.
bool EcritHelio(const DemandePlanete &demande, std::string &sortie);

/// The apparent place, five fields between bars; the name's spelling decides over diameter and magnitude.
bool EcritPlace(const DemandePlanete &demande, std::string &sortie);

} // namespace velmaris

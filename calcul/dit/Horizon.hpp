#pragma once

#include <string>

namespace velmaris {

/// An equatorial place, a moment and a station, as the command line gives them.
struct DemandeHorizon {
  std::string date;      ///< JJ/MM/AAAA
  std::string heure;     ///< HH:MM:SS, UTC
  double AD = 0.0;       ///< right ascension, degrees
  double Dec = 0.0;      ///< declination, degrees
  double latitude = 0.0; ///< degrees, north positive
  double lonEst = 0.0;   ///< degrees, east positive
};

/// Tells the azimuth and altitude as one JSON object on a line.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error: an impossible date or time, or a place without an azimuth
bool EcritHorizon(const DemandeHorizon &demande, std::string &sortie);

} // namespace velmaris

#pragma once

#include <string>
#include <string_view>

namespace velmaris {

/// A moment and a station, as the command line gives them.
struct DemandeLune {
  double an = 0.0; ///< the moment, UTC
  double mois = 0.0;
  double jour = 0.0;
  double heure = 0.0;
  double minute = 0.0;
  double seconde = 0.0;
  double latitude = 0.0;     ///< degrees, north positive
  double lonEst = 0.0;       ///< degrees, east positive
  std::string langue = "fr"; ///< of the right ascension's label
};

/// Tells the Moon's place as one JSON object on a line: from the Earth's centre, then from the station.
/// @param labelAD  words before the right ascension
/// @param sortie   the line is appended to it
/// @return false when the object holds an error
bool EcritLune(const DemandeLune &demande, std::string_view labelAD, std::string &sortie);

} // namespace velmaris

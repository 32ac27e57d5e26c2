#pragma once

#include <optional>
#include <string>

namespace velmaris {

/// A day that is planned, as it is typed.
struct DemandePrepare {
  std::string date;     ///< day "/" month "/" year, of zone time
  double latitude = 0;  ///< degrees, north positive
  double longitude = 0; ///< degrees, east positive
  std::string heure;    ///< hour ":" minute ":" second, UTC; empty for the middle of the evening's window for stars
  std::optional<double> cap;     ///< degrees, true
  std::optional<double> vitesse; ///< knots
  double oeil = 0;               ///< height of the eye, metres
  double collimation = 0;        ///< index correction, minutes of arc, to be added to a reading
  double dut1 = 0;               ///< UT1 - UTC, seconds
};

/// Tells twilights, Sun and Moon of a day, the bodies to be taken at a time with their presets, and the best sets of
/// them, as one JSON object on a line. The position is the ship's at that time, or at 12 h UTC when none is typed.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error
bool EcritPrepare(const DemandePrepare &demande, std::string &sortie);

} // namespace velmaris

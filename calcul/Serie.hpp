#pragma once

#include "foundations/Langue.hpp"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace velmaris {

/// What a run of readings is reduced by, as it is typed.
struct DemandeSerie {
  std::string corps;               ///< as typed
  double latitude = 0;             ///< degrees, north positive
  double longitude = 0;            ///< degrees, east positive
  std::string fichier;             ///< of readings that are corrected for index and dip already
  std::optional<double> ecartType; ///< assumed error of a reading, minutes
  double dut1 = 0;                 ///< UT1 - UTC, seconds
};

/// Declares the verb "serie" and its arguments.
/// @param dit    the user's language; it must outlive the program's parser
/// @param serie  what is typed goes there; it must outlive it too
CLI::App *DeclareSerie(CLI::App &programme, const Langue &dit, DemandeSerie &serie);

/// Reduces a run of readings to one and tells it as one JSON object on a line. Nobody being there to be asked, a
/// reading that is marked as improbable is left out, one at a time, and told.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error
bool EcritSerie(const DemandeSerie &demande, std::string &sortie);

} // namespace velmaris

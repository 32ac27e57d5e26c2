#pragma once

#include "shell/bureau/Bureau.hpp"

#include <array>
#include <string>
#include <vector>

namespace velmaris {

/// The words of the window, in its language. A list of warnings holds a line for each.

/// What is to be known of a run: what stands out, what would explain it.
/// @param p  with a run that is of its readings
std::vector<std::string> MotsAvisSerie(const Bureau &bureau);

/// Why the run's one reading isn't to be trusted as it is: the gravest of its warnings; empty for a good run.
std::string MotsDoute(const Bureau &bureau);

/// What is to be known of a noon.
std::vector<std::string> MotsAvisMidi(const Bureau &bureau);

/// What is to be known of the clock from the Moon.
std::vector<std::string> MotsAvisLune(const Bureau &bureau);

/// The results of a run: time and reading, its doubt, the doubt by the scatter, the slope; empty without a run.
/// @param ecartType  assumed error, minutes
std::array<std::string, 4> MotsResultatSerie(const Bureau &bureau, double ecartType);

/// Those of a noon: passage, top, latitude, highest reading, longitude; each empty where there is none.
std::array<std::string, 5> MotsResultatMidi(const Bureau &bureau);

/// The longitude by equal altitudes.
std::string MotsEgales(const Bureau &bureau);

/// Those of the clock: watch error, true time, second solution.
std::array<std::string, 3> MotsResultatLune(const Bureau &bureau);

/// Seconds as minutes and seconds: "2 min 05 s".
std::string MotsDuree(double secondes);

/// Angle with its doubt: "47° 10.3' N  ± 0.3'".
/// @{
std::string MotsLatitude(const LatitudeMidi &latitude);
std::string MotsLongitude(const LongitudeMidi &longitude);
/// @}

} // namespace velmaris

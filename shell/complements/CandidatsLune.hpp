#pragma once

#include "complements/lunaire/Classement.hpp"
#include "shell/bureau/Bureau.hpp"

#include <vector>

namespace velmaris {

/// Ranks the bodies for a lunar distance that a navigator would take: the Sun, planets, and the stars that shine enough
/// to be brought to the Moon.
/// @param dut1  UT1 - UTC, seconds
/// @return none where the time or the place has no sky
std::vector<CandidatLunaire> CandidatsLune(const InstantUTC &utc, const LieuNavire &lieu, double hauteurOeil,
                                           const AirMesure &air, double dut1);

/// Fills a table with them: body, distance of the limbs, how fast it moves, and the Moon's limb or why it is of no use.
void PoseCandidatsLune(const Bureau &bureau, const std::vector<CandidatLunaire> &candidats, Tableau &tableau);

} // namespace velmaris

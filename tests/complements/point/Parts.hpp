#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

/// How many draws a test makes, and how their shares are judged.
namespace velmaris::essais {

/// What VELMARIS_VOYAGES asks for; 0 when it asks for nothing.
inline int Voulus() {
  const char *voulu = std::getenv("VELMARIS_VOYAGES");
  return voulu == nullptr ? 0 : std::atoi(voulu);
}

/// How many draws: few in every run of the tests, else as many as are asked for, up to the whole.
inline int Tirages(int peu, int tous) { return Voulus() > 0 ? std::clamp(Voulus(), peu, tous) : peu; }

/// Whether figures are told: those of the whole run are to be read.
inline bool Raconte() { return Voulus() > 0; }

/// A share of draws stands within four deviations of what it should be, and within a latitude more.
inline void AttendPart(int compte, int sur, double part, double latitude) {
  const double ecart = 4 * std::sqrt(part * (1 - part) / sur) + latitude;
  EXPECT_NEAR(static_cast<double>(compte) / sur, part, ecart) << compte << " of " << sur;
}

} // namespace velmaris::essais

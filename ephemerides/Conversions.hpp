#pragma once

#include <cmath>

/// Degrees and radians by way of the arctangent of 1, an eighth of a turn in full precision. Planetary places hold no
/// degree constant; the product comes before the quotient.
namespace velmaris {

inline double EnRadians(double degres) { return (degres * std::atan(1.0)) / 45; }
inline double EnDegres(double radians) { return (radians * 45) / std::atan(1.0); }

} // namespace velmaris

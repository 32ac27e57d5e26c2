#pragma once

#include <cmath>

namespace velmaris {

/// Degrees as radians by way of the arctangent of 1, an eighth of a turn in full precision: planetary places hold no
/// degree constant. The product comes before the quotient.
inline double EnRadians(double degres) { return (degres * std::atan(1.0)) / 45; }

/// Radians as degrees, the same way.
inline double EnDegres(double radians) { return (radians * 45) / std::atan(1.0); }

} // namespace velmaris

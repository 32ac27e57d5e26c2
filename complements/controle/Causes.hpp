#pragma once

#include <cstdint>

namespace velmaris {

/// Why the told figures differ from the sky of today.
enum class Cause : std::uint8_t {
  Etoile,       ///< the row of the star table, as it is read, lies off its star
  Signe,        ///< a declination between 0 and 1 degree south is read as north
  Horizon,      ///< the body stands below the horizon; no part belongs to it
  Refraction,   ///< the told refraction, and that of the set pressure and temperature
  Depression,   ///< the told dip, and that of a near shore
  Temps,        ///< Universal Time serves as dynamical time and as UTC
  Artificiel,   ///< off an artificial horizon refraction and limb are halved with the angle
  Lieu,         ///< what else the told theory's place lies off: short series, widths, no aberration
  Parallaxe,    ///< planets have none, the Moon's is that of a sphere and of the computed height
  DemiDiametre, ///< one for all dates, or not augmented
  ErreurArc,    ///< the sextant's own error, which only the settings know
};

/// One cause and its part.
struct PartCause {
  Cause cause = Cause::Lieu;
  double minutes = 0; ///< of the difference of intercepts, today's less the told one, minutes of arc
  bool operator==(const PartCause &) const = default;
};

/// From here on a cause is named, minutes of arc.
inline constexpr double kPartNommee = 0.3;

} // namespace velmaris

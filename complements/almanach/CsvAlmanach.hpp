#pragma once

#include "complements/almanach/Almanach.hpp"

#include <string>

namespace velmaris {

/// The figures of an almanac as a text of rows with commas, a point for decimals and LF at each end, in sections. Each
/// row begins with its kind; the first row of a kind names its columns, with "#" before the kind:
///   heure    one a body an hour: utc, body, GHA and declination as printed and in degrees, HP, v and d of that hour
///   jour     one a body a day: v, d, HP, semidiameter, magnitude, passages
///   date     one a day: equation of time at 0 h and 12 h, the Moon's age and lit part, lower passage, Aries' passage
///   etoile   one a star every three days: SHA and declination
///   soleil   one a latitude every three days: twilights, rise, set
///   lune     one a latitude a day: rise, set
/// A time that there is none of is a sign: "+" stays above, "-" stays below, "" not on that day.
std::string EcritAlmanachCsv(const Almanach &almanach);

} // namespace velmaris

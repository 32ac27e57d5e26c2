#pragma once

#include "complements/ciel/Instants.hpp"

#include <string>

/// Numbers as pages and windows of the complements write them.
namespace velmaris {

/// A number to the tenth: "0.7".
std::string Dixiemes(double valeur);

/// The same with its sign: "+0.7"; what is rounded to 0 has none.
std::string DixiemesSignes(double valeur);

/// A direction as three digits: "045°". What is rounded up to 360 is 000.
std::string TexteDirection(double degres);

/// An angle in degrees and tenths of minutes: "47° 10.3'"; negative with its sign.
std::string TexteAngleSigne(double degres);

/// A latitude, north positive: "47° 10.3' N"; a longitude, east positive: "4° 44.1' W".
std::string TexteLatitude(double degres);
std::string TexteLongitude(double degres);

/// A date as its field shows it, "21/06/2026", and a time, "12:05:30". An instant is rounded to the second first.
std::string TexteDate(const InstantUTC &utc);
std::string TexteHeureUtc(const InstantUTC &utc);

/// A time to the nearest minute: "12:06".
std::string TexteHeureMinute(const InstantUTC &utc);

} // namespace velmaris

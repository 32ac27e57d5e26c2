#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/Instants.hpp"
#include "complements/point/Route.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Words that the windows of the complements share, in the language of the window.

/// A number to the tenth: "0.7".
std::string Dixiemes(double valeur);

/// The same with its sign: "+0.7".
std::string DixiemesSignes(double valeur);

/// A place in tenths of a minute: "47° 10.3' N  004° 44.1' W".
std::string TexteLieu(const LieuNavire &lieu);

/// A direction as three digits: "045°". What is rounded up to 360 is 000.
std::string TexteDirection(double degres);

/// A date as its field shows it, "21/06/2026", and a time, "12:05:30". An instant is rounded to the second first.
std::string TexteDate(const InstantUTC &utc);
std::string TexteHeureUtc(const InstantUTC &utc);

/// A time to the nearest minute: "12:06".
std::string TexteHeureMinute(const InstantUTC &utc);

/// An angle in degrees and tenths of minutes: "47° 10.3'"; negative with its sign.
std::string TexteAngleSigne(double degres);

/// A body by its name, the Sun, the Moon and planets as the panel's lists have them; a star without a name by its
/// letter and constellation.
std::string NomDAstre(const Bureau &bureau, const Astre &astre);

/// The body of a sight.
std::string NomDeVisee(const Donnees &donnees, const Observation &observation);

} // namespace velmaris

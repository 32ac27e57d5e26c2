#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/Instants.hpp"
#include "complements/papier/Nombres.hpp"
#include "complements/point/Route.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Words that the windows of the complements share, in the language of the window.

/// A place in tenths of a minute: "47° 10.3' N  004° 44.1' W".
std::string TexteLieu(const LieuNavire &lieu);

/// An angle as its field shows it: "47 10.3 N".
/// @param chiffres     of its whole degrees, 2 or 3
/// @param plus, moins  letters of its side, by its sign
std::string AngleTape(double degres, int chiffres, char plus, char moins);

/// The present moment, whole seconds.
InstantUTC PresentUTC(const Bureau &bureau);

/// A body by its name, the Sun, the Moon and planets as the panel's lists have them; a star without a name by its
/// letter and constellation.
std::string NomDAstre(const Bureau &bureau, const Astre &astre);

/// The body of a sight.
std::string NomDeVisee(const Donnees &donnees, const Observation &observation);

} // namespace velmaris

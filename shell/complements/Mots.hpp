#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/papier/Nombres.hpp"
#include "complements/point/Route.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Words that the windows of the complements share, in the language of the window.

/// A place in tenths of a minute: "47° 10.3' N  004° 44.1' W".
std::string TexteLieu(const LieuNavire &lieu);

/// A body by its name, the Sun, the Moon and planets as the panel's lists have them; a star without a name by its
/// letter and constellation.
std::string NomDAstre(const Bureau &bureau, const Astre &astre);

/// The body of a sight.
std::string NomDeVisee(const Donnees &donnees, const Observation &observation);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <vector>

namespace velmaris {

/// The bodies that can be chosen: the Sun, the Moon, planets, the named stars that have a place.
/// @param avecLune  the Moon too
const std::vector<Astre> &AstresAChoisir(bool avecLune);

/// Where a body stands in that list.
/// @return 0, the Sun, for one that isn't there
std::size_t PlaceDansLaListe(const Astre &astre, bool avecLune);

/// The words of the window's drop-down lists, in its language; what is chosen in them stays, at first their first
/// lines.
void PoseListes(Bureau &bureau);

/// Chooses a line of a drop-down list from code; nothing else happens.
void PoseChoisi(Controle &liste, std::size_t rang);

/// The body that a list has chosen.
Astre AstreDeLaListe(const Controle &liste, bool avecLune);

} // namespace velmaris

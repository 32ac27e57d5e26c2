#pragma once

#include "complements/point/Route.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The legs of a route file, or the line at fault.
struct RouteLue {
  std::vector<Jambe> jambes;
  std::size_t ligneFautive = 0; ///< from 1; 0 when all lines were read
};

/// Reads a route file: a line a leg, "JJ/MM/AAAA HH:MM:SS CAP VITESSE", UTC, degrees true from 0 to 360, knots from 0
/// to 100, with a decimal point or comma. Each holds from its time on. Empty lines, and those that begin with "#", are
/// passed over.
/// @param octets  the whole file, UTF-8 or Windows-1252
RouteLue LitRoute(std::string_view octets);

/// Reads one instant, "JJ/MM/AAAA HH:MM:SS", UTC.
/// @throws Erreur 13 for what is none, Refus AnneeHorsLimites outside 1800 to 2199
InstantUTC LitInstant(std::string_view texte);

/// The text of an instant in the same form, to the nearest second.
std::string TexteInstant(const InstantUTC &utc);

} // namespace velmaris

#pragma once

#include "complements/ciel/TablesCiel.hpp"
#include "ephemerides/Etoiles.hpp"

#include <optional>

namespace velmaris {

/// From here on a row of the star table is marked, minutes of arc.
inline constexpr double kLigneMarquee = 5;

/// How far a row, as it is read, lies from its star; equinox and epoch J2000.0.
/// @param rang  1 to 246
/// @return minutes of arc; nothing for row 67, whose star has no place, and for what is no row
std::optional<double> EcartDeLigne(const Etoiles &etoiles, int rang);

/// The star that a row describes as it is read: at the row's place of J2000.0, with the true star's motion and
/// parallax.
/// @param rang  1 to 246
/// @return nothing where the star has no place
std::optional<EtoileIcrs> EtoileDeLigne(const Etoiles &etoiles, int rang);

} // namespace velmaris

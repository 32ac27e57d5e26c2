#pragma once

#include "complements/exercice/Exercice.hpp"
#include "sights/Observation.hpp"

#include <cstddef>
#include <optional>

namespace velmaris {

/// A sight of a practice as a careful user types it into the panel: the reckoned position to whole minutes, the reading
/// whole, since a tenth of a minute is six seconds or ten hundredths.
/// @param fraction  what the last field of the reading is to count
Observation SaisieDe(const Exercice &exercice, const ViseeExercice &visee, Fraction fraction);

/// Which sight of a practice was typed, slips and all: of three things - the body, the day, the reading to a tenth of a
/// minute - so many agree. With two a slip of hour, body or reading leaves it the practice's, and a sight of the user's
/// own is taken for one of it by a chance of thousands.
/// @param accord  2, or 3 for a sight typed as it was offered
/// @return the sight that agrees best, the nearest in time first; nothing for one of the user's own
std::optional<std::size_t> ViseeReconnue(const Exercice &exercice, const Observation &typee, int accord);

} // namespace velmaris

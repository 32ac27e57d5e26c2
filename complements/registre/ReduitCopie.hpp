#pragma once

#include "complements/controle/Controle.hpp"
#include "ephemerides/Etoiles.hpp"
#include "foundations/Messages.hpp"
#include "sights/Observation.hpp"

#include <optional>

namespace velmaris {

/// Reduces a sight by the told road on records of its own: what the program shows stays as it is.
/// @param observation  its reading is brought into its form first, as before any reduction, and may be changed by it
/// @return nothing when the reading is 0, no body is chosen, or the reduction fails
std::optional<ResultatDit> ReduitCopie(Observation &observation, const Etoiles &etoiles, const TexteMsg &messages);

} // namespace velmaris

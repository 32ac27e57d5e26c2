#pragma once

#include "ephemerides/ModulePosLune.hpp"
#include "foundations/Messages.hpp"
#include "sights/Observation.hpp"

namespace velmaris {

/// The limb of the Moon that is lit, as far as the heights tell: the upper one while the Sun stands above the Moon,
/// else the lower one. A statement that fails is passed over.
/// @param valeurs  `HeureDecimale` is formed anew from the fields
/// @param lune     left with the moment and place of the fields
Bord BordEclaire(const Observation &observation, ValeursVisee &valeurs, Lune &lune, const TexteMsg &messages);

} // namespace velmaris

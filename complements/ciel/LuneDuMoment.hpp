#pragma once

#include "complements/ciel/CielDuMoment.hpp"

namespace velmaris {

/// The Moon from the Earth's centre, as it stands at the moment, ecliptic and mean equinox of J2000.0 of its theory.
/// @param tt  from 1900 to 2100
/// @return kilometres, within 10 m of the whole theory
/// @throws Refus LuneHorsTable
/// Source: ELP 2000-82B (Chapront-Touze and Chapront), by polynomials fitted to it over eight days each.
Vecteur3 LuneEcliptique(const InstantTT &tt);

/// The same, ICRS, astronomical units.
Vecteur3 LuneIcrs(const InstantTT &tt);

} // namespace velmaris

#pragma once

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Cosinus.hpp"

#include <limits>

namespace velmaris {

/// All terms of a series.
inline constexpr std::size_t kTousLesTermes = std::numeric_limits<std::size_t>::max() - 3;

/// A planet from the Sun, ICRS.
/// The series gives the place on the ecliptic and from the equinox of the date; it is brought back by the precession
/// that the series was made with, which isn't today's, then turned from its own dynamical frame to ICRS.
/// @param tt      the moment, thousands of Julian years of TT from J2000.0
/// @param limite  terms of each sum, the largest first: 64 leave some seconds of arc, enough for a light time
/// @return astronomical units
Vecteur3 Heliocentre(const SeriesCiel &series, double tt, std::size_t limite, Voie voie);

/// Thousands of Julian years from J2000.0.
double Millenaires(const InstantTT &tt);

} // namespace velmaris

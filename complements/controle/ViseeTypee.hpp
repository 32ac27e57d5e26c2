#pragma once

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Instants.hpp"
#include "sights/Observation.hpp"

#include <optional>
#include <vector>

namespace velmaris {

/// What the user tells of air, horizon and sextant, beside the sight itself.
struct ReglagesControle {
  double dut1 = 0;                       ///< UT1 - UTC, seconds
  double pression = 1010;                ///< hPa
  double temperature = 10;               ///< degrees Celsius
  std::optional<double> distanceHorizon; ///< sea miles to a shore that hides the horizon; none for the open sea
  std::vector<ErreurArc> erreursArc;     ///< the sextant's own, rows by growing reading
};

/// A sight's fields as numbers, read by the rules of the reductions but not rounded to their widths.
struct ViseeTypee {
  Astre astre;
  DateCivile date;        ///< as typed: it may be none that the calendar has
  Station station;        ///< the estimated position, at the eye's height
  LectureSextant lecture; ///< its arc errors are those of the settings, which must outlive it
};

/// Reads a sight's fields. An empty field is 0; eye height and index correction that can't be read are 0, as the
/// reductions of Sun and Moon have it; off the horizon's names all but "natural" is the artificial one; stars and
/// planets have no limb. The years of a star's or a planet's sight under 100 stand for 1930 to 2029, those of the Sun
/// and the Moon for themselves.
/// @throws Refus DateImpossible or HeureImpossible for a field that is no whole number (the second may be any),
///         AnneeHorsLimites, RangInconnu when no star or planet is chosen
ViseeTypee LitVisee(const Observation &observation, const ReglagesControle &reglages);

} // namespace velmaris

#pragma once

#include "complements/almanach/Almanach.hpp"
#include "complements/ciel/CielDuMoment.hpp"

/// One day of an almanac.
namespace velmaris {

/// The body that stands at a place of the almanac's order.
Astre AstreAlmanachDe(std::size_t rang);

/// A day some days later, at 0 h.
DateCivile JourPlusTard(const DateCivile &date, int jours);

/// The sky at an hour of a day; 24 is the next day's 0 h.
CielDuMoment CielDeLHeure(const DateCivile &date, int heure, double dut1);

/// Everything of a day but its rises and sets.
JourAlmanach JourSansHorizons(const DateCivile &date, double dut1);

/// How many days have gone since the last new moon: since the apparent longitudes of Sun and Moon were the same.
/// @throws Refus LuneHorsTable
double AgeDeLaLune(const InstantUTC &utc, double dut1);

/// Stars of a moment: the 57 in the order asked for, then Polaris.
std::vector<EtoileAlmanach> EtoilesDuMoment(const CielDuMoment &ciel, const Etoiles &etoiles, OrdreEtoiles ordre);

/// Twilights, rise and set of the Sun for each latitude, longitude 0, within the day whose sky it is.
std::vector<SoleilHorizon> SoleilAuxHorizons(const CielDuJour &ciel, const std::vector<double> &latitudes);

/// Rises and sets of the Moon.
std::vector<LuneHorizon> LuneAuxHorizons(const CielDuJour &ciel, const std::vector<double> &latitudes);

} // namespace velmaris

#pragma once

#include <cstdint>

/// Time scales of the complements. An instant is a Julian day in two parts, whose sum it is: the first a day at 0 h, so
/// that nothing of a second is lost. Each scale is a type of its own, which no other is taken for.
namespace velmaris {

/// Coordinated Universal Time as typed; before 1972 and from 2035 on it is Universal Time.
/// During a day that ends in a leap second the fraction counts parts of that longer day.
struct InstantUTC {
  double jour = 0;
  double fraction = 0;
  bool operator==(const InstantUTC &) const = default;
};

/// Universal Time: the Earth's rotation.
struct InstantUT1 {
  double jour = 0;
  double fraction = 0;
};

/// Terrestrial Time: what the theories run on; the dynamical time of the Sun's centre of mass lies within 2 ms of it.
struct InstantTT {
  double jour = 0;
  double fraction = 0;
};

/// A civil date and time, UTC, in the Gregorian calendar always.
struct DateCivile {
  int annee = 2000;
  int mois = 1;
  int jour = 1;
  int heure = 0;
  int minute = 0;
  double seconde = 0;
};

/// First and last year that the complements know a time of.
inline constexpr int kPremiereAnnee = 1800;
inline constexpr int kDerniereAnnee = 2199;

/// The instant of a civil date.
/// @throws Refus AnneeHorsLimites, DateImpossible or HeureImpossible; a second of 60 stands only in a leap second
InstantUTC UTCDe(const DateCivile &date);

/// The civil date of an instant.
/// @return seconds to the microsecond; 60 and more stand only in a leap second
DateCivile CivileDe(const InstantUTC &utc);

/// An instant some seconds later, its first part again a day at 0 h. Leap seconds in between don't count.
InstantUTC PlusTard(const InstantUTC &utc, double secondes);

/// How much later the second instant is, seconds; leap seconds in between don't count.
double SecondesEntre(const InstantUTC &de, const InstantUTC &a);

/// Whole seconds since the beginning of 1970, UTC, the nearest; a leap second counts as the one that follows it.
std::int64_t SecondesDe(const InstantUTC &utc);

/// The instant of whole seconds since the beginning of 1970, UTC.
InstantUTC UTCDeSecondes(std::int64_t secondes);

/// @param dut1  UT1 - UTC, seconds
InstantUT1 UT1De(const InstantUTC &utc, double dut1);

/// From 1972 to 2035 leap seconds and 32.184 s (after the last one known they stay what they are); before, Delta T as
/// measured; later a parabola of 32.5 s a century squared, which leaves the last value of 2034 without a step.
InstantTT TTDe(const InstantUTC &utc);

/// TT - UT1, seconds.
double EcartTT(const InstantTT &tt, const InstantUT1 &ut1);

/// TT - UT before 1972, as measured.
/// @param annee  year with its fraction, 1800 to 1972
/// @return seconds
/// Source: 1900 to 1972 yearly values of the Astronomical Almanac (K8), linear between; before, polynomials of Espenak
/// and Meeus (2006), which meet them within 0.03 s.
double DeltaTMesure(double annee);

/// The two scales that a sky is worked out for.
struct Moment {
  InstantTT tt;
  InstantUT1 ut1;
};

/// @param dut1  UT1 - UTC, seconds
/// @throws Refus as UTCDe
Moment MomentDe(const DateCivile &date, double dut1 = 0);

} // namespace velmaris

#pragma once

#include "foundations/Angles.hpp"
#include "sights/Corrections.hpp"

#include <cmath>

/// The short theory of the Sun: mean elements of 1900.0, two terms of the equation of centre, no nutation.
/// `Reel` is the width in which each named value is stored: 32 bits in a sight, where a true longitude over 39000
/// degrees then moves in steps of 0.004 degree, 64 bits in the live panel. Each statement that fails is passed over.
namespace velmaris {

/// Day number of a civil date at 0 h, with January and February counted in the year before.
/// Dates before 1582 October 15 keep the two days built into the constant.
/// @param jour   day of the month
/// @param mois   month; 1 and 2 are left as 13 and 14
/// @param annee  year; left one less for January and February
/// @return days
template <class Reel> Reel JourDuSoleil(double jour, double &mois, std::int16_t &annee) {
  if (mois < 3) {
    mois = mois + 12;
    Passe([&] { annee = Entier16(annee - 1.0); });
  }
  Reel JJ = 0;
  const double y = annee;
  Passe([&] { JJ = Range<Reel>(Fix(365.25 * y) + Fix(30.6001 * (mois + 1)) + jour + 1720996.5); });
  if (y + mois / 100 + jour / 10000 > 1582.10145) {
    Passe([&] { JJ = Range<Reel>(JJ - Fix(y / 100) + Fix(Fix(y / 100) / 4)); });
  }
  return JJ;
}

/// Greenwich sidereal time reduced to a day.
/// @param T0      Julian centuries from 1900.0 at 0 h
/// @param heures  hours since 0 h
/// @return hours
inline double TempsSideralSolaire(double T0, double heures) {
  const double S0 = 6.6460656 + 2400.051262 * T0;
  double ST = S0 + heures * 1.0027389;
  ST = ST - 24 * Int(ST / 24);
  return ST;
}

/// Place of the Sun, degrees.
template <class Reel> struct PlaceSoleil {
  Reel AD = 0;
  Reel Dec = 0;
};

/// Right ascension and declination of the Sun.
/// @param T  Julian centuries from 1900.0
template <class Reel> PlaceSoleil<Reel> CalculePlaceSoleil(double T) {
  constexpr double RAD = kRadCourt;
  Reel Ma = 0;
  Reel Lg = 0;
  Reel Eps = 0;
  Reel s = 0;
  PlaceSoleil<Reel> place;
  Passe([&] { Ma = Range<Reel>(358.47583 + 35999.04975 * T); });
  Passe([&] {
    Lg = Range<Reel>(279.69668 + 36000.76892 * T + (1.919 - 0.004789 * T) * std::sin(Ma * RAD) +
                     0.020094 * std::sin(2.0 * Ma * RAD) - 0.00569);
  });
  Passe([&] { Eps = Range<Reel>(23.452294 - 0.01301 * T); });
  Passe([&] { place.AD = Range<Reel>(std::atan(std::tan(Lg * RAD) * std::cos(Eps * RAD)) / RAD); });
  if (std::cos(Lg * RAD) < 0) {
    Passe([&] { place.AD = Range<Reel>(place.AD + 180.0); });
  }
  Passe([&] { s = Range<Reel>(std::sin(Lg * RAD) * std::sin(Eps * RAD)); });
  Passe([&] { place.Dec = Range<Reel>(std::atan(Divise(s, Racine(1.0 - double{s} * s))) / RAD); });
  return place;
}

/// Hour angles of the Sun, degrees.
template <class Reel> struct AnglesHoraires {
  Reel AHG = 0; ///< at Greenwich, in one turn
  Reel AHL = 0; ///< at the observer; exactly 360 stays 360
};

/// Hour angles from the sidereal time.
/// @param ST         hours
/// @param longitude  degrees, west positive
template <class Reel> AnglesHoraires<Reel> CalculeAnglesHoraires(double ST, Reel AD, double longitude) {
  AnglesHoraires<Reel> a;
  Passe([&] { a.AHG = Range<Reel>(15 * ST - AD); });
  Passe([&] { a.AHG = Range<Reel>(a.AHG - Int(a.AHG / 360.0) * 360.0); });
  Passe([&] { a.AHL = Range<Reel>(a.AHG - longitude); });
  if (a.AHL < 0) {
    Passe([&] { a.AHL = Range<Reel>(a.AHL + 360.0); });
  }
  if (a.AHL > 360.0) {
    Passe([&] { a.AHL = Range<Reel>(a.AHL - 360.0); });
  }
  return a;
}

/// Computed height and azimuth of a place.
/// @param Dec       declination, degrees
/// @param AHL       local hour angle, degrees
/// @param latitude  degrees, south negative
/// @param Hc        left as the computed height in degrees, or as it was when the body stands in the zenith
/// @param azimut    left as the azimuth in degrees; at a meridian passage its former value stays and the turn from
///                  east to west still acts on it
template <class Reel> void CalculeHauteurAzimut(Reel Dec, Reel AHL, Reel latitude, double &Hc, Reel &azimut) {
  constexpr double RAD = kRadCourt;
  Reel x = 0;
  Reel y = 0;
  Passe([&] {
    x = Range<Reel>(std::sin(latitude * RAD) * std::sin(Dec * RAD) +
                    std::cos(Dec * RAD) * std::cos(latitude * RAD) * std::cos(AHL * RAD));
  });
  Passe([&] { Hc = Range<double>(std::atan(Divise(x, Racine(1.0 - double{x} * x))) / RAD); });
  Passe([&] {
    y = Range<Reel>(Divise(std::sin(Dec * RAD) - std::sin(latitude * RAD) * std::sin(Hc * RAD),
                           std::cos(latitude * RAD) * std::cos(Hc * RAD)));
  });
  Passe([&] { azimut = Range<Reel>(ArcCosinus(y) / RAD); });
  if (AHL < 180.0) {
    Passe([&] { azimut = Range<Reel>(360.0 - azimut); });
  }
}

} // namespace velmaris

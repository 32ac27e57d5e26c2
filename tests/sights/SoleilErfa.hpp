#pragma once

#include <erfa.h>
#include <erfam.h>

#include <cmath>

/// The Sun by an outside judge: the Earth of VSOP from the library, aberration, and its rotation with nutation.
namespace velmaris::essais {

struct PlaceErfa {
  double AHG; ///< Greenwich hour angle, degrees
  double Dec; ///< apparent declination, degrees
  double AD;  ///< apparent right ascension, degrees
};

/// @param jd0, jd  Universal Time as a two-part Julian day; it serves as dynamical time too, which costs 0.001 degree
inline PlaceErfa SoleilErfa(double jd0, double jd) {
  double helio[2][3];
  double bary[2][3];
  eraEpv00(jd0, jd, helio, bary);
  double sens[3];
  for (int i = 0; i < 3; ++i) {
    sens[i] = -helio[0][i];
  }
  double distance = 0;
  double unite[3];
  eraPn(sens, &distance, unite);
  // Aberration moves the Sun back along the Earth's velocity, given in astronomical units a day.
  constexpr double kJourParUA = ERFA_AULT / ERFA_DAYSEC;
  for (int i = 0; i < 3; ++i) {
    unite[i] += bary[1][i] * kJourParUA;
  }
  double matrice[3][3];
  eraPnm06a(jd0, jd, matrice);
  double date[3];
  eraRxp(matrice, unite, date);
  double ad = 0;
  double dec = 0;
  eraC2s(date, &ad, &dec);
  const double ahg = eraAnp(eraGst06a(jd0, jd, jd0, jd) - ad);
  return {ahg * ERFA_DR2D, dec * ERFA_DR2D, eraAnp(ad) * ERFA_DR2D};
}

struct HorizonErfa {
  double azimut, hauteur; ///< degrees
};

/// The Sun in the geocentric horizon of a place.
/// @param latitude   degrees, north positive
/// @param longitude  degrees, west positive
inline HorizonErfa SoleilHorizonErfa(double jd0, double jd, double latitude, double longitude) {
  const PlaceErfa place = SoleilErfa(jd0, jd);
  double azimut = 0;
  double hauteur = 0;
  eraHd2ae((place.AHG - longitude) * ERFA_DD2R, place.Dec * ERFA_DD2R, latitude * ERFA_DD2R, &azimut, &hauteur);
  return {azimut * ERFA_DR2D, hauteur * ERFA_DR2D};
}

} // namespace velmaris::essais

#pragma once

#include <erfa.h>
#include <erfam.h>

namespace velmaris::essais {

/// Where a star stands in the sky, degrees.
struct HorizonJuge {
  double azimut = 0;
  double hauteur = 0;
};

/// ERFA's azimuth and height of a star, by the precession and nutation of 2006; without aberration.
/// @param ad, dec    place of the year 2000, degrees
/// @param jd0, jd    Julian date of the moment, in two parts
/// @param latitude   degrees, north positive
/// @param longitude  degrees, west positive
inline HorizonJuge HorizonParErfa(double ad, double dec, double jd0, double jd, double latitude, double longitude) {
  double j2000[3];
  double matrice[3][3];
  double date[3];
  eraS2c(ad * ERFA_DD2R, dec * ERFA_DD2R, j2000);
  eraPnm06a(jd0, jd, matrice);
  eraRxp(matrice, j2000, date);
  double adDate = 0;
  double decDate = 0;
  eraC2s(date, &adDate, &decDate);
  double azimut = 0;
  double hauteur = 0;
  const double angleHoraire = eraGst06a(jd0, jd, jd0, jd) - longitude * ERFA_DD2R - adDate;
  eraHd2ae(angleHoraire, decDate, latitude * ERFA_DD2R, &azimut, &hauteur);
  return {azimut * ERFA_DR2D, hauteur * ERFA_DR2D};
}

} // namespace velmaris::essais

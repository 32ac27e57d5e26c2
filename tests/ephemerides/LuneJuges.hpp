#pragma once

#include <erfa.h>
#include <erfam.h>
#include <libnova/libnova.h>

#include <cmath>

/// The Moon by two outside judges: the library's form of the shortened theory, and the whole theory ELP 2000-82B.
namespace velmaris::essais {

struct LuneJuge {
  double longitude = 0, latitude = 0; ///< mean ecliptic and equinox of date, radians
  double distance = 0;                ///< km
  double ad = 0, decl = 0;            ///< true equator and equinox of date, radians
};

constexpr double kSecondes = 206264.80624709636; ///< in a radian

/// A vector of the equator of J2000.0, in km, brought to the ecliptic and the equator of a Julian day.
inline LuneJuge DeJ2000(double jd, double vecteur[3]) {
  const double t = jd - ERFA_DJ00;
  double precession[3][3];
  double nutation[3][3];
  double moyen[3];
  double vrai[3];
  double ecliptique[3];
  eraPmat76(ERFA_DJ00, t, precession);
  eraNutm80(ERFA_DJ00, t, nutation);
  eraRxp(precession, vecteur, moyen);
  eraRxp(nutation, moyen, vrai);
  double rotation[3][3];
  eraIr(rotation);
  eraRx(eraObl80(ERFA_DJ00, t), rotation);
  eraRxp(rotation, moyen, ecliptique);
  LuneJuge juge;
  eraP2s(ecliptique, &juge.longitude, &juge.latitude, &juge.distance);
  eraC2s(vrai, &juge.ad, &juge.decl);
  return juge;
}

/// The shortened theory, within 18.3 seconds of arc and 31.7 km of the whole one by its authors' word.
/// @param jd  Julian day of dynamical time
inline LuneJuge LuneErfa(double jd) {
  double pv[2][3];
  eraMoon98(ERFA_DJ00, jd - ERFA_DJ00, pv);
  for (double &x : pv[0]) {
    x *= ERFA_DAU / 1000;
  }
  return DeJ2000(jd, pv[0]);
}

/// The whole theory: some 36000 terms.
/// @param jd  Julian day of dynamical time
inline LuneJuge LuneEntiere(double jd) {
  ln_rect_posn place{};
  ln_get_lunar_geo_posn(jd, &place, 0);
  double ecliptique[3] = {place.X, place.Y, place.Z};
  double rotation[3][3];
  eraIr(rotation);
  eraRx(-eraObl80(ERFA_DJ00, 0), rotation);
  double equateur[3];
  eraRxp(rotation, ecliptique, equateur);
  return DeJ2000(jd, equateur);
}

} // namespace velmaris::essais

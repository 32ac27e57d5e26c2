#pragma once

#include <cmath>
#include <cstdint>

/// A Sun sight worked a second time, by hand: no routine of the program, one line for each value that is stored, and
/// the width of that store written out. Results are compared exactly.
namespace velmaris::essais {

struct ViseeSoleil {
  double jour = 1, mois = 1;
  std::int16_t annee = 2000;
  double heure = 0; ///< decimal hours, GMT
  float latitude = 0, longitude = 0;
  double degres = 0, minutes = 0, fraction = 0;
  bool centiemes = false;
  float oeil = 0, collimation = 0;
  int bord = 1; ///< 0 upper, 1 lower, 2 centre
  bool artificiel = false;
  float ancienAzimut = 0;
};

struct DroiteSoleil {
  float H = 0, Depression = 0, Refraction = 0, Parallaxe = 0, DemiDiametre = 0, Ho = 0;
  float JJ = 0, Ma = 0, Lg = 0, Eps = 0, AD = 0, Dec = 0, AHG = 0, AHL = 0, x = 0, y = 0;
  double T0 = 0, T = 0, ST = 0, Hc = 0;
  float Azimut = 0, Intercept = 0;
  bool meridien = false; ///< whether the arc cosine failed
};

/// Narrows a 64-bit value: one rounding to nearest.
inline float F(double x) { return static_cast<float>(x); }
/// Widens a 32-bit value.
inline double D(float x) { return x; }

inline void CorrigeALaMain(const ViseeSoleil &v, DroiteSoleil &r) {
  const double RAD = 0.017453292;
  r.H = F(v.degres + v.minutes / 60);
  r.H = v.centiemes ? F(D(r.H) + v.fraction / 100 / 60) : F(D(r.H) + v.fraction / 60 / 60);
  r.Depression = v.oeil < 0 ? 0.0F : F(0.0321 * std::sqrt(D(v.oeil)));
  const float A = F((D(r.H) + 7.31 / D(r.H) + 4.4) * RAD);
  const float R = F(1.0 / std::tan(D(A)) * RAD);
  const float B = F((D(R) * 14.7 + 13.0) * RAD);
  r.Refraction = F(D(R) - 0.06 * std::sin(D(B)) / 60);
  r.Parallaxe = F(0.147 * std::cos(D(r.H) * RAD) / 60);
  r.DemiDiametre = v.bord == 0 ? F(-0.26666) : v.bord == 1 ? F(0.26666) : 0.0F;
  const double col = D(v.collimation) / 60;
  r.Ho = v.artificiel ? F((D(r.H) - D(r.Refraction) + D(r.Parallaxe) + col + D(r.DemiDiametre)) / 2)
                      : F(D(r.H) - D(r.Depression) - D(r.Refraction) + D(r.Parallaxe) + col + D(r.DemiDiametre));
}

inline void PlaceALaMain(const ViseeSoleil &v, DroiteSoleil &r) {
  const double RAD = 0.017453292;
  double M = v.mois;
  std::int16_t Y = v.annee;
  if (M < 3) {
    M = M + 12;
    Y = static_cast<std::int16_t>(Y - 1);
  }
  r.JJ = F(std::trunc(365.25 * Y) + std::trunc(30.6001 * (M + 1)) + v.jour + 1720996.5);
  if (Y + M / 100 + v.jour / 10000 > 1582.10145) {
    r.JJ = F(D(r.JJ) - std::trunc(Y / 100.0) + std::trunc(std::trunc(Y / 100.0) / 4));
  }
  r.T0 = (D(r.JJ) - 2415020.0) / 36525.0;
  r.T = r.T0 + v.heure / 24.0 / 36525.0;
  const double S0 = 6.6460656 + 2400.051262 * r.T0;
  r.ST = S0 + v.heure * 1.0027389;
  r.ST = r.ST - 24 * std::floor(r.ST / 24);
  r.Ma = F(358.47583 + 35999.04975 * r.T);
  r.Lg = F(279.69668 + 36000.76892 * r.T + (1.919 - 0.004789 * r.T) * std::sin(D(r.Ma) * RAD) +
           0.020094 * std::sin(2.0 * D(r.Ma) * RAD) - 0.00569);
  r.Eps = F(23.452294 - 0.01301 * r.T);
  r.AD = F(std::atan(std::tan(D(r.Lg) * RAD) * std::cos(D(r.Eps) * RAD)) / RAD);
  if (std::cos(D(r.Lg) * RAD) < 0) {
    r.AD = F(D(r.AD) + 180.0);
  }
  const float s = F(std::sin(D(r.Lg) * RAD) * std::sin(D(r.Eps) * RAD));
  r.Dec = F(std::atan(D(s) / std::sqrt(1.0 - D(s) * D(s))) / RAD);
  r.AHG = F(15 * r.ST - D(r.AD));
  r.AHG = F(D(r.AHG) - std::floor(D(r.AHG) / 360.0) * 360.0);
  r.AHL = F(D(r.AHG) - D(v.longitude));
  if (r.AHL < 0) {
    r.AHL = F(D(r.AHL) + 360.0);
  }
  if (r.AHL > 360.0F) {
    r.AHL = F(D(r.AHL) - 360.0);
  }
}

/// Computed height and azimuth; `Azimut` holds the azimuth of the sight before.
inline void HorizonALaMain(float latitude, DroiteSoleil &r) {
  const double RAD = 0.017453292;
  const double lat = D(latitude) * RAD;
  const double dec = D(r.Dec) * RAD;
  r.x = F(std::sin(lat) * std::sin(dec) + std::cos(dec) * std::cos(lat) * std::cos(D(r.AHL) * RAD));
  const double carre = 1.0 - D(r.x) * D(r.x);
  r.Hc = carre > 0 ? std::atan(D(r.x) / std::sqrt(carre)) / RAD : 0.0;
  r.y = F((std::sin(dec) - std::sin(lat) * std::sin(r.Hc * RAD)) / (std::cos(lat) * std::cos(r.Hc * RAD)));
  const double reste = 1.0 - D(r.y) * D(r.y);
  r.meridien = reste <= 0;
  if (!r.meridien) {
    r.Azimut = F((std::atan(-D(r.y) / std::sqrt(reste)) + 2.0 * std::atan(1.0)) / RAD);
  }
  if (r.AHL < 180.0F) {
    r.Azimut = F(360.0 - D(r.Azimut));
  }
}

inline DroiteSoleil ReduitALaMain(const ViseeSoleil &v) {
  DroiteSoleil r;
  r.Azimut = v.ancienAzimut;
  CorrigeALaMain(v, r);
  PlaceALaMain(v, r);
  HorizonALaMain(v.latitude, r);
  r.Intercept = F((D(r.Ho) - r.Hc) * 60);
  return r;
}

} // namespace velmaris::essais

#pragma once

#include "OutilsPlanetes.hpp"
#include "ephemerides/Nutation.hpp"
#include "ephemerides/ParamPlanet.hpp"

#include <functional>
#include <string>

/// Three judges of apparent places, by vectors: the program's own texts, libnova's series, and an independent theory.
namespace velmaris::essais {

/// Distances and phase of the moment itself.
struct Geometrie {
  double r, R0, d; ///< planet and Earth from the Sun, planet from the Earth, astronomical units
  double phase;    ///< degrees
};

/// A place with what it was seen from.
struct LieuApparent {
  LieuEquatorial lieu;
  Geometrie geometrie;
};

/// Where a body stands on the ecliptic of the date.
using Source = std::function<LieuHelio(const std::string &nom, double JD)>;

/// What turns ecliptic into equator: nutation in longitude and true obliquity, degrees.
struct Orientation {
  double psi, eps;
};

/// The place as the text of the program gives it.
inline LieuHelio HelioTexte(const std::string &nom, double JD) {
  const std::string texte = PositionHelio(nom, JD);
  const auto champ = [&](std::string cle) { return ExtraitCoord(cle, texte); };
  return {champ("L"), champ("B"), champ("R")};
}

inline LieuHelio HelioSeries(const std::string &nom, double JD) { return ALaDate(HelioNova(nom, JD), JD); }

inline Orientation OrientationFigee(double JD) { return {NutationLongitude(JD), ObliquiteVraie(JD)}; }

inline Orientation Orientation1980(double JD) {
  double psi = 0;
  double eps = 0;
  eraNut80(JD, 0, &psi, &eps);
  return {psi * ERFA_DR2D, (eraObl80(JD, 0) + eps) * ERFA_DR2D};
}

/// Geocentric vector of a planet, both bodies at one moment; the two distances from the Sun beside it.
inline Geometrie Geocentrique(const Source &source, const std::string &nom, double JD, double v[3]) {
  double terre[3];
  double planete[3];
  const LieuHelio t = source("EARTH", JD);
  const LieuHelio p = source(nom, JD);
  Vecteur(t, terre);
  Vecteur(p, planete);
  eraPmp(planete, terre, v);
  double oppose[3];
  double versTerre[3];
  eraSxp(-1, planete, oppose);
  eraSxp(-1, v, versTerre);
  return {p.R, t.R, eraPm(v), eraSepp(oppose, versTerre) * ERFA_DR2D};
}

/// Both bodies light time ago, FK5, nutation, rotation to the equator.
inline LieuApparent LieuParVecteurs(const Source &source, const Orientation &o, const std::string &nom, double JD) {
  double v[3];
  const Geometrie g = Geocentrique(source, nom, JD, v);
  const double retard = g.d * ERFA_AULT / ERFA_DAYSEC;
  Geocentrique(source, nom, JD - retard, v);
  double l = 0;
  double b = 0;
  eraC2s(v, &l, &b);
  const double T = (JD - 2451545.0) / 36525;
  const double Lp = l - (1.397 * T + 0.00031 * T * T) * ERFA_DD2R;
  const double dl = (-0.09033 + 0.03916 * (std::cos(Lp) + std::sin(Lp)) * std::tan(b)) * ERFA_DAS2R;
  const double db = 0.03916 * (std::cos(Lp) - std::sin(Lp)) * ERFA_DAS2R;
  eraS2c(l + dl + o.psi * ERFA_DD2R, b + db, v);
  double matrice[3][3];
  eraIr(matrice);
  eraRx(-o.eps * ERFA_DD2R, matrice);
  eraRxp(matrice, v, v);
  eraC2s(v, &l, &b);
  return {{eraAnp(l) * ERFA_DR2D, b * ERFA_DR2D, g.d}, g};
}

/// The place by other theories: the Earth of eraEpv00, the planet of eraPlan94, aberration from the Earth's velocity,
/// precession and nutation of 2006/2000. Its own errors are those that eraPlan94 states.
inline LieuEquatorial LieuErfa(int numero, double JD) {
  double terreHelio[2][3];
  double terreBary[2][3];
  double planete[2][3];
  eraEpv00(JD, 0, terreHelio, terreBary);
  double soleil[3];
  eraPmp(terreBary[0], terreHelio[0], soleil);
  double v[3];
  double d0 = 0;
  double retard = 0;
  for (int passe = 0; passe < 4; ++passe) {
    eraPlan94(JD, -retard, numero, planete);
    eraPpp(planete[0], soleil, v);
    eraPmp(v, terreBary[0], v);
    if (passe == 0) {
      d0 = eraPm(v);
    }
    retard = eraPm(v) * ERFA_AULT / ERFA_DAYSEC;
  }
  double unite[3];
  double module = 0;
  eraPn(v, &module, unite);
  for (int i = 0; i < 3; ++i) {
    unite[i] += terreBary[1][i] * ERFA_AULT / ERFA_DAYSEC;
  }
  double matrice[3][3];
  eraPnm06a(JD, 0, matrice);
  eraRxp(matrice, unite, v);
  double ad = 0;
  double dec = 0;
  eraC2s(v, &ad, &dec);
  return {eraAnp(ad) * ERFA_DR2D, dec * ERFA_DR2D, d0};
}

} // namespace velmaris::essais

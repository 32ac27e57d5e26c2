#include "ephemerides/ModulePosLune.hpp"

#include "ephemerides/Nutation.hpp"
#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kRayonTerre = 6378.136; ///< km, equatorial

/// Julian day of the record's moment. The calendar changes after 1582 October 15 of the count, January and February
/// being months 13 and 14 of the year before.
double JourLune(const Lune &lune) {
  const bool passe = lune.LuneMois > 2;
  const double y = passe ? lune.LuneAn : lune.LuneAn - 1;
  const double m = passe ? lune.LuneMois : lune.LuneMois + 12;
  double b = 0.0;
  if (y * 10000 + m * 100 + lune.LuneJour > 15821015) {
    const double a = Int(y / 100);
    b = (2 - a) + Int(a / 4);
  }
  const double jd = ((((1720994.5 + Int(365.25 * y)) + Int(30.6001 * (m + 1))) + b) + lune.LuneJour) +
                    lune.LuneHeure / 24 + lune.LuneMinute / 1440 + lune.LuneSeconde / 86400.0;
  if (!std::isfinite(jd)) {
    throw Erreur(6);
  }
  return jd;
}

/// The Sun that the phase is reckoned from, radians.
struct SoleilLune {
  double anomalie;  ///< mean anomaly, whole
  double longitude; ///< within one turn
};

/// Longitude of the Sun with the greater perturbations.
/// @param jd  Julian day
/// Source: Newcomb's elements of 1900.0.
SoleilLune SoleilDeNewcomb(double jd) {
  const double T1 = (jd - 2415020.0) / 36525.0;
  double L = (279.69668 + 36000.76892 * T1 + (0.0003025 * T1) * T1) / kDegLune;
  const double Ms = ((358.47583 + 35999.04975 * T1) - (0.00015 * T1) * T1 - ((3.3e-06 * T1) * T1) * T1) / kDegLune;
  const double C = ((1.91946 - 0.004789 * T1 - 1.4e-05 * T1 * T1) / kDegLune) * std::sin(Ms) +
                   ((0.020094 - 0.0001 * T1) / kDegLune) * std::sin(2 * Ms) + (0.000293 / kDegLune) * std::sin(3 * Ms);
  L = L + C;
  const double Om1 = (259.18 - 1934.142 * T1) / kDegLune;
  const double Ls = L - 0.00569 / kDegLune - (0.00479 / kDegLune) * std::sin(Om1);
  const double A = (153.23 + 22518.7541 * T1) / kDegLune;
  const double B = (216.57 + 45037.5082 * T1) / kDegLune;
  const double C2 = (312.69 + 32964.3577 * T1) / kDegLune;
  const double D1 = (350.74 + 445267.1142 * T1 - 0.00144 * T1 * T1) / kDegLune;
  const double E1 = (231.19 + 20.2 * T1) / kDegLune;
  const double longitude = Ls + (0.00134 / kDegLune) * std::cos(A) + (0.00154 / kDegLune) * std::cos(B) +
                           (0.002 / kDegLune) * std::cos(C2) + (0.00179 / kDegLune) * std::sin(D1) +
                           (0.00178 / kDegLune) * std::sin(E1);
  return {Ms, UnTourLune(longitude)};
}

/// Horizontal parallax. The sine stands in for the arc sine; the parallax is rounded to 0.001 second of arc.
/// @param distance  km
/// @return radians
double Parallaxe(double distance) {
  double p = std::sin(Divise(kRayonTerre, distance)) * kDegLune * 3600;
  p = Int(p * 1000 + 0.5) / 1000;
  return ((p / 60) / 60) * kRadCourt;
}

/// Fills right ascension and declination from the ecliptic place.
void PlaceEquatoriale(Lune &lune) {
  const double lambda = lune.LuneLongitude;
  const double beta = lune.LuneLatitude;
  const double sinEps = std::sin(lune.LuneObliquite);
  const double cosEps = std::cos(lune.LuneObliquite);
  const double sinLambda = std::sin(lambda);
  const double cosLambda = std::cos(lambda);
  lune.LuneAD = (kDegLune / 15) * std::atan(Divise(cosEps * sinLambda - sinEps * std::tan(beta), cosLambda));
  if (lune.LuneAD < 0) {
    lune.LuneAD = lune.LuneAD + 24;
  }
  if (cosLambda < 0) {
    lune.LuneAD = lune.LuneAD + 12;
  }
  if (lune.LuneAD > 24) {
    lune.LuneAD = lune.LuneAD - 24;
  }
  const double s = std::sin(beta) * cosEps + (sinEps * std::cos(beta)) * sinLambda;
  lune.LuneDecl = kDegLune * ArcSinDouble(s);
}

/// Phase angle from the elongation. Both anomalies in it are the Sun's, of the two theories.
/// @param M   mean anomaly of the Sun in the Moon's theory, radians
/// @param Ms  mean anomaly of the Sun in its own, radians
/// @return radians
double AnglePhase(const Lune &lune, double M, double Ms) {
  const double c = std::cos(lune.LuneLatitude) * std::cos(lune.LuneLongitude - lune.LuneLongSoleil);
  double e = ArcCosinus(c);
  if (e < 0) {
    e = e + kPiCourt;
  }
  const double i =
      (180 - e * kDegLune) - ((1 - std::sin(M) * 0.0549) / (1 - std::sin(Ms) * 0.0167)) * (std::sin(e) * 0.1468);
  return i / kDegLune;
}

} // namespace

void CalculLune(Lune &lune) {
  lune.LuneJD = JourLune(lune);
  const PuissancesLune temps = TempsLune(lune.LuneJD);
  const auto [T, T2, T3, T4] = temps;
  const SoleilLune soleil = SoleilDeNewcomb(lune.LuneJD);
  lune.LuneLongSoleil = soleil.longitude;

  const ArgumentsLune a = CalculeArgumentsLune(temps);
  const ArgumentsNutation nutation{a.D, a.M, a.l, a.F, a.Omega};
  const double dPsi = SommeNutationLongitude(nutation, T) / 10000;
  const double dEps = SommeNutationObliquite(nutation, T) / 10000;
  lune.LuneObliquite =
      ((23 + 26 / 60.0 + 21.448 / 3600) - (46.815 / 3600) * T - (0.00059 / 3600) * T2 + (0.001813 / 3600) * T3) /
          kDegLune +
      dEps * kArcSecLune;
  lune.LuneLongitude = a.Lm + (SerieLongitude(a) / 3600) / kDegLune + dPsi * kArcSecLune;
  LatitudeLune(lune, a, T);
  lune.LuneDistance = SerieDistance(a);
  lune.LuneParallaxe = Parallaxe(lune.LuneDistance);
  PlaceEquatoriale(lune);
  lune.LunePhase = AnglePhase(lune, a.M, soleil.anomalie);
}

void LatitudeLune(Lune &lune, const ArgumentsLune &arguments, double T) {
  // The last term's amplitude is in radians among seconds of arc: it stands for 0.0011 second and not 0.063 degree.
  const double S =
      SerieLatitude(arguments) - (0.063144 / kDegLune) * std::sin(183.3 / kDegLune + (483202 / kDegLune) * T);
  lune.LuneLatitude = (S / 3600) / kDegLune;
}

} // namespace velmaris

#include "ephemerides/SerieLune.hpp"

#include "ephemerides/Series.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kDistanceMoyenne = 385000.56; ///< km

/// Degrees to radians within one turn.
double TourDeDegres(double degres) { return UnTourLune(degres / kDegLune); }

double Combinaison(const TermeLune &t, const ArgumentsLune &a) {
  const double x = t.D * a.D + t.M * a.M + t.l * a.l + t.F * a.F;
  if ((t.Ve | t.Te | t.Ma | t.Ju | t.Lp) == 0 && t.phase == 0.0) {
    return x;
  }
  return x + t.Ve * a.Ve + t.Te * a.Te + t.Ma * a.Ma + t.Ju * a.Ju + t.Lp * a.Lp + t.phase / kDegLune;
}

double SommeSinus(std::span<const TermeLune> termes, const ArgumentsLune &a) {
  double somme = 0.0;
  for (const TermeLune &t : termes) {
    somme = somme + t.amplitude * std::sin(Combinaison(t, a));
  }
  return somme;
}

} // namespace

double UnTourLune(double x) { return x - kDeuxPiCourt * Int(x / kDeuxPiCourt); }

PuissancesLune TempsLune(double jd) {
  PuissancesLune p{};
  p.T = (jd - 2451545.0) / 36525.0;
  p.T2 = p.T * p.T;
  p.T3 = p.T2 * p.T;
  p.T4 = p.T3 * p.T;
  if (!std::isfinite(p.T4)) {
    throw Erreur(6);
  }
  return p;
}

ArgumentsLune CalculeArgumentsLune(const PuissancesLune &temps) {
  const auto [T, T2, T3, T4] = temps;
  ArgumentsLune a;
  a.Ve = TourDeDegres(181.979801 + 58517.815676 * T);
  a.Te = TourDeDegres(100.46645 + 35999.372854 * T);
  a.Ma = TourDeDegres(355.433275 + 19140.299331 * T);
  a.Ju = TourDeDegres(34.351484 + 3034.905675 * T);
  a.Omega = (125.044555 - 1934.1361849 * T + 0.0020762 * T2 + T3 / 467410 - T4 / 60616000) / kDegLune;
  a.Lm = TourDeDegres(218.3164591 + 481267.88134236 * T - 0.0013268 * T2 + T3 / 538841 - T4 / 65194000);
  a.M = (357.5291092 + 35999.0502909 * T - 0.0001536 * T2 + T3 / 24490000) / kDegLune;
  a.F = TourDeDegres(93.2720993 + 483202.0175273 * T - 0.0034029 * T2 - T3 / 3526000 + T4 / 863310000);
  a.l = TourDeDegres(134.9634114 + 477198.8676313 * T + 0.008997 * T2 + T3 / 69699 - T4 / 14712000);
  a.D = TourDeDegres(297.8502042 + 445267.1115168 * T - 0.00163 * T2 + T3 / 545868 - T4 / 113065000);
  a.Lp = a.Lm + ((5029.0966 / 3600) / kDegLune) * T;
  return a;
}

double SerieLongitude(const ArgumentsLune &arguments) { return SommeSinus(kLuneLongitude, arguments); }

double SerieLatitude(const ArgumentsLune &arguments) { return SommeSinus(kLuneLatitude, arguments); }

double SerieDistance(const ArgumentsLune &arguments) {
  double somme = kDistanceMoyenne;
  for (const TermeLune &t : kLuneDistance) {
    somme = somme + t.amplitude * std::cos(Combinaison(t, arguments));
  }
  return somme;
}

} // namespace velmaris

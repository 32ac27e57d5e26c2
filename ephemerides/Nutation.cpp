#include "ephemerides/Nutation.hpp"

#include "ephemerides/Conversions.hpp"
#include "ephemerides/Series.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kJoursParSiecle = 36525.0;
constexpr double kJoursParDixMillenaires = 3652500.0;
constexpr double kParDegre = 36000000.0; ///< units of 0.0001 second of arc in a degree

/// Laskar's mean obliquity, seconds of arc: the constant, the first power, then the second to the tenth.
constexpr double kObliquiteJ2000 = 84381.448;
constexpr double kObliquiteU = -4680.93;
constexpr double kObliquite[] = {-1.55, 1999.25, -51.38, -249.67, -39.05, 7.12, 27.87, 5.79, 2.45};

double Combinaison(const TermeNutation &terme, const ArgumentsNutation &a) {
  return terme.D * a.D + terme.M * a.M + terme.Mp * a.Mp + terme.F * a.F + terme.Omega * a.Omega;
}

} // namespace

double SommeNutationLongitude(const ArgumentsNutation &arguments, double T) {
  double somme = 0.0;
  for (const TermeNutation &terme : kNutation) {
    somme = somme + (terme.psi + terme.psiT * T) * std::sin(Combinaison(terme, arguments));
  }
  return somme;
}

double SommeNutationObliquite(const ArgumentsNutation &arguments, double T) {
  double somme = 0.0;
  for (const TermeNutation &terme : kNutation) {
    if (terme.eps != 0.0 || terme.epsT != 0.0) {
      somme = somme + (terme.eps + terme.epsT * T) * std::cos(Combinaison(terme, arguments));
    }
  }
  return somme;
}

ArgumentsNutation ArgumentsLineaires(double temps) {
  ArgumentsNutation a;
  a.D = EnRadians(297.85036 + 445267.11148 * temps);
  a.M = EnRadians(357.52772 + 35999.05034 * temps);
  a.Mp = EnRadians(134.96298 + 477198.867398 * temps);
  a.F = EnRadians(93.27191 + 483202.017538 * temps);
  a.Omega = EnRadians(125.04452 - 1934.136261 * temps);
  return a;
}

double NutationLongitude(double JD) {
  const double T = (JD - kJ2000) / kJoursParSiecle;
  return SommeNutationLongitude(ArgumentsLineaires(T), T) / kParDegre;
}

double ObliquiteVraie(double JD) {
  const double U = (JD - kJ2000) / kJoursParDixMillenaires;
  double e = kObliquiteJ2000 + kObliquiteU * U;
  double P = U;
  for (const double coefficient : kObliquite) {
    P = P * U;
    e = e + coefficient * P;
  }
  e = e / 3600;
  return e + SommeNutationObliquite(ArgumentsLineaires(U), U) / kParDegre;
}

} // namespace velmaris

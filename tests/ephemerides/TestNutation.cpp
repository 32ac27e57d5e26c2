#include "ephemerides/Nutation.hpp"

#include "OutilsPlanetes.hpp"
#include "ephemerides/Series.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace velmaris {
namespace {

using namespace essais;

constexpr double kJ2000 = 2451545.0;

/// Largest and smallest of something on the 200 dates.
std::pair<double, double> Etendue(const std::function<double(double)> &mesure) {
  std::pair<double, double> etendue{1E300, -1E300};
  for (const double JD : Dates(200)) {
    etendue.first = std::min(etendue.first, mesure(JD));
    etendue.second = std::max(etendue.second, mesure(JD));
  }
  return etendue;
}

struct Angles {
  double psi, eps; ///< seconds of arc
};

/// The whole theory of 1980, all its rows and the published arguments.
Angles Nut80(double JD) {
  double psi = 0;
  double eps = 0;
  eraNut80(JD, 0, &psi, &eps);
  return {psi * ERFA_DR2AS, eps * ERFA_DR2AS};
}

TEST(NutationInLongitude, AgreesWithTheWholeTheoryToThreeThousandthsOfASecond) {
  const auto [bas, haut] = Etendue([](double JD) { return NutationLongitude(JD) * 3600 - Nut80(JD).psi; });
  EXPECT_GT(bas, -0.003);
  EXPECT_LT(haut, 0.003);
  RecordProperty("ecart", TexteGeneral(std::max(-bas, haut)));
}

TEST(NutationInLongitude, SwingsByNineteenSecondsOfArc) {
  const auto [bas, haut] = Etendue([](double JD) { return NutationLongitude(JD) * 3600; });
  EXPECT_NEAR(bas, -18.5, 1);
  EXPECT_NEAR(haut, 18.5, 1);
}

TEST(NutationInLongitude, AtJ2000IsTheSumOfItsRowsAtThePrintedArguments) {
  const double arguments[5] = {297.85036, 357.52772, 134.96298, 93.27191, 125.04452};
  double somme = 0;
  for (const TermeNutation &t : kNutation) {
    const int multiples[5] = {t.D, t.M, t.Mp, t.F, t.Omega};
    double degres = 0;
    for (int i = 0; i < 5; ++i) {
      degres += multiples[i] * arguments[i];
    }
    somme += t.psi * std::sin(std::remainder(degres, 360) * ERFA_DD2R);
  }
  EXPECT_NEAR(NutationLongitude(kJ2000), somme / 36000000, 1E-15);
  // Its largest row alone.
  EXPECT_NEAR(NutationLongitude(kJ2000) * 3600, -17.1996 * std::sin(125.04452 * ERFA_DD2R), 2);
}

TEST(NutationArguments, AreLinearInTime) {
  for (const double T : {-1.0, 0.5, 1.0, 40.0}) {
    const ArgumentsNutation a = ArgumentsLineaires(T);
    const ArgumentsNutation zero = ArgumentsLineaires(0);
    const ArgumentsNutation un = ArgumentsLineaires(1);
    EXPECT_NEAR(a.D, zero.D + (un.D - zero.D) * T, 1E-9);
    EXPECT_NEAR(a.M, zero.M + (un.M - zero.M) * T, 1E-9);
    EXPECT_NEAR(a.Mp, zero.Mp + (un.Mp - zero.Mp) * T, 1E-9);
    EXPECT_NEAR(a.F, zero.F + (un.F - zero.F) * T, 1E-9);
    EXPECT_NEAR(a.Omega, zero.Omega + (un.Omega - zero.Omega) * T, 1E-9);
  }
  // Nothing reduces them: a century of the Moon's anomaly is 1325 turns.
  EXPECT_NEAR(ArgumentsLineaires(1).Mp * ERFA_DR2D, 134.96298 + 477198.867398, 1E-8);
}

TEST(NutationArguments, AreThePublishedOnesWithoutTheirHigherTerms) {
  EXPECT_NEAR(ArgumentsLineaires(0.3).D * ERFA_DR2D, 297.85036 + 445267.11148 * 0.3, 1E-8);
  EXPECT_NEAR(ArgumentsLineaires(0.3).M * ERFA_DR2D, 357.52772 + 35999.05034 * 0.3, 1E-8);
  EXPECT_NEAR(ArgumentsLineaires(0.3).F * ERFA_DR2D, 93.27191 + 483202.017538 * 0.3, 1E-8);
  EXPECT_NEAR(ArgumentsLineaires(0.3).Omega * ERFA_DR2D, 125.04452 - 1934.136261 * 0.3, 1E-8);
}

TEST(NutationSums, TakeTheArgumentsAndTheTimeOfTheirCaller) {
  // With the library's own arguments, higher terms and all, both sums are its theory less the rows left out.
  for (const double JD : Dates(200)) {
    const double T = (JD - kJ2000) / 36525;
    ArgumentsNutation a;
    a.D = (297.85036 + 445267.11148 * T - 0.0019142 * T * T) * ERFA_DD2R;
    a.M = (357.52772 + 35999.05034 * T - 0.0001603 * T * T) * ERFA_DD2R;
    a.Mp = (134.96298 + 477198.867398 * T + 0.0086972 * T * T) * ERFA_DD2R;
    a.F = (93.27191 + 483202.017538 * T - 0.0036825 * T * T) * ERFA_DD2R;
    a.Omega = (125.04452 - 1934.136261 * T + 0.0020708 * T * T) * ERFA_DD2R;
    EXPECT_NEAR(SommeNutationLongitude(a, T) / 10000, Nut80(JD).psi, 0.0025);
    EXPECT_NEAR(SommeNutationObliquite(a, T) / 10000, Nut80(JD).eps, 0.0015);
  }
}

TEST(NutationSums, ACoefficientGrowsWithTheTime) {
  ArgumentsNutation a;
  a.Omega = ERFA_DPI / 2;
  const double croissance = SommeNutationLongitude(a, 1) - SommeNutationLongitude(a, 0);
  double attendue = 0;
  for (const TermeNutation &t : kNutation) {
    attendue += t.psiT * std::sin(t.Omega * ERFA_DPI / 2);
  }
  EXPECT_NEAR(croissance, attendue, 1E-9);
}

/// The mean obliquity by Laskar's polynomial, Horner's way.
double ObliquiteLaskar(double U) {
  const double c[] = {84381.448, -4680.93, -1.55, 1999.25, -51.38, -249.67, -39.05, 7.12, 27.87, 5.79, 2.45};
  double e = 0;
  for (int i = 10; i >= 0; --i) {
    e = e * U + c[i];
  }
  return e;
}

/// The nutation that the obliquity holds, seconds of arc.
double NutationFigee(double JD) { return ObliquiteVraie(JD) * 3600 - ObliquiteLaskar((JD - kJ2000) / 3652500); }

TEST(TrueObliquity, AtJ2000IsTheMeanOneAndTheNutationOfThatDay) {
  EXPECT_NEAR(ObliquiteVraie(kJ2000), 23.4392911111 + Nut80(kJ2000).eps / 3600, 2E-7);
  EXPECT_NEAR(NutationFigee(kJ2000), -5.77, 0.01);
}

TEST(TrueObliquity, TheMeanPartAgreesWithThePolynomialOf1980) {
  for (const double JD : Dates(200)) {
    EXPECT_NEAR(ObliquiteLaskar((JD - kJ2000) / 3652500), eraObl80(JD, 0) * ERFA_DR2AS, 0.02);
  }
}

TEST(TrueObliquity, ItsNutationIsTheCosinesAtTheSlowArguments) {
  for (const double JD : Dates(200)) {
    const double U = (JD - kJ2000) / 3652500;
    EXPECT_NEAR(NutationFigee(JD), SommeNutationObliquite(ArgumentsLineaires(U), U) / 10000, 1E-9);
  }
}

TEST(TrueObliquity, ItsNutationIsFrozenNearThatOfJ2000) {
  const auto [bas, haut] = Etendue(NutationFigee);
  EXPECT_GT(bas, -8.5);
  EXPECT_LT(haut, -2.0);
  // From year to year it hardly moves, where the true one can go six seconds.
  for (const double JD : Dates(200)) {
    EXPECT_NEAR(NutationFigee(JD + 365.25), NutationFigee(JD), 0.3);
  }
}

TEST(TrueObliquity, IsThereforeOffByUpToSeventeenSecondsOfArc) {
  const auto [bas, haut] =
      Etendue([](double JD) { return ObliquiteVraie(JD) * 3600 - (eraObl80(JD, 0) * ERFA_DR2AS + Nut80(JD).eps); });
  EXPECT_GT(bas, -17);
  EXPECT_LT(haut, 17);
  EXPECT_GT(haut - bas, 18);
  RecordProperty("bas", TexteGeneral(bas));
  RecordProperty("haut", TexteGeneral(haut));
}

} // namespace
} // namespace velmaris

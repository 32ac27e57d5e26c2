#include "ephemerides/SerieLune.hpp"

#include "ephemerides/Series.hpp"
#include "tests/OutilsTests.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace velmaris {
namespace {

using essais::LuneALaMain;

double Jour(int annee) { return 2415020.5 + (annee - 1900) * 365.25 + 0.123456 * (annee % 8); }

double Plus(std::span<const TermeLune> termes, bool petit) {
  const auto moindre = [](const TermeLune &a, const TermeLune &b) {
    return std::fabs(a.amplitude) < std::fabs(b.amplitude);
  };
  return std::fabs(petit ? std::min_element(termes.begin(), termes.end(), moindre)->amplitude
                         : std::max_element(termes.begin(), termes.end(), moindre)->amplitude);
}

TEST(MoonsSeries, HaveTheirTermsAndTheirLimits) {
  const auto planetes = [](const TermeLune &t) {
    return t.Ve != 0 || t.Te != 0 || t.Ma != 0 || t.Ju != 0 || t.Lp != 0;
  };
  const auto longitude = kLuneLongitude;
  const auto latitude = kLuneLatitude;
  const auto distance = kLuneDistance;
  EXPECT_EQ(longitude.size(), 405U);
  EXPECT_EQ(latitude.size(), 200U);
  EXPECT_EQ(distance.size(), 105U);
  EXPECT_EQ(std::find_if(longitude.begin(), longitude.end(), planetes) - longitude.begin(), 375);
  EXPECT_EQ(std::find_if(latitude.begin(), latitude.end(), planetes) - latitude.begin(), 188);
  EXPECT_EQ(std::find_if(distance.begin(), distance.end(), planetes), distance.end());
  EXPECT_EQ(Plus(longitude, false), 22639.55);
  EXPECT_EQ(Plus(longitude, true), 0.00096);
  EXPECT_EQ(Plus(latitude, false), 18461.4);
  EXPECT_EQ(Plus(latitude, true), 0.01009);
  EXPECT_EQ(Plus(distance, false), 20905.32206);
  EXPECT_EQ(Plus(distance, true), 0.10326);
}

TEST(MoonsSeries, AreSummedAsTheTablesStandToTheLastBit) {
  for (int annee = 1900; annee <= 2100; ++annee) {
    const double jd = Jour(annee);
    const PuissancesLune temps = TempsLune(jd);
    const ArgumentsLune a = CalculeArgumentsLune(temps);
    const LuneALaMain<double> main(jd);
    EXPECT_EQ(a.D, main.D);
    EXPECT_EQ(a.M, main.M);
    EXPECT_EQ(a.l, main.l);
    EXPECT_EQ(a.F, main.F);
    EXPECT_EQ(a.Omega, main.Om);
    EXPECT_EQ(a.Lp, main.Lp);
    EXPECT_EQ(SerieDistance(a), main.distance) << annee;
    EXPECT_EQ(a.Lm + (SerieLongitude(a) / 3600) / kDegLune + main.dPsi * kArcSecLune, main.longitude) << annee;
    Lune lune;
    LatitudeLune(lune, a, temps.T);
    EXPECT_EQ(lune.LuneLatitude, main.latitude) << annee;
  }
}

TEST(MoonsSeries, RoundingIn64BitsCostsLessThanAMillionthOfASecondOfArc) {
  double pireLongitude = 0;
  double pireLatitude = 0;
  double pireDistance = 0;
  for (int annee = 1900; annee <= 2100; annee += 2) {
    const double jd = Jour(annee);
    const LuneALaMain<double> court(jd);
    const LuneALaMain<long double> longue(static_cast<long double>(jd));
    const auto ecart = [](double a, long double b) { return std::fabs(static_cast<double>(a - b)); };
    // The whole turns of the mean longitude may part where it is close to none.
    const double tour = std::remainder(static_cast<double>(court.longitude - longue.longitude), 6.283185307178);
    pireLongitude = std::max(pireLongitude, std::fabs(tour) * 206265);
    pireLatitude = std::max(pireLatitude, ecart(court.latitude, longue.latitude) * 206265);
    pireDistance = std::max(pireDistance, ecart(court.distance, longue.distance));
  }
  EXPECT_LT(pireLongitude, 2E-6);
  EXPECT_LT(pireLatitude, 2E-7);
  EXPECT_LT(pireDistance, 2E-6);
}

TEST(MoonsArguments, AtTheEpochAreTheirConstants) {
  const ArgumentsLune a = CalculeArgumentsLune(TempsLune(2451545.0));
  EXPECT_DOUBLE_EQ(a.Lm, 218.3164591 / kDegLune);
  EXPECT_DOUBLE_EQ(a.Omega, 125.044555 / kDegLune);
  EXPECT_DOUBLE_EQ(a.D, 297.8502042 / kDegLune);
  EXPECT_DOUBLE_EQ(a.M, 357.5291092 / kDegLune);
  EXPECT_DOUBLE_EQ(a.l, 134.9634114 / kDegLune);
  EXPECT_DOUBLE_EQ(a.F, 93.2720993 / kDegLune);
  EXPECT_DOUBLE_EQ(a.Ve, 181.979801 / kDegLune);
  EXPECT_DOUBLE_EQ(a.Te, 100.46645 / kDegLune);
  EXPECT_DOUBLE_EQ(a.Ma, 355.433275 / kDegLune);
  EXPECT_DOUBLE_EQ(a.Ju, 34.351484 / kDegLune);
  EXPECT_EQ(a.Lp, a.Lm);
}

TEST(MoonsArguments, AllLieWithinOneTurnButNodeSunAndFixedLongitude) {
  for (int annee = 1900; annee <= 2100; annee += 5) {
    const ArgumentsLune a = CalculeArgumentsLune(TempsLune(Jour(annee)));
    for (const double x : {a.Lm, a.D, a.l, a.F, a.Ve, a.Te, a.Ma, a.Ju}) {
      EXPECT_GE(x, 0.0) << annee;
      EXPECT_LT(x, kDeuxPiCourt) << annee;
    }
  }
  const ArgumentsLune a = CalculeArgumentsLune(TempsLune(Jour(2100)));
  EXPECT_GT(a.M, 600.0) << "a century of the Sun, whole";
  EXPECT_LT(a.Omega, -30.0) << "five turns of the node backward, whole";
}

TEST(MoonsArguments, TheFixedLongitudeLeavesTheMovingOneByThePrecession) {
  const ArgumentsLune a = CalculeArgumentsLune(TempsLune(2451545.0 + 36525.0));
  EXPECT_NEAR((a.Lp - a.Lm) * kDegLune * 3600, 5029.0966, 1E-9);
}

TEST(MoonsArguments, AnAngleIsBroughtIntoOneTurnByTheShortTwoPi) {
  EXPECT_EQ(UnTourLune(0.0), 0.0);
  EXPECT_EQ(UnTourLune(-0.5), -0.5 + 6.283185307178);
  EXPECT_EQ(UnTourLune(7.0), 7.0 - 6.283185307178);
  EXPECT_EQ(UnTourLune(6.283185307178), 0.0);
  EXPECT_NE(UnTourLune(100.1), ReduitDeuxPi(100.1F)) << "64 bits all through";
}

TEST(MoonsTime, ADateBeyondTheRangeOfNumbersIsAnOverflow) {
  EXPECT_EQ(essais::NumeroErreur([] { TempsLune(1.0E90); }), 6);
  EXPECT_EQ(essais::NumeroErreur([] { TempsLune(std::numeric_limits<double>::infinity()); }), 6);
  EXPECT_EQ(essais::NumeroErreur([] { TempsLune(1.0E70); }), 0);
}

TEST(MoonsTime, PowersAreProducts) {
  const PuissancesLune p = TempsLune(2451545.0 + 3 * 36525.0);
  EXPECT_EQ(p.T, 3.0);
  EXPECT_EQ(p.T2, 9.0);
  EXPECT_EQ(p.T3, 27.0);
  EXPECT_EQ(p.T4, 81.0);
}

} // namespace
} // namespace velmaris

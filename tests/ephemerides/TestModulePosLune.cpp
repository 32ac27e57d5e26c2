#include "ephemerides/ModulePosLune.hpp"

#include "tests/OutilsTests.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"
#include "tests/sights/SoleilErfa.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace velmaris {
namespace {

using essais::LuneA;
using essais::LuneALaMain;
using essais::LuneDe;

TEST(MoonsJulianDay, IsThatOfEveryGregorianDate) {
  for (int annee = 1583; annee <= 2100; annee += 3) {
    for (int mois = 1; mois <= 12; ++mois) {
      double jd0 = 0;
      double jd = 0;
      eraCal2jd(annee, mois, 28, &jd0, &jd);
      EXPECT_EQ(LuneA(annee, mois, 28).LuneJD, jd0 + jd) << mois << '/' << annee;
    }
  }
}

TEST(MoonsJulianDay, TheCalendarChangesOnTheDayAfterOctober15) {
  EXPECT_EQ(LuneA(1582, 10, 4).LuneJD, 2299159.5);
  EXPECT_EQ(LuneA(1582, 10, 15).LuneJD, 2299160.5 + 10) << "still in the old calendar";
  EXPECT_EQ(LuneA(1582, 10, 16).LuneJD, 2299161.5);
}

TEST(MoonsJulianDay, TheCalendarIsChosenByTheShiftedYearAndMonth) {
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(1583, 1, 10, &jd0, &jd);
  EXPECT_EQ(LuneA(1583, 1, 10).LuneJD, jd0 + jd) << "month 13 of 1582 comes after October";
  // February 1582 is month 14 of 1581: the old calendar.
  EXPECT_EQ(LuneA(1582, 2, 10).LuneJD, 2298923.5);
}

TEST(MoonsJulianDay, TheTimeOfDayIsAddedInParts) {
  const Lune lune = LuneA(2000, 1, 1, 12, 30, 45.0F);
  EXPECT_EQ(lune.LuneJD, 2451544.5 + 12.0 / 24 + 30.0 / 1440 + 45.0 / 86400);
  EXPECT_EQ(LuneA(2000, 1, 1, 36).LuneJD, 2451546.0) << "an hour past 23 is the next day's";
}

TEST(MoonsJulianDay, SecondsKeepTheRoundedFormOf32Bits) {
  // A large figure shows it: the step of 32 bits there is 0.5 second.
  const Lune lune = LuneA(2000, 1, 1, 0, 0, 8388607.3F);
  EXPECT_EQ(lune.LuneJD, 2451544.5 + 8388607.5 / 86400.0);
  EXPECT_EQ(LuneA(2000, 1, 1, 0, 0, 59.99F).LuneJD, 2451544.5 + double{59.99F} / 86400.0);
}

TEST(MoonsPlace, IsTheSecondComputationToTheLastBit) {
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    const LuneALaMain<double> main(lune.LuneJD);
    EXPECT_EQ(lune.LuneLongitude, main.longitude) << annee;
    EXPECT_EQ(lune.LuneLatitude, main.latitude) << annee;
    EXPECT_EQ(lune.LuneDistance, main.distance) << annee;
    EXPECT_EQ(lune.LuneParallaxe, main.parallaxe) << annee;
    EXPECT_EQ(lune.LuneAD, main.ad) << annee;
    EXPECT_EQ(lune.LuneDecl, main.decl) << annee;
    EXPECT_EQ(lune.LuneObliquite, main.obliquite) << annee;
    EXPECT_NEAR(lune.LuneLongSoleil, main.longSoleil, 1E-12) << annee;
    EXPECT_NEAR(lune.LunePhase, main.phase, 1E-11) << annee;
  }
}

TEST(MoonsPlace, TheLongitudeIsNotBroughtIntoOneTurn) {
  bool dehors = false;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    dehors = dehors || lune.LuneLongitude > kDeuxPiCourt || lune.LuneLongitude < 0;
    EXPECT_GT(lune.LuneLongitude, -0.2);
    EXPECT_LT(lune.LuneLongitude, kDeuxPiCourt + 0.2);
  }
  EXPECT_TRUE(dehors);
}

TEST(MoonsPlace, RightAscensionLiesWithinADayInEveryQuadrant) {
  std::array<int, 4> quadrants{};
  for (int jour = 1; jour <= 31; ++jour) {
    for (int heure = 0; heure < 24; ++heure) {
      const Lune lune = LuneA(2024, 3, jour, heure);
      ASSERT_GE(lune.LuneAD, 0.0);
      ASSERT_LT(lune.LuneAD, 24.0);
      ++quadrants.at(static_cast<std::size_t>(lune.LuneAD / 6));
      const double l = lune.LuneLongitude;
      const double b = lune.LuneLatitude;
      const double e = lune.LuneObliquite;
      const double y = std::sin(l) * std::cos(b) * std::cos(e) - std::sin(b) * std::sin(e);
      EXPECT_NEAR(std::remainder(std::atan2(y, std::cos(l) * std::cos(b)) * 12 / M_PI - lune.LuneAD, 24.0), 0, 1E-10);
    }
  }
  for (const int n : quadrants) {
    EXPECT_GT(n, 100);
  }
}

TEST(MoonsPlace, TheLastTermOfTheLatitudeIsAThousandthOfASecond) {
  // Its amplitude is divided by degrees per radian though the sum is in seconds of arc.
  const PuissancesLune temps = TempsLune(2451545.0);
  const ArgumentsLune a = CalculeArgumentsLune(temps);
  Lune lune;
  LatitudeLune(lune, a, temps.T);
  const double secondes = lune.LuneLatitude * kDegLune * 3600;
  EXPECT_NEAR(SerieLatitude(a) - secondes, (0.063144 / 57.29577951) * std::sin(183.3 * M_PI / 180), 1E-9);
  EXPECT_NE(SerieLatitude(a), secondes);
}

TEST(MoonsParallax, IsOfWholeThousandthsOfASecond) {
  for (int annee = 1900; annee <= 2100; annee += 7) {
    const Lune lune = LuneDe(annee);
    const double milliemes = lune.LuneParallaxe / 0.017453292 * 3600 * 1000;
    EXPECT_NEAR(milliemes, std::nearbyint(milliemes), 1E-6);
    const double vraie = std::asin(6378.136 / lune.LuneDistance) * 180 / M_PI * 3600;
    // The sine instead of the arc sine: the third power of the angle, 0.31 second of arc at the mean distance.
    const double x = 6378.136 / lune.LuneDistance;
    EXPECT_NEAR(vraie - milliemes / 1000, x * x * x / 3 * 206264.8, 0.001) << annee;
  }
}

TEST(MoonsSun, IsTheApparentSunToThirteenSecondsOfArc) {
  // Newcomb's Sun with its aberration and a nutation of one term.
  double pire = 0;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    const essais::PlaceErfa soleil = essais::SoleilErfa(2451545.0, lune.LuneJD - 2451545.0);
    const double ad = soleil.AD * M_PI / 180;
    const double eps = lune.LuneObliquite;
    const double longitude =
        std::atan2(std::sin(ad) * std::cos(eps) + std::tan(soleil.Dec * M_PI / 180) * std::sin(eps), std::cos(ad));
    pire = std::max(pire, std::fabs(std::remainder(lune.LuneLongSoleil - longitude, 2 * M_PI)) * 206265);
    EXPECT_GE(lune.LuneLongSoleil, 0);
    EXPECT_LT(lune.LuneLongSoleil, kDeuxPiCourt);
  }
  EXPECT_LT(pire, 13.0);
}

TEST(MoonsPhase, TakesTheSunsAnomalyWhereTheMoonsWouldBelong) {
  double pireEcrit = 0;
  double pireLune = 0;
  for (int annee = 1900; annee <= 2100; annee += 3) {
    const Lune lune = LuneDe(annee);
    const LuneALaMain<double> a(lune.LuneJD);
    const double e = std::acos(std::cos(lune.LuneLatitude) * std::cos(lune.LuneLongitude - lune.LuneLongSoleil));
    const auto phase = [&](double anomalie) {
      return (180 - e * 180 / M_PI -
              0.1468 * std::sin(e) * (1 - 0.0549 * std::sin(anomalie)) / (1 - 0.0167 * std::sin(a.Ms))) *
             M_PI / 180;
    };
    pireEcrit = std::max(pireEcrit, std::fabs(phase(a.M) - lune.LunePhase));
    pireLune = std::max(pireLune, std::fabs(phase(a.l) - lune.LunePhase));
  }
  EXPECT_LT(pireEcrit, 1E-10);
  EXPECT_GT(pireLune, 1E-4);
  EXPECT_LT(pireLune, 3E-4) << "0.016 degree at most";
}

TEST(MoonsPhase, IsNearZeroAtFullMoonAndNear180AtNewMoon) {
  EXPECT_LT(LuneA(2024, 3, 25, 7).LunePhase * 180 / M_PI, 2.0);
  EXPECT_GT(LuneA(2024, 4, 8, 18, 21).LunePhase * 180 / M_PI, 179.0) << "an eclipse of the Sun";
}

TEST(MoonsFailures, ADateBeyondTheRangeOfNumbersLeavesTheRecord) {
  Lune lune = LuneA(2024, 1, 1);
  const double jd = lune.LuneJD;
  lune.LuneAn = 1.0E308;
  EXPECT_EQ(essais::NumeroErreur([&] { CalculLune(lune); }), 6);
  EXPECT_EQ(lune.LuneJD, jd);
}

TEST(MoonsFailures, ADateThatTheTheoryCantHoldLeavesOnlyItsDay) {
  Lune lune = LuneA(2024, 1, 1);
  const double longitude = lune.LuneLongitude;
  lune.LuneAn = 1.0E90;
  EXPECT_EQ(essais::NumeroErreur([&] { CalculLune(lune); }), 6);
  EXPECT_GT(lune.LuneJD, 1.0E90);
  EXPECT_EQ(lune.LuneLongitude, longitude);
}

TEST(MoonsFailures, ThereIsNoCheckOnTheDate) {
  EXPECT_EQ(LuneA(2023, 2, 31).LuneJD, LuneA(2023, 3, 3).LuneJD);
  EXPECT_EQ(essais::NumeroErreur([] { LuneA(0, 0, 0); }), 0);
  EXPECT_EQ(essais::NumeroErreur([] { LuneA(-4000, 5, 5); }), 0);
}

} // namespace
} // namespace velmaris

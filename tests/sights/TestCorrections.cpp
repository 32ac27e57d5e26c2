#include "sights/Corrections.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace velmaris {
namespace {

using essais::NumeroErreur;

Observation Lecture(const char *degres, const char *minutes, const char *fraction, Fraction genre) {
  Observation o;
  o.lectureDegres = degres;
  o.lectureMinutes = minutes;
  o.lectureFraction = fraction;
  o.fraction = genre;
  return o;
}

TEST(SextantReading, SecondsAreSixtiethsOfAMinute) {
  Observation o = Lecture("30", "15", "36", Fraction::Secondes);
  EXPECT_EQ(LitSextant<double>(o), 30 + 15 / 60.0 + 36.0 / 60 / 60);
  EXPECT_NEAR(LitSextant<double>(o), 30.26, 1E-12);
}

TEST(SextantReading, HundredthsAreHundredthsOfAMinute) {
  Observation o = Lecture("30", "15", "50", Fraction::Centiemes);
  EXPECT_EQ(LitSextant<double>(o), 30 + 15 / 60.0 + 50.0 / 100 / 60);
  o.lectureFraction = "05";
  EXPECT_NEAR(LitSextant<double>(o), 30 + 15.05 / 60, 1E-12);
}

TEST(SextantReading, In32BitsEachSumIsRoundedWhenStored) {
  int differents = 0;
  for (int m = 0; m < 60; ++m) {
    for (int s = 0; s < 60; ++s) {
      Observation o = Lecture("33", std::to_string(m).c_str(), std::to_string(s).c_str(), Fraction::Secondes);
      const float somme = static_cast<float>(33.0 + m / 60.0);
      const float attendu = static_cast<float>(double{somme} + s / 60.0 / 60);
      EXPECT_EQ(LitSextant<float>(o), attendu);
      differents += attendu != static_cast<float>(33.0 + m / 60.0 + s / 60.0 / 60) ? 1 : 0;
    }
  }
  EXPECT_GT(differents, 0) << "no case shows the rounding of the first sum";
}

TEST(SextantReading, AnEmptyFractionBecomesTwoZeros) {
  Observation o = Lecture("30", "15", "", Fraction::Secondes);
  EXPECT_EQ(LitSextant<float>(o), 30.25F);
  EXPECT_EQ(o.lectureFraction, "00");
}

TEST(SextantReading, OverSixtySecondsPaintTheFieldRedAndGoOnBeingUsed) {
  Observation o = Lecture("30", "00", "75", Fraction::Secondes);
  EXPECT_EQ(LitSextant<double>(o), 30 + 75.0 / 60 / 60);
  EXPECT_EQ(o.couleurFraction, kRouge);
  o.lectureFraction = "60";
  LitSextant<double>(o);
  EXPECT_EQ(o.couleurFraction, kNoir) << "sixty itself is no warning, and the red goes";
}

TEST(SextantReading, HundredthsNeverPaintTheFieldRed) {
  Observation o = Lecture("30", "00", "75", Fraction::Centiemes);
  o.couleurFraction = kRouge;
  LitSextant<double>(o);
  EXPECT_EQ(o.couleurFraction, kNoir);
}

TEST(SextantReading, TextsThatAreNoNumbersReadAsZero) {
  Observation o = Lecture("abc", "", "x", Fraction::Secondes);
  EXPECT_EQ(LitSextant<float>(o), 0.0F);
  o = Lecture("30,9", "15,9", "36,9", Fraction::Secondes);
  EXPECT_NEAR(LitSextant<double>(o), 30.26, 1E-12);
}

TEST(SextantReading, ASumPast32BitsIsPassedOver) {
  Observation o = Lecture("1E300", "00", "36", Fraction::Secondes);
  EXPECT_EQ(LitSextant<float>(o), static_cast<float>(36.0 / 60 / 60));
}

TEST(DipOfTheHorizon, GrowsWithTheRootOfTheEye) {
  EXPECT_EQ(DepressionHorizon<double>(0), 0.0);
  EXPECT_EQ(DepressionHorizon<double>(4), 0.0321 * 2);
  EXPECT_NEAR(DepressionHorizon<double>(2), 0.04540, 5E-6);
  EXPECT_EQ(DepressionHorizon<float>(2), static_cast<float>(0.0321 * std::sqrt(2.0)));
}

TEST(DipOfTheHorizon, AnEyeBelowTheSeaIsAnInvalidArgument) {
  EXPECT_EQ(NumeroErreur([] { DepressionHorizon<float>(-0.1); }), 5);
}

/// The formula in long double, with no store between its steps.
long double RefractionSansArrondi(long double h) {
  const long double rad = 0.017453292L;
  const long double r = 1 / std::tan((h + 7.31L / h + 4.4L) * rad) * rad;
  return r - 0.06L * std::sin((r * 14.7L + 13.0L) * rad) / 60;
}

TEST(Refraction, FollowsItsFormulaOverAllReadings) {
  for (double h = 0.5; h <= 180.0; h += 0.25) {
    const auto attendu = static_cast<double>(RefractionSansArrondi(h));
    EXPECT_NEAR(RefractionLue<double>(h), attendu, 1E-14 + 1E-12 * std::fabs(attendu)) << h;
    // Three 32-bit stores of 6E-8 relative, the cotangent magnifying where the angle is near half a turn.
    const double fond = std::sin((h + 7.31 / h + 4.4) * 0.017453292);
    EXPECT_NEAR(RefractionLue<float>(static_cast<float>(h)), attendu, 3E-7 / (fond * fond) * 0.02) << h;
  }
}

TEST(Refraction, TheWorkedSightOfThirtyDegrees) {
  const double rad = 0.017453292;
  const double a = (30 + 7.31 / 30 + 4.4) * rad;
  EXPECT_NEAR(a / rad, 34.64367, 1E-5);
  const double r = 1.0 / std::tan(a) * rad;
  EXPECT_EQ(RefractionLue<double>(30), r - 0.06 * std::sin((r * 14.7 + 13.0) * rad) / 60);
}

TEST(Refraction, IsNegativeForAReadingThatPushesTheAnglePastNinety) {
  EXPECT_LT(RefractionLue<double>(0.08), 0.0);
  EXPECT_LT(RefractionLue<float>(0.08F), 0.0F);
  EXPECT_GT(RefractionLue<double>(0.09), 0.0);
}

TEST(Refraction, AReadingOfZeroIsADivisionByZero) {
  EXPECT_EQ(NumeroErreur([] { RefractionLue<double>(0); }), 11);
  EXPECT_EQ(NumeroErreur([] { RefractionLue<float>(0); }), 11);
}

TEST(StoredWidth, AValueIsNarrowedOrFailsPastItsWidth) {
  EXPECT_EQ(Range<float>(0.1), 0.1F);
  EXPECT_EQ(Range<double>(0.1), 0.1);
  EXPECT_EQ(NumeroErreur([] { Range<float>(1E39); }), 6);
  EXPECT_EQ(NumeroErreur([] { Range<double>(HUGE_VAL); }), 6);
  EXPECT_EQ(Range<double>(1E39), 1E39);
}

} // namespace
} // namespace velmaris

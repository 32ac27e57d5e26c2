#include "foundations/Angles.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace velmaris {
namespace {

using essais::NumeroErreur;

// The literals stand here again: a test of their values mustn't read them from the program.
constexpr double kPiAttendu = 3.141592653589;
constexpr double kTourAttendu = 6.283185307178;

TEST(OneTurn, ANegativeAngleComesOutPositive) { EXPECT_EQ(ReduitDeuxPi(-0.5F), -0.5 + kTourAttendu); }

TEST(OneTurn, AnAngleOverATurnLosesWholeTurns) {
  EXPECT_DOUBLE_EQ(ReduitDeuxPi(7.0F), 0.716814692822);
  EXPECT_EQ(ReduitDeuxPi(1.25F), 1.25);
  EXPECT_EQ(ReduitDeuxPi(0.0F), 0.0);
  EXPECT_DOUBLE_EQ(ReduitDeuxPi(-7.0F), 2 * kTourAttendu - 7.0);
}

TEST(OneTurn, TheRoundingTo32BitsOfTheInputStaysInTheResult) {
  const double entree = 7.1;
  const double arrondie = static_cast<float>(entree);
  ASSERT_NE(entree, arrondie);
  EXPECT_EQ(ReduitDeuxPi(static_cast<float>(entree)), arrondie - kTourAttendu);
}

TEST(OneTurn, AnyAngleEndsBetweenZeroAndOneTurn) {
  std::mt19937 alea(4);
  std::uniform_real_distribution<float> angles(-50000.0F, 50000.0F);
  for (int i = 0; i < 2000; ++i) {
    const float x = angles(alea);
    const double r = ReduitDeuxPi(x);
    EXPECT_GE(r, -1E-11) << x;
    EXPECT_LE(r, kTourAttendu + 1E-11) << x;
    EXPECT_NEAR(std::remainder(double{x} - r, kTourAttendu), 0.0, 1E-10) << x;
  }
}

TEST(OneTurn, InDegreesExactly360StaysAndSoDoesWhatLiesWithin) {
  for (const double angle : {0.0, 1E-300, 180.0, 360.0}) {
    EXPECT_EQ(UnTourDegres(angle), angle);
  }
}

TEST(OneTurn, InDegreesWholeTurnsGoAsByAddingOrTakingOneAtATime) {
  EXPECT_EQ(UnTourDegres(720), 360);
  EXPECT_EQ(UnTourDegres(-360), 0);
  EXPECT_EQ(UnTourDegres(-0.25), 359.75);
  EXPECT_EQ(UnTourDegres(360.25), 0.25);
  EXPECT_EQ(UnTourDegres(36000.0 * 360 + 90.5), 90.5);
  EXPECT_EQ(UnTourDegres(-36000.0 * 360 - 90.5), 269.5);
}

TEST(ShortPi, RadiansAreTheProductBeforeTheQuotient) {
  EXPECT_EQ(EnRadiansCourt(180), 3.141592653589);
  EXPECT_EQ(EnRadiansCourt(-52.5), -52.5 * 3.141592653589 / 180);
}

TEST(QuadrantRule, EachQuadrantAddsItsShortLiteral) {
  EXPECT_EQ(ArcTanQuadrant(1, 1), std::atan(1.0));
  EXPECT_EQ(ArcTanQuadrant(1, -1), std::atan(-1.0) + kPiAttendu);
  EXPECT_EQ(ArcTanQuadrant(-1, -1), std::atan(1.0) + kPiAttendu);
  EXPECT_EQ(ArcTanQuadrant(-1, 1), std::atan(-1.0) + kTourAttendu);
  EXPECT_EQ(ArcTanQuadrant(0, 2), 0.0);
  EXPECT_EQ(ArcTanQuadrant(0, -2), kPiAttendu);
}

TEST(QuadrantRule, AgreesWithTheLibraryToTheShortnessOfItsLiterals) {
  for (int degre = 1; degre < 360; ++degre) {
    if (degre % 90 != 0) {
      const double a = degre * std::atan(1.0) / 45;
      const double attendu = std::atan2(std::sin(a), std::cos(a));
      EXPECT_NEAR(ArcTanQuadrant(std::sin(a), std::cos(a)), attendu < 0 ? attendu + 8 * std::atan(1.0) : attendu,
                  3E-12);
    }
  }
}

TEST(QuadrantRule, AZeroCosineIsADivisionByZero) {
  EXPECT_EQ(NumeroErreur([] { ArcTanQuadrant(1, 0); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcTanQuadrant(0, 0); }), 11);
}

TEST(ArcCosine, AgreesWithTheLibraryInsideItsDomain) {
  for (double x = -0.99; x < 1.0; x += 0.01) {
    EXPECT_NEAR(ArcCosDouble(x), std::acos(x), 1E-14) << x;
    EXPECT_EQ(ArcCosVal(x), ArcCosDouble(x));
  }
}

TEST(ArcCosine, TheEndsAndWhatLiesBeyondGiveTheSentinel999) {
  for (const double x : {1.0, -1.0, 1.5, -1.5, 1E300, std::nan("")}) {
    EXPECT_EQ(ArcCosDouble(x), 999.0) << x;
    EXPECT_EQ(ArcCosVal(x), 999.0) << x;
  }
}

TEST(ArcCosine, WithoutTheSentinelItsFailuresPassToTheCaller) {
  for (const double x : {-0.999, -0.5, 0.0, 0.3, 0.999}) {
    EXPECT_NEAR(ArcCosinus(x), std::acos(x), 1E-14);
  }
  EXPECT_EQ(NumeroErreur([] { ArcCosinus(1); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcCosinus(-1); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcCosinus(1.5); }), 5);
}

TEST(ArcCosine, JustInsideTheEndsItIsAnAngle) {
  EXPECT_NEAR(ArcCosDouble(std::nextafter(1.0, 0.0)), std::acos(std::nextafter(1.0, 0.0)), 1E-12);
  EXPECT_NEAR(ArcCosDouble(std::nextafter(-1.0, 0.0)), std::acos(std::nextafter(-1.0, 0.0)), 1E-12);
}

TEST(ArcSine, AgreesWithTheLibraryInsideItsDomain) {
  for (double x = -0.99; x < 1.0; x += 0.01) {
    EXPECT_NEAR(ArcSinDouble(x), std::asin(x), 1E-14) << x;
    EXPECT_EQ(ArcSinVal(x), ArcSinDouble(x));
  }
}

TEST(ArcSine, ItsFailuresPassToTheCaller) {
  EXPECT_EQ(NumeroErreur([] { ArcSinDouble(1); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcSinDouble(-1); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcSinDouble(1.5); }), 5);
  EXPECT_EQ(NumeroErreur([] { ArcSinVal(1); }), 11);
  EXPECT_EQ(NumeroErreur([] { ArcSinVal(-2); }), 5);
}

TEST(ArcSine, InDegreesTheEndsAreGuardedAndTheRestIsNot) {
  EXPECT_EQ(ArcSinDegres(1), 90.0);
  EXPECT_EQ(ArcSinDegres(-1), -90.0);
  EXPECT_EQ(ArcSinDegres(0), 0.0);
  EXPECT_NEAR(ArcSinDegres(0.5), 30.0, 1E-13);
  EXPECT_NEAR(ArcSinDegres(-std::sqrt(0.5)), -45.0, 1E-13);
  EXPECT_EQ(NumeroErreur([] { ArcSinDegres(1.0000001); }), 5);
}

TEST(Sexagesimal, HoursBecomeDegreesFifteenfold) {
  std::optional<double> s = 36.0;
  EXPECT_DOUBLE_EQ(HeuresEnDegres(2, 30, s), 15 * 2.51);
  EXPECT_EQ(s, 36.0);
}

TEST(Sexagesimal, AMissingSecondCountsAsZeroAndIsLeftAtZero) {
  std::optional<double> s;
  EXPECT_EQ(HeuresEnDegres(1, 30, s), 22.5);
  EXPECT_EQ(s, 0.0);
}

TEST(Sexagesimal, ANegativeHourHasItsMinutesAdded) {
  std::optional<double> s;
  EXPECT_EQ(HeuresEnDegres(-1, 30, s), -7.5);
}

TEST(Sexagesimal, TheSignOfTheWholeIsThatOfTheDegreesAlone) {
  EXPECT_EQ(SexaEnDegres(-12, 30, 0), -12.5);
  EXPECT_EQ(SexaEnDegres(12, 30, 0), 12.5);
  EXPECT_DOUBLE_EQ(SexaEnDegres(12, 30, 36), 12.51);
  EXPECT_DOUBLE_EQ(SexaEnDegres(-12, 30, 36), -12.51);
  EXPECT_EQ(SexaEnDegres(-0.0, 30, 0), 0.5);
  EXPECT_EQ(SexaEnDegres(0, 30, 0), 0.5);
}

TEST(Angles, ADegreeTextHasTwoDigitsAFieldAtLeast) {
  EXPECT_EQ(DegresEnTexte(0), "00°00'00''");
  EXPECT_EQ(DegresEnTexte(12.5), "12°30'00''");
  EXPECT_EQ(DegresEnTexte(123.25), "123°15'00''");
  EXPECT_EQ(DegresEnTexte(7 + 5 / 60.0 + 9.2 / 3600), "07°05'09''");
}

TEST(Angles, ANegativeAnglePrintsAMinusOnEveryField) {
  EXPECT_EQ(DegresEnTexte(-(12 + 30 / 60.0 + 15.1 / 3600)), "-12°-30'-15''");
}

TEST(Angles, AFieldThatIsZeroHasNoSign) {
  EXPECT_EQ(DegresEnTexte(-12.5), "-12°-30'00''");
  EXPECT_EQ(DegresEnTexte(-0.25), "00°-15'00''");
}

TEST(Angles, TheSecondsRoundUpToSixtyWithoutACarry) { EXPECT_EQ(DegresEnTexte(12.99999), "12°59'60''"); }

TEST(Angles, DegreesAndMinutesAroundAPointHaveNoSign) {
  EXPECT_EQ(DegresPointMinutes(5.5), "05.30");
  EXPECT_EQ(DegresPointMinutes(-5.5), "05.30");
  EXPECT_EQ(DegresPointMinutes(-0.25), "00.15");
  EXPECT_EQ(DegresPointMinutes(123.0), "123.00");
  EXPECT_EQ(DegresPointMinutes(9.9999), "09.60") << "the minutes round up without a carry";
}

TEST(Angles, AnHourTextLeavesItsArgumentInHours) {
  double x = 187.5;
  EXPECT_EQ(HeuresEnTexte(x), "12h30m00s");
  EXPECT_EQ(x, 12.5);
  EXPECT_EQ(HeuresEnTexte(x), "00h50m00s");
  double negatif = -187.5;
  EXPECT_EQ(HeuresEnTexte(negatif), "-12h-30m00s");
  EXPECT_EQ(negatif, -12.5);
}

std::string Angle(double valeur, std::string genre, bool plus) { return FormatAngle(valeur, genre, plus); }

TEST(AngleInColumns, ASignShowsForANegativeValueAndOnDemandForAPositiveOne) {
  EXPECT_EQ(Angle(-0.5, "DMS", false), "   -0° 30' 00.0\"");
  EXPECT_EQ(Angle(-0.5, "DMS", true), "   -0° 30' 00.0\"");
  EXPECT_EQ(Angle(0.5, "DMS", false), "    0° 30' 00.0\"");
  EXPECT_EQ(Angle(0.5, "DMS", true), "   +0° 30' 00.0\"");
  EXPECT_EQ(Angle(0, "DMS", true), "   +0° 00' 00.0\"");
}

TEST(AngleInColumns, AnyKindButDegreesIsHours) {
  EXPECT_EQ(Angle(15, "hms", false), "   01h 00m 00.0s");
  EXPECT_EQ(Angle(15, "", false), "   01h 00m 00.0s");
  EXPECT_EQ(Angle(187.5, "XYZ", true), "  +12h 30m 00.0s");
}

TEST(AngleInColumns, TheKindIsLeftTrimmedAndInCapitals) {
  std::string genre = "  hms ";
  FormatAngle(15, genre, false);
  EXPECT_EQ(genre, "HMS");
  genre = " dMs ";
  EXPECT_EQ(FormatAngle(15, genre, false), "   15° 00' 00.0\"");
  EXPECT_EQ(genre, "DMS");
}

TEST(AngleInColumns, SecondsThatTheMaskRoundsUpDoNotCarry) {
  EXPECT_EQ(Angle(59.96 / 240, "HMS", false), "   00h 00m 60.0s");
}

TEST(AngleInColumns, SecondsWhoseTextIsSixtyCarryAndGoEmpty) {
  const double presqueUneMinute = std::nextafter(0.25, 0.0);
  ASSERT_LT(presqueUneMinute * 240, 60.0);
  EXPECT_EQ(Angle(presqueUneMinute, "HMS", false), "       00h 01m s");
}

TEST(AngleInColumns, ALongTextLosesItsLeftEnd) { EXPECT_EQ(Angle(123456789012.5, "DMS", true), "89012° 30' 00.0\""); }

TEST(AngleInColumns, TheTextHasSixteenCharactersWhateverTheValue) {
  std::mt19937 alea(5);
  std::uniform_real_distribution<double> exposants(-6.0, 14.0);
  for (int i = 0; i < 1000; ++i) {
    const double x = std::pow(10.0, exposants(alea)) * (i % 2 == 0 ? 1 : -1);
    EXPECT_EQ(NombreCaracteres(Angle(x, i % 3 == 0 ? "DMS" : "HMS", i % 5 == 0)), 16U) << x;
  }
}

TEST(Conversions, ALogarithmToBaseTenGoesThroughItsFifteenDigitConstant) {
  EXPECT_EQ(LogDecimal(5), std::log(5.0) / 2.30258509299405);
  EXPECT_NEAR(LogDecimal(1000), 3.0, 1E-14);
  EXPECT_EQ(NumeroErreur([] { LogDecimal(0); }), 5);
  EXPECT_EQ(NumeroErreur([] { LogDecimal(-1); }), 5);
}

TEST(Conversions, AnAstronomicalUnitIsAWholeNumberOfKilometresLeftInTheArgument) {
  double d = 1.5;
  EXPECT_EQ(UAEnKm(d), 1.5 * 149597870);
  EXPECT_EQ(d, 1.5 * 149597870);
}

} // namespace
} // namespace velmaris

#include "sights/Observation.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using essais::NumeroErreur;

Observation Position(const char *latD, const char *latM, bool sud, const char *lonD, const char *lonM, bool est) {
  Observation o;
  o.latitudeDegres = latD;
  o.latitudeMinutes = latM;
  o.sud = sud;
  o.longitudeDegres = lonD;
  o.longitudeMinutes = lonM;
  o.est = est;
  return o;
}

TEST(EstimatedPosition, NorthAndWestArePositive) {
  ValeursVisee v;
  LitEstime(Position("45", "30", false, "5", "15", false), v);
  EXPECT_EQ(v.LatEstimee, 45.5F);
  EXPECT_EQ(v.LonEstimee, 5.25F);
}

TEST(EstimatedPosition, SouthAndEastAreNegative) {
  ValeursVisee v;
  LitEstime(Position("45", "30", true, "5", "15", true), v);
  EXPECT_EQ(v.LatEstimee, -45.5F);
  EXPECT_EQ(v.LonEstimee, -5.25F);
}

TEST(EstimatedPosition, MinutesAreRoundedOnceWithTheirDegrees) {
  const Observation o = Position("12", "34.5", false, "123", "20", true);
  ValeursVisee v;
  LitEstime(o, v);
  EXPECT_EQ(LatitudeEstimee(o), 12 + 34.5 / 60);
  EXPECT_EQ(LongitudeEstimee(o), -(123 + 20 / 60.0));
  EXPECT_EQ(v.LatEstimee, static_cast<float>(12 + 34.5 / 60));
  EXPECT_EQ(v.LonEstimee, static_cast<float>(-(123 + 20 / 60.0)));
}

TEST(EstimatedPosition, EmptyFieldsReadAsZeroAndACommaEndsANumber) {
  EXPECT_EQ(LatitudeEstimee({}), 0.0);
  EXPECT_EQ(LongitudeEstimee({}), 0.0);
  EXPECT_EQ(LatitudeEstimee(Position("45,9", "30,9", false, "", "", false)), 45.5);
  EXPECT_EQ(LatitudeEstimee(Position("abc", "30", false, "", "", false)), 0.5);
}

TEST(EstimatedPosition, AFieldPast32BitsOverflows) {
  ValeursVisee v;
  v.LatEstimee = 12;
  EXPECT_EQ(NumeroErreur([&] { LitEstime(Position("1E300", "0", false, "0", "0", false), v); }), 6);
  EXPECT_EQ(v.LatEstimee, 12.0F);
}

TEST(SightTime, IsInDecimalHours) {
  Observation o;
  EXPECT_EQ(HeureDesChamps(o), 0.0);
  o.heure = "12";
  o.minute = "30";
  o.seconde = "36";
  EXPECT_EQ(HeureDesChamps(o), (12 / 24.0 + 30 / 1440.0 + 36 / 86400.0) * 24.0);
  EXPECT_NEAR(HeureDesChamps(o), 12.51, 1E-14);
}

TEST(SightTime, HourSixtyIsTakenAsItStands) {
  Observation o;
  o.heure = "60";
  EXPECT_DOUBLE_EQ(HeureDesChamps(o), 60.0);
}

TEST(ReadingNormalised, DegreesAndMinutesThatAreBothZeroBecomeTwoZeros) {
  for (const char *zero : {"", "0", "000", "abc", " ", "-0"}) {
    Observation o;
    o.lectureDegres = zero;
    o.lectureMinutes = zero;
    o.lectureFraction = "12";
    NormaliseLecture(o);
    EXPECT_EQ(o.lectureDegres, "00");
    EXPECT_EQ(o.lectureMinutes, "00");
    EXPECT_EQ(o.lectureFraction, "12");
  }
}

TEST(ReadingNormalised, OneFieldThatIsNotZeroKeepsBothTexts) {
  Observation o;
  o.lectureDegres = "0";
  o.lectureMinutes = "5";
  NormaliseLecture(o);
  EXPECT_EQ(o.lectureDegres, "0");
  EXPECT_EQ(o.lectureMinutes, "5");
  o.lectureDegres = "7";
  o.lectureMinutes = "";
  NormaliseLecture(o);
  EXPECT_EQ(o.lectureDegres, "7");
  EXPECT_EQ(o.lectureMinutes, "");
}

TEST(ReadingNormalised, AFractionOfOneCharacterGetsAZeroBeforeIt) {
  for (const auto &[avant, apres] :
       {std::pair{"5", "05"}, {"0", "00"}, {"x", "0x"}, {"é", "0é"}, {"", ""}, {"05", "05"}, {"50", "50"}}) {
    for (const Fraction genre : {Fraction::Secondes, Fraction::Centiemes}) {
      Observation o;
      o.fraction = genre;
      o.lectureFraction = avant;
      NormaliseLecture(o);
      EXPECT_EQ(o.lectureFraction, apres);
    }
  }
}

TEST(LimbOfTheBody, TheSunIsShotByItsLowerLimbStarsAndPlanetsAtTheirCentre) {
  for (const Bord avant : {Bord::Superieur, Bord::Inferieur, Bord::Centre}) {
    Observation o;
    o.bord = avant;
    BordDuCorps(o, 0);
    EXPECT_EQ(o.bord, Bord::Inferieur);
    for (const int corps : {2, 3}) {
      o.bord = avant;
      BordDuCorps(o, corps);
      EXPECT_EQ(o.bord, Bord::Centre);
    }
  }
}

TEST(LimbOfTheBody, TheMoonAndAnUnknownNumberLeaveIt) {
  for (const Bord avant : {Bord::Superieur, Bord::Inferieur, Bord::Centre}) {
    for (const int corps : {1, 4, -1, 30000}) {
      Observation o;
      o.bord = avant;
      BordDuCorps(o, corps);
      EXPECT_EQ(o.bord, avant);
      EXPECT_EQ(o.corps, Corps::Soleil);
    }
  }
}

TEST(LimbOfTheHorizon, AnArtificialHorizonTakesTheCentreANaturalOneTheLowerLimb) {
  Observation o;
  o.bord = Bord::Superieur;
  o.horizon = Horizon::Artificiel;
  BordDeLHorizon(o);
  EXPECT_EQ(o.bord, Bord::Centre);
  o.horizon = Horizon::Naturel;
  BordDeLHorizon(o);
  EXPECT_EQ(o.bord, Bord::Inferieur);
}

} // namespace
} // namespace velmaris

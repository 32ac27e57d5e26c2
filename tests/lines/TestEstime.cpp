#include "lines/Estime.hpp"

#include "tests/OutilsTests.hpp"
#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <type_traits>

namespace velmaris {
namespace {

using essais::NumeroErreur;
using essais::Position;

static_assert(std::is_same_v<decltype(PointEstime::LatEstimeTransport), float>);
static_assert(std::is_same_v<decltype(PointEstime::LonEstimeTransport), float>);

RouteEstimee ParVitesse(const char *route, const char *vitesse, const char *debut, const char *fin) {
  return {route, vitesse, "", debut, fin, true};
}

RouteEstimee ParDistance(const char *route, const char *distance, const char *debut = "10:00",
                         const char *fin = "11:00") {
  return {route, "", distance, debut, fin, false};
}

/// 47° 35' N 5° 15' W.
Observation Depart() { return Position(47, 35, false, 5, 15, false); }

PointEstime Estime(const RouteEstimee &route, const Observation &depart = Depart()) {
  const auto p = EstimePoint(route, depart);
  EXPECT_TRUE(p.has_value());
  return p.value_or(PointEstime{});
}

double EnRadians(double degres) { return degres * std::numbers::pi / 180; }

std::string DeuxChiffres(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }
std::string Heure(int minutes) { return DeuxChiffres(minutes / 60) + ":" + DeuxChiffres(minutes % 60); }

TEST(DeadReckoning, NeedsASpeedOrADistance) {
  EXPECT_FALSE(EstimePoint({"90", "", "", "10:00", "11:00", true}, Depart()));
  EXPECT_FALSE(EstimePoint({"90", "", "", "10:00", "11:00", false}, Depart()));
  EXPECT_TRUE(EstimePoint({"90", "6", "", "10:00", "11:00", true}, Depart()));
  EXPECT_TRUE(EstimePoint({"90", "", "6", "10:00", "11:00", false}, Depart()));
}

TEST(DeadReckoning, NeedsACourse) {
  EXPECT_FALSE(EstimePoint({"", "6", "6", "10:00", "11:00", true}, Depart()));
  EXPECT_FALSE(EstimePoint({"", "6", "6", "10:00", "11:00", false}, Depart()));
  EXPECT_TRUE(EstimePoint({"0", "6", "6", "10:00", "11:00", false}, Depart()));
}

TEST(DeadReckoning, NeedsTwoTimesOfDay) {
  for (const char *heure : {"", ":", "12:", ":30", "24:00", "12:60", "99:99", "12", "12h30", "ab:cd", "-1:00", "1.5:00",
                            "123:0", "12:30:00", "12:3o"}) {
    EXPECT_FALSE(EstimePoint(ParDistance("90", "6", heure, "11:00"), Depart())) << heure;
    EXPECT_FALSE(EstimePoint(ParDistance("90", "6", "10:00", heure), Depart())) << heure;
    EXPECT_FALSE(EstimePoint(ParVitesse("90", "6", heure, heure), Depart())) << heure;
  }
}

TEST(DeadReckoning, FieldsWithoutANumberCountAsZero) {
  const PointEstime sansRoute = Estime(ParDistance("abc", "60"));
  EXPECT_FLOAT_EQ(sansRoute.LatEstimeTransport, 48 + 35.0F / 60);
  EXPECT_EQ(sansRoute.LonEstimeTransport, 5.25F);
  const PointEstime surPlace = Estime(ParDistance("90", "abc"));
  EXPECT_EQ(surPlace.Dist, 0);
  EXPECT_EQ(surPlace.LonEstimeTransport, 5.25F);
  const PointEstime sansPosition = Estime(ParDistance("0", "30"), {});
  EXPECT_EQ(sansPosition.LatEstimeTransport, 0.5F);
  EXPECT_EQ(sansPosition.LonEstimeTransport, 0.0F);
}

TEST(DeadReckoning, AGivenFieldThatIsEmptyCountsAsZero) {
  const PointEstime p = Estime({"90", "", "12", "10:00", "11:00", true});
  EXPECT_EQ(p.Dist, 0);
  EXPECT_EQ(p.distance, "0");
  const PointEstime q = Estime({"90", "12", "", "10:00", "11:00", false});
  EXPECT_EQ(q.Dist, 0);
  EXPECT_EQ(q.vitesse, "0");
}

TEST(Interval, IsTheMinutesBetweenTheTwoHours) {
  for (int debut = 0; debut < 1440; debut += 17) {
    for (int fin = debut; fin < 1440; fin += 13) {
      const PointEstime p = Estime(ParDistance("90", "6", Heure(debut).c_str(), Heure(fin).c_str()));
      EXPECT_NEAR(p.Duree, (fin - debut) / 1440.0, 1E-15);
    }
  }
}

TEST(Interval, ThatEndsBeforeItStartsPassesMidnight) {
  EXPECT_NEAR(Estime(ParDistance("90", "6", "23:30", "00:30")).Duree, 1 / 24.0, 1E-15);
  EXPECT_NEAR(Estime(ParDistance("90", "6", "00:01", "00:00")).Duree, 1439 / 1440.0, 1E-15);
  EXPECT_NEAR(Estime(ParDistance("90", "6", "23:59", "00:00")).Duree, 1 / 1440.0, 1E-15);
  EXPECT_NEAR(Estime(ParVitesse("90", "6", "23:30", "00:30")).Dist, 6, 1E-12);
}

TEST(Interval, OfNothingLeavesThePositionAndBothFields) {
  for (const bool vitesseDonnee : {false, true}) {
    const PointEstime p = Estime({"90", "6", "12", "10:20", "10:20", vitesseDonnee});
    EXPECT_EQ(p.Duree, 0);
    EXPECT_EQ(p.Dist, 0);
    EXPECT_EQ(p.LatEstimeTransport, static_cast<float>(47 + 35 / 60.0));
    EXPECT_EQ(p.LonEstimeTransport, 5.25F);
    EXPECT_FALSE(p.vitesse);
    EXPECT_FALSE(p.distance);
  }
}

TEST(RunOfTheShip, IsSpeedTimesTimeWhenTheSpeedIsGiven) {
  const PointEstime p = Estime(ParVitesse("90", "6", "10:00", "12:30"));
  EXPECT_EQ(p.distance, "15");
  EXPECT_FALSE(p.vitesse);
  for (int minutes = 1; minutes < 1440; minutes += 7) {
    for (const int dixiemes : {1, 35, 60, 123, 250}) {
      const std::string vitesse = std::to_string(dixiemes / 10) + "." + std::to_string(dixiemes % 10);
      const PointEstime q = Estime(ParVitesse("90", vitesse.c_str(), "20:00", Heure((1200 + minutes) % 1440).c_str()));
      // Tenths of knots times minutes are whole six-hundredths of a mile.
      EXPECT_NEAR(q.Dist, dixiemes * minutes / 600.0, 1E-11);
    }
  }
}

TEST(RunOfTheShip, IsTheDistanceWhenThatIsGivenAndTheSpeedItsShare) {
  const PointEstime p = Estime(ParDistance("90", "15", "10:00", "12:30"));
  EXPECT_EQ(p.Dist, 15);
  EXPECT_EQ(p.vitesse, "6");
  EXPECT_FALSE(p.distance);
  EXPECT_EQ(Estime(ParDistance("90", "100", "23:00", "01:00")).vitesse, "50");
  EXPECT_EQ(Estime(ParDistance("90", "1", "00:00", "00:01")).vitesse, "60");
}

TEST(RunOfTheShip, TheFieldNotGivenIsNotRead) {
  EXPECT_EQ(Estime({"90", "6", "999", "10:00", "12:30", true}).distance, "15");
  EXPECT_EQ(Estime({"90", "999", "15", "10:00", "12:30", false}).vitesse, "6");
}

TEST(RunOfTheShip, ShowsAWholeNumberAndGoesOnWithAllItsDigits) {
  const PointEstime p = Estime(ParVitesse("0", "5.5", "00:00", "01:00"));
  EXPECT_EQ(p.distance, "6");
  EXPECT_NEAR(p.Dist, 5.5, 1E-12);
  EXPECT_FLOAT_EQ(p.LatEstimeTransport, 47 + 40.5F / 60);
  const PointEstime q = Estime(ParDistance("0", "5.5", "00:00", "01:00"));
  EXPECT_EQ(q.vitesse, "6");
  EXPECT_EQ(q.Dist, 5.5);
  EXPECT_FLOAT_EQ(q.LatEstimeTransport, 47 + 40.5F / 60);
}

TEST(RunOfTheShip, IsShownToTheNearestWholeNumber) {
  EXPECT_EQ(Estime(ParVitesse("0", "0.4", "00:00", "01:00")).distance, "0");
  EXPECT_EQ(Estime(ParVitesse("0", "5.4", "06:00", "07:00")).distance, "5");
  EXPECT_EQ(Estime(ParVitesse("0", "5.6", "06:00", "07:00")).distance, "6");
  EXPECT_EQ(Estime(ParDistance("0", "7", "06:00", "08:00")).vitesse, "4");
  EXPECT_EQ(Estime(ParDistance("0", "1000", "00:00", "00:07")).vitesse, "8571");
}

TEST(DeadReckoningPosition, NorthwardSixtyMilesAreADegree) {
  const PointEstime p = Estime(ParDistance("0", "60"));
  EXPECT_FLOAT_EQ(p.LatEstimeTransport, 48 + 35.0F / 60);
  EXPECT_EQ(p.LonEstimeTransport, 5.25F);
  EXPECT_EQ(LegendeLatitude(p.LatEstimeTransport), "N48.35");
  EXPECT_EQ(LegendeLongitude(p.LonEstimeTransport), "W005.15");
}

TEST(DeadReckoningPosition, FollowsPlaneSailingOnEveryCourse) {
  for (int route = 0; route <= 360; route += 5) {
    const PointEstime p = Estime(ParDistance(std::to_string(route).c_str(), "90"));
    const double latitude = 47 + 35 / 60.0;
    const double nord = 90 * std::cos(EnRadians(route)) / 60;
    const double est = 90 * std::sin(EnRadians(route)) / std::cos(EnRadians(latitude)) / 60;
    EXPECT_NEAR(p.LatEstimeTransport, latitude + nord, 4E-6) << route;
    EXPECT_NEAR(p.LonEstimeTransport, 5.25 - est, 2E-6) << route;
  }
}

TEST(DeadReckoningPosition, SouthAndEastHaveTheirSigns) {
  const PointEstime so = Estime(ParDistance("0", "30"), Position(47, 30, true, 5, 15, false));
  EXPECT_EQ(so.LatEstimeTransport, -47.0F);
  EXPECT_EQ(so.LonEstimeTransport, 5.25F);
  const PointEstime se = Estime(ParDistance("180", "30"), Position(47, 30, true, 5, 15, true));
  EXPECT_EQ(se.LatEstimeTransport, -48.0F);
  EXPECT_NEAR(se.LonEstimeTransport, -5.25, 1E-6);
  // On the equator eastward: half a degree further east, or less west.
  EXPECT_EQ(Estime(ParDistance("90", "30"), Position(0, 0, true, 5, 15, true)).LonEstimeTransport, -5.75F);
  EXPECT_EQ(Estime(ParDistance("90", "30"), Position(0, 0, false, 5, 15, false)).LonEstimeTransport, 4.75F);
}

TEST(DeadReckoningPosition, CrossesTheEquatorAndGreenwich) {
  const PointEstime p = Estime(ParDistance("225", "60"), Position(0, 15, false, 0, 15, true));
  EXPECT_NEAR(p.LatEstimeTransport, 0.25 - std::numbers::sqrt2 / 2, 1E-6);
  EXPECT_NEAR(p.LonEstimeTransport, -0.25 + std::numbers::sqrt2 / 2 / std::cos(EnRadians(0.25)), 1E-6);
}

TEST(DeadReckoningPosition, TakesTheCosineOfTheDepartureLatitudeNotOfTheMean) {
  const double cote = 600 * std::sin(EnRadians(45)) / 60;
  const PointEstime p = Estime(ParDistance("45", "600"), Position(60, 0, false, 20, 0, false));
  EXPECT_NEAR(p.LonEstimeTransport, 20 - cote / 0.5, 2E-6);
  EXPECT_GT(std::fabs(20 - cote / std::cos(EnRadians(60 + cote / 2)) - p.LonEstimeTransport), 1);
  // The way back at the new latitude does not close the circuit.
  const PointEstime retour = Estime(ParDistance("225", "600"), Position(67, 4, false, 5, 51, false));
  EXPECT_GT(retour.LonEstimeTransport, 23);
}

TEST(DeadReckoningPosition, TheDepartureLatitudeIsHeldIn32Bits) {
  int differents = 0;
  for (int minutes = 1; minutes < 60; ++minutes) {
    for (int milles = 1; milles <= 50; ++milles) {
      const double large = (47 * 60 + minutes) / 60.0;
      const auto etroit = static_cast<float>(large);
      const PointEstime p =
          Estime(ParDistance("0", std::to_string(milles).c_str()), Position(47, minutes, false, 5, 15, false));
      EXPECT_EQ(p.LatEstimeTransport, static_cast<float>(etroit + milles / 60.0));
      differents += static_cast<float>(large + milles / 60.0) != p.LatEstimeTransport ? 1 : 0;
    }
  }
  EXPECT_GT(differents, 0);
}

TEST(DeadReckoningPosition, NearThePoleTheDepartureLatitudesWidthTells) {
  const double large = 89 + 59 / 60.0;
  const double etroit = static_cast<float>(large);
  const double pole = std::numbers::pi / 2 / 0.017453292; // where the cosine of the working latitude ends
  const double est = 0.1 / std::sin((pole - etroit) * 0.017453292) / 60;
  const PointEstime p = Estime(ParDistance("270", "0.1"), Position(89, 59, false, 0, 0, false));
  EXPECT_NEAR(p.LonEstimeTransport, est, est * 2E-7);
  EXPECT_GT(std::fabs(0.1 / std::sin((pole - large) * 0.017453292) / 60 - est), est * 1E-5);
}

TEST(DeadReckoningPosition, AtThePoleTheLongitudeRunsAwayUnchecked) {
  // A cosine of 90 times the short radian is the sine of what that lacks to a right angle.
  const double manque = std::numbers::pi / 2 - 90 * 0.017453292;
  const PointEstime p = Estime(ParDistance("270", "1"), Position(90, 0, false, 0, 0, false));
  EXPECT_NEAR(p.LonEstimeTransport, 1 / std::sin(manque) / 60, 0.1);
  EXPECT_GT(p.LonEstimeTransport, 3E5F);
  EXPECT_NEAR(p.LatEstimeTransport, 90, 1E-5);
}

TEST(DeadReckoningPosition, MayPassThePole) {
  EXPECT_EQ(Estime(ParDistance("0", "120"), Position(89, 0, false, 0, 0, false)).LatEstimeTransport, 91.0F);
}

TEST(DeadReckoningPosition, AResultPast32BitsIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { EstimePoint(ParDistance("0", "1E41"), Depart()); }), 6);
  EXPECT_EQ(NumeroErreur([] { EstimePoint(ParDistance("90", "1E300"), Depart()); }), 6);
  EXPECT_EQ(NumeroErreur([] { EstimePoint(ParVitesse("90", "1E400", "00:00", "23:59"), Depart()); }), 6);
  Observation loin = Depart();
  loin.latitudeDegres = "1E39";
  EXPECT_EQ(NumeroErreur([&] { EstimePoint(ParDistance("0", "1"), loin); }), 6);
}

TEST(LatitudeCaption, IsItsSideWholeDegreesAPointAndMinutes) {
  EXPECT_EQ(LegendeLatitude(47.5F), "N47.30");
  EXPECT_EQ(LegendeLatitude(-47.5F), "S47.30");
  EXPECT_EQ(LegendeLatitude(7.05F), "N07.03");
  EXPECT_EQ(LegendeLatitude(-0.5F), "S00.30");
  EXPECT_EQ(LegendeLatitude(123.5F), "N123.30");
}

TEST(LatitudeCaption, OfTheEquatorIsSouth) {
  EXPECT_EQ(LegendeLatitude(0.0F), "S00.00");
  EXPECT_EQ(LegendeLatitude(-0.0F), "S00.00");
  EXPECT_EQ(LegendeLatitude(1E-6F), "N00.00");
}

TEST(LongitudeCaption, HasThreeDigitsOfDegreesAndWestIsPositive) {
  EXPECT_EQ(LegendeLongitude(5.25F), "W005.15");
  EXPECT_EQ(LegendeLongitude(-5.25F), "E005.15");
  EXPECT_EQ(LegendeLongitude(45.75F), "W045.45");
  EXPECT_EQ(LegendeLongitude(-123.5F), "E123.30");
  EXPECT_EQ(LegendeLongitude(1234.5F), "W1234.30");
}

TEST(LongitudeCaption, OfGreenwichIsWest) {
  EXPECT_EQ(LegendeLongitude(0.0F), "W000.00");
  EXPECT_EQ(LegendeLongitude(-0.0F), "W000.00");
  EXPECT_EQ(LegendeLongitude(-1E-6F), "E000.00");
}

TEST(PositionCaption, MinutesAreRoundedWithoutACarry) {
  EXPECT_EQ(LegendeLatitude(47.995F), "N47.60");
  EXPECT_EQ(LegendeLatitude(-47.995F), "S47.60");
  EXPECT_EQ(LegendeLongitude(179.995F), "W179.60");
  EXPECT_EQ(LegendeLongitude(-0.999F), "E000.60");
  EXPECT_EQ(LegendeLatitude(47.99F), "N47.59");
}

TEST(PositionCaption, HalfAMinuteRoundsUp) {
  // Eighths of a degree are exact in 32 bits and have half minutes.
  EXPECT_EQ(LegendeLatitude(47.125F), "N47.08");
  EXPECT_EQ(LegendeLatitude(-47.375F), "S47.23");
  EXPECT_EQ(LegendeLongitude(5.625F), "W005.38");
  EXPECT_EQ(LegendeLongitude(-5.875F), "E005.53");
}

TEST(PositionCaption, EveryWholeMinuteIsItself) {
  for (int minutes = 1; minutes < 90 * 60; ++minutes) {
    const auto valeur = static_cast<float>(minutes / 60.0);
    const std::string attendu = DeuxChiffres(minutes / 60) + "." + DeuxChiffres(minutes % 60);
    EXPECT_EQ(LegendeLatitude(valeur), "N" + attendu);
    EXPECT_EQ(LegendeLatitude(-valeur), "S" + attendu);
    EXPECT_EQ(LegendeLongitude(valeur), "W0" + attendu);
    EXPECT_EQ(LegendeLongitude(-valeur), "E0" + attendu);
  }
}

} // namespace
} // namespace velmaris

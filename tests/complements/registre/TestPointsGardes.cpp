#include "complements/registre/PointsGardes.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

/// The file of kept fixes.
namespace velmaris {
namespace {

PointGarde Exemple() {
  return {UTCDe({2026, 6, 21, 22, 15, 0}),
          {47 + 10.3 / 60, -(4 + 44.1 / 60)},
          {1.24, 0.81, 35.4},
          4,
          TheoriePoint::Actuelle};
}

TEST(KeptFixes, ALineIsWrittenByColumnsAndReadBack) {
  EXPECT_EQ(LignePoint(Exemple()), "2026-06-21T22:15:00Z,47.17167,-4.73500,1.24,0.81,35.4,4,actuelle,1");
  const auto lu = LitLignePoint(LignePoint(Exemple()));
  ASSERT_TRUE(lu);
  EXPECT_EQ(SecondesEntre(lu->utc, Exemple().utc), 0);
  EXPECT_EQ(lu->visees, 4);
  EXPECT_EQ(lu->theorie, TheoriePoint::Actuelle);
}

TEST(KeptFixes, PlacesAreKeptToTheTenthOfAMinute) {
  std::mt19937 hasard(19);
  std::uniform_real_distribution<double> latitude(-90, 90);
  std::uniform_real_distribution<double> longitude(-180, 180);
  for (int i = 0; i < 2000; ++i) {
    PointGarde point = Exemple();
    point.lieu = {latitude(hasard), longitude(hasard)};
    const auto lu = LitLignePoint(LignePoint(point));
    ASSERT_TRUE(lu);
    EXPECT_NEAR(lu->lieu.latitude, point.lieu.latitude, 0.05 / 60 + 1E-5);
    EXPECT_NEAR(lu->lieu.longitude, point.lieu.longitude, 0.05 / 60 + 1E-5);
  }
}

TEST(KeptFixes, WhatIsNoLineOfTheFormIsPassedOver) {
  const std::string bonne = LignePoint(Exemple());
  for (std::size_t n = 0; n < bonne.size(); ++n) {
    EXPECT_FALSE(LitLignePoint(bonne.substr(0, n))) << "cut after " << n;
  }
  EXPECT_FALSE(LitLignePoint(kTitresPoints));
  EXPECT_FALSE(LitLignePoint(bonne + ",1"));
  for (const char *mauvaise :
       {"2026-02-31T22:15:00Z,47,-4,1,1,35,4,actuelle,1", "2026-06-21T24:15:00Z,47,-4,1,1,35,4,actuelle,1",
        "2026-06-21T22:15:00Z,91,-4,1,1,35,4,actuelle,1", "2026-06-21T22:15:00Z,47,-181,1,1,35,4,actuelle,1",
        "2026-06-21T22:15:00Z,nan,-4,1,1,35,4,actuelle,1", "2026-06-21T22:15:00Z,47,-4,-1,1,35,4,actuelle,1",
        "2026-06-21T22:15:00Z,47,-4,1,1,35,-4,actuelle,1", "2026-06-21T22:15:00Z,47,-4,1,1,35,4,autre,1",
        "2026-06-21T22:15:00Z,47,-4,1,1,35,4,actuelle,2", "2026 06-21T22:15:00Z,47,-4,1,1,35,4,actuelle,1"}) {
    EXPECT_FALSE(LitLignePoint(mauvaise)) << mauvaise;
  }
}

TEST(KeptFixes, TheyStandByTimeAndOfOneMomentTheLaterLineCounts) {
  PointGarde tot = Exemple();
  tot.utc = UTCDe({2026, 6, 20, 5, 0, 0});
  PointGarde corrige = Exemple();
  corrige.lieu.latitude = 48;
  PointGarde dite = Exemple();
  dite.theorie = TheoriePoint::Dite;
  const auto points = LitPoints(std::string(kTitresPoints) + "\r\n" + LignePoint(Exemple()) + "\r\n" + LignePoint(tot) +
                                "\n\nrien\n" + LignePoint(dite) + "\n" + LignePoint(corrige));
  ASSERT_EQ(points.size(), 3U);
  EXPECT_EQ(SecondesEntre(points[0].utc, tot.utc), 0);
  EXPECT_EQ(points[1].lieu.latitude, 48);
  EXPECT_EQ(points[2].theorie, TheoriePoint::Dite);
}

TEST(KeptFixes, TheTrackIsThatOfTheLastDaysWithOnePlaceAMoment) {
  std::vector<PointGarde> points;
  for (int jour = 1; jour <= 20; ++jour) {
    PointGarde point = Exemple();
    point.utc = UTCDe({2026, 6, jour, 12, 0, 0});
    point.lieu = {static_cast<double>(jour), 0};
    points.push_back(point);
    point.theorie = TheoriePoint::Dite;
    point.lieu.longitude = 5;
    points.push_back(point);
  }
  const auto sillage = SillageDe(points, 7);
  ASSERT_EQ(sillage.size(), 8U);
  EXPECT_EQ(sillage.front().latitude, 13);
  EXPECT_EQ(sillage.back().latitude, 20);
  EXPECT_EQ(sillage.back().longitude, 0) << "that by the sky of today";
  EXPECT_TRUE(SillageDe({}, 7).empty());
}

} // namespace
} // namespace velmaris

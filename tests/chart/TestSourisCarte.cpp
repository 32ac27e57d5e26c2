#include "chart/SourisCarte.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace velmaris::essais {
namespace {

TEST(SourisCarte, CoordinatesAreWholeDegreesAndMinutesWithTheirSides) {
  EXPECT_EQ(TexteCoordonnees({48.5, 5.25}), "N48.30   W05.15");
  EXPECT_EQ(TexteCoordonnees({-8.1, -151.75}), "S08.06   E151.45");
  EXPECT_EQ(TexteCoordonnees({0.0, 0.0}), "S00.00   E00.00") << "zero is not above zero";
  EXPECT_EQ(TexteCoordonnees({0.25, 0.25}), "N00.15   W00.15");
  EXPECT_EQ(TexteCoordonnees({-0.25, -0.25}), "S00.15   E00.15");
}

TEST(SourisCarte, MinutesRoundedUpReadSixty) { EXPECT_EQ(TexteCoordonnees({10 + 59.6 / 60, 0.1}), "N10.60   W00.06"); }

TEST(SourisCarte, TheLengthOfALegIsOnTheOneScaleOfTheSheetRoundedToAWholeMile) {
  EXPECT_EQ(DistanceBranche({100, 100}, {400, 500}, 50.0F), 10) << "3, 4, 5";
  EXPECT_EQ(DistanceBranche({400, 500}, {100, 100}, 50.0F), 10);
  EXPECT_EQ(DistanceBranche({0, 0}, {0, 125}, 50.0F), 2) << "ties go to the even number";
  EXPECT_EQ(DistanceBranche({0, 0}, {0, 175}, 50.0F), 4);
  EXPECT_EQ(DistanceBranche({7, 7}, {7, 7}, 50.0F), 0);
}

TEST(SourisCarte, ALegWithoutAScaleOrPast16BitsCanNotBeMeasured) {
  EXPECT_EQ(NumeroErreur([] { DistanceBranche({0, 0}, {1, 1}, 0.0F); }), 11);
  EXPECT_EQ(NumeroErreur([] { CapBranche({0, 0}, {1, 1}, 0.0F); }), 11);
  EXPECT_EQ(DistanceBranche({0, 0}, {32767, 0}, 1.0F), 32767);
  EXPECT_EQ(NumeroErreur([] { DistanceBranche({0, 0}, {32768, 0}, 1.0F); }), 6);
}

TEST(SourisCarte, TheCourseOfALegIsThatOfTheSurfaceInEveryQuadrant) {
  const Point debut{5000, 5000};
  for (int cap = 1; cap < 360; ++cap) {
    if (cap % 90 == 0) {
      continue;
    }
    const double r = cap * std::numbers::pi / 180;
    EXPECT_EQ(CapBranche(debut, {5000 + 3000 * std::sin(r), 5000 - 3000 * std::cos(r)}, 50.0F), cap);
  }
}

TEST(SourisCarte, AlongTheAxesTheCourseIsThatOfTheCompass) {
  const Point debut{5000, 5000};
  EXPECT_EQ(CapBranche(debut, {5000, 4000}, 50.0F), 0);
  EXPECT_EQ(CapBranche(debut, {5000, 6000}, 50.0F), 180);
  EXPECT_EQ(CapBranche(debut, {6000, 5000}, 50.0F), 90);
  EXPECT_EQ(CapBranche(debut, {4000, 5000}, 50.0F), 270);
  EXPECT_EQ(CapBranche(debut, debut, 50.0F), 0) << "a leg of no length";
}

TEST(SourisCarte, ACourseAHairWestOfNorthIs360) { EXPECT_EQ(CapBranche({5000, 5000}, {4999.9, 4000}, 50.0F), 360); }

TEST(SourisCarte, ThePairOfEndsIsRoundedOnceToAWholeDegreeTiesToEven) {
  // The angle is formed with the short pi of this measure: 30 degrees stay 30.
  EXPECT_EQ(CapBranche({0, 0}, {std::tan(30.4 * std::numbers::pi / 180), -1}, 1.0F), 30);
  EXPECT_EQ(CapBranche({0, 0}, {std::tan(30.6 * std::numbers::pi / 180), -1}, 1.0F), 31);
}

class Branches : public ::testing::Test {
protected:
  Branches() {
    Ligne(surface, {0, 0}, {10, 10}, kNoir);
    souris.DebutX = 1000;
    souris.DebutY = 2000;
    souris.FinX = 3000;
    souris.FinY = 4000;
  }
  Surface surface;
  SourisCarte souris;
};

TEST_F(Branches, TheStartOfALegIsACircleOf80UnitsWithFourBlackStrokesOf80) {
  TraceCroixBranche(souris, surface);
  const auto &cercle = std::get<CercleTrace>(surface.traces.at(1));
  EXPECT_EQ(cercle.centre, (Point{1000, 2000}));
  EXPECT_EQ(cercle.rayon, 80.0);
  double somme = 0;
  int traits = 0;
  for (std::size_t i = 2; i < surface.traces.size(); ++i) {
    const auto &trait = std::get<Polyligne>(surface.traces[i]);
    EXPECT_EQ(trait.plume.couleur, kNoir);
    EXPECT_EQ(trait.points.front(), (Point{1000, 2000}));
    somme += std::hypot(trait.points.back().x - 1000, trait.points.back().y - 2000);
    ++traits;
  }
  EXPECT_EQ(traits, 4);
  EXPECT_DOUBLE_EQ(somme, 4 * 80.0);
}

TEST_F(Branches, ALegIsADashDottedMagentaLineAndThePenIsSolidAgain) {
  TraceBranche(souris, surface);
  const auto &ligne = std::get<Polyligne>(surface.traces.at(1));
  EXPECT_EQ(ligne.points, (std::vector<Point>{{1000, 2000}, {3000, 4000}}));
  EXPECT_EQ(ligne.plume.couleur, 0xFF00FFU);
  EXPECT_EQ(static_cast<int>(ligne.plume.style), 3);
  EXPECT_EQ(surface.style, Style::Plein);
}

TEST_F(Branches, WipingTakesTheLegsAndLeavesAllElse) {
  TraceCroixBranche(souris, surface);
  TraceBranche(souris, surface);
  Ligne(surface, {3000, 4000}, {5000, 6000}, kMagenta);
  TraceCroixBranche(souris, surface);
  const std::uint64_t avant = surface.effacements;
  EffaceBranches(souris, surface);
  ASSERT_EQ(surface.traces.size(), 2U);
  EXPECT_EQ(std::get<Polyligne>(surface.traces[0]).points.back(), (Point{10, 10}));
  EXPECT_EQ(std::get<Polyligne>(surface.traces[1]).points.back(), (Point{5000, 6000}));
  EXPECT_GT(surface.effacements, avant) << "the picture is painted anew";
  const std::uint64_t apres = surface.effacements;
  EffaceBranches(souris, surface);
  EXPECT_EQ(surface.effacements, apres) << "nothing was left to wipe";
  EXPECT_EQ(surface.traces.size(), 2U);
}

TEST_F(Branches, OnASurfaceClearedSinceThereIsNothingToWipe) {
  TraceCroixBranche(souris, surface);
  Efface(surface);
  Ligne(surface, {0, 0}, {10, 10}, kNoir);
  Ligne(surface, {20, 20}, {30, 30}, kNoir);
  Ligne(surface, {40, 40}, {50, 50}, kNoir);
  EffaceBranches(souris, surface);
  EXPECT_EQ(surface.traces.size(), 3U);
  TraceBranche(souris, surface);
  EffaceBranches(souris, surface);
  EXPECT_EQ(surface.traces.size(), 3U) << "only the leg drawn since";
}

} // namespace
} // namespace velmaris::essais

#include "sky/ProjectionCiel.hpp"

#include <gtest/gtest.h>

/// The two charts of the sky: plain maps of two angles, turned and wrapped.
namespace velmaris {
namespace {

CadreCiel Horizontale(double S = 0) { return {18000, 9000, S, CarteCiel::Horizontale}; }
CadreCiel Equatoriale(double S = 0) { return {18000, 9000, S, CarteCiel::Equatoriale}; }

TEST(ProjectionCiel, AzimuthGrowsToTheRightAndHeightUpward) {
  // 50 units a degree across, 100 up.
  EXPECT_EQ(ProjetteHorizon(Horizontale(), 0, 0), (Point{0, 9000}));
  EXPECT_EQ(ProjetteHorizon(Horizontale(), 90, 90), (Point{4500, 0}));
  EXPECT_EQ(ProjetteHorizon(Horizontale(), 270, 45), (Point{13500, 4500}));
}

TEST(ProjectionCiel, ABodyBelowTheHorizonLiesUnderTheLowerEdge) {
  EXPECT_EQ(ProjetteHorizon(Horizontale(), 180, -30), (Point{9000, 12000}));
}

TEST(ProjectionCiel, RightAscensionGrowsToTheLeftAndDeclinationFillsTheHeight) {
  EXPECT_EQ(ProjetteEquateur(Equatoriale(), 0, 90), (Point{18000, 4500}));
  EXPECT_EQ(ProjetteEquateur(Equatoriale(), 90, 180), (Point{13500, 0}));
  EXPECT_EQ(ProjetteEquateur(Equatoriale(), 270, 0), (Point{4500, 9000}));
}

TEST(ProjectionCiel, HoursFillTheSameWidthAsDegrees) {
  for (const double heures : {0.0, 3.0, 6.0, 18.0, 23.0}) {
    EXPECT_EQ(ProjetteEquateur(Equatoriale(), heures, 100, 24), ProjetteEquateur(Equatoriale(), heures * 15, 100));
  }
}

TEST(ProjectionCiel, TheSliderTurnsTheSkyByHalfAWidthForEachHundred) {
  const double x = 4500;
  EXPECT_EQ(Decale(Horizontale(0.0), x), 4500);
  EXPECT_EQ(Decale(Horizontale(0.5), x), 9000);
  EXPECT_EQ(Decale(Horizontale(1.0), x), 13500);
  EXPECT_EQ(Decale(Horizontale(1.5), x), 18000) << "the very edge isn't past it";
  EXPECT_EQ(Decale(Horizontale(2.0), x), 4500);
}

TEST(ProjectionCiel, WhatPassesTheRightEdgeComesBackAtTheLeft) {
  EXPECT_EQ(Decale(Horizontale(1.0), 9001), 1);
  EXPECT_EQ(Decale(Horizontale(1.0), 9000), 18000);
}

TEST(ProjectionCiel, AWholeTurnLooksAsNone) {
  for (int az = 1; az <= 360; ++az) {
    EXPECT_NEAR(ProjetteHorizon(Horizontale(2.0), az, 10).x, ProjetteHorizon(Horizontale(0.0), az, 10).x, 1e-9) << az;
  }
}

TEST(ProjectionCiel, ThePointerReadsBackWhatIsDrawnThere) {
  for (const double S : {0.0, 0.25, 0.5, 1.0, 1.5, 2.0}) {
    for (int az = 1; az < 360; az += 7) {
      const CadreCiel cadre = Horizontale(S);
      const HorizonPointe lu = LitHorizonPointe(cadre, ProjetteHorizon(cadre, az, az / 4.0));
      EXPECT_NEAR(lu.az, az, 1e-9) << S;
      EXPECT_NEAR(lu.h, az / 4.0, 1e-9);
    }
  }
}

TEST(ProjectionCiel, AnAzimuthOfExactly360UnderThePointerStays) {
  EXPECT_EQ(LitHorizonPointe(Horizontale(), {18000, 0}).az, 360);
  EXPECT_EQ(LitHorizonPointe(Horizontale(), {18001, 0}).az, 360.0 * 18001 / 18000 - 360);
  EXPECT_EQ(LitHorizonPointe(Horizontale(1.0), {9000, 0}).az, 0);
  EXPECT_EQ(LitHorizonPointe(Horizontale(1.0), {8950, 0}).az, 359);
}

TEST(ProjectionCiel, ALabelIsPushedBackAtBothEdges) {
  const CadreCiel cadre = Horizontale();
  EXPECT_EQ(GaucheLabel(cadre, 9000, 1000), 8500);
  EXPECT_EQ(GaucheLabel(cadre, 499, 1000), 0);
  EXPECT_EQ(GaucheLabel(cadre, 500, 1000), 0);
  EXPECT_EQ(GaucheLabel(cadre, 501, 1000), 1);
  EXPECT_EQ(GaucheLabel(cadre, 17499, 1000), 16999);
  EXPECT_EQ(GaucheLabel(cadre, 17501, 1000), 17000);
  EXPECT_EQ(GaucheLabel(cadre, 57238, 1000), 17000) << "an azimuth that is none";
}

TEST(ProjectionCiel, APlanetsMarkIsPushedBackAtTheRightEdgeAlone) {
  EXPECT_EQ(GaucheMarque(Horizontale(), 0, 150), -75);
  EXPECT_EQ(GaucheMarque(Horizontale(), 18000, 150), 17850);
  EXPECT_EQ(GaucheMarque(Horizontale(), 9000, 150), 8925);
}

TEST(ProjectionCiel, AChartWithoutAWidthOrAHeightHasNoPlace) {
  EXPECT_FALSE(ADeLaPlace({0, 9000, 0, CarteCiel::Horizontale}));
  EXPECT_FALSE(ADeLaPlace({18000, 0, 0, CarteCiel::Horizontale}));
  EXPECT_TRUE(ADeLaPlace(Equatoriale()));
}

} // namespace
} // namespace velmaris

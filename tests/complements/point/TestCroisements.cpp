#include "OutilsPoint.hpp"
#include "complements/point/Croisements.hpp"

#include <gtest/gtest.h>

#include <cmath>

/// Two circles of equal height, by closed forms of the sphere.
namespace velmaris {
namespace {

TEST(TwoCircles, AboutTheTwoEndsOfAQuadrantCrossWhereTheirHeightsSay) {
  // Centres on the equator at 0 and 90 east: the crossings' directions are sin h1, sin h2 and what is left.
  const auto c = CroiseCercles({{0, 0}, 30}, {{0, 90}, 45});
  ASSERT_TRUE(c && c->coupe);
  const double latitude = std::asin(std::sqrt(1 - 0.25 - 0.5)) / kRadian;
  const double longitude = std::atan2(std::sqrt(0.5), 0.5) / kRadian;
  EXPECT_NEAR(c->lieux[0].latitude, latitude, 1E-12);
  EXPECT_NEAR(c->lieux[1].latitude, -latitude, 1E-12);
  EXPECT_NEAR(c->lieux[0].longitude, longitude, 1E-12);
  EXPECT_NEAR(c->lieux[1].longitude, longitude, 1E-12);
}

TEST(TwoCircles, CrossAtPlacesThatHaveBothHeights) {
  std::mt19937_64 alea(4);
  const auto sort = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  for (int i = 0; i < 500; ++i) {
    const LieuNavire lieu{std::asin(sort(-1, 1)) / kRadian, sort(-180, 180)};
    const CercleHauteur a{{sort(-89, 89), sort(-180, 180)}, 0};
    const CercleHauteur b{{sort(-89, 89), sort(-180, 180)}, 0};
    const auto haut = [&](const LieuNavire &sous, const LieuNavire &de) { return 90 - EcartLieux(sous, de); };
    const auto c = CroiseCercles({a.sous, haut(a.sous, lieu)}, {b.sous, haut(b.sous, lieu)});
    ASSERT_TRUE(c) << i;
    EXPECT_LT(std::min(EcartLieux(c->lieux[0], lieu), EcartLieux(c->lieux[1], lieu)), 1E-5) << i;
    for (const LieuNavire &l : c->lieux) {
      EXPECT_NEAR(haut(a.sous, l), haut(a.sous, lieu), 1E-6) << i;
      EXPECT_NEAR(haut(b.sous, l), haut(b.sous, lieu), 1E-6) << i;
    }
  }
}

TEST(TwoCircles, ThatDoNotMeetGiveThePlaceBetween) {
  const auto c = CroiseCercles({{0, 0}, 70}, {{0, 60}, 70});
  ASSERT_TRUE(c);
  EXPECT_FALSE(c->coupe);
  EXPECT_NEAR(c->lieux[0].longitude, 30, 1E-9);
  EXPECT_NEAR(c->lieux[0].latitude, 0, 1E-9);
  EXPECT_FALSE(CroiseCercles({{10, 20}, 40}, {{10, 20}, 50})) << "about one place";
  EXPECT_FALSE(CroiseCercles({{10, 20}, 40}, {{-10, -160}, 50})) << "about two that face each other";
}

TEST(TwoCircles, CrossAsSquarelyAsTheDirectionsOfTheirCentresPart) {
  const LieuNavire lieu{30, 40};
  for (const double angle : {10.0, 45.0, 90.0, 135.0, 175.0}) {
    const CercleHauteur a{GrandCercle(lieu, 20, 50), 40};
    const CercleHauteur b{GrandCercle(lieu, 20 + angle, 30), 60};
    EXPECT_NEAR(FranchiseCroisement(PretDe(a), PretDe(b)), std::sin(angle * kRadian), 1E-9) << angle;
  }
  EXPECT_EQ(FranchiseCroisement(PretDe({{0, 0}, 80}), PretDe({{0, 90}, 80})), 0);
}

TEST(TwoCircles, ACircleThatIsTurnedHasAtTheSecondPlaceWhatItHadAtTheFirst) {
  const CercleHauteur c{{12, 34}, 56};
  const LieuNavire de{50, -10};
  const LieuNavire a{51, -12};
  const CercleHauteur tourne = TourneCercle(c, de, a);
  EXPECT_NEAR(EcartLieux(tourne.sous, a), EcartLieux(c.sous, de), 1E-12);
  EXPECT_EQ(tourne.hauteur, 56);
}

} // namespace
} // namespace velmaris

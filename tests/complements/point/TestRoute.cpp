#include "OutilsPoint.hpp"
#include "complements/point/Route.hpp"

#include <gtest/gtest.h>

#include <cmath>

/// The ship's track.
namespace velmaris {
namespace {

using essais::Heure;
using essais::Milles;

TEST(Track, AMileIsAMinuteOfLatitudeAndOneOfLongitudeOverItsCosine) {
  RouteNavire route{{{Heure(0), 0, 10}}, {}};
  LieuNavire fin = Deplace(route, {40, -30}, Heure(0), Heure(6)).lieu;
  EXPECT_NEAR(fin.latitude, 41, 1E-12);
  EXPECT_NEAR(fin.longitude, -30, 1E-12);
  route.jambes[0].cap = 90;
  fin = Deplace(route, {60, 179.5}, Heure(0), Heure(6)).lieu;
  EXPECT_NEAR(fin.latitude, 60, 1E-12);
  EXPECT_NEAR(fin.longitude, -178.5, 1E-9) << "over the date line";
}

TEST(Track, IsARhumbLineByMeridionalParts) {
  // Course by meridional parts in minutes, 7915.7 log tan(45 + lat/2).
  const auto parties = [](double lat) { return 7915.704467897819 * std::log10(std::tan((45 + lat / 2) * kRadian)); };
  const RouteNavire route{{{Heure(0), 47, 12}}, {}};
  const LieuNavire fin = Deplace(route, {-35, 20}, Heure(0), Heure(100)).lieu;
  EXPECT_NEAR(fin.latitude, -35 + 20 * std::cos(47 * kRadian), 1E-10);
  EXPECT_NEAR((fin.longitude - 20) * 60, (parties(fin.latitude) - parties(-35)) * std::tan(47 * kRadian), 1E-6);
}

TEST(Track, NearlyEastGoesAsEastDoes) {
  for (const double penche : {1E-9, 1E-6, 1E-4, 1E-3, 1E-2}) {
    const RouteNavire route{{{Heure(0), 90 - penche, 10}}, {}};
    const LieuNavire fin = Deplace(route, {50, 0}, Heure(0), Heure(10)).lieu;
    const LieuNavire juge = essais::Navigue(route, {}, {50, 0}, Heure(0), Heure(10));
    EXPECT_NEAR(fin.longitude, juge.longitude, 1E-10) << penche;
    EXPECT_NEAR(fin.latitude, juge.latitude, 1E-11) << penche;
  }
}

TEST(Track, BeforeTheFirstLegTheFirstHoldsAndAfterTheLastTheLast) {
  const RouteNavire route{{{Heure(4), 0, 6}, {Heure(2), 90, 12}}, {}};
  EXPECT_NEAR(Deplace(route, {0, 0}, Heure(0), Heure(2)).lieu.longitude, 0.4, 1E-12);
  EXPECT_NEAR(Deplace(route, {0, 0}, Heure(5), Heure(15)).lieu.latitude, 1, 1E-12);
  const LieuNavire fin = Deplace(route, {0, 0}, Heure(0), Heure(5)).lieu;
  EXPECT_NEAR(fin.longitude, 0.8, 1E-12);
  EXPECT_NEAR(fin.latitude, 0.1, 1E-12);
}

TEST(Track, WithoutALegTheShipDriftsWithTheCurrentAlone) {
  const RouteNavire route{{}, {180, 1.5}};
  EXPECT_NEAR(Deplace(route, {10, 10}, Heure(0), Heure(4)).lieu.latitude, 9.9, 1E-12);
  EXPECT_NEAR(Deplace({}, {10, 10}, Heure(0), Heure(4)).lieu.latitude, 10, 1E-15);
}

TEST(Track, CurrentAndCourseAddAsVectorsIntoOneRhumbLine) {
  const RouteNavire route{{{Heure(0), 0, 4}}, {90, 3}};
  const RouteNavire somme{{{Heure(0), std::atan2(3, 4) / kRadian, 5}}, {}};
  EXPECT_LT(Milles(Deplace(route, {55, 3}, Heure(0), Heure(9)).lieu, Deplace(somme, {55, 3}, Heure(0), Heure(9)).lieu),
            1E-9);
}

TEST(Track, IsGoneBackTheSameWay) {
  std::mt19937_64 alea(1);
  const auto sort = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  for (int i = 0; i < 500; ++i) {
    const RouteNavire route{{{Heure(sort(-2, 2)), sort(0, 360), sort(0, 20)}, {Heure(sort(2, 5)), sort(0, 360), 9}},
                            {sort(0, 360), sort(0, 3)}};
    const LieuNavire de{sort(-80, 80), sort(-180, 180)};
    const InstantUTC a = Heure(sort(-6, 6));
    const LieuNavire la = Deplace(route, de, Heure(1), a).lieu;
    EXPECT_LT(Milles(Deplace(route, la, a, Heure(1)).lieu, de), 1E-8) << i;
    EXPECT_LT(Milles(essais::Navigue(route, {}, de, Heure(1), a), la), 1E-6) << i;
  }
}

TEST(Track, OverAPoleIsHeldAtItsEdgeAndSaysSo) {
  const RouteNavire route{{{Heure(0), 0, 10}}, {}};
  const Arrivee fin = Deplace(route, {89.5, 12}, Heure(0), Heure(6));
  EXPECT_TRUE(fin.auPole);
  EXPECT_EQ(fin.lieu.latitude, kLatitudeMax);
  EXPECT_FALSE(Deplace(route, {88.5, 12}, Heure(0), Heure(6)).auPole);
  const RouteNavire biais{{{Heure(0), 200, 10}}, {}};
  EXPECT_TRUE(std::isfinite(Deplace(biais, {-89.5, 12}, Heure(0), Heure(6)).lieu.longitude));
}

TEST(Track, SlopesAreThoseOfSmallChanges) {
  std::mt19937_64 alea(2);
  const auto sort = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  for (int i = 0; i < 300; ++i) {
    const RouteNavire route{{{Heure(-3), sort(0, 360), 12}, {Heure(2), i % 3 == 0 ? 90 : sort(0, 360), 9}}, {40, 1}};
    const auto troncons = TronconsEntre(route, Heure(0), Heure(sort(-6, 6)));
    const std::array<double, kParametresRoute> base{sort(-75, 75), sort(-170, 170), sort(-3, 3), 0.04, 0.2, -0.3};
    const auto suit = [&](const std::array<double, kParametresRoute> &p) {
      return SuitAvecPentes(troncons, route.courant, {p[0], p[1]}, {p[2], p[3], p[4], p[5]});
    };
    const ArriveePentes ici = suit(base);
    for (std::size_t k = 0; k < kParametresRoute; ++k) {
      constexpr double kPas = 1E-4;
      auto plus = base;
      auto moins = base;
      plus[k] += kPas;
      moins[k] -= kPas;
      const LieuNavire a = suit(plus).arrivee.lieu;
      const LieuNavire b = suit(moins).arrivee.lieu;
      EXPECT_NEAR(ici.latitude[k], (a.latitude - b.latitude) / (2 * kPas), 1E-6) << i << " " << k;
      EXPECT_NEAR(ici.longitude[k], std::remainder(a.longitude - b.longitude, 360) / (2 * kPas), 1E-5) << i << " " << k;
    }
  }
}

} // namespace
} // namespace velmaris

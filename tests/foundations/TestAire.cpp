#include "foundations/Surface.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

namespace velmaris::essais {
namespace {

using Chemin = std::vector<Point>;

/// A shape whose rings' plane is the surface itself.
Aire AireDe(const std::vector<std::vector<PointAnneau>> &anneaux, Teinte teinte = Teinte::Terre) {
  Anneaux tous;
  for (const auto &points : anneaux) {
    Anneau anneau{points, points.front(), points.front()};
    for (const PointAnneau &p : points) {
      anneau.bas = {std::min(anneau.bas.x, p.x), std::min(anneau.bas.y, p.y)};
      anneau.haut = {std::max(anneau.haut.x, p.x), std::max(anneau.haut.y, p.y)};
    }
    tous.push_back(anneau);
  }
  return {teinte, std::make_shared<const Anneaux>(tous), {0, 0}, {1, 1}};
}

double Surface2(const Chemin &c) {
  double somme = 0.0;
  for (std::size_t i = 0; i < c.size(); ++i) {
    const Point a = c[i];
    const Point b = c[(i + 1) % c.size()];
    somme += a.x * b.y - b.x * a.y;
  }
  return std::fabs(somme) / 2;
}

bool Dedans(const Chemin &c, Point p) {
  bool dedans = false;
  for (std::size_t i = 0; i < c.size(); ++i) {
    const Point a = c[i];
    const Point b = c[(i + 1) % c.size()];
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
      dedans = !dedans;
    }
  }
  return dedans;
}

constexpr Cadrage kCadre{{0, 0}, {100, 50}};

TEST(Aire, ARingInsideTheFrameStaysWhole) {
  const auto chemins = Decoupe(AireDe({{{10, 10}, {40, 10}, {40, 30}}}), kCadre, 0.1);
  ASSERT_EQ(chemins.size(), 1U);
  EXPECT_EQ(chemins[0], (Chemin{{10, 10}, {40, 10}, {40, 30}}));
}

TEST(Aire, ARingOutsideTheFrameIsLeftOut) {
  EXPECT_TRUE(Decoupe(AireDe({{{110, 10}, {140, 10}, {140, 30}}}), kCadre, 0.1).empty());
}

TEST(Aire, ARingAroundTheFrameBecomesTheFrame) {
  const auto chemins = Decoupe(AireDe({{{-900, -900}, {900, -900}, {900, 900}, {-900, 900}}}), kCadre, 0.1);
  ASSERT_EQ(chemins.size(), 1U);
  EXPECT_DOUBLE_EQ(Surface2(chemins[0]), 5000.0);
}

TEST(Aire, ARingTooSmallToBeSeenIsLeftOut) {
  EXPECT_TRUE(Decoupe(AireDe({{{10, 10}, {10.2F, 10}, {10.2F, 10.2F}}}), kCadre, 0.5).empty());
}

TEST(Aire, RingsAreScaledAndPlacedOnTheSurface) {
  Aire aire = AireDe({{{0, 0}, {1, 0}, {1, 1}}});
  aire.origine = {20, 40};
  aire.unite = {10, -10};
  const auto chemins = Decoupe(aire, kCadre, 0.1);
  ASSERT_EQ(chemins.size(), 1U);
  EXPECT_EQ(chemins[0], (Chemin{{20, 40}, {30, 40}, {30, 30}}));
}

TEST(Aire, WithinTheFrameACutRingHoldsTheSamePointsAsTheWholeOne) {
  std::mt19937 hasard(17);
  std::uniform_real_distribution<double> rayon(20, 120);
  std::uniform_real_distribution<double> x(0, 100);
  std::uniform_real_distribution<double> y(0, 50);
  for (int essai = 0; essai < 200; ++essai) {
    std::vector<PointAnneau> points;
    Chemin entier;
    for (int k = 0; k < 24; ++k) {
      const double r = rayon(hasard);
      points.push_back(
          {static_cast<float>(50 + r * std::cos(k * 0.2618)), static_cast<float>(25 + r * std::sin(k * 0.2618))});
      entier.push_back({points.back().x, points.back().y});
    }
    const auto chemins = Decoupe(AireDe({points}), kCadre, 0.0);
    ASSERT_EQ(chemins.size(), 1U);
    for (const Point &p : chemins[0]) {
      ASSERT_TRUE(p.x >= -1e-9 && p.x <= 100 + 1e-9 && p.y >= -1e-9 && p.y <= 50 + 1e-9);
    }
    for (int k = 0; k < 50; ++k) {
      const Point p{x(hasard), y(hasard)};
      ASSERT_EQ(Dedans(chemins[0], p), Dedans(entier, p)) << p.x << " " << p.y;
    }
  }
}

TEST(Aire, WaterLiesOverLandWhicheverCameFirst) {
  Surface surface;
  AjouteAire(surface, AireDe({{{0, 0}, {1, 0}, {1, 1}}}, Teinte::Eau));
  AjouteAire(surface, AireDe({{{0, 0}, {2, 0}, {2, 2}}}));
  ASSERT_EQ(surface.aires.size(), 2U);
  EXPECT_EQ(surface.aires[0].teinte, Teinte::Terre);
}

TEST(Aire, TheSameShapeIsThereOnce) {
  Surface surface;
  const Aire aire = AireDe({{{0, 0}, {1, 0}, {1, 1}}});
  AjouteAire(surface, aire);
  AjouteAire(surface, aire);
  EXPECT_EQ(surface.aires.size(), 1U);
}

TEST(Aire, ShapesGoWithWhatIsDrawn) {
  Surface surface;
  AjouteAire(surface, AireDe({{{0, 0}, {1, 0}, {1, 1}}}));
  surface.etiquettes.push_back({});
  Efface(surface);
  EXPECT_TRUE(surface.aires.empty() && surface.etiquettes.empty());
}

} // namespace
} // namespace velmaris::essais

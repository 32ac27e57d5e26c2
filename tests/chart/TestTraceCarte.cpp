#include "chart/TraceCarte.hpp"

#include "chart/Projection.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace velmaris::essais {
namespace {

constexpr double kLargeur = 20000.0;
constexpr double kHauteur = 10000.0;
constexpr double kZoom = 200.0;
constexpr double kMarge = 10800.0 / kZoom * 100; ///< outside the surface, around a sheet of that zoom

/// A chart around 45 degrees north, 0 degrees, with outlines given in degrees.
class TraceCarte : public ::testing::Test {
protected:
  TraceCarte() {
    surface.largeur = kLargeur;
    surface.hauteur = kHauteur;
    feuille.CentreX = static_cast<float>(kLargeur / 2);
    feuille.CentreY = static_cast<float>(kHauteur / 2);
    feuille.OrigineFeuille = {45.0F, 0.0F};
    feuille.EchelleY = static_cast<float>(kHauteur / kZoom);
    feuille.EchelleX = static_cast<float>(feuille.EchelleY * std::sqrt(0.5));
  }

  void Ajoute(float x, float y) {
    polygone.PolyX[n] = x;
    polygone.PolyY[n] = y;
    ++n;
  }
  /// A place in degrees, north and west positive.
  void AjoutePlace(double latitude, double longitude) {
    Ajoute(static_cast<float>((180 - longitude) / 360),
           static_cast<float>((latitude + 90) / (180 * std::numbers::sqrt2)));
  }
  void Coupe() { Ajoute(2.0F, 0.0F); }

  void Dessine(Couleur couleur = kNoir) {
    Affiche(polygone, feuille, surface, couleur, [this] { ++respirations; });
  }

  std::vector<Polyligne> Lignes() const { return TracesDe<Polyligne>(surface); }
  std::size_t Segments() const { return essais::Segments(surface).size(); }

  Polygone polygone;
  Feuille feuille;
  Surface surface;
  std::size_t n = 0;
  int respirations = 0;
};

TEST_F(TraceCarte, JoinedPointsAreOnePolylineInTheColour) {
  AjoutePlace(45, 0);
  AjoutePlace(45.5, 0);
  AjoutePlace(45.5, -1);
  Dessine(0x123456);
  ASSERT_EQ(Lignes().size(), 1U);
  const Polyligne ligne = Lignes()[0];
  EXPECT_EQ(ligne.plume.couleur, 0x123456U);
  EXPECT_EQ(ligne.plume.largeur, 1);
  ASSERT_EQ(ligne.points.size(), 3U);
  EXPECT_NEAR(ligne.points[0].x, kLargeur / 2, 0.2);
  EXPECT_NEAR(ligne.points[0].y, kHauteur / 2, 0.2);
  EXPECT_NEAR(ligne.points[1].y, kHauteur / 2 - 30 * 50, 0.2) << "30 miles at 50 units a mile";
  EXPECT_NEAR(ligne.points[2].x, kLargeur / 2 + 60 * 50 * std::sqrt(0.5), 0.2) << "east is right";
}

TEST_F(TraceCarte, APointWithXAboveOneCutsTheOutline) {
  AjoutePlace(45, 0);
  AjoutePlace(45.1, 0);
  Coupe();
  AjoutePlace(45.2, 0);
  AjoutePlace(45.3, 0);
  Dessine();
  EXPECT_EQ(Lignes().size(), 2U);
  EXPECT_EQ(Segments(), 2U);
}

TEST_F(TraceCarte, ASinglePointBetweenTwoCutsDrawsNothing) {
  Coupe();
  AjoutePlace(45, 0);
  Coupe();
  Dessine();
  EXPECT_TRUE(surface.traces.empty());
}

TEST_F(TraceCarte, APairWhoseSecondXIsZeroIsLeftOutAndOneWhoseFirstIsZeroIsDrawn) {
  feuille.OrigineFeuille = {45.0F, 180.0F};
  AjoutePlace(45, 179.9);
  AjoutePlace(45.1, 180); // x is 0
  AjoutePlace(45.2, 179.9);
  Dessine();
  ASSERT_EQ(Lignes().size(), 1U);
  EXPECT_NEAR(Lignes()[0].points[0].x, kLargeur / 2, 0.2);
}

TEST_F(TraceCarte, ZeroZeroEndsTheData) {
  AjoutePlace(45, 0);
  AjoutePlace(45.1, 0);
  Ajoute(0, 0);
  AjoutePlace(45.2, 0);
  AjoutePlace(45.3, 0);
  Dessine();
  EXPECT_EQ(Segments(), 1U);
}

TEST_F(TraceCarte, AFirstPointZeroZeroAndAnEmptyFileDrawNothing) {
  Ajoute(0, 0);
  AjoutePlace(45.2, 0);
  AjoutePlace(45.3, 0);
  Dessine();
  EXPECT_TRUE(surface.traces.empty());
  Dessine();
  EXPECT_TRUE(surface.traces.empty());
}

TEST_F(TraceCarte, ThePointsAreEmptiedAtTheEnd) {
  AjoutePlace(45, 0);
  AjoutePlace(45.1, 0);
  Dessine();
  EXPECT_EQ(polygone.PolyX[0], 0.0F);
  EXPECT_EQ(polygone.PolyY[1], 0.0F);
}

/// Latitude and longitude of a point of the surface.
PlaceCarte Place(const Feuille &f, double x, double y) { return PlaceSousPoint(f, {x, y}); }

TEST_F(TraceCarte, APairIsDrawnWithinTheMarginOutsideTheSurfaceOnEachOfTheFourSides) {
  const Point centre{kLargeur / 2, kHauteur / 2};
  const struct {
    Point dedans;
    Point dehors;
  } cotes[] = {{{centre.x, -kMarge + 20}, {centre.x, -kMarge - 20}},
               {{centre.x, kHauteur + kMarge - 20}, {centre.x, kHauteur + kMarge + 20}},
               {{-kMarge + 20, centre.y}, {-kMarge - 20, centre.y}},
               {{kLargeur + kMarge - 20, centre.y}, {kLargeur + kMarge + 20, centre.y}}};
  for (const auto &cote : cotes) {
    for (const bool renverse : {false, true}) {
      for (const auto &[bout, segments] : {std::pair{cote.dedans, 1U}, {cote.dehors, 0U}}) {
        const PlaceCarte milieu = Place(feuille, centre.x, centre.y);
        const PlaceCarte place = Place(feuille, bout.x, bout.y);
        surface.traces.clear();
        n = 0;
        AjoutePlace((renverse ? place : milieu).latitude, (renverse ? place : milieu).longitude);
        AjoutePlace((renverse ? milieu : place).latitude, (renverse ? milieu : place).longitude);
        Dessine();
        EXPECT_EQ(Segments(), segments) << bout.x << " " << bout.y << " " << renverse;
      }
    }
  }
}

TEST_F(TraceCarte, ForTheWholeWorldTheMarginIsAHundredUnits) {
  feuille.OrigineFeuille = kSansFeuille;
  surface.largeur = 10800 * std::numbers::sqrt2 + 200; // the antimeridian lies a hundred units within the edges
  feuille.CentreX = static_cast<float>(surface.largeur / 2);
  Ajoute(0.99F, 0.3F);
  Ajoute(1.0F, 0.3F);
  Dessine();
  EXPECT_EQ(Segments(), 1U);
  surface.traces.clear();
  surface.largeur -= 500; // and now 400 units outside
  n = 0;
  Ajoute(0.99F, 0.3F);
  Ajoute(1.0F, 0.3F);
  Dessine();
  EXPECT_EQ(Segments(), 0U);
}

TEST_F(TraceCarte, WhatTheSurfaceHoldsStays) {
  Ligne(surface, {0, 0}, {10, 10}, kRouge);
  AjoutePlace(45, 0);
  AjoutePlace(45.1, 0);
  Dessine();
  ASSERT_EQ(Lignes().size(), 2U);
  EXPECT_EQ(Lignes()[0].plume.couleur, kRouge);
  EXPECT_EQ(surface.effacements, 0U);
}

TEST_F(TraceCarte, EveryTenThousandthDrawnPairLetsTheInterfaceLive) {
  for (int i = 0; i < 20003; ++i) {
    AjoutePlace(45 + i % 2 * 0.1, 0);
  }
  Dessine();
  EXPECT_EQ(respirations, 3) << "pairs 1, 10001 and 20001";
}

TEST_F(TraceCarte, AFullTableIsDrawnToItsLastPoint) {
  for (std::size_t i = 0; i < kPointsPolygone; ++i) {
    AjoutePlace(45 + static_cast<double>(i % 2) * 0.1, 0);
  }
  Dessine();
  EXPECT_EQ(Segments(), 60000U);
}

} // namespace
} // namespace velmaris::essais

#include "shell/point/CalquePoint.hpp"

#include "chart/Projection.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <variant>

/// The fix as it is drawn on sheet and chart.
namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

class LayerOfAFix : public ::testing::Test {
protected:
  LayerOfAFix() {
    surface.largeur = 15000;
    surface.hauteur = 10000;
    feuille.CentreX = 7500;
    feuille.CentreY = 5000;
    feuille.OrigineFeuille = {47.5F, 5.0F}; // west positive
    feuille.Zoom = 100;
    feuille.EchelleY = 100;
    feuille.EchelleX = static_cast<float>(100 * std::cos(47.5 * kRadian));
    point.lieu = {47.5, -5.0};
    point.ellipse = {3, 1, 30};
    point.heure = "22:15";
  }

  Calque Dessine(std::vector<LieuNavire> sillage = {}) const {
    return CalqueDuPoint(feuille, surface, {point}, sillage);
  }

  static std::vector<Polyligne> Lignes(const Calque &calque) {
    std::vector<Polyligne> lignes;
    for (const Trace &trace : calque.traces) {
      if (const auto *ligne = std::get_if<Polyligne>(&trace)) {
        lignes.push_back(*ligne);
      }
    }
    return lignes;
  }

  Feuille feuille;
  Surface surface;
  PointTrace point;
};

TEST_F(LayerOfAFix, TheRingStandsWhereTheMouseReadsThePlace) {
  point.lieu = {47.8, -4.6};
  const Calque calque = Dessine();
  const auto anneau = std::find_if(calque.traces.rbegin(), calque.traces.rend(),
                                   [](const Trace &t) { return std::holds_alternative<CercleTrace>(t); });
  ASSERT_NE(anneau, calque.traces.rend());
  const PlaceCarte place = PlaceSousPoint(feuille, std::get<CercleTrace>(*anneau).centre);
  EXPECT_NEAR(place.latitude, 47.8, 1E-4);
  EXPECT_NEAR(place.longitude, 4.6, 1E-4);
  ASSERT_EQ(calque.etiquettes.size(), 1U);
  EXPECT_EQ(calque.etiquettes[0].texte.texte, "22:15");
}

TEST_F(LayerOfAFix, TheEllipseHasItsAxesInMilesAndItsDirection) {
  const std::vector<Polyligne> lignes = Lignes(Dessine());
  ASSERT_EQ(lignes.size(), 1U);
  double plusLoin = 0;
  double direction = 0;
  double plusPres = 1E9;
  for (const Point &p : lignes[0].points) {
    const double nord = (5000 - p.y) / 100;
    const double est = (p.x - 7500) / 100;
    const double loin = std::hypot(nord, est);
    if (loin > plusLoin) {
      plusLoin = loin;
      direction = std::atan2(est, nord) / kRadian;
    }
    plusPres = std::min(plusPres, loin);
  }
  EXPECT_NEAR(plusLoin, 3, 0.01);
  EXPECT_NEAR(plusPres, 1, 0.01);
  EXPECT_NEAR(std::remainder(direction - 30, 180), 0, 3);
}

TEST_F(LayerOfAFix, AnAdvancedLineRunsAcrossItsAzimuthAtItsResidual) {
  point.droites = {{90, 2, 20}}; // a body in the east, the line two miles east of the fix
  const std::vector<Polyligne> lignes = Lignes(Dessine());
  ASSERT_EQ(lignes.size(), 2U);
  const Polyligne &droite = lignes[0];
  const auto milieu = droite.points[droite.points.size() / 2];
  EXPECT_NEAR((milieu.x - 7500) / 100, 2, 0.01);
  EXPECT_NEAR(milieu.y, 5000, 1);
  EXPECT_NEAR(std::fabs(droite.points.front().y - droite.points.back().y), 2 * 0.22 * 10000, 1);
}

TEST_F(LayerOfAFix, ALineOfAHighBodyBendsTowardsItAsItsCircleDoes) {
  constexpr double kHauteur = 85; // the circle's radius is 300 miles
  point.droites = {{0, 0, kHauteur}};
  const Polyligne droite = Lignes(Dessine())[0];
  const double loin = (droite.points.back().x - 7500) / 100;
  const double vers = (5000 - droite.points.back().y) / 100;
  const double rayon = 300;
  EXPECT_NEAR(vers, rayon - std::sqrt(rayon * rayon - loin * loin), 0.02);
}

TEST_F(LayerOfAFix, ATrackOverTheDateLineIsDrawnInPlaceOnASheetBesideIt) {
  feuille.OrigineFeuille = {10.0F, 179.8F};
  feuille.EchelleX = feuille.EchelleY;
  point.lieu = {10, 179.9}; // over the line from the sheet's centre
  point.route = {{10, -179.9}, {10, 179.9}};
  const Calque calque = Dessine();
  const Polyligne route = Lignes(calque)[0];
  ASSERT_EQ(route.points.size(), 2U);
  EXPECT_NEAR(std::fabs(route.points[0].x - route.points[1].x), 0.2 * 60 * 100, 2);
}

TEST_F(LayerOfAFix, OnTheChartOfTheWorldALineStaysAsLongAsItsArcHolds) {
  feuille.EchelleX = 1;
  feuille.EchelleY = 1;
  point.droites = {{90, 0, 20}};
  const Polyligne droite = Lignes(Dessine())[0];
  EXPECT_NEAR(std::fabs(droite.points.front().y - droite.points.back().y), 240, 1);
}

TEST_F(LayerOfAFix, WithoutAScaleNothingIsDrawn) {
  feuille.EchelleX = 0;
  feuille.EchelleY = 0;
  EXPECT_EQ(Dessine(), Calque());
}

TEST_F(LayerOfAFix, AtThePoleWhereAMileHasNoPlaceNothingIsDrawn) {
  point.lieu = {89.5, 0};
  EXPECT_TRUE(Lignes(Dessine()).empty());
}

TEST_F(LayerOfAFix, KeptFixesAreJoinedInTheirOrder) {
  const std::vector<Polyligne> lignes = Lignes(Dessine({{47.4, -5}, {47.5, -5.1}, {47.6, -5.2}}));
  ASSERT_EQ(lignes.size(), 2U);
  EXPECT_EQ(lignes[0].points.size(), 3U);
  EXPECT_GT(lignes[0].points[0].y, lignes[0].points[2].y);
}

} // namespace
} // namespace velmaris

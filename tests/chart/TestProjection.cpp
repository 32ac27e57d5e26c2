#include "chart/Projection.hpp"

#include "foundations/Erreur.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace velmaris::essais {
namespace {

constexpr double kLargeur = 28515.0;
constexpr double kHauteur = 13937.0;

Surface Dessin() {
  Surface surface;
  surface.largeur = kLargeur;
  surface.hauteur = kHauteur;
  return surface;
}

/// A sheet around a place, as the plotting sheet leaves its scales.
Feuille FeuilleEn(float latitude, float longitude, int zoom) {
  Feuille f;
  f.CentreX = static_cast<float>(kLargeur / 2);
  f.CentreY = static_cast<float>(kHauteur / 2);
  f.OrigineFeuille = {latitude, longitude};
  f.Zoom = static_cast<std::int16_t>(zoom);
  f.EchelleY = static_cast<float>(kHauteur / zoom);
  f.EchelleX = static_cast<float>(f.EchelleY * std::cos(latitude * std::numbers::pi / 180));
  return f;
}

double X(double longitude) { return (180 - longitude) / 360; }
double Y(double latitude) { return (latitude + 90) / (180 * std::numbers::sqrt2); }

TEST(Projection, WithoutASheetTheWholeWorldShowsAndItsScalesStayInForce) {
  const Surface surface = Dessin();
  for (const float longitude : {300.0F, 200.0F}) {
    Feuille f = FeuilleEn(100.0F, longitude, 200);
    const VueCarte vue = ChoisitVue(f, surface);
    EXPECT_EQ(vue.Rapport, 1.0F);
    EXPECT_EQ(vue.CentreCarteX, 0.5);
    EXPECT_EQ(vue.CentreCarteY, 0.5);
    EXPECT_EQ(f.EchelleX, static_cast<float>(std::numbers::sqrt2 / 2));
    EXPECT_EQ(f.EchelleY, 1.0F);
  }
}

TEST(Projection, AroundASheetTheFactorIs10800OverTheZoomAndTheScalesAreTheSheets) {
  const Surface surface = Dessin();
  for (const int zoom : {8, 200, 3000, 10800}) {
    Feuille f = FeuilleEn(47.5F, 5.0F, zoom);
    const Feuille avant = f;
    const VueCarte vue = ChoisitVue(f, surface);
    EXPECT_NEAR(vue.Rapport, 10800.0 / zoom, 1e-3);
    EXPECT_DOUBLE_EQ(vue.CentreCarteX, 175.0 / 360);
    EXPECT_DOUBLE_EQ(vue.CentreCarteY, 1 - 137.5 / 180);
    EXPECT_EQ(f.EchelleX, avant.EchelleX);
    EXPECT_EQ(f.EchelleY, avant.EchelleY);
  }
}

TEST(Projection, AtZoom10800TheFactorIsOneWhateverTheHeight) {
  for (const double hauteur : {3000.0, 9867.0, 13937.0, 40000.0}) {
    Surface surface = Dessin();
    surface.hauteur = hauteur;
    Feuille f = FeuilleEn(0.0F, 0.0F, 10800);
    f.EchelleY = static_cast<float>(hauteur / 10800);
    EXPECT_NEAR(ChoisitVue(f, surface).Rapport, 1.0, 1e-6);
  }
}

TEST(Projection, TheLatitudeOfTheSheetAloneDoesNotDecide) {
  const Surface surface = Dessin();
  Feuille f = FeuilleEn(100.0F, 199.9F, 200);
  EXPECT_NE(ChoisitVue(f, surface).Rapport, 1.0F);
}

TEST(Projection, ASurfaceWithoutHeightIsADivisionByZero) {
  Feuille f = FeuilleEn(47.5F, 5.0F, 200);
  const Surface surface;
  try {
    ChoisitVue(f, surface);
    FAIL();
  } catch (const Erreur &erreur) {
    EXPECT_EQ(erreur.numero, 11);
  }
}

TEST(Projection, TheWholeWorldReachesFromTheLowerEdgeAtTheSouthPoleToTheUpperAtTheNorth) {
  Feuille f = FeuilleEn(100.0F, 300.0F, 200);
  const VueCarte vue = ChoisitVue(f, Dessin());
  EXPECT_NEAR(PlaceSurCarte(vue, f, 0.5, 0.0).y, kHauteur, 1e-6);
  EXPECT_NEAR(PlaceSurCarte(vue, f, 0.5, 1 / std::numbers::sqrt2).y, 0.0, 1e-6);
  EXPECT_NEAR(PlaceSurCarte(vue, f, 0.5, 0.5 / std::numbers::sqrt2).y, kHauteur / 2, 1e-6);
  EXPECT_NEAR(PlaceSurCarte(vue, f, 0.0, 0.0).x, kLargeur / 2 - 180 * 60 * std::sqrt(0.5), 0.01);
  EXPECT_NEAR(PlaceSurCarte(vue, f, 1.0, 0.0).x, kLargeur / 2 + 180 * 60 * std::sqrt(0.5), 0.01);
}

TEST(Projection, APlaceOfTheOutlinesLiesWhereTheSheetHasIt) {
  for (const auto &[lat, lon] : {std::pair{47.5F, 5.0F}, {-33.0F, -151.0F}, {0.0F, 179.5F}, {72.0F, -179.0F}}) {
    Feuille f = FeuilleEn(lat, lon, 200);
    const VueCarte vue = ChoisitVue(f, Dessin());
    for (const auto &[dLat, dLon] : {std::pair{0.0, 0.0}, {1.0, -1.0}, {-1.5, 0.25}, {0.1, 3.0}}) {
      const Point carte = PlaceSurCarte(vue, f, X(lon + dLon), Y(lat + dLat));
      const Point feuille = PlaceSurFeuille(f, lat + dLat, lon + dLon);
      EXPECT_NEAR(carte.x, feuille.x, 0.02) << lat;
      EXPECT_NEAR(carte.y, feuille.y, 0.02) << lat;
    }
  }
}

TEST(Projection, NearTheAntimeridianTheFarSideIsNotRepeated) {
  Feuille f = FeuilleEn(-17.0F, 179.5F, 200);
  const VueCarte vue = ChoisitVue(f, Dessin());
  EXPECT_GT(PlaceSurCarte(vue, f, X(-179.5), Y(-17.0)).x, kLargeur) << "a degree away, and nearly a turn of the map";
}

TEST(Projection, ThePlaceUnderAPointIsTheInverseOfTheSheet) {
  const Feuille f = FeuilleEn(47.5F, 5.0F, 200);
  for (const auto &[lat, lon] : {std::pair{47.5, 5.0}, {48.25, 4.0}, {46.0, 7.75}}) {
    const PlaceCarte place = PlaceSousPoint(f, PlaceSurFeuille(f, lat, lon));
    EXPECT_NEAR(place.latitude, lat, 1e-9);
    EXPECT_NEAR(place.longitude, lon, 1e-9);
  }
}

TEST(Projection, WithoutASheetThePlaceIsReckonedFromZeroZero) {
  Feuille f = FeuilleEn(100.0F, 300.0F, 200);
  ChoisitVue(f, Dessin());
  const PlaceCarte place = PlaceSousPoint(f, {f.CentreX - 600.0, f.CentreY - 1200.0});
  EXPECT_NEAR(place.latitude, 20.0, 1e-9) << "one unit a mile";
  EXPECT_NEAR(place.longitude, 10.0 * std::numbers::sqrt2, 1e-6);
}

TEST(Projection, EachReferenceCoordinateIsJudgedByItself) {
  Feuille f = FeuilleEn(90.0F, 200.0F, 200);
  EXPECT_EQ(ReferenceCarte(f).latitude, 90.0);
  EXPECT_EQ(ReferenceCarte(f).longitude, 200.0);
  f.OrigineFeuille = {90.01F, 200.01F};
  EXPECT_EQ(ReferenceCarte(f).latitude, 0.0);
  EXPECT_EQ(ReferenceCarte(f).longitude, 0.0);
}

TEST(Projection, ThePlaceUnderAPointIsNotWrapped) {
  const Feuille f = FeuilleEn(89.0F, 179.0F, 200);
  EXPECT_GT(PlaceSousPoint(f, {f.CentreX, 0.0}).latitude, 90.0);
  EXPECT_GT(PlaceSousPoint(f, {0.0, f.CentreY + 0.0}).longitude, 180.0);
}

TEST(Projection, WithoutAScaleThereIsNoPlaceUnderAPoint) {
  Feuille f = FeuilleEn(47.5F, 5.0F, 200);
  f.EchelleX = 0.0F;
  EXPECT_THROW(PlaceSousPoint(f, {1.0, 1.0}), Erreur);
  f.EchelleX = 1.0F;
  f.EchelleY = 0.0F;
  EXPECT_THROW(PlaceSousPoint(f, {1.0, 1.0}), Erreur);
}

TEST(Projection, ACentreIsBroughtBackByOneTurnAndOverAPoleToTheOtherEndOfTheScale) {
  EXPECT_EQ(Enroule({100.0F, 300.0F}), (Origine{-80.0F, -60.0F}));
  EXPECT_EQ(Enroule({90.0F, 180.0F}), (Origine{90.0F, 180.0F}));
  EXPECT_EQ(Enroule({-90.0F, -180.0F}), (Origine{-90.0F, -180.0F}));
  EXPECT_EQ(Enroule({-91.0F, -181.0F}), (Origine{89.0F, 179.0F}));
  EXPECT_EQ(Enroule({91.0F, 181.0F}), (Origine{-89.0F, -179.0F}));
  EXPECT_EQ(Enroule({47.5F, 5.0F}), (Origine{47.5F, 5.0F}));
}

} // namespace
} // namespace velmaris::essais

#include "OutilsCiel.hpp"

#include "complements/ciel/TablesCiel.hpp"
#include "complements/ciel/Vue.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace velmaris {
namespace {

using essais::CielTT;
using essais::Ecart;
using essais::RaisonDe;

constexpr std::array kStations{Station{47.5, -5.17, 3}, Station{-33.9, 151.2, 20}, Station{0, 0, 0},
                               Station{71, 179.9, 15}, Station{-54.8, -68.3, 0}};

TEST(Vue, AStarStandsOverTheHorizonWhereErfaSeesIt) {
  const InstantUTC utc = UTCDe({2026, 6, 21, 22, 5, 30.25});
  const CielDuMoment ciel = PrepareCiel({TTDe(utc), UT1De(utc, 0.1)});
  for (const Station &station : kStations) {
    for (const int rang : {1, 10, 16, 60, 100, 200}) {
      const EtoileIcrs &e = *kEtoilesIcrs[static_cast<std::size_t>(rang) - 1];
      const double mas = ERFA_DAS2R / 1000;
      const double dec = e.dec * ERFA_DD2R;
      double az = 0;
      double zd = 0;
      double ha = 0;
      double d = 0;
      double ad = 0;
      double eo = 0;
      ASSERT_GE(eraAtco13(e.ad * ERFA_DD2R, dec, e.muAd * mas / std::cos(dec), e.muDec * mas, e.parallaxe / 1000, 0,
                          utc.jour, utc.fraction, 0.1, station.longitude * ERFA_DD2R, station.latitude * ERFA_DD2R,
                          station.hauteur, 0, 0, 0, 0, 0, 0.5, &az, &zd, &ha, &d, &ad, &eo),
                0);
      const PlaceTopocentrique vue = VueDe(PlaceDe(ciel, {GenreAstre::Etoile, rang}), station);
      EXPECT_LT(Ecart(vue.azimut, vue.hauteur, az * ERFA_DR2D, 90 - zd * ERFA_DR2D), 0.02) << rang;
    }
  }
}

TEST(Vue, TheMoonFromAPlaceFollowsTheSphericalFormulaOfParallax) {
  const PlaceGeocentrique lune = PlaceDe(CielTT(2461213.4), {GenreAstre::Lune});
  for (const Station &station : kStations) {
    // Parallax in right ascension and declination from the flattened Earth's rho sin and rho cos phi'.
    const double phi = station.latitude * ERFA_DD2R;
    const double b = 6356.752314;
    const double u = std::atan(b / 6378.137 * std::tan(phi));
    const double h = station.hauteur / 6378137.0;
    const double rhoSin = b / 6378.137 * std::sin(u) + h * std::sin(phi);
    const double rhoCos = std::cos(u) + h * std::cos(phi);
    const double sp = std::sin(lune.parallaxe / 60 * ERFA_DD2R);
    const double H = (lune.gha + station.longitude) * ERFA_DD2R;
    const double dec = lune.declinaison * ERFA_DD2R;
    const double denominateur = std::cos(dec) - rhoCos * sp * std::cos(H);
    const double dH = -std::atan2(-rhoCos * sp * std::sin(H), denominateur);
    const double decTopo = std::atan2((std::sin(dec) - rhoSin * sp) * std::cos(dH), denominateur);
    double az = 0;
    double el = 0;
    eraHd2ae(H + dH, decTopo, phi, &az, &el);
    const PlaceTopocentrique vue = VueDe(lune, station);
    EXPECT_LT(Ecart(vue.azimut, vue.hauteur, az * ERFA_DR2D, el * ERFA_DR2D), 0.4) << "0.32\" is diurnal aberration";
  }
}

TEST(Vue, FromTheEarthsCentreHeightAndAzimuthSolveTheTriangle) {
  const PlaceGeocentrique mars = PlaceDe(CielTT(2461213.4), {GenreAstre::Mars});
  for (const Station &station : kStations) {
    double az = 0;
    double el = 0;
    eraHd2ae((mars.gha + station.longitude) * ERFA_DD2R, mars.declinaison * ERFA_DD2R, station.latitude * ERFA_DD2R,
             &az, &el);
    const PlaceTopocentrique vue = VueDe(mars, station);
    EXPECT_NEAR(vue.hauteurCentre, el * ERFA_DR2D, 1E-9);
    EXPECT_NEAR(std::remainder(vue.azimutCentre - az * ERFA_DR2D, 360), 0, 1E-9);
  }
}

TEST(Vue, UnderTheMoonItIsNearerByTheEarthsRadius) {
  const PlaceGeocentrique lune = PlaceDe(CielTT(2461213.4), {GenreAstre::Lune});
  // On the equator plumb line and radius are one.
  PlaceGeocentrique surEquateur = lune;
  surEquateur.declinaison = 0;
  const PlaceTopocentrique vue = VueDe(surEquateur, {0, -lune.gha, 0});
  EXPECT_NEAR(vue.hauteurCentre, 90, 1E-6);
  EXPECT_NEAR((lune.distance - vue.distance) * ERFA_DAU, 6378137, 0.1);
  EXPECT_NEAR(vue.demiDiametre / lune.demiDiametre, lune.distance / vue.distance, 1E-5);
}

TEST(Vue, AtTheHorizonOfTheEquatorItStandsLowerByItsParallax) {
  PlaceGeocentrique lune = PlaceDe(CielTT(2461213.4), {GenreAstre::Lune});
  lune.declinaison = 0;
  const PlaceTopocentrique vue = VueDe(lune, {0, -lune.gha + 90, 0});
  EXPECT_NEAR(vue.hauteurCentre, 0, 1E-9);
  // Its own angle: the tangent's, where the horizontal parallax is the sine's.
  EXPECT_NEAR(vue.hauteur, -std::atan(std::sin(lune.parallaxe / 60 * ERFA_DD2R)) * ERFA_DR2D, 1E-4);
}

TEST(Vue, FromThePlaceAndBackTheCentreIsFoundAgain) {
  const CielDuMoment ciel = CielTT(2461213.4);
  for (const Station &station : kStations) {
    for (const Astre &astre : {Astre{GenreAstre::Lune}, Astre{GenreAstre::Soleil}, Astre{GenreAstre::Etoile, 10}}) {
      const PlaceGeocentrique place = PlaceDe(ciel, astre);
      const PlaceTopocentrique vue = VueDe(place, station);
      const double distance = place.parallaxe > 0 ? place.distance : 0;
      const DuCentre centre = VersCentre(RepereDe(station), {vue.hauteur, vue.azimut}, distance);
      EXPECT_NEAR(centre.hauteur, vue.hauteurCentre, 1E-6);
      EXPECT_NEAR(centre.distance, place.parallaxe > 0 ? vue.distance : 0, 1E-9);
    }
  }
}

TEST(Vue, APlaceThatIsNoneIsRefused) {
  const PlaceGeocentrique lune = PlaceDe(CielTT(2461213.4), {GenreAstre::Lune});
  const auto raison = [&](const Station &station) { return RaisonDe([&] { VueDe(lune, station); }); };
  EXPECT_EQ(raison({90.1, 0, 0}), RaisonRefus::LieuImpossible);
  EXPECT_EQ(raison({std::nan(""), 0, 0}), RaisonRefus::LieuImpossible);
  EXPECT_EQ(raison({0, HUGE_VAL, 0}), RaisonRefus::LieuImpossible);
  EXPECT_EQ(raison({0, 0, 1E9}), RaisonRefus::LieuImpossible);
  EXPECT_EQ(raison({-90, 720, 0}), std::nullopt);
}

} // namespace
} // namespace velmaris

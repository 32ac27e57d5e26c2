#include "lines/CapsDistances.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"

#include <erfa.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <type_traits>
#include <vector>

namespace velmaris {
namespace {

using essais::NumeroErreur;

static_assert(std::is_same_v<decltype(CapDistance::cap), float>);

double EnRadians(double degres) { return degres * std::numbers::pi / 180; }
double EnMilles(double radians) { return radians * 180 * 60 / std::numbers::pi; }

/// A track between two places.
struct Route {
  PlaceRoute depart, arrivee;
};

/// Random tracks of over a degree that stay on their side of the antimeridian.
std::vector<Route> RoutesAuHasard(std::size_t nombre) {
  std::mt19937 alea(43);
  std::uniform_real_distribution<double> unite(-1, 1);
  std::vector<Route> routes;
  while (routes.size() < nombre) {
    const Route r{{89 * unite(alea), 180 * unite(alea)}, {89 * unite(alea), 180 * unite(alea)}};
    const double ecart = std::fabs(r.depart.longitude - r.arrivee.longitude);
    const double latitudes = std::fabs(r.depart.latitude - r.arrivee.latitude);
    if (ecart < 179 && latitudes > 1) {
      routes.push_back(r);
    }
  }
  return routes;
}

/// Unit vector of a place.
std::array<double, 3> Vecteur(const PlaceRoute &p) {
  const double latitude = EnRadians(p.latitude);
  const double longitude = EnRadians(p.longitude);
  return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude), std::sin(latitude)};
}

/// Great-circle angle by the vectors' cross and dot products.
double AngleVecteurs(const Route &r) {
  const auto a = Vecteur(r.depart);
  const auto b = Vecteur(r.arrivee);
  const double x = a[1] * b[2] - a[2] * b[1];
  const double y = a[2] * b[0] - a[0] * b[2];
  const double z = a[0] * b[1] - a[1] * b[0];
  return std::atan2(std::hypot(x, y, z), a[0] * b[0] + a[1] * b[1] + a[2] * b[2]);
}

/// Great-circle angle by the haversine.
double AngleHaversine(const Route &r) {
  const double s = std::sin(EnRadians(r.arrivee.latitude - r.depart.latitude) / 2);
  const double t = std::sin(EnRadians(r.arrivee.longitude - r.depart.longitude) / 2);
  const double h = s * s + std::cos(EnRadians(r.depart.latitude)) * std::cos(EnRadians(r.arrivee.latitude)) * t * t;
  return 2 * std::asin(std::sqrt(h));
}

CapDistance Calcule(double L1, double G1, double L2, double G2) { return CalculeCapDistance({L1, G1}, {L2, G2}); }
float Cap(double L1, double G1, double L2, double G2) { return Calcule(L1, G1, L2, G2).cap; }

TEST(EndOfATrack, IsDegreesAndSixtiethsWithItsSigns) {
  const PlaceRoute ne = LitBout({"47", "35", "5", "15", false, false});
  EXPECT_DOUBLE_EQ(ne.latitude, 2855 / 60.0);
  EXPECT_DOUBLE_EQ(ne.longitude, 315 / 60.0);
  const PlaceRoute so = LitBout({"47", "35", "5", "15", true, true});
  EXPECT_DOUBLE_EQ(so.latitude, -2855 / 60.0);
  EXPECT_DOUBLE_EQ(so.longitude, -315 / 60.0);
  EXPECT_DOUBLE_EQ(LitBout({"47", "35", "5", "15", true, false}).longitude, 5.25);
  EXPECT_DOUBLE_EQ(LitBout({"47", "30", "5", "15", false, true}).latitude, 47.5);
}

TEST(EndOfATrack, FieldsWithoutANumberCountAsZero) {
  const PlaceRoute vide = LitBout({});
  EXPECT_EQ(vide.latitude, 0);
  EXPECT_EQ(vide.longitude, 0);
  const PlaceRoute p = LitBout({"", "30", "abc", "15.5", false, false});
  EXPECT_EQ(p.latitude, 0.5);
  EXPECT_DOUBLE_EQ(p.longitude, 15.5 / 60);
}

TEST(EndOfATrack, ATypedSignIsTurnedWithTheWhole) {
  const PlaceRoute p = LitBout({"-47", "30", "-5", "30", true, false});
  EXPECT_EQ(p.latitude, 46.5);
  EXPECT_EQ(p.longitude, -4.5);
}

TEST(Track, BetweenOnePlaceAndItselfHasNeitherCourseNorDistance) {
  for (const PlaceRoute &p : {PlaceRoute{0, 0}, {47.5, -5.25}, {-90, 180}, {90, 0}}) {
    const CapDistance c = CalculeCapDistance(p, p);
    EXPECT_TRUE(c.memePoint);
    EXPECT_EQ(c.cap, 0);
    EXPECT_EQ(c.milles, 0);
  }
  EXPECT_TRUE(Calcule(0, 0, -0.0, -0.0).memePoint);
}

TEST(Track, BetweenTwoPlacesIsNoSamePlace) {
  EXPECT_FALSE(Calcule(0, 0, 0, 1).memePoint);
  EXPECT_FALSE(Calcule(0, 0, 1, 0).memePoint);
  EXPECT_FALSE(Calcule(0, 180, 0, -180).memePoint);
}

TEST(Track, OfADegreeOfLatitudeIsSixtyMilesAlongTheMeridian) {
  const CapDistance nord = Calcule(0, 0, 1, 0);
  EXPECT_EQ(nord.cap, 0);
  EXPECT_EQ(Format(nord.cap, "000"), "000");
  EXPECT_EQ(Format(nord.milles, "000.0"), "060.0");
  for (int latitude = -89; latitude < 89; latitude += 7) {
    for (const double longitude : {-179.0, -5.1, 0.0, 77.7, 180.0}) {
      EXPECT_EQ(Cap(latitude, longitude, latitude + 1, longitude), 0.0F);
      EXPECT_EQ(Cap(latitude + 1, longitude, latitude, longitude), 180.0F);
      EXPECT_NEAR(Calcule(latitude, longitude, latitude + 1, longitude).milles, 60, 1E-7);
    }
  }
}

TEST(Track, AlongAParallelIsDueEastOrDueWest) {
  for (const double latitude : {-70.0, -0.5, 0.0, 47.3, 85.0}) {
    EXPECT_EQ(Cap(latitude, 5, latitude, 9), 90.0F);
    EXPECT_EQ(Cap(latitude, 9, latitude, 5), 270.0F);
    EXPECT_EQ(Cap(latitude, -9, latitude, -5), 90.0F);
    EXPECT_EQ(Cap(latitude, -5, latitude, -9), 270.0F);
    EXPECT_EQ(Cap(latitude, -5, latitude, 5), 90.0F);
    EXPECT_EQ(Cap(latitude, 5, latitude, -5), 270.0F);
    EXPECT_EQ(Cap(latitude, 0, latitude, 5), 90.0F);
    EXPECT_EQ(Cap(latitude, 0, latitude, -5), 270.0F);
    EXPECT_EQ(Cap(latitude, -5, latitude, 0), 90.0F);
    EXPECT_EQ(Cap(latitude, 5, latitude, 0), 270.0F);
  }
}

TEST(Track, AlongAParallelHasTheDistanceOfTheGreatCircle) {
  EXPECT_NEAR(Calcule(0, 10, 0, 11).milles, 60, 1E-7);
  // Half way round the sixtieth parallel the short way is over the pole: 2 * 30 degrees.
  EXPECT_NEAR(Calcule(60, 0, 60, 180).milles, 3600, 1E-6);
  // A chord of the parallel: sin(arc / 2) = cos(latitude) sin(dG / 2).
  EXPECT_NEAR(Calcule(45, -30, 45, 30).milles, EnMilles(2 * std::asin(std::sqrt(0.5) * 0.5)), 1E-7);
}

TEST(Track, ACourseLiesInItsQuadrant) {
  // A quarter of a degree each way about the equator, where the mean latitude is small: close to 45 degrees.
  const double d = 0.25;
  EXPECT_NEAR(Cap(0, 0, d, d), 45, 1E-3);
  EXPECT_NEAR(Cap(0, 0, -d, d), 135, 1E-3);
  EXPECT_NEAR(Cap(0, 0, -d, -d), 225, 1E-3);
  EXPECT_NEAR(Cap(0, 0, d, -d), 315, 1E-3);
}

TEST(Track, TheCourseIsThatOfTheMeanLatitude) {
  // From 50 to 70 degrees the mean cosine is a half: 40 degrees of longitude make as much way as 20 of latitude.
  EXPECT_NEAR(Cap(50, 0, 70, 40), 45, 1E-5);
  EXPECT_NEAR(Cap(70, 0, 50, 40), 135, 2E-5);
  EXPECT_NEAR(Cap(70, 0, 50, -40), 225, 2E-5);
  EXPECT_NEAR(Cap(50, 0, 70, -40), 315, 4E-5);
  EXPECT_NEAR(Cap(-50, -20, -70, 20), 135, 2E-5);
  // Latitudes that balance about the equator have a mean cosine of one.
  EXPECT_NEAR(Cap(-10, 100, 10, 120), 45, 1E-5);
}

TEST(Track, TheCourseOfAnyTrackFollowsDepartureAndDifferenceOfLatitude) {
  for (const Route &r : RoutesAuHasard(500)) {
    const double moyenne = EnRadians((r.depart.latitude + r.arrivee.latitude) / 2);
    const double vertical = r.arrivee.latitude - r.depart.latitude;
    const double horizontal = (r.arrivee.longitude - r.depart.longitude) * std::cos(moyenne);
    double attendu = std::atan2(horizontal, vertical) * 180 / std::numbers::pi;
    attendu += attendu < 0 ? 360 : 0;
    EXPECT_NEAR(CalculeCapDistance(r.depart, r.arrivee).cap, attendu, 3.2E-5);
  }
}

TEST(Track, TheOtherQuadrantsAreFormedFromACourseAlreadyIn32Bits) {
  int differents = 0;
  for (int i = 1; i < 400; ++i) {
    const double G = i * 0.37;
    const double L1 = -20;
    const double L2 = 25;
    const float ne = Cap(L1, 0, L2, G);
    EXPECT_EQ(Cap(L2, 0, L1, G), static_cast<float>(180.0 - ne));
    EXPECT_EQ(Cap(L2, 0, L1, -G), static_cast<float>(180.0 + ne));
    EXPECT_EQ(Cap(L1, 0, L2, -G), static_cast<float>(360.0 - ne));
    const double large = std::atan(std::cos(EnRadians(2.5)) * G / 45) * 180 / std::numbers::pi;
    differents += static_cast<float>(180.0 - large) != static_cast<float>(180.0 - ne) ? 1 : 0;
  }
  EXPECT_GT(differents, 0);
}

TEST(Track, TheDistanceIsTheGreatCircle) {
  for (const Route &r : RoutesAuHasard(500)) {
    const double milles = CalculeCapDistance(r.depart, r.arrivee).milles;
    const double separation = eraSeps(EnRadians(r.depart.longitude), EnRadians(r.depart.latitude),
                                      EnRadians(r.arrivee.longitude), EnRadians(r.arrivee.latitude));
    EXPECT_NEAR(milles, EnMilles(separation), 1E-7);
    EXPECT_NEAR(milles, EnMilles(AngleVecteurs(r)), 1E-7);
    EXPECT_NEAR(milles, EnMilles(AngleHaversine(r)), 1E-6);
  }
}

TEST(Track, TheDistanceIsTheSameBothWays) {
  for (const Route &r : RoutesAuHasard(100)) {
    EXPECT_NEAR(CalculeCapDistance(r.depart, r.arrivee).milles, CalculeCapDistance(r.arrivee, r.depart).milles, 1E-8);
  }
}

TEST(Track, CourseAndDistanceBelongToDifferentTracks) {
  // Over the shoulder of the pole the arc is far shorter than the run on the mean-latitude course.
  const CapDistance c = Calcule(60, -80, 61, 80);
  const double surLeCap = 60 / std::cos(EnRadians(c.cap));
  EXPECT_GT(surLeCap, c.milles * 1.2);
}

TEST(Track, PastTheAntimeridianTheDifferenceOfLongitudeIsTakenFrom360InRadians) {
  const Route cas[] = {
      {{10, 170}, {12, -170}}, {{10, -170}, {-12, 170}}, {{-35, 150}, {20, -160}}, {{0, 179}, {5, -179}}};
  for (const Route &r : cas) {
    const double dG = 360 - EnRadians(std::fabs(r.depart.longitude - r.arrivee.longitude));
    const double L1 = EnRadians(r.depart.latitude);
    const double L2 = EnRadians(r.arrivee.latitude);
    const double k = std::sin(L1) * std::sin(L2) + std::cos(L1) * std::cos(L2) * std::cos(dG);
    const CapDistance c = CalculeCapDistance(r.depart, r.arrivee);
    EXPECT_NEAR(c.milles, EnMilles(std::acos(k)), 1E-6);
    const double aigu = std::atan(std::cos((L1 + L2) / 2) * dG / std::fabs(L1 - L2)) * 180 / std::numbers::pi;
    // Eastern to western longitude counts as westward whichever way is shorter.
    const bool ouest = r.depart.longitude > 0;
    const bool sud = L1 > L2;
    const double attendu = ouest ? (sud ? 180 + aigu : 360 - aigu) : (sud ? 180 - aigu : aigu);
    EXPECT_NEAR(c.cap, attendu, 3.2E-5);
  }
}

TEST(Track, PastTheAntimeridianAParallelIsSailedTheWrongWay) {
  EXPECT_EQ(Cap(10, 170, 10, -170), 270.0F);
  EXPECT_EQ(Cap(10, -170, 10, 170), 90.0F);
}

TEST(Track, EndsTooNearToTellApartAreADivisionByZero) {
  // On the equator the cosine of so small an angle is 1 to the last bit, and so is the square of its cosine.
  EXPECT_EQ(NumeroErreur([] { Calcule(0, 0, 0, 1E-9); }), 11);
  EXPECT_EQ(NumeroErreur([] { Calcule(0, 1E-9, 0, 0); }), 11);
}

TEST(Track, ExactlyOppositeEndsAreADivisionByZero) {
  EXPECT_EQ(NumeroErreur([] { Calcule(0, 0, 0, 180); }), 11);
  EXPECT_EQ(NumeroErreur([] { Calcule(0, 90, 0, -90); }), 11);
}

TEST(Track, NearlyEqualEndsFailOrHaveADistanceLostInRounding) {
  int racines = 0;
  int divisions = 0;
  for (int i = -880; i <= 880; ++i) {
    const double latitude = i / 10.0;
    CapDistance c;
    const int numero = NumeroErreur([&] { c = Calcule(latitude, 5, latitude, 5 + 1E-9); });
    EXPECT_TRUE(numero == 0 || numero == 5 || numero == 11) << numero;
    racines += numero == 5 ? 1 : 0;
    divisions += numero == 11 ? 1 : 0;
    if (numero == 0) {
      EXPECT_EQ(c.cap, 90.0F);
      EXPECT_LT(c.milles, 1E-3); // an arc whose cosine is within a few bits of 1
    }
  }
  EXPECT_GT(racines, 0);
  EXPECT_GT(divisions, 0);
}

TEST(Track, NearlyOppositeEndsFailOrHaveHalfTheGreatCircle) {
  int echecs = 0;
  for (int i = 1; i < 90; ++i) {
    CapDistance c;
    const int numero = NumeroErreur([&] { c = Calcule(i, 0, -i, 180); });
    EXPECT_TRUE(numero == 0 || numero == 5 || numero == 11) << numero;
    echecs += numero != 0 ? 1 : 0;
    if (numero == 0) {
      EXPECT_NEAR(c.milles, 10800, 1E-3);
    }
  }
  EXPECT_GT(echecs, 0);
}

/// Whether the shorter way from A to B is west, by wrapping the difference of longitude into one turn. Exactly half a
/// turn has no shorter way: the direction is then the one that does not cross the antimeridian, west when A is the
/// easterly end.
bool OuestParEnroulement(int A, int B) {
  const int versEst = ((B - A) % 360 + 360) % 360;
  return versEst == 180 ? A > B : versEst > 180;
}

TEST(WestOrEast, IsTheShorterWayOverAGridOfDegrees) {
  for (int A = -180; A <= 180; ++A) {
    for (int B = -180; B <= 180; ++B) {
      if (std::abs(A) == 180 || std::abs(B) == 180) {
        continue; // one meridian with two names: told apart below
      }
      EXPECT_EQ(DirectionWest(A, static_cast<float>(B)), OuestParEnroulement(A, B)) << A << " to " << B;
    }
  }
}

TEST(WestOrEast, AnExactHalfTurnDoesNotCrossTheAntimeridian) {
  for (int A = -179; A < 0; ++A) {
    EXPECT_FALSE(DirectionWest(A, static_cast<float>(A + 180))) << A;
    EXPECT_TRUE(DirectionWest(A + 180, static_cast<float>(A))) << A;
  }
  EXPECT_TRUE(DirectionWest(0, -180));
  EXPECT_FALSE(DirectionWest(0, 180));
  EXPECT_TRUE(DirectionWest(180, 0));
  EXPECT_FALSE(DirectionWest(-180, 0));
}

TEST(WestOrEast, FromTheAntimeridianEitherNameGoesTheShorterWay) {
  for (int B = -179; B < 180; ++B) {
    if (B != 0) {
      EXPECT_EQ(DirectionWest(180, static_cast<float>(B)), B > 0) << B;
      EXPECT_EQ(DirectionWest(-180, static_cast<float>(B)), B > 0) << B;
      EXPECT_EQ(DirectionWest(B, 180), B < 0) << B;
      EXPECT_EQ(DirectionWest(B, -180), B < 0) << B;
    }
  }
}

TEST(WestOrEast, FromOneNameOfTheAntimeridianToTheOtherIsWestOnlyFromItsWesternName) {
  EXPECT_TRUE(DirectionWest(-180, 180));
  EXPECT_FALSE(DirectionWest(180, -180));
}

TEST(WestOrEast, AMeridianIsNotWestOfItself) {
  for (int A = -180; A <= 180; ++A) {
    EXPECT_FALSE(DirectionWest(A, static_cast<float>(A)));
  }
  EXPECT_FALSE(DirectionWest(0, -0.0F));
  EXPECT_FALSE(DirectionWest(-0.0, 0));
}

TEST(WestOrEast, InRadiansTheTwoSidesOfGreenwichAlwaysCountAsNear) {
  for (int A = 1; A <= 180; A += 3) {
    for (int B = 1; B <= 180; B += 3) {
      EXPECT_TRUE(DirectionWest(EnRadians(A), static_cast<float>(EnRadians(-B))));
      EXPECT_FALSE(DirectionWest(EnRadians(-A), static_cast<float>(EnRadians(B))));
    }
  }
}

TEST(WestOrEast, InRadiansOnOneSideOfGreenwichIsByOrder) {
  EXPECT_TRUE(DirectionWest(EnRadians(20), static_cast<float>(EnRadians(10))));
  EXPECT_FALSE(DirectionWest(EnRadians(10), static_cast<float>(EnRadians(20))));
  EXPECT_TRUE(DirectionWest(EnRadians(-10), static_cast<float>(EnRadians(-20))));
  EXPECT_FALSE(DirectionWest(EnRadians(-20), static_cast<float>(EnRadians(-10))));
}

} // namespace
} // namespace velmaris

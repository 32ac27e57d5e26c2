#include "lines/Grille.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/lines/OutilsGrille.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

/// The figures of the grid: each must name the meridian or the parallel that it stands by.
namespace velmaris {
namespace {

using namespace essais;

/// A figure with the coordinate that its place on the surface stands for.
struct Figure {
  double minutes = 0; ///< north and west positive
  std::string texte;
};

/// Degree figures of longitude: red, 200 above the end of their meridian and 70 to its left.
std::vector<Figure> DegresLongitude(const Quadrillage &q) {
  std::vector<Figure> figures;
  for (const TexteTrace &t : Textes(q.planche.surface)) {
    if (t.couleur == kRouge) {
      EXPECT_DOUBLE_EQ(t.position.y, kHauteur / 14.4 - 200);
      figures.push_back({q.MinutesLongitude(t.position.x + 70), t.texte});
    }
  }
  return figures;
}

/// Degree figures of latitude: blue, at 500, 100 above their parallel.
std::vector<Figure> DegresLatitude(const Quadrillage &q) {
  std::vector<Figure> figures;
  for (const TexteTrace &t : Textes(q.planche.surface)) {
    if (t.couleur == kBleu) {
      EXPECT_EQ(t.position.x, 500.0);
      figures.push_back({q.MinutesLatitude(t.position.y + 100), t.texte});
    }
  }
  return figures;
}

/// Minute figures of longitude: grey, in their row near the top, 160 left of their meridian.
std::vector<Figure> MinutesLongitude(const Quadrillage &q) {
  std::vector<Figure> figures;
  for (const TexteTrace &t : Textes(q.planche.surface)) {
    if (t.couleur == kGris && t.position.y == kHauteur / 15.8) {
      figures.push_back({q.MinutesLongitude(t.position.x + 160), t.texte});
    }
  }
  return figures;
}

/// Minute figures of latitude: grey, at 800, 170 above their parallel.
std::vector<Figure> MinutesLatitude(const Quadrillage &q) {
  std::vector<Figure> figures;
  for (const TexteTrace &t : Textes(q.planche.surface)) {
    if (t.couleur == kGris && t.position.y != kHauteur / 15.8) {
      EXPECT_EQ(t.position.x, 800.0);
      figures.push_back({q.MinutesLatitude(t.position.y + 170), t.texte});
    }
  }
  return figures;
}

/// Whole minutes of a coordinate, folded past the end of its axis.
long Entieres(const Figure &figure, int tour) {
  const double pliees = Repliees(figure.minutes, tour);
  EXPECT_NEAR(pliees, std::round(pliees), 0.01);
  return std::lround(pliees);
}

TEST(DegreeFigures, NameTheirMeridianAndTheirParallelEverywhere) {
  for (const int zoom : {20, 60, 250, 500, 2000}) {
    for (const Observation &o : PositionsDEssai()) {
      const Quadrillage q = Quadrille(o, zoom);
      const auto longitudes = DegresLongitude(q);
      const auto latitudes = DegresLatitude(q);
      ASSERT_FALSE(longitudes.empty());
      ASSERT_FALSE(latitudes.empty());
      for (const Figure &f : latitudes) {
        EXPECT_EQ(f.texte, std::to_string(Entieres(f, 90) / 60)) << EnMots(o, zoom);
      }
      for (const Figure &f : longitudes) {
        if (std::fabs(f.minutes) <= 360 * 60) {
          EXPECT_EQ(f.texte, std::to_string(Entieres(f, 180) / 60)) << EnMots(o, zoom);
        }
      }
    }
  }
}

TEST(DegreeFigures, FoldPastThePoleAndPastThe180thMeridian) {
  const Quadrillage q = Quadrille(Position(89, 0, false, 179, 0, false), 500);
  for (const auto &[degre, texte] : {std::pair{88, "88"}, {89, "89"}, {90, "90"}, {91, "89"}, {92, "88"}}) {
    const auto latitudes = DegresLatitude(q);
    const auto f = std::find_if(latitudes.begin(), latitudes.end(),
                                [d = degre](const Figure &g) { return std::lround(g.minutes) == d * 60; });
    ASSERT_NE(f, latitudes.end()) << degre;
    EXPECT_EQ(f->texte, texte);
  }
  for (const auto &[degre, texte] : {std::pair{179, "179"}, {180, "180"}, {181, "179"}, {182, "178"}}) {
    const auto longitudes = DegresLongitude(q);
    const auto f = std::find_if(longitudes.begin(), longitudes.end(),
                                [d = degre](const Figure &g) { return std::lround(g.minutes) == d * 60; });
    ASSERT_NE(f, longitudes.end()) << degre;
    EXPECT_EQ(f->texte, texte);
  }
}

TEST(DegreeFigures, RunBothWaysFromTheEquatorAndFromGreenwich) {
  const Quadrillage q = Quadrille(Position(0, 30, true, 0, 30, true), 250);
  for (const int degre : {-2, -1, 0, 1, 2}) {
    for (const auto &figures : {DegresLatitude(q), DegresLongitude(q)}) {
      const auto f = std::find_if(figures.begin(), figures.end(),
                                  [&](const Figure &g) { return std::lround(g.minutes) == degre * 60; });
      ASSERT_NE(f, figures.end()) << degre;
      EXPECT_EQ(f->texte, std::to_string(std::abs(degre)));
    }
  }
}

TEST(MinuteFigures, NameTheirMeridianAndTheirParallelEverywhere) {
  for (const int zoom : {20, 60, 250}) {
    for (const Observation &o : PositionsDEssai()) {
      const Quadrillage q = Quadrille(o, zoom);
      const auto longitudes = MinutesLongitude(q);
      const auto latitudes = MinutesLatitude(q);
      ASSERT_FALSE(longitudes.empty());
      ASSERT_FALSE(latitudes.empty());
      for (const Figure &f : longitudes) {
        EXPECT_EQ(f.texte, std::to_string(Entieres(f, 180) % 60)) << f.minutes << " at " << EnMots(o, zoom);
      }
      for (const Figure &f : latitudes) {
        EXPECT_EQ(f.texte, std::to_string(Entieres(f, 90) % 60)) << f.minutes << " at " << EnMots(o, zoom);
      }
    }
  }
}

TEST(MinuteFigures, AreTensWithTheWholeDegreesLeftOut) {
  const Quadrillage q = Quadrille(Position(45, 30, false, 45, 15, true), 100);
  for (const auto &figures : {MinutesLongitude(q), MinutesLatitude(q)}) {
    for (const Figure &f : figures) {
      EXPECT_TRUE(f.texte == "10" || f.texte == "20" || f.texte == "30" || f.texte == "40" || f.texte == "50")
          << f.texte;
    }
  }
}

TEST(MinuteFigures, NoPlaceHasTwo) {
  for (const Observation &o : PositionsDEssai()) {
    const Quadrillage q = Quadrille(o, 60);
    for (const auto &figures : {MinutesLongitude(q), MinutesLatitude(q)}) {
      std::vector<long> places;
      for (const Figure &f : figures) {
        places.push_back(std::lround(f.minutes));
      }
      std::sort(places.begin(), places.end());
      EXPECT_EQ(std::adjacent_find(places.begin(), places.end()), places.end()) << EnMots(o, 60);
    }
  }
}

TEST(MinuteFigures, EveryTenMinutesWithinADegreeOfThePositionHaveTheirs) {
  for (const Observation &o : PositionsDEssai()) {
    const Quadrillage q = Quadrille(o, 60);
    const auto verifie = [&](const std::vector<Figure> &figures, double lieu) {
      for (double m = std::ceil(lieu * 6 - 6) * 10; m <= lieu * 60 + 60; m += 10) {
        if (std::lround(m) % 60 != 0) {
          EXPECT_TRUE(std::any_of(figures.begin(), figures.end(),
                                  [&](const Figure &f) { return std::lround(f.minutes) == std::lround(m); }))
              << m << " at " << EnMots(o, 60);
        }
      }
    };
    verifie(MinutesLongitude(q), q.longitude);
    verifie(MinutesLatitude(q), q.latitude);
  }
}

/// Both ends of a run of figures, minutes without the side.
void VerifieSuite(const std::vector<Figure> &figures, double debut, double fin) {
  const auto [bas, haut] = std::minmax_element(figures.begin(), figures.end(),
                                               [](const Figure &a, const Figure &b) { return a.minutes < b.minutes; });
  EXPECT_NEAR(bas->minutes, debut, 0.05);
  EXPECT_NEAR(haut->minutes, fin, 0.05);
}

TEST(MinuteFigures, NearGreenwichAndTheEquatorTheyRunAHundredTensBothWays) {
  for (const bool arriere : {false, true}) {
    const Quadrillage q = Quadrille(Position(10, 0, arriere, 10, 59, arriere), 60);
    VerifieSuite(MinutesLongitude(q), -1000, 1000);
    VerifieSuite(MinutesLatitude(q), -1000, 1000);
  }
}

TEST(MinuteFigures, NearThe180thMeridianTheyRunAHundredTensBothWays) {
  VerifieSuite(MinutesLongitude(Quadrille(Position(45, 0, false, 170, 0, false), 60)), 10800 - 1000, 10800 + 1000);
  VerifieSuite(MinutesLongitude(Quadrille(Position(45, 0, false, 179, 59, true), 60)), -10800 - 1000, -10800 + 1000);
}

TEST(MinuteFigures, BetweenThemTheyRunFromTwoDegreesShortOfThePosition) {
  // 240 tens of longitude and 250 of latitude, the last of each but a whole degree.
  VerifieSuite(MinutesLongitude(Quadrille(Position(45, 0, false, 30, 15, false), 60)), 28 * 60 + 10, 68 * 60 - 10);
  VerifieSuite(MinutesLongitude(Quadrille(Position(45, 0, false, 30, 15, true), 60)), -68 * 60 + 10, -28 * 60 - 10);
  VerifieSuite(MinutesLatitude(Quadrille(Position(20, 0, false, 30, 15, false), 60)), 18 * 60 + 10, 18 * 60 + 2500);
  VerifieSuite(MinutesLatitude(Quadrille(Position(20, 0, true, 30, 15, false), 60)), -18 * 60 - 2500, -18 * 60 - 10);
}

TEST(MinuteFigures, AreLeftOutFrom251MilesOn) {
  for (const auto &[zoom, presentes] : {std::pair{250, true}, {251, false}, {1000, false}}) {
    const Quadrillage q = Quadrille(Position(45, 30, false, 5, 15, false), zoom);
    EXPECT_EQ(!MinutesLongitude(q).empty(), presentes) << zoom;
    EXPECT_EQ(!MinutesLatitude(q).empty(), presentes) << zoom;
  }
}

} // namespace
} // namespace velmaris

#include "sky/Constellations.hpp"

#include "tests/OutilsTests.hpp"

#include "ephemerides/Etoiles.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

/// The lines of the constellations, and which of them are left out.
namespace velmaris::essais {
namespace {

/// The names of the two stars of a line, or their letters where they have none.
std::string Nomme(const Etoiles &etoiles, const SegmentCiel &segment) {
  const auto nom = [&](std::size_t i) {
    return std::string(etoiles.EtoileNom[i].empty() ? etoiles.EtoileBayer[i] : etoiles.EtoileNom[i]);
  };
  return nom(segment.a) + "-" + nom(segment.b);
}

class Constellations : public ::testing::Test {
protected:
  Constellations() { ChargeEtoiles(etoiles, liste); }
  Etoiles etoiles;
  std::vector<std::string> liste;
  std::array<Point, 247> coins{};
  ReperesEtoiles reperes{coins, {52.5, 52.5}};
  Surface carte = SurfaceNeuve(18000, 9000);
  std::size_t retenue = 0;
};

TEST_F(Constellations, TheyAreOneHundredAndFortySixLinesBetweenStarsOfTheTable) {
  EXPECT_EQ(kSegments.size(), 146U);
  for (const SegmentCiel &s : kSegments) {
    EXPECT_TRUE(s.a >= 1 && s.a <= 246 && s.b >= 1 && s.b <= 246);
  }
}

TEST_F(Constellations, TheWellKnownFiguresJoinTheirStars) {
  std::set<std::string> lignes;
  for (const SegmentCiel &s : kSegments) {
    lignes.insert(Nomme(etoiles, s));
  }
  for (const char *ligne : {"Dubhe-Merak", "Merak-Phad", "Phad-Megrez", "Betelgeuse-Bellatrix", "Caph-Schedir",
                            "Sadr-Deneb", "Castor-Pollux", "Altair-Tarazed", "Acrux-Gacrux", "Markab-Scheat"}) {
    const std::string droite = ligne;
    const std::size_t p = droite.find('-');
    const std::string inverse = droite.substr(p + 1) + "-" + droite.substr(0, p);
    EXPECT_TRUE(lignes.contains(droite) || lignes.contains(inverse)) << ligne;
  }
}

TEST_F(Constellations, ALineBarelyLeavesItsConstellation) {
  const auto dehors = std::count_if(kSegments.begin(), kSegments.end(), [&](const SegmentCiel &s) {
    return etoiles.EtoileBayer[s.a].substr(2) != etoiles.EtoileBayer[s.b].substr(2);
  });
  EXPECT_LT(dehors, 15);
}

TEST_F(Constellations, ThreeLinesJoinAStarToItself) {
  EXPECT_EQ(std::count_if(kSegments.begin(), kSegments.end(), [](const SegmentCiel &s) { return s.a == s.b; }), 3)
      << "53, 132 and 188";
}

TEST_F(Constellations, ALineGoesFromMarkToMarkInYellow) {
  coins[5] = {1000, 2000};
  coins[9] = {3000, 500};
  TraceLigne(carte, reperes, 5, 9, retenue);
  const auto segments = Segments(carte);
  ASSERT_EQ(segments.size(), 1U);
  EXPECT_EQ(segments[0].debut, (Point{1052.5, 2052.5}));
  EXPECT_EQ(segments[0].fin, (Point{3052.5, 552.5}));
  EXPECT_EQ(segments[0].plume, (Plume{65535, 1, Style::Plein}));
}

TEST_F(Constellations, WithoutASecondStarALineGoesToTheFirstOfTheLastCall) {
  coins[5] = {1000, 2000};
  coins[9] = {3000, 500};
  coins[7] = {2000, 2000};
  TraceLigne(carte, reperes, 5, 9, retenue);
  EXPECT_EQ(retenue, 5U);
  Efface(carte);
  TraceLigne(carte, reperes, 7, std::nullopt, retenue);
  ASSERT_EQ(Segments(carte).size(), 1U);
  EXPECT_EQ(Segments(carte)[0].fin, (Point{1052.5, 2052.5}));
  EXPECT_EQ(retenue, 7U);
}

TEST_F(Constellations, ALineOfFourThousandUnitsAcrossOrMoreIsLeftOut) {
  coins[1] = {100, 0};
  coins[2] = {4099, 0};
  coins[3] = {4100, 0};
  coins[4] = {101, 8000};
  TraceLigne(carte, reperes, 1, 2, retenue);
  EXPECT_EQ(Segments(carte).size(), 1U);
  TraceLigne(carte, reperes, 1, 3, retenue);
  TraceLigne(carte, reperes, 3, 1, retenue);
  EXPECT_EQ(Segments(carte).size(), 1U);
  TraceLigne(carte, reperes, 1, 4, retenue);
  EXPECT_EQ(Segments(carte).size(), 2U) << "only the distance across counts";
  EXPECT_EQ(retenue, 1U);
}

TEST_F(Constellations, AllAreDrawnWhileAllStarsAreNear) {
  for (std::size_t i = 1; i <= 246; ++i) {
    coins[i] = {static_cast<double>(i), static_cast<double>(2 * i)};
  }
  TraceConstellations(carte, reperes);
  const auto segments = Segments(carte);
  ASSERT_EQ(segments.size(), 146U);
  for (std::size_t i = 0; i < segments.size(); ++i) {
    EXPECT_EQ(segments[i].debut.x, kSegments.at(i).a + 52.5);
    EXPECT_EQ(segments[i].fin.x, kSegments.at(i).b + 52.5);
  }
}

} // namespace
} // namespace velmaris::essais

#include "sky/TraceCiel.hpp"

#include "tests/OutilsTests.hpp"

#include "foundations/TexteNombre.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

/// The scale on the sky's chart.
namespace velmaris::essais {
namespace {

class EchelleCiel : public ::testing::Test {
protected:
  void Trace(CarteCiel genre, double S = 0) {
    cadre = {18000, 9000, S, genre};
    TraceEchelleCiel(carte, cadre);
  }
  /// The texts at a place across the chart, at the left edge of the text.
  std::vector<std::string> TextesEn(double x) const {
    std::vector<std::string> trouves;
    for (const TexteTrace &t : Textes(carte)) {
      if (std::abs(t.position.x - x) < 1e-6) {
        trouves.push_back(t.texte);
      }
    }
    return trouves;
  }
  CadreCiel cadre;
  Surface carte = SurfaceNeuve(18000, 9000);
};

TEST_F(EchelleCiel, ATickOfFourPiecesStandsOverEachFifteenDegrees) {
  Trace(CarteCiel::Horizontale);
  const auto segments = Segments(carte);
  ASSERT_EQ(segments.size(), 25U * 4);
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const Segment &s = segments[i];
    const double h = 3 + static_cast<double>(i % 4);
    EXPECT_NEAR(s.debut.y, 9000 - (h + 1) * 100, 1e-9);
    EXPECT_NEAR(s.fin.y, 9000 - h * 100, 1e-9);
    EXPECT_TRUE(s.debut.x == s.fin.x && s.plume.couleur == 65535U);
    EXPECT_NEAR(std::remainder(s.fin.x, 750), 0, 1e-9);
  }
}

TEST_F(EchelleCiel, TheFiguresStandUnderTheSecondPieceOfTheTick) {
  Trace(CarteCiel::Horizontale);
  ASSERT_EQ(Textes(carte).size(), 25U);
  for (const TexteTrace &t : Textes(carte)) {
    EXPECT_NEAR(t.position.y, 9000 - 400 + 200, 1e-9); // the piece from 5 to 4 degrees ends at 4
    EXPECT_EQ(t.couleur, 0xFFFF80U);
    EXPECT_TRUE(t.police.gras);
  }
}

TEST_F(EchelleCiel, EachEighthOfTheHorizonIsWrittenLarge) {
  Trace(CarteCiel::Horizontale);
  for (const TexteTrace &t : Textes(carte)) {
    const int v = static_cast<int>(Val(t.texte));
    EXPECT_EQ(t.police.taille, v % 45 == 0 ? 18 : 8) << t.texte;
    EXPECT_EQ(t.texte, std::to_string(v) + "°");
    // Negative azimuths come round to the right half; the south stands in the middle, twice.
    EXPECT_NEAR(t.position.x, v * 50 - t.police.taille * 15, 1e-6) << t.texte;
  }
  EXPECT_THAT(TextesEn(9000 - 18 * 15), testing::ElementsAre("180°", "180°"));
}

TEST_F(EchelleCiel, OnTheEquatorialChartItCountsHoursToTheLeft) {
  Trace(CarteCiel::Equatoriale);
  for (const TexteTrace &t : Textes(carte)) {
    EXPECT_EQ(t.police.taille, 8);
  }
  EXPECT_THAT(TextesEn(0 - 200.0), testing::ElementsAre("24h"));
  EXPECT_THAT(TextesEn(4500 - 200.0), testing::ElementsAre("18h"));
  EXPECT_THAT(TextesEn(17250 - 200.0), testing::ElementsAre("01h"));
}

TEST_F(EchelleCiel, ItTurnsWithTheSky) {
  Trace(CarteCiel::Horizontale, 0.5);
  EXPECT_THAT(TextesEn(4500 - 18 * 15), testing::ElementsAre("0°"));
  EXPECT_THAT(TextesEn(0 - 18 * 15), testing::Contains("270°"));
  for (const double S : {0.0, 0.5, 1.0, 1.5, 2.0}) {
    Efface(carte);
    Trace(CarteCiel::Horizontale, S);
    for (const Segment &s : Segments(carte)) {
      EXPECT_TRUE(s.debut.x >= 0 && s.debut.x <= 18000) << S << " " << s.debut.x;
    }
  }
}

TEST_F(EchelleCiel, TheHeightScaleHasAFigureAtBothEdgesEveryTenDegrees) {
  cadre = {18000, 9000, 0.7, CarteCiel::Horizontale};
  TraceHauteurs(carte, cadre);
  ASSERT_EQ(Textes(carte).size(), 16U);
  ASSERT_EQ(Segments(carte).size(), 16U);
  for (const Segment &s : Segments(carte)) {
    EXPECT_EQ(s.debut.y, s.fin.y);
    EXPECT_NEAR(std::remainder(s.debut.y, 1000), 0, 1e-9) << "a tenth of 90 degrees, unturned";
  }
  EXPECT_EQ(Textes(carte)[0].texte, "10°");
  EXPECT_NEAR(Textes(carte)[0].position.y, 8000, 200) << "low at the foot";
  EXPECT_EQ(Textes(carte)[15].texte, "80°");
  EXPECT_NEAR(Textes(carte)[15].position.y, 1000, 200);
}

TEST_F(EchelleCiel, OnTheEquatorialChartItIsThatOfDeclination) {
  cadre = {18000, 9000, 0, CarteCiel::Equatoriale};
  TraceHauteurs(carte, cadre);
  ASSERT_EQ(Textes(carte).size(), 10U);
  EXPECT_EQ(Textes(carte)[0].texte, "-60°");
  EXPECT_EQ(Textes(carte)[4].texte, "0°");
  EXPECT_NEAR(Textes(carte)[4].position.y, 4500, 200) << "the equator in the middle";
}

TEST_F(EchelleCiel, OnAChartTooHighForItsPiecesNoTickIsDrawn) {
  cadre = {18000, 81000, 0, CarteCiel::Horizontale};
  TraceEchelleCiel(carte, cadre);
  EXPECT_TRUE(Segments(carte).empty());
  ASSERT_EQ(Textes(carte).size(), 25U);
  EXPECT_EQ(Textes(carte)[0].position.y, 200);
  Efface(carte);
  cadre.H = 80999;
  TraceEchelleCiel(carte, cadre);
  EXPECT_EQ(Segments(carte).size(), 100U);
}

} // namespace
} // namespace velmaris::essais

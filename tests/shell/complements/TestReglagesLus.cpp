#include "shell/complements/ReglagesLus.hpp"

#include <gtest/gtest.h>

/// The check's settings as they are typed.
namespace velmaris::essais {
namespace {

std::array<std::string, kChampsReglages> Textes(ChampReglage champ, const std::string &texte) {
  std::array<std::string, kChampsReglages> textes;
  textes.at(static_cast<std::size_t>(champ)) = texte;
  return textes;
}

TEST(ReglagesLus, EmptyFieldsLeaveTheAlmanacsAir) {
  const ReglagesLus lus = LitReglages({});
  EXPECT_EQ(lus.reglages.pression, 1010);
  EXPECT_EQ(lus.reglages.temperature, 10);
  EXPECT_FALSE(lus.reglages.distanceHorizon);
  EXPECT_EQ(lus.reglages.dut1, 0);
  EXPECT_TRUE(lus.reglages.erreursArc.empty());
  for (const bool bon : lus.bons) {
    EXPECT_TRUE(bon);
  }
}

TEST(ReglagesLus, ANumberHasAPointOrACommaAndPerhapsASign) {
  EXPECT_EQ(LitNombreBorne("0,25", 0, 1), 0.25);
  EXPECT_EQ(LitNombreBorne(" +0.25 ", 0, 1), 0.25);
  EXPECT_EQ(LitNombreBorne("-0.25", -1, 1), -0.25);
  for (const char *texte : {"", "1e", "0x1", "1 2", "+-1", "nan", "inf", "1.5.2", "un", "--1", "+", "1e99"}) {
    EXPECT_FALSE(LitNombreBorne(texte, -2, 2)) << texte;
  }
}

TEST(ReglagesLus, EachFieldHasItsLimits) {
  const auto bon = [](ChampReglage champ, const std::string &texte) {
    return LitReglages(Textes(champ, texte)).bons.at(static_cast<std::size_t>(champ));
  };
  for (const auto &[champ, bons, mauvais] :
       {std::tuple{ChampReglage::Pression, "1100", "1100.1"}, std::tuple{ChampReglage::Temperature, "-60", "-61"},
        std::tuple{ChampReglage::Rivage, "0.01", "0"}, std::tuple{ChampReglage::UT1, "-1", "1.1"},
        std::tuple{ChampReglage::Arc, "0 10", "0 10.1"}}) {
    EXPECT_TRUE(bon(champ, bons)) << bons;
    EXPECT_FALSE(bon(champ, mauvais)) << mauvais;
  }
}

TEST(ReglagesLus, ArcErrorsArePairsByGrowingReading) {
  const auto table = LitErreursArc("0 0.0 ; 30 +0,2; 60 -0.4");
  ASSERT_TRUE(table);
  ASSERT_EQ(table->size(), 3U);
  EXPECT_EQ((*table)[1].lecture, 30);
  EXPECT_EQ((*table)[1].correction, 0.2);
  EXPECT_EQ((*table)[2].correction, -0.4);
  EXPECT_EQ(LitErreursArc("30 0.2;")->size(), 1U) << "the last semicolon ends it";
  EXPECT_TRUE(LitErreursArc("  ")->empty());
  for (const char *texte :
       {"30", "30 0.2 1", "60 0.1; 30 0.2", "30 0.1; 30 0.2", ";", "30 0.2;;60 0.1", "-1 0", "181 0"}) {
    EXPECT_FALSE(LitErreursArc(texte)) << texte;
  }
}

} // namespace
} // namespace velmaris::essais

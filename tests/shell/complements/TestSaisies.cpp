#include "shell/complements/Saisies.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

/// What is typed into the windows of the complements.
namespace velmaris::essais {
namespace {

TEST(TypedMoments, DatesAndTimesAreReadWhateverPartsThem) {
  const InstantUTC attendu = UTCDe({2026, 6, 21, 22, 5, 9});
  for (const auto &[date, heure] :
       {std::pair("21/06/2026", "22:05:09"), {"21.6.26", "22h05m09"}, {" 21 6 2026", "22 5 9"}}) {
    const auto lu = LitMomentTape(date, heure);
    ASSERT_TRUE(lu) << date << " " << heure;
    EXPECT_EQ(SecondesEntre(*lu, attendu), 0);
  }
  for (const auto &[date, heure] : {std::pair("31/02/2026", "22:05"),
                                    {"21/06", "22:05"},
                                    {"21/06/2026", "24:00"},
                                    {"21/06/2026", "22"},
                                    {"21/06/2026/1", "22:05"},
                                    {"", ""},
                                    {"-1/2/3", "1:1"}}) {
    EXPECT_FALSE(LitMomentTape(date, heure)) << date << " " << heure;
  }
}

TEST(TypedPlaces, DegreesMinutesAndSidesAreReadWhateverPartsThem) {
  for (const char *texte : {"47 10.3 N", "47°10,3'N", "N 47 10.3", "n47° 10' 18\"", "47.1716666666667", "+47 10 18"}) {
    const auto lue = LitLatitudeTapee(texte);
    ASSERT_TRUE(lue) << texte;
    EXPECT_NEAR(*lue, 47 + 10.3 / 60, 1E-9) << texte;
  }
  EXPECT_NEAR(*LitLatitudeTapee("33 30 S"), -33.5, 1E-12);
  EXPECT_NEAR(*LitLatitudeTapee("-33 30"), -33.5, 1E-12);
  EXPECT_NEAR(*LitLongitudeTapee("004 44,1 W"), -(4 + 44.1 / 60), 1E-12);
  EXPECT_NEAR(*LitLongitudeTapee("4 44.1 O"), -(4 + 44.1 / 60), 1E-12);
  EXPECT_NEAR(*LitLongitudeTapee("179 59.9 e"), 179 + 59.9 / 60, 1E-12);
  EXPECT_EQ(LitLatitudeTapee("90 N"), 90);
}

TEST(TypedPlaces, WhatIsNoPlaceIsRefused) {
  for (const char *texte :
       {"", "N", "90 0.1 N", "47 60 N", "47 10 60 N", "47 10 18 1", "-47 N", "47 E", "47-10", "a"}) {
    EXPECT_FALSE(LitLatitudeTapee(texte)) << texte;
  }
  for (const char *texte : {"", "W", "180 1 W", "4 44 N", "- 4 W", "4..4"}) {
    EXPECT_FALSE(LitLongitudeTapee(texte)) << texte;
  }
}

TEST(TypedPlaces, AFieldThatCannotBeUsedIsMarkedAndAnEmptyOneIsNot) {
  const auto lit = [](const std::string &texte) {
    Controle champ;
    champ.infobulle = "0 a 10";
    champ.texte = texte;
    const auto lu = LitChampBorne(champ, 0, 10, "hors : ");
    return std::pair(lu, champ.alerte);
  };
  EXPECT_EQ(lit("11"), std::pair(std::optional<double>(), std::string("hors : 0 a 10")));
  EXPECT_EQ(lit(" "), std::pair(std::optional<double>(), std::string()));
  EXPECT_EQ(lit("2,5"), std::pair(std::optional(2.5), std::string()));
}

} // namespace
} // namespace velmaris::essais

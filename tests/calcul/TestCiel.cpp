#include "Passage.hpp"
#include "complements/ciel/Places.hpp"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

ordered_json Ciel(const std::vector<std::string> &arguments) {
  std::vector<std::string> tous{"ciel"};
  tous.insert(tous.end(), arguments.begin(), arguments.end());
  return Objets(Lance(tous).sortie).at(0);
}

TEST(CalculCiel, TellsThePlaceFromTheEarthsCentre) {
  const Passage p = Lance({"ciel", "Lune", "21/06/2026", "12:05:30"});
  ASSERT_EQ(p.etat, 0) << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  const ordered_json o = Objets(p.sortie).at(0);
  EXPECT_THAT(Cles(o), ElementsAre("corps", "tt_moins_ut", "gha", "dec", "distance", "demi_diametre", "parallaxe"));
  const PlaceGeocentrique lune = PlaceDe(PrepareCiel(MomentDe({2026, 6, 21, 12, 5, 30})), {GenreAstre::Lune});
  EXPECT_EQ(o["corps"].get<std::string>(), "Lune");
  EXPECT_EQ(o["tt_moins_ut"], 69.184);
  EXPECT_EQ(o["gha"], lune.gha);
  EXPECT_EQ(o["dec"], lune.declinaison);
  EXPECT_EQ(o["distance"], lune.distance);
  EXPECT_EQ(o["demi_diametre"], lune.demiDiametre);
  EXPECT_EQ(o["parallaxe"], lune.parallaxe);
}

TEST(CalculCiel, APlaceOnTheEarthAddsHeightsAndAzimuths) {
  const ordered_json o = Ciel({"Lune", "21/06/2026", "12:05:30", "47.5", "-5.17"});
  EXPECT_THAT(Cles(o), ElementsAre("corps", "tt_moins_ut", "gha", "dec", "distance", "demi_diametre", "parallaxe",
                                   "hauteur", "azimut", "hauteur_topo", "azimut_topo"));
  const PlaceTopocentrique vue =
      VueDe(PlaceDe(PrepareCiel(MomentDe({2026, 6, 21, 12, 5, 30})), {GenreAstre::Lune}), {47.5, -5.17, 0});
  EXPECT_EQ(o["hauteur"], vue.hauteurCentre);
  EXPECT_EQ(o["azimut"], vue.azimutCentre);
  EXPECT_EQ(o["hauteur_topo"], vue.hauteur);
  EXPECT_EQ(o["azimut_topo"], vue.azimut);
}

TEST(CalculCiel, EveryBodyIsKnownByItsNameInAnyCaseAndAStarByItsRow) {
  for (const char *nom : {"Soleil", "Lune", "Venus", "Mars", "Jupiter", "Saturne", "Aries", "1", "246"}) {
    EXPECT_EQ(Ciel({nom, "21/06/2026", "12:05:30"})["corps"].get<std::string>(), nom);
  }
  EXPECT_EQ(Ciel({"sOLEIL", "21/06/2026", "12:05:30"})["corps"].get<std::string>(), "Soleil");
}

TEST(CalculCiel, WhatHasNoDistanceTellsNone) {
  EXPECT_TRUE(Ciel({"Aries", "21/06/2026", "12:05:30"})["distance"].is_null());
  EXPECT_GT(Ciel({"10", "21/06/2026", "12:05:30"})["distance"].get<double>(), 1E6);
}

TEST(CalculCiel, Dut1TurnsTheEarthAlone) {
  const ordered_json sans = Ciel({"Mars", "21/06/2026", "12:05:30"});
  const ordered_json avec = Ciel({"Mars", "21/06/2026", "12:05:30", "--dut1", "-0.4"});
  // Sidereal time gains on the Sun's by a part in 365.
  EXPECT_NEAR(avec["gha"].get<double>() - sans["gha"].get<double>(), -0.4 / 240 * 366.24 / 365.24, 1E-8);
  EXPECT_EQ(avec["dec"], sans["dec"]);
  EXPECT_NEAR(avec["tt_moins_ut"].get<double>(), 69.584, 1E-9);
}

TEST(CalculCiel, WhatHasNoAnswerIsAnErrorInTheObject) {
  const auto attend = [](const std::vector<std::string> &arguments, int numero, const char *texte) {
    const Passage p = Lance(arguments);
    EXPECT_EQ(p.etat, 1) << texte;
    const ordered_json o = Objets(p.sortie).at(0);
    EXPECT_THAT(Cles(o), ElementsAre("corps", "erreur")) << texte;
    EXPECT_EQ(o["erreur"]["numero"], numero) << texte;
    EXPECT_THAT(o["erreur"]["texte"].get<std::string>(), HasSubstr(texte));
  };
  attend({"ciel", "67", "21/06/2026", "12:05:30"}, 5, "nova");
  attend({"ciel", "Lune", "21/06/2126", "12:05:30"}, 5, "1900 à 2100");
  attend({"ciel", "Mars", "21/06/2226", "12:05:30"}, 5, "1800 à 2199");
  attend({"ciel", "Mars", "31/02/2026", "12:05:30"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "60:05:30"}, 13, "heure");
  attend({"ciel", "Mars", "21/06/2026", "12:05:60"}, 13, "heure");
  attend({"ciel", "Mars", "21/06/2026", "12:05"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "12:x:30"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "012:05:30"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "12:05:"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "12:-5:30"}, 13, "type");
  attend({"ciel", "Mars", "21/06/2026", "12:05:30", "91", "0"}, 5, "lieu");
  attend({"ciel", "Mars", "21/06/2026", "12:05:30", "--dut1", "3600"}, 5, "");
}

TEST(CalculCiel, ALeapSecondIsATime) {
  EXPECT_EQ(Lance({"ciel", "Lune", "31/12/2016", "23:59:60"}).etat, 0);
  EXPECT_EQ(Lance({"ciel", "Lune", "21/06/2026", "12:05:30.25"}).etat, 0);
}

TEST(CalculCiel, ABodyThatIsNoneOrHalfAPlaceIsAUsageError) {
  for (const std::vector<std::string> &arguments :
       {std::vector<std::string>{"ciel", "Pluton", "21/06/2026", "12:05:30"},
        std::vector<std::string>{"ciel", "247", "21/06/2026", "12:05:30"},
        std::vector<std::string>{"ciel", "0", "21/06/2026", "12:05:30"},
        std::vector<std::string>{"ciel", "", "21/06/2026", "12:05:30"},
        std::vector<std::string>{"ciel", "Mars", "21/06/2026"},
        std::vector<std::string>{"ciel", "Mars", "21/06/2026", "12:05:30", "47.5"},
        std::vector<std::string>{"ciel", "Mars", "21/06/2026", "12:05:30", "47.5", "x"},
        std::vector<std::string>{"ciel", "Mars", "21/06/2026", "12:05:30", "--dut1", "un"}}) {
    const Passage p = Lance(arguments);
    EXPECT_EQ(p.etat, 2) << arguments.back();
    EXPECT_THAT(p.sortie, IsEmpty()) << arguments.back();
  }
}

} // namespace
} // namespace velmaris

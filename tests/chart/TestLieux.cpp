#include "chart/Lieux.hpp"

#include "chart/Projection.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velmaris::essais {
namespace {

constexpr Couleur kBleuFonce = Rvb(0, 0, 100);
constexpr Couleur kVert = Rvb(0, 100, 0);

/// A sheet of 20000 by 10000 units around 45 degrees north, 5 degrees west, 50 units a mile in latitude and 40 a minute
/// of longitude: it reaches 1 degree 40 minutes north and south, 4 degrees 10 minutes east and west.
class Lieux : public ::testing::Test {
protected:
  Lieux() {
    surface.largeur = 20000;
    surface.hauteur = 10000;
    feuille.CentreX = 10000;
    feuille.CentreY = 5000;
    feuille.OrigineFeuille = {45.0F, 5.0F};
    feuille.EchelleY = 50;
    feuille.EchelleX = 40;
    feuille.Zoom = 200;
  }

  void Villes(std::string_view octets) { TraceVilles(feuille, surface, octets); }
  void Objets(std::string_view octets) { TraceObjets(feuille, surface, octets); }

  std::vector<CercleTrace> Cercles() const { return TracesDe<CercleTrace>(surface); }
  std::vector<TexteTrace> Textes() const { return TracesDe<TexteTrace>(surface); }

  Feuille feuille;
  Surface surface;
};

TEST_F(Lieux, AGreatCityHasTwoCirclesAndItsNameInRedAtItsPlace) {
  Villes("+45.50 +006.00 1 V Grande");
  ASSERT_EQ(surface.traces.size(), 3U);
  ASSERT_EQ(Cercles().size(), 2U);
  const Point place{10000 - 60 * 40, 5000 - 30 * 50};
  EXPECT_EQ(Cercles()[0].centre, place);
  EXPECT_DOUBLE_EQ(Cercles()[0].rayon, 200.0) << "four miles";
  EXPECT_EQ(Cercles()[0].plume.couleur, 0xFF00FFU);
  EXPECT_EQ(Cercles()[1].centre, place);
  EXPECT_DOUBLE_EQ(Cercles()[1].rayon, 100.0) << "two miles";
  EXPECT_EQ(Cercles()[1].plume.couleur, 0xFF0000U);
  ASSERT_EQ(Textes().size(), 1U);
  EXPECT_EQ(Textes()[0].position, place);
  EXPECT_EQ(Textes()[0].texte, "Grande");
  EXPECT_EQ(Textes()[0].couleur, 255U);
}

TEST_F(Lieux, ACityOfClassThreeHasANameWithoutACircleOnASheetUnderAThousandMiles) {
  Villes("+45.50 +006.00 3 V Moyenne");
  EXPECT_TRUE(Cercles().empty());
  ASSERT_EQ(Textes().size(), 1U);
  EXPECT_EQ(Textes()[0].couleur, 255U);
  EXPECT_EQ(Textes()[0].position, (Point{7600, 3500}));
  feuille.Zoom = 999;
  Villes("+45.50 +006.00 3 V Moyenne");
  EXPECT_EQ(Textes().size(), 2U);
  feuille.Zoom = 1000;
  Villes("+45.50 +006.00 3 V Moyenne\n+45.50 +006.00 6 V Petite");
  EXPECT_EQ(Textes().size(), 2U);
  Villes("+45.50 +006.00 2 V Grande");
  EXPECT_EQ(Textes().size(), 3U) << "the larger ones bear theirs always";
}

TEST_F(Lieux, ACityOfClassFourAndAboveIsDarkBlue) {
  Villes("+45.50 +006.00 4 V Quatre\n+45.40 +006.00 9 V Neuf");
  ASSERT_EQ(Textes().size(), 2U);
  EXPECT_TRUE(Cercles().empty());
  EXPECT_EQ(Textes()[0].couleur, kBleuFonce);
  EXPECT_EQ(Textes()[1].couleur, kBleuFonce);
}

TEST_F(Lieux, TheTextColourTakesThatOfTheLastCityEvenOneWithoutAName) {
  feuille.Zoom = 2000;
  Villes("+45.50 +006.00 5 V Petite");
  EXPECT_TRUE(surface.traces.empty());
  EXPECT_EQ(surface.encre, kBleuFonce);
}

TEST_F(Lieux, OnlyPlacesOnTheSurfaceAreDrawn) {
  Villes("+46.66 +005.00 3 V Nord\n+46.67 +005.00 3 V Trop nord\n"
         "+43.34 +005.00 3 V Sud\n+43.33 +005.00 3 V Trop sud\n"
         "+45.00 +009.16 3 V Ouest\n+45.00 +009.17 3 V Trop ouest\n"
         "+45.00 +000.84 3 V Est\n+45.00 +000.83 3 V Trop est");
  std::vector<std::string> noms;
  for (const TexteTrace &t : Textes()) {
    noms.push_back(t.texte);
  }
  EXPECT_EQ(noms, (std::vector<std::string>{"Nord", "Sud", "Ouest", "Est"}));
}

TEST_F(Lieux, TheLongitudeIsNotWrapped) {
  feuille.OrigineFeuille = {45.0F, 179.0F};
  Villes("+45.00 -179.00 1 V Au-dela");
  EXPECT_TRUE(surface.traces.empty()) << "two degrees away across the antimeridian";
}

TEST_F(Lieux, WithoutASheetTheReferenceIsZeroZeroAndTheLimitsAreThoseOfTheWorld) {
  feuille.OrigineFeuille = kSansFeuille;
  ChoisitVue(feuille, surface);
  Villes("+83.00 +170.00 1 V Dedans\n+84.00 +000.00 1 V Dehors");
  ASSERT_EQ(Textes().size(), 1U) << "10000 units are 83 degrees 20 minutes each way";
  EXPECT_NEAR(Textes()[0].position.x, 10000 - 170 * 60 * 0.70710678, 0.01);
  EXPECT_NEAR(Textes()[0].position.y, 5000 - 83 * 60, 0.01);
}

TEST_F(Lieux, ALongitudeOfExactly200IsASheetForThePoints) {
  feuille.OrigineFeuille = {45.0F, 200.0F};
  Villes("+45.00 +200.00 1 V Ici");
  ASSERT_EQ(Textes().size(), 1U);
  EXPECT_EQ(Textes()[0].position, (Point{10000, 5000}));
}

TEST_F(Lieux, AnObjectHasItsCircleOfMilesAndItsNameInGreenAndLeavesTheInkBlack) {
  Objets("+45.50 +006.00 3 Ar-Men; phare\n+45.00 +005.00 0 Ici");
  ASSERT_EQ(Cercles().size(), 2U);
  EXPECT_DOUBLE_EQ(Cercles()[0].rayon, 150.0);
  EXPECT_EQ(Cercles()[0].centre, (Point{7600, 3500}));
  EXPECT_EQ(Cercles()[0].plume.couleur, kVert);
  EXPECT_DOUBLE_EQ(Cercles()[1].rayon, 0.0);
  ASSERT_EQ(Textes().size(), 2U);
  EXPECT_EQ(Textes()[0].texte, "Ar-Men; phare");
  EXPECT_EQ(Textes()[0].couleur, kVert);
  EXPECT_EQ(Textes()[0].position, (Point{7600, 3500}));
  EXPECT_EQ(surface.encre, kNoir);
}

TEST_F(Lieux, TheRecordTellsNamesOfCitiesByTheirClassFromThoseOfObjects) {
  Villes("+45.50 +006.00 1 V Une");
  Objets("+45.50 +006.00 3 Ar-Men");
  Villes("+45.40 +006.00 5 V Deux");
  ASSERT_EQ(Textes().size(), 3U);
  EXPECT_EQ(Textes()[0].role, (RoleTexte{GenreTexte::Ville, 1}));
  EXPECT_EQ(Textes()[1].role, RoleTexte{GenreTexte::Objet});
  EXPECT_EQ(Textes()[2].role, (RoleTexte{GenreTexte::Ville, 5}));
}

TEST_F(Lieux, ObjectsBearTheirNamesAtEveryZoom) {
  feuille.Zoom = 3000;
  Objets("+45.50 +006.00 3 Ar-Men");
  EXPECT_EQ(Textes().size(), 1U);
}

TEST_F(Lieux, AnEmptyFileOfObjectsLeavesTheInkBlack) {
  surface.encre = kRouge;
  Objets("");
  EXPECT_EQ(surface.encre, kNoir);
}

TEST_F(Lieux, FilesAreReadAsUtf8OrElseAsWindows1252) {
  Villes("+45.50 +006.00 1 V S\xE8te");
  Villes("+45.50 +006.00 1 V Sète");
  ASSERT_EQ(Textes().size(), 2U);
  EXPECT_EQ(Textes()[0].texte, "Sète");
  EXPECT_EQ(Textes()[1].texte, "Sète");
}

TEST_F(Lieux, CommentsAndEmptyLinesAreSkippedAndLinesEndAnyWay) {
  Villes("; villes\r\n\r\n+45.50 +006.00 1 V Une\r\n+45.40 +006.00 1 V Deux ; non\n+45.30 +006.00 1 V Trois\r");
  ASSERT_EQ(Textes().size(), 2U);
  EXPECT_EQ(Textes()[1].texte, "Trois");
}

TEST_F(Lieux, AnUnreadableLineEndsTheReadingAndWhatCameFirstStays) {
  const std::string lignes = "+45.50 +006.00 1 V Une\nabc\n+45.30 +006.00 1 V Trois\n";
  EXPECT_EQ(NumeroErreur([&] { Villes(lignes); }), 5);
  EXPECT_EQ(Textes().size(), 1U);
  EXPECT_EQ(NumeroErreur([&] { Objets("+45.50 +006.00 1 Une\n+45.50 +006.00 1\n"); }), 5);
}

TEST_F(Lieux, ACutLineOffTheSurfaceDoesNoHarm) {
  Villes("+10.00 +006.00\n+45.50 +006.00 1 V Une\n");
  EXPECT_EQ(Textes().size(), 1U);
}

TEST_F(Lieux, WithoutAScaleNothingCanBePlaced) {
  feuille.EchelleY = 0;
  EXPECT_EQ(NumeroErreur([&] { Villes("+45.50 +006.00 1 V Une"); }), 11);
  EXPECT_EQ(NumeroErreur([&] { Objets("+45.50 +006.00 1 Une"); }), 11);
  feuille.EchelleY = 50;
  feuille.EchelleX = 0;
  EXPECT_EQ(NumeroErreur([&] { Villes("+45.50 +006.00 1 V Une"); }), 11);
}

TEST_F(Lieux, AClassThatIsNoDigitReadsAsZero) {
  Villes("+45.50 +006.00 x V Une");
  EXPECT_EQ(Cercles().size(), 2U);
}

TEST_F(Lieux, ThousandsOfObjectsAreDrawnAndNoneIsKept) {
  std::string lignes;
  for (int i = 0; i < 5000; ++i) {
    lignes += "+45.50 +006.00 3 Objet " + std::to_string(i) + "\n";
  }
  Objets(lignes);
  EXPECT_EQ(Textes().size(), 5000U);
}

} // namespace
} // namespace velmaris::essais

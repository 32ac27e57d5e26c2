#include "foundations/PlaceTextes.hpp"
#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <random>

namespace velmaris::essais {
namespace {

constexpr double kLettre = 100; ///< room of a letter in these tests
constexpr double kLigne = 180;
constexpr double kEcart = 45;       ///< three pixels between two texts side by side
constexpr double kEntreLignes = 15; ///< one between two over each other

/// Every letter is as wide and as high.
TailleTexte Mesure(const TexteTrace &texte) { return {kLettre * static_cast<double>(texte.texte.size()), kLigne}; }

class TextesPlaces : public ::testing::Test {
protected:
  void Pose(GenreTexte genre, Point p, const std::string &texte, int classe = 0) {
    EcritEn(surface, p, texte, {genre, classe});
  }
  /// The texts shown, each where it is shown.
  std::multimap<std::string, ZoneTexte> Montres() const {
    std::multimap<std::string, ZoneTexte> montres;
    for (const TextePlace &p : PlaceTextes(surface, Mesure)) {
      montres.emplace(TexteDe(surface, p).texte, p.zone);
    }
    return montres;
  }
  ZoneTexte Zone(const std::string &texte) const {
    const auto montres = Montres();
    const auto lu = montres.find(texte);
    EXPECT_NE(lu, montres.end()) << texte;
    return lu == montres.end() ? ZoneTexte{} : lu->second;
  }
  static Point Coin(const ZoneTexte &zone) { return {zone.gauche, zone.haut}; }
  void RienNeSeCouvre() const {
    const std::vector<TextePlace> places = PlaceTextes(surface, Mesure);
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (std::size_t j = i + 1; j < places.size(); ++j) {
        EXPECT_FALSE(SeCoupent(places[i].zone, places[j].zone));
      }
    }
  }

  Surface surface = SurfaceNeuve(12000, 9000);
};

TEST_F(TextesPlaces, TheFigureOfALineStandsAndTheNameOfACityOnItGoesToAnotherSideOfItsPoint) {
  Pose(GenreTexte::Ville, {5000, 5000}, "Brest", 1);
  Pose(GenreTexte::Droite, {5000, 5000}, "12.5 '");
  EXPECT_EQ(Coin(Zone("12.5 '")), (Point{5000, 5000})) << "though it was written later";
  EXPECT_EQ(Coin(Zone("Brest")), (Point{5000, 5000 - kLigne - kEntreLignes})) << "above the point";
}

TEST_F(TextesPlaces, ADegreeStandsByItsMeridianAndMinutesThereGiveWay) {
  Pose(GenreTexte::Minute, {5000, 500}, "50");
  Pose(GenreTexte::DegreLongitude, {5100, 450}, "15");
  EXPECT_EQ(Montres().count("50"), 0U);
  EXPECT_EQ(Coin(Zone("15")), (Point{5100, 450}));
}

TEST_F(TextesPlaces, FiguresOfLinesThatMeetAreMovedApartAndBothStand) {
  Pose(GenreTexte::Droite, {5000, 5000}, "120 °");
  Pose(GenreTexte::Droite, {5050, 5020}, "3.2 '");
  Pose(GenreTexte::Droite, {4900, 4990}, "240 °");
  EXPECT_EQ(Montres().size(), 3U);
  EXPECT_EQ(Coin(Zone("120 °")), (Point{5000, 5000}));
  EXPECT_LE(std::abs(Zone("3.2 '").haut - 5020), 2 * kLigne) << "near its line";
  RienNeSeCouvre();
}

TEST_F(TextesPlaces, EqualTextsOnOneSpotCountOnce) {
  Pose(GenreTexte::Droite, {5000, 5000}, "120 °");
  Pose(GenreTexte::Droite, {5001, 5000}, "120 °");
  Pose(GenreTexte::Droite, {5000, 7000}, "120 °");
  EXPECT_EQ(Montres().count("120 °"), 2U);
}

TEST_F(TextesPlaces, ALargerCityHasItsNameBeforeASmallerOneThoughTheFileHasItLater) {
  for (int i = 0; i < 12; ++i) {
    Pose(GenreTexte::Ville, {5000.0 + i, 5000.0 + i}, "Bourg" + std::to_string(i), 5);
  }
  Pose(GenreTexte::Ville, {5000, 5000}, "Nantes", 2);
  EXPECT_EQ(Coin(Zone("Nantes")), (Point{5000, 5000}));
  EXPECT_LT(Montres().size(), 13U) << "there is no room for all";
  RienNeSeCouvre();
}

TEST_F(TextesPlaces, ObjectsComeBeforeCitiesAndDoNotOverprintOneAnother) {
  Pose(GenreTexte::Ville, {5000, 5000}, "Brest", 1);
  Pose(GenreTexte::Objet, {5000, 5000}, "Phare");
  Pose(GenreTexte::Objet, {5010, 5000}, "Balise");
  Pose(GenreTexte::Minute, {5300, 5000}, "20");
  EXPECT_EQ(Coin(Zone("20")), (Point{5300, 5000}));
  EXPECT_EQ(Coin(Zone("Phare")), (Point{5000, 5000 - kLigne - kEntreLignes}));
  EXPECT_EQ(Montres().size(), 4U);
  RienNeSeCouvre();
}

TEST_F(TextesPlaces, ANameThatTheEdgeWouldCutStandsLeftOfItsPoint) {
  Pose(GenreTexte::Ville, {11900, 4000}, "Lorient", 3);
  EXPECT_EQ(Coin(Zone("Lorient")), (Point{11900 - 7 * kLettre - kEcart, 4000}));
}

TEST_F(TextesPlaces, TheFigureOfAnArrowThatEndsAtTheEdgeIsMovedInside) {
  Pose(GenreTexte::Droite, {11900, 8950}, "135 °");
  const ZoneTexte zone = Zone("135 °");
  EXPECT_EQ(zone.droite(), 12000);
  EXPECT_EQ(zone.bas(), 9000);
}

TEST_F(TextesPlaces, TheFigureOfATickAtTheLeftEdgeIsMovedInside) {
  Pose(GenreTexte::Echelle, {-270, 5000}, "0°");
  EXPECT_EQ(Coin(Zone("0°")), (Point{0, 5000}));
}

TEST_F(TextesPlaces, WhatLiesOutsideOfTheSurfaceOrHasNoPlaceIsNotShown) {
  Pose(GenreTexte::Droite, {12500, 100}, "a");
  Pose(GenreTexte::DegreLongitude, {-500, 450}, "9");
  for (const double loin : {1e300, std::numeric_limits<double>::infinity(), std::nan("")}) {
    for (const GenreTexte genre : {GenreTexte::Libre, GenreTexte::Droite, GenreTexte::Ville}) {
      Pose(genre, {loin, 100}, "b");
      Pose(genre, {100, -loin}, "c");
    }
  }
  EXPECT_TRUE(Montres().empty());
}

TEST_F(TextesPlaces, DegreesTooCloseForTheirFiguresAreThinnedEvenlyAndToRoundOnes) {
  for (int degre = 30; degre <= 90; ++degre) {
    Pose(GenreTexte::DegreLongitude, {(degre - 30) * 150.0, 450}, std::to_string(degre));
  }
  const auto montres = Montres();
  EXPECT_EQ(montres.size(), 31U) << "every second: 300 apart, for 200 and a gap";
  for (const auto &[texte, zone] : montres) {
    EXPECT_EQ(std::stoi(texte) % 2, 0);
    EXPECT_EQ(zone.haut, 450);
  }
}

TEST_F(TextesPlaces, DegreesOfBothAxesInTheCornerBothStand) {
  Pose(GenreTexte::DegreLatitude, {500, 470}, "51");
  Pose(GenreTexte::DegreLongitude, {450, 450}, "18");
  EXPECT_EQ(Montres().size(), 2U);
  EXPECT_EQ(Coin(Zone("18")), (Point{450, 450}));
  RienNeSeCouvre();
}

TEST_F(TextesPlaces, TheLettersOfADialStandWhereTheyAre) {
  Pose(GenreTexte::Libre, {11950, 5000}, "E");
  Pose(GenreTexte::Libre, {11950, 5000}, "N");
  EXPECT_EQ(Coin(Zone("E")), (Point{11950, 5000}));
  EXPECT_EQ(Coin(Zone("N")), (Point{11950, 5000}));
}

TEST_F(TextesPlaces, OverThousandsOfFilledSurfacesNothingOverprintsAndNoFigureOfALineIsMissing) {
  std::mt19937 hasard(16);
  const auto tire = [&](double max) { return std::uniform_real_distribution<double>(0, max)(hasard); };
  for (int essai = 0; essai < 2000; ++essai) {
    surface = SurfaceNeuve(6000 + tire(12000), 5000 + tire(6000));
    for (int i = 0; i < 60; ++i) {
      Pose(GenreTexte::Ville, {tire(surface.largeur), tire(surface.hauteur)}, "V" + std::to_string(i), i % 6 + 1);
    }
    for (int i = 0; i < 12; ++i) {
      // All within one inch: they meet.
      Pose(GenreTexte::Droite, {1000 + tire(1440), 1000 + tire(1440)}, "D" + std::to_string(i));
      Pose(GenreTexte::Objet, {tire(surface.largeur), tire(surface.hauteur)}, "O" + std::to_string(i));
    }
    const auto montres = Montres();
    ASSERT_EQ(std::count_if(montres.begin(), montres.end(), [](const auto &m) { return m.first[0] == 'D'; }), 12);
    RienNeSeCouvre();
    ASSERT_FALSE(HasFailure()) << essai;
  }
}

/// A name of a line from one end to another.
Etiquette Nom(Point debut, Point fin) { return {{kNoir, {}, debut, "Vega 05:31", {GenreTexte::Bout}}, fin}; }

TEST_F(TextesPlaces, TheNameOfALineStandsAtItsEnd) {
  surface.etiquettes.push_back(Nom({3000, 3000}, {8000, 8000}));
  EXPECT_EQ(Coin(Zone("Vega 05:31")), (Point{3000, 3000}));
}

TEST_F(TextesPlaces, WhereItsEndIsTakenTheNameOfALineStandsAtTheOther) {
  for (double x = 1000; x < 5000; x += kLettre) { // the whole neighbourhood
    for (double y = 2000; y < 4000; y += kLigne) {
      Pose(GenreTexte::Libre, {x, y}, "x");
    }
  }
  surface.etiquettes.push_back(Nom({3000, 3000}, {8000, 8000}));
  EXPECT_EQ(Coin(Zone("Vega 05:31")), (Point{8000, 8000}));
}

TEST_F(TextesPlaces, NamesOfLinesComeBeforeThoseOfPlacesAndAfterFigures) {
  Pose(GenreTexte::Ville, {3000, 3000}, "Lorient");
  Pose(GenreTexte::Droite, {3000, 3000}, "5.43 '");
  surface.etiquettes.push_back(Nom({3000, 3000}, {8000, 8000}));
  EXPECT_EQ(Coin(Zone("5.43 '")), (Point{3000, 3000}));
  EXPECT_LT(std::hypot(Zone("Vega 05:31").gauche - 3000, Zone("Vega 05:31").haut - 3000), 1500);
  RienNeSeCouvre();
}

TEST_F(TextesPlaces, WordsOfTheLayerAreShownWhetherNamesOfLinesAreOrNot) {
  surface.etiquettes.push_back(Nom({3000, 3000}, {8000, 8000}));
  Etiquette heure = Nom({5000, 5000}, {5000, 5000});
  heure.texte.texte = "06:12";
  surface.calque.etiquettes.push_back(heure);
  EXPECT_EQ(Coin(Zone("06:12")), (Point{5000, 5000}));
  EXPECT_EQ(Montres().size(), 2U);
  surface.etiquetee = false;
  EXPECT_EQ(Coin(Zone("06:12")), (Point{5000, 5000}));
  EXPECT_EQ(Montres().size(), 1U);
  Efface(surface);
  EXPECT_EQ(Coin(Zone("06:12")), (Point{5000, 5000})) << "clearing what is recorded leaves the layer";
}

TEST_F(TextesPlaces, NamesOfLinesThatAreNotToBeSeenTakeNoRoom) {
  surface.etiquetee = false;
  surface.etiquettes.push_back(Nom({3000, 3000}, {8000, 8000}));
  Pose(GenreTexte::Ville, {3000, 3000}, "Lorient");
  EXPECT_EQ(Montres().size(), 1U);
  EXPECT_EQ(Coin(Zone("Lorient")), (Point{3000, 3000}));
}

TEST_F(TextesPlaces, NoTextStandsWhereSomethingElseIsWritten) {
  Pose(GenreTexte::Ville, {5000, 5000}, "Rochefort", 3);
  Pose(GenreTexte::Droite, {6000, 7000}, "4.41 '");
  const std::array<ZoneTexte, 2> reserves = {ZoneTexte{5000, 5000, 2500, 200}, ZoneTexte{5900, 6900, 1500, 300}};
  const std::vector<TextePlace> places = PlaceTextes(surface, Mesure, reserves);
  ASSERT_EQ(places.size(), 2U) << "there is room beside";
  for (const TextePlace &p : places) {
    for (const ZoneTexte &reserve : reserves) {
      EXPECT_FALSE(SeCoupent(p.zone, reserve)) << TexteDe(surface, p).texte;
    }
  }
}

} // namespace
} // namespace velmaris::essais

#include "foundations/Surface.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using essais::Cercles;
using essais::SurfaceNeuve;
using essais::Textes;
using essais::TracesDe;

TEST(DrawingSurface, AColourHasItsBlueByteFirst) {
  EXPECT_EQ(Rvb(0, 0, 255), 0xFF0000U);
  EXPECT_EQ(Rvb(255, 0, 0), 0x0000FFU);
  EXPECT_EQ(Rvb(1, 2, 3), 0x030201U);
  EXPECT_EQ(kBleu, 0xFF0000U);
  EXPECT_EQ(kRouge, 0x0000FFU);
  EXPECT_EQ(kMagenta, 0xFF00FFU);
  EXPECT_EQ(kGris, Rvb(128, 128, 128));
}

TEST(DrawingSurface, ALineTakesWidthAndStyleAndLeavesThePositionAtItsEnd) {
  Surface s = SurfaceNeuve(1000, 500);
  s.epaisseur = 2;
  s.style = Style::TiretPoint;
  Ligne(s, {1, 2}, {3, 4}, kRouge);
  const auto lignes = TracesDe<Polyligne>(s);
  ASSERT_EQ(lignes.size(), 1U);
  EXPECT_EQ(lignes[0].plume, (Plume{kRouge, 2, Style::TiretPoint}));
  EXPECT_EQ(lignes[0].points, (std::vector<Point>{{1, 2}, {3, 4}}));
  EXPECT_EQ(s.position, (Point{3, 4}));
}

TEST(DrawingSurface, JoinedSegmentsInOnePenAreOnePolyline) {
  Surface s = SurfaceNeuve(1000, 500);
  Ligne(s, {0, 0}, {1, 0}, kNoir);
  Ligne(s, {1, 0}, {1, 1}, kNoir);
  Ligne(s, {1, 1}, {0, 1}, kNoir);
  ASSERT_EQ(s.traces.size(), 1U);
  EXPECT_EQ(TracesDe<Polyligne>(s)[0].points.size(), 4U);
}

TEST(DrawingSurface, AnotherPenOrAnotherStartBeginsANewPolyline) {
  Surface s = SurfaceNeuve(1000, 500);
  Ligne(s, {0, 0}, {1, 0}, kNoir);
  Ligne(s, {1, 0}, {2, 0}, kRouge);
  Ligne(s, {2, 1}, {3, 1}, kRouge);
  s.epaisseur = 2;
  Ligne(s, {3, 1}, {4, 1}, kRouge);
  s.style = Style::Points;
  Ligne(s, {4, 1}, {5, 1}, kRouge);
  EXPECT_EQ(s.traces.size(), 5U);
}

TEST(DrawingSurface, ATraceBetweenTwoSegmentsPartsThem) {
  Surface s = SurfaceNeuve(1000, 500);
  Ligne(s, {0, 0}, {1, 0}, kNoir);
  Cercle(s, {1, 0}, 5, kNoir);
  Ligne(s, {1, 0}, {2, 0}, kNoir);
  EXPECT_EQ(s.traces.size(), 3U);
}

TEST(DrawingSurface, ACircleLeavesThePositionAtItsCentre) {
  Surface s = SurfaceNeuve(1000, 500);
  s.epaisseur = 3;
  Cercle(s, {10, 20}, 5, kBleu);
  ASSERT_EQ(Cercles(s).size(), 1U);
  EXPECT_EQ(Cercles(s)[0].centre, (Point{10, 20}));
  EXPECT_EQ(Cercles(s)[0].rayon, 5.0);
  EXPECT_EQ(Cercles(s)[0].plume, (Plume{kBleu, 3, Style::Plein}));
  EXPECT_EQ(s.position, (Point{10, 20}));
}

TEST(DrawingSurface, ATextStandsAtThePositionInTheInkAndLeavesItOnTheNextLine) {
  Surface s = SurfaceNeuve(1000, 500);
  s.encre = kRouge;
  s.police = {"serif", 12, false};
  s.interligne = 300;
  Ligne(s, {0, 0}, {40, 50}, kNoir);
  Ecrit(s, "a");
  ASSERT_EQ(Textes(s).size(), 1U);
  EXPECT_EQ(Textes(s)[0].position, (Point{40, 50}));
  EXPECT_EQ(Textes(s)[0].couleur, kRouge);
  EXPECT_EQ(Textes(s)[0].police, (Police{"serif", 12, false}));
  EXPECT_EQ(s.position, (Point{0, 350}));
  EcritEn(s, {7, 8}, "b");
  EXPECT_EQ(Textes(s)[1].position, (Point{7, 8}));
  EXPECT_EQ(s.position, (Point{0, 308}));
}

TEST(DrawingSurface, ClearingEmptiesTheListAndKeepsThePen) {
  Surface s = SurfaceNeuve(1000, 500);
  s.encre = kBleu;
  s.epaisseur = 2;
  Cercle(s, {10, 20}, 5, kBleu);
  Efface(s);
  EXPECT_TRUE(s.traces.empty());
  EXPECT_EQ(s.position, (Point{0, 0}));
  EXPECT_EQ(s.encre, kBleu);
  EXPECT_EQ(s.epaisseur, 2);
  EXPECT_EQ(s.effacements, 1U);
  Efface(s);
  EXPECT_EQ(s.effacements, 2U);
}

TEST(DrawingSurface, ALiftedPenStartsAPolylineOfItsOwn) {
  Surface surface;
  Ligne(surface, {0, 0}, {10, 0}, kNoir);
  surface.plumeLevee = true;
  Ligne(surface, {10, 0}, {20, 0}, kNoir);
  Ligne(surface, {20, 0}, {30, 0}, kNoir);
  ASSERT_EQ(surface.traces.size(), 2U);
  EXPECT_EQ(std::get<Polyligne>(surface.traces[1]).points.size(), 3U);
}

/// A layer of a line, a circle and a text.
void Couche(Surface &surface, double x) {
  surface.plumeLevee = true;
  Ligne(surface, {x, 0}, {x + 10, 5}, kNoir);
  Cercle(surface, {x, 3}, 4, kRouge);
  EcritEn(surface, {x, 1}, "Brest");
}

TEST(DrawingSurface, ALayerThatRepeatsTheOneRightBeforeItIsDropped) {
  Surface surface;
  Couche(surface, 1);
  Couche(surface, 7);
  Couche(surface, 7);
  EXPECT_TRUE(RetireRepetition(surface, 3, 6));
  EXPECT_EQ(surface.traces.size(), 6U);
}

TEST(DrawingSurface, ALayerThatDiffersInAnythingStays) {
  Surface surface;
  Couche(surface, 7);
  Couche(surface, 8);
  EXPECT_FALSE(RetireRepetition(surface, 0, 3));
  EXPECT_EQ(surface.traces.size(), 6U);
  Surface courte;
  Couche(courte, 7);
  Couche(courte, 7);
  Ligne(courte, {0, 0}, {1, 1}, kNoir);
  EXPECT_FALSE(RetireRepetition(courte, 0, 3)) << "it goes on after the repetition";
  Surface vide;
  EXPECT_FALSE(RetireRepetition(vide, 0, 0));
}

TEST(DrawingSurface, RunsThatAreTakenOffLeaveTheOthersInTheirOrderAndThePictureIsPaintedAnew) {
  Surface s;
  for (int i = 0; i < 6; ++i) {
    Cercle(s, {static_cast<double>(i), 0}, 1, kNoir);
  }
  const std::vector<Trace> avant = s.traces;
  RetireTranches(s, {{4, 6}, {1, 2}});
  EXPECT_EQ(s.traces, (std::vector<Trace>{avant[0], avant[2], avant[3]}));
  EXPECT_EQ(s.effacements, 1U);
  RetireTranches(s, {{3, 9}, {1, 1}});
  EXPECT_EQ(s.traces.size(), 3U);
  EXPECT_EQ(s.effacements, 1U) << "nothing went";
}

TEST(DrawingSurface, WhatIsDrawnAfterARunWasTakenOffJoinsNothingBeforeIt) {
  Surface s;
  Ligne(s, {0, 0}, {1, 1}, kNoir);
  Cercle(s, {0, 0}, 1, kNoir);
  RetireTranches(s, {{1, 2}});
  Ligne(s, {1, 1}, {2, 2}, kNoir);
  EXPECT_EQ(s.traces.size(), 2U);
}

} // namespace
} // namespace velmaris

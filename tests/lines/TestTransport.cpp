#include "lines/Transport.hpp"

#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <type_traits>

namespace velmaris {
namespace {

using namespace essais;

constexpr Couleur kVert = 0x008000;
constexpr double kParMille = kHauteur / 60; ///< surface units per mile of the common sheet
constexpr double kOrigineLat = 45.5;
constexpr double kOrigineLon = 5.25;

static_assert(std::is_same_v<decltype(Transports::PointX), float> &&
              std::is_same_v<decltype(Transports::PointY), float>);

/// A sheet around 45° 30' N 5° 15' W with nothing left on its surface, and a line to carry.
struct Carte {
  Planche p;
  Transports transports;

  bool ADroite(double latitude, double longitude) {
    return TransporteADroite(p.feuille, p.surface, transports, p.valeurs, latitude, longitude);
  }
  bool AEstime(double distance, double route) {
    return TransporteAEstime(p.feuille, p.surface, transports, p.valeurs, distance, route);
  }
  Point Depart() const { return {transports.PointX, transports.PointY}; }
};

Carte CarteAvec(float azimut, float intercept, int zoom = 60) {
  Carte c;
  c.p = PlancheCourante(zoom);
  NouvelleFeuille(c.p);
  Efface(c.p.surface);
  c.p.valeurs.Azimut = azimut;
  c.p.valeurs.Intercept = intercept;
  return c;
}

/// As CarteAvec, with a dead-reckoning point.
Carte CarteEstime(float azimut, float intercept, int zoom = 60) {
  Carte c = CarteAvec(azimut, intercept, zoom);
  c.transports.LatEstimeTransport = 45.75F;
  c.transports.LonEstimeTransport = 5.5F;
  return c;
}

double EnRadians(double degres) { return degres * std::numbers::pi / 180; }

/// A point so many units from another one in a direction of the compass.
Point Vers(Point p, double azimut, double unites) {
  return {p.x + unites * std::sin(EnRadians(azimut)), p.y - unites * std::cos(EnRadians(azimut))};
}

TEST(CarryingALine, AMinuteOfLatitudeIsAMileAndAMinuteOfLongitudeItsCosine) {
  const double ouest = kParMille * std::cos(EnRadians(kOrigineLat));
  const double cas[][2] = {{0, 0}, {10, 0}, {-25, 0}, {0, 12}, {0, -18}, {7.5, -3.25}, {-30, 40}};
  for (const auto &[nord, versOuest] : cas) {
    Carte c = CarteAvec(60, 3);
    c.ADroite(kOrigineLat + nord / 60, kOrigineLon + versOuest / 60);
    EXPECT_TRUE(Pres(c.Depart(), {kLargeur / 2 - versOuest * ouest, kHauteur / 2 - nord * kParMille}, 0.01));
  }
}

TEST(CarryingALine, TheDeadReckoningPointIsPlacedByTheSameRule) {
  for (const auto &[latitude, longitude] : {std::pair{45.75F, 5.5F}, {45.25F, -0.5F}, {-0.5F, 6.0F}}) {
    Carte aDroite = CarteAvec(60, 3);
    Carte aEstime = CarteAvec(60, 3);
    aEstime.transports.LatEstimeTransport = latitude;
    aEstime.transports.LonEstimeTransport = longitude;
    aDroite.ADroite(latitude, longitude);
    aEstime.AEstime(10, 90);
    EXPECT_EQ(aDroite.Depart(), aEstime.Depart());
  }
}

TEST(CarryingALine, TheLineIsGreenAcrossItsAzimuthAtItsIntercept) {
  const float cas[][2] = {{60, 3.27F}, {60, -3.27F}, {0, 5}, {135, 12.5F}, {179.9F, 0.4F}, {240, 8}, {300, -20}};
  for (const auto &[azimut, intercept] : cas) {
    Carte c = CarteAvec(azimut, intercept);
    ASSERT_TRUE(c.ADroite(45.6, 5.1));
    const auto lignes = EnCouleur(c.p.surface, kVert);
    ASSERT_EQ(lignes.size(), 1U);
    const Point pied = Vers(c.Depart(), azimut, double{intercept} * kParMille);
    EXPECT_TRUE(Pres(lignes[0].debut, Vers(pied, azimut + 90, kHauteur / 3), 0.01)) << azimut;
    EXPECT_TRUE(Pres(lignes[0].fin, Vers(pied, azimut - 90, kHauteur / 3), 0.01)) << azimut;
    EXPECT_EQ(lignes[0].plume, (Plume{kVert, 1, Style::Plein}));
  }
}

TEST(CarryingALine, ToTheDeadReckoningPointDrawsTheSameGreenLine) {
  Carte c = CarteEstime(240, -8);
  ASSERT_TRUE(c.AEstime(10, 90));
  const auto lignes = EnCouleur(c.p.surface, kVert);
  ASSERT_EQ(lignes.size(), 1U);
  const Point pied = Vers(c.Depart(), 240, -8 * kParMille);
  EXPECT_TRUE(Pres(lignes[0].debut, Vers(pied, 330, kHauteur / 3), 0.01));
  EXPECT_TRUE(Pres(lignes[0].fin, Vers(pied, 150, kHauteur / 3), 0.01));
}

TEST(CarryingALine, ToAnotherLineDrawsAGreenCircleThere) {
  Carte c = CarteAvec(60, 3);
  c.ADroite(45.6, 5.1);
  const auto cercles = Cercles(c.p.surface);
  ASSERT_EQ(cercles.size(), 1U);
  EXPECT_EQ(cercles[0].centre, c.Depart());
  EXPECT_DOUBLE_EQ(cercles[0].rayon, kLargeur / 200);
  EXPECT_EQ(cercles[0].plume, (Plume{kVert, 1, Style::Plein}));
  EXPECT_TRUE(EnCouleur(c.p.surface, kRouge).empty());
}

TEST(CarryingALine, ToTheDeadReckoningPointDrawsALargerRedCircleThere) {
  Carte c = CarteEstime(60, 3);
  c.AEstime(10, 90);
  const auto cercles = Cercles(c.p.surface);
  ASSERT_EQ(cercles.size(), 1U);
  EXPECT_EQ(cercles[0].centre, c.Depart());
  EXPECT_DOUBLE_EQ(cercles[0].rayon, kLargeur / 150);
  EXPECT_EQ(cercles[0].plume, (Plume{kRouge, 1, Style::Plein}));
}

TEST(CarryingALine, TheRunIsDottedInRedFromThePlaceLeftToThePoint) {
  for (const double route : {0.0, 45.0, 90.0, 137.5, 180.0, 225.0, 270.0, 359.0, 360.0}) {
    for (const double distance : {1.0, 15.0, 42.5}) {
      Carte c = CarteEstime(60, 3);
      c.AEstime(distance, route);
      const auto traits = EnCouleur(c.p.surface, kRouge);
      ASSERT_EQ(traits.size(), 1U);
      EXPECT_EQ(traits[0].plume.style, Style::Points);
      EXPECT_EQ(traits[0].fin, c.Depart());
      EXPECT_TRUE(Pres(traits[0].debut, Vers(c.Depart(), route + 180, distance * kParMille), 0.01)) << route;
    }
  }
}

TEST(CarryingALine, TheRunIsTheLastThingDrawnAndTheStyleIsSolidAgain) {
  Carte c = CarteEstime(60, 3);
  c.AEstime(15, 200);
  const auto *run = std::get_if<Polyligne>(&c.p.surface.traces.back());
  ASSERT_NE(run, nullptr);
  EXPECT_EQ(run->plume, (Plume{kRouge, 1, Style::Points}));
  EXPECT_EQ(c.p.surface.style, Style::Plein);
  EXPECT_EQ(c.p.surface.position, c.Depart());
}

TEST(CarryingALine, OnlyTheRunIsDotted) {
  Carte c = CarteEstime(60, 3);
  c.AEstime(15, 200);
  int points = 0;
  for (const Segment &s : Segments(c.p.surface)) {
    points += s.plume.style == Style::Points ? 1 : 0;
  }
  EXPECT_EQ(points, 1);
}

TEST(CarryingALine, ARunOfNoLengthIsAPoint) {
  Carte c = CarteEstime(60, 3);
  c.AEstime(0, 200);
  const auto traits = EnCouleur(c.p.surface, kRouge);
  ASSERT_EQ(traits.size(), 1U);
  EXPECT_EQ(traits[0].debut, traits[0].fin);
}

TEST(CarryingALine, ARunWithTheSameCourseAsTheLinesAzimuthLiesOnItsIntercept) {
  Carte c = CarteEstime(60, 10);
  c.AEstime(10, 240);
  // Steaming away from the body for as many miles as the intercept: the run starts at the foot of the line.
  const auto ligne = EnCouleur(c.p.surface, kVert).front();
  const Point pied{(ligne.debut.x + ligne.fin.x) / 2, (ligne.debut.y + ligne.fin.y) / 2};
  EXPECT_TRUE(Pres(EnCouleur(c.p.surface, kRouge).front().debut, pied, 0.01));
}

TEST(CarryingALine, NoMileTicksWhileATransportIsUnderWay) {
  Carte d = CarteAvec(60, 3.27F);
  d.p.feuille.TransportEnCours = 1;
  d.ADroite(45.6, 5.1);
  EXPECT_TRUE(EnCouleur(d.p.surface, kMagenta).empty());
  Carte e = CarteEstime(60, 3.27F);
  e.p.feuille.TransportEnCours = 1;
  e.AEstime(10, 90);
  EXPECT_TRUE(EnCouleur(e.p.surface, kMagenta).empty());
}

TEST(CarryingALine, MileTicksOtherwiseUnderAZoomOf250) {
  for (const auto &[zoom, traits] : {std::pair{60, 7U}, {249, 7U}, {250, 0U}, {1000, 0U}}) {
    Carte d = CarteAvec(60, -7.9F, zoom);
    d.ADroite(45.6, 5.1);
    EXPECT_EQ(EnCouleur(d.p.surface, kMagenta).size(), traits) << zoom;
    Carte e = CarteEstime(60, -7.9F, zoom);
    e.AEstime(10, 90);
    EXPECT_EQ(EnCouleur(e.p.surface, kMagenta).size(), traits) << zoom;
  }
}

TEST(CarryingALine, TicksStandAtTheMilesFromThePoint) {
  Carte c = CarteAvec(240, 3.5F);
  c.ADroite(45.6, 5.1);
  const auto traits = EnCouleur(c.p.surface, kMagenta);
  ASSERT_EQ(traits.size(), 3U);
  for (std::size_t n = 0; n < traits.size(); ++n) {
    const Point milieu{(traits[n].debut.x + traits[n].fin.x) / 2, (traits[n].debut.y + traits[n].fin.y) / 2};
    EXPECT_TRUE(Pres(milieu, Vers(c.Depart(), 240, static_cast<double>(n + 1) * kParMille), 0.01));
  }
}

TEST(CarryingALine, TheFlagOfATransportIsLeftToItsOwner) {
  for (const std::uint8_t drapeau : {std::uint8_t{0}, std::uint8_t{1}}) {
    Carte c = CarteEstime(60, 3);
    c.p.feuille.TransportEnCours = drapeau;
    c.ADroite(45.6, 5.1);
    c.AEstime(10, 90);
    EXPECT_EQ(c.p.feuille.TransportEnCours, drapeau);
  }
}

TEST(CarryingALine, TheScaleOfMilesIsSetAnewAndThatOfLongitudesStays) {
  for (const bool estime : {false, true}) {
    Carte c = CarteEstime(60, 3.27F, 45);
    c.p.feuille.EchelleY = 12.5F;
    c.p.feuille.EchelleX = 34.5F;
    ASSERT_TRUE(estime ? c.AEstime(10, 90) : c.ADroite(45.6, 5.1));
    EXPECT_FLOAT_EQ(c.p.feuille.EchelleY, static_cast<float>(kHauteur / 45));
    EXPECT_EQ(c.p.feuille.EchelleX, 34.5F);
  }
}

TEST(CarryingALine, ThePointIsPlacedOnTheScaleThatWasAndTheRunDrawnOnTheNew) {
  Carte c = CarteEstime(60, 3);
  c.p.feuille.EchelleY = 75;
  c.AEstime(10, 0);
  // A quarter of a degree to the north of the centre at half the scale, the run at the full one.
  EXPECT_NEAR(c.transports.PointY, kHauteur / 2 - 15 * 75, 0.01);
  const auto run = EnCouleur(c.p.surface, kRouge).front();
  EXPECT_NEAR(run.debut.y - run.fin.y, 10 * kParMille, 0.01);
}

TEST(CarryingALine, DirectionAndLengthAreThoseOfTheLine) {
  for (const float intercept : {3.27F, -3.27F}) {
    Carte c = CarteAvec(240, intercept);
    c.ADroite(45.6, 5.1);
    EXPECT_EQ(c.p.feuille.AngleDroite, static_cast<float>((90.0 - 240) * kPi / 180.0));
    EXPECT_EQ(c.p.feuille.LongueurIntercept, static_cast<float>(kParMille * intercept));
    EXPECT_EQ(c.p.feuille.EchelleY, static_cast<float>(double{c.p.feuille.LongueurIntercept} / intercept));
    EXPECT_GT(c.p.feuille.EchelleY, 0);
  }
}

TEST(CarryingALine, TheSheetItselfStays) {
  Carte c = CarteEstime(60, 3);
  const Feuille avant = c.p.feuille;
  c.ADroite(45.6, 5.1);
  c.AEstime(10, 90);
  EXPECT_EQ(c.p.feuille.OrigineFeuille, avant.OrigineFeuille);
  EXPECT_EQ(c.p.feuille.CentreX, avant.CentreX);
  EXPECT_EQ(c.p.feuille.CentreY, avant.CentreY);
  EXPECT_EQ(c.p.feuille.Zoom, avant.Zoom);
  EXPECT_EQ(c.p.surface.effacements, 2U); // the new sheet and the clearing before the transports
}

TEST(CarryingALine, AnInterceptOfZeroSetsThePointAndDrawsNothing) {
  for (const float zero : {0.0F, -0.0F}) {
    for (const bool estime : {false, true}) {
      Carte c = CarteEstime(60, zero);
      const Feuille avant = c.p.feuille;
      c.p.surface.position = {123, 456};
      EXPECT_FALSE(estime ? c.AEstime(10, 90) : c.ADroite(45.75, 5.5));
      EXPECT_TRUE(c.p.surface.traces.empty());
      EXPECT_EQ(c.p.surface.position, (Point{123, 456}));
      const double ouest = 15 * kParMille * std::cos(EnRadians(kOrigineLat));
      EXPECT_TRUE(Pres(c.Depart(), {kLargeur / 2 - ouest, kHauteur / 2 - 15 * kParMille}, 0.01));
      EXPECT_EQ(c.p.feuille.EchelleY, avant.EchelleY);
      EXPECT_EQ(c.p.feuille.AngleDroite, avant.AngleDroite);
      EXPECT_EQ(c.p.feuille.LongueurIntercept, avant.LongueurIntercept);
    }
  }
}

TEST(CarryingALine, AnAzimuthOfExactly180LeavesTheCircleAndTheRunWithoutALine) {
  Carte c = CarteEstime(180, 3);
  ASSERT_TRUE(c.AEstime(10, 90));
  EXPECT_TRUE(EnCouleur(c.p.surface, kVert).empty());
  EXPECT_EQ(Cercles(c.p.surface).size(), 1U);
  EXPECT_EQ(EnCouleur(c.p.surface, kRouge).size(), 1U);
}

TEST(CarryingALine, LeavesTheListsToItsCaller) {
  Carte c = CarteEstime(60, 3);
  c.transports.ListeTransportDroite = "3";
  c.transports.CibleTransport = "2";
  c.transports.ListeTransportEstime = "1";
  c.ADroite(45.6, 5.1);
  c.AEstime(10, 90);
  EXPECT_EQ(c.transports.ListeTransportDroite, "3");
  EXPECT_EQ(c.transports.CibleTransport, "2");
  EXPECT_EQ(c.transports.ListeTransportEstime, "1");
}

TEST(ListOfCarriedLines, HoldsEachLineOnceInTheOrderOfTheTransports) {
  std::string liste;
  EXPECT_TRUE(NoteTransport(liste, 2));
  EXPECT_TRUE(NoteTransport(liste, 0));
  EXPECT_FALSE(NoteTransport(liste, 2));
  EXPECT_FALSE(NoteTransport(liste, 0));
  EXPECT_TRUE(NoteTransport(liste, 3));
  EXPECT_TRUE(NoteTransport(liste, 1));
  EXPECT_EQ(liste, "2031");
  for (int ligne = 0; ligne < 4; ++ligne) {
    EXPECT_FALSE(NoteTransport(liste, ligne));
  }
  EXPECT_EQ(liste, "2031");
}

} // namespace
} // namespace velmaris

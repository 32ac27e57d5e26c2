#include "sky/Cadrans.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <string>
#include <vector>

namespace velmaris {
namespace {

constexpr double kCote = 1650.0;
constexpr double kEcart = 1e-6; ///< the short pi moves a point by less than this

Surface Cadran() {
  Surface s;
  s.largeur = kCote;
  s.hauteur = kCote;
  return s;
}

std::vector<Polyligne> Lignes(const Surface &s, Couleur couleur) {
  std::vector<Polyligne> lignes;
  for (const Trace &t : s.traces) {
    if (const auto *l = std::get_if<Polyligne>(&t); l != nullptr && l->plume.couleur == couleur) {
      lignes.push_back(*l);
    }
  }
  return lignes;
}

std::vector<CercleTrace> Cercles(const Surface &s) {
  std::vector<CercleTrace> cercles;
  for (const Trace &t : s.traces) {
    if (const auto *c = std::get_if<CercleTrace>(&t)) {
      cercles.push_back(*c);
    }
  }
  return cercles;
}

/// End of the needle: the first black segment runs from the centre to the tip.
Point Pointe(const Surface &s) { return Lignes(s, kNoir).front().points[1]; }

TEST(AzimuthDial, TheNeedlePointsFromNorthThroughEast) {
  const Point c{kCote / 2, kCote / 2 - 80};
  const double r = kCote / 3.5;
  const std::map<float, Point> attendus = {
      {0.0F, {c.x, c.y - r}}, {90.0F, {c.x + r, c.y}}, {180.0F, {c.x, c.y + r}}, {270.0F, {c.x - r, c.y}}};
  for (const auto &[azimut, attendu] : attendus) {
    Surface s = Cadran();
    DessineCadranAzimut(s, azimut);
    EXPECT_NEAR(Pointe(s).x, attendu.x, kEcart) << azimut;
    EXPECT_NEAR(Pointe(s).y, attendu.y, kEcart) << azimut;
    EXPECT_EQ(Lignes(s, kNoir).front().points[0], c);
    const Point queue = Lignes(s, kNoir).back().points.back();
    EXPECT_NEAR(queue.x, 2 * c.x - attendu.x, kEcart) << "the tail is as long as the needle";
    EXPECT_NEAR(queue.y, 2 * c.y - attendu.y, kEcart);
  }
}

TEST(AzimuthDial, TheHeadJoinsTheTipToTwoPointsAtTwoHundredUnits) {
  Surface s = Cadran();
  DessineCadranAzimut(s, 30.0F);
  const Point c{kCote / 2, kCote / 2 - 80};
  int proches = 0;
  for (const Polyligne &l : Lignes(s, kNoir)) {
    EXPECT_EQ(l.plume.largeur, 2);
    for (const Point &p : l.points) {
      proches += std::fabs(std::hypot(p.x - c.x, p.y - c.y) - 200) < kEcart ? 1 : 0;
    }
  }
  EXPECT_GE(proches, 3);
}

TEST(AzimuthDial, TwelvePointsLieOnTheCircleAndTheFirstIsDrawnTwice) {
  Surface s = Cadran();
  DessineCadranAzimut(s, 0.0F);
  const auto cercles = Cercles(s);
  ASSERT_EQ(cercles.size(), 13U);
  const Point c{kCote / 2, kCote / 2 - 80};
  for (std::size_t k = 0; k < cercles.size(); ++k) {
    const double a = std::numbers::pi * static_cast<double>(k) / 6;
    EXPECT_NEAR(cercles[k].centre.x, c.x + std::sin(a) * kCote / 3, kEcart);
    EXPECT_NEAR(cercles[k].centre.y, c.y + std::cos(a) * kCote / 3, kEcart);
    EXPECT_DOUBLE_EQ(cercles[k].rayon, kCote / 75);
    EXPECT_EQ(cercles[k].plume.couleur, kGris);
  }
}

TEST(AzimuthDial, ItsLettersAndItsCrossStandAtTheirPlaces) {
  Surface s = Cadran();
  DessineCadranAzimut(s, 0.0F);
  const Point c{kCote / 2, kCote / 2 - 80};
  std::map<std::string, Point> lettres;
  for (const Trace &t : s.traces) {
    if (const auto *texte = std::get_if<TexteTrace>(&t)) {
      lettres[texte->texte] = texte->position;
    }
  }
  EXPECT_EQ(lettres["N"], (Point{c.x - 50, 0}));
  EXPECT_EQ(lettres["S"], (Point{c.x - 50, kCote - 250}));
  EXPECT_EQ(lettres["O"], (Point{50, c.y - 100}));
  EXPECT_EQ(lettres["E"], (Point{kCote - 200, c.y - 100}));
  const auto croix = Lignes(s, kGris);
  ASSERT_EQ(croix.size(), 2U);
  EXPECT_EQ(croix[0].points, (std::vector<Point>{{350, c.y}, {kCote - 300, c.y}}));
  EXPECT_EQ(croix[1].points, (std::vector<Point>{{c.x, 300}, {c.x, kCote - 400}}));
  EXPECT_EQ(croix[0].plume.largeur, 1);
}

TEST(HeightDial, TheNeedleTurnsFromTheCornersLeftToItsTop) {
  const Point c{kCote - 200, kCote - 200};
  const double r = kCote / 1.7;
  const std::map<float, Point> attendus = {
      {0.0F, {c.x - r, c.y}}, {90.0F, {c.x, c.y - r}}, {-30.0F, {c.x - r * std::sqrt(0.75), c.y + r / 2}}};
  for (const auto &[hauteur, attendu] : attendus) {
    Surface s = Cadran();
    DessineCadranHauteur(s, hauteur);
    EXPECT_NEAR(Pointe(s).x, attendu.x, kEcart) << hauteur;
    EXPECT_NEAR(Pointe(s).y, attendu.y, kEcart) << hauteur;
  }
}

TEST(HeightDial, SevenPointsMakeAQuarterCircle) {
  Surface s = Cadran();
  DessineCadranHauteur(s, 45.0F);
  const auto cercles = Cercles(s);
  const Point c{kCote - 200, kCote - 200};
  ASSERT_EQ(cercles.size(), 7U);
  for (const CercleTrace &cercle : cercles) {
    EXPECT_NEAR(std::hypot(cercle.centre.x - c.x, cercle.centre.y - c.y), kCote / 1.5, kEcart);
    EXPECT_LE(cercle.centre.x, c.x + kEcart);
    EXPECT_LE(cercle.centre.y, c.y + kEcart);
    EXPECT_EQ(cercle.rayon, 30);
  }
  const auto bases = Lignes(s, kGris);
  ASSERT_EQ(bases.size(), 2U);
  EXPECT_EQ(bases[0].points, (std::vector<Point>{{500, c.y}, c}));
  EXPECT_EQ(bases[1].points, (std::vector<Point>{{c.x, 400}, c}));
}

TEST(HeightDial, EachCallDrawsItAnew) {
  Surface s = Cadran();
  DessineCadranHauteur(s, 10.0F);
  const std::size_t traces = s.traces.size();
  DessineCadranHauteur(s, 20.0F);
  EXPECT_EQ(s.traces.size(), traces);
  EXPECT_EQ(s.effacements, 2U);
}

} // namespace
} // namespace velmaris

#include "lines/Feuille.hpp"

#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// The azimuth arrow of the sheet.
namespace velmaris {
namespace {

using namespace essais;

/// The arrow of a sheet: its four segments, the only ones in the body's colour.
std::vector<Segment> Fleche(const Planche &p) {
  const auto segments = EnCouleur(p.surface, CouleurDroite(p.observation.corps));
  EXPECT_EQ(segments.size(), 4U);
  return segments;
}

TEST(AzimuthArrow, PointsWhereTheBodyBears) {
  const struct {
    float azimut;
    double x, y; ///< the way on the surface, y downward
  } cas[] = {{0, 0, -1}, {90, 1, 0}, {180, 0, 1}, {270, -1, 0}, {45, std::sqrt(0.5), -std::sqrt(0.5)}};
  for (const auto &c : cas) {
    Planche p = PlancheCourante();
    p.valeurs.Azimut = c.azimut;
    NouvelleFeuille(p);
    const auto fleche = Fleche(p);
    const double longueur = kLargeur / (60 / 100.0 + 5.0);
    const Point centre{kLargeur / 2, kHauteur / 2};
    EXPECT_EQ(fleche[0].debut, centre);
    EXPECT_TRUE(Pres(fleche[0].fin, {centre.x + c.x * longueur, centre.y + c.y * longueur}, 0.01)) << c.azimut;
  }
}

TEST(AzimuthArrow, HasATailAsLongAsItsBody) {
  Planche p = PlancheCourante();
  p.valeurs.Azimut = 31;
  NouvelleFeuille(p);
  const auto fleche = Fleche(p);
  EXPECT_EQ(fleche[3].debut, fleche[0].debut);
  EXPECT_TRUE(
      Pres({(fleche[3].fin.x + fleche[0].fin.x) / 2, (fleche[3].fin.y + fleche[0].fin.y) / 2}, fleche[0].debut));
}

TEST(AzimuthArrow, ItsLengthFollowsTheZoom) {
  for (const int zoom : {10, 60, 100, 500, 3000}) {
    Planche p = PlancheCourante(zoom);
    NouvelleFeuille(p);
    const auto pas = static_cast<float>(zoom / 100.0 + 5.0);
    EXPECT_EQ(p.feuille.PasFleche, pas);
    const auto corps = Fleche(p)[0];
    EXPECT_NEAR(std::hypot(corps.fin.x - corps.debut.x, corps.fin.y - corps.debut.y), kLargeur / pas, 1E-6);
  }
}

TEST(AzimuthArrow, OfAnAddedLineFollowsTheZoomToo) {
  for (const int zoom : {10, 500, 3000}) {
    Planche p = PlancheCourante(zoom);
    NouvelleFeuille(p);
    p.surface.traces.clear();
    p.feuille.PasFleche = 1;
    AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
    const auto pas = static_cast<float>(zoom / 100.0 + 5.0);
    EXPECT_EQ(p.feuille.PasFleche, pas);
    const auto corps = Fleche(p)[0];
    EXPECT_NEAR(std::hypot(corps.fin.x - corps.debut.x, corps.fin.y - corps.debut.y), kLargeur / pas, 1E-6);
  }
}

TEST(AzimuthArrow, TheHeadsLengthFallsInBandsWithBothEndsInTheFirst) {
  const struct {
    int zoom;
    float tete;
  } cas[] = {{0, -900},   {1, -900},   {20, -900},   {21, -800},   {699, -800},
             {700, -800}, {701, -500}, {2000, -500}, {2001, -300}, {32000, -300}};
  for (const auto &c : cas) {
    Planche p = PlancheCourante(c.zoom);
    NouvelleFeuille(p);
    EXPECT_EQ(p.feuille.LongueurTete, c.tete) << c.zoom;
    const auto fleche = Fleche(p);
    for (const Segment &s : {fleche[1], fleche[2]}) {
      EXPECT_NEAR(std::hypot(s.fin.x - s.debut.x, s.fin.y - s.debut.y), -double{c.tete}, 1E-6) << c.zoom;
    }
  }
}

TEST(AzimuthArrow, ANegativeZoomKeepsTheLastHead) {
  Planche p = PlancheCourante(-5);
  p.feuille.LongueurTete = -123;
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.LongueurTete, -123.0F);
}

TEST(AzimuthArrow, TheHeadOpensFiveDegreesToEachSideBackFromTheTip) {
  for (const float azimut : {0.0F, 33.25F, 135.0F, 271.0F, 359.5F}) {
    Planche p = PlancheCourante();
    p.valeurs.Azimut = azimut;
    NouvelleFeuille(p);
    const auto fleche = Fleche(p);
    const Point pointe = fleche[0].fin;
    const auto branche = [&](double ecart) {
      const double r = (double{azimut} - ecart) * kPi / 180.0;
      return Point{pointe.x - 800 * std::cos(r), pointe.y - 800 * std::sin(r)};
    };
    EXPECT_EQ(fleche[1].debut, pointe);
    EXPECT_TRUE(Pres(fleche[1].fin, branche(85)));
    EXPECT_TRUE(Pres(fleche[2].debut, branche(95)));
    EXPECT_EQ(fleche[2].fin, pointe);
  }
}

TEST(AzimuthArrow, ItsFigureStandsAtTheTip) {
  const struct {
    float azimut;
    const char *texte;
  } cas[] = {{135, "135. °"}, {45.678F, "45.68 °"}, {0.5F, ".5 °"}, {0, ". °"}, {359.999F, "360. °"}, {7.1F, "7.1 °"}};
  for (const auto &c : cas) {
    Planche p = PlancheCourante();
    p.valeurs.Azimut = c.azimut;
    NouvelleFeuille(p);
    EXPECT_EQ(Textes(p.surface).back().texte, c.texte);
    EXPECT_EQ(Textes(p.surface).back().position, Fleche(p)[0].fin);
  }
}

TEST(AzimuthArrow, IsTwoWideInTheBodysColour) {
  for (const Corps corps : {Corps::Soleil, Corps::Lune, Corps::Etoiles}) {
    Planche p = PlancheCourante();
    p.observation.corps = corps;
    NouvelleFeuille(p);
    EXPECT_EQ(p.feuille.CouleurAstre, static_cast<float>(CouleurDroite(corps)));
    for (const Segment &s : Fleche(p)) {
      EXPECT_EQ(s.plume, (Plume{CouleurDroite(corps), 2, Style::Plein}));
    }
  }
  // A planet shares its magenta with the ticks, which are one wide.
  Planche p = PlancheCourante();
  p.observation.corps = Corps::Planetes;
  NouvelleFeuille(p);
  const auto magentas = EnCouleur(p.surface, kMagenta);
  EXPECT_EQ(magentas.size(), 12U + 4U);
  EXPECT_EQ(std::count_if(magentas.begin(), magentas.end(), [](const Segment &s) { return s.plume.largeur == 2; }), 4);
}

} // namespace
} // namespace velmaris

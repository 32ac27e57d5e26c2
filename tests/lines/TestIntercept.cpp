#include "lines/Intercept.hpp"

#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace velmaris {
namespace {

using namespace essais;

constexpr double kX = 5000;
constexpr double kY = 4000;
constexpr Couleur kVert = 32768;

/// A line drawn from (kX, kY), its direction, scale and length set as a sheet sets them.
struct LigneTracee {
  Planche planche;
  std::int16_t drapeau = 7;
  double t = 0, G = 0;

  Point Sur(double distance) const { return {kX + distance * std::cos(t), kY - distance * std::sin(t)}; }
  /// A point beside one of the direction, to the left of it on the surface.
  Point Cote(Point p, double ecart) const { return {p.x + ecart * std::sin(t), p.y + ecart * std::cos(t)}; }
  std::vector<Segment> Lignes() const { return EnCouleur(planche.surface, kVert); }
  std::vector<Segment> Traits() const { return EnCouleur(planche.surface, kMagenta); }
  TexteTrace Figure() const { return Textes(planche.surface).back(); }
};

LigneTracee Tracee(float azimut, float intercept, int zoom = 60, bool transport = false) {
  LigneTracee d;
  d.planche = PlancheCourante(zoom);
  Feuille &f = d.planche.feuille;
  d.planche.valeurs.Azimut = azimut;
  d.planche.valeurs.Intercept = intercept;
  f.AngleDroite = static_cast<float>((90.0 - azimut) * kPi / 180.0);
  f.EchelleY = static_cast<float>(kHauteur / zoom);
  f.LongueurIntercept = static_cast<float>(kHauteur / zoom * intercept);
  f.TransportEnCours = transport ? 1 : 0;
  d.t = f.AngleDroite;
  d.G = f.LongueurIntercept;
  d.planche.surface.position = {123, 456};
  AffIntercept(f, d.planche.surface, d.planche.valeurs, kX, kY, static_cast<float>(kVert), d.drapeau);
  return d;
}

struct CasDroite {
  float azimut, intercept;
  int traits;      ///< number of mile ticks
  int sens;        ///< +1 towards the body, -1 away
  double compteur; ///< miles of the figure's foot, the foot of the line when negative zero
  const char *figure;
};

constexpr double kAuPied = 1E9; ///< the figure stands by the line itself

class FourCases : public testing::TestWithParam<CasDroite> {};

TEST_P(FourCases, TheLineStandsAcrossTheFootOfTheIntercept) {
  const CasDroite &c = GetParam();
  const LigneTracee d = Tracee(c.azimut, c.intercept);
  ASSERT_EQ(d.Lignes().size(), 1U);
  const Point pied = d.Sur(d.G);
  EXPECT_TRUE(Pres(d.Lignes()[0].debut, d.Cote(pied, kHauteur / 3)));
  EXPECT_TRUE(Pres(d.Lignes()[0].fin, d.Cote(pied, -kHauteur / 3)));
}

TEST_P(FourCases, EveryWholeMileHasATick) {
  const CasDroite &c = GetParam();
  const LigneTracee d = Tracee(c.azimut, c.intercept);
  const auto traits = d.Traits();
  ASSERT_EQ(traits.size(), static_cast<std::size_t>(c.traits));
  for (std::size_t n = 0; n < traits.size(); ++n) {
    const Point centre = d.Sur(c.sens * static_cast<double>(n + 1) * kHauteur / 60);
    EXPECT_TRUE(Pres(traits[n].debut, d.Cote(centre, kHauteur / 50)));
    EXPECT_TRUE(Pres(traits[n].fin, d.Cote(centre, -kHauteur / 50)));
  }
}

TEST_P(FourCases, TheFigureStandsByTheLineOrOneTickPastTheLast) {
  const CasDroite &c = GetParam();
  const LigneTracee d = Tracee(c.azimut, c.intercept);
  const Point pied = d.Sur(c.compteur == kAuPied ? d.G : c.compteur * kHauteur / 60);
  EXPECT_TRUE(Pres(d.Figure().position, d.Cote(pied, kHauteur / 10)));
  EXPECT_EQ(d.Figure().texte, c.figure);
  EXPECT_EQ(Textes(d.planche.surface).size(), 1U);
}

TEST_P(FourCases, WithoutTicksTheFigureStandsByTheLineOrByThePoint) {
  const CasDroite &c = GetParam();
  for (const auto &[zoom, transport] : {std::pair{250, false}, {60, true}}) {
    const LigneTracee d = Tracee(c.azimut, c.intercept, zoom, transport);
    EXPECT_TRUE(d.Traits().empty());
    EXPECT_EQ(d.Lignes().size(), 1U);
    const Point pied = d.Sur(c.compteur == kAuPied ? d.G : 0);
    EXPECT_TRUE(Pres(d.Figure().position, d.Cote(pied, kHauteur / 10)));
  }
}

INSTANTIATE_TEST_SUITE_P(EastTowards, FourCases,
                         testing::Values(CasDroite{60, 3.27F, 3, 1, kAuPied, "3.27 '"},
                                         CasDroite{60, 3, 3, 1, kAuPied, "3.0 '"},
                                         CasDroite{0, 0.4F, 0, 1, kAuPied, ".4 '"},
                                         CasDroite{179.99F, 12.5F, 12, 1, kAuPied, "12.5 '"}));
INSTANTIATE_TEST_SUITE_P(EastAway, FourCases,
                         testing::Values(CasDroite{60, -3.27F, 3, -1, -4, "-3.27 '"},
                                         CasDroite{60, -3, 3, -1, -4, "-3.0 '"},
                                         CasDroite{90, -0.4F, 0, -1, 0, "-.4 '"}));
INSTANTIATE_TEST_SUITE_P(WestTowards, FourCases,
                         testing::Values(CasDroite{240, 3.27F, 3, 1, 4, "3.27 '"}, CasDroite{360, 5, 5, 1, 6, "5.0 '"},
                                         CasDroite{270, 0.4F, 0, 1, 0, ".4 '"}));
INSTANTIATE_TEST_SUITE_P(WestAway, FourCases,
                         testing::Values(CasDroite{240, -3.27F, 3, -1, -4, "-3.27 '"},
                                         CasDroite{180.01F, -1, 1, -1, -2, "-1.0 '"},
                                         CasDroite{300, -0.99F, 0, -1, 0, "-.99 '"}));

TEST(LineOfPosition, TheFlagSaysWhetherTheZoomAllowsTicks) {
  EXPECT_EQ(Tracee(60, 3, 1).drapeau, -1);
  EXPECT_EQ(Tracee(60, 3, 249).drapeau, -1);
  EXPECT_EQ(Tracee(60, 3, 250).drapeau, 0);
  EXPECT_EQ(Tracee(60, 3, 3000).drapeau, 0);
}

TEST(LineOfPosition, AnAzimuthOfExactly180PrintsItsFigureWhereThePositionStands) {
  const LigneTracee d = Tracee(180, 3.27F);
  EXPECT_TRUE(Segments(d.planche.surface).empty());
  EXPECT_EQ(d.Figure().texte, "3.27 '");
  EXPECT_EQ(d.Figure().position, (Point{123, 456}));
}

TEST(LineOfPosition, AnInterceptOfZeroPrintsItsFigureWhereThePositionStands) {
  const LigneTracee d = Tracee(60, 0);
  EXPECT_TRUE(Segments(d.planche.surface).empty());
  EXPECT_EQ(d.Figure().texte, ".0 '");
  EXPECT_EQ(d.Figure().position, (Point{123, 456}));
}

TEST(LineOfPosition, TowardsTheBodyLiesTheFootOfAPositiveIntercept) {
  // Due east, two miles: 300 units to the right; away from it: as much to the left.
  const LigneTracee vers = Tracee(90, 2);
  EXPECT_TRUE(Pres(vers.Lignes()[0].debut, {kX + 300, kY + kHauteur / 3}));
  const LigneTracee loin = Tracee(90, -2);
  EXPECT_TRUE(Pres(loin.Lignes()[0].debut, {kX - 300, kY + kHauteur / 3}));
}

TEST(LineOfPosition, AnInterceptOutOfAllMeasureEndsAllTheSame) {
  // A reading of any size can stand in a file; a sight on the Earth is never over 16200 miles out.
  for (const float intercept : {6E10F, -6E10F, 1E38F, -1E38F}) {
    const LigneTracee d = Tracee(60, intercept);
    EXPECT_EQ(d.Lignes().size(), 1U);
    EXPECT_LE(d.Traits().size(), 32767U);
  }
}

} // namespace
} // namespace velmaris

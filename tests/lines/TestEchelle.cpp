#include "lines/Echelle.hpp"

#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace velmaris {
namespace {

using namespace essais;

constexpr double kDebut = kLargeur / 6;
constexpr double kPied = kHauteur / 1.08;

struct Barre {
  Planche planche;
  double mille = 0;
  /// Ticks by mile: the lengths of all that hang there.
  std::map<int, std::set<int>> traits;
  std::map<int, std::string> figures;
};

Barre Tracee(int zoom) {
  Barre b;
  b.planche = PlancheCourante(zoom);
  b.planche.feuille.EchelleY = static_cast<float>(kHauteur / zoom);
  b.mille = b.planche.feuille.EchelleY;
  TraceEchelle(b.planche.feuille, b.planche.surface);
  for (const Segment &s : Segments(b.planche.surface)) {
    if (s.plume.largeur == 1) {
      EXPECT_EQ(s.plume.couleur, kNoir);
      EXPECT_EQ(s.debut.x, s.fin.x);
      EXPECT_DOUBLE_EQ(s.debut.y, kPied);
      const double mille = (s.debut.x - kDebut) / b.mille;
      EXPECT_NEAR(mille, std::round(mille), 1E-6);
      b.traits[static_cast<int>(std::round(mille))].insert(static_cast<int>(std::round(s.fin.y - s.debut.y)));
    }
  }
  for (const TexteTrace &t : Textes(b.planche.surface)) {
    if (t.texte != "Milles Nautiques ") {
      EXPECT_DOUBLE_EQ(t.position.y, kPied + kLargeur / 60);
      const double mille = (t.position.x + kLargeur / 100 + 50 - kDebut) / b.mille;
      EXPECT_NEAR(mille, std::round(mille), 1E-6);
      EXPECT_EQ(t.couleur, kNoir);
      b.figures[static_cast<int>(std::round(mille))] = t.texte;
    }
  }
  return b;
}

class ScaleBar : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(ScaleBar, IsTheZoomInTensOfMilesLongAndTwoWide) {
  const auto &[zoom, longueur] = GetParam();
  const Barre b = Tracee(zoom);
  const auto segments = Segments(b.planche.surface);
  ASSERT_FALSE(segments.empty());
  EXPECT_EQ(segments[0].plume, (Plume{kNoir, 2, Style::Plein}));
  EXPECT_EQ(segments[0].debut, (Point{kDebut, kPied}));
  EXPECT_TRUE(Pres(segments[0].fin, {kDebut + longueur * kHauteur / zoom, kPied}, 0.02));
}

TEST_P(ScaleBar, ItsCaptionStandsRightOfItsEnd) {
  const Barre b = Tracee(GetParam().first);
  const auto textes = Textes(b.planche.surface);
  ASSERT_FALSE(textes.empty());
  EXPECT_EQ(textes[0].texte, "Milles Nautiques ");
  EXPECT_EQ(textes[0].couleur, kNoir);
  const Point fin = Segments(b.planche.surface)[0].fin;
  EXPECT_TRUE(Pres(textes[0].position, {fin.x + kLargeur / 100, fin.y + kHauteur / 100}));
}

INSTANTIATE_TEST_SUITE_P(Zooms, ScaleBar,
                         testing::Values(std::pair{1, 10}, std::pair{10, 10}, std::pair{11, 10}, std::pair{19, 10},
                                         std::pair{20, 20}, std::pair{99, 90}, std::pair{259, 250}, std::pair{500, 500},
                                         std::pair{1005, 1000}, std::pair{3000, 3000}, std::pair{3009, 3000}));

/// @param pas  miles between figures
/// @param dernier  the last figure
void VerifieFigures(const Barre &b, int pas, int dernier) {
  for (int mille = pas; mille <= dernier; mille += pas) {
    ASSERT_TRUE(b.figures.contains(mille)) << mille;
    EXPECT_EQ(b.figures.at(mille), std::to_string(mille));
    EXPECT_TRUE(b.traits.at(mille).contains(static_cast<int>(kHauteur / 40))) << mille;
  }
  for (const auto &[mille, texte] : b.figures) {
    EXPECT_EQ(mille % pas, 0);
    EXPECT_EQ(texte, std::to_string(mille));
    EXPECT_LE(mille, dernier);
  }
}

TEST(ScaleBarTicks, UpTo500MilesEachMileHasAShortTickAndEachFiveALongerOne) {
  for (const int zoom : {11, 60, 255, 500}) {
    const Barre b = Tracee(zoom);
    const int longueur = zoom / 10 * 10;
    for (int mille = 1; mille <= longueur; ++mille) {
      ASSERT_TRUE(b.traits.contains(mille)) << zoom << ' ' << mille;
      const int attendu = static_cast<int>(mille % 5 == 0 ? kHauteur / 60 : kHauteur / 90);
      EXPECT_TRUE(b.traits.at(mille).contains(attendu)) << zoom << ' ' << mille;
    }
    EXPECT_FALSE(b.traits.contains(longueur + 1));
  }
}

TEST(ScaleBarTicks, FiguresStandTenMilesApartOrTwentyOver250) {
  VerifieFigures(Tracee(60), 10, 60);
  VerifieFigures(Tracee(259), 10, 250);
  VerifieFigures(Tracee(260), 20, 260);
  VerifieFigures(Tracee(500), 20, 500);
}

TEST(ScaleBarTicks, From501To1000EachFiveMilesAndFiguresAtFiftyOrAHundred) {
  VerifieFigures(Tracee(501), 50, 500);
  VerifieFigures(Tracee(709), 50, 700);
  VerifieFigures(Tracee(710), 100, 700);
  VerifieFigures(Tracee(1000), 100, 1000);
  for (const auto &[mille, longueurs] : Tracee(800).traits) {
    EXPECT_EQ(mille % 5, 0);
  }
  EXPECT_EQ(Tracee(800).traits.size(), 161U);
}

TEST(ScaleBarTicks, From1001To2000EachTenMilesAndFiguresAtAHundredOrTwo) {
  VerifieFigures(Tracee(1001), 100, 1000);
  VerifieFigures(Tracee(1509), 100, 1500);
  VerifieFigures(Tracee(1510), 200, 1400);
  VerifieFigures(Tracee(2000), 200, 2000);
  EXPECT_EQ(Tracee(2000).traits.size(), 201U);
}

TEST(ScaleBarTicks, From2001To3000EachTwentyMilesAndFiguresAt250Or500) {
  VerifieFigures(Tracee(2001), 250, 2000);
  VerifieFigures(Tracee(2509), 250, 2500);
  VerifieFigures(Tracee(2510), 500, 2500);
  VerifieFigures(Tracee(3000), 500, 3000);
  const Barre b = Tracee(3000);
  for (int mille = 0; mille <= 3000; mille += 20) {
    EXPECT_TRUE(b.traits.contains(mille));
  }
}

TEST(ScaleBarTicks, Over3000ThereIsTheBarAndItsTextOnly) {
  for (const int zoom : {3001, 10000, 32767}) {
    const Barre b = Tracee(zoom);
    EXPECT_EQ(Segments(b.planche.surface).size(), 1U);
    EXPECT_EQ(Textes(b.planche.surface).size(), 1U);
  }
}

TEST(ScaleBarPen, ATenMileBarIsLongerThanTheSheetWhenTheZoomIsSmaller) {
  const Barre b = Tracee(5);
  const Segment barre = Segments(b.planche.surface)[0];
  EXPECT_NEAR(barre.fin.x - barre.debut.x, 2 * kHauteur, 1E-6);
}

TEST(ScaleBarPen, LeavesBlackInkAndAThinPen) {
  Planche p = PlancheCourante();
  p.surface.encre = kRouge;
  TraceEchelle(p.feuille, p.surface);
  EXPECT_EQ(p.surface.encre, kNoir);
  EXPECT_EQ(p.surface.epaisseur, 1);
}

} // namespace
} // namespace velmaris

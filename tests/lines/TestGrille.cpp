#include "lines/Grille.hpp"

#include "tests/lines/OutilsGrille.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velmaris {
namespace {

using namespace essais;

constexpr Couleur kFine = Rvb(220, 220, 220);
constexpr Couleur kForte = Rvb(150, 150, 150);

struct Bande {
  int zoom, pas, multiple;
};

/// Both ends of every band of zoom, with the minutes of its step and the multiple that is darker.
constexpr Bande kBandes[] = {{1, 1, 5},      {29, 1, 5},     {30, 5, 2},     {89, 5, 2},      {90, 10, 100},
                             {299, 10, 100}, {300, 30, 100}, {999, 30, 100}, {1000, 60, 100}, {5000, 60, 100}};

/// The fine lines, grey, of one direction.
std::vector<Segment> Fines(const Quadrillage &q, bool verticales) {
  std::vector<Segment> resultat;
  for (const Segment &s : Segments(q.planche.surface)) {
    if (s.plume.couleur != kNoir && (s.debut.x == s.fin.x) == verticales) {
      resultat.push_back(s);
    }
  }
  return resultat;
}

/// The degree lines, black, of one direction.
std::vector<Segment> Degres(const Quadrillage &q, bool verticales) {
  std::vector<Segment> resultat;
  for (const Segment &s : EnCouleur(q.planche.surface, kNoir)) {
    if ((s.debut.x == s.fin.x) == verticales) {
      resultat.push_back(s);
    }
  }
  return resultat;
}

TEST(FineGrid, EightyMeridiansStandToEachSideByTheStepOfTheZoom) {
  for (const Bande &b : kBandes) {
    for (const bool est : {false, true}) {
      const Quadrillage q = Quadrille(Position(45, 30, false, 5, 17, est), b.zoom);
      const Feuille &f = q.planche.feuille;
      auto lignes = Fines(q, true);
      ASSERT_EQ(lignes.size(), 161U);
      std::sort(lignes.begin(), lignes.end(), [](const Segment &g, const Segment &d) { return g.debut.x > d.debut.x; });
      const double m = est ? 17 : -17;
      for (int v = -80; v <= 80; ++v) {
        const Segment &s = lignes[static_cast<std::size_t>(v + 80)];
        const double x = f.CentreX - double{f.EchelleX} * m - double{f.EchelleX} * v * b.pas;
        EXPECT_NEAR(s.debut.x, x, 1E-6 * std::fabs(x) + 1E-6) << b.zoom << ' ' << v;
        EXPECT_DOUBLE_EQ(s.debut.y, kHauteur / 1.1);
        EXPECT_DOUBLE_EQ(s.fin.y, kHauteur / 14.4);
        EXPECT_EQ(s.plume, (Plume{v % b.multiple == 0 ? kForte : kFine, 1, Style::Plein})) << b.zoom << ' ' << v;
      }
    }
  }
}

TEST(FineGrid, SixtyParallelsStandToEachSideByTheStepOfTheZoom) {
  for (const Bande &b : kBandes) {
    for (const bool sud : {false, true}) {
      const Quadrillage q = Quadrille(Position(45, 31, sud, 5, 17, false), b.zoom);
      const Feuille &f = q.planche.feuille;
      auto lignes = Fines(q, false);
      ASSERT_EQ(lignes.size(), 121U);
      std::sort(lignes.begin(), lignes.end(), [](const Segment &g, const Segment &d) { return g.debut.y > d.debut.y; });
      for (int v = -60; v <= 60; ++v) {
        const Segment &s = lignes[static_cast<std::size_t>(v + 60)];
        const double y = f.CentreY + (sud ? -31 : 31) * double{f.EchelleY} - v * b.pas * double{f.EchelleY};
        EXPECT_NEAR(s.debut.y, y, 1E-6 * std::fabs(y) + 1E-6) << b.zoom << ' ' << v;
        EXPECT_EQ(s.debut.y, s.fin.y);
        EXPECT_EQ(s.plume, (Plume{v % b.multiple == 0 ? kForte : kFine, 1, Style::Plein})) << b.zoom << ' ' << v;
      }
    }
  }
}

TEST(FineGrid, EveryLineStandsOnAWholeStepOfItsCoordinate) {
  for (const Bande &b : kBandes) {
    for (const Observation &o : PositionsDEssai()) {
      const Quadrillage q = Quadrille(o, b.zoom);
      for (const Segment &s : Fines(q, true)) {
        EXPECT_NEAR(std::remainder(q.MinutesLongitude(s.debut.x), b.pas), 0.0, 1E-3) << EnMots(o, b.zoom);
      }
      for (const Segment &s : Fines(q, false)) {
        EXPECT_NEAR(std::remainder(q.MinutesLatitude(s.debut.y), b.pas), 0.0, 1E-3) << EnMots(o, b.zoom);
      }
    }
  }
}

TEST(FineGrid, TakesTheGridsColour) {
  Planche p = PlancheCourante();
  p.feuille.CentreX = 6000;
  p.feuille.CentreY = 4500;
  p.feuille.EchelleX = 100;
  p.feuille.EchelleY = 150;
  p.feuille.CouleurGrille = static_cast<float>(0x123456);
  TraceGrille(p.feuille, p.surface, p.observation);
  EXPECT_FALSE(EnCouleur(p.surface, 0x123456).empty());
  EXPECT_TRUE(EnCouleur(p.surface, kFine).empty());
}

TEST(DegreeLines, AreBlackAndTwoWideUnder800Miles) {
  for (const auto &[zoom, largeur] : {std::pair{10, 2}, {799, 2}, {800, 1}, {3000, 1}}) {
    const Quadrillage q = Quadrille(Position(45, 30, false, 5, 15, false), zoom);
    for (const bool verticales : {false, true}) {
      const auto lignes = Degres(q, verticales);
      ASSERT_FALSE(lignes.empty());
      for (const Segment &s : lignes) {
        EXPECT_EQ(s.plume, (Plume{kNoir, largeur, Style::Plein})) << zoom;
      }
    }
    EXPECT_EQ(q.planche.surface.epaisseur, 1);
  }
}

TEST(DegreeLines, AParallelRunsAcrossAndAMeridianFromFootToHead) {
  const Quadrillage q = Quadrille(Position(45, 30, false, 5, 15, false), 250);
  for (const Segment &s : Degres(q, false)) {
    EXPECT_EQ(s.debut.x, kLargeur);
    EXPECT_EQ(s.fin.x, 800.0);
    EXPECT_EQ(s.debut.y, s.fin.y);
  }
  for (const Segment &s : Degres(q, true)) {
    EXPECT_DOUBLE_EQ(s.debut.y, kHauteur / 1.1);
    EXPECT_DOUBLE_EQ(s.fin.y, kHauteur / 14.4);
  }
}

TEST(DegreeLines, ParallelsFillTheHalfHeightRoundedUpToAnEvenNumberOfDegrees) {
  for (const auto &[zoom, nombre] : {std::pair{10, 2}, {239, 2}, {240, 2}, {241, 4}, {480, 4}, {500, 6}, {3000, 26}}) {
    const Quadrillage q = Quadrille(Position(45, 30, false, 5, 15, false), zoom);
    EXPECT_EQ(Degres(q, false).size(), 2U * static_cast<unsigned>(nombre) + 1U) << zoom;
  }
}

TEST(DegreeLines, EveryWholeDegreeOnTheSheetHasItsLine) {
  for (const int zoom : {20, 60, 250, 500, 2000}) {
    for (const Observation &o : PositionsDEssai()) {
      const Quadrillage q = Quadrille(o, zoom);
      const auto place = [](const std::vector<double> &lieux, double minutes) {
        return std::any_of(lieux.begin(), lieux.end(), [&](double m) { return std::fabs(m - minutes) < 0.01; });
      };
      std::vector<double> latitudes;
      std::vector<double> longitudes;
      for (const Segment &s : Degres(q, false)) {
        latitudes.push_back(q.MinutesLatitude(s.debut.y));
      }
      for (const Segment &s : Degres(q, true)) {
        longitudes.push_back(q.MinutesLongitude(s.debut.x));
      }
      for (double l = std::ceil(q.MinutesLatitude(kHauteur) / 60); l <= q.MinutesLatitude(0) / 60; ++l) {
        EXPECT_TRUE(place(latitudes, l * 60)) << l << " at " << EnMots(o, zoom);
      }
      const double ouest = std::min(q.MinutesLongitude(0) / 60, q.longitude + 179);
      const double est = std::max(q.MinutesLongitude(kLargeur) / 60, q.longitude - 179);
      for (double l = std::ceil(est); l <= ouest; ++l) {
        EXPECT_TRUE(place(longitudes, l * 60)) << l << " at " << EnMots(o, zoom);
      }
    }
  }
}

TEST(DegreeLines, StandOnWholeDegrees) {
  for (const int zoom : {60, 500}) {
    for (const Observation &o : PositionsDEssai()) {
      const Quadrillage q = Quadrille(o, zoom);
      for (const Segment &s : Degres(q, false)) {
        EXPECT_NEAR(std::remainder(q.MinutesLatitude(s.debut.y), 60.0), 0.0, 1E-3) << EnMots(o, zoom);
      }
      for (const Segment &s : Degres(q, true)) {
        EXPECT_NEAR(std::remainder(q.MinutesLongitude(s.debut.x), 60.0), 0.0, 1E-3) << EnMots(o, zoom);
      }
    }
  }
}

TEST(DegreeLines, ALatitudePastThePoleKeepsItsMeridians) {
  const Quadrillage q = Quadrille(Position(120, 0, false, 5, 15, false), 250);
  ASSERT_LT(q.planche.feuille.EchelleX, 0.0F);
  EXPECT_FALSE(Degres(q, true).empty());
}

TEST(Grid, LeavesBlackInk) {
  for (const int zoom : {60, 500}) {
    EXPECT_EQ(Quadrille(Position(45, 30, false, 5, 15, false), zoom).planche.surface.encre, kNoir);
  }
}

TEST(Grid, FieldsOutOfAllMeasureEndAllTheSame) {
  for (const char *texte : {"1E30", "-1E30", "1E308", "-5", "400", "", "abc"}) {
    Observation o = Position(45, 30, false, 5, 15, false);
    o.latitudeDegres = texte;
    o.longitudeDegres = texte;
    Planche p = PlancheQuadrillee(Position(45, 30, false, 5, 15, false), 60);
    p.observation = o;
    NouvelleFeuille(p);
    EXPECT_GE(Segments(p.surface).size(), 161U + 121U) << texte;
    EXPECT_LT(p.surface.traces.size(), 5000U) << texte;
  }
}

} // namespace
} // namespace velmaris

#include "tests/shell/ciel/OutilsCiel.hpp"

#include <gmock/gmock.h>

/// What the mouse shows over the chart and its bodies.
namespace velmaris::essais {
namespace {

constexpr Couleur kVertEtoile = 0x00FF00;

class SourisCiel : public AvecCiel {
protected:
  SourisCiel() {
    Moment(2026, 6, 21, 23, 0, 0);
    Ouvre();
    Rafraichit();
  }
  bool Cadrans() const {
    EXPECT_EQ(c.PicAZ.visible, c.PicHE.visible);
    EXPECT_EQ(c.PicAZ.visible, c.Label35.visible);
    EXPECT_EQ(c.PicAZ.visible, c.Label36.visible);
    return c.PicAZ.visible;
  }
  /// The dials say this, through the captions.
  void CadransDisent(double az, double h) {
    EXPECT_TRUE(Cadrans());
    EXPECT_EQ(c.Label35.legende, "Azimut : " + Format(static_cast<float>(az), "###.00") + " °");
    EXPECT_EQ(c.Label36.legende, "Hauteur : " + Format(static_cast<float>(h), "###.00") + " °");
  }
  void CadransDisentLePoint(Point p) { CadransDisent(360 * p.x / W(), 90 - p.y / H() * 90); }
  std::string Textes3() const { return c.Bayer1.legende + "|" + c.Bayer2.legende + "|" + c.Label2.legende; }
  double LitAz(const Controle &astre) const { return 360 * Milieu(astre).x / W(); }
  bool Rouge(std::size_t i) const { return c.Laet[i].couleur == kRouge && c.Shet[i].bordure == kRouge; }
  bool Propre(std::size_t i) const {
    return c.Laet[i].couleur == static_cast<Couleur>(Val(c.Laet[i].etiquette)) &&
           c.Shet[i].bordure == c.Shet[i].couleur;
  }
};

TEST_F(SourisCiel, OverTheChartTheDialsShowAzimuthAndHeightUnderTheMouse) {
  ciel::Picture1_MouseMove(bureau, W() / 4, H() / 3);
  CadransDisent(90, 60);
  EXPECT_FALSE(c.picAZ.traces.empty());
  EXPECT_FALSE(c.picHE.traces.empty());
  EXPECT_TRUE(bureau.picAZ.effacements < 2) << "the main window has its own";
}

TEST_F(SourisCiel, OverATurnedChartTheDialsFollowTheTurn) {
  BougeCurseur(bureau, c.HScroll1, 100);
  ciel::Picture1_MouseMove(bureau, W() / 4, H() / 2);
  CadransDisent(270, 45);
  BougeCurseur(bureau, c.HScroll1, 0);
  ciel::Picture1_MouseMove(bureau, W(), 0);
  CadransDisent(360, 90);
}

TEST_F(SourisCiel, OverTheChartTheTextsAreEmptied) {
  ciel::Laet_MouseMove(bureau, Etoile("Vega"));
  ciel::Picture1_MouseMove(bureau, 10, 10);
  EXPECT_EQ(Textes3(), "||");
}

TEST_F(SourisCiel, OnTheEquatorialChartTheDialsHide) {
  Equatoriale();
  ciel::Picture1_MouseMove(bureau, 10, 10);
  EXPECT_FALSE(Cadrans());
  Horizontale();
  ciel::Picture1_MouseMove(bureau, 10, 10);
  EXPECT_TRUE(Cadrans());
  Equatoriale();
  ciel::Laet_MouseMove(bureau, 5);
  EXPECT_FALSE(Cadrans());
  EXPECT_NE(c.Bayer2.legende, "");
}

TEST_F(SourisCiel, OverAStarItsLetterConstellationAndNameAreTold) {
  ciel::Laet_MouseMove(bureau, Etoile("Vega"));
  EXPECT_EQ(Textes3(), "a|Lyr|Vega");
  const std::size_t sansNom = 246;
  ciel::Laet_MouseMove(bureau, static_cast<int>(sansNom));
  EXPECT_EQ(c.Label2.legende, "");
  EXPECT_EQ(c.Bayer2.legende, bureau.etoiles.EtoileBayer[sansNom].substr(2));
}

TEST_F(SourisCiel, OverAStarItsWholeConstellationLightsUp) {
  ciel::Laet_MouseMove(bureau, Etoile("Dubhe"));
  int allumees = 0;
  for (std::size_t j = 1; j <= 246; ++j) {
    const bool ourse = bureau.etoiles.EtoileBayer[j].ends_with("UMa");
    allumees += ourse ? 1 : 0;
    EXPECT_EQ(Rouge(j), ourse) << j;
    if (!ourse) {
      EXPECT_TRUE(Propre(j)) << j;
    }
  }
  EXPECT_GT(allumees, 7);
}

TEST_F(SourisCiel, TheNextStarPutsTheFirstConstellationOut) {
  ciel::Laet_MouseMove(bureau, Etoile("Dubhe"));
  ciel::Laet_MouseMove(bureau, Etoile("Vega"));
  EXPECT_TRUE(Rouge(Rang("Sulaphat")));
  EXPECT_TRUE(Propre(Rang("Dubhe")));
  EXPECT_EQ(c.Laet[Rang("Dubhe")].couleur, kVertEtoile) << "its own";
  EXPECT_NE(c.Shet[Rang("Dubhe")].bordure, kVertEtoile) << "its inside's colour until the next drawing";
}

TEST_F(SourisCiel, AStarWithoutABayerTextLightsAll) {
  c.Laet[7].infobulle.clear();
  ciel::Laet_MouseMove(bureau, 7);
  EXPECT_EQ(c.Bayer1.legende + c.Bayer2.legende, "");
  for (std::size_t j = 1; j <= 246; ++j) {
    EXPECT_TRUE(Rouge(j)) << j;
  }
}

TEST_F(SourisCiel, RedStaysOverTheChartAndGoesWithTheNextDrawing) {
  ciel::Laet_MouseMove(bureau, Etoile("Vega"));
  ciel::Picture1_MouseMove(bureau, 10, 10);
  EXPECT_TRUE(Rouge(Rang("Vega")));
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.Laet[Rang("Vega")].couleur, kVertEtoile);
  EXPECT_EQ(c.Shet[Rang("Vega")].bordure, kVertEtoile);
  EXPECT_EQ(c.Laet[Rang("Sulaphat")].couleur, kBlanc);
}

TEST_F(SourisCiel, TheLabelUnderTheMouseComesToTheFrontOnTheChartsBackground) {
  ciel::Laet_MouseMove(bureau, 40);
  EXPECT_EQ(c.pile.back(), 40U);
  EXPECT_EQ(c.etoileDevant, 40U);
  EXPECT_TRUE(c.Laet[40].opaque);
  EXPECT_EQ(c.Laet[40].fond, c.picture1.fond);
  EXPECT_EQ(c.pile.front(), 246U) << "the others went back one after the other";
  ciel::Laet_MouseMove(bureau, 1);
  EXPECT_EQ(c.pile.back(), 1U);
  EXPECT_EQ(c.pile.size(), 246U);
  EXPECT_FALSE(c.Laet[40].opaque);
}

TEST_F(SourisCiel, OverAStarTheDialsShowItsMark) {
  const std::size_t i = Rang("Vega");
  ciel::Laet_MouseMove(bureau, static_cast<int>(i));
  CadransDisentLePoint(Milieu(c.Shet[i]));
  const PaireX vu = Horizon(Equateur(i));
  EXPECT_EQ(c.Label36.legende, "Hauteur : " + Format(vu.droite, "###.00") + " °");
}

TEST_F(SourisCiel, OverAPlanetTheSunOrTheMoonTheirNameIsTold) {
  ciel::LaP_MouseMove(bureau, 2);
  EXPECT_EQ(Textes3(), "||Jupiter");
  CadransDisent(LitAz(c.LaP[2]), 90 - Milieu(c.LaP[2]).y / H() * 90);
  ciel::SOL_MouseMove(bureau);
  EXPECT_EQ(Textes3(), "||Soleil");
  CadransDisent(LitAz(c.SOL), 90 - Milieu(c.SOL).y / H() * 90);
  ciel::Lune_MouseMove(bureau);
  EXPECT_EQ(Textes3(), "||Lune");
  CadransDisent(LitAz(c.Lune), 90 - Milieu(c.Lune).y / H() * 90);
}

TEST_F(SourisCiel, AStarChosenInTheListIsShownAlone) {
  const auto &liste = c.List1.liste;
  const auto rang = std::find(liste.begin(), liste.end(), "Vega") - liste.begin();
  ciel::Laet_MouseMove(bureau, Etoile("Dubhe"));
  ChoisitLigne(bureau, c.List1, static_cast<int>(rang));
  for (std::size_t j = 1; j <= 246; ++j) {
    EXPECT_EQ(Rouge(j), j == Rang("Vega")) << j;
  }
  EXPECT_EQ(Textes3(), "a|Lyr|Vega");
  CadransDisentLePoint(Milieu(c.Shet[Rang("Vega")]));
  ciel::Picture1_MouseMove(bureau, 0, 0);
  c.List1.rang = -1;
  ciel::List1_Click(bureau, -1);
  EXPECT_EQ(Textes3(), "||") << "nothing chosen, nothing shown";
}

TEST_F(SourisCiel, NumbersThatAreNoStarsChangeNothing) {
  for (const int i : {-1, 0, 247}) {
    ciel::Laet_MouseMove(bureau, i);
    ciel::Laet_Click(bureau, i);
  }
  EXPECT_EQ(Textes3(), "||");
  EXPECT_EQ(bureau.premierPlan, kFenetreCiel);
}

} // namespace
} // namespace velmaris::essais

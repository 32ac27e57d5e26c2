#include "tests/shell/droites/OutilsDroites.hpp"

namespace velmaris::essais {
namespace {

class Estime : public QuatreDroites {
protected:
  void SetUp() override {
    DemarreSansCarte();
    TapeSoleil(kMatin);
    Intervalle(9, 0, 10, 0);
  }

  void Place(const std::string &latD, const std::string &latM, bool sud, const std::string &lonD,
             const std::string &lonM, bool est) {
    Visee v = kMatin;
    v.latD = latD;
    v.latM = latM;
    v.sud = sud;
    v.lonD = lonD;
    v.lonM = lonM;
    v.est = est;
    TapeSoleil(v);
  }

  /// Course and run, typed in that order and worked out.
  void Parcours(const std::string &route, const std::string &distance) {
    Tape(d.Text1, route);
    Tape(d.Text15, distance);
    ClicControle(bureau, d.Command15);
  }

  std::string Position() const { return d.LabLatEst.legende + " " + d.LabLonEst.legende; }
};

TEST_F(Estime, TheFieldEnteredLastIsBlueAndTheOtherBlack) {
  EntreChamp(bureau, d.Text2);
  EXPECT_EQ(d.Text2.couleur, kBleu);
  EXPECT_EQ(d.Text15.couleur, kNoir);
  EntreChamp(bureau, d.Text15);
  EXPECT_EQ(d.Text15.couleur, kBleu);
  EXPECT_EQ(d.Text2.couleur, kNoir);
  EntreChamp(bureau, d.Text1);
  EXPECT_EQ(d.Text15.couleur, kBleu);
}

TEST_F(Estime, SixKnotsForTwoHoursAndAHalfAreFifteenMiles) {
  Intervalle(9, 0, 11, 30);
  Route("090", "6");
  EXPECT_EQ(d.Text15.texte, "15");
  EXPECT_EQ(d.Text2.texte, "6");
}

TEST_F(Estime, AChangeOfTheBlueFieldWorksOutTheOtherAtOnce) {
  Intervalle(9, 0, 11, 30);
  Route("090", "6");
  EntreChamp(bureau, d.Text2);
  SaisitTexte(bureau, d.Text2, "8");
  EXPECT_EQ(d.Text15.texte, "20");
  EntreChamp(bureau, d.Text15);
  EXPECT_EQ(d.Text2.texte, "8") << "entering works nothing out";
  SaisitTexte(bureau, d.Text15, "25");
  EXPECT_EQ(d.Text2.texte, "10");
  EXPECT_EQ(d.Text15.texte, "25");
}

TEST_F(Estime, CalculWorksOutTheOtherFieldForANewInterval) {
  Route("090", "6");
  Intervalle(9, 0, 13, 0);
  EXPECT_EQ(d.Text15.texte, "6");
  ClicControle(bureau, d.Command15);
  EXPECT_EQ(d.Text15.texte, "24");
}

TEST_F(Estime, AnIntervalThatPassesMidnightIsCountedThroughIt) {
  Intervalle(23, 30, 0, 30);
  Route("000", "12");
  EXPECT_EQ(d.Text15.texte, "12");
  EXPECT_EQ(d.Command15.infobulle, "Temps route = 01:00:00");
}

TEST_F(Estime, TheToolTipOfCalculIsTheTimeUnderWay) {
  Intervalle(9, 5, 23, 58);
  Route("000", "1");
  EXPECT_EQ(d.Command15.infobulle, "Temps route = 14:53:00");
}

TEST_F(Estime, WithEqualHoursThePositionIsThePanelsAndTheFieldsStay) {
  Intervalle(9, 0, 9, 0);
  Route("045", "6");
  EXPECT_EQ(Position(), "N47.30 W005.10");
  EXPECT_EQ(d.Command15.infobulle, "Temps route = 00:00:00");
  EXPECT_EQ(d.Text15.texte, "");
  EXPECT_EQ(d.Text2.texte, "6");
  EXPECT_TRUE(d.Option1[4].actif);
}

TEST_F(Estime, ASpeedIsUsedWithItsFractionWhileTheDistanceShowsWhole) {
  Route("000", "5.5");
  EXPECT_EQ(d.Text15.texte, "6");
  EXPECT_NEAR(bureau.transports.LatEstimeTransport, 47.5 + 5.5 / 60, 1E-5);
}

TEST_F(Estime, ADistanceIsUsedWithItsFractionWhileTheSpeedShowsWhole) {
  Parcours("000", "5.5");
  EXPECT_EQ(d.Text2.texte, "6");
  EXPECT_NEAR(bureau.transports.LatEstimeTransport, 47.5 + 5.5 / 60, 1E-5);
  EntreChamp(bureau, d.Text2);
  ClicControle(bureau, d.Command15);
  EXPECT_EQ(d.Text15.texte, "6");
  EXPECT_NEAR(bureau.transports.LatEstimeTransport, 47.6, 1E-5) << "the whole speed shown is the given one now";
}

TEST_F(Estime, SixtyMilesNorthAreADegree) {
  Place("47", "35", false, "05", "10", false);
  Parcours("0", "60");
  EXPECT_EQ(Position(), "N48.35 W005.10");
}

TEST_F(Estime, MilesEastAreWidenedByTheDepartureLatitudesCosine) {
  Place("60", "00", false, "05", "00", false);
  Parcours("90", "30");
  EXPECT_EQ(Position(), "N60.00 W004.00");
  Parcours("270", "30");
  EXPECT_EQ(Position(), "N60.00 W006.00");
  Parcours("45", "60");
  EXPECT_NEAR(bureau.transports.LonEstimeTransport, 5 - std::sqrt(2.0), 1E-5) << "60 sin 45 over cos 60, not of 61";
}

TEST_F(Estime, TheEquatorAndGreenwichAreCrossed) {
  Place("00", "10", false, "00", "10", false);
  Parcours("180", "20");
  EXPECT_EQ(Position(), "S00.10 W000.10");
  Parcours("090", "20");
  EXPECT_EQ(Position(), "N00.10 E000.10");
}

TEST_F(Estime, LatitudeZeroIsSouthAndLongitudeZeroWest) {
  Place("00", "00", false, "00", "00", true);
  Parcours("0", "0");
  EXPECT_EQ(Position(), "S00.00 W000.00");
}

TEST_F(Estime, SouthAndEastDeparturesRunAsTheirSidesSay) {
  Place("33", "20", true, "151", "30", true);
  Parcours("0", "60");
  EXPECT_EQ(Position(), "S32.20 E151.30");
  Place("10", "00", true, "100", "00", true);
  Parcours("180", "30");
  EXPECT_EQ(Position(), "S10.30 E100.00");
}

TEST_F(Estime, MinutesOfACaptionRoundUpToSixty) {
  Parcours("0", "29.8");
  EXPECT_EQ(d.LabLatEst.legende, "N47.60");
}

TEST_F(Estime, MissingFieldsLeaveEverythingAsItIs) {
  const auto rien = [&](const char *quoi) {
    ClicControle(bureau, d.Command15);
    EXPECT_EQ(Position(), " ") << quoi;
    EXPECT_EQ(d.Command15.infobulle, "") << quoi;
    EXPECT_FALSE(d.Option1[4].actif) << quoi;
  };
  rien("nothing typed");
  Tape(d.Text1, "090");
  rien("neither speed nor distance");
  Tape(d.Text1, "");
  Tape(d.Text2, "6");
  rien("no course");
  for (Controle *liste : {&d.Combo1, &d.Combo2, &d.Combo3, &d.Combo4}) {
    const std::string avant = liste->texte;
    for (const char *texte : {"", "75", "x"}) {
      Tape(d.Text1, "090");
      PoseTexte(bureau, *liste, texte);
      rien(texte);
    }
    PoseTexte(bureau, *liste, avant);
  }
  EXPECT_EQ(d.Text15.texte, "");
  EXPECT_TRUE(boites.empty());
  ClicControle(bureau, d.Command15);
  EXPECT_NE(Position(), " ") << "with all of them it works";
}

TEST_F(Estime, AClickOnEitherCaptionHandsThePositionToTheSight) {
  for (Controle *legende : {&d.LabLatEst, &d.LabLonEst}) {
    Place("47", "35", false, "05", "10", false);
    Parcours("0", "60");
    Tape(d.Text15, "61");
    ASSERT_EQ(Position(), "N48.36 W005.10");
    EXPECT_EQ(legende->infobulle, "Cliquer pour utiliser cette position.");
    ClicControle(bureau, *legende);
    EXPECT_EQ(d.Text8.texte + " " + d.Text9.texte + " " + d.Text6.texte + " " + d.Text7.texte, "48 36 05 10");
    EXPECT_TRUE(d.OptN[0].choisi);
    EXPECT_TRUE(d.OptE[1].choisi);
    EXPECT_EQ(Position(), " ");
    EXPECT_FALSE(d.Option1[4].actif);
  }
}

TEST_F(Estime, TheHandedPositionKeepsItsSidesAndItsHundredOfDegrees) {
  Place("00", "10", false, "179", "50", true);
  Parcours("180", "20");
  ASSERT_EQ(Position(), "S00.10 E179.50");
  ClicControle(bureau, d.LabLonEst);
  EXPECT_EQ(d.Text8.texte + " " + d.Text9.texte + " " + d.Text6.texte + " " + d.Text7.texte, "00 10 179 50");
  EXPECT_TRUE(d.OptN[1].choisi);
  EXPECT_TRUE(d.OptE[0].choisi);
}

TEST_F(Estime, WithoutAPositionAClickOnTheCaptionsDoesNothing) {
  ClicControle(bureau, d.LabLatEst);
  EXPECT_EQ(d.Text8.texte + d.Text9.texte, "4730");
  d.LabLatEst.legende = "S12.34";
  ClicControle(bureau, d.LabLatEst);
  EXPECT_EQ(d.Text8.texte + d.Text9.texte, "4730") << "one caption alone isn't a position";
  EXPECT_EQ(d.LabLatEst.legende, "S12.34");
}

TEST_F(Estime, ARunFromAHandedPositionStartsThere) {
  Parcours("0", "60");
  ClicControle(bureau, d.LabLatEst);
  ClicControle(bureau, d.Command15);
  EXPECT_EQ(Position(), "N49.30 W005.10");
}

TEST_F(Estime, AChangeOfLanguageKeepsThePosition) {
  Parcours("0", "60");
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(Position(), "N48.30 W005.10");
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/bureau/OutilsBureau.hpp"

#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/ecran/Disposition.hpp"

#include <gmock/gmock.h>

namespace velmaris::essais {
namespace {

TEST_F(Programme, AFirstStartIsInTheSouthAndWestWithEmptyFieldsAndAllOptionsOn) {
  Demarre();
  EXPECT_TRUE(d.OptN[1].choisi && d.OptE[1].choisi);
  for (const Controle *champ : {&d.Text6, &d.Text7, &d.Text8, &d.Text9, &d.Text10, &d.Text11}) {
    EXPECT_EQ(champ->texte, "") << champ->nom;
  }
  EXPECT_EQ(bureau.feuille.Grille, 1);
  EXPECT_EQ(d.Check2.valeur, 1);
  EXPECT_TRUE(d.OpCarte[1].choisi);
  EXPECT_FALSE(d.OpCarte[0].choisi);
  for (const Controle &coche : d.Check1) {
    EXPECT_EQ(coche.valeur, 1);
  }
  EXPECT_EQ(bureau.feuille.Zoom, 200);
  EXPECT_EQ(d.Label32.legende, "Zoom : 200");
  EXPECT_EQ(bureau.FichierLangue, "\\FR.txt");
  EXPECT_TRUE(d.Option7[0].choisi && d.Option6[1].choisi && d.Option5[0].choisi && d.Option4[0].choisi);
  EXPECT_EQ(d.Text25.texte, "00");
  EXPECT_EQ(bureau.titre, "Velmaris 2009");
  EXPECT_TRUE(bureau.image1.traces.empty()) << "neither sheet nor chart is drawn at start";
  EXPECT_EQ(bureau.feuille.OrigineFeuille, kSansFeuille);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Programme, TheFieldsStartAtThePresentGmt) {
  Demarre();
  EXPECT_EQ(d.Text3.texte + ":" + d.Text4.texte + ":" + d.Text5.texte, "12:05:30");
  EXPECT_EQ(d.TDate[0].texte + d.TDate[1].texte + d.TDate[2].texte, "21062026");
  EXPECT_EQ(d.Combo1.texte + d.Combo2.texte + d.Combo3.texte + d.Combo4.texte, "12051205");
  EXPECT_EQ(d.Combo1.liste.size(), 24U);
  EXPECT_EQ(d.Combo4.liste.size(), 60U);
}

TEST_F(Programme, TheWindowFollowsTheScreen) {
  Demarre({15360, 11520, 768});
  EXPECT_EQ(bureau.hauteurFenetre, 11320);
  EXPECT_EQ(bureau.largeurFenetre, 15360);
  EXPECT_EQ(d.Image1.place.gauche, 50);
  EXPECT_DOUBLE_EQ(d.Image1.place.haut, 11320 / 10.88);
  EXPECT_DOUBLE_EQ(d.Image1.place.largeur, 15360 / 1.01);
  EXPECT_DOUBLE_EQ(d.Image1.place.hauteur, 11520 / 1.15 - 150);
  EXPECT_FLOAT_EQ(bureau.feuille.CentreX, static_cast<float>(15360 / 1.01 / 2));
}

TEST_F(Programme, PositionAndOptionsComeBackAfterAConfirmedExit) {
  Demarre();
  TapeVisee();
  ClicOption(bureau, d.OpCarte[0]);
  ClicCase(bureau, d.Check1[0]);
  ClicCase(bureau, d.Check2);
  ClicOption(bureau, d.Option4[1]);
  ClicControle(bureau, d.Image10[1]);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_TRUE(bureau.termine);
  EXPECT_EQ(boites.back().texte, "Do you want to leave Velmaris?");
  EXPECT_TRUE(boites.back().question);
  EXPECT_EQ(boites.back().titre, "Velmaris - Quit");

  Bureau suite;
  Branche(suite);
  Donnees_Charge(suite, {});
  const Donnees &s = suite.donnees;
  EXPECT_EQ(s.Text6.texte + " " + s.Text7.texte + " " + s.Text8.texte + " " + s.Text9.texte, "05 10 47 30");
  EXPECT_EQ(s.Text10.texte + " " + s.Text11.texte, "2,5 -1,0");
  EXPECT_TRUE(s.OptN[0].choisi && s.OptE[1].choisi);
  EXPECT_TRUE(s.OpCarte[0].choisi);
  EXPECT_FALSE(s.OpCarte[1].choisi);
  EXPECT_EQ(s.Check1[0].valeur, 0);
  EXPECT_EQ(s.Check1[2].valeur, 2);
  EXPECT_EQ(s.Check2.valeur, 0);
  EXPECT_TRUE(s.Option4[1].choisi);
  EXPECT_EQ(suite.FichierLangue, "\\EN.txt");
}

TEST_F(Programme, LoadedChartBoxesWinOverWhatTheChartKindSets) {
  {
    Valeurs valeurs(dossier.chemin() / "utilisateur" / "valeurs.sqlite");
    valeurs.SaveSetting("Velmaris", "Valeurs", "opCarte0", "-1");
    valeurs.SaveSetting("Velmaris", "Valeurs", "opCarte1", "False");
    valeurs.SaveSetting("Velmaris", "Valeurs", "C1 2", "0");
    valeurs.SaveSetting("Velmaris", "Valeurs", "T8", "5");
    valeurs.SaveSetting("Velmaris", "Valeurs", "Hem", "nord");
  }
  Demarre();
  EXPECT_TRUE(d.OpCarte[0].choisi) << "any number but 0 is true";
  EXPECT_EQ(d.Check1[2].valeur, 0);
  EXPECT_EQ(d.Text8.texte, "05");
  EXPECT_TRUE(d.OptN[1].choisi) << "only exactly Nord is the North";
}

TEST_F(Programme, FunctionKeysWorkAndTheSliderStaysWithinItsLimits) {
  DemarreSansCarte();
  EXPECT_TRUE(Donnees_KeyDown(bureau, 120));
  EXPECT_EQ(d.HScroll1.valeur, 4000);
  EXPECT_TRUE(Donnees_KeyDown(bureau, 121));
  EXPECT_TRUE(Donnees_KeyDown(bureau, 121));
  EXPECT_EQ(d.HScroll1.valeur, 2000) << "0 lies under the slider's least value";
  PoseValeur(bureau, d.HScroll1, 29000);
  Donnees_KeyDown(bureau, 120);
  EXPECT_EQ(d.HScroll1.valeur, 29000);
  temps.heure = 7;
  EXPECT_TRUE(Donnees_KeyDown(bureau, 114));
  EXPECT_EQ(d.Text3.texte, "07");
  EXPECT_TRUE(Donnees_KeyDown(bureau, 113));
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_FALSE(Donnees_KeyDown(bureau, 124)) << "there is no F13";
}

TEST_F(Programme, AFailureUnderAFunctionKeyIsPassedOverAndUnderAButtonIsNot) {
  DemarreSansCarte();
  TapeVisee();
  ClicOption(bureau, d.Option7[2]);
  ChoisitLigne(bureau, d.Combo7, 0);
  Tape(d.Text10, ""); // no height of eye: a planet's sight can't be reduced
  ClicOption(bureau, d.Option1[0]);
  EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 4)) << "stored";
  EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 4)) << "shown, which fails";
  EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 8));
  EXPECT_EQ(bureau.feuille.Zoom, 400) << "what came before the failure stands";
  EXPECT_THAT(boites, ::testing::IsEmpty());
  EXPECT_EQ(NumeroErreur([this] { ClicControle(bureau, d.Droite[0]); }), 13);
}

TEST_F(Programme, TheTitleTellsLocalTimeGmtAndFile) {
  Demarre();
  Timer1_Tick(bureau);
  EXPECT_EQ(bureau.titre, "  sunday   21   month6   2026   -  heure locale :  14:05:30    ~~~   21/06/2026 12:05:30   "
                          "GMT    ~~~   Fichier : sans nom");
}

TEST_F(Programme, AHiddenSunModuleIsNotKeptUpWithTheClock) {
  Demarre();
  const std::string avant = d.Label35.legende;
  temps.heure = 18;
  Timer1_Tick(bureau);
  EXPECT_EQ(d.Label35.legende, avant);
  ClicControle(bureau, d.Command7);
  const std::string ouvert = d.Label35.legende;
  EXPECT_NE(ouvert, avant) << "it opens on the present place";
  temps.heure = 19;
  Timer1_Tick(bureau);
  EXPECT_NE(d.Label35.legende, ouvert);
  EXPECT_TRUE(d.Label64.legende.starts_with("N 23.26"));
}

TEST_F(Programme, TheSunsPlaceWithoutDrawingLeavesThePanelAlone) {
  Demarre();
  const PointSolaire point = bureau.soleil;
  const std::string az = d.Label35.legende;
  const auto traces = bureau.picAZ.effacements;
  temps.heure = 3;
  PosSoleil(bureau, false, true);
  EXPECT_EQ(bureau.soleil.LonSoleil, point.LonSoleil);
  EXPECT_EQ(d.Label35.legende, az);
  EXPECT_EQ(bureau.picAZ.effacements, traces);
}

TEST_F(Programme, TheFlagThatStaysIsTheLanguageThatCanBeChosen) {
  Demarre();
  EXPECT_FALSE(d.Image10[0].visible);
  EXPECT_TRUE(d.Image10[1].visible);
  ClicControle(bureau, d.Image10[1]);
  EXPECT_TRUE(d.Image10[0].visible);
  EXPECT_FALSE(d.Image10[1].visible);
  EXPECT_EQ(Reglage("Langue"), "1");
  EXPECT_EQ(d.Command2.legende, "Reduce");
  EXPECT_EQ(bureau.TitreFichier, "unnamed");
}

TEST_F(Programme, ALowScreenTakesTheCompactLayout) {
  Demarre({15360, 9000, 600});
  EXPECT_EQ(d.Command1.image + d.Command2.image, "");
  EXPECT_FALSE(d.Label18.visible || d.Label20.visible);
  EXPECT_TRUE(d.Label72.visible);
  EXPECT_EQ(d.Label72.legende, "In\nAz");
  EXPECT_EQ(d.Affichage_Intercept.place.haut, 7000);
  EXPECT_EQ(d.Affichage_Azimuth.place.haut, 7300);
  EXPECT_EQ(d.Affichage_Azimuth.place.hauteur, 300);
  EXPECT_EQ(d.Affichage_Intercept.taille, 10);
  EXPECT_EQ(d.Frame6.place.haut, 5800);
  EXPECT_EQ(d.Frame17.place.haut, 4050);
  EXPECT_EQ(d.Text3.taille, 8);
  EXPECT_LE(d.Frame7.place.haut + d.Frame7.place.hauteur, bureau.hauteurFenetre);
}

TEST_F(Programme, ScreensFromSevenHundredPixelsKeepTheFullLayout) {
  Demarre({15360, 10500, 700});
  EXPECT_FALSE(d.Label72.visible);
}

} // namespace
} // namespace velmaris::essais

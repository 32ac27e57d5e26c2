#include "tests/shell/bureau/OutilsBureau.hpp"

namespace velmaris::essais {
namespace {

TEST_F(Programme, OnlyTheSightModuleShowsAtStart) {
  Demarre();
  for (const int numero : {1, 2, 3, 4, 8, 9, 10}) {
    EXPECT_FALSE(Module(d, numero)->visible) << numero;
  }
  EXPECT_TRUE(d.Frame7.visible && d.Frame3.visible);
  EXPECT_FALSE(d.Command8.visible);
  EXPECT_EQ(Module(d, 5), nullptr);
  EXPECT_EQ(Module(d, 6), nullptr);
}

TEST_F(Programme, ModulesLieAtTheirDefaultPlaces) {
  EXPECT_EQ(d.Frame1.place, (Place{13035, 4740, 2100, 3600}));
  EXPECT_EQ(d.Frame2.place, (Place{6450, 1035, 5025, 4320}));
  EXPECT_EQ(d.Frame9.place, (Place{9270, 8310, 2610, 1890}));
  EXPECT_EQ(d.Frame4.place, (Place{3030, 5370, 3420, 2685}));
  EXPECT_EQ(d.Frame7.place, (Place{0, 1050, 3030, 9615}));
  EXPECT_EQ(d.Frame8.place, (Place{11475, 3450, 3690, 2280}));
  EXPECT_EQ(d.FOptionCarte.place, (Place{11475, 1050, 3690, 2400}));
  EXPECT_EQ(d.Frame10.place, (Place{3030, 1050, 3420, 4320}));
  EXPECT_EQ(d.Frame3.place, (Place{20, 20, 15885, 1035}));
}

TEST_F(Programme, AClickTakesAModuleAndASecondClickSetsItDownWhereItLies) {
  Demarre();
  ClicControle(bureau, d.Frame7);
  EXPECT_EQ(bureau.ModuleDeplace, 7);
  EXPECT_TRUE(d.Label62.visible);
  EXPECT_EQ(d.Label62.place.gauche, 8300);
  EXPECT_EQ(d.Label62.place.haut, 5900);
  Image1_MouseMove(bureau, false, 5000, 3000);
  EXPECT_EQ(d.Frame7.place.gauche, 0) << "only with the left button held";
  Image1_MouseMove(bureau, true, 5000, 3000);
  EXPECT_EQ(d.Frame7.place, (Place{5000, 3000, 3030, 9615}));
  EXPECT_EQ(d.Label62.place.gauche, 3300);
  EXPECT_EQ(d.Label62.place.haut, 2200);
  ClicControle(bureau, d.Frame7);
  EXPECT_EQ(bureau.ModuleDeplace, 0);
  EXPECT_FALSE(d.Label62.visible);
  Image1_MouseMove(bureau, true, 1, 1);
  EXPECT_EQ(d.Frame7.place.gauche, 5000);
}

TEST_F(Programme, AClickOnAnotherModuleTakesThatOne) {
  Demarre();
  ClicControle(bureau, d.Frame7);
  d.Frame8.visible = true;
  ClicControle(bureau, d.PicAZ);
  EXPECT_EQ(bureau.ModuleDeplace, 8);
  ClicControle(bureau, d.PicHE);
  EXPECT_EQ(bureau.ModuleDeplace, 0);
  d.Frame9.visible = true;
  ClicControle(bureau, d.Label70[4]);
  EXPECT_EQ(bureau.ModuleDeplace, 3);
}

TEST_F(Programme, AClosePictureHidesItsModuleAndLetsGoOfAnyOther) {
  Demarre();
  const std::array<std::pair<Controle *, int>, 8> fermetures = {{{&d.Image4, 1},
                                                                 {&d.Image3, 2},
                                                                 {&d.Image9, 3},
                                                                 {&d.Image5, 4},
                                                                 {&d.Image6, 7},
                                                                 {&d.Image8, 8},
                                                                 {&d.Image7, 9},
                                                                 {&d.Image2, 10}}};
  for (const auto &[image, numero] : fermetures) {
    Module(d, numero)->visible = true;
    bureau.ModuleDeplace = 7;
    d.Label62.visible = true;
    ClicControle(bureau, *image);
    EXPECT_FALSE(Module(d, numero)->visible) << image->nom;
    EXPECT_EQ(bureau.ModuleDeplace, 0);
    EXPECT_FALSE(d.Label62.visible);
  }
}

TEST_F(Programme, ClosingModulesTakesWhatGoesWithThem) {
  Demarre();
  d.Frame9.visible = true;
  ClicControle(bureau, d.Image6);
  EXPECT_FALSE(d.Frame9.visible);
  d.Soleil.place.gauche = 100;
  ClicControle(bureau, d.Image8);
  EXPECT_EQ(d.Soleil.place.gauche, -2000);
  ClicControle(bureau, d.Command23);
  EXPECT_TRUE(d.Command8.visible);
  ClicControle(bureau, d.Image2);
  EXPECT_FALSE(d.Command8.visible);
}

TEST_F(Programme, MemoireShowsExactlyWhileTheMultipleLinesShow) {
  Demarre();
  ClicControle(bureau, d.Command23);
  EXPECT_TRUE(d.Frame10.visible && d.Command8.visible);
  ClicControle(bureau, d.Command23);
  EXPECT_FALSE(d.Frame10.visible || d.Command8.visible);
}

TEST_F(Programme, HidingTheSightHidesItsDetails) {
  Demarre();
  d.Frame9.visible = true;
  ClicControle(bureau, d.Command20);
  EXPECT_FALSE(d.Frame7.visible || d.Frame9.visible);
  ClicControle(bureau, d.Command20);
  EXPECT_TRUE(d.Frame7.visible);
  EXPECT_FALSE(d.Frame9.visible);
}

TEST_F(Programme, TheChartOptionsLieUnderTheSunModuleWhileBothShow) {
  Demarre();
  ClicControle(bureau, d.Command21);
  EXPECT_EQ(d.FOptionCarte.place.haut, 1080);
  ClicControle(bureau, d.Command7);
  EXPECT_EQ(d.Frame8.place.haut, 1080);
  EXPECT_EQ(d.FOptionCarte.place.haut, 2280 + 1080);
  d.Soleil.place.gauche = 5;
  ClicControle(bureau, d.Command7);
  EXPECT_EQ(d.FOptionCarte.place.haut, 1080);
  EXPECT_EQ(d.Soleil.place.gauche, -2000);
  ClicControle(bureau, d.Command7);
  ClicControle(bureau, d.Command21);
  ClicControle(bureau, d.Command21);
  EXPECT_EQ(d.FOptionCarte.place.haut, 3370) << "opened while the Sun module shows";
}

TEST_F(Programme, DeadReckoningBringsTheMultipleLinesOverIt) {
  Demarre();
  d.Frame4.place.gauche = 5000;
  d.Frame4.place.haut = 6000;
  ClicControle(bureau, d.Command22);
  EXPECT_TRUE(d.Frame4.visible && d.Frame10.visible && d.Command8.visible);
  EXPECT_EQ(d.Frame10.place.gauche, 5000);
  EXPECT_EQ(d.Frame10.place.haut, 6000 - 4320);
  ClicControle(bureau, d.Command22);
  EXPECT_FALSE(d.Frame4.visible);
  EXPECT_TRUE(d.Frame10.visible);
}

TEST_F(Programme, CoursesPutTheSightAwayAndTheMultipleLinesBesideThem) {
  Demarre();
  d.Frame9.visible = true;
  d.Frame2.place.gauche = 7000;
  ClicControle(bureau, d.Command9);
  EXPECT_TRUE(d.Frame2.visible && d.Frame10.visible && d.Command8.visible);
  EXPECT_FALSE(d.Frame7.visible || d.Frame9.visible);
  EXPECT_EQ(d.Frame10.place.gauche, 7000 - 3420);
  EXPECT_EQ(d.Frame10.place.haut, 1035);
}

TEST_F(Programme, DetailsWaitForAFirstReductionAndAlignWithTheFootOfTheSight) {
  Demarre();
  bureau.ModuleDeplace = 7;
  ClicControle(bureau, d.Command26);
  EXPECT_FALSE(d.Frame9.visible);
  EXPECT_EQ(bureau.ModuleDeplace, 0);
  TapeVisee();
  Calcule();
  d.Frame7.place.gauche = 400;
  ClicControle(bureau, d.Command26);
  EXPECT_TRUE(d.Frame9.visible);
  EXPECT_EQ(d.Frame9.place.gauche, 3430);
  EXPECT_EQ(d.Frame9.place.haut, 1050 + 9615 - 1890);
  ClicControle(bureau, d.Command26);
  EXPECT_FALSE(d.Frame9.visible);
}

TEST_F(Programme, AllModulesCanBePutAwayAtOnce) {
  Demarre();
  ClicControle(bureau, d.Command23);
  ClicControle(bureau, d.Command7);
  bureau.donnees.Label62.visible = true;
  PU_Clear_Click(bureau, -1);
  for (const int numero : {1, 2, 3, 4, 7, 8, 9, 10}) {
    EXPECT_FALSE(Module(d, numero)->visible) << numero;
  }
  EXPECT_FALSE(d.Label62.visible || d.Command8.visible);
  EXPECT_EQ(d.Frame10.place.haut, 1215);
  EXPECT_EQ(d.Soleil.place.gauche, -2000);
}

TEST_F(Programme, TheWholeChartGreysIslandsAndLakes) {
  Demarre();
  ClicOption(bureau, d.OpCarte[0]);
  EXPECT_EQ(d.Check1[2].valeur, 2);
  EXPECT_EQ(d.Check1[3].valeur, 2);
  EXPECT_EQ(d.Check1[0].valeur, 1);
  ClicOption(bureau, d.OpCarte[1]);
  EXPECT_EQ(d.Check1[2].valeur, 1);
  EXPECT_EQ(d.Check1[3].valeur, 1);
}

TEST_F(Programme, AGreyedBoxIsClearedByAClick) {
  Demarre();
  d.Check1[2].valeur = 2;
  ClicCase(bureau, d.Check1[2]);
  EXPECT_EQ(d.Check1[2].valeur, 0);
  ClicCase(bureau, d.Check1[2]);
  EXPECT_EQ(d.Check1[2].valeur, 1);
}

TEST_F(Programme, TheSunsMarkLiesAtTheSubSolarPointOfTheSheetOrOutOfView) {
  Demarre();
  EXPECT_EQ(d.Soleil.place.gauche, -2000) << "no sheet";
  bureau.soleil = {23.0F, -3.0F};
  bureau.feuille.OrigineFeuille = {23.0F, -3.0F};
  bureau.feuille.EchelleX = bureau.feuille.EchelleY = 10.0F;
  PlaceMarqueSoleil(bureau);
  EXPECT_NEAR(d.Soleil.place.gauche + d.Soleil.place.largeur / 2, bureau.image1.largeur / 2, 1);
  EXPECT_NEAR(d.Soleil.place.haut + d.Soleil.place.hauteur / 2, bureau.image1.hauteur / 2, 1);
  bureau.soleil.LatSoleil = -60.0F;
  PlaceMarqueSoleil(bureau);
  EXPECT_EQ(d.Soleil.place.gauche, -2000);
}

TEST_F(Programme, ADisabledOrHiddenControlDoesNothing) {
  DemarreSansCarte();
  d.Command6.actif = false;
  TapeVisee();
  Calcule();
  ClicControle(bureau, d.Command6);
  EXPECT_FALSE(bureau.image1.traces.empty());
  ClicOption(bureau, d.Option1[4]);
  EXPECT_TRUE(d.Option1[2].choisi) << "no point of dead reckoning yet";
  ClicControle(bureau, d.Command8);
  EXPECT_TRUE(boites.empty());
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/carte/OutilsSouris.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris::essais {
namespace {

TEST_F(Souris, TheLeftButtonOpensTheMenuWithTheModulesThatShowMarked) {
  ClicControle(bureau, d.Command21);
  ClicControle(bureau, d.Command23);
  ClicGauche(3000, 4000);
  EXPECT_EQ(bureau.menu, &d.PopUp);
  EXPECT_EQ(bureau.souris.ClicX, 3000.0F);
  EXPECT_EQ(bureau.souris.ClicY, 4000.0F);
  EXPECT_EQ(d.PU_DM.valeur, 1);
  EXPECT_EQ(d.PU_D.valeur, 1);
  EXPECT_EQ(d.PU_S.valeur, 0);
  EXPECT_EQ(d.PU_C.valeur, 1);
  EXPECT_EQ(d.PU_E.valeur, 0);
  EXPECT_EQ(d.PU_Caps.valeur, 0);
  EXPECT_EQ(d.PU_Distance.valeur, 0);
  EXPECT_EQ(d.PU_Coord.valeur, 0);
}

TEST_F(Souris, EachMarkFollowsItsModule) {
  const std::pair<Controle *, Controle *> marques[] = {{&d.PU_DM, &d.Frame10}, {&d.PU_D, &d.Frame7},
                                                       {&d.PU_S, &d.Frame8},   {&d.PU_C, &d.FOptionCarte},
                                                       {&d.PU_E, &d.Frame4},   {&d.PU_Caps, &d.Frame2}};
  for (const auto &[entree, module] : marques) {
    for (const bool visible : {true, false}) {
      module->visible = visible;
      ClicGauche(1, 1);
      EXPECT_EQ(entree->valeur, visible ? 1 : 0) << entree->nom;
    }
  }
}

TEST_F(Souris, TheMenuOpensInDistanceModeTooAndNeverByTheRightButton) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(3000, 4000);
  EXPECT_EQ(bureau.menu, nullptr);
  ClicGauche(3000, 4000);
  EXPECT_EQ(bureau.menu, &d.PopUp);
  EXPECT_EQ(d.PU_Distance.valeur, 1);
  bureau.menu = nullptr;
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(3000, 4000);
  EXPECT_EQ(bureau.menu, nullptr);
}

TEST_F(Souris, WithAModuleHeldTheLeftButtonMovesItAndOpensNoMenu) {
  SaisitModule(bureau, 7);
  ClicGauche(3000, 4000);
  EXPECT_EQ(bureau.menu, nullptr);
  Image1_MouseMove(bureau, true, 3000, 4000);
  EXPECT_EQ(d.Frame7.place.gauche, 3000);
  Image1_MouseMove(bureau, false, 5000, 4000);
  EXPECT_EQ(d.Frame7.place.gauche, 3000) << "only with the button down";
  EXPECT_TRUE(d.Label62.visible);
  Image1_MouseUp(bureau, BoutonSouris::Gauche);
  EXPECT_FALSE(d.Label62.visible);
}

TEST_F(Souris, TheEntriesOfTheMenuStandInTheirOrderBetweenTheirSeparators) {
  std::vector<std::string> ordre;
  for (const Controle *c : ControlesDe(bureau, kFenetreDonnees)) {
    if (c->parent == "PopUp") {
      ordre.push_back(c->genre == Genre::Separateur ? "-" : c->nom);
    }
  }
  EXPECT_EQ(ordre, (std::vector<std::string>{
                       "PU_Carte",   "-",          "PU_Centre",     "-",         "PU_Distance", "PU_Coord",
                       "-",          "PU_Modules", "PU_Clear",      "-",         "PU_Copier",   "PU_Image",
                       "-",          "PU_Exit",    "PU_Apropos",    "PU_Annule", "PU_Retablit", "PU_Complements",
                       "PU_Terres",  "PU_Bouts",   "PU_Crepuscule", "PU_Nuit",   "PU_Taille",   "PU_PleinEcran",
                       "PU_Secours", "-",          "PU_Quitter"}));
}

TEST_F(Souris, UndoAndRedoAreGreyInTheMenuWhileThereIsNothingForThem) {
  Image1_MouseDown(bureau, BoutonSouris::Gauche, 5000, 4000);
  EXPECT_FALSE(d.PU_Annule.actif);
  EXPECT_FALSE(d.PU_Retablit.actif);
  Tape(d.Text3, "01");
  ClicControle(bureau, d.Command1); // "Top" fills the time
  Image1_MouseDown(bureau, BoutonSouris::Gauche, 5000, 4000);
  EXPECT_TRUE(d.PU_Annule.actif);
  EXPECT_FALSE(d.PU_Retablit.actif);
  ClicControle(bureau, d.PU_Annule);
  Image1_MouseDown(bureau, BoutonSouris::Gauche, 5000, 4000);
  EXPECT_FALSE(d.PU_Annule.actif);
  EXPECT_TRUE(d.PU_Retablit.actif);
}

TEST_F(Souris, TheEntriesOfModulesDoWhatTheirButtonsDo) {
  const std::pair<Controle *, Controle *> entrees[] = {{&d.PU_DM, &d.Frame10}, {&d.PU_D, &d.Frame7},
                                                       {&d.PU_S, &d.Frame8},   {&d.PU_C, &d.FOptionCarte},
                                                       {&d.PU_E, &d.Frame4},   {&d.PU_Caps, &d.Frame2}};
  for (const auto &[entree, module] : entrees) {
    const bool avant = module->visible;
    ClicControle(bureau, *entree);
    EXPECT_NE(module->visible, avant) << entree->nom;
    ClicControle(bureau, *entree);
    EXPECT_EQ(module->visible, avant) << entree->nom;
  }
}

TEST_F(Souris, TheRescuedSightCanBeOpenedFromTheMenuWhileThereIsOne) {
  ClicGauche(3000, 4000);
  EXPECT_FALSE(d.PU_Secours.actif);
  Pose(bureau.dossiers.utilisateur / "secours.LoP", "12\r\n");
  ClicGauche(3000, 4000);
  EXPECT_TRUE(d.PU_Secours.actif);
}

TEST_F(Souris, ExitDoesNothingQuitterAsksAndTheChartEntryDrawsIt) {
  const std::size_t avant = bureau.image1.traces.size();
  ClicControle(bureau, d.PU_Exit);
  EXPECT_TRUE(boites.empty());
  EXPECT_EQ(bureau.image1.traces.size(), avant);
  ClicControle(bureau, d.PU_Quitter);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(bureau.QuitterRefuse, -1);
  ClicControle(bureau, d.PU_Carte);
  EXPECT_GT(bureau.image1.traces.size(), avant);
}

TEST_F(Souris, PuttingAllModulesAwayEndsTheDistanceMode) {
  ClicControle(bureau, d.PU_Distance);
  ClicControle(bureau, d.PU_Clear);
  EXPECT_EQ(bureau.souris.ModeDistance, 0);
  EXPECT_EQ(d.PU_Distance.valeur, 0);
  EXPECT_EQ(d.Image1.pointeur, Pointeur::Normal);
  EXPECT_FALSE(d.Frame1.visible);
  EXPECT_FALSE(d.Frame7.visible);
}

TEST_F(Souris, DistanceShowsItsModuleAndTheCrossAndHidesThemAgain) {
  ClicControle(bureau, d.Command21);
  for (Controle *bouton : {&d.Command24, &d.PU_Distance}) {
    ClicControle(bureau, *bouton);
    EXPECT_NE(bureau.souris.ModeDistance, 0);
    EXPECT_TRUE(d.Frame1.visible);
    EXPECT_EQ(d.Image1.pointeur, Pointeur::Croix);
    ClicControle(bureau, *bouton);
    EXPECT_EQ(bureau.souris.ModeDistance, 0);
    EXPECT_FALSE(d.Frame1.visible);
    EXPECT_EQ(d.Image1.pointeur, Pointeur::Normal);
  }
}

TEST_F(Souris, TheClosePictureOfTheModuleEndsTheDistanceMode) {
  ClicControle(bureau, d.PU_Distance);
  ClicControle(bureau, d.Image4);
  EXPECT_EQ(bureau.souris.ModeDistance, 0);
  EXPECT_EQ(d.PU_Distance.valeur, 0);
  EXPECT_EQ(d.Image1.pointeur, Pointeur::Normal);
  EXPECT_FALSE(d.Frame1.visible);
}

TEST_F(Souris, CoordinatesFollowThePointerOnItsFreeSide) {
  ClicControle(bureau, d.PU_Coord);
  EXPECT_TRUE(d.LabC.visible);
  EXPECT_EQ(d.PU_Coord.valeur, 1);
  Image1_MouseMove(bureau, false, W / 4, 3000);
  EXPECT_DOUBLE_EQ(d.LabC.place.gauche, W / 4 + W / 30);
  EXPECT_DOUBLE_EQ(d.LabC.place.haut, 2920);
  Image1_MouseMove(bureau, false, W * 3 / 4, 3000);
  EXPECT_DOUBLE_EQ(d.LabC.place.gauche, W * 3 / 4 - W / 30 - d.LabC.place.largeur);
  const Point place = PlaceSurFeuille(bureau.feuille, 48.25, 4.5);
  Image1_MouseMove(bureau, false, place.x, place.y);
  EXPECT_EQ(d.LabC.legende, "N48.15   W04.30");
  ClicControle(bureau, d.Command21);
  ClicControle(bureau, d.Command25);
  EXPECT_FALSE(d.LabC.visible);
  EXPECT_EQ(d.PU_Coord.valeur, 0);
  Image1_MouseMove(bureau, false, 0, 0);
  EXPECT_EQ(d.LabC.legende, "N48.15   W04.30") << "it no longer follows";
}

TEST_F(Souris, OverTheWholeWorldCoordinatesAreOnTheWorldsScales) {
  ClicControle(bureau, d.Command6);
  OuvreCartes(bureau);
  ClicControle(bureau, d.PU_Coord);
  Image1_MouseMove(bureau, false, W / 2 - 60 * 10 * std::sqrt(0.5), H / 2 - 60 * 20.5);
  EXPECT_EQ(d.LabC.legende, "N20.30   W10.00");
}

TEST_F(Souris, BeforeAFirstDrawingThereAreNoCoordinatesAndNoLegs) {
  Bureau neuf;
  Branche(neuf);
  Donnees_Charge(neuf, {});
  ClicControle(neuf, neuf.donnees.PU_Coord);
  ClicControle(neuf, neuf.donnees.PU_Distance);
  Image1_MouseMove(neuf, false, 3000, 3000);
  EXPECT_EQ(neuf.donnees.LabC.legende, "");
  Image1_MouseDown(neuf, BoutonSouris::Droit, 3000, 3000);
  EXPECT_EQ(neuf.souris.DebutX, 0.0F);
  EXPECT_TRUE(neuf.image1.traces.empty());
}

TEST_F(Souris, ASurfaceWithoutWidthHasNoSideForTheCoordinates) {
  ClicControle(bureau, d.PU_Coord);
  const double gauche = d.LabC.place.gauche;
  bureau.image1.largeur = 0;
  Image1_MouseMove(bureau, false, W / 4, 3000);
  EXPECT_EQ(d.LabC.place.gauche, gauche);
  EXPECT_EQ(d.LabC.legende, "");
}

TEST_F(Souris, TheFirstRightClickSetsTheStartAndNoLineOfTheListArises) {
  ClicControle(bureau, d.PU_Distance);
  const std::size_t avant = bureau.image1.traces.size();
  ClicDroit(5000, 5000);
  EXPECT_EQ(bureau.souris.DebutX, 5000.0F);
  EXPECT_EQ(bureau.souris.DebutY, 5000.0F);
  EXPECT_EQ(Cercles(bureau.image1).back().centre, (Point{5000, 5000}));
  EXPECT_GT(bureau.image1.traces.size(), avant);
  EXPECT_TRUE(d.List1.liste.empty());
  EXPECT_EQ(d.Label15.legende, "0");
  EXPECT_EQ(d.Label56.legende, "");
}

TEST_F(Souris, MovingMeasuresTheLegAndItsCourse) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 5000);
  Image1_MouseMove(bureau, false, 5000 + Unites(30), 5000 - Unites(40));
  EXPECT_EQ(d.Label56.legende, "50");
  EXPECT_EQ(d.Label17.legende, "37") << "36.87 degrees";
  EXPECT_EQ(bureau.souris.DistanceMilles, 50);
  ASSERT_TRUE(BrancheEnCours(bureau));
  EXPECT_EQ(BrancheEnCours(bureau)->debut, (Point{5000, 5000}));
}

TEST_F(Souris, LegsChainAndTheListTellsLegTotalAndCourse) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  ClicDroit(5000 + Unites(30), 8000 - Unites(40));
  ClicDroit(5000 + Unites(30), 8000 - Unites(47));
  EXPECT_EQ(d.List1.liste, (std::vector<std::string>{" 050  :  050  :  037 °", " 007  :  057  :  000 °"}));
  EXPECT_EQ(d.Label15.legende, "57");
  std::vector<Polyligne> branches;
  for (const Polyligne &ligne : TracesDe<Polyligne>(bureau.image1)) {
    if (ligne.plume.couleur == kMagenta && ligne.plume.style == Style::TiretPoint) {
      branches.push_back(ligne);
    }
  }
  ASSERT_EQ(branches.size(), 2U);
  EXPECT_EQ(branches[0].points.front(), (Point{5000, 8000}));
  EXPECT_EQ(branches[0].points.back(), branches[1].points.front());
}

TEST_F(Souris, OnlyTheRightButtonEndsALeg) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  Image1_MouseMove(bureau, false, 5000 + Unites(30), 8000 - Unites(40));
  const std::vector<Trace> avant = bureau.image1.traces;
  for (const BoutonSouris bouton : {BoutonSouris::Gauche, BoutonSouris::Autre}) {
    d.Label62.visible = true;
    Image1_MouseDown(bureau, bouton, 5000 + Unites(30), 8000 - Unites(40));
    Image1_MouseUp(bureau, bouton);
    EXPECT_TRUE(d.List1.liste.empty());
    EXPECT_EQ(d.Label15.legende, "0") << "the total is that of the right clicks";
    EXPECT_EQ(bureau.souris.DebutX, 5000.0F);
    EXPECT_EQ(bureau.image1.traces, avant);
    EXPECT_FALSE(d.Label62.visible) << "the help hides with any button";
  }
  ClicDroit(5000 + Unites(30), 8000 - Unites(40));
  EXPECT_EQ(d.List1.liste, (std::vector<std::string>{" 050  :  050  :  037 °"}));
}

TEST_F(Souris, MovingAModuleInDistanceModeAddsNoLeg) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  ClicDroit(5000 + Unites(30), 8000 - Unites(40));
  SaisitModule(bureau, 7);
  ClicGauche(9000, 9000);
  Image1_MouseMove(bureau, true, 9100, 9000);
  Image1_MouseUp(bureau, BoutonSouris::Gauche);
  EXPECT_EQ(d.List1.liste.size(), 1U);
  EXPECT_EQ(d.Label15.legende, "50");
}

TEST_F(Souris, AMiddleClickOpensNoMenu) {
  Image1_MouseDown(bureau, BoutonSouris::Autre, 3000, 4000);
  EXPECT_EQ(bureau.menu, nullptr);
}

TEST_F(Souris, AStartAtTheVeryEdgeCountsAsNoStart) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(0, 5000);
  Image1_MouseMove(bureau, false, 3000, 3000);
  EXPECT_EQ(d.Label56.legende, "");
  ClicDroit(3000, 3000);
  EXPECT_EQ(bureau.souris.DebutX, 3000.0F) << "this one is the start";
}

TEST_F(Souris, WithTheModuleHiddenNothingIsMeasured) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 5000);
  d.Frame1.visible = false;
  Image1_MouseMove(bureau, false, 9000, 9000);
  EXPECT_EQ(d.Label56.legende, "");
  EXPECT_FALSE(BrancheEnCours(bureau));
}

TEST_F(Souris, OutOfDistanceModeTheButtonsLeaveTheListAlone) {
  ClicDroit(5000, 5000);
  EXPECT_EQ(bureau.souris.DebutX, 0.0F);
  EXPECT_EQ(d.Label15.legende, "");
}

TEST_F(Souris, APointThatIsReleasedAgainstTheSamePlaceIsALegOfNoLength) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 5000);
  ClicDroit(5000, 5000);
  EXPECT_EQ(d.List1.liste, (std::vector<std::string>{" 000  :  000  :  000 °"}));
}

TEST_F(Souris, ADistancePast16BitsLeavesItsFigureAsItWas) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 5000);
  Image1_MouseMove(bureau, false, 5000 + Unites(7), 5000);
  Image1_MouseMove(bureau, false, 1e8, 1e8);
  EXPECT_EQ(d.Label56.legende, "7");
  EXPECT_EQ(d.Label17.legende, "135");
}

TEST_F(Souris, NothingFollowsThePointerOnASurfaceWithoutAScaleUntilSomethingIsAsked) {
  bureau.feuille.EchelleX = 0.0F;
  EXPECT_FALSE(SuitPointeur(bureau));
  ClicControle(bureau, d.PU_Coord);
  EXPECT_TRUE(SuitPointeur(bureau));
  ClicControle(bureau, d.PU_Coord);
  SaisitModule(bureau, 7);
  EXPECT_TRUE(SuitPointeur(bureau));
}

} // namespace
} // namespace velmaris::essais

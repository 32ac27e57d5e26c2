#include "shell/point/Point.hpp"

#include "OutilsFenetrePoint.hpp"
#include "complements/controle/RouteActuelle.hpp"
#include "complements/registre/PointsGardes.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/point/LecturePoint.hpp"
#include "shell/point/MotsPoint.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/visee/ChampsJuges.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

/// The window of the fix without a screen.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;

TEST_F(PointEnChiffres, FourStarsMakeTheFixWhereTheShipIsWhateverPositionWasEstimated) {
  ViseQuatre();
  OuvrePoint();
  ASSERT_EQ(f.Visees.tableau.lignes, 4U);
  ASSERT_TRUE(p.actuelle.solution) << TexteDuPoint(bureau);
  EXPECT_LT(Loin(p.actuelle), 0.1);
  EXPECT_EQ(f.Actuel[0].legende, "47° 30.0' N  005° 10.0' W");
  EXPECT_EQ(Mot(0, 0), "21/06/2026  22:10:00");
  EXPECT_EQ(Mot(0, 1), "Vega");
  ASSERT_TRUE(p.dite.solution);
  EXPECT_LT(Loin(p.dite), 10) << "the told lines have their own error";
  EXPECT_THAT(f.LabEntre.legende, HasSubstr(" M, "));
}

TEST_F(PointEnChiffres, TheWindowTakesTheLastWatchAndNoSightOfAnEarlierOne) {
  TapeVisee();
  Calcule();
  Accorde();
  ViseQuatre();
  OuvrePoint();
  EXPECT_EQ(p.visees.size(), 4U) << "the Sun of noon is another watch's";
}

TEST_F(PointEnChiffres, ASightThatWasReducedAgainCountsOnceAsItWasReducedLast) {
  ViseQuatre(60);
  Vise("Altair", 16);
  OuvrePoint();
  ASSERT_EQ(p.visees.size(), 4U);
  EXPECT_LT(Loin(p.actuelle), 0.1);
}

TEST_F(PointEnChiffres, AStoredLineIsASightOfTheFixUnlessTheLogHasIt) {
  ViseQuatre();
  TapeVisee();
  ClicOption(bureau, d.Option7[0]);
  Calcule();
  PoseMode(bureau, ModeDroite::Enregistre);
  ClicControle(bureau, d.Droite[1]);
  Accorde();
  Vise("Vega", 10);
  PoseMode(bureau, ModeDroite::Enregistre);
  ClicControle(bureau, d.Droite[2]);
  Accorde();
  OuvrePoint();
  ASSERT_EQ(p.visees.size(), 5U);
  EXPECT_EQ(p.visees[0].identite, "droite 2") << "the Sun of noon stands first by time";
  EXPECT_EQ(Mot(0, 1), "Soleil");
}

TEST_F(PointEnChiffres, AStoredLineOfAnotherVoyageIsListedAndDoesNotCount) {
  TapeVisee();
  d.TDate[0].texte = "15"; // six days before the stars
  Calcule();
  PoseMode(bureau, ModeDroite::Enregistre);
  ClicControle(bureau, d.Droite[1]);
  Accorde();
  ViseQuatre();
  OuvrePoint();
  ASSERT_EQ(p.visees.size(), 5U);
  EXPECT_EQ(p.visees[0].identite, "droite 2");
  EXPECT_FALSE(p.visees[0].cochee);
  EXPECT_LT(Loin(p.actuelle), 0.1);
  Coche(0);
  EXPECT_TRUE(p.visees[0].cochee) << "it counts once it is ticked";
}

TEST_F(PointEnChiffres, ASightThatIsNamedImprobableIsNotAlsoToldToHaveNoName) {
  ViseQuatre(30);
  OuvrePoint();
  const std::string sansNom = f.MotAvis[static_cast<std::size_t>(AvisPoint::ErreurSansNom)].legende;
  const std::string nommee = f.MotAvis[static_cast<std::size_t>(AvisPoint::ViseeImprobable)].legende;
  p.actuelle.avis = {AvisPoint::ViseeImprobable};
  p.dite.avis = {AvisPoint::Desaccord, AvisPoint::ErreurSansNom};
  for (const std::string &mots : MotsDesAvis(bureau)) {
    EXPECT_NE(mots, sansNom);
  }
  p.actuelle.avis = {AvisPoint::Desaccord};
  EXPECT_THAT(MotsDesAvis(bureau), testing::Contains(sansNom));
  EXPECT_THAT(MotsDesAvis(bureau), testing::Not(testing::Contains(HasSubstr(nommee + " :"))));
}

TEST_F(PointEnChiffres, ReturnInAFieldOfALegAddsIt) {
  OuvrePoint();
  p.jambes.clear();
  f.Text3[0].texte = "21/06/2026";
  f.Text3[1].texte = "03:30";
  f.Text3[2].texte = "225";
  f.Text3[3].texte = "6";
  EXPECT_TRUE(ValideControle(bureau, f.Text3[3]));
  ASSERT_EQ(p.jambes.size(), 1U);
  EXPECT_EQ(p.jambes[0].cap, 225);
}

TEST_F(PointEnChiffres, ASightThatIsUntickedLeavesTheFixAndKeepsItsResidual) {
  ViseQuatre(30);
  OuvrePoint();
  EXPECT_GT(Loin(p.actuelle), 1);
  Coche(3);
  EXPECT_LT(Loin(p.actuelle), 0.2);
  EXPECT_EQ(p.actuelle.solution->residus[3].utilisee, false);
  EXPECT_NEAR(p.actuelle.solution->residus[3].residu, 30, 0.5);
  EXPECT_EQ(Mot(3, 3), "+30.0");
  Coche(3);
  EXPECT_GT(Loin(p.actuelle), 1);
}

TEST_F(PointEnChiffres, OneSightIsALineAndNoFix) {
  Vise("Vega", 10);
  OuvrePoint();
  EXPECT_EQ(f.Actuel[0].legende, "Aucun point");
  EXPECT_EQ(f.LabAvis[0].legende, "Une seule visée : une droite, pas de point");
  EXPECT_FALSE(f.Command3[0].actif);
  EXPECT_FALSE(f.Command3[1].actif);
  EXPECT_EQ(bureau.image1.calque, Calque());
}

TEST_F(PointEnChiffres, WithoutAnySightTheWindowSaysSo) {
  OuvrePoint();
  EXPECT_EQ(f.Visees.tableau.lignes, 0U);
  EXPECT_EQ(f.LabAvis[0].legende, "Aucune visée cochée");
}

TEST_F(PointEnChiffres, TheFixGoesIntoTheFieldsAsWholeMinutesAndUndoTakesItBack) {
  ViseQuatre();
  OuvrePoint();
  Clique(f.Command3[0]);
  EXPECT_EQ(d.Text8.texte + " " + d.Text9.texte, "47 30");
  EXPECT_EQ(d.Text6.texte + " " + d.Text7.texte, "05 10");
  EXPECT_TRUE(d.OptN[0].choisi);
  EXPECT_TRUE(d.OptE[1].choisi) << "west";
  PU_Annule_Click(bureau, -1);
  EXPECT_EQ(d.Text9.texte, "40");
  EXPECT_EQ(d.Text7.texte, "30");
}

TEST_F(PointEnChiffres, AKeptFixIsALineOfTheFileAndAPlaceOfTheTrack) {
  ViseQuatre();
  OuvrePoint();
  Clique(f.Command3[1]);
  const std::vector<PointGarde> points = LitPoints(LitFichier(bureau.dossiers.utilisateur / "points.csv"));
  ASSERT_EQ(points.size(), 2U) << "by the sky of today, and as the lines are drawn";
  EXPECT_NEAR(points[0].lieu.latitude, kLatitude, 0.1 / 60);
  EXPECT_EQ(points[0].visees, 4);
  EXPECT_TRUE(p.sillage.empty()) << "not asked for";
  Clique(d.PU_Sillage);
  EXPECT_EQ(p.sillage.size(), 1U);
  EXPECT_EQ(Reglage("Sillage"), "1");
}

TEST_F(PointEnChiffres, TheFixIsALayerOverTheSheetThatTheScreensButtonPutsAway) {
  ViseQuatre();
  const auto traces = bureau.image1.traces;
  OuvrePoint();
  EXPECT_FALSE(bureau.image1.calque.traces.empty());
  EXPECT_EQ(bureau.image1.traces, traces) << "what is recorded stays as it is";
  Clique(d.Command6);
  EXPECT_EQ(bureau.image1.calque, Calque());
  Vise("Vega", 10);
  EXPECT_EQ(bureau.image1.calque, Calque());
  Clique(d.PU_PointTrace);
  EXPECT_FALSE(bureau.image1.calque.traces.empty());
  ClicCase(bureau, f.Check3);
  Accorde();
  EXPECT_EQ(bureau.image1.calque, Calque());
}

TEST_F(PointEnChiffres, TheLayerFollowsTheZoom) {
  ViseQuatre();
  OuvrePoint();
  const Calque avant = bureau.image1.calque;
  PoseValeur(bureau, d.HScroll1, d.HScroll1.valeur + 100);
  Accorde();
  EXPECT_NE(bureau.image1.calque, avant);
}

TEST_F(PointEnChiffres, ABlunderAmongSixIsNamedAndIsNeverLeftOutByItself) {
  ViseQuatre();
  Vise("Regulus", 18);
  Vise("Deneb", 20, 60);
  OuvrePoint();
  ASSERT_TRUE(p.actuelle.solution);
  EXPECT_EQ(p.actuelle.solution->improbable, std::optional<std::size_t>(5));
  EXPECT_TRUE(p.actuelle.solution->residus[5].utilisee);
  EXPECT_EQ(Mot(5, 6), "improbable");
  EXPECT_TRUE(std::any_of(f.LabAvis.begin(), f.LabAvis.end(), [](const Controle &avis) {
    return avis.legende == "Visée improbable : Deneb 22:20 (fausse alerte : un point sur cent)";
  }));
  EXPECT_EQ(f.Visees.tableau.lecteur->ton(5), TonLigne::Alerte);
  Coche(5);
  EXPECT_LT(Loin(p.actuelle), 0.2);
}

TEST_F(PointEnChiffres, ASightsAssumedErrorIsItsWeight) {
  ViseQuatre(10);
  OuvrePoint();
  const double avant = Loin(p.actuelle);
  ChoisitLignes(bureau, f.Visees, {3}, 3);
  TapeIci(f.Text2, "20");
  EXPECT_LT(Loin(p.actuelle), avant / 5);
  EXPECT_EQ(Mot(3, 4), "20.0");
  TapeIci(f.Text2, "autre");
  EXPECT_FALSE(f.Text2.alerte.empty());
  EXPECT_NEAR(Loin(p.actuelle), avant, 1E-6) << "what can't be used counts as empty";
}

TEST_F(PointEnChiffres, ALegCarriesTheFixToItsTime) {
  ViseQuatre();
  OuvrePoint();
  for (const auto &[rang, texte] : {std::pair(0, "21/06/2026"), {1, "22:00"}, {2, "90"}, {3, "10"}}) {
    Tape(f.Text3.at(static_cast<std::size_t>(rang)), texte);
  }
  Clique(f.Command2[0]);
  ASSERT_EQ(p.jambes.size(), 1U);
  TapeIci(f.Text1[0], "22/06/2026");
  TapeIci(f.Text1[1], "00:16");
  ASSERT_TRUE(p.actuelle.solution);
  // Two hours at ten knots east of where the last star was shot; the shots themselves are minutes apart.
  const double est = (p.actuelle.solution->lieu.longitude - kLongitude) * 60 * std::cos(kLatitude * 0.0174533);
  EXPECT_NEAR(est, 20 + 0.5, 0.7);
  EXPECT_NEAR(p.actuelle.solution->lieu.latitude, kLatitude, 0.02);
  EXPECT_EQ(f.Jambes.tableau.lignes, 1U);
  ChoisitLignes(bureau, f.Jambes, {0}, 0);
  Clique(f.Command2[1]);
  EXPECT_TRUE(p.jambes.empty());
  EXPECT_LT(Loin(p.actuelle), 0.1);
}

TEST_F(PointEnChiffres, TheFirstLegIsThatOfDeadReckoningWhereItIsFilled) {
  ViseQuatre();
  Tape(d.Text1, "235");
  Tape(d.Text2, "6");
  OuvrePoint();
  ASSERT_EQ(p.jambes.size(), 1U);
  EXPECT_EQ(p.jambes[0].cap, 235);
  EXPECT_EQ(p.jambes[0].vitesse, 6);
}

TEST_F(PointEnChiffres, LegsAreKeptForTheNextStartAndLeftWhereTheyAreOfOtherDays) {
  ViseQuatre();
  bureau.point.jambes = {};
  OuvrePoint();
  for (const auto &[rang, texte] : {std::pair(0, "21/06/2026"), {1, "03:30"}, {2, "225"}, {3, "6,5"}}) {
    Tape(f.Text3.at(static_cast<std::size_t>(rang)), texte);
  }
  Clique(f.Command2[0]);
  p.jambes.clear(); // as a new start has it
  OuvrePoint();
  ASSERT_EQ(p.jambes.size(), 1U);
  EXPECT_EQ(p.jambes[0].cap, 225);
  EXPECT_EQ(p.jambes[0].vitesse, 6.5);
  for (const int i : {0, 1, 2, 3}) {
    Tape(f.Text3.at(static_cast<std::size_t>(i)),
         std::array{"11/06/2026", "03:30", "90", "5"}.at(static_cast<std::size_t>(i)));
  }
  Clique(f.Command2[0]);
  ASSERT_EQ(p.jambes.size(), 2U);
  p.jambes.clear();
  OuvrePoint();
  EXPECT_EQ(p.jambes.size(), 1U) << "a course of ten days ago carries nobody";
}

TEST_F(PointEnChiffres, AFixIsMadeOfTwoHundredSightsAtMost) {
  ViseQuatre();
  OuvrePoint();
  std::vector<std::string> beaucoup;
  for (int i = 0; i < 1000; ++i) {
    beaucoup.push_back("rang " + std::to_string(i));
  }
  RetientAuPoint(bureau, beaucoup);
  EXPECT_EQ(bureau.registreOuvert.auPoint.size(), kViseesDuPoint);
}

TEST_F(PointEnChiffres, TheTimeAloneIsOfTheLastSightsDay) {
  ViseQuatre();
  OuvrePoint();
  TapeIci(f.Text1[1], "23:00");
  EXPECT_EQ(SecondesEntre(*p.heure, UTCDe({2026, 6, 21, 23, 0, 0})), 0);
  TapeIci(f.Text1[1], "25:00");
  EXPECT_TRUE(f.Text1[0].alerte.empty());
  EXPECT_FALSE(f.Text1[1].alerte.empty()) << "the field at fault alone is marked";
}

TEST_F(PointEnChiffres, WhatIsTakenIsToldByItsTheory) {
  ViseQuatre();
  OuvrePoint();
  Clique(f.Command3[0]);
  EXPECT_THAT(bureau.etat.avis, HasSubstr("Par le ciel d'aujourd'hui : 47° 30.0' N"));
}

TEST_F(PointEnChiffres, ALegThatLacksAFigureIsNotTaken) {
  ViseQuatre();
  OuvrePoint();
  Tape(f.Text3[2], "90");
  Clique(f.Command2[0]);
  EXPECT_TRUE(p.jambes.empty());
  EXPECT_THAT(bureau.etat.avis, HasSubstr("une heure, un cap et une vitesse"));
  EXPECT_TRUE(f.Text3[2].alerte.empty());
  EXPECT_FALSE(f.Text3[3].alerte.empty()) << "the fields at fault are marked";
}

TEST_F(PointEnChiffres, ARowThatIsTickedInTheLogIsInTheFixAndGoesWithItsTick) {
  TapeVisee();
  Calcule();
  Accorde();
  ViseQuatre();
  OuvrePoint();
  ASSERT_EQ(p.visees.size(), 4U);
  const std::string vega = p.visees[0].identite;
  std::erase(bureau.registreOuvert.auPoint, vega);
  Accorde();
  EXPECT_EQ(p.visees.size(), 3U);
  RetientAuPoint(bureau, {vega});
  Accorde();
  EXPECT_EQ(p.visees.size(), 4U);
  ChoisitLignes(bureau, f.Visees, {0}, 0);
  Clique(f.Command1[1]);
  EXPECT_EQ(p.visees.size(), 3U);
  EXPECT_EQ(std::count(bureau.registreOuvert.auPoint.begin(), bureau.registreOuvert.auPoint.end(), vega), 0);
  reponse = true;
  Clique(f.Command1[0]);
  EXPECT_EQ(p.visees.size(), 4U) << "the last watch again";
}

TEST_F(PointEnChiffres, AnIdentityThatNoJournalHasIsForgotten) {
  ViseQuatre();
  OuvrePoint();
  RetientAuPoint(bureau, {"personne"});
  Accorde();
  EXPECT_EQ(p.visees.size(), 4U);
  EXPECT_EQ(bureau.registreOuvert.auPoint.size(), 4U);
}

TEST_F(PointEnChiffres, TheWatchsErrorMovesTheFixByAMinuteOfLongitudeForFourSeconds) {
  ViseQuatre();
  std::filesystem::create_directories(bureau.dossiers.utilisateur);
  EcritFichier(bureau.dossiers.utilisateur / "montre.csv",
               std::string(kTitresMontre) + "\n" + LigneMontre({1782000000, 8, 0}) + "\n"); // eight seconds ahead
  OuvrePoint();
  const double avant = p.actuelle.solution->lieu.longitude;
  ClicCase(bureau, f.Check1);
  Accorde();
  EXPECT_NEAR((p.actuelle.solution->lieu.longitude - avant) * 60, 2, 0.03) << "earlier by the sky, so farther east";
  ClicCase(bureau, f.Check1);
  Accorde();
  EXPECT_NEAR(p.actuelle.solution->lieu.longitude, avant, 1E-9);
}

TEST_F(PointEnChiffres, DoubtsAreKeptAndOneBeyondItsLimitsIsMarked) {
  ViseQuatre();
  OuvrePoint();
  const double avant = p.actuelle.solution->ellipse.a;
  TapeIci(f.Text5[0], "1,4");
  EXPECT_NEAR(p.actuelle.solution->ellipse.a / avant, 2, 0.1);
  EXPECT_EQ(Reglage("PointHauteur"), "1,4");
  TapeIci(f.Text5[0], "999");
  EXPECT_FALSE(f.Text5[0].alerte.empty());
  EXPECT_EQ(Reglage("PointHauteur"), "1,4");
  EXPECT_NEAR(p.actuelle.solution->ellipse.a, avant, 1E-9);
}

TEST_F(PointEnChiffres, TheCopyTellsBothFixesTheirSightsAndWhatIsToBeKnown) {
  ViseQuatre();
  OuvrePoint();
  std::string copie;
  bureau.ports.copieTexte = [&](const std::string &texte) { copie = texte; };
  Clique(f.Command3[2]);
  EXPECT_THAT(copie, HasSubstr("Point à (UTC) 21/06/2026 22:16:00"));
  EXPECT_THAT(copie, HasSubstr("47° 30.0' N  005° 10.0' W"));
  EXPECT_THAT(copie, HasSubstr("Vega 22:10"));
  EXPECT_THAT(copie, HasSubstr("Comme les droites sont tracées"));
}

TEST_F(PointEnChiffres, TheWindowClosesAndComesBackAsItWas) {
  ViseQuatre();
  OuvrePoint();
  Coche(0);
  Clique(f.Command3[3]);
  EXPECT_FALSE(f.cadre.visible);
  OuvrePoint();
  EXPECT_TRUE(f.cadre.visible);
  ASSERT_EQ(p.visees.size(), 4U);
  EXPECT_FALSE(p.visees[0].cochee);
}

TEST_F(PointEnChiffres, ToldFiguresAreTheSameWithTheFixAndWithout) {
  ViseQuatre();
  const AffichageDroite affichage = bureau.affichage;
  const ValeursVisee visee = bureau.visee;
  const Feuille feuille = bureau.feuille;
  OuvrePoint();
  EXPECT_EQ(bureau.affichage, affichage);
  EXPECT_EQ(bureau.visee, visee);
  EXPECT_EQ(bureau.feuille, feuille);
}

} // namespace
} // namespace velmaris::essais

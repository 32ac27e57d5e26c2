#include "OutilsFenetreExercice.hpp"

#include "shell/complements/Mots.hpp"
#include "shell/complements/MotsControle.hpp"

#include <algorithm>

/// The window of practice without a screen.
namespace velmaris::essais {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(EnExercice, TheKeyAndTheMenuOpenItAndClosingPutsItAway) {
  EXPECT_TRUE(ToucheControle(bureau, 'E'));
  EXPECT_TRUE(fe.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreExercice);
  EXPECT_FALSE(bureau.exercice.enCours) << "nothing begins by itself";
  ClicControle(bureau, fe.Ferme);
  EXPECT_FALSE(fe.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(EnExercice, TheTenGradedOnesAreToldByTheirConditionsAndGoIntoTheFields) {
  ClicControle(bureau, d.PU_Exercice);
  AccordeExercice(bureau);
  ASSERT_THAT(fe.Combo1.liste, SizeIs(kNiveaux));
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    const NiveauExercice &niveau = NiveauDe(rang);
    EXPECT_THAT(fe.Combo1.liste[rang], StartsWith(std::to_string(rang + 1) + ". "));
    EXPECT_THAT(fe.Combo1.liste[rang],
                HasSubstr(fe.MotSujet.at(static_cast<std::size_t>(niveau.conditions.sujet)).legende));
    ChoisitLigne(bureau, fe.Combo1, static_cast<int>(rang));
    AccordeExercice(bureau);
    const auto demande = LitDemandeExercice(fe);
    ASSERT_TRUE(demande);
    EXPECT_EQ(*demande, (DemandeExercice{niveau.graine, niveau.conditions})) << rang;
    EXPECT_EQ(fe.Combo1.rang, static_cast<int>(rang));
  }
  EXPECT_FALSE(bureau.exercice.enCours) << "a choice begins nothing";
}

TEST_F(EnExercice, TheUsersOwnSeedAndConditionsMakeTheVoyageThatTheyNameAndItIsNoneOfTheTen) {
  Commence(6);
  SaisitTexte(bureau, fe.Text1, "4711");
  SaisitTexte(bureau, fe.Text2[0], "5");
  AccordeExercice(bureau);
  EXPECT_EQ(fe.Combo1.rang, -1);
  ClicControle(bureau, fe.Command1[0]);
  ConditionsExercice c = NiveauDe(6).conditions;
  c.visees = 5;
  EXPECT_EQ(EnCours().verite.lieu.latitude, FaitExercice(4711, c).verite.lieu.latitude);
  EXPECT_THAT(EnCours().exercice.visees, SizeIs(5));
  ClicControle(bureau, fe.Command1[1]);
  EXPECT_NE(fe.Text1.texte, "4711");
  EXPECT_EQ(EnCours().exercice.graine, 4711U) << "another seed begins nothing";
}

TEST_F(EnExercice, AConditionThatCannotBeUsedIsMarkedAndBeginsNothing) {
  ClicControle(bureau, d.PU_Exercice);
  for (Controle *champ : {&fe.Text1, &fe.Text2[0], &fe.Text2[3], &fe.Text2[6]}) {
    const std::string avant = champ->texte;
    for (const char *texte : {"", "x", "-1", "1E9", "95000000"}) {
      SaisitTexte(bureau, *champ, texte);
      AccordeExercice(bureau);
      EXPECT_THAT(champ->alerte, HasSubstr(champ->infobulle)) << texte;
      EXPECT_THAT(fe.LabAvis.legende, HasSubstr(champ->infobulle));
      ClicControle(bureau, fe.Command1[0]);
      EXPECT_FALSE(bureau.exercice.enCours);
    }
    SaisitTexte(bureau, *champ, avant);
  }
  AccordeExercice(bureau);
  EXPECT_THAT(fe.LabAvis.legende, IsEmpty());
}

TEST_F(EnExercice, WhatTheBoardKnowsIsShownAndTheTruthIsNot) {
  for (const int rang : {0, 3, 7}) {
    Commence(rang);
    const Exercice &e = EnCours().exercice;
    EXPECT_EQ(fe.Donne[0].legende, TexteLieu(e.estime));
    EXPECT_THAT(fe.Donne[4].legende, HasSubstr(TexteHeureUtc(e.heurePoint)));
    EXPECT_EQ(fe.Visees.tableau.lignes, e.visees.size());
    for (std::size_t i = 0; i < e.visees.size(); ++i) {
      EXPECT_EQ(fe.Visees.tableau.lecteur->texte(i, 0), NomDAstre(bureau, e.visees[i].astre));
      EXPECT_EQ(fe.Visees.tableau.lecteur->texte(i, 3), TexteAngleSigne(e.visees[i].lecture));
      Reduit(i);
      EXPECT_EQ(Mots(i), fe.TexteTypee.legende);
    }
    const std::string ecran = ToutLEcran();
    EXPECT_THAT(ecran, Not(HasSubstr(TexteLieu(EnCours().verite.lieu))));
    for (const LieuNavire &ici : EnCours().verite.lieux) {
      EXPECT_THAT(ecran, Not(HasSubstr(TexteLieu(ici))));
    }
    for (const Controle &resultat : fe.Resultat) {
      EXPECT_THAT(resultat.legende, IsEmpty());
    }
  }
}

TEST_F(EnExercice, ASightGoesIntoThePanelAsOneGestureAndUndoTakesItBack) {
  for (const int rang : {1, 4, 7}) {
    Commence(rang);
    for (std::size_t i = 0; i < EnCours().exercice.visees.size(); ++i) {
      const Observation avant = LitPanneau(d);
      const std::size_t gestes = bureau.annulations.faits.size();
      Prend(i);
      const ViseeTypee lue = LitVisee(LitPanneau(d), {});
      const ViseeExercice &v = EnCours().exercice.visees[i];
      EXPECT_EQ(lue.astre, v.astre);
      EXPECT_NEAR(lue.lecture.lecture, v.lecture, 1E-9);
      EXPECT_NEAR(lue.lecture.hauteurOeil, EnCours().exercice.hauteurOeil, 1E-9);
      EXPECT_NEAR(lue.lecture.collimation, EnCours().exercice.collimation, 1E-9);
      EXPECT_EQ(bureau.annulations.faits.size(), gestes + 1);
      ClicControle(bureau, d.PU_Annule);
      EXPECT_EQ(LitPanneau(d), avant);
      Prend(i);
    }
  }
}

TEST_F(EnExercice, TheUsersChoiceOfSecondsOrHundredthsIsLeft) {
  Commence(1);
  for (const std::size_t rang : {1U, 0U}) {
    ClicOption(bureau, d.Option4.at(rang));
    Prend(0);
    EXPECT_TRUE(d.Option4.at(rang).choisi);
    EXPECT_NEAR(LitVisee(LitPanneau(d), {}).lecture.lecture, EnCours().exercice.visees[0].lecture, 1E-9);
  }
}

TEST_F(EnExercice, NothingOfAPracticeEntersTheJournalAndASightOfTheUsersOwnDoes) {
  TapeVisee();
  Calcule();
  const std::string avant = Journal();
  ASSERT_THAT(avant, HasSubstr("65"));
  for (int rang = 0; rang < static_cast<int>(kNiveaux); ++rang) {
    Commence(rang);
    for (std::size_t i = 0; i < EnCours().exercice.visees.size(); ++i) {
      Reduit(i);
      Tape(d.Text3, d.Text3.texte == "05" ? "06" : "05");
      Calcule();
    }
  }
  EXPECT_EQ(Journal(), avant);
  EXPECT_TRUE(bureau.journalEnAttente.empty());
  EXPECT_EQ(fe.Label3.legende, fe.TexteHorsRegistre.legende);
  TapeVisee();
  ClicOption(bureau, d.Option7[0]);
  Calcule();
  EXPECT_GT(Journal().size(), avant.size());
}

TEST_F(EnExercice, ItStaysOutOfTheJournalWithItsWindowClosedAndAfterAnotherStart) {
  Commence(3);
  Prend(0);
  ClicControle(bureau, fe.Ferme);
  Calcule();
  EXPECT_THAT(Journal(), IsEmpty());
  EXPECT_TRUE(bureau.exercice.typees[0]);
  const Observation visee = LitPanneau(d);
  Bureau autre;
  Branche(autre);
  Donnees_Charge(autre, {});
  EXPECT_TRUE(NoteViseeExercice(autre, visee));
  ClicControle(autre, autre.donnees.PU_Exercice);
  EXPECT_EQ(autre.exercice.enCours.value().verite.lieu.latitude, EnCours().verite.lieu.latitude)
      << "the practice begun last comes back";
}

TEST_F(EnExercice, TheTruthIsToldOnceTheFixIsTypedAndHowFarItIs) {
  Commence(5);
  const LieuNavire vrai = EnCours().verite.lieu;
  TapePoint({vrai.latitude + 2.0 / 60, vrai.longitude});
  EXPECT_THAT(fe.Resultat[0].legende, IsEmpty()) << "not before it is asked for";
  Corrige();
  EXPECT_EQ(fe.Resultat[0].legende, TexteLieu(vrai));
  EXPECT_THAT(fe.Resultat[1].legende, StartsWith("2.0"));
  EXPECT_THAT(fe.Resultat[1].legende, HasSubstr("000°"));
  EXPECT_THAT(fe.Resultat[1].legende, HasSubstr(fe.TexteAttendu.legende));
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(EnExercice, ASlipInTheFixAsksForNoTruth) {
  reponse = true;
  Commence(5);
  SaisitTexte(bureau, fe.Text3[0], "06 95 S");
  SaisitTexte(bureau, fe.Text3[1], "20 W");
  Corrige();
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_FALSE(bureau.exercice.correction);
  EXPECT_EQ(bureau.focus, &fe.Text3[0]);
}

TEST_F(EnExercice, WithoutAFixItAsksAndNoKeepsTheTruthHidden) {
  Commence(5);
  Corrige();
  ASSERT_THAT(boites, SizeIs(1));
  EXPECT_TRUE(boites[0].question && boites[0].nonParDefaut);
  EXPECT_FALSE(bureau.exercice.correction);
  reponse = true;
  Corrige();
  EXPECT_EQ(fe.Resultat[0].legende, TexteLieu(EnCours().verite.lieu));
  EXPECT_THAT(fe.Resultat[1].legende, IsEmpty());
}

TEST_F(EnExercice, AFixThatCannotBeReadIsMarked) {
  Commence(5);
  SaisitTexte(bureau, fe.Text3[0], "97 N");
  AccordeExercice(bureau);
  EXPECT_THAT(fe.Text3[0].alerte, HasSubstr(fe.Text3[0].infobulle));
  EXPECT_THAT(fe.LabAvis.legende, HasSubstr("97 N"));
}

TEST_F(EnExercice, CarefulLinesAreCalledGoodAndThoseNotReducedAreNotJudged) {
  Commence(6);
  Reduit(0);
  Reduit(2);
  TapePoint(EnCours().verite.lieu);
  Corrige();
  EXPECT_THAT(Mots(0), HasSubstr(fe.TexteBonne.legende));
  EXPECT_EQ(Mots(1), fe.TexteNonTypee.legende);
  EXPECT_THAT(Mots(2), StartsWith(AvecSigne(EnCours().verite.bruits[2])));
}

TEST_F(EnExercice, ASlipOfTheHandIsToldByItsFieldAndExplainedAsTheCheckDoes) {
  Commence(3);
  Prend(1);
  Tape(d.Text13, std::to_string(std::stoi(d.Text13.texte) + 1));
  Calcule();
  TapePoint(EnCours().exercice.estime);
  Corrige();
  ChoisitLignes(bureau, fe.Visees, {1}, 1);
  AccordeExercice(bureau);
  const auto mot = [&](AvisCorrection avis) { return fe.MotAvis.at(static_cast<std::size_t>(avis)).legende; };
  EXPECT_THAT(Mots(1), HasSubstr(mot(AvisCorrection::Lecture)));
  EXPECT_EQ(fe.Detail[0].legende, mot(AvisCorrection::Lecture) + ", " + mot(AvisCorrection::Loin));
  const auto &glissade = bureau.fiche.MotGlissade.at(static_cast<std::size_t>(GenreGlissade::LectureDegres));
  const std::string lignes = fe.Detail[1].legende + fe.Detail[2].legende;
  EXPECT_THAT(lignes, HasSubstr(glissade.legende));
  EXPECT_THAT(lignes, HasSubstr("-1 °"));
}

TEST_F(EnExercice, ASightReducedAgainAfterTheCorrectionIsJudgedAtOnce) {
  Commence(3);
  Prend(0);
  Tape(d.Text13, std::to_string(std::stoi(d.Text13.texte) + 1));
  Calcule();
  TapePoint(EnCours().exercice.estime);
  Corrige();
  EXPECT_THAT(Mots(0), Not(HasSubstr(fe.TexteBonne.legende)));
  Reduit(0);
  EXPECT_THAT(Mots(0), HasSubstr(fe.TexteBonne.legende));
}

TEST_F(EnExercice, AnotherPracticeTakesFixAndCorrectionAway) {
  Commence(3);
  Reduit(0);
  TapePoint(EnCours().exercice.estime);
  Corrige();
  Commence(4);
  EXPECT_FALSE(bureau.exercice.correction);
  EXPECT_THAT(fe.Text3[0].texte, IsEmpty());
  EXPECT_THAT(fe.Resultat[0].legende, IsEmpty());
  EXPECT_EQ(Mots(0), fe.TexteNonTypee.legende);
}

TEST_F(EnExercice, WhatNoDayOffersIsToldInWords) {
  ClicControle(bureau, d.PU_Exercice);
  ChoisitLigne(bureau, fe.Combo1, 4);
  bureau.exercice.enCours = ExerciceComplet(); // a voyage that no day gave a sight to
  bureau.exercice.aMontrer = true;
  AccordeExercice(bureau);
  EXPECT_EQ(fe.LabAvis.legende, fe.TexteImpossible.legende);
  Corrige();
  EXPECT_FALSE(bureau.exercice.correction);
}

TEST_F(EnExercice, NoWordOfOneLanguageStaysInTheOther) {
  Commence(6);
  const std::string francais = fe.Combo1.liste[6];
  Image10_Click(bureau, 1);
  AccordeExercice(bureau);
  EXPECT_NE(fe.Combo1.liste[6], francais);
  EXPECT_EQ(fe.Combo1.texte, fe.Combo1.liste[6]);
  EXPECT_EQ(Mots(0), "not reduced");
  EXPECT_EQ(fe.cadre.titre, "Practice");
}

TEST_F(EnExercice, NothingToldIsTouched) {
  TapeVisee();
  Calcule();
  const AffichageDroite affichage = bureau.affichage;
  const ValeursVisee visee = bureau.visee;
  const Observation panneau = LitPanneau(d);
  Commence(8);
  TapePoint(EnCours().exercice.estime);
  Corrige();
  EXPECT_EQ(bureau.affichage, affichage);
  EXPECT_EQ(bureau.visee, visee);
  EXPECT_EQ(LitPanneau(d), panneau);
}

} // namespace
} // namespace velmaris::essais

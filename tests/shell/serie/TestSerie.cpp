#include "OutilsFenetreSerie.hpp"

#include "complements/registre/Annotations.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/SourcesSerie.hpp"

/// A run of readings in its window, without a screen.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::vector<const char *> kCinq = {"09:00:10", "09:01:02", "09:02:05", "09:02:58", "09:04:01"};

TEST_F(FenetreDeSerie, TheKeyAndTheMenuOpenItAtMarqueAndClosingPutsItAway) {
  EXPECT_TRUE(ToucheControle(bureau, 'R'));
  EXPECT_TRUE(f.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreSerie);
  EXPECT_EQ(bureau.focus, &f.Marque);
  ClicControle(bureau, f.Command2);
  EXPECT_FALSE(f.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(FenetreDeSerie, ItBeginsWithThePanelsFiguresBodyAndLimb) {
  TapeVisee();
  ClicOption(bureau, d.Option7[1]);
  ClicOption(bureau, d.Option6[0]);
  Tape(d.Text10, "3,5");
  ClicControle(bureau, d.PU_Serie);
  const std::optional<BaseLectures> base = LitBase(bureau);
  ASSERT_TRUE(base);
  EXPECT_EQ(base->astre.genre, GenreAstre::Lune);
  EXPECT_EQ(base->corrections.contact, Contact::Superieur);
  EXPECT_NEAR(base->lieu.latitude, 47.5, 1E-9);
  EXPECT_NEAR(base->lieu.longitude, -(5 + 10.0 / 60), 1E-9);
  EXPECT_EQ(base->corrections.hauteurOeil, 3.5);
  EXPECT_EQ(base->corrections.collimation, -1);
  EXPECT_EQ(TexteHeureUtc(base->heureLieu), "12:06:00") << "the nearest minute";
}

TEST_F(FenetreDeSerie, AReadingComesInItsOrderAndAnotherOfItsSecondReplacesIt) {
  Ouvre();
  Tape2("9:02:00", "42 10.0");
  Tape2("09:00:00", "41 50,5");
  ASSERT_EQ(p.lectures.size(), 2U);
  EXPECT_EQ(Cellule(f.Lectures, 0, 0), "09:00:00");
  EXPECT_EQ(Cellule(f.Lectures, 0, 1), "41° 50.5'");
  Tape2("09:02:00", "42 11.0");
  ASSERT_EQ(p.lectures.size(), 2U);
  EXPECT_EQ(Cellule(f.Lectures, 1, 1), "42° 11.0'");
}

TEST_F(FenetreDeSerie, AChosenReadingIsChangedInItsPlaceAndRemoved) {
  Ouvre();
  Tape2("09:02:00", "42 10.0");
  Tape2("09:03:00", "42 20.0");
  ChoisitLignes(bureau, f.Lectures, {0}, 0);
  EXPECT_EQ(f.Text4[0].texte, "09:02:00");
  EXPECT_EQ(f.Text4[1].texte, "42 10.0");
  SaisitTexte(bureau, f.Text4[0], "09:04:00");
  ClicControle(bureau, f.Command3[1]);
  AccordeSerie(bureau);
  ASSERT_EQ(p.lectures.size(), 2U);
  EXPECT_EQ(Cellule(f.Lectures, 1, 0), "09:04:00");
  ChoisitLignes(bureau, f.Lectures, {0}, 0);
  ClicControle(bureau, f.Command3[2]);
  ASSERT_EQ(p.lectures.size(), 1U);
  EXPECT_EQ(TexteHeureUtc(p.lectures[0].utc), "09:04:00");
  ClicControle(bureau, f.Command3[3]);
  EXPECT_TRUE(p.lectures.empty());
}

TEST_F(FenetreDeSerie, ATimeBelongsToTheDayThatLiesNearestToThePosition) {
  Ouvre("23:58");
  Tape2("00:01:00", "12 0.0");
  ASSERT_EQ(p.lectures.size(), 1U);
  EXPECT_EQ(TexteDate(p.lectures[0].utc), "22/06/2026");
}

TEST_F(FenetreDeSerie, AMarkIsTheClocksSecondAndItsReadingIsTypedAfter) {
  Ouvre();
  ClicControle(bureau, f.Marque);
  ClicControle(bureau, f.Marque);
  temps.seconde = 55;
  ClicControle(bureau, f.Marque);
  AccordeSerie(bureau);
  ASSERT_EQ(p.lectures.size(), 2U) << "two presses of one second are one";
  EXPECT_EQ(Cellule(f.Lectures, 0, 0), "12:05:30");
  EXPECT_EQ(Cellule(f.Lectures, 0, 3), f.TexteAttend.legende);
  EXPECT_TRUE(p.rangs.empty()) << "without its angle a mark doesn't count";
  EXPECT_EQ(f.Text4[0].texte, "12:05:30");
  SaisitTexte(bureau, f.Text4[1], "65 10");
  ValideControle(bureau, f.Text4[1]);
  EXPECT_EQ(f.Text4[0].texte, "12:05:55") << "the next one that waits";
  EXPECT_EQ(bureau.focus, &f.Text4[1]);
  SaisitTexte(bureau, f.Text4[1], "65 11");
  ValideControle(bureau, f.Text4[1]);
  EXPECT_EQ(p.rangs.size(), 2U);
  EXPECT_EQ(f.Text4[0].texte, "");
}

TEST_F(FenetreDeSerie, ReadingsOfTheSkyLeaveNothingAndGiveTheReadingOfTheMiddle) {
  Ouvre();
  SaisitTexte(bureau, f.Text2[0], "225");
  SaisitTexte(bureau, f.Text2[1], "6");
  TapeLectures(kCinq);
  ASSERT_TRUE(p.fiche.faite);
  EXPECT_TRUE(p.fiche.avis.empty());
  for (std::size_t i = 0; i < kCinq.size(); ++i) {
    EXPECT_NEAR(p.fiche.residus[i].residu, 0, 0.01);
    EXPECT_THAT(Cellule(f.Lectures, i, 2), HasSubstr("0.0'"));
  }
  EXPECT_NEAR(p.fiche.lecture, Lecture(p.fiche.heure), 0.006 / 60);
  EXPECT_THAT(f.Resultat[0].legende, HasSubstr(TexteAngleSigne(Lecture(p.fiche.heure))));
  EXPECT_THAT(f.Resultat[1].legende, HasSubstr("0.31'")) << "0.7 over the root of five";
}

TEST_F(FenetreDeSerie, AnImprobableReadingIsNamedWithItsRateAndTheTickLeavesItOut) {
  Ouvre();
  TapeLectures(kCinq, {0.1, -0.2, 6, 0.2, -0.1});
  ASSERT_EQ(p.fiche.improbable, 2U);
  EXPECT_THAT(Lignes(f.LabSerie), HasSubstr(f.MotAvis[6].legende + "09:02:05" + f.TexteAlarme.legende));
  EXPECT_EQ(Cellule(f.Lectures, 2, 3), f.TexteImprobable.legende);
  CocheLigne(bureau, f.Lectures, 2);
  AccordeSerie(bureau);
  EXPECT_EQ(p.fiche.comptees, 4U);
  EXPECT_THAT(Lignes(f.LabSerie), Not(HasSubstr("09:02:05")));
  EXPECT_EQ(Cellule(f.Lectures, 2, 3), f.TexteEcartee.legende);
  EXPECT_NEAR(p.fiche.residus[2].residu, 6, 0.5) << "it keeps its residual";
  CocheLigne(bureau, f.Lectures, 2);
  EXPECT_EQ(p.fiche.comptees, 5U);
}

TEST_F(FenetreDeSerie, AWrongBodyIsToldByItsSlope) {
  Ouvre("22:00");
  const Astre vega = *std::find_if(AstresAChoisir(true).begin(), AstresAChoisir(true).end(),
                                   [&](const Astre &a) { return NomDAstre(bureau, a) == "Vega"; });
  const Astre altair = *std::find_if(AstresAChoisir(true).begin(), AstresAChoisir(true).end(),
                                     [&](const Astre &a) { return NomDAstre(bureau, a) == "Altair"; });
  ChoisitAstre(altair);
  TapeLectures({"22:00:05", "22:02:00", "22:04:10", "22:06:00", "22:08:02"}, {}, vega);
  EXPECT_THAT(Lignes(f.LabSerie), HasSubstr(f.TextePiste.legende + f.MotPiste[0].legende + "Vega"));
}

TEST_F(FenetreDeSerie, NoResultStandsBesideOtherReadingsThanItsOwnWhileAFieldCannotBeUsed) {
  for (const PageSerie page : {PageSerie::Serie, PageSerie::Midi, PageSerie::Lune}) {
    TapeVisee();
    Ouvre();
    TapeLectures(kCinq);
    ChoisitLigne(bureau, f.Onglets1, static_cast<int>(page));
    AccordeSerie(bureau);
    SaisitTexte(bureau, f.Text1[2], "nulle part");
    AccordeSerie(bureau);
    ClicControle(bureau, f.Command3[3]); // all readings go
    EXPECT_NO_THROW(AccordeSerie(bureau));
    EXPECT_FALSE(p.fiche.faite);
    EXPECT_FALSE(p.midi.passage);
    EXPECT_TRUE(page != PageSerie::Serie || Lignes(f.Resultat).find("09:0") == std::string::npos);
    SaisitTexte(bureau, f.Text1[2], "47 30 N");
    AccordeSerie(bureau);
    ChoisitLigne(bureau, f.Onglets1, static_cast<int>(PageSerie::Serie));
    TapeLectures(kCinq);
    EXPECT_TRUE(p.fiche.faite);
    ClicControle(bureau, f.Command3[3]);
  }
}

TEST_F(FenetreDeSerie, TakingPutsBodyTimeAndReadingIntoThePanelAsOneGesture) {
  TapeVisee();
  Ouvre();
  const Observation avant = LitPanneau(d);
  TapeLectures(kCinq);
  ASSERT_TRUE(p.fiche.faite);
  ClicControle(bureau, f.Prend);
  const Observation o = LitPanneau(d);
  EXPECT_EQ(o.corps, Corps::Soleil);
  EXPECT_EQ(o.bord, Bord::Inferieur);
  EXPECT_EQ(o.heure + ":" + o.minute + ":" + o.seconde, TexteHeureUtc(p.fiche.heure));
  EXPECT_EQ(o.jour + "/" + o.mois + "/" + o.annee, "21/06/2026");
  const double lu = std::stod(o.lectureDegres) + std::stod(o.lectureMinutes) / 60 + std::stod(o.lectureFraction) / 3600;
  EXPECT_NEAR(lu, p.fiche.lecture, 0.51 / 3600);
  EXPECT_EQ(o.hauteurOeil, avant.hauteurOeil) << "the same figure stays as it was typed";
  EXPECT_EQ(o.latitudeDegres, avant.latitudeDegres);
  ClicControle(bureau, d.PU_Annule);
  EXPECT_EQ(LitPanneau(d), avant);
}

TEST_F(FenetreDeSerie, APanelOfHundredthsTakesHundredthsAndRoundingCarries) {
  ClicOption(bureau, d.Option4[1]);
  Ouvre();
  TapeLectures(kCinq);
  p.fiche.lecture = 47 + 59.999 / 60;
  ClicControle(bureau, f.Prend);
  EXPECT_EQ(d.Text13.texte, "48");
  EXPECT_EQ(d.Text12.texte, "00");
  EXPECT_EQ(d.Text25.texte, "00");
  p.fiche.lecture = 47 + 5.25 / 60;
  ClicControle(bureau, f.Prend);
  EXPECT_EQ(d.Text13.texte, "47");
  EXPECT_EQ(d.Text12.texte, "05");
  EXPECT_EQ(d.Text25.texte, "25");
}

TEST_F(FenetreDeSerie, AReadingOffAnArtificialHorizonIsTakenWithIt) {
  Ouvre("09:00");
  ClicCase(bureau, f.Check1);
  EXPECT_EQ(f.Combo2.rang, static_cast<int>(Contact::Centre));
  TapeLectures(kCinq);
  ASSERT_TRUE(p.fiche.faite);
  EXPECT_GT(p.fiche.lecture, 80) << "a double angle";
  ClicControle(bureau, f.Prend);
  EXPECT_EQ(LitPanneau(d).horizon, Horizon::Artificiel);
  EXPECT_EQ(LitPanneau(d).bord, Bord::Centre);
}

TEST_F(FenetreDeSerie, NothingIsTakenWithoutARun) {
  TapeVisee();
  Ouvre();
  const Observation avant = LitPanneau(d);
  Tape2("09:00:00", "42 0");
  ClicControle(bureau, f.Prend);
  EXPECT_EQ(LitPanneau(d), avant);
  EXPECT_THAT(Lignes(f.LabSerie), HasSubstr(f.MotAvis[0].legende));
  EXPECT_THAT(f.Resultat[0].legende, IsEmpty());
}

TEST_F(FenetreDeSerie, AFieldThatCannotBeUsedIsMarkedAndTheRunStays) {
  Ouvre();
  TapeLectures(kCinq);
  const double avant = p.fiche.lecture;
  SaisitTexte(bureau, f.Text1[2], "97 N");
  AccordeSerie(bureau);
  EXPECT_THAT(f.LabAvis.legende, HasSubstr("97 N"));
  EXPECT_EQ(p.fiche.lecture, avant);
  SaisitTexte(bureau, f.Text1[2], "47 30 N");
  AccordeSerie(bureau);
  EXPECT_EQ(f.LabAvis.legende, "");
  Tape2("25:00:00", "42 99");
  EXPECT_FALSE(f.Text4[0].alerte.empty());
  EXPECT_FALSE(f.Text4[1].alerte.empty());
  EXPECT_EQ(p.lectures.size(), kCinq.size());
}

TEST_F(FenetreDeSerie, WhatIsTypedIsThereAfterAKillWhateverItsDay) {
  Ouvre();
  TapeLectures({"09:00:10", "09:01:02"});
  ClicControle(bureau, f.Marque);
  CocheLigne(bureau, f.Lectures, 0);
  const auto autre = [this](Bureau &b) {
    Branche(b);
    Donnees_Charge(b, {});
    ClicControle(b, b.donnees.PU_Serie);
  };
  Bureau ensuite;
  autre(ensuite);
  ASSERT_EQ(ensuite.serie.lectures.size(), 3U);
  EXPECT_TRUE(ensuite.serie.lectures[0].ecartee);
  EXPECT_NEAR(*ensuite.serie.lectures[1].lecture, *p.lectures[1].lecture, 1E-9);
  EXPECT_NEAR(SecondesEntre(ensuite.serie.lectures[1].utc, p.lectures[1].utc), 0, 1E-6);
  EXPECT_FALSE(ensuite.serie.lectures[2].lecture);
  EXPECT_EQ(ensuite.fenetreSerie.Text1[2].texte, "47 30.0 N");
  temps.jour = 24;
  Bureau plusTard;
  autre(plusTard);
  EXPECT_EQ(plusTard.serie.lectures.size(), 3U) << "an old logbook is typed up as well";
}

TEST_F(FenetreDeSerie, APositionWithoutReadingsIsTakenUpForTwoDays) {
  Ouvre();
  const auto lieuA = [this](int jour) {
    temps.jour = static_cast<std::uint16_t>(jour);
    Bureau autre;
    Branche(autre);
    Donnees_Charge(autre, {});
    ClicControle(autre, autre.donnees.PU_Serie);
    return autre.fenetreSerie.Text1[2].texte;
  };
  const std::string ici = f.Text1[2].texte;
  EXPECT_EQ(lieuA(22), ici);
  EXPECT_NE(lieuA(29), ici);
}

TEST_F(FenetreDeSerie, TheLogGivesTheReadingsOfThatBodyWithinAnHour) {
  TapeVisee();
  for (const char *heure : {"09", "12"}) {
    Tape(d.Text3, heure);
    Calcule();
  }
  Tape(d.Text4, "15");
  Calcule();
  Ouvre("12:00");
  ClicControle(bureau, f.Command3[4]);
  ASSERT_EQ(p.lectures.size(), 2U) << "that of nine o'clock is of another hour";
  EXPECT_EQ(TexteHeureUtc(p.lectures[0].utc), "12:05:30");
  EXPECT_NEAR(*p.lectures[0].lecture, 65 + 34.0 / 60 + 38.0 / 3600, 1E-9);
  ChoisitAstre({GenreAstre::Venus, 0});
  ClicControle(bureau, f.Command3[4]);
  EXPECT_EQ(p.lectures.size(), 2U);
}

TEST_F(FenetreDeSerie, AFileGivesTheReadingsBackAndALineThatIsNoneIsTold) {
  Ouvre();
  TapeLectures(kCinq);
  const std::vector<LectureListee> avant = p.lectures;
  Jouera([this] { Donne("matin.txt"); });
  ClicControle(bureau, f.Command3[6]);
  ClicControle(bureau, f.Command3[3]);
  ClicControle(bureau, f.Command3[5]);
  ASSERT_EQ(p.lectures.size(), avant.size());
  for (std::size_t i = 0; i < avant.size(); ++i) {
    EXPECT_EQ(SecondesEntre(avant[i].utc, p.lectures[i].utc), 0);
    EXPECT_NEAR(*p.lectures[i].lecture, *avant[i].lecture, 0.0006 / 60);
  }
  Pose(lieu / "matin.txt", "21/06/2026 09:00:00 42 10.5\nrien\n");
  boites.clear();
  ClicControle(bureau, f.Command3[5]);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr(f.TexteLigne.legende + "2"));
  EXPECT_EQ(p.lectures.size(), avant.size());
}

TEST_F(FenetreDeSerie, ARowThatIsFollowedKeepsItsPlaceInTheOrderOfTime) {
  std::vector<LectureListee> lectures = {{A("09:03:00"), 3.0, false},
                                         {A("09:01:00"), 1.0, false},
                                         {A("09:02:00"), 2.0, false},
                                         {A("09:03:00"), 4.0, false}};
  std::size_t suivie = 3;
  OrdonneLectures(lectures, suivie);
  ASSERT_EQ(lectures.size(), 3U);
  EXPECT_EQ(suivie, 2U);
  EXPECT_EQ(lectures[2].lecture, 4.0);
  EXPECT_EQ(lectures[0].lecture, 1.0);
}

TEST_F(FenetreDeSerie, NothingToldIsTouched) {
  TapeVisee();
  Calcule();
  const AffichageDroite affichage = bureau.affichage;
  const ValeursVisee visee = bureau.visee;
  const Observation panneau = LitPanneau(d);
  Ouvre();
  TapeLectures(kCinq);
  Page(PageSerie::Midi);
  Page(PageSerie::Lune);
  ClicControle(bureau, f.Command2);
  EXPECT_EQ(bureau.affichage, affichage);
  EXPECT_EQ(bureau.visee, visee);
  EXPECT_EQ(LitPanneau(d), panneau);
}

} // namespace
} // namespace velmaris::essais

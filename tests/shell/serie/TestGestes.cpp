#include "OutilsFenetreSerie.hpp"

#include "shell/Demarrage.hpp"

/// What the window of runs takes back, what it asks to be mended, and what it says of a bad run.
namespace velmaris::essais {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::vector<const char *> kSept = {"09:00:10", "09:01:02", "09:02:05", "09:02:58",
                                         "09:04:01", "09:05:00", "09:06:03"};

class GestesDeSerie : public FenetreDeSerie {
protected:
  void Annule() {
    RevientDans(bureau, kFenetreSerie, false);
    AccordeSerie(bureau);
  }
  void Retablit() {
    RevientDans(bureau, kFenetreSerie, true);
    AccordeSerie(bureau);
  }
};

TEST_F(GestesDeSerie, RemovingAllEmptiesTheFieldsTooAndUndoBringsAllBack) {
  Ouvre();
  TapeLectures(kSept);
  CocheLigne(bureau, f.Lectures, 3);
  SaisitTexte(bureau, f.Text4[0], "09:07:00");
  SaisitTexte(bureau, f.Text4[1], "44 20");
  ClicControle(bureau, f.Command3[3]);
  AccordeSerie(bureau);
  EXPECT_THAT(p.lectures, IsEmpty());
  EXPECT_EQ(f.Text4[0].texte + f.Text4[1].texte, "");
  Annule();
  ASSERT_EQ(p.lectures.size(), kSept.size());
  EXPECT_TRUE(p.lectures[3].ecartee);
  EXPECT_EQ(f.Text4[0].texte, "09:07:00");
  EXPECT_EQ(f.Text4[1].texte, "44 20");
  EXPECT_EQ(p.fiche.comptees, kSept.size() - 1) << "the run is worked out anew";
  EXPECT_THAT(f.LabAvis.legende, AllOf(HasSubstr(bureau.etat.TexteAnnule.legende), HasSubstr(f.Command3[3].legende)));
  Retablit();
  EXPECT_THAT(p.lectures, IsEmpty());
}

TEST_F(GestesDeSerie, EachChangeOfTheListIsUndoneInItsTurnAndRedone) {
  Ouvre();
  Tape2("09:00:00", "42 10");
  Tape2("09:01:00", "42 20");
  CocheLigne(bureau, f.Lectures, 0);
  ChoisitLignes(bureau, f.Lectures, {1}, 1);
  ClicControle(bureau, f.Command3[2]);
  ASSERT_EQ(p.lectures.size(), 1U);
  Annule();
  EXPECT_EQ(p.lectures.size(), 2U);
  Annule();
  EXPECT_FALSE(p.lectures[0].ecartee);
  Annule();
  EXPECT_EQ(p.lectures.size(), 1U);
  EXPECT_EQ(f.Text4[0].texte, "09:01:00") << "what was typed is there to be mended";
  Annule();
  EXPECT_EQ(p.lectures.size(), 0U);
  Annule();
  EXPECT_THAT(f.LabAvis.legende, HasSubstr(bureau.etat.TexteRienAnnuler.legende));
  for (int pas = 0; pas < 4; ++pas) {
    Retablit();
  }
  ASSERT_EQ(p.lectures.size(), 1U);
  EXPECT_TRUE(p.lectures[0].ecartee);
}

TEST_F(GestesDeSerie, WhatWentIntoThePanelIsTakenBackThereBeforeTheReadings) {
  TapeVisee();
  Ouvre();
  const Observation avant = LitPanneau(d);
  TapeLectures(kSept);
  ClicControle(bureau, f.Prend);
  ASSERT_NE(LitPanneau(d), avant);
  Annule();
  EXPECT_EQ(LitPanneau(d), avant);
  EXPECT_EQ(p.lectures.size(), kSept.size());
  Annule();
  EXPECT_EQ(p.lectures.size(), kSept.size() - 1);
}

TEST_F(GestesDeSerie, WhatWasTakenBackInTheMainWindowIsNotTakenBackTwice) {
  TapeVisee();
  Ouvre();
  TapeLectures(kSept);
  ClicControle(bureau, f.Prend);
  ClicControle(bureau, d.PU_Annule);
  const Observation panneau = LitPanneau(d);
  Annule();
  EXPECT_EQ(LitPanneau(d), panneau);
  EXPECT_EQ(p.lectures.size(), kSept.size() - 1);
}

TEST_F(GestesDeSerie, ADistanceOfTheMoonIsTakenBackToo) {
  Ouvre("06:00");
  Page(PageSerie::Lune);
  SaisitTexte(bureau, f.Text5[0], "06:00:00");
  SaisitTexte(bureau, f.Text5[1], "80 10");
  ClicControle(bureau, f.Command4[0]);
  ASSERT_EQ(p.distances.size(), 1U);
  Annule();
  EXPECT_TRUE(p.distances.empty());
  EXPECT_EQ(f.Text5[1].texte, "80 10");
}

TEST_F(GestesDeSerie, ReturnGoesFromTheHourToTheReadingAddsItAndComesBack) {
  Ouvre();
  SaisitTexte(bureau, f.Text4[0], "09:00:00");
  ValideControle(bureau, f.Text4[0]);
  EXPECT_EQ(bureau.focus, &f.Text4[1]);
  EXPECT_TRUE(p.lectures.empty());
  SaisitTexte(bureau, f.Text4[1], "42 10");
  ValideControle(bureau, f.Text4[1]);
  EXPECT_EQ(bureau.focus, &f.Text4[0]);
  EXPECT_EQ(p.lectures.size(), 1U);
}

TEST_F(GestesDeSerie, ARefusedFieldGetsTheKeyboardItsTextSelectedToBeTypedOver) {
  Ouvre();
  SaisitTexte(bureau, f.Text4[0], "9h");
  ValideControle(bureau, f.Text4[0]);
  EXPECT_EQ(bureau.focus, &f.Text4[0]) << "an hour that is none isn't left";
  EXPECT_TRUE(f.Text4[0].toutSelectionne);
  EXPECT_FALSE(f.Text4[0].alerte.empty());
  SaisitTexte(bureau, f.Text4[0], "09:00:00");
  ValideControle(bureau, f.Text4[0]);
  EXPECT_TRUE(f.Text4[0].alerte.empty());
  SaisitTexte(bureau, f.Text4[1], "42 99");
  ValideControle(bureau, f.Text4[1]);
  EXPECT_EQ(bureau.focus, &f.Text4[1]);
  EXPECT_TRUE(f.Text4[1].toutSelectionne);
  EXPECT_TRUE(p.lectures.empty());
}

TEST_F(GestesDeSerie, TwoBlundersAreToldOneAfterTheOtherAsTheyAreLeftOut) {
  Ouvre();
  TapeLectures(kSept, {0.1, 9, -0.2, 0.2, -6, 0.1, -0.1});
  ASSERT_EQ(p.fiche.improbable, 1U);
  EXPECT_THAT(Lignes(f.LabSerie), HasSubstr(f.MotAvis[8].legende)) << "even without it the others scatter too much";
  CocheLigne(bureau, f.Lectures, 1);
  AccordeSerie(bureau);
  ASSERT_EQ(p.fiche.improbable, 4U);
  CocheLigne(bureau, f.Lectures, 4);
  AccordeSerie(bureau);
  EXPECT_FALSE(p.fiche.improbable);
  EXPECT_THAT(p.fiche.avis, IsEmpty());
}

TEST_F(GestesDeSerie, OfFiveReadingsTheSecondBlunderIsToldToo) {
  Ouvre();
  TapeLectures({"09:00:10", "09:01:02", "09:02:05", "09:02:58", "09:04:01"}, {0.1, 12, 0, -6, 0.1});
  ASSERT_EQ(p.fiche.improbable, 1U);
  CocheLigne(bureau, f.Lectures, 1);
  AccordeSerie(bureau);
  EXPECT_EQ(p.fiche.improbable, 3U);
}

TEST_F(GestesDeSerie, TakingABadRunSaysSoAndTakesItAllTheSame) {
  TapeVisee();
  Ouvre();
  TapeLectures(kSept, {0.1, 9, -0.2, 0.2, -0.1, 0.1, -0.1});
  ClicControle(bureau, f.Prend);
  AccordeSerie(bureau);
  EXPECT_EQ(LitPanneau(d).heure, "09");
  EXPECT_THAT(bureau.etat.avis, HasSubstr(f.TexteMalgre.legende + f.MotAvis[6].legende + "09:01:02"));
  EXPECT_EQ(f.LabAvis.legende, bureau.etat.avis) << "the status line lies under the window";
  CocheLigne(bureau, f.Lectures, 1);
  ClicControle(bureau, f.Prend);
  EXPECT_THAT(bureau.etat.avis, Not(HasSubstr(f.TexteMalgre.legende)));
}

TEST_F(GestesDeSerie, APanelWithoutPositionGetsTheOneOfTheRun) {
  Ouvre();
  TapeLectures(kSept);
  ClicControle(bureau, f.Prend);
  const Observation o = LitPanneau(d);
  EXPECT_EQ(o.latitudeDegres + " " + o.latitudeMinutes, "47 30");
  EXPECT_EQ(o.longitudeDegres + " " + o.longitudeMinutes, "05 10");
  EXPECT_FALSE(o.sud);
  EXPECT_FALSE(o.est);
  EXPECT_THAT(d.Text8.alerte, IsEmpty());
  ClicControle(bureau, d.PU_Annule);
  EXPECT_EQ(LitPanneau(d).latitudeDegres, "");
}

TEST_F(GestesDeSerie, AComplaintGoesWithItsPageItsWindowAndItsLanguage) {
  Ouvre();
  const auto refuse = [&] {
    Tape2("25:00", "42 99");
    ASSERT_THAT(f.LabAvis.legende, HasSubstr(f.TexteHors.legende));
  };
  refuse();
  Page(PageSerie::Midi);
  EXPECT_THAT(f.LabAvis.legende, IsEmpty());
  EXPECT_THAT(f.Text4[0].alerte, IsEmpty());
  refuse();
  ClicControle(bureau, f.Command2);
  ClicControle(bureau, d.PU_Serie);
  AccordeSerie(bureau);
  EXPECT_THAT(f.LabAvis.legende, IsEmpty());
  SaisitTexte(bureau, f.Text1[2], "97 N");
  Image10_Click(bureau, 1);
  AccordeSerie(bureau);
  EXPECT_THAT(f.LabAvis.legende, HasSubstr(f.TexteHors.legende + f.Text1[2].infobulle)) << "in the other language";
}

TEST_F(GestesDeSerie, AnEmptyFieldThatIsRefusedIsToldByItsCaption) {
  Ouvre();
  Page(PageSerie::Lune);
  ClicControle(bureau, f.Command4[0]);
  AccordeSerie(bureau);
  EXPECT_THAT(f.LabAvis.legende, StartsWith(f.Label6[0].legende + " : "));
  EXPECT_EQ(bureau.focus, &f.Text5[0]);
}

} // namespace
} // namespace velmaris::essais

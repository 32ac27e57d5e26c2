#include "tests/shell/bureau/OutilsBureau.hpp"

#include "sights/Observation.hpp"

namespace velmaris::essais {
namespace {

struct Cas {
  const char *tape;
  const char *reste;
};

TEST_F(Programme, EnteringAFieldSelectsItsWholeText) {
  for (Controle *champ : {&d.TDate[0], &d.Text3, &d.Text8, &d.Text13, &d.Text25}) {
    champ->toutSelectionne = false;
    EntreChamp(bureau, *champ);
    EXPECT_TRUE(champ->toutSelectionne) << champ->nom;
  }
}

TEST_F(Programme, ADayOutsideItsMonthLengthsIsEmptiedAndAnAcceptedOneHasTwoDigits) {
  DemarreSansCarte();
  for (const Cas &cas :
       {Cas{"0", "00"}, {"1", "01"}, {"31", "31"}, {"32", ""}, {"-1", ""}, {"9 juin", "09"}, {"2.6", "03"}}) {
    Tape(d.TDate[0], cas.tape);
    EXPECT_EQ(d.TDate[0].texte, cas.reste) << cas.tape;
  }
}

TEST_F(Programme, AMonthGoesToTwelve) {
  DemarreSansCarte();
  for (const Cas &cas : {Cas{"12", "12"}, {"13", ""}, {"0", "00"}, {"-0.5", ""}, {"juin", "00"}}) {
    Tape(d.TDate[1], cas.tape);
    EXPECT_EQ(d.TDate[1].texte, cas.reste) << cas.tape;
  }
}

TEST_F(Programme, AYearUnderAHundredIsOfThisCenturyAndFiveThousandIsTheLast) {
  DemarreSansCarte();
  for (const Cas &cas :
       {Cas{"9", "2009"}, {"99", "2099"}, {"100", "0100"}, {"5000", "5000"}, {"5001", ""}, {"-1", ""}, {"", "2000"}}) {
    Tape(d.TDate[2], cas.tape);
    EXPECT_EQ(d.TDate[2].texte, cas.reste) << cas.tape;
  }
}

TEST_F(Programme, ACommaInAWholeNumberFieldIsADecimalSignAndTheLeftFieldShowsWhatIsUsed) {
  DemarreSansCarte();
  for (Controle *champ : {&d.Text3, &d.Text4, &d.Text5, &d.Text6, &d.Text7, &d.Text8, &d.Text9, &d.Text12, &d.Text13}) {
    for (const Cas &cas : {Cas{"50,9", "51"},
                           {"50.9", "51"},
                           {"50,4", "50"},
                           {"0,5", "01"},
                           {" 7,2 ", "07"},
                           {"-0,5", ""},
                           {"180,5", ""},
                           {"3,7x", "3.7x"},
                           {"1,2,3", "1.2.3"}}) {
      Tape(*champ, cas.tape);
      EXPECT_EQ(champ->texte, cas.reste) << champ->nom << " " << cas.tape;
    }
  }
  Tape(d.Text12, "60,5");
  EXPECT_EQ(d.Text12.texte, "") << "the limit sees the whole number";
}

TEST_F(Programme, ADateHasNoDecimalComma) {
  DemarreSansCarte();
  for (const Cas &cas : {Cas{"12,9", "12"}, {"12.9", "13"}}) {
    Tape(d.TDate[0], cas.tape);
    EXPECT_EQ(d.TDate[0].texte, cas.reste) << cas.tape;
  }
}

TEST_F(Programme, MinutesTypedWithACommaAreReducedAsTheyShow) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text12, "35");
  Calcule();
  const float attendu = bureau.visee.Intercept;
  Tape(d.Text12, "34,9");
  Calcule();
  EXPECT_EQ(bureau.visee.Intercept, attendu);
}

TEST_F(Programme, HoursMinutesAndSecondsAllGoToSixtyAndKeepATextThatIsNoNumber) {
  DemarreSansCarte();
  for (Controle *champ : {&d.Text3, &d.Text4, &d.Text5, &d.Text7, &d.Text9, &d.Text12}) {
    for (const Cas &cas :
         {Cas{"5", "05"}, {"60", "60"}, {"61", ""}, {"-1", ""}, {"", ""}, {"12abc", "12abc"}, {"é", "é"}}) {
      Tape(*champ, cas.tape);
      EXPECT_EQ(champ->texte, cas.reste) << champ->nom << " " << cas.tape;
    }
  }
}

TEST_F(Programme, DegreesOfLatitudeShareTheLimitOfTheLongitude) {
  DemarreSansCarte();
  for (Controle *champ : {&d.Text6, &d.Text8}) {
    for (const Cas &cas : {Cas{"5", "05"}, {"180", "180"}, {"181", ""}, {"-5", ""}, {"47x", "47x"}}) {
      Tape(*champ, cas.tape);
      EXPECT_EQ(champ->texte, cas.reste) << champ->nom << " " << cas.tape;
    }
  }
}

TEST_F(Programme, AReadingOffAnArtificialHorizonIsADoubleAngle) {
  DemarreSansCarte();
  Tape(d.Text13, "120");
  EXPECT_EQ(d.Text13.texte, "");
  Tape(d.Text13, "90");
  EXPECT_EQ(d.Text13.texte, "90");
  ClicOption(bureau, d.Option5[1]);
  Tape(d.Text13, "120");
  EXPECT_EQ(d.Text13.texte, "120");
  Tape(d.Text13, "181");
  EXPECT_EQ(d.Text13.texte, "");
}

TEST_F(Programme, EyeHeightAndIndexErrorHoldACommaAndTheirLimitsSeeOnlyWhatStandsBeforeIt) {
  DemarreSansCarte();
  for (const Cas &cas : {Cas{"2.5", "2,5"},
                         {"2,56", "2,6"},
                         {"3", "3,0"},
                         {"-1", ""},
                         {"-0,5", "-0,5"},
                         {"", ""},
                         {"deux", "deux"},
                         {"1.2.3", "1,2,3"}}) {
    Tape(d.Text10, cas.tape);
    EXPECT_EQ(d.Text10.texte, cas.reste) << cas.tape;
  }
  for (const Cas &cas : {Cas{"-1.0", "-1,0"}, {"60,9", "60,9"}, {"61", ""}, {"-60", "-60,0"}, {"-61", ""}}) {
    Tape(d.Text11, cas.tape);
    EXPECT_EQ(d.Text11.texte, cas.reste) << cas.tape;
  }
}

TEST_F(Programme, TheFractionOfTheReadingIsCutToTwoCharactersAsItIsTyped) {
  DemarreSansCarte();
  SaisitTexte(bureau, d.Text25, "123");
  EXPECT_EQ(d.Text25.texte, "12");
  SaisitTexte(bureau, d.Text25, "éàü");
  EXPECT_EQ(d.Text25.texte, "éà");
}

TEST_F(Programme, TheWeekdayStandsOverADateAndThePlainCaptionOverAnImpossibleOne) {
  DemarreSansCarte();
  EXPECT_EQ(d.Label1.legende, "Sunday :");
  SaisitTexte(bureau, d.TDate[0], "22");
  EXPECT_EQ(d.Label1.legende, "Monday :");
  SaisitTexte(bureau, d.TDate[0], "31");
  EXPECT_EQ(d.Label1.legende, "Jour :");
  SaisitTexte(bureau, d.TDate[0], "");
  EXPECT_EQ(d.Label1.legende, "Jour :");
}

TEST_F(Programme, AWeekdayThatOpensWithAnAccentTakesItsCapital) {
  DemarreSansCarte();
  bureau.ports.nomJour = [](const ValeurDate &) { return std::string("éday"); };
  SaisitTexte(bureau, d.TDate[0], "23");
  EXPECT_EQ(d.Label1.legende, "Éday :");
}

TEST_F(Programme, AWeekdayThatTheSystemCannotNameLeavesTheColonAlone) {
  DemarreSansCarte();
  bureau.ports.nomJour = [](const ValeurDate &) { return std::string(); };
  SaisitTexte(bureau, d.TDate[0], "23");
  EXPECT_EQ(d.Label1.legende, " :");
}

TEST_F(Programme, SecondsAndHundredthsChangeTheMarksOfTheReadingAndAreKeptAtOnce) {
  DemarreSansCarte();
  EXPECT_TRUE(d.Label9.visible);
  EXPECT_EQ(d.Label68.legende, "''");
  EXPECT_FALSE(d.Label69.visible);
  ClicOption(bureau, d.Option4[1]);
  EXPECT_FALSE(d.Label9.visible);
  EXPECT_EQ(d.Label68.legende, "'");
  EXPECT_TRUE(d.Label69.visible);
  EXPECT_EQ(Reglage("Prec"), "1");
  ClicOption(bureau, d.Option4[0]);
  EXPECT_EQ(Reglage("Prec"), "0");
}

TEST_F(Programme, HundredthsKeepTheirMarkThroughLanguagesAndAfterARestart) {
  DemarreSansCarte();
  ClicOption(bureau, d.Option4[1]);
  for (const std::size_t langue : {1U, 0U}) {
    ClicControle(bureau, d.Image10[langue]);
    EXPECT_EQ(d.Label68.legende, "'");
    EXPECT_FALSE(d.Label9.visible);
    EXPECT_TRUE(d.Label69.visible);
  }
  Bureau suivant;
  Branche(suivant);
  Donnees_Charge(suivant, {});
  EXPECT_TRUE(suivant.donnees.Option4[1].choisi);
  EXPECT_EQ(suivant.donnees.Label68.legende, "'") << "34.56', not 34.56''";
  EXPECT_TRUE(suivant.donnees.Label69.visible);
}

TEST_F(Programme, AnArtificialHorizonShootsTheCentreAndWarnsInRed) {
  DemarreSansCarte();
  ClicOption(bureau, d.Option5[1]);
  EXPECT_TRUE(d.Option6[2].choisi);
  EXPECT_FALSE(d.Option6[0].actif);
  EXPECT_FALSE(d.Option6[1].actif);
  for (const Controle *champ : {&d.Text12, &d.Text13, &d.Text25}) {
    EXPECT_EQ(champ->couleur, kRouge);
  }
  ClicOption(bureau, d.Option5[0]);
  EXPECT_TRUE(d.Option6[1].choisi);
  EXPECT_TRUE(d.Option6[0].actif);
  EXPECT_TRUE(d.Option6[1].actif);
  for (const Controle *champ : {&d.Text12, &d.Text13, &d.Text25}) {
    EXPECT_EQ(champ->couleur, kNoir);
  }
}

TEST_F(Programme, OptionsOfOneGroupExcludeEachOtherAndLeaveTheOthers) {
  DemarreSansCarte();
  ClicOption(bureau, d.OptN[0]);
  EXPECT_TRUE(d.OptN[0].choisi);
  EXPECT_FALSE(d.OptN[1].choisi);
  EXPECT_TRUE(d.OptN[2].choisi) << "the departure's own side";
  EXPECT_TRUE(d.OptE[1].choisi);
}

TEST_F(Programme, EachKindOfBodyShowsItsPictureItsListAndItsLimb) {
  DemarreSansCarte();
  const auto images = [&] {
    std::string visibles;
    for (const Controle &image : d.ImAstre) {
      visibles += image.visible ? '1' : '0';
    }
    return visibles;
  };
  d.Option6[0].accent = true;
  d.Bayer1.legende = "a";
  SelAstre(bureau, 2);
  EXPECT_EQ(images(), "0010");
  EXPECT_TRUE(d.Combo7.visible);
  EXPECT_TRUE(d.Option6[2].choisi);
  EXPECT_FALSE(d.Option6[0].actif || d.Option6[1].actif);
  EXPECT_FALSE(d.Option6[0].accent);
  EXPECT_EQ(d.Bayer1.legende, "");
  SelAstre(bureau, 3);
  EXPECT_EQ(images(), "0001");
  EXPECT_FALSE(d.Combo7.visible);
  EXPECT_TRUE(d.Check3.visible && d.Combo8.visible);
  EXPECT_EQ(d.Check3.valeur, 1);
  EXPECT_FALSE(d.Combo6.visible);
  SelAstre(bureau, 0);
  EXPECT_EQ(images(), "1000");
  EXPECT_TRUE(d.Option6[1].choisi);
  EXPECT_TRUE(d.Option6[0].actif && d.Option6[1].actif);
  EXPECT_FALSE(d.Check3.visible || d.Combo8.visible || d.Combo6.visible);
}

TEST_F(Programme, TheShortListOfStarsTakesThePlaceOfTheWholeOne) {
  d.Check3.valeur = 1;
  Check3_Click(bureau, -1);
  EXPECT_TRUE(d.Combo8.visible);
  EXPECT_FALSE(d.Combo6.visible);
  d.Check3.valeur = 0;
  Check3_Click(bureau, -1);
  EXPECT_FALSE(d.Combo8.visible);
  EXPECT_TRUE(d.Combo6.visible);
}

TEST_F(Programme, TopTakesThePresentGmtAndHandsTheFocusToTheReading) {
  DemarreSansCarte();
  temps = {2027, 1, 0, 2, 3, 4, 5, 999};
  ClicControle(bureau, d.Command1);
  EXPECT_EQ(d.Text3.texte + d.Text4.texte + d.Text5.texte, "030405");
  EXPECT_EQ(d.TDate[0].texte + "/" + d.TDate[1].texte + "/" + d.TDate[2].texte, "02/01/2027");
  EXPECT_EQ(d.Label1.legende, "Saturday :");
  EXPECT_EQ(bureau.focus, &d.Text13);
}

TEST_F(Programme, EveryFieldSurvivesGarbageAccentsAndTenThousandCharacters) {
  DemarreSansCarte();
  const std::string longs[] = {
      std::string(10000, '9'), std::string(10000, 'x'),      "1e308", "1e999", "-1e999", "\xff\xfe\x01",
      "àéïôù ß 漢字",          std::string(5000, ' ') + "7", "+-5",   "NaN",   "inf",    "&HFF"};
  for (Controle *champ : {&d.TDate[0], &d.TDate[1], &d.TDate[2], &d.Text3, &d.Text4, &d.Text5, &d.Text6, &d.Text7,
                          &d.Text8, &d.Text9, &d.Text10, &d.Text11, &d.Text12, &d.Text13, &d.Text25}) {
    for (const std::string &texte : longs) {
      TapeVisee();
      Tape(*champ, texte);
      Calcule();
      EXPECT_EQ(d.Affichage_Intercept.legende.find("nan"), std::string::npos)
          << champ->nom << " " << texte.substr(0, 20);
      EXPECT_EQ(d.Affichage_Intercept.legende.find("inf"), std::string::npos)
          << champ->nom << " " << texte.substr(0, 20);
    }
  }
  EXPECT_TRUE(boites.empty());
}

} // namespace
} // namespace velmaris::essais

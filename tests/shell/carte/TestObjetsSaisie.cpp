#include "tests/shell/carte/OutilsObjets.hpp"

#include <gmock/gmock.h>

#include <array>
#include <cmath>

/// What the fields of an object become, what is shown of it again, and what can't be taken.
namespace velmaris::essais {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SaisieObjets : public AvecObjets {
protected:
  /// What "Nouveau" refuses: one box that bears the number, nothing changed, the keyboard at the field.
  void Refuse(int numero, const Controle &champ) {
    const std::vector<Objet> avant = u.tables;
    const std::string compte = u.etiquetteCommand1;
    boites.clear();
    Nouveau();
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_THAT(boites[0].texte, HasSubstr(" " + std::to_string(numero) + "\n" + std::string(SensErreur(numero))));
    EXPECT_EQ(bureau.focus, &champ) << champ.nom;
    EXPECT_EQ(u.tables, avant);
    EXPECT_EQ(u.etiquetteCommand1, compte);
    EXPECT_EQ(u.Modifie, 0);
    EXPECT_TRUE(u.cadre.visible);
  }

  /// A well typed entry with one field replaced.
  void SaisitAvec(Controle &champ, const std::string &texte) {
    Saisit("A", "4", "47", "15", 'N', "5", "30", 'W');
    Tape(champ, texte);
  }
};

/// Two digits at least.
std::string Deux(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

TEST_F(SaisieObjets, TheFourSidesHaveTheirSigns) {
  Ouvre();
  const auto signes = [&](char ns, char ew) {
    Saisit("A", "4", "1", "0", ns, "1", "0", ew);
    Objet objet;
    ConstruitPosition(u, objet);
    return objet.Latitude.substr(0, 1) + objet.Longitude.substr(0, 1);
  };
  EXPECT_EQ(signes('N', 'W'), "++");
  EXPECT_EQ(signes('N', 'E'), "+-");
  EXPECT_EQ(signes('S', 'W'), "-+");
  EXPECT_EQ(signes('S', 'E'), "--");
}

TEST_F(SaisieObjets, EveryWholeMinuteIsTheNearestHundredthAndShownAsItself) {
  Ouvre();
  for (int degres = 0; degres <= 90; degres += 9) {
    for (int minutes = 0; minutes < 60; ++minutes) {
      Saisit("A", "4", std::to_string(degres), std::to_string(minutes), 'N', std::to_string(2 * degres),
             std::to_string(minutes), 'E');
      Nouveau();
      const int centiemes = (5 * minutes + 1) / 3; // 5/3 of a minute, to nearest: no half comes up
      const std::size_t n = CompteObjets(u) - 1;
      ASSERT_EQ(u.tables[n].Latitude, "+" + Deux(degres) + "." + Deux(centiemes)) << minutes;
      ASSERT_EQ(u.tables[n].Longitude, "-" + Deux(2 * degres) + "." + Deux(centiemes)) << minutes;
      Choisit(static_cast<int>(n));
      ASSERT_EQ(u.Text8.texte, Deux(degres));
      ASSERT_EQ(u.Text9.texte, Deux(minutes)) << degres;
      ASSERT_EQ(u.Text6.texte, Deux(2 * degres));
      ASSERT_EQ(u.Text7.texte, Deux(minutes)) << degres;
    }
  }
}

TEST_F(SaisieObjets, EveryHundredthIsStoredAsTypedAndShownAsItself) {
  Ouvre();
  ClicOption(bureau, u.Option1[1]);
  for (int i = 0; i < 9000; i += 7) {
    const bool nord = i % 2 == 0;
    const std::string degres = Deux(i / 100);
    const std::string parties = Deux(i % 100);
    Saisit("A", "4", degres, parties, nord ? 'N' : 'S', degres, parties, nord ? 'W' : 'E');
    Nouveau();
    const std::size_t n = CompteObjets(u) - 1;
    ASSERT_EQ(u.tables[n].Latitude, (nord ? "+" : "-") + degres + "." + parties);
    ASSERT_EQ(u.tables[n].Longitude, (nord ? "+" : "-") + degres + "." + parties);
    Tape(u.Text8, "");
    Tape(u.Text9, "");
    ClicOption(bureau, u.OptN[nord ? 1 : 0]);
    Choisit(static_cast<int>(n));
    ASSERT_EQ(u.Text8.texte + "." + u.Text9.texte, degres + "." + parties);
    ASSERT_EQ(u.Text6.texte + "." + u.Text7.texte, degres + "." + parties);
    ASSERT_EQ(u.OptN[0].choisi, nord && i > 0);
    ASSERT_EQ(u.OptE[1].choisi, nord && i > 0);
  }
}

TEST_F(SaisieObjets, InTheModeOfMinutesAnyHundredthIsShownAsItsNearestMinute) {
  std::string octets;
  for (int c = 0; c < 100; ++c) {
    octets += "+43." + Deux(c) + " +005." + Deux(c) + " 4 A\n";
  }
  OuvreSur(octets);
  for (int c = 0; c < 100; ++c) {
    Choisit(c);
    const int minutes = (6 * c + 5) / 10; // to nearest: 6c is even, so no half comes up
    ASSERT_EQ(u.Text9.texte, Deux(minutes)) << c;
    ASSERT_EQ(u.Text7.texte, Deux(minutes)) << c;
  }
}

TEST_F(SaisieObjets, TheModeSetsTheSignsAndConvertsNothing) {
  Ouvre();
  const auto signes = [&] { return u.Label23.legende + u.Label11.legende + u.Label25.legende + u.Label19.legende; };
  EXPECT_EQ(signes(), "°'°'");
  Saisit("A", "4", "43", "30", 'N', "5", "15", 'W');
  ClicOption(bureau, u.Option1[1]);
  EXPECT_EQ(u.Precision, 100);
  EXPECT_EQ(signes(), ".°.°");
  EXPECT_EQ(u.Text9.texte + u.Text7.texte, "3015");
  Nouveau();
  EXPECT_EQ(u.tables[0].Latitude, "+43.30");
  ClicOption(bureau, u.Option1[0]);
  EXPECT_EQ(u.Precision, 60);
  EXPECT_EQ(signes(), "°'°'");
  Nouveau();
  EXPECT_EQ(u.tables[1].Latitude, "+43.50");
}

TEST_F(SaisieObjets, MinutesThatRoundToAHundredHundredthsKeepTheirThreeDigits) {
  Ouvre();
  Saisit("A", "4", "43", "59.7", 'N', "5", "60", 'W'); // 99.5 and 100
  Nouveau();
  EXPECT_EQ(u.tables[0].Latitude, "+43.100");
  EXPECT_EQ(u.tables[0].Longitude, "+05.100");
  Ferme();
  Ouvre();
  EXPECT_EQ(u.tables[0], (Objet{"+43.100", "+05.100", 4, "A"}));
}

TEST_F(SaisieObjets, ALatitudeOfSevenCharactersLeavesTheRadiusOutOfTheLongitude) {
  Ouvre();
  Saisit("A", "4", "43", "60", 'N', "5", "0", 'W');
  Nouveau();
  Ferme();
  for (int i = 0; i < 3; ++i) {
    Ouvre();
    EXPECT_EQ(u.tables[0], (Objet{"+43.100", "+05.00", 4, "A"})) << i;
    u.Modifie = -1;
    Ferme();
  }
}

TEST_F(SaisieObjets, DegreesOfMoreThanOneDigitOrWithAFractionAreRoundedByTheirMask) {
  Ouvre();
  Saisit("A", "4", "007", "0", 'N', "4.5", "0", 'W');
  Nouveau();
  EXPECT_EQ(u.tables[0].Latitude, "+07.00");
  EXPECT_EQ(u.tables[0].Longitude, "+05.00");
}

TEST_F(SaisieObjets, ACommaIsADecimalSignInEveryNumberOfAnObject) {
  Ouvre();
  Saisit("A", "3,5", "47,0", "30,6", 'N', "4,5", "15,0", 'W');
  Nouveau();
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_EQ(u.tables[0], (Objet{"+47.51", "+05.25", 4, "A"})) << "30.6 minutes are 51 hundredths";
}

TEST_F(SaisieObjets, TheRadiusIsTheNumberAtItsStartRoundedTiesToEven) {
  Ouvre();
  const std::vector<std::pair<std::string, int>> cas = {{"4", 4},    {"2.5", 2},         {"3.5", 4},
                                                        {"", 0},     {"3 Nm", 3},        {"abc", 0},
                                                        {"-0.5", 0}, {"32767.4", 32767}, {"-32768", -32768}};
  for (const auto &[texte, rayon] : cas) {
    SaisitAvec(u.Text3, texte);
    Nouveau();
    EXPECT_EQ(u.tables[CompteObjets(u) - 1].Rayon, rayon) << texte;
  }
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(SaisieObjets, ARadiusOutOfSixteenBitsIsAnOverflow) {
  Ouvre();
  for (const char *texte : {"32767.5", "99999", "-32769", "1E300"}) {
    SaisitAvec(u.Text3, texte);
    Refuse(6, u.Text3);
  }
}

TEST_F(SaisieObjets, APositionFieldThatIsNoNumberIsATypeMismatchAndNothingChanges) {
  Ouvre();
  for (Controle *champ : {&u.Text8, &u.Text9, &u.Text6, &u.Text7}) {
    for (const char *texte : {"", " ", "x", "4x", "4,5,6", "4 5", "--1"}) {
      SaisitAvec(*champ, texte);
      Refuse(13, *champ);
    }
    SaisitAvec(*champ, "1E999");
    Refuse(6, *champ);
  }
}

TEST_F(SaisieObjets, ASignBelongsToTheSideAndNotToTheDegrees) {
  Ouvre();
  for (auto [champ, repere] :
       {std::pair{&u.Text8, &u.Text8}, {&u.Text9, &u.Text8}, {&u.Text6, &u.Text6}, {&u.Text7, &u.Text6}}) {
    SaisitAvec(*champ, "-5");
    Refuse(13, *repere);
  }
}

TEST_F(SaisieObjets, ALongitudeTooLongForItsPlaceInTheLineIsRefused) {
  Ouvre();
  Saisit("A", "4", "47", "15", 'N', "1234", "15", 'W');
  Refuse(13, u.Text6); // "+1234.2" would be read
}

TEST_F(SaisieObjets, ModifierRefusesTheSameAndKeepsTheEntry) {
  OuvreSur("+43.50 -005.00 2 Est\n");
  Choisit(0);
  Tape(u.Text9, "x");
  Modifie();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(u.tables[0], (Objet{"+43.50", "-005.00", 2, "Est"}));
  EXPECT_EQ(u.Modifie, 0);
  Ferme();
  EXPECT_EQ(Ecrit(), "+43.50 -005.00 2 Est\n");
}

TEST_F(SaisieObjets, AnyNameComesBackAsItWasTyped) {
  const std::vector<std::string> noms = {"",     " avant", "après ",    "a;b",       "; début", "Île d'Ouessant",
                                         "a  b", "Łódź",   "Form=x\\y", "PlusRien ", "1 2 3"};
  Ouvre();
  for (const std::string &nom : noms) {
    Nouveau(nom);
  }
  EXPECT_EQ(u.List1.liste, noms);
  Ferme();
  Ouvre();
  EXPECT_EQ(u.List1.liste, noms);
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(SaisieObjets, ALineBreakInANameBecomesABlank) {
  Ouvre();
  Nouveau("a\nb\r\nc\rd");
  EXPECT_THAT(u.List1.liste, ElementsAre("a b c d"));
  Ferme();
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 a b c d\n");
}

TEST_F(SaisieObjets, ANameThatMarksADeletedEntryIsLeftOutAtTheNextWrite) {
  Ouvre();
  Nouveau("A");
  Nouveau("PlusRien");
  Nouveau("B");
  EXPECT_THAT(u.List1.liste, ElementsAre("A", "PlusRien", "B"));
  Ferme();
  Ouvre();
  EXPECT_THAT(u.List1.liste, ElementsAre("A", "B"));
}

TEST_F(SaisieObjets, TheTwoThousandthEntryIsTheLast) {
  std::string octets;
  for (int i = 0; i < 1999; ++i) {
    octets += "+43.50 -005.00 2 " + std::to_string(i) + "\n";
  }
  OuvreSur(octets);
  Nouveau("dernier");
  EXPECT_EQ(u.etiquetteCommand1, "2000");
  EXPECT_THAT(boites, IsEmpty());
  u.Modifie = 0;
  SaisitAvec(u.Text4, "de trop");
  Refuse(9, u.Command1);
  EXPECT_EQ(u.List1.liste.size(), 2000U);
  u.Modifie = -1;
  Ferme();
  EXPECT_EQ(Ecrit(), octets + "+47.25 +05.50 4 dernier\n");
}

} // namespace
} // namespace velmaris::essais

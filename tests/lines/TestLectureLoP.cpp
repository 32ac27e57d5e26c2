#include "lines/FichierLoP.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <random>

/// The reader of a sight's file, line by line, whole or broken.
namespace velmaris {
namespace {

using namespace essais;

/// A complete file of a planet, as a table of its lines.
std::vector<std::string> LignesCompletes() {
  return {"12",  "05", "30", "15",   "03",  "2009", "006", "07",   "048", "09", "2,0",
          "1,5", "22", "33", "Nord", "Est", "44",   " 2 ", "NATU", " 0 ", "0",  " 3 "};
}

std::string Joint(const std::vector<std::string> &lignes, const std::string &fin) {
  std::string texte;
  for (const std::string &ligne : lignes) {
    texte += ligne + fin;
  }
  return texte;
}

struct Lue {
  TableLoP table;
  Observation observation;
  int corps = -1;
};

/// A sight with a choice made everywhere, so that a line that changes nothing shows.
Observation Avant() {
  Observation o;
  o.corps = Corps::Lune;
  o.bord = Bord::Centre;
  o.horizon = Horizon::Artificiel;
  o.fraction = Fraction::Secondes;
  o.planete = 1;
  o.etoile = 7;
  return o;
}

Lue Lit(const std::string &octets) {
  Lue l;
  l.observation = Avant();
  LitLignesLoP(octets, l.table);
  l.corps = AppliqueLoP(l.table, l.observation);
  return l;
}

/// The complete file with one line changed.
Lue Avec(std::size_t numero, const std::string &ligne) {
  auto lignes = LignesCompletes();
  lignes[numero] = ligne;
  return Lit(Joint(lignes, "\r\n"));
}

TEST(SightReader, EachLineGoesToItsField) {
  const Lue l = Lit(Joint(LignesCompletes(), "\r\n"));
  const Observation &o = l.observation;
  EXPECT_EQ(o.heure, "12");
  EXPECT_EQ(o.minute, "05");
  EXPECT_EQ(o.seconde, "30");
  EXPECT_EQ(o.jour, "15");
  EXPECT_EQ(o.mois, "03");
  EXPECT_EQ(o.annee, "2009");
  EXPECT_EQ(o.longitudeDegres, "006");
  EXPECT_EQ(o.longitudeMinutes, "07");
  EXPECT_EQ(o.latitudeDegres, "048");
  EXPECT_EQ(o.latitudeMinutes, "09");
  EXPECT_EQ(o.hauteurOeil, "2,0");
  EXPECT_EQ(o.collimation, "1,5");
  EXPECT_EQ(o.lectureMinutes, "22");
  EXPECT_EQ(o.lectureDegres, "33");
  EXPECT_FALSE(o.sud);
  EXPECT_TRUE(o.est);
  EXPECT_EQ(o.lectureFraction, "44");
  EXPECT_EQ(l.corps, 2);
  EXPECT_EQ(o.corps, Corps::Planetes);
  EXPECT_EQ(o.horizon, Horizon::Naturel);
  EXPECT_EQ(o.bord, Bord::Superieur);
  EXPECT_EQ(o.fraction, Fraction::Secondes);
  EXPECT_EQ(o.planete, 3);
  EXPECT_EQ(o.etoile, 7);
}

TEST(SightReader, AnyLineEndServesAndTheLastNeedsNone) {
  const std::string attendu = EcritLoP(Lit(Joint(LignesCompletes(), "\r\n")).observation);
  for (const char *fin : {"\r\n", "\n", "\r"}) {
    std::string texte = Joint(LignesCompletes(), fin);
    EXPECT_EQ(EcritLoP(Lit(texte).observation), attendu);
    texte.resize(texte.size() - std::string(fin).size());
    EXPECT_EQ(EcritLoP(Lit(texte).observation), attendu);
  }
}

TEST(SightReader, AShorterFileLeavesTheEntriesOfTheOneBefore) {
  TableLoP table;
  LitLignesLoP(Joint(LignesCompletes(), "\r\n"), table);
  LitLignesLoP("23\r\n59\r\n", table);
  EXPECT_EQ(table[0], "23");
  EXPECT_EQ(table[1], "59");
  EXPECT_EQ(table[2], "30");
  EXPECT_EQ(table[21], " 3 ");
  EXPECT_EQ(table[22], "");
}

TEST(SightReader, AnEmptyFileIsAllEmptyLines) {
  const Lue l = Lit("");
  const Observation &o = l.observation;
  EXPECT_EQ(o.heure, "");
  EXPECT_EQ(o.collimation, "");
  EXPECT_EQ(o.lectureFraction, "");
  EXPECT_TRUE(o.sud) << "anything but Nord is south";
  EXPECT_FALSE(o.est) << "anything but Est is west";
  EXPECT_EQ(l.corps, 0);
  EXPECT_EQ(o.corps, Corps::Soleil) << "an absent number reads as 0";
  EXPECT_EQ(o.horizon, Horizon::Naturel);
  EXPECT_EQ(o.bord, Bord::Inferieur);
  EXPECT_EQ(o.fraction, Fraction::Centiemes);
  EXPECT_EQ(o.etoile, 7);
  EXPECT_EQ(o.planete, 1);
}

TEST(SightReader, AFileOfAnyLengthUpTo31LinesIsRead) {
  for (std::size_t n = 0; n <= 31; ++n) {
    auto lignes = LignesCompletes();
    lignes.resize(n, "x");
    EXPECT_EQ(NumeroErreur([&] { Lit(Joint(lignes, "\r\n")); }), 0) << n;
    EXPECT_EQ(Lit(Joint(lignes, "\n")).observation.heure, n > 0 ? "12" : "");
  }
}

TEST(SightReader, A32ndLineIsASubscriptError) {
  auto lignes = LignesCompletes();
  lignes.resize(32, "");
  TableLoP table;
  EXPECT_EQ(NumeroErreur([&] { LitLignesLoP(Joint(lignes, "\r\n"), table); }), 9);
  EXPECT_EQ(table[21], " 3 ") << "the lines before are in the table";
  lignes.resize(31);
  EXPECT_EQ(NumeroErreur([&] { LitLignesLoP(Joint(lignes, "\n") + "x", table); }), 9);
}

TEST(SightReader, SouthAndWestAreWhateverIsNotNordOrEst) {
  for (const char *ligne : {"Sud", "", "nord", "NORD", " Nord", "Nord ", "North"}) {
    EXPECT_TRUE(Avec(14, ligne).observation.sud) << ligne;
  }
  for (const char *ligne : {"Ouest", "", "est", "EST", " Est", "Est ", "East"}) {
    EXPECT_FALSE(Avec(15, ligne).observation.est) << ligne;
  }
  EXPECT_FALSE(Avec(14, "Nord").observation.sud);
  EXPECT_TRUE(Avec(15, "Est").observation.est);
}

TEST(SightReader, TheFractionIsCutToTwoCharacters) {
  EXPECT_EQ(Avec(16, "123").observation.lectureFraction, "12");
  EXPECT_EQ(Avec(16, "éèà").observation.lectureFraction, "éè");
  EXPECT_EQ(Avec(16, "5").observation.lectureFraction, "5");
}

TEST(SightReader, TheBodyIsANumberFrom0To3) {
  const Corps corps[] = {Corps::Soleil, Corps::Lune, Corps::Planetes, Corps::Etoiles};
  for (int n = 0; n < 4; ++n) {
    for (const char *avant : {" ", "", "  "}) {
      const Lue l = Avec(17, avant + std::to_string(n) + " ");
      EXPECT_EQ(l.observation.corps, corps[n]);
      EXPECT_EQ(l.corps, n);
    }
  }
}

TEST(SightReader, ABodyThatDoesNotExistLeavesTheBodyAsItWas) {
  for (const char *ligne : {"4", "-1", "17", " 30000 "}) {
    const Lue l = Avec(17, ligne);
    EXPECT_EQ(l.observation.corps, Corps::Lune) << ligne;
    EXPECT_EQ(l.corps, std::stoi(ligne)) << ligne;
    EXPECT_EQ(l.observation.planete, 1) << "its list number isn't applied";
    EXPECT_EQ(l.observation.etoile, 7);
  }
}

TEST(SightReader, ATextInANumericLineReadsAsZero) {
  EXPECT_EQ(Avec(17, "Lune").observation.corps, Corps::Soleil);
  EXPECT_EQ(Avec(19, "abc").observation.bord, Bord::Superieur);
  EXPECT_EQ(Avec(20, "x").observation.fraction, Fraction::Secondes);
  EXPECT_EQ(Avec(21, "Mars").observation.planete, 0);
}

TEST(SightReader, TheHorizonLineHasThreeForms) {
  // Each form with the limb that the choice of a horizon sets, before line 19 says its own; a limb out of range shows
  // it.
  const struct {
    const char *ligne;
    Horizon horizon;
    Bord bord;
  } cas[] = {{"", Horizon::Naturel, Bord::Centre},         {"NATU", Horizon::Naturel, Bord::Inferieur},
             {"ARTI", Horizon::Artificiel, Bord::Centre},  {"natu", Horizon::Artificiel, Bord::Centre},
             {"NATU ", Horizon::Artificiel, Bord::Centre}, {"0", Horizon::Artificiel, Bord::Centre}};
  for (const auto &c : cas) {
    auto lignes = LignesCompletes();
    lignes[18] = c.ligne;
    lignes[19] = "9";
    const Lue l = Lit(Joint(lignes, "\r\n"));
    EXPECT_EQ(l.observation.horizon, c.horizon) << c.ligne;
    EXPECT_EQ(l.observation.bord, c.bord) << c.ligne;
  }
}

TEST(SightReader, TheLimbIsANumberFrom0To2AndEmptyCountsAs1) {
  EXPECT_EQ(Avec(19, " 0 ").observation.bord, Bord::Superieur);
  EXPECT_EQ(Avec(19, " 1 ").observation.bord, Bord::Inferieur);
  EXPECT_EQ(Avec(19, " 2 ").observation.bord, Bord::Centre);
  EXPECT_EQ(Avec(19, "").observation.bord, Bord::Inferieur);
  for (const char *ligne : {"3", "-1", "99999", "1E300"}) {
    EXPECT_EQ(Avec(19, ligne).observation.bord, Bord::Inferieur) << "the limb that NATU set stays";
  }
}

TEST(SightReader, TheKindOfFractionIs0Or1AndEmptyCountsAs1) {
  EXPECT_EQ(Avec(20, "0").observation.fraction, Fraction::Secondes);
  EXPECT_EQ(Avec(20, "1").observation.fraction, Fraction::Centiemes);
  EXPECT_EQ(Avec(20, "").observation.fraction, Fraction::Centiemes);
  for (const char *ligne : {"2", "-1", "99999"}) {
    EXPECT_EQ(Avec(20, ligne).observation.fraction, Fraction::Secondes) << ligne;
  }
}

TEST(SightReader, TheListNumberGoesToTheListOfTheBody) {
  auto lignes = LignesCompletes();
  lignes[17] = " 3 ";
  lignes[21] = " 155 ";
  Lue l = Lit(Joint(lignes, "\r\n"));
  EXPECT_EQ(l.observation.etoile, 155) << "the last of the named stars";
  EXPECT_EQ(l.observation.planete, 1);
  lignes[21] = "-1 ";
  l = Lit(Joint(lignes, "\r\n"));
  EXPECT_EQ(l.observation.etoile, -1) << "no star chosen";
  for (const char *ligne : {" 156 ", "-2 ", "99999"}) {
    lignes[21] = ligne;
    EXPECT_EQ(Lit(Joint(lignes, "\r\n")).observation.etoile, 7) << ligne;
  }
  EXPECT_EQ(Avec(21, " 4 ").observation.planete, 1);
  EXPECT_EQ(Avec(21, "-1 ").observation.planete, -1);
}

TEST(SightReader, AListNumberLeftFromAStarFileIsNotAppliedToTheSun) {
  TableLoP table;
  auto lignes = LignesCompletes();
  lignes[17] = " 3 ";
  lignes[21] = " 99 ";
  LitLignesLoP(Joint(lignes, "\r\n"), table);
  lignes[17] = " 0 ";
  lignes.resize(21);
  LitLignesLoP(Joint(lignes, "\r\n"), table);
  ASSERT_EQ(table[21], " 99 ");
  Observation o = Avant();
  AppliqueLoP(table, o);
  EXPECT_EQ(o.etoile, 7);
  EXPECT_EQ(o.planete, 1);
}

TEST(SightReader, LoadingSouthAndWestSelectsBoth) {
  auto lignes = LignesCompletes();
  lignes[14] = "Sud";
  lignes[15] = "Ouest";
  const Observation o = Lit(Joint(lignes, "\r\n")).observation;
  EXPECT_TRUE(o.sud);
  EXPECT_FALSE(o.est);
}

TEST(SightReader, Windows1252AndUtf8AreBothRead) {
  EXPECT_EQ(Avec(0, "\xE9").observation.heure, "é");
  EXPECT_EQ(Avec(0, "é").observation.heure, "é");
  EXPECT_EQ(Lit("\xEF\xBB\xBF"
                "12\r\n")
                .observation.heure,
            "12");
}

TEST(SightReader, BinaryNoiseEndsInATableOrASubscriptError) {
  std::mt19937 alea(30);
  for (int i = 0; i < 500; ++i) {
    std::string octets(alea() % 400, '\0');
    for (char &c : octets) {
      c = static_cast<char>(i % 2 == 0 ? alea() : "0123456789 -+.,E\r\n"[alea() % 18]);
    }
    const int numero = NumeroErreur([&] { Lit(octets); });
    EXPECT_TRUE(numero == 0 || numero == 9) << numero;
  }
}

TEST(SightReader, ZeroBytesAreOneLine) {
  EXPECT_EQ(Lit(std::string(10, '\0')).observation.heure, std::string(10, '\0'));
}

TEST(SightReader, TenMegabytesAreReadWhole) {
  const std::string chiffres(10'000'000, '9');
  auto lignes = LignesCompletes();
  lignes[0] = chiffres;
  EXPECT_EQ(Lit(Joint(lignes, "\r\n")).observation.heure.size(), chiffres.size());
  EXPECT_EQ(Avec(17, chiffres).observation.corps, Corps::Lune);
  EXPECT_EQ(NumeroErreur([] { Lit(std::string(10'000'000, '\n')); }), 9);
}

} // namespace
} // namespace velmaris

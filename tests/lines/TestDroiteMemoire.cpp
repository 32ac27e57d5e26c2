#include "lines/DroiteMemoire.hpp"

#include "tests/OutilsTests.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

namespace velmaris {
namespace {

using essais::NumeroErreur;
using testing::ElementsAre;

/// A sight whose every field has a text of its own.
Observation ObservationPleine() {
  Observation o;
  o.jour = "03";
  o.mois = "04";
  o.annee = "2009";
  o.heure = "11";
  o.minute = "22";
  o.seconde = "33";
  o.longitudeDegres = "005";
  o.longitudeMinutes = "15";
  o.latitudeDegres = "47";
  o.latitudeMinutes = "35";
  o.hauteurOeil = "2,5";
  o.collimation = "-1,2";
  o.lectureMinutes = "44";
  o.lectureDegres = "36";
  o.lectureFraction = "09";
  o.planete = 1;
  o.etoile = 77;
  return o;
}

ValeursVisee Visee(float azimut, float intercept) {
  ValeursVisee v;
  v.Azimut = azimut;
  v.Intercept = intercept;
  return v;
}

std::vector<CleValeur> Enregistre(const Observation &o, int ligne = 2) {
  return ClesEnregistrees(ligne, o, "Soleil", Visee(135, -3.27F));
}

std::vector<std::string> Cles(const std::vector<CleValeur> &reglages) {
  std::vector<std::string> cles;
  for (const CleValeur &r : reglages) {
    cles.push_back(r.cle);
  }
  return cles;
}

/// Value of a key, "absent" when it isn't written.
std::string Valeur(const std::vector<CleValeur> &reglages, const std::string &cle) {
  for (const CleValeur &r : reglages) {
    if (r.cle == cle) {
      return r.valeur;
    }
  }
  return "absent";
}

TEST(StoredLineKey, IsTheFieldTheNumberOfTheLineAndAClosingBracket) {
  EXPECT_EQ(CleDroite("T3(", 2), "T3(2)");
  EXPECT_EQ(CleDroite("Td0(", 0), "Td0(0)");
  EXPECT_EQ(CleDroite("Combo6(", 3), "Combo6(3)");
  EXPECT_EQ(CleDroite("az(", 1), "az(1)");
}

TEST(StoringALine, WritesEveryFieldInOrder) {
  const std::vector<CleValeur> attendu = {
      {"AS(2)", "0"},     {"Bord(2)", "1"},    {"Hor(2)", "0"},    {"O4(2)", "0"},     {"Nom(2)", "Soleil"},
      {"T3(2)", "11"},    {"T4(2)", "22"},     {"T5(2)", "33"},    {"Td0(2)", "03"},   {"Td1(2)", "04"},
      {"Td2(2)", "2009"}, {"T6(2)", "005"},    {"T7(2)", "15"},    {"T8(2)", "47"},    {"T9(2)", "35"},
      {"T10(2)", "2,5"},  {"T11(2)", "-1,2"},  {"T12(2)", "44"},   {"T13(2)", "36"},   {"T25(2)", "09"},
      {"Hem(2)", "Nord"}, {"Lon(2)", "Ouest"}, {"In(2)", "-3270"}, {"Az(2)", "135000"}};
  EXPECT_EQ(Enregistre(ObservationPleine()), attendu);
}

TEST(StoringALine, EveryKeyBearsTheNumberOfTheLine) {
  Observation o = ObservationPleine();
  o.corps = Corps::Etoiles;
  const std::vector<std::string> modele = Cles(Enregistre(o, 0));
  for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
    const std::vector<std::string> cles = Cles(Enregistre(o, ligne));
    ASSERT_EQ(cles.size(), modele.size());
    for (std::size_t i = 0; i < cles.size(); ++i) {
      EXPECT_EQ(cles[i], modele[i].substr(0, modele[i].size() - 2) + std::to_string(ligne) + ")");
    }
  }
}

TEST(StoringALine, TheNumberOfAStarIsThereForAStarAlone) {
  Observation o = ObservationPleine();
  o.corps = Corps::Etoiles;
  const auto reglages = Enregistre(o);
  ASSERT_EQ(reglages.size(), 25U);
  EXPECT_EQ(reglages[0], (CleValeur{"AS(2)", "3"}));
  EXPECT_EQ(reglages[1], (CleValeur{"Combo6(2)", "77"}));
  EXPECT_EQ(reglages[2].cle, "Bord(2)");
  EXPECT_EQ(Valeur(reglages, "Combo7(2)"), "absent");
}

TEST(StoringALine, TheNumberOfAPlanetIsThereForAPlanetAlone) {
  Observation o = ObservationPleine();
  o.corps = Corps::Planetes;
  const auto reglages = Enregistre(o);
  ASSERT_EQ(reglages.size(), 25U);
  EXPECT_EQ(reglages[0], (CleValeur{"AS(2)", "2"}));
  EXPECT_EQ(reglages[1], (CleValeur{"Combo7(2)", "1"}));
  EXPECT_EQ(reglages[2].cle, "Bord(2)");
  EXPECT_EQ(Valeur(reglages, "Combo6(2)"), "absent");
}

TEST(StoringALine, SunMoonAndNoBodyHaveNoNumberInAList) {
  for (const Corps corps : {Corps::Soleil, Corps::Lune, Corps::Aucun}) {
    Observation o = ObservationPleine();
    o.corps = corps;
    const auto reglages = Enregistre(o);
    EXPECT_EQ(reglages.size(), 24U);
    EXPECT_EQ(Valeur(reglages, "Combo6(2)"), "absent");
    EXPECT_EQ(Valeur(reglages, "Combo7(2)"), "absent");
  }
}

TEST(StoringALine, AListWithNothingChosenIsMinusOne) {
  Observation o;
  o.corps = Corps::Etoiles;
  EXPECT_EQ(Valeur(Enregistre(o), "Combo6(2)"), "-1");
  o.corps = Corps::Planetes;
  EXPECT_EQ(Valeur(Enregistre(o), "Combo7(2)"), "-1");
}

TEST(StoringALine, BodyLimbAndHorizonAreTheirNumbers) {
  Observation o;
  o.corps = Corps::Lune;
  EXPECT_EQ(Valeur(Enregistre(o), "AS(2)"), "1");
  const std::pair<Bord, const char *> bords[] = {{Bord::Superieur, "0"}, {Bord::Inferieur, "1"}, {Bord::Centre, "2"}};
  for (const auto &[bord, nombre] : bords) {
    o.bord = bord;
    EXPECT_EQ(Valeur(Enregistre(o), "Bord(2)"), nombre);
  }
  o.horizon = Horizon::Naturel;
  EXPECT_EQ(Valeur(Enregistre(o), "Hor(2)"), "0");
  o.horizon = Horizon::Artificiel;
  EXPECT_EQ(Valeur(Enregistre(o), "Hor(2)"), "1");
}

TEST(StoringALine, AChoiceNotMadeIsTheNumberPastTheLast) {
  Observation o;
  o.corps = Corps::Aucun;
  o.bord = Bord::Aucun;
  o.horizon = Horizon::Aucun;
  const auto reglages = Enregistre(o);
  EXPECT_EQ(Valeur(reglages, "AS(2)"), "4");
  EXPECT_EQ(Valeur(reglages, "Bord(2)"), "3");
  EXPECT_EQ(Valeur(reglages, "Hor(2)"), "2");
}

TEST(StoringALine, SecondsAre0AndHundredths1) {
  Observation o;
  o.fraction = Fraction::Secondes;
  EXPECT_EQ(Valeur(Enregistre(o), "O4(2)"), "0");
  o.fraction = Fraction::Centiemes;
  EXPECT_EQ(Valeur(Enregistre(o), "O4(2)"), "1");
}

TEST(StoringALine, SidesAreFrenchWords) {
  Observation o;
  o.sud = true;
  o.est = true;
  EXPECT_EQ(Valeur(Enregistre(o), "Hem(2)"), "Sud");
  EXPECT_EQ(Valeur(Enregistre(o), "Lon(2)"), "Est");
  o.sud = false;
  o.est = false;
  EXPECT_EQ(Valeur(Enregistre(o), "Hem(2)"), "Nord");
  EXPECT_EQ(Valeur(Enregistre(o), "Lon(2)"), "Ouest");
}

TEST(StoringALine, FieldsAreKeptAsTyped) {
  Observation o;
  o.heure = " 7";
  o.lectureFraction = "5";
  o.hauteurOeil = "2,50";
  o.collimation = "é";
  const auto reglages = ClesEnregistrees(0, o, "Aldébaran, \"α\" ", {});
  EXPECT_EQ(Valeur(reglages, "T3(0)"), " 7");
  EXPECT_EQ(Valeur(reglages, "T25(0)"), "5");
  EXPECT_EQ(Valeur(reglages, "T10(0)"), "2,50");
  EXPECT_EQ(Valeur(reglages, "T11(0)"), "é");
  EXPECT_EQ(Valeur(reglages, "T4(0)"), "");
  EXPECT_EQ(Valeur(reglages, "Nom(0)"), "Aldébaran, \"α\" ");
}

std::string Millieme(float intercept) { return Valeur(ClesEnregistrees(0, {}, "", Visee(0, intercept)), "In(0)"); }

TEST(StoredThousandths, AreTheSevenDigitsOfTheProduct) {
  EXPECT_EQ(Millieme(12.5F), "12500");
  EXPECT_EQ(Millieme(-3.27F), "-3270");
  EXPECT_EQ(Millieme(0.1F), "100");
  EXPECT_EQ(Millieme(12.345678F), "12345.68");
  EXPECT_EQ(Millieme(123.4567F), "123456.7");
  EXPECT_EQ(Millieme(0.0004F), "0.4");
}

TEST(StoredThousandths, OfZeroAre0WhateverItsSign) {
  EXPECT_EQ(Millieme(0), "0");
  EXPECT_EQ(Millieme(-0.0F), "0");
}

TEST(StoredThousandths, HaveAnExponentOutOfTheCommonRange) {
  EXPECT_EQ(Millieme(9999.5F), "9999500");
  EXPECT_EQ(Millieme(10000), "1E+07");
  EXPECT_EQ(Millieme(-2500000), "-2.5E+09");
  EXPECT_EQ(Millieme(1E-8F), "1E-05");
}

TEST(StoredThousandths, AgreeWithTheLibrarysSevenDigitText) {
  for (int i = -4000; i <= 4000; ++i) {
    const float x = static_cast<float>(i) * 0.0917F;
    char texte[32];
    std::snprintf(texte, sizeof texte, "%.7G", static_cast<double>(static_cast<float>(x * 1000.0)));
    EXPECT_EQ(Millieme(x), texte);
  }
}

TEST(StoredThousandths, AzimuthAndInterceptHaveTheirOwnKeys) {
  const auto reglages = ClesEnregistrees(3, {}, "", Visee(271.5F, 0.25F));
  EXPECT_EQ(Valeur(reglages, "In(3)"), "250");
  EXPECT_EQ(Valeur(reglages, "Az(3)"), "271500");
}

TEST(StoredThousandths, AProductPast32BitsIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { Millieme(1E35F); }), 0);
  EXPECT_EQ(NumeroErreur([] { Millieme(1E36F); }), 6);
  EXPECT_EQ(NumeroErreur([] { ClesEnregistrees(0, {}, "", Visee(-1E36F, 0)); }), 6);
}

TEST(ReadingThousandths, DividesByAThousandIn32Bits) {
  EXPECT_EQ(LitMillieme("12345.68"), 12.34568F);
  EXPECT_EQ(LitMillieme("-3270"), -3.27F);
  EXPECT_EQ(LitMillieme("1E+07"), 10000.0F);
  EXPECT_EQ(LitMillieme("0"), 0.0F);
}

TEST(ReadingThousandths, ATextWithoutANumberIs0) {
  EXPECT_EQ(LitMillieme(""), 0.0F);
  EXPECT_EQ(LitMillieme("abc"), 0.0F);
  EXPECT_EQ(LitMillieme("-"), 0.0F);
}

TEST(ReadingThousandths, OnlyAPointIsADecimalSign) {
  EXPECT_EQ(LitMillieme("12500,9"), 12.5F);
  EXPECT_EQ(LitMillieme("12500.5"), 12.5005F);
}

TEST(ReadingThousandths, ANumberPast32BitsIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { LitMillieme("1E+41"); }), 0);
  EXPECT_EQ(NumeroErreur([] { LitMillieme("1E+42"); }), 6);
  EXPECT_EQ(NumeroErreur([] { LitMillieme("-1E+42"); }), 6);
}

TEST(ReadingThousandths, GivesBackAStoredValueToSevenDigits) {
  // Half a unit of the seventh digit, and the rounding of the product and of the quotient.
  for (int i = -3600; i <= 3600; ++i) {
    const float x = static_cast<float>(i) * 0.09973F;
    const double ecart = std::fabs(LitMillieme(Millieme(x)) - double{x});
    EXPECT_LE(ecart, std::fabs(x) * (5E-7 + std::ldexp(2.0, -24))) << x;
  }
}

TEST(ErasingALine, EmptiesTheFieldsInOrderAndPutsBackZerosAndTheKeysName) {
  const std::vector<CleValeur> attendu = {
      {"AS(1)", ""},  {"Bord(1)", ""}, {"Hor(1)", ""}, {"T3(1)", ""},     {"T4(1)", ""},  {"T5(1)", ""},
      {"Td0(1)", ""}, {"Td1(1)", ""},  {"Td2(1)", ""}, {"T6(1)", ""},     {"T7(1)", ""},  {"T8(1)", ""},
      {"T9(1)", ""},  {"T10(1)", ""},  {"T11(1)", ""}, {"T12(1)", ""},    {"T13(1)", ""}, {"Hem(1)", ""},
      {"Lon(1)", ""}, {"In(1)", "0"},  {"Az(1)", "0"}, {"Nom(1)", "(F6)"}};
  EXPECT_EQ(ClesEffacees(1), attendu);
}

TEST(ErasingALine, LeavesBodyNumbersAndFractionOfWhatStoringWrites) {
  Observation etoile;
  etoile.corps = Corps::Etoiles;
  Observation planete;
  planete.corps = Corps::Planetes;
  std::set<std::string> gardees;
  for (const Observation &o : {etoile, planete}) {
    for (const std::string &cle : Cles(Enregistre(o, 3))) {
      gardees.insert(cle);
    }
  }
  for (const std::string &cle : Cles(ClesEffacees(3))) {
    EXPECT_EQ(gardees.erase(cle), 1U) << cle;
  }
  EXPECT_THAT(gardees, ElementsAre("Combo6(3)", "Combo7(3)", "O4(3)", "T25(3)"));
}

TEST(ErasingALine, LeavesALineThatReadsAsNeverReduced) {
  const auto reglages = ClesEffacees(0);
  EXPECT_EQ(LitMillieme(Valeur(reglages, "In(0)")), 0.0F);
  EXPECT_EQ(LitMillieme(Valeur(reglages, "Az(0)")), 0.0F);
}

TEST(LineButton, ItsToolTipIsItsFunctionKey) {
  EXPECT_EQ(kNombreDroites, 4);
  EXPECT_EQ(ToucheDroite(0), "(F5)");
  EXPECT_EQ(ToucheDroite(1), "(F6)");
  EXPECT_EQ(ToucheDroite(2), "(F7)");
  EXPECT_EQ(ToucheDroite(3), "(F8)");
  for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
    EXPECT_EQ(ClesEffacees(ligne).back().valeur, ToucheDroite(ligne));
  }
}

} // namespace
} // namespace velmaris

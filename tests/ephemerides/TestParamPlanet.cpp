#include "ephemerides/ParamPlanet.hpp"

#include "SecondCalculPlanetes.hpp"
#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <limits>
#include <set>

namespace velmaris {
namespace {

using namespace essais;

constexpr double kJ2000 = 2451545.0;

double Lit(std::string cle, const std::string &texte) { return ExtraitCoord(cle, texte); }

/// The text of a planet by the second way.
std::string TexteAttendu(const TableVsop &table, double JD, std::size_t morceau, bool puissanceDabord = false) {
  const double t = Millenaires(JD);
  const double L = SommeTable(table, 'L', t, morceau, puissanceDabord);
  const double B = SommeTable(table, 'B', t, morceau, puissanceDabord);
  const double R = SommeTable(table, 'R', t, morceau, puissanceDabord);
  return TexteGeneral(TrenteDeuxBits(L)) + "|" + TexteGeneral(B * 45 / std::atan(1.0)) + "|" + TexteGeneral(R);
}

TEST(HeliocentricPlace, IsTheSumOfTheTableToItsLastDigit) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    const TableVsop table = LitTable(planete.fichier);
    for (const double JD : Dates(60)) {
      EXPECT_EQ(PositionHelio(planete.nom, JD), TexteAttendu(table, JD, kMorceau)) << planete.nom << " " << JD;
    }
  }
}

TEST(HeliocentricPlace, PiecesOfFiveHundredTermsAreSummedApart) {
  // Among enough dates some show it in their last digit, and there the place is that of the pieces.
  const TableVsop table = LitTable("vsop87d_saturn.txt");
  int differences = 0;
  for (const double JD : Dates(60)) {
    const std::string place = PositionHelio("SATURNE", JD);
    differences += place != TexteAttendu(table, JD, kSansMorceaux) ? 1 : 0;
  }
  EXPECT_GT(differences, 0);
}

TEST(HeliocentricPlace, TheTimeMultipliesASumAsOftenAsItsPowerSays) {
  // Far from J2000.0 the order of the products shows.
  const TableVsop table = LitTable("vsop87d_saturn.txt");
  int differences = 0;
  for (int i = 0; i < 60; ++i) {
    const double JD = 1.0E8 + 1000.7 * i;
    const std::string place = PositionHelio("SATURNE", JD);
    EXPECT_EQ(place, TexteAttendu(table, JD, kMorceau));
    differences += place != TexteAttendu(table, JD, kMorceau, true) ? 1 : 0;
  }
  EXPECT_GT(differences, 0);
}

TEST(HeliocentricPlace, ASumInMoreBitsAgreesToItsRounding) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    const TableVsop table = LitTable(planete.fichier);
    for (const double JD : Dates(20)) {
      const long double t = (static_cast<long double>(JD) - 2451545) / 365250;
      const std::string texte = PositionHelio(planete.nom, JD);
      const long double B = SommeTable(table, 'B', t, kSansMorceaux) * 45 / std::atan(1.0L);
      const long double R = SommeTable(table, 'R', t, kSansMorceaux);
      EXPECT_NEAR(Lit("B", texte), static_cast<double>(B), 2E-12) << planete.nom;
      EXPECT_NEAR(Lit("R", texte), static_cast<double>(R), 2E-12) << planete.nom;
    }
  }
}

TEST(HeliocentricPlace, AtJ2000OnlyTheFirstPowerCounts) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    const TableVsop table = LitTable(planete.fichier);
    TableVsop premieres;
    double R = 0;
    for (const char *section : {"L0", "B0", "R0"}) {
      premieres[section] = table.at(section);
    }
    for (const auto &terme : table.at("R0")) {
      R += terme[0] * std::cos(terme[1]);
    }
    const std::string texte = PositionHelio(planete.nom, kJ2000);
    EXPECT_EQ(texte, TexteAttendu(premieres, kJ2000, kMorceau));
    EXPECT_NEAR(Lit("R", texte), R, 1E-13);
  }
}

TEST(HeliocentricPlace, TheEarthAtJ2000IsAsPublished) {
  // 1.7519238 rad and 0.9833276819 au stand in the check file of the theory.
  const std::string texte = PositionHelio("EARTH", kJ2000);
  EXPECT_NEAR(Lit("L", texte), 1.7519238681 * 45 / std::atan(1.0), 5E-5);
  EXPECT_NEAR(Lit("B", texte), -0.0000039656 * 45 / std::atan(1.0), 1E-8);
  EXPECT_NEAR(Lit("R", texte), 0.9833276819, 1E-10);
}

TEST(HeliocentricPlace, EachPlanetHasItsOwnSeries) {
  const double JD = 2461212.5;
  EXPECT_EQ(PositionHelio("VENUS", JD), SeriesVenus(JD));
  EXPECT_EQ(PositionHelio("EARTH", JD), SeriesTerre(JD));
  EXPECT_EQ(PositionHelio("MARS", JD), SeriesMars(JD));
  EXPECT_EQ(PositionHelio("JUPITER", JD), SeriesJupiter(JD));
  EXPECT_EQ(PositionHelio("SATURNE", JD), SeriesSaturne(JD));
  const std::set<std::string> textes{SeriesVenus(JD), SeriesTerre(JD), SeriesMars(JD), SeriesJupiter(JD),
                                     SeriesSaturne(JD)};
  EXPECT_EQ(textes.size(), 5U);
}

TEST(HeliocentricPlace, NamesCountWithoutCaseAndBlanks) {
  const double JD = 2461212.5;
  EXPECT_EQ(PositionHelio("saturne", JD), SeriesSaturne(JD));
  EXPECT_EQ(PositionHelio(" Saturne ", JD), SeriesSaturne(JD));
  EXPECT_EQ(PositionHelio("  vEnUs", JD), SeriesVenus(JD));
}

TEST(HeliocentricPlace, OtherNamesGiveAnEmptyText) {
  for (const char *nom : {"SUN", "Sun", "MERCURY", "Mercure", "URANUS", "NEPTUNE", "Saturn", "SATURN", "TERRE", "Moon",
                          "", " ", "VEN US", "VENUS|", "Vénus", "JUPITER."}) {
    EXPECT_EQ(PositionHelio(nom, kJ2000), "") << nom;
  }
}

TEST(HeliocentricPlace, HasTwoBarsAndPointsOnly) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    const std::string texte = PositionHelio(planete.nom, 2461212.5);
    EXPECT_EQ(std::count(texte.begin(), texte.end(), '|'), 2);
    EXPECT_EQ(texte.find_first_not_of("0123456789.-+E|"), std::string::npos) << texte;
  }
}

TEST(HeliocentricPlace, TheUsersDecimalCommaChangesNothing) {
  const std::string avant = PositionHelio("MARS", 2461212.5);
  const std::string ancienne = std::setlocale(LC_ALL, nullptr);
  for (const char *langue : {"fr_FR.UTF-8", "fr_FR", "de_DE.UTF-8"}) {
    std::setlocale(LC_ALL, langue);
    EXPECT_EQ(PositionHelio("MARS", 2461212.5), avant) << langue;
  }
  std::setlocale(LC_ALL, ancienne.c_str());
}

TEST(HeliocentricPlace, LongitudeHasSevenDigitsTheOthersFifteen) {
  std::size_t plusLongueL = 0;
  std::size_t plusLongR = 0;
  const auto chiffres = [](const std::string &nombre) {
    return static_cast<std::size_t>(
        std::count_if(nombre.begin(), nombre.end(), [](char c) { return std::isdigit(c); }));
  };
  for (const double JD : Dates(50)) {
    const std::string texte = PositionHelio("JUPITER", JD);
    plusLongueL = std::max(plusLongueL, chiffres(texte.substr(0, texte.find('|'))));
    plusLongR = std::max(plusLongR, chiffres(texte.substr(texte.rfind('|') + 1)));
    EXPECT_GE(Lit("L", texte), 0);
    EXPECT_LT(Lit("L", texte), 360);
  }
  EXPECT_EQ(plusLongueL, 7U);
  EXPECT_EQ(plusLongR, 15U);
}

TEST(HeliocentricPlace, ALatitudeNearANodeIsInExponentFormAndReadAllTheSame) {
  // The Earth never leaves the ecliptic of the date by more than a second of arc or so.
  const TableVsop table = LitTable("vsop87d_earth.txt");
  int exposants = 0;
  for (const double JD : Dates(100)) {
    const std::string texte = PositionHelio("EARTH", JD);
    exposants += texte.find('E') != std::string::npos ? 1 : 0;
    const double B = SommeTable(table, 'B', Millenaires(JD), kMorceau) * 45 / std::atan(1.0);
    EXPECT_NEAR(Lit("B", texte), B, std::fabs(B) * 1E-14);
  }
  EXPECT_GT(exposants, 0);
}

TEST(HeliocentricPlace, AnyDateIsTaken) {
  for (const double JD : {0.0, -1.0E6, 1721057.5, 5.0E6, 1.0E8}) {
    const double L = Lit("L", PositionHelio("MARS", JD));
    EXPECT_TRUE(L >= 0 && L < 360) << JD;
  }
}

TEST(HeliocentricPlace, ASumThatLeavesItsWidthIsAnOverflow) {
  for (const double JD : {1.0E20, -1.0E20, 1.0E100, 1.0E300, std::numeric_limits<double>::max()}) {
    for (const PlaneteEssai &planete : kPlanetesEssai) {
      EXPECT_EQ(NumeroErreur([&] { PositionHelio(planete.nom, JD); }), 6) << planete.nom << " " << JD;
    }
  }
}

// ---------------------------------------------------------------- the longitude in 32 bits

TEST(LongitudeSteps, TheUnreducedSumIsRoundedFirst) {
  // Next to 165 radians a 32-bit value counts by 2^-16: a trifle more or less is gone. 165 rad are 9453.80361966
  // degrees, where it counts by 2^-10: 9680695 / 1024 = 9453.8037109375, less 26 turns.
  for (const double somme : {165.0, 165.0000001, 165.000007, 164.999993}) {
    EXPECT_EQ(LongitudeDeSomme(somme), 93.8037109375F);
  }
  EXPECT_EQ(TexteGeneral(LongitudeDeSomme(165.0)), "93.80371");
  EXPECT_NE(LongitudeDeSomme(165.00002), 93.8037109375F);
}

TEST(LongitudeSteps, ReducingFirstWouldGiveAnotherLongitude) {
  const double tour = 8 * std::atan(1.0);
  const double reduite = 165.0 - 26 * tour;
  EXPECT_EQ(LongitudeDeSomme(reduite), 93.80362F);
  EXPECT_NE(LongitudeDeSomme(165.0), LongitudeDeSomme(reduite));
}

TEST(LongitudeSteps, AWholeTurnIsZero) {
  const double tour = 8 * std::atan(1.0);
  for (const int tours : {0, 1, -1, 2, -2, 4, 16}) {
    EXPECT_EQ(LongitudeDeSomme(tours * tour), 0.0F) << tours;
    EXPECT_EQ(TexteGeneral(LongitudeDeSomme(tours * tour)), "0");
  }
}

TEST(LongitudeSteps, NegativeSumsComeIntoOneTurn) {
  const double quart = 2 * std::atan(1.0);
  EXPECT_EQ(LongitudeDeSomme(-quart), 270.0F);
  EXPECT_EQ(LongitudeDeSomme(-5 * quart), 270.0F);
  EXPECT_EQ(LongitudeDeSomme(-3 * quart), 90.0F);
  EXPECT_EQ(LongitudeDeSomme(quart), 90.0F);
}

TEST(LongitudeSteps, ANegativeTrifleRoundsToAFullTurn) { EXPECT_EQ(LongitudeDeSomme(-1.0E-9), 360.0F); }

TEST(LongitudeSteps, AgreeWithTheStepsWrittenOut) {
  for (int i = -3000; i <= 3000; ++i) {
    const double somme = 0.618033988749895 * i;
    EXPECT_EQ(LongitudeDeSomme(somme), TrenteDeuxBits(somme)) << somme;
  }
}

TEST(LongitudeSteps, TheErrorIsThatOfTwoRoundingsAndGrowsWithTheTurns) {
  const double enDegres = 45 / std::atan(1.0);
  double pires[2] = {0, 0};
  for (int i = 0; i < 2000; ++i) {
    const double sommes[2] = {2.0 + 0.00123 * i, 163.0 + 0.00123 * i};
    for (int j = 0; j < 2; ++j) {
      const double erreur = LongitudeDeSomme(sommes[j]) - sommes[j] * enDegres;
      pires[j] = std::max(pires[j], std::fabs(std::remainder(erreur, 360.0)));
    }
  }
  EXPECT_LT(pires[0], 3.0E-5);
  // 2^-17 rad and 2^-11 degree: over three seconds of arc together.
  EXPECT_LT(pires[1], std::ldexp(enDegres, -17) + std::ldexp(1, -11));
  EXPECT_GT(pires[1], 2.0 / 3600);
}

TEST(LongitudeSteps, ASumBeyond32BitsIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { LongitudeDeSomme(1.0E39); }), 6);
  EXPECT_EQ(NumeroErreur([] { LongitudeDeSomme(3.0E38); }), 6) << "its degrees leave 32 bits";
  EXPECT_EQ(NumeroErreur([] { LongitudeDeSomme(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

// ---------------------------------------------------------------- the fields of a text

TEST(TextField, EachKeyHasItsField) {
  const std::string texte = "123.4567|-1.25|0.98";
  for (const char *cle : {"L", "X", "RA"}) {
    EXPECT_EQ(Lit(cle, texte), 123.4567) << cle;
  }
  for (const char *cle : {"B", "Y", "DECL"}) {
    EXPECT_EQ(Lit(cle, texte), -1.25) << cle;
  }
  for (const char *cle : {"R", "Z", "DIST"}) {
    EXPECT_EQ(Lit(cle, texte), 0.98) << cle;
  }
}

TEST(TextField, TheKeyIsLeftInCapitals) {
  std::string cle = "decl";
  EXPECT_EQ(ExtraitCoord(cle, "1|2|3"), 2);
  EXPECT_EQ(cle, "DECL");
  cle = "zut";
  EXPECT_EQ(ExtraitCoord(cle, "1|2|3"), 0);
  EXPECT_EQ(cle, "ZUT");
  cle = "l";
  EXPECT_EQ(NumeroErreur([&] { ExtraitCoord(cle, ""); }), 5);
  EXPECT_EQ(cle, "L");
}

TEST(TextField, AnyOtherKeyReadsAsZero) {
  for (const char *cle : {"", "D", " L", "L ", "LL", "RADIUS"}) {
    EXPECT_EQ(Lit(cle, "1|2|3"), 0) << cle;
    EXPECT_EQ(Lit(cle, ""), 0) << cle;
  }
}

TEST(TextField, AnExponentIsReadLikeAnyNumber) {
  EXPECT_EQ(Lit("B", "10|5.4E-02|1"), 0.054);
  EXPECT_EQ(Lit("B", "10|-5.4E-06|1"), -5.4E-06);
  EXPECT_EQ(Lit("B", "10|0.054|1"), 0.054);
}

TEST(TextField, OnlyAPointIsADecimalSign) {
  EXPECT_EQ(Lit("L", "12,5|2|3"), 12);
  EXPECT_EQ(Lit("R", "1|2|3,5"), 3);
}

TEST(TextField, AnEmptyFieldReadsAsZero) {
  for (const char *cle : {"L", "B", "R"}) {
    EXPECT_EQ(Lit(cle, "||"), 0) << cle;
  }
}

TEST(TextField, WithoutItsBarAFieldIsAnInvalidArgument) {
  EXPECT_EQ(NumeroErreur([] { Lit("L", ""); }), 5);
  EXPECT_EQ(NumeroErreur([] { Lit("B", ""); }), 5);
  EXPECT_EQ(NumeroErreur([] { Lit("L", "12"); }), 5);
  EXPECT_EQ(NumeroErreur([] { Lit("B", "12|5"); }), 5);
  EXPECT_EQ(NumeroErreur([] { Lit("B", "12|"); }), 5);
}

TEST(TextField, WithoutASecondBarTheThirdFieldIsTheWholeText) {
  EXPECT_EQ(Lit("R", "12|5"), 12);
  EXPECT_EQ(Lit("R", ""), 0);
}

} // namespace
} // namespace velmaris

#include "ephemerides/pLANETE.hpp"

#include "tests/OutilsTests.hpp"

#include <erfa.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using namespace essais;

const DateHeureTexte kChamps{"05", "12", "2025", "12", "57", "20"};

double JourErfa(int an, int mois, int jour, double heures) {
  double j0 = 0;
  double j = 0;
  eraCal2jd(an, mois, jour, &j0, &j);
  return j0 + j + heures / 24;
}

std::string Place(std::string nom, double JD) { return PlaceApparente(nom, JD); }

std::string Position(const DateHeureTexte &champs) {
  std::string nom = "Mars";
  return PositionPlanete(nom, champs);
}

int Numero(const DateHeureTexte &champs) {
  return NumeroErreur([&] { Position(champs); });
}

TEST(PositionOfAPlanet, IsItsPlaceAtTheTypedDateAndTime) {
  EXPECT_EQ(Position(kChamps), Place("Mars", JourErfa(2025, 12, 5, 12 + 57 / 60.0 + 20 / 3600.0)));
}

TEST(PositionOfAPlanet, EveryFieldCounts) {
  const std::string place = Position(kChamps);
  for (const auto membre : {&DateHeureTexte::jour, &DateHeureTexte::mois, &DateHeureTexte::annee,
                            &DateHeureTexte::heure, &DateHeureTexte::minute}) {
    DateHeureTexte autre = kChamps;
    autre.*membre = "09";
    EXPECT_NE(Position(autre), place);
  }
  DateHeureTexte autre = kChamps;
  autre.seconde = "50";
  EXPECT_NE(Position(autre), place) << "Mars moves some hundred kilometres in half a minute";
}

TEST(PositionOfAPlanet, FieldsAreTheNumbersAtTheirStart) {
  EXPECT_EQ(Position({" 5", "12 ", "25", "12h", "57m", "020"}), Position(kChamps));
}

TEST(PositionOfAPlanet, AnEmptyTimeIsMidnight) {
  EXPECT_EQ(Position({"05", "12", "2025", "", "", ""}), Place("Mars", JourErfa(2025, 12, 5, 0)));
}

TEST(PositionOfAPlanet, YearsUnderAHundredStandFor1930To2029) {
  EXPECT_EQ(Position({"05", "12", "25", "0", "0", "0"}), Place("Mars", JourErfa(2025, 12, 5, 0)));
  EXPECT_EQ(Position({"05", "12", "30", "0", "0", "0"}), Place("Mars", JourErfa(1930, 12, 5, 0)));
}

TEST(PositionOfAPlanet, AnEmptyDateIsATypeMismatch) {
  for (const auto membre : {&DateHeureTexte::jour, &DateHeureTexte::mois}) {
    DateHeureTexte champs = kChamps;
    champs.*membre = "";
    EXPECT_EQ(Numero(champs), 13);
  }
  EXPECT_EQ(Numero({}), 13);
}

TEST(PositionOfAPlanet, AnEmptyYearIs2000) {
  EXPECT_EQ(Position({"05", "12", "", "0", "0", "0"}), Place("Mars", JourErfa(2000, 12, 5, 0)));
}

TEST(PositionOfAPlanet, AnImpossibleDateOrTimeIsATypeMismatch) {
  EXPECT_EQ(Numero({"31", "02", "2025", "12", "0", "0"}), 13);
  EXPECT_EQ(Numero({"12", "13", "2025", "12", "0", "0"}), 13) << "day and month are never swapped";
  EXPECT_EQ(Numero({"05", "12", "20255", "12", "0", "0"}), 13);
  EXPECT_EQ(Numero({"05", "12", "2025", "24", "0", "0"}), 13);
  EXPECT_EQ(Numero({"05", "12", "2025", "60", "0", "0"}), 13);
  EXPECT_EQ(Numero({"05", "12", "2025", "23", "60", "0"}), 13);
  EXPECT_EQ(Numero({"05", "12", "2025", "23", "59", "60"}), 13);
  EXPECT_EQ(Numero({"05", "12", "2025", "-1", "0", "0"}), 13);
}

TEST(PositionOfAPlanet, AFractionInAFieldIsATypeMismatch) {
  for (const auto membre : {&DateHeureTexte::jour, &DateHeureTexte::mois, &DateHeureTexte::annee,
                            &DateHeureTexte::heure, &DateHeureTexte::minute, &DateHeureTexte::seconde}) {
    DateHeureTexte champs = kChamps;
    champs.*membre = "5.5";
    EXPECT_EQ(Numero(champs), 13);
    champs.*membre = "1E20";
    EXPECT_EQ(Numero(champs), 13);
  }
}

TEST(PositionOfAPlanet, TheNameIsTrimmedAndAFailurePassesOut) {
  std::string nom = " SATURNE ";
  EXPECT_EQ(PositionPlanete(nom, kChamps), Place("SATURNE", JourErfa(2025, 12, 5, 12 + 57 / 60.0 + 20 / 3600.0)));
  EXPECT_EQ(nom, "SATURNE");
  nom = "Saturn";
  EXPECT_EQ(NumeroErreur([&] { PositionPlanete(nom, kChamps); }), 5);
  nom = "Earth";
  EXPECT_EQ(NumeroErreur([&] { PositionPlanete(nom, kChamps); }), 11);
}

TEST(PositionOfAPlanet, ByTheClockTakesTheLocalDateAndTheTimeOfUTC) {
  // Past midnight in Paris, before it in Greenwich: the local date counts, a day ahead.
  Horloge horloge = HorlogeFixe({2025, 12, 4, 4, 23, 30, 15, 999}, {2025, 12, 5, 0, 30, 15});
  std::string nom = " Mars";
  const auto fraction = static_cast<float>((23 + 30 / 60.0 + 15 / 3600.0) / 24);
  EXPECT_EQ(PositionPlanete(nom, horloge), Place("Mars", JourErfa(2025, 12, 5, 0) + double{fraction}));
  EXPECT_EQ(nom, "Mars");
}

TEST(PositionOfAPlanet, ByTheClockLeavesItsTexts) {
  Horloge horloge = HorlogeFixe({2025, 12, 5, 5, 12, 57, 20, 0}, {2025, 12, 5, 13, 57, 20});
  horloge.HeureGMT = "rien";
  std::string nom = "Venus";
  PositionPlanete(nom, horloge);
  EXPECT_EQ(horloge.HeureGMT, "rien");
  EXPECT_EQ(horloge.temps.heure, 12);
}

TEST(PositionOfAPlanet, ByTheClockFailsLikeTheRest) {
  Horloge horloge = HorlogeFixe({2025, 12, 5, 5, 12, 57, 20, 0}, {2025, 12, 5, 13, 57, 20});
  std::string nom = "Sun";
  EXPECT_EQ(NumeroErreur([&] { PositionPlanete(nom, horloge); }), 5);
}

} // namespace
} // namespace velmaris

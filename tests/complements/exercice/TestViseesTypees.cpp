#include "complements/exercice/Correction.hpp"
#include "complements/exercice/ViseesTypees.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <string>

/// A practice's sights as the panel has them.
namespace velmaris {
namespace {

using testing::IsEmpty;
using testing::Optional;

ExerciceComplet Fait(std::size_t rang) { return FaitExercice(NiveauDe(rang).graine, NiveauDe(rang).conditions); }

TEST(TypedPractice, WhatACarefulHandTypesIsTheSightThatWasShownInSecondsAndInHundredths) {
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    const ExerciceComplet c = Fait(rang);
    for (const Fraction fraction : {Fraction::Secondes, Fraction::Centiemes}) {
      std::vector<Observation> typees;
      for (const ViseeExercice &v : c.exercice.visees) {
        typees.push_back(SaisieDe(c.exercice, v, fraction));
        const ViseeTypee lue = LitVisee(typees.back(), {});
        EXPECT_EQ(lue.astre, v.astre);
        EXPECT_NEAR(SecondesEntre(UTCDe(lue.date), UTCDe(v.utc)), 0, 1E-6);
        EXPECT_NEAR(lue.lecture.lecture, v.lecture, 1E-9) << "a tenth of a minute is typed whole";
        EXPECT_NEAR(lue.station.latitude, v.estime.latitude, 0.51 / 60);
        EXPECT_NEAR(std::remainder(lue.station.longitude - v.estime.longitude, 360), 0, 0.51 / 60);
      }
      for (const VerdictVisee &verdict : CorrigeExercice(c, typees, {}).visees) {
        EXPECT_THAT(verdict.avis, IsEmpty()) << rang;
      }
    }
  }
}

TEST(TypedPractice, ASightWithOneSlipIsStillThePractices) {
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    const Exercice e = Fait(rang).exercice;
    for (std::size_t i = 0; i < e.visees.size(); ++i) {
      const Observation juste = SaisieDe(e, e.visees[i], Fraction::Secondes);
      EXPECT_THAT(ViseeReconnue(e, juste, 3), Optional(i));
      Observation o = juste;
      o.lectureDegres = std::to_string(std::stoi(o.lectureDegres) + 1);
      EXPECT_THAT(ViseeReconnue(e, o, 2), Optional(i)) << "the reading";
      EXPECT_EQ(ViseeReconnue(e, o, 3), std::nullopt);
      o = juste;
      o.annee = std::to_string(std::stoi(o.annee) - 1);
      EXPECT_THAT(ViseeReconnue(e, o, 2), Optional(i)) << "the year";
      o = juste;
      o.heure = o.heure == "00" ? "01" : "00";
      o.collimation = "9,0";
      o.sud = !o.sud;
      EXPECT_THAT(ViseeReconnue(e, o, 2), Optional(i)) << "hour, index correction, side";
      o = juste;
      o.corps = o.corps == Corps::Lune ? Corps::Soleil : Corps::Lune;
      EXPECT_NE(ViseeReconnue(e, o, 2), std::nullopt) << "the body";
    }
  }
}

TEST(TypedPractice, ADateThatIsNoneAndAListWithoutAChoiceLeaveTheRestToTellTheSight) {
  const Exercice e = Fait(5).exercice;
  Observation o = SaisieDe(e, e.visees[1], Fraction::Secondes);
  o.mois = "1.5";
  EXPECT_THAT(ViseeReconnue(e, o, 2), Optional(1U));
  o = SaisieDe(e, e.visees[1], Fraction::Secondes);
  o.etoile = o.planete = -1;
  EXPECT_THAT(ViseeReconnue(e, o, 2), Optional(1U));
}

TEST(TypedPractice, ASightOfTheUsersOwnIsNone) {
  Observation sienne;
  sienne.jour = "21";
  sienne.mois = "06";
  sienne.annee = "2026";
  sienne.heure = "12";
  sienne.minute = "05";
  sienne.seconde = "30";
  sienne.lectureDegres = "65";
  sienne.lectureMinutes = "34";
  sienne.lectureFraction = "38";
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    EXPECT_EQ(ViseeReconnue(Fait(rang).exercice, sienne, 2), std::nullopt) << rang;
  }
  EXPECT_EQ(ViseeReconnue(Exercice(), sienne, 2), std::nullopt);
}

} // namespace
} // namespace velmaris

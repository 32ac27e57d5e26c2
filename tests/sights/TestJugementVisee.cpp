#include "sights/JugementVisee.hpp"

#include <gtest/gtest.h>

#include <algorithm>

/// How the fields of a sight stand before it is reduced.
namespace velmaris::essais {
namespace {

constexpr std::size_t kJour = 0;
constexpr std::size_t kAn = 2;
constexpr std::size_t kHeure = 3;
constexpr std::size_t kLatMinutes = 7;
constexpr std::size_t kLecture = 10;
constexpr std::size_t kFraction = 12;
constexpr std::size_t kCollimation = 13;
constexpr std::size_t kOeil = 14;

Observation Entiere(Corps corps) {
  Observation o;
  o.jour = "21";
  o.mois = "06";
  o.annee = "2026";
  o.heure = "12";
  o.minute = "05";
  o.seconde = "30";
  o.latitudeDegres = "47";
  o.latitudeMinutes = "30";
  o.longitudeDegres = "05";
  o.longitudeMinutes = "10";
  o.lectureDegres = "65";
  o.lectureMinutes = "34";
  o.lectureFraction = "38";
  o.collimation = "-1,0";
  o.hauteurOeil = "2,5";
  o.corps = corps;
  o.etoile = 12;
  o.planete = 1;
  return o;
}

bool ToutBon(const Observation &o) {
  const auto verdicts = JugeVisee(o);
  return std::all_of(verdicts.begin(), verdicts.end(), [](Verdict v) { return v == Verdict::Bon; });
}

Verdict De(const Observation &o, std::size_t champ) { return JugeVisee(o).at(champ); }

constexpr std::array<Corps, 4> kCorps = {Corps::Soleil, Corps::Lune, Corps::Planetes, Corps::Etoiles};

TEST(JugementVisee, AWholeSightOfAnyBodyHasNothingToMend) {
  for (const Corps corps : kCorps) {
    EXPECT_TRUE(ToutBon(Entiere(corps))) << static_cast<int>(corps);
    EXPECT_FALSE(SansAstreChoisi(Entiere(corps)));
  }
}

TEST(JugementVisee, NothingIsMissedBeforeTheReadingIsBegun) {
  for (const Corps corps : kCorps) {
    Observation o;
    o.corps = corps;
    EXPECT_TRUE(ToutBon(o));
    EXPECT_FALSE(SansAstreChoisi(o));
    o.lectureDegres = o.lectureMinutes = o.lectureFraction = "00"; // as the start leaves them
    EXPECT_TRUE(ToutBon(o));
    o.lectureDegres.clear();
    o.lectureMinutes = "12";
    EXPECT_EQ(De(o, kLecture), Verdict::Vide);
    EXPECT_EQ(De(o, kJour), Verdict::Vide);
    EXPECT_EQ(De(o, kLatMinutes), Verdict::Vide);
    o.lectureFraction.clear();
    EXPECT_EQ(De(o, kFraction), Verdict::Bon);
  }
}

TEST(JugementVisee, StarsAndPlanetsAloneNeedEyeHeightAndIndexCorrection) {
  for (const Corps corps : kCorps) {
    Observation o = Entiere(corps);
    o.collimation.clear();
    o.hauteurOeil.clear();
    const bool lointain = corps == Corps::Planetes || corps == Corps::Etoiles;
    EXPECT_EQ(De(o, kCollimation), lointain ? Verdict::Vide : Verdict::Bon);
    EXPECT_EQ(De(o, kOeil), lointain ? Verdict::Vide : Verdict::Bon);
  }
}

TEST(JugementVisee, AStarOrAPlanetThatIsBegunWantsOneChosen) {
  Observation o = Entiere(Corps::Etoiles);
  o.etoile = -1;
  EXPECT_TRUE(SansAstreChoisi(o));
  o.corps = Corps::Planetes;
  EXPECT_FALSE(SansAstreChoisi(o));
  o.planete = -1;
  EXPECT_TRUE(SansAstreChoisi(o));
  o.corps = Corps::Soleil;
  EXPECT_FALSE(SansAstreChoisi(o));
}

TEST(JugementVisee, AValueAtALimitIsTakenAndOnePastItIsNot) {
  const auto avec = [](std::string Observation::*champ, const char *texte) {
    Observation o = Entiere(Corps::Soleil);
    o.*champ = texte;
    return o;
  };
  EXPECT_TRUE(ToutBon(avec(&Observation::heure, "60"))); // a Sun's hour may be
  EXPECT_EQ(De(avec(&Observation::heure, "61"), kHeure), Verdict::HorsBornes);
  EXPECT_EQ(De(avec(&Observation::heure, "-1"), kHeure), Verdict::HorsBornes);
  EXPECT_TRUE(ToutBon(avec(&Observation::lectureDegres, "90")));
  EXPECT_EQ(De(avec(&Observation::lectureDegres, "91"), kLecture), Verdict::HorsBornes);
  EXPECT_EQ(De(avec(&Observation::annee, "5001"), kAn), Verdict::HorsBornes);
  EXPECT_TRUE(ToutBon(avec(&Observation::collimation, "-60,0")));
  EXPECT_EQ(De(avec(&Observation::collimation, "61"), kCollimation), Verdict::HorsBornes);
  EXPECT_EQ(De(avec(&Observation::hauteurOeil, "-1"), kOeil), Verdict::HorsBornes);
  Observation double_ = avec(&Observation::lectureDegres, "120");
  double_.horizon = Horizon::Artificiel;
  EXPECT_TRUE(ToutBon(double_));
}

TEST(JugementVisee, AnImpossibleDateIsToldOnItsThreeFields) {
  Observation o = Entiere(Corps::Soleil);
  o.jour = "31";
  o.mois = "02";
  const auto verdicts = JugeVisee(o);
  EXPECT_TRUE(
      std::all_of(verdicts.begin(), verdicts.begin() + 3, [](Verdict v) { return v == Verdict::DateImpossible; }));
  EXPECT_TRUE(std::all_of(verdicts.begin() + 3, verdicts.end(), [](Verdict v) { return v == Verdict::Bon; }));
}

TEST(JugementVisee, WhatEndsTheProgramForAStarIsToldBefore) {
  Observation o = Entiere(Corps::Etoiles);
  o.heure = "24";
  EXPECT_EQ(De(o, kHeure), Verdict::HorsDuJour);
  o = Entiere(Corps::Etoiles);
  o.hauteurOeil = "2.5";
  EXPECT_EQ(De(o, kOeil), Verdict::PasUnNombre);
  o = Entiere(Corps::Etoiles);
  o.seconde = "60";
  EXPECT_EQ(De(o, 5), Verdict::HorsDeLHeure);
}

TEST(JugementVisee, ATextThatIsNoNumberAsAWholeIsMarkedThoughItsStartIsReducedWith) {
  for (const std::string texte : {"4x7", "abc", "1h", "3'4", "--", "1-", "1.2.3", "O5"}) {
    for (std::size_t champ = 0; champ < kChampsVisee; ++champ) {
      Observation o = Entiere(Corps::Soleil);
      o.*kTextesVisee.at(champ) = texte;
      EXPECT_EQ(De(o, champ), Verdict::HorsBornes) << texte << " " << champ;
    }
  }
  for (const std::string texte : {"5", "05", " 5 ", "5.5", "5,5", "+5"}) {
    Observation o = Entiere(Corps::Lune);
    o.latitudeMinutes = texte;
    EXPECT_TRUE(ToutBon(o)) << texte;
  }
}

TEST(JugementVisee, ASightIsTheSameHoweverItsFiguresAreWritten) {
  const Observation o = Entiere(Corps::Soleil);
  Observation p = o;
  p.longitudeDegres = "5";
  p.hauteurOeil = "2.50";
  p.etoile = 3; // of another body
  EXPECT_TRUE(MemeVisee(o, p));
  p.lectureFraction = "39";
  EXPECT_FALSE(MemeVisee(o, p));
  p = o;
  p.bord = Bord::Superieur;
  EXPECT_FALSE(MemeVisee(o, p));
  p = o;
  p.seconde.clear(); // read as 0, and to be told all the same
  EXPECT_FALSE(MemeVisee(o, p));
}

} // namespace
} // namespace velmaris::essais

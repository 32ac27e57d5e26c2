#include "OutilsRegistre.hpp"

#include "complements/registre/TexteCsv.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

/// One line of the journal taken apart again.
namespace velmaris::essais {
namespace {

TEST(Rangee, ALineGivesBackEachFieldOfItsSight) {
  const auto r = LitRangee(LigneMain("21,06,2026", "12,05,30"));
  ASSERT_TRUE(r);
  const Observation &o = r->observation;
  EXPECT_EQ(r->utc, "2026-06-21T12:05:40Z");
  EXPECT_EQ(o.corps, Corps::Soleil);
  EXPECT_EQ(o.jour + "/" + o.mois + "/" + o.annee, "21/06/2026");
  EXPECT_EQ(o.heure + ":" + o.minute + ":" + o.seconde, "12:05:30");
  EXPECT_EQ(o.latitudeDegres + o.latitudeMinutes + (o.sud ? "S" : "N"), "4730N");
  EXPECT_EQ(o.longitudeDegres + o.longitudeMinutes + (o.est ? "E" : "W"), "510W");
  EXPECT_EQ(o.lectureDegres + " " + o.lectureMinutes + " " + o.lectureFraction, "65 34 38");
  EXPECT_EQ(o.fraction, Fraction::Secondes);
  EXPECT_EQ(o.collimation, "-1,0");
  EXPECT_EQ(o.hauteurOeil, "2,5");
  EXPECT_EQ(o.bord, Bord::Inferieur);
  EXPECT_EQ(o.horizon, Horizon::Naturel);
  EXPECT_EQ(r->Ho, 65.7687);
  EXPECT_EQ(r->Hc, 65.6998);
  EXPECT_EQ(r->intercept, 4.136212F);
  EXPECT_EQ(r->azimut, 190.6131F);
  EXPECT_EQ(r->identite, "00000000000000aa");
  EXPECT_EQ(r->actuel, 4.168);
  EXPECT_EQ(r->ecart, -0.032);
}

TEST(Rangee, TheOlderFormHasNoFigureOfTodayAndAnIdentityThatItsLineAloneDecides) {
  const std::string ligne = LigneMain("21,06,2026", "12,05,30", "");
  const auto r = LitRangee(ligne);
  ASSERT_TRUE(r);
  EXPECT_FALSE(r->actuel);
  EXPECT_FALSE(r->ecart);
  EXPECT_EQ(r->identite, LitRangee(ligne)->identite);
  EXPECT_NE(r->identite, LitRangee(LigneMain("21,06,2026", "12,05,31", ""))->identite);
  EXPECT_EQ(r->identite.size(), 16U);
  // The published values of this sum.
  EXPECT_EQ(IdentiteAncienne(""), "cbf29ce484222325");
  EXPECT_EQ(IdentiteAncienne("foobar"), "85944171f73967e8");
}

TEST(Rangee, WhatIsWrittenIsReadBackToTheBit) {
  std::mt19937 hasard(19);
  std::uniform_real_distribution<double> hauteur(-90, 90);
  const std::string lettres = "aB9,\"'=+-@ .é°;";
  const auto texte = [&] {
    std::string t;
    for (unsigned i = hasard() % 6; i > 0; --i) {
      t += lettres.substr(hasard() % 10, 1);
    }
    return t;
  };
  for (int i = 0; i < 3000; ++i) {
    Rangee r;
    r.utc = EcritInstant(static_cast<std::int64_t>(hasard()));
    r.astre = "Véga, la \"belle\"";
    Observation &o = r.observation;
    for (std::string *champ : {&o.jour, &o.heure, &o.lectureDegres, &o.collimation, &o.hauteurOeil}) {
      do {
        *champ = texte(); // an apostrophe that was typed before a formula can't be told from the one that guards it
      } while (champ->starts_with('\''));
    }
    o.corps = static_cast<Corps>(hasard() % 4);
    r.astre = o.corps == Corps::Planetes ? "Mars" : r.astre;
    o.planete = o.corps == Corps::Planetes ? 1 : -1;
    o.bord = static_cast<Bord>(hasard() % 3);
    o.sud = hasard() % 2 == 0;
    o.est = hasard() % 2 == 0;
    r.Ho = std::round(hauteur(hasard) * 1e10) / 1e10;
    r.Hc = std::round(hauteur(hasard) * 1e10) / 1e10;
    r.intercept = std::strtof(std::to_string(hauteur(hasard)).substr(0, 7).c_str(), nullptr);
    r.azimut = 190.25F;
    r.identite = "0123456789abcdef";
    r.ecart = 0.125;
    const auto lue = LitRangee(EcritRangee(r));
    ASSERT_TRUE(lue) << EcritRangee(r);
    EXPECT_EQ(lue->observation, o) << EcritRangee(r);
    EXPECT_EQ(lue->astre, r.astre);
    EXPECT_EQ(lue->Ho, r.Ho);
    EXPECT_EQ(lue->Hc, r.Hc);
    EXPECT_EQ(lue->intercept, r.intercept);
    EXPECT_EQ(lue->identite, r.identite);
    EXPECT_FALSE(lue->actuel);
    EXPECT_EQ(lue->ecart, r.ecart);
  }
}

TEST(Rangee, AnEmptyFirstFieldKeepsItsPlace) {
  Rangee r;
  r.identite = "aa";
  ASSERT_TRUE(LitRangee(EcritRangee(r)));
  EXPECT_EQ(LitRangee(EcritRangee(r))->utc, "");
  EXPECT_EQ(LitRangee(EcritRangee(r))->identite, "aa");
}

TEST(Rangee, ALineCutAnywhereBeforeItsLastFieldIsNone) {
  const std::string ligne = LigneMain("21,06,2026", "12,05,30");
  const std::size_t fin = ligne.rfind(',');
  for (std::size_t n = 0; n < fin; ++n) {
    std::vector<LigneIndexee> lignes;
    const std::size_t cassees = IndexeJournal(JournalDe(ligne.substr(0, n)), lignes);
    EXPECT_TRUE(lignes.empty()) << ligne.substr(0, n);
    EXPECT_EQ(cassees, n == 0 ? 0U : 1U);
  }
}

TEST(Rangee, QuotesHoldCommasAndTheApostropheBeforeAFormulaGoes) {
  std::array<std::string_view, 4> parties;
  ASSERT_EQ(PartiesCsv("a,\"b,\"\"c\"\"\",,'=1+1", parties), 4U);
  EXPECT_EQ(TextePartie(parties[0]), "a");
  EXPECT_EQ(TextePartie(parties[1]), "b,\"c\"");
  EXPECT_EQ(TextePartie(parties[2]), "");
  EXPECT_EQ(TextePartie(parties[3]), "=1+1");
  EXPECT_EQ(TextePartie("'tis"), "'tis") << "no formula, and its own apostrophe";
  EXPECT_EQ(PartiesCsv("a,\"b", parties), 0U) << "a quote that isn't closed";
  EXPECT_EQ(PartiesCsv("\"a\"b,c", parties), 0U);
  EXPECT_EQ(PartiesCsv("a,b,c,d,e,f", parties), 6U) << "counted beyond what is kept";
}

TEST(Rangee, AMomentIsWrittenAndReadTheSameOverTheYears) {
  EXPECT_EQ(InstantEcrit("1970-01-02T00:00:01Z"), 86401);
  EXPECT_EQ(InstantEcrit("2000-02-29T12:00:00Z"), 951825600);
  EXPECT_FALSE(InstantEcrit("2026-02-29T12:00:00Z"));
  EXPECT_FALSE(InstantEcrit("2026-06-21 12:05:30Z"));
  EXPECT_FALSE(InstantEcrit("2026-06-21T24:05:30Z"));
  for (std::int64_t t = -10'000'000'000; t < 10'000'000'000; t += 98'765'431) {
    EXPECT_EQ(InstantEcrit(EcritInstant(t)), t);
  }
}

} // namespace
} // namespace velmaris::essais

#include "../point/OutilsPoint.hpp"
#include "complements/controle/LignesEtoiles.hpp"
#include "complements/exercice/Correction.hpp"
#include "foundations/TexteNombre.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

/// Practice: voyages of a seed, and what is said of the user's lines.
namespace velmaris {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Deux(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

/// A sight as a careful user types it.
Observation Typee(const Exercice &e, const ViseeExercice &v) {
  Observation o;
  o.jour = Deux(v.utc.jour);
  o.mois = Deux(v.utc.mois);
  o.annee = std::to_string(v.utc.annee);
  o.heure = Deux(v.utc.heure);
  o.minute = Deux(v.utc.minute);
  o.seconde = Deux(static_cast<int>(v.utc.seconde));
  o.latitudeDegres = "0";
  o.latitudeMinutes = TexteGeneral(std::fabs(v.estime.latitude) * 60);
  o.sud = v.estime.latitude < 0;
  o.longitudeDegres = "0";
  o.longitudeMinutes = TexteGeneral(std::fabs(v.estime.longitude) * 60);
  o.est = v.estime.longitude > 0;
  const auto virgule = [](double x) {
    char texte[32];
    std::snprintf(texte, sizeof texte, "%.1f", x);
    std::string s = texte;
    std::replace(s.begin(), s.end(), '.', ',');
    return s;
  };
  o.hauteurOeil = virgule(e.hauteurOeil);
  o.collimation = virgule(e.collimation);
  const long centiemes = std::lround(v.lecture * 6000);
  o.lectureDegres = std::to_string(centiemes / 6000);
  o.lectureMinutes = std::to_string(centiemes / 100 % 60);
  o.lectureFraction = Deux(static_cast<int>(centiemes % 100));
  o.fraction = Fraction::Centiemes;
  o.bord = v.contact == Contact::Centre ? Bord::Centre : Bord::Inferieur;
  switch (v.astre.genre) {
  case GenreAstre::Soleil:
    o.corps = Corps::Soleil;
    break;
  case GenreAstre::Lune:
    o.corps = Corps::Lune;
    break;
  case GenreAstre::Etoile:
    o.corps = Corps::Etoiles;
    o.etoile = v.astre.rang - 1;
    break;
  default:
    o.corps = Corps::Planetes;
    o.planete = static_cast<int>(v.astre.genre) - static_cast<int>(GenreAstre::Venus);
  }
  return o;
}

std::vector<Observation> Typees(const Exercice &e) {
  std::vector<Observation> typees;
  for (const ViseeExercice &v : e.visees) {
    typees.push_back(Typee(e, v));
  }
  return typees;
}

TEST(Practice, TenGradedOnesHaveTheSightsThatTheyPromise) {
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    const NiveauExercice &niveau = NiveauDe(rang);
    const ExerciceComplet c = FaitExercice(niveau.graine, niveau.conditions);
    EXPECT_FALSE(c.exercice.refus) << rang;
    EXPECT_EQ(c.exercice.visees.size(), static_cast<std::size_t>(niveau.conditions.visees)) << rang;
    EXPECT_EQ(c.verite.lieux.size(), c.exercice.visees.size());
    EXPECT_LE(std::fabs(c.exercice.collimation), niveau.conditions.collimationMax + 0.05);
    for (const ViseeExercice &v : c.exercice.visees) {
      EXPECT_GT(v.hauteur, 9) << rang;
      EXPECT_LT(v.hauteur, 86) << rang;
      EXPECT_NEAR(std::remainder(v.lecture * 600, 1), 0, 1E-6) << "to a tenth of a minute";
    }
  }
}

TEST(Practice, OneSeedMakesOneVoyageAndAnotherAnother) {
  const ConditionsExercice c = NiveauDe(6).conditions;
  const ExerciceComplet a = FaitExercice(5, c);
  const ExerciceComplet b = FaitExercice(5, c);
  EXPECT_EQ(a.exercice.visees.front().lecture, b.exercice.visees.front().lecture);
  EXPECT_EQ(a.verite.lieu.latitude, b.verite.lieu.latitude);
  EXPECT_NE(FaitExercice(6, c).verite.lieu.latitude, a.verite.lieu.latitude);
}

TEST(Practice, WhatTheSextantShowsIsTheTruthWithItsNoise) {
  for (std::uint64_t graine = 1; graine <= 20; ++graine) {
    const ExerciceComplet c = FaitExercice(graine, NiveauDe(graine % kNiveaux).conditions);
    for (std::size_t i = 0; i < c.exercice.visees.size(); ++i) {
      const ViseeExercice &v = c.exercice.visees[i];
      const PlaceGeocentrique place = PlaceDe(PrepareCiel(MomentDe(v.utc)), v.astre);
      const LieuNavire vrai = essais::Navigue(c.exercice.route, {}, c.verite.lieu, c.exercice.heurePoint, UTCDe(v.utc));
      LectureSextant sextant;
      sextant.hauteurOeil = c.exercice.hauteurOeil;
      sextant.collimation = c.exercice.collimation;
      sextant.contact = v.contact;
      const double juste = essais::LectureDe(sextant, place, {vrai.latitude, vrai.longitude, c.exercice.hauteurOeil},
                                             essais::HauteurJugee(place, vrai, c.exercice.hauteurOeil));
      EXPECT_NEAR((v.lecture - juste) * 60, c.verite.bruits[i], 0.052) << graine << " " << i;
    }
  }
}

TEST(Practice, CarefulLinesAreGoodAndPassByTheTruthByTheirNoise) {
  for (std::uint64_t graine = 1; graine <= 20; ++graine) {
    const ExerciceComplet c = FaitExercice(graine, NiveauDe(graine % kNiveaux).conditions);
    const CorrectionExercice correction = CorrigeExercice(c, Typees(c.exercice), c.verite.lieu);
    for (std::size_t i = 0; i < correction.visees.size(); ++i) {
      EXPECT_THAT(correction.visees[i].avis, IsEmpty()) << graine << " " << i;
      EXPECT_EQ(correction.visees[i].offerte, i);
      EXPECT_NEAR(correction.visees[i].ecart, c.verite.bruits[i], 0.06);
    }
    ASSERT_TRUE(correction.point);
    EXPECT_NEAR(correction.point->distance, 0, 1E-9);
    EXPECT_NEAR(correction.point->estime, EcartLieux(c.exercice.estime, c.verite.lieu) * 60, 1E-9);
  }
}

TEST(Practice, ASlipIsToldByFieldAndByItsKind) {
  const ExerciceComplet c = FaitExercice(3, NiveauDe(3).conditions);
  std::vector<Observation> typees = Typees(c.exercice);
  typees[0].heure = Deux((std::stoi(typees[0].heure) + 23) % 24);
  typees[1].lectureDegres = std::to_string(std::stoi(typees[1].lectureDegres) + 1);
  const CorrectionExercice correction = CorrigeExercice(c, typees, {});
  EXPECT_THAT(correction.visees[1].avis, ElementsAre(AvisCorrection::Lecture, AvisCorrection::Loin));
  const auto degre = [](const Glissade &g) { return g.genre == GenreGlissade::LectureDegres && g.ajout == -1; };
  ASSERT_TRUE(std::any_of(correction.visees[1].glissades.begin(), correction.visees[1].glissades.end(), degre));
  const auto trouve = std::find_if(correction.visees[1].glissades.begin(), correction.visees[1].glissades.end(), degre);
  EXPECT_EQ(trouve->corrigee.latitudeMinutes, typees[1].latitudeMinutes) << "the truth isn't given away";
  EXPECT_THAT(correction.visees[0].avis, Contains(AvisCorrection::Temps));
  EXPECT_FALSE(correction.point);
}

TEST(Practice, AFixIsJudgedByDistanceAndDirection) {
  const ExerciceComplet c = FaitExercice(NiveauDe(5).graine, NiveauDe(5).conditions);
  const LieuNavire est = GrandCercle(c.verite.lieu, 90, 2.0 / 60);
  const CorrectionExercice correction = CorrigeExercice(c, {}, est);
  EXPECT_NEAR(correction.point->distance, 2, 1E-6);
  EXPECT_NEAR(correction.point->direction, 90, 0.1);
  EXPECT_GT(correction.point->attendu, 0.3);
  EXPECT_LT(correction.point->attendu, 4);
}

TEST(Practice, ABodyThatWasntOfferedIsTold) {
  const ExerciceComplet c = FaitExercice(NiveauDe(0).graine, NiveauDe(0).conditions);
  Observation o = Typee(c.exercice, c.exercice.visees.front());
  o.corps = Corps::Lune;
  EXPECT_THAT(CorrigeExercice(c, std::vector{o}, {}).visees.front().avis, Contains(AvisCorrection::PasOfferte));
  o.mois = "13";
  const CorrectionExercice illisible = CorrigeExercice(c, std::vector{o}, {});
  EXPECT_THAT(illisible.visees.front().avis, ElementsAre(AvisCorrection::Illisible));
  EXPECT_EQ(illisible.visees.front().refus, RaisonRefus::DateImpossible);
}

TEST(Practice, TheStarsThatAreOfferedHaveGoodRowsInTheTable) {
  Etoiles etoiles;
  std::vector<std::string> liste;
  ChargeEtoiles(etoiles, liste);
  for (std::uint64_t graine = 1; graine <= 40; ++graine) {
    for (const ViseeExercice &v : FaitExercice(graine, NiveauDe(7).conditions).exercice.visees) {
      if (v.astre.genre == GenreAstre::Etoile) {
        EXPECT_LT(EcartDeLigne(etoiles, v.astre.rang).value_or(99), 3) << v.astre.rang;
        EXPECT_LE(v.astre.rang, kNombreEtoiles) << "it can be chosen in the panel";
      }
    }
  }
}

/// What was shown is known: of the slips that explain a line, the one that leaves most as it was shown comes first.
TEST(Practice, AWrongMinuteIsNamedBeforeAYearThatWasShownAsItWasTyped) {
  int nommees = 0;
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    const NiveauExercice &niveau = NiveauDe(rang);
    for (std::uint64_t graine = 0; graine < 12; ++graine) {
      const ExerciceComplet complet = FaitExercice(niveau.graine + graine, niveau.conditions);
      for (const ViseeExercice &visee : complet.exercice.visees) {
        Observation typee = Typee(complet.exercice, visee);
        const int minute = std::stoi(typee.minute);
        if (minute == 59) {
          continue;
        }
        typee.minute = std::to_string(minute + 1);
        const std::vector<Glissade> g = CorrigeExercice(complet, {&typee, 1}, {}).visees.front().glissades;
        const auto laMinute = std::find_if(g.begin(), g.end(), [](const Glissade &une) {
          return une.genre == GenreGlissade::Minute && une.ajout == -1;
        });
        if (laMinute != g.end()) {
          EXPECT_EQ(laMinute, g.begin()) << "seed " << niveau.graine + graine;
          ++nommees;
        }
      }
    }
  }
  EXPECT_GT(nommees, 100);
}

} // namespace
} // namespace velmaris

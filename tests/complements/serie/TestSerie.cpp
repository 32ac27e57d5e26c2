#include "OutilsSerie.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <iostream>

/// Runs of readings: what they are reduced to, and what is found wrong in them.
namespace velmaris {
namespace {

using essais::AttendPart;
using essais::Fausse;
using essais::Livre;
using essais::Normale;
using essais::Raconte;
using essais::SerieAuHasard;
using essais::Tirages;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

bool Dit(const FicheSerie &fiche, AvisSerie avis) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), avis) != fiche.avis.end();
}

TEST(Run, WithoutErrorsTheOneReadingIsTheOneThatTheSextantWouldShow) {
  std::mt19937_64 alea(2001);
  for (int i = 0; i < Tirages(60, 2000); ++i) {
    const Livre livre = SerieAuHasard(alea, 3, 30);
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    ASSERT_TRUE(fiche.faite);
    EXPECT_THAT(fiche.avis, IsEmpty()) << i;
    EXPECT_NEAR(fiche.decalage, 0, 2E-4);
    EXPECT_NEAR(fiche.lecture * 60, essais::LectureVraie(livre.base, fiche.heure).lecture * 60, 5E-4) << i;
    const double secondes = fiche.heure.fraction * 86400;
    EXPECT_NEAR(secondes, std::round(secondes), 1E-4) << "a time to type";
    EXPECT_NEAR(fiche.pente.trouvee, fiche.pente.ciel, 5E-4);
  }
}

TEST(Run, AnOffsetOfThePositionStaysInTheReadingWhichKeepsItsTimeOfChoice) {
  std::mt19937_64 alea(2002);
  for (int i = 0; i < 40; ++i) {
    Livre livre = SerieAuHasard(alea, 6, 12);
    const InstantUTC voulue = PlusTard(livre.base.heureLieu, 100);
    const double vraie = essais::LectureVraie(livre.base, voulue).lecture;
    livre.base.lieu.latitude += 0.05;
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures, voulue);
    EXPECT_EQ(fiche.heure.fraction, voulue.fraction);
    EXPECT_NEAR(fiche.lecture * 60, vraie * 60, 0.05) << "three miles tilt the course by little";
  }
}

TEST(Run, TheSkysSlopeIsThatOfTheNavigationalTriangle) {
  BaseLectures base;
  base.astre = {GenreAstre::Etoile, 10};
  base.lieu = {47, -6};
  base.heureLieu = {2461213.5, 0.9};
  std::vector<LectureSerie> lectures;
  for (int i = 0; i < 5; ++i) {
    lectures.push_back(essais::LectureVraie(base, PlusTard(base.heureLieu, 20 * i)));
  }
  const FicheSerie fiche = ReduitSerie(base, lectures);
  const PlaceTopocentrique vue =
      VueDe(PlaceDe(PrepareCiel({TTDe(fiche.milieu), UT1De(fiche.milieu, 0)}), base.astre), {47, -6, 0});
  EXPECT_NEAR(fiche.pente.ciel, 15.0411 * std::cos(47 * kRadian) * std::sin(vue.azimut * kRadian), 2E-4);
}

TEST(Run, ItsDoubtsAreThoseOfAMean) {
  std::mt19937_64 alea(2003);
  Livre livre = SerieAuHasard(alea, 9, 9);
  livre.base.corrections.horizonArtificiel = false;
  for (std::size_t i = 0; i < 9; ++i) {
    livre.lectures[i] = essais::LectureVraie(livre.base, livre.lectures[i].utc);
    Fausse(livre.base, livre.lectures[i], i % 3 == 0 ? 1 : i % 3 == 1 ? -1 : 0);
  }
  const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
  EXPECT_DOUBLE_EQ(fiche.ecartType, 0.7 / 3);
  // Six of nine are off by a minute: the root of 6 over 8; near the horizon the air takes a little of it.
  EXPECT_NEAR(fiche.parDispersion.lecture, std::sqrt(0.75), 0.02);
  EXPECT_NEAR(fiche.parDispersion.ecartType, fiche.parDispersion.lecture / 3, 1E-12);
  EXPECT_NEAR(fiche.parDispersion.facteur, 2.306, 1E-3);
}

TEST(Run, ThreeToThirtyReadingsMakeOne) {
  std::mt19937_64 alea(2004);
  Livre livre = SerieAuHasard(alea, 31, 31);
  EXPECT_THAT(ReduitSerie(livre.base, livre.lectures).avis, ElementsAre(AvisSerie::Trop));
  livre.lectures.front().ecartee = true;
  EXPECT_TRUE(ReduitSerie(livre.base, livre.lectures).faite) << "those left out don't count";
  livre.lectures.resize(3);
  EXPECT_THAT(ReduitSerie(livre.base, livre.lectures).avis, ElementsAre(AvisSerie::TropPeu));
  livre.lectures.front().ecartee = false;
  EXPECT_TRUE(ReduitSerie(livre.base, livre.lectures).faite);
}

TEST(Run, WhatTheSkyHasNoAnswerForIsRefusedWithTheReason) {
  std::mt19937_64 alea(2005);
  Livre livre = SerieAuHasard(alea, 5, 5);
  livre.base.astre = {GenreAstre::Etoile, kRangSansPlace};
  const FicheSerie nova = ReduitSerie(livre.base, livre.lectures);
  EXPECT_THAT(nova.avis, ElementsAre(AvisSerie::SansCiel));
  EXPECT_EQ(nova.refus, RaisonRefus::EtoileSansPlace);
  EXPECT_FALSE(nova.faite);
  livre.base.astre = {};
  livre.base.lieu.latitude = 91;
  EXPECT_EQ(ReduitSerie(livre.base, livre.lectures).refus, RaisonRefus::LieuImpossible);
}

TEST(Run, ReadingsAtOneTimeHaveAMeanAndNoSlope) {
  std::mt19937_64 alea(2006);
  Livre livre = SerieAuHasard(alea, 4, 4);
  for (LectureSerie &l : livre.lectures) {
    l = livre.lectures.front();
  }
  const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
  ASSERT_TRUE(fiche.faite);
  EXPECT_EQ(fiche.pente.chance, 1);
  EXPECT_NEAR(fiche.decalage, 0, 2E-4);
}

TEST(Run, AReadingLeftOutKeepsItsResidualAndMovesNothing) {
  std::mt19937_64 alea(2007);
  Livre livre = SerieAuHasard(alea, 8, 8);
  livre.base.corrections.horizonArtificiel = false;
  for (LectureSerie &l : livre.lectures) {
    l = essais::LectureVraie(livre.base, l.utc);
  }
  Fausse(livre.base, livre.lectures[2], 20);
  EXPECT_EQ(ReduitSerie(livre.base, livre.lectures).improbable, 2U);
  livre.lectures[2].ecartee = true;
  const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
  EXPECT_NEAR(fiche.decalage, 0, 2E-4);
  EXPECT_NEAR(fiche.residus[2].residu, 20, 0.5);
  EXPECT_EQ(fiche.comptees, 7U);
}

TEST(Run, ItsCourseGoesThroughTheReadings) {
  std::mt19937_64 alea(2008);
  const Livre livre = SerieAuHasard(alea, 6, 6);
  const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
  const auto course = CourseSerie(livre.base, livre.lectures, fiche, 9);
  ASSERT_EQ(course.size(), 9U);
  EXPECT_NEAR(course.front().minutes, fiche.residus.front().minutes, 1E-9);
  EXPECT_NEAR(course.back().hauteur, essais::HauteurVraie(livre.base, livre.lectures.back().utc), 1E-5);
}

/// Clean runs: the mean has no bias, both doubts hold, alarms come at their rate.
TEST(RunsAtRandom, CleanOnesHoldTheirDoubtsIn95Of100) {
  std::mt19937_64 alea(2010);
  const int nombre = Tirages(1200, 20000);
  int supposes = 0;
  int disperses = 0;
  int testes = 0;
  int nommes = 0;
  int pentes = 0;
  double somme = 0;
  for (int i = 0; i < nombre; ++i) {
    Livre livre = SerieAuHasard(alea, 3, 20);
    livre.base.douteLieu = 0;
    for (LectureSerie &l : livre.lectures) {
      Fausse(livre.base, l, Normale(alea, livre.base.ecartType));
    }
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    ASSERT_TRUE(fiche.faite);
    somme += fiche.decalage / fiche.ecartType;
    supposes += std::fabs(fiche.decalage) < 1.959964 * fiche.ecartType ? 1 : 0;
    disperses += std::fabs(fiche.decalage) < fiche.parDispersion.facteur * fiche.parDispersion.ecartType ? 1 : 0;
    testes += fiche.seuil > 0 ? 1 : 0;
    nommes += fiche.improbable || Dit(fiche, AvisSerie::ErreurSansNom) ? 1 : 0;
    pentes += Dit(fiche, AvisSerie::PenteFausse) ? 1 : 0;
  }
  const double latitude = Raconte() ? 0.001 : 0.01;
  AttendPart(supposes, nombre, 0.95, latitude);
  AttendPart(disperses, nombre, 0.95, latitude);
  AttendPart(nommes, testes, 0.01, 0.002);
  AttendPart(pentes, nombre, 0.01, 0.002);
  EXPECT_LT(std::fabs(somme / nombre), 4 / std::sqrt(nombre));
  if (Raconte()) {
    std::cout << nombre << " clean runs: mean " << somme / nombre << " deviations off, within the doubt "
              << 100.0 * supposes / nombre << " % by the assumed error, " << 100.0 * disperses / nombre
              << " % by the scatter, alarms " << 100.0 * nommes / testes << " % of readings in " << testes << ", "
              << 100.0 * pentes / nombre << " % of slopes\n";
  }
}

TEST(RunsAtRandom, ABlunderOfEightDeviationsAmongFiveOrMoreIsNamed) {
  std::mt19937_64 alea(2011);
  const int nombre = Tirages(800, 20000);
  int nommes = 0;
  for (int i = 0; i < nombre; ++i) {
    Livre livre = SerieAuHasard(alea, 5, 20);
    livre.base.douteLieu = 0;
    const std::size_t fautive = alea() % livre.lectures.size();
    for (LectureSerie &l : livre.lectures) {
      Fausse(livre.base, l, Normale(alea, livre.base.ecartType));
    }
    Fausse(livre.base, livre.lectures[fautive], (i % 2 == 0 ? 8 : -8) * livre.base.ecartType);
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    nommes += fiche.improbable == fautive ? 1 : 0;
    EXPECT_EQ(fiche.comptees, livre.lectures.size()) << "never left out by itself";
  }
  EXPECT_GE(nommes, 0.99 * nombre);
  if (Raconte()) {
    std::cout << nombre << " runs with a blunder: named in " << 100.0 * nommes / nombre << " %\n";
  }
}

TEST(RunsAtRandom, APositionOffByItsDoubtRaisesNoMoreAlarmsOfTheSlope) {
  std::mt19937_64 alea(2012);
  const int nombre = Tirages(800, 10000);
  int pentes = 0;
  for (int i = 0; i < nombre; ++i) {
    Livre livre = SerieAuHasard(alea, 10, 25);
    for (LectureSerie &l : livre.lectures) {
      Fausse(livre.base, l, Normale(alea, livre.base.ecartType));
    }
    livre.base.lieu.latitude += Normale(alea, livre.base.douteLieu) / 60;
    livre.base.lieu.longitude +=
        Normale(alea, livre.base.douteLieu) / 60 / std::cos(livre.base.lieu.latitude * kRadian);
    pentes += Dit(ReduitSerie(livre.base, livre.lectures), AvisSerie::PenteFausse) ? 1 : 0;
  }
  AttendPart(pentes, nombre, 0.01, 0.004);
  if (Raconte()) {
    std::cout << nombre << " runs with the position off: alarms of the slope " << 100.0 * pentes / nombre << " %\n";
  }
}

} // namespace
} // namespace velmaris

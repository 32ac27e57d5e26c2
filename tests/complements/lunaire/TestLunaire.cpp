#include "OutilsLunaire.hpp"

#include "complements/ciel/CielDuMoment.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <iostream>

/// The clock from the Moon.
namespace velmaris {
namespace {

using essais::AttendPart;
using essais::Normale;
using essais::Nuit;
using essais::NuitAuHasard;
using essais::Raconte;
using essais::Sort;
using essais::Tirages;
using testing::Contains;
using testing::ElementsAre;

bool Dit(const FicheLunaire &fiche, AvisLunaire avis) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), avis) != fiche.avis.end();
}

BordDistance BordAuHasard(std::mt19937_64 &alea) {
  return Sort(alea, 0, 1) < 0.5 ? BordDistance::Proche : BordDistance::Lointain;
}

/// The solution nearer to the truth.
const SolutionLunaire &LaVraie(const FicheLunaire &fiche, double retard) {
  const bool seconde =
      fiche.seconde && std::fabs(fiche.seconde->retard - retard) < std::fabs(fiche.solution->retard - retard);
  return seconde ? *fiche.seconde : *fiche.solution;
}

TEST(LunarDistance, IsTheOneThatPointsAllAroundTheLimbsGive) {
  std::mt19937_64 alea(2050);
  for (int i = 0; i < Tirages(60, 2000); ++i) {
    const Nuit nuit = NuitAuHasard(alea, 0);
    const CielDuMoment ciel = PrepareCiel({TTDe(nuit.utc), UT1De(nuit.utc, 0)});
    const PlaceGeocentrique lune = PlaceDe(ciel, {GenreAstre::Lune, 0});
    const PlaceGeocentrique place = PlaceDe(ciel, nuit.astres.front());
    const bool soleil = nuit.astres.front().genre == GenreAstre::Soleil;
    const BordDistance bord = BordAuHasard(alea);
    const BordDistance autre = soleil ? BordAuHasard(alea) : BordDistance::Centre;
    const DistanceVue vue =
        VoitDistance(lune, bord, place, autre, {nuit.lieu.latitude, nuit.lieu.longitude, nuit.oeil}, nuit.air);
    const double jugee = essais::DistanceJugee(lune, bord, place, autre, nuit.lieu, nuit.oeil, nuit.air);
    EXPECT_NEAR(vue.distance * 60, jugee * 60, 1E-3) << i;
  }
}

TEST(LunarDistance, InTheZenithTheAirlessLimbsAreASemidiameterApart) {
  PlaceGeocentrique lune;
  lune.distance = 0.00257;
  lune.demiDiametre = 15.5;
  lune.parallaxe = 57;
  lune.gha = 0;
  PlaceGeocentrique etoile;
  etoile.gha = 40;
  const AirMesure vide{0, 10};
  const double proche =
      VoitDistance(lune, BordDistance::Proche, etoile, BordDistance::Centre, {0, 0, 0}, vide).distance;
  const DistanceVue loin = VoitDistance(lune, BordDistance::Lointain, etoile, BordDistance::Centre, {0, 0, 0}, vide);
  EXPECT_NEAR((loin.distance - proche) * 60, 2 * loin.demiDiametreLune, 1E-6);
  EXPECT_GT(loin.demiDiametreLune, 15.7) << "augmented by a sixtieth";
  EXPECT_NEAR(loin.geocentrique, 40, 1E-9);
}

TEST(LunarsAtRandom, WithoutErrorsTheTimeIsTrueWithinTwoSeconds) {
  std::mt19937_64 alea(2051);
  const int nombre = Tirages(60, 5000);
  double pire = 0;
  int faites = 0;
  int doubles = 0;
  for (int i = 0; i < nombre; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 15);
    const double retard = Sort(alea, -1, 1) * (i % 4 == 0 ? 7200 : 600);
    const bool hauteurs = i % 2 == 0;
    std::vector<MesureLunaire> mesures;
    for (std::size_t k = 0; k < std::min<std::size_t>(nuit.astres.size(), 2); ++k) {
      mesures.push_back(essais::MesureVraie(nuit, nuit.astres[k], 120.0 * static_cast<double>(k), retard, hauteurs,
                                            BordAuHasard(alea)));
    }
    ReglagesLunaire reglages = essais::ReglagesDe(nuit);
    if (hauteurs) {
      reglages.lieu.latitude += Sort(alea, -0.7, 0.7);
      reglages.lieu.longitude += Sort(alea, -0.7, 0.7);
    }
    const FicheLunaire fiche = ReduitLunaires(mesures, reglages);
    ASSERT_TRUE(fiche.solution) << i << " " << fiche.cadence;
    const double ecart = std::fabs(LaVraie(fiche, retard).retard - retard);
    EXPECT_LT(ecart, 2) << i << (hauteurs ? " with" : " without") << " heights, body "
                        << static_cast<int>(mesures.front().astre.genre);
    pire = std::max(pire, ecart);
    ++faites;
    doubles += fiche.seconde ? 1 : 0;
  }
  if (Raconte()) {
    std::cout << faites << " lunars, the worst " << pire << " s off, " << doubles << " with two times\n";
  }
}

/// Noise on distances, heights and position as assumed.
TEST(LunarsAtRandom, WithErrorsTheDoubtHoldsIn95Of100) {
  std::mt19937_64 alea(2052);
  const int nombre = Tirages(150, 3000);
  int dedans = 0;
  int faites = 0;
  int testes = 0;
  int alarmes = 0;
  double doute = 0;
  for (int i = 0; i < nombre; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 18);
    const double retard = Sort(alea, -900, 900);
    const bool hauteurs = i % 2 == 0;
    ReglagesLunaire reglages = essais::ReglagesDe(nuit);
    std::vector<MesureLunaire> mesures;
    for (int k = 0; k < 5; ++k) {
      const Astre &astre = nuit.astres[static_cast<std::size_t>(k) % nuit.astres.size()];
      mesures.push_back(essais::MesureVraie(nuit, astre, 100 * k, retard, hauteurs, BordDistance::Proche));
      MesureLunaire &m = mesures.back();
      m.lecture += Normale(alea, reglages.ecartType) / 60;
      if (hauteurs) {
        *m.hauteurLune += Normale(alea, reglages.ecartHauteur) / 60;
        *m.hauteurAstre += Normale(alea, reglages.ecartHauteur) / 60;
      }
    }
    reglages.lieu.latitude += Normale(alea, reglages.douteLieu) / 60;
    reglages.lieu.longitude += Normale(alea, reglages.douteLieu) / 60 / std::cos(nuit.lieu.latitude * kRadian);
    const FicheLunaire fiche = ReduitLunaires(mesures, reglages);
    if (!fiche.solution) {
      EXPECT_TRUE(Dit(fiche, AvisLunaire::TropLent)) << i;
      continue;
    }
    const SolutionLunaire &s = LaVraie(fiche, retard);
    ++faites;
    dedans += std::fabs(s.retard - retard) < 1.959964 * s.ecartType ? 1 : 0;
    doute += s.ecartType;
    testes += s.seuil > 0 ? 1 : 0;
    alarmes += s.improbable || s.sansNom ? 1 : 0;
  }
  EXPECT_GT(faites, 0.95 * nombre);
  AttendPart(dedans, faites, 0.95, Raconte() ? 0.005 : 0.02);
  AttendPart(alarmes, testes, 0.01, 0.005);
  if (Raconte()) {
    std::cout << faites << " lunars of five distances with errors: within the doubt " << 100.0 * dedans / faites
              << " %, which is " << doute / faites << " s in the mean; alarms " << 100.0 * alarmes / testes << " %\n";
  }
}

TEST(Lunar, AMinuteOfArcIsTwoMinutesOfTime) {
  std::mt19937_64 alea(2053);
  for (int i = 0; i < 20; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 20);
    const MesureLunaire m = essais::MesureVraie(nuit, nuit.astres.front(), 0, 40, true, BordDistance::Proche);
    ReglagesLunaire reglages = essais::ReglagesDe(nuit);
    reglages.ecartType = 1;
    reglages.ecartHauteur = 1E-3;
    const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), reglages);
    ASSERT_TRUE(fiche.solution);
    const SolutionLunaire &s = LaVraie(fiche, 40);
    // The rate is that of the distance freed from the place, since the heights keep the parallax.
    EXPECT_NEAR(s.ecartType, 3600 / s.cadence, 1);
    EXPECT_GT(s.ecartType, 90);
    EXPECT_LT(s.ecartType, 360);
  }
}

TEST(Lunar, ADistanceThatHardlyMovesIsRefusedWithItsRate) {
  std::mt19937_64 alea(2054);
  int lents = 0;
  while (lents < 8) {
    const Nuit nuit = NuitAuHasard(alea, 0);
    for (const Astre &astre : nuit.astres) {
      if (std::fabs(essais::CadenceJugee(nuit, astre)) > 4) {
        continue;
      }
      const MesureLunaire m = essais::MesureVraie(nuit, astre, 0, 0, false, BordDistance::Proche);
      const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), essais::ReglagesDe(nuit));
      if (!fiche.solution) {
        ++lents;
        EXPECT_THAT(fiche.avis, ElementsAre(AvisLunaire::TropLent));
        EXPECT_LT(fiche.cadence, kCadenceMin);
      } else {
        EXPECT_GE(fiche.solution->cadence, kCadenceMin) << "another time of the day has it too";
      }
    }
  }
}

TEST(Lunar, ABlunderAmongSixIsNamed) {
  std::mt19937_64 alea(2055);
  int nommes = 0;
  constexpr int kNombre = 25;
  for (int i = 0; i < kNombre; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 18);
    std::vector<MesureLunaire> mesures;
    for (int k = 0; k < 6; ++k) {
      mesures.push_back(essais::MesureVraie(nuit, nuit.astres.front(), 90 * k, -75, false, BordDistance::Proche));
    }
    mesures[static_cast<std::size_t>(i) % 6].lecture += (i % 2 == 0 ? 8 : -8) * 0.5 / 60;
    const FicheLunaire fiche = ReduitLunaires(mesures, essais::ReglagesDe(nuit));
    ASSERT_TRUE(fiche.solution);
    nommes += LaVraie(fiche, -75).improbable == static_cast<std::size_t>(i) % 6 ? 1 : 0;
    mesures[static_cast<std::size_t>(i) % 6].ecartee = true;
    const FicheLunaire sans = ReduitLunaires(mesures, essais::ReglagesDe(nuit));
    ASSERT_TRUE(sans.solution);
    EXPECT_NEAR(LaVraie(sans, -75).retard, -75, 2);
    EXPECT_NEAR(std::fabs(LaVraie(sans, -75).residus[static_cast<std::size_t>(i) % 6].residu), 4, 0.05);
  }
  EXPECT_EQ(nommes, kNombre);
}

TEST(Lunar, TheWatchIsFoundFiveHoursOff) {
  std::mt19937_64 alea(2056);
  for (int i = 0; i < 12; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 20);
    const double retard = i % 2 == 0 ? 18000 : -18000;
    const MesureLunaire m = essais::MesureVraie(nuit, nuit.astres.front(), 0, retard, true, BordDistance::Lointain);
    const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), essais::ReglagesDe(nuit));
    ASSERT_TRUE(fiche.solution) << i;
    // The estimated position, of the wrong hour, lies a quarter of a turn off: of the two crossings the other may be
    // meant, whose place flattens the Earth a little differently.
    EXPECT_NEAR(LaVraie(fiche, retard).retard, retard, 60) << i;
  }
}

TEST(Lunar, ADistanceThatTurnsHasTwoTimesOfWhichTheNearerToTheWatchComesFirst) {
  std::mt19937_64 alea(2057);
  int doubles = 0;
  for (int i = 0; i < 400 && doubles < 4; ++i) {
    const Nuit nuit = NuitAuHasard(alea, 12);
    const MesureLunaire m = essais::MesureVraie(nuit, nuit.astres.front(), 0, 300, false, BordDistance::Proche);
    ReglagesLunaire reglages = essais::ReglagesDe(nuit);
    reglages.etendue = 24;
    const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), reglages);
    if (fiche.seconde) {
      ++doubles;
      EXPECT_THAT(fiche.avis, Contains(AvisLunaire::DeuxSolutions));
      EXPECT_NEAR(fiche.solution->retard, 300, 2);
      EXPECT_GT(std::fabs(fiche.seconde->retard), 300);
      EXPECT_NEAR(fiche.seconde->residus.front().residu, 0, 1E-3) << "the sky has that distance twice";
    }
  }
  EXPECT_EQ(doubles, 4);
}

TEST(Lunar, ADistanceThatTheSkyNeverHasHasNoTime) {
  std::mt19937_64 alea(2058);
  const Nuit nuit = NuitAuHasard(alea, 20);
  MesureLunaire m = essais::MesureVraie(nuit, nuit.astres.front(), 0, 0, false, BordDistance::Proche);
  m.lecture += 8;
  EXPECT_THAT(ReduitLunaires(std::span(&m, 1), essais::ReglagesDe(nuit)).avis, ElementsAre(AvisLunaire::SansSolution));
}

TEST(Lunar, WhatCantBeIsRefused) {
  std::mt19937_64 alea(2059);
  const Nuit nuit = NuitAuHasard(alea, 20);
  const ReglagesLunaire reglages = essais::ReglagesDe(nuit);
  MesureLunaire m = essais::MesureVraie(nuit, nuit.astres.front(), 0, 0, false, BordDistance::Proche);
  EXPECT_THAT(ReduitLunaires({}, reglages).avis, ElementsAre(AvisLunaire::SansMesure));
  m.astre = {GenreAstre::Lune, 0};
  EXPECT_THAT(ReduitLunaires(std::span(&m, 1), reglages).avis, ElementsAre(AvisLunaire::PasUnAstre));
  m.astre = {GenreAstre::Etoile, 10};
  m.montre = UTCDe({2150, 1, 1, 0, 0, 0});
  const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), reglages);
  EXPECT_THAT(fiche.avis, ElementsAre(AvisLunaire::SansCiel));
  EXPECT_EQ(fiche.refus, RaisonRefus::LuneHorsTable);
  m.montre = nuit.utc;
  ReglagesLunaire nulle = reglages;
  nulle.lieu.latitude = -90.5;
  EXPECT_EQ(ReduitLunaires(std::span(&m, 1), nulle).refus, RaisonRefus::LieuImpossible);
}

} // namespace
} // namespace velmaris

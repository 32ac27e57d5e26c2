#include "OutilsPrevision.hpp"

#include "complements/point/HauteurPreparee.hpp"
#include "complements/prevision/JeuxAstres.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <numbers>

/// The best sets against brute force, by another algebra.
namespace velmaris {
namespace {

using essais::JourAuHasard;
using essais::JourDeMer;
using essais::Mouillage;
using essais::Sort;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kRadian = std::numbers::pi / 180;

int Nombre() {
  const char *voulu = std::getenv("VELMARIS_JOURNEES");
  return voulu == nullptr ? 12 : std::max(12, std::atoi(voulu) / 20);
}

/// Trace of the place's part of the inverse of the normal equations, by cofactors of the whole matrix.
double TraceParCofacteurs(const std::vector<PoidsAstre> &astres) {
  double n[3][3] = {};
  for (const PoidsAstre &a : astres) {
    const double ligne[3] = {std::cos(a.azimut * kRadian), std::sin(a.azimut * kRadian), 1};
    for (int i = 0; i < 3; ++i) {
      for (int k = 0; k < 3; ++k) {
        n[i][k] += ligne[i] * ligne[k] / (a.ecart * a.ecart);
      }
    }
  }
  if (astres.size() < 4) {
    const double det = n[0][0] * n[1][1] - n[0][1] * n[0][1];
    return det > 0 ? (n[0][0] + n[1][1]) / det : std::numeric_limits<double>::infinity();
  }
  const double c00 = n[1][1] * n[2][2] - n[1][2] * n[1][2];
  const double c11 = n[0][0] * n[2][2] - n[0][2] * n[0][2];
  const double det = n[0][0] * c00 - n[0][1] * (n[0][1] * n[2][2] - n[1][2] * n[0][2]) +
                     n[0][2] * (n[0][1] * n[1][2] - n[1][1] * n[0][2]);
  return det > 0 ? (c00 + c11) / det : std::numeric_limits<double>::infinity();
}

TEST(TraceDuJeu, IsTheClosedFormOfBodiesAllAround) {
  // n bodies evenly around, each with the error s: half of them count for each direction, 2 s^2/n north and east.
  for (const std::size_t n : {3U, 4U, 5U, 8U}) {
    std::vector<PoidsAstre> astres;
    for (std::size_t i = 0; i < n; ++i) {
      astres.push_back({20 + 360.0 * static_cast<double>(i) / static_cast<double>(n), 0.7});
    }
    EXPECT_NEAR(TraceDuJeu(astres), 4 * 0.49 / static_cast<double>(n), 1E-12) << n;
  }
}

TEST(TraceDuJeu, OfBodiesInOneDirectionIsNoFix) {
  EXPECT_TRUE(std::isinf(TraceDuJeu(std::vector<PoidsAstre>{{30, 1}, {210, 1}, {30, 1}})));
  EXPECT_TRUE(std::isinf(TraceDuJeu(std::vector<PoidsAstre>{})));
}

TEST(TraceDuJeu, AgreesWithTheInverseOfTheNormalEquations) {
  std::mt19937_64 alea(2020);
  for (int i = 0; i < 2000; ++i) {
    std::vector<PoidsAstre> astres;
    for (int k = 0; k < 3 + i % 3; ++k) {
      astres.push_back({Sort(alea, 0, 360), Sort(alea, 0.5, 3)});
    }
    const double trace = TraceParCofacteurs(astres);
    EXPECT_NEAR(TraceDuJeu(astres) / trace, 1, trace < 1E4 ? 1E-9 : 1E-2) << i;
  }
}

/// All sets of a count among the bodies that may be proposed, the best first.
std::vector<JeuAstres> ParForce(const CielDuPlan &ciel, const ReglagesJeux &r, std::size_t nombre) {
  std::vector<std::size_t> libres;
  for (std::size_t i = 0; i < ciel.astres.size(); ++i) {
    if (ciel.astres[i].raisons.none() && ciel.astres[i].magnitude <= r.magnitudeMax) {
      libres.push_back(i);
    }
  }
  std::stable_sort(libres.begin(), libres.end(),
                   [&](std::size_t a, std::size_t b) { return ciel.astres[a].magnitude < ciel.astres[b].magnitude; });
  libres.resize(std::min(libres.size(), r.plusBrillants));
  std::vector<JeuAstres> tous;
  for (std::uint32_t masque = 0; masque < (1U << libres.size()); ++masque) {
    if (static_cast<std::size_t>(__builtin_popcount(masque)) != nombre) {
      continue;
    }
    JeuAstres jeu;
    std::vector<PoidsAstre> poids;
    for (std::size_t i = 0; i < libres.size(); ++i) {
      if ((masque >> i & 1U) != 0) {
        const AstreDuPlan &a = ciel.astres[libres[i]];
        jeu.astres.push_back(libres[i]);
        poids.push_back({a.azimut, ErreurSupposee(r.erreur, a.apparente)});
      }
    }
    jeu.trace = TraceParCofacteurs(poids);
    if (std::isfinite(jeu.trace)) {
      tous.push_back(std::move(jeu));
    }
  }
  std::sort(tous.begin(), tous.end(), [](const JeuAstres &a, const JeuAstres &b) { return a.trace < b.trace; });
  return tous;
}

/// The kept sets are the first of all; sets as good to the last digits may stand in either order.
void CompareForce(const std::vector<JeuAstres> &choisis, const std::vector<JeuAstres> &tous, std::size_t garde) {
  ASSERT_EQ(choisis.size(), std::min(garde, tous.size()));
  for (std::size_t i = 0; i < choisis.size(); ++i) {
    EXPECT_NEAR(choisis[i].trace / tous[i].trace, 1, 1E-7);
    auto trie = choisis[i].astres;
    std::sort(trie.begin(), trie.end());
    const bool la = std::any_of(tous.begin(), tous.end(), [&](const JeuAstres &jeu) {
      auto autre = jeu.astres;
      std::sort(autre.begin(), autre.end());
      return autre == trie && std::fabs(jeu.trace / choisis[i].trace - 1) < 1E-7;
    });
    EXPECT_TRUE(la) << "its trace is its own";
  }
}

TEST(JeuxAstres, AreTheBestOfTheirCountByBruteForce) {
  std::mt19937_64 alea(2021);
  int compares = 0;
  for (int i = 0; i < Nombre(); ++i) {
    const JourDeMer j = JourAuHasard(alea);
    const CielDuJour ciel = *CielDeLaJournee(essais::Table(), j.jour, j.navire);
    ReglagesPlan plan;
    plan.hauteurMin = i % 2 == 0 ? 10 : 1; // low ones weigh less
    ReglagesJeux reglages;
    reglages.plusBrillants = 14;
    const CielDuPlan vu = RegardeCiel(ciel, j.navire, PlusTard(ciel.debut, Sort(alea, 1, 25) * 3600), plan);
    const MeilleursJeux jeux = ChoisitJeux(vu, reglages);
    for (std::size_t n = 0; n < kNombresDuJeu.size(); ++n) {
      const std::vector<JeuAstres> tous = ParForce(vu, reglages, kNombresDuJeu[n]);
      CompareForce(jeux[n], tous, reglages.garde);
      compares += tous.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(compares, Nombre() / 2);
  if (Nombre() > 12) {
    std::cout << compares << " choices compared with brute force\n";
  }
}

TEST(JeuxAstres, OfANightMinuteByMinuteAreThoseOfEachMinuteAlone) {
  const NavirePrevu navire = Mouillage(40, -20, 10, 5);
  const JourCivil jour{2026, 10, 5, std::nullopt};
  const CielDuJour ciel = *CielDeLaJournee(essais::Table(), jour, navire);
  const std::vector<InstantUTC> moments = InstantsDePrise(*CalculeJournee(ciel, jour, navire), 2);
  const ReglagesJeux reglages;
  const auto nuit = JeuxDesMoments(ciel, navire, moments, {}, reglages);
  ASSERT_TRUE(nuit);
  ASSERT_EQ(nuit->size(), moments.size());
  for (std::size_t i = 0; i < moments.size(); ++i) {
    const MeilleursJeux seuls = ChoisitJeux(RegardeCiel(ciel, navire, moments[i], {}), reglages);
    for (std::size_t n = 0; n < seuls.size(); ++n) {
      ASSERT_EQ((*nuit)[i].jeux[n].size(), seuls[n].size());
      for (std::size_t k = 0; k < seuls[n].size(); ++k) {
        EXPECT_EQ((*nuit)[i].jeux[n][k].astres, seuls[n][k].astres) << i << " " << n << " " << k;
        EXPECT_EQ((*nuit)[i].jeux[n][k].trace, seuls[n][k].trace);
      }
    }
  }
  std::stop_source arret;
  arret.request_stop();
  EXPECT_FALSE(JeuxDesMoments(ciel, navire, moments, {}, reglages, arret.get_token()));
}

/// A sky of bodies at given azimuths, 40 degrees high, that all may be proposed.
CielDuPlan CielInvente(const std::vector<double> &azimuts, const std::vector<double> &magnitudes, bool matin,
                       double azimutSoleil) {
  CielDuPlan ciel;
  ciel.soleilMonte = matin;
  ciel.azimutSoleil = azimutSoleil;
  for (std::size_t i = 0; i < azimuts.size(); ++i) {
    AstreDuPlan a;
    a.astre = {GenreAstre::Etoile, static_cast<int>(i) + 1};
    a.hauteur = a.apparente = 40;
    a.azimut = azimuts[i];
    a.magnitude = magnitudes[i];
    ciel.astres.push_back(a);
  }
  return ciel;
}

TEST(JeuxAstres, ABodyWithAReasonOrTooFaintIsNeverInOne) {
  CielDuPlan ciel = CielInvente({0, 60, 120, 180, 240, 300}, {1, 1, 1, 1, 3.5, 1}, false, 270);
  ciel.astres[2].raisons[static_cast<std::size_t>(RaisonPale::LigneLoin)] = true;
  const MeilleursJeux jeux = ChoisitJeux(ciel, {});
  ASSERT_THAT(jeux[1], SizeIs(1));
  EXPECT_THAT(jeux[1][0].astres, testing::UnorderedElementsAre(0, 1, 3, 5));
  EXPECT_THAT(jeux[2], IsEmpty()) << "four are left";
}

TEST(JeuxAstres, InTheEveningEastComesFirstAndTheBrighterFirst) {
  const MeilleursJeux cotes = ChoisitJeux(CielInvente({100, 220, 340}, {1, 1, 1}, false, 280), {});
  EXPECT_THAT(cotes[0][0].astres, testing::ElementsAre(0, 1, 2)) << "the horizon darkens away from the Sun first";
  const MeilleursJeux eclats = ChoisitJeux(CielInvente({190, 10, 70}, {2.5, 0, 1}, false, 280), {});
  EXPECT_EQ(eclats[0][0].astres.back(), 0U) << "the faintest comes out last";
}

TEST(JeuxAstres, InTheMorningEastComesFirstAndTheFainterFirst) {
  const MeilleursJeux cotes = ChoisitJeux(CielInvente({100, 220, 340}, {1, 1, 1}, true, 80), {});
  EXPECT_EQ(cotes[0][0].astres.front(), 0U) << "it fades towards the Sun first";
  const MeilleursJeux eclats = ChoisitJeux(CielInvente({350, 170, 50}, {0, 2.5, 0.5}, true, 80), {});
  EXPECT_EQ(eclats[0][0].astres.front(), 1U) << "the faintest goes first";
}

} // namespace
} // namespace velmaris

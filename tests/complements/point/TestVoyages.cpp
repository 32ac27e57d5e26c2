#include "OutilsPoint.hpp"
#include "Parts.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>

/// Fixes of voyages at random, made by another road than theirs; VELMARIS_VOYAGES is how many.
namespace velmaris {
namespace {

using essais::AttendPart;
using essais::Bruit;
using essais::DansEllipse;
using essais::Genre;
using essais::Milles;
using essais::Voyage;
using essais::VoyageAuHasard;

constexpr int kVoyages = 400;

int Nombre() { return essais::Voulus() > 0 ? essais::Voulus() : kVoyages; }

/// Whether figures are told: the whole run's are to be read.
bool Raconte() { return Nombre() > kVoyages; }

/// The solution that lies nearer to where the ship was.
const SolutionPoint &LaVraie(const FichePoint &fiche, const LieuNavire &vrai) {
  const bool seconde = fiche.seconde && Milles(fiche.seconde->lieu, vrai) < Milles(fiche.solution->lieu, vrai);
  return seconde ? *fiche.seconde : *fiche.solution;
}

void SansBruit(const Genre &genre, int nombre, std::uint64_t graine) {
  std::mt19937_64 alea(graine);
  int faits = 0;
  int premiers = 0;
  double pire = 0;
  for (int i = 0; i < nombre; ++i) {
    const Voyage v = VoyageAuHasard(alea, genre, {});
    const FichePoint fiche = FaitPoint(v.visees, v.reglages);
    if (essais::Dit(fiche, AvisPoint::AzimutsSerres)) {
      continue;
    }
    ASSERT_TRUE(fiche.solution) << i << " " << v.vrai.latitude;
    const double loin = Milles(LaVraie(fiche, v.vrai).lieu, v.vrai);
    EXPECT_LT(loin, 0.02) << i << " of " << v.visees.size() << " at " << v.vrai.latitude;
    pire = std::max(pire, loin);
    ++faits;
    premiers += Milles(fiche.solution->lieu, v.vrai) < 0.02 ? 1 : 0;
  }
  EXPECT_GT(faits, 0.9 * nombre) << "few have all bodies in one direction";
  EXPECT_EQ(premiers, faits) << "the ship's own place comes before its double";
  if (Raconte()) {
    std::cout << faits << " fixes of " << nombre << ", the worst " << pire << " miles off\n";
  }
}

TEST(Voyages, WithoutErrorsTheFixIsWhereTheShipWas) { SansBruit({}, Nombre(), 1901); }

TEST(Voyages, NearAPoleTheFixIsWhereTheShipWas) { SansBruit({3, 9, 6, 70, 88}, std::max(Nombre() / 10, 40), 1902); }

/// Voyages with errors as the fix assumes them: the ellipse, the mean, the alarms.
void AvecBruit(const Genre &genre, const Bruit &bruit, int nombre, std::uint64_t graine) {
  std::mt19937_64 alea(graine);
  int faits = 0;
  int dedans = 0;
  int alarmes = 0;
  int testes = 0;
  double nord = 0;
  double est = 0;
  for (int i = 0; i < nombre; ++i) {
    Voyage v = VoyageAuHasard(alea, genre, bruit);
    if (!bruit.route) {
      v.reglages.doutes = {v.reglages.doutes.hauteur, 0, 0, 0};
    }
    const FichePoint fiche = FaitPoint(v.visees, v.reglages);
    if (!fiche.solution) {
      continue;
    }
    const SolutionPoint &s = LaVraie(fiche, v.vrai);
    ++faits;
    dedans += DansEllipse(s.ellipse, s.lieu, v.vrai) < 1 ? 1 : 0;
    testes += s.seuil > 0 ? 1 : 0;
    alarmes += s.improbable || s.sansNom ? 1 : 0;
    nord += (s.lieu.latitude - v.vrai.latitude) * 60 / s.ellipse.a;
    est += std::remainder(s.lieu.longitude - v.vrai.longitude, 360) * 60 * std::cos(v.vrai.latitude * kRadian) /
           s.ellipse.a;
  }
  AttendPart(dedans, faits, 0.95, Raconte() ? 0 : 0.01);
  AttendPart(alarmes, testes, 0.01, 0.002);
  // A coordinate's deviation is at most the half axis over 2.45.
  EXPECT_LT(std::fabs(nord / faits), 4 / 2.45 / std::sqrt(faits));
  EXPECT_LT(std::fabs(est / faits), 4 / 2.45 / std::sqrt(faits));
  if (Raconte()) {
    std::cout << faits << " fixes: " << 100.0 * dedans / faits << " % in the ellipse, alarms "
              << 100.0 * alarmes / testes << " % of " << testes << ", mean " << nord / faits << " north, "
              << est / faits << " east of a half axis\n";
  }
}

TEST(Voyages, WithErrorsOfHeightsTheEllipseHoldsTheShipIn95Of100) { AvecBruit({}, {true, false}, Nombre(), 1903); }

TEST(Voyages, WithErrorsOfTheRunTooTheEllipseHoldsTheShip) { AvecBruit({}, {true, true}, Nombre(), 1904); }

TEST(Voyages, NearAPoleTheEllipseHoldsTheShip) {
  AvecBruit({3, 9, 6, 70, 85}, {true, true}, std::max(Nombre() / 10, 100), 1905);
}

TEST(Voyages, ACommonErrorOfThreeMinutesIsFoundWithinItsOwnError) {
  std::mt19937_64 alea(1906);
  int trouvees = 0;
  int dedans = 0;
  int placees = 0;
  for (int i = 0; i < Nombre() / 2; ++i) {
    Voyage v = VoyageAuHasard(alea, {5, 5, 0.4, 0, 65, true}, {true, false, 3});
    std::erase_if(v.visees, [](const ViseePoint &visee) { return visee.hauteur.artificiel; });
    if (v.visees.size() < 5) {
      continue;
    }
    v.reglages.erreurCommune = true;
    const FichePoint fiche = FaitPoint(v.visees, v.reglages);
    if (!fiche.solution || fiche.solution->communes.empty()) {
      continue;
    }
    ASSERT_EQ(fiche.solution->communes.size(), 1U) << "one watch, one horizon";
    const ErreurCommune &c = fiche.solution->communes.front();
    ++trouvees;
    dedans += std::fabs(c.valeur - 3) < 1.959964 * c.ecartType ? 1 : 0;
    placees += DansEllipse(fiche.solution->ellipse, fiche.solution->lieu, v.vrai) < 1 ? 1 : 0;
  }
  EXPECT_GT(trouvees, Nombre() / 10);
  AttendPart(dedans, trouvees, 0.95, 0.01);
  AttendPart(placees, trouvees, 0.95, 0.01);
  if (Raconte()) {
    std::cout << trouvees << " common errors: " << 100.0 * dedans / trouvees << " % within 1.96 deviations, ship in "
              << 100.0 * placees / trouvees << " %\n";
  }
}

TEST(Voyages, ABlunderOfADegreeAmongSixIsNamedRightly) {
  std::mt19937_64 alea(1907);
  int juges = 0;
  int nommes = 0;
  for (int i = 0; i < Nombre() / 2; ++i) {
    Voyage v = VoyageAuHasard(alea, {6, 6, 6, 0, 70}, {true, true});
    const FichePoint saine = FaitPoint(v.visees, v.reglages);
    const auto controlee = [](const ResiduPoint &r) { return r.redondance > 0.3; };
    if (!saine.solution || !std::all_of(saine.solution->residus.begin(), saine.solution->residus.end(), controlee)) {
      continue;
    }
    const std::size_t fautive = static_cast<std::size_t>(i) % 6;
    v.visees[fautive].hauteur.actuelle->observee += i % 2 == 0 ? 1 : -1;
    const FichePoint fiche = FaitPoint(v.visees, v.reglages);
    ++juges;
    nommes += fiche.solution && fiche.solution->improbable == fautive ? 1 : 0;
    EXPECT_TRUE(!fiche.solution || fiche.solution->residus[fautive].utilisee) << "never left out by itself";
  }
  EXPECT_GT(juges, Nombre() / 20);
  EXPECT_GE(nommes, 0.99 * juges) << juges;
  if (Raconte()) {
    std::cout << juges << " blunders, named rightly " << 100.0 * nommes / juges << " %\n";
  }
}

} // namespace
} // namespace velmaris

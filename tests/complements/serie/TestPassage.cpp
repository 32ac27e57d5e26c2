#include "OutilsSerie.hpp"
#include "complements/serie/Passage.hpp"

#include "complements/ciel/CielDuMoment.hpp"

#include <gtest/gtest.h>

#include <cmath>

/// Meridian passages of bodies for a ship under way, and the tops of their curves.
namespace velmaris {
namespace {

using essais::Navigue;
using essais::Tirages;

/// Hour angle from the ship's meridian, degrees in (-180, 180], by her small steps.
double AngleJuge(const BaseLectures &base, const InstantUTC &utc) {
  const PlaceGeocentrique place = PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, base.dut1)}), base.astre);
  return std::remainder(place.gha + Navigue(base.route, {}, base.lieu, base.heureLieu, utc).longitude, 360);
}

/// Time of a passage by bisection, seconds from the base's.
double PassageJuge(const BaseLectures &base, bool inferieur) {
  const double but = inferieur ? 180 : 0;
  const auto angle = [&](double s) { return std::remainder(AngleJuge(base, PlusTard(base.heureLieu, s)) - but, 360); };
  double tot = -angle(0) * 240 - 2700;
  double tard = tot + 5400;
  for (int i = 0; i < 50; ++i) {
    const double milieu = (tot + tard) / 2;
    (angle(milieu) < 0 ? tot : tard) = milieu;
  }
  return tot;
}

/// Time of the top by golden sections, seconds from a time.
double SommetJuge(const BaseLectures &base, const InstantUTC &utc, double signe, double largeur) {
  const double or_ = (std::sqrt(5.0) - 1) / 2;
  const auto h = [&](double s) { return signe * essais::HauteurVraie(base, PlusTard(utc, s)); };
  double a = -largeur;
  double b = largeur;
  for (int i = 0; i < 60; ++i) {
    const double c = b - or_ * (b - a);
    const double d = a + or_ * (b - a);
    (h(c) > h(d) ? b : a) = h(c) > h(d) ? d : c;
  }
  return (a + b) / 2;
}

TEST(Passage, ABodyIsOnTheMeridianAndAtItsTopWhenToldForTheShipUnderWay) {
  std::mt19937_64 alea(2030);
  for (int i = 0; i < Tirages(40, 1000); ++i) {
    BaseLectures base = essais::BaseAuHasard(alea, 65);
    essais::ChoisitAstre(alea, base, 5, 85);
    const bool inferieur = i % 5 == 0;
    const PassageMeridien p = PassagePresDe(base, base.heureLieu, inferieur);
    EXPECT_NEAR(SecondesEntre(base.heureLieu, p.heure), PassageJuge(base, inferieur), 0.05) << i;
    EXPECT_NEAR(p.hauteur, essais::HauteurVraie(base, p.heure), 1E-6);
    EXPECT_EQ(p.inferieur, inferieur);
    if (!p.sansSommet && p.hauteur < 85 && p.hauteur > -85 && std::fabs(p.correction) < 1500) {
      const double sommet = SommetJuge(base, p.heure, inferieur ? -1 : 1, 1800);
      // The top is flat: golden sections find it within some tenths of a second.
      EXPECT_NEAR(SecondesEntre(p.heure, p.sommet), sommet, 1.5) << i << " " << p.hauteur;
      EXPECT_NEAR(p.correction, -SecondesEntre(p.heure, p.sommet), 1E-9);
    }
  }
}

TEST(Passage, TheNearerOfUpperAndLowerIsTakenWhereNoneIsAskedFor) {
  BaseLectures base;
  base.lieu = {47, -6};
  base.heureLieu = {2461213.5, 0.5};
  EXPECT_FALSE(PassagePresDe(base, base.heureLieu).inferieur);
  EXPECT_TRUE(PassagePresDe(base, PlusTard(base.heureLieu, 43200)).inferieur);
}

TEST(Passage, AtFifteenKnotsSouthInFiftyNorthTheTopComesSixMinutesLate) {
  BaseLectures base;
  base.lieu = {50, -20};
  base.heureLieu = UTCDe({2026, 12, 1, 13, 0, 0});
  base.route.jambes.push_back({base.heureLieu, 180, 15});
  const PassageMeridien p = PassagePresDe(base, base.heureLieu);
  const PlaceGeocentrique a = PlaceDe(PrepareCiel({TTDe(p.heure), UT1De(p.heure, 0)}), base.astre);
  const InstantUTC apres = PlusTard(p.heure, 3600);
  const PlaceGeocentrique b = PlaceDe(PrepareCiel({TTDe(apres), UT1De(apres, 0)}), base.astre);
  const double parHeure = -15 - (b.declinaison - a.declinaison) * 60;
  const double formule = 15.28 * (std::tan(p.lieu.latitude * kRadian) - std::tan(a.declinaison * kRadian)) * parHeure;
  EXPECT_NEAR(p.correction, formule, 3);
  EXPECT_NEAR(p.correction, -360, 30);
}

TEST(Passage, WhoFliesFromThePoleTowardsTheSunSeesNoTop) {
  BaseLectures base;
  base.lieu = {89.5, 0};
  base.heureLieu = UTCDe({2026, 6, 21, 12, 0, 0});
  base.route.jambes.push_back({base.heureLieu, 180, 80});
  const PassageMeridien p = PassagePresDe(base, base.heureLieu);
  EXPECT_TRUE(p.sansSommet);
  EXPECT_EQ(p.correction, 0);
}

} // namespace
} // namespace velmaris

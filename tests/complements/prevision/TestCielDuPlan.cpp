#include "OutilsPrevision.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/prevision/Magnitudes.hpp"
#include "tests/ephemerides/EtoilesVraies.hpp"

#include <erfa.h>
#include <erfam.h>
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <iostream>

/// The sky of a moment: places of the day's tables, presets, motions, why bodies are pale.
namespace velmaris {
namespace {

using essais::JourAuHasard;
using essais::JourDeMer;
using essais::Mouillage;
using essais::Sort;

int Nombre() {
  const char *voulu = std::getenv("VELMARIS_JOURNEES");
  return voulu == nullptr ? 12 : std::max(12, std::atoi(voulu) / 10);
}

CielDuJour CielDuMouillage(const NavirePrevu &navire) {
  const DateCivile d = CivileDe(navire.heure);
  return *CielDeLaJournee(essais::Table(), {d.annee, d.mois, d.jour, std::nullopt}, navire);
}

TEST(CielDuJour, PlacesBetweenNodesAreThoseOfTheMomentToAThousandthOfASecond) {
  std::mt19937_64 alea(2010);
  double pire = 0;
  for (int i = 0; i < Nombre(); ++i) {
    const JourDeMer j = JourAuHasard(alea);
    const CielDuJour ciel = *CielDeLaJournee(essais::Table(), j.jour, j.navire);
    ASSERT_EQ(ciel.astres.size(), 251U) << "six that wander, 246 rows less the nova's";
    const InstantUTC utc = PlusTard(ciel.debut, Sort(alea, 0, 26) * 3600);
    const CielDuMoment propre = essais::CielPropre(utc);
    const PlaceGeocentrique soleil = PlaceDe(propre, {GenreAstre::Soleil, 0});
    const InstantDuJour instant = SitueInstant(ciel, utc);
    for (std::size_t rang = 0; rang < ciel.astres.size(); ++rang) {
      const PlaceGeocentrique la = PlaceDuJour(ciel, rang, instant);
      const PlaceGeocentrique vraie = PlaceDe(propre, ciel.astres[rang].astre);
      const double loin = eraSeps(la.gha * ERFA_DD2R, la.declinaison * ERFA_DD2R, vraie.gha * ERFA_DD2R,
                                  vraie.declinaison * ERFA_DD2R) *
                          ERFA_DR2AS;
      // Within some degrees of the Sun its bending of a star's light changes from hour to hour.
      const bool presDuSoleil = eraSeps(vraie.gha * ERFA_DD2R, vraie.declinaison * ERFA_DD2R, soleil.gha * ERFA_DD2R,
                                        soleil.declinaison * ERFA_DD2R) < 10 * ERFA_DD2R;
      EXPECT_LT(loin, presDuSoleil ? 0.3 : 0.002) << i << " " << rang;
      EXPECT_NEAR(la.parallaxe, vraie.parallaxe, 1E-6);
      EXPECT_NEAR(la.demiDiametre, vraie.demiDiametre, 1E-6);
      pire = presDuSoleil ? pire : std::max(pire, loin);
    }
  }
  if (Nombre() > 12) {
    std::cout << "worst place of a day's table " << pire << "\"\n";
  }
}

TEST(Prereglage, IsTakenBackByTheModernRoadForEveryBodyBothLimbsAndBothHorizons) {
  std::mt19937_64 alea(2011);
  const std::vector<ErreurArc> arc{{0, 0.3}, {40, -0.6}, {90, 1.2}};
  double pire = 0;
  int lectures = 0;
  for (int i = 0; i < Nombre(); ++i) {
    const JourDeMer j = JourAuHasard(alea);
    const CielDuJour ciel = *CielDeLaJournee(essais::Table(), j.jour, j.navire);
    const InstantUTC utc = PlusTard(ciel.debut, Sort(alea, 1, 25) * 3600);
    ReglagesPlan reglages;
    reglages.sextant.collimation = Sort(alea, -5, 5);
    reglages.sextant.horizonArtificiel = i % 2 == 1;
    reglages.sextant.pression = Sort(alea, 960, 1050);
    reglages.sextant.temperature = Sort(alea, -20, 40);
    reglages.sextant.erreursArc = arc;
    reglages.bordSoleil = i % 3 == 0 ? Contact::Superieur : Contact::Inferieur;
    if (i % 4 > 1) {
      reglages.bordLune = i % 4 == 2 ? Contact::Superieur : Contact::Inferieur;
    }
    const CielDuPlan plan = RegardeCiel(ciel, j.navire, utc, reglages);
    const CielDuMoment propre = essais::CielPropre(utc);
    const Station station = StationDuNavire(j.navire, utc);
    for (const AstreDuPlan &a : plan.astres) {
      EXPECT_EQ(a.prereglage.has_value(), !Tient(a.raisons, RaisonPale::SousHorizon));
      if (!a.prereglage) {
        continue;
      }
      LectureSextant lecture = reglages.sextant;
      lecture.lecture = *a.prereglage;
      lecture.contact = a.contact;
      lecture.hauteurOeil = j.navire.hauteurOeil;
      // The sky of the moment itself, not the table's: a navigator's reduction would find this intercept.
      const PlaceGeocentrique place = PlaceDe(propre, a.astre);
      const double intercept =
          (CorrigeLecture(lecture, place, station).observee - VueDe(place, station).hauteurCentre) * 60;
      // A navigator reads hundredths. What is left is the table's place, most of all beside the Sun.
      EXPECT_LT(std::fabs(intercept), 0.005) << a.astre.rang << " at " << a.hauteur;
      pire = std::max(pire, std::fabs(intercept));
      ++lectures;
    }
  }
  EXPECT_GT(lectures, 60 * Nombre());
  if (Nombre() > 12) {
    std::cout << lectures << " presets taken back, the worst intercept " << pire << " minutes\n";
  }
}

TEST(Prereglage, OfAStarAtAKnownHeightIsItsClosedForm) {
  // A star seen at 30 degrees through the air: refraction is that of the seen height; dip and index stand with it.
  const Station station{0, 0, 16};
  LectureSextant sextant;
  sextant.hauteurOeil = 16;
  sextant.collimation = -2;
  const double vraie = 30 - Refraction(30, 1010, 10) / 60;
  EXPECT_NEAR(ApparenteDe(vraie, 1010, 10), 30, 1E-10);
  PlaceGeocentrique etoile; // on the equator, east of the meridian
  double bas = 40;
  double haut = 80;
  for (int i = 0; i < 60; ++i) { // the hour angle that gives the height
    etoile.gha = 360 - (bas + haut) / 2;
    (VueDe(etoile, station).hauteur > vraie ? bas : haut) = (bas + haut) / 2;
  }
  EXPECT_NEAR(LecturePour(sextant, etoile, station, VueDe(etoile, station).hauteur), 30 + (1.76 * 4 + 2) / 60, 1E-8);
  sextant.horizonArtificiel = true;
  EXPECT_NEAR(LecturePour(sextant, etoile, station, VueDe(etoile, station).hauteur), 60 + 2.0 / 60, 1E-8);
}

TEST(CielDuPlan, TheMotionIsTheHeightGainedInAMinuteOnTheMovingShip) {
  std::mt19937_64 alea(2012);
  const JourDeMer j = JourAuHasard(alea);
  const CielDuJour ciel = *CielDeLaJournee(essais::Table(), j.jour, j.navire);
  const InstantUTC utc = PlusTard(ciel.debut, 9 * 3600);
  const CielDuPlan plan = RegardeCiel(ciel, j.navire, utc, {});
  for (const AstreDuPlan &a : plan.astres) {
    const auto hauteur = [&](double s) { return essais::Voit(j.navire, a.astre, PlusTard(utc, s)).hauteur; };
    EXPECT_NEAR(a.mouvement, (hauteur(30) - hauteur(-30)) * 60, 1E-4) << a.astre.rang;
    EXPECT_NEAR(a.hauteur, hauteur(0), 1E-6);
  }
}

TEST(CielDuPlan, RowsThatTheCheckWarnsOfHaveThatReason) {
  const NavirePrevu navire = Mouillage(0, 0, 6, 21);
  const CielDuJour ciel = CielDuMouillage(navire);
  const CielDuPlan plan = RegardeCiel(ciel, navire, navire.heure, {});
  const auto vraies = essais::LitEtoilesVraies();
  const essais::TableLue table;
  int marquees = 0;
  for (const AstreDuPlan &a : plan.astres) {
    if (a.astre.genre == GenreAstre::Etoile) {
      const bool loin =
          essais::EcartLu(table, a.astre.rang, *vraies.at(static_cast<std::size_t>(a.astre.rang) - 1), 2000) > 5;
      EXPECT_EQ(Tient(a.raisons, RaisonPale::LigneLoin), loin) << a.astre.rang;
      marquees += loin ? 1 : 0;
    } else {
      EXPECT_FALSE(Tient(a.raisons, RaisonPale::LigneLoin));
    }
  }
  EXPECT_GT(marquees, 80);
}

TEST(CielDuPlan, EachReasonStandsWhereItsLimitIsPassed) {
  const NavirePrevu navire = Mouillage(35, -30, 3, 5);
  const CielDuJour ciel = CielDuMouillage(navire);
  ReglagesPlan reglages;
  reglages.sextant.horizonArtificiel = true;
  for (int pas = 0; pas < 24; ++pas) {
    const CielDuPlan plan = RegardeCiel(ciel, navire, PlusTard(ciel.debut, (1 + pas) * 3600), reglages);
    for (const AstreDuPlan &a : plan.astres) {
      EXPECT_EQ(Tient(a.raisons, RaisonPale::SousHorizon), a.apparente < 0);
      if (a.apparente < 0) {
        EXPECT_EQ(PremiereRaison(a.raisons), RaisonPale::SousHorizon);
        continue;
      }
      EXPECT_EQ(Tient(a.raisons, RaisonPale::TropBas), a.apparente < 10);
      EXPECT_EQ(Tient(a.raisons, RaisonPale::TropHaut), a.apparente > 75);
      EXPECT_EQ(Tient(a.raisons, RaisonPale::HorsArc), a.apparente > 62.5);
      const bool grand = a.astre.genre <= GenreAstre::Lune;
      EXPECT_EQ(Tient(a.raisons, RaisonPale::PerduCrepuscule),
                !grand && a.magnitude > MagnitudeVisible(-plan.hauteurSoleil));
      const auto separation = [&](const AstreDuPlan &b) {
        return eraSeps(a.azimut * ERFA_DD2R, a.hauteur * ERFA_DD2R, b.azimut * ERFA_DD2R, b.hauteur * ERFA_DD2R) *
               ERFA_DR2D;
      };
      EXPECT_EQ(Tient(a.raisons, RaisonPale::PresDuSoleil),
                &a != plan.astres.data() && separation(plan.astres[0]) < 15);
      EXPECT_EQ(Tient(a.raisons, RaisonPale::PresDeLaLune),
                !grand && plan.astres[1].apparente >= 0 && separation(plan.astres[1]) < 5);
    }
  }
}

TEST(CielDuPlan, TheMoonsLitLimbIsThatTowardsTheSun) {
  std::mt19937_64 alea(2013);
  for (int i = 0; i < 40; ++i) {
    const JourDeMer j = JourAuHasard(alea);
    const CielDuJour ciel = *CielDeLaJournee(essais::Table(), j.jour, j.navire);
    const CielDuPlan plan = RegardeCiel(ciel, j.navire, PlusTard(ciel.debut, Sort(alea, 1, 25) * 3600), {});
    ASSERT_TRUE(plan.lune);
    // A point a degree from the Moon along the lit limb's direction is nearer to the Sun than one the other way.
    const AstreDuPlan &l = plan.astres[1];
    const AstreDuPlan &s = plan.astres[0];
    const double b = plan.lune->bord * ERFA_DD2R;
    const auto ecart = [&](double signe) {
      const double h = l.hauteur + signe * std::cos(b) * 0.01;
      const double az = l.azimut + signe * std::sin(b) * 0.01 / std::cos(l.hauteur * ERFA_DD2R);
      return eraSeps(az * ERFA_DD2R, h * ERFA_DD2R, s.azimut * ERFA_DD2R, s.hauteur * ERFA_DD2R) * ERFA_DR2D;
    };
    EXPECT_NEAR(ecart(-1) - ecart(1), 0.02, 1E-4);
    EXPECT_EQ(plan.lune->meilleur == Contact::Superieur, std::cos(b) > 0);
    EXPECT_EQ(l.contact, plan.lune->meilleur);
    EXPECT_NEAR(plan.lune->eclairee, (1 + std::cos(plan.lune->phase * ERFA_DD2R)) / 2, 1E-12);
  }
}

TEST(CielDuPlan, AFullMoonIsAllLitAndWanesAfterwards) {
  // Eclipses tell full and new moons to the hour: 3 March 2026 at 11:34, 12 August 2026 at 17:46 (UTC).
  const auto lune = [](int mois, int jour, double heure) {
    const NavirePrevu navire = Mouillage(0, 0, mois, jour);
    return *RegardeCiel(CielDuMouillage(navire), navire, UTCDe({2026, mois, jour, static_cast<int>(heure), 30}), {})
                .lune;
  };
  EXPECT_GT(lune(3, 3, 11).eclairee, 0.9998);
  EXPECT_LT(lune(8, 12, 17).eclairee, 0.0003);
  EXPECT_TRUE(lune(3, 1, 12).croissante);
  EXPECT_FALSE(lune(3, 5, 12).croissante);
  EXPECT_TRUE(lune(8, 15, 12).croissante);
}

} // namespace
} // namespace velmaris

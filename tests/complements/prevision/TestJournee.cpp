#include "OutilsPrevision.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Refus.hpp"

#include <gmock/gmock.h>
#include <libnova/lunar.h>
#include <libnova/solar.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <numbers>

/// The day aboard; VELMARIS_JOURNEES is how many are drawn at random.
namespace velmaris {
namespace {

using essais::JourAuHasard;
using essais::JourDeMer;
using essais::Mouillage;
using essais::Voit;
using essais::VueDuBord;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kJournees = 25;
constexpr Astre kSoleil{GenreAstre::Soleil, 0};
constexpr Astre kLune{GenreAstre::Lune, 0};
constexpr double kRadian = std::numbers::pi / 180;

int Nombre() {
  const char *voulu = std::getenv("VELMARIS_JOURNEES");
  return voulu == nullptr ? kJournees : std::atoi(voulu);
}

Journee JourneeDe(const JourCivil &jour, const NavirePrevu &navire) {
  return *CalculeJournee(*CielDeLaJournee(essais::Table(), jour, navire), jour, navire);
}

Journee JourneeDu(double latitude, int mois, int jour, double longitude = 0) {
  return JourneeDe({2026, mois, jour, std::nullopt}, Mouillage(latitude, longitude, mois, jour));
}

double HeureDe(const Journee &journee, const EvenementCiel &e) { return SecondesEntre(journee.debut, e.utc) / 3600; }

/// What one thing of the day is judged by: the function whose zeros it is, at every third minute and at any time.
struct Juge {
  const char *nom;
  std::vector<const Passages *> passages;
  std::function<double(double)> f;
  std::vector<double> echantillons;
};

/// All that is told of a day, each with the judge's own figures.
std::vector<Juge> Juges(const Journee &journee, const NavirePrevu &navire) {
  const double horizon = (34 + Depression(navire.hauteurOeil)) / 60;
  const auto vue = [&navire, debut = journee.debut](const Astre &astre, double s) {
    return Voit(navire, astre, PlusTard(debut, s));
  };
  std::vector<Juge> juges;
  const auto ajoute = [&](const char *nom, std::vector<const Passages *> passages, const Astre &astre,
                          const std::function<double(const VueDuBord &)> &lit) {
    juges.push_back({nom, std::move(passages), [=](double s) { return lit(vue(astre, s)); }, {}});
  };
  const auto bord = [=](const VueDuBord &v) { return v.bord + horizon; };
  const auto angle = [](const VueDuBord &v) { return v.angleHoraire; };
  ajoute("Sun", {&journee.soleil.lever, &journee.soleil.coucher}, kSoleil, bord);
  ajoute("Sun's passage", {&journee.soleil.meridien}, kSoleil, angle);
  ajoute("civil", {&journee.civil.matin, &journee.civil.soir}, kSoleil,
         [](const VueDuBord &v) { return v.hauteur + 6; });
  ajoute("nautical", {&journee.nautique.matin, &journee.nautique.soir}, kSoleil,
         [](const VueDuBord &v) { return v.hauteur + 12; });
  ajoute("astronomical", {&journee.astronomique.matin, &journee.astronomique.soir}, kSoleil,
         [](const VueDuBord &v) { return v.hauteur + 18; });
  ajoute("Moon", {&journee.lune.lever, &journee.lune.coucher}, kLune, bord);
  ajoute("Moon's passage", {&journee.lune.meridien}, kLune, angle);
  for (double s = 0; s <= 86400; s += 180) {
    const VueDuBord soleil = vue(kSoleil, s);
    const VueDuBord lune = vue(kLune, s);
    const double valeurs[] = {bord(soleil),        angle(soleil), soleil.hauteur + 6, soleil.hauteur + 12,
                              soleil.hauteur + 18, bord(lune),    angle(lune)};
    for (std::size_t i = 0; i < juges.size(); ++i) {
      juges[i].echantillons.push_back(valeurs[i]);
    }
  }
  return juges;
}

/// Counts of a run.
struct Bilan {
  int moments = 0;
  int absents = 0;
  double pire = 0; ///< seconds
};

/// Every moment told has one of the judge's within 5 s, and the other way round; a moment within 10 s of the day's ends
/// may be on either side of them.
void Compare(const Juge &juge, const Journee &journee, const std::string &ou, Bilan &bilan) {
  const std::vector<double> zeros = essais::ZerosJuges(juge.f, juge.echantillons);
  std::vector<double> dits;
  for (const Passages *passages : juge.passages) {
    EXPECT_EQ(passages->moments.empty(), passages->absence != RaisonAbsence::Aucune) << juge.nom << ou;
    bilan.absents += passages->moments.empty() ? 1 : 0;
    for (const EvenementCiel &e : passages->moments) {
      dits.push_back(SecondesEntre(journee.debut, e.utc));
    }
  }
  const auto proche = [](double t, const std::vector<double> &autres) {
    double pres = 1E9;
    for (const double autre : autres) {
      pres = std::min(pres, std::fabs(autre - t));
    }
    return pres;
  };
  const auto auBord = [](double t) { return t < 10 || t > 86390; };
  for (const double t : dits) {
    const double loin = proche(t, zeros);
    EXPECT_TRUE(loin < 5 || auBord(t)) << juge.nom << ou << " told at " << t << ", off by " << loin;
    bilan.pire = auBord(t) ? bilan.pire : std::max(bilan.pire, loin);
    ++bilan.moments;
  }
  for (const double t : zeros) {
    EXPECT_TRUE(proche(t, dits) < 5 || auBord(t)) << juge.nom << ou << " not told at " << t;
  }
  // What isn't there at all stays on the side that is told.
  if (dits.empty() && zeros.empty() && juge.passages.size() == 2) {
    const RaisonAbsence raison =
        juge.echantillons[240] > 0 ? RaisonAbsence::ToujoursAuDessus : RaisonAbsence::ToujoursAuDessous;
    EXPECT_EQ(juge.passages[0]->absence, raison) << juge.nom << ou;
    EXPECT_EQ(juge.passages[1]->absence, raison) << juge.nom << ou;
  }
}

TEST(JourneeHasard, EveryMomentIsWithinFiveSecondsOfTheSkyOnTheMovingShip) {
  std::mt19937_64 alea(2001);
  Bilan bilan;
  for (int i = 0; i < Nombre(); ++i) {
    const JourDeMer j = JourAuHasard(alea);
    const Journee journee = JourneeDe(j.jour, j.navire);
    const std::string ou = " of day " + std::to_string(i) + " at " + std::to_string(j.navire.lieu.latitude);
    for (const Juge &juge : Juges(journee, j.navire)) {
      Compare(juge, journee, ou, bilan);
    }
  }
  EXPECT_GT(bilan.moments, 8 * Nombre());
  if (Nombre() > kJournees) {
    std::cout << Nombre() << " days: " << bilan.moments << " moments, the worst " << bilan.pire << " s off, "
              << bilan.absents << " absent\n";
  }
}

TEST(Journee, AWhiteNightOfMinutesIsFound) {
  // The latitude at which the Sun's centre comes down to 12 degrees below is sought, then left by a hair: the night
  // then lasts some minutes.
  double bas = 50;
  double haut = 60;
  for (int i = 0; i < 12; ++i) {
    const double milieu = (bas + haut) / 2;
    (JourneeDu(milieu, 6, 21).nautique.soir.moments.empty() ? haut : bas) = milieu;
  }
  const Journee courte = JourneeDu(bas, 6, 21);
  ASSERT_THAT(courte.nautique.soir.moments, SizeIs(1));
  ASSERT_THAT(courte.nautique.matin.moments, SizeIs(1));
  const double nuit =
      std::fabs(HeureDe(courte, courte.nautique.soir.moments[0]) - HeureDe(courte, courte.nautique.matin.moments[0]));
  EXPECT_LT(std::min(nuit, 24 - nuit) * 60, 20) << "minutes";
  // Latitude, declination 23.436 and 12 degrees under the horizon make a meridian's quarter; parallax is the rest.
  EXPECT_NEAR(haut, 90 - 23.436 - 12, 0.02);
}

TEST(Journee, NauticalTwilightThatNeverEndsIsAWhiteNight) {
  const Journee j = JourneeDu(58, 6, 21);
  EXPECT_EQ(j.nautique.soir.absence, RaisonAbsence::ToujoursAuDessus);
  EXPECT_EQ(j.nautique.matin.absence, RaisonAbsence::ToujoursAuDessus);
  EXPECT_THAT(j.civil.soir.moments, SizeIs(1));
  ASSERT_THAT(j.fenetres, SizeIs(2));
  EXPECT_EQ(j.fenetres[0].genre, GenrePrise::NuitBlanche);
  EXPECT_EQ(j.fenetres[1].genre, GenrePrise::NuitBlanche);
  EXPECT_EQ(SecondesEntre(j.debut, j.fenetres[0].debut), 0) << "it has gone on since the day before";
  EXPECT_EQ(SecondesEntre(j.fenetres[1].fin, j.fin), 0);
}

TEST(Journee, TheMidnightSunIsUpAllDayAndThePolarNightHasNone) {
  const Journee ete = JourneeDu(72, 6, 21);
  EXPECT_EQ(ete.soleil.lever.absence, RaisonAbsence::ToujoursAuDessus);
  EXPECT_EQ(ete.soleil.coucher.absence, RaisonAbsence::ToujoursAuDessus);
  EXPECT_THAT(ete.fenetres, IsEmpty());
  const Journee hiver = JourneeDu(75, 12, 21);
  EXPECT_EQ(hiver.soleil.lever.absence, RaisonAbsence::ToujoursAuDessous);
  EXPECT_EQ(hiver.civil.matin.absence, RaisonAbsence::ToujoursAuDessous);
  EXPECT_THAT(hiver.nautique.matin.moments, SizeIs(1));
  ASSERT_THAT(hiver.fenetres, SizeIs(1));
  EXPECT_EQ(hiver.fenetres[0].genre, GenrePrise::JourNoir);
  EXPECT_THAT(hiver.soleil.meridien.moments, SizeIs(1)) << "it passes, though it isn't seen";
}

TEST(Journee, TheMoonRisesElsewhereOnOneDayOfAMonth) {
  int sans = 0;
  for (int jour = 1; jour <= 30; ++jour) {
    const Journee j = JourneeDu(10, 6, jour);
    EXPECT_LE(j.lune.lever.moments.size(), 1U);
    if (j.lune.lever.moments.empty()) {
      EXPECT_EQ(j.lune.lever.absence, RaisonAbsence::AutreJour);
      ++sans;
    }
  }
  EXPECT_GE(sans, 1) << "a lunar day is 50 minutes longer";
  EXPECT_LE(sans, 2);
}

TEST(Journee, InTheNorthTheMoonCanSetTwiceInADay) {
  const Journee j = JourneeDe({2026, 6, 21, std::nullopt}, Mouillage(75, -6, 6, 21));
  ASSERT_THAT(j.lune.coucher.moments, SizeIs(2));
  EXPECT_LT(HeureDe(j, j.lune.coucher.moments[0]), HeureDe(j, j.lune.coucher.moments[1]));
}

TEST(Journee, AHigherEyeSeesTheSunEarlierByItsDipOverTheRate) {
  NavirePrevu navire = Mouillage(40, 0, 3, 21);
  const JourCivil jour{2026, 3, 21, std::nullopt};
  const Journee bas = JourneeDe(jour, navire);
  navire.hauteurOeil = 25;
  const Journee haut = JourneeDe(jour, navire);
  // At an equinox the Sun rises 15 cos(latitude) minutes of arc a minute of time; the dip of 25 m is 8.8'.
  const double minutes = (HeureDe(bas, bas.soleil.lever.moments[0]) - HeureDe(haut, haut.soleil.lever.moments[0])) * 60;
  EXPECT_NEAR(minutes, 8.8 / (15 * std::cos(40 * kRadian)), 0.005);
}

TEST(Journee, AShipThatRunsWithTheSunMeetsItsPassageLater) {
  NavirePrevu navire = Mouillage(60, 0, 9, 10);
  const JourCivil jour{2026, 9, 10, std::nullopt};
  const double debout = HeureDe(JourneeDe(jour, navire), JourneeDe(jour, navire).soleil.meridien.moments[0]);
  navire.heure = PlusTard(navire.heure, (debout - 12) * 3600); // where she stands when it passes
  navire.heure = PlusTard(navire.heure, -6 * 3600);
  navire.route.jambes.push_back({navire.heure, 270, 15});
  const Journee court = JourneeDe(jour, navire);
  // 15 knots west are half a degree an hour at 60 degrees: six hours at 15 degrees an hour become six at 14.5.
  const double dLon = 15.0 / 60 / std::cos(60 * kRadian);
  EXPECT_NEAR(HeureDe(court, court.soleil.meridien.moments[0]), debout + 6 * dLon / (15 - dLon), 2.0 / 3600);
}

TEST(Journee, BeginsAtMidnightOfTheShipsZone) {
  EXPECT_EQ(FuseauDe(7.4), 0);
  EXPECT_EQ(FuseauDe(-7.6), -1);
  EXPECT_EQ(FuseauDe(172), 11);
  EXPECT_EQ(FuseauDe(-172), -11);
  EXPECT_EQ(std::abs(FuseauDe(180)), 12);
  const Journee j = JourneeDu(0, 6, 21, 100);
  EXPECT_EQ(j.fuseau, 7);
  EXPECT_NEAR(SecondesEntre(j.debut, UTCDe({2026, 6, 20, 17})), 0, 1E-6);
  const NavirePrevu navire = Mouillage(0, 100, 6, 21);
  EXPECT_EQ(SecondesEntre(DebutDuJour({2026, 6, 21, 0}, navire), UTCDe({2026, 6, 21})), 0) << "a zone that is given";
  EXPECT_THROW(DebutDuJour({2026, 2, 30, 0}, navire), Refus);
}

TEST(Journee, WindowsForStarsLieBetweenCivilAndNauticalTwilight) {
  const Journee j = JourneeDu(45, 10, 5);
  ASSERT_THAT(j.fenetres, SizeIs(2));
  EXPECT_EQ(j.fenetres[0].genre, GenrePrise::Matin);
  EXPECT_EQ(j.fenetres[1].genre, GenrePrise::Soir);
  EXPECT_EQ(SecondesEntre(j.fenetres[0].debut, j.nautique.matin.moments[0].utc), 0);
  EXPECT_EQ(SecondesEntre(j.fenetres[0].fin, j.civil.matin.moments[0].utc), 0);
  EXPECT_EQ(SecondesEntre(j.fenetres[1].debut, j.civil.soir.moments[0].utc), 0);
  EXPECT_EQ(SecondesEntre(j.fenetres[1].fin, j.nautique.soir.moments[0].utc), 0);
  const std::vector<InstantUTC> instants = InstantsDePrise(j, 5);
  ASSERT_GT(instants.size(), 10U);
  EXPECT_EQ(SecondesEntre(instants.front(), j.fenetres[0].debut), 0);
  EXPECT_NEAR(SecondesEntre(instants.back(), j.fenetres[1].fin), 0, 1E-3);
  EXPECT_LE(SecondesEntre(instants[0], instants[1]), 300 + 1E-3);
}

TEST(Journee, RisesAndSetsAgreeWithAnotherLibraryToAMinuteOrTwo) {
  for (const double latitude : {-50.0, -20.0, 0.0, 35.0, 55.0}) {
    const Journee j = JourneeDu(latitude, 10, 20);
    ln_lnlat_posn lieu{0, latitude};
    ln_rst_time soleil{};
    ASSERT_EQ(ln_get_solar_rst(j.debut.jour + j.debut.fraction, &lieu, &soleil), 0);
    const auto heure = [&](double jd) { return (jd - j.debut.jour - j.debut.fraction) * 24; };
    EXPECT_NEAR(HeureDe(j, j.soleil.lever.moments[0]), std::fmod(heure(soleil.rise), 24), 0.06) << latitude;
    EXPECT_NEAR(HeureDe(j, j.soleil.coucher.moments[0]), std::fmod(heure(soleil.set), 24), 0.06) << latitude;
  }
}

TEST(Journee, TheMoonBeyondItsTableIsToldSo) {
  NavirePrevu navire = Mouillage(45, 0, 6, 21);
  navire.heure = UTCDe({1850, 6, 21, 12});
  const Journee j = JourneeDe({1850, 6, 21, std::nullopt}, navire);
  EXPECT_EQ(j.lune.lever.absence, RaisonAbsence::LuneHorsTable);
  EXPECT_THAT(j.soleil.lever.moments, SizeIs(1));
  EXPECT_THROW(CielDeLaJournee(essais::Table(), {1799, 6, 21, std::nullopt}, navire), Refus);
}

TEST(Journee, IsStoppedWhenItIsAsked) {
  std::stop_source arret;
  const NavirePrevu navire = Mouillage(45, 0, 6, 21);
  const JourCivil jour{2026, 6, 21, std::nullopt};
  const auto ciel = CielDeLaJournee(essais::Table(), jour, navire, 0, arret.get_token());
  ASSERT_TRUE(ciel);
  arret.request_stop();
  EXPECT_FALSE(CalculeJournee(*ciel, jour, navire, arret.get_token()));
  EXPECT_FALSE(CielDeLaJournee(essais::Table(), jour, navire, 0, arret.get_token()));
}

} // namespace
} // namespace velmaris

#include "OutilsAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/JourDuCiel.hpp"
#include "complements/ciel/Refus.hpp"
#include "complements/ciel/TablesCiel.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Magnitudes.hpp"

#include <cmath>
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <set>

/// The almanac's figures against the sky, worked out for each of them by itself, and against outside judges.
namespace velmaris::essais {
namespace {

constexpr double kSecondes = 86400;

Almanach Pages(const DateCivile &debut, const DateCivile &fin, std::vector<double> latitudes = {}, double dut1 = 0) {
  return *CalculeAlmanach({.debut = debut, .fin = fin, .latitudes = std::move(latitudes), .dut1 = dut1}, Table());
}

CielDuMoment CielA(const DateCivile &date, double heures, double dut1 = 0) {
  const InstantUTC utc = PlusTard(UTCDe(date), heures * 3600);
  return PrepareCiel({TTDe(utc), UT1De(utc, dut1)});
}

std::optional<DefautAlmanach> Defaut(const DateCivile &debut, const DateCivile &fin,
                                     std::vector<double> latitudes = {}) {
  return DefautDe({.debut = debut, .fin = fin, .latitudes = std::move(latitudes)});
}

TEST(Almanach, EveryHourIsTheSkyOfThatHourRounded) {
  for (const double dut1 : {0.0, -0.6}) {
    const Almanach pages = Pages({2027, 12, 30}, {2028, 1, 2}, {}, dut1);
    for (const JourAlmanach &jour : pages.jours) {
      for (int h = 0; h < 24; ++h) {
        const CielDuMoment ciel = PrepareCiel(MomentDe({jour.date.annee, jour.date.mois, jour.date.jour, h}, dut1));
        const HeureAlmanach &heure = jour.heures[static_cast<std::size_t>(h)];
        EXPECT_EQ(DixiemesUnTour(heure.belier), DixiemesUnTour(ciel.tempsSideral));
        for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
          const PlaceGeocentrique place = PlaceDe(ciel, {static_cast<GenreAstre>(i), 0});
          EXPECT_EQ(DixiemesUnTour(heure.astres[i].gha), DixiemesUnTour(place.gha));
          EXPECT_EQ(DixiemesDe(heure.astres[i].declinaison), DixiemesDe(place.declinaison));
        }
      }
    }
  }
}

/// Apparent place of the Sun by ERFA alone: the Earth of Epv00, aberration, precession and nutation.
std::pair<double, double> SoleilErfa(const InstantTT &tt, const InstantUT1 &ut1) {
  double pvh[2][3];
  double pvb[2][3];
  eraEpv00(tt.jour, tt.fraction, pvh, pvb);
  double vers[3] = {-pvh[0][0], -pvh[0][1], -pvh[0][2]};
  const double distance = eraPm(vers);
  const double jours = distance * ERFA_AULT / kSecondes;
  double avant[2][3];
  double sans[2][3];
  eraEpv00(tt.jour, tt.fraction - jours, avant, sans);
  // The Sun as its light left it, from the Earth as it is.
  for (int i = 0; i < 3; ++i) {
    vers[i] = (sans[0][i] - avant[0][i]) - pvb[0][i];
  }
  double unite[3];
  double r = 0;
  eraPn(vers, &r, unite);
  double v[3];
  for (int i = 0; i < 3; ++i) {
    v[i] = pvb[1][i] * ERFA_AULT / kSecondes;
  }
  double vue[3];
  eraAb(unite, v, distance, std::sqrt(1 - eraPdp(v, v)), vue);
  double m[3][3];
  eraPnm06a(tt.jour, tt.fraction, m);
  eraRxp(m, vue, vue);
  double ad = 0;
  double dec = 0;
  eraC2s(vue, &ad, &dec);
  const double gst = eraGst06a(ut1.jour, ut1.fraction, tt.jour, tt.fraction);
  return {AngleUnTour((gst - ad) * ERFA_DR2D), dec * ERFA_DR2D};
}

TEST(Almanach, TheSunsFiguresAreThoseOfAnOutsideLibraryButForRoundings) {
  const Almanach pages = Pages({2028, 2, 1}, {2028, 3, 31});
  int nombre = 0;
  int autres = 0;
  for (const JourAlmanach &jour : pages.jours) {
    for (int h = 0; h < 24; ++h) {
      const Moment moment = MomentDe({jour.date.annee, jour.date.mois, jour.date.jour, h});
      const auto [gha, dec] = SoleilErfa(moment.tt, moment.ut1);
      const PlaceAlmanach &soleil = jour.heures[static_cast<std::size_t>(h)].astres[kSoleilAlmanach];
      const long deGha = std::labs(DixiemesUnTour(soleil.gha) - DixiemesUnTour(gha));
      const long deDec = std::labs(DixiemesDe(soleil.declinaison) - DixiemesDe(dec));
      EXPECT_LE(deGha, 1);
      EXPECT_LE(deDec, 1);
      nombre += 2;
      autres += static_cast<int>(deGha + deDec);
    }
  }
  // 0.02" between the two theories is a three-hundredth of a printed step.
  EXPECT_LT(autres, nombre / 100);
}

TEST(Almanach, StarsAreThoseOfAnOutsideLibraryAtNoonOfTheMiddleDay) {
  const Almanach pages = Pages({2027, 2, 27}, {2027, 3, 4});
  ASSERT_EQ(pages.periodes.size(), 2U);
  int autres = 0;
  for (const PeriodeAlmanach &p : pages.periodes) {
    ASSERT_EQ(p.etoiles.size(), 58U);
    const Moment m = MomentDe({p.milieu.annee, p.milieu.mois, p.milieu.jour, 12});
    for (const EtoileAlmanach &e : p.etoiles) {
      const EtoileIcrs &icrs = *kEtoilesIcrs[static_cast<std::size_t>(e.rang) - 1];
      constexpr double mas = ERFA_DAS2R / 1000;
      double ri = 0;
      double di = 0;
      double eo = 0;
      eraAtci13(icrs.ad * ERFA_DD2R, icrs.dec * ERFA_DD2R, icrs.muAd * mas / std::cos(icrs.dec * ERFA_DD2R),
                icrs.muDec * mas, icrs.parallaxe / 1000, 0, m.tt.jour, m.tt.fraction, &ri, &di, &eo);
      const double sha = AngleUnTour(-(ri - eo) * ERFA_DR2D);
      const long deSha = std::labs(DixiemesUnTour(e.sha) - DixiemesUnTour(sha));
      EXPECT_LE(static_cast<double>(deSha) * std::cos(di), 1.0) << e.nom;
      EXPECT_LE(std::labs(DixiemesDe(e.declinaison) - DixiemesDe(di * ERFA_DR2D)), 1) << e.nom;
      autres += deSha > 0 ? 1 : 0;
    }
  }
  EXPECT_LE(autres, 3);
}

TEST(Almanach, TheFiftySevenStandByTheirNumbersInRightAscensionAndPolarisLast) {
  const CielDuMoment ciel = CielA({2026, 7, 1}, 12);
  const std::vector<EtoileAlmanach> parSha = EtoilesDuMoment(ciel, Table(), OrdreEtoiles::Sha);
  const std::vector<EtoileAlmanach> parNom = EtoilesDuMoment(ciel, Table(), OrdreEtoiles::Nom);
  ASSERT_EQ(parSha.size(), 58U);
  EXPECT_EQ(parSha.back().nom, "Polaris");
  EXPECT_EQ(parNom.back().nom, "Polaris");
  std::set<int> rangs;
  for (std::size_t i = 0; i < 57; ++i) {
    // Precession has carried number 40, near the pole, past number 39.
    EXPECT_NEAR(parSha[i].numero, static_cast<int>(57 - i), parSha[i].numero == 39 || parSha[i].numero == 40 ? 1 : 0)
        << parSha[i].nom;
    EXPECT_LT(parSha[i].magnitude, 3.3);
    rangs.insert(parSha[i].rang);
    if (i > 0) {
      EXPECT_LT(parNom[i - 1].nom, parNom[i].nom);
    }
  }
  EXPECT_EQ(rangs.size(), 57U);
}

TEST(Almanach, HourlyDifferencesLeadToTheNextHour) {
  const Almanach pages = Pages({2026, 12, 31}, {2027, 1, 1});
  const JourAlmanach &veille = pages.jours[0];
  const JourAlmanach &jour = pages.jours[1];
  for (std::size_t h = 0; h < 24; ++h) {
    const HeureAlmanach &ici = veille.heures[h];
    const PlaceAlmanach &lune = ici.astres[kLuneAlmanach];
    const PlaceAlmanach &apres = (h < 23 ? veille.heures[h + 1] : jour.heures[0]).astres[kLuneAlmanach];
    EXPECT_NEAR(LongitudeUnTour(apres.gha - lune.gha), 14 + (19 + ici.vLune) / 60, 1E-9);
    EXPECT_NEAR(apres.declinaison - lune.declinaison, ici.dLune / 60, 1E-9);
  }
  for (const std::size_t i : {kSoleilAlmanach, kVenusAlmanach, kVenusAlmanach + 3}) {
    const AstreAlmanach &a = veille.astres[i];
    const PlaceAlmanach &de = veille.heures[0].astres[i];
    const PlaceAlmanach &vers = jour.heures[0].astres[i];
    EXPECT_NEAR(LongitudeUnTour(vers.gha - de.gha), LongitudeUnTour(24 * (15 + a.v / 60)), 1E-8);
    EXPECT_NEAR(vers.declinaison - de.declinaison, 24 * a.d / 60, 1E-8);
  }
}

TEST(Almanach, DailyFiguresAreThoseOfTheSkyAtNoon) {
  const Almanach pages = Pages({2026, 9, 12}, {2026, 9, 12});
  const JourAlmanach &jour = pages.jours.front();
  const CielDuMoment ciel = CielA({2026, 9, 12}, 12);
  const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil, 0});
  for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
    const auto genre = static_cast<GenreAstre>(i);
    const PlaceGeocentrique place = PlaceDe(ciel, {genre, 0});
    EXPECT_NEAR(jour.astres[i].hp, place.parallaxe, 1E-9);
    EXPECT_NEAR(jour.astres[i].demiDiametre, place.demiDiametre, 1E-9);
    const double ouverture = genre == GenreAstre::Saturne ? OuvertureAnneaux(ciel, place, soleil) : 0;
    EXPECT_NEAR(jour.astres[i].magnitude, MagnitudeDe(genre, EclairementDe(place, soleil), ouverture), 1E-9);
  }
  EXPECT_NEAR(jour.astres[kLuneAlmanach].demiDiametre, 0.2725 * jour.astres[kLuneAlmanach].hp, 0.01);
}

TEST(Almanach, AtAMeridianPassageTheHourAngleIsNothing) {
  const Almanach pages = Pages({2026, 10, 1}, {2026, 10, 31});
  int passages = 0;
  int manques = 0;
  for (const JourAlmanach &jour : pages.jours) {
    for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
      manques += jour.astres[i].meridien.empty() ? 1 : 0;
      for (const double heure : jour.astres[i].meridien) {
        const double gha = PlaceDe(CielA(jour.date, heure), {static_cast<GenreAstre>(i), 0}).gha;
        EXPECT_NEAR(LongitudeUnTour(gha), 0, 0.01); // two seconds and a half
        ++passages;
      }
    }
    for (const double heure : jour.luneInferieur) {
      EXPECT_NEAR(LongitudeUnTour(PlaceDe(CielA(jour.date, heure), {GenreAstre::Lune, 0}).gha + 180), 0, 0.01);
    }
    for (const double heure : jour.belier) {
      EXPECT_NEAR(LongitudeUnTour(CielA(jour.date, heure).tempsSideral), 0, 0.01);
    }
  }
  EXPECT_GT(passages, 180);
  EXPECT_EQ(manques, 1); // the Moon passes 50 minutes later each day: once a month not at all
}

TEST(Almanach, AriesPassesTwiceOnOneDayOfTheYear) {
  const Almanach pages = Pages({2026, 9, 1}, {2026, 10, 10});
  int deux = 0;
  for (const JourAlmanach &jour : pages.jours) {
    EXPECT_GE(jour.belier.size(), 1U);
    deux += jour.belier.size() == 2 ? 1 : 0;
  }
  EXPECT_EQ(deux, 1);
}

TEST(Almanach, TheEquationOfTimeIsTheSunsLeadOverTheClock) {
  // The Sun's passage comes as much before 12 h as the equation says: early November 16 minutes, February 14 after.
  for (const DateCivile &date : {DateCivile{2026, 11, 3}, DateCivile{2027, 2, 11}, DateCivile{2027, 6, 13}}) {
    const Almanach pages = Pages(date, date);
    const JourAlmanach &jour = pages.jours.front();
    const double passage = jour.astres[kSoleilAlmanach].meridien.front();
    EXPECT_NEAR((12 - passage) * 3600, jour.equation12, 1.0);
  }
  EXPECT_NEAR(Pages({2026, 11, 3}, {2026, 11, 3}).jours.front().equation12, 986, 5);
  EXPECT_NEAR(Pages({2027, 2, 11}, {2027, 2, 11}).jours.front().equation12, -853, 5);
}

TEST(Almanach, TheMoonsAgeBeginsAnewAtANewMoon) {
  // The eclipse of the Sun of 12 August 2026 has its new moon at 17 h 37.
  const Almanach pages = Pages({2026, 8, 10}, {2026, 8, 15});
  EXPECT_NEAR(pages.jours[3].ageLune, (24 - 17.61 + 12) / 24, 0.01);
  EXPECT_GT(pages.jours[2].ageLune, 28.5);
  EXPECT_LT(pages.jours[2].partLune, 0.002);
  for (std::size_t i = 4; i < pages.jours.size(); ++i) {
    EXPECT_NEAR(pages.jours[i].ageLune, pages.jours[i - 1].ageLune + 1, 1E-3);
  }
}

TEST(Almanach, DaysRunThroughTheEndsOfMonthsAndYearsAndThroughFebruaryOfALeapYear) {
  const Almanach pages = Pages({2027, 12, 20}, {2029, 1, 22});
  ASSERT_EQ(pages.jours.size(), 400U);
  ASSERT_EQ(pages.periodes.size(), 134U);
  EXPECT_EQ(pages.periodes.back().nombre, 1U);
  bool bissextile = false;
  for (std::size_t i = 1; i < pages.jours.size(); ++i) {
    const DateCivile &hier = pages.jours[i - 1].date;
    const DateCivile &jour = pages.jours[i].date;
    EXPECT_EQ(UTCDe(jour).jour - UTCDe(hier).jour, 1);
    bissextile = bissextile || (jour.annee == 2028 && jour.mois == 2 && jour.jour == 29);
    // The hours go on from one day to the next.
    const double pas = LongitudeUnTour(pages.jours[i].heures[0].belier - pages.jours[i - 1].heures[23].belier);
    EXPECT_NEAR(pas, 15.041, 0.001);
  }
  EXPECT_TRUE(bissextile);
  EXPECT_EQ(pages.jours.back().date.annee, 2029);
}

TEST(Almanach, WhatCantBePrintedIsRefused) {
  EXPECT_EQ(Defaut({2027, 2, 29}, {2027, 3, 1}), DefautAlmanach::Date);
  EXPECT_EQ(Defaut({2027, 3, 2}, {2027, 3, 1}), DefautAlmanach::Ordre);
  EXPECT_EQ(Defaut({2027, 1, 1}, {2028, 2, 5}), DefautAlmanach::TropLong);
  EXPECT_EQ(Defaut({2027, 1, 1}, {2028, 2, 4}), std::nullopt);
  EXPECT_EQ(Defaut({1900, 12, 31}, {1901, 1, 1}), DefautAlmanach::Date);
  EXPECT_EQ(Defaut({2027, 1, 1}, {2027, 1, 1}, {90.5}), DefautAlmanach::Latitude);
  EXPECT_EQ(Defaut({2027, 1, 1}, {2027, 1, 1}, std::vector<double>(25, 0.0)), DefautAlmanach::TropDeLatitudes);
  EXPECT_THROW(Pages({2027, 3, 2}, {2027, 3, 1}), Refus);
}

TEST(Almanach, ItStopsWhenItIsAskedToAndTellsHowFarItIs) {
  std::stop_source source;
  double dernier = 0;
  const auto dit = [&](double part) {
    EXPECT_GE(part, dernier);
    dernier = part;
    if (part > 0.3) {
      source.request_stop();
    }
  };
  const DemandeAlmanach demande{.debut = {2026, 1, 1}, .fin = {2026, 1, 30}, .latitudes = {}};
  EXPECT_FALSE(CalculeAlmanach(demande, Table(), source.get_token(), dit));
  EXPECT_LT(dernier, 0.4);
  dernier = 0;
  const auto jusquAuBout = [&dernier](double part) { dernier = part; };
  EXPECT_TRUE(CalculeAlmanach(demande, Table(), {}, jusquAuBout));
  EXPECT_EQ(dernier, 1);
}

} // namespace
} // namespace velmaris::essais

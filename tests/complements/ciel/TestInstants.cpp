#include "OutilsCiel.hpp"

#include "complements/ciel/Instants.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace velmaris {
namespace {

using essais::RaisonDe;

/// TT - UTC at the beginning of a day, seconds.
double EcartDe(int annee, int mois, int jour) {
  const Moment m = MomentDe({annee, mois, jour});
  return EcartTT(m.tt, m.ut1);
}

TEST(Instants, LeapSecondsAnd32184MakeTerrestrialTimeSince1972) {
  EXPECT_NEAR(EcartDe(1972, 1, 1), 42.184, 1E-6);
  EXPECT_NEAR(EcartDe(1972, 7, 1), 43.184, 1E-6);
  EXPECT_NEAR(EcartDe(1998, 12, 31), 63.184, 1E-6);
  EXPECT_NEAR(EcartDe(1999, 1, 1), 64.184, 1E-6);
  EXPECT_NEAR(EcartDe(2017, 1, 1), 69.184, 1E-6);
  EXPECT_NEAR(EcartDe(2030, 6, 1), 69.184, 1E-6) << "the last leap second holds on";
}

TEST(Instants, TheSettingMovesUniversalTimeAlone) {
  const DateCivile date{2026, 6, 21, 12, 5, 30.25};
  const Moment sans = MomentDe(date);
  const Moment avec = MomentDe(date, -0.3);
  EXPECT_NEAR(EcartTT(avec.tt, avec.ut1) - EcartTT(sans.tt, sans.ut1), 0.3, 1E-6);
  EXPECT_EQ(avec.tt.jour + avec.tt.fraction, sans.tt.jour + sans.tt.fraction);
  const DateCivile ancienne{1950, 6, 21, 12, 5, 30.25};
  EXPECT_NEAR(EcartTT(MomentDe(ancienne, 0.4).tt, MomentDe(ancienne, 0.4).ut1),
              EcartTT(MomentDe(ancienne).tt, MomentDe(ancienne).ut1) - 0.4, 1E-6);
}

TEST(Instants, ALeapSecondIsASecondOfItsOwn) {
  const auto tt = [](const DateCivile &date) { return MomentDe(date).tt; };
  const InstantTT avant = tt({2016, 12, 31, 23, 59, 59});
  const InstantTT pendant = tt({2016, 12, 31, 23, 59, 60});
  const InstantTT apres = tt({2017, 1, 1});
  const auto secondes = [](const InstantTT &a, const InstantTT &b) {
    return ((b.jour - a.jour) + (b.fraction - a.fraction)) * ERFA_DAYSEC;
  };
  EXPECT_NEAR(secondes(avant, pendant), 1, 1E-5);
  EXPECT_NEAR(secondes(pendant, apres), 1, 1E-5);
}

TEST(Instants, ATimeThatIsNoneIsRefusedWithItsReason) {
  const auto raison = [](const DateCivile &date) { return RaisonDe([&] { UTCDe(date); }); };
  EXPECT_EQ(raison({2026, 2, 29}), RaisonRefus::DateImpossible);
  EXPECT_EQ(raison({2026, 2, 31}), RaisonRefus::DateImpossible);
  EXPECT_EQ(raison({1900, 2, 29}), RaisonRefus::DateImpossible) << "no leap year of the Gregorian calendar";
  EXPECT_EQ(raison({2026, 13, 1}), RaisonRefus::DateImpossible);
  EXPECT_EQ(raison({2026, 1, 0}), RaisonRefus::DateImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 60}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 24}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, -1}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 12, 60}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 12, 0, 60}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 23, 59, 60}), RaisonRefus::HeureImpossible) << "no leap second that day";
  EXPECT_EQ(raison({1950, 1, 1, 12, 0, 60}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 12, 0, std::nan("")}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({2026, 1, 1, 12, 0, -0.5}), RaisonRefus::HeureImpossible);
  EXPECT_EQ(raison({1799, 12, 31}), RaisonRefus::AnneeHorsLimites);
  EXPECT_EQ(raison({2200, 1, 1}), RaisonRefus::AnneeHorsLimites);
  EXPECT_EQ(raison({2024, 2, 29, 23, 59, 59.999}), std::nullopt);
}

/// Delta T of the twentieth century by the polynomials of Espenak and Meeus, seconds.
double DeltaTPolynome(double annee) {
  double t = annee - 1900;
  if (annee < 1920) {
    return -2.79 + t * (1.494119 + t * (-0.0598939 + t * (0.0061966 - 0.000197 * t)));
  }
  t = annee - 1920;
  if (annee < 1941) {
    return 21.20 + t * (0.84493 + t * (-0.076100 + 0.0020936 * t));
  }
  t = annee - 1950;
  if (annee < 1961) {
    return 29.07 + t * (0.407 + t * (-1.0 / 233 + t / 2547));
  }
  t = annee - 1975;
  return 45.45 + t * (1.067 + t * (-1.0 / 260 - t / 718));
}

TEST(Instants, MeasuredDeltaTLiesByTheCurveThroughItsCentury) {
  for (double annee = 1900; annee <= 1972; annee += 0.25) {
    EXPECT_NEAR(DeltaTMesure(annee), DeltaTPolynome(annee), 0.7) << annee;
  }
}

TEST(Instants, DeltaTOfTheCenturyBeforeFollowsTheAlmanacsValues) {
  struct Valeur {
    double annee, secondes;
  };
  for (const Valeur &v : {Valeur{1800, 13.7}, Valeur{1820, 12.0}, Valeur{1840, 5.7}, Valeur{1850, 7.1},
                          Valeur{1860, 7.88}, Valeur{1865, 6.02}, Valeur{1870, 1.61}, Valeur{1875, -3.24},
                          Valeur{1880, -5.40}, Valeur{1885, -5.79}, Valeur{1890, -5.87}, Valeur{1895, -6.47}}) {
    EXPECT_NEAR(DeltaTMesure(v.annee), v.secondes, 0.7) << v.annee;
  }
}

TEST(Instants, TerrestrialTimeHasNoStepWhereItsRuleChanges) {
  // One hundredth of the Moon's second of arc is 0.02 s; leap seconds step by their nature, and none falls here.
  const auto saut = [](const DateCivile &avant, const DateCivile &apres) {
    const Moment a = MomentDe(avant);
    const Moment b = MomentDe(apres);
    return EcartTT(b.tt, b.ut1) - EcartTT(a.tt, a.ut1);
  };
  EXPECT_NEAR(saut({1859, 12, 31, 23, 59, 59}, {1860, 1, 1}), 0, 0.06);
  EXPECT_NEAR(saut({1899, 12, 31, 23, 59, 59}, {1900, 1, 1}), 0, 0.03);
  EXPECT_NEAR(saut({1971, 12, 31, 23, 59, 59}, {1972, 1, 1}), 0, 0.01);
  EXPECT_NEAR(saut({2034, 12, 31, 23, 59, 59}, {2035, 1, 1}), 0, 1E-4);
}

TEST(Instants, FarAheadDeltaTGrowsByAParabola) {
  EXPECT_NEAR(EcartDe(2135, 1, 1), EcartDe(2034, 6, 1) + 32.5, 0.01);
  EXPECT_NEAR(EcartDe(2085, 1, 1), EcartDe(2034, 6, 1) + 32.5 / 4, 0.01);
}

TEST(Instants, ATimeKeepsItsMicroseconds) {
  const InstantUTC a = UTCDe({2026, 11, 22, 17, 42, 20.000001});
  const InstantUTC b = UTCDe({2026, 11, 22, 17, 42, 20});
  EXPECT_NEAR(((a.jour - b.jour) + (a.fraction - b.fraction)) * ERFA_DAYSEC, 1E-6, 1E-9);
}

TEST(Instants, SecondsSince1970AreThoseOfTheClockLibrary) {
  for (int annee = kPremiereAnnee; annee <= kDerniereAnnee; ++annee) {
    for (const int jour : {1, 17, 28}) {
      const int mois = 1 + (annee + jour) % 12;
      const std::chrono::sys_seconds attendu =
          std::chrono::sys_days(std::chrono::year(annee) / mois / jour) + std::chrono::seconds(86399);
      const InstantUTC utc = UTCDe({annee, mois, jour, 23, 59, 59});
      EXPECT_EQ(SecondesDe(utc), attendu.time_since_epoch().count());
      EXPECT_NEAR(SecondesEntre(UTCDeSecondes(SecondesDe(utc)), utc), 0, 1E-4);
    }
  }
}

TEST(Instants, OfALeapSecondTheSecondsSince1970AreThoseOfTheNextOne) {
  const std::int64_t bissextile = SecondesDe(UTCDe({2016, 12, 31, 23, 59, 60}));
  EXPECT_EQ(bissextile, SecondesDe(UTCDe({2017, 1, 1, 0, 0, 0})));
  const DateCivile apres = CivileDe(UTCDeSecondes(bissextile - 1));
  EXPECT_EQ(apres.jour, 31);
  EXPECT_NEAR(apres.seconde, 59, 1E-5);
}

TEST(Instants, WhatIsLessThanHalfASecondFromMidnightIsMidnight) {
  const InstantUTC presque{UTCDe({2026, 6, 21}).jour, 1 - 1E-12};
  EXPECT_EQ(SecondesDe(presque), SecondesDe(UTCDe({2026, 6, 22})));
}

} // namespace
} // namespace velmaris

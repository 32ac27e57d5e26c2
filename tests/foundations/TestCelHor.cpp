#include "foundations/CelHor.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"

#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace velmaris {
namespace {

using essais::HorlogeFixe;
using essais::NumeroErreur;

constexpr long double kPiLong = 3.14159265358979323846264338327950288L;

/// Julian day at 0 h by the rule that astronomers' almanacs print, each date in the calendar of its time.
double JourDuCalendrier(int annee, int mois, int jour) {
  const bool gregorien = annee * 10000 + mois * 100 + jour >= 15821015;
  const int a = mois > 2 ? annee : annee - 1;
  const int m = mois > 2 ? mois : mois + 12;
  const int b = gregorien ? 2 - a / 100 + a / 400 : 0;
  return std::floor(365.25 * (a + 4716)) + std::floor(30.6001 * (m + 1)) + jour + b - 1524.5;
}

/// Greenwich mean sidereal time from the outside judge, degrees.
double SideralErfa(const ValeurDate &d, double longitude) {
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(d.annee, d.mois, d.jour, &jd0, &jd);
  return eraGmst82(jd0, jd + ((d.heure * 60 + d.minute) * 60 + d.seconde) / 86400.0) * ERFA_DR2D + longitude;
}

ValeurDate DateAuHasard(std::mt19937 &alea, int anneeMin, int anneeMax) {
  const auto tire = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(alea); };
  return {tire(anneeMin, anneeMax), tire(1, 12), tire(1, 28), tire(0, 23), tire(0, 59), tire(0, 59)};
}

TEST(JulianDay, TheEpochOf2000IsAWholeNumberAtNoon) {
  EXPECT_EQ(JourJulien({2000, 1, 1, 0, 0, 0}, nullptr), 2451544.5);
  EXPECT_EQ(JourJulien({2000, 1, 1, 12, 0, 0}, nullptr), 2451545.0);
}

TEST(JulianDay, KnownDatesOfBothCalendars) {
  EXPECT_EQ(JourJulien({1957, 10, 4, 19, 26, 24}, nullptr), 2436116.31);
  EXPECT_EQ(JourJulien({1858, 11, 17, 0, 0, 0}, nullptr), 2400000.5);
  EXPECT_EQ(JourJulien({837, 4, 10, 0, 0, 0}, nullptr), 2026871.5);
  EXPECT_EQ(JourJulien({333, 1, 27, 12, 0, 0}, nullptr), 1842713.0);
}

TEST(JulianDay, TheDayAfter1582October4IsOctober15) {
  EXPECT_EQ(JourJulien({1582, 10, 4, 0, 0, 0}, nullptr), 2299159.5);
  EXPECT_EQ(JourJulien({1582, 10, 15, 0, 0, 0}, nullptr), 2299160.5);
}

TEST(JulianDay, AThousandDatesOnBothSidesOfTheCalendarChange) {
  std::mt19937 alea(6);
  for (int i = 0; i < 1000; ++i) {
    const ValeurDate d = i % 2 == 0 ? DateAuHasard(alea, 100, 1581) : DateAuHasard(alea, 1583, 3000);
    const double fraction = ((d.heure * 60 + d.minute) * 60 + d.seconde) / 86400.0;
    EXPECT_NEAR(JourJulien(d, nullptr), JourDuCalendrier(d.annee, d.mois, d.jour) + fraction, 1E-9)
        << TexteDateHeure(d);
    if (d.annee > 1582) {
      double jd0 = 0;
      double jd = 0;
      ASSERT_EQ(eraCal2jd(d.annee, d.mois, d.jour, &jd0, &jd), 0);
      EXPECT_NEAR(JourJulien(d, nullptr), jd0 + jd + fraction, 1E-9) << TexteDateHeure(d);
    }
  }
}

TEST(JulianDay, EveryDayOfAYearFollowsTheOneBefore) {
  static constexpr int longueurs[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  double precedent = JourJulien({2023, 12, 31, 0, 0, 0}, nullptr);
  for (int mois = 1; mois <= 12; ++mois) {
    for (int jour = 1; jour <= longueurs[mois - 1]; ++jour) {
      const double jd = JourJulien({2024, mois, jour, 0, 0, 0}, nullptr);
      EXPECT_EQ(jd, precedent + 1) << jour << '/' << mois;
      precedent = jd;
    }
  }
}

TEST(JulianDay, WithTheClockOnlyTheCalendarDateOfTheArgumentCounts) {
  Horloge horloge = HorlogeFixe({2024, 6, 6, 20, 18, 30, 15, 999}, {});
  const double attendu = JourDuCalendrier(2000, 1, 1) + double{static_cast<float>((18 + 30 / 60.0 + 15 / 3600.0) / 24)};
  EXPECT_EQ(JourJulien({2000, 1, 1, 6, 7, 8}, &horloge), attendu);
  EXPECT_EQ(JourJulien({2000, 1, 1, 23, 0, 0}, &horloge), attendu);
  EXPECT_EQ(horloge.temps.minute, 30);
}

TEST(SiderealTime, AtTheEpochItIsTheConstantAlone) {
  EXPECT_EQ(TempsSideralLocal({2000, 1, 1, 12, 0, 0}, 0), 280.46061837);
}

TEST(SiderealTime, AgreesWithTheStandardModelOverTwoCenturies) {
  // The polynomial is that of the standard with its terms rounded to 1E-9 degree a century and the rate to 5E-12
  // degree a day: 4E-7 degree over a century. Summing on 13 million degrees costs 2E-9 more.
  std::mt19937 alea(7);
  for (int i = 0; i < 1000; ++i) {
    const ValeurDate d = DateAuHasard(alea, 1900, 2100);
    const double ecart = std::remainder(TempsSideralLocal(d, 0) - SideralErfa(d, 0), 360.0);
    EXPECT_NEAR(ecart, 0.0, 5E-7) << TexteDateHeure(d);
  }
}

TEST(SiderealTime, IsThePolynomialOfTheDayCountToTheLastDigit) {
  std::mt19937 alea(13);
  for (int i = 0; i < 500; ++i) {
    const ValeurDate d = DateAuHasard(alea, -4000, 3000);
    double jd0 = 0;
    double jd = 0;
    ASSERT_EQ(eraCal2jd(d.annee, d.mois, d.jour, &jd0, &jd), 0);
    const double n = (jd0 + jd - 2451545.0) + ((d.heure + d.minute / 60.0) + d.seconde / 3600.0) / 24.0;
    const double t = n / 36525;
    const double s = ((280.46061837 + 360.98564736629 * n) + (0.000387933 * t) * t) - ((t * t) * t) / 38710000;
    const double reste = std::fmod(s, 360.0); // exact, as taking off turn by turn is
    EXPECT_EQ(TempsSideralLocal(d, 0), reste < 0 ? reste + 360 : reste) << TexteDateHeure(d);
  }
}

TEST(SiderealTime, AnEastLongitudeAddsToIt) {
  std::mt19937 alea(8);
  for (int i = 0; i < 100; ++i) {
    const ValeurDate d = DateAuHasard(alea, 1950, 2050);
    const double longitude = -180.0 + 3.6 * i;
    const double s = TempsSideralLocal(d, longitude);
    EXPECT_GE(s, 0.0);
    EXPECT_LE(s, 360.0);
    EXPECT_NEAR(std::remainder(s - SideralErfa(d, longitude), 360.0), 0.0, 5E-7);
  }
}

TEST(SiderealTime, Exactly360Stays360AndExactlyZeroStaysZero) {
  const double s = TempsSideralLocal({2000, 1, 1, 12, 0, 0}, 0);
  EXPECT_EQ(TempsSideralLocal({2000, 1, 1, 12, 0, 0}, -s), 0.0);
  const double versTour = 360.0 - s;
  ASSERT_EQ(s + versTour, 360.0);
  EXPECT_EQ(TempsSideralLocal({2000, 1, 1, 12, 0, 0}, versTour), 360.0);
}

TEST(SiderealTime, ManyTurnsAreTakenOffAsIfOneByOne) {
  const double s0 = TempsSideralLocal({2000, 1, 1, 12, 0, 0}, 0);
  std::mt19937 alea(12);
  std::uniform_real_distribution<double> longitudes(-1E5, 1E5);
  for (int i = 0; i < 500; ++i) {
    const double longitude = i < 20 ? (i - 10) * 360.0 - s0 : longitudes(alea);
    double attendu = s0 + longitude;
    while (attendu > 360) {
      attendu -= 360;
    }
    while (attendu < 0) {
      attendu += 360;
    }
    EXPECT_EQ(TempsSideralLocal({2000, 1, 1, 12, 0, 0}, longitude), attendu) << longitude;
  }
}

TEST(SiderealTime, ALongitudeOfAnySizeEnds) {
  for (const double longitude : {1E17, 1E30, 3.4E38, -1E17, -1E30, -3.4E38}) {
    const double s = TempsSideralLocal({2024, 6, 1, 12, 0, 0}, longitude);
    EXPECT_GE(s, 0.0);
    EXPECT_LE(s, 360.0);
  }
}

TEST(SiderealTime, TheFirstOfMarchDoesNotShiftTheYear) {
  constexpr double kParJour = 360.98564736629;
  EXPECT_NEAR(std::remainder(TempsSideralLocal({2023, 3, 1, 0, 0, 0}, 0) -
                                 TempsSideralLocal({2023, 2, 28, 0, 0, 0}, 0) - kParJour,
                             360.0),
              0.0, 1E-7);
  EXPECT_NEAR(std::remainder(TempsSideralLocal({2024, 3, 1, 0, 0, 0}, 0) -
                                 TempsSideralLocal({2024, 2, 29, 0, 0, 0}, 0) - kParJour,
                             360.0),
              0.0, 1E-7);
}

TEST(SiderealTime, ADateBefore1582IsStillReckonedInTheGregorianCalendar) {
  // The two routines count one date in two calendars: from March 1500 on, ten days lie between them.
  const ValeurDate ancien{1500, 3, 1, 0, 0, 0};
  EXPECT_NEAR(std::remainder(TempsSideralLocal(ancien, 0) - SideralErfa(ancien, 0), 360.0), 0.0, 5E-6);
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(1500, 3, 1, &jd0, &jd);
  EXPECT_EQ(JourJulien(ancien, nullptr) - (jd0 + jd), 10.0);
}

TEST(SiderealTime, AYearPast16BitsOverflows) {
  EXPECT_EQ(NumeroErreur([] { TempsSideralLocal({-32768, 1, 1, 0, 0, 0}, 0); }), 6);
  EXPECT_EQ(NumeroErreur([] { TempsSideralLocal({40000, 6, 1, 0, 0, 0}, 0); }), 6);
}

struct Horizontal {
  double azimut, hauteur;
};

Horizontal Coupe(const std::string &texte) {
  const std::size_t x = texte.find('X');
  EXPECT_NE(x, std::string::npos) << texte;
  return {Val(texte.substr(0, x)), Val(texte.substr(x + 1))};
}

/// The same by turning a vector about the pole and then about the west-east axis.
Horizontal Tourne(double siderale, double ra, double dec, double lat) {
  const long double rad = kPiLong / 180;
  const long double h = (siderale - ra) * rad;
  const long double d = dec * rad;
  const long double phi = lat * rad;
  const long double versSud = std::cos(d) * std::cos(h);
  const long double versEst = -std::cos(d) * std::sin(h);
  const long double versPole = std::sin(d);
  const long double nord = versPole * std::cos(phi) - versSud * std::sin(phi);
  const long double zenith = versPole * std::sin(phi) + versSud * std::cos(phi);
  const long double azimut = std::atan2(versEst, nord) / rad;
  const long double hauteur = std::atan2(zenith, std::hypot(versEst, nord)) / rad;
  return {static_cast<double>(azimut < 0 ? azimut + 360 : azimut), static_cast<double>(hauteur)};
}

TEST(Horizon, AgreesWithAVectorTurnedIntoTheHorizonAtAnyPlace) {
  // The azimuth has 7 digits, so 5E-5 degree, and its sidereal time 5E-7 degree, magnified near the zenith.
  std::mt19937 alea(9);
  std::uniform_real_distribution<double> unite(-1.0, 1.0);
  for (int i = 0; i < 3000; ++i) {
    const ValeurDate date = DateAuHasard(alea, 1950, 2050);
    const double ra = 180 + 180 * unite(alea);
    const double dec = 89 * unite(alea);
    const double lat = 89 * unite(alea);
    const double lon = 180 * unite(alea);
    double decRendue = dec;
    double latRendue = lat;
    const Horizontal place = Coupe(CelesteVersHorizon(date, ra, decRendue, latRendue, lon));
    const Horizontal attendu = Tourne(SideralErfa(date, lon), ra, dec, lat);
    EXPECT_NEAR(place.hauteur, attendu.hauteur, 2E-6) << TexteDateHeure(date);
    const double tolerance = 7E-5 + 2E-6 / std::cos(attendu.hauteur * ERFA_DD2R);
    EXPECT_NEAR(std::remainder(place.azimut - attendu.azimut, 360.0), 0.0, tolerance) << TexteDateHeure(date);
  }
}

TEST(Horizon, DeclinationAndLatitudeAreLeftInRadians) {
  double dec = 20;
  double lat = -45;
  CelesteVersHorizon({2024, 1, 1, 0, 0, 0}, 10, dec, lat, 0);
  EXPECT_EQ(dec, (20 * 3.141592653589) / 180);
  EXPECT_EQ(lat, (-45 * 3.141592653589) / 180);
}

TEST(Horizon, OnTheMeridianTheUnguardedArcCosineGivesItsSentinel) {
  const ValeurDate date{2000, 1, 1, 12, 0, 0};
  constexpr double kPi = 3.141592653589;
  int sentinelles = 0;
  int angles = 0;
  for (int degre = 1; degre < 90; ++degre) {
    double dec = 0;
    double lat = degre;
    const Horizontal place = Coupe(CelesteVersHorizon(date, TempsSideralLocal(date, 0), dec, lat, 0));
    const double phi = (degre * kPi) / 180;
    const double sinH = std::cos(phi);
    const double h = std::atan(sinH / std::sqrt(-sinH * sinH + 1));
    const double cosA = -(std::sin(phi) * std::sin(h)) / (std::cos(phi) * std::cos(h));
    if (cosA <= -1.0) {
      EXPECT_NEAR(place.azimut, 999 * 180 / kPi, 0.01) << degre;
      ++sentinelles;
    } else {
      EXPECT_NEAR(place.azimut, 180.0, 1E-4) << degre;
      ++angles;
    }
    EXPECT_NEAR(place.hauteur, 90.0 - degre, 1E-9);
  }
  EXPECT_GT(sentinelles, 0);
  EXPECT_GT(angles, 0);
}

TEST(Horizon, WestOfTheMeridianTheSentinelIsTakenFrom360) {
  const ValeurDate date{2000, 1, 1, 12, 0, 0};
  int trouves = 0;
  for (int degre = 1; degre < 90; ++degre) {
    double dec = 0;
    double lat = degre;
    const double azimut = Coupe(CelesteVersHorizon(date, TempsSideralLocal(date, 0) - 1E-9, dec, lat, 0)).azimut;
    if (azimut < 0) {
      EXPECT_NEAR(azimut, 360 - 999 * 180 / 3.141592653589, 0.01);
      ++trouves;
    } else {
      EXPECT_NEAR(azimut, 180.0, 1E-4);
    }
  }
  EXPECT_GT(trouves, 0);
}

TEST(Horizon, ABodyInTheZenithIsADivisionByZero) {
  const ValeurDate date{2000, 1, 1, 12, 0, 0};
  double dec = 0;
  double lat = 0;
  EXPECT_EQ(NumeroErreur([&] { CelesteVersHorizon(date, TempsSideralLocal(date, 0), dec, lat, 0); }), 11);
  dec = 90;
  lat = 90;
  EXPECT_EQ(NumeroErreur([&] { CelesteVersHorizon(date, 0, dec, lat, 0); }), 11);
}

TEST(Horizon, AtNinetyDegreesTheShortPiKeepsTheCosineOfTheLatitudeFromZero) {
  for (const double pole : {90.0, -90.0}) {
    double dec = 30;
    double lat = pole;
    const Horizontal place = Coupe(CelesteVersHorizon({2024, 1, 1, 0, 0, 0}, 10, dec, lat, 0));
    EXPECT_NEAR(place.hauteur, pole / 3, 1E-9);
  }
}

TEST(Horizon, TheHourAngleTravelsAsTextOfFifteenDigits) {
  // The same steps by hand, every one read back from what the C library prints.
  const auto texte = [](double x) {
    char tampon[64];
    std::snprintf(tampon, sizeof tampon, "%.15G", x);
    return std::strtod(tampon, nullptr);
  };
  constexpr double kPi = 3.141592653589;
  std::mt19937 alea(10);
  std::uniform_real_distribution<double> unite(-1.0, 1.0);
  for (int i = 0; i < 500; ++i) {
    const ValeurDate date = DateAuHasard(alea, 1990, 2030);
    const double ra = 180 + 180 * unite(alea);
    const double dec = 80 * unite(alea);
    const double lat = 80 * unite(alea);
    double h = texte(TempsSideralLocal(date, 12.5) - ra);
    if (h < 0) {
      h = texte(h + 360.0);
    }
    h = texte((h * kPi) / 180.0);
    const double d = (dec * kPi) / 180;
    const double phi = (lat * kPi) / 180;
    const double sinH = std::sin(d) * std::sin(phi) + (std::cos(phi) * std::cos(d)) * std::cos(h);
    const double hauteur = std::atan(sinH / std::sqrt(-sinH * sinH + 1));
    double decRendue = dec;
    double latRendue = lat;
    char attendu[64];
    std::snprintf(attendu, sizeof attendu, "%.15G", (hauteur * 180) / kPi);
    const std::string rendu = CelesteVersHorizon(date, ra, decRendue, latRendue, 12.5);
    EXPECT_EQ(rendu.substr(rendu.find('X') + 1), attendu);
  }
}

} // namespace
} // namespace velmaris

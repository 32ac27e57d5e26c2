#include "sights/TheorieSolaire.hpp"

#include "tests/sights/SecondCalculSoleil.hpp"
#include "tests/sights/SoleilErfa.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <utility>

namespace velmaris {
namespace {

double Jour(int jour, double mois, int annee) {
  auto y = static_cast<std::int16_t>(annee);
  return JourDuSoleil<double>(jour, mois, y);
}

TEST(SunsDayNumber, IsTheJulianDayOfEveryGregorianDate) {
  for (int annee = 1583; annee <= 2100; annee += 7) {
    for (int mois = 1; mois <= 12; ++mois) {
      double jd0 = 0;
      double jd = 0;
      eraCal2jd(annee, mois, 15, &jd0, &jd);
      EXPECT_EQ(Jour(15, mois, annee), jd0 + jd) << mois << '/' << annee;
    }
  }
}

TEST(SunsDayNumber, ADateOfTheOldCalendarIsTwoDaysLate) {
  // The Julian day of the Julian calendar, the constant's two days left in.
  EXPECT_EQ(Jour(4, 10, 1582), 2299159.5 + 2);
  EXPECT_EQ(Jour(1, 3, 1000), 2086367.5 + 2);
}

TEST(SunsDayNumber, TheCalendarChangesAfterOctober14OfTheCount) {
  EXPECT_EQ(Jour(15, 10, 1582), 2299160.5);
  EXPECT_EQ(Jour(14, 10, 1582), 2299159.5 + 12);
}

TEST(SunsDayNumber, JanuaryAndFebruaryAreLeftAsMonths13And14OfTheYearBefore) {
  for (const double mois : {1.0, 2.0}) {
    double m = mois;
    std::int16_t y = 2009;
    JourDuSoleil<double>(1, m, y);
    EXPECT_EQ(m, mois + 12);
    EXPECT_EQ(y, 2008);
  }
  double m = 3;
  std::int16_t y = 2009;
  JourDuSoleil<double>(1, m, y);
  EXPECT_EQ(m, 3);
  EXPECT_EQ(y, 2009);
}

TEST(SunsDayNumber, TheLowestYearHasNoYearBefore) {
  double m = 1;
  std::int16_t y = -32768;
  JourDuSoleil<double>(1, m, y);
  EXPECT_EQ(y, -32768) << "the overflowing subtraction is passed over";
  EXPECT_EQ(m, 13);
}

TEST(SunsSiderealTime, StaysWithinADay) {
  EXPECT_DOUBLE_EQ(TempsSideralSolaire(0, 0), 6.6460656);
  EXPECT_NEAR(TempsSideralSolaire(0, 20), 6.6460656 + 20 * 1.0027389 - 24, 1E-12);
  for (double t = -5; t < 5; t += 0.013) {
    const double st = TempsSideralSolaire(t, 13.7);
    EXPECT_GE(st, 0.0);
    EXPECT_LT(st, 24.0);
  }
}

TEST(SunsSiderealTime, IsThatOfGreenwichToASecondOfTime) {
  for (int annee = 1950; annee < 2050; ++annee) {
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(annee, 5, 17, &jd0, &jd);
    const double t0 = (jd0 + jd - 2415020.0) / 36525.0;
    const double attendu = eraGmst82(jd0, jd + 0.75) * ERFA_DR2D / 15;
    EXPECT_NEAR(std::remainder(TempsSideralSolaire(t0, 18) - attendu, 24.0), 0.0, 1 / 3600.0) << annee;
  }
}

TEST(SunsPlace, In64BitsIsTheApparentSunWithinTheShortTheory) {
  // Nutation is 0.005 degree, the planets 0.008, the third term of the centre 0.0003, the short radian 0.0012.
  double pireAD = 0;
  double pireDec = 0;
  for (int i = 0; i < 200; ++i) {
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(1950 + i / 2, 1 + i % 12, 1 + i % 28, &jd0, &jd);
    const essais::PlaceErfa juge = essais::SoleilErfa(jd0, jd);
    const auto place = CalculePlaceSoleil<double>((jd0 + jd - 2415020.0) / 36525.0);
    pireAD = std::max(pireAD, std::fabs(std::remainder(place.AD - juge.AD, 360.0)));
    pireDec = std::max(pireDec, std::fabs(place.Dec - juge.Dec));
  }
  EXPECT_LT(pireAD, 0.016);
  EXPECT_LT(pireDec, 0.008);
}

TEST(SunsPlace, In32BitsLosesNoMoreThanTheStepOfItsLongitude) {
  for (int i = 0; i < 200; ++i) {
    const double t = 0.5 + i / 200.0;
    const auto simple = CalculePlaceSoleil<float>(t);
    const auto fine = CalculePlaceSoleil<double>(t);
    // Half a step of 0.0039 in the longitude, and as much in the mean anomaly through an eccentric of 0.034.
    EXPECT_NEAR(std::remainder(simple.AD - fine.AD, 360.0), 0.0, 0.0023) << t;
    EXPECT_NEAR(simple.Dec, fine.Dec, 0.0010) << t;
  }
}

/// Seconds by which dynamical time was ahead of universal time, from the published yearly values; the last one after.
double AvanceDynamique(double annee) {
  constexpr std::array<std::pair<double, double>, 10> kValeurs = {{{1950, 29.1},
                                                                   {1960, 33.2},
                                                                   {1970, 40.2},
                                                                   {1980, 50.5},
                                                                   {1990, 56.9},
                                                                   {2000, 63.8},
                                                                   {2005, 64.7},
                                                                   {2010, 66.1},
                                                                   {2015, 67.6},
                                                                   {2020, 69.4}}};
  for (std::size_t i = 1; i < kValeurs.size(); ++i) {
    const auto [a, avant] = kValeurs.at(i - 1);
    const auto [b, apres] = kValeurs.at(i);
    if (annee < b) {
      return avant + (apres - avant) * (annee - a) / (b - a);
    }
  }
  return kValeurs.back().second;
}

/// The largest of some differences, and their root mean square.
struct Mesure {
  double pire = 0, carres = 0;
  int nombre = 0;
  void ajoute(double x) {
    pire = std::max(pire, std::fabs(x));
    carres += x * x;
    ++nombre;
  }
  double moyenne() const { return std::sqrt(carres / nombre); }
};

TEST(SunsPlace, OfASightLiesWithinTheFiguresToldOfTheApparentSun) {
  std::mt19937 alea(26);
  std::uniform_real_distribution<double> heures(0, 24);
  Mesure declinaison;
  Mesure angle;
  for (int i = 0; i < 36500; i += 3) {
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(1950, 1, 1, &jd0, &jd);
    jd += i;
    const double heure = heures(alea);
    const double moment = jd + heure / 24;
    const double dynamique = moment + AvanceDynamique(1950 + i / 365.25) / 86400;
    const essais::PlaceErfa juge = essais::SoleilErfa(jd0, dynamique);
    const double ahg = eraGst06a(jd0, moment, jd0, dynamique) * ERFA_DR2D - juge.AD;
    // What a sight keeps of them: the day number and each angle in 32 bits.
    const double T0 = (double{static_cast<float>(jd0 + jd)} - 2415020.0) / 36525.0;
    const auto place = CalculePlaceSoleil<float>(T0 + heure / 24.0 / 36525.0);
    const auto angles = CalculeAnglesHoraires<float>(TempsSideralSolaire(T0, heure), place.AD, 0);
    declinaison.ajoute((place.Dec - juge.Dec) * 60);
    angle.ajoute(std::remainder(angles.AHG - ahg, 360.0) * 60);
  }
  // Minutes of arc, as the page of exactness has them.
  EXPECT_LT(declinaison.pire, 0.34);
  EXPECT_GT(declinaison.pire, 0.28);
  EXPECT_NEAR(declinaison.moyenne(), 0.11, 0.005);
  EXPECT_LT(angle.pire, 0.62);
  EXPECT_GT(angle.pire, 0.52);
  EXPECT_NEAR(angle.moyenne(), 0.17, 0.005);
}

TEST(HourAngles, AnAngleOfExactly360Stays) {
  const auto a = CalculeAnglesHoraires<float>(6, 0, -270);
  EXPECT_EQ(a.AHG, 90.0F);
  EXPECT_EQ(a.AHL, 360.0F);
}

TEST(HourAngles, PastATurnOrBelowZeroTheLocalOneIsBroughtBack) {
  EXPECT_EQ(CalculeAnglesHoraires<float>(6, 0, -271).AHL, 1.0F);
  EXPECT_EQ(CalculeAnglesHoraires<float>(6, 0, 91).AHL, 359.0F);
  EXPECT_EQ(CalculeAnglesHoraires<double>(6, 0, 90).AHL, 0.0);
  EXPECT_EQ(CalculeAnglesHoraires<double>(6, 0, 91).AHL, 359.0);
  EXPECT_EQ(CalculeAnglesHoraires<double>(6, 0, -271).AHL, 1.0);
}

TEST(HourAngles, TheGreenwichOneIsBroughtIntoOneTurn) {
  EXPECT_EQ(CalculeAnglesHoraires<float>(0, 90, 0).AHG, 270.0F);
  EXPECT_EQ(CalculeAnglesHoraires<float>(23, -30, 0).AHG, 15.0F);
  EXPECT_EQ(CalculeAnglesHoraires<float>(24, 0, 0).AHG, 0.0F);
}

struct CasHorizon {
  float dec, ahl, latitude;
};

TEST(HeightAndAzimuth, EachStoreIsThatOfTheHandWork) {
  std::mt19937 alea(22);
  std::uniform_real_distribution<float> unite(-1.0F, 1.0F);
  for (int i = 0; i < 5000; ++i) {
    essais::DroiteSoleil attendu;
    attendu.Dec = 24 * unite(alea);
    attendu.AHL = 180 + 180 * unite(alea);
    attendu.Azimut = 12.5F;
    const float latitude = 90 * unite(alea);
    double hc = 0;
    float azimut = 12.5F;
    CalculeHauteurAzimut<float>(attendu.Dec, attendu.AHL, latitude, hc, azimut);
    essais::HorizonALaMain(latitude, attendu);
    EXPECT_EQ(hc, attendu.Hc);
    EXPECT_EQ(azimut, attendu.Azimut);
  }
}

TEST(HeightAndAzimuth, ACosineOfOneOrBeyondKeepsTheFormerAzimuth) {
  int exacts = 0;
  int depasses = 0;
  int dedans = 0;
  for (int d = -24; d <= 24; ++d) {
    for (int l = -89; l <= 89; ++l) {
      for (const float ahl : {0.0F, 360.0F}) {
        essais::DroiteSoleil attendu;
        attendu.Dec = static_cast<float>(d);
        attendu.AHL = ahl;
        attendu.Azimut = 77.5F;
        essais::HorizonALaMain(static_cast<float>(l), attendu);
        const float grandeur = std::fabs(attendu.y);
        exacts += grandeur == 1.0F ? 1 : 0;
        depasses += grandeur > 1.0F ? 1 : 0;
        dedans += grandeur < 1.0F ? 1 : 0;
        double hc = 0;
        float azimut = 77.5F;
        CalculeHauteurAzimut<float>(attendu.Dec, ahl, static_cast<float>(l), hc, azimut);
        if (grandeur >= 1.0F) {
          EXPECT_EQ(azimut, ahl < 180 ? 360.0F - 77.5F : 77.5F) << d << ' ' << l;
        } else if (std::abs(l - d) >= 3) {
          // Off the zenith the cosine falls short of 1 by a few steps of 6E-8, an angle under a third of a degree.
          EXPECT_NEAR(std::remainder(azimut, 180.0F), 0.0F, 0.33F) << d << ' ' << l;
        }
      }
    }
  }
  EXPECT_GT(exacts, 0);
  EXPECT_GT(depasses, 0);
  EXPECT_GT(dedans, 0);
}

TEST(HeightAndAzimuth, InTheZenithTheHeightStaysAsItWas) {
  double hc = 0;
  float azimut = 33;
  CalculeHauteurAzimut<float>(0, 0, 0, hc, azimut);
  EXPECT_EQ(hc, 0.0);
}

TEST(HeightAndAzimuth, TheAzimuthCountsFromNorthThroughEast) {
  for (const auto &[ahl, est] : {std::pair{300.0F, true}, {60.0F, false}}) {
    double hc = 0;
    float azimut = 0;
    CalculeHauteurAzimut<float>(10, ahl, 45, hc, azimut);
    EXPECT_EQ(azimut < 180.0F, est);
  }
  double hc = 0;
  float azimut = 0;
  CalculeHauteurAzimut<float>(0, 270, 45, hc, azimut);
  EXPECT_NEAR(azimut, 90.0F, 1E-4);
  EXPECT_NEAR(hc, 0.0, 1E-4);
}

} // namespace
} // namespace velmaris

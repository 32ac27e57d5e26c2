#include "sights/PositionDirecte.hpp"

#include "tests/OutilsTests.hpp"
#include "tests/sights/SoleilErfa.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace velmaris {
namespace {

using essais::HorlogeFixe;

Observation Ici(const char *latitude, bool sud, const char *longitude, bool est) {
  Observation o;
  o.latitudeDegres = latitude;
  o.latitudeMinutes = "30";
  o.sud = sud;
  o.longitudeDegres = longitude;
  o.longitudeMinutes = "15";
  o.est = est;
  return o;
}

TEST(LiveSun, IsWhereTheOutsideJudgePutsItWithinTheShortTheory) {
  // The theory has no nutation and no planets: 0.016 degree of right ascension, 0.008 of declination.
  for (int i = 0; i < 100; ++i) {
    const auto annee = static_cast<std::uint16_t>(1975 + i);
    const auto mois = static_cast<std::uint16_t>(1 + i % 12);
    const auto jour = static_cast<std::uint16_t>(1 + i % 28);
    const auto heure = static_cast<std::uint16_t>(i * 7 % 24);
    Horloge horloge = HorlogeFixe({annee, mois, 0, jour, heure, 20, 30, 0}, {annee, mois, jour, 0, 0, 0});
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(annee, mois, jour, &jd0, &jd);
    jd += (heure * 3600 + 20 * 60 + 30) / 86400.0;
    const SoleilDirect soleil = CalculeSoleilDirect(Ici("40", i % 3 == 0, "20", i % 2 == 0), horloge);
    const essais::PlaceErfa juge = essais::SoleilErfa(jd0, jd);
    EXPECT_NEAR(soleil.Dec, juge.Dec, 0.008) << i;
    EXPECT_NEAR(std::remainder(soleil.AD - juge.AD, 360.0), 0.0, 0.016) << i;
    EXPECT_NEAR(soleil.point.LatSoleil, juge.Dec, 0.008) << i;
    EXPECT_NEAR(std::remainder(soleil.point.LonSoleil - juge.AHG, 360.0), 0.0, 0.016) << i;
    EXPECT_GT(soleil.point.LonSoleil, -180.0F);
    EXPECT_LE(soleil.point.LonSoleil, 180.0F);
    const double latitude = (i % 3 == 0 ? -1 : 1) * 40.5;
    const double longitude = (i % 2 == 0 ? -1 : 1) * 20.25;
    const essais::HorizonErfa place = essais::SoleilHorizonErfa(jd0, jd, latitude, longitude);
    EXPECT_NEAR(soleil.hauteur, place.hauteur, 0.016) << i;
    EXPECT_NEAR(std::remainder(soleil.azimut - place.azimut, 360.0), 0.0, 0.016 / std::cos(place.hauteur * ERFA_DD2R))
        << i;
  }
}

TEST(LiveSun, EachStepIn64BitsIsThatOfTheHandWork) {
  const double RAD = 0.017453292;
  for (int i = 0; i < 200; ++i) {
    const int annee = 1900 + i;
    const int mois = 1 + i % 12;
    const int jour = 1 + i % 28;
    const int heure = i * 5 % 24;
    const int minute = i * 7 % 60;
    const int seconde = i * 11 % 60;
    const auto u = [](int n) { return static_cast<std::uint16_t>(n); };
    Horloge horloge =
        HorlogeFixe({u(annee), u(mois), 0, u(jour), u(heure), u(minute), u(seconde), 0}, {annee, mois, jour, 0, 0, 0});
    const SoleilDirect soleil = CalculeSoleilDirect(Ici("40", i % 3 == 0, "20", i % 2 == 0), horloge);

    const int m = mois < 3 ? mois + 12 : mois;
    const int y = mois < 3 ? annee - 1 : annee;
    const double jj = std::trunc(365.25 * y) + std::trunc(30.6001 * (m + 1)) + jour + 1720996.5 - y / 100 + y / 400;
    const double t0 = (jj - 2415020) / 36525;
    const double f = (heure * 3600 + minute * 60 + seconde) / 86400.0;
    const double t = t0 + f / 36525;
    double st = 6.6460656 + 2400.051262 * t0 + f * 24 * 1.0027389;
    st -= 24 * std::floor(st / 24);
    const double ma = 358.47583 + 35999.04975 * t;
    const double lg = (279.69668 + 36000.76892 * t + (1.919 - 0.004789 * t) * std::sin(ma * RAD) +
                       0.020094 * std::sin(2 * ma * RAD) - 0.00569) *
                      RAD;
    const double eps = (23.452294 - 0.01301 * t) * RAD;
    const double ad = std::atan(std::tan(lg) * std::cos(eps)) / RAD + (std::cos(lg) < 0 ? 180 : 0);
    const double dec = std::asin(std::sin(lg) * std::sin(eps)) / RAD;
    const double ahg = 15 * st - ad - std::floor((15 * st - ad) / 360) * 360;
    const double lat = (i % 3 == 0 ? -40.5 : 40.5) * RAD;
    // A turn is 360 degrees, but its short radians fall short of two pi by 1E-7: it must be taken off in degrees.
    const double local = ahg - (i % 2 == 0 ? -20.25 : 20.25);
    const double ahl = (local < 0 ? local + 360 : local > 360 ? local - 360 : local) * RAD;
    const double x = std::sin(lat) * std::sin(dec * RAD) + std::cos(dec * RAD) * std::cos(lat) * std::cos(ahl);
    const double z =
        std::atan2(-std::cos(dec * RAD) * std::sin(ahl),
                   std::sin(dec * RAD) * std::cos(lat) - std::cos(dec * RAD) * std::sin(lat) * std::cos(ahl)) /
        RAD;
    EXPECT_NEAR(soleil.AD, ad, 1E-8);
    EXPECT_NEAR(soleil.Dec, dec, 1E-8);
    EXPECT_NEAR(soleil.hauteur, std::asin(x) / RAD, 1E-8);
    // The short radian makes a turn 359.9999926 degrees here and 360 in the program's turn to the west.
    EXPECT_NEAR(std::remainder(soleil.azimut - z, 360.0), 0.0, 2E-5);
    EXPECT_EQ(soleil.point.LatSoleil, static_cast<float>(soleil.Dec));
    EXPECT_NEAR(std::remainder(soleil.point.LonSoleil - ahg, 360.0), 0.0, 1E-5);
  }
}

TEST(LiveSun, StandsHalfADegreeOffTheZenithHalfADegreeFromItsPoint) {
  Horloge horloge = HorlogeFixe({2024, 9, 0, 10, 12, 0, 0, 0}, {2024, 9, 10, 0, 0, 0});
  const PointSolaire point = CalculeSoleilDirect({}, horloge).point;
  Observation o;
  o.latitudeDegres = std::to_string(double{point.LatSoleil} + 0.5);
  o.longitudeDegres = std::to_string(std::fabs(double{point.LonSoleil}));
  o.est = point.LonSoleil < 0;
  const SoleilDirect soleil = CalculeSoleilDirect(o, horloge);
  EXPECT_NEAR(soleil.hauteur, 89.5, 1E-5);
  EXPECT_NEAR(soleil.azimut, 180.0, 1E-3);
}

TEST(LiveSun, TakesItsDayFromTheLocalDate) {
  // Two hours east of Greenwich, half past eleven at night GMT: it is the next day there.
  const TempsSysteme gmt{2024, 3, 0, 20, 23, 30, 0, 0};
  TempsSysteme lendemain = gmt;
  lendemain.jour = 21;
  Horloge est = HorlogeFixe(gmt, {2024, 3, 21, 1, 30, 0});
  Horloge greenwich = HorlogeFixe(gmt, {2024, 3, 20, 23, 30, 0});
  Horloge plusTard = HorlogeFixe(lendemain, {2024, 3, 21, 23, 30, 0});
  const Observation ici = Ici("45", false, "30", true);
  const SoleilDirect vuDeLEst = CalculeSoleilDirect(ici, est);
  const SoleilDirect unJourApres = CalculeSoleilDirect(ici, plusTard);
  EXPECT_EQ(vuDeLEst.Dec, unJourApres.Dec);
  EXPECT_EQ(vuDeLEst.hauteur, unJourApres.hauteur);
  // Near the equinox the declination grows by 0.395 degree a day.
  EXPECT_NEAR(vuDeLEst.Dec - CalculeSoleilDirect(ici, greenwich).Dec, 0.395, 0.002);
}

TEST(LiveSun, AlsoWestOfGreenwichTheLocalDateRules) {
  const TempsSysteme gmt{2024, 3, 0, 21, 1, 0, 0, 0};
  Horloge ouest = HorlogeFixe(gmt, {2024, 3, 20, 20, 0, 0});
  Horloge greenwich = HorlogeFixe(gmt, {2024, 3, 21, 1, 0, 0});
  const Observation ici = Ici("45", false, "75", false);
  EXPECT_NEAR(CalculeSoleilDirect(ici, ouest).Dec - CalculeSoleilDirect(ici, greenwich).Dec, -0.395, 0.002);
}

TEST(LiveSun, ReadingItRefreshesTheClocksTexts) {
  Horloge horloge = HorlogeFixe({2024, 3, 0, 20, 7, 8, 9, 0}, {2024, 3, 20, 8, 8, 9});
  CalculeSoleilDirect(Ici("45", false, "5", false), horloge);
  EXPECT_EQ(horloge.HeureGMT, "07:08:09");
  EXPECT_EQ(horloge.JourGMT, "20");
}

TEST(LiveSun, MillisecondsAreIgnored) {
  Horloge horloge = HorlogeFixe({2024, 3, 0, 20, 7, 8, 9, 0}, {2024, 3, 20, 8, 8, 9});
  Horloge tardive = HorlogeFixe({2024, 3, 0, 20, 7, 8, 9, 999}, {2024, 3, 20, 8, 8, 9});
  EXPECT_EQ(CalculeSoleilDirect({}, horloge).azimut, CalculeSoleilDirect({}, tardive).azimut);
}

TEST(SubSolarText, NamesItsHemispheresWithDegreesAndMinutes) {
  EXPECT_EQ(TextePointSolaire({20.0833F, 123.0667F}), "N 20.05    W 123.04");
  EXPECT_EQ(TextePointSolaire({-20.0833F, -123.0667F}), "S 20.05    E 123.04");
  EXPECT_EQ(TextePointSolaire({5.5F, -7.25F}), "N 05.30    E 07.15");
}

TEST(SubSolarText, ZeroIsSouthAndEast) { EXPECT_EQ(TextePointSolaire({0, 0}), "S 00.00    E 00.00"); }

TEST(SubSolarText, ASouthernFractionOfADegreeKeepsItsLetterOnly) {
  EXPECT_EQ(TextePointSolaire({-0.25F, 0.25F}), "S 00.15    W 00.15");
}

} // namespace
} // namespace velmaris

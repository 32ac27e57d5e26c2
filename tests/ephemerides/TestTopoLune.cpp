#include "ephemerides/ModulePosLune.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

namespace velmaris {
namespace {

using essais::LuneA;
using essais::LuneDe;

/// Local sidereal time, turn by turn.
double SideralALaMain(double jd, float longitude) {
  const double T = (jd - 2451545.0) / 36525.0;
  double S = (((jd - 2451545.0) * 360.98564736629 + 280.46061837) + 0.000387933 * (T * T) - T * T * T / 38710000) +
             double{longitude};
  while (S < 0) {
    S += 360;
  }
  while (S > 360) {
    S -= 360;
  }
  return S;
}

/// What an observer sees, worked a second time with no routine of the program.
struct TopoALaMain {
  double ad = 0, dec = 0;
  float demiDiametre = 0, azimut = 0, hauteur = 0;
  std::string texteAD, texteDecl;

  static std::string Sexagesimal(double x, const char *forme) {
    const double m = (x - std::floor(x)) * 60;
    const double s = (m - std::floor(m)) * 60;
    char texte[80];
    std::snprintf(texte, sizeof texte, forme, static_cast<int>(std::floor(x)), static_cast<int>(std::floor(m)),
                  std::floor(s * 100 + 0.5) / 100);
    return texte;
  }

  static double ParTexte(double x) {
    char texte[40];
    std::snprintf(texte, sizeof texte, "%.15G", x);
    return std::strtod(texte, nullptr);
  }

  TopoALaMain(const Lune &l, float latitude, float longitude) {
    const double S = SideralALaMain(l.LuneJD, longitude);
    demiDiametre = static_cast<float>(l.LuneParallaxe * 0.2725 / 0.017453292 * 60);
    const double rho = 1 / std::sin(l.LuneParallaxe);
    const double y = rho * std::sin(l.LuneLongitude) * std::cos(l.LuneLatitude);
    const double z = rho * std::sin(l.LuneLatitude);
    const double phi = latitude * 0.01745329251993889;
    const double angle = static_cast<float>(S * 0.01745329251993889);
    const double th = angle - std::floor(angle / 6.283185307178) * 6.283185307178;
    const double X = rho * std::cos(l.LuneLongitude) * std::cos(l.LuneLatitude) - std::cos(phi) * std::cos(th);
    const double Y = y * std::cos(l.LuneObliquite) - z * std::sin(l.LuneObliquite) - std::cos(phi) * std::sin(th);
    const double Z = y * std::sin(l.LuneObliquite) + z * std::cos(l.LuneObliquite) - std::sin(phi);
    double a = std::atan(Y / X);
    a = X < 0 ? a + 3.141592653589 : a;
    a = Y < 0 && X > 0 ? a + 6.283185307178 : a;
    ad = a / 0.017453292 / 15;
    dec = std::atan(Z / std::sqrt(X * X + Y * Y)) / 0.017453292;
    texteDecl = (dec >= 0 ? "D = +" : "D = -") + Sexagesimal(std::fabs(dec), "%02d° %02d' %.15G''");
    texteAD = "AD " + Sexagesimal(ad, "%02d h %02d m %.15Gs");
    Horizon(S, latitude);
  }

  void Horizon(double S, float latitude) {
    const double k = 0.017453292;
    double H = ParTexte(S - ad * 15);
    while (H < 0) {
      H = ParTexte(H + 360);
    }
    const double lat = latitude * k;
    const double s = std::sin(dec * k) * std::sin(lat) + (std::cos(lat) * std::cos(dec * k)) * std::cos(H * k);
    const double h = std::atan(s / std::sqrt(-s * s + 1)) / k;
    const double c = (std::sin(dec * k) - std::sin(lat) * std::sin(h * k)) / (std::cos(lat) * std::cos(h * k));
    const double A = std::fabs(c) < 1 ? (std::atan(-c / std::sqrt(-c * c + 1)) + 2 * std::atan(1.0)) / k : 999 / k;
    azimut = static_cast<float>(std::sin(H * k) < 0 ? A : 360 - A);
    hauteur = static_cast<float>(h);
  }
};

void Observe(Lune &lune, float latitude, float longitude) {
  TopoLune(lune, lune.LuneAD, lune.LuneDecl, latitude, longitude, "AD ");
}

TEST(MoonFromAPlace, IsTheSecondComputationToTheLastBit) {
  for (int annee = 1900; annee <= 2100; ++annee) {
    const auto latitude = static_cast<float>(-85.3 + 0.85 * (annee - 1900));
    const auto longitude = static_cast<float>(std::remainder(37.7 * annee, 360.0));
    Lune lune = LuneDe(annee);
    const TopoALaMain main(lune, latitude, longitude);
    Observe(lune, latitude, longitude);
    EXPECT_EQ(lune.LuneAD, main.ad) << annee;
    EXPECT_EQ(lune.LuneDecl, main.dec) << annee;
    EXPECT_EQ(lune.LuneDemiDiametre, main.demiDiametre) << annee;
    EXPECT_EQ(lune.LuneAzimut, main.azimut) << annee;
    EXPECT_EQ(lune.LuneHauteur, main.hauteur) << annee;
    EXPECT_EQ(lune.LuneTexteAD, main.texteAD) << annee;
    EXPECT_EQ(lune.LuneTexteDecl, main.texteDecl) << annee;
  }
}

TEST(MoonFromAPlace, TheOldPlaceInTheArgumentsIsNotRead) {
  Lune lune = LuneA(2024, 5, 3, 4);
  Lune autre = lune;
  double ra = -999;
  double dec = 1.0E300;
  Observe(lune, 48.5F, -4.75F);
  TopoLune(autre, ra, dec, 48.5F, -4.75F, "AD ");
  EXPECT_EQ(ra, lune.LuneAD);
  EXPECT_EQ(dec, lune.LuneDecl);
  EXPECT_EQ(autre.LuneHauteur, lune.LuneHauteur);
}

TEST(MoonFromAPlace, TheGeocentricPlaceInTheRecordIsReplaced) {
  Lune lune = LuneA(2024, 5, 3, 4);
  const double ad = lune.LuneAD;
  const double dec = lune.LuneDecl;
  Observe(lune, 48.5F, -4.75F);
  const double x = std::remainder(lune.LuneAD - ad, 24.0) * 15 * std::cos(dec * M_PI / 180);
  const double ecart = std::hypot(x, lune.LuneDecl - dec);
  // The parallax in altitude, up to the fourth decimal of a degree.
  const double p = lune.LuneParallaxe;
  const double attendu = std::asin(std::sin(p) * std::cos(lune.LuneHauteur * M_PI / 180)) * 180 / M_PI;
  EXPECT_NEAR(ecart, attendu, 2E-3);
}

TEST(MoonFromAPlace, AtTheEquatorWithSiderealTimeZeroTheMoonComesOneRadiusNearer) {
  Lune lune = LuneA(2000, 1, 1);
  lune.LuneObliquite = 0;
  lune.LuneLatitude = 0;
  lune.LuneLongitude = 0.5;
  const double rho = 1 / std::sin(lune.LuneParallaxe);
  const double S = SideralALaMain(lune.LuneJD, 0);
  Observe(lune, 0, static_cast<float>(-S));
  EXPECT_NEAR(lune.LuneAD * 15, std::atan2(rho * std::sin(0.5), rho * std::cos(0.5) - 1) * 180 / M_PI, 2E-6);
  EXPECT_EQ(lune.LuneDecl, 0.0);
}

TEST(MoonsDisc, IsTheParallaxTimesTheSameFigureSeenFromAnywhere) {
  Lune lune = LuneA(2024, 3, 25, 7);
  Lune ailleurs = lune;
  Observe(lune, 60.0F, 10.0F);
  Observe(ailleurs, -33.0F, 151.0F);
  EXPECT_EQ(lune.LuneDemiDiametre, ailleurs.LuneDemiDiametre);
  // 1737.4 km is 0.27240 of the equatorial radius.
  const double minutes = std::asin(1737.4 / lune.LuneDistance) * 180 / M_PI * 60;
  EXPECT_NEAR(lune.LuneDemiDiametre, minutes, minutes * 5E-4);
}

TEST(MoonsSiderealTime, ManyTurnsGoAsOneByOne) {
  // The second computation takes off turn after turn; the azimuth would show a turn too many or too few.
  for (const int annee : {-1000, 1000, 1900, 2100, 4000}) {
    Lune lune = LuneA(annee, 6, 15, 3);
    const TopoALaMain main(lune, 10.0F, -170.0F);
    Observe(lune, 10.0F, -170.0F);
    EXPECT_EQ(lune.LuneAzimut, main.azimut) << annee;
  }
}

TEST(MoonsSiderealTime, AtNoonOfTheFirstDayOf2000ItStandsWithinItsTurnAlready) {
  Lune lune = LuneA(2000, 1, 1, 12);
  EXPECT_EQ(SideralALaMain(lune.LuneJD, 0), 280.46061837);
  const TopoALaMain main(lune, 10.0F, 0.0F);
  Observe(lune, 10.0F, 0.0F);
  EXPECT_EQ(lune.LuneAzimut, main.azimut);
}

TEST(MoonsTexts, BearTheSignOfTheWholeAndSecondsToTheHundredth) {
  Lune lune = LuneA(2026, 6, 21, 12, 5, 30.25F);
  TopoLune(lune, lune.LuneAD, lune.LuneDecl, 47.5F, -5.17F, "Asc. droite : ");
  const double d = std::fabs(lune.LuneDecl);
  double degres = 0;
  double minutes = 0;
  double secondes = 0;
  char signe = 0;
  ASSERT_EQ(std::sscanf(lune.LuneTexteDecl.c_str(), "D = %c%lf° %lf' %lf''", &signe, &degres, &minutes, &secondes), 4);
  EXPECT_EQ(signe, '-');
  EXPECT_NEAR(degres + minutes / 60 + secondes / 3600, d, 0.0051 / 3600);
  double heures = 0;
  ASSERT_EQ(std::sscanf(lune.LuneTexteAD.c_str(), "Asc. droite : %lf h %lf m %lfs", &heures, &minutes, &secondes), 3);
  EXPECT_NEAR(heures + minutes / 60 + secondes / 3600, lune.LuneAD, 0.0051 / 3600);
}

TEST(MoonsTexts, WithoutALabelTheRightAscensionStandsAlone) {
  Lune lune = LuneA(2026, 6, 21, 12);
  TopoLune(lune, lune.LuneAD, lune.LuneDecl, 47.5F, -5.17F, "");
  EXPECT_EQ(lune.LuneTexteAD.find(" h "), 2U) << lune.LuneTexteAD;
}

/// A Moon far enough off that its parallax does not matter, on the equator of date at a right ascension.
Lune LuneLointaine(double ad, double dec) {
  Lune lune = LuneA(2000, 1, 1, 6);
  lune.LuneObliquite = 0;
  lune.LuneParallaxe = 1.0E-12;
  lune.LuneLongitude = ad * 0.017453292;
  lune.LuneLatitude = dec * 0.017453292;
  return lune;
}

/// Turns a far Moon bit by bit until its hour angle is exactly zero for the place; false when no bit does it.
bool MetAuMeridien(Lune &lune, float latitude, float longitude) {
  const double S = SideralALaMain(lune.LuneJD, longitude);
  lune.LuneLongitude = S * 0.017453292;
  for (int i = 0; i < 64; ++i) {
    lune.LuneLongitude = std::nextafter(lune.LuneLongitude, 0.0);
  }
  for (int i = 0; i < 128; ++i) {
    Lune essai = lune;
    Observe(essai, latitude, longitude);
    if (essai.LuneAD * 15 == S) {
      return true;
    }
    lune.LuneLongitude = std::nextafter(lune.LuneLongitude, 7.0);
  }
  return false;
}

TEST(MoonsAzimuth, ExactlyOnTheMeridianIsReckonedAsWestOfIt) {
  int trouves = 0;
  for (float longitude = -170; longitude < 170; longitude += 10) {
    Lune lune = LuneLointaine(0, 60);
    if (!MetAuMeridien(lune, 20.0F, longitude)) {
      continue;
    }
    ++trouves;
    Observe(lune, 20.0F, longitude);
    // North of the zenith the arc is 0, or the arc cosine fails and stands for 57238.5 degrees: 360 less either.
    EXPECT_TRUE(std::fabs(lune.LuneAzimut - 360.0F) < 0.01F || std::fabs(lune.LuneAzimut + 56878.47F) < 1.0F)
        << lune.LuneAzimut;
  }
  EXPECT_GE(trouves, 3);
}

TEST(MoonsAzimuth, AtAnHourAngleOf180TheShortRadianStillHasItWest) {
  // 180 degrees times the short radian is a little less than pi, so the sine is still positive there.
  Lune lune = LuneLointaine(0, 80);
  const double S = SideralALaMain(lune.LuneJD, 0);
  const auto azimut = [&](double H) {
    Lune essai = lune;
    essai.LuneLongitude = (S - H) * 0.017453292;
    Observe(essai, 60.0F, 0);
    return essai.LuneAzimut;
  };
  EXPECT_GT(azimut(179.0), 350.0F);
  EXPECT_LT(azimut(181.0), 10.0F);
  const float passe = azimut(180.000003);
  EXPECT_TRUE(passe > 359.9F || passe < -56000.0F) << passe;
}

TEST(MoonsAzimuth, GoesFromNorthThroughEast) {
  Lune lune = LuneLointaine(0, 0);
  const double S = SideralALaMain(lune.LuneJD, 0);
  const auto azimut = [&](double H) {
    Lune essai = lune;
    essai.LuneLongitude = (S - H) * 0.017453292;
    Observe(essai, 45.0F, 0);
    return essai.LuneAzimut;
  };
  EXPECT_NEAR(azimut(-90), 90, 1E-3) << "rising";
  EXPECT_NEAR(azimut(90), 270, 1E-3) << "setting";
  EXPECT_NEAR(azimut(-45), 180 - std::atan2(1, std::sin(M_PI / 4)) * 180 / M_PI, 1E-3);
}

TEST(MoonFromAPlaceFailures, AtThePoleTheAzimuthFailsOnlyWhereTheCosineIsExactlyZero) {
  // The short radian leaves a cosine at the pole: an azimuth comes out.
  Lune lune = LuneA(2024, 5, 3, 4);
  EXPECT_EQ(essais::NumeroErreur([&] { Observe(lune, 90.0F, 0); }), 0);
}

TEST(MoonFromAPlaceFailures, AMoonWithoutParallaxIsADivisionByZeroAfterItsDisc) {
  Lune lune = LuneA(2024, 5, 3, 4);
  lune.LuneParallaxe = 0;
  lune.LuneDemiDiametre = 5;
  lune.LuneTexteAD = "avant";
  EXPECT_EQ(essais::NumeroErreur([&] { Observe(lune, 48.0F, 0); }), 11);
  EXPECT_EQ(lune.LuneDemiDiametre, 0.0F);
  EXPECT_EQ(lune.LuneTexteAD, "avant");
}

TEST(MoonFromAPlaceFailures, APlaceBeyondNumbersIsAnOverflow) {
  Lune lune = LuneA(2024, 5, 3, 4);
  const float infini = std::numeric_limits<float>::infinity();
  EXPECT_EQ(essais::NumeroErreur([&] { Observe(lune, 48.0F, infini); }), 6);
  EXPECT_EQ(essais::NumeroErreur([&] { Observe(lune, infini, 0); }), 6);
}

} // namespace
} // namespace velmaris

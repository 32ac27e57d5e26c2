#include "foundations/CelHor.hpp"
#include "tests/ephemerides/LuneJuges.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using namespace essais;

/// Greatest and mean square differences of a figure.
struct Ecarts {
  double pire = 0, carres = 0, somme = 0;
  int nombre = 0;
  void Ajoute(double x) {
    pire = std::max(pire, std::fabs(x));
    carres += x * x;
    somme += x;
    ++nombre;
  }
  double quadratique() const { return std::sqrt(carres / nombre); }
  double moyen() const { return somme / nombre; }
};

double Tour(double radians) { return std::remainder(radians, 2 * M_PI); }

/// Longitude without its nutation, radians.
double LongitudeMoyenne(const Lune &lune) {
  double dpsi = 0;
  double deps = 0;
  eraNut80(ERFA_DJ00, lune.LuneJD - ERFA_DJ00, &dpsi, &deps);
  return lune.LuneLongitude - dpsi;
}

TEST(MoonAgainstTheWholeTheory, DiffersByLightTimeAndTheDroppedPlanets) {
  Ecarts longitude;
  Ecarts latitude;
  Ecarts distance;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    const LuneJuge juge = LuneEntiere(lune.LuneJD);
    longitude.Ajoute(Tour(LongitudeMoyenne(lune) - juge.longitude) * kSecondes);
    latitude.Ajoute((lune.LuneLatitude - juge.latitude) * kSecondes);
    distance.Ajoute(lune.LuneDistance - juge.distance);
  }
  EXPECT_LT(longitude.pire, 6.0);
  EXPECT_LT(longitude.quadratique(), 1.5);
  EXPECT_NEAR(longitude.moyen(), -0.7, 0.2) << "the mean longitude holds the light's time, 0.70 second of arc";
  EXPECT_LT(latitude.pire, 2.0);
  EXPECT_LT(latitude.quadratique(), 1.1);
  EXPECT_LT(distance.pire, 4.0);
  EXPECT_LT(distance.quadratique(), 1.5);
}

TEST(MoonAgainstTheShortenedTheory, LiesWithinThatTheorysOwnError) {
  Ecarts longitude;
  Ecarts latitude;
  Ecarts distance;
  Ecarts place;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    const LuneJuge juge = LuneErfa(lune.LuneJD);
    longitude.Ajoute(Tour(LongitudeMoyenne(lune) - juge.longitude) * kSecondes);
    latitude.Ajoute((lune.LuneLatitude - juge.latitude) * kSecondes);
    distance.Ajoute(lune.LuneDistance - juge.distance);
    place.Ajoute(eraSeps(lune.LuneAD * M_PI / 12, lune.LuneDecl * M_PI / 180, juge.ad, juge.decl) * kSecondes);
  }
  EXPECT_LT(longitude.pire, 10.5);
  EXPECT_LT(longitude.quadratique(), 3.0);
  EXPECT_LT(latitude.pire, 3.2);
  EXPECT_LT(distance.pire, 9.0);
  EXPECT_LT(place.pire, 10.5) << "right ascension and declination, nutation included";
}

TEST(MoonAgainstTheWholeTheory, TheLatitudeLacksTheTermOfThePlanetsInTheMeanLongitude) {
  // 1.375 seconds of arc times the sine of 313.45 + 481266.484 T: with it the latitude comes twice as near.
  Ecarts sans;
  Ecarts avec;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const Lune lune = LuneDe(annee);
    const double T = (lune.LuneJD - 2451545.0) / 36525;
    const double ecart = (lune.LuneLatitude - LuneEntiere(lune.LuneJD).latitude) * kSecondes;
    sans.Ajoute(ecart);
    avec.Ajoute(ecart + 1.375 * std::sin((313.45 + 481266.484 * T) * M_PI / 180));
  }
  EXPECT_GT(sans.quadratique(), 0.9);
  EXPECT_LT(avec.quadratique(), 0.5);
}

TEST(MoonsTimeScale, UniversalTimeServesAsDynamicalTime) {
  // Atomic time, 32.184 seconds off dynamical time, was 37 seconds ahead of UTC from 2017 on.
  const double retard = (32.184 + 37) / 86400;
  for (int mois = 1; mois <= 12; ++mois) {
    const Lune lune = LuneA(2020, mois, 11, 5);
    const double vraie = LuneEntiere(lune.LuneJD + retard).longitude;
    const double prise = LuneEntiere(lune.LuneJD).longitude;
    const double trop = Tour(vraie - LongitudeMoyenne(lune)) * kSecondes;
    EXPECT_NEAR(trop, Tour(vraie - prise) * kSecondes, 6.0);
    EXPECT_GT(trop, 29) << "0.49 to 0.64 second of arc a second of time";
    EXPECT_LT(trop, 46);
  }
}

/// The place that an observer sees, from the geocentric one in the record, radians.
void Topocentrique(const Lune &lune, double jdSideral, const double observateur[3], double &ad, double &decl) {
  double geo[3];
  eraS2p(lune.LuneAD * M_PI / 12, lune.LuneDecl * M_PI / 180, lune.LuneDistance, geo);
  double rotation[3][3];
  eraIr(rotation);
  eraRz(-jdSideral, rotation);
  double ici[3] = {observateur[0], observateur[1], observateur[2]};
  double celeste[3];
  eraRxp(rotation, ici, celeste);
  double vu[3];
  eraPmp(geo, celeste, vu);
  eraC2s(vu, &ad, &decl);
}

TEST(MoonFromASphere, IsThePlaceOfTheVectorsLessARotationOf32Bits) {
  Ecarts place;
  Ecarts horizon;
  for (int annee = 1900; annee <= 2100; ++annee) {
    Lune lune = LuneDe(annee);
    const auto latitude = static_cast<float>(-80.3 + 0.8 * (annee - 1900));
    const auto longitude = static_cast<float>(std::remainder(37.7 * annee, 360.0));
    const double theta = eraGmst82(ERFA_DJ00, lune.LuneJD - ERFA_DJ00) + longitude * M_PI / 180;
    double observateur[3];
    eraS2p(longitude * M_PI / 180, latitude * M_PI / 180, 6378.136, observateur);
    double ad = 0;
    double decl = 0;
    Topocentrique(lune, theta - longitude * M_PI / 180, observateur, ad, decl);
    TopoLune(lune, lune.LuneAD, lune.LuneDecl, latitude, longitude, "");
    place.Ajoute(eraSeps(ad, decl, lune.LuneAD * M_PI / 12, lune.LuneDecl * M_PI / 180) * kSecondes);
    double az = 0;
    double el = 0;
    eraHd2ae(theta - ad, decl, latitude * M_PI / 180, &az, &el);
    horizon.Ajoute(eraSeps(az, el, lune.LuneAzimut * M_PI / 180, lune.LuneHauteur * M_PI / 180) * kSecondes);
  }
  // The sine in place of the arc sine in the parallax, 0.31 second of arc; sidereal time in 32 bits, 0.05 through the
  // parallax; a right ascension of a whole turn in short radians, 0.04.
  EXPECT_LT(place.pire, 0.45);
  EXPECT_LT(horizon.pire, 0.5) << "and an azimuth in 32 bits, hour angle and declination in short radians";
}

TEST(MoonFromASphere, TheFlatteningOfTheEarthIsLeftOut) {
  Ecarts place;
  for (int annee = 1900; annee <= 2100; ++annee) {
    Lune lune = LuneDe(annee);
    const auto latitude = static_cast<float>(-80.3 + 0.8 * (annee - 1900));
    const auto longitude = static_cast<float>(std::remainder(37.7 * annee, 360.0));
    double observateur[3];
    ASSERT_EQ(eraGd2gc(ERFA_WGS84, longitude * M_PI / 180, latitude * M_PI / 180, 0, observateur), 0);
    for (double &x : observateur) {
      x /= 1000;
    }
    double ad = 0;
    double decl = 0;
    Topocentrique(lune, eraGmst82(ERFA_DJ00, lune.LuneJD - ERFA_DJ00), observateur, ad, decl);
    TopoLune(lune, lune.LuneAD, lune.LuneDecl, latitude, longitude, "");
    place.Ajoute(eraSeps(ad, decl, lune.LuneAD * M_PI / 12, lune.LuneDecl * M_PI / 180) * kSecondes);
  }
  // 21.4 km between the radii, seen from the distance of the Moon: 12 seconds of arc at most, and a little aslant.
  EXPECT_GT(place.pire, 8.0);
  EXPECT_LT(place.pire, 14.0);
}

TEST(MoonFromASphere, TheSiderealTimeIsTheMeanOneBesideAnApparentPlace) {
  Ecarts equation;
  for (int annee = 1900; annee <= 2100; ++annee) {
    const double t = LuneDe(annee).LuneJD - ERFA_DJ00;
    equation.Ajoute(Tour(eraGst94(ERFA_DJ00, t) - eraGmst82(ERFA_DJ00, t)) * kSecondes);
  }
  EXPECT_GT(equation.pire, 14.0);
  EXPECT_LT(equation.pire, 18.0);
}

TEST(MoonsObliquity, IsTheTrueOneOfTheSameTheory) {
  for (int annee = 1900; annee <= 2100; annee += 4) {
    const Lune lune = LuneDe(annee);
    const double t = lune.LuneJD - ERFA_DJ00;
    double dpsi = 0;
    double deps = 0;
    eraNut80(ERFA_DJ00, t, &dpsi, &deps);
    EXPECT_NEAR((lune.LuneObliquite - eraObl80(ERFA_DJ00, t) - deps) * kSecondes, 0, 0.0015) << annee;
  }
}

} // namespace
} // namespace velmaris

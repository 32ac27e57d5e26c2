#include "OutilsCiel.hpp"

#include "complements/ciel/Cosinus.hpp"

#include <gtest/gtest.h>
#include <libnova/libnova.h>

#include <array>
#include <cmath>
#include <thread>

namespace velmaris {
namespace {

using essais::CielTT;
using essais::Ecart;
using essais::JoursAuHasard;
using essais::RaisonDe;

constexpr std::size_t kToutes = 1U << 20U;
constexpr double kJoursLumiere = ERFA_AULT / ERFA_DAYSEC;

constexpr std::array kSysteme{GenreAstre::Soleil, GenreAstre::Lune,    GenreAstre::Venus,
                              GenreAstre::Mars,   GenreAstre::Jupiter, GenreAstre::Saturne};

double Sexa(double a, double b, double c) { return a + b / 60 + c / 3600; }

TEST(PlacesPubliees, TheSunOfAPrintedExample) {
  // 1992 October 13, 0 h TD, from the whole series (Meeus, Astronomical Algorithms, example 25.b).
  const PlaceGeocentrique soleil = PlaceDe(CielTT(2448908.5), {GenreAstre::Soleil});
  EXPECT_LT(Ecart(soleil.ascension, soleil.declinaison, Sexa(13, 13, 30.749) * 15, -Sexa(7, 47, 1.74)), 0.3);
  EXPECT_NEAR(soleil.distance, 0.99760853, 2E-7);
}

TEST(PlacesPubliees, VenusOfAPrintedExample) {
  // 1992 December 20, 0 h TD, from the whole series (example 33.a).
  const PlaceGeocentrique venus = PlaceDe(CielTT(2448976.5), {GenreAstre::Venus});
  EXPECT_LT(Ecart(venus.ascension, venus.declinaison, Sexa(21, 4, 41.454) * 15, -Sexa(18, 53, 16.84)), 0.3);
  EXPECT_NEAR(venus.distance, 0.910947, 2E-6);
}

TEST(PlacesPubliees, TheMoonOfAPrintedExample) {
  // 1992 April 12, 0 h TD, by a short form of the theory good for 10" (example 47.a).
  const PlaceGeocentrique lune = PlaceDe(CielTT(2448724.5), {GenreAstre::Lune});
  EXPECT_LT(Ecart(lune.ascension, lune.declinaison, 134.688470, 13.768368), 10);
  EXPECT_NEAR(lune.distance * ERFA_DAU / 1E3, 368409.7, 20);
  EXPECT_NEAR(lune.parallaxe, 0.991990 * 60, 0.005);
}

/// A body's place by a road of our own from ERFA's ready-made parts: no routine of the program is in it.
struct Juge {
  double ascension, declinaison; ///< degrees
};

Juge JugeDeDirection(double jd, Vecteur3 p, double helio[2][3], double bary[2][3]) {
  Vecteur3 v = Fois(kJoursLumiere, {bary[1][0], bary[1][1], bary[1][2]});
  Vecteur3 direction = Unitaire(p);
  Vecteur3 vue{};
  eraAb(direction.data(), v.data(), eraPm(helio[0]), std::sqrt(1 - Scalaire(v, v)), vue.data());
  double matrice[3][3];
  eraPnm06a(jd, 0, matrice);
  eraRxp(matrice, vue.data(), vue.data());
  double ad = 0;
  double dec = 0;
  eraC2s(vue.data(), &ad, &dec);
  return {eraAnp(ad) * ERFA_DR2D, dec * ERFA_DR2D};
}

TEST(Places, TheSunIsWhereTheEarthOfErfaSeesIt) {
  for (const double jd : JoursAuHasard(200, 1900, 2100)) {
    double helio[2][3];
    double bary[2][3];
    eraEpv00(jd, 0, helio, bary);
    const Juge juge = JugeDeDirection(jd, {-helio[0][0], -helio[0][1], -helio[0][2]}, helio, bary);
    const PlaceGeocentrique soleil = PlaceDe(CielTT(jd), {GenreAstre::Soleil});
    EXPECT_LT(Ecart(soleil.ascension, soleil.declinaison, juge.ascension, juge.declinaison), 0.06) << jd;
  }
}

TEST(Places, TheMoonIsWhereTheWholeTheoryHasIt) {
  for (const double jd : JoursAuHasard(60, 1900, 2100)) {
    // Light time, then the ecliptic of J2000, the mean equator of 1976 and the frame of today.
    ln_rect_posn p{};
    ln_get_lunar_geo_posn(jd - 384400.0 / 299792.458 / ERFA_DAYSEC, &p, 0);
    Vecteur3 lune{p.X, p.Y, p.Z};
    double matrice[3][3];
    eraIr(matrice);
    eraRx(-84381.409 * ERFA_DAS2R, matrice);
    eraRxp(matrice, lune.data(), lune.data());
    eraPnm06a(jd, 0, matrice);
    eraRxp(matrice, lune.data(), lune.data());
    double ad = 0;
    double dec = 0;
    eraC2s(lune.data(), &ad, &dec);
    const PlaceGeocentrique notre = PlaceDe(CielTT(jd), {GenreAstre::Lune});
    EXPECT_LT(Ecart(notre.ascension, notre.declinaison, eraAnp(ad) * ERFA_DR2D, dec * ERFA_DR2D), 0.3) << jd;
  }
}

TEST(Places, StarsAreWhereErfaSeesThem) {
  for (const double jd : JoursAuHasard(20, 1900, 2100)) {
    const CielDuMoment ciel = CielTT(jd);
    for (int rang = 1; rang <= 246; ++rang) {
      const auto &e = kEtoilesIcrs[static_cast<std::size_t>(rang) - 1];
      if (!e) {
        continue;
      }
      const double mas = ERFA_DAS2R / 1000;
      const double dec = e->dec * ERFA_DD2R;
      double ri = 0;
      double di = 0;
      double eo = 0;
      eraAtci13(e->ad * ERFA_DD2R, dec, e->muAd * mas / std::cos(dec), e->muDec * mas, e->parallaxe / 1000, 0, jd, 0,
                &ri, &di, &eo);
      const PlaceGeocentrique notre = PlaceDe(ciel, {GenreAstre::Etoile, rang});
      EXPECT_LT(Ecart(notre.ascension, notre.declinaison, eraAnp(ri - eo) * ERFA_DR2D, di * ERFA_DR2D), 0.02)
          << rang << " " << jd;
    }
  }
}

struct Planete {
  GenreAstre genre;
  const SeriesCiel *series;
};
constexpr std::array kPlanetes{Planete{GenreAstre::Venus, &kCielVenus}, Planete{GenreAstre::Mars, &kCielMars},
                               Planete{GenreAstre::Jupiter, &kCielJupiter},
                               Planete{GenreAstre::Saturne, &kCielSaturne}};

double Coordonnee(const CoordonneeCiel &coordonnee, double t) {
  double somme = 0;
  for (std::size_t p = coordonnee.size(); p-- > 0;) {
    somme = somme * t + SommeCosinus(coordonnee[p], t, kToutes, Voie::Une);
  }
  return somme;
}

/// A planet from the Sun, ecliptic and equinox of its date: the series as they are.
Vecteur3 DeLaDate(const SeriesCiel &series, double jd) {
  const double t = (jd - ERFA_DJ00) / ERFA_DJM;
  Vecteur3 v{};
  eraS2p(Coordonnee(series.L, t), Coordonnee(series.B, t), Coordonnee(series.R, t), v.data());
  return v;
}

/// The road of date: planet and Earth go back by the light time together, on the ecliptic of that date, the equinox is
/// brought forward, then the turn to FK5 and the nutation. What today's precession lies off that of 1976 is put on.
Juge RouteDeLaDate(const SeriesCiel &series, double jd) {
  const auto geocentre = [&](double planete, double terre) {
    return Ajoute(DeLaDate(series, planete), -1, DeLaDate(kCielTerre, terre));
  };
  double trajet = Longueur(geocentre(jd, jd)) * kJoursLumiere;
  trajet = Longueur(geocentre(jd - trajet, jd)) * kJoursLumiere;
  Vecteur3 v = geocentre(jd - trajet, jd - trajet);
  double longitude = 0;
  double latitude = 0;
  eraC2s(v.data(), &longitude, &latitude);
  double dpsi = 0;
  double deps = 0;
  eraNut06a(jd, 0, &dpsi, &deps);
  double corPsi = 0;
  double corEps = 0;
  eraPr00(jd, 0, &corPsi, &corEps);
  const double precession = 50.29 * trajet / 365.25;
  constexpr double fk5 = -0.09033;
  eraS2c(longitude + dpsi + corPsi + (precession + fk5) * ERFA_DAS2R, latitude, v.data());
  double matrice[3][3];
  eraIr(matrice);
  eraRx(-(eraObl80(jd, 0) + corEps + deps), matrice);
  eraRxp(matrice, v.data(), v.data());
  double ad = 0;
  double dec = 0;
  eraC2s(v.data(), &ad, &dec);
  return {eraAnp(ad) * ERFA_DR2D, dec * ERFA_DR2D};
}

TEST(Places, TwoRoadsOfDateAndIcrsAgreeToATenth) {
  for (const Planete &planete : kPlanetes) {
    for (const double jd : JoursAuHasard(100, 1995, 2030)) {
      const Juge juge = RouteDeLaDate(*planete.series, jd);
      const PlaceGeocentrique notre = PlaceDe(CielTT(jd), {planete.genre});
      const PlaceGeocentrique soleil = PlaceDe(CielTT(jd), {GenreAstre::Soleil});
      const double elongation = Ecart(notre.ascension, notre.declinaison, soleil.ascension, soleil.declinaison);
      // The road of date knows nothing of how the Sun bends light: 0.004" over the tangent of half the elongation.
      const double devie = 0.00408 / std::tan(elongation * ERFA_DAS2R / 2);
      EXPECT_LT(Ecart(notre.ascension, notre.declinaison, juge.ascension, juge.declinaison), 0.1 + devie)
          << static_cast<int>(planete.genre) << " " << jd;
    }
  }
}

TEST(Places, HourAnglesCountFromTheEquinoxOfTheDate) {
  for (const double jd : JoursAuHasard(50, 1900, 2100)) {
    const CielDuMoment ciel = CielTT(jd);
    const double juge = eraGst06a(ciel.ut1.jour, ciel.ut1.fraction, jd, 0) * ERFA_DR2D;
    EXPECT_NEAR(std::remainder(PlaceDe(ciel, {GenreAstre::Belier}).gha - juge, 360), 0, 0.02 / 3600);
    const PlaceGeocentrique lune = PlaceDe(ciel, {GenreAstre::Lune});
    EXPECT_NEAR(std::remainder(lune.gha + lune.ascension - ciel.tempsSideral, 360), 0, 1E-9);
  }
}

TEST(Places, SemidiametersAndParallaxesAreThoseOfTheAlmanacs) {
  const CielDuMoment ciel = CielTT(2461213);
  for (const GenreAstre genre : kSysteme) {
    const PlaceGeocentrique p = PlaceDe(ciel, {genre});
    EXPECT_NEAR(p.parallaxe * 60, 8.794143 / p.distance, 8.794143 / p.distance * 1.5E-4) << static_cast<int>(genre);
  }
  const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil});
  EXPECT_NEAR(soleil.demiDiametre * 60, 959.63 / soleil.distance, 0.03);
  const PlaceGeocentrique lune = PlaceDe(ciel, {GenreAstre::Lune});
  EXPECT_NEAR(lune.demiDiametre, 0.2725 * lune.parallaxe, 0.001);
  EXPECT_EQ(PlaceDe(ciel, {GenreAstre::Etoile, 10}).demiDiametre, 0);
  EXPECT_EQ(PlaceDe(ciel, {GenreAstre::Etoile, 10}).parallaxe, 0);
}

TEST(Places, ANovaWithoutAPlaceIsRefusedByName) {
  const CielDuMoment ciel = CielTT(2461213);
  const auto raison = [&](int rang) { return RaisonDe([&] { PlaceDe(ciel, {GenreAstre::Etoile, rang}); }); };
  EXPECT_EQ(raison(kRangSansPlace), RaisonRefus::EtoileSansPlace);
  EXPECT_EQ(raison(0), RaisonRefus::RangInconnu);
  EXPECT_EQ(raison(247), RaisonRefus::RangInconnu);
  for (int rang = 1; rang <= 246; ++rang) {
    EXPECT_EQ(raison(rang).has_value(), rang == kRangSansPlace) << rang;
  }
}

TEST(Places, AMomentOutsideTheKnownYearsIsRefused) {
  EXPECT_EQ(RaisonDe([] { CielTT(2378490); }), RaisonRefus::AnneeHorsLimites);
  EXPECT_EQ(RaisonDe([] { CielTT(2524600); }), RaisonRefus::AnneeHorsLimites);
  EXPECT_EQ(RaisonDe([] { CielTT(std::nan("")); }), RaisonRefus::AnneeHorsLimites);
}

TEST(Places, ThreadsThatShareASkySeeTheSamePlaces) {
  const CielDuMoment ciel = CielTT(2461213.3);
  std::array<std::vector<double>, 4> vues;
  const auto travail = [&](std::size_t i) {
    for (int tour = 0; tour < 50; ++tour) {
      for (const GenreAstre genre : kSysteme) {
        vues[i].push_back(PlaceDe(ciel, {genre}).gha);
      }
      vues[i].push_back(PlaceDe(ciel, {GenreAstre::Etoile, 1 + tour}).gha);
    }
  };
  std::vector<std::thread> fils;
  for (std::size_t i = 0; i < vues.size(); ++i) {
    fils.emplace_back(travail, i);
  }
  for (std::thread &f : fils) {
    f.join();
  }
  for (const auto &vue : vues) {
    EXPECT_EQ(vue, vues[0]);
  }
}

} // namespace
} // namespace velmaris

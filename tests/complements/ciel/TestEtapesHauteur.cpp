#include "OutilsCiel.hpp"

#include "complements/ciel/EtapesHauteur.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace velmaris {
namespace {

using essais::CielTT;

constexpr Station kBrest{48.38, -4.49, 3};

PlaceGeocentrique Place(GenreAstre genre, int rang = 0) { return PlaceDe(CielTT(2461213.0), {genre, rang}); }

TEST(HauteurObservee, DipIsThatOfTheAlmanac) {
  EXPECT_NEAR(Depression(25), 8.8, 1E-12);
  EXPECT_NEAR(Depression(4), 3.52, 1E-12);
  EXPECT_EQ(Depression(0), 0);
  EXPECT_EQ(Depression(-3), 0);
}

TEST(HauteurObservee, ANearShoreLiesLowerThanTheHorizonAndMeetsItWhereItsDistanceDoes) {
  // Printed table: 10 feet of eye and a mile give 6.1', 100 feet and 2 miles 29.1'.
  EXPECT_NEAR(DepressionCourte(3.048, 1), 6.1, 0.05);
  EXPECT_NEAR(DepressionCourte(30.48, 2), 29.1, 0.05);
  const double horizon = 1.17 * std::sqrt(3.048 / 0.3048);
  EXPECT_NEAR(DepressionCourte(3.048, horizon - 1E-9), Depression(3.048), 0.05);
  EXPECT_EQ(DepressionCourte(3.048, 12), Depression(3.048));
  EXPECT_EQ(DepressionCourte(3.048, 0), Depression(3.048));
  EXPECT_EQ(DepressionCourte(0, 1), 0);
}

TEST(HauteurObservee, RefractionIsThatOfAnotherModelOfTheAir) {
  double a = 0;
  double b = 0;
  eraRefco(1010, 10, 0, 0.55, &a, &b);
  for (double h = 15; h <= 90; h += 5) {
    const double tz = std::tan((90 - h) * ERFA_DD2R);
    // The almanac's closed form is good to a tenth of a minute.
    EXPECT_NEAR(Refraction(h, 1010, 10), (a * tz + b * tz * tz * tz) * ERFA_DR2D * 60, 0.09) << h;
  }
  // At the horizon 34' are handed down from almanac to almanac.
  EXPECT_NEAR(Refraction(0, 1010, 10), 34, 0.6);
}

TEST(HauteurObservee, RefractionGrowsWithPressureAndFallsWithTemperature) {
  const double normale = Refraction(15, 1010, 10);
  EXPECT_NEAR(Refraction(15, 980, 10) / normale, 980.0 / 1010, 1E-12);
  EXPECT_NEAR(Refraction(15, 1010, 35) / normale, 283.0 / 308, 1E-12);
}

TEST(HauteurObservee, UnderTheHorizonRefractionStaysFinite) {
  for (const double h : {-1.0, -4.32, -5.0, -90.0}) {
    EXPECT_EQ(Refraction(h, 1010, 10), Refraction(-1, 1010, 10)) << h;
  }
  EXPECT_GE(Refraction(95, 1010, 10), 0);
}

TEST(HauteurObservee, EveryStepIsKeptInItsOrder) {
  LectureSextant lecture;
  lecture.lecture = 35.5;
  lecture.collimation = -1.5;
  lecture.hauteurOeil = 4;
  lecture.contact = Contact::Inferieur;
  const PlaceGeocentrique soleil = Place(GenreAstre::Soleil);
  const EtapesHauteur e = CorrigeLecture(lecture, soleil, kBrest);
  EXPECT_EQ(e.lecture, 35.5);
  EXPECT_NEAR(e.corrigee, 35.5 - 1.5 / 60, 1E-12);
  EXPECT_NEAR(e.apparente, e.corrigee - 3.52 / 60, 1E-12);
  EXPECT_EQ(e.refraction, Refraction(e.apparente, 1010, 10));
  EXPECT_NEAR(e.topocentrique, e.apparente - e.refraction / 60 + e.demiDiametre / 60, 1E-12);
  EXPECT_NEAR(e.observee, e.topocentrique + e.parallaxe / 60, 1E-12);
  EXPECT_NEAR(e.demiDiametre, soleil.demiDiametre, 0.001);
  EXPECT_NEAR(e.parallaxe, soleil.parallaxe * std::cos(e.topocentrique * ERFA_DD2R), 0.006);
}

TEST(HauteurObservee, AnArtificialHorizonHalvesTheAngleWithItsCorrectionsAndHasNoDip) {
  LectureSextant lecture;
  lecture.lecture = 80.2;
  lecture.collimation = 3;
  lecture.hauteurOeil = 25;
  lecture.horizonArtificiel = true;
  const EtapesHauteur e = CorrigeLecture(lecture, Place(GenreAstre::Etoile, 10), kBrest);
  EXPECT_NEAR(e.corrigee, 40.1 + 1.5 / 60, 1E-12);
  EXPECT_EQ(e.depression, 0);
  EXPECT_EQ(e.apparente, e.corrigee);
}

TEST(HauteurObservee, TheArcsErrorsAreTakenBetweenTheirRows) {
  constexpr std::array kArc{ErreurArc{0, 0.2}, ErreurArc{60, -0.4}, ErreurArc{120, 0.8}};
  const auto erreur = [&](double degres) {
    LectureSextant lecture;
    lecture.lecture = degres;
    lecture.erreursArc = kArc;
    return CorrigeLecture(lecture, Place(GenreAstre::Etoile, 10), kBrest).erreurArc;
  };
  EXPECT_NEAR(erreur(0), 0.2, 1E-12);
  EXPECT_NEAR(erreur(30), -0.1, 1E-12);
  EXPECT_NEAR(erreur(60), -0.4, 1E-12);
  EXPECT_NEAR(erreur(90), 0.2, 1E-12);
  EXPECT_EQ(erreur(-3), 0.2) << "before the first row";
  EXPECT_EQ(erreur(140), 0.8) << "after the last";
  LectureSextant sans;
  EXPECT_EQ(CorrigeLecture(sans, Place(GenreAstre::Etoile, 10), kBrest).erreurArc, 0);
}

TEST(HauteurObservee, TheTwoLimbsOfTheMoonLieItsAugmentedDiameterApart) {
  const PlaceGeocentrique lune = Place(GenreAstre::Lune);
  LectureSextant lecture;
  lecture.lecture = 60;
  lecture.contact = Contact::Inferieur;
  const EtapesHauteur bas = CorrigeLecture(lecture, lune, kBrest);
  lecture.contact = Contact::Superieur;
  const EtapesHauteur haut = CorrigeLecture(lecture, lune, kBrest);
  lecture.contact = Contact::Centre;
  const EtapesHauteur centre = CorrigeLecture(lecture, lune, kBrest);
  EXPECT_EQ(centre.demiDiametre, 0);
  EXPECT_NEAR(bas.demiDiametre, -haut.demiDiametre, 0.01);
  // At 60 degrees it is nearer by the sine's part of the Earth's radius.
  const double augmente = lune.demiDiametre * (1 + std::sin(60 * ERFA_DD2R) * lune.parallaxe / 60 * ERFA_DD2R);
  EXPECT_NEAR(bas.demiDiametre, augmente, 0.02);
  EXPECT_EQ(CorrigeLecture({.lecture = 60, .contact = Contact::Inferieur}, Place(GenreAstre::Etoile, 10), kBrest)
                .demiDiametre,
            0);
}

/// The reading that a perfect sextant would show, found by bisection over the way back.
double LectureVraie(LectureSextant lecture, const PlaceGeocentrique &place, const Station &station, double cherchee) {
  double bas = -2;
  double haut = 92;
  for (int i = 0; i < 60; ++i) {
    lecture.lecture = (bas + haut) / 2;
    (CorrigeLecture(lecture, place, station).topocentrique < cherchee ? bas : haut) = lecture.lecture;
  }
  return (bas + haut) / 2;
}

TEST(HauteurObservee, AReadingTakenAtThePlaceItselfHasNoIntercept) {
  const CielDuMoment ciel = CielTT(2461213.9);
  int vues = 0;
  for (double lat = -80; lat <= 80; lat += 20) {
    for (double lon = -180; lon < 180; lon += 30) {
      for (const Astre &astre : {Astre{GenreAstre::Lune}, Astre{GenreAstre::Soleil}, Astre{GenreAstre::Etoile, 10}}) {
        const Station station{lat, lon, 3};
        const PlaceGeocentrique place = PlaceDe(ciel, astre);
        const PlaceTopocentrique vue = VueDe(place, station);
        if (vue.hauteur < 3) {
          continue;
        }
        ++vues;
        LectureSextant lecture{.collimation = 0.7, .hauteurOeil = 3, .contact = Contact::Inferieur};
        lecture.lecture = LectureVraie(lecture, place, station, vue.hauteur);
        const EtapesHauteur e = CorrigeLecture(lecture, place, station);
        EXPECT_NEAR((e.observee - vue.hauteurCentre) * 60, 0, 1E-4) << lat << " " << lon;
        EXPECT_NEAR(e.demiDiametre, vue.demiDiametre, 1E-4) << lat << " " << lon;
      }
    }
  }
  EXPECT_GT(vues, 80);
}

TEST(HauteurObservee, AFlattenedEarthTakesUpToATenthOfAMinuteFromTheMoonsParallax) {
  const PlaceGeocentrique lune = Place(GenreAstre::Lune);
  double plusGrand = 0;
  for (double lat = -85; lat <= 85; lat += 5) {
    for (double lon = -180; lon < 180; lon += 20) {
      const PlaceTopocentrique vue = VueDe(lune, {lat, lon, 0});
      if (vue.hauteur < 10) {
        continue;
      }
      const double spherique = std::asin(std::sin(lune.parallaxe / 60 * ERFA_DD2R) * std::cos(vue.hauteur * ERFA_DD2R));
      plusGrand = std::max(plusGrand, std::fabs((vue.hauteurCentre - vue.hauteur) - spherique * ERFA_DR2D) * 60);
    }
  }
  EXPECT_GT(plusGrand, 0.08);
  EXPECT_LT(plusGrand, 0.25);
}

} // namespace
} // namespace velmaris

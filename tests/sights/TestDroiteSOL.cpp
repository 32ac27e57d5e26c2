#include "sights/DroiteSOL.hpp"

#include "foundations/Angles.hpp"
#include "tests/OutilsTests.hpp"
#include "tests/sights/SecondCalculSoleil.hpp"
#include "tests/sights/SoleilErfa.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

namespace velmaris {
namespace {

using essais::DroiteSoleil;
using essais::ReduitALaMain;
using essais::ViseeSoleil;

std::string Texte(double x) {
  char tampon[64];
  std::snprintf(tampon, sizeof tampon, "%.15G", x);
  return tampon;
}

std::string AvecVirgule(float x) {
  char tampon[64];
  std::snprintf(tampon, sizeof tampon, "%.7G", double{x});
  std::string texte = tampon;
  const std::size_t point = texte.find('.');
  return point == std::string::npos ? texte : texte.replace(point, 1, ",");
}

/// The fields that hold a sight worked by hand.
Observation Champs(const ViseeSoleil &v) {
  Observation o;
  o.jour = Texte(v.jour);
  o.mois = Texte(v.mois);
  o.annee = Texte(v.annee);
  o.lectureDegres = Texte(v.degres);
  o.lectureMinutes = Texte(v.minutes);
  o.lectureFraction = Texte(v.fraction);
  o.fraction = v.centiemes ? Fraction::Centiemes : Fraction::Secondes;
  o.hauteurOeil = AvecVirgule(v.oeil);
  o.collimation = AvecVirgule(v.collimation);
  o.bord = static_cast<Bord>(v.bord);
  o.horizon = v.artificiel ? Horizon::Artificiel : Horizon::Naturel;
  return o;
}

ValeursVisee Valeurs(const ViseeSoleil &v) {
  ValeursVisee valeurs;
  valeurs.HeureDecimale = v.heure;
  valeurs.LatEstimee = v.latitude;
  valeurs.LonEstimee = v.longitude;
  valeurs.Azimut = v.ancienAzimut;
  return valeurs;
}

/// A summer noon in the north, off a natural horizon.
ViseeSoleil ViseeCourante() {
  ViseeSoleil v;
  v.jour = 21;
  v.mois = 6;
  v.annee = 2009;
  v.heure = 10.5;
  v.latitude = 45.5F;
  v.longitude = 5.25F;
  v.degres = 30;
  v.oeil = 2;
  return v;
}

struct Reduite {
  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  ReductionSoleil reduction;
};

Reduite Reduit(const ViseeSoleil &v, const TexteMsg &messages = {}) {
  Reduite r{Champs(v), Valeurs(v), {}, {}};
  r.reduction = Calcul_DroiteSOL(r.observation, r.valeurs, r.affichage, messages);
  return r;
}

void Compare(const ViseeSoleil &v) {
  const DroiteSoleil attendu = ReduitALaMain(v);
  const Reduite r = Reduit(v);
  ASSERT_TRUE(r.reduction.faite);
  EXPECT_EQ(r.reduction.lue.H, attendu.H);
  EXPECT_EQ(r.reduction.lue.Depression, attendu.Depression);
  EXPECT_EQ(r.reduction.lue.Refraction, attendu.Refraction);
  EXPECT_EQ(r.reduction.lue.Parallaxe, attendu.Parallaxe);
  EXPECT_EQ(r.reduction.lue.DemiDiametre, attendu.DemiDiametre);
  EXPECT_EQ(r.reduction.lue.Ho, attendu.Ho);
  EXPECT_EQ(r.reduction.Hc, attendu.Hc);
  EXPECT_EQ(r.valeurs.Azimut, attendu.Azimut);
  EXPECT_EQ(r.valeurs.Intercept, attendu.Intercept);
}

TEST(SunSight, EveryStoreIn32BitsIsThatOfTheSightWorkedByHand) {
  std::mt19937 alea(20);
  const auto tire = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  const auto entier = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(alea); };
  for (int i = 0; i < 3000; ++i) {
    ViseeSoleil v;
    v.jour = entier(1, 31);
    v.mois = entier(1, 12);
    v.annee = static_cast<std::int16_t>(entier(1900, 2100));
    v.heure = tire(0, 24);
    v.latitude = static_cast<float>(tire(-89, 89));
    v.longitude = static_cast<float>(tire(-180, 180));
    v.degres = entier(1, i % 2 == 0 ? 90 : 140);
    v.minutes = entier(0, 60);
    v.fraction = entier(0, 99);
    v.centiemes = entier(0, 1) == 1;
    v.oeil = static_cast<float>(entier(0, 300)) / 10;
    v.collimation = static_cast<float>(entier(-600, 600)) / 10;
    v.bord = entier(0, 2);
    v.artificiel = i % 2 == 1;
    SCOPED_TRACE(i);
    Compare(v);
    if (HasFatalFailure() || HasNonfatalFailure()) {
      break;
    }
  }
}

TEST(SunSight, OldDatesKeepTheTwoDaysOfTheirConstant) {
  for (const auto &[annee, mois, jour] : {std::tuple{1582, 10, 14},
                                          {1582, 10, 15},
                                          {1582, 10, 16},
                                          {1582, 12, 31},
                                          {1583, 1, 1},
                                          {1583, 2, 28},
                                          {1500, 3, 1},
                                          {1000, 7, 1},
                                          {1, 1, 1}}) {
    ViseeSoleil v = ViseeCourante();
    v.annee = static_cast<std::int16_t>(annee);
    v.mois = mois;
    v.jour = jour;
    SCOPED_TRACE(annee * 10000 + mois * 100 + jour);
    Compare(v);
  }
}

TEST(SunSight, JanuaryIsTheThirteenthMonthOfTheYearBefore) {
  ViseeSoleil janvier = ViseeCourante();
  janvier.mois = 1;
  ViseeSoleil treize = janvier;
  treize.mois = 13;
  treize.annee = static_cast<std::int16_t>(janvier.annee - 1);
  EXPECT_EQ(Reduit(janvier).valeurs.Intercept, Reduit(treize).valeurs.Intercept);
  EXPECT_EQ(Reduit(janvier).valeurs.Azimut, Reduit(treize).valeurs.Azimut);
  Compare(janvier);
}

TEST(SunSight, TheThreeLimbsDifferByTheFixedSemiDiameter) {
  ViseeSoleil v = ViseeCourante();
  float ho[3];
  for (int bord = 0; bord < 3; ++bord) {
    v.bord = bord;
    const Reduite r = Reduit(v);
    ho[bord] = r.reduction.lue.Ho;
    EXPECT_EQ(r.reduction.lue.DemiDiametre, (bord == 0 ? -0.26666F : bord == 1 ? 0.26666F : 0.0F));
    Compare(v);
  }
  EXPECT_NEAR(ho[1] - ho[2], 0.26666, 4E-6);
  EXPECT_NEAR(ho[2] - ho[0], 0.26666, 4E-6);
}

TEST(SunSight, AnArtificialHorizonHalvesEverythingAndHasNoDip) {
  ViseeSoleil v = ViseeCourante();
  v.degres = 60;
  v.bord = 2;
  v.artificiel = true;
  v.collimation = 3;
  const HauteurObservee<float> h = Reduit(v).reduction.lue;
  EXPECT_NEAR(h.Ho, 30.0, 0.05);
  EXPECT_NEAR(h.Ho, (60.0 - h.Refraction + h.Parallaxe + 0.05) / 2, 2E-6);
  v.oeil = 25;
  EXPECT_EQ(Reduit(v).reduction.lue.Ho, h.Ho);
  v.bord = 1;
  EXPECT_NEAR(Reduit(v).reduction.lue.Ho, h.Ho + 0.26666 / 2, 4E-6);
}

TEST(SunSight, TheWorkedSightOfThirtyDegreesShowsItsCorrections) {
  const Reduite r = Reduit(ViseeCourante());
  EXPECT_NEAR(r.reduction.lue.Depression, 0.04540, 5E-6);
  EXPECT_EQ(r.affichage.details[0], "02.72 '");
  EXPECT_NEAR(r.reduction.lue.Parallaxe, 0.147 * std::sqrt(0.75) / 60, 1E-8);
  EXPECT_EQ(r.affichage.details[2], "00.13 '");
  // The refraction: 0.01745329 / tan 34.64367 degrees less a thousandth of the sine of about 13.4 degrees.
  EXPECT_NEAR(r.reduction.lue.Refraction, 0.025258 - 0.000231, 2E-6);
  EXPECT_EQ(r.affichage.details[1], "01.50 '");
}

TEST(SunSight, AnEastLongitudeAddsToTheHourAngle) {
  ViseeSoleil v = ViseeCourante();
  v.heure = 6;
  v.longitude = 0;
  const DroiteSoleil greenwich = ReduitALaMain(v);
  v.longitude = -30;
  const DroiteSoleil est = ReduitALaMain(v);
  v.longitude = 30;
  const DroiteSoleil ouest = ReduitALaMain(v);
  EXPECT_NEAR(est.AHL, greenwich.AHL + 30, 1E-4);
  EXPECT_NEAR(ouest.AHL, greenwich.AHL - 30, 1E-4);
  for (const float longitude : {0.0F, -30.0F, 30.0F, -179.9F, 179.9F}) {
    v.longitude = longitude;
    Compare(v);
  }
}

TEST(SunSight, TheInterceptIsObservedLessComputed) {
  ViseeSoleil v = ViseeCourante();
  const Reduite bas = Reduit(v);
  v.degres = 80;
  const Reduite haut = Reduit(v);
  EXPECT_LT(bas.valeurs.Intercept, 0.0F);
  EXPECT_GT(haut.valeurs.Intercept, 0.0F);
  EXPECT_EQ(bas.valeurs.Azimut, haut.valeurs.Azimut);
  EXPECT_EQ(bas.valeurs.Intercept, static_cast<float>((bas.reduction.lue.Ho - bas.reduction.Hc) * 60));
}

TEST(SunSight, SecondsMoveTheResultInJumps) {
  // The true longitude, over 39000 degrees, has a step of 0.0039 degree in 32 bits: 95 seconds of the Sun's way. Of
  // 60 declinations one second apart there are at most two, then.
  ViseeSoleil v = ViseeCourante();
  int changements = 0;
  float precedente = ReduitALaMain(v).Lg;
  for (int s = 1; s < 60; ++s) {
    v.heure = 10.5 + s / 3600.0;
    const float longitude = ReduitALaMain(v).Lg;
    changements += longitude != precedente ? 1 : 0;
    precedente = longitude;
    Compare(v);
  }
  EXPECT_GT(precedente, 39000.0F);
  EXPECT_LE(changements, 1);
}

TEST(SunSight, AReadingOfZeroChangesNothing) {
  for (const char *zero : {"", "0", "00", "abc"}) {
    Reduite r{Champs(ViseeCourante()), Valeurs(ViseeCourante()), {}, {}};
    r.observation.lectureDegres = zero;
    r.observation.lectureMinutes = zero;
    r.observation.lectureFraction = zero;
    r.observation.hauteurOeil = "2.5";
    r.observation.collimation = "";
    r.valeurs.Azimut = 12;
    r.valeurs.Intercept = 34;
    r.valeurs.HauteurCalculee = 56;
    r.affichage.intercept = "before";
    r.affichage.details.fill("before");
    EXPECT_FALSE(Calcul_DroiteSOL(r.observation, r.valeurs, r.affichage, {}).faite);
    EXPECT_EQ(r.valeurs.Azimut, 12.0F);
    EXPECT_EQ(r.valeurs.Intercept, 34.0F);
    EXPECT_EQ(r.valeurs.HauteurCalculee, 56.0F);
    EXPECT_EQ(r.affichage.intercept, "before");
    EXPECT_EQ(r.affichage.infobulle, "");
    for (const std::string &detail : r.affichage.details) {
      EXPECT_EQ(detail, "before");
    }
    EXPECT_EQ(r.observation.hauteurOeil, "2.5");
    EXPECT_EQ(r.observation.collimation, "");
  }
}

TEST(SunSight, ReadingFractionAloneIsASight) {
  ViseeSoleil v = ViseeCourante();
  v.degres = 0;
  v.fraction = 30;
  EXPECT_TRUE(Reduit(v).reduction.faite);
  Compare(v);
}

struct CasConstante {
  const char *champ;
  float valeur;
  const char *apres;
};

TEST(SunSight, EyeAndCollimationAreReadWithACommaAndWrittenBack) {
  for (const CasConstante &c : {CasConstante{"2,5", 2.5F, "2,5"},
                                {"2,0", 2, "2"},
                                {"3,1", 3.1F, "3,1"},
                                {" 4 ", 4, "4"},
                                {"0,0", 0, "0"},
                                {"12,3456789", 12.3456789F, "12,34568"},
                                {"", 0, "0"},
                                {"2.5", 0, "0"},
                                {"abc", 0, "0"},
                                {"1E99", 0, "0"}}) {
    ViseeSoleil v = ViseeCourante();
    Reduite r{Champs(v), Valeurs(v), {}, {}};
    r.observation.hauteurOeil = c.champ;
    r.observation.collimation = c.champ;
    r.reduction = Calcul_DroiteSOL(r.observation, r.valeurs, r.affichage, {});
    EXPECT_EQ(r.observation.hauteurOeil, c.apres) << c.champ;
    EXPECT_EQ(r.observation.collimation, c.apres) << c.champ;
    v.oeil = c.valeur;
    v.collimation = c.valeur;
    EXPECT_EQ(r.reduction.lue.Ho, ReduitALaMain(v).Ho) << c.champ;
  }
}

TEST(SunSight, AnEyeBelowTheSeaLeavesADipOfZero) {
  ViseeSoleil v = ViseeCourante();
  v.oeil = -2;
  const Reduite r = Reduit(v);
  EXPECT_EQ(r.reduction.lue.Depression, 0.0F);
  EXPECT_EQ(r.observation.hauteurOeil, "-2");
  EXPECT_EQ(r.affichage.details[0], "00.00 '");
  Compare(v);
}

TEST(SunSight, AYearPast16BitsIsPassedOverAndReadsAsZero) {
  Reduite r{Champs(ViseeCourante()), Valeurs(ViseeCourante()), {}, {}};
  r.observation.annee = "99999";
  Reduite zero = r;
  zero.observation.annee = "0";
  Calcul_DroiteSOL(r.observation, r.valeurs, r.affichage, {});
  Calcul_DroiteSOL(zero.observation, zero.valeurs, zero.affichage, {});
  EXPECT_EQ(r.valeurs.Intercept, zero.valeurs.Intercept);
  EXPECT_EQ(r.valeurs.Azimut, zero.valeurs.Azimut);
}

TEST(SunSight, TheSharedComputedHeightIsLeftAlone) {
  Reduite r{Champs(ViseeCourante()), Valeurs(ViseeCourante()), {}, {}};
  r.valeurs.HauteurCalculee = 56;
  Calcul_DroiteSOL(r.observation, r.valeurs, r.affichage, {});
  EXPECT_EQ(r.valeurs.HauteurCalculee, 56.0F);
}

TEST(SunSight, EachDetailLineOpensWithItsMessage) {
  TexteMsg messages;
  for (std::size_t i = 0; i < messages.size(); ++i) {
    messages[i] = "M" + std::to_string(i) + " ";
  }
  const ViseeSoleil v = ViseeCourante();
  const DroiteSoleil attendu = ReduitALaMain(v);
  const AffichageDroite a = Reduit(v, messages).affichage;
  const auto general = [](float x) {
    char tampon[64];
    std::snprintf(tampon, sizeof tampon, "%.7G", double{x});
    return std::string(tampon);
  };
  const auto entiers = [](double h) {
    const double degres = std::floor(h);
    return Texte(degres) + "° " + Texte(std::floor((h - degres) * 60)) + "'";
  };
  EXPECT_EQ(a.details[0], "M14 02.72 '");
  EXPECT_EQ(a.details[1], "M15 01.50 '");
  EXPECT_EQ(a.details[2], "M16 00.13 '");
  EXPECT_EQ(a.details[3], "M17 " + entiers(attendu.Ho));
  EXPECT_EQ(a.details[4], "M19  + " + entiers(attendu.Hc));
  EXPECT_EQ(a.details[5], "M28 " + general(attendu.AHL) + "° ");
  EXPECT_EQ(a.details[6], "M29 " + general(attendu.AHG) + "° ");
  EXPECT_EQ(a.details[7], "M18 " + DegresEnTexte(attendu.Dec));
  EXPECT_EQ(a.infobulle, "He =  " + entiers(attendu.Hc));
}

TEST(SunSight, ASunBelowTheHorizonShowsItsSignOnTheDetailLine) {
  ViseeSoleil v = ViseeCourante();
  v.heure = 0.5;
  const DroiteSoleil attendu = ReduitALaMain(v);
  ASSERT_LT(attendu.Hc, 0.0);
  const AffichageDroite a = Reduit(v).affichage;
  EXPECT_EQ(a.details[4].substr(0, 3), " - ");
  EXPECT_EQ(a.infobulle.substr(0, 8),
            "He =  -" + std::to_string(static_cast<int>(-std::floor(attendu.Hc))).substr(0, 1));
}

TEST(SunSight, OnTheMeridianTheFormerAzimuthStaysAndStillTurns) {
  // The longitude of the observer is that of the Sun, so the local hour angle is exactly 0 and the turn applies.
  int gardes = 0;
  for (int degre = -89; degre <= 89; ++degre) {
    ViseeSoleil v = ViseeCourante();
    v.longitude = ReduitALaMain([&] {
                    v.longitude = 0;
                    return v;
                  }())
                      .AHG;
    v.latitude = static_cast<float>(degre);
    v.ancienAzimut = 77.5F;
    const DroiteSoleil attendu = ReduitALaMain(v);
    ASSERT_EQ(attendu.AHL, 0.0F);
    if (attendu.meridien) {
      EXPECT_EQ(Reduit(v).valeurs.Azimut, 360.0F - 77.5F) << degre;
      ++gardes;
    }
    Compare(v);
  }
  EXPECT_GT(gardes, 0) << "no latitude shows the failing arc cosine";
}

TEST(SunSight, ComputedHeightAndAzimuthAreTheSunsWithinTheShortTheory) {
  // No nutation, two terms of the centre, the radian of a degree short by 3E-8 on 40000 degrees, a longitude in steps
  // of 0.004 degree: together under 0.02 degree.
  std::mt19937 alea(21);
  const auto tire = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  for (int i = 0; i < 100; ++i) {
    ViseeSoleil v = ViseeCourante();
    double jd0 = 0;
    double jd = 0;
    v.annee = static_cast<std::int16_t>(1950 + i);
    v.mois = 1 + i % 12;
    v.jour = 1 + i % 28;
    v.heure = tire(0, 24);
    v.latitude = static_cast<float>(tire(-65, 65));
    v.longitude = static_cast<float>(tire(-180, 180));
    eraCal2jd(v.annee, static_cast<int>(v.mois), static_cast<int>(v.jour), &jd0, &jd);
    const essais::HorizonErfa juge = essais::SoleilHorizonErfa(jd0, jd + v.heure / 24, v.latitude, v.longitude);
    const Reduite r = Reduit(v);
    EXPECT_NEAR(r.reduction.Hc, juge.hauteur, 0.02) << i;
    const double tolerance = 0.02 / std::cos(juge.hauteur * ERFA_DD2R) + 0.001;
    if (std::fabs(std::remainder(juge.azimut, 180.0)) > 1.0) {
      EXPECT_NEAR(std::remainder(r.valeurs.Azimut - juge.azimut, 360.0), 0.0, tolerance) << i;
    }
  }
}

} // namespace
} // namespace velmaris

#include "sights/ConseilLune.hpp"

#include "tests/ephemerides/LuneJuges.hpp"
#include "tests/sights/OutilsVisee.hpp"
#include "tests/sights/SoleilErfa.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using essais::ViseeAstre;

/// Height of the Moon from the Earth's centre less its parallax, degrees.
double HauteurLune(double jd0, double jd, const ViseeAstre &v) {
  const essais::LuneJuge juge = essais::LuneErfa(jd0 + jd);
  double azimut = 0;
  double hauteur = 0;
  eraHd2ae(eraGst06a(jd0, jd, jd0, jd) - essais::LongitudeALaMain(v) * ERFA_DD2R - juge.ad, juge.decl,
           essais::LatitudeALaMain(v) * ERFA_DD2R, &azimut, &hauteur);
  return (hauteur - std::asin(6378.136 / juge.distance * std::cos(hauteur))) * ERFA_DR2D;
}

Bord Conseil(const Observation &o, ValeursVisee &valeurs, Lune &lune) {
  return BordEclaire(o, valeurs, lune, essais::MessagesNumerotes());
}

Bord Conseil(const ViseeAstre &v) {
  ValeursVisee valeurs;
  Lune lune;
  return Conseil(essais::ChampsAstre(v, Corps::Lune), valeurs, lune);
}

TEST(MoonsLitLimb, IsTheUpperOneWhileTheSunStandsHigher) {
  std::mt19937 alea(61);
  int hauts = 0;
  int bas = 0;
  for (int i = 0; i < 400; ++i) {
    ViseeAstre v = essais::ViseeAuHasard(alea, 1);
    v.annee = 1950 + i / 4;
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(v.annee, v.mois, v.jour, &jd0, &jd);
    jd += (v.heure + v.minute / 60.0 + v.seconde / 3600.0) / 24;
    const double soleil =
        essais::SoleilHorizonErfa(jd0, jd, essais::LatitudeALaMain(v), essais::LongitudeALaMain(v)).hauteur;
    const double lune = HauteurLune(jd0, jd, v);
    if (std::fabs(soleil - lune) < 0.1) {
      continue; // within what either theory leaves open
    }
    EXPECT_EQ(Conseil(v), soleil > lune ? Bord::Superieur : Bord::Inferieur) << i;
    ++(soleil > lune ? hauts : bas);
  }
  EXPECT_GT(hauts, 100);
  EXPECT_GT(bas, 100);
}

TEST(MoonsLitLimb, AnEveningCrescentIsLitFromBelowAndAMorningSunStandsOverTheSettingMoon) {
  ViseeAstre v;
  v.latDegres = v.latMinutes = v.lonDegres = v.lonMinutes = 0;
  v.annee = 2024;
  v.mois = 4;
  v.jour = 10; // two days after the eclipse of April 8
  v.heure = 18;
  v.minute = v.seconde = 0;
  EXPECT_EQ(Conseil(v), Bord::Inferieur);
  v.jour = 6; // two days before it
  v.heure = 16;
  EXPECT_EQ(Conseil(v), Bord::Superieur);
}

TEST(MoonsLitLimb, TheHourOfTheSightIsFormedAnewFromItsFields) {
  ViseeAstre v;
  ValeursVisee valeurs;
  valeurs.HeureDecimale = 99;
  valeurs.Azimut = 12;
  valeurs.Intercept = 34;
  valeurs.HauteurCalculee = 56;
  valeurs.LatEstimee = 78;
  valeurs.LonEstimee = 90;
  Lune lune;
  Conseil(essais::ChampsAstre(v, Corps::Lune), valeurs, lune);
  EXPECT_EQ(valeurs.HeureDecimale, (21 / 24.0 + 5 / 1440.0 + 30 / 86400.0) * 24.0);
  EXPECT_EQ(valeurs.Azimut, 12.0F);
  EXPECT_EQ(valeurs.Intercept, 34.0F);
  EXPECT_EQ(valeurs.HauteurCalculee, 56.0F);
  EXPECT_EQ(valeurs.LatEstimee, 78.0F);
  EXPECT_EQ(valeurs.LonEstimee, 90.0F);
}

TEST(MoonsLitLimb, TheMoonsRecordIsLeftWithTheMomentOfTheFields) {
  ValeursVisee valeurs;
  Lune lune;
  Conseil(essais::ChampsAstre(ViseeAstre{}, Corps::Lune), valeurs, lune);
  EXPECT_EQ(lune.LuneJour, 21.0);
  EXPECT_EQ(lune.LuneMois, 6.0);
  EXPECT_EQ(lune.LuneAn, 2026.0);
  EXPECT_EQ(lune.LuneHeure, 21.0);
  EXPECT_EQ(lune.LuneMinute, 5.0);
  EXPECT_EQ(lune.LuneSeconde, 30.0F);
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(2026, 6, 21, &jd0, &jd);
  jd += (21 + 5 / 60.0 + 30 / 3600.0) / 24;
  EXPECT_NEAR(lune.LuneHauteur, HauteurLune(jd0, jd, ViseeAstre{}), 0.05);
}

TEST(MoonsLitLimb, AReadingOfZeroAndAnEmptyEyeDoNotMatter) {
  Observation o = essais::ChampsAstre(ViseeAstre{}, Corps::Lune);
  o.lectureDegres = o.lectureMinutes = o.lectureFraction = o.hauteurOeil = o.collimation = "";
  ValeursVisee valeurs;
  Lune lune;
  EXPECT_EQ(Conseil(o, valeurs, lune), Conseil(ViseeAstre{}));
}

TEST(MoonsLitLimb, EmptyFieldsStillGiveAnAdvice) {
  ValeursVisee valeurs;
  Lune lune;
  const Bord bord = Conseil(Observation{}, valeurs, lune);
  EXPECT_TRUE(bord == Bord::Superieur || bord == Bord::Inferieur);
  EXPECT_EQ(valeurs.HeureDecimale, 0.0);
}

} // namespace
} // namespace velmaris

#include "sights/DroiteLUN.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/ephemerides/LuneJuges.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"
#include "tests/sights/OutilsVisee.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using essais::LectureALaMain;
using essais::ViseeAstre;

struct Visee : essais::Epreuve {
  explicit Visee(const ViseeAstre &v) : Epreuve(v, Corps::Lune) {}

  EtatReduction Reduit() {
    reduction = Calcul_DroiteLUN(observation, valeurs, lune, affichage, essais::MessagesNumerotes());
    return reduction.etat;
  }

  /// No label bears what is no number.
  void SansNan() const {
    for (const std::string &texte : affichage.details) {
      EXPECT_EQ(texte.find("nan"), std::string::npos) << texte;
      EXPECT_EQ(texte.find("inf"), std::string::npos) << texte;
    }
    for (const std::string &texte : {affichage.intercept, affichage.azimut, affichage.infobulle}) {
      EXPECT_EQ(texte.find("nan"), std::string::npos) << texte;
      EXPECT_EQ(texte.find("inf"), std::string::npos) << texte;
    }
  }

  Lune lune;
};

/// The Moon of a sight, from its place: the module's own routines, checked elsewhere.
Lune LuneDe(const ViseeAstre &v) {
  Lune lune = essais::LuneA(v.annee, v.mois, v.jour, v.heure, v.minute, static_cast<float>(v.seconde));
  TopoLune(lune, lune.LuneAD, lune.LuneDecl, essais::LatitudeALaMain(v), -essais::LongitudeALaMain(v), "M33 ");
  return lune;
}

/// The limb in 32 bits, degrees.
float BordALaMain(int bord, float demiDiametre) {
  return bord == 0   ? static_cast<float>(-double{demiDiametre} / 60)
         : bord == 1 ? static_cast<float>(double{demiDiametre} / 60)
                     : 0.0F;
}

double HoALaMain(const ViseeAstre &v, const LectureALaMain &lue, float demiDiametre) {
  const double col = double{static_cast<float>(v.collimation)} / 60;
  return v.artificiel ? (lue.H - lue.Refraction + 0 + col) / 2
                      : lue.H - lue.Depression - lue.Refraction + 0 + col + double{BordALaMain(v.bord, demiDiametre)};
}

void Compare(const ViseeAstre &v) {
  const LectureALaMain lue(v);
  const Lune lune = LuneDe(v);
  const double Ho = HoALaMain(v, lue, lune.LuneDemiDiametre);
  Visee s(v);
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  s.LectureEst(lue);
  EXPECT_EQ(s.reduction.lue.Ho, Ho);
  EXPECT_EQ(s.valeurs.Azimut, lune.LuneAzimut);
  EXPECT_EQ(s.valeurs.HauteurCalculee, lune.LuneHauteur);
  EXPECT_EQ(s.valeurs.Intercept, static_cast<float>((Ho - double{lune.LuneHauteur}) * 60));
  EXPECT_EQ(s.observation.collimation, essais::EnVirgule(essais::Texte7(static_cast<float>(v.collimation))));
}

TEST(MoonSight, EveryStoreIsThatOfTheSightWorkedByHand) {
  std::mt19937 alea(51);
  for (int i = 0; i < 1500; ++i) {
    const ViseeAstre v = essais::ViseeAuHasard(alea, 1);
    SCOPED_TRACE(i);
    Compare(v);
    if (::testing::Test::HasFailure()) {
      break;
    }
  }
}

TEST(MoonSight, HeightAndAzimuthAreThoseOfTheSkyWithinASphericalEarthAndTheTimeScale) {
  // Seen from the Earth's centre by the whole theory, then from a sphere: what stays is Universal Time for dynamical
  // time (0.011 degree at 70 seconds), light time, mean sidereal time (0.005) and 32-bit angles.
  std::mt19937 alea(52);
  for (int i = 0; i < 60; ++i) {
    ViseeAstre v = essais::ViseeAuHasard(alea, 1);
    v.annee = 1970 + i;
    v.latDegres %= 60;
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(v.annee, v.mois, v.jour, &jd0, &jd);
    jd += (v.heure + v.minute / 60.0 + v.seconde / 3600.0) / 24;
    const essais::LuneJuge juge = essais::LuneEntiere(jd0 + jd);
    const double phi = essais::LatitudeALaMain(v) * ERFA_DD2R;
    const double th = eraGst06a(jd0, jd, jd0, jd) - essais::LongitudeALaMain(v) * ERFA_DD2R;
    double lune[3];
    eraS2p(juge.ad, juge.decl, juge.distance / 6378.136, lune);
    double place[3] = {std::cos(phi) * std::cos(th), std::cos(phi) * std::sin(th), std::sin(phi)};
    double sens[3];
    eraPmp(lune, place, sens);
    double ad = 0;
    double dec = 0;
    eraC2s(sens, &ad, &dec);
    double azimut = 0;
    double hauteur = 0;
    eraHd2ae(th - ad, dec, phi, &azimut, &hauteur);
    Visee s(v);
    ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
    EXPECT_NEAR(s.valeurs.HauteurCalculee, hauteur * ERFA_DR2D, 0.02) << i;
    EXPECT_NEAR(std::remainder(s.valeurs.Azimut - azimut * ERFA_DR2D, 360.0), 0.0, 0.03 / std::cos(hauteur)) << i;
  }
}

TEST(MoonSight, TheLimbIsTheDaysOwnSemiDiameter) {
  float ho[3];
  for (const auto &[jour, mois] : {std::pair{21, 6}, {3, 1}, {14, 11}}) {
    ViseeAstre v;
    v.jour = jour;
    v.mois = mois;
    const float sd = LuneDe(v).LuneDemiDiametre;
    EXPECT_GT(sd, 14.6F);
    EXPECT_LT(sd, 16.9F);
    for (int bord = 0; bord < 3; ++bord) {
      v.bord = bord;
      Compare(v);
      Visee s(v);
      ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
      EXPECT_EQ(s.reduction.lue.DemiDiametre, double{BordALaMain(bord, sd)});
      ho[bord] = static_cast<float>(s.reduction.lue.Ho);
    }
    EXPECT_NEAR((ho[1] - ho[2]) * 60, sd, 1E-3);
    EXPECT_NEAR((ho[2] - ho[0]) * 60, sd, 1E-3);
  }
}

TEST(MoonSight, OffAnArtificialHorizonTheLimbIsLeftOut) {
  ViseeAstre v;
  v.artificiel = true;
  v.degres = 60;
  double ho[3];
  for (int bord = 0; bord < 3; ++bord) {
    v.bord = bord;
    Compare(v);
    Visee s(v);
    ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
    ho[bord] = s.reduction.lue.Ho;
  }
  EXPECT_EQ(ho[0], ho[2]);
  EXPECT_EQ(ho[1], ho[2]);
}

TEST(MoonSight, CollimationIsWrittenBackIn32BitsAndTheEyeIsNot) {
  Visee s{ViseeAstre{}};
  s.observation.hauteurOeil = " 02,50 ";
  s.observation.collimation = "-1,123456789";
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_EQ(s.observation.hauteurOeil, " 02,50 ");
  EXPECT_EQ(s.observation.collimation, "-1,123457");
  const LectureALaMain lue{ViseeAstre{}};
  EXPECT_EQ(s.reduction.lue.Ho, lue.H - lue.Depression - lue.Refraction + double{-1.123456789F} / 60);
}

TEST(MoonSight, AFieldThatIsNoNumberIsPassedOver) {
  ViseeAstre nul;
  nul.oeil = 0;
  nul.collimation = 0;
  const LectureALaMain lue(nul);
  for (const char *texte : {"", "2.5", "abc"}) {
    Visee s{ViseeAstre{}};
    s.observation.hauteurOeil = s.observation.collimation = texte;
    ASSERT_EQ(s.Reduit(), EtatReduction::Faite) << texte;
    EXPECT_EQ(s.reduction.lue.Depression, 0.0) << texte;
    EXPECT_EQ(s.reduction.lue.Ho, lue.H - lue.Refraction) << texte;
    EXPECT_EQ(s.observation.hauteurOeil, texte);
    EXPECT_EQ(s.observation.collimation, "0") << texte;
    EXPECT_EQ(s.affichage.details[0], "M14 00.00 '") << texte;
  }
  Visee s{ViseeAstre{}};
  s.observation.hauteurOeil = "-2,0";
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_EQ(s.reduction.lue.Depression, 0.0);
}

TEST(MoonSight, EmptyFieldsOfDateAndTimeCountAsZero) {
  Visee s{ViseeAstre{}};
  s.observation.heure = s.observation.minute = s.observation.seconde = "";
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  ViseeAstre v;
  v.heure = v.minute = v.seconde = 0;
  EXPECT_EQ(s.valeurs.HauteurCalculee, LuneDe(v).LuneHauteur);
  s.observation.jour = s.observation.mois = s.observation.annee = "";
  EXPECT_EQ(s.Reduit(), EtatReduction::Faite);
  s.SansNan();
}

TEST(MoonSight, HourSixtyAndAnImpossibleDateReduceAsTheDaysTheyRunInto) {
  ViseeAstre v;
  v.heure = 60;
  Compare(v);
  ViseeAstre plus = v;
  plus.jour = v.jour + 2;
  plus.heure = 12;
  EXPECT_NEAR(LuneDe(v).LuneHauteur, LuneDe(plus).LuneHauteur, 1E-4);
  ViseeAstre fevrier;
  fevrier.mois = 2;
  fevrier.jour = 31;
  Compare(fevrier);
  ViseeAstre mars = fevrier;
  mars.mois = 3;
  mars.jour = 3;
  Visee s(fevrier);
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_NEAR(s.valeurs.HauteurCalculee, LuneDe(mars).LuneHauteur, 1E-4);
}

TEST(MoonSight, YearsFarFromThePresentReduce) {
  for (const int annee : {0, 1, 1582, 1583, 5000, 9999}) {
    ViseeAstre v;
    v.annee = annee;
    SCOPED_TRACE(annee);
    Compare(v);
    Visee s(v);
    ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
    s.SansNan();
    EXPECT_GE(s.valeurs.Azimut, 0.0F);
    EXPECT_LE(s.valeurs.Azimut, 360.0F);
  }
}

TEST(MoonSight, AtThePoleTheHeightIsTheDeclinationAndNoLabelIsNoNumber) {
  for (const bool sud : {false, true}) {
    for (int heure = 0; heure < 24; ++heure) {
      ViseeAstre v;
      v.latDegres = 90;
      v.latMinutes = 0;
      v.heure = heure;
      v.sud = sud;
      Visee s(v);
      ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
      EXPECT_NEAR(s.valeurs.HauteurCalculee, (sud ? -1 : 1) * s.lune.LuneDecl, 1E-4);
      s.SansNan();
    }
  }
}

TEST(MoonSight, AFailureInsideTheMoonsRoutinesGoesOnWithWhatTheRecordHeld) {
  Visee s{ViseeAstre{}};
  s.observation.annee = "1E300";
  s.lune.LuneHauteur = 21.5F;
  s.lune.LuneAzimut = 123.25F;
  s.lune.LuneDemiDiametre = 15.5F;
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_EQ(s.valeurs.HauteurCalculee, 21.5F);
  EXPECT_EQ(s.valeurs.Azimut, 123.25F);
  const LectureALaMain lue{ViseeAstre{}};
  EXPECT_EQ(s.valeurs.Intercept, static_cast<float>((HoALaMain(ViseeAstre{}, lue, 15.5F) - 21.5) * 60));
  EXPECT_EQ(s.affichage.infobulle, "He =  21° 30'");
  s.SansNan();
}

TEST(MoonSight, AnyTextInAnyFieldLeavesLabelsThatAreNumbers) {
  using O = Observation;
  for (std::string O::*champ : {&O::jour, &O::mois, &O::annee, &O::heure, &O::minute, &O::seconde, &O::longitudeDegres,
                                &O::longitudeMinutes, &O::latitudeDegres, &O::latitudeMinutes, &O::hauteurOeil,
                                &O::collimation, &O::lectureMinutes, &O::lectureDegres, &O::lectureFraction}) {
    for (const char *texte :
         {"", "abc", "1E300", "-1E300", "1E999", "-1E999", "NaN", "inf", "99999", "-1", "é", "&HFF"}) {
      Visee s{ViseeAstre{}};
      s.observation.*champ = texte;
      SCOPED_TRACE(texte);
      EXPECT_EQ(s.Reduit(), EtatReduction::Faite);
      s.SansNan();
    }
  }
}

TEST(MoonSight, AReadingOfZeroChangesNothing) {
  for (const char *zero : {"", "0", "00", "abc"}) {
    Visee s{ViseeAstre{}};
    s.observation.lectureDegres = s.observation.lectureMinutes = s.observation.lectureFraction = zero;
    s.observation.collimation = "";
    s.lune.LuneJD = 77;
    s.lune.LuneJour = 78;
    EXPECT_EQ(s.Reduit(), EtatReduction::SansLecture) << zero;
    s.RienNAChange();
    EXPECT_EQ(s.observation.collimation, "");
    EXPECT_EQ(s.lune.LuneJD, 77.0);
    EXPECT_EQ(s.lune.LuneJour, 78.0);
  }
}

TEST(MoonSight, TheDetailLinesStandInTheMoonsOwnOrder) {
  ViseeAstre v;
  v.bord = 1;
  const LectureALaMain lue(v);
  const Lune lune = LuneDe(v);
  const double Ho = HoALaMain(v, lue, lune.LuneDemiDiametre);
  Visee s(v);
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  const auto &d = s.affichage.details;
  EXPECT_EQ(d[0], "M14 03.05 '");
  EXPECT_NEAR(std::strtod(d[1].c_str() + 4, nullptr), lue.Refraction * 60, 0.005);
  EXPECT_EQ(d[2], "M17 " + essais::EntiersALaMain(Ho));
  EXPECT_EQ(d[3], "M19 " + essais::SigneALaMain(lune.LuneHauteur));
  EXPECT_EQ(d[4], "M32 ");
  EXPECT_EQ(d[5], lune.LuneTexteDecl);
  EXPECT_EQ(d[5].substr(0, 4), "D = ");
  EXPECT_EQ(d[6], lune.LuneTexteAD);
  EXPECT_EQ(d[6].substr(0, 4), "M33 ");
  EXPECT_EQ(d[7].substr(0, 4), "M31 ");
  EXPECT_NEAR(std::strtod(d[7].c_str() + 4, nullptr), 2 * double{lune.LuneDemiDiametre}, 0.00501);
  EXPECT_EQ(d[7].substr(d[7].size() - 2), " '");
  EXPECT_EQ(s.affichage.infobulle, "He =  " + essais::EntiersALaMain(lune.LuneHauteur));
}

TEST(MoonSight, ThePositionIsThatOfItsFieldsAndTheSharedOneIsLeft) {
  Visee s{ViseeAstre{}};
  s.valeurs.LatEstimee = -77;
  s.valeurs.LonEstimee = 99;
  s.valeurs.HeureDecimale = 55;
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_EQ(s.valeurs.LatEstimee, -77.0F);
  EXPECT_EQ(s.valeurs.LonEstimee, 99.0F);
  EXPECT_EQ(s.valeurs.HeureDecimale, 55.0);
  EXPECT_EQ(s.valeurs.HauteurCalculee, LuneDe(ViseeAstre{}).LuneHauteur);
}

} // namespace
} // namespace velmaris

#include "ephemerides/pLANETE.hpp"

#include "JugesPlanetes.hpp"
#include "tests/OutilsTests.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

/// The rules of an apparent place: what its line looks like, and that it is what vectors give from the same texts.
namespace velmaris {
namespace {

using namespace essais;
using testing::EndsWith;
using testing::MatchesRegex;

constexpr double kJour = 2461212.5;

std::string Place(std::string nom, double JD) { return PlaceApparente(nom, JD); }

TEST(ApparentPlace, IsWhatVectorsGiveFromTheSameTexts) {
  for (const char *nom : kNomsPlanetes) {
    for (const double JD : Dates(150)) {
      const LieuEquatorial lieu = LitLigne(Place(nom, JD)).lieu;
      const LieuEquatorial attendu = LieuParVecteurs(HelioTexte, OrientationFigee(JD), EnCapitales(nom), JD).lieu;
      EXPECT_LE(std::fabs(Secondes(lieu.AD, attendu.AD)), kDemiDixiemeAD + 1E-4) << nom << " " << JD;
      EXPECT_LE(std::fabs(Secondes(lieu.Dec, attendu.Dec)), kDemiDixiemeDec + 1E-4) << nom << " " << JD;
      EXPECT_NEAR(lieu.d, attendu.d, 1E-13);
    }
  }
}

TEST(ApparentPlace, TheDistanceIsThatOfTheMomentAndNotOfTheLight) {
  // Seen light time ago Mars was some thousand kilometres nearer or farther.
  double pire = 0;
  for (const double JD : Dates(50)) {
    double v[3];
    const double d = LitLigne(Place("Mars", JD)).lieu.d;
    const double avant = Geocentrique(HelioTexte, "MARS", JD - d * 0.00577551830441213, v).d;
    EXPECT_NEAR(d, Geocentrique(HelioTexte, "MARS", JD, v).d, 1E-13);
    pire = std::max(pire, std::fabs(d - avant) * 149597870);
  }
  EXPECT_GT(pire, 1000);
}

TEST(ApparentPlace, TheEarthGoesBackWithThePlanetWhichIsItsAberration) {
  // Had the planet alone gone back, the place would miss the aberration: up to twenty seconds of arc.
  double pire = 0;
  for (const double JD : Dates(100)) {
    const LieuEquatorial lieu = LitLigne(Place("Jupiter", JD)).lieu;
    const Source terreAujourdhui = [JD](const std::string &nom, double jd) {
      return HelioTexte(nom, nom == "EARTH" ? JD : jd);
    };
    const LieuEquatorial sans = LieuParVecteurs(terreAujourdhui, OrientationFigee(JD), "JUPITER", JD).lieu;
    pire = std::max(pire, Ecart(lieu, sans));
  }
  EXPECT_GT(pire, 19);
  EXPECT_LT(pire, 22.5);
}

TEST(ApparentPlace, HasFiveFieldsBetweenBarsTheFirstWithoutABlankAfterIt) {
  for (const char *nom : kNomsPlanetes) {
    EXPECT_THAT(Place(nom, kJour),
                MatchesRegex("   [012][0-9]h [0-5][0-9]m [0-5][0-9]\\.[0-9]s \\|  +[+-][0-9]+° [0-5][0-9]' "
                             "[0-5][0-9]\\.[0-9]\" \\| [0-9.]+ \\|  [0-9][0-9]' [0-9][0-9]\\.[0-9]\" \\| .+"))
        << nom;
  }
}

TEST(ApparentPlace, RightAscensionAndDeclinationHaveSixteenColumnsTheDiameterTen) {
  for (const char *nom : kNomsPlanetes) {
    const LignePlace ligne = LitLigne(Place(nom, kJour));
    EXPECT_EQ(NombreCaracteres(ligne.AD), 16U + 1);
    EXPECT_EQ(NombreCaracteres(ligne.Dec), 16U + 1);
    EXPECT_EQ(NombreCaracteres(ligne.diametre), 10U + 2);
  }
}

TEST(ApparentPlace, TheDeclinationAlwaysBearsItsSignTheRightAscensionNever) {
  bool nord = false;
  bool sud = false;
  for (const double JD : Dates(40)) {
    const LignePlace ligne = LitLigne(Place("Venus", JD));
    EXPECT_EQ(ligne.AD.find_first_of("+-"), std::string::npos);
    nord = nord || ligne.Dec.find('+') != std::string::npos;
    sud = sud || ligne.Dec.find('-') != std::string::npos;
    EXPECT_TRUE(ligne.lieu.AD >= 0 && ligne.lieu.AD <= 360);
  }
  EXPECT_TRUE(nord && sud);
}

TEST(ApparentPlace, TheDistanceIsInKilometresToFifteenDigits) {
  const std::string texte = Place("Venus", kJour);
  const LignePlace ligne = LitLigne(texte);
  double v[3];
  const double km = Geocentrique(HelioTexte, "VENUS", kJour, v).d * 149597870.0;
  EXPECT_NEAR(std::stod(ligne.distance), km, km * 1E-14);
  EXPECT_GE(ligne.distance.size(), 16U);
}

TEST(ApparentPlace, RightAscensionsFillTheWholeCircle) {
  // Mars in a few years passes through every quadrant, where the arctangent changes branch.
  bool quarts[4] = {};
  for (int i = 0; i < 120; ++i) {
    const double JD = kJour + 10.3 * i;
    const double AD = LitLigne(Place("Mars", JD)).lieu.AD;
    quarts[static_cast<int>(AD / 90) % 4] = true;
    const LieuEquatorial attendu = LieuParVecteurs(HelioTexte, OrientationFigee(JD), "MARS", JD).lieu;
    EXPECT_LE(std::fabs(Secondes(AD, attendu.AD)), kDemiDixiemeAD + 1E-4) << JD;
  }
  EXPECT_TRUE(quarts[0] && quarts[1] && quarts[2] && quarts[3]);
}

TEST(ApparentPlace, TheNameIsLeftTrimmedAlsoWhenThePlaceFails) {
  std::string nom = "  Venus ";
  EXPECT_EQ(PlaceApparente(nom, kJour), Place("Venus", kJour));
  EXPECT_EQ(nom, "Venus");
  nom = " Mercury ";
  EXPECT_EQ(NumeroErreur([&] { PlaceApparente(nom, kJour); }), 5);
  EXPECT_EQ(nom, "Mercury");
}

TEST(ApparentPlace, ABodyWithoutSeriesIsAnInvalidArgument) {
  for (const char *nom : {"Sun", "SUN", "Mercury", "Uranus", "Neptune", "Saturn", "Moon", ""}) {
    EXPECT_EQ(NumeroErreur([&] { Place(nom, kJour); }), 5) << nom;
  }
}

TEST(ApparentPlace, TheEarthItselfIsADivisionByZero) {
  for (const char *nom : {"Earth", "EARTH", "earth"}) {
    EXPECT_EQ(NumeroErreur([&] { Place(nom, kJour); }), 11) << nom;
  }
}

TEST(ApparentPlace, ADateBeyondTheSeriesIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { Place("Venus", 1.0E30); }), 6);
  EXPECT_EQ(NumeroErreur([] { Place("Venus", std::numeric_limits<double>::max()); }), 6);
}

TEST(ApparentPlace, APlaceIsTheSameHoweverOftenItIsAsked) {
  const std::string avant = Place("Mars", kJour);
  Place("Venus", kJour + 1);
  EXPECT_EQ(Place("Mars", kJour), avant);
}

// ---------------------------------------------------------------- FK5

TEST(FK5Reduction, IsItsPublishedForm) {
  for (int i = 0; i < 50; ++i) {
    const double JD = 2415020.5 + 1500.0 * i;
    const double lambda = 7.3 * i;
    const double beta = -8.0 + 0.33 * i;
    const double T = (JD - 2451545) / 36525;
    const double Lp = (lambda - 1.397 * T - 0.00031 * T * T) * ERFA_DD2R;
    // As a sine and cosine of 45 degrees more.
    const double dL = -0.09033 + 0.03916 * std::sqrt(2.0) * std::sin(Lp + ERFA_DPI / 4) * std::tan(beta * ERFA_DD2R);
    const double dB = 0.03916 * std::sqrt(2.0) * std::cos(Lp + ERFA_DPI / 4);
    EXPECT_NEAR(CorrectionFK5L(JD, lambda, beta) * 3600, dL, 1E-12);
    EXPECT_NEAR(CorrectionFK5B(JD, lambda) * 3600, dB, 1E-12);
  }
}

TEST(FK5Reduction, OnTheEclipticTheLongitudeLosesAConstant) {
  EXPECT_NEAR(CorrectionFK5L(2451545, 123.0, 0.0), -0.09033 / 3600, 1E-18);
  EXPECT_NEAR(CorrectionFK5B(2451545, 45.0), 0.0, 1E-18);
  EXPECT_NEAR(CorrectionFK5B(2451545, 0.0), 0.03916 / 3600, 1E-18);
}

} // namespace
} // namespace velmaris

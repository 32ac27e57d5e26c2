#include "sights/Affichage.hpp"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(HeightInWords, MinutesAreTruncatedNeverRounded) {
  EXPECT_EQ(DegresMinutes(30 + 5.9 / 60), "30° 5'");
  EXPECT_EQ(DegresMinutes(30 + 59.999 / 60), "30° 59'");
  EXPECT_EQ(DegresMinutes(0), "0° 0'");
  EXPECT_EQ(DegresMinutes(45.5), "45° 30'");
  EXPECT_EQ(DegresMinutes(7.25), "7° 15'");
}

TEST(HeightInWords, ANegativeHeightShowsItsSignedFloor) {
  EXPECT_EQ(DegresMinutes(-0.5), "-1° 30'");
  EXPECT_EQ(DegresMinutes(-0.25), "-1° 45'");
  EXPECT_EQ(DegresMinutes(-2), "-2° 0'");
}

TEST(HeightInWords, OnADetailLineTheSignStandsBeforeTheAbsoluteHeight) {
  EXPECT_EQ(HauteurSignee(-0.5), " - 0° 30'");
  EXPECT_EQ(HauteurSignee(0.5), " + 0° 30'");
  EXPECT_EQ(HauteurSignee(0), " + 0° 0'");
  EXPECT_EQ(HauteurSignee(-12.75), " - 12° 45'");
}

TEST(SmallAngleInMinutes, HasTwoDigitsEitherSideOfThePoint) {
  EXPECT_EQ(EnMinutes(0.0454), "02.72 '");
  EXPECT_EQ(EnMinutes(0), "00.00 '");
  EXPECT_EQ(EnMinutes(-0.05), "-03.00 '");
  EXPECT_EQ(EnMinutes(-0.00001), "00.00 '");
  EXPECT_EQ(EnMinutes(0.5), "30.00 '");
}

AffichageDroite Affiche(float intercept, float azimut, double hauteur) {
  AffichageDroite a;
  ValeursVisee v;
  v.Intercept = intercept;
  v.Azimut = azimut;
  AfficheResultat(a, v, hauteur);
  return a;
}

TEST(ResultLabels, TheInterceptShowsOneOrTwoDecimalsAndItsMinus) {
  EXPECT_EQ(Affiche(-3.27F, 0, 0).intercept, "-3.27");
  EXPECT_EQ(Affiche(0, 0, 0).intercept, "0.0");
  EXPECT_EQ(Affiche(12.5F, 0, 0).intercept, "12.5");
  EXPECT_EQ(Affiche(0.4F, 0, 0).intercept, "0.4");
  EXPECT_EQ(Affiche(-0.001F, 0, 0).intercept, "0.0");
}

TEST(ResultLabels, TheAzimuthShowsOneOrTwoDecimals) {
  EXPECT_EQ(Affiche(0, 180, 0).azimut, "180.0");
  EXPECT_EQ(Affiche(0, 7.25F, 0).azimut, "7.25");
  EXPECT_EQ(Affiche(0, 359.999F, 0).azimut, "360.0");
}

TEST(ResultLabels, TheToolTipHoldsTheSignedComputedHeight) {
  EXPECT_EQ(Affiche(0, 0, 30 + 5.9 / 60).infobulle, "He =  30° 5'");
  EXPECT_EQ(Affiche(0, 0, -0.5).infobulle, "He =  -1° 30'");
}

} // namespace
} // namespace velmaris

#include "tests/sights/OutilsAstres.hpp"

#include <gtest/gtest.h>

/// What the sights of stars and planets have in common.
namespace velmaris {
namespace {

using essais::ViseeAstre;

template <class Visee> class StarOrPlanetSight : public testing::Test {};
using Visees = testing::Types<essais::ViseeEtoile, essais::ViseePlanete>;
TYPED_TEST_SUITE(StarOrPlanetSight, Visees, );

TYPED_TEST(StarOrPlanetSight, WithoutABodyNothingChanges) {
  TypeParam s{ViseeAstre{}};
  s.observation.planete = s.observation.etoile = 3;
  s.observation.*TypeParam::kAstre = -1;
  s.observation.hauteurOeil = "";
  s.observation.jour = "31";
  s.observation.lectureFraction = "";
  EXPECT_EQ(s.Reduit(), EtatReduction::SansAstre);
  s.RienNAChange();
  EXPECT_EQ(s.observation.lectureFraction, "");
}

TYPED_TEST(StarOrPlanetSight, AReadingOfZeroChangesNothing) {
  for (const char *zero : {"", "0", "00", "abc"}) {
    TypeParam s{ViseeAstre{}};
    s.observation.lectureDegres = s.observation.lectureMinutes = s.observation.lectureFraction = zero;
    s.observation.hauteurOeil = s.observation.collimation = s.observation.jour = "";
    EXPECT_EQ(s.Reduit(), EtatReduction::SansLecture) << zero;
    s.RienNAChange();
  }
}

TYPED_TEST(StarOrPlanetSight, AFieldThatMakesNoNumberOrNoMomentIsATypeMismatch) {
  for (const essais::CasChamp &cas : essais::kChampsRefuses) {
    TypeParam s{ViseeAstre{}};
    s.observation.*cas.champ = cas.texte;
    EXPECT_EQ(s.Echoue(), 13) << cas.texte;
    EXPECT_EQ(s.valeurs.Azimut, 12.0F) << cas.texte;
    EXPECT_EQ(s.valeurs.Intercept, 56.0F) << cas.texte;
    EXPECT_EQ(s.affichage.intercept, "before") << cas.texte;
    EXPECT_EQ(s.affichage.details[3], "before") << cas.texte;
  }
}

TYPED_TEST(StarOrPlanetSight, AnEyeBelowTheSeaIsAnInvalidArgument) {
  TypeParam s{ViseeAstre{}};
  s.observation.hauteurOeil = "-2,0";
  EXPECT_EQ(s.Echoue(), 5);
}

TYPED_TEST(StarOrPlanetSight, EyeAndCollimationKeepTheirTexts) {
  TypeParam s{ViseeAstre{}};
  s.observation.hauteurOeil = " 02,50 ";
  s.observation.collimation = "-1,123456789";
  ASSERT_EQ(s.Reduit(), EtatReduction::Faite);
  EXPECT_EQ(s.observation.hauteurOeil, " 02,50 ");
  EXPECT_EQ(s.observation.collimation, "-1,123456789");
}

} // namespace
} // namespace velmaris

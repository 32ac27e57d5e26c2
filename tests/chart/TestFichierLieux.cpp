#include "chart/FichierLieux.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velmaris::essais {
namespace {

constexpr std::string_view kToulouse = "+43.60 -001.44 2 V Toulouse la rose";

TEST(FichierLieux, ThePositionIsSplitAtTheFirstBlankAndTheLongitudeIsOneCharacterLonger) {
  const PositionLieu p = DecoupePosition(kToulouse);
  EXPECT_EQ(p.latitude, "+43.60");
  EXPECT_EQ(p.longitude, "-001.44");
  EXPECT_EQ(p.blanc, 6U);
}

TEST(FichierLieux, TheWidthOfTheLatitudeIsThatOfTheLongitudeLessOne) {
  const PositionLieu p = DecoupePosition("+43.6045 -001.4442 2 V Toulouse");
  EXPECT_EQ(p.latitude, "+43.6045");
  EXPECT_EQ(p.longitude, "-001.4442");
  EXPECT_EQ(DecoupePosition("+43.6 -001.44 2 V Toulouse").longitude, "-001.4") << "a digit is lost where they disagree";
  EXPECT_EQ(DecoupePosition("+43.60 -01.44 2 V Toulouse").longitude, "-01.44") << "and a blank gained";
}

TEST(FichierLieux, ACityHasItsClassAFieldThatIsNotUsedAndItsName) {
  const DetailsVille ville = DecoupeVille(kToulouse, 6);
  EXPECT_EQ(ville.classe, "2");
  EXPECT_EQ(ville.nom, "Toulouse la rose");
}

TEST(FichierLieux, TheUnusedFieldCanBeOfAnyLengthButNotEmpty) {
  EXPECT_EQ(DecoupeVille("+43.60 -001.44 2 123456 Toulouse", 6).nom, "Toulouse");
  EXPECT_EQ(DecoupeVille("+43.60 -001.44 2  Toulouse la rose", 6).nom, "Toulouse la rose")
      << "an empty field is its own blank";
  EXPECT_EQ(DecoupeVille("+43.60 -001.44 2 Toulouse la rose", 6).nom, "la rose") << "a line that lacks it";
}

TEST(FichierLieux, TheClassIsOneCharacter) {
  EXPECT_EQ(DecoupeVille("+43.60 -001.44 12 V Toulouse", 6).classe, "1");
  EXPECT_EQ(DecoupeVille("+43.60 -001.44 12 V Toulouse", 6).nom, "V Toulouse")
      << "its second digit is the unused field";
}

TEST(FichierLieux, AnObjectHasItsRadiusOfAnyLengthAndItsName) {
  const DetailsObjet objet = DecoupeObjet("+48.05 +005.00 125 Phare d'Ar-Men", 6);
  EXPECT_EQ(objet.rayon, "125");
  EXPECT_EQ(objet.nom, "Phare d'Ar-Men");
  EXPECT_EQ(DecoupeObjet("+48.05 +005.00 3 ", 6).nom, "") << "a name can be empty";
}

TEST(FichierLieux, ALineWithASemicolonAnywhereIsNoCityAndAnObjectMayHaveOneInItsName) {
  EXPECT_FALSE(EstLigneVille(""));
  EXPECT_FALSE(EstLigneVille("; villes"));
  EXPECT_FALSE(EstLigneVille("+43.60 -001.44 2 V Toulouse ; la rose"));
  EXPECT_TRUE(EstLigneVille(kToulouse));
  EXPECT_FALSE(EstLigneObjet(""));
  EXPECT_FALSE(EstLigneObjet("; objets"));
  EXPECT_TRUE(EstLigneObjet("+48.05 +005.00 3 Roche; danger"));
  EXPECT_TRUE(EstLigneObjet(" ; not first"));
}

TEST(FichierLieux, AccentsCountAsOneCharacterEach) {
  const PositionLieu p = DecoupePosition("éééééé ààààààà 2 ü Ç");
  EXPECT_EQ(p.longitude, "ààààààà");
  EXPECT_EQ(DecoupeVille("éééééé ààààààà é ü Çà", p.blanc).classe, "é");
  EXPECT_EQ(DecoupeVille("éééééé ààààààà é ü Çà", p.blanc).nom, "Çà");
}

TEST(FichierLieux, ALineCutAnywhereIsAnErrorOrAShorterName) {
  for (std::size_t n = 0; n <= kToulouse.size(); ++n) {
    const std::string_view ligne = kToulouse.substr(0, n);
    const int position = NumeroErreur([&] { DecoupePosition(ligne); });
    EXPECT_EQ(position, n < 7 ? 5 : 0) << ligne;
    if (position == 0) {
      const int details = NumeroErreur([&] { DecoupeVille(ligne, DecoupePosition(ligne).blanc); });
      EXPECT_EQ(details, n < 19 ? 5 : 0) << ligne;
    }
    if (n >= 19) {
      EXPECT_EQ(DecoupeVille(ligne, 6).nom, std::string_view("Toulouse la rose").substr(0, n - 19));
    }
  }
  constexpr std::string_view kObjet = "+48.05 +005.00 3 Ar-Men";
  for (std::size_t n = 7; n <= kObjet.size(); ++n) {
    const std::string_view ligne = kObjet.substr(0, n);
    EXPECT_EQ(NumeroErreur([&] { DecoupeObjet(ligne, DecoupePosition(ligne).blanc); }), n < 17 ? 5 : 0) << ligne;
  }
}

TEST(FichierLieux, NoiseNeverReadsOutsideItsLine) {
  for (const std::string &ligne : {std::string("\xC3 \xC3 \xC3 \xC3 \xC3"), std::string("\xFF\xFE \x80\x80\x80\x80"),
                                   std::string(" "), std::string("     "), std::string("\0 \0 \0 \0", 7)}) {
    NumeroErreur([&] {
      const PositionLieu p = DecoupePosition(ligne);
      EXPECT_LE(p.latitude.size() + p.longitude.size(), ligne.size());
      DecoupeObjet(ligne, p.blanc);
      DecoupeVille(ligne, p.blanc);
    });
  }
}

} // namespace
} // namespace velmaris::essais

#include "chart/Polygones.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace velmaris::essais {
namespace {

/// Reads a text, which must have that many points.
Polygone Lu(std::string_view octets, std::size_t points) {
  Polygone polygone;
  EXPECT_EQ(LitPolygone(polygone, octets), points) << octets.substr(0, 60);
  return polygone;
}

int ErreurLue(std::string_view octets) {
  Polygone polygone;
  return NumeroErreur([&] { LitPolygone(polygone, octets); });
}

std::string Points(std::size_t nombre) {
  std::string octets;
  for (std::size_t i = 0; i < nombre; ++i) {
    octets += "0.5 0.25\n";
  }
  return octets;
}

TEST(Polygones, APointIsXUpToTheFirstBlankAndYAfterIt) {
  const Polygone p = Lu("0.4859259 0.6212345\n2 0\n0.25 0.125", 3);
  EXPECT_EQ(p.PolyX[0], 0.4859259F);
  EXPECT_EQ(p.PolyY[0], 0.6212345F);
  EXPECT_EQ(p.PolyX[1], 2.0F);
  EXPECT_EQ(p.PolyY[1], 0.0F);
  EXPECT_EQ(p.PolyX[2], 0.25F);
  EXPECT_EQ(p.PolyY[2], 0.125F);
  EXPECT_EQ(p.PolyX[3], 0.0F) << "what follows the last point is (0, 0)";
  EXPECT_EQ(p.PolyY[3], 0.0F);
}

TEST(Polygones, ALineWithoutABlankIsYAloneAndXIsZero) {
  const Polygone p = Lu("0.25\n0.5 0.75\n", 2);
  EXPECT_EQ(p.PolyX[0], 0.0F);
  EXPECT_EQ(p.PolyY[0], 0.25F);
  EXPECT_EQ(p.PolyX[1], 0.5F);
}

TEST(Polygones, ALineThatOpensWithABlankHasXZero) {
  const Polygone p = Lu(" 0.25 0.5\n", 1);
  EXPECT_EQ(p.PolyX[0], 0.0F);
  EXPECT_EQ(p.PolyY[0], 0.25F);
}

TEST(Polygones, SeveralBlanksBeforeYAreSkippedAsInEveryNumber) {
  const Polygone p = Lu("0.25   0.5\n0.5\t0.75\n", 2);
  EXPECT_EQ(p.PolyY[0], 0.5F);
  EXPECT_EQ(p.PolyX[1], 0.0F) << "a tabulation is no blank between the two";
  EXPECT_EQ(p.PolyY[1], 0.5F);
}

TEST(Polygones, LinesEndWithLfCrLfOrCrAndTheLastNeedsNoEnd) {
  for (const char *octets :
       {"0.5 0.25\n0.125 0.75\n", "0.5 0.25\r\n0.125 0.75\r\n", "0.5 0.25\r0.125 0.75\r", "0.5 0.25\r\n0.125 0.75"}) {
    const Polygone p = Lu(octets, 2);
    EXPECT_EQ(p.PolyX[0], 0.5F);
    EXPECT_EQ(p.PolyY[0], 0.25F);
    EXPECT_EQ(p.PolyX[1], 0.125F);
    EXPECT_EQ(p.PolyY[1], 0.75F);
  }
}

TEST(Polygones, AnEmptyLineIsThePointThatEndsTheData) {
  const Polygone p = Lu("0.5 0.25\n\n0.75 0.25\n", 3);
  EXPECT_EQ(p.PolyX[1], 0.0F);
  EXPECT_EQ(p.PolyY[1], 0.0F);
  EXPECT_EQ(p.PolyX[2], 0.75F) << "it is read all the same";
}

TEST(Polygones, WordsAndNoiseReadAsTheNumberThatOpensThem) {
  EXPECT_EQ(Lu("abc def\n", 1).PolyX[0], 0.0F);
  EXPECT_EQ(Lu("0.5x 0.25y\n", 1).PolyX[0], 0.5F);
  EXPECT_EQ(Lu("0.5x 0.25y\n", 1).PolyY[0], 0.25F);
  EXPECT_EQ(Lu("NaN inf\n", 1).PolyX[0], 0.0F);
  EXPECT_EQ(Lu("NaN inf\n", 1).PolyY[0], 0.0F);
  EXPECT_EQ(Lu("1e-1 5.E-1\n", 1).PolyX[0], 0.1F);
  EXPECT_EQ(Lu("1e-1 5.E-1\n", 1).PolyY[0], 0.5F);
  EXPECT_EQ(Lu("-0.5 +0.25\n", 1).PolyX[0], -0.5F);
  EXPECT_EQ(Lu("-0.5 +0.25\n", 1).PolyY[0], 0.25F);
  EXPECT_EQ(Lu(std::string_view("\0\xFF\xFE 0.5\n", 8), 1).PolyY[0], 0.5F);
}

TEST(Polygones, ACoordinateThatLeaves32BitsIsAnOverflow) {
  EXPECT_EQ(ErreurLue("1e39 0.5\n"), 6);
  EXPECT_EQ(ErreurLue("0.5 -1e39\n"), 6);
  EXPECT_EQ(ErreurLue("1e999 0.5\n"), 6);
  EXPECT_EQ(ErreurLue("0.5 1e-999\n"), 0) << "too small is 0";
}

TEST(Polygones, AFileOf60001PointsIsReadAndTheNextLineIsOutsideTheTable) {
  EXPECT_EQ(Lu(Points(60001), 60001).PolyX[60000], 0.5F);
  EXPECT_EQ(ErreurLue(Points(60002)), 9);
  EXPECT_EQ(ErreurLue(Points(60001) + "\n"), 9) << "an empty line is a line";
}

TEST(Polygones, AnEmptyFileHasNoPoint) { EXPECT_EQ(Lu("", 0).PolyX[0], 0.0F); }

TEST(Polygones, EmptyingMakesEveryPointZero) {
  Polygone p = Lu(Points(60001), 60001);
  Vide(p);
  for (std::size_t i = 0; i < kPointsPolygone; ++i) {
    ASSERT_EQ(p.PolyX[i], 0.0F);
    ASSERT_EQ(p.PolyY[i], 0.0F);
  }
}

TEST(Polygones, EveryPlainNumberReadsAsTheGeneralRuleReadsIt) {
  std::mt19937 hasard(20261121);
  std::uniform_int_distribution<int> chiffre('0', '9');
  std::uniform_int_distribution<int> longueur(0, 17);
  const auto chiffres = [&](int n) {
    std::string texte;
    while (n-- > 0) {
      texte += static_cast<char>(chiffre(hasard));
    }
    return texte;
  };
  for (int tour = 0; tour < 20000; ++tour) {
    const std::string x = chiffres(longueur(hasard)) + "." + chiffres(longueur(hasard));
    const std::string y = chiffres(1 + longueur(hasard));
    const Polygone p = Lu(x + " " + y + "\n", 1);
    ASSERT_EQ(p.PolyX[0], Simple(Val(x))) << x;
    ASSERT_EQ(p.PolyY[0], Simple(Val(y))) << y;
  }
}

TEST(Polygones, TenMegabytesOfOneLineAreOnePoint) {
  const Polygone p = Lu("0.5 0.25" + std::string(10'000'000, ' '), 1);
  EXPECT_EQ(p.PolyX[0], 0.5F);
  EXPECT_EQ(p.PolyY[0], 0.25F);
}

} // namespace
} // namespace velmaris::essais

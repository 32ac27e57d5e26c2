#include "foundations/TexteNombre.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

namespace velmaris {
namespace {

using essais::NumeroErreur;

constexpr double kMax = std::numeric_limits<double>::max();

struct CasVal {
  const char *texte;
  double valeur;
};

TEST(Val, ReadsTheNumberThatOpensATextAndStopsAtTheFirstOtherCharacter) {
  const CasVal cas[] = {
      {"5", 5},           {"  5", 5},
      {"\t 5", 5},        {"+5", 5},
      {"-5", -5},         {"- 5", 0},
      {"--5", 0},         {"5 6", 5},
      {"007", 7},         {"2.5", 2.5},
      {".5", 0.5},        {"-.5", -0.5},
      {"5.", 5},          {"-5.x", -5},
      {"1.2.3", 1.2},     {"12abc", 12},
      {"abc", 0},         {"12°", 12},
      {"1E3", 1000},      {"1e3", 1000},
      {"1E+3", 1000},     {"1e-3", 0.001},
      {"5.4E-02", 0.054}, {"-2.5E1", -25},
      {"1E", 1},          {"1E+", 1},
      {"1E-x", 1},        {"1E 3", 1},
      {"1E3.5", 1000},    {"E3", 0},
      {".", 0},           {"-", 0},
      {"+.", 0},          {".E5", 0},
      {"0x10", 0},        {"1_000", 1},
      {"inf", 0},         {"nan", 0},
      {"-inf", 0},        {"-0", 0},
      {"é5", 0},          {"5é", 5},
      {"5\u00A06", 5},    {"0E999", 0},
      {"0.1", 0.1},       {"123456789", 123456789},
  };
  for (const CasVal &c : cas) {
    EXPECT_EQ(Val(c.texte), c.valeur) << c.texte;
  }
}

TEST(Val, AnEmptyOrBlankTextReadsAsZero) {
  for (const char *texte : {"", " ", "    ", "\t"}) {
    EXPECT_EQ(Val(texte), 0.0) << '"' << texte << '"';
  }
}

TEST(Val, ACommaEndsTheNumber) {
  EXPECT_EQ(Val("2,5"), 2.0);
  EXPECT_EQ(Val("-60,9"), -60.0);
  EXPECT_EQ(Val(",5"), 0.0);
}

TEST(Val, ANumberPastTheRangeReadsAsTheLargestWithItsSign) {
  EXPECT_EQ(Val("1E400"), kMax);
  EXPECT_EQ(Val("-1E400"), -kMax);
  EXPECT_EQ(Val("+1E99999999999999999999"), kMax);
}

TEST(Val, ANumberBelowTheRangeReadsAsZero) {
  EXPECT_EQ(Val("1E-400"), 0.0);
  EXPECT_EQ(Val("-1E-99999999999999999999"), 0.0);
  EXPECT_EQ(Val("5E-324"), std::numeric_limits<double>::denorm_min());
}

TEST(Val, TextsOfTenThousandCharactersAreReadWhole) {
  const std::size_t n = 10000;
  EXPECT_EQ(Val(std::string(n, ' ') + "7"), 7.0);
  EXPECT_EQ(Val(std::string(n, '0') + "7"), 7.0);
  EXPECT_EQ(Val("5" + std::string(n, 'a')), 5.0);
  EXPECT_EQ(Val(std::string(n, 'a')), 0.0);
  EXPECT_EQ(Val(std::string(n, '9')), kMax);
  EXPECT_EQ(Val("-" + std::string(n, '9')), -kMax);
  EXPECT_EQ(Val("0." + std::string(n, '0') + "1"), 0.0);
  EXPECT_EQ(Val("0." + std::string(n - 1, '0') + "1E10004"), 10000.0);
  EXPECT_EQ(Val("1." + std::string(n, '0')), 1.0);
  EXPECT_EQ(Val("1E" + std::string(n, '9')), kMax);
  EXPECT_EQ(Val("1E-" + std::string(n, '9')), 0.0);
}

TEST(Val, ReadsBackEverySignificantDigitThatAnotherReaderReads) {
  std::mt19937_64 alea(1);
  for (int i = 0; i < 5000; ++i) {
    const std::uint64_t bits = alea();
    double x = 0.0;
    std::memcpy(&x, &bits, sizeof x);
    if (!std::isfinite(x)) {
      continue;
    }
    char texte[64];
    std::snprintf(texte, sizeof texte, "%.17g", x);
    EXPECT_EQ(Val(texte), std::strtod(texte, nullptr)) << texte;
  }
}

TEST(WholeParts, FloorGoesDownAndTruncationTowardsZero) {
  const double cas[][3] = {{2.7, 2, 2}, {-2.7, -3, -2}, {2, 2, 2}, {-2, -2, -2}, {-0.1, -1, 0}, {0.9, 0, 0}};
  for (const auto &c : cas) {
    EXPECT_EQ(Int(c[0]), c[1]) << c[0];
    EXPECT_EQ(Fix(c[0]), c[2]) << c[0];
  }
}

TEST(SixteenBits, RoundsToNearestWithTiesToEven) {
  const double cas[][2] = {{0, 0},           {0.5, 0},         {1.5, 2},           {2.5, 2},
                           {3.5, 4},         {-0.5, 0},        {-1.5, -2},         {-2.5, -2},
                           {2.4999, 2},      {2.5001, 3},      {32767, 32767},     {32767.4, 32767},
                           {32766.5, 32766}, {-32768, -32768}, {-32768.5, -32768}, {-32768.4, -32768}};
  for (const auto &c : cas) {
    EXPECT_EQ(Entier16(c[0]), static_cast<std::int16_t>(c[1])) << c[0];
  }
}

TEST(SixteenBits, OutsideTheRangeItIsAnOverflow) {
  for (const double x : {32767.5, 32768.0, -32768.6, -32769.0, 1E10, -1E300, kMax,
                         std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(NumeroErreur([&] { Entier16(x); }), 6) << x;
  }
}

TEST(GeneralText, A64BitValueHasFifteenDigitsAndAnExponentPastItsThresholds) {
  const struct {
    double valeur;
    const char *texte;
  } cas[] = {{0.0, "0"},
             {-0.0, "0"},
             {1, "1"},
             {-2.5, "-2.5"},
             {0.1, "0.1"},
             {1.0 / 3.0, "0.333333333333333"},
             {2.0 / 3.0, "0.666666666666667"},
             {100, "100"},
             {1E14, "100000000000000"},
             {999999999999999.0, "999999999999999"},
             {999999999999999.9, "1E+15"},
             {1E15, "1E+15"},
             {-1E15, "-1E+15"},
             {1E100, "1E+100"},
             {123456789012345678.0, "1.23456789012346E+17"},
             {1E-4, "0.0001"},
             {9.9E-5, "9.9E-05"},
             {1E-5, "1E-05"},
             {5.4E-06, "5.4E-06"},
             {0.054, "0.054"},
             {1E-300, "1E-300"}};
  for (const auto &c : cas) {
    EXPECT_EQ(TexteGeneral(c.valeur), c.texte);
  }
}

TEST(GeneralText, A32BitValueHasSevenDigitsAndAnExponentPastItsThresholds) {
  const struct {
    float valeur;
    const char *texte;
  } cas[] = {{0.0F, "0"},
             {-0.0F, "0"},
             {0.1F, "0.1"},
             {3.27F, "3.27"},
             {123.456789F, "123.4568"},
             {-359.9999F, "-359.9999"},
             {9999999.0F, "9999999"},
             {1E7F, "1E+07"},
             {16777216.0F, "1.677722E+07"},
             {1E-4F, "0.0001"},
             {9.9E-5F, "9.9E-05"},
             {5.4E-06F, "5.4E-06"}};
  for (const auto &c : cas) {
    EXPECT_EQ(TexteGeneral(c.valeur), c.texte);
  }
}

TEST(GeneralText, AgreesWithTheCLibraryOnAnyValue) {
  std::mt19937_64 alea(2);
  for (int i = 0; i < 5000; ++i) {
    const std::uint64_t bits = alea();
    double x = 0.0;
    float y = 0.0F;
    std::memcpy(&x, &bits, sizeof x);
    std::memcpy(&y, &bits, sizeof y);
    char texte[64];
    if (std::isfinite(x)) {
      std::snprintf(texte, sizeof texte, "%.15G", x);
      EXPECT_EQ(TexteGeneral(x), texte);
    }
    if (std::isfinite(y)) {
      std::snprintf(texte, sizeof texte, "%.7G", double{y});
      EXPECT_EQ(TexteGeneral(y), texte);
    }
  }
}

TEST(CommaText, AValueIsWrittenWithACommaAndReadBack) {
  EXPECT_EQ(TexteVirgule(2.5F), "2,5");
  EXPECT_EQ(TexteVirgule(-0.1F), "-0,1");
  EXPECT_EQ(TexteVirgule(0.0F), "0");
  EXPECT_EQ(TexteVirgule(-0.0F), "0");
  EXPECT_EQ(TexteVirgule(12.0F), "12");
  EXPECT_EQ(TexteVirgule(1.5E-6F), "1,5E-06");
  for (const float x : {2.5F, -0.1F, 12.34F, 1.5E-6F, 2.5E7F}) {
    EXPECT_EQ(static_cast<float>(LitVirgule(TexteVirgule(x))), x);
  }
}

TEST(AvecPoint, ACommaIsTakenForThePointAndNothingElseChanges) {
  EXPECT_EQ(AvecPoint("50,9"), "50.9");
  EXPECT_EQ(AvecPoint(" -1,2,x"), " -1.2.x");
  EXPECT_EQ(AvecPoint("12.5"), "12.5");
  EXPECT_EQ(AvecPoint(""), "");
}

TEST(CommaText, AWholeNumberWithACommaIsRead) {
  const struct {
    const char *texte;
    double valeur;
  } cas[] = {{"2,5", 2.5}, {"-1", -1},      {" 3,0 ", 3},   {"5,", 5},
             {",5", 0.5},  {"+0,25", 0.25}, {"1,5E2", 150}, {"00,0", 0}};
  for (const auto &c : cas) {
    EXPECT_EQ(LitVirgule(c.texte), c.valeur) << c.texte;
  }
}

TEST(CommaText, ATextThatIsNotWhollyANumberIsATypeMismatch) {
  for (const char *texte : {"", "  ", "2.5", "abc", "2,5m", "1,2,3", ",", "-", "2 5", "1E", "é", "NaN", "0x1"}) {
    EXPECT_EQ(NumeroErreur([&] { LitVirgule(texte); }), 13) << '"' << texte << '"';
  }
}

TEST(CommaText, ANumberPastTheRangeIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { LitVirgule("1E400"); }), 6);
  EXPECT_EQ(NumeroErreur([] { LitVirgule("-" + std::string(10000, '9')); }), 6);
}

TEST(TextPieces, CountAndCutByCharacterNotByByte) {
  EXPECT_EQ(NombreCaracteres(""), 0U);
  EXPECT_EQ(NombreCaracteres("été"), 3U);
  EXPECT_EQ(NombreCaracteres("12°"), 3U);
  EXPECT_EQ(NombreCaracteres("€😀"), 2U);
  EXPECT_EQ(Gauche("été", 2), "ét");
  EXPECT_EQ(Gauche("été", 0), "");
  EXPECT_EQ(Gauche("été", 9), "été");
  EXPECT_EQ(Droite("été", 2), "té");
  EXPECT_EQ(Droite("été", 0), "");
  EXPECT_EQ(Droite("été", 9), "été");
  EXPECT_EQ(Droite("", 2), "");
}

TEST(TextPieces, CapitalsAreThoseOfTheLettersAToZAlone) {
  EXPECT_EQ(EnCapitales("Jupiter 2é"), "JUPITER 2é");
  EXPECT_EQ(EnCapitales(""), "");
}

TEST(TextPieces, BlanksGoAtBothEndsOnly) {
  EXPECT_EQ(SansBlancs("  a b\t"), "a b");
  EXPECT_EQ(SansBlancs("   "), "");
  EXPECT_EQ(SansBlancs(""), "");
  EXPECT_EQ(SansBlancs("a"), "a");
}

} // namespace
} // namespace velmaris

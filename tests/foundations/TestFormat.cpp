#include "foundations/TexteNombre.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace velmaris {
namespace {

struct CasFormat {
  const char *masque;
  double valeur;
  const char *texte;
};

class MaskTable : public testing::TestWithParam<CasFormat> {};

TEST_P(MaskTable, PrintsTheDigitsThatTheMaskDemands) {
  const CasFormat &c = GetParam();
  EXPECT_EQ(Format(c.valeur, c.masque), c.texte) << c.valeur << " under " << c.masque;
}

INSTANTIATE_TEST_SUITE_P(
    Whole, MaskTable,
    testing::Values(CasFormat{"00", 0, "00"}, CasFormat{"00", 5, "05"}, CasFormat{"00", 12, "12"},
                    CasFormat{"00", 123, "123"}, CasFormat{"00", -5, "-05"}, CasFormat{"00", 0.4, "00"},
                    CasFormat{"00", 2.5, "03"}, CasFormat{"00", 99.5, "100"}, CasFormat{"00", 9.4999, "09"},
                    CasFormat{"#00", 0, "00"}, CasFormat{"#00", 7, "07"}, CasFormat{"#00", 123, "123"},
                    CasFormat{"#00", 1234, "1234"}, CasFormat{"#0", 0, "0"}, CasFormat{"#0", 5, "5"},
                    CasFormat{"#0", 123, "123"}, CasFormat{"#0", -3.5, "-4"}, CasFormat{"0#", 0, "00"},
                    CasFormat{"0#", 5, "05"}, CasFormat{"0#", 60, "60"}, CasFormat{"0#", 123, "123"},
                    CasFormat{"0#", -5, "-05"}, CasFormat{"0000", 9, "0009"}, CasFormat{"0000", 2009, "2009"},
                    CasFormat{"0000", 12345, "12345"}, CasFormat{"000", 7, "007"}, CasFormat{"000", 359.5, "360"},
                    CasFormat{" 000", 5, " 005"}, CasFormat{" 000", 270, " 270"}));

INSTANTIATE_TEST_SUITE_P(Decimal, MaskTable,
                         testing::Values(CasFormat{"0#.0", 0, "00.0"}, CasFormat{"0#.0", 5, "05.0"},
                                         CasFormat{"0#.0", 59.96, "60.0"}, CasFormat{"0#.0", 5.25, "05.3"},
                                         CasFormat{"000.0", 7, "007.0"}, CasFormat{"000.0", 359.95, "360.0"},
                                         CasFormat{"000.0", 7.25, "007.3"}, CasFormat{"#0.0", 0.5, "0.5"},
                                         CasFormat{"#0.0", 2, "2.0"}, CasFormat{"#0.0", -1.25, "-1.3"},
                                         CasFormat{"#0.0#", -3.27, "-3.27"}, CasFormat{"#0.0#", 0, "0.0"},
                                         CasFormat{"#0.0#", 3.275, "3.28"}, CasFormat{"#0.0#", 12.5, "12.5"},
                                         CasFormat{"#0.0#", 0.04, "0.04"}, CasFormat{"##0.0#", 180, "180.0"},
                                         CasFormat{"##0.0#", 0, "0.0"}, CasFormat{"##0.0#", 359.999, "360.0"},
                                         CasFormat{"##0.0#", 45.678, "45.68"}, CasFormat{"00.00", 2.72376, "02.72"},
                                         CasFormat{"00.00", 0, "00.00"}, CasFormat{"00.00", -1.005, "-01.01"},
                                         CasFormat{"00.00", 123.4, "123.40"}));

INSTANTIATE_TEST_SUITE_P(
    NoZeroBeforeThePoint, MaskTable,
    testing::Values(CasFormat{"#.0#", 0.4, ".4"}, CasFormat{"#.0#", 0, ".0"}, CasFormat{"#.0#", -0.4, "-.4"},
                    CasFormat{"#.0#", 5, "5.0"}, CasFormat{"#.0#", 12.345, "12.35"}, CasFormat{"#.0#", -3.27, "-3.27"},
                    CasFormat{"#.0#", 0.005, ".01"}, CasFormat{"###.00", 0, ".00"}, CasFormat{"###.00", 45, "45.00"},
                    CasFormat{"###.00", 123.456, "123.46"}, CasFormat{"###.00", -0.5, "-.50"},
                    CasFormat{"###.##", 5, "5."}, CasFormat{"###.##", 180, "180."},
                    CasFormat{"###.##", 45.678, "45.68"}, CasFormat{"###.##", 0.5, ".5"}, CasFormat{"###.##", 0, "."},
                    CasFormat{"###.##", 359.996, "360."}, CasFormat{"#.##", 5, "5."}, CasFormat{"#.##", 0.25, ".25"},
                    CasFormat{"#.##", 2.675, "2.68"}, CasFormat{"#.##", 0, "."}));

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalText) {
  EXPECT_EQ(Format(2.675, "0.00"), "2.68");
  EXPECT_EQ(Format(-2.675, "0.00"), "-2.68");
  EXPECT_EQ(Format(1.005, "0.00"), "1.01");
  EXPECT_EQ(Format(0.285, "0.00"), "0.29");
  EXPECT_EQ(Format(1.45, "0.0"), "1.5");
  EXPECT_EQ(Format(0.5, "#0"), "1");
  EXPECT_EQ(Format(1.5, "#0"), "2");
  EXPECT_EQ(Format(2.5, "#0"), "3");
  EXPECT_EQ(Format(-2.5, "#0"), "-3");
  EXPECT_EQ(Format(9.995, "#0.00"), "10.00");
}

TEST(Format, EveryThousandthRoundsAsItsDigitsSay) {
  std::mt19937_64 alea(3);
  std::uniform_int_distribution<std::int64_t> milliemes(-99999999999, 99999999999);
  for (int i = 0; i < 20000; ++i) {
    const std::int64_t k = i < 4000 ? i - 2000 : milliemes(alea);
    const std::int64_t centiemes = (std::abs(k) + 5) / 10;
    const std::string decimales = std::to_string(100 + centiemes % 100).substr(1);
    const std::string attendu =
        (k < 0 && centiemes != 0 ? "-" : "") + std::to_string(centiemes / 100) + "." + decimales;
    EXPECT_EQ(Format(static_cast<double>(k) / 1000.0, "0.00"), attendu);
  }
}

TEST(Format, ANegativeValueThatRoundsToZeroLosesItsSign) {
  EXPECT_EQ(Format(-0.0, "00"), "00");
  EXPECT_EQ(Format(-0.4, "00"), "00");
  EXPECT_EQ(Format(-0.04, "#0.0"), "0.0");
  EXPECT_EQ(Format(-0.004, "#0.0#"), "0.0");
  EXPECT_EQ(Format(-0.004, "#.0#"), ".0");
  EXPECT_EQ(Format(-1E-300, "0#.0"), "00.0");
  EXPECT_EQ(Format(-0.005, "#0.0#"), "-0.01");
}

TEST(Format, AHugeValueShowsFifteenDigitsThenZeros) {
  EXPECT_EQ(Format(1E15, "00"), "1000000000000000");
  EXPECT_EQ(Format(1E20, "#0.0"), "100000000000000000000.0");
  EXPECT_EQ(Format(123456789012345678.0, "#0"), "123456789012346000");
  const std::string max = Format(std::numeric_limits<double>::max(), "#0");
  EXPECT_EQ(max, "179769313486232" + std::string(294, '0'));
}

TEST(Format, ATinyValueShowsTheZerosDemanded) {
  EXPECT_EQ(Format(1E-20, "00"), "00");
  EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "#0.0#"), "0.0");
  EXPECT_EQ(Format(0.05, "0.0"), "0.1");
  EXPECT_EQ(Format(0.0499999, "0.0"), "0.0");
}

TEST(Format, A32BitValueIsWidenedFirst) {
  // 0.125 is exact in 32 bits; 2.675 is 2.67499995231628 there and so rounds down.
  EXPECT_EQ(Format(0.125F, "0.00"), "0.13");
  EXPECT_EQ(Format(2.675F, "0.00"), "2.67");
}

TEST(Format, ATextThatIsANumberIsFormatted) {
  EXPECT_EQ(Format("5", "00"), "05");
  EXPECT_EQ(Format(" 5 ", "00"), "05");
  EXPECT_EQ(Format("60", "00"), "60");
  EXPECT_EQ(Format("4.5", "00"), "05");
  EXPECT_EQ(Format("-0", "00"), "00");
  EXPECT_EQ(Format("+7", "#00"), "07");
  EXPECT_EQ(Format("1E2", "00"), "100");
  EXPECT_EQ(Format(".5", "#0.0"), "0.5");
}

TEST(Format, ATextThatIsNotWhollyANumberComesBackAsItWas) {
  for (const char *texte : {"abc", "5a", "5 6", "2,5", ".", "-", "12°", "é", "  ", "1E", "1E400", "0x1F", "inf"}) {
    EXPECT_EQ(Format(texte, "00"), texte);
  }
}

TEST(Format, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(Format("", "00"), "");
  EXPECT_EQ(Format("", "#0.0", ','), "");
}

TEST(Format, TheCommaVariantReadsAndWritesAComma) {
  EXPECT_EQ(Format("2,5", "#0.0", ','), "2,5");
  EXPECT_EQ(Format("2", "#0.0", ','), "2,0");
  EXPECT_EQ(Format("-,25", "#0.0", ','), "-0,3");
  EXPECT_EQ(Format("2.5", "#0.0", ','), "2.5");
  EXPECT_EQ(Format("2,5 m", "#0.0", ','), "2,5 m");
  EXPECT_EQ(Format("1,2,3", "#0.0", ','), "1,2,3");
}

} // namespace
} // namespace velmaris

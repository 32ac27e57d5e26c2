#include "complements/exercice/Tirage.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

/// Draws that every machine makes alike.
namespace velmaris {
namespace {

TEST(Draw, TheEnginesTenThousandthNumberIsThatOfTheStandard) {
  Tirage tirage{std::mt19937_64()};
  tirage.moteur.discard(9999);
  EXPECT_EQ(tirage.moteur(), 9981545732273789042ULL);
}

TEST(Draw, ANormalHasItsMeanItsDeviationAndItsTails) {
  Tirage tirage{std::mt19937_64(7)};
  constexpr int kNombre = 100000;
  double somme = 0;
  double carres = 0;
  int dedans = 0;
  for (int i = 0; i < kNombre; ++i) {
    const double x = TireNormale(tirage, 2);
    somme += x;
    carres += x * x;
    dedans += std::fabs(x) < 2 * 1.96 ? 1 : 0;
    ASSERT_LE(std::fabs(x), 12);
  }
  EXPECT_NEAR(somme / kNombre, 0, 4 * 2 / std::sqrt(kNombre));
  EXPECT_NEAR(carres / kNombre, 4, 0.08);
  EXPECT_NEAR(static_cast<double>(dedans) / kNombre, 0.95, 0.004);
}

TEST(Draw, WholeNumbersAreEvenFromFirstToLast) {
  Tirage tirage{std::mt19937_64(8)};
  std::array<int, 5> comptes{};
  for (int i = 0; i < 50000; ++i) {
    ++comptes.at(static_cast<std::size_t>(TireEntier(tirage, 3, 7) - 3));
  }
  for (const int compte : comptes) {
    EXPECT_NEAR(compte, 10000, 400);
  }
}

} // namespace
} // namespace velmaris

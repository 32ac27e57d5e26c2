#include "complements/point/Lois.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

/// The laws of chance of a fix, by tables and closed forms.
namespace velmaris {
namespace {

TEST(Laws, ChiSquareHasTheChancesOfItsTables) {
  EXPECT_NEAR(ChanceKhi2(3.841, 1), 0.05, 1E-4);
  EXPECT_NEAR(ChanceKhi2(kFacteurEllipse, 2), 0.05, 1E-12);
  EXPECT_NEAR(ChanceKhi2(7.815, 3), 0.05, 1E-4);
  EXPECT_NEAR(ChanceKhi2(13.277, 4), 0.01, 1E-5);
  EXPECT_NEAR(ChanceKhi2(20.483, 10), 0.025, 1E-5);
  EXPECT_NEAR(ChanceKhi2(27.688, 13), 0.01, 1E-5);
  EXPECT_NEAR(ChanceKhi2(124.342, 100), 0.05, 1E-4);
  EXPECT_EQ(ChanceKhi2(3, 0), 1);
  EXPECT_EQ(ChanceKhi2(0, 3), 1);
  EXPECT_NEAR(ChanceKhi2(1E6, 5), 0, 1E-300);
}

TEST(Laws, FishersFactorIsThatOfItsTablesAndEndsAtChiSquares) {
  EXPECT_NEAR(FacteurFisher(1), 2 * 199.5, 0.1);
  EXPECT_NEAR(FacteurFisher(4), 2 * 6.944, 2E-3);
  EXPECT_NEAR(FacteurFisher(10), 2 * 4.103, 2E-3);
  EXPECT_NEAR(FacteurFisher(10000000), kFacteurEllipse, 1E-5);
}

TEST(Laws, OneNormalPassesItsBoundWithTheGivenChance) {
  EXPECT_NEAR(ChanceNormale(1.959964), 0.05, 1E-7);
  EXPECT_NEAR(SeuilDuPlusGrand(std::vector<double>{1}, 0.01), 2.575829, 2E-4);
  EXPECT_EQ(SeuilDuPlusGrand({}, 0.01), 0);
}

TEST(Laws, NormalsThatAreOneHaveTheBoundOfOneAndStrangersThatOfMany) {
  EXPECT_NEAR(SeuilDuPlusGrand(std::vector<double>{1, -1, 1, -1, 1, -1, 1, -1, 1}, 0.01), 2.575829, 2E-4);
  std::vector<double> etrangers(25, 0);
  for (std::size_t i = 0; i < 5; ++i) {
    etrangers[i * 6] = 1;
  }
  EXPECT_NEAR(ChanceNormale(SeuilDuPlusGrand(etrangers, 0.01)), 0.002, 1E-6);
}

TEST(Laws, TheBoundOfManyIsPassedAsOftenAsItSays) {
  // Normals that share a part: drawn, they pass the bound in the given share of draws or slightly less.
  std::mt19937_64 alea(3);
  std::normal_distribution<double> normale;
  for (const double rho : {0.3, 0.6, 0.9, 0.99}) {
    constexpr std::size_t kNombre = 5;
    std::vector<double> correlations(kNombre * kNombre, rho);
    for (std::size_t i = 0; i < kNombre; ++i) {
      correlations[i * (kNombre + 1)] = 1;
    }
    const double seuil = SeuilDuPlusGrand(correlations, 0.05);
    int passes = 0;
    constexpr int kTirages = 40000;
    for (int t = 0; t < kTirages; ++t) {
      const double part = normale(alea) * std::sqrt(rho);
      bool passe = false;
      for (std::size_t i = 0; i < kNombre; ++i) {
        passe = std::fabs(part + normale(alea) * std::sqrt(1 - rho)) > seuil || passe;
      }
      passes += passe ? 1 : 0;
    }
    EXPECT_LT(passes, 0.055 * kTirages) << rho;
    EXPECT_GT(passes, (rho > 0.8 ? 0.035 : 0.04) * kTirages) << rho;
  }
}

} // namespace
} // namespace velmaris

#include "foundations/Erreur.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmaris {
namespace {

using essais::NumeroErreur;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GuardedArithmetic, AQuotientIsTheQuotient) {
  EXPECT_EQ(Divise(7.31, 2.0), 7.31 / 2.0);
  EXPECT_EQ(Divise(0.0, -3.0), 0.0);
}

TEST(GuardedArithmetic, ADivisionByZeroIsErrorEleven) {
  EXPECT_EQ(NumeroErreur([] { Divise(1.0, 0.0); }), 11);
  EXPECT_EQ(NumeroErreur([] { Divise(1.0, -0.0); }), 11);
  EXPECT_EQ(NumeroErreur([] { Divise(0.0, 0.0); }), 11);
}

TEST(GuardedArithmetic, AQuotientPastTheRangeIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([] { Divise(1E300, 1E-300); }), 6);
  EXPECT_EQ(NumeroErreur([] { Divise(-1E300, 1E-300); }), 6);
}

TEST(GuardedArithmetic, ARootOfANegativeNumberIsAnInvalidArgument) {
  EXPECT_EQ(Racine(2.25), 1.5);
  EXPECT_EQ(Racine(0.0), 0.0);
  EXPECT_EQ(NumeroErreur([] { Racine(-1E-300); }), 5);
  EXPECT_EQ(NumeroErreur([] { Racine(kNaN); }), 5);
}

TEST(GuardedArithmetic, ALogarithmOfZeroOrLessIsAnInvalidArgument) {
  EXPECT_EQ(Log(1.0), 0.0);
  EXPECT_EQ(NumeroErreur([] { Log(0.0); }), 5);
  EXPECT_EQ(NumeroErreur([] { Log(-1.0); }), 5);
  EXPECT_EQ(NumeroErreur([] { Log(kNaN); }), 5);
}

TEST(GuardedArithmetic, StoringIn32BitsRoundsOnceAndOverflows) {
  EXPECT_EQ(Simple(0.1), 0.1F);
  EXPECT_EQ(Simple(16777217.0), 16777216.0F);
  EXPECT_EQ(NumeroErreur([] { Simple(1E39); }), 6);
  EXPECT_EQ(NumeroErreur([] { Simple(-1E39); }), 6);
  EXPECT_EQ(NumeroErreur([] { Simple(kNaN); }), 6);
}

TEST(PassedOver, AFailingStatementLeavesItsTarget) {
  double cible = 3.0;
  EXPECT_FALSE(Passe([&] { cible = Divise(1.0, 0.0); }));
  EXPECT_EQ(cible, 3.0);
}

TEST(PassedOver, AStatementThatRunsSetsItsTarget) {
  double cible = 3.0;
  EXPECT_TRUE(Passe([&] { cible = Divise(1.0, 4.0); }));
  EXPECT_EQ(cible, 0.25);
}

TEST(PassedOver, WhatIsNoRunTimeErrorPassesThrough) {
  EXPECT_THROW(Passe([] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST(ErrorMeaning, EveryNumberOfTheContractHasItsOwnText) {
  const std::string_view general = SensErreur(1);
  EXPECT_FALSE(general.empty());
  std::string_view precedent;
  for (const int numero : {5, 6, 9, 11, 13, 52, 53, 75}) {
    EXPECT_NE(SensErreur(numero), general) << numero;
    EXPECT_NE(SensErreur(numero), precedent) << numero;
    EXPECT_EQ(Erreur(numero).what(), SensErreur(numero)) << numero;
    precedent = SensErreur(numero);
  }
  EXPECT_EQ(SensErreur(-7), general);
}

} // namespace
} // namespace velmaris

#include "complements/ciel/Cosinus.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace velmaris {
namespace {

constexpr std::array kSeries{&kCielVenus, &kCielTerre, &kCielMars, &kCielJupiter, &kCielSaturne};
constexpr std::size_t kTout = 1U << 20U;

std::vector<Voie> VoiesPresentes() {
  const Voie large = VoieDuProcesseur();
  std::vector<Voie> voies{Voie::Une};
  if (large >= Voie::Deux) {
    voies.push_back(Voie::Deux);
  }
  if (large == Voie::Quatre) {
    voies.push_back(Voie::Quatre);
  }
  return voies;
}

TEST(Cosinus, AllWaysGiveTheSameSumToTheRoundingOfItsTerms) {
  for (const SeriesCiel *series : kSeries) {
    for (const CoordonneeCiel *coordonnee : {&series->L, &series->B, &series->R}) {
      for (const TermesCiel &termes : *coordonnee) {
        for (const double t : {-0.1, -0.0371, 0.0, 0.0266, 0.1}) {
          double amplitudes = 0;
          for (const double A : termes.A) {
            amplitudes += std::fabs(A);
          }
          const double seule = SommeCosinus(termes, t, kTout, Voie::Une);
          for (const Voie voie : VoiesPresentes()) {
            EXPECT_NEAR(SommeCosinus(termes, t, kTout, voie), seule, amplitudes * 1E-14);
          }
        }
      }
    }
  }
}

TEST(Cosinus, ColumnsAreFilledToNeighboursWithTermsOfNoAmplitude) {
  for (const SeriesCiel *series : kSeries) {
    for (const CoordonneeCiel *coordonnee : {&series->L, &series->B, &series->R}) {
      for (const TermesCiel &termes : *coordonnee) {
        EXPECT_EQ(termes.A.size() % 4, 0U);
        EXPECT_EQ(termes.A.size(), termes.B.size());
        EXPECT_EQ(termes.A.size(), termes.C.size());
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(termes.A.data()) % 32, 0U);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(termes.B.data()) % 32, 0U);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(termes.C.data()) % 32, 0U);
      }
    }
  }
}

TEST(Cosinus, ALimitTakesTheFirstTermsOnly) {
  const TermesCiel &termes = kCielTerre.L[0];
  double premiers = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    premiers += termes.A[i] * std::cos(termes.B[i] + termes.C[i] * 0.026);
  }
  for (const Voie voie : VoiesPresentes()) {
    EXPECT_NEAR(SommeCosinus(termes, 0.026, 8, voie), premiers, 1E-14);
    EXPECT_NEAR(SommeCosinus(termes, 0.026, 5, voie), premiers, 1E-14) << "rounded up to four";
    EXPECT_EQ(SommeCosinus(TermesCiel{}, 0.026, 8, voie), 0);
  }
}

} // namespace
} // namespace velmaris

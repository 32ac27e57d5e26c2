#include "complements/registre/Montre.hpp"
#include "complements/registre/Rangee.hpp"

#include <gtest/gtest.h>

#include <random>

/// The watch, compared from time to time.
namespace velmaris::essais {
namespace {

constexpr std::int64_t kJour = 86400;

TEST(Montre, ItsErrorIsThatOfTheLastComparisonCarriedOnByItsRate) {
  const std::vector<ReleveMontre> releves = {{0, 10, 2}, {10 * kJour, -4, -0.5}};
  EXPECT_FALSE(ErreurMontre(releves, -1)) << "nothing is known of it before";
  EXPECT_EQ(ErreurMontre(releves, 0), 10);
  EXPECT_EQ(ErreurMontre(releves, 5 * kJour), 20);
  EXPECT_EQ(ErreurMontre(releves, 10 * kJour - kJour / 2), 29);
  EXPECT_EQ(ErreurMontre(releves, 10 * kJour), -4);
  EXPECT_EQ(ErreurMontre(releves, 30 * kJour), -14);
  EXPECT_FALSE(ErreurMontre({}, 0));
}

TEST(Montre, ComparisonsAreReadBackToTheBitInTheOrderOfTime) {
  std::mt19937_64 hasard(7);
  std::uniform_real_distribution<double> secondes(-60, 60);
  std::string octets;
  std::vector<ReleveMontre> ecrits(500);
  for (std::size_t i = 0; i < ecrits.size(); ++i) {
    ecrits[i] = {static_cast<std::int64_t>(i) * 3601, secondes(hasard), secondes(hasard)};
    octets = LigneMontre(ecrits[i]) + "\n" + octets; // entered in no order
  }
  EXPECT_EQ(LitMontre(octets), ecrits);
}

TEST(Montre, OfOneMomentTheLaterLineWinsAndWhatIsBrokenOrCutIsPassedOver) {
  const std::string bonne = LigneMontre({kJour, 1.25, 0.5});
  const std::string octets = std::string(kTitresMontre) + "\n" + LigneMontre({kJour, 9, 9}) + "\r\n" + bonne +
                             "\nx,y\n" + LigneMontre({2 * kJour, 100'000, 0}) + "\n1970-13-01T00:00:00Z,1,1,.\n" +
                             "1970-01-03T00:00:00Z,nan,1,.\n" + bonne.substr(0, bonne.size() - 1);
  EXPECT_EQ(LitMontre(octets), (std::vector<ReleveMontre>{{kJour, 1.25, 0.5}}));
}

} // namespace
} // namespace velmaris::essais

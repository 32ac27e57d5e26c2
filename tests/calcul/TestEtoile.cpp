#include "Passage.hpp"
#include "ephemerides/Etoiles.hpp"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CalculEtoile, TellsThePlaceOfARowAtADate) {
  Etoiles etoiles;
  std::vector<std::string> liste;
  ChargeEtoiles(etoiles, liste);
  for (const int rang : {1, 2, 101, 156, 157, 246}) {
    const Passage p = Lance({"etoile", std::to_string(rang), "21", "06", "2026"});
    ASSERT_EQ(p.etat, 0) << p.erreurs;
    EXPECT_THAT(p.erreurs, IsEmpty());
    const auto o = Objets(p.sortie).at(0);
    EXPECT_THAT(Cles(o), ElementsAre("texte"));
    EXPECT_EQ(o["texte"].get<std::string>(),
              CoordEtoile(etoiles, static_cast<std::int16_t>(rang), -1, {"21", "06", "2026"}));
  }
}

TEST(CalculEtoile, ARowOutsideTheTableIsAUsageError) {
  for (const char *rang : {"0", "247", "-1", "1.5", "Vega", ""}) {
    const Passage p = Lance({"etoile", rang, "21", "06", "2026"});
    EXPECT_EQ(p.etat, 2) << rang;
    EXPECT_THAT(p.sortie, IsEmpty()) << rang;
  }
}

TEST(CalculEtoile, ADateThatIsNoNumberOrMissingIsAUsageError) {
  EXPECT_EQ(Lance({"etoile", "1", "21", "juin", "2026"}).etat, 2);
  EXPECT_EQ(Lance({"etoile", "1", "21", "06"}).etat, 2);
}

TEST(CalculEtoile, ADateBeyondNumbersIsAnErrorInTheObject) {
  const Passage p = Lance({"etoile", "1", "21", "06", "1e308"});
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(Objets(p.sortie).at(0)["erreur"]["numero"], 6);
}

} // namespace
} // namespace velmaris

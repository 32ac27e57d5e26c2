#include "OutilsCiel.hpp"

#include "complements/ciel/LuneDuMoment.hpp"

#include <gtest/gtest.h>
#include <libnova/libnova.h>

namespace velmaris {
namespace {

using essais::Ecart;
using essais::JoursAuHasard;
using essais::RaisonDe;

TEST(LuneDuMoment, TheTableIsTheWholeTheoryWithinTenMetres) {
  for (const double jd : JoursAuHasard(150, 1900, 2100)) {
    ln_rect_posn p{};
    ln_get_lunar_geo_posn(jd, &p, 0);
    EXPECT_LT(Longueur(Ajoute(LuneEcliptique({jd, 0}), -1, {p.X, p.Y, p.Z})), 0.01) << jd;
  }
}

TEST(LuneDuMoment, TheMoonIsNotGrosslyWrong) {
  for (const double jd : JoursAuHasard(300, 1900, 2100)) {
    double pv[2][3];
    eraMoon98(jd, 0, pv);
    const Vecteur3 juge{pv[0][0], pv[0][1], pv[0][2]};
    const Vecteur3 lune = LuneIcrs({jd, 0});
    // Its authors tell 10" and 4" of longitude and latitude, and 20 km.
    EXPECT_LT(Ecart(lune, juge), 13) << jd;
    EXPECT_NEAR(Longueur(lune) * ERFA_DAU / 1E3, Longueur(juge) * ERFA_DAU / 1E3, 25) << jd;
  }
}

TEST(LuneDuMoment, PiecesOfTheTableMeetWithoutAStep) {
  for (int i = 1; i < 9000; i += 37) {
    const double jd = 2415012.5 + 8 * i;
    EXPECT_LT(Longueur(Ajoute(LuneEcliptique({jd, 0}), -1, LuneEcliptique({jd, -1E-9}))), 0.02) << i;
  }
}

TEST(LuneDuMoment, OutsideItsTwoCenturiesTheMoonIsRefused) {
  const auto raison = [](const DateCivile &date) {
    return RaisonDe([&] { PlaceDe(PrepareCiel(MomentDe(date)), {GenreAstre::Lune}); });
  };
  EXPECT_EQ(raison({1899, 12, 1}), RaisonRefus::LuneHorsTable);
  EXPECT_EQ(raison({1900, 1, 1}), std::nullopt);
  EXPECT_EQ(raison({2100, 12, 31, 23, 59, 59}), std::nullopt);
  EXPECT_EQ(raison({2101, 2, 1}), RaisonRefus::LuneHorsTable);
}

} // namespace
} // namespace velmaris

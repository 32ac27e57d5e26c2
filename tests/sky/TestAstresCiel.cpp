#include "sky/AstresCiel.hpp"

#include "tests/OutilsTests.hpp"

#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/TexteNombre.hpp"
#include "sky/LettreGrecque.hpp"

#include <erfa.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// The bodies of the sky's chart: their angles, and how they look.
namespace velmaris::essais {
namespace {

constexpr double kRadian = M_PI / 180;

class AstresCiel : public ::testing::Test {
protected:
  AstresCiel() { ChargeEtoiles(etoiles, liste); }
  std::size_t Rang(std::string_view nom) const {
    return static_cast<std::size_t>(std::find(etoiles.EtoileNom.begin(), etoiles.EtoileNom.end(), nom) -
                                    etoiles.EtoileNom.begin());
  }
  Etoiles etoiles;
  std::vector<std::string> liste;
  AnglesCiel angles;
  RegardCiel brest{48.39F, 4.49F, {2026, 6, 21, 22, 5, 30}};
};

TEST_F(AstresCiel, AStarsAnglesAreThoseOfItsPlaceSeenFromTheObserver) {
  for (const std::size_t i : {1U, 26U, 149U, 200U, 246U}) {
    CalculeEtoile(angles, etoiles, i, {"21", "06", "2026"}, brest);
    const PaireX place = LitPaireX(CoordEtoile(etoiles, static_cast<std::int16_t>(i), -1, {"21", "06", "2026"}));
    EXPECT_EQ(angles.AngleAD, static_cast<float>(place.gauche));
    EXPECT_EQ(angles.AngleDec, static_cast<float>(place.droite + 90));
    double dec = place.droite;
    double latitude = 48.39F;
    const PaireX vu = LitPaireX(CelesteVersHorizon(brest.date, place.gauche, dec, latitude, -4.49F));
    EXPECT_EQ(angles.AngleAz, static_cast<float>(vu.gauche));
    EXPECT_EQ(angles.AngleHaut, static_cast<float>(vu.droite));
  }
}

TEST_F(AstresCiel, VegaStandsWhereAnotherLibraryPutsIt) {
  CalculeEtoile(angles, etoiles, Rang("Vega"), {"21", "06", "2026"}, brest);
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(2026, 6, 21, &jd0, &jd);
  jd += (22 + 5 / 60.0 + 30 / 3600.0) / 24;
  double az = 0;
  double h = 0;
  eraHd2ae(eraGmst82(jd0, jd) - 4.49 * kRadian - angles.AngleAD * kRadian, (angles.AngleDec - 90.0) * kRadian,
           48.39 * kRadian, &az, &h);
  EXPECT_NEAR(angles.AngleAz, az / kRadian, 0.01);
  EXPECT_NEAR(angles.AngleHaut, h / kRadian, 0.01);
  EXPECT_GT(angles.AngleHaut, 55) << "a summer evening";
}

TEST_F(AstresCiel, APlanetIsThatOfTheClockAndLeavesItsHorizonOnly) {
  Horloge horloge = HorlogeFixe({2026, 6, 0, 21, 22, 5, 30, 0}, {2026, 6, 21, 23, 5, 30});
  angles.AngleAD = 1.0F;
  angles.AngleDec = 2.0F;
  for (const std::string_view planete : kPlanetesCiel) {
    const PlaceEquateur place = CalculePlanete(angles, planete, horloge, brest);
    std::string nom(planete);
    const std::string ligne = PositionPlanete(nom, horloge);
    // "03h 12m 45.1s" in sixteen columns, then the declination's.
    const std::string ad(SansBlancs(ligne.substr(0, ligne.find('|'))));
    EXPECT_NEAR(place.a, 15 * (Val(ad.substr(0, 2)) + Val(ad.substr(4, 2)) / 60 + Val(ad.substr(8)) / 3600), 1e-9);
    double dec = place.dec;
    double latitude = 48.39F;
    const PaireX vu = LitPaireX(CelesteVersHorizon(brest.date, place.a, dec, latitude, -4.49F));
    EXPECT_EQ(angles.AngleAz, static_cast<float>(vu.gauche));
    EXPECT_EQ(angles.AngleHaut, static_cast<float>(vu.droite));
  }
  EXPECT_TRUE(angles.AngleAD == 1.0F && angles.AngleDec == 2.0F);
}

TEST_F(AstresCiel, AStarAtTheHorizonExactlyCountsAsBelowIt) {
  EXPECT_EQ(CouleurEtoile(0.0F), 0xFF0000U);
  EXPECT_EQ(CouleurEtoile(-1.0F), 0xFF0000U);
  EXPECT_EQ(CouleurEtoile(1e-6F), 0xFFFFFFU);
}

TEST_F(AstresCiel, TheSkyIsDarkFromTheSunsHeightOfExactlyZero) {
  EXPECT_EQ(FondCiel(0.0F), 0x800000U);
  EXPECT_EQ(FondCiel(-0.01F), 0x800000U);
  EXPECT_EQ(FondCiel(0.01F), 0xFF0000U);
}

TEST_F(AstresCiel, TwentyFiveStarsOfTheTableAreOfTheShortList) {
  std::vector<std::string> courtes;
  std::copy_if(liste.begin(), liste.end(), std::back_inserter(courtes), EstNavigable);
  EXPECT_EQ(courtes.size(), 25U) << "the table spells Achenar, the short list Achernar";
  EXPECT_TRUE(EstNavigable("Sirius") && EstNavigable("Rigil Kentaurus") && EstNavigable("Achernar"));
  EXPECT_FALSE(EstNavigable("Algol") || EstNavigable("") || EstNavigable("SIRIUS"));
}

TEST_F(AstresCiel, APlanetsNameIsWrittenWithOneCapital) {
  EXPECT_EQ(NomSurCarte("VENUS"), "Venus");
  EXPECT_EQ(NomSurCarte("SATURNE"), "Saturne");
}

TEST_F(AstresCiel, APairThatLeavesThirtyTwoBitsIsAnOverflow) {
  EXPECT_EQ(NumeroErreur([&] { PrendHorizonCiel(angles, "1E300X0"); }), 6);
  PrendHorizonCiel(angles, "12.5X-3.25");
  EXPECT_EQ(angles.AngleAz, 12.5F);
  EXPECT_EQ(angles.AngleHaut, -3.25F);
}

TEST_F(AstresCiel, TheTablesLettersAreThoseOfTheGreekAlphabet) {
  EXPECT_EQ(LettreGrecque("a"), "α");
  EXPECT_EQ(LettreGrecque("h"), "η");
  EXPECT_EQ(LettreGrecque("q"), "θ");
  EXPECT_EQ(LettreGrecque("w"), "ω");
  EXPECT_EQ(LettreGrecque("z"), "ζ");
  EXPECT_EQ(LettreGrecque("L"), "L") << "L Puppis is a Latin name";
  EXPECT_EQ(LettreGrecque(""), "");
}

TEST_F(AstresCiel, EveryStarHasAGreekLetterButLPuppis) {
  for (std::size_t i = 1; i <= 246; ++i) {
    const std::string_view lettre = etoiles.EtoileBayer[i].substr(0, 1);
    EXPECT_TRUE(lettre == "L" || LettreGrecque(lettre).size() == 2) << etoiles.EtoileBayer[i];
  }
}

} // namespace
} // namespace velmaris::essais

#include "OutilsLunaire.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/lunaire/Classement.hpp"

#include <gmock/gmock.h>

#include <cmath>

/// Which bodies will do for a lunar distance.
namespace velmaris {
namespace {

using essais::Nuit;

std::vector<Astre> Tous() {
  std::vector<Astre> astres{{GenreAstre::Soleil, 0},  {GenreAstre::Venus, 0},   {GenreAstre::Mars, 0},
                            {GenreAstre::Jupiter, 0}, {GenreAstre::Saturne, 0}, {GenreAstre::Lune, 0},
                            {GenreAstre::Belier, 0}};
  for (int rang = 1; rang <= 70; ++rang) {
    astres.push_back({GenreAstre::Etoile, rang});
  }
  return astres;
}

TEST(LunarRanking, PutsTheFastestOfThoseThatWillDoFirstAndTellsWhyOthersWont) {
  std::mt19937_64 alea(2070);
  for (int i = 0; i < 10; ++i) {
    const Nuit nuit = essais::NuitAuHasard(alea, 15);
    const auto classes = ClasseLunaires(nuit.utc, nuit.lieu, nuit.oeil, Tous(), nuit.air);
    ASSERT_EQ(classes.size(), Tous().size());
    double avant = 1E9;
    bool encore = true;
    for (const CandidatLunaire &c : classes) {
      EXPECT_TRUE(encore || c.raison) << "those that will do come first";
      encore = !c.raison;
      if (c.raison == RaisonSansLunaire::SansPlace) {
        EXPECT_TRUE(c.astre.genre == GenreAstre::Lune || c.astre.genre == GenreAstre::Belier ||
                    c.astre.rang == kRangSansPlace);
        continue;
      }
      if (std::min(c.vue.hauteurLune, c.vue.hauteurAstre) < 10 || c.vue.sansAir < 10) {
        EXPECT_TRUE(c.raison) << "too low, too near";
        continue;
      }
      // The limb's rate is the centre's within the change of refraction and semidiameter.
      EXPECT_NEAR(c.cadence, essais::CadenceJugee(nuit, c.astre), 0.6) << c.astre.rang;
      if (!c.raison) {
        EXPECT_LE(std::fabs(c.cadence), avant);
        avant = std::fabs(c.cadence);
        EXPECT_NEAR(c.secondes * std::fabs(c.cadence), 3600, 1E-6);
        EXPECT_GE(std::min(c.vue.hauteurLune, c.vue.hauteurAstre), 10);
      }
    }
  }
}

TEST(LunarRanking, TheLitLimbLooksToTheSun) {
  PlaceGeocentrique lune;
  lune.gha = 60;
  PlaceGeocentrique soleil;
  soleil.gha = 0;
  PlaceGeocentrique astre;
  astre.gha = 100;
  EXPECT_EQ(BordEclaire(lune, soleil, soleil), BordDistance::Proche);
  EXPECT_EQ(BordEclaire(lune, soleil, astre), BordDistance::Lointain) << "the Moon stands between";
  astre.gha = 30;
  EXPECT_EQ(BordEclaire(lune, soleil, astre), BordDistance::Proche);
}

TEST(LunarRanking, TheDarkLimbIsTold) {
  std::mt19937_64 alea(2071);
  for (int i = 0; i < 10; ++i) {
    const Nuit nuit = essais::NuitAuHasard(alea, 20);
    const Astre &astre = nuit.astres.front();
    const CielDuMoment ciel = PrepareCiel({TTDe(nuit.utc), UT1De(nuit.utc, 0)});
    const PlaceGeocentrique lune = PlaceDe(ciel, {GenreAstre::Lune, 0});
    const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil, 0});
    if (EcartLieux({lune.declinaison, -lune.gha}, {soleil.declinaison, -soleil.gha}) > 165) {
      continue;
    }
    const BordDistance lit = BordEclaire(lune, soleil, PlaceDe(ciel, astre));
    for (const BordDistance bord : {BordDistance::Proche, BordDistance::Lointain}) {
      const MesureLunaire m = essais::MesureVraie(nuit, astre, 0, 0, false, bord);
      const FicheLunaire fiche = ReduitLunaires(std::span(&m, 1), essais::ReglagesDe(nuit));
      const bool sombre = std::find(fiche.avis.begin(), fiche.avis.end(), AvisLunaire::BordSombre) != fiche.avis.end();
      EXPECT_EQ(sombre, bord != lit) << i;
    }
  }
}

} // namespace
} // namespace velmaris

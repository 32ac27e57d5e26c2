#include "OutilsPrevision.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/prevision/Compas.hpp"
#include "complements/prevision/Identification.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

/// The Sun's amplitude, the compass, and a body that isn't known.
namespace velmaris {
namespace {

using essais::Mouillage;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kRadian = std::numbers::pi / 180;
constexpr Astre kSoleil{GenreAstre::Soleil, 0};

AmplitudesDuJour Amplitudes(const NavirePrevu &navire) {
  const DateCivile d = CivileDe(navire.heure);
  const JourCivil jour{d.annee, d.mois, d.jour, std::nullopt};
  const CielDuJour ciel = *CielDeLaJournee(essais::Table(), jour, navire);
  return AmplitudesSoleil(ciel, *CalculeJournee(ciel, jour, navire), navire);
}

TEST(Amplitude, IsTheArcWhoseSineIsThatOfTheDeclinationOverTheCosineOfTheLatitude) {
  for (const double latitude : {-55.0, -20.0, 0.0, 40.0, 60.0}) {
    const AmplitudesDuJour jour = Amplitudes(Mouillage(latitude, 0, 5, 10));
    ASSERT_THAT(jour.amplitudes, SizeIs(2)) << latitude;
    for (const AmplitudeSoleil &a : jour.amplitudes) {
      const double dec = PlaceDe(essais::CielPropre(a.moment.utc), kSoleil).declinaison;
      const double forme = std::asin(std::sin(dec * kRadian) / std::cos(latitude * kRadian)) / kRadian;
      // Parallax lifts the horizon by 8.8", which at 60 degrees is 0.005 degree of azimuth.
      EXPECT_NEAR(a.amplitude, forme, 0.006) << latitude;
      EXPECT_EQ(a.lever, a.moment.azimut < 180);
      EXPECT_NEAR(essais::Voit(Mouillage(latitude, 0, 5, 10), kSoleil, a.moment.utc).hauteur, 0, 1E-4);
    }
  }
}

TEST(Amplitude, IsTakenWhenTheLowerLimbStandsTwoThirdsOfADiameterOverTheSea) {
  NavirePrevu navire = Mouillage(30, 0, 4, 2);
  const AmplitudeSoleil bas = Amplitudes(navire).amplitudes.front();
  navire.hauteurOeil = 9;
  // The diameter is 32': refraction lifts the limb by half of that over its true height, the dip of a bridge does the
  // rest.
  EXPECT_NEAR(Amplitudes(navire).amplitudes.front().bordInferieur, 2.0 / 3 * 32, 2);
  EXPECT_NEAR(Amplitudes(navire).amplitudes.front().bordInferieur, bas.bordInferieur + 1.76 * 3, 0.01)
      << "the sea's horizon lies lower by the dip";
}

TEST(Amplitude, ASunThatDoesNotCrossTheHorizonHasNone) {
  const AmplitudesDuJour jour = Amplitudes(Mouillage(75, 0, 6, 21));
  EXPECT_THAT(jour.amplitudes, IsEmpty());
  EXPECT_EQ(jour.absence, RaisonAbsence::ToujoursAuDessus);
}

TEST(Amplitude, CountsFromEastAndFromWestNorthPositive) {
  EXPECT_NEAR(AmplitudeDe(60), 30, 1E-12);
  EXPECT_NEAR(AmplitudeDe(115), -25, 1E-12);
  EXPECT_NEAR(AmplitudeDe(300), 30, 1E-12);
  EXPECT_NEAR(AmplitudeDe(245), -25, 1E-12);
}

TEST(Compas, BearingVariationAndDeviationMakeTheTrueBearing) {
  // Compass 100, variation 5 west, true 097: the iron draws it 2 degrees east.
  const EcartCompas ecart = EcartDuCompas(97, 100, -5);
  EXPECT_NEAR(ecart.total, -3, 1E-12);
  EXPECT_NEAR(ecart.deviation, 2, 1E-12);
  EXPECT_NEAR(AzimutVrai(100, -5, ecart.deviation), 97, 1E-12);
  const EcartCompas tour = EcartDuCompas(1, 358, 10);
  EXPECT_NEAR(tour.total, 3, 1E-12);
  EXPECT_NEAR(tour.deviation, -7, 1E-12);
  EXPECT_NEAR(AzimutVrai(358, 10, -7), 1, 1E-12);
}

/// A sky of some evening.
struct Soir {
  NavirePrevu navire = Mouillage(30, -40, 2, 10);
  CielDuJour ciel = *CielDeLaJournee(essais::Table(), {2026, 2, 10, std::nullopt}, navire);
  ReglagesPlan reglages;
  CielDuPlan plan = RegardeCiel(ciel, navire, UTCDe({2026, 2, 10, 22, 30, 0}), reglages);
};

TEST(Identification, ASextantReadingAndABearingFindTheirBody) {
  const Soir soir;
  int trouves = 0;
  for (std::size_t rang = 2; rang < soir.plan.astres.size(); ++rang) {
    const AstreDuPlan &a = soir.plan.astres[rang];
    if (!a.prereglage || a.magnitude > 1.5 || a.apparente < 5) {
      continue;
    }
    AstreInconnu inconnu;
    inconnu.lecture = *a.prereglage;
    inconnu.azimut = a.azimut;
    const auto probables = IdentifieAstre(soir.plan, soir.reglages, inconnu);
    ASSERT_FALSE(probables.empty());
    EXPECT_EQ(probables[0].rang, rang);
    // The reading's parallax, a planet's too, stays in the height that is looked for.
    EXPECT_LT(probables[0].distance, 0.001);
    EXPECT_GE(probables[0].chance, 0.3);
    ++trouves;
  }
  EXPECT_GT(trouves, 5);
}

TEST(Identification, APlanetIsAmongThemAndSunAndMoonNever) {
  const Soir soir;
  const std::size_t jupiter = *PlaceDansLeCiel(soir.ciel, {GenreAstre::Jupiter, 0});
  ASSERT_GT(soir.plan.astres[jupiter].apparente, 10);
  AstreInconnu inconnu;
  inconnu.apparente = soir.plan.astres[jupiter].apparente + 0.5;
  inconnu.azimut = soir.plan.astres[jupiter].azimut - 3;
  const auto probables = IdentifieAstre(soir.plan, soir.reglages, inconnu);
  ASSERT_FALSE(probables.empty());
  EXPECT_EQ(probables[0].rang, jupiter);
  EXPECT_NEAR(probables[0].distance, std::hypot(0.5 / 1, 3.0 / 5), 0.001);
  inconnu.douteAzimut = 1000;
  inconnu.douteHauteur = 1000;
  double somme = 0;
  for (const AstreProbable &p : IdentifieAstre(soir.plan, soir.reglages, inconnu, 300)) {
    EXPECT_GT(soir.plan.astres[p.rang].astre.genre, GenreAstre::Lune);
    EXPECT_GE(soir.plan.astres[p.rang].apparente, 0);
    somme += p.chance;
  }
  EXPECT_NEAR(somme, 1, 1E-12);
}

TEST(Identification, OfTwoAsNearTheBrighterIsLikelierByItsLight) {
  CielDuPlan ciel;
  for (const double signe : {-1.0, 1.0}) {
    AstreDuPlan a;
    a.astre = {GenreAstre::Etoile, signe < 0 ? 1 : 2};
    a.hauteur = a.apparente = 40;
    a.azimut = 100 + 4 * signe;
    a.magnitude = signe < 0 ? 3.5 : 1;
    ciel.astres.push_back(a);
  }
  AstreInconnu inconnu;
  inconnu.azimut = 100;
  const auto probables = IdentifieAstre(ciel, {}, inconnu);
  ASSERT_THAT(probables, SizeIs(2));
  EXPECT_EQ(probables[0].rang, 1U);
  EXPECT_NEAR(probables[0].chance / probables[1].chance, 10, 1E-9) << "2.5 magnitudes are ten times the light";
}

TEST(Identification, WithoutAHeightOrABearingThereIsNone) {
  const Soir soir;
  EXPECT_THAT(IdentifieAstre(soir.plan, soir.reglages, {}), IsEmpty());
  AstreInconnu nulle;
  nulle.azimut = 100;
  nulle.apparente = -40;
  EXPECT_THAT(IdentifieAstre(soir.plan, soir.reglages, nulle), IsEmpty());
}

} // namespace
} // namespace velmaris

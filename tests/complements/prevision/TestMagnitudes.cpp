#include "complements/prevision/Magnitudes.hpp"

#include "complements/ciel/TablesCiel.hpp"

#include <gtest/gtest.h>
#include <libnova/jupiter.h>
#include <libnova/mars.h>

#include <algorithm>
#include <cmath>
#include <vector>

/// Magnitudes against published ones.
namespace velmaris {
namespace {

struct Etendue {
  double brillant = 99;
  double faible = -99;
  double somme = 0;
  int nombre = 0;
};

/// A planet's magnitudes every few days of a century, leaving out what stands within ten degrees of the Sun.
Etendue EtendueDe(GenreAstre genre) {
  Etendue e;
  for (double jour = -18262; jour < 18262; jour += 7) {
    const CielDuMoment ciel = PrepareCiel({{2451544.5, jour}, {2451544.5, jour}});
    const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil, 0});
    const PlaceGeocentrique place = PlaceDe(ciel, {genre, 0});
    const EclairementAstre eclairage = EclairementDe(place, soleil);
    const double anneaux = genre == GenreAstre::Saturne ? OuvertureAnneaux(ciel, place, soleil) : 0;
    const double m = MagnitudeDe(genre, eclairage, anneaux);
    e.brillant = std::min(e.brillant, m);
    e.faible = std::max(e.faible, genre == GenreAstre::Venus && eclairage.phase > 170 ? -99 : m);
    e.somme += m;
    ++e.nombre;
  }
  return e;
}

struct Publiee {
  GenreAstre genre;
  double brillant, moyenne, faible;
};

TEST(Magnitudes, OfPlanetsOverACenturyStandInThePublishedRange) {
  // Mallama and Hilton (2018): brightest, mean and faintest of the planets as the Earth sees them. Mars lacks the terms
  // of its rotation and seasons.
  constexpr Publiee kPubliees[] = {{GenreAstre::Venus, -4.92, -4.14, -2.98},
                                   {GenreAstre::Mars, -2.94, 0.71, 1.86},
                                   {GenreAstre::Jupiter, -2.94, -2.20, -1.66},
                                   {GenreAstre::Saturne, -0.55, 0.46, 1.17}};
  for (const Publiee &p : kPubliees) {
    const Etendue e = EtendueDe(p.genre);
    const double tolerance = p.genre == GenreAstre::Mars ? 0.12 : 0.06;
    EXPECT_NEAR(e.brillant, p.brillant, tolerance) << static_cast<int>(p.genre);
    EXPECT_NEAR(e.somme / e.nombre, p.moyenne, tolerance) << static_cast<int>(p.genre);
    if (p.genre != GenreAstre::Venus) { // near the Sun, where nobody sees it
      EXPECT_NEAR(e.faible, p.faible, tolerance) << static_cast<int>(p.genre);
    }
  }
}

TEST(Magnitudes, OfMarsAndJupiterAgreeWithAnOlderFormula) {
  for (double jour = 8766; jour < 9862; jour += 30) {
    const CielDuMoment ciel = PrepareCiel({{2451544.5, jour}, {2451544.5, jour}});
    const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil, 0});
    const auto magnitude = [&](GenreAstre genre) {
      return MagnitudeDe(genre, EclairementDe(PlaceDe(ciel, {genre, 0}), soleil));
    };
    EXPECT_NEAR(magnitude(GenreAstre::Mars), ln_get_mars_magnitude(2451544.5 + jour), 0.25) << jour;
    EXPECT_NEAR(magnitude(GenreAstre::Jupiter), ln_get_jupiter_magnitude(2451544.5 + jour), 0.25) << jour;
  }
}

TEST(Magnitudes, VenusBranchesMeetWhereItsSickleBegins) {
  const auto venus = [](double phase) { return MagnitudeDe(GenreAstre::Venus, {1, 1, phase, 0}); };
  EXPECT_NEAR(venus(163.7 - 1E-9), venus(163.7 + 1E-9), 0.02);
}

TEST(Magnitudes, OfTheMoonAndTheSunAreTheKnownOnes) {
  EXPECT_NEAR(MagnitudeDe(GenreAstre::Lune, {1, 384400 / 149597870.7, 0, 180}), -12.73, 1E-9);
  // A half moon is a tenth as bright as a full one, not half.
  const double demie = MagnitudeDe(GenreAstre::Lune, {1, 384400 / 149597870.7, 90, 90});
  EXPECT_NEAR(demie, -10.1, 0.2);
  EXPECT_NEAR(MagnitudeDe(GenreAstre::Soleil, {0, 1, 0, 0}), -26.74, 1E-9);
}

TEST(Magnitudes, OfStarsAreThoseOfTheCatalogue) {
  const auto etoile = [](std::size_t rang) { return kEtoilesIcrs[rang - 1]->magnitude; };
  double brillante = 99;
  for (const auto &e : kEtoilesIcrs) {
    brillante = e ? std::min(brillante, e->magnitude) : brillante;
  }
  EXPECT_NEAR(brillante, -1.46, 0.03) << "Sirius";
  EXPECT_NEAR(etoile(10), 0.87, 0.1) << "Aldebaran";
}

TEST(MagnitudeVisible, GrowsAsTheSunSinksAndByDayHoldsNoStar) {
  EXPECT_LT(MagnitudeVisible(-0.1), -4.92) << "not even Venus";
  EXPECT_NEAR(MagnitudeVisible(6), 1, 1E-12) << "at the end of civil twilight the first magnitude";
  EXPECT_NEAR(MagnitudeVisible(18), 6, 1E-12) << "at the end of the last what an eye sees at all";
  EXPECT_NEAR(MagnitudeVisible(60), 6, 1E-12);
  for (double d = 0; d < 20; d += 0.1) {
    EXPECT_LE(MagnitudeVisible(d), MagnitudeVisible(d + 0.1) + 1E-12);
  }
}

} // namespace
} // namespace velmaris

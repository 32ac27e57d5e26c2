#include "../controle/OutilsControle.hpp"
#include "OutilsAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/JourDuCiel.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Vue.hpp"
#include "complements/controle/RouteActuelle.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <iostream>
#include <random>

/// Sights worked from the printed figures alone, against the check of the same sight by the sky of today.
namespace velmaris::essais {
namespace {

double AuDixieme(double degres) { return std::round(degres * 600) / 600; }

const Almanach &Pages() {
  static const Almanach almanach =
      *CalculeAlmanach({.debut = {2026, 6, 1}, .fin = {2027, 5, 31}, .latitudes = {}}, Table());
  return almanach;
}

/// The same sight by the sky of today.
RouteActuelle Judge(const ViseeMain &v) {
  ViseeTypee typee{v.astre, v.utc, {v.latitude, v.longitude, v.sextant.hauteurOeil}, v.sextant};
  return SuitRoute(typee, 0);
}

/// Sets the reading that shows the body some miles nearer than from the estimated position.
/// @return whether the body stands where it is shot
bool Vise(ViseeMain &v, double milles) {
  constexpr double kMinutes = 60;
  const Station station{v.latitude, v.longitude, v.sextant.hauteurOeil};
  const PlaceGeocentrique place = PlaceDe(PrepareCiel(MomentDe(v.utc)), v.astre);
  const double hauteur = VueDe(place, station).hauteur;
  if (hauteur < 10 || hauteur > 75) {
    return false;
  }
  v.sextant.lecture = AuDixieme(LecturePour(v.sextant, place, station, hauteur + milles / kMinutes));
  return true;
}

ViseeMain ViseeAuHasard(std::mt19937_64 &alea, GenreAstre genre) {
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(alea); };
  const auto entier = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(alea); };
  ViseeMain v;
  v.astre.genre = genre;
  if (genre == GenreAstre::Etoile) {
    v.astre.rang = Pages().periodes.front().etoiles[static_cast<std::size_t>(entier(0, 56))].rang;
  }
  const DateCivile jour = JourPlusTard({2026, 6, 1}, entier(0, 364));
  v.utc = {jour.annee, jour.mois, jour.jour, entier(0, 23), entier(0, 59), static_cast<double>(entier(0, 59))};
  v.latitude = AuDixieme(entre(-66, 66));
  v.longitude = AuDixieme(entre(-180, 180));
  v.sextant.hauteurOeil = std::round(entre(1.5, 15) * 10) / 10;
  v.sextant.collimation = std::round(entre(-3, 3) * 10) / 10;
  if (genre == GenreAstre::Soleil || genre == GenreAstre::Lune) {
    v.sextant.contact = entier(0, 1) == 0 ? Contact::Inferieur : Contact::Superieur;
  }
  if (entier(0, 1) == 0) {
    v.sextant.temperature = std::round(entre(-20, 40));
    v.sextant.pression = std::round(entre(965, 1045));
  }
  return v;
}

double Tour(double degres) { return std::fabs(LongitudeUnTour(degres)); }

/// What a lot of sights differs by, minutes of arc.
struct Bilan {
  double pire = 0;
  double millieme = 0; ///< what 999 of 1000 stay under
  double dehors = 0;   ///< part of them over 0.3'
};

Bilan BilanDe(std::vector<double> ecarts) {
  std::sort(ecarts.begin(), ecarts.end());
  const auto dedans = std::upper_bound(ecarts.begin(), ecarts.end(), 0.3) - ecarts.begin();
  const auto nombre = static_cast<double>(ecarts.size());
  return {ecarts.back(), ecarts[ecarts.size() * 999 / 1000], 1 - static_cast<double>(dedans) / nombre};
}

/// Many sights of a kind.
Bilan Beaucoup(GenreAstre genre, int nombre) {
  std::mt19937_64 alea(2100 + static_cast<unsigned>(genre));
  std::vector<double> ecarts;
  double azimut = 0;
  while (static_cast<int>(ecarts.size()) < nombre) {
    ViseeMain v = ViseeAuHasard(alea, genre);
    if (!Vise(v, std::uniform_real_distribution<double>(-20, 20)(alea))) {
      continue;
    }
    const RouteActuelle juge = Judge(v);
    const ResultatMain main = ReduisALaMain(Pages(), v);
    ecarts.push_back(std::fabs(main.intercept - juge.intercept));
    azimut = std::max(azimut, Tour(main.azimut - juge.vue.azimutCentre));
  }
  const Bilan bilan = BilanDe(std::move(ecarts));
  std::cout << "  " << nombre << " sights: worst " << bilan.pire << "', 99.9 % under " << bilan.millieme
            << "', over 0.3' " << bilan.dehors * 1000 << " of 1000, azimuth within " << azimut << " degrees\n";
  EXPECT_LT(azimut, 1.5); // near the meridian a sum of rounded figures tells the azimuth to a degree
  return bilan;
}

/// The bodies of the sights, and how many of each.
struct Lot {
  const char *nom;
  GenreAstre genre;
  int nombre;
};

class ManySights : public ::testing::TestWithParam<Lot> {};

TEST_P(ManySights, AgreeWithTheCheckWithinThreeTenthsOfAMile) {
  const Bilan b = Beaucoup(GetParam().genre, GetParam().nombre);
  EXPECT_LT(b.millieme, 0.33);
  EXPECT_LT(b.pire, 0.4);
  EXPECT_LT(b.dehors, 0.0025);
}

INSTANTIATE_TEST_SUITE_P(ViseesALaMain, ManySights,
                         ::testing::Values(Lot{"Soleil", GenreAstre::Soleil, 4000}, Lot{"Lune", GenreAstre::Lune, 4000},
                                           Lot{"Venus", GenreAstre::Venus, 2000}, Lot{"Mars", GenreAstre::Mars, 2000},
                                           Lot{"Jupiter", GenreAstre::Jupiter, 2000},
                                           Lot{"Saturne", GenreAstre::Saturne, 2000},
                                           Lot{"Etoiles", GenreAstre::Etoile, 4000}),
                         [](const auto &lot) { return std::string(lot.param.nom); });

/// A sight typed into the panel: the check's intercept by the sky of today.
double InterceptDuPanneau(const ViseeMain &v) {
  Visee champs{v.utc.annee, v.utc.mois, v.utc.jour, v.utc.heure, v.utc.minute, static_cast<int>(v.utc.seconde)};
  champs.latitude = v.latitude;
  champs.longitude = v.longitude;
  champs.oeil = v.sextant.hauteurOeil;
  champs.collimation = v.sextant.collimation;
  champs.bord = v.sextant.contact == Contact::Inferieur   ? Bord::Inferieur
                : v.sextant.contact == Contact::Superieur ? Bord::Superieur
                                                          : Bord::Centre;
  switch (v.astre.genre) {
  case GenreAstre::Soleil:
    champs.corps = Corps::Soleil;
    break;
  case GenreAstre::Lune:
    champs.corps = Corps::Lune;
    break;
  case GenreAstre::Etoile:
    champs.corps = Corps::Etoiles;
    champs.rang = v.astre.rang - 1;
    break;
  default:
    champs.corps = Corps::Planetes;
    champs.rang = static_cast<int>(v.astre.genre) - static_cast<int>(GenreAstre::Venus);
  }
  return Controle(Champs(champs, v.sextant.lecture)).actuel.value().intercept;
}

TEST(ViseesALaMain, ASightOfEachKindAgreesWithTheCheckOfThePanel) {
  constexpr int kArcturus = 34;
  constexpr int kPolaris = 112;
  constexpr double kMinute = 1.0 / 60;
  ViseeMain soleil{{GenreAstre::Soleil}, {2026, 7, 14, 15, 41, 17}, 47 + 31 * kMinute, -6 - 12 * kMinute};
  soleil.sextant.contact = Contact::Inferieur;
  ViseeMain lune{{GenreAstre::Lune}, {2026, 7, 21, 17, 8, 46}, 43 + 5 * kMinute, -9 - 40 * kMinute};
  lune.sextant.contact = Contact::Superieur;
  const ViseeMain venus{{GenreAstre::Venus}, {2026, 7, 14, 20, 12, 33}, 36 + 10 * kMinute, -6 - 30 * kMinute};
  const ViseeMain arcturus{
      {GenreAstre::Etoile, kArcturus}, {2026, 7, 14, 21, 2, 58}, 47 + 31 * kMinute, -6 - 12 * kMinute};
  const ViseeMain polaire{
      {GenreAstre::Etoile, kPolaris}, {2026, 7, 14, 21, 9, 5}, 47 + 31 * kMinute, -6 - 12 * kMinute};
  for (ViseeMain v : {soleil, lune, venus, arcturus, polaire}) {
    v.sextant.hauteurOeil = 2.8;
    v.sextant.collimation = -1.2;
    ASSERT_TRUE(Vise(v, 4.3)) << static_cast<int>(v.astre.genre);
    const double panneau = InterceptDuPanneau(v);
    EXPECT_NEAR(panneau, 4.3, 0.1);
    // Polaris has a page of its own: so near the pole, logarithms of cosines don't run straight between two entries.
    const double main = v.astre.rang == kPolaris
                            ? static_cast<double>(LatitudePolaireALaMain(Pages(), v)) / 10 - v.latitude * 60
                            : ReduisALaMain(Pages(), v).intercept;
    EXPECT_NEAR(main, panneau, 0.3) << static_cast<int>(v.astre.genre);
  }
}

TEST(ViseesALaMain, PolarisTellsTheLatitude) {
  constexpr int kPolaris = 112;
  constexpr double kMinutes = 60;
  std::mt19937_64 alea(89);
  std::vector<double> ecarts;
  while (ecarts.size() < 3000) {
    ViseeMain v = ViseeAuHasard(alea, GenreAstre::Etoile);
    v.astre.rang = kPolaris;
    v.latitude = AuDixieme(std::uniform_real_distribution<double>(10, 68)(alea));
    if (Vise(v, 0)) {
      // The reading's own rounding is taken away: the check tells how many miles it stands for.
      const double vraie = v.latitude * kMinutes + Judge(v).intercept;
      ecarts.push_back(std::fabs(static_cast<double>(LatitudePolaireALaMain(Pages(), v)) / 10 - vraie));
    }
  }
  const Bilan b = BilanDe(std::move(ecarts));
  std::cout << "  worst " << b.pire << "', 99.9 % under " << b.millieme << "'\n";
  EXPECT_LT(b.pire, 0.3);
}

} // namespace
} // namespace velmaris::essais

#include "tests/OutilsTests.hpp"
#include "tests/tools/OutilsDonneesCarte.hpp"

#include "foundations/Fichiers.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numbers>
#include <optional>
#include <regex>
#include <unordered_map>

/// The committed outlines of the world chart: their form, and what any mariner knows of the world's coasts.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using essais::Contenu;
using essais::kDonnees;
using essais::Lieu;
using essais::Milles;
using essais::Radians;
using testing::Ge;
using testing::Le;
using testing::SizeIs;

constexpr double kBord = 1e-7;
constexpr std::size_t kLignesMax = 60000;

using Morceau = std::vector<Lieu>;

/// Miles from a place to a side, on the plane about the place: right for what is near.
double MillesDuCote(const Lieu &p, const Lieu &a, const Lieu &b) {
  const double echelle = std::cos(Radians(p.lat)) * 60;
  const double ax = std::remainder(a.lon - p.lon, 360) * echelle;
  const double ay = (a.lat - p.lat) * 60;
  const double dx = (b.lon - a.lon) * echelle;
  const double dy = (b.lat - a.lat) * 60;
  const double carre = dx * dx + dy * dy;
  const double part = carre > 0 ? std::clamp(-(ax * dx + ay * dy) / carre, 0.0, 1.0) : 0.0;
  return std::hypot(ax + part * dx, ay + part * dy);
}

/// A file of outlines, read the strict way: what isn't exactly of the form is told by its line.
struct Trace {
  std::vector<Morceau> morceaux;
  std::vector<std::string> fautes;
  std::size_t lignes = 0;

  explicit Trace(const std::string &nom) {
    const std::string texte = Contenu(kDonnees / nom);
    const std::regex forme(R"((0\.\d{6,7}) (0\.\d{6,7}))");
    morceaux.emplace_back();
    std::istringstream flux(texte);
    for (std::string ligne; std::getline(flux, ligne);) {
      ++lignes;
      std::smatch trouve;
      if (ligne == "2 0") {
        morceaux.emplace_back();
        continue;
      }
      if (!std::regex_match(ligne, trouve, forme)) {
        fautes.push_back(std::to_string(lignes) + ": " + ligne);
        continue;
      }
      const double x = std::stod(trouve[1]);
      const double y = std::stod(trouve[2]);
      if (x < kBord || x > 1 - kBord || y < 0 || y > std::numbers::sqrt2 / 2) {
        fautes.push_back(std::to_string(lignes) + ": " + ligne);
      }
      morceaux.back().push_back({y * 180 * std::numbers::sqrt2 - 90, x * 360 - 180});
    }
    if (texte.empty() || texte.back() != '\n') {
      fautes.emplace_back("no line end at the end");
    }
  }

  double Distance(const Lieu &lieu) const {
    double pres = 1e9;
    for (const Morceau &m : morceaux) {
      for (std::size_t n = 1; n < m.size(); ++n) {
        pres = std::min(pres, MillesDuCote(lieu, m[n - 1], m[n]));
      }
    }
    return pres;
  }

  double PlusLongCote() const {
    double loin = 0;
    for (const Morceau &m : morceaux) {
      for (std::size_t n = 1; n < m.size(); ++n) {
        loin = std::max(loin, Milles(m[n - 1], m[n]));
      }
    }
    return loin;
  }
};

const Trace &Lu(const std::string &nom) {
  static std::map<std::string, Trace> lus;
  return lus.try_emplace(nom, nom).first->second;
}

bool AuMeridien(const Lieu &p) { return std::abs(std::abs(p.lon) - 180) < 1e-4; }

bool EstFerme(const Morceau &m) {
  return m.size() > 3 && m.front().lat == m.back().lat && m.front().lon == m.back().lon;
}

class Outlines : public testing::TestWithParam<const char *> {};
INSTANTIATE_TEST_SUITE_P(Carte, Outlines,
                         testing::Values("Contours.Asc", "Totale.asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc"),
                         [](const auto &essai) {
                           const std::string nom = essai.param;
                           return nom.substr(0, nom.find('.'));
                         });

TEST_P(Outlines, EveryLineIsAPointOfTheChartOrACut) {
  EXPECT_THAT(Lu(GetParam()).fautes, testing::IsEmpty());
  EXPECT_THAT(Lu(GetParam()).lignes, Le(kLignesMax));
  EXPECT_THAT(Lu(GetParam()).lignes, Ge(29000U)) << "the budget is used";
}

TEST_P(Outlines, CutsStandBetweenPiecesOfTwoPointsAndMore) {
  for (const Morceau &m : Lu(GetParam()).morceaux) {
    ASSERT_THAT(m.size(), Ge(2U));
  }
}

TEST_P(Outlines, NoPointFollowsItself) {
  for (const Morceau &m : Lu(GetParam()).morceaux) {
    const auto meme = [](const Lieu &a, const Lieu &b) { return a.lat == b.lat && a.lon == b.lon; };
    const auto place = std::adjacent_find(m.begin(), m.end(), meme);
    EXPECT_EQ(place, m.end()) << place->lat << " " << place->lon;
  }
}

TEST_P(Outlines, NoSideRunsAlongTheAntimeridianOrAcrossTheChart) {
  for (const Morceau &m : Lu(GetParam()).morceaux) {
    for (std::size_t n = 1; n < m.size(); ++n) {
      EXPECT_FALSE(AuMeridien(m[n - 1]) && AuMeridien(m[n])) << m[n].lat << " " << m[n].lon;
      EXPECT_THAT(std::abs(m[n].lon - m[n - 1].lon), Le(20.0)) << m[n].lat << " " << m[n].lon;
    }
  }
}

TEST(ChartOutlines, RingsCloseOrEndAtTheAntimeridianAndALoneIsletIsAStroke) {
  for (const char *nom : {"Contours.Asc", "Totale.asc", "Iles.Asc", "Lacs.Asc"}) {
    for (const Morceau &m : Lu(nom).morceaux) {
      const bool trait = nom == std::string("Iles.Asc") && m.size() == 2 && Milles(m.front(), m.back()) < 1.5;
      EXPECT_TRUE(EstFerme(m) || trait || (AuMeridien(m.front()) && AuMeridien(m.back())))
          << nom << " " << m.front().lat << " " << m.front().lon;
    }
  }
}

TEST(ChartOutlines, NoSideIsLongerThanTheMarginThatASmallSheetDrawsAroundIt) {
  for (const char *nom : {"Contours.Asc", "Totale.asc", "Iles.Asc", "Lacs.Asc", "Rivieres.Asc"}) {
    EXPECT_THAT(Lu(nom).PlusLongCote(), Le(25.0)) << nom;
  }
}

TEST(ChartOutlines, AntarcticaIsOneOpenLineRoundThePole) {
  std::vector<const Morceau *> tours;
  for (const Morceau &m : Lu("Contours.Asc").morceaux) {
    if (m.front().lat < -60) {
      tours.push_back(&m);
    }
  }
  ASSERT_THAT(tours, SizeIs(1));
  EXPECT_NEAR(std::abs(tours[0]->front().lon - tours[0]->back().lon), 360, 1e-3);
  EXPECT_NEAR(tours[0]->front().lat, tours[0]->back().lat, 1e-4);
}

TEST(ChartOutlines, SixteenGreatLandsAndThousandsOfIslands) {
  EXPECT_THAT(Lu("Contours.Asc").morceaux.size(), Ge(16U));
  EXPECT_THAT(Lu("Contours.Asc").morceaux.size(), Le(20U)) << "a land that passes 180 degrees makes two pieces";
  EXPECT_THAT(Lu("Iles.Asc").morceaux.size(), Ge(4800U));
  EXPECT_THAT(Lu("Lacs.Asc").morceaux.size(), Ge(4000U));
}

TEST(ChartOutlines, RocksAndIslandsThatStandAloneAreDrawn) {
  const std::vector<std::pair<const char *, Lieu>> seules = {{"Mellish", {-17.42, 155.86}},
                                                             {"Alijos", {24.96, -115.73}},
                                                             {"Bellona", {-21.42, 158.86}},
                                                             {"Rose", {-14.55, -168.15}},
                                                             {"Saumarez", {-21.85, 153.65}},
                                                             {"Sumisu-jima", {31.44, 140.05}},
                                                             {"Kenn", {-21.25, 155.75}},
                                                             {"Dokdo", {37.24, 131.87}},
                                                             {"Marotiri", {-27.92, -143.43}},
                                                             {"Morant", {17.42, -75.98}},
                                                             {"Jarak", {3.98, 100.10}},
                                                             {"Funk", {49.755, -53.18}},
                                                             {"Hormigas de Afuera", {-11.96, -77.78}},
                                                             {"Bogskär", {59.505, 20.35}},
                                                             {"Farsi", {27.99, 50.17}},
                                                             {"Aruah", {2.87, 100.57}},
                                                             {"Minquiers", {48.97, -2.06}},
                                                             {"Alacranes", {22.40, -89.68}},
                                                             {"Zembra", {37.13, 10.81}},
                                                             {"Alta Vela", {17.473, -71.637}},
                                                             {"Berlengas", {39.415, -9.51}},
                                                             {"Planier", {43.199, 5.23}}};
  for (const auto &[nom, lieu] : seules) {
    EXPECT_THAT(Lu("Iles.Asc").Distance(lieu), Le(4.5)) << nom;
  }
  EXPECT_THAT(Lu("Iles.Asc").Distance({43.199, 5.23}), Le(0.5)) << "Planier, not the coast";
}

TEST(ChartOutlines, TheCoarseFileKeepsTheHornAndHatteras) {
  EXPECT_THAT(Lu("Totale.asc").Distance({-55.98, -67.27}), Le(3.0));
  EXPECT_THAT(Lu("Totale.asc").Distance({35.23, -75.53}), Le(3.0));
}

TEST(ChartOutlines, TheLoireReachesTheSea) {
  EXPECT_THAT(Lu("Rivieres.Asc").Distance({47.285, -1.959}), Le(1.0)) << "where the coast's estuary begins";
}

/// Capes and points where the coast is known to the mile.
struct Cap {
  const char *nom;
  Lieu lieu;
};

std::ostream &operator<<(std::ostream &flux, const Cap &cap) { return flux << cap.nom; }

const std::vector<Cap> kCaps = {
    {"Cabo Finisterre", {42.882, -9.272}},   {"Pointe du Raz", {48.040, -4.735}},
    {"Land's End", {50.066, -5.715}},        {"Cape Agulhas", {-34.833, 20.000}},
    {"Cape Morris Jesup", {83.628, -33.37}}, {"Cabo da Roca", {38.781, -9.500}},
    {"Punta de Tarifa", {36.000, -5.610}},   {"Cape Leeuwin", {-34.375, 115.136}},
    {"Cape Comorin", {8.078, 77.541}},       {"Cape York", {-10.687, 142.531}},
    {"Cabo San Lucas", {22.876, -109.898}},  {"Point Barrow", {71.388, -156.480}},
    {"Dezhnev", {66.080, -169.660}},         {"Cape Guardafui", {11.834, 51.287}},
};
const std::vector<Cap> kCapsDesIles = {
    {"Cape Race", {46.655, -53.073}},    {"Cape Horn", {-55.979, -67.272}},
    {"North Cape", {71.171, 25.784}},    {"South Cape, Tasmania", {-43.64, 146.83}},
    {"Cape Reinga", {-34.418, 172.678}}, {"Mizen Head", {51.450, -9.820}},
    {"Malin Head", {55.381, -7.374}},    {"Taveuni, by the meridian", {-16.83, 179.97}},
    {"Udu Point", {-16.13, 180.0}},
};

TEST(ChartCoast, PassesTheCapesOfTheGreatLands) {
  for (const Cap &cap : kCaps) {
    EXPECT_THAT(Lu("Contours.Asc").Distance(cap.lieu), Le(2.0)) << cap;
    EXPECT_THAT(Lu("Totale.asc").Distance(cap.lieu), Le(4.5)) << cap;
  }
}

TEST(ChartCoast, PassesTheCapesOfTheIslands) {
  for (const Cap &cap : kCapsDesIles) {
    EXPECT_THAT(Lu("Iles.Asc").Distance(cap.lieu), Le(2.5)) << cap;
  }
}

TEST(ChartCoast, HasFijiOnBothSidesOf180) {
  bool ouest = false;
  bool est = false;
  for (const Morceau &m : Lu("Iles.Asc").morceaux) {
    for (const Lieu &p : m) {
      ouest = ouest || (p.lat < -15.8 && p.lat > -17.2 && p.lon < -179.8);
      est = est || (p.lat < -15.8 && p.lat > -17.2 && p.lon > 179.8);
    }
  }
  EXPECT_TRUE(ouest && est);
}

TEST(ChartCoast, HasTheSmallIslandsThatMatter) {
  const std::vector<Cap> iles = {
      {"Sein", {48.037, -4.855}},       {"Porquerolles", {43.000, 6.205}},
      {"Rockall", {57.596, -13.687}},   {"Ouessant", {48.46, -5.09}},
      {"Fastnet", {51.389, -9.603}},    {"St Helena", {-15.96, -5.70}},
      {"Clipperton", {10.30, -109.22}}, {"Bouvet", {-54.42, 3.36}},
      {"Pitcairn", {-25.07, -130.10}},  {"Midway", {28.21, -177.37}},
      {"Wake", {19.295, 166.63}},       {"Johnston", {16.73, -169.53}},
      {"Saint-Paul", {-38.72, 77.525}}, {"Tristan da Cunha", {-37.11, -12.28}},
      {"Ascension", {-7.94, -14.36}},   {"Selvagem Grande", {30.14, -15.87}},
      {"Lundy", {51.18, -4.67}},        {"Fair Isle", {59.53, -1.63}},
  };
  for (const Cap &ile : iles) {
    EXPECT_THAT(Lu("Iles.Asc").Distance(ile.lieu), Le(5.0)) << ile;
  }
}

TEST(ChartCoast, HasTheSmallestOnTheSpot) {
  const std::vector<Cap> iles = {
      {"Sein", {48.037, -4.855}},    {"Porquerolles", {43.000, 6.205}}, {"Rockall", {57.596, -13.687}},
      {"Fastnet", {51.389, -9.603}}, {"Tresco", {49.955, -6.330}},      {"Eddystone", {50.180, -4.265}},
  };
  for (const Cap &ile : iles) {
    EXPECT_THAT(Lu("Iles.Asc").Distance(ile.lieu), Le(1.0)) << ile;
  }
}

TEST(ChartCoast, HasLakesAndRiversWhereTheyAre) {
  EXPECT_THAT(Lu("Lacs.Asc").Distance({46.45, 6.20}), Le(6.0)) << "Lake Geneva";
  EXPECT_THAT(Lu("Lacs.Asc").Distance({-0.30, 32.60}), Le(40.0)) << "Lake Victoria";
  EXPECT_THAT(Lu("Rivieres.Asc").Distance({47.39, 0.69}), Le(5.0)) << "the Loire at Tours";
  EXPECT_THAT(Lu("Rivieres.Asc").Distance({24.09, 32.90}), Le(5.0)) << "the Nile at Aswan";
}

} // namespace
} // namespace velmaris

#include "tests/OutilsTests.hpp"

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

/// The committed data of the world chart: their form, and what any mariner knows of the world.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using essais::Contenu;
using testing::Contains;
using testing::Ge;
using testing::Le;
using testing::SizeIs;

const fs::path kDonnees = VELMARIS_DONNEES;
constexpr double kBord = 1e-7;
constexpr std::size_t kLignesMax = 60000;

/// A place in degrees, north and east positive.
struct Lieu {
  double lat = 0;
  double lon = 0;
};

using Morceau = std::vector<Lieu>;

double Radians(double degres) { return degres * std::numbers::pi / 180; }

double Milles(const Lieu &a, const Lieu &b) {
  const double lat = std::sin(Radians(b.lat - a.lat) / 2);
  const double lon = std::sin(Radians(b.lon - a.lon) / 2);
  const double h = lat * lat + std::cos(Radians(a.lat)) * std::cos(Radians(b.lat)) * lon * lon;
  return 2 * std::asin(std::min(1.0, std::sqrt(h))) * 180 * 60 / std::numbers::pi;
}

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

TEST(ChartOutlines, RingsCloseOrEndAtTheAntimeridian) {
  for (const char *nom : {"Contours.Asc", "Totale.asc", "Iles.Asc", "Lacs.Asc"}) {
    for (const Morceau &m : Lu(nom).morceaux) {
      EXPECT_TRUE(EstFerme(m) || (AuMeridien(m.front()) && AuMeridien(m.back())))
          << nom << " " << m.front().lat << " " << m.front().lon;
    }
  }
}

TEST(ChartOutlines, NoSideIsLongerThanTheMarginThatASmallSheetDrawsAroundIt) {
  for (const char *nom : {"Contours.Asc", "Totale.asc", "Iles.Asc", "Lacs.Asc", "Rivieres.Asc"}) {
    EXPECT_THAT(Lu(nom).PlusLongCote(), Le(61.0)) << nom;
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

/// A town of the list, north and east positive.
struct Ville {
  Lieu lieu;
  int classe = 0;
  char lettre = ' ';
  std::string nom;
};

struct Villes {
  std::vector<Ville> villes;
  std::vector<std::string> fautes;

  Villes() {
    const std::string octets = Contenu(kDonnees / "Villes.txt");
    const std::regex forme(R"(([+-]\d\d\.\d\d) ([+-]\d\d\d\.\d\d) ([1-6]) ([CPV]) (\S.*\S|\S))");
    std::istringstream flux(octets);
    for (std::string ligne; std::getline(flux, ligne);) {
      std::smatch trouve;
      if (ligne.find(';') != std::string::npos) {
        continue;
      }
      if (!std::regex_match(ligne, trouve, forme)) {
        fautes.push_back(ligne);
        continue;
      }
      villes.push_back({{std::stod(trouve[1]), -std::stod(trouve[2])},
                        std::stoi(trouve[3]),
                        trouve[4].str()[0],
                        EnUtf8(trouve[5].str())});
    }
  }

  /// The nearest town of a name, none when there is none.
  std::optional<double> Distance(const std::string &nom, const Lieu &lieu) const {
    std::optional<double> pres;
    for (const Ville &v : villes) {
      if (v.nom == nom) {
        const double d = Milles(v.lieu, lieu);
        pres = std::min(pres.value_or(d), d);
      }
    }
    return pres;
  }

  long DeClasse(int classe) const {
    return std::count_if(villes.begin(), villes.end(), [=](const Ville &v) { return v.classe == classe; });
  }
};

const Villes &LesVilles() {
  static const Villes lues;
  return lues;
}

/// Rows of a list of the tool that made the data: latitude, longitude, a word, the rest.
std::vector<Ville> Liste(const char *nom) {
  std::vector<Ville> rangees;
  std::istringstream flux(Contenu(fs::path(VELMARIS_LISTES) / nom));
  for (std::string ligne; std::getline(flux, ligne);) {
    if (ligne.empty() || ligne.front() == '#') {
      continue;
    }
    Ville v;
    std::istringstream mots(ligne);
    mots >> v.lieu.lat >> v.lieu.lon >> v.classe >> std::ws;
    std::getline(mots, v.nom);
    rangees.push_back(v);
  }
  return rangees;
}

TEST(ChartTowns, EveryLineHasItsColumns) {
  EXPECT_THAT(LesVilles().fautes, testing::IsEmpty());
  EXPECT_THAT(LesVilles().villes.size(), Ge(3500U));
  EXPECT_THAT(LesVilles().villes.size(), Le(4500U));
  for (const Ville &v : LesVilles().villes) {
    EXPECT_THAT(std::abs(v.lieu.lat), Le(90.0)) << v.nom;
    EXPECT_THAT(std::abs(v.lieu.lon), Le(180.0)) << v.nom;
  }
}

TEST(ChartTowns, FewAreNamedOnEverySheet) {
  EXPECT_THAT(LesVilles().DeClasse(1), testing::AllOf(Ge(30), Le(50)));
  EXPECT_THAT(LesVilles().DeClasse(2), testing::AllOf(Ge(80), Le(170)));
  for (int classe = 3; classe <= 6; ++classe) {
    EXPECT_THAT(LesVilles().DeClasse(classe), Ge(300)) << classe;
  }
}

TEST(ChartTowns, TheTextIsWindows1252AndCreditsItsSource) {
  const std::string octets = Contenu(kDonnees / "Villes.txt");
  EXPECT_EQ(octets.find_first_of("\x81\x8d\x8f\x90\x9d\r\t"), std::string::npos);
  EXPECT_EQ(EnWindows1252(EnUtf8(octets)), octets);
  EXPECT_THAT(octets.substr(0, 400), testing::HasSubstr("GeoNames"));
  EXPECT_EQ(octets.front(), ';');
}

TEST(ChartTowns, StandWhereTheyAre) {
  const std::vector<Cap> connues = {
      {"Toulouse", {43.60, 1.44}},    {"Brest", {48.39, -4.49}},          {"Londres", {51.51, -0.13}},
      {"Lisbonne", {38.72, -9.14}},   {"New York", {40.71, -74.01}},      {"Le Cap", {-33.93, 18.42}},
      {"Sydney", {-33.87, 151.21}},   {"Tokyo", {35.69, 139.69}},         {"Rio de Janeiro", {-22.91, -43.20}},
      {"Papeete", {-17.54, -149.57}}, {"Ushuaia", {-54.81, -68.32}},      {"Horta", {38.54, -28.63}},
      {"Reykjavik", {64.14, -21.90}}, {"Singapour", {1.29, 103.85}},      {"Nouméa", {-22.27, 166.45}},
      {"Suva", {-18.14, 178.44}},     {"Port Stanley", {-51.69, -57.86}}, {"Le Caire", {30.06, 31.25}},
  };
  for (const Cap &ville : connues) {
    const std::optional<double> ecart = LesVilles().Distance(ville.nom, ville.lieu);
    ASSERT_TRUE(ecart) << ville;
    EXPECT_THAT(*ecart, Le(3.0)) << ville;
  }
}

TEST(ChartTowns, HaveTheGreatPortsAndYachtHarbours) {
  for (const Ville &port : Liste("ports.txt")) {
    const bool la = std::any_of(LesVilles().villes.begin(), LesVilles().villes.end(),
                                [&](const Ville &v) { return Milles(v.lieu, port.lieu) < 3.5; });
    EXPECT_TRUE(la) << port.nom;
  }
  for (const char *nom :
       {"Lorient",        "La Rochelle",    "Saint-Malo",    "Cherbourg", "Le Havre",   "Les Sables-d'Olonne",
        "Concarneau",     "Marseille",      "Toulon",        "Nice",      "Ajaccio",    "Bastia",
        "Fort-de-France", "Pointe-à-Pitre", "Ponta Delgada", "Funchal",   "Las Palmas", "Mindelo",
        "Gibraltar",      "Falmouth",       "Plymouth",      "Cowes",     "Kinsale",    "Punta Arenas",
        "Hobart"}) {
    EXPECT_TRUE(LesVilles().Distance(nom, {})) << nom;
  }
}

/// Towns of the list of ports and capitals stand closer; all others keep the distance of their class.
TEST(ChartTowns, KeepTheDistanceOfTheirClass) {
  const std::map<int, double> espaces = {{3, 60}, {4, 30}, {5, 18}, {6, 10}};
  const std::vector<Ville> ports = Liste("ports.txt");
  const auto libre = [&](const Ville &v) {
    return v.classe < 3 || v.lettre == 'C' ||
           std::any_of(ports.begin(), ports.end(), [&](const Ville &p) { return Milles(v.lieu, p.lieu) < 3.5; });
  };
  const std::vector<Ville> &villes = LesVilles().villes;
  for (const Ville &v : villes) {
    if (libre(v)) {
      continue;
    }
    for (const Ville &autre : villes) {
      if (&autre != &v && autre.classe <= v.classe && std::abs(autre.lieu.lat - v.lieu.lat) < 1.1) {
        EXPECT_THAT(Milles(v.lieu, autre.lieu), Ge(espaces.at(v.classe) - 1)) << v.nom << ", " << autre.nom;
      }
    }
  }
}

TEST(ChartObjects, AreThreeExamplesInTheColumnsOfTheTowns) {
  std::vector<std::string> lignes;
  std::istringstream flux(Contenu(kDonnees / "Utilisateur.txt"));
  const std::regex forme(R"([+-]\d\d\.\d\d [+-]\d\d\d\.\d\d \d+ \S.*)");
  for (std::string ligne; std::getline(flux, ligne);) {
    EXPECT_TRUE(std::regex_match(ligne, forme)) << ligne;
    lignes.push_back(ligne);
  }
  EXPECT_THAT(lignes, SizeIs(3));
  EXPECT_THAT(lignes, Contains(testing::StartsWith("+48.05 +005.00 ")));
}

} // namespace
} // namespace velmaris

#include "tests/OutilsTests.hpp"
#include "tests/tools/OutilsDonneesCarte.hpp"

#include "foundations/Fichiers.hpp"

#include <gmock/gmock.h>

#include <map>
#include <optional>
#include <regex>
#include <sstream>

/// The committed towns and user's objects of the world chart: their form, their places, their distances.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using essais::Contenu;
using essais::kDonnees;
using essais::Lieu;
using essais::Milles;
using testing::Contains;
using testing::Ge;
using testing::Le;
using testing::SizeIs;

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
  const std::vector<std::pair<const char *, Lieu>> connues = {
      {"Toulouse", {43.60, 1.44}},    {"Brest", {48.39, -4.49}},          {"Londres", {51.51, -0.13}},
      {"Lisbonne", {38.72, -9.14}},   {"New York", {40.71, -74.01}},      {"Le Cap", {-33.93, 18.42}},
      {"Sydney", {-33.87, 151.21}},   {"Tokyo", {35.69, 139.69}},         {"Rio de Janeiro", {-22.91, -43.20}},
      {"Papeete", {-17.54, -149.57}}, {"Ushuaia", {-54.81, -68.32}},      {"Horta", {38.54, -28.63}},
      {"Reykjavik", {64.14, -21.90}}, {"Singapour", {1.29, 103.85}},      {"Nouméa", {-22.27, 166.45}},
      {"Suva", {-18.14, 178.44}},     {"Port Stanley", {-51.69, -57.86}}, {"Le Caire", {30.06, 31.25}},
  };
  for (const auto &[nom, lieu] : connues) {
    const std::optional<double> ecart = LesVilles().Distance(nom, lieu);
    ASSERT_TRUE(ecart) << nom;
    EXPECT_THAT(*ecart, Le(3.0)) << nom;
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

TEST(ChartTowns, BearTheNamesThatSailorsUse) {
  const std::vector<std::pair<const char *, Lieu>> connues = {
      {"Mersin", {36.81, 34.64}},    {"Larnaca", {34.92, 33.62}}, {"Trincomalee", {8.58, 81.23}},
      {"Sanliurfa", {37.17, 38.79}}, {"Manta", {-0.96, -80.71}},  {"Kollam", {8.88, 76.60}},
      {"Vung Tàu", {10.35, 107.08}}, {"Merca", {1.72, 44.77}},    {"Saint John", {45.27, -66.07}},
      {"Hamadan", {34.80, 48.51}}};
  for (const auto &[nom, lieu] : connues) {
    const std::optional<double> ecart = LesVilles().Distance(nom, lieu);
    ASSERT_TRUE(ecart) << nom;
    EXPECT_THAT(*ecart, Le(4.0)) << nom;
  }
  for (const char *nom : {"Myrte", "Citium", "Trinquemalay", "Édesse", "Manta Ecuador", "Pasragad Branch", "Quilon",
                          "District d'Alwar", "Taitung City"}) {
    EXPECT_FALSE(LesVilles().Distance(nom, {})) << nom;
  }
}

TEST(ChartTowns, HaveThePortsOfEveryOceanAndTheGreatOnesOfTheNorthSea) {
  const std::vector<std::pair<const char *, Lieu>> ports = {
      {"Callao", {-12.06, -77.14}},         {"Santos", {-23.96, -46.33}},  {"Fremantle", {-32.06, 115.75}},
      {"Kodiak", {57.79, -152.41}},         {"Astoria", {46.19, -123.83}}, {"Prince Rupert", {54.32, -130.32}},
      {"Bluff", {-46.60, 168.33}},          {"Corinto", {12.48, -87.17}},  {"Le Marin", {14.47, -60.87}},
      {"English Harbour", {17.01, -61.76}}, {"Rotterdam", {51.92, 4.48}},  {"Anvers", {51.22, 4.40}}};
  for (const auto &[nom, lieu] : ports) {
    const std::optional<double> ecart = LesVilles().Distance(nom, lieu);
    ASSERT_TRUE(ecart) << nom;
    EXPECT_THAT(*ecart, Le(2.0)) << nom;
  }
  for (const Ville &v : LesVilles().villes) {
    if (v.nom == "Rotterdam" || v.nom == "Anvers") {
      EXPECT_EQ(v.classe, 2) << v.nom;
      EXPECT_EQ(v.lettre, 'P') << v.nom;
    }
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

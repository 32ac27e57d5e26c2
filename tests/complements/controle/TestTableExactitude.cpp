#include "tests/OutilsTests.hpp"
#include "tools/MesureTheorie.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <sstream>

/// What the pages tell of told figures against the sky of today, held on fewer sights than they were measured on.
namespace velmaris {
namespace {

constexpr int kVisees = 600;
constexpr std::uint64_t kGraine = 18; ///< not that of the table

std::string Page(const std::string &nom) {
  return essais::Contenu(std::filesystem::path(VELMARIS_DONNEES).parent_path() / "docs" / nom);
}

/// The section of the page of exactness that has the table.
std::string Section() {
  const std::string page = Page("EXACTITUDE.md");
  const std::size_t debut = page.find("\n## Told figures against the sky of today\n");
  EXPECT_NE(debut, std::string::npos);
  return debut == std::string::npos ? "" : page.substr(debut, page.find("\n## ", debut + 1) - debut);
}

/// Fields of a table's line that begins with a name; none when there is no such line.
std::vector<std::string> Champs(const std::string &page, const std::string &nom) {
  const std::size_t debut = page.find("\n| " + nom + " |");
  std::vector<std::string> champs;
  if (debut == std::string::npos) {
    return champs;
  }
  std::istringstream ligne(page.substr(debut + 1, page.find('\n', debut + 1) - debut - 1));
  for (std::string champ; std::getline(ligne, champ, '|');) {
    champs.push_back(champ);
  }
  return champs;
}

/// Two figures of a field, 0 for a dash.
std::pair<double, double> Paire(const std::string &champ) {
  std::smatch m;
  if (!std::regex_search(champ, m, std::regex("([0-9.]+)[ %]*, ([0-9.]+)"))) {
    return {0, 0};
  }
  return {std::stod(m[1]), std::stod(m[2])};
}

/// A sample's root mean square lies within 15 % of the page's, where few sights are as large as a star's wrong row
/// within half; and none of it is larger than the page's largest by more than a fifth.
void Tient(const std::string &champ, const Ecarts &ecarts, const std::string &quoi) {
  const auto [moyen, plusGrand] = Paire(champ);
  const double part = moyen > 20 ? 0.5 : 0.15;
  EXPECT_NEAR(ecarts.Moyen(), moyen, moyen * part + 0.02) << quoi;
  EXPECT_LE(ecarts.plusGrand, plusGrand * 1.2 + 0.02) << quoi;
  EXPECT_GE(ecarts.plusGrand, plusGrand * 0.2 - 0.02) << quoi;
}

class TableDuCiel : public testing::TestWithParam<std::size_t> {};

TEST_P(TableDuCiel, HoldsTheFiguresOfItsLine) {
  const GroupeVisees groupe = GroupesDeLaTable().at(GetParam());
  const auto champs = Champs(Section(), groupe.nom);
  ASSERT_EQ(champs.size(), 12U) << groupe.nom;
  const MesureTheorie mesure = Mesure(groupe, groupe.signePerdu ? kVisees / 10 : kVisees, kGraine);
  Tient(champs[2], mesure.total, groupe.nom);
  const auto [accords, manieres] = Paire(champs[3]);
  EXPECT_NEAR(100.0 * mesure.accords / mesure.total.nombre, accords, 7) << groupe.nom;
  EXPECT_NEAR(100.0 * mesure.manieres / mesure.total.nombre, manieres, 7) << groupe.nom;
  const Cause ligneOuSigne = groupe.corps == Corps::Planetes ? Cause::Signe : Cause::Etoile;
  std::size_t colonne = 4;
  for (const Cause cause : {ligneOuSigne, Cause::Lieu, Cause::Temps, Cause::Refraction, Cause::Depression,
                            Cause::DemiDiametre, Cause::Parallaxe, Cause::Artificiel}) {
    Tient(champs[colonne], mesure.De(cause), groupe.nom + ", column " + std::to_string(colonne));
    ++colonne;
  }
}

INSTANTIATE_TEST_SUITE_P(Exactitude, TableDuCiel, testing::Range<std::size_t>(0, GroupesDeLaTable().size()));

/// A figure as a language writes it.
std::string EnLangue(std::string chiffre, bool francais) {
  const std::size_t point = chiffre.find('.');
  return francais && point != std::string::npos ? chiffre.replace(point, 1, ",") : chiffre;
}

TEST(GuideOfTrust, TellsTheFiguresOfTheTable) {
  const std::string table = Section();
  const std::pair<const char *, std::pair<const char *, const char *>> kLignes[] = {
      {"Sun", {"Soleil", "Sun"}},
      {"Moon", {"Lune", "Moon"}},
      {"Venus", {"Vénus", "Venus"}},
      {"Mars", {"Mars", "Mars"}},
      {"Jupiter", {"Jupiter", "Jupiter"}},
      {"Saturn", {"Saturne", "Saturn"}},
      {"Planets, sign lost", {"Planète dont le signe se perd", "Planet whose sign is lost"}},
      {"Stars in green, but Antares", {"Étoile en vert, sauf Antares", "Star in green, but Antares"}},
      {"Stars, rows up to 3' off", {"Étoile, ligne fausse de 3' au plus", "Star, row up to 3' off"}},
      {"Stars, rows over 3' off", {"Étoile, ligne fausse de plus de 3'", "Star, row over 3' off"}},
      {"Sun's centre, artificial horizon", {"Soleil, centre, horizon artificiel", "Sun's centre, artificial horizon"}},
      {"Moon's centre, artificial horizon", {"Lune, centre, horizon artificiel", "Moon's centre, artificial horizon"}}};
  for (const auto &[nom, noms] : kLignes) {
    const auto champs = Champs(table, nom);
    ASSERT_EQ(champs.size(), 12U) << nom;
    std::smatch m;
    ASSERT_TRUE(std::regex_search(champs[2], m, std::regex("([0-9.]+), ([0-9.]+)"))) << nom;
    for (const bool francais : {true, false}) {
      const auto ligne = Champs(Page(francais ? "guide/fr/confiance.md" : "guide/en/confiance.md"),
                                francais ? noms.first : noms.second);
      ASSERT_EQ(ligne.size(), 5U) << noms.first;
      EXPECT_EQ(ligne[2], " " + EnLangue(m[1], francais) + " ") << noms.first;
      EXPECT_EQ(ligne[3], " " + EnLangue(m[2], francais) + " ") << noms.first;
      EXPECT_EQ(Paire(champs[3]).first, std::stod(ligne[4])) << noms.first << ": sights that agree, per cent";
    }
  }
}

} // namespace
} // namespace velmaris

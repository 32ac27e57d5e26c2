#include "tests/OutilsTests.hpp"
#include "tests/calcul/Passage.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <sstream>

/// The generator of the tables of the sky of today on copies of them, whole and spoilt; the generator of the Moon's.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using essais::Contenu;
using essais::DossierTemporaire;
using essais::Pose;
using testing::HasSubstr;
using testing::IsEmpty;

/// A copy of the tables, one of them changed, with or without the sum that goes with the change.
class Copie {
public:
  explicit Copie(const std::string &fichier = "", const std::function<void(std::string &)> &change = {},
                 bool sommeJuste = true) {
    fs::copy(VELMARIS_TABLES_CIEL, tables());
    if (change) {
      std::string texte = Contenu(tables() / fichier);
      const std::string avant = texte;
      change(texte);
      EXPECT_NE(texte, avant) << "nothing was changed";
      Pose(tables() / fichier, texte);
    }
    if (sommeJuste) {
      Pose(tables() / "SOMMES.txt", Lance({"--sommes", tables().string()}, VELMARIS_GENERE_CIEL).sortie);
    }
  }
  fs::path tables() const { return dossier_ / "tables"; }
  fs::path sortie() const { return dossier_ / "TablesCiel.cpp"; }
  Passage Passe() const { return Lance({VELMARIS_TABLES, tables().string(), sortie().string()}, VELMARIS_GENERE_CIEL); }

private:
  DossierTemporaire dossier_;
};

std::function<void(std::string &)> Remplace(const std::string &avant, const std::string &apres) {
  return [=](std::string &texte) {
    const std::size_t place = texte.find(avant);
    ASSERT_NE(place, std::string::npos) << avant;
    texte.replace(place, avant.size(), apres);
  };
}

void AttendRefus(const Copie &copie, const std::string &fichier, const std::string &raison) {
  const Passage p = copie.Passe();
  EXPECT_EQ(p.etat, 1) << raison;
  EXPECT_THAT(p.erreurs, HasSubstr(fichier + ": "));
  EXPECT_THAT(p.erreurs, HasSubstr(raison));
  EXPECT_FALSE(fs::exists(copie.sortie())) << "nothing is written";
}

TEST(GenereCiel, TheWholeTablesMakeTheirConstants) {
  const Copie copie("", {}, false);
  const Passage p = copie.Passe();
  EXPECT_EQ(p.etat, 0) << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  const std::string texte = Contenu(copie.sortie());
  EXPECT_THAT(texte, HasSubstr("kCielTerre"));
  EXPECT_THAT(texte, HasSubstr("EtoileIcrs{44.565479, -40.304731, -44.60, 19.00, 28.00, 3.18}"));
  EXPECT_THAT(texte, HasSubstr("std::nullopt")) << "the nova";
  EXPECT_THAT(texte, HasSubstr("kTableLune{2415012.5, 8, 9179, 13, kLune}"));
}

TEST(GenereCiel, ATableThatIsntTheOneKnownByItsSumIsRefused) {
  AttendRefus(Copie("stars_icrs.txt", Remplace("44.565479", "44.565478"), false), "stars_icrs.txt", "sum");
  AttendRefus(Copie("lune_chebychev.txt", Remplace("-241799735", "-241799734"), false), "lune_chebychev.txt", "sum");
}

TEST(GenereCiel, AStarOutOfItsRowOrItsBoundsIsRefused) {
  AttendRefus(Copie("stars_icrs.txt", Remplace("\n2 | ", "\n3 | ")), "stars_icrs.txt", "isn't row 2");
  AttendRefus(Copie("stars_icrs.txt", Remplace("44.565479", "444.565479")), "stars_icrs.txt", "bounds");
  AttendRefus(Copie("stars_icrs.txt", Remplace("-40.304731", "-90.304731")), "stars_icrs.txt", "bounds");
  AttendRefus(Copie("stars_icrs.txt", Remplace("44.565479", "nan")), "stars_icrs.txt", "bounds");
  AttendRefus(Copie("stars_icrs.txt", Remplace("44.565479", "x")), "stars_icrs.txt", "no number");
  AttendRefus(Copie("stars_icrs.txt", [](std::string &texte) { texte.erase(texte.find("\n246 | ") + 1); }),
              "stars_icrs.txt", "245 rows");
}

TEST(GenereCiel, AMoonCutShortOrBeyondItsOrbitIsRefused) {
  AttendRefus(
      Copie("lune_chebychev.txt", [](std::string &texte) { texte.erase(texte.rfind('\n', texte.size() - 2) + 1); }),
      "lune_chebychev.txt", "9178 rows");
  AttendRefus(Copie("lune_chebychev.txt", Remplace("-241799735 ", "")), "lune_chebychev.txt", "38 fields");
  AttendRefus(Copie("lune_chebychev.txt", Remplace("-241799735", "-2000000000")), "lune_chebychev.txt", "bounds");
  AttendRefus(Copie("lune_chebychev.txt", Remplace("-241799735", "-2417997.35")), "lune_chebychev.txt", "no number");
}

TEST(GenereLune, TheMoonsTableIsWhatItsGeneratorWrites) {
  std::istringstream table(Contenu(fs::path(VELMARIS_TABLES_CIEL) / "lune_chebychev.txt"));
  std::vector<std::string> lignes;
  for (std::string ligne; std::getline(table, ligne);) {
    lignes.push_back(ligne);
  }
  constexpr std::size_t kEntete = 6;
  ASSERT_EQ(lignes.size(), kEntete + 9179);
  for (const std::size_t rangee : {std::size_t{0}, std::size_t{4589}, std::size_t{9178}}) {
    const Passage p = Lance({std::to_string(rangee), "1"}, VELMARIS_GENERE_LUNE);
    EXPECT_EQ(p.etat, 0) << p.erreurs;
    EXPECT_EQ(p.sortie, lignes[kEntete + rangee] + "\n");
  }
}

TEST(GenereLune, ARowThatTheTableDoesntHaveIsAUsageError) {
  EXPECT_EQ(Lance({"9179", "1"}, VELMARIS_GENERE_LUNE).etat, 2);
  EXPECT_EQ(Lance({"-1", "1"}, VELMARIS_GENERE_LUNE).etat, 2);
  EXPECT_EQ(Lance({"1"}, VELMARIS_GENERE_LUNE).etat, 2);
}

} // namespace
} // namespace velmaris

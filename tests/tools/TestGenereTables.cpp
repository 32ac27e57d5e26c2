#include "tests/OutilsTests.hpp"
#include "tests/calcul/Passage.hpp"

#include <gmock/gmock.h>

#include <functional>

/// The generator of tables on copies of the published ones, whole and spoilt.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using essais::Contenu;
using essais::DossierTemporaire;
using essais::Pose;
using testing::HasSubstr;
using testing::IsEmpty;

Passage Genere(const fs::path &tables, const fs::path &sortie) {
  return Lance({tables.string(), sortie.string()}, VELMARIS_GENERE);
}

/// A copy of the tables, one of them changed, with or without the sum that goes with the change.
class Copie {
public:
  explicit Copie(const std::string &fichier = "", const std::function<void(std::string &)> &change = {},
                 bool sommeJuste = true) {
    fs::copy(VELMARIS_TABLES, tables());
    if (change) {
      std::string texte = Contenu(tables() / fichier);
      const std::string avant = texte;
      change(texte);
      EXPECT_NE(texte, avant) << "nothing was changed";
      Pose(tables() / fichier, texte);
    }
    if (sommeJuste) {
      Pose(tables() / "SOMMES.txt", Lance({"--sommes", tables().string()}, VELMARIS_GENERE).sortie);
    }
  }
  fs::path tables() const { return dossier_ / "tables"; }
  fs::path sortie() const { return dossier_ / "Series.cpp"; }
  Passage Passe() const { return Genere(tables(), sortie()); }

private:
  DossierTemporaire dossier_;
};

/// Replaces the first of a text.
std::function<void(std::string &)> Remplace(const std::string &avant, const std::string &apres) {
  return [=](std::string &texte) {
    const std::size_t place = texte.find(avant);
    ASSERT_NE(place, std::string::npos) << avant;
    texte.replace(place, avant.size(), apres);
  };
}

void AttendRefus(const Copie &copie, const std::string &fichier, const std::string &raison) {
  const Passage p = copie.Passe();
  EXPECT_EQ(p.etat, 1);
  EXPECT_THAT(p.erreurs, HasSubstr(fichier + ": "));
  EXPECT_THAT(p.erreurs, HasSubstr(raison));
  EXPECT_FALSE(fs::exists(copie.sortie())) << "nothing is written";
}

TEST(TableGenerator, TakesThePublishedTables) {
  const Copie copie;
  const Passage p = copie.Passe();
  EXPECT_EQ(p.etat, 0) << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  const std::string texte = Contenu(copie.sortie());
  EXPECT_THAT(texte, HasSubstr("{0.03341656456, 4.66925680417, 6283.0758499914},"));
  EXPECT_THAT(texte, HasSubstr("{10213.52943052898, 0, 0},"));
  EXPECT_THAT(texte, HasSubstr("{14.2488, 0, 0, -1, 0, 18, -16, 0, 0, 0, 26.54261},"));
}

TEST(TableGenerator, TheCommittedSumsAreThoseOfTheTables) {
  const Passage p = Lance({"--sommes", VELMARIS_TABLES}, VELMARIS_GENERE);
  EXPECT_EQ(p.etat, 0);
  EXPECT_THAT(Contenu(fs::path(VELMARIS_TABLES) / "SOMMES.txt"), HasSubstr(p.sortie));
}

TEST(TableGenerator, RefusesAChangedDigitByTheSum) {
  const Copie copie("vsop87d_mars.txt", Remplace("2810.9214616052", "2810.9214616053"), false);
  AttendRefus(copie, "vsop87d_mars.txt", "sum");
}

TEST(TableGenerator, RefusesATableWithoutASum) {
  Copie copie;
  Pose(copie.tables() / "SOMMES.txt", "");
  EXPECT_EQ(copie.Passe().etat, 1);
}

TEST(TableGenerator, RefusesAMissingTerm) {
  AttendRefus(Copie("vsop87d_venus.txt", Remplace("0.00005477201 4.41630652531 7860.4193924392\n", "")),
              "vsop87d_venus.txt", "L0 has 366 rows and not 367");
  AttendRefus(Copie("nutation_iau1980.txt", Remplace("2 0 0 0 0 63 0 0 0\n", "")), "nutation_iau1980.txt", "62 rows");
  AttendRefus(Copie("moon_distance.txt", Remplace("48.8901  0 1 0 0  0 0 0 0  0  0\n", "")), "moon_distance.txt",
              "104 rows");
}

TEST(TableGenerator, RefusesAMissingOrMisplacedSection) {
  AttendRefus(Copie("vsop87d_earth.txt", Remplace("\nB0 ", "\nB9 ")), "vsop87d_earth.txt", "section B0");
  AttendRefus(Copie("vsop87d_earth.txt", [](std::string &texte) { texte.resize(texte.find("R5 ")); }),
              "vsop87d_earth.txt", "section R5");
  AttendRefus(Copie("vsop87d_earth.txt", [](std::string &texte) { texte += "B5 1\n1e-11 0 0\n"; }), "vsop87d_earth.txt",
              "rows");
}

TEST(TableGenerator, RefusesASectionThatAnnouncesAnotherCount) {
  AttendRefus(Copie("vsop87d_saturn.txt", Remplace("L0 1152", "L0 1153")), "vsop87d_saturn.txt", "1153 rows");
}

TEST(TableGenerator, RefusesAnotherSmallestAmplitude) {
  AttendRefus(Copie("moon_longitude.txt", Remplace("0.00096 ", "0.00095 ")), "moon_longitude.txt", "smallest");
  AttendRefus(Copie("vsop87d_jupiter.txt", Remplace("7.6e-10 ", "7.5e-10 ")), "vsop87d_jupiter.txt", "smallest");
}

TEST(TableGenerator, RefusesAnotherVariantByItsKnownRows) {
  AttendRefus(Copie("vsop87d_earth.txt", Remplace("6283.31966747491 0 0", "6283.0758499914 0 0")), "vsop87d_earth.txt",
              "row 1 L1");
  AttendRefus(Copie("nutation_iau1980.txt", Remplace("-13187 -1.6", "-13171 -1.6")), "nutation_iau1980.txt", "row 2");
}

TEST(TableGenerator, RefusesWhatIsNoNumberOrNoRow) {
  AttendRefus(Copie("vsop87d_mars.txt", Remplace("3340.6124266998", "3340,6124266998")), "vsop87d_mars.txt", "number");
  AttendRefus(Copie("vsop87d_mars.txt", Remplace("0.186563681 5.05037100303 3340.6124266998", "0.186563681")),
              "vsop87d_mars.txt", "1 fields");
  AttendRefus(Copie("moon_latitude.txt", Remplace("0 0 0 1  0 0 0 0  0  0", "0 0 0 1  0 0 0 0  0.5  0")),
              "moon_latitude.txt", "");
}

TEST(TableGenerator, RefusesAMissingOrEmptyTable) {
  const Copie sansTable;
  fs::remove(sansTable.tables() / "vsop87d_venus.txt");
  EXPECT_EQ(sansTable.Passe().etat, 1);
  const Copie vide("moon_distance.txt", [](std::string &texte) { texte.clear(); });
  AttendRefus(vide, "moon_distance.txt", "rows");
}

TEST(TableGenerator, WithoutItsTwoArgumentsTellsItsUse) {
  EXPECT_EQ(Lance({}, VELMARIS_GENERE).etat, 2);
  EXPECT_THAT(Lance({"seul"}, VELMARIS_GENERE).erreurs, HasSubstr("usage"));
  EXPECT_EQ(Genere(VELMARIS_TABLES, "/nulle/part/Series.cpp").etat, 1);
}

} // namespace
} // namespace velmaris

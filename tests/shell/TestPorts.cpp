#include "shell/Ports.hpp"

#include "../OutilsTests.hpp"

#include <gtest/gtest.h>

namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;

TEST(DossiersDuProgramme, TheShareFolderLiesBesideTheProgramsOnceInstalled) {
  const DossierTemporaire prefixe;
  fs::create_directories(prefixe / "share/velmaris");
  const Dossiers dossiers = TrouveDossiers(prefixe / "bin");
  EXPECT_EQ(dossiers.programme, prefixe / "bin");
  EXPECT_EQ(dossiers.partage, prefixe / "share/velmaris");
}

TEST(DossiersDuProgramme, WithoutItTheOneOfTheBuildsPrefixStands) {
  const DossierTemporaire prefixe;
  fs::create_directories(prefixe / "share");
  Pose(prefixe / "share/velmaris", "a file, no folder");
  EXPECT_EQ(DossierPartage(prefixe / "bin"), VELMARIS_PARTAGE);
}

TEST(DossiersDuProgramme, AFileIsTakenFromTheUserThenFromTheProgramThenFromTheShareFolder) {
  const DossierTemporaire racine;
  Dossiers dossiers = {racine / "utilisateur", racine / "bin", racine / "share/velmaris", racine.chemin()};
  EXPECT_EQ(TrouveFichier(dossiers, "FR.txt"), dossiers.partage / "FR.txt");
  for (const fs::path &dossier : {dossiers.partage, dossiers.programme, dossiers.utilisateur}) {
    fs::create_directories(dossier);
    Pose(dossier / "FR.txt", "");
    EXPECT_EQ(TrouveFichier(dossiers, "FR.txt"), dossier / "FR.txt");
  }
}

} // namespace
} // namespace velmaris::essais

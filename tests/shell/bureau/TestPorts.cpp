#include "shell/bureau/Ports.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <unistd.h>

namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;

/// A variable of the environment, which takes its own value back with its scope.
class Variable {
public:
  Variable(const char *nom, const char *valeur) : nom_(nom) {
    if (const char *avant = std::getenv(nom)) {
      avant_ = avant;
    }
    ::setenv(nom, valeur, 1);
  }
  ~Variable() {
    if (avant_) {
      ::setenv(nom_, avant_->c_str(), 1);
    } else {
      ::unsetenv(nom_);
    }
  }
  Variable(const Variable &) = delete;
  Variable &operator=(const Variable &) = delete;
  Variable(Variable &&) = delete;
  Variable &operator=(Variable &&) = delete;

private:
  const char *nom_;
  std::optional<std::string> avant_;
};

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

TEST(DossiersDuProgramme, TheUsersOwnIsWhereTheDesktopSaysOrElseUnderTheHome) {
  const Variable maison("HOME", "/home/marin/");
  {
    const Variable xdg("XDG_DATA_HOME", "/donnees");
    EXPECT_EQ(TrouveDossiers("/bin").utilisateur, "/donnees/velmaris");
  }
  for (const char *aucun : {"", "relatif/donnees"}) {
    const Variable xdg("XDG_DATA_HOME", aucun);
    EXPECT_EQ(TrouveDossiers("/bin").utilisateur, "/home/marin/.local/share/velmaris");
    EXPECT_EQ(TrouveDossiers("/bin").accueil, "/home/marin");
  }
}

/// The home of the account at hand, as the system's own program tells it.
fs::path AccueilDuCompte() {
  const DossierTemporaire dossier;
  const std::string commande =
      "getent passwd " + std::to_string(::getuid()) + " | cut -d: -f6 > '" + (dossier / "accueil").string() + "'";
  EXPECT_EQ(std::system(commande.c_str()), 0);
  const std::string ligne = Contenu(dossier / "accueil");
  return ligne.substr(0, ligne.find('\n'));
}

TEST(DossiersDuProgramme, WithoutAHomeOrWithARelativeOneTheUsersOwnIsTheAccounts) {
  const fs::path compte = AccueilDuCompte();
  ASSERT_TRUE(compte.is_absolute());
  for (const char *sans : {"", "relatif", "./ici", "~"}) {
    const Variable xdg("XDG_DATA_HOME", sans);
    const Variable maison("HOME", sans);
    EXPECT_EQ(TrouveDossiers("/bin").accueil, compte) << sans;
    EXPECT_EQ(TrouveDossiers("/bin").utilisateur, compte / ".local/share/velmaris") << sans;
  }
}

TEST(DossiersDuProgramme, AHomeThatIsTheRootStaysOne) {
  const Variable xdg("XDG_DATA_HOME", "");
  const Variable maison("HOME", "/");
  EXPECT_EQ(TrouveDossiers("/bin").accueil, "/");
  EXPECT_EQ(TrouveDossiers("/bin").utilisateur, "/.local/share/velmaris");
}

TEST(DossiersDuProgramme, AnAccountThatTheSystemDoesNotKnowHasNoFolderThatAnyoneMayMake) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only the superuser can become an account that isn't there";
  }
  const Variable xdg("XDG_DATA_HOME", "");
  const Variable maison("HOME", "");
  const uid_t inconnu = 3'999'999'999U;
  ASSERT_EQ(::setresuid(inconnu, 0, 0), 0);
  const fs::path accueil = TrouveDossiers("/bin").accueil;
  ASSERT_EQ(::setresuid(0, 0, 0), 0);
  EXPECT_TRUE(accueil.is_absolute());
  EXPECT_FALSE(fs::exists(accueil));
  EXPECT_FALSE(accueil.string().starts_with("/tmp"));
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

#include "shell/bureau/Sauvegarde.hpp"

#include "foundations/Fichiers.hpp"
#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

/// A file that is kept up to date in the background, and whole whatever happens.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;

class Garde : public ::testing::Test {
protected:
  DossierTemporaire dossier;
  fs::path fichier = dossier / "donnees" / "reprise.txt";
  fs::path derniere = dossier / "donnees" / "reprise-derniere.txt";

  /// Names in the folder, but the lock's.
  std::string Noms() {
    std::string noms;
    for (const auto &entree : fs::directory_iterator(fichier.parent_path())) {
      const std::string nom = entree.path().filename().string();
      noms += nom == "reprise.txt.verrou" ? "" : nom + " ";
    }
    return noms;
  }
};

TEST_F(Garde, WhatWasGivenLastIsInTheFile) {
  Sauvegarde garde(fichier, derniere);
  garde.Donne("un\n");
  garde.Donne("deux\n");
  garde.Attend();
  EXPECT_EQ(LitFichier(fichier), "deux\n");
  EXPECT_EQ(Noms(), "reprise.txt ");
}

TEST_F(Garde, OfManyTextsInARowOnlyAFewAreWritten) {
  Sauvegarde garde(fichier, derniere);
  for (int i = 0; i < 10000; ++i) {
    garde.Donne(std::to_string(i));
  }
  garde.Attend();
  EXPECT_EQ(LitFichier(fichier), "9999");
  EXPECT_LT(garde.ecritures(), 100U);
}

TEST_F(Garde, WhatIsTakenOutGoesAndTheNextTextMakesTheFileAnew) {
  Sauvegarde garde(fichier, derniere);
  garde.Donne("un");
  garde.Retire();
  EXPECT_FALSE(fs::exists(fichier));
  garde.Donne("un");
  garde.Attend();
  EXPECT_EQ(LitFichier(fichier), "un");
}

TEST_F(Garde, AFileOfAProgramThatHasDiedIsSetAsideAlsoWhenItsTurnComesLater) {
  auto premiere = std::make_unique<Sauvegarde>(fichier, derniere);
  EXPECT_FALSE(premiere->misDeCote());
  EXPECT_TRUE(premiere->tenue());
  premiere->Donne("de la première");
  premiere->Attend();
  Sauvegarde seconde(fichier, derniere);
  EXPECT_FALSE(seconde.misDeCote()); // it lives
  EXPECT_FALSE(seconde.tenue());
  premiere.reset();
  seconde.Donne("de la seconde");
  seconde.Attend();
  EXPECT_EQ(LitFichier(fichier), "de la seconde");
  EXPECT_EQ(LitFichier(derniere), "de la première");
  EXPECT_FALSE(seconde.misDeCote());
}

TEST_F(Garde, TheSameTextIsNotWrittenAgain) {
  Sauvegarde garde(fichier, derniere);
  garde.Donne("un");
  garde.Attend();
  garde.Donne("un");
  garde.Attend();
  EXPECT_EQ(garde.ecritures(), 1U);
}

TEST_F(Garde, TheFileIsItsUsersAlone) {
  Sauvegarde garde(fichier, derniere);
  garde.Donne("un");
  garde.Attend();
  struct stat etat {};
  ASSERT_EQ(::stat(fichier.c_str(), &etat), 0);
  EXPECT_EQ(etat.st_mode & 0777U, 0600U);
}

TEST_F(Garde, TheEndWaitsForWhatWasGiven) {
  {
    Sauvegarde garde(fichier, derniere);
    garde.Donne("un");
  }
  EXPECT_EQ(LitFichier(fichier), "un");
}

TEST_F(Garde, AFileThatIsGivenUpGoes) {
  Sauvegarde garde(fichier, derniere);
  garde.Donne("un");
  garde.Attend();
  garde.Donne("deux");
  garde.Abandonne();
  garde.Donne("trois");
  EXPECT_EQ(Noms(), "");
  EXPECT_TRUE(fs::is_empty(fichier.parent_path()));
}

TEST_F(Garde, AnEarlierProgramsFileIsSetAside) {
  { Sauvegarde(fichier, derniere).Donne("avant"); }
  Sauvegarde garde(fichier, derniere);
  garde.Donne("apres");
  garde.Attend();
  EXPECT_EQ(LitFichier(derniere), "avant");
  EXPECT_EQ(LitFichier(fichier), "apres");
}

TEST_F(Garde, OneProgramAtATimeKeepsTheFile) {
  auto premier = std::make_unique<Sauvegarde>(fichier, derniere);
  premier->Donne("premier");
  premier->Attend();
  Sauvegarde second(fichier, derniere);
  second.Donne("second");
  second.Attend();
  EXPECT_EQ(LitFichier(fichier), "premier");
  premier.reset();
  second.Donne("second encore");
  second.Attend();
  EXPECT_EQ(LitFichier(fichier), "second encore");
}

TEST_F(Garde, AProgramBesideAnotherLeavesItsFileAtTheEnd) {
  Sauvegarde premier(fichier, derniere);
  premier.Donne("premier");
  premier.Attend();
  Sauvegarde second(fichier, derniere);
  second.Abandonne();
  EXPECT_EQ(LitFichier(fichier), "premier");
}

TEST_F(Garde, AFolderThatCantBeWrittenStopsNobody) {
  fs::create_directories(fichier); // a folder in the file's place
  Sauvegarde garde(fichier, derniere);
  fs::create_directories(fichier);
  garde.Donne("un");
  garde.Attend();
  EXPECT_EQ(garde.ecritures(), 0U);
}

/// What dies in a moment when the thread has had no time to write.
class Mort : public Garde {
protected:
  Mort() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  template <class Fin> void Meurt(Fin &&fin) {
    PoseSignauxMortels();
    auto *garde = new Sauvegarde(fichier, derniere);
    garde->Donne("avant");
    garde->Attend();
    garde->Donne("au dernier moment"); // within the pause between two writings
    fin();
  }
};

void RemplitLaPile(volatile char *avant) {
  volatile char place[4096];
  place[0] = avant == nullptr ? '\0' : *avant;
  if (place[0] == 'x') {
    return; // never, but no compiler can know
  }
  RemplitLaPile(place);
  place[1] = place[0];
}

TEST_F(Mort, ABadAddressLeavesTheLastText) {
  const std::string racine = ::testing::TempDir() + "velmaris-mort-segv";
  fs::remove_all(racine);
  fichier = fs::path(racine) / "reprise.txt";
  EXPECT_EXIT(Meurt([] { ::raise(SIGSEGV); }), ::testing::KilledBySignal(SIGSEGV), "");
  EXPECT_EQ(LitFichier(fichier), "au dernier moment");
  fs::remove_all(racine);
}

TEST_F(Mort, AnAbortLeavesTheLastText) {
  const std::string racine = ::testing::TempDir() + "velmaris-mort-abrt";
  fs::remove_all(racine);
  fichier = fs::path(racine) / "reprise.txt";
  EXPECT_EXIT(Meurt([] { std::abort(); }), ::testing::KilledBySignal(SIGABRT), "");
  EXPECT_EQ(LitFichier(fichier), "au dernier moment");
  fs::remove_all(racine);
}

TEST_F(Mort, AnExitInTheMiddleLeavesTheLastText) {
  const std::string racine = ::testing::TempDir() + "velmaris-mort-exit";
  fs::remove_all(racine);
  fichier = fs::path(racine) / "reprise.txt";
  EXPECT_EXIT(Meurt([] { std::exit(1); }), ::testing::ExitedWithCode(1), "");
  EXPECT_EQ(LitFichier(fichier), "au dernier moment");
  fs::remove_all(racine);
}

#if !defined(__SANITIZE_ADDRESS__)
TEST_F(Mort, AFullStackLeavesTheLastText) {
  const std::string racine = ::testing::TempDir() + "velmaris-mort-pile";
  fs::remove_all(racine);
  fichier = fs::path(racine) / "reprise.txt";
  EXPECT_EXIT(Meurt([] { RemplitLaPile(nullptr); }), ::testing::KilledBySignal(SIGSEGV), "");
  EXPECT_EQ(LitFichier(fichier), "au dernier moment");
  fs::remove_all(racine);
}
#endif

} // namespace
} // namespace velmaris::essais

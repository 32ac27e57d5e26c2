#include "foundations/Fichiers.hpp"

#include "tests/OutilsTests.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// Writings that a death cuts short.
namespace velmaris {
namespace {

using essais::Contenu;
using essais::DossierTemporaire;
using essais::NumeroErreur;
using essais::Pose;

/// A writing that is killed in its middle: what it leaves, and when that goes.
class EcritureTuee : public ::testing::Test {
protected:
  /// Dies by the limit of a file's size, once the first bytes are on the disk.
  void Tue(const std::filesystem::path &notes) {
    const pid_t enfant = ::fork();
    if (enfant == 0) {
      const rlimit plein{4096, 4096};
      setrlimit(RLIMIT_FSIZE, &plein);
      const rlimit sansImage{0, 0};
      setrlimit(RLIMIT_CORE, &sansImage);
      EcritFichier(lieu / "f", std::string(100'000, 'n'), notes);
      ::_exit(0);
    }
    int etat = 0;
    ::waitpid(enfant, &etat, 0);
    ASSERT_TRUE(WIFSIGNALED(etat));
  }

  static std::size_t Compte(const std::filesystem::path &ou) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(ou), {}));
  }

  /// Makes all that lies in both folders older.
  void Vieillit(std::chrono::hours age) {
    for (const auto &ou : {lieu, registre}) {
      for (const auto &entree : std::filesystem::directory_iterator(ou)) {
        std::filesystem::last_write_time(entree.path(), std::filesystem::file_time_type::clock::now() - age);
      }
    }
  }

  void SetUp() override {
    std::filesystem::create_directory(lieu);
    std::filesystem::create_directory(registre);
    Pose(lieu / "f", "old");
  }

  DossierTemporaire dossier;
  std::filesystem::path lieu = dossier / "lieu";
  std::filesystem::path registre = dossier / "registre";
};

TEST_F(EcritureTuee, LeavesTheOldFileAndWhatItLeftGoesOnceItIsADayOld) {
  Tue(registre);
  EXPECT_EQ(Contenu(lieu / "f"), "old");
  EXPECT_EQ(Compte(lieu), 2U);
  EXPECT_EQ(Compte(registre), 1U);
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(lieu) + Compte(registre), 3U) << "another program may be writing it";
  Vieillit(std::chrono::hours(23));
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(lieu) + Compte(registre), 3U);
  Vieillit(std::chrono::hours(25));
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(lieu) + Compte(registre), 1U);
  EXPECT_EQ(Contenu(lieu / "f"), "old");
}

TEST_F(EcritureTuee, InTheFolderOfTheNotesItselfNeedsNone) {
  lieu = registre;
  Tue({});
  Vieillit(std::chrono::hours(25));
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(registre), 0U);
}

TEST_F(EcritureTuee, OnAVolumeThatWasTakenOutIsRememberedUntilItIsBack) {
  Tue(registre);
  Vieillit(std::chrono::hours(25));
  std::filesystem::rename(lieu, dossier / "ailleurs");
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(registre), 1U);
  std::filesystem::rename(dossier / "ailleurs", lieu);
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(lieu) + Compte(registre), 1U);
}

TEST_F(EcritureTuee, WhateverANoteNamesOnlyAnUnfinishedFileGoes) {
  const std::string nom = ".velmaris-0123456789abcdef";
  Pose(registre / (nom + ".note"), (lieu / "f").string());
  Pose(registre / (nom + ".notes"), "x");
  Pose(registre / ".velmaris-0123456789abcdeg.provisoire", "x");
  Pose(registre / "velmaris-0123456789abcdef.provisoire", "x");
  std::filesystem::create_directory(registre / (nom + ".provisoire"));
  std::filesystem::create_symlink(lieu / "f", lieu / (nom + ".provisoire"));
  Pose(registre / ".velmaris-00000000000000ff.note", (lieu / (nom + ".provisoire")).string());
  Vieillit(std::chrono::hours(48));
  BalaieProvisoires(registre);
  EXPECT_EQ(Compte(lieu), 2U);
  EXPECT_TRUE(std::filesystem::exists(registre / (nom + ".notes")));
  EXPECT_TRUE(std::filesystem::exists(registre / ".velmaris-0123456789abcdeg.provisoire"));
  EXPECT_TRUE(std::filesystem::exists(registre / "velmaris-0123456789abcdef.provisoire"));
  EXPECT_TRUE(std::filesystem::is_directory(registre / (nom + ".provisoire")));
}

TEST_F(EcritureTuee, AWritingThatEndsLeavesNoNote) {
  EcritFichier(lieu / "f", "new", registre);
  EXPECT_EQ(NumeroErreur([&] { EcritFichier(lieu / "none/f", "new", registre); }), 75);
  EXPECT_EQ(Compte(lieu) + Compte(registre), 1U);
  EcritFichier(lieu / "f", "newer", "/proc/velmaris");
  EXPECT_EQ(Contenu(lieu / "f"), "newer") << "a note that can't be written stops nothing";
}

} // namespace
} // namespace velmaris

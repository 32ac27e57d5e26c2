#include "foundations/Fichiers.hpp"

#include "tests/OutilsTests.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <sys/resource.h>

#include <cstdlib>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velmaris {
namespace {

using essais::Contenu;
using essais::DossierTemporaire;
using essais::NumeroErreur;
using essais::Pose;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileReading, ReturnsEveryByte) {
  const DossierTemporaire dossier;
  std::string octets;
  for (int i = 0; i < 1024; ++i) {
    octets += static_cast<char>(i);
  }
  Pose(dossier / "f", octets);
  EXPECT_EQ(LitFichier(dossier / "f"), octets);
}

TEST(FileReading, AnEmptyFileIsAnEmptyText) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "");
  EXPECT_EQ(LitFichier(dossier / "f"), "");
}

TEST(FileReading, TenMegabytesAreReadWhole) {
  const DossierTemporaire dossier;
  const std::string octets(10'000'000, 'x');
  Pose(dossier / "f", octets);
  EXPECT_EQ(LitFichier(dossier / "f"), octets);
}

TEST(FileReading, SixtyFourMegabytesAreReadAndOneByteMoreIsError75) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "x");
  std::filesystem::resize_file(dossier / "f", 64U << 20U);
  EXPECT_EQ(LitFichier(dossier / "f").size(), 64U << 20U);
  std::filesystem::resize_file(dossier / "f", (64U << 20U) + 1U);
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "f"); }), 75);
}

TEST(FileReading, AFileOfFourTerabytesIsError75AtOnce) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "x");
  ASSERT_EQ(::truncate((dossier / "f").c_str(), off_t{4} << 40U), 0);
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "f"); }), 75);
}

TEST(FileReading, AMissingFileIsError53) {
  const DossierTemporaire dossier;
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "none"); }), 53);
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "none/none"); }), 53);
  EXPECT_EQ(NumeroErreur([&] { LitFichier(""); }), 53);
}

TEST(FileReading, ADirectoryInItsPlaceIsError75) {
  const DossierTemporaire dossier;
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier.chemin()); }), 75);
}

TEST(FileReading, APipeInItsPlaceDoesNotHang) {
  const DossierTemporaire dossier;
  ASSERT_EQ(::mkfifo((dossier / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "pipe"); }), 75);
}

/// Another user than the superuser, who may read everything, for the life of the scope.
struct SimpleUtilisateur {
  SimpleUtilisateur() : reussi(::geteuid() != 0 || ::seteuid(65534) == 0) {}
  ~SimpleUtilisateur() {
    if (::geteuid() != ::getuid() && ::seteuid(::getuid()) != 0) {
      std::abort();
    }
  }
  SimpleUtilisateur(const SimpleUtilisateur &) = delete;
  SimpleUtilisateur &operator=(const SimpleUtilisateur &) = delete;
  SimpleUtilisateur(SimpleUtilisateur &&) = delete;
  SimpleUtilisateur &operator=(SimpleUtilisateur &&) = delete;
  bool reussi;
};

TEST(FileReading, AFileWithoutPermissionIsError75) {
  const DossierTemporaire dossier;
  ::chmod(dossier.chemin().c_str(), 0755);
  Pose(dossier / "f", "x");
  ::chmod((dossier / "f").c_str(), 0);
  const SimpleUtilisateur utilisateur;
  if (!utilisateur.reussi) {
    GTEST_SKIP() << "the superuser can't become another user here";
  }
  EXPECT_EQ(NumeroErreur([&] { LitFichier(dossier / "f"); }), 75);
}

TEST(FileWriting, AFolderWithoutPermissionIsError75AndTheOldFileIsWhole) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "old");
  ::chmod(dossier.chemin().c_str(), 0555);
  {
    const SimpleUtilisateur utilisateur;
    if (!utilisateur.reussi) {
      GTEST_SKIP() << "the superuser can't become another user here";
    }
    EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "f", "new"); }), 75);
  }
  ::chmod(dossier.chemin().c_str(), 0755);
  EXPECT_EQ(Contenu(dossier / "f"), "old");
}

TEST(FileWriting, ReplacesAFileAndLeavesNothingBeside) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "old and longer");
  EcritFichier(dossier / "f", "new");
  EXPECT_EQ(Contenu(dossier / "f"), "new");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1);
}

TEST(FileWriting, WritesEveryByte) {
  const DossierTemporaire dossier;
  const std::string octets("a\0b\r\n\xFF", 6);
  EcritFichier(dossier / "f", octets);
  EXPECT_EQ(Contenu(dossier / "f"), octets);
  EcritFichier(dossier / "f", "");
  EXPECT_EQ(Contenu(dossier / "f"), "");
}

TEST(FileWriting, AFailureIsError75AndTheOldFileIsWhole) {
  const DossierTemporaire dossier;
  EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "none/f", "x"); }), 75);
  std::filesystem::create_directory(dossier / "d");
  EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "d", "x"); }), 75);
  EXPECT_TRUE(std::filesystem::is_directory(dossier / "d"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1) << "nothing is left beside it";
}

TEST(FileWriting, AFullDiskLeavesTheOldFile) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "old");
  // A file that may not grow past its first 100 bytes fails like a disk that is full.
  rlimit avant{};
  getrlimit(RLIMIT_FSIZE, &avant);
  const rlimit plein{100, avant.rlim_max};
  std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &plein);
  const int numero = NumeroErreur([&] { EcritFichier(dossier / "f", std::string(1000, 'n')); });
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, SIG_DFL);
  EXPECT_EQ(numero, 75);
  EXPECT_EQ(Contenu(dossier / "f"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1) << "nothing is left beside it";
}

TEST(TextEncoding, ValidUtf8IsTakenAsItIs) {
  for (const char *texte : {"", "abc", "été", "12°", "€", "😀", "\xC2\x80", "\xE0\xA0\x80", "\xF0\x90\x80\x80",
                            "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(EnUtf8(texte), texte);
  }
}

TEST(TextEncoding, AByteOrderMarkGoes) {
  EXPECT_EQ(EnUtf8("\xEF\xBB\xBF"
                   "12"),
            "12");
}

TEST(TextEncoding, AnythingElseIsReadAsWindows1252) {
  EXPECT_EQ(EnUtf8("\xE9t\xE9"), "été");
  EXPECT_EQ(EnUtf8("\x80"), "€");
  EXPECT_EQ(EnUtf8("\x8C\x9C"), "Œœ");
  EXPECT_EQ(EnUtf8("\xB0"), "°");
  EXPECT_EQ(EnUtf8("\x81"), "\xC2\x81");
}

TEST(TextEncoding, MalformedSequencesAreNoUtf8) {
  // A lone continuation, an overlong form, a surrogate, past the last code point, a sequence cut short.
  EXPECT_EQ(EnUtf8("\xBF"), "¿");
  EXPECT_EQ(EnUtf8("\xC0\xAF"), "À¯");
  EXPECT_EQ(EnUtf8("\xE0\x80\x80"), "à€€");
  EXPECT_EQ(EnUtf8("\xED\xA0\x80"), "í\u00A0€");
  EXPECT_EQ(EnUtf8("\xF4\x90\x80\x80"), "ô\u0090€€");
  EXPECT_EQ(EnUtf8("\xC3"), "Ã");
  EXPECT_EQ(EnUtf8("\xFF"), "ÿ");
}

TEST(TextEncoding, EveryByteSurvivesTheRoundTrip) {
  std::string octets;
  for (int i = 0; i < 256; ++i) {
    octets += static_cast<char>(i);
  }
  EXPECT_EQ(EnWindows1252(EnUtf8(octets)), octets);
}

TEST(TextEncoding, AnyNoiseBecomesValidUtf8) {
  std::mt19937 alea(11);
  for (int i = 0; i < 300; ++i) {
    std::string octets;
    for (int j = 0; j < i; ++j) {
      octets += static_cast<char>(alea());
    }
    const std::string texte = EnUtf8(octets);
    EXPECT_EQ(EnUtf8(texte), texte);
  }
}

TEST(TextEncoding, ACharacterThatWindows1252LacksBecomesAQuestionMark) {
  EXPECT_EQ(EnWindows1252("a😀b"), "a?b");
  EXPECT_EQ(EnWindows1252("Ω"), "?");
  EXPECT_EQ(EnWindows1252("\xFFz"), "?z");
  EXPECT_EQ(EnWindows1252("€é°"), "\x80\xE9\xB0");
}

TEST(TextLines, EndAtCrLfLfAndCr) {
  EXPECT_THAT(Lignes("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(Lignes("a\n\rb"), ElementsAre("a", "", "b"));
}

TEST(TextLines, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(Lignes("a\r\nb"), ElementsAre("a", "b"));
  EXPECT_THAT(Lignes("a\r\nb\r\n"), ElementsAre("a", "b"));
  EXPECT_THAT(Lignes("a\r\nb\r\n\r\n"), ElementsAre("a", "b", ""));
}

TEST(TextLines, NoMoreAreTakenThanAreWanted) {
  EXPECT_THAT(Lignes("a\r\nb\nc", 2), ElementsAre("a", "b"));
  EXPECT_THAT(Lignes("a\r\nb\nc", 3), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Lignes("a", 0), IsEmpty());
}

TEST(TextLines, AnEmptyTextHasNone) {
  EXPECT_THAT(Lignes(""), IsEmpty());
  EXPECT_THAT(Lignes("\n"), ElementsAre(""));
}

TEST(FileWriting, AReplacedFileKeepsItsPermissionsAndLeavesNothingBesideIt) {
  const DossierTemporaire dossier;
  Pose(dossier / "a", "avant");
  std::filesystem::permissions(dossier / "a", std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EcritFichier(dossier / "a", "après");
  EXPECT_EQ(LitFichier(dossier / "a"), "après");
  EXPECT_EQ(std::filesystem::status(dossier / "a").permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1);
}

TEST(FileWriting, AProtectedFileIsError75AndNothingIsWritten) {
  const DossierTemporaire dossier;
  Pose(dossier / "f", "old");
  ::chmod(dossier.chemin().c_str(), 0777);
  ::chmod((dossier / "f").c_str(), 0444);
  {
    const SimpleUtilisateur utilisateur;
    if (!utilisateur.reussi) {
      GTEST_SKIP() << "the superuser can't become another user here";
    }
    EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "f", "new"); }), 75);
  }
  EXPECT_EQ(Contenu(dossier / "f"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1) << "nothing is left beside it";
}

TEST(FileWriting, WhatIsNoFileIsError75AndIsNotReplaced) {
  const DossierTemporaire dossier;
  ASSERT_EQ(::mkfifo((dossier / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "pipe", "x"); }), 75);
  EXPECT_TRUE(std::filesystem::is_fifo(dossier / "pipe"));
  std::filesystem::create_symlink("/dev/null", dossier / "nul");
  EXPECT_EQ(NumeroErreur([&] { EcritFichier(dossier / "nul", "x"); }), 75);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(FileWriting, ANewFileHasThePermissionsThatTheUsersMaskLeaves) {
  const DossierTemporaire dossier;
  for (const mode_t masque : {0077U, 0027U, 0002U}) {
    const mode_t avant = ::umask(masque);
    EcritFichier(dossier / "neuf", "x");
    Patience patience;
    EXPECT_TRUE(AjouteLignes(dossier / "journal", "titre", {"ligne"}, patience));
    ::umask(avant);
    for (const char *nom : {"neuf", "journal"}) {
      EXPECT_EQ(static_cast<mode_t>(std::filesystem::status(dossier / nom).permissions()), 0666U & ~masque) << nom;
      std::filesystem::remove(dossier / nom);
    }
  }
}

TEST(FileWriting, AFileThatIsRelievedKeepsItsLinesUnderANewNameAndNoLineIsLost) {
  const DossierTemporaire dossier;
  const auto chemin = dossier / "journal";
  Patience patience;
  int tour = 0;
  const Releve releve = [&](std::string_view debut, std::uintmax_t taille) {
    EXPECT_TRUE(debut.starts_with("titre\n"));
    return taille > 20 ? dossier / ("ancien" + std::to_string(++tour)) : std::filesystem::path();
  };
  for (int i = 0; i < 10; ++i) {
    EXPECT_TRUE(AjouteLignes(chemin, "titre", {"ligne " + std::to_string(i)}, patience, releve));
  }
  std::string tout;
  for (int t = 1; t <= tour; ++t) {
    tout += LitFichier(dossier / ("ancien" + std::to_string(t)));
  }
  tout += LitFichier(chemin);
  EXPECT_GT(tour, 1);
  for (int i = 0; i < 10; ++i) {
    EXPECT_NE(tout.find("ligne " + std::to_string(i) + "\n"), std::string::npos) << i;
  }
}

TEST(FileWriting, TwoProgramsThatRelieveOneFileLoseNoLine) {
  const DossierTemporaire dossier;
  const auto chemin = dossier / "journal";
  constexpr int kLignes = 300;
  const auto ecrit = [&](char main) {
    Patience patience(std::chrono::seconds(60));
    for (int i = 0; i < kLignes; ++i) {
      const Releve releve = [&](std::string_view, std::uintmax_t taille) {
        return taille > 200 ? dossier / (std::string("a-") + main + std::to_string(i)) : std::filesystem::path();
      };
      EXPECT_TRUE(AjouteLignes(chemin, "titre", {std::string(1, main) + std::to_string(i)}, patience, releve));
    }
  };
  std::thread autre([&] { ecrit('x'); });
  ecrit('y');
  autre.join();
  std::size_t lignes = 0;
  std::size_t fichiers = 0;
  for (const auto &entree : std::filesystem::directory_iterator(dossier.chemin())) {
    const std::string texte = LitFichier(entree.path());
    EXPECT_TRUE(texte.starts_with("titre\n")) << entree.path();
    EXPECT_EQ(texte.find("titre", 1), std::string::npos) << entree.path();
    lignes += static_cast<std::size_t>(std::count(texte.begin(), texte.end(), '\n')) - 1;
    ++fichiers;
  }
  EXPECT_EQ(lignes, 2U * kLignes);
  EXPECT_GT(fichiers, 5U);
}

TEST(FileWriting, ANameOfTheGreatestLengthCanBeReplaced) {
  const DossierTemporaire dossier;
  const std::string nom(255, 'n');
  EcritFichier(dossier / nom, "x");
  EXPECT_EQ(Contenu(dossier / nom), "x");
}

TEST(FileWriting, BehindALinkTheFileItselfIsReplaced) {
  const DossierTemporaire dossier;
  Pose(dossier / "vrai", "avant");
  std::filesystem::create_symlink(dossier / "vrai", dossier / "lien");
  EcritFichier(dossier / "lien", "après");
  EXPECT_TRUE(std::filesystem::is_symlink(dossier / "lien"));
  EXPECT_EQ(LitFichier(dossier / "vrai"), "après");
}

} // namespace
} // namespace velmaris

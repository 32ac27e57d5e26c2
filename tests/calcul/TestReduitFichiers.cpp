#include "OutilsReduit.hpp"

#include <filesystem>
#include <string>
#include <unistd.h>

/// What "reduit" makes of files that are missing, broken, odd or many.
namespace velmaris {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(Reduit, AMissingFileIsToldAndTheOthersAreReduced) {
  const std::string a = EcritVisee("a.LoP", LignesSoleil());
  const Passage p = Lance({"reduit", "--langue", "aucune", a, (dossier_ / "rien.LoP").string(), a});
  EXPECT_EQ(p.etat, 1);
  EXPECT_THAT(p.erreurs, IsEmpty());
  const auto objets = Objets(p.sortie);
  ASSERT_THAT(objets, SizeIs(3));
  EXPECT_EQ(objets[0]["reduit"], true);
  EXPECT_THAT(Cles(objets[1]), ElementsAre("fichier", "erreur"));
  EXPECT_EQ(objets[1]["erreur"]["numero"], 53);
  EXPECT_EQ(objets[1]["erreur"]["texte"], "Fichier introuvable");
  EXPECT_EQ(objets[2]["reduit"], true);
}

TEST_F(Reduit, ADirectoryCannotBeRead) { AttendErreur(dossier_.string(), 75); }

TEST_F(Reduit, AnEmptyNameIsAMissingFile) { AttendErreur("", 53); }

TEST_F(Reduit, AFileWithoutPermissionCannotBeRead) {
  if (geteuid() == 0) {
    GTEST_SKIP() << "root reads every file";
  }
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  fs::permissions(fichier, fs::perms::none);
  AttendErreur(fichier, 75);
}

TEST_F(Reduit, AnEmptyFileIsAReadingOfZero) { EXPECT_EQ(ReduitUn(Ecrit("vide.LoP", ""))["reduit"], false); }

TEST_F(Reduit, BinaryNoiseIsReadOrToldButNeverCrashes) {
  std::uint32_t graine = 12345;
  for (int essai = 0; essai < 20; ++essai) {
    std::string octets;
    for (int i = 0; i < 300; ++i) {
      graine = graine * 1664525U + 1013904223U;
      octets += static_cast<char>(graine >> 24U);
    }
    const Passage p = Lance({"reduit", Ecrit("bruit.LoP", octets)});
    EXPECT_LE(p.etat, 1) << p.erreurs;
    EXPECT_THAT(Objets(p.sortie), SizeIs(1));
  }
}

TEST_F(Reduit, ThirtyOneLinesAreReadAndThirtyTwoAreNot) {
  auto lignes = LignesSoleil();
  lignes.resize(31);
  EXPECT_EQ(ReduitUn(EcritVisee("31.LoP", lignes))["reduit"], true);
  lignes.resize(32);
  AttendErreur(EcritVisee("32.LoP", lignes), 9);
}

TEST_F(Reduit, TenMegabytesAreToldAtOnce) {
  std::string longue = Assemble(LignesSoleil(), "\r\n");
  longue.append(10U << 20U, 'x');
  EXPECT_EQ(ReduitUn(Ecrit("longue.LoP", longue))["reduit"], true);
  std::string lignes;
  while (lignes.size() < (10U << 20U)) {
    lignes += "12\r\n";
  }
  AttendErreur(Ecrit("lignes.LoP", lignes), 9);
}

TEST_F(Reduit, AFileOverSixtyFourMegabytesIsToldAndTheOthersAreReduced) {
  const std::string bon = EcritVisee("a.LoP", LignesSoleil());
  const std::string grand = EcritVisee("grand.LoP", LignesSoleil());
  for (const std::uintmax_t taille : {(std::uintmax_t{64} << 20U) + 1, std::uintmax_t{1} << 30U}) {
    fs::resize_file(grand, taille);
    AttendErreur(grand, 75);
    const Passage p = Lance({"reduit", "--langue", "aucune", grand, bon});
    EXPECT_EQ(p.etat, 1);
    EXPECT_EQ(Objets(p.sortie).at(1)["reduit"], true);
  }
}

TEST_F(Reduit, EveryEndOfLineIsRead) {
  const ordered_json crlf = ReduitUn(Ecrit("a.LoP", Assemble(LignesSoleil(), "\r\n")));
  for (const char *fin : {"\n", "\r"}) {
    EXPECT_EQ(ReduitUn(Ecrit("a.LoP", Assemble(LignesSoleil(), fin))), crlf);
  }
  const std::string texte = Assemble(LignesSoleil(), "\r\n");
  EXPECT_EQ(ReduitUn(Ecrit("a.LoP", texte.substr(0, texte.size() - 2))), crlf);
}

TEST_F(Reduit, TextInANumericLineReadsAsZero) {
  auto lignes = LignesSoleil();
  lignes[0] = "douze";
  const ordered_json texte = ReduitUn(EcritVisee("a.LoP", lignes));
  lignes[0] = "0";
  EXPECT_EQ(ReduitUn(EcritVisee("a.LoP", lignes)), texte);
}

TEST_F(Reduit, APositionOutOfRangeIsToldAsAnOverflow) {
  auto lignes = LignesSoleil();
  lignes[6] = "1E300";
  AttendErreur(EcritVisee("a.LoP", lignes), 6);
}

TEST_F(Reduit, ANameThatIsNotUtf8StillMakesValidOutput) {
  const std::string fichier = EcritVisee("no\xEBl\"\\\t.LoP", LignesSoleil());
  const Passage p = Lance({"reduit", "--langue", "aucune", fichier});
  EXPECT_EQ(p.etat, 0);
  EXPECT_THAT(Objets(p.sortie).at(0)["fichier"].get<std::string>(), HasSubstr("no\xEF\xBF\xBDl\"\\\t.LoP"));
}

TEST_F(Reduit, AfterTwoDashesANameThatBeginsWithASignIsAName) {
  for (const char *nom : {"-x.LoP", "-.LoP", "-.5", "--help", "--", "+1.LoP", "-", "-h", "--langue=en", "horizon"}) {
    const Passage p = Lance({"reduit", "--langue", "aucune", "--", "rien.LoP", nom});
    EXPECT_EQ(p.etat, 1) << nom;
    EXPECT_THAT(p.erreurs, IsEmpty()) << nom;
    const auto objets = Objets(p.sortie);
    ASSERT_THAT(objets, SizeIs(2)) << nom;
    EXPECT_EQ(objets[1]["fichier"], nom);
    const auto seul = Objets(Lance({"reduit", "--", nom}).sortie);
    ASSERT_THAT(seul, SizeIs(1)) << nom;
    EXPECT_EQ(seul[0]["fichier"], nom);
  }
}

TEST_F(Reduit, ADashBeforeAPointInANameIsNoNumber) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  const fs::path avant = fs::current_path();
  fs::current_path(dossier_);
  EcritVisee("-.5", LignesSoleil());
  const Passage p = Lance({"reduit", "--", "-.5"});
  fs::current_path(avant);
  EXPECT_EQ(p.etat, 0);
  EXPECT_EQ(Objets(p.sortie).at(0)["fichier"], "-.5");
}

TEST_F(Reduit, ManyFilesComeOutWhole) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  std::vector<std::string> arguments{"reduit"};
  arguments.insert(arguments.end(), 5000, fichier);
  const Passage p = Lance(arguments);
  EXPECT_EQ(p.etat, 0);
  EXPECT_THAT(Objets(p.sortie), SizeIs(5000));
}

} // namespace
} // namespace velmaris

#include "tests/shell/carte/OutilsObjets.hpp"

#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <chrono>
#include <random>

/// The file of the user's objects: what is read from it, and that no write loses anything.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char *kBonne = "+43.50 -005.00 2 Est\n";

class FichierObjets : public AvecObjets {
protected:
  /// The reading told one thing: that line of the file can't be read.
  void IllisibleALaLigne(int ligne) {
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_THAT(boites[0].texte, StartsWith(bureau.messages[2]));
    EXPECT_THAT(boites[0].texte, HasSubstr(fichier.string() + "\nLigne " + std::to_string(ligne) + "\n"));
    EXPECT_THAT(boites[0].texte, EndsWith(u.TexteDeCote.legende));
  }
};

TEST_F(FichierObjets, WithoutAFileTheTablesAreEmptyAndTheFirstWriteMakesIt) {
  fs::remove_all(fichier.parent_path());
  Ouvre();
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_THAT(u.List1.liste, IsEmpty());
  EXPECT_EQ(u.etiquetteCommand1, "0");
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
}

TEST_F(FichierObjets, AnEmptyFileIsAnEmptyList) {
  OuvreSur("");
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_THAT(u.List1.liste, IsEmpty());
}

TEST_F(FichierObjets, EmptyLinesAndCommentsAreSkipped) {
  OuvreSur("; les miens\n\n+43.50 -005.00 2 Est ; pas un commentaire\n\n;\n-01.25 +010.00 3 Autre\n");
  EXPECT_THAT(u.List1.liste, ElementsAre("Est ; pas un commentaire", "Autre"));
  EXPECT_EQ(u.tables[1], (Objet{"-01.25", "+010.00", 3, "Autre"}));
  EXPECT_EQ(u.etiquetteCommand1, "2");
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(FichierObjets, AnyLineEndsAreReadAndTheLastLineNeedsNone) {
  OuvreSur("+43.50 -005.00 2 A\r\n+43.50 -005.00 2 B\n+43.50 -005.00 2 C\r+43.50 -005.00 2 D");
  EXPECT_THAT(u.List1.liste, ElementsAre("A", "B", "C", "D"));
}

TEST_F(FichierObjets, NamesAreReadInUtf8AndInTheOldEightBitSetAndWrittenInUtf8) {
  OuvreSur("+43.50 -005.00 2 \xCEle \x9Cuvre\n");
  EXPECT_THAT(u.List1.liste, ElementsAre("Île œuvre"));
  Nouveau("Œ");
  Ferme();
  EXPECT_EQ(Ecrit(), "+43.50 -005.00 2 Île œuvre\n+47.25 +05.50 4 Œ\n");
  EXPECT_THAT(Autres(), IsEmpty()) << "nothing was left behind";
}

TEST_F(FichierObjets, TheProgramsOwnFileIsReadUntilTheUserHasOne) {
  bureau.dossiers.programme = dossier.chemin() / "programme";
  fs::create_directories(bureau.dossiers.programme);
  Pose(bureau.dossiers.programme / "Utilisateur.txt", "; fourni\n+01.00 +001.00 2 Fourni\n");
  Ouvre();
  EXPECT_THAT(u.List1.liste, ElementsAre("Fourni"));
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Contenu(bureau.dossiers.programme / "Utilisateur.txt"), "; fourni\n+01.00 +001.00 2 Fourni\n");
  EXPECT_EQ(Ecrit(), "+01.00 +001.00 2 Fourni\n+47.25 +05.50 4 A\n");
  EXPECT_THAT(Autres(), IsEmpty());
}

TEST_F(FichierObjets, ALineWhoseFieldsCantBeFoundEndsTheReadingAndIsTold) {
  for (const char *ligne : {"x", "+43.50", "+43.50 ", "+43.50 -005.00", "+43.50 -005.00 2", " +43.50 -005.00 2 A",
                            "   ", "+43.50 -5 4 Nom", "+43.50 -5 4 Nom du lieu", "+43.50 -005.00 40000 A"}) {
    boites.clear();
    OuvreSur(std::string(kBonne) + "; note\n" + ligne + "\n" + kBonne);
    IllisibleALaLigne(3);
    EXPECT_THAT(u.List1.liste, ElementsAre("Est")) << ligne;
    EXPECT_EQ(u.etiquetteCommand1, "1");
    Ferme();
    EXPECT_THAT(Autres(), IsEmpty()) << "nothing is set aside until something is written";
  }
}

TEST_F(FichierObjets, AFileOverSixtyFourMegabytesIsToldAndSetAsideByTheFirstWrite) {
  Pose(fichier, kBonne);
  constexpr std::uintmax_t kGrand = std::uintmax_t{1} << 42U;
  fs::resize_file(fichier, kGrand);
  Ouvre();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, StartsWith(bureau.messages[2] + "\n" + fichier.string()));
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
  EXPECT_EQ(fs::file_size(fichier.parent_path() / "Utilisateur.ancien.txt"), kGrand);
}

TEST_F(FichierObjets, AByteOrderMarkWithinTheFileMovesNoPlaceSilently) {
  const std::string ancien = "; deux fichiers mis bout a bout\n\xEF\xBB\xBF+43.50 -005.00 2 Est\n";
  OuvreSur(ancien);
  IllisibleALaLigne(2);
  EXPECT_THAT(u.List1.liste, IsEmpty()) << "its latitude would read as 0, and as 43.5 once it is the first line";
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), ancien);
}

TEST_F(FichierObjets, TheFirstWriteSetsAsideWhatWasNotReadWholeAndLaterOnesDont) {
  const std::string ancien = std::string(kBonne) + "illisible\n+01.00 +001.00 2 Perdu\n";
  OuvreSur(ancien);
  Nouveau("A");
  Ferme();
  EXPECT_THAT(Autres(), ElementsAre("Utilisateur.ancien.txt"));
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), ancien);
  EXPECT_EQ(Ecrit(), std::string(kBonne) + "+47.25 +05.50 4 A\n");
  Ouvre();
  Nouveau("B");
  Choisit(0);
  Supprime();
  Ferme();
  EXPECT_EQ(Autres().size(), 1U);
}

TEST_F(FichierObjets, SupprimerTooSetsAsideFirst) {
  OuvreSur(std::string(kBonne) + "illisible\n");
  Choisit(0);
  Supprime();
  EXPECT_EQ(Ecrit(), "");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), std::string(kBonne) + "illisible\n");
}

TEST_F(FichierObjets, WhatWasSetAsideIsNeverOverwritten) {
  for (const char *contenu : {"un", "deux", "trois"}) {
    OuvreSur(contenu);
    Nouveau(contenu);
    Ferme();
  }
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), "un");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.2.txt"), "deux");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.3.txt"), "trois");
}

TEST_F(FichierObjets, WhatAnotherHandWroteSinceTheReadingIsSetAsideAndTold) {
  const fs::path deCote = fichier.parent_path() / "Utilisateur.ancien.txt";
  const std::string sienne = "+01.00 +001.00 2 Sienne\n";
  OuvreSur(kBonne);
  Nouveau("A");
  Pose(fichier, sienne);
  Ferme();
  EXPECT_EQ(Ecrit(), std::string(kBonne) + "+47.25 +05.50 4 A\n");
  EXPECT_EQ(Contenu(deCote), sienne);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, u.TexteAutreMain.legende + "\n" + deCote.string());
  EXPECT_EQ(boites[0].icone, Icone::Attention);
}

TEST_F(FichierObjets, TwoProgramsThatEditAtOnceKeepBothLists) {
  OuvreSur(kBonne);
  Bureau second;
  Branche(second);
  second.dossiers = bureau.dossiers;
  Donnees_Charge(second, {});
  second.donnees.FOptionCarte.visible = true;
  ClicControle(second, second.donnees.Command18);
  Nouveau("A");
  Ferme();
  EXPECT_THAT(boites, IsEmpty());
  ChoisitLigne(second, second.utilisateur.List1, 0);
  ClicControle(second, second.utilisateur.Command4);
  EXPECT_EQ(boites.size(), 1U);
  ClicControle(second, second.utilisateur.Command2);
  EXPECT_EQ(boites.size(), 1U) << "told once for one change";
  EXPECT_EQ(Ecrit(), "");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), std::string(kBonne) + "+47.25 +05.50 4 A\n");
}

TEST_F(FichierObjets, AFileThatAppearedOrWentSinceTheReadingIsNotLostEither) {
  Ouvre();
  Nouveau("A");
  Pose(fichier, kBonne);
  Ferme();
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), kBonne);
  Ouvre();
  Nouveau("B");
  fs::remove(fichier);
  Ferme();
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n+47.25 +05.50 4 B\n");
  EXPECT_EQ(Autres().size(), 1U);
}

TEST_F(FichierObjets, TheProgramsOwnWritesAreNoOtherHand) {
  OuvreSur(kBonne);
  Nouveau("A");
  Choisit(0);
  Supprime();
  Nouveau("B");
  Choisit(0);
  Supprime();
  Ferme();
  EXPECT_THAT(boites, IsEmpty());
  EXPECT_THAT(Autres(), IsEmpty());
}

TEST_F(FichierObjets, CommentsAndCutFieldsAreSetAsideToo) {
  for (const char *contenu : {"; note\n+43.50 -005.00 2 Est\n", "+43.50 -005.00 2.5 Est\n", "+43.5 -005.25 2 Est\n",
                              "+43.50 -005.00 2 PlusRien\n"}) {
    fs::remove(fichier.parent_path() / "Utilisateur.ancien.txt");
    OuvreSur(contenu);
    EXPECT_EQ(u.List1.liste.size(), 1U) << contenu;
    Nouveau("A");
    Ferme();
    EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), contenu);
  }
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(FichierObjets, EmptyLinesAndLineEndsAreNotWorthSettingAside) {
  OuvreSur("\r\n+43.50 -005.00 2 Est\r\n\r\n");
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Ecrit(), std::string(kBonne) + "+47.25 +05.50 4 A\n");
  EXPECT_THAT(Autres(), IsEmpty());
}

TEST_F(FichierObjets, OneEntryTooManyIsARangeErrorAndEndsTheReading) {
  std::string octets;
  for (int i = 0; i < 2001; ++i) {
    octets += "+43.50 -005.00 2 " + std::to_string(i) + "\n";
  }
  OuvreSur(octets);
  EXPECT_EQ(u.etiquetteCommand1, "2000");
  EXPECT_EQ(u.List1.liste.back(), "1999");
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr(" 9\n" + std::string(SensErreur(9))));
  EXPECT_THAT(boites[0].texte, HasSubstr("Ligne 2001"));
  Choisit(0);
  Supprime();
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), octets);
  EXPECT_EQ(u.etiquetteCommand1, "1999");
}

TEST_F(FichierObjets, AnEntryWithoutALatitudeEndsTheWriting) {
  OuvreSur("+43.50 -005.00 2 A\n+43.50 -005.00 2 B\n+43.50 -005.00 2 C\n");
  u.tables[1].Latitude.clear();
  EXPECT_EQ(TexteObjets(u), "+43.50 -005.00 2 A\n");
  u.tables[1].Nom = "PlusRien";
  EXPECT_EQ(TexteObjets(u), "+43.50 -005.00 2 A\n+43.50 -005.00 2 C\n") << "a deleted one is passed over first";
}

TEST_F(FichierObjets, ADirectoryInItsPlaceIsToldAndSetAside) {
  fs::create_directories(fichier);
  Pose(fichier / "dedans", "gardé");
  Ouvre();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, StartsWith(bureau.messages[2] + "\n" + fichier.string() + "\n\n"));
  EXPECT_EQ(u.etiquetteCommand1, "0");
  Nouveau("A");
  Ferme();
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt" / "dedans"), "gardé");
}

TEST_F(FichierObjets, ADirectoryInItsPlaceThatCantBeSetAsideStays) {
  fs::create_directories(fichier);
  Pose(fichier / "dedans", "gardé");
  Ouvre();
  Nouveau("A");
  {
    const UtilisateurSansDroit autre;
    if (!autre.reussi) {
      GTEST_SKIP() << "the superuser's rights can't be laid down here";
    }
    fs::permissions(fichier.parent_path(), fs::perms(0555));
    Ferme();
    fs::permissions(fichier.parent_path(), fs::perms(0755));
  }
  EXPECT_EQ(boites.size(), 2U) << "the reading and the writing";
  EXPECT_TRUE(u.cadre.visible);
  EXPECT_EQ(Contenu(fichier / "dedans"), "gardé");
  EXPECT_THAT(Autres(), IsEmpty());
}

TEST_F(FichierObjets, AFileWithoutPermissionIsToldAndSetAside) {
  Pose(fichier, kBonne);
  fs::permissions(fichier, fs::perms::none);
  {
    const UtilisateurSansDroit autre;
    if (!autre.reussi) {
      GTEST_SKIP() << "the superuser's rights can't be laid down here";
    }
    Ouvre();
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_THAT(boites[0].texte, StartsWith(bureau.messages[2]));
    EXPECT_THAT(u.List1.liste, IsEmpty());
    Nouveau("A");
    Ferme();
    EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
  }
  fs::permissions(fichier.parent_path() / "Utilisateur.ancien.txt", fs::perms::owner_all);
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), kBonne);
}

TEST_F(FichierObjets, AReadingThatFailsAgainLeavesTheProgramWhole) {
  OuvreSur(kBonne);
  Choisit(0);
  fs::remove(fichier);
  fs::create_directories(fichier);
  Supprime();
  ASSERT_EQ(boites.size(), 1U) << "a directory can't be replaced";
  EXPECT_THAT(boites[0].texte, HasSubstr(fichier.string()));
  EXPECT_THAT(boites[0].texte, EndsWith(u.TexteRienPerdu.legende));
  EXPECT_EQ(u.tables[0], (Objet{"+43.50", "-005.00", 2, "Est"}));
  EXPECT_THAT(u.List1.liste, ElementsAre("Est"));
  EXPECT_EQ(u.Modifie, 0);
}

TEST_F(FichierObjets, AWriteThatFailsAtTheEndKeepsTheWindowOpenUntilTheUserGivesUp) {
  OuvreSur(kBonne);
  Nouveau("A");
  fs::remove(fichier);
  fs::create_directories(fichier);
  Ferme();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(boites[0].question);
  EXPECT_TRUE(boites[0].nonParDefaut);
  EXPECT_THAT(boites[0].texte, HasSubstr(fichier.string()));
  EXPECT_TRUE(u.cadre.visible);
  EXPECT_EQ(u.Modifie, -1);
  EXPECT_TRUE(bureau.horlogeArretee);
  EXPECT_THAT(u.List1.liste, ElementsAre("Est", "A"));
  fs::remove(fichier);
  Ferme();
  EXPECT_EQ(boites.size(), 1U) << "mended";
  EXPECT_EQ(Ecrit(), std::string(kBonne) + "+47.25 +05.50 4 A\n");
  EXPECT_FALSE(u.cadre.visible);
}

TEST_F(FichierObjets, YesClosesAlthoughNothingCouldBeWritten) {
  Ouvre();
  Nouveau("A");
  fs::create_directories(fichier);
  reponse = true;
  Ferme();
  EXPECT_FALSE(u.cadre.visible);
  EXPECT_FALSE(bureau.horlogeArretee);
}

TEST_F(FichierObjets, LeavingTheProgramTellsAWriteThatFailsOnceAndEnds) {
  Ouvre();
  Nouveau("A");
  fs::create_directories(fichier);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  ASSERT_EQ(boites.size(), 2U) << "the question of the exit, and this";
  EXPECT_THAT(boites[1].texte, HasSubstr(fichier.string()));
  EXPECT_FALSE(boites[1].question);
  EXPECT_TRUE(bureau.termine);
}

TEST_F(FichierObjets, AnUnreadFileThatCantBeSetAsideIsNotReplaced) {
  Pose(fichier, "illisible\n");
  Ouvre();
  Nouveau("A");
  {
    const UtilisateurSansDroit autre;
    if (!autre.reussi) {
      GTEST_SKIP() << "the superuser's rights can't be laid down here";
    }
    fs::permissions(fichier.parent_path(), fs::perms(0555));
    Ferme();
    fs::permissions(fichier.parent_path(), fs::perms(0755));
  }
  EXPECT_EQ(boites.size(), 2U);
  EXPECT_TRUE(u.cadre.visible);
  EXPECT_EQ(u.Modifie, -1);
  EXPECT_EQ(Ecrit(), "illisible\n");
  EXPECT_THAT(Autres(), IsEmpty());
  Ferme();
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), "illisible\n");
}

TEST_F(FichierObjets, ALinkedFileIsReplacedWhereItLies) {
  const fs::path ailleurs = dossier.chemin() / "ailleurs.txt";
  Pose(ailleurs, "; note\n");
  fs::create_symlink(ailleurs, fichier);
  Ouvre();
  Nouveau("A");
  Ferme();
  EXPECT_TRUE(fs::is_symlink(fichier));
  EXPECT_EQ(Contenu(ailleurs), "+47.25 +05.50 4 A\n");
  EXPECT_EQ(Contenu(fichier.parent_path() / "Utilisateur.ancien.txt"), "; note\n");
}

TEST_F(FichierObjets, NoiseAndVeryLongLinesAreReadWithoutHarm) {
  std::mt19937 hasard(7);
  std::string bruit(200000, '\0');
  for (char &c : bruit) {
    c = static_cast<char>(hasard());
  }
  for (const std::string &contenu :
       {bruit, std::string(100000, '\0'), std::string(1000000, 'x'), "+43.50 -005.00 2 " + std::string(1000000, 'n')}) {
    OuvreSur(contenu);
    Nouveau("A");
    EXPECT_LE(boites.size(), 1U);
    boites.clear();
    Ferme();
    EXPECT_THAT(Ecrit(), EndsWith("+47.25 +05.50 4 A\n"));
  }
  Ouvre();
  EXPECT_EQ(u.List1.liste[0].size(), 1000000U);
}

TEST_F(FichierObjets, TenMegabytesAreReadInNoTime) {
  std::string gros;
  while (gros.size() < 10'000'000) {
    gros += kBonne;
  }
  const auto debut = std::chrono::steady_clock::now();
  OuvreSur(gros);
  EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(2));
  EXPECT_EQ(u.etiquetteCommand1, "2000");
  EXPECT_EQ(boites.size(), 1U);
}

} // namespace
} // namespace velmaris::essais

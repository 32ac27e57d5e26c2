#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <chrono>

/// The file dialog: how it opens, what its lists hold, and what a click does.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class ListesDuDialogue : public AvecDialogue {};

TEST_F(ListesDuDialogue, TheCallersTitleNameAndPatternAreOnShowWhenItOpens) {
  Fichiers({"a.LoP", "b.txt"});
  Jouera([&] {
    EXPECT_EQ(f.cadre.titre, "Choose one");
    EXPECT_EQ(f.FName.texte, "mine.LoP");
    EXPECT_TRUE(f.FName.toutSelectionne);
    EXPECT_EQ(bureau.focus, &f.FName);
    EXPECT_TRUE(f.OK.actif);
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP"));
    EXPECT_EQ(f.File1.rang, -1);
  });
  ChoisitFichier(bureau, "Choose one", "mine.LoP", "*LoP");
  EXPECT_EQ(ouvertures, 1);
  EXPECT_FALSE(f.cadre.visible);
}

TEST_F(ListesDuDialogue, ItsFirstUseReadsTheLanguageWithTheKeysOfItsCaptions) {
  const auto legendes = [&] {
    return std::vector<std::string>{f.Label1.legende, f.Label2.legende,  f.Label3.legende,
                                    f.OK.legende,     f.Quitter.legende, f.Command1.legende};
  };
  EXPECT_THAT(legendes(), ElementsAre("&Fichier", "&Liste", "&Chemin", "&Ok", "&Annuler", "&Supprimer"));
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(f.Label1.legende, "&Fichier") << "it isn't loaded yet";
  Demande([&] {
    EXPECT_THAT(legendes(), ElementsAre("&File", "&List", "&Path", "&Ok", "&Cancel", "&Delete"));
    EXPECT_EQ(f.FName.texte, "*LoP") << "the caller's name stays";
  });
}

TEST_F(ListesDuDialogue, ItsTextsFollowAChangeOfLanguageAndItIsLoadedOnce) {
  Dossier("a");
  Demande([&] { Donne("a/"); });
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(f.Quitter.legende, "&Cancel") << "as the main window's do";
  Demande([&] {
    EXPECT_EQ(f.Command1.legende, "&Delete");
    EXPECT_EQ(f.dossier, lieu / "a") << "folder and pattern persist";
    ClicControle(bureau, f.Quitter);
  });
  ClicControle(bureau, d.Image10[0]);
  Demande([&] { EXPECT_EQ(f.Quitter.legende, "&Annuler"); });
  EXPECT_EQ(ouvertures, 3);
}

TEST_F(ListesDuDialogue, TheFrenchFileBearsTheBuiltInCaptions) {
  f.Label1.legende = f.Command1.legende = "?";
  Demande([&] { EXPECT_EQ(f.Label1.legende + f.Command1.legende, "&Fichier&Supprimer"); });
}

TEST_F(ListesDuDialogue, AMissingLanguageFileIsPassedOverInSilence) {
  bureau.FichierLangue = "\\XX.txt";
  Demande([&] { EXPECT_EQ(f.Label1.legende, "&Fichier"); });
  EXPECT_TRUE(boites.empty());
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(ListesDuDialogue, ItStartsInTheUsersOwnFolder) {
  Demande([&] { EXPECT_EQ(f.dossier, lieu); });
}

TEST_F(ListesDuDialogue, TheFolderLastAcceptedInIsKeptWithinARun) {
  const fs::path dedans = Dossier("voyage 2026");
  EXPECT_EQ(Demande([&] { Donne(dedans.string() + "/a.LoP"); }), dedans / "a.LoP");
  Demande([&] { EXPECT_EQ(f.dossier, dedans); });
  EXPECT_EQ(Reglage("Dossier"), dedans.string());
}

TEST_F(ListesDuDialogue, TheFolderLastAcceptedInIsKeptBetweenRuns) {
  const fs::path dedans = Dossier("été");
  Demande([&] { Donne(dedans.string() + "/a.LoP"); });
  bureau.valeurs.reset();
  Bureau second;
  Branche(second);
  Donnees_Charge(second, {});
  fs::path ouvert;
  second.ports.modale = [&](CadreFenetre &) {
    ouvert = second.fselect.dossier;
    ClicControle(second, second.fselect.Quitter);
  };
  ChoisitFichier(second, "", "*LoP", "*LoP");
  EXPECT_EQ(ouvert, dedans);
}

TEST_F(ListesDuDialogue, AFolderLookedAtWithoutAcceptingIsKeptForThisRunOnly) {
  const fs::path dedans = Dossier("a");
  Demande([&] { Donne(dedans.string()); });
  Demande([&] { EXPECT_EQ(f.dossier, dedans); });
  EXPECT_EQ(Reglage("Dossier"), "absent");
}

TEST_F(ListesDuDialogue, AFolderThatHasVanishedSinceTheLastRunGivesWayToTheUsersOwn) {
  EcritReglage(bureau, "Dossier", (lieu / "gone").string());
  Demande([&] { EXPECT_EQ(f.dossier, lieu); });
  EXPECT_TRUE(boites.empty());
}

TEST_F(ListesDuDialogue, AFolderThatVanishesWithinTheRunGivesWayToTheUsersOwn) {
  const fs::path dedans = Dossier("a");
  Fichiers({"x.LoP"});
  Demande([&] { Donne(dedans.string() + "/a.LoP"); });
  fs::remove(dedans);
  Demande([&] {
    EXPECT_EQ(f.dossier, lieu);
    EXPECT_THAT(f.File1.liste, ElementsAre("x.LoP"));
  });
  EXPECT_TRUE(boites.empty());
}

TEST_F(ListesDuDialogue, WithoutEvenTheUsersOwnTheRootIsOnShow) {
  fs::remove_all(lieu);
  Demande([&] { EXPECT_EQ(f.dossier, "/"); });
  EXPECT_TRUE(boites.empty());
}

TEST_F(ListesDuDialogue, AFolderThatVanishesUnderTheDialogGivesWayToTheUsersOwnAsItComesToTheFront) {
  Dossier("a");
  Fichiers({"x.LoP"});
  Demande([&] {
    TapeNom("a/");
    Ok();
    ASSERT_EQ(f.dossier, lieu / "a");
    fs::remove(lieu / "a");
    ActiveFenetre(bureau, "FSelect");
    EXPECT_EQ(f.dossier, lieu);
    EXPECT_THAT(f.File1.liste, ElementsAre("x.LoP"));
  });
  EXPECT_TRUE(boites.empty());
}

TEST_F(ListesDuDialogue, TheListOfFoldersGoesFromTheRootToTheOnesWithinAStepFurtherInEach) {
  Dossier("zéro");
  Dossier("Bis");
  Dossier("alpha");
  Dossier(".hidden");
  Demande([&] {
    std::vector<std::string> attendu;
    for (const fs::path &etape : lieu) {
      attendu.push_back(std::string(attendu.size() * 2, ' ') + etape.string());
    }
    EXPECT_EQ(attendu[0], "/");
    EXPECT_EQ(f.Dir1.rang, static_cast<int>(attendu.size()) - 1) << "the present one is chosen";
    const std::string dedans(attendu.size() * 2, ' ');
    for (const char *nom : {"alpha", "Bis", "zéro"}) {
      attendu.push_back(dedans + nom);
    }
    EXPECT_EQ(f.Dir1.liste, attendu);
  });
}

TEST_F(ListesDuDialogue, FilesAreSortedWithoutRegardToCaseAndHiddenOnesLeftOut) {
  Fichiers({"b.LoP", "A.LoP", "C.LoP", ".a.LoP", "aa.LoP", "B.LoP"});
  Demande([&] { EXPECT_THAT(f.File1.liste, ElementsAre("A.LoP", "aa.LoP", "B.LoP", "b.LoP", "C.LoP")); });
}

TEST_F(ListesDuDialogue, OnlyFilesStandAmongTheFilesAndALinkIsWhatItLeadsTo) {
  Fichiers({"a.LoP"});
  Dossier("d.LoP");
  fs::create_symlink(lieu / "a.LoP", lieu / "file.LoP");
  fs::create_directory_symlink(lieu / "d.LoP", lieu / "folder.LoP");
  fs::create_symlink(lieu / "nowhere", lieu / "broken.LoP");
  ASSERT_EQ(::mkfifo((lieu / "pipe.LoP").c_str(), 0600), 0);
  Demande([&] {
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP", "file.LoP"));
    EXPECT_THAT(Enfants(), ElementsAre("d.LoP", "folder.LoP"));
  });
}

TEST_F(ListesDuDialogue, ThePatternOfSightsTakesTheEndOfANameInAnyCase) {
  Fichiers({"1.LoP", "2.lop", "3.LOP", "4LoP", "5.LoP.old", "6.txt", "LoP"});
  Demande([&] { EXPECT_THAT(f.File1.liste, ElementsAre("1.LoP", "2.lop", "3.LOP", "4LoP", "LoP")); });
}

TEST_F(ListesDuDialogue, ThePatternOfAllFilesTakesAlsoANameWithoutAPoint) {
  Fichiers({"a", "b.c", "d.e.f"});
  Demande([&] { EXPECT_THAT(f.File1.liste, ElementsAre("a", "b.c", "d.e.f")); }, "", "*.*");
}

TEST(FilePattern, AQuestionMarkIsOneCharacterAlsoAnAccentedOne) {
  EXPECT_TRUE(CorrespondMotif("ete.LoP", "?te.LoP"));
  EXPECT_TRUE(CorrespondMotif("été.LoP", "?t?.LoP"));
  EXPECT_TRUE(CorrespondMotif("€😀", "??"));
  EXPECT_FALSE(CorrespondMotif("été.LoP", "??t?.LoP"));
  EXPECT_FALSE(CorrespondMotif("te.LoP", "?te.LoP"));
}

TEST(FilePattern, AStarIsAnyCharactersOrNone) {
  EXPECT_TRUE(CorrespondMotif("15MAR09 120530.LoP", "15*30*P"));
  EXPECT_TRUE(CorrespondMotif("aab", "*ab"));
  EXPECT_TRUE(CorrespondMotif("ab", "*a*b*"));
  EXPECT_TRUE(CorrespondMotif("", "**"));
  EXPECT_TRUE(CorrespondMotif("éé.LoP", "*é.LoP"));
  EXPECT_FALSE(CorrespondMotif("abc", "*b"));
  EXPECT_FALSE(CorrespondMotif("ba", "a*"));
}

TEST(FilePattern, ASemicolonPartsSeveralPatterns) {
  for (const char *nom : {"a.LoP", "a.txt", "a.TXT"}) {
    EXPECT_TRUE(CorrespondMotif(nom, "*.lop;*.txt")) << nom;
    EXPECT_TRUE(CorrespondMotif(nom, "*.txt ; *.LOP")) << nom;
  }
  EXPECT_FALSE(CorrespondMotif("a.csv", "*.lop;*.txt"));
  EXPECT_TRUE(CorrespondMotif("a", "*.lop;*.*"));
}

TEST(FilePattern, ManyStarsAgainstALongNameTakeNoTime) {
  const std::string nom(4000, 'a');
  std::string motif;
  for (int i = 0; i < 200; ++i) {
    motif += "*a";
  }
  EXPECT_TRUE(CorrespondMotif(nom, motif));
  EXPECT_FALSE(CorrespondMotif(nom, motif + "*b"));
}

TEST_F(ListesDuDialogue, AClickOnAFilePutsItsNameIntoTheFieldAndMakesOkUsable) {
  Fichiers({"a.LoP", "b.LoP"});
  Demande([&] {
    f.OK.actif = false;
    ClicFichier("b.LoP");
    EXPECT_EQ(f.FName.texte, "b.LoP");
    EXPECT_TRUE(f.OK.actif);
    EXPECT_TRUE(f.cadre.visible);
  });
}

TEST_F(ListesDuDialogue, AFilePressedTwiceIsAccepted) {
  Fichiers({"a.LoP", "b.LoP"});
  EXPECT_EQ(Demande([&] {
              ClicFichier("b.LoP");
              DoubleClicControle(bureau, f.File1);
            }),
            lieu / "b.LoP");
  EXPECT_FALSE(restee);
}

TEST_F(ListesDuDialogue, TheListOfFilesTakingTheFocusActsAsAClickOnItsChosenFile) {
  Fichiers({"a.LoP"});
  Demande([&] {
    EntreChamp(bureau, f.File1);
    EXPECT_EQ(f.FName.texte, "*LoP") << "none is chosen";
    ClicFichier("a.LoP");
    TapeNom("other");
    f.OK.actif = false;
    EntreChamp(bureau, f.File1);
    EXPECT_EQ(f.FName.texte, "a.LoP");
    EXPECT_TRUE(f.OK.actif);
  });
}

TEST_F(ListesDuDialogue, TheNameFieldTakingTheFocusSelectsItsWholeText) {
  Demande([&] {
    f.FName.toutSelectionne = false;
    EntreChamp(bureau, f.FName);
    EXPECT_TRUE(f.FName.toutSelectionne);
  });
}

TEST_F(ListesDuDialogue, AFolderPressedTwiceIsEnteredAndTheNameStays) {
  Pose(Dossier("a") / "in.LoP", "");
  Dossier("a/b");
  Demande([&] {
    TapeNom("mine.LoP");
    ClicDossier("a");
    EXPECT_EQ(f.dossier, lieu) << "one click only chooses it";
    DoubleClicControle(bureau, f.Dir1);
    EXPECT_EQ(f.dossier, lieu / "a");
    EXPECT_THAT(f.File1.liste, ElementsAre("in.LoP"));
    EXPECT_THAT(Enfants(), ElementsAre("b"));
    EXPECT_EQ(f.FName.texte, "mine.LoP");
    EXPECT_TRUE(f.cadre.visible);
  });
}

TEST_F(ListesDuDialogue, AnotherVolumeIsEnteredAndOneThatIsGoneIsNot) {
  Demande([&] {
    EXPECT_EQ(f.Drive1.texte, lieu.string()) << "the volume with the longest path that holds the folder";
    ChoisitLigne(bureau, f.Drive1, Rang(f.Drive1, "/"));
    EXPECT_EQ(f.dossier, "/");
    EXPECT_EQ(f.Drive1.texte, "/");
    EXPECT_EQ(f.Dir1.rang, 0);
    f.Drive1.liste.emplace_back("/nowhere/at/all");
    ChoisitLigne(bureau, f.Drive1, static_cast<int>(f.Drive1.liste.size()) - 1);
    EXPECT_EQ(f.dossier, "/");
    EXPECT_EQ(f.Drive1.texte, "/");
    EXPECT_TRUE(f.cadre.visible);
  });
  EXPECT_TRUE(boites.empty());
}

TEST_F(ListesDuDialogue, ComingToTheFrontItShowsWhatHasBeenWrittenSinceAndKeepsTheChosenFile) {
  Fichiers({"b.LoP"});
  Demande([&] {
    ClicFichier("b.LoP");
    Fichiers({"a.LoP"});
    Dossier("new");
    EXPECT_THAT(f.File1.liste, ElementsAre("b.LoP"));
    ActiveFenetre(bureau, "FSelect");
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP", "b.LoP"));
    EXPECT_EQ(f.File1.rang, 1);
    EXPECT_THAT(Enfants(), ElementsAre("new"));
    fs::remove(lieu / "b.LoP");
    ActiveFenetre(bureau, "FSelect");
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP"));
    EXPECT_EQ(f.File1.rang, -1);
  });
}

TEST_F(ListesDuDialogue, NamesWithBlanksAccentsOrBytesThatAreNoTextAreChosenAsTheyAre) {
  const std::vector<std::string> noms = {" a  b .LoP", "15 août é.LoP", "\xE9t\xE9\xFF.LoP", "quo\"te'.LoP"};
  Fichiers(noms);
  for (const std::string &nom : noms) {
    const fs::path choisi = Demande([&] {
      ClicFichier(nom);
      Ok();
    });
    EXPECT_EQ(choisi, lieu / nom);
    EXPECT_EQ(Contenu(choisi), nom);
  }
}

TEST_F(ListesDuDialogue, AFolderWhoseNameIsNoTextIsEntered) {
  const std::string nom = "d\xE9j\xE0";
  Pose(Dossier(nom) / "in.LoP", "");
  EXPECT_EQ(Demande([&] {
              ClicDossier(nom);
              Ok();
              Donne("in.LoP");
            }),
            lieu / nom / "in.LoP");
}

TEST_F(ListesDuDialogue, TenThousandFilesAreListedInLessThanASecond) {
  for (int i = 0; i < 10'000; ++i) {
    Pose(lieu / ("sight " + std::to_string(i) + (i % 2 == 0 ? ".LoP" : ".txt")), "");
  }
  const auto debut = std::chrono::steady_clock::now();
  Demande([&] { EXPECT_EQ(f.File1.liste.size(), 5000U); });
  EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(1));
  Demande([&] { EXPECT_EQ(f.File1.liste.size(), 10'000U); }, "", "*.*");
}

TEST_F(ListesDuDialogue, AnEmptyFolderHasAnEmptyList) {
  Demande([&] { EXPECT_THAT(f.File1.liste, IsEmpty()); });
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>
#include <sys/stat.h>

/// The file dialog's buttons: "Ok" and its order of rules, giving up, deleting.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class BoutonsDuDialogue : public AvecDialogue {
protected:
  /// The dialog has gone somewhere and waits there with its pattern.
  void Attend(const fs::path &ou, const std::string &motif) {
    EXPECT_TRUE(f.cadre.visible);
    EXPECT_EQ(f.dossier, ou);
    EXPECT_EQ(f.FName.texte, motif);
    EXPECT_TRUE(f.FName.toutSelectionne);
  }

  /// The typed text leads to a folder, where the dialog waits.
  void Mene(const std::string &texte, const fs::path &ou) {
    SCOPED_TRACE(texte);
    const fs::path choisi = Demande([&] {
      Donne(lieu.string());
      f.FName.toutSelectionne = false;
      Donne(texte);
      Attend(ou, "*LoP");
    });
    EXPECT_TRUE(restee);
    EXPECT_EQ(choisi, "");
  }
};

TEST_F(BoutonsDuDialogue, OkFirstEntersAFolderThatIsChosenButNotEntered) {
  Pose(Dossier("a") / "in.LoP", "");
  Fichiers({"out.LoP"});
  const fs::path choisi = Demande([&] {
    TapeNom("out.LoP");
    ClicDossier("a");
    f.FName.toutSelectionne = false;
    Ok();
    Attend(lieu / "a", "*LoP");
    EXPECT_THAT(f.File1.liste, ElementsAre("in.LoP"));
    ClicFichier("in.LoP");
    Ok();
  });
  EXPECT_FALSE(restee);
  EXPECT_EQ(choisi, lieu / "a" / "in.LoP");
}

TEST_F(BoutonsDuDialogue, OkEntersAChosenFolderAlsoUpTheTree) {
  Demande([&] {
    ClicDossier("/");
    Ok();
    Attend("/", "*LoP");
  });
}

TEST_F(BoutonsDuDialogue, ReturnOnAFolderEntersItKeepsTheNameToBeSavedAndLeadsToItsField) {
  Dossier("a/b");
  EXPECT_EQ(Demande(
                [&] {
                  for (const char *nom : {"a", "b", "b"}) {
                    bureau.focus = nullptr;
                    f.FName.toutSelectionne = false;
                    ClicDossier(nom);
                    EXPECT_TRUE(ValideControle(bureau, f.Dir1));
                    EXPECT_EQ(f.FName.texte, "15MAR09 120530.LoP");
                    EXPECT_TRUE(f.FName.toutSelectionne);
                    EXPECT_EQ(bureau.focus, &f.FName);
                    EXPECT_TRUE(f.cadre.visible) << "also on the folder on show";
                  }
                  TapeNom("mine.LoP");
                  ClicDossier("a");
                  ValideControle(bureau, f.Dir1);
                  Ok();
                },
                "15MAR09 120530.LoP"),
            lieu / "a" / "mine.LoP");
}

TEST_F(BoutonsDuDialogue, ReturnOnAFolderBringsThePatternBackWhenNothingIsToBeSaved) {
  Dossier("a");
  Fichiers({"out.LoP"});
  Demande([&] {
    ClicFichier("out.LoP");
    ClicDossier("a");
    ValideControle(bureau, f.Dir1);
    Attend(lieu / "a", "*LoP");
    EXPECT_EQ(bureau.focus, &f.FName);
  });
}

TEST_F(BoutonsDuDialogue, ReturnOnAFolderThatHasVanishedChangesNothing) {
  Dossier("a");
  Demande([&] {
    TapeNom("mine.LoP");
    ClicDossier("a");
    fs::remove(lieu / "a");
    bureau.focus = nullptr;
    EXPECT_TRUE(ValideControle(bureau, f.Dir1));
    EXPECT_EQ(f.dossier, lieu);
    EXPECT_EQ(f.FName.texte, "mine.LoP");
    EXPECT_EQ(bureau.focus, nullptr);
  });
}

TEST_F(BoutonsDuDialogue, OnOtherListsReturnMeansOk) {
  Fichiers({"a.LoP"});
  Demande([&] {
    ClicFichier("a.LoP");
    EXPECT_FALSE(ValideControle(bureau, f.File1));
    EXPECT_TRUE(f.cadre.visible);
  });
}

TEST_F(BoutonsDuDialogue, AChosenFolderThatHasVanishedLeavesTheDialogAsItWas) {
  Dossier("a");
  Demande([&] {
    TapeNom("mine.LoP");
    ClicDossier("a");
    fs::remove(lieu / "a");
    Ok();
    EXPECT_TRUE(f.cadre.visible);
    EXPECT_EQ(f.dossier, lieu);
    EXPECT_EQ(f.FName.texte, "mine.LoP");
  });
  EXPECT_TRUE(boites.empty());
}

TEST_F(BoutonsDuDialogue, APathWithANameEntersItsFolderAndAcceptsTheName) {
  Dossier("a b");
  EXPECT_EQ(Demande([&] { Donne((lieu / "a b").string() + "/été 1.LoP"); }), lieu / "a b" / "été 1.LoP");
  EXPECT_FALSE(restee);
  EXPECT_EQ(f.etiquette, (lieu / "a b").string() + "/");
  EXPECT_EQ(f.FName.texte, "été 1.LoP");
}

TEST_F(BoutonsDuDialogue, APathWithANameWhoseFolderHasAPointIsPartedAtItsLastSeparator) {
  Dossier("v1.2");
  EXPECT_EQ(Demande([&] { Donne((lieu / "v1.2").string() + "/x.LoP"); }), lieu / "v1.2" / "x.LoP");
}

TEST_F(BoutonsDuDialogue, APathWithAPatternListsItThereAndStays) {
  for (const char *nom : {"1.txt", "2.LoP", "3.TXT"}) {
    Pose(Dossier("a") / nom, "");
  }
  Demande([&] {
    Donne((lieu / "a").string() + "/*.txt");
    Attend(lieu / "a", "*.txt");
    EXPECT_THAT(f.File1.liste, ElementsAre("1.txt", "3.TXT"));
  });
  EXPECT_TRUE(restee);
}

TEST_F(BoutonsDuDialogue, APathAloneIsEnteredAndTheFieldReturnsToThePattern) {
  Dossier("a/b");
  Mene((lieu / "a").string(), lieu / "a");
  Mene((lieu / "a").string() + "/", lieu / "a");
  Mene((lieu / "a" / "b").string(), lieu / "a" / "b");
}

TEST_F(BoutonsDuDialogue, ARelativePathStartsFromThePresentFolder) {
  Dossier("a/b");
  Mene("a/b", lieu / "a" / "b");
  Mene("a/", lieu / "a");
  Mene("../", lieu.parent_path());
  Mene("a/../", lieu);
  EXPECT_EQ(Demande([&] {
              Donne((lieu / "a").string());
              Donne("b/x.LoP");
            }),
            lieu / "a" / "b" / "x.LoP");
  EXPECT_EQ(Demande([&] { Donne("../x.LoP"); }), lieu / "a" / "x.LoP");
}

TEST_F(BoutonsDuDialogue, ATildeBeforeASeparatorIsTheUsersOwnFolder) {
  const fs::path dedans = Dossier("a");
  Mene("~/a", dedans);
  Demande([&] {
    Donne("/");
    Donne("~/");
    Attend(lieu, "*LoP");
    Donne("/");
  });
  EXPECT_EQ(Demande([&] { Donne("~/x.LoP"); }), lieu / "x.LoP");
  EXPECT_EQ(Demande([&] { Donne("~/a/x.LoP"); }), dedans / "x.LoP");
}

TEST_F(BoutonsDuDialogue, TheSeparatorAloneOrBeforeANameIsTheRoot) {
  Mene("/", "/");
  Demande([&] {
    Donne("~/");
    Donne("/*.nothing");
    Attend("/", "*.nothing");
    Donne("~/");
  });
  ASSERT_EQ(f.dossier, lieu);
  EXPECT_EQ(Demande([&] { Donne("/x.LoP"); }), "/x.LoP");
  EXPECT_EQ(f.etiquette, "/") << "it ends in one separator";
}

TEST_F(BoutonsDuDialogue, AFolderThatDoesNotExistLeavesTheDialogWhereItIsWithoutAWord) {
  Fichiers({"a.LoP", "file"});
  for (const char *texte : {"/nowhere/at/all", "nowhere/", "nowhere/x.LoP", "/nowhere/*.txt", "~/nowhere", "file/",
                            "a.LoP/x.LoP", "~other/x.LoP"}) {
    SCOPED_TRACE(texte);
    Demande([&] {
      const auto dossiers = f.Dir1.liste;
      Donne(texte);
      EXPECT_TRUE(f.cadre.visible);
      EXPECT_EQ(f.dossier, lieu);
      EXPECT_EQ(f.FName.texte, texte);
      EXPECT_EQ(f.motif, "*LoP");
      EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP"));
      EXPECT_EQ(f.Dir1.liste, dossiers);
    });
  }
  EXPECT_TRUE(boites.empty());
}

TEST_F(BoutonsDuDialogue, AFolderWithoutPermissionLeavesTheDialogWhereItIs) {
  const fs::path ferme = Dossier("closed");
  ::chmod(ferme.c_str(), 0);
  Demande([&] {
    const UtilisateurSansDroit utilisateur;
    if (!utilisateur.reussi) {
      GTEST_SKIP() << "the superuser's rights can't be laid down here";
    }
    Donne(ferme.string());
    EXPECT_EQ(f.dossier, lieu);
    Donne(ferme.string() + "/x.LoP");
    EXPECT_EQ(f.dossier, lieu);
    ClicDossier("closed");
    DoubleClicControle(bureau, f.Dir1);
    EXPECT_EQ(f.dossier, lieu);
    EXPECT_TRUE(f.cadre.visible);
  });
  ::chmod(ferme.c_str(), 0755);
  EXPECT_TRUE(boites.empty());
}

TEST_F(BoutonsDuDialogue, ATypedPatternListsItsFilesAndKeepsTheDialogOpen) {
  Fichiers({"a1.txt", "a2.LoP", "b1.TXT", "été"});
  Demande([&] {
    Donne("*.txt");
    Attend(lieu, "*.txt");
    EXPECT_THAT(f.File1.liste, ElementsAre("a1.txt", "b1.TXT"));
    Donne("a?.*");
    EXPECT_THAT(f.File1.liste, ElementsAre("a1.txt", "a2.LoP"));
    Donne("?t?");
    EXPECT_THAT(f.File1.liste, ElementsAre("été"));
    Donne("*.lop;b*");
    EXPECT_THAT(f.File1.liste, ElementsAre("a2.LoP", "b1.TXT"));
    Donne("*.*");
    EXPECT_EQ(f.File1.liste.size(), 4U);
  });
  EXPECT_TRUE(restee);
}

TEST_F(BoutonsDuDialogue, OkOnThePatternItOpenedWithChoosesNothing) {
  Fichiers({"a.LoP"});
  EXPECT_EQ(Demande([&] { Ok(); }), "");
  EXPECT_TRUE(restee);
}

TEST_F(BoutonsDuDialogue, ATypedPatternIsTheCallersAgainTheNextTime) {
  Fichiers({"a.txt", "b.LoP"});
  Demande([&] { Donne("*.txt"); });
  Demande([&] {
    EXPECT_EQ(f.FName.texte, "*LoP");
    EXPECT_THAT(f.File1.liste, ElementsAre("b.LoP"));
  });
}

TEST_F(BoutonsDuDialogue, APlainNameIsAcceptedWhetherItExistsOrHasAPointOrNot) {
  Fichiers({"there.LoP"});
  for (const char *nom : {"there.LoP", "new.LoP", "name", "with blank", "ü:2.LoP"}) {
    EXPECT_EQ(Demande([&] { Donne(nom); }), lieu / nom);
    EXPECT_FALSE(restee) << nom;
  }
}

TEST_F(BoutonsDuDialogue, AnEmptyNameIsNoFile) {
  EXPECT_EQ(Demande([&] { Donne(""); }), "");
}

TEST_F(BoutonsDuDialogue, TheTitleIsTheAcceptedNameWithoutItsLastFourCharacters) {
  const struct {
    const char *nom;
    const char *titre;
  } cas[] = {{"15MAR09 120530.LoP", "15MAR09 120530"},
             {"x.LoP", "x"},
             {".LoP", ""},
             {"abc", ""},
             {"a", ""},
             {"été.LoP", "été"},
             {"éèàùç", "é"},
             {"éàü", ""},
             {"no extension", "no exten"}};
  for (const auto &c : cas) {
    bureau.TitreFichier = "before";
    Demande([&] { Donne(c.nom); });
    EXPECT_EQ(bureau.TitreFichier, c.titre) << c.nom;
  }
}

TEST_F(BoutonsDuDialogue, ThePathIsNoPartOfTheTitle) {
  Demande([&] { Donne(lieu.string() + "/mine.LoP"); });
  EXPECT_EQ(bureau.TitreFichier, "mine");
}

TEST_F(BoutonsDuDialogue, GivingUpLeavesTitleAndListsAndEmptiesTheName) {
  Fichiers({"a.LoP", "b.LoP"});
  Dossier("d");
  bureau.TitreFichier = "before";
  const fs::path choisi = Demande([&] {
    ClicFichier("b.LoP");
    const auto fichiers = f.File1;
    const auto dossiers = f.Dir1;
    ClicControle(bureau, f.Quitter);
    EXPECT_EQ(f.File1, fichiers);
    EXPECT_EQ(f.Dir1, dossiers);
    EXPECT_FALSE(f.cadre.visible);
  });
  EXPECT_EQ(choisi, "");
  EXPECT_EQ(f.FName.texte, "");
  EXPECT_EQ(bureau.TitreFichier, "before");
  EXPECT_EQ(Reglage("Dossier"), "absent");
}

TEST_F(BoutonsDuDialogue, DeletingThrowsTheChosenFileAwayAtOnceWithoutAQuestion) {
  Fichiers({"a.LoP", "b.LoP"});
  std::vector<fs::path> jetes;
  bureau.ports.jette = [&](const fs::path &fichier) {
    jetes.push_back(fichier);
    return fs::remove(fichier);
  };
  Demande([&] {
    ClicFichier("a.LoP");
    ClicControle(bureau, f.Command1);
    EXPECT_THAT(jetes, ElementsAre(lieu / "a.LoP"));
    EXPECT_THAT(f.File1.liste, ElementsAre("b.LoP"));
    EXPECT_EQ(f.File1.rang, -1);
    EXPECT_FALSE(f.OK.actif);
    EXPECT_TRUE(f.cadre.visible);
  });
  EXPECT_TRUE(boites.empty());
  EXPECT_TRUE(fs::exists(lieu / "b.LoP"));
}

TEST_F(BoutonsDuDialogue, OkStaysOutOfUseAfterADeletionUntilAFileIsChosenOrANameTyped) {
  Fichiers({"a.LoP", "b.LoP", "c.LoP"});
  Demande([&] {
    ClicFichier("a.LoP");
    ClicControle(bureau, f.Command1);
    Ok();
    EXPECT_TRUE(f.cadre.visible);
    ClicFichier("b.LoP");
    EXPECT_TRUE(f.OK.actif);
    ClicControle(bureau, f.Command1);
    EXPECT_FALSE(f.OK.actif);
    TapeNom("n");
    EXPECT_TRUE(f.OK.actif);
    ClicControle(bureau, f.Command1);
  });
  Demande([&] { EXPECT_TRUE(f.OK.actif) << "when it opens again"; });
}

TEST_F(BoutonsDuDialogue, DeletingWithNothingChosenOnlyPutsOkOutOfUse) {
  Fichiers({"a.LoP"});
  int jetes = 0;
  bureau.ports.jette = [&](const fs::path &) { return ++jetes > 0; };
  Demande([&] {
    TapeNom("a.LoP");
    ClicControle(bureau, f.Command1);
    EXPECT_FALSE(f.OK.actif);
    EXPECT_EQ(f.FName.texte, "a.LoP");
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP"));
  });
  EXPECT_EQ(jetes, 0);
  EXPECT_TRUE(boites.empty());
}

TEST_F(BoutonsDuDialogue, AFileThatCanNotBeThrownAwayStaysInTheList) {
  Fichiers({"a.LoP"});
  bureau.ports.jette = [](const fs::path &) { return false; };
  Demande([&] {
    ClicFichier("a.LoP");
    ClicControle(bureau, f.Command1);
    EXPECT_THAT(f.File1.liste, ElementsAre("a.LoP"));
    EXPECT_FALSE(f.OK.actif);
  });
}

TEST_F(BoutonsDuDialogue, TheDeletedFileIsThatOfTheFolderOnShow) {
  Fichiers({"a.LoP"});
  Pose(Dossier("in") / "a.LoP", "");
  Demande([&] {
    Donne("in/");
    ClicFichier("a.LoP");
    ClicControle(bureau, f.Command1);
    EXPECT_THAT(f.File1.liste, IsEmpty());
  });
  EXPECT_TRUE(fs::exists(lieu / "a.LoP"));
  EXPECT_FALSE(fs::exists(lieu / "in" / "a.LoP"));
}

} // namespace
} // namespace velmaris::essais

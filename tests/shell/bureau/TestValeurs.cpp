#include "tests/shell/bureau/OutilsBureau.hpp"

#include "foundations/Fichiers.hpp"

#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kA = kApplication;
constexpr std::string_view kS = kSection;

class Magasin : public ::testing::Test {
protected:
  DossierTemporaire dossier;
  std::filesystem::path fichier = dossier / "sous/dossier/valeurs.sqlite";
};

TEST_F(Magasin, KeysThatDifferOnlyInCaseAreOneValue) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "C1 0", "2");
  EXPECT_EQ(v.GetSetting(kA, kS, "c1 0"), "2");
  v.SaveSetting(kA, kS, "c1 0", "1");
  EXPECT_EQ(v.GetSetting(kA, kS, "C1 0"), "1");
  EXPECT_EQ(v.GetSetting(kA, kS, "C1 1"), "");
}

TEST_F(Magasin, AMissingKeyGivesTheDefaultOrNothing) {
  const Valeurs v(fichier);
  EXPECT_EQ(v.GetSetting(kA, kS, "T6"), "");
  EXPECT_EQ(v.GetSetting(kA, kS, "C2", "1"), "1");
}

TEST_F(Magasin, AKeyWithABracketIsAnotherKey) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "T6", "5");
  v.SaveSetting(kA, kS, "T6(0)", "7");
  EXPECT_EQ(v.GetSetting(kA, kS, "T6"), "5");
  EXPECT_EQ(v.GetSetting(kA, kS, "t6(0)"), "7");
}

TEST_F(Magasin, ApplicationAndSectionAreExact) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "k", "ici");
  EXPECT_EQ(v.GetSetting("velmaris", kS, "k"), "");
  EXPECT_EQ(v.GetSetting(kA, "valeurs", "k"), "");
}

TEST_F(Magasin, AnEmptyTextIsAValue) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "T10", "");
  EXPECT_EQ(v.GetSetting(kA, kS, "T10", "defaut"), "");
}

TEST_F(Magasin, AValueIsThereForAnotherProgramOnceSavingReturns) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "T10", "2,5 é'\"\\");
  const Valeurs autre(fichier);
  EXPECT_EQ(autre.GetSetting(kA, kS, "T10"), "2,5 é'\"\\");
}

TEST_F(Magasin, AValueSurvivesTheDeathOfTheProgramRightAfterSaving) {
  const pid_t enfant = fork();
  if (enfant == 0) {
    Valeurs v(fichier);
    v.SaveSetting(kA, kS, "Prec", "1");
    kill(getpid(), SIGKILL);
  }
  int etat = 0;
  waitpid(enfant, &etat, 0);
  ASSERT_TRUE(WIFSIGNALED(etat));
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "Prec"), "1");
}

TEST_F(Magasin, AGroupOfValuesIsWrittenWholeOrNotAtAll) {
  const pid_t enfant = fork();
  if (enfant == 0) {
    Valeurs v(fichier);
    v.SaveSetting(kA, kS, "a", "avant");
    v.Ensemble([&] {
      v.SaveSetting(kA, kS, "a", "après");
      v.SaveSetting(kA, kS, "b", "après");
      kill(getpid(), SIGKILL);
    });
  }
  int etat = 0;
  waitpid(enfant, &etat, 0);
  const Valeurs v(fichier);
  EXPECT_EQ(v.GetSetting(kA, kS, "a"), "avant");
  EXPECT_EQ(v.GetSetting(kA, kS, "b"), "");
}

TEST_F(Magasin, AGroupThatTheDiskRefusesLeavesItAloneAndGoesOnInMemory) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "a", "avant");
  ASSERT_EQ(std::system(("sqlite3 '" + fichier.string() +
                         "' \"CREATE TRIGGER t BEFORE INSERT ON valeurs WHEN NEW.cle='b'"
                         " BEGIN SELECT RAISE(FAIL,'plein'); END\"")
                            .c_str()),
            0);
  v.Ensemble([&] {
    v.SaveSetting(kA, kS, "a", "après");
    v.SaveSetting(kA, kS, "b", "après");
  });
  EXPECT_EQ(v.etat(), EtatMagasin::SansTrace);
  EXPECT_EQ(v.GetSetting(kA, kS, "a") + v.GetSetting(kA, kS, "b"), "aprèsaprès");
  const Valeurs autre(fichier);
  EXPECT_EQ(autre.GetSetting(kA, kS, "a"), "avant");
  EXPECT_EQ(autre.GetSetting(kA, kS, "b"), "");
}

TEST_F(Magasin, TwoProgramsOnOneStoreLoseNoKey) {
  const auto ecrit = [&](const std::string &prefixe) {
    Valeurs v(fichier);
    for (int i = 0; i < 50; ++i) {
      v.SaveSetting(kA, kS, prefixe + std::to_string(i), std::to_string(i));
    }
    AttendEcrit(v);
    EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  };
  std::thread autre(ecrit, "x");
  ecrit("y");
  autre.join();
  const Valeurs v(fichier);
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(v.GetSetting(kA, kS, "x" + std::to_string(i)), std::to_string(i));
    EXPECT_EQ(v.GetSetting(kA, kS, "y" + std::to_string(i)), std::to_string(i));
  }
}

TEST_F(Magasin, ADamagedFileIsSetAsideWholeUnderANewName) {
  std::filesystem::create_directories(fichier.parent_path());
  for (const std::string &bruit : {std::string("ceci n'est pas une base"), std::string(5000, '\x7f')}) {
    Pose(fichier, bruit);
    Valeurs v(fichier);
    EXPECT_EQ(v.etat(), EtatMagasin::Abime);
    EXPECT_EQ(LitFichier(v.fichierEnCause()), bruit);
    EXPECT_NE(v.fichierEnCause(), fichier);
    v.SaveSetting(kA, kS, "T6", "5");
    EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "T6"), "5");
  }
}

TEST_F(Magasin, AStoreDamagedInTheMiddleIsSetAside) {
  {
    Valeurs v(fichier);
    v.Ensemble([&] {
      for (int i = 0; i < 2000; ++i) {
        v.SaveSetting(kA, kS, "cle" + std::to_string(i), std::string(50, 'v'));
      }
    });
  }
  std::string octets = LitFichier(fichier);
  ASSERT_GT(octets.size(), 40000U);
  std::fill(octets.begin() + 8192, octets.begin() + 32768, '\xee');
  Pose(fichier, octets);
  const Valeurs v(fichier);
  EXPECT_EQ(v.etat(), EtatMagasin::Abime);
  EXPECT_EQ(LitFichier(v.fichierEnCause()), octets);
}

TEST_F(Magasin, AnotherProgramsBaseIsSetAsideAndNotWrittenInto) {
  { Valeurs v(fichier); }
  ASSERT_EQ(
      std::system(("sqlite3 '" + fichier.string() + "' 'DROP TABLE valeurs; CREATE TABLE valeurs(autre)'").c_str()), 0);
  EXPECT_EQ(Valeurs(fichier).etat(), EtatMagasin::Abime);
}

TEST_F(Magasin, AKeyOutOfItsOrderWhichIsNoLongerFoundIsADamage) {
  {
    Valeurs v(fichier);
    for (const char *cle : {"aaaa", "bbbb", "cccc"}) {
      v.SaveSetting(kA, kS, cle, "5");
    }
  }
  std::string octets = LitFichier(fichier);
  octets.at(octets.find("bbbb")) ^= 0x10; // "rbbb"
  Pose(fichier, octets);
  EXPECT_EQ(Valeurs(fichier).etat(), EtatMagasin::Abime);
}

TEST_F(Magasin, TheStoreThatAnEarlierVersionMadeIsSound) {
  std::filesystem::create_directories(fichier.parent_path());
  ASSERT_EQ(
      std::system(("sqlite3 '" + fichier.string() +
                   "' \"CREATE TABLE IF NOT EXISTS valeurs( application TEXT NOT NULL, section TEXT NOT NULL, cle "
                   "TEXT NOT NULL COLLATE NOCASE, valeur TEXT NOT NULL, PRIMARY KEY(application, section, cle)) "
                   "WITHOUT ROWID; INSERT INTO valeurs VALUES('Velmaris', 'Valeurs', 'T6', '05')\"")
                      .c_str()),
      0);
  const Valeurs v(fichier);
  EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  EXPECT_EQ(v.GetSetting(kA, kS, "T6"), "05");
}

TEST_F(Magasin, ATableOfAnotherFormOrAViewIsNoStore) {
  { Valeurs v(fichier); }
  for (const char *forme : {"CREATE TABLE valeurs(application, section, cle, valeur)",
                            "CREATE TABLE valeurs(application TEXT NOT NULL, section TEXT NOT NULL, cle TEXT NOT NULL, "
                            "valeur TEXT NOT NULL, PRIMARY KEY(application, section, cle)) WITHOUT ROWID",
                            "CREATE TABLE valeurs(application, section, cle PRIMARY KEY, valeur)",
                            "CREATE VIEW valeurs AS SELECT 1 application, 2 section, 3 cle, 4 valeur"}) {
    ASSERT_EQ(std::system(("sqlite3 '" + fichier.string() + "' 'DROP TABLE valeurs; " + forme + "'").c_str()), 0);
    EXPECT_EQ(Valeurs(fichier).etat(), EtatMagasin::Abime) << forme;
    EXPECT_EQ(Valeurs(fichier).etat(), EtatMagasin::Sain);
  }
}

TEST_F(Magasin, AStoreWithMoreColumnsFromALaterReleaseIsUsedAsItIs) {
  { Valeurs(fichier).SaveSetting(kA, kS, "T6", "5"); }
  ASSERT_EQ(
      std::system(("sqlite3 '" + fichier.string() +
                   "' \"ALTER TABLE valeurs ADD COLUMN moment INTEGER NOT NULL DEFAULT 7; CREATE TABLE autre(x)\"")
                      .c_str()),
      0);
  {
    Valeurs v(fichier);
    EXPECT_EQ(v.etat(), EtatMagasin::Sain);
    EXPECT_EQ(v.GetSetting(kA, kS, "t6"), "5");
    v.SaveSetting(kA, kS, "T6", "6");
    v.SaveSetting(kA, kS, "T7", "10");
    EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  }
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "T7"), "10");
  // A table that had them from its making, in another order.
  fs::remove(fichier);
  ASSERT_EQ(std::system(("sqlite3 '" + fichier.string() +
                         "' \"CREATE TABLE valeurs(moment INTEGER DEFAULT 0, valeur TEXT NOT NULL, cle TEXT NOT NULL"
                         " COLLATE NOCASE, section TEXT NOT NULL, application TEXT NOT NULL, note TEXT,"
                         " PRIMARY KEY(application, section, cle)) WITHOUT ROWID;"
                         " INSERT INTO valeurs VALUES(1, '8', 'T6', 'Valeurs', 'Velmaris', 'n')\"")
                            .c_str()),
            0);
  Valeurs v(fichier);
  EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  EXPECT_EQ(v.GetSetting(kA, kS, "t6"), "8");
  v.SaveSetting(kA, kS, "t6", "9");
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "T6"), "9");
}

TEST_F(Magasin, AFileOverSixtyFourMegabytesIsNoStoreAndIsSetAside) {
  { Valeurs(fichier).SaveSetting(kA, kS, "T6", "5"); }
  fs::resize_file(fichier, std::uintmax_t{1} << 42U);
  const Valeurs v(fichier);
  EXPECT_EQ(v.etat(), EtatMagasin::Abime);
  EXPECT_EQ(fs::file_size(v.fichierEnCause()), std::uintmax_t{1} << 42U);
}

TEST_F(Magasin, TwoProgramsThatFindADamageAtOnceSetOneFileAsideAndLoseNoKey) {
  const std::string bruit(5000, '\x7f');
  for (int tour = 0; tour < 20; ++tour) {
    std::filesystem::remove_all(fichier.parent_path());
    std::filesystem::create_directories(fichier.parent_path());
    Pose(fichier, bruit);
    const auto ecrit = [&](const std::string &cle) {
      Valeurs v(fichier);
      v.SaveSetting(kA, kS, cle, "5");
      AttendEcrit(v);
    };
    std::thread autre(ecrit, "x");
    ecrit("y");
    autre.join();
    const Valeurs v(fichier);
    EXPECT_EQ(v.GetSetting(kA, kS, "x") + v.GetSetting(kA, kS, "y"), "55") << tour;
    std::size_t deCote = 0;
    for (const auto &f : std::filesystem::directory_iterator(fichier.parent_path())) {
      if (f.path().filename().string().find(".abime-") != std::string::npos) {
        EXPECT_EQ(LitFichier(f.path()), bruit);
        ++deCote;
      }
    }
    EXPECT_EQ(deCote, 1U) << tour;
  }
}

TEST_F(Magasin, AnEmptyFileIsAnEmptyStore) {
  std::filesystem::create_directories(fichier.parent_path());
  Pose(fichier, "");
  Valeurs v(fichier);
  EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  v.SaveSetting(kA, kS, "T6", "5");
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "T6"), "5");
}

TEST_F(Magasin, WhereNothingCanBeWrittenValuesLiveInMemory) {
  std::filesystem::create_directories(fichier);
  for (const std::filesystem::path &refus : {fichier, std::filesystem::path("/proc/velmaris/valeurs.sqlite")}) {
    Valeurs v(refus);
    EXPECT_EQ(v.etat(), EtatMagasin::SansTrace) << refus;
    v.SaveSetting(kA, kS, "T6", "5");
    EXPECT_EQ(v.GetSetting(kA, kS, "t6"), "5");
    EXPECT_EQ(v.fichierEnCause(), refus);
  }
}

TEST_F(Magasin, AStoreThatRefusesAWriteKeepsAllValuesInMemory) {
  { Valeurs(fichier).SaveSetting(kA, kS, "T6", "5"); }
  // A trigger refuses as a full disk does, for the administrator too.
  Valeurs v(fichier);
  ASSERT_EQ(std::system(("sqlite3 '" + fichier.string() +
                         "' \"CREATE TRIGGER t BEFORE INSERT ON valeurs BEGIN SELECT RAISE(FAIL,'plein'); END\"")
                            .c_str()),
            0);
  v.SaveSetting(kA, kS, "T7", "10");
  EXPECT_EQ(v.etat(), EtatMagasin::SansTrace);
  EXPECT_EQ(v.GetSetting(kA, kS, "T6"), "5");
  EXPECT_EQ(v.GetSetting(kA, kS, "T7"), "10");
}

TEST_F(Programme, TheUserIsToldOnceOfADamagedStoreAndTheProgramWorksOn) {
  std::filesystem::create_directories(dossier.chemin() / "utilisateur");
  Pose(dossier.chemin() / "utilisateur" / "valeurs.sqlite", "abîmé");
  DemarreSansCarte();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_NE(boites[0].texte.find(bureau.valeurs->fichierEnCause().string()), std::string::npos);
  TapeVisee();
  Calcule();
  EXPECT_NE(d.Affichage_Intercept.legende, "");
}

TEST_F(Programme, TheUserIsToldOnceThatNothingCanBeKept) {
  bureau.dossiers.utilisateur = "/proc/velmaris";
  DemarreSansCarte();
  ClicOption(bureau, d.Option4[1]);
  EXPECT_EQ(boites.size(), 1U);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_TRUE(bureau.termine);
}

} // namespace
} // namespace velmaris::essais

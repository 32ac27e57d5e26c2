#include "OutilsDisquePlein.hpp"

#include "shell/carte/FichierObjets.hpp"
#include "shell/carte/Objets.hpp"

#include <gmock/gmock.h>

#include <optional>

/// The user's data folder on a disk without room, or that may not be written: each refusal is told once, nothing old is
/// lost, and the program works on.
namespace velmaris::essais {
namespace {

using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr int kPlacesEssayees = 14; ///< blocks left free, from none to enough for everything

TEST_F(DisquePlein, AStoredLineIsWholeHereAndWholeOnTheDiskHoweverLittleRoomIsLeft) {
  int refus = 0;
  for (int libres = 0; libres < kPlacesEssayees; ++libres) {
    Nettoie();
    TapePremiere();
    for (int ligne = 0; ligne < 4; ++ligne) {
      Garde(ligne);
    }
    const std::string premiere = Panneau();
    Remplit(libres);
    TapeSeconde();
    const std::string seconde = Panneau();
    Garde(1);
    const bool refuse = bureau.valeurs->etat() == EtatMagasin::SansTrace;
    EXPECT_EQ(boites.size(), refuse ? 1U : 0U) << libres;
    EXPECT_EQ(BoitesQuiDisent(d.TexteMagasinMuet.legende), refuse ? 1U : 0U);
    EXPECT_EQ(DroiteDe(bureau, 2), premiere) << libres;
    EXPECT_EQ(DroiteDe(bureau, 1), seconde) << "the program has the line that it was given, " << libres;
    Garde(3);
    EXPECT_EQ(DroiteDe(bureau, 3), seconde);
    EXPECT_LE(boites.size(), 1U) << "told once";
    Libere();
    EXPECT_EQ(DroiteDe(Redemarre(), 1), refuse ? premiere : seconde) << libres;
    EXPECT_EQ(DroiteDe(*autre, 2), premiere);
    EXPECT_THAT(boites, IsEmpty());
    SansReste(disque);
    refus += refuse ? 1 : 0;
  }
  EXPECT_GT(refus, 0);
  EXPECT_LT(refus, kPlacesEssayees);
}

TEST_F(DisquePlein, AnExitKeepsTheSettingsOfTheLastOneWholeOrItsOwn) {
  int refus = 0;
  for (int libres = 0; libres < kPlacesEssayees; ++libres) {
    Nettoie();
    reponse = true;
    TapePremiere();
    ClicControle(bureau, d.Sortie);
    Remplit(libres);
    TapeSeconde();
    bureau.termine = false;
    ClicControle(bureau, d.Sortie);
    EXPECT_TRUE(bureau.termine) << "the program ends all the same";
    const bool refuse = bureau.valeurs->etat() == EtatMagasin::SansTrace;
    EXPECT_EQ(BoitesQuiDisent(d.TexteMagasinMuet.legende), refuse ? 1U : 0U);
    Libere();
    const Donnees &suivant = Redemarre().donnees;
    EXPECT_THAT(boites, IsEmpty());
    EXPECT_EQ(suivant.Text8.texte + " " + suivant.Text9.texte + " " + suivant.Text6.texte + " " + suivant.Text7.texte +
                  " " + suivant.Text11.texte,
              refuse ? "47 30 05 10 -1,5" : "46 31 06 11 -2,5")
        << libres;
    refus += refuse ? 1 : 0;
  }
  EXPECT_GT(refus, 0);
  EXPECT_LT(refus, kPlacesEssayees);
}

TEST_F(DisquePlein, AStartWithoutRoomForAStoreTellsItOnceAndTheNextOneHasAStore) {
  for (int libres = 0; libres < kPlacesEssayees; ++libres) {
    bureau.valeurs.reset();
    Nettoie();
    bureau.valeurs.reset();
    fs::remove(disque / "valeurs.sqlite");
    Remplit(libres);
    Bureau &premier = Redemarre();
    EXPECT_EQ(boites.size(), premier.valeurs->etat() == EtatMagasin::Sain ? 0U : 1U) << libres;
    EXPECT_NE(premier.valeurs->etat(), EtatMagasin::Abime) << libres;
    Libere();
    EXPECT_EQ(Redemarre().valeurs->etat(), EtatMagasin::Sain) << libres;
    EXPECT_THAT(boites, IsEmpty());
    autre.reset();
  }
}

TEST_F(DisquePlein, SauveKeepsTheOldFileWholeTellsItAndWorksAgainOnceThereIsRoom) {
  const fs::path fichier = disque / "visee.LoP";
  TapePremiere();
  Sauve(fichier.string());
  const std::string avant = Contenu(fichier);
  ASSERT_NE(avant, "");
  TapeSeconde();
  Remplit();
  boites.clear();
  Sauve(fichier.string());
  EXPECT_EQ(BoitesQuiDisent(d.TexteNonEcrit.legende + "\n" + fichier.string()), 1U);
  EXPECT_EQ(Contenu(fichier), avant);
  SansReste(disque);
  Sauve((disque / "neuve.LoP").string());
  EXPECT_FALSE(fs::exists(disque / "neuve.LoP")) << "no empty file is left";
  Libere();
  boites.clear();
  Sauve(fichier.string());
  EXPECT_NE(Contenu(fichier), avant);
  EXPECT_EQ(Contenu(fichier), Panneau());
  EXPECT_EQ(BoitesQuiDisent(d.TexteNonEcrit.legende), 0U);
}

TEST_F(DisquePlein, TheJournalHasWholeLinesOnlyIsToldOnceAndGoesOnOnceThereIsRoom) {
  TapePremiere();
  Remplit(1); // of which the journal's lines fill less than the rest
  std::string avant;
  int entrees = 0;
  for (; entrees < 100 && !bureau.journalSignale; ++entrees) {
    avant = Contenu(disque / "journal.csv");
    Calcule();
  }
  ASSERT_TRUE(bureau.journalSignale);
  EXPECT_GT(entrees, 2) << "some lines had room";
  EXPECT_EQ(Contenu(disque / "journal.csv"), avant);
  EXPECT_THAT(avant, EndsWith("\n"));
  Calcule();
  EXPECT_EQ(BoitesQuiDisent(d.TexteJournalMuet.legende), 1U);
  EXPECT_NE(d.Affichage_Intercept.legende, "");
  Libere();
  Calcule();
  const std::string apres = Contenu(disque / "journal.csv");
  EXPECT_THAT(apres, StartsWith(avant));
  EXPECT_EQ(std::count(apres.begin(), apres.end(), '\n'), std::count(avant.begin(), avant.end(), '\n') + 1);
}

TEST_F(DisquePlein, TheObjectsKeepTheirOldFileAndAreWrittenOnceThereIsRoom) {
  Utilisateur &u = bureau.utilisateur;
  const fs::path fichier = disque / kFichierObjets;
  for (const std::string ancien : {"+43.50 -005.00 2 Est\n", "; une note\n+43.50 -005.00 2 Est\n"}) {
    Nettoie();
    Pose(fichier, ancien);
    d.FOptionCarte.visible = true;
    ClicControle(bureau, d.Command18);
    Tape(u.Text4, "Autre");
    Tape(u.Text3, "3");
    Tape(u.Text8, "47");
    Tape(u.Text9, "15");
    Tape(u.Text6, "5");
    Tape(u.Text7, "30");
    ClicControle(bureau, u.Command1);
    Remplit();
    boites.clear();
    reponse = false;
    ClicControle(bureau, u.Command2);
    EXPECT_EQ(boites.size(), 1U);
    EXPECT_TRUE(u.cadre.visible) << "the answer was not to close";
    EXPECT_EQ(Contenu(fichier), ancien);
    SansReste(disque);
    Libere();
    ClicControle(bureau, u.Command2);
    EXPECT_EQ(boites.size(), 1U);
    EXPECT_FALSE(u.cadre.visible);
    EXPECT_EQ(Contenu(fichier), "+43.50 -005.00 2 Est\n+47.25 -05.50 3 Autre\n");
    EXPECT_EQ(fs::exists(disque / "Utilisateur.ancien.txt"), ancien.front() == ';');
  }
}

/// A data folder that may only be read.
class DossierInterdit : public AvecFichiers {
protected:
  void SetUp() override {
    TapeVisee();
    Calcule();
    Garde(0);
    reponse = true;
    ClicControle(bureau, d.Sortie);
    bureau.valeurs.reset();
    Pose(chez / kFichierObjets, "+43.50 -005.00 2 Est\n");
    for (const auto &entree : fs::directory_iterator(chez)) {
      avant[entree.path()] = Contenu(entree.path());
      fs::permissions(entree, fs::perms(0222), fs::perm_options::remove);
    }
    fs::permissions(chez, fs::perms(0555));
    boites.clear();
    reponse = false;
  }
  void TearDown() override { fs::permissions(chez, fs::perms(0755)); }

  fs::path chez = bureau.dossiers.utilisateur;
  std::map<fs::path, std::string> avant;
};

TEST_F(DossierInterdit, AllThatIsThereIsReadEachRefusalIsToldOnceAndNothingChanges) {
  {
    const UtilisateurSansDroit droits;
    ASSERT_TRUE(droits.reussi);
    Bureau autre;
    Branche(autre);
    autre.dossiers.programme = bureau.dossiers.programme;
    Donnees_Charge(autre, {});
    Donnees &n = autre.donnees;
    n.Check2.valeur = 0;
    EXPECT_THAT(boites, IsEmpty()) << "a start has nothing to write";
    EXPECT_EQ(n.Text8.texte + n.Text9.texte, "4730");
    ClicControle(autre, n.Droite[0]);
    EXPECT_NE(n.Affichage_Intercept.legende, "");
    ClicControle(autre, n.Command2);
    EXPECT_EQ(boites.size(), 1U) << "the journal";
    ClicOption(autre, n.Option1[0]);
    ClicControle(autre, n.Droite[1]);
    EXPECT_EQ(boites.size(), 2U) << "the settings";
    ClicControle(autre, n.Command2);
    ClicOption(autre, n.Option1[0]);
    ClicControle(autre, n.Droite[2]);
    EXPECT_EQ(boites.size(), 2U) << "each once";
    n.FOptionCarte.visible = true;
    ClicControle(autre, n.Command18);
    ChoisitLigne(autre, autre.utilisateur.List1, 0);
    ClicControle(autre, autre.utilisateur.Command4);
    EXPECT_EQ(boites.size(), 3U) << "the objects";
    EXPECT_EQ(autre.utilisateur.tables[0].Nom, "Est");
    reponse = true;
    ClicControle(autre, n.Sortie);
    EXPECT_TRUE(autre.termine);
    EXPECT_EQ(boites.size(), 4U) << "the question of the exit";
  }
  std::map<fs::path, std::string> apres;
  for (const auto &entree : fs::directory_iterator(chez)) {
    apres[entree.path()] = Contenu(entree.path());
  }
  EXPECT_EQ(apres, avant);
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include "foundations/Fichiers.hpp"
#include "shell/visee/Journal.hpp"

#include <gmock/gmock.h>

#include <chrono>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <sys/file.h>

/// Settings and journal while another program holds them: nothing stands still for longer than a third of a second,
/// nothing is lost, and the user is told once.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view kA = kApplication;
constexpr std::string_view kS = kSection;
constexpr double kPatience = 0.3; ///< seconds
constexpr double kMarge = 2.0;    ///< for a busy machine

double Secondes(const std::function<void()> &geste) {
  const auto debut = std::chrono::steady_clock::now();
  geste();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

/// Another program that holds the store until its scope ends.
class AutreProgramme {
public:
  AutreProgramme(const fs::path &fichier, const std::string &verrou) {
    sqlite3 *base = nullptr;
    EXPECT_EQ(sqlite3_open(fichier.c_str(), &base), SQLITE_OK);
    base_.reset(base);
    Execute(verrou);
  }
  void Execute(const std::string &instruction) {
    EXPECT_EQ(sqlite3_exec(base_.get(), instruction.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << instruction;
  }

private:
  struct Fermeture {
    void operator()(sqlite3 *base) const { sqlite3_close(base); }
  };
  std::unique_ptr<sqlite3, Fermeture> base_;
};

/// A lock on a file or a folder until its scope ends.
class VerrouFichier {
public:
  explicit VerrouFichier(const fs::path &chemin) : numero_(::open(chemin.c_str(), O_RDONLY | O_CLOEXEC)) {
    EXPECT_EQ(::flock(numero_, LOCK_EX), 0);
  }
  ~VerrouFichier() { ::close(numero_); }
  VerrouFichier(const VerrouFichier &) = delete;
  VerrouFichier &operator=(const VerrouFichier &) = delete;
  VerrouFichier(VerrouFichier &&) = delete;
  VerrouFichier &operator=(VerrouFichier &&) = delete;

private:
  int numero_;
};

class MagasinRetenu : public ::testing::TestWithParam<const char *> {
protected:
  MagasinRetenu() { std::filesystem::create_directories(fichier.parent_path()); }
  DossierTemporaire dossier;
  fs::path fichier = dossier / "donnees/valeurs.sqlite";
};

TEST_F(MagasinRetenu, AHundredReadingsOfAHeldStoreWaitOnceAndGiveWhatIsInMemory) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "T6", "5");
  const AutreProgramme autre(fichier, "BEGIN EXCLUSIVE");
  const double duree = Secondes([&] {
    for (int i = 0; i < 100; ++i) {
      EXPECT_EQ(v.GetSetting(kA, kS, "t6"), "5");
      EXPECT_EQ(v.GetSetting(kA, kS, "rien", "defaut"), "defaut");
    }
  });
  EXPECT_LT(duree, kPatience + kMarge);
  EXPECT_EQ(v.etat(), EtatMagasin::Sain);
}

/// Every kind of lock that keeps a write out.
TEST_P(MagasinRetenu, NewValuesWaitInMemoryAndAreWrittenOnceTheStoreIsFree) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "a", "avant");
  auto autre = std::make_unique<AutreProgramme>(fichier, GetParam());
  const double duree = Secondes([&] {
    v.SaveSetting(kA, kS, "a", "apres");
    v.Ensemble([&] {
      for (int i = 0; i < 100; ++i) {
        v.SaveSetting(kA, kS, "cle" + std::to_string(i), "x");
      }
    });
    for (int i = 0; i < 100; ++i) {
      v.Retente();
    }
  });
  EXPECT_LT(duree, kPatience + kMarge);
  EXPECT_EQ(v.etat(), EtatMagasin::Sain);
  EXPECT_TRUE(v.enAttente());
  EXPECT_EQ(v.GetSetting(kA, kS, "a") + v.GetSetting(kA, kS, "cle99"), "apresx");
  autre.reset();
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "a"), "avant");
  v.Retente();
  EXPECT_FALSE(v.enAttente());
  const Valeurs lues(fichier);
  EXPECT_EQ(lues.GetSetting(kA, kS, "a") + lues.GetSetting(kA, kS, "cle99"), "apresx");
}

INSTANTIATE_TEST_SUITE_P(Verrous, MagasinRetenu,
                         ::testing::Values("BEGIN EXCLUSIVE", "BEGIN IMMEDIATE",
                                           "BEGIN; SELECT count(*) FROM valeurs"));

TEST_F(MagasinRetenu, TheNextWriteTakesWhatWaitsAlong) {
  Valeurs v(fichier);
  {
    const AutreProgramme autre(fichier, "BEGIN IMMEDIATE");
    v.SaveSetting(kA, kS, "a", "1");
  }
  v.SaveSetting(kA, kS, "b", "2");
  EXPECT_FALSE(v.enAttente());
  const Valeurs lues(fichier);
  EXPECT_EQ(lues.GetSetting(kA, kS, "a") + lues.GetSetting(kA, kS, "b"), "12");
}

TEST_F(MagasinRetenu, WhatStillWaitsIsWrittenAtTheEnd) {
  {
    Valeurs v(fichier);
    auto autre = std::make_unique<AutreProgramme>(fichier, "BEGIN IMMEDIATE");
    v.SaveSetting(kA, kS, "a", "1");
    autre.reset();
  }
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "a"), "1");
}

TEST_F(MagasinRetenu, AnEndThatCanNotWriteWaitsNoLongerThanItsPatience) {
  auto v = std::make_unique<Valeurs>(fichier);
  const AutreProgramme autre(fichier, "BEGIN EXCLUSIVE");
  v->SaveSetting(kA, kS, "a", "1");
  EXPECT_LT(Secondes([&] { v.reset(); }), kPatience + kMarge);
}

TEST_F(MagasinRetenu, WhatAnotherProgramWritesMeanwhileStaysAndWhatWaitsIsNewer) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "a", "0");
  {
    AutreProgramme autre(fichier, "BEGIN EXCLUSIVE");
    v.SaveSetting(kA, kS, "a", "la mienne");
    autre.Execute("UPDATE valeurs SET valeur='la sienne'");
    autre.Execute("INSERT INTO valeurs VALUES('Velmaris', 'Valeurs', 'b', 'la sienne')");
    autre.Execute("COMMIT");
  }
  EXPECT_EQ(v.GetSetting(kA, kS, "b"), "la sienne");
  EXPECT_EQ(v.GetSetting(kA, kS, "a"), "la mienne");
  v.Retente();
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "a"), "la mienne");
}

TEST_F(MagasinRetenu, AGroupOfReadingsSeesOneStateWhateverIsWrittenMeanwhile) {
  Valeurs v(fichier);
  v.SaveSetting(kA, kS, "a", "avant");
  v.EnsembleLu([&] {
    Valeurs(fichier).SaveSetting(kA, kS, "a", "apres");
    EXPECT_EQ(v.GetSetting(kA, kS, "a"), "avant");
  });
  EXPECT_EQ(v.GetSetting(kA, kS, "a"), "apres");
}

TEST_F(MagasinRetenu, AGroupThatThrowsKeepsNothing) {
  Valeurs v(fichier);
  EXPECT_EQ(NumeroErreur([&] {
              v.Ensemble([&] {
                v.SaveSetting(kA, kS, "a", "1");
                throw Erreur(6);
              });
            }),
            6);
  EXPECT_EQ(v.GetSetting(kA, kS, "a", "rien"), "rien");
  v.SaveSetting(kA, kS, "b", "2");
  EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "b"), "2");
}

TEST_F(MagasinRetenu, AStoreThatIsHeldWhenItIsOpenedIsReadAndWrittenLaterAndNotSetAside) {
  { Valeurs(fichier).SaveSetting(kA, kS, "a", "avant"); }
  for (const bool parDossier : {false, true}) {
    std::optional<AutreProgramme> autre;
    std::optional<VerrouFichier> verrou;
    parDossier ? static_cast<void>(verrou.emplace(fichier.parent_path()))
               : static_cast<void>(autre.emplace(fichier, "BEGIN EXCLUSIVE"));
    std::optional<Valeurs> v;
    EXPECT_LT(Secondes([&] { v.emplace(fichier); }), kPatience + kMarge);
    EXPECT_TRUE(v->aveugle());
    EXPECT_TRUE(v->enAttente());
    EXPECT_EQ(v->etat(), EtatMagasin::Sain);
    EXPECT_LT(Secondes([&] {
                v->SaveSetting(kA, kS, "b", "neuve");
                EXPECT_EQ(v->GetSetting(kA, kS, "a", "defaut"), "defaut");
                v->Retente();
              }),
              kMarge);
    EXPECT_LE(v->patience().reste(), std::chrono::nanoseconds::zero()) << "nothing is waited for any more";
    autre.reset();
    verrou.reset();
    v->Retente();
    EXPECT_FALSE(v->enAttente());
    EXPECT_EQ(v->GetSetting(kA, kS, "a") + v->GetSetting(kA, kS, "b"), "avantneuve");
    EXPECT_EQ(Valeurs(fichier).GetSetting(kA, kS, "b"), "neuve");
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(fichier.parent_path()), {}), 1);
}

TEST_F(MagasinRetenu, ThePatienceComesBackOnceTheStoreIsFree) {
  Valeurs v(fichier);
  for (int tour = 0; tour < 2; ++tour) {
    {
      const AutreProgramme autre(fichier, "BEGIN EXCLUSIVE");
      EXPECT_GT(Secondes([&] { v.SaveSetting(kA, kS, "a", std::to_string(tour)); }), kPatience / 2) << tour;
    }
    v.Retente();
  }
}

/// The whole program, with one stored line of which the sheet is drawn.
class ProgrammeRetenu : public AvecFichiers {
protected:
  ProgrammeRetenu() {
    TapeVisee();
    Calcule();
    Garde(0);
    Affiche(0);
  }

  void Retient(const std::string &verrou = "BEGIN EXCLUSIVE") { autre.emplace(magasin, verrou); }
  std::string Stocke(const std::string &cle) { return Valeurs(magasin).GetSetting(kA, kS, cle, "absent"); }

  fs::path magasin = bureau.dossiers.utilisateur / "valeurs.sqlite";
  fs::path journal = bureau.dossiers.utilisateur / "journal.csv";
  std::optional<AutreProgramme> autre;
};

TEST_F(ProgrammeRetenu, NoGestureStandsStillForLongerThanThePatienceAndTheUserIsToldOnce) {
  Retient();
  double enTout = 0;
  const auto mesure = [&](const std::function<void()> &geste) {
    const double duree = Secondes(geste);
    EXPECT_LT(duree, kPatience + kMarge);
    enTout += duree;
  };
  mesure([&] { BougeCurseur(bureau, d.HScroll1, 5000); });
  mesure([&] { Affiche(0); });
  EXPECT_THAT(boites, IsEmpty()) << "nothing waits yet";
  mesure([&] { Garde(1); });
  mesure([&] { ClicOption(bureau, d.Option4[d.Option4[0].choisi ? 1 : 0]); });
  mesure([&] { ClicControle(bureau, d.Image10[1]); });
  for (int i = 0; i < 20; ++i) {
    mesure([&] { Timer1_Tick(bureau); });
  }
  RecordProperty("secondes", std::to_string(enTout));
  EXPECT_LT(enTout, kPatience + kMarge);
  EXPECT_LE(bureau.valeurs->patience().reste(), std::chrono::nanoseconds::zero()) << "used up once, not once a gesture";
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr(magasin.string()));
  EXPECT_EQ(boites[0].icone, Icone::Attention);
  autre.reset();
  EXPECT_EQ(Stocke("T3(1)"), "absent");
  Timer1_Tick(bureau);
  EXPECT_EQ(Stocke("T3(1)"), d.Text3.texte);
  EXPECT_EQ(Stocke("Langue"), "1");
  Retient();
  Garde(2);
  EXPECT_EQ(boites.size(), 1U);
}

TEST_F(ProgrammeRetenu, AnExitWaitsOnceAndWritesWhatItCan) {
  Retient();
  Garde(1);
  reponse = true;
  EXPECT_LT(Secondes([&] { ClicControle(bureau, d.Sortie); }), kPatience + kMarge);
  EXPECT_TRUE(bureau.termine);
  EXPECT_EQ(boites.size(), 2U) << "the one word, and the question";
  autre.reset();
  bureau.valeurs.reset();
  EXPECT_EQ(Stocke("T8"), "47");
  EXPECT_EQ(Stocke("T3(1)"), "12");
}

TEST_F(ProgrammeRetenu, AStartOnAHeldStoreOverwritesNothingThatItCouldNotRead) {
  reponse = true;
  ClicControle(bureau, d.Image10[1]);
  ClicOption(bureau, d.Option4[1]);
  ClicControle(bureau, d.Sortie);
  bureau.valeurs.reset();
  boites.clear();
  Retient();
  Bureau suivant;
  Branche(suivant);
  EXPECT_LT(Secondes([&] { Donnees_Charge(suivant, {}); }), kPatience + kMarge);
  EXPECT_EQ(boites.size(), 1U);
  ClicControle(suivant, suivant.donnees.Sortie);
  suivant.valeurs.reset();
  autre.reset();
  EXPECT_EQ(Stocke("T8") + Stocke("Hem") + Stocke("Lon") + Stocke("Langue") + Stocke("Prec"), "47NordOuest11");
}

TEST_F(ProgrammeRetenu, AHeldStoreThatComesFreeAfterTheStartIsShownWhileNothingWasTouched) {
  reponse = true;
  ClicControle(bureau, d.Image10[1]);
  ClicControle(bureau, d.Sortie);
  bureau.valeurs.reset();
  for (const bool touche : {false, true}) {
    Retient();
    Bureau suivant;
    Branche(suivant);
    Donnees_Charge(suivant, {});
    Donnees &n = suivant.donnees;
    if (touche) {
      SaisitTexte(suivant, n.Text8, "11");
    }
    autre.reset();
    Timer1_Tick(suivant);
    EXPECT_EQ(n.Text8.texte, touche ? "11" : "47");
    EXPECT_EQ(n.LHeure[0].legende, "12:05:30") << "the stored line is there";
    EXPECT_EQ(suivant.FichierLangue, touche ? "\\FR.txt" : "\\EN.txt");
    ClicControle(suivant, n.Sortie);
    EXPECT_EQ(Stocke("T8"), touche ? "11" : "47") << "what the user typed is kept";
    EXPECT_EQ(Stocke("T9") + Stocke("Hem") + Stocke("Langue"), "30Nord1");
  }
}

TEST_F(ProgrammeRetenu, LinesOfAHeldJournalAreEnteredInTheirOrderOnceItIsFree) {
  const std::string avant = Contenu(journal);
  const double enTout = Secondes([&] {
    const VerrouFichier verrou(journal);
    for (const char *degres : {"61", "62", "63"}) {
      Tape(d.Text13, degres);
      Calcule();
      Timer1_Tick(bureau);
    }
    EXPECT_EQ(Contenu(journal), avant);
  });
  EXPECT_LT(enTout, kPatience + kMarge);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr(journal.string()));
  Tape(d.Text13, "64");
  Calcule();
  std::istringstream lignes(Contenu(journal).substr(avant.size()));
  std::string degres;
  for (std::string ligne; std::getline(lignes, ligne);) {
    for (int colonne = 0; colonne < 15; ++colonne) {
      ligne.erase(0, ligne.find(',') + 1);
    }
    degres += ligne.substr(0, ligne.find(',')) + " ";
  }
  EXPECT_EQ(degres, "61 62 63 64 ");
  {
    const VerrouFichier verrou(journal);
    Calcule();
  }
  const auto taille = Contenu(journal).size();
  Timer1_Tick(bureau);
  EXPECT_GT(Contenu(journal).size(), taille) << "the clock tries too";
  EXPECT_EQ(boites.size(), 1U);
}

TEST_F(ProgrammeRetenu, AnExitEntersTheLinesThatWait) {
  const auto taille = Contenu(journal).size();
  {
    const VerrouFichier verrou(journal);
    Calcule();
  }
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_GT(Contenu(journal).size(), taille);
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/visee/Journal.hpp"
#include "shell/visee/ReduitVisee.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <sys/wait.h>

/// The journal of reduced sights.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

/// The fields of one line of values between commas, quotes undone.
std::vector<std::string> Champs(const std::string &ligne) {
  std::vector<std::string> champs(1);
  bool entre = false;
  for (std::size_t i = 0; i < ligne.size(); ++i) {
    if (entre && ligne[i] == '"' && i + 1 < ligne.size() && ligne[i + 1] == '"') {
      champs.back() += ligne[++i];
    } else if (ligne[i] == '"') {
      entre = !entre;
    } else if (ligne[i] == ',' && !entre) {
      champs.emplace_back();
    } else {
      champs.back() += ligne[i];
    }
  }
  EXPECT_FALSE(entre) << ligne;
  return champs;
}

/// A row without its identity, which no other has.
std::string SansIdentite(const std::string &ligne) {
  std::vector<std::string> champs = Champs(ligne);
  EXPECT_EQ(champs.size(), 31U) << ligne;
  champs.resize(31);
  champs[28].clear();
  return std::accumulate(champs.begin(), champs.end(), std::string(),
                         [](const std::string &a, const std::string &b) { return a + "|" + b; });
}

class JournalDesVisees : public AvecFichiers {
protected:
  JournalDesVisees() { TapeVisee(); }

  std::vector<std::string> LignesDuJournal() const {
    std::vector<std::string> lignes;
    std::istringstream texte(Contenu(journal));
    for (std::string ligne; std::getline(texte, ligne);) {
      lignes.push_back(ligne);
    }
    return lignes;
  }

  /// The last line's fields by the names of the columns.
  std::map<std::string, std::string> Derniere() const {
    const auto lignes = LignesDuJournal();
    const auto titres = Champs(lignes.front());
    const auto valeurs = Champs(lignes.back());
    EXPECT_EQ(titres.size(), valeurs.size()) << lignes.back();
    std::map<std::string, std::string> champs;
    for (std::size_t i = 0; i < std::min(titres.size(), valeurs.size()); ++i) {
      champs[titres[i]] = valeurs[i];
    }
    EXPECT_EQ(champs.size(), titres.size()) << "each column has its own name";
    return champs;
  }

  fs::path journal = bureau.dossiers.utilisateur / "journal.csv";
};

TEST_F(JournalDesVisees, EachReducedSightIsOneLineUnderOneHeader) {
  EXPECT_FALSE(fs::exists(journal)) << "a start writes none";
  Calcule();
  Calcule();
  Tape(d.Text13, "64");
  Calcule();
  const auto lignes = LignesDuJournal();
  ASSERT_EQ(lignes.size(), 4U);
  EXPECT_EQ(lignes[0], kTitresJournal);
  EXPECT_EQ(SansIdentite(lignes[1]), SansIdentite(lignes[2]));
  EXPECT_NE(SansIdentite(lignes[2]), SansIdentite(lignes[3]));
  EXPECT_EQ(Contenu(journal).back(), '\n');
  EXPECT_TRUE(boites.empty());
}

TEST_F(JournalDesVisees, AReadingOfZeroIsNoSight) {
  Tape(d.Text13, "0");
  Tape(d.Text12, "0");
  Tape(d.Text25, "0");
  Calcule();
  EXPECT_FALSE(fs::exists(journal));
}

TEST_F(JournalDesVisees, RedrawsLoadsSavesAndStoredLinesWriteNoLine) {
  Calcule();
  const std::string apres = Contenu(journal);
  ClicControle(bureau, d.Command14);
  ClicControle(bureau, d.Command12);
  BougeCurseur(bureau, d.HScroll1, 5000);
  Garde(0);
  Affiche(0);
  Affiche(0);
  BougeCurseur(bureau, d.HScroll1, 6000);
  Sauve("mine.LoP");
  Ouvre("mine.LoP");
  OuvreOctets(Joint(LignesSoleil()));
  ClicControle(bureau, d.Command6);
  EXPECT_EQ(Contenu(journal), apres);
}

TEST_F(JournalDesVisees, EveryLineHasAsManyColumnsAsTheHeader) {
  const std::size_t colonnes = Champs(std::string(kTitresJournal)).size();
  Calcule();
  SaisitTexte(bureau, d.Text9, "");
  SaisitTexte(bureau, d.Text7, "1,2,3");
  Calcule();
  for (const std::string &ligne : LignesDuJournal()) {
    EXPECT_EQ(Champs(ligne).size(), colonnes) << ligne;
  }
}

TEST_F(JournalDesVisees, TheValuesAreThoseOfThePanel) {
  Calcule();
  auto c = Derniere();
  EXPECT_EQ(c["utc"], "2026-06-21T12:05:30Z");
  EXPECT_EQ(c["corps"] + "/" + c["astre"], "Soleil/Soleil");
  EXPECT_EQ(c["jour"] + "/" + c["mois"] + "/" + c["annee"], "21/06/2026");
  EXPECT_EQ(c["heure"] + ":" + c["minute"] + ":" + c["seconde"], "12:05:30");
  EXPECT_EQ(c["latitude_degres"] + "°" + c["latitude_minutes"] + c["hemisphere"], "47°30N");
  EXPECT_EQ(c["longitude_degres"] + "°" + c["longitude_minutes"] + c["cote"], "05°10W");
  EXPECT_EQ(c["lecture_degres"] + "°" + c["lecture_minutes"] + "'" + c["lecture_fraction"], "65°34'38");
  EXPECT_EQ(c["fraction"], "secondes");
  EXPECT_EQ(c["collimation"], d.Text11.texte);
  EXPECT_EQ(c["hauteur_oeil"], "2,5");
  EXPECT_EQ(c["bord"] + "/" + c["horizon"], "inferieur/naturel");
  EXPECT_NEAR(Val(c["intercept"]), bureau.visee.Intercept, 1e-5);
  EXPECT_NEAR(Val(c["azimut"]), bureau.visee.Azimut, 1e-4);
  EXPECT_NEAR((Val(c["ho"]) - Val(c["hc"])) * 60, bureau.visee.Intercept, 1e-3);
  EXPECT_NEAR(Val(c["ho"]), 65 + 34 / 60.0 + 38 / 3600.0, 0.5) << "corrections are below half a degree";
}

TEST_F(JournalDesVisees, TheOtherChoicesHaveTheirWords) {
  ClicOption(bureau, d.OptN[1]);
  ClicOption(bureau, d.OptE[0]);
  ClicOption(bureau, d.Option4[1]);
  ClicOption(bureau, d.Option6[0]);
  Calcule();
  auto c = Derniere();
  EXPECT_EQ(c["hemisphere"] + c["cote"], "SE");
  EXPECT_EQ(c["fraction"] + "/" + c["bord"], "centiemes/superieur");
  ClicOption(bureau, d.Option5[1]);
  Calcule();
  c = Derniere();
  EXPECT_EQ(c["bord"] + "/" + c["horizon"], "centre/artificiel");
}

TEST_F(JournalDesVisees, ControlCharactersAreLeftOut) {
  SaisitTexte(bureau, d.Text4, "5\n6\r7\t8\x1B[31m\x7F\xC2\x85\xC2\x9F");
  SaisitTexte(bureau, d.Text5,
              std::string("3\0"
                          "0",
                          3));
  bureau.NomAstre = "Vé\aga";
  const std::string ligne = LigneJournal(bureau, Hauteurs{45.0, 44.5});
  EXPECT_THAT(Champs(ligne), testing::IsSupersetOf({"5678[31m", "30", "Véga"}));
  EXPECT_TRUE(std::none_of(ligne.begin(), ligne.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }));
}

TEST_F(JournalDesVisees, ATextThatATableProgramWouldReckonOutFollowsAnApostrophe) {
  for (const char *texte : {"=1+1", "@SUM(A1)", "+1+1", "-2+3", "-", "+", "=", " =1+1", "-1.5x", "--1",
                            "+cmd|'/c x'!A0", "=HYPERLINK(\"http://x\",\"y\")", "\t=1+1", "＝1＋1"}) {
    bureau.NomAstre = texte;
    const std::string sansTabulation = *texte == '\t' ? texte + 1 : texte;
    EXPECT_EQ(Champs(LigneJournal(bureau, Hauteurs{45.0, 44.5}))[2], "'" + sansTabulation);
  }
}

TEST_F(JournalDesVisees, ANumberStaysANumberWhateverItsSign) {
  for (const char *texte : {"-1,0", "-1.5", "+3", "-.5", "-2.", "-1E-05", "0", "12", "Mars", "5=6", "a@b"}) {
    SaisitTexte(bureau, d.Text11, texte);
    EXPECT_EQ(Champs(LigneJournal(bureau, Hauteurs{45.0, 44.5}))[19], texte);
  }
  bureau.visee.Intercept = -0.25F;
  EXPECT_EQ(Champs(LigneJournal(bureau, Hauteurs{-1.5, 44.5}))[23], "-1.5");
  EXPECT_EQ(Champs(LigneJournal(bureau, Hauteurs{-1.5, 44.5}))[25], "-0.25");
}

TEST_F(JournalDesVisees, CommasAndQuotesStandInQuotesAndReadBack) {
  SaisitTexte(bureau, d.Text9, "3,0");
  SaisitTexte(bureau, d.Text7, "10\"x\"");
  SaisitTexte(bureau, d.Text4, "5;6");
  Calcule();
  const std::string texte = Contenu(journal);
  EXPECT_THAT(texte, HasSubstr(",\"3,0\","));
  EXPECT_THAT(texte, HasSubstr(",\"10\"\"x\"\"\","));
  const std::string ligne = texte.substr(kTitresJournal.size() + 1);
  const auto champs = Champs(ligne);
  EXPECT_EQ(champs.size(), Champs(std::string(kTitresJournal)).size());
  EXPECT_THAT(champs, testing::IsSupersetOf({"3,0", "10\"x\"", "5;6"}));
}

TEST_F(JournalDesVisees, TheMomentIsThatOfTheCalculation) {
  temps = {2031, 1, 0, 2, 3, 4, 5, 999};
  Calcule();
  EXPECT_EQ(Derniere()["utc"], "2031-01-02T03:04:05Z");
}

TEST_F(JournalDesVisees, TheNameOfTheBodyIsInTheLanguageOfTheWindow) {
  ClicControle(bureau, d.Image10[1]);
  Calcule();
  auto c = Derniere();
  EXPECT_EQ(c["astre"], "Sun");
  EXPECT_EQ(c["corps"], "Soleil");
}

TEST_F(JournalDesVisees, WhatIsThereIsNeverRewritten) {
  Calcule();
  const std::string avant = Contenu(journal);
  struct stat etat {};
  ASSERT_EQ(::stat(journal.c_str(), &etat), 0);
  const auto inode = etat.st_ino;
  ClicOption(bureau, d.OptN[1]);
  Calcule();
  ASSERT_EQ(::stat(journal.c_str(), &etat), 0);
  EXPECT_EQ(etat.st_ino, inode);
  EXPECT_THAT(Contenu(journal), StartsWith(avant));
  EXPECT_EQ(LignesDuJournal().size(), 3U);
}

TEST_F(JournalDesVisees, WhateverTheFileHoldsStaysAndNoHeaderIsPutAfterIt) {
  const std::string octets("other,columns\r\n\xFF\0\n", 18);
  Pose(journal, octets);
  Calcule();
  const std::string apres = Contenu(journal);
  EXPECT_THAT(apres, StartsWith(octets));
  EXPECT_EQ(apres.find(kTitresJournal), std::string::npos);
  EXPECT_EQ(Champs(apres.substr(octets.size())).size(), Champs(std::string(kTitresJournal)).size());
}

TEST_F(JournalDesVisees, ALineThatWasCutShortIsClosedFirst) {
  Calcule();
  const std::string avant = Contenu(journal);
  const std::string coupe = avant + "2026-06-21T12:0";
  Pose(journal, coupe);
  Calcule();
  EXPECT_THAT(Contenu(journal), StartsWith(coupe + "\n"));
  const auto lignes = LignesDuJournal();
  EXPECT_EQ(SansIdentite(lignes.back()), SansIdentite(lignes[1]));
}

TEST_F(JournalDesVisees, ARowBearsTheCheckOfItsSightAndAnIdentityOfItsOwn) {
  Calcule();
  auto c = Derniere();
  const FicheControle &controle = *ControleDuResultat(bureau);
  EXPECT_EQ(c["forme"], "2");
  EXPECT_NEAR(Val(c["intercept_actuel"]), controle.actuel->intercept, 0.0005);
  EXPECT_NEAR(Val(c["ecart"]), Val(c["intercept_actuel"]) - Val(c["intercept"]), 0.0011);
  std::set<std::string> identites;
  for (int i = 0; i < 50; ++i) {
    Calcule();
    identites.insert(Derniere()["identite"]);
  }
  EXPECT_EQ(identites.size(), 50U);
  EXPECT_EQ(identites.begin()->size(), 16U);
}

TEST_F(JournalDesVisees, ASightWithoutAFigureOfTodayLeavesItsColumnsEmpty) {
  SaisitTexte(bureau, d.TDate[1], "2");
  SaisitTexte(bureau, d.TDate[0], "31");
  Calcule();
  auto c = Derniere();
  EXPECT_EQ(c["intercept_actuel"] + c["ecart"], "");
  EXPECT_EQ(c["forme"], "2");
}

TEST_F(JournalDesVisees, AJournalOfTheOldFormIsKeptBesideTheNewOne) {
  const std::string ancien = std::string(kAnciensTitres) + "\n2025-06-21T12:05:30Z,Soleil\n";
  Pose(journal, ancien);
  Calcule();
  Calcule();
  EXPECT_EQ(Contenu(journal.parent_path() / "journal-1.csv"), ancien);
  EXPECT_EQ(LignesDuJournal().size(), 3U);
  EXPECT_EQ(LignesDuJournal()[0], kTitresJournal);
  Pose(journal, ancien);
  Calcule();
  EXPECT_EQ(Contenu(journal.parent_path() / "journal-1-2.csv"), ancien) << "a second one has a name of its own";
}

TEST_F(JournalDesVisees, EachYearHasAJournalOfItsOwn) {
  Calcule();
  const std::string avant = Contenu(journal);
  temps.annee = 2027;
  Calcule();
  EXPECT_EQ(Contenu(journal.parent_path() / "journal-2026.csv"), avant);
  EXPECT_EQ(LignesDuJournal().size(), 2U);
}

TEST_F(JournalDesVisees, AJournalOfSixteenMegabytesIsGoneOnWithInANewOne) {
  Calcule();
  const std::string avant = Contenu(journal);
  Pose(journal, avant + std::string((std::size_t{16} << 20) - avant.size() - 2, 'x') + "\n");
  Calcule();
  EXPECT_EQ(fs::file_size(journal), (std::uintmax_t{16} << 20) - 1 + LignesDuJournal().back().size() + 1)
      << "one octet is still free";
  Calcule();
  EXPECT_GT(fs::file_size(journal.parent_path() / "journal-2026.csv"), std::uintmax_t{16} << 20);
  EXPECT_EQ(LignesDuJournal().size(), 2U);
}

TEST_F(JournalDesVisees, AnEmptyFileGetsTheHeader) {
  Pose(journal, "");
  Calcule();
  EXPECT_EQ(LignesDuJournal().size(), 2U);
  EXPECT_EQ(LignesDuJournal()[0], kTitresJournal);
}

TEST_F(JournalDesVisees, AJournalThatCanNotBeWrittenIsToldOnceAndTheSightIsReducedAllTheSame) {
  Calcule();
  const std::string intercept = d.Affichage_Intercept.legende;
  const std::string panneau = Panneau();
  const Origine origine = bureau.feuille.OrigineFeuille;
  const auto traces = bureau.image1.traces.size();
  fs::remove(journal);
  fs::create_directory(journal);
  d.Affichage_Intercept.legende.clear();
  Calcule();
  Calcule();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].icone, Icone::Attention);
  EXPECT_THAT(boites[0].texte, HasSubstr(journal.string()));
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, origine);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  fs::remove(journal);
  Calcule();
  EXPECT_EQ(LignesDuJournal().size(), 2U) << "it is written again once it can be";
}

TEST_F(JournalDesVisees, TwoProgramsWritingAtOnceLoseNoLineAndWriteOneHeader) {
  Calcule();
  fs::remove(journal);
  constexpr int kLignes = 200;
  std::vector<pid_t> fils;
  for (const char *nom : {"a", "b"}) {
    const pid_t pid = ::fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
      for (int i = 0; i < kLignes; ++i) {
        bureau.NomAstre = nom + std::to_string(i);
        Journalise(bureau, Hauteurs{45.0, 44.5});
      }
      ::_exit(boites.empty() ? 0 : 1);
    }
    fils.push_back(pid);
  }
  for (const pid_t pid : fils) {
    int etat = -1;
    ASSERT_EQ(::waitpid(pid, &etat, 0), pid);
    EXPECT_TRUE(WIFEXITED(etat) && WEXITSTATUS(etat) == 0);
  }
  const auto lignes = LignesDuJournal();
  ASSERT_EQ(lignes.size(), 1U + 2 * kLignes);
  EXPECT_EQ(lignes[0], kTitresJournal);
  std::set<std::string> astres;
  for (std::size_t i = 1; i < lignes.size(); ++i) {
    const auto champs = Champs(lignes[i]);
    ASSERT_EQ(champs.size(), Champs(lignes[0]).size()) << lignes[i];
    astres.insert(champs[2]);
  }
  EXPECT_EQ(astres.size(), 2U * kLignes);
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <chrono>
#include <csignal>
#include <optional>
#include <sys/resource.h>
#include <sys/wait.h>

/// "Sauve" and "Ouvre": a sight to a file and back, and what a load leaves on the sheet and in the modules.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;

class FichierVisee : public AvecFichiers {
protected:
  /// The name that "Sauve" proposes for the panel.
  std::string NomPropose() {
    std::string nom;
    Jouera([&] { nom = f.FName.texte; });
    ClicControle(bureau, d.Command3);
    return nom;
  }

  /// All controls of the main window as they stand.
  std::vector<Controle> Controles() {
    std::vector<Controle> controles;
    PourChaque(d, [&](const LigneDonnees &, const Controle &c) { controles.push_back(c); });
    return controles;
  }

  /// Names of the controls of the main window that have changed.
  std::string Changes(const std::vector<Controle> &depuis) {
    const auto present = Controles();
    std::string noms;
    for (std::size_t i = 0; i < present.size(); ++i) {
      if (!(present[i] == depuis[i])) {
        noms += present[i].nom + " ";
      }
    }
    return noms;
  }

  std::ptrdiff_t NombreFichiers() const { return std::distance(fs::directory_iterator(lieu), {}); }

  void TapeDate(const std::string &jour, const std::string &mois, const std::string &annee) {
    SaisitTexte(bureau, d.TDate[0], jour);
    SaisitTexte(bureau, d.TDate[1], mois);
    SaisitTexte(bureau, d.TDate[2], annee);
  }
};

TEST_F(FichierVisee, SaveOverAProtectedFileIsError75AndNothingIsWritten) {
  TapeVisee();
  ::chmod(dossier.chemin().c_str(), 0777);
  ::chmod(lieu.c_str(), 0777);
  Pose(lieu / "mine.LoP", "old");
  ::chmod((lieu / "mine.LoP").c_str(), 0444);
  std::optional<UtilisateurSansDroit> utilisateur;
  Jouera([&] {
    Donne("mine.LoP");
    utilisateur.emplace();
  });
  ClicControle(bureau, d.Command3);
  const bool essaye = utilisateur && utilisateur->reussi;
  utilisateur.reset();
  if (!essaye) {
    GTEST_SKIP() << "the superuser's rights can't be laid down here";
  }
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte,
            MotsErreur(d, 75) + "\n\n" + d.TexteNonEcrit.legende + "\n" + (lieu / "mine.LoP").string());
  EXPECT_EQ(Contenu(lieu / "mine.LoP"), "old");
  EXPECT_EQ(NombreFichiers(), 1);
}

TEST_F(FichierVisee, WhatASaveThatWasKilledLeftGoesADayLaterAtTheNextStart) {
  const pid_t enfant = ::fork();
  if (enfant == 0) {
    d.Text3.texte = std::string(1000, '9');
    Jouera([&] {
      Donne("mine.LoP");
      const rlimit plein{500, 500}; // a note fits, the sight doesn't
      setrlimit(RLIMIT_FSIZE, &plein);
      const rlimit sansImage{0, 0};
      setrlimit(RLIMIT_CORE, &sansImage);
    });
    ClicControle(bureau, d.Command3);
    ::_exit(0);
  }
  int etat = 0;
  ::waitpid(enfant, &etat, 0);
  ASSERT_TRUE(WIFSIGNALED(etat));
  EXPECT_EQ(NombreFichiers(), 1);
  for (const int heures : {23, 25}) {
    for (const fs::path &ou : {lieu, bureau.dossiers.utilisateur}) {
      for (const auto &entree : fs::directory_iterator(ou)) {
        fs::last_write_time(entree.path(), fs::file_time_type::clock::now() - std::chrono::hours(heures));
      }
    }
    Bureau suivant;
    Branche(suivant);
    Donnees_Charge(suivant, {});
    EXPECT_EQ(NombreFichiers(), heures < 24 ? 1 : 0);
  }
}

TEST_F(FichierVisee, SaveProposesDateAndTimeAmongTheSights) {
  TapeVisee();
  TapeDate("15", "03", "2009");
  Jouera([&] {
    EXPECT_EQ(f.cadre.titre, "Sauvegarder le FICHIER");
    EXPECT_EQ(f.FName.texte, "15MAR09 120530.LoP");
    EXPECT_EQ(f.motif, "*LoP");
  });
  ClicControle(bureau, d.Command3);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(FichierVisee, TheProposedNameHasThreeLettersForEachMonthAndNoneForAnother) {
  TapeVisee();
  const char *lettres[] = {"", "JAN", "FEV", "MAR", "AVR", "MAI", "JUN", "JUI", "AOU", "SEP", "OCT", "NOV", "DEC", ""};
  for (int mois = 0; mois <= 13; ++mois) {
    TapeDate("15", std::to_string(mois), "2009");
    EXPECT_EQ(NomPropose(), std::string("15") + lettres[mois] + "09 120530.LoP") << mois;
  }
}

TEST_F(FichierVisee, TheProposedNameKeepsItsBlankWithoutAYear) {
  TapeVisee();
  TapeDate("15", "3", "");
  EXPECT_EQ(NomPropose(), "15MAR 120530.LoP");
  TapeDate("", "", "");
  EXPECT_EQ(NomPropose(), " 120530.LoP");
}

TEST_F(FichierVisee, TheDialogsTitlesFollowTheLanguage) {
  ClicControle(bureau, d.Image10[1]);
  Jouera([&] { EXPECT_EQ(f.cadre.titre, "Save the FILE"); });
  ClicControle(bureau, d.Command3);
  Jouera([&] { EXPECT_EQ(f.cadre.titre, "Load a FILE "); });
  ClicControle(bureau, d.Command4);
  EXPECT_EQ(ouvertures, 2);
}

TEST_F(FichierVisee, TheProposedNameIsAcceptedAsItStands) {
  TapeVisee();
  Jouera([&] { Ok(); });
  ClicControle(bureau, d.Command3);
  EXPECT_TRUE(fs::exists(lieu / "21JUN26 120530.LoP"));
  EXPECT_EQ(bureau.TitreFichier, "21JUN26 120530");
}

TEST_F(FichierVisee, TwentyOneLinesAreWrittenEachEndedByCrLf) {
  TapeVisee();
  Sauve("mine.LoP");
  EXPECT_EQ(Contenu(lieu / "mine.LoP"),
            "12\r\n05\r\n30\r\n21\r\n06\r\n2026\r\n05\r\n10\r\n47\r\n30\r\n2,5\r\n-1,0\r\n34\r\n65\r\n"
            "Nord\r\nOuest\r\n38\r\n 0 \r\nNATU\r\n 1 \r\n0\r\n");
}

TEST_F(FichierVisee, TheOtherChoicesAreWrittenToo) {
  TapeVisee();
  ClicOption(bureau, d.OptN[1]);
  ClicOption(bureau, d.OptE[0]);
  ClicOption(bureau, d.Option5[1]);
  ClicOption(bureau, d.Option4[1]);
  Sauve("mine.LoP");
  const std::string fichier = Contenu(lieu / "mine.LoP");
  EXPECT_EQ(fichier.substr(fichier.find("65\r\n")), "65\r\nSud\r\nEst\r\n38\r\n 0 \r\nARTI\r\n 2 \r\n1\r\n");
}

TEST_F(FichierVisee, APlanetOrAStarAddsItsPlaceInTheListAndComesBackByteForByte) {
  const std::pair<const char *, const char *> cas[] = {{" 2 ", " 3 "}, {" 3 ", " 99 "}, {" 3 ", "-1 "}};
  for (const auto &[corps, rang] : cas) {
    OuvreCorps(corps, rang);
    Sauve("out.LoP");
    const std::string fichier = Contenu(lieu / "out.LoP");
    EXPECT_EQ(fichier, Contenu(lieu / "in.LoP")) << corps << rang;
    EXPECT_EQ(std::count(fichier.begin(), fichier.end(), '\n'), 22);
  }
}

TEST_F(FichierVisee, TheFileIsInWindows1252) {
  TapeVisee();
  SaisitTexte(bureau, d.Text3, "1é€");
  Sauve("mine.LoP");
  EXPECT_EQ(Contenu(lieu / "mine.LoP").substr(0, 5), "1\xE9\x80\r\n");
}

TEST_F(FichierVisee, SavingChangesNeitherPanelNorSheetNorStoredLinesAndSaysNothing) {
  TapeVisee();
  Calcule();
  Garde(1);
  Affiche(1);
  Sauve(""); // the dialog's first use reads its language
  const auto controles = Controles();
  const auto effacements = bureau.image1.effacements;
  const auto traces = bureau.image1.traces.size();
  const Origine origine = bureau.feuille.OrigineFeuille;
  const std::string tables[] = {Reglage("T3(1)"), Reglage("az(1)"), Reglage("in(1)"), Reglage("nom(1)")};
  Sauve("mine.LoP");
  EXPECT_EQ(Changes(controles), "");
  EXPECT_EQ(bureau.image1.effacements, effacements);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, origine);
  EXPECT_EQ(Reglage("T3(1)"), tables[0]);
  EXPECT_EQ(Reglage("az(1)"), tables[1]);
  EXPECT_EQ(Reglage("in(1)"), tables[2]);
  EXPECT_EQ(Reglage("nom(1)"), tables[3]);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierVisee, AnExistingFileIsReplacedWhole) {
  TapeVisee();
  Sauve("mine.LoP");
  const std::string attendu = Contenu(lieu / "mine.LoP");
  Pose(lieu / "mine.LoP", std::string(5000, 'x'));
  Sauve("mine.LoP");
  EXPECT_EQ(Contenu(lieu / "mine.LoP"), attendu);
  EXPECT_EQ(NombreFichiers(), 1);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierVisee, WithoutAFileNameNothingIsWritten) {
  TapeVisee();
  Jouera([&] { ClicControle(bureau, f.Quitter); });
  ClicControle(bureau, d.Command3);
  Sauve("");
  EXPECT_EQ(NombreFichiers(), 0);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierVisee, ASaveThatFailsIsToldWithItsNumberAndPathAndTheProgramGoesOn) {
  TapeVisee();
  Dossier("mine.LoP");
  const std::string panneau = Panneau();
  Sauve("mine.LoP");
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].icone, Icone::Erreur);
  EXPECT_FALSE(boites[0].question);
  EXPECT_NE(boites[0].texte.find("75"), std::string::npos);
  EXPECT_NE(boites[0].texte.find((lieu / "mine.LoP").string()), std::string::npos);
  EXPECT_TRUE(fs::is_directory(lieu / "mine.LoP"));
  EXPECT_EQ(NombreFichiers(), 1);
  EXPECT_EQ(Panneau(), panneau);
  Sauve("other.LoP");
  EXPECT_TRUE(fs::exists(lieu / "other.LoP"));
  EXPECT_EQ(boites.size(), 1U);
}

TEST_F(FichierVisee, AFullDiskIsToldAndLeavesTheOldFileWhole) {
  TapeVisee();
  Pose(lieu / "mine.LoP", "old");
  // A file that may not grow past its first 20 bytes fails like a disk that is full.
  rlimit avant{};
  getrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, SIG_IGN);
  Jouera([&] {
    Donne("mine.LoP");
    const rlimit plein{20, avant.rlim_max};
    setrlimit(RLIMIT_FSIZE, &plein);
  });
  ClicControle(bureau, d.Command3);
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, SIG_DFL);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].icone, Icone::Erreur);
  EXPECT_EQ(Contenu(lieu / "mine.LoP"), "old");
  EXPECT_EQ(NombreFichiers(), 1) << "nothing is left beside it";
}

TEST_F(FichierVisee, LoadAsksForASightAmongTheSights) {
  Jouera([&] {
    EXPECT_EQ(f.cadre.titre, "Charger un FICHIER ") << "with its blank";
    EXPECT_EQ(f.FName.texte, "*LoP");
    EXPECT_EQ(f.motif, "*LoP");
  });
  ClicControle(bureau, d.Command4);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(FichierVisee, LoadForgetsTheSheetBeforeItAsksAndGivingUpKeepsItThat) {
  TapeVisee();
  Calcule();
  Garde(0);
  ClicControle(bureau, d.Command6);
  Affiche(0);
  ASSERT_EQ(d.LHeure[0].couleur, 0x008000U) << "the line starts the sheet";
  bureau.transports.ListeTransportDroite = bureau.transports.CibleTransport = "1";
  bureau.transports.ListeTransportEstime = "2";
  bureau.lignesLoP[17] = bureau.lignesLoP[18] = "ARTI";
  d.Check3.valeur = 1;
  d.Combo8.visible = true;
  const auto effacements = bureau.image1.effacements;
  const auto traces = bureau.image1.traces.size();
  const std::string panneau = Panneau();
  Jouera([&] { SansFeuille(); });
  ClicControle(bureau, d.Command4);
  EXPECT_EQ(ouvertures, 1);
  SansFeuille();
  EXPECT_EQ(d.Check3.valeur, 0);
  EXPECT_TRUE(d.Combo6.visible);
  EXPECT_FALSE(d.Combo8.visible);
  EXPECT_EQ(bureau.lignesLoP[17], "ARTI");
  EXPECT_EQ(bureau.lignesLoP[18], "");
  EXPECT_EQ(bureau.image1.effacements, effacements) << "the picture stays";
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(Panneau(), panneau);
  ClicControle(bureau, d.Droite[0]);
  EXPECT_EQ(bureau.image1.effacements, effacements + 1) << "there is no sheet, so the line starts one";
  EXPECT_EQ(d.LHeure[0].couleur, 0x008000U);
}

TEST_F(FichierVisee, ASightSavedErasedAndLoadedComesBackAndCanBeStored) {
  TapeVisee();
  Calcule();
  const std::string panneau = Panneau();
  const std::string intercept = d.Affichage_Intercept.legende;
  const std::string azimut = d.Affichage_Azimuth.legende;
  Sauve("mine.LoP");
  Tape(d.Text3, "7");
  Tape(d.Text8, "20");
  Tape(d.Text13, "11");
  ClicOption(bureau, d.OptN[1]);
  ClicOption(bureau, d.Option4[1]);
  ClicOption(bureau, d.Option5[1]);
  Calcule();
  ClicControle(bureau, d.Command6);
  ASSERT_NE(d.Affichage_Intercept.legende, intercept);
  Ouvre("mine.LoP");
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
  EXPECT_EQ(d.Affichage_Azimuth.legende, azimut);
  EXPECT_EQ(Reglage("T3(2)"), "absent");
  ClicControle(bureau, d.Droite[2]);
  EXPECT_EQ(Reglage("T3(2)"), "12");
  EXPECT_EQ(Reglage("T13(2)"), "65");
  EXPECT_EQ(d.LHeure[2].legende, "12:05:30");
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierVisee, ALoadReducesAsCalculDoesAndDrawsItsSheet) {
  OuvreOctets(Joint(LignesSoleil()));
  const std::string intercept = d.Affichage_Intercept.legende;
  EXPECT_NE(intercept, "");
  EXPECT_NEAR(bureau.visee.HeureDecimale, 12 + 5 / 60.0 + 31 / 3600.0, 1e-9);
  EXPECT_FLOAT_EQ(bureau.feuille.OrigineFeuille.latitude, static_cast<float>(-(48 + 9 / 60.0)));
  EXPECT_FLOAT_EQ(bureau.feuille.OrigineFeuille.longitude, static_cast<float>(-(6 + 7 / 60.0)));
  EXPECT_EQ(bureau.image1.effacements, 1U);
  EXPECT_FALSE(bureau.image1.traces.empty());
  EXPECT_NE(d.LabLon.legende, "");
  Calcule();
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
}

TEST_F(FichierVisee, ALoadedSightIsInNoneOfTheLinesAndTheNextClickStoresIt) {
  TapeVisee();
  Calcule();
  Garde(0);
  Affiche(0);
  OuvreOctets(Joint(LignesSoleil()));
  ToutesHorsFeuille();
  EXPECT_TRUE(d.Option1[0].choisi);
  EXPECT_EQ(Choisie(d.Option1), 0);
  EXPECT_FALSE(d.Combo5.actif);
}

TEST_F(FichierVisee, ALoadedSightFillsTheSecondRowOfThePrintPageUnderTheTitleOfTheFirstLine) {
  OuvreOctets(Joint(LignesSoleil()));
  const Impression &page = bureau.impression;
  EXPECT_FALSE(page.Frame4[0].visible || page.Frame4[2].visible || page.Frame4[3].visible);
  EXPECT_TRUE(page.Frame4[1].visible);
  EXPECT_EQ(page.Frame4[1].legende, "    1°  Droite :");
  EXPECT_EQ(page.Label32[1].legende, "12 : 05 : 31");
  EXPECT_EQ(page.Label33[1].legende, "048° 09' S");
  EXPECT_EQ(page.Label34[1].legende, "006° 07' E");
  EXPECT_NEAR(Val(page.Label35[1].legende), bureau.visee.Azimut, 0.0051);
  EXPECT_NEAR(Val(page.Label36[1].legende), bureau.visee.Intercept, 0.0051);
}

TEST_F(FichierVisee, AFileNamedFromOutsideIsOpenedAsByTheDialog) {
  const std::string nom = "été à Brest n° 1.LoP";
  Pose(lieu / nom, Joint(LignesSoleil()));
  Pose(lieu / "in.LoP", Joint(LignesSoleil()));
  Ouvre("in.LoP");
  const auto parLeDialogue = Controles();
  const auto traces = bureau.image1.traces;
  ClicControle(bureau, d.Command6);
  SaisitTexte(bureau, d.Text3, "07");
  OuvreVisee(bureau, lieu / nom);
  EXPECT_EQ(Changes(parLeDialogue), "");
  EXPECT_EQ(bureau.image1.traces, traces);
  EXPECT_EQ(bureau.TitreFichier, "été à Brest n° 1");
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierVisee, AFileNamedFromOutsideThatIsNotThereIsToldAndNothingChanges) {
  TapeVisee();
  Calcule();
  const auto avant = Controles();
  const auto traces = bureau.image1.traces;
  const std::string titre = bureau.TitreFichier;
  OuvreVisee(bureau, lieu / "absent.LoP");
  OuvreVisee(bureau, lieu);
  ASSERT_EQ(boites.size(), 2U);
  EXPECT_EQ(boites[0].texte, d.TexteNonLu.legende + "\n" + (lieu / "absent.LoP").string());
  EXPECT_EQ(Changes(avant), "");
  EXPECT_EQ(bureau.image1.traces, traces);
  EXPECT_EQ(bureau.TitreFichier, titre);
}

TEST_F(FichierVisee, ALoadShowsTheStoredLinesBesideTheSight) {
  for (const double gauche : {0.0, 700.0}) {
    d.Frame10.visible = false;
    d.Frame7.place.gauche = gauche;
    OuvreOctets(Joint(LignesSoleil()));
    EXPECT_TRUE(d.Frame10.visible);
    EXPECT_TRUE(d.Command8.visible);
    EXPECT_GE(d.Frame10.place.gauche, d.Frame7.place.gauche + d.Frame7.place.largeur) << gauche;
  }
}

TEST_F(FichierVisee, ALoadSetsTheFontOfTheSurface) {
  bureau.image1.police = {"serif", 20.0, false};
  OuvreOctets(Joint(LignesSoleil()));
  EXPECT_EQ(bureau.image1.police, (Police{"ms sans serif", 9.0, true}));
}

} // namespace
} // namespace velmaris::essais

#include "shell/registre/Registre.hpp"

#include "complements/registre/TexteCsv.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/registre/FichiersRegistre.hpp"
#include "shell/registre/LecteurRegistre.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/MontreSaisie.hpp"
#include "shell/visee/Journal.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

/// The log's window without a screen.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LogOuvert : public AvecDialogue {
protected:
  LogOuvert() { d.Check2.valeur = 0; }

  fs::path Fichier(const char *nom) const { return bureau.dossiers.utilisateur / nom; }
  static std::string Contenu(const fs::path &chemin) { return fs::exists(chemin) ? LitFichier(chemin) : ""; }

  /// Two sights of one morning: Vega before the Sun.
  void ViseDeux() {
    TapeVisee();
    Calcule();
    ClicOption(bureau, d.Option7[3]);
    Tape(d.Text3, "04");
    Tape(d.Text13, "31");
    PoseRang(bureau, d.Combo6, LigneDe("Vega"), kNombreEtoiles);
    Calcule();
  }

  int LigneDe(const std::string &nom) const {
    const auto &noms = d.Combo6.liste;
    return static_cast<int>(std::find(noms.begin(), noms.end(), nom) - noms.begin());
  }

  void OuvreLog() {
    ClicControle(bureau, d.PU_Registre);
    AccordeRegistre(bureau);
  }

  void Choisit(std::vector<std::size_t> lignes) {
    const int derniere = static_cast<int>(lignes.back());
    ChoisitLignes(bureau, reg.Table1, std::move(lignes), derniere);
    AccordeRegistre(bureau);
  }

  std::string Mot(std::size_t ligne, std::size_t colonne) const { return t.lecteur->texte(ligne, colonne); }

  Registre &reg = bureau.registre;
  Tableau &t = reg.Table1.tableau;
  RegistreOuvert &r = bureau.registreOuvert;
};

TEST_F(LogOuvert, EachReducedSightIsARowInWordsNewestFirst) {
  ViseDeux();
  OuvreLog();
  ASSERT_EQ(t.lignes, 2U);
  EXPECT_EQ(Mot(0, 0), "21/06/2026 12:05:30");
  EXPECT_EQ(Mot(0, 1), "Soleil");
  EXPECT_EQ(Mot(0, 2), "65° 34' 38\"");
  EXPECT_EQ(Mot(1, 0), "21/06/2026 04:05:30");
  EXPECT_EQ(Mot(1, 1), "Vega");
  EXPECT_EQ(Mot(1, 3), d.Affichage_Intercept.legende + " '") << "as the panel shows what was reduced last";
  EXPECT_EQ(Mot(1, 4), d.Affichage_Azimuth.legende + "°");
  EXPECT_THAT(Mot(0, 5), HasSubstr(" ' ("));
  EXPECT_EQ(reg.Label2.legende, "2 visées");
  ClicControle(bureau, d.Image10[1]);
  AccordeRegistre(bureau);
  EXPECT_EQ(Mot(0, 1), "Sun") << "in the language of the moment";
  EXPECT_EQ(reg.Label2.legende, "2 sights");
  EXPECT_EQ(t.colonnes[4].legende, "Azimuth");
}

TEST_F(LogOuvert, ReturnPutsASightBackWithItsResultsToTheBitAndUndoTakesItAway) {
  TapeVisee();
  Calcule();
  const ValeursVisee valeurs = bureau.visee;
  const std::string panneau = EcritLoP(LitPanneau(d));
  const std::string journal = Contenu(Fichier("journal.csv"));
  Tape(d.Text13, "20");
  Tape(d.Text3, "03");
  const std::string autre = EcritLoP(LitPanneau(d));
  OuvreLog();
  ValideLigne(bureau, reg.Table1, 0);
  EXPECT_EQ(EcritLoP(LitPanneau(d)), panneau);
  EXPECT_EQ(bureau.visee, valeurs);
  EXPECT_NE(bureau.feuille.OrigineFeuille.latitude, kSansFeuille.latitude) << "its sheet is drawn";
  EXPECT_EQ(Contenu(Fichier("journal.csv")), journal) << "nothing new was observed";
  PU_Annule_Click(bureau, -1);
  EXPECT_EQ(EcritLoP(LitPanneau(d)), autre);
}

TEST_F(LogOuvert, AStarIsTakenUpByItsName) {
  ViseDeux();
  const ValeursVisee valeurs = bureau.visee;
  PoseRang(bureau, d.Combo6, LigneDe("Sirius"), kNombreEtoiles);
  OuvreLog();
  ValideLigne(bureau, reg.Table1, 1);
  EXPECT_EQ(d.Combo6.texte, "Vega");
  EXPECT_EQ(bureau.visee, valeurs);
}

TEST_F(LogOuvert, ALineButtonTakesTheSightUpAndStoresItThereAsOneGesture) {
  TapeVisee();
  Calcule();
  Tape(d.Text13, "20");
  OuvreLog();
  Choisit({0});
  const std::size_t gestes = bureau.annulations.faits.size();
  ClicControle(bureau, reg.Command2[2]);
  EXPECT_EQ(Reglage("T13(2)"), "65");
  EXPECT_THAT(d.Droite[2].infobulle, HasSubstr("Soleil"));
  EXPECT_EQ(d.LHeure[2].legende.substr(0, 2), "12");
  EXPECT_EQ(bureau.annulations.faits.size(), gestes + 1);
  PU_Annule_Click(bureau, -1);
  EXPECT_EQ(d.LHeure[2].legende, "");
}

TEST_F(LogOuvert, HidingARowIsALineOfAnotherFileAndNothingIsErased) {
  ViseDeux();
  const std::string journal = Contenu(Fichier("journal.csv"));
  OuvreLog();
  Choisit({0});
  EXPECT_TRUE(reg.Command3[0].visible);
  ClicControle(bureau, reg.Command3[0]);
  AccordeRegistre(bureau);
  ASSERT_EQ(t.lignes, 1U);
  EXPECT_EQ(Mot(0, 1), "Vega");
  EXPECT_EQ(reg.Label2.legende, "1 sur 2 visées");
  EXPECT_EQ(Contenu(Fichier("journal.csv")), journal);
  ClicCase(bureau, reg.Check1);
  ASSERT_EQ(t.lignes, 2U);
  EXPECT_EQ(Mot(0, 6), "(masquée) ");
  EXPECT_EQ(t.lecteur->ton(0), TonLigne::Faible);
  Choisit({0});
  EXPECT_TRUE(reg.Command3[1].visible);
  ClicControle(bureau, reg.Command3[1]);
  ClicCase(bureau, reg.Check1);
  EXPECT_EQ(t.lignes, 2U);
  const std::string masques = Contenu(Fichier("masques.csv"));
  EXPECT_EQ(std::count(masques.begin(), masques.end(), '\n'), 3) << "titles, hidden, shown";
}

TEST_F(LogOuvert, ANoteIsKeptWhenItsFieldIsLeftAndIsThereInTheNextRun) {
  ViseDeux();
  OuvreLog();
  Choisit({1});
  Tape(reg.Text2, "horizon brumeux, \"doute\"");
  EXPECT_EQ(Mot(1, 6), "horizon brumeux, \"doute\"");
  Choisit({0});
  EXPECT_EQ(reg.Text2.texte, "");
  Choisit({1});
  EXPECT_EQ(reg.Text2.texte, "horizon brumeux, \"doute\"");
  const std::string masques = Contenu(Fichier("masques.csv"));
  QuitteChamp(bureau, reg.Text2);
  EXPECT_EQ(Contenu(Fichier("masques.csv")), masques) << "nothing new is said";
  Bureau suivant;
  Branche(suivant);
  DemandeRegistre(suivant);
  EXPECT_EQ(suivant.registre.Table1.tableau.lecteur->texte(1, 6), "horizon brumeux, \"doute\"");
}

TEST_F(LogOuvert, FiltersNarrowTheListAndChosenRowsStayChosen) {
  ViseDeux();
  OuvreLog();
  Choisit({1});
  SaisitTexte(bureau, reg.Text1[1], "veg");
  AccordeRegistre(bureau);
  ASSERT_EQ(t.lignes, 1U);
  EXPECT_THAT(t.choisies, ElementsAre(0U));
  EXPECT_EQ(t.courante, 0);
  SaisitTexte(bureau, reg.Text1[1], "");
  EXPECT_THAT(t.choisies, ElementsAre(1U));
  SaisitTexte(bureau, reg.Text1[2], "demain");
  AccordeRegistre(bureau);
  EXPECT_EQ(t.lignes, 2U) << "what is no day is no limit";
  EXPECT_NE(reg.Text1[2].alerte, "");
  SaisitTexte(bureau, reg.Text1[2], "2025");
  AccordeRegistre(bureau);
  EXPECT_EQ(t.lignes, 0U);
  EXPECT_EQ(reg.Text1[2].alerte, "");
  EXPECT_FALSE(reg.Command1.actif);
  EXPECT_FALSE(reg.Command4.actif);
}

TEST_F(LogOuvert, ABodyIsFoundByItsKindInTheUsersLanguage) {
  ViseDeux();
  ClicControle(bureau, d.Image10[1]);
  OuvreLog();
  SaisitTexte(bureau, reg.Text1[1], "star");
  ASSERT_EQ(t.lignes, 1U);
  EXPECT_EQ(Mot(0, 1), "Vega");
  SaisitTexte(bureau, reg.Text1[1], "sun");
  ASSERT_EQ(t.lignes, 1U);
  EXPECT_EQ(Mot(0, 1), "Sun") << "written as Soleil";
}

TEST_F(LogOuvert, TickedSightsAreThoseOfTheFix) {
  ViseDeux();
  OuvreLog();
  CocheLigne(bureau, reg.Table1, 1);
  EXPECT_TRUE(t.lecteur->coche(1));
  EXPECT_FALSE(t.lecteur->coche(0));
  EXPECT_THAT(r.auPoint, ElementsAre(IdentiteDe(*r.lu, 1)));
  Choisit({0, 1});
  ClicControle(bureau, reg.Command6);
  EXPECT_EQ(r.auPoint.size(), 2U);
  CocheLigne(bureau, reg.Table1, 1);
  EXPECT_THAT(r.auPoint, ElementsAre(IdentiteDe(*r.lu, 0)));
}

TEST_F(LogOuvert, ChosenRowsGoOutAsAJournalAndAsFilesOfSights) {
  ViseDeux();
  OuvreLog();
  Choisit({0, 1});
  Jouera([this] { Donne((lieu / "sortie.csv").string()); });
  ClicControle(bureau, reg.Command4);
  const std::string csv = Contenu(lieu / "sortie.csv");
  EXPECT_THAT(csv, testing::StartsWith(std::string(kTitresJournal) + "\n"));
  EXPECT_THAT(csv, HasSubstr(std::string(LigneBrute(*r.lu, 1))));
  const std::string premier = NomProposeLoP(RangeeDe(*r.lu, 0)->observation);
  Pose(lieu / premier, "garde");
  Jouera([this] { Donne((lieu / "peu importe.LoP").string()); });
  ClicControle(bureau, reg.Command5);
  EXPECT_EQ(Contenu(lieu / premier), "garde") << "what is there stays";
  Observation relue;
  ChargeLoP(lieu / (SansExtension(premier) + " (2).LoP"), relue);
  EXPECT_EQ(EcritLoP(relue), EcritLoP(RangeeDe(*r.lu, 0)->observation));
}

TEST_F(LogOuvert, ADroppedFileIsReducedAsOpenReducesItAndThePanelStays) {
  TapeVisee();
  const fs::path fichier = fs::path(VELMARIS_DONNEES) / "exemples" / "24SEP26 203025.LoP"; // the Moon
  Tape(d.Text13, "33");
  const std::string panneau = EcritLoP(LitPanneau(d));
  const ValeursVisee valeurs = bureau.visee;
  OuvreLog();
  Pose(lieu / "rien.LoP", "x");
  EntreFichiers(bureau, {fichier, lieu / "rien.LoP", lieu / "absent.LoP"});
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr("absent.LoP"));
  EXPECT_THAT(boites[0].texte, HasSubstr("rien.LoP"));
  EXPECT_EQ(EcritLoP(LitPanneau(d)), panneau);
  EXPECT_EQ(bureau.visee, valeurs);
  ASSERT_EQ(t.lignes, 1U);
  const Rangee entree = *RangeeDe(*r.lu, 0);
  EXPECT_EQ(entree.astre, "Lune");
  OuvreVisee(bureau, fichier);
  EXPECT_LT(std::fabs(entree.intercept), 60) << "a sight that was one";
  EXPECT_EQ(TexteGeneral(entree.intercept), TexteGeneral(bureau.visee.Intercept)) << "as the journal writes it";
  EXPECT_EQ(TexteGeneral(entree.azimut), TexteGeneral(bureau.visee.Azimut));
  ASSERT_TRUE(bureau.verification.visee);
  EXPECT_NEAR(entree.Ho, bureau.verification.visee->dit.Ho, 1e-12);
}

TEST_F(LogOuvert, TheWatchIsComparedByThreeFieldsAndTouchesNoSight) {
  TapeVisee();
  const std::string panneau = EcritLoP(LitPanneau(d));
  OuvreLog();
  SaisitTexte(bureau, reg.Text3[0], "20/6/2026 12:00:00");
  SaisitTexte(bureau, reg.Text3[1], "-2,5");
  SaisitTexte(bureau, reg.Text3[2], "0.4");
  ClicControle(bureau, reg.Command8);
  SaisitTexte(bureau, reg.Text3[1], "1");
  ValideControle(bureau, reg.Text3[1]); // Return; an empty date is now
  AccordeRegistre(bureau);
  EXPECT_THAT(reg.List1.liste,
              ElementsAre("21/06/2026 12:05:30   +1.0 s   +0.0 s/jour", "20/06/2026 12:00:00   -2.5 s   +0.4 s/jour"));
  EXPECT_EQ(r.montre.size(), 2U);
  EXPECT_EQ(EcritLoP(LitPanneau(d)), panneau);
  SaisitTexte(bureau, reg.Text3[0], "31/2/2026 12:00:00");
  SaisitTexte(bureau, reg.Text3[1], "un");
  SaisitTexte(bureau, reg.Text3[2], "4000");
  ClicControle(bureau, reg.Command8);
  for (const Controle &champ : reg.Text3) {
    EXPECT_NE(champ.alerte, "") << champ.indice;
  }
  EXPECT_EQ(bureau.focus, &reg.Text3[0]);
  EXPECT_EQ(r.montre.size(), 2U);
  SaisitTexte(bureau, reg.Text3[1], "2");
  EXPECT_EQ(reg.Text3[1].alerte, "");
}

TEST_F(LogOuvert, AReadingThatIsLateGivesWayToTheLastOneAskedFor) {
  ViseDeux();
  std::vector<std::function<std::function<void()>()>> travaux;
  bureau.ports.travaille = [&](auto travail) { travaux.push_back(std::move(travail)); };
  OuvreLog();
  EXPECT_EQ(reg.Label2.legende, "lecture des journaux...");
  const auto premiere = travaux.at(0)();
  SaisitTexte(bureau, reg.Text1[1], "vega");
  premiere();
  EXPECT_EQ(r.lu, nullptr);
  travaux.at(1)()();
  EXPECT_EQ(t.lignes, 1U);
}

TEST_F(LogOuvert, ASightReducedMeanwhileComesInWithTheNextBeatOfTheClock) {
  OuvreLog();
  EXPECT_EQ(t.lignes, 0U);
  TapeVisee();
  Calcule();
  Timer1_Tick(bureau);
  EXPECT_EQ(t.lignes, 1U);
  const auto avant = r.lu;
  Timer1_Tick(bureau);
  EXPECT_EQ(r.lu, avant);
}

TEST_F(LogOuvert, WhatIsSaidWhileAnotherProgramHoldsTheFileWaitsAndIsWritten) {
  ViseDeux();
  OuvreLog();
  Choisit({0});
  Tape(reg.Text2, "avant");
  const int tenu = ::open(Fichier("masques.csv").c_str(), O_RDWR | O_CLOEXEC);
  Patience aucune(std::chrono::nanoseconds::zero());
  ASSERT_EQ(Verrouille(tenu, true, aucune), Verrou::Pris);
  Tape(reg.Text2, "retenue");
  EXPECT_EQ(Mot(0, 6), "retenue") << "it is shown all the same";
  EXPECT_EQ(r.masques.lignes.size(), 1U);
  ::close(tenu);
  Timer1_Tick(bureau);
  EXPECT_THAT(r.masques.lignes, IsEmpty());
  EXPECT_THAT(Contenu(Fichier("masques.csv")), HasSubstr("retenue"));
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(LogOuvert, AFileThatCantBeWrittenIsToldOnceAndNothingIsSaid) {
  ViseDeux();
  OuvreLog();
  fs::create_directories(Fichier("masques.csv"));
  Choisit({0});
  Tape(reg.Text2, "perdue");
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr("masques.csv"));
  EXPECT_EQ(Mot(0, 6), "");
  ClicControle(bureau, reg.Command3[0]);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(t.lignes, 2U);
}

TEST_F(LogOuvert, LeavingTheProgramKeepsANoteThatWasBeingTyped) {
  reponse = true;
  ViseDeux();
  OuvreLog();
  Choisit({0});
  SaisitTexte(bureau, reg.Text2, "en route");
  ClicControle(bureau, d.Sortie);
  EXPECT_THAT(Contenu(Fichier("masques.csv")), HasSubstr("en route"));
}

TEST_F(LogOuvert, TheKeyOpensItAndClosingPutsItAway) {
  EXPECT_TRUE(ToucheControle(bureau, 'L'));
  EXPECT_TRUE(reg.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreRegistre);
  ClicControle(bureau, reg.Command7);
  EXPECT_FALSE(reg.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

} // namespace
} // namespace velmaris::essais

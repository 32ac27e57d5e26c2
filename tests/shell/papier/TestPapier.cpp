#include "shell/papier/Papier.hpp"

#include "complements/papier/PageFiche.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/Demarrage.hpp"
#include "shell/papier/CalculAlmanach.hpp"
#include "shell/papier/MotsDesPages.hpp"
#include "shell/papier/SourcesPapier.hpp"
#include "shell/point/Point.hpp"
#include "shell/registre/Registre.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <algorithm>

/// The window of printed pages without a screen.
namespace velmaris::essais {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class PagesAImprimer : public AvecDialogue {
protected:
  void Montre(OngletPapier onglet) {
    ClicControle(bureau, d.PU_Papier);
    Accorde();
    ChoisitLigne(bureau, p.Onglets1, static_cast<int>(onglet));
    Accorde();
  }
  void Accorde() {
    AccordeRegistre(bureau);
    AccordePapier(bureau);
  }
  void Demande(const std::string &de, const std::string &a, const std::string &latitudes) {
    SaisitTexte(bureau, p.Text1[0], de);
    SaisitTexte(bureau, p.Text1[1], a);
    SaisitTexte(bureau, p.Text1[2], latitudes);
    ClicControle(bureau, p.Command1[0]);
    Accorde();
  }
  std::string MotsVus() const {
    std::string tous;
    if (p.Feuille.feuillet) {
      for (const ElementFeuillet &e : p.Feuille.feuillet->elements) {
        if (const auto *mot = std::get_if<MotFeuillet>(&e)) {
          tous += mot->texte + "\n";
        }
      }
    }
    return tous;
  }
  /// What a PDF of these pages would be.
  void PoseImprimeur() {
    bureau.ports.pdf = [](const std::vector<Feuillet> &feuillets, const Avancement &) {
      return "%PDF " + std::to_string(feuillets.size());
    };
  }

  FenetrePapier &p = bureau.fenetrePapier;
};

TEST_F(PagesAImprimer, ControlShiftAOpensThemAndClosingPutsThemAway) {
  EXPECT_TRUE(ToucheControle(bureau, 'a'));
  EXPECT_TRUE(p.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetrePapier);
  Accorde();
  EXPECT_EQ(p.cadre.titre, "Almanach");
  ClicControle(bureau, p.Command2[3]);
  EXPECT_FALSE(p.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(PagesAImprimer, TheFirstTimeTheFieldsHoldAMonthFromTodayAndLatitudesAroundThePanels) {
  Tape(d.Text8, "33");
  Tape(d.Text9, "30");
  ClicOption(bureau, d.OptN[1]);
  Montre(OngletPapier::Almanach);
  const auto demande = LitDemandeAlmanach(bureau);
  ASSERT_TRUE(demande);
  EXPECT_EQ(NombreDeJours(*demande), 30);
  EXPECT_THAT(demande->latitudes, testing::ElementsAre(-25, -30, -35, -40, -45));
}

TEST_F(PagesAImprimer, AnAlmanacIsWorkedOutAndItsPagesAreTurned) {
  Montre(OngletPapier::Almanach);
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
  EXPECT_FALSE(p.Command2[0].actif);
  EXPECT_EQ(p.Label2.legende, p.TexteAttend.legende);
  Demande("30/12/2026", "01/01/2027", "50 N, 10 S");
  ASSERT_NE(p.Feuille.feuillet, nullptr);
  EXPECT_TRUE(p.Command2[0].actif);
  EXPECT_TRUE(p.Command2[2].actif);
  EXPECT_THAT(p.Label2.legende, HasSubstr("3 jours"));
  EXPECT_FALSE(p.Page[0].actif);
  const auto premiere = p.Feuille.feuillet;
  ClicControle(bureau, p.Page[1]);
  Accorde();
  EXPECT_NE(p.Feuille.feuillet, premiere);
  EXPECT_THAT(p.LabPage.legende, HasSubstr("page 2 / "));
  ClicControle(bureau, p.Page[0]);
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, premiere);
}

TEST_F(PagesAImprimer, WhatCantBePrintedIsMarkedAndSaid) {
  Montre(OngletPapier::Almanach);
  for (const auto &[de, a, latitudes, mots] :
       {std::array<const char *, 4>{"31/02/2026", "01/03/2026", "", "hors limites"},
        {"01/03/2026", "01/02/2026", "", "la fin avant le début"},
        {"01/01/2026", "01/04/2027", "", "plus de 400 jours"},
        {"01/01/2026", "02/01/2026", "95 N", "95 N : latitude sans N ni S"},
        {"01/01/2026", "02/01/2026", "50 N, 45", "45 : latitude sans N ni S"}}) {
    Demande(de, a, latitudes);
    EXPECT_THAT(p.LabAvis.legende, HasSubstr(mots));
    EXPECT_EQ(p.Feuille.feuillet, nullptr);
  }
  Demande("01/01/2026", "02/01/2026", "45 N");
  EXPECT_THAT(p.LabAvis.legende, IsEmpty());
  EXPECT_NE(p.Feuille.feuillet, nullptr);
}

TEST_F(PagesAImprimer, AWorkThatIsStoppedLeavesWhatThereWas) {
  Montre(OngletPapier::Almanach);
  Demande("01/01/2026", "01/01/2026", "45 N");
  const auto avant = p.Feuille.feuillet;
  std::function<std::function<void()>()> travail;
  bureau.ports.travaille = [&](std::function<std::function<void()>()> t) { travail = std::move(t); };
  Demande("01/01/2026", "10/01/2026", "45 N");
  EXPECT_TRUE(p.Avance.visible);
  EXPECT_TRUE(p.Command1[1].actif);
  ClicControle(bureau, p.Command1[1]);
  travail()();
  Accorde();
  EXPECT_FALSE(p.Avance.visible);
  EXPECT_EQ(p.LabAvis.legende, p.TexteArrete.legende);
  EXPECT_EQ(p.Feuille.feuillet, nullptr) << "the fields ask for other days than there are";
  SaisitTexte(bureau, p.Text1[1], "01/01/2026");
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, avant);
}

TEST_F(PagesAImprimer, TheAlmanacGoesIntoAPdfAndARowsFile) {
  PoseImprimeur();
  Montre(OngletPapier::Almanach);
  Demande("01/01/2026", "01/01/2026", "45 N");
  const std::size_t pages = bureau.papier.onglets[0].pages->size();
  Jouera([this] { Donne((dossier.chemin() / "a.pdf").string()); });
  ClicControle(bureau, p.Command2[0]);
  EXPECT_EQ(LitFichier(dossier.chemin() / "a.pdf"), "%PDF " + std::to_string(pages));
  EXPECT_THAT(p.LabAvis.legende, HasSubstr("Écrit : "));
  Jouera([this] { Donne((dossier.chemin() / "a.csv").string()); });
  ClicControle(bureau, p.Command2[2]);
  EXPECT_THAT(LitFichier(dossier.chemin() / "a.csv"), HasSubstr("2026-01-01"));
}

TEST_F(PagesAImprimer, AFileThatCantBeWrittenIsToldAndTheWindowStays) {
  PoseImprimeur();
  Montre(OngletPapier::Vierge);
  std::filesystem::create_directory(dossier.chemin() / "pris.pdf");
  // The dialog doesn't take a folder's name: what is chosen becomes one in the meantime.
  Jouera([this] {
    Donne((dossier.chemin() / "autre.pdf").string());
    std::filesystem::create_directory(dossier.chemin() / "autre.pdf");
  });
  ClicControle(bureau, p.Command2[0]);
  EXPECT_THAT(p.LabAvis.legende, HasSubstr("Impossible d'écrire"));
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].fenetre, kFenetrePapier);
  EXPECT_TRUE(p.cadre.visible);
}

TEST_F(PagesAImprimer, ThePanelsSightIsWorkedByHandFilledOrWithBlanks) {
  TapeVisee();
  Montre(OngletPapier::Fiche);
  EXPECT_EQ(p.Label3.legende, "1 visée");
  EXPECT_THAT(MotsVus(), HasSubstr("Hauteur observée"));
  ClicCase(bureau, p.Check2);
  Accorde();
  EXPECT_EQ(bureau.papier.onglets[1].pages->size(), 2U);
  EXPECT_THAT(MotsVus(), Not(HasSubstr("vers l'astre")));
}

TEST_F(PagesAImprimer, AnEmptyPanelIsToldAndMakesNoPage) {
  d.TDate[1].texte = "13";
  Montre(OngletPapier::Fiche);
  EXPECT_THAT(p.Label3.legende, HasSubstr("Le panneau ne tient pas"));
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
  EXPECT_EQ(p.LabPage.legende, p.TexteSansPage.legende);
}

TEST_F(PagesAImprimer, ChosenRowsOfTheLogMakeAFormEach) {
  TapeVisee();
  Calcule();
  Tape(d.Text12, "40");
  Calcule();
  ClicControle(bureau, d.PU_Registre);
  Accorde();
  ASSERT_EQ(bureau.registreOuvert.montrees->size(), 2U);
  Montre(OngletPapier::Fiche);
  ClicOption(bureau, p.Option1[1]);
  Accorde();
  bureau.registre.Table1.tableau.choisies = {};
  ClicOption(bureau, p.Option1[1]);
  EXPECT_THAT(p.Label3.legende, HasSubstr("Aucune visée n'est choisie"));
  bureau.registre.Table1.tableau.choisies = {0, 1};
  ClicOption(bureau, p.Option1[1]);
  Accorde();
  EXPECT_EQ(p.Label3.legende, "2 visées");
  EXPECT_EQ(bureau.papier.onglets[1].pages->size(), 2U);
}

TEST_F(PagesAImprimer, TheDaysPageHasTheSightsLinesAndWeather) {
  Montre(OngletPapier::Jour);
  EXPECT_EQ(p.Label5.legende, p.TexteSansPoint.legende);
  ClicControle(bureau, p.Command2[3]);
  TapeVisee();
  Calcule();
  Montre(OngletPapier::Jour);
  EXPECT_EQ(p.Label5.legende, "1 visée");
  SaisitTexte(bureau, p.Text2[0], "SW 5");
  Accorde();
  EXPECT_THAT(MotsVus(), HasSubstr("SW 5"));
  EXPECT_THAT(MotsVus(), HasSubstr("Canevas plan"));
  const DonneesJour jour = DonneesDuJour(bureau);
  ASSERT_EQ(jour.visees.size(), 1U);
  ASSERT_EQ(jour.droites.size(), 1U);
  EXPECT_EQ(jour.visees[0][6].empty(), false) << "the told intercept";
  EXPECT_EQ(jour.visees[0][7].empty(), false) << "that of the sky";
  EXPECT_THAT(jour.lignes, testing::ElementsAre(HasSubstr("Sans point")));
}

TEST_F(PagesAImprimer, ABlankSheetTakesLatitudesUnderEightyFour) {
  Montre(OngletPapier::Vierge);
  SaisitTexte(bureau, p.Text3[0], "47 10 S");
  SaisitTexte(bureau, p.Text3[1], "120");
  Accorde();
  EXPECT_THAT(MotsVus(), HasSubstr("47° 10,0' S"));
  SaisitTexte(bureau, p.Text3[0], "85 N");
  Accorde();
  EXPECT_THAT(p.LabAvis.legende, HasSubstr("84 au plus"));
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
}

TEST_F(PagesAImprimer, ABlankSheetEndsShortOfThePole) {
  Montre(OngletPapier::Vierge);
  SaisitTexte(bureau, p.Text3[0], "84 N");
  SaisitTexte(bureau, p.Text3[1], "600");
  Accorde();
  EXPECT_NE(p.Feuille.feuillet, nullptr);
  SaisitTexte(bureau, p.Text3[1], "601");
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, nullptr) << "its upper edge would lie beyond 89 degrees";
}

TEST_F(PagesAImprimer, PagesOfOtherDaysAreNotShownAsThoseOfTheFields) {
  PoseImprimeur();
  Montre(OngletPapier::Almanach);
  Demande("01/01/2026", "02/01/2026", "45 N");
  const auto avant = p.Feuille.feuillet;
  SaisitTexte(bureau, p.Text1[1], "03/01/2026");
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
  EXPECT_FALSE(p.Command2[0].actif);
  EXPECT_FALSE(p.Command2[1].actif);
  EXPECT_FALSE(p.Command2[2].actif);
  EXPECT_EQ(p.Label2.legende, p.TexteAutres.legende);
  SaisitTexte(bureau, p.Text1[1], "02/01/2026");
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, avant);
  EXPECT_TRUE(p.Command2[0].actif);
}

TEST_F(PagesAImprimer, AnotherPaperOrderOrLanguageMakesTheAlmanacAnewAtOnce) {
  Montre(OngletPapier::Almanach);
  Demande("01/01/2026", "01/01/2026", "45 N");
  ChoisitLigne(bureau, p.Combo1, 1);
  Accorde();
  Accorde();
  ASSERT_NE(p.Feuille.feuillet, nullptr);
  EXPECT_EQ(p.Feuille.feuillet->largeur, TailleDuPapier(FormatPapier::Lettre).x);
  const std::size_t tout = bureau.papier.onglets[0].pages->size();
  ClicCase(bureau, p.Check1[2]);
  Accorde();
  Accorde();
  EXPECT_LT(bureau.papier.onglets[0].pages->size(), tout);
  const std::string francais = MotsVus();
  ClicControle(bureau, d.Image10[1]);
  Accorde();
  Accorde();
  EXPECT_NE(MotsVus(), francais);
  EXPECT_EQ(p.MotFichier[0].legende, "almanac");
}

TEST_F(PagesAImprimer, ACommaBetweenFiguresIsADecimalOneInALatitude) {
  Montre(OngletPapier::Almanach);
  const auto latitudes = [&](const char *texte) {
    SaisitTexte(bureau, p.Text1[2], texte);
    const auto demande = LitDemandeAlmanach(bureau);
    return demande ? demande->latitudes : std::vector<double>{999};
  };
  EXPECT_THAT(latitudes("50,5 N, 45 N"), testing::ElementsAre(50.5, 45));
  EXPECT_THAT(latitudes("50N,45N;10 s"), testing::ElementsAre(50, 45, -10));
  EXPECT_THAT(latitudes("10 N 0, 10 S"), testing::ElementsAre(10, 0, -10));
  EXPECT_THAT(latitudes("-35, +20"), testing::ElementsAre(-35, 20));
  EXPECT_THAT(latitudes("50, 45, 40"), testing::ElementsAre(999));
  EXPECT_THAT(latitudes(""), IsEmpty());
}

TEST_F(PagesAImprimer, TheWorksheetFollowsThePanelAndOneToBeFilledInMakesNone) {
  TapeVisee();
  Montre(OngletPapier::Fiche);
  const std::string avant = MotsVus();
  Tape(d.Text13, "33");
  Accorde();
  EXPECT_NE(MotsVus(), avant);
  Tape(d.Text8, "");
  Accorde();
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
  EXPECT_FALSE(p.Command2[0].actif);
  EXPECT_THAT(p.Label3.legende, HasSubstr("à remplir"));
}

TEST_F(PagesAImprimer, ASightThatIsntBegunMakesNoWorksheet) {
  Montre(OngletPapier::Fiche);
  EXPECT_EQ(p.Feuille.feuillet, nullptr);
  EXPECT_THAT(p.Label3.legende, HasSubstr("à remplir"));
}

TEST_F(PagesAImprimer, TheDaysPageFollowsItsSights) {
  TapeVisee();
  Calcule();
  Montre(OngletPapier::Jour);
  const auto avant = p.Feuille.feuillet;
  bureau.point.visees[0].cochee = false;
  Accorde();
  EXPECT_NE(p.Feuille.feuillet, avant);
}

TEST_F(PagesAImprimer, TheWeatherBelongsToItsDay) {
  TapeVisee();
  Calcule();
  Montre(OngletPapier::Jour);
  SaisitTexte(bureau, p.Text2[0], "SW 5");
  Accorde();
  const std::string jour = bureau.papier.jourMeteo;
  bureau.point.visees.front().hauteur->utc = PlusTard(bureau.point.visees.front().hauteur->utc, 86400);
  bureau.point.visees.front().identite += "x";
  Accorde();
  EXPECT_EQ(p.Text2[0].texte, "") << "another day's";
  SaisitTexte(bureau, p.Text2[0], "N 2");
  ClicControle(bureau, p.Command2[3]);
  bureau.papier.meteos.clear(); // as at a start
  bureau.papier.meteoReprise = false;
  bureau.papier.jourMeteo.clear();
  p.Text2[0].texte.clear();
  bureau.point.visees.front().hauteur->utc = PlusTard(bureau.point.visees.front().hauteur->utc, -86400);
  Montre(OngletPapier::Jour);
  EXPECT_EQ(bureau.papier.jourMeteo, jour);
  EXPECT_EQ(p.Text2[0].texte, "SW 5");
}

TEST_F(PagesAImprimer, AFileThatIsThereIsReplacedAfterAQuestionOnly) {
  PoseImprimeur();
  Montre(OngletPapier::Vierge);
  const auto chemin = dossier.chemin() / "feuille.pdf";
  Pose(chemin, "avant");
  reponse = false;
  int fois = 0;
  Jouera([&] {
    if (fois++ == 0) {
      Donne(chemin.string());
    }
  });
  ClicControle(bureau, p.Command2[0]);
  EXPECT_EQ(LitFichier(chemin), "avant");
  EXPECT_EQ(ouvertures, 2) << "after a no the dialog asks again";
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(boites[0].question && boites[0].nonParDefaut);
  reponse = true;
  Jouera([&] { Donne(chemin.string()); });
  ClicControle(bureau, p.Command2[0]);
  EXPECT_THAT(LitFichier(chemin), HasSubstr("%PDF"));
}

TEST_F(PagesAImprimer, APathWithoutItsEndingGetsIt) {
  PoseImprimeur();
  Montre(OngletPapier::Vierge);
  Jouera([&] { Donne((dossier.chemin() / "jour").string()); });
  ClicControle(bureau, p.Command2[0]);
  EXPECT_THAT(LitFichier(dossier.chemin() / "jour.pdf"), HasSubstr("%PDF"));
}

TEST_F(PagesAImprimer, PaperAndFieldsAreThereAtTheNextStart) {
  Montre(OngletPapier::Almanach);
  ChoisitLigne(bureau, p.Combo1, 1);
  Demande("01/01/2026", "01/01/2026", "12 S, 3 N");
  EXPECT_EQ(p.Feuille.feuillet->largeur, TailleDuPapier(FormatPapier::Lettre).x);
  p.Text1[0].texte.clear(); // as at a start
  p.Text1[2].texte.clear();
  p.Combo1.rang = 0;
  ClicControle(bureau, d.PU_Papier);
  EXPECT_EQ(p.Text1[2].texte, "12 S, 3 N");
  EXPECT_EQ(p.Combo1.rang, 1);
}

TEST_F(PagesAImprimer, AnotherLanguageSpeaksOnThePagesToo) {
  TapeVisee();
  Montre(OngletPapier::Fiche);
  ClicControle(bureau, d.Image10[1]);
  Accorde();
  EXPECT_EQ(p.cadre.titre, "Worksheet");
  EXPECT_THAT(MotsVus(), HasSubstr("Observed altitude"));
}

} // namespace
} // namespace velmaris::essais

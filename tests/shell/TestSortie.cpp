#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include "foundations/Fichiers.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

/// The end of the program, asked for or by a failure that nothing passes over: nothing is lost by it.
namespace velmaris::essais {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kSansValeur = 13;

TEST_F(Programme, NoAtTheExitQuestionKeepsNothingAndAsksAgainNextTime) {
  Demarre();
  TapeVisee();
  ClicControle(bureau, d.Sortie);
  ClicControle(bureau, d.Sortie);
  EXPECT_EQ(boites.size(), 2U);
  EXPECT_EQ(bureau.QuitterRefuse, -1);
  EXPECT_FALSE(bureau.termine);
  EXPECT_EQ(Reglage("T8"), "absent");
}

TEST_F(Programme, AFailureAtTheEdgeKeepsTheSightAndTellsWhere) {
  Demarre();
  TapeVisee();
  Secours(bureau, Erreur(kSansValeur));
  const auto fichier = dossier.chemin() / "utilisateur" / "secours.LoP";
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_NE(boites[0].texte.find("13"), std::string::npos);
  EXPECT_NE(boites[0].texte.find(fichier.string()), std::string::npos);
  EXPECT_EQ(LitFichier(fichier), EnWindows1252(EcritLoP(LitPanneau(d))));
}

TEST_F(Programme, AFailureWithoutAPlaceToWriteIsStillTold) {
  Demarre();
  bureau.dossiers.utilisateur = "/proc/velmaris";
  Secours(bureau, Erreur(6));
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_NE(boites[0].texte.find(d.TexteSansSecours.legende), std::string::npos);
}

/// A planet's or a star's sight of which a field was left empty: the reduction ends the program.
class FinSurChampVide : public AvecFichiers, public ::testing::WithParamInterface<int> {
protected:
  void Choisit() {
    ClicOption(bureau, d.Option7[static_cast<std::size_t>(GetParam())]);
    if (GetParam() == static_cast<int>(Corps::Planetes)) {
      ChoisitLigne(bureau, d.Combo7, 1);
    } else {
      ClicCase(bureau, d.Check3); // from the whole list
      ChoisitLigne(bureau, d.Combo6, 40);
    }
  }

  fs::path donnees = bureau.dossiers.utilisateur;
};

TEST_P(FinSurChampVide, KeepsTheSightAndARestartHasAllThatWasStored) {
  reponse = true;
  TapeVisee();
  Choisit();
  Calcule();
  Garde(0);
  ClicControle(bureau, d.Sortie); // the settings of a first exit
  bureau.termine = false;
  const std::string droite = Panneau();
  const std::string journal = Contenu(donnees / "journal.csv");
  ASSERT_NE(journal, "");
  for (Controle *champ : {&d.Text3, &d.TDate[2], &d.Text10}) {
    boites.clear();
    TapeVisee();
    Choisit();
    SaisitTexte(bureau, *champ, "");
    ASSERT_EQ(NumeroErreur([&] { Calcule(); }), kSansValeur) << champ->nom;
    Secours(bureau, Erreur(kSansValeur));
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_THAT(boites[0].texte, HasSubstr((donnees / "secours.LoP").string()));
    EXPECT_EQ(LitFichier(donnees / "secours.LoP"), EnWindows1252(Panneau()));

    boites.clear();
    Bureau suivant;
    Branche(suivant);
    Donnees_Charge(suivant, {});
    Donnees &n = suivant.donnees;
    n.Check2.valeur = 0;
    EXPECT_THAT(boites, IsEmpty());
    EXPECT_EQ(n.Text8.texte + n.Text9.texte + n.Text11.texte, "4730-1,0") << "as at the last exit";
    EXPECT_EQ(Contenu(donnees / "journal.csv"), journal) << "no line for a sight that wasn't reduced";
    ClicControle(suivant, n.Droite[0]);
    EXPECT_EQ(EcritLoP(LitPanneau(n)), droite) << "the stored line";
    OuvreVisee(suivant, donnees / "secours.LoP");
    EXPECT_EQ(EcritLoP(LitPanneau(n)), Panneau()) << "the sight goes on where it ended";
    EXPECT_THAT(boites, IsEmpty());
  }
}

INSTANTIATE_TEST_SUITE_P(Corps, FinSurChampVide,
                         ::testing::Values(static_cast<int>(Corps::Planetes), static_cast<int>(Corps::Etoiles)));

TEST_F(Programme, TheBoxOfAFailureSpeaksTheChosenLanguage) {
  Demarre();
  for (const auto &[langue, debut] : {std::pair<std::size_t, const char *>{1, "Run-time error 13\nType mismatch\n"},
                                      {0, "Erreur d'exécution 13\nIncompatibilité de type\n"}}) {
    ClicControle(bureau, d.Image10[langue]);
    boites.clear();
    Secours(bureau, Erreur(kSansValeur));
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_THAT(boites[0].texte, ::testing::StartsWith(debut));
  }
}

/// What the box says of a failing click.
class BoiteDeLaFin : public AvecFichiers {
protected:
  std::string Dite(const std::function<void()> &clic) {
    boites.clear();
    try {
      clic();
      return "no failure";
    } catch (const Erreur &erreur) {
      Secours(bureau, erreur);
    }
    return boites.size() == 1 ? boites[0].texte : "no box";
  }

  void Etoile(Controle &champ, const std::string &texte) {
    TapeVisee();
    ClicOption(bureau, d.Option7[static_cast<std::size_t>(Corps::Etoiles)]);
    ClicCase(bureau, d.Check3); // the whole list
    ChoisitLigne(bureau, d.Combo6, 40);
    SaisitTexte(bureau, champ, texte);
  }
};

TEST_F(BoiteDeLaFin, NamesTheFieldAndTheRemedyBesideTheNumber) {
  const auto calcule = [&] { Calcule(); };
  ClicControle(bureau, d.Image10[1]);
  Etoile(d.Text10, "");
  EXPECT_THAT(Dite(calcule),
              ::testing::StartsWith("Run-time error 13\nType mismatch\n\nEye height is empty: a star needs it.\n\n"));
  Etoile(d.Text11, "abc");
  EXPECT_THAT(Dite(calcule), HasSubstr("\n\nIndex correction isn't a number: write it as 2,5.\n\n"));
  Etoile(d.TDate[0], "");
  EXPECT_THAT(Dite(calcule), HasSubstr("\n\nDay is empty: a star needs it.\n\n"));
  ClicControle(bureau, d.Image10[0]);
  Etoile(d.Text10, "");
  EXPECT_THAT(Dite(calcule), HasSubstr("\n\nHauteur oeil est vide : une étoile en a besoin.\n\n"));
  Etoile(d.Text3, "24");
  EXPECT_THAT(Dite(calcule), HasSubstr("\n\nHeure GMT, h va de 0 à 23.\n\n"));
  Etoile(d.TDate[0], "31");
  SaisitTexte(bureau, d.TDate[1], "02");
  EXPECT_THAT(Dite(calcule), HasSubstr("\n\nLa date n'existe pas : corrigez le jour, le mois ou l'année.\n\n"));
}

TEST_F(BoiteDeLaFin, OfAPlanetTellsItsNeed) {
  Etoile(d.Text5, "");
  ClicOption(bureau, d.Option7[static_cast<std::size_t>(Corps::Planetes)]);
  ChoisitLigne(bureau, d.Combo7, 1);
  EXPECT_THAT(Dite([&] { Calcule(); }), HasSubstr("\n\nHeure GMT, s est vide : une planète en a besoin.\n\n"));
}

TEST_F(BoiteDeLaFin, OfTwoPlacesThatHaveNoCourseTellsToChangeOne) {
  for (Controle *champ : {&d.Text14, &d.Text16, &d.Text17, &d.Text18, &d.Text20, &d.Text19, &d.Text21}) {
    SaisitTexte(bureau, *champ, "00");
  }
  SaisitTexte(bureau, d.Text22, "180");
  EXPECT_THAT(Dite([&] { ClicControle(bureau, d.Command10); }), HasSubstr("\n\n" + d.TexteDeuxPoints.legende + "\n\n"));
}

TEST_F(Programme, AFailureWithoutAMeaningTellsItsNumberAlone) {
  Demarre();
  Secours(bureau, Erreur(1));
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, ::testing::StartsWith("Erreur d'exécution 1\n\n"));
}

} // namespace
} // namespace velmaris::essais

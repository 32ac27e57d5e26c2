#include "shell/RepriseSeance.hpp"

#include "foundations/Fichiers.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/carte/Objets.hpp"
#include "shell/visee/ChampsJuges.hpp"
#include "tests/shell/droites/OutilsDroites.hpp"

#include <memory>

/// A session taken up by the next program, once, and only where it was left.
namespace velmaris::essais {
namespace {

constexpr int kSansValeur = 13;

/// Two programs after another on one folder: `bureau` dies, `suivant` is the next.
class RepriseSeance : public QuatreDroites {
protected:
  void Tient() { OuvreReprise(bureau); }

  /// The program dies with what it holds.
  void Meurt() {
    GardeSession(bureau);
    bureau.reprise.reset();
    bureau.valeurs.reset();
  }

  /// The next one starts on the same folder.
  void Suit() {
    suivant = std::make_unique<Bureau>();
    Branche(*suivant);
    suivant->dossiers = bureau.dossiers;
    Donnees_Charge(*suivant, {});
    boites.clear();
    OuvreReprise(*suivant);
  }

  static std::string Etat(Bureau &b) { return TexteSession(PriseSession(b)); }

  std::unique_ptr<Bureau> suivant;
};

TEST_F(RepriseSeance, ADeadSessionIsTakenUpAsItWas) {
  TroisDroites();
  Tient();
  Montre(0);
  Montre(1);
  Transporte(0, "2");
  PoseValeur(bureau, d.HScroll1, 1500);
  ClicControle(bureau, d.Command23);
  ClicControle(bureau, d.Command22);
  d.Frame4.place.gauche = 5000;
  ClicOption(bureau, d.Option7[3]);
  ClicCase(bureau, d.Check3);
  ChoisitLigne(bureau, d.Combo6, 33);
  Tape(d.Text13, "34");
  const std::string avant = Etat(bureau);
  const std::vector<Trace> traces = bureau.image1.traces;
  Meurt();
  Suit();
  reponse = true;
  ProposeReprise(*suivant, false);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(boites[0].question);
  EXPECT_EQ(boites[0].texte, d.TexteReprise.legende);
  EXPECT_EQ(Etat(*suivant), avant);
  EXPECT_EQ(suivant->image1.traces.size(), traces.size());
  EXPECT_EQ(suivant->feuille.Zoom, 150);
  EXPECT_EQ(suivant->donnees.Label32.legende, "Zoom : 150");
  EXPECT_TRUE(suivant->donnees.Command8.visible);
}

TEST_F(RepriseSeance, ASheetOfThePanelAloneComesBackWithItsResults) {
  DemarreSansCarte();
  Tient();
  TapeVisee();
  Calcule();
  const std::vector<Trace> traces = bureau.image1.traces;
  const std::string intercept = d.Affichage_Intercept.legende;
  Tape(d.Text25, "39");
  Meurt();
  Suit();
  reponse = true;
  ProposeReprise(*suivant, false);
  EXPECT_EQ(suivant->image1.traces, traces);
  EXPECT_EQ(suivant->image1.etiquettes, bureau.image1.etiquettes);
  EXPECT_EQ(suivant->donnees.Affichage_Intercept.legende, intercept);
  EXPECT_EQ(suivant->donnees.Text25.texte, "39");
  JugeChamps(*suivant);
  EXPECT_NE(suivant->donnees.Affichage_Intercept.alerte, "");
}

TEST_F(RepriseSeance, NoLeavesAFreshPanelAndNothingToAskAgain) {
  DemarreSansCarte();
  Tient();
  Tape(d.Text13, "34");
  Meurt();
  Suit();
  const std::string frais = Etat(*suivant);
  reponse = false;
  ProposeReprise(*suivant, false);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(Etat(*suivant), frais);
  ProposeReprise(*suivant, false);
  EXPECT_EQ(boites.size(), 1U);
  GardeSession(*suivant);
  suivant->reprise.reset(); // it dies too, untouched
  suivant->valeurs.reset();
  Suit();
  ProposeReprise(*suivant, false);
  EXPECT_TRUE(boites.empty());
}

TEST_F(RepriseSeance, ADeathBeforeTheAnswerLeavesTheSessionForAnotherStart) {
  DemarreSansCarte();
  Tient();
  Tape(d.Text13, "34");
  Meurt();
  Suit();
  GardeSession(*suivant);
  suivant->reprise.reset();
  suivant->valeurs.reset();
  Suit();
  reponse = true;
  ProposeReprise(*suivant, false);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(suivant->donnees.Text13.texte, "34");
}

TEST_F(RepriseSeance, AnUntouchedSessionIsNoneToTakeUp) {
  DemarreSansCarte();
  Tient();
  Meurt();
  Suit();
  ProposeReprise(*suivant, false);
  EXPECT_TRUE(boites.empty());
}

TEST_F(RepriseSeance, AProgramBesideALivingOneAsksNothing) {
  DemarreSansCarte();
  Tient();
  Tape(d.Text13, "34");
  GardeSession(bureau);
  bureau.reprise->Attend();
  Suit();
  reponse = true;
  ProposeReprise(*suivant, false);
  EXPECT_TRUE(boites.empty());
  EXPECT_NE(suivant->donnees.Text13.texte, "34");
  EXPECT_TRUE(std::filesystem::exists(bureau.dossiers.utilisateur / kFichierReprise));
}

TEST_F(RepriseSeance, AfterAnOrderlyEndNothingIsAsked) {
  DemarreSansCarte();
  Tient();
  Tape(d.Text13, "34");
  GardeSession(bureau);
  reponse = true;
  Sortie_Click(bureau, -1);
  Meurt();
  Suit();
  ProposeReprise(*suivant, false);
  EXPECT_TRUE(boites.empty());
}

TEST_F(RepriseSeance, AFailedStarSightIsStartedAgainWithItsPanel) {
  DemarreSansCarte();
  Tient();
  TapeVisee();
  Calcule();
  ClicOption(bureau, d.Option7[3]);
  ClicCase(bureau, d.Check3); // from the whole list
  ChoisitLigne(bureau, d.Combo6, 33);
  Tape(d.Text10, "");
  reponse = true; // "Recommencer"
  EXPECT_EQ(NumeroErreur([&] { Calcule(); }), kSansValeur);
  const std::string avant = Etat(bureau);
  Secours(bureau, Erreur(kSansValeur));
  EXPECT_EQ(boites.back().autre, d.TexteRecommencer.legende);
  EXPECT_TRUE(bureau.recommence);
  bureau.reprise.reset();
  bureau.valeurs.reset();
  Suit();
  ProposeReprise(*suivant, true);
  EXPECT_TRUE(boites.empty());
  EXPECT_EQ(Etat(*suivant), avant);
  EXPECT_EQ(suivant->donnees.Text10.texte, "");
}

TEST_F(RepriseSeance, OkAtTheReportEndsAsEver) {
  DemarreSansCarte();
  Tient();
  reponse = false;
  Secours(bureau, Erreur(kSansValeur));
  EXPECT_FALSE(bureau.recommence);
}

TEST_F(RepriseSeance, WithoutARecoveryFileThereIsNoStartingAgain) {
  DemarreSansCarte();
  reponse = true;
  Secours(bureau, Erreur(kSansValeur));
  EXPECT_EQ(boites.back().autre, "");
  EXPECT_FALSE(bureau.recommence);
}

TEST_F(RepriseSeance, ObjectsThatNoFileHasComeBackToTheirEditor) {
  DemarreSansCarte();
  Tient();
  AjouteObjet("Roche noire");
  const Utilisateur &u = bureau.utilisateur;
  const std::vector<std::string> liste = u.List1.liste;
  Meurt();
  Suit();
  reponse = true;
  ProposeReprise(*suivant, false);
  EXPECT_TRUE(suivant->utilisateur.cadre.visible);
  EXPECT_EQ(suivant->utilisateur.List1.liste, liste);
  EXPECT_NE(suivant->utilisateur.Modifie, 0);
}

TEST_F(RepriseSeance, ASessionOfAnotherHandIsPassedOverWhereItMakesNoSense) {
  DemarreSansCarte();
  Session session = PriseSession(bureau);
  session.controles = {{"Rien", 3, "1"}, {"Combo6", -1, "999 Nulle"}, {"HScroll1", -1, "-7"}, {"Check3", -1, "x"}};
  ReprendSession(bureau, session);
  EXPECT_LT(d.Combo6.rang, kNombreEtoiles);
  EXPECT_EQ(d.HScroll1.valeur, d.HScroll1.minimum);
  EXPECT_EQ(d.Check3.valeur, 0);
}

} // namespace
} // namespace velmaris::essais

#include "shell/droites/Retour.hpp"

#include "shell/ecran/Statut.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/ChampsJuges.hpp"
#include "tests/shell/droites/OutilsDroites.hpp"
#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <algorithm>

/// What the user's gestures have changed is put back, and nothing else.
namespace velmaris::essais {
namespace {

constexpr int kF5 = kToucheF1 + 4;

class Retour : public QuatreDroites {
protected:
  void Annule() { ClicControle(bureau, d.PU_Annule); }
  void Retablit() { ClicControle(bureau, d.PU_Retablit); }

  std::string Panneau() const { return EcritLoP(LitPanneau(d)); }
  std::string Resultats() const {
    return d.Affichage_Intercept.legende + "|" + d.Affichage_Azimuth.legende + "|" + d.Label70[3].legende;
  }
  std::size_t Journal() const {
    std::ifstream fichier(dossier.chemin() / "utilisateur" / "journal.csv");
    return static_cast<std::size_t>(
        std::count(std::istreambuf_iterator<char>(fichier), std::istreambuf_iterator<char>(), '\n'));
  }
};

TEST_F(Retour, AnEmptyLineThatHasEmptiedThePanelGivesItBack) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const std::string panneau = Panneau();
  const std::string resultats = Resultats();
  const std::vector<Trace> feuille = bureau.image1.traces;
  Donnees_KeyDown(bureau, kF5 + 2);
  ASSERT_EQ(d.Text13.texte, "");
  ASSERT_EQ(boites.size(), 1U); // told once
  Annule();
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_EQ(Resultats(), resultats);
  EXPECT_EQ(bureau.image1.traces, feuille);
  EXPECT_EQ(d.Label1.legende, "Sunday :"); // as pouring has it
  EXPECT_EQ(boites.size(), 1U);
  Retablit();
  EXPECT_EQ(d.Text13.texte, "");
  Annule();
  EXPECT_EQ(Panneau(), panneau);
}

TEST_F(Retour, NothingIsEnteredInTheJournalAndTheResultsStayGood) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const std::size_t lignes = Journal();
  Donnees_KeyDown(bureau, kF5);
  Annule();
  EXPECT_EQ(Journal(), lignes);
  JugeChamps(bureau);
  EXPECT_EQ(d.Affichage_Intercept.alerte, "");
}

TEST_F(Retour, TopGivesTheTimeBackAndLeavesWhatWasTypedAfterIt) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  temps.heure = 17;
  Donnees_KeyDown(bureau, kToucheF1 + 2);
  ASSERT_EQ(d.Text3.texte, "17");
  Tape(d.Text13, "22");
  Annule();
  EXPECT_EQ(d.Text3.texte, "09");
  EXPECT_EQ(d.Text4.texte, "00");
  EXPECT_EQ(d.Text13.texte, "22");
  Retablit();
  EXPECT_EQ(d.Text3.texte, "17");
  EXPECT_EQ(d.Text13.texte, "22");
}

TEST_F(Retour, WhatWasTypedOverAGestureComesBackWithRedo) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  temps.heure = 17;
  ClicControle(bureau, d.Command1);
  Tape(d.Text3, "18");
  Annule();
  EXPECT_EQ(d.Text3.texte, "09");
  Retablit();
  EXPECT_EQ(d.Text3.texte, "18");
}

TEST_F(Retour, AnErasedLineComesBackWholeInOneTransaction) {
  TroisDroites();
  const std::vector<std::string> avant = Magasin();
  const std::string legende = d.LHeure[1].legende;
  const std::string bulle = d.Droite[1].infobulle;
  reponse = true;
  Presse(ModeDroite::Efface, 1);
  ASSERT_NE(Magasin(), avant);
  ASSERT_EQ(d.LHeure[1].legende, "");
  NoteLesEcritures();
  const std::string version = Demande("PRAGMA data_version").front();
  Annule();
  const std::vector<std::string> apres = Demande("SELECT cle, valeur FROM valeurs WHERE cle LIKE '%)' ORDER BY cle");
  std::vector<std::string> voulues;
  std::copy_if(avant.begin(), avant.end(), std::back_inserter(voulues),
               [](const std::string &s) { return s.find(")=") != std::string::npos; });
  EXPECT_EQ(apres, voulues);
  EXPECT_EQ(d.LHeure[1].legende, legende);
  EXPECT_EQ(d.Droite[1].infobulle, bulle);
  for (const std::string &ecriture : Ecritures()) {
    EXPECT_NE(ecriture.find("(1)"), std::string::npos) << ecriture; // of the one line
  }
  Montre(1);
  EXPECT_EQ(d.Text3.texte, kApresMidi.heure);
}

TEST_F(Retour, ALineStoredOverAnotherGivesTheOtherBack) {
  TroisDroites();
  Stocke(0, kMidi);
  ASSERT_EQ(Reglage("T3(0)"), "12");
  Annule();
  EXPECT_EQ(Reglage("T3(0)"), kMatin.heure);
  EXPECT_EQ(d.LHeure[0].legende, "09:00:10");
  EXPECT_EQ(d.Text3.texte, "12"); // the panel is the user's
  Retablit();
  EXPECT_EQ(Reglage("T3(0)"), "12");
}

TEST_F(Retour, NoModeThatWritesComesBackWithWhatItWrote) {
  TroisDroites();
  Stocke(0, kMidi);
  ASSERT_TRUE(d.Option1[2].choisi);
  Annule();
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_FALSE(d.Option1[0].choisi);
  reponse = true;
  Presse(ModeDroite::Efface, 1);
  Annule();
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_FALSE(d.Option1[3].choisi);
  ClicOption(bureau, d.Option1[0]); // chosen since, by hand
  Annule();
  EXPECT_TRUE(d.Option1[0].choisi);
}

TEST_F(Retour, ALineThatHadNeverBeenStoredIsEmptyAgain) {
  DemarreSansCarte();
  Stocke(3, kMidi);
  Annule();
  EXPECT_EQ(Reglage("T3(3)", ""), "");
  EXPECT_EQ(d.LHeure[3].legende, "");
  EXPECT_EQ(d.Ldate[3].legende, "");
  EXPECT_EQ(d.Droite[3].infobulle, "(F8)");
}

TEST_F(Retour, MemoireGivesTheFourLinesBackAtOnce) {
  TroisDroites();
  reponse = true;
  d.Command8.visible = true;
  ClicControle(bureau, d.Command8);
  ASSERT_EQ(Reglage("T3(0)") + Reglage("T3(1)") + Reglage("T3(2)"), "");
  Annule();
  EXPECT_EQ(Reglage("T3(0)") + Reglage("T3(1)") + Reglage("T3(2)"), "091512");
  EXPECT_EQ(boites.size(), 1U); // the question of the erasure
}

TEST_F(Retour, EcranGivesTheSheetBackWithItsPictureItsLinesAndItsTransports) {
  TroisDroites();
  Montre(0);
  Montre(1);
  Transporte(0, "2");
  const std::vector<Trace> traces = bureau.image1.traces;
  const std::vector<Etiquette> noms = bureau.image1.etiquettes;
  ASSERT_FALSE(noms.empty());
  const Origine origine = bureau.feuille.OrigineFeuille;
  ClicControle(bureau, d.Command6);
  ASSERT_TRUE(bureau.image1.traces.empty());
  Annule();
  EXPECT_EQ(bureau.image1.traces, traces);
  EXPECT_EQ(bureau.image1.etiquettes, noms);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, origine);
  EXPECT_TRUE(Marque(0, kPremiereDroite));
  EXPECT_TRUE(Marque(1, kDroiteAjoutee));
  EXPECT_TRUE(Marque(2, kHorsFeuille));
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "0");
  EXPECT_EQ(bureau.transports.CibleTransport, "2");
  EXPECT_EQ(d.LabLat.legende, bureau.feuille.LabLat);
  EXPECT_NE(d.LabLat.legende, "");
  EXPECT_TRUE(bureau.impression.Frame4[1].visible);
}

TEST_F(Retour, ASheetComesBackByTheZoomOfNow) {
  TroisDroites();
  Montre(0);
  Montre(1);
  ClicControle(bureau, d.Command6);
  PoseValeur(bureau, d.HScroll1, 1000);
  Annule();
  EXPECT_EQ(bureau.feuille.Zoom, 100);
  EXPECT_TRUE(Marque(0, kPremiereDroite));
  EXPECT_EQ(Traits(kTraitAjoute).size(), 1U);
  EXPECT_EQ(d.Text3.texte, kApresMidi.heure);
}

TEST_F(Retour, AStarClickedInTheSkyGivesTheSunBack) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  const std::string panneau = Panneau();
  ClicControle(bureau, d.Command13);
  Controle &planete = bureau.ciel.LaP[1];
  planete.visible = true;
  planete.legende = "Mars";
  ClicControle(bureau, planete);
  ASSERT_TRUE(d.Option7[2].choisi);
  ASSERT_EQ(d.Combo7.texte, "Mars");
  Annule();
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_TRUE(d.Option7[0].choisi);
  EXPECT_TRUE(d.ImAstre[0].visible);
  EXPECT_FALSE(d.Combo7.visible);
  EXPECT_TRUE(d.Option6[0].actif);
  Retablit();
  EXPECT_EQ(d.Combo7.texte, "Mars");
  EXPECT_FALSE(d.Option6[0].actif);
}

TEST_F(Retour, AChosenStarComesBackWithItsList) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicOption(bureau, d.Option7[3]);
  ClicCase(bureau, d.Check3);
  ChoisitLigne(bureau, d.Combo6, 40);
  const std::string panneau = Panneau();
  Montre(2);
  ASSERT_TRUE(d.Option7[0].choisi);
  Annule();
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_EQ(d.Combo6.rang, 40);
  EXPECT_EQ(d.Check3.valeur, 0);
  EXPECT_TRUE(d.Combo6.visible);
  EXPECT_FALSE(d.Combo8.visible);
}

TEST_F(Retour, TheEstimatedPositionThatWasTakenComesBack) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  Intervalle(9, 0, 12, 0);
  Route("270", "8");
  const std::string latitude = d.LabLatEst.legende;
  ASSERT_NE(latitude, "");
  ClicControle(bureau, d.LabLatEst);
  ASSERT_EQ(d.LabLatEst.legende, "");
  ASSERT_NE(d.Text7.texte, kMatin.lonM);
  Annule();
  EXPECT_EQ(d.Text7.texte, kMatin.lonM);
  EXPECT_EQ(d.LabLatEst.legende, latitude);
  EXPECT_TRUE(d.Option1[4].actif);
}

TEST_F(Retour, AHundredGesturesAreKeptAndTheOldestGoes) {
  DemarreSansCarte();
  for (int i = 0; i < 110; ++i) {
    temps.minute = static_cast<std::uint16_t>(i % 60);
    temps.heure = static_cast<std::uint16_t>(i / 60);
    ClicControle(bureau, d.Command1);
  }
  EXPECT_EQ(bureau.annulations.faits.size(), kPasGardes);
  for (std::size_t i = 0; i < kPasGardes; ++i) {
    Annule();
  }
  EXPECT_EQ(d.Text4.texte, "09"); // the tenth of them
  Annule();
  AccordeStatut(bureau);
  EXPECT_EQ(bureau.etat.Dit.legende, bureau.etat.TexteRienAnnuler.legende);
  EXPECT_EQ(d.Text4.texte, "09");
}

TEST_F(Retour, ANewGestureLeavesNothingToRedo) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicControle(bureau, d.Command1);
  Annule();
  temps.minute = 44;
  ClicControle(bureau, d.Command1);
  Retablit();
  AccordeStatut(bureau);
  EXPECT_EQ(bureau.etat.Dit.legende, bureau.etat.TexteRienRetablir.legende);
}

TEST_F(Retour, AGestureThatChangesNothingIsNone) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicControle(bureau, d.Command1);
  const std::size_t pas = bureau.annulations.faits.size();
  ClicControle(bureau, d.Command1); // the clock stands
  EXPECT_EQ(bureau.annulations.faits.size(), pas);
  reponse = false;
  Presse(ModeDroite::Efface, 0);
  EXPECT_EQ(bureau.annulations.faits.size(), pas);
}

TEST_F(Retour, TheStatusLineTellsWhatWasUndone) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicControle(bureau, d.Command1);
  Annule();
  AccordeStatut(bureau);
  EXPECT_EQ(bureau.etat.Dit.legende, "Annulé : Top");
  Presse(ModeDroite::Enregistre, 1);
  Annule();
  AccordeStatut(bureau);
  EXPECT_EQ(bureau.etat.Dit.legende, "Annulé : Enregistrer, Droite 2 (F6)");
  Retablit();
  AccordeStatut(bureau);
  EXPECT_EQ(bureau.etat.Dit.legende, "Rétabli : Enregistrer, Droite 2 (F6)");
}

TEST_F(Retour, AnOptionChosenSinceGivesWayAlone) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicOption(bureau, d.Option7[2]); // shot at its centre
  ChoisitLigne(bureau, d.Combo7, 0);
  Stocke(0, kMatin);
  Stocke(1, kMidi);
  ClicOption(bureau, d.Option7[0]);
  ClicOption(bureau, d.Option6[0]);
  Montre(0);
  ASSERT_TRUE(d.Option6[2].choisi);
  ClicOption(bureau, d.Option7[0]); // back to the lower limb by hand
  Annule();
  EXPECT_TRUE(d.Option6[0].choisi);
  EXPECT_EQ(std::count_if(d.Option6.begin(), d.Option6.end(), [](const Controle &o) { return o.choisi; }), 1);
}

TEST_F(Retour, AGestureThatFailsIsKeptToo) {
  DemarreSansCarte();
  TapeSoleil(kMatin);
  ClicOption(bureau, d.Option7[2]);
  ChoisitLigne(bureau, d.Combo7, 0);
  Tape(d.Text10, "");
  Presse(ModeDroite::Enregistre, 0);
  ClicOption(bureau, d.Option7[0]);
  Tape(d.Text10, "2.5");
  const std::string panneau = Panneau();
  Donnees_KeyDown(bureau, kF5); // passes over the failure of the planet's sight
  ASSERT_TRUE(d.Option7[2].choisi);
  Annule();
  EXPECT_EQ(Panneau(), panneau);
}

class RetourFichier : public AvecFichiers {};

TEST_F(RetourFichier, AnOpenedSightGivesThePanelBack) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const std::string panneau = Panneau();
  const std::string intercept = d.Affichage_Intercept.legende;
  OuvreOctets(Joint(LignesSoleil()));
  ASSERT_EQ(d.Text13.texte, "33");
  ClicControle(bureau, d.PU_Annule);
  EXPECT_EQ(Panneau(), panneau);
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
  EXPECT_TRUE(d.Option1[2].choisi);
}

} // namespace
} // namespace velmaris::essais

#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>

namespace velmaris::essais {
namespace {

constexpr int kF5 = 116;

class Boutons : public QuatreDroites {
protected:
  void SetUp() override { TroisDroites(); }

  /// Line 1 gets the other sides.
  void SudEst() {
    EcritReglage(bureau, "Hem(1)", "Sud");
    EcritReglage(bureau, "Lon(1)", "Est");
  }

  /// What one end of a track shows: degrees and minutes of both, then its sides.
  static std::string Bout(const std::array<const Controle *, 4> &champs, const Controle &nord, const Controle &sud,
                          const Controle &est, const Controle &ouest) {
    std::string texte;
    for (const Controle *champ : champs) {
      texte += champ->texte + " ";
    }
    EXPECT_NE(nord.choisi, sud.choisi);
    EXPECT_NE(est.choisi, ouest.choisi);
    return texte + (nord.choisi ? "N" : "S") + (est.choisi ? "E" : "W");
  }
  std::string Depart() const {
    return Bout({&d.Text14, &d.Text16, &d.Text17, &d.Text18}, d.OptN[2], d.OptN[3], d.OptE[2], d.OptE[3]);
  }
  std::string Arrivee() const {
    return Bout({&d.Text20, &d.Text19, &d.Text22, &d.Text21}, d.OptN[5], d.OptN[4], d.OptE[5], d.OptE[4]);
  }
};

TEST_F(Boutons, TheFourKeysPressTheFourButtonsInTheSelectedMode) {
  for (int i = 0; i < 4; ++i) {
    TapeSoleil(kMatin);
    Tape(d.Text5, std::to_string(50 + i));
    ClicOption(bureau, d.Option1[0]);
    EXPECT_TRUE(Donnees_KeyDown(bureau, kF5 + i));
    EXPECT_EQ(Reglage("T5(" + std::to_string(i) + ")"), std::to_string(50 + i));
  }
  EXPECT_TRUE(Donnees_KeyDown(bureau, kF5 + 3));
  EXPECT_TRUE(Marque(3, kPremiereDroite)) << "the mode is showing after storing";
  EXPECT_TRUE(Donnees_KeyDown(bureau, kF5));
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
}

TEST_F(Boutons, TheKeysWorkWhileTheLinesModuleIsPutAway) {
  EXPECT_FALSE(d.Frame10.visible);
  Donnees_KeyDown(bureau, kF5 + 1);
  EXPECT_TRUE(Marque(1, kPremiereDroite));
}

TEST_F(Boutons, TheListOfTargetsIsThereForATransportToALineAlone) {
  EXPECT_FALSE(d.Combo5.actif);
  Intervalle(9, 0, 10, 0);
  Route("090", "6");
  for (const int mode : {1, 0, 1, 2, 1, 3, 1, 4, 1, 5, 1, 6}) {
    ClicOption(bureau, d.Option1[static_cast<std::size_t>(mode)]);
    EXPECT_EQ(d.Combo5.actif, mode == 1) << mode;
  }
}

TEST_F(Boutons, TheListOfTargetsHoldsTheFourNumbers) {
  EXPECT_EQ(d.Combo5.liste, (std::vector<std::string>{"1", "2", "3", "4"}));
}

TEST_F(Boutons, OneModeAtATimeIsSelected) {
  for (std::size_t mode = 0; mode < 7; ++mode) {
    PoseMode(bureau, static_cast<ModeDroite>(mode));
    EXPECT_EQ(std::count_if(d.Option1.begin(), d.Option1.end(), [](const Controle &o) { return o.choisi; }), 1);
    EXPECT_TRUE(d.Option1[mode].choisi);
  }
}

TEST_F(Boutons, TheDeadReckoningModeCannotBeChosenBeforeAPointWasWorkedOut) {
  EXPECT_FALSE(d.Option1[4].actif);
  ClicOption(bureau, d.Option1[4]);
  EXPECT_FALSE(d.Option1[4].choisi);
  Intervalle(9, 0, 10, 0);
  Tape(d.Text2, "6");
  EXPECT_FALSE(d.Option1[4].actif) << "no course, no point";
  Route("090", "7");
  EXPECT_TRUE(d.Option1[4].actif);
  ClicOption(bureau, d.Option1[4]);
  EXPECT_TRUE(d.Option1[4].choisi);
}

TEST_F(Boutons, WithTheTrackModuleOpenALineFillsTheDepartureAndThenTheArrival) {
  SudEst();
  ClicControle(bureau, d.Command9);
  ASSERT_TRUE(d.Frame2.visible);
  Presse(ModeDroite::Affiche, 1);
  EXPECT_EQ(Depart(), "47 20 05 30 SE");
  EXPECT_TRUE(d.Option3.choisi);
  EXPECT_FALSE(d.Option2.choisi);
  Presse(ModeDroite::Affiche, 0);
  EXPECT_EQ(Arrivee(), "47 30 05 10 NW");
  EXPECT_TRUE(d.Option3.choisi) << "the selection stays with the arrival";
  Presse(ModeDroite::Affiche, 1);
  EXPECT_EQ(Arrivee(), "47 20 05 30 SE");
  EXPECT_EQ(Depart(), "47 20 05 30 SE");
  ClicOption(bureau, d.Option2);
  Presse(ModeDroite::Affiche, 2);
  EXPECT_EQ(Depart(), "47 45 05 00 NW");
}

TEST_F(Boutons, WithTheTrackModuleOpenALineNeverStoredEmptiesTheEnd) {
  ClicControle(bureau, d.Command9);
  Presse(ModeDroite::Affiche, 0);
  ClicOption(bureau, d.Option2);
  Presse(ModeDroite::Affiche, 3);
  EXPECT_EQ(Depart(), "    SW");
  EXPECT_TRUE(boites.empty());
}

TEST_F(Boutons, WithTheTrackModuleOpenNoModeStoresErasesOrDraws) {
  Montre(0);
  Intervalle(9, 0, 10, 0);
  Route("090", "6");
  PoseTexte(bureau, d.Combo5, "1");
  ClicControle(bureau, d.Command9);
  TapeSoleil(kApresMidi);
  const auto magasin = Magasin();
  const std::size_t traces = bureau.image1.traces.size();
  const auto effacements = bureau.image1.effacements;
  reponse = true;
  for (const int mode : {0, 1, 2, 3, 4, 5, 6}) {
    Presse(static_cast<ModeDroite>(mode), 1);
    EXPECT_TRUE(d.Option1[static_cast<std::size_t>(mode)].choisi) << mode;
    EXPECT_EQ(Magasin(), magasin) << mode;
    EXPECT_EQ(bureau.image1.traces.size(), traces) << mode;
    EXPECT_EQ(bureau.image1.effacements, effacements) << mode;
    EXPECT_TRUE(Marque(0, kPremiereDroite)) << mode;
    EXPECT_TRUE(Marque(1, kHorsFeuille)) << mode;
  }
  EXPECT_TRUE(boites.empty());
  EXPECT_EQ(bureau.feuille.TransportEnCours, 0);
  EXPECT_EQ(d.Text3.texte, "15") << "the panel is not loaded either";
}

TEST_F(Boutons, MemoireAsksOnceWithNoAsTheAnswerToReturnAndNoChangesNothing) {
  ClicControle(bureau, d.Command23);
  const auto magasin = Magasin();
  ClicControle(bureau, d.Command8);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[10]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].titre, "Attention");
  EXPECT_TRUE(boites[0].question);
  EXPECT_TRUE(boites[0].nonParDefaut);
  EXPECT_EQ(Magasin(), magasin);
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_EQ(d.LHeure[0].legende, "09:00:10");
}

TEST_F(Boutons, MemoireErasesTheFourLinesWithoutAskingAgainAndSelectsStoring) {
  ClicControle(bureau, d.Command23);
  Montre(0);
  boites.clear();
  reponse = true;
  ClicControle(bureau, d.Command8);
  EXPECT_EQ(boites.size(), 1U);
  for (int ligne = 0; ligne < 4; ++ligne) {
    for (const CleValeur &c : ClesEffacees(ligne)) {
      EXPECT_EQ(Reglage(c.cle), c.valeur) << c.cle;
    }
    const auto i = static_cast<std::size_t>(ligne);
    EXPECT_EQ(d.LHeure[i].legende + d.Ldate[i].legende, "");
    EXPECT_EQ(d.Droite[i].infobulle, "(F" + std::to_string(ligne + 5) + ")");
    EXPECT_TRUE(Marque(i, kHorsFeuille));
  }
  EXPECT_TRUE(d.Option1[0].choisi);
  EXPECT_EQ(Traits(kTraitPremiere).size(), 1U) << "the sheet stays as it is drawn";
}

TEST_F(Boutons, AfterMemoireALinesOwnErasureAsksAgain) {
  ClicControle(bureau, d.Command23);
  reponse = true;
  ClicControle(bureau, d.Command8);
  boites.clear();
  Presse(ModeDroite::Efface, 0);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[13]);
}

TEST_F(Boutons, MemoireIsThereWhileTheLinesModuleShows) {
  EXPECT_FALSE(d.Command8.visible);
  reponse = true;
  ClicControle(bureau, d.Command8);
  EXPECT_EQ(d.LHeure[0].legende, "09:00:10") << "a hidden button does nothing";
  ClicControle(bureau, d.Command23);
  EXPECT_TRUE(d.Command8.visible);
}

} // namespace
} // namespace velmaris::essais

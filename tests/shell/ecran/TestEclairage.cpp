#include "shell/ecran/Eclairage.hpp"

#include "tests/shell/bureau/OutilsBureau.hpp"

namespace velmaris::essais {
namespace {

class Vue : public Programme {
protected:
  /// The entries of the menu that are marked, and the setting.
  std::string Etat() {
    return std::to_string(d.PU_Crepuscule.valeur) + std::to_string(d.PU_Nuit.valeur) + " " + Reglage("Nuit");
  }
};

TEST_F(Vue, AFirstStartIsByDayAndNothingIsStored) {
  Demarre();
  EXPECT_EQ(bureau.eclairage, Eclairage::Jour);
  EXPECT_EQ(Etat(), "00 absent");
}

TEST_F(Vue, ADarkDesktopMakesTheFirstStartDusk) {
  bureau.sombreAilleurs = true;
  Demarre();
  EXPECT_EQ(bureau.eclairage, Eclairage::Crepuscule);
  EXPECT_EQ(Etat(), "10 absent");
}

TEST_F(Vue, WhatTheUserHasChosenGoesBeforeTheDesktop) {
  Demarre();
  ClicControle(bureau, d.PU_Nuit);
  ClicControle(bureau, d.PU_Nuit);
  Bureau suivant;
  Branche(suivant);
  suivant.sombreAilleurs = true;
  Donnees_Charge(suivant, {});
  EXPECT_EQ(suivant.eclairage, Eclairage::Jour);
}

TEST_F(Vue, WhileNothingIsChosenTheViewFollowsTheDesktop) {
  Demarre();
  SuitBureauSombre(bureau, true);
  EXPECT_EQ(bureau.eclairage, Eclairage::Crepuscule);
  SuitBureauSombre(bureau, false);
  EXPECT_EQ(bureau.eclairage, Eclairage::Jour);
  EXPECT_EQ(Etat(), "00 absent");
  ClicControle(bureau, d.PU_Nuit);
  SuitBureauSombre(bureau, true);
  EXPECT_EQ(bureau.eclairage, Eclairage::Nuit);
}

TEST_F(Vue, TheKeyGoesRoundThroughDayDuskAndNight) {
  Demarre();
  TourneEclairage(bureau);
  EXPECT_EQ(bureau.eclairage, Eclairage::Crepuscule);
  EXPECT_EQ(Etat(), "10 2");
  TourneEclairage(bureau);
  EXPECT_EQ(bureau.eclairage, Eclairage::Nuit);
  EXPECT_EQ(Etat(), "01 1");
  TourneEclairage(bureau);
  EXPECT_EQ(bureau.eclairage, Eclairage::Jour);
  EXPECT_EQ(Etat(), "00 0");
}

TEST_F(Vue, AnEntryOfTheMenuChoosesItsViewAndTheDayAgain) {
  Demarre();
  ClicControle(bureau, d.PU_Nuit);
  EXPECT_EQ(bureau.eclairage, Eclairage::Nuit);
  EXPECT_EQ(Etat(), "01 1");
  ClicControle(bureau, d.PU_Crepuscule);
  EXPECT_EQ(bureau.eclairage, Eclairage::Crepuscule);
  EXPECT_EQ(Etat(), "10 2");
  ClicControle(bureau, d.PU_Crepuscule);
  EXPECT_EQ(bureau.eclairage, Eclairage::Jour);
  EXPECT_EQ(Etat(), "00 0");
}

TEST_F(Vue, ItComesBackAtTheNextStart) {
  Demarre();
  for (const Eclairage vue : {Eclairage::Crepuscule, Eclairage::Nuit}) {
    TourneEclairage(bureau);
    Bureau suivant;
    Branche(suivant);
    Donnees_Charge(suivant, {});
    EXPECT_EQ(suivant.eclairage, vue);
  }
}

TEST_F(Vue, NoColourOfTheRecordChanges) {
  Demarre();
  TapeVisee();
  Calcule();
  const auto couleurs = [&] {
    std::vector<Couleur> toutes;
    for (const Controle *c : ControlesDe(bureau, kFenetreDonnees)) {
      toutes.push_back(c->couleur);
    }
    return toutes;
  };
  const std::vector<Couleur> avant = couleurs();
  const auto traces = bureau.image1.traces;
  for (int fois = 0; fois < 3; ++fois) {
    TourneEclairage(bureau);
    EXPECT_EQ(couleurs(), avant);
    EXPECT_EQ(bureau.image1.traces, traces);
    EXPECT_EQ(bureau.image1.fond, kBlanc);
  }
}

} // namespace
} // namespace velmaris::essais

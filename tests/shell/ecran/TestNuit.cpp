#include "tests/shell/bureau/OutilsBureau.hpp"

namespace velmaris::essais {
namespace {

using Nuit = Programme;

TEST_F(Nuit, AFirstStartIsByDay) {
  Demarre();
  EXPECT_FALSE(bureau.nuit);
  EXPECT_EQ(d.PU_Nuit.valeur, 0);
}

TEST_F(Nuit, TheEntryOfTheMenuSwitchesItIsMarkedAndKeptAtOnce) {
  Demarre();
  ClicControle(bureau, d.PU_Nuit);
  EXPECT_TRUE(bureau.nuit);
  EXPECT_EQ(d.PU_Nuit.valeur, 1);
  EXPECT_EQ(Reglage("Nuit"), "1");
  ClicControle(bureau, d.PU_Nuit);
  EXPECT_FALSE(bureau.nuit);
  EXPECT_EQ(d.PU_Nuit.valeur, 0);
  EXPECT_EQ(Reglage("Nuit"), "0");
}

TEST_F(Nuit, ItComesBackAtTheNextStart) {
  Demarre();
  ClicControle(bureau, d.PU_Nuit);
  Bureau suivant;
  Branche(suivant);
  Donnees_Charge(suivant, {});
  EXPECT_TRUE(suivant.nuit);
  EXPECT_EQ(suivant.donnees.PU_Nuit.valeur, 1);
}

TEST_F(Nuit, NoColourOfTheRecordChanges) {
  Demarre();
  TapeVisee();
  Calcule();
  std::vector<Couleur> avant;
  for (const Controle *c : ControlesDe(bureau, kFenetreDonnees)) {
    avant.push_back(c->couleur);
  }
  const auto traces = bureau.image1.traces;
  ClicControle(bureau, d.PU_Nuit);
  std::vector<Couleur> apres;
  for (const Controle *c : ControlesDe(bureau, kFenetreDonnees)) {
    apres.push_back(c->couleur);
  }
  EXPECT_EQ(apres, avant);
  EXPECT_EQ(bureau.image1.traces, traces);
  EXPECT_EQ(bureau.image1.fond, kBlanc);
}

} // namespace
} // namespace velmaris::essais

#include "shell/droites/Bouts.hpp"

#include "tests/shell/droites/OutilsDroites.hpp"

namespace velmaris::essais {
namespace {

class Bouts : public QuatreDroites {
protected:
  std::vector<std::string> Noms() const {
    std::vector<std::string> noms;
    for (const Etiquette &e : bureau.image1.etiquettes) {
      noms.push_back(e.texte.texte);
    }
    return noms;
  }
};

using Liste = std::vector<std::string>;

TEST_F(Bouts, ALineEndsWithItsBodyAndItsTime) {
  Demarre();
  TapeSoleil(kMatin);
  Calcule();
  EXPECT_EQ(Noms(), Liste{"Soleil 09:00"});
}

TEST_F(Bouts, ALineThatIsNotTheSightsOwnHasNoName) {
  Demarre();
  TapeSoleil(kMatin);
  Calcule();
  ClicControle(bureau, d.Command6);
  TapeSoleil(kMidi);
  for (Controle *lecture : {&d.Text13, &d.Text12, &d.Text25}) {
    Tape(*lecture, "0");
  }
  Calcule(); // without a reading the line of the sight before is drawn once more
  ASSERT_EQ(Traits(kTraitPremiere).size(), 1U);
  EXPECT_EQ(Noms(), Liste{});
}

TEST_F(Bouts, TheNameStandsAtTheOneEndOfTheLineOrAtTheOther) {
  Demarre();
  TapeSoleil(kMatin);
  Calcule();
  ASSERT_EQ(Noms().size(), 1U);
  const auto traits = Traits(kTraitPremiere);
  ASSERT_EQ(traits.size(), 1U);
  const Etiquette &e = bureau.image1.etiquettes[0];
  EXPECT_EQ(e.texte.position, traits[0].fin);
  EXPECT_EQ(e.autreBout, traits[0].debut);
}

TEST_F(Bouts, EveryLineOfTheSheetHasItsOwnAndARedrawWritesThemOnce) {
  TroisDroites();
  Montre(0);
  Montre(1);
  Montre(2);
  EXPECT_EQ(Noms(), (Liste{"Soleil 09:00", "Soleil 15:00", "Soleil 12:05"}));
  RetraceDroites(bureau);
  EXPECT_EQ(Noms(), (Liste{"Soleil 09:00", "Soleil 15:00", "Soleil 12:05"}));
}

TEST_F(Bouts, ALineDrawnAgainInItsPlaceInAnotherLanguageHasOneName) {
  TroisDroites();
  Montre(0);
  EXPECT_EQ(Noms(), Liste{"Soleil 09:00"});
  TraceNommee(bureau, NomDroite{"Sun", "09", "00"}, [&] {
    const std::vector<Trace> dessin = bureau.image1.traces;
    bureau.image1.traces.insert(bureau.image1.traces.end(), dessin.begin(), dessin.end());
  });
  EXPECT_EQ(Noms(), Liste{"Sun 09:00"});
}

TEST_F(Bouts, ACarriedLineIsNamedAsItWasSighted) {
  TroisDroites();
  Montre(1);
  Transporte(0, "2");
  EXPECT_EQ(Noms(), (Liste{"Soleil 15:00", "Soleil 09:00"}));
}

TEST_F(Bouts, TheyAreNoPartOfTheDrawingItself) {
  TroisDroites();
  Montre(0);
  const auto avec = bureau.image1.traces;
  ClicControle(bureau, d.PU_Bouts);
  RetraceDroites(bureau);
  EXPECT_EQ(bureau.image1.traces, avec);
}

TEST_F(Bouts, AClearedSheetHasNone) {
  TroisDroites();
  Montre(0);
  ClicControle(bureau, d.Command6);
  EXPECT_EQ(Noms(), Liste{});
}

TEST_F(Bouts, TheyAreShownAtFirstAndTheirSwitchIsKept) {
  Demarre();
  EXPECT_TRUE(bureau.image1.etiquetee);
  EXPECT_EQ(d.PU_Bouts.valeur, 1);
  ClicControle(bureau, d.PU_Bouts);
  EXPECT_FALSE(bureau.image1.etiquetee);
  EXPECT_EQ(d.PU_Bouts.valeur, 0);
  EXPECT_EQ(Reglage("Bouts"), "0");
  Bureau suivant;
  Branche(suivant);
  Donnees_Charge(suivant, {});
  EXPECT_FALSE(suivant.image1.etiquetee);
}

} // namespace
} // namespace velmaris::essais

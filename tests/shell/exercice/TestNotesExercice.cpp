#include "OutilsFenetreExercice.hpp"

#include "shell/Demarrage.hpp"

#include <memory>

/// What the window of practice keeps over a kill, and what it has to say of its fields.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class NotesDExercice : public EnExercice {
protected:
  /// The program started anew after a kill.
  std::unique_ptr<Bureau> Relance() {
    auto autre = std::make_unique<Bureau>();
    Branche(*autre);
    Donnees_Charge(*autre, {});
    return autre;
  }
  static std::string MotsDe(const Bureau &b, std::size_t visee) {
    return b.fenetreExercice.Visees.tableau.lecteur->texte(visee, b.fenetreExercice.MotColonne.size() - 1);
  }
};

TEST_F(NotesDExercice, AKillLosesNeitherTheReducedSightsNorTheFixNorItsCorrection) {
  Commence(6);
  Reduit(0);
  Reduit(2);
  TapePoint(EnCours().exercice.estime);
  Corrige();
  const std::string verite = fe.Resultat[0].legende;
  ASSERT_THAT(verite, Not(IsEmpty()));
  const auto autre = Relance();
  ClicControle(*autre, autre->donnees.PU_Exercice);
  AccordeExercice(*autre);
  const FenetreExercice &la = autre->fenetreExercice;
  EXPECT_EQ(la.Text3[0].texte, fe.Text3[0].texte);
  EXPECT_EQ(la.Text3[1].texte, fe.Text3[1].texte);
  EXPECT_EQ(la.Resultat[0].legende, verite);
  EXPECT_EQ(la.Resultat[1].legende, fe.Resultat[1].legende);
  for (std::size_t i = 0; i < EnCours().exercice.visees.size(); ++i) {
    EXPECT_EQ(MotsDe(*autre, i), Mots(i)) << i;
    EXPECT_EQ(autre->exercice.typees[i], bureau.exercice.typees[i]) << i;
  }
}

TEST_F(NotesDExercice, WithoutACorrectionTheTruthStaysHiddenAfterAKill) {
  Commence(3);
  Reduit(1);
  SaisitTexte(bureau, fe.Text3[0], "47 1");
  const auto autre = Relance();
  ClicControle(*autre, autre->donnees.PU_Exercice);
  AccordeExercice(*autre);
  EXPECT_FALSE(autre->exercice.correction);
  EXPECT_EQ(autre->fenetreExercice.Text3[0].texte, "47 1");
  EXPECT_EQ(MotsDe(*autre, 1), fe.TexteTypee.legende);
  EXPECT_EQ(MotsDe(*autre, 0), fe.TexteNonTypee.legende);
}

TEST_F(NotesDExercice, ASightReducedAfterAKillBeforeTheWindowIsOpenedIsNotedWithTheOthers) {
  Commence(3);
  Reduit(0);
  Prend(1);
  const Observation seconde = LitPanneau(d);
  const auto autre = Relance();
  EXPECT_TRUE(NoteViseeExercice(*autre, seconde));
  ClicControle(*autre, autre->donnees.PU_Exercice);
  AccordeExercice(*autre);
  EXPECT_EQ(MotsDe(*autre, 0), fe.TexteTypee.legende);
  EXPECT_EQ(MotsDe(*autre, 1), fe.TexteTypee.legende);
  EXPECT_FALSE(autre->fenetreExercice.Text1.texte.empty());
}

TEST_F(NotesDExercice, AnotherPracticeTakesNoNotesOfTheOneBefore) {
  Commence(3);
  Reduit(0);
  TapePoint(EnCours().exercice.estime);
  Corrige();
  Commence(4);
  const auto autre = Relance();
  ClicControle(*autre, autre->donnees.PU_Exercice);
  EXPECT_FALSE(autre->exercice.typees[0]);
  EXPECT_FALSE(autre->exercice.correction);
  EXPECT_THAT(autre->fenetreExercice.Text3[0].texte, IsEmpty());
}

TEST_F(NotesDExercice, NotesThatAreNoneLeaveThePracticeAsItBegan) {
  Commence(3);
  for (const std::string notes : {"rien", "\n\n\n\n9 9\n", "\n1 2"}) {
    const std::string tete = LitReglage(bureau, "ExerciceNotes");
    EcritReglage(bureau, "ExerciceNotes", tete.substr(0, tete.find('\n')) + notes);
    const auto autre = Relance();
    ClicControle(*autre, autre->donnees.PU_Exercice);
    EXPECT_FALSE(autre->exercice.typees[0]) << notes;
    EcritReglage(bureau, "ExerciceNotes", tete);
  }
}

TEST_F(NotesDExercice, AComplaintIsToldInTheWindowsLanguageAndGoesWithTheWindow) {
  Commence(3);
  SaisitTexte(bureau, fe.Text3[0], "97 N");
  AccordeExercice(bureau);
  ASSERT_THAT(fe.LabAvis.legende, HasSubstr(fe.TexteHors.legende));
  Image10_Click(bureau, 1);
  AccordeExercice(bureau);
  EXPECT_THAT(fe.LabAvis.legende, HasSubstr(fe.TexteHors.legende + fe.Text3[0].infobulle));
  ClicControle(bureau, fe.Ferme);
  EXPECT_THAT(fe.Text3[0].alerte, IsEmpty());
}

} // namespace
} // namespace velmaris::essais

#include "OutilsFenetre.hpp"

#include "shell/exercice/EvenementsExercice.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/widgets/Table.hpp"

#include <QDialog>

/// The window of practice on the screen.
namespace velmaris::essais {
namespace {

class FenetreDExercice : public FenetreOuverte {
protected:
  /// The program with one of the ten begun, corrected.
  void OuvreExercice(const Ecran &ecran, bool anglais, int rang) {
    Ouvre(ecran, anglais);
    Joue([this] { ClicControle(bureau, d.PU_Exercice); });
    Joue([this, rang] { ChoisitLigne(bureau, bureau.fenetreExercice.Combo1, rang); });
    Joue([this] { ClicControle(bureau, bureau.fenetreExercice.Command1[0]); });
    reponse = true;
    Joue([this] { ClicControle(bureau, bureau.fenetreExercice.Prend); });
    Joue([this] { Calcule(); });
    Joue([this] { ClicControle(bureau, bureau.fenetreExercice.Corrige); });
    exercice = fenetre->findChild<QDialog *>("Exercice");
    ASSERT_NE(exercice, nullptr);
    table = exercice->findChild<qt::Table *>("Visees");
    ASSERT_NE(table, nullptr);
    QApplication::processEvents();
  }

  QDialog *exercice = nullptr;
  qt::Table *table = nullptr;
};

TEST_F(FenetreDExercice, ItHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    for (const int rang : {0, 7}) {
      OuvreExercice(kPetitEcran, anglais, rang);
      EXPECT_TRUE(exercice->isVisible());
      RienDeCoupe(*exercice, nullptr);
      EXPECT_EQ(scene.Ecart(), nullptr);
      for (int ligne = 0; ligne < table->model()->rowCount(); ++ligne) {
        for (int colonne = 0; colonne < table->model()->columnCount() - 1; ++colonne) {
          const QString mots = table->model()->index(ligne, colonne).data().toString();
          EXPECT_LT(table->fontMetrics().horizontalAdvance(mots) + 6, table->columnWidth(colonne))
              << mots.toStdString();
        }
      }
      fenetre.reset();
      bureau.fenetreExercice.cadre.visible = false;
    }
  }
}

TEST_F(FenetreDExercice, TheKeyboardIsInTheListAndReturnTakesASightIntoThePanel) {
  OuvreExercice(kPetitEcran, false, 7);
  exercice->activateWindow();
  EXPECT_EQ(exercice->focusWidget(), table);
  Touche(table, Qt::Key_Down);
  Touche(table, Qt::Key_Return);
  const std::string nom = table->model()->index(1, 0).data().toString().toStdString();
  EXPECT_EQ(d.Option7[3].choisi ? d.Combo6.texte : d.Combo7.texte, nom);
  EXPECT_EQ(scene.Ecart(), nullptr);
}

} // namespace
} // namespace velmaris::essais

#include "OutilsFenetre.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/cadre/PortsQt.hpp"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTabBar>
#include <QTimer>

#include <set>
#include <utility>

/// The windows of plan and runs on the screen.
namespace velmaris::essais {
namespace {

class FenetresDesVisees : public FenetreOuverte {
protected:
  QDialog *OuvreFenetre(bool anglais, Controle &entree, const char *nom) {
    Ouvre(kPetitEcran, anglais);
    Joue([&] {
      TapeVisee();
      ClicControle(bureau, entree);
    });
    auto *dialogue = fenetre->findChild<QDialog *>(nom);
    EXPECT_NE(dialogue, nullptr) << nom;
    return dialogue;
  }
  /// Brings each page to the front, and looks whether its words have room.
  void ChaquePage(QDialog &dialogue, Controle &onglets, int pages) {
    for (int page = 0; page < pages; ++page) {
      Joue([&] {
        onglets.rang = page;
        Declenche(bureau, onglets, Evenement::Clic);
      });
      RienDeCoupe(dialogue, nullptr);
      const Controle *ecart = scene.Ecart();
      EXPECT_EQ(ecart, nullptr) << ecart->nom;
    }
  }
  void Referme(CadreFenetre &cadre) {
    fenetre.reset();
    cadre.visible = false;
  }
};

TEST_F(FenetresDesVisees, ThePlanHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Preparation, "Preparation");
    ASSERT_NE(dialogue, nullptr);
    ChaquePage(*dialogue, bureau.preparation.Onglets1, static_cast<int>(kPagesPlan));
    Referme(bureau.preparation.cadre);
  }
}

TEST_F(FenetresDesVisees, TheRunsWindowHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Serie, "Serie");
    ASSERT_NE(dialogue, nullptr);
    ChaquePage(*dialogue, bureau.fenetreSerie.Onglets1, static_cast<int>(kPagesSerie));
    Referme(bureau.fenetreSerie.cadre);
  }
}

TEST_F(FenetresDesVisees, NoTwoFieldsSideBySideHaveOneNameAndEveryPictureHasOne) {
  for (const bool anglais : {false, true}) {
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Serie, "Serie");
    ASSERT_NE(dialogue, nullptr);
    std::set<std::pair<QObject *, QString>> noms;
    for (const Controle *c : ControlesDe(bureau, kFenetreSerie)) {
      const auto *widget = dialogue->findChild<QWidget *>(QString::fromStdString(c->nom) +
                                                          (c->indice < 0 ? "" : QString::number(c->indice)));
      if (widget != nullptr && (c->genre == Genre::Champ || c->genre == Genre::Liste || c->genre == Genre::Surface)) {
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << c->nom;
        EXPECT_TRUE(noms.emplace(widget->parent(), widget->accessibleName()).second)
            << widget->accessibleName().toStdString();
      }
    }
    EXPECT_GT(noms.size(), 25U);
    const auto nom = [&](const char *champ) { return dialogue->findChild<QWidget *>(champ)->accessibleName(); };
    EXPECT_TRUE(nom("Text60").startsWith(anglais ? "Equal" : "Égales (UTC), ")) << nom("Text60").toStdString();
    Referme(bureau.fenetreSerie.cadre);
  }
}

/// Whatever is to be known stands in one line.
TEST_F(FenetresDesVisees, EveryWarningOfTheRunsWindowHasRoomInItsLine) {
  for (const bool anglais : {false, true}) {
    FenetreSerie &f = bureau.fenetreSerie;
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Serie, "Serie");
    ASSERT_NE(dialogue, nullptr);
    const auto montre = [&](int page, const auto &mots, Controle &ligne) {
      Joue([&] {
        f.Onglets1.rang = page;
        Declenche(bureau, f.Onglets1, Evenement::Clic);
      });
      for (const Controle &mot : mots) {
        const bool nommee = mot.legende.ends_with(": ");
        Joue([&] { ligne.legende = mot.legende + (nommee ? "12:05:30" + f.TexteAlarme.legende : ""); });
        RienDeCoupe(*dialogue, nullptr);
      }
    };
    montre(0, f.MotAvis, f.LabSerie[0]);
    montre(1, f.MotAvisMidi, f.LabMidi[0]);
    montre(2, f.MotAvisLune, f.LabLune[0]);
    Referme(f.cadre);
  }
}

/// A key with those that are held down.
void ToucheAvec(QWidget &widget, int touche, Qt::KeyboardModifiers avec) {
  QKeyEvent appui(QEvent::KeyPress, touche, avec);
  QApplication::sendEvent(&widget, &appui);
  QApplication::processEvents();
}

TEST_F(FenetresDesVisees, UndoAndRedoOfTheRunsWindowAreItsListsAndAFieldsTypingComesFirst) {
  QDialog *dialogue = OuvreFenetre(false, d.PU_Serie, "Serie");
  ASSERT_NE(dialogue, nullptr);
  Joue([&] { ClicControle(bureau, bureau.fenetreSerie.Marque); });
  ASSERT_EQ(bureau.serie.lectures.size(), 1U);
  ToucheAvec(*dialogue, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(bureau.serie.lectures.empty());
  ToucheAvec(*dialogue, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(bureau.serie.lectures.size(), 1U);
  ToucheAvec(*dialogue, Qt::Key_Z, Qt::ControlModifier);
  ToucheAvec(*dialogue, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(bureau.serie.lectures.size(), 1U);
  auto *champ = dialogue->findChild<QLineEdit *>("Text41");
  ASSERT_NE(champ, nullptr);
  champ->setFocus();
  champ->selectAll();
  champ->insert("7");
  QApplication::processEvents();
  ToucheAvec(*champ, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(champ->text(), "7");
  EXPECT_EQ(bureau.serie.lectures.size(), 1U) << "the typing was taken back, not the reading";
}

TEST_F(FenetresDesVisees, ARefusedHourKeepsTheKeyboardWithItsTextSelected) {
  QDialog *dialogue = OuvreFenetre(false, d.PU_Serie, "Serie");
  ASSERT_NE(dialogue, nullptr);
  dialogue->activateWindow();
  FenetreSerie &f = bureau.fenetreSerie;
  Joue([&] { SaisitTexte(bureau, f.Text4[0], "9 heures"); });
  Joue([&] { ValideControle(bureau, f.Text4[0]); });
  const auto *champ = qobject_cast<QLineEdit *>(dialogue->focusWidget());
  ASSERT_NE(champ, nullptr);
  EXPECT_EQ(champ->selectedText(), "9 heures");
}

TEST_F(FenetresDesVisees, TheKeyboardComesBackToThePlanAfterTheFilesWindow) {
  qt::Boites vraies(bureau);
  Ouvre(kPetitEcran);
  vraies.Ouvre(scene, *fenetre);
  bureau.ports.travaille = [](const std::function<std::function<void()>()> &travail) { travail()(); };
  Joue([&] { ClicControle(bureau, d.PU_Preparation); });
  auto *plan = fenetre->findChild<QDialog *>("Preparation");
  ASSERT_NE(plan, nullptr);
  plan->activateWindow();
  QApplication::processEvents();
  bool montre = false;
  QTimer::singleShot(0, plan, [&] {
    QWidget *fichiers = QApplication::activeModalWidget();
    montre = fichiers != nullptr;
    if (montre) {
      Touche(fichiers, Qt::Key_Escape);
    }
  });
  Joue([&] { ClicControle(bureau, bureau.preparation.Command2[0]); });
  EXPECT_TRUE(montre);
  EXPECT_EQ(QApplication::activeWindow(), plan);
}

TEST_F(FenetresDesVisees, ControlWithTabOrAPageKeyTurnsTheTabsFromAnyFieldAndTheLastIsFollowedByTheFirst) {
  QDialog *dialogue = OuvreFenetre(false, d.PU_Serie, "Serie");
  ASSERT_NE(dialogue, nullptr);
  const Controle &onglets = bureau.fenetreSerie.Onglets1;
  const auto presse = [&](int touche, Qt::KeyboardModifiers avec) {
    QKeyEvent appui(QEvent::KeyPress, touche, avec);
    QApplication::sendEvent(dialogue->focusWidget(), &appui);
    QApplication::processEvents();
  };
  ASSERT_EQ(onglets.rang, 0);
  presse(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(onglets.rang, 1);
  EXPECT_NE(qobject_cast<QTabBar *>(dialogue->focusWidget()), nullptr);
  presse(Qt::Key_PageDown, Qt::ControlModifier);
  presse(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(onglets.rang, 0);
  presse(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(onglets.rang, static_cast<int>(kPagesSerie) - 1);
  presse(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(onglets.rang, static_cast<int>(kPagesSerie) - 2);
  EXPECT_EQ(scene.Ecart(), nullptr);
}

TEST_F(FenetresDesVisees, AKeyLeadsFromOneComplementToAnotherAndNoneOfThemSavesOrLeaves) {
  QDialog *dialogue = OuvreFenetre(false, d.PU_Preparation, "Preparation");
  ASSERT_NE(dialogue, nullptr);
  const auto presse = [&](int touche) {
    QKeyEvent appui(QEvent::KeyPress, touche, Qt::ControlModifier);
    QApplication::sendEvent(dialogue->focusWidget(), &appui);
    QApplication::processEvents();
  };
  presse(Qt::Key_Q);
  EXPECT_FALSE(bureau.termine);
  presse(Qt::Key_R);
  EXPECT_TRUE(bureau.fenetreSerie.cadre.visible);
  EXPECT_TRUE(bureau.preparation.cadre.visible) << "the plan stays";
}

} // namespace
} // namespace velmaris::essais

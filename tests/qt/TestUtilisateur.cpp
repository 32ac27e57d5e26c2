#include "OutilsFenetre.hpp"

#include "shell/carte/Objets.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QFontMetricsF>
#include <QGroupBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace velmaris::essais {
namespace {

/// The editor of the objects in its window, beside the main one.
class EditeurOuvert : public FenetreOuverte {
protected:
  EditeurOuvert() { LanguesSeules(); }

  void Ouvre(bool anglais = false) {
    FenetreOuverte::Ouvre(kPetitEcran, anglais);
    Joue([this] { ClicControle(bureau, d.Command21); });
    fenetre->activateWindow();
    Trouve<QPushButton>("Command18")->click();
    QApplication::processEvents();
  }

  /// The editor's window, null while there is none on show.
  qt::Dialogue *Editeur() {
    for (auto *dialogue : fenetre->findChildren<qt::Dialogue *>()) {
      if (dialogue->isVisible()) {
        return dialogue;
      }
    }
    return nullptr;
  }

  template <class Widget> Widget *Sien(const char *nom) { return Editeur()->findChild<Widget *>(nom); }

  QTimer *Horloge() { return fenetre->findChild<QTimer *>("Timer1"); }

  /// Types a text into what has the keyboard and goes on to the next.
  void Champ(const QString &texte) {
    for (const QChar c : texte) {
      Touche(Editeur()->focusWidget(), 0, c);
    }
    Touche(Editeur()->focusWidget(), Qt::Key_Tab);
  }

  std::string Ecrit() const { return Contenu(bureau.dossiers.utilisateur / "Utilisateur.txt"); }

  Utilisateur &u = bureau.utilisateur;
};

TEST_F(EditeurOuvert, ConfigOpensItBesideTheMainWindow) {
  Ouvre();
  ASSERT_NE(Editeur(), nullptr);
  EXPECT_FALSE(Editeur()->isModal());
  EXPECT_EQ(Editeur()->windowTitle(), "Objets de l'utilisateur");
  EXPECT_TRUE(Editeur()->isActiveWindow());
  EXPECT_EQ(Editeur()->focusWidget(), Sien<QLineEdit>("Text4"));
}

TEST_F(EditeurOuvert, TheMainWindowIsUsableMeanwhileAndConfigBringsTheEditorBack) {
  Ouvre();
  qt::Dialogue *editeur = Editeur();
  fenetre->activateWindow();
  Joue([this] { TapeVisee(); });
  Touche(Trouve<QWidget>("Command2"), Qt::Key_Return);
  EXPECT_NE(d.Affichage_Intercept.legende, "");
  Touche(Trouve<QWidget>("Text8"), Qt::Key_F9);
  EXPECT_EQ(d.HScroll1.valeur, 4000);
  EXPECT_TRUE(fenetre->isActiveWindow());
  Trouve<QPushButton>("Command18")->click();
  QApplication::processEvents();
  EXPECT_EQ(Editeur(), editeur) << "there is one only";
  EXPECT_TRUE(editeur->isActiveWindow());
}

TEST_F(EditeurOuvert, FunctionKeysBelongToTheMainWindow) {
  Ouvre();
  Touche(Sien<QWidget>("Text4"), Qt::Key_F9);
  Touche(Sien<QWidget>("Text4"), Qt::Key_F2);
  EXPECT_EQ(d.HScroll1.valeur, 2000);
  EXPECT_TRUE(boites.empty());
}

TEST_F(EditeurOuvert, TheClockStandsStillWhileItIsOpenAndRunsAgainAfterwards) {
  FenetreOuverte::Ouvre(kPetitEcran);
  EXPECT_TRUE(Horloge()->isActive());
  EXPECT_EQ(Horloge()->interval(), 1400);
  Joue([this] { Command18_Click(bureau, -1); });
  EXPECT_FALSE(Horloge()->isActive());
  Joue([this] { ClicControle(bureau, u.Command2); });
  EXPECT_TRUE(Horloge()->isActive());
  EXPECT_EQ(Editeur(), nullptr);
}

TEST_F(EditeurOuvert, AnObjectIsEnteredByKeyboardAloneAndEscapeWritesIt) {
  Ouvre();
  Champ("Île de Sein");
  Champ("3");
  Touche(Editeur()->focusWidget(), Qt::Key_Tab); // minutes
  Champ("48");
  Champ("3");
  Touche(Editeur()->focusWidget(), Qt::Key_Right); // south
  Touche(Editeur()->focusWidget(), Qt::Key_Tab);
  Champ("4");
  Champ("51");
  Touche(Editeur()->focusWidget(), Qt::Key_Right); // west
  Touche(Editeur()->focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(Editeur()->focusWidget(), Sien<QPushButton>("Command1"));
  Touche(Editeur()->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Sien<QListWidget>("List1")->count(), 1);
  EXPECT_EQ(Editeur()->focusWidget(), Sien<QLineEdit>("Text4"));
  EXPECT_EQ(Sien<QLineEdit>("Text4")->selectedText(), "Île de Sein") << "the next name replaces it";
  Touche(Editeur()->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(Editeur(), nullptr);
  EXPECT_EQ(Ecrit(), "-48.05 +04.85 3 Île de Sein\n");
  EXPECT_TRUE(fenetre->isActiveWindow());
}

TEST_F(EditeurOuvert, TheArrowsOfTheListShowEachEntryAndAChangeMakesModifierUsable) {
  std::filesystem::create_directories(bureau.dossiers.utilisateur);
  Pose(bureau.dossiers.utilisateur / "Utilisateur.txt", "+48.42 +005.13 4 A\n-43.50 -005.00 2 B\n");
  Ouvre();
  auto *liste = Sien<QListWidget>("List1");
  liste->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(liste->currentRow(), -1);
  Touche(liste, Qt::Key_Down);
  EXPECT_EQ(Sien<QLineEdit>("Text1")->text(), "+48.42");
  Touche(liste, Qt::Key_Down);
  EXPECT_EQ(Sien<QLineEdit>("Text8")->text(), "43");
  EXPECT_TRUE(Sien<QRadioButton>("OptN1")->isChecked());
  EXPECT_TRUE(Sien<QRadioButton>("OptE0")->isChecked());
  EXPECT_FALSE(Sien<QPushButton>("Command3")->isEnabled());
  Touche(Sien<QLineEdit>("Text4"), Qt::Key_X, "x");
  EXPECT_TRUE(Sien<QPushButton>("Command3")->isEnabled());
}

TEST_F(EditeurOuvert, ReturnInAFieldPressesNothing) {
  Ouvre();
  Joue([this] {
    for (Controle *champ : {&u.Text3, &u.Text6, &u.Text7, &u.Text8, &u.Text9}) {
      Tape(*champ, "1");
    }
    ClicControle(bureau, u.Command1);
    ChoisitLigne(bureau, u.List1, 0);
  });
  for (const char *nom : {"Text4", "Text3", "Text8", "Text9", "OptN0", "Option10", "List1", "Text1"}) {
    Sien<QWidget>(nom)->setFocus();
    Touche(Sien<QWidget>(nom), Qt::Key_Return);
    ASSERT_NE(Editeur(), nullptr) << nom;
    EXPECT_EQ(u.List1.liste.size(), 1U) << nom;
    EXPECT_EQ(Ecrit(), "") << nom;
  }
  for (auto *bouton : Editeur()->findChildren<QPushButton *>()) {
    EXPECT_FALSE(bouton->isDefault()) << bouton->text().toStdString();
  }
  Sien<QWidget>("Command4")->setFocus();
  Touche(Sien<QWidget>("Command4"), Qt::Key_Return);
  EXPECT_TRUE(u.List1.liste.empty()) << "it does press the button that has the keyboard";
}

TEST_F(EditeurOuvert, ItsCloseButtonClosesItAndItOpensAgain) {
  Ouvre();
  Editeur()->close();
  QApplication::processEvents();
  EXPECT_EQ(Editeur(), nullptr);
  EXPECT_FALSE(u.cadre.visible);
  Trouve<QPushButton>("Command18")->click();
  QApplication::processEvents();
  ASSERT_NE(Editeur(), nullptr);
  EXPECT_EQ(Editeur()->focusWidget(), Sien<QLineEdit>("Text4"));
}

TEST_F(EditeurOuvert, ItStaysWhereNothingCanBeWrittenAndTheUserSaysNo) {
  Ouvre();
  Joue([this] {
    u.Modifie = -1;
    std::filesystem::create_directories(bureau.dossiers.utilisateur / "Utilisateur.txt");
  });
  Touche(Editeur(), Qt::Key_Escape);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_NE(Editeur(), nullptr);
}

TEST_F(EditeurOuvert, ABoxLiesOverTheWindowThatTheUserIsIn) {
  Ouvre();
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  QWidget *parent = nullptr;
  QTimer::singleShot(0, fenetre.get(), [&] {
    auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    parent = boite == nullptr ? nullptr : boite->parentWidget();
    if (boite != nullptr) {
      boite->reject();
    }
  });
  Sien<QPushButton>("Command1")->click(); // no position is typed
  EXPECT_EQ(parent, Editeur());
}

TEST_F(EditeurOuvert, LeavingTheProgramClosesItAndWrites) {
  Ouvre();
  Joue([this] {
    for (Controle *champ : {&u.Text4, &u.Text6, &u.Text7, &u.Text8, &u.Text9}) {
      Tape(*champ, "1");
    }
    ClicControle(bureau, u.Command1);
  });
  reponse = true;
  fenetre->close();
  EXPECT_TRUE(bureau.termine);
  EXPECT_EQ(Editeur(), nullptr);
  EXPECT_EQ(Ecrit(), "+01.02 -01.02 0 1\n");
  EXPECT_FALSE(Horloge()->isActive());
}

TEST_F(EditeurOuvert, NothingIsCutInEitherLanguageAndWhatTakesTheKeyboardIsNamed) {
  for (const bool anglais : {false, true}) {
    Ouvre(anglais);
    RienDeCoupe(*Editeur(), Sien<QListWidget>("List1"));
    Editeur()->grab().save(QString(VELMARIS_IMAGES) + (anglais ? "/objets-en.png" : "/objets-fr.png"));
    Joue([this] { ClicControle(bureau, u.Command2); });
    fenetre.reset();
  }
}

TEST_F(EditeurOuvert, TheMainWindowMayGoWhileItIsOpen) {
  Ouvre();
  fenetre.reset();
  EXPECT_TRUE(u.cadre.visible);
}

} // namespace
} // namespace velmaris::essais

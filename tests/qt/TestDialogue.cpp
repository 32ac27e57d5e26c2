#include "OutilsFenetre.hpp"

#include "shell/droites/FichierVisee.hpp"
#include "shell/ecran/ChoixFichier.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"

#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace velmaris::essais {
namespace {

/// The file dialog over the main window, played by a function once it is there.
class DialogueOuvert : public FenetreOuverte {
protected:
  void Ouvre(const Ecran &ecran, bool anglais = false) {
    FenetreOuverte::Ouvre(ecran, anglais);
    // A program that ended in an earlier test has left the toolkit's loops closed: one turn opens them.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    QApplication::exec();
    bureau.ports.modale = [this](CadreFenetre &cadre) {
      qt::Dialogue dialogue(scene, cadre, fenetre.get());
      QTimer::singleShot(0, &dialogue, [&] {
        dialogue.activateWindow();
        QApplication::processEvents();
        joue(dialogue);
      });
      dialogue.Montre();
    };
  }

  std::filesystem::path Choisit(const std::string &nom = "15MAR09 120530.LoP") {
    return ChoisitFichier(bureau, "Sauvegarder le FICHIER", nom, "*LoP");
  }

  const std::filesystem::path &Accueil() { return bureau.dossiers.accueil; }

  std::function<void(qt::Dialogue &)> joue = [](qt::Dialogue &dialogue) { dialogue.reject(); };
};

TEST_F(DialogueOuvert, ItOpensWithItsNameSelectedAndReturnAcceptsIt) {
  Ouvre(kPetitEcran);
  joue = [&](qt::Dialogue &dialogue) {
    auto *nom = dialogue.findChild<QLineEdit *>("FName");
    EXPECT_EQ(dialogue.windowTitle(), "Sauvegarder le FICHIER");
    EXPECT_EQ(nom->selectedText(), "15MAR09 120530.LoP");
    EXPECT_EQ(dialogue.focusWidget(), nom);
    Touche(nom, Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
  };
  EXPECT_EQ(Choisit(), Accueil() / "15MAR09 120530.LoP");
  EXPECT_EQ(bureau.TitreFichier, "15MAR09 120530");
}

TEST_F(DialogueOuvert, EscapeAndTheCloseButtonGiveUp) {
  Ouvre(kPetitEcran);
  joue = [&](qt::Dialogue &dialogue) { Touche(&dialogue, Qt::Key_Escape); };
  EXPECT_EQ(Choisit(), "");
  joue = [](qt::Dialogue &dialogue) { dialogue.close(); };
  EXPECT_EQ(Choisit(), "");
}

TEST_F(DialogueOuvert, AFileIsChosenByTheArrowsAndTakenByReturn) {
  Ouvre(kPetitEcran);
  for (const char *nom : {"a.LoP", "b.LoP", "c.LoP", "autre.txt"}) {
    Pose(Accueil() / nom, "");
  }
  joue = [&](qt::Dialogue &dialogue) {
    auto *liste = dialogue.findChild<QListWidget *>("File1");
    EXPECT_EQ(liste->count(), 3);
    liste->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(dialogue.findChild<QLineEdit *>("FName")->text(), "*LoP") << "coming by is no choice";
    Touche(liste, Qt::Key_Down);
    Touche(liste, Qt::Key_Down);
    EXPECT_EQ(dialogue.findChild<QLineEdit *>("FName")->text(), "b.LoP");
    Touche(liste, Qt::Key_Return);
  };
  EXPECT_EQ(Choisit("*LoP"), Accueil() / "b.LoP");
}

TEST_F(DialogueOuvert, AFolderIsChosenByTheArrowsAndEnteredByReturn) {
  Ouvre(kPetitEcran);
  std::filesystem::create_directories(Accueil() / "croisière");
  Pose(Accueil() / "croisière" / "dedans.LoP", "");
  joue = [&](qt::Dialogue &dialogue) {
    auto *dossiers = dialogue.findChild<QListWidget *>("Dir1");
    dossiers->setFocus(Qt::TabFocusReason);
    Touche(dossiers, Qt::Key_Down);
    Touche(dossiers, Qt::Key_Return);
    EXPECT_TRUE(dialogue.isVisible());
    EXPECT_EQ(dialogue.findChild<QListWidget *>("File1")->item(0)->text(), "dedans.LoP");
    auto *nom = dialogue.findChild<QLineEdit *>("FName");
    EXPECT_EQ(nom->text(), "15MAR09 120530.LoP");
    EXPECT_EQ(nom->selectedText(), nom->text());
    EXPECT_EQ(dialogue.focusWidget(), nom);
    Touche(nom, Qt::Key_Return);
  };
  EXPECT_EQ(Choisit(), Accueil() / "croisière" / "15MAR09 120530.LoP");
}

TEST_F(DialogueOuvert, OkOnAChosenFolderEntersItAndBringsThePattern) {
  Ouvre(kPetitEcran);
  std::filesystem::create_directories(Accueil() / "croisière");
  joue = [&](qt::Dialogue &dialogue) {
    auto *dossiers = dialogue.findChild<QListWidget *>("Dir1");
    dossiers->setFocus(Qt::TabFocusReason);
    Touche(dossiers, Qt::Key_Down);
    dialogue.findChild<QPushButton *>("OK")->click();
    EXPECT_TRUE(dialogue.isVisible());
    EXPECT_EQ(dialogue.findChild<QLineEdit *>("FName")->text(), "*LoP");
    dialogue.reject();
  };
  Choisit();
  EXPECT_EQ(bureau.fselect.dossier, Accueil() / "croisière");
}

TEST_F(DialogueOuvert, EveryCaptionHasItsKeyAndFitsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    bureau.fselect.chargee = false;
    Ouvre(kPetitEcran, anglais);
    joue = [&](qt::Dialogue &dialogue) {
      for (const auto &[libelle, champ] :
           {std::pair{"Label1", "FName"}, std::pair{"Label2", "File1"}, std::pair{"Label3", "Dir1"}}) {
        auto *label = dialogue.findChild<QLabel *>(libelle);
        EXPECT_TRUE(label->text().startsWith('&'));
        EXPECT_EQ(label->buddy(), dialogue.findChild<QWidget *>(champ));
        EXPECT_FALSE(dialogue.findChild<QWidget *>(champ)->accessibleName().contains('&'));
      }
      for (auto *bouton : dialogue.findChildren<QPushButton *>()) {
        EXPECT_GE(bouton->width(), bouton->sizeHint().width()) << bouton->text().toStdString();
      }
      dialogue.grab().save(QString(VELMARIS_IMAGES) + (anglais ? "/fichier-en.png" : "/fichier-fr.png"));
      dialogue.reject();
    };
    Choisit();
    fenetre.reset();
  }
}

TEST_F(DialogueOuvert, TenThousandFilesOpenAtOnceAndScroll) {
  Ouvre(kPetitEcran);
  constexpr int kFichiers = 10000;
  for (int i = 0; i < kFichiers; ++i) {
    Pose(Accueil() / ("21JUN26 " + std::to_string(100000 + i) + ".LoP"), "");
  }
  QElapsedTimer montre;
  joue = [&](qt::Dialogue &dialogue) {
    const auto ouverture = montre.elapsed();
    RecordProperty("millisecondes", static_cast<int>(ouverture));
    EXPECT_LT(ouverture, 1500) << "300 on a quiet machine";
    auto *liste = dialogue.findChild<QListWidget *>("File1");
    EXPECT_EQ(liste->count(), kFichiers);
    liste->setFocus(Qt::TabFocusReason);
    Touche(liste, Qt::Key_Down);
    Touche(liste, Qt::Key_End);
    EXPECT_EQ(bureau.fselect.FName.texte, "21JUN26 109999.LoP");
    dialogue.reject();
  };
  montre.start();
  Choisit();
}

TEST_F(DialogueOuvert, ADeletedFileGoesToTheDesktopsTrash) {
  Ouvre(kPetitEcran);
  const auto ancien = qgetenv("XDG_DATA_HOME");
  std::filesystem::create_directories(dossier.chemin() / "xdg");
  qputenv("XDG_DATA_HOME", (dossier.chemin() / "xdg").c_str());
  Pose(Accueil() / "vieux.LoP", "contenu");
  {
    const qt::Boites ports(bureau);
    EXPECT_TRUE(bureau.ports.jette(Accueil() / "vieux.LoP"));
  }
  EXPECT_FALSE(std::filesystem::exists(Accueil() / "vieux.LoP"));
  EXPECT_EQ(Contenu(dossier.chemin() / "xdg" / "Trash" / "files" / "vieux.LoP"), "contenu");
  ancien.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", ancien);
}

TEST_F(DialogueOuvert, AFileWhoseNameIsNoUtf8IsChosenByTheListAndDeletedWhileItsNeighboursStay) {
  Ouvre(kPetitEcran);
  const std::string nom = "no\xEBl.LoP";
  for (const std::string &voisin : {nom, std::string("no\xE9l.LoP"), std::string("no\xEF\xBF\xBDl.LoP")}) {
    Pose(Accueil() / voisin, voisin);
  }
  const qt::Boites ports(bureau);
  joue = [&](qt::Dialogue &dialogue) {
    auto *liste = dialogue.findChild<QListWidget *>("File1");
    ASSERT_EQ(liste->count(), 3);
    const auto &noms = bureau.fselect.File1.liste;
    liste->setCurrentRow(static_cast<int>(std::find(noms.begin(), noms.end(), nom) - noms.begin()));
    EXPECT_EQ(bureau.fselect.FName.texte, nom);
    dialogue.findChild<QPushButton *>("Command1")->click();
    EXPECT_EQ(liste->count(), 2);
    dialogue.reject();
  };
  Choisit();
  EXPECT_FALSE(std::filesystem::exists(Accueil() / nom));
  EXPECT_EQ(Contenu(Accueil() / "no\xE9l.LoP"), "no\xE9l.LoP");
  EXPECT_EQ(Contenu(Accueil() / "no\xEF\xBF\xBDl.LoP"), "no\xEF\xBF\xBDl.LoP");
}

TEST_F(DialogueOuvert, AFileThatNeverEndsLeavesTheInterfaceAliveAndIdleAndTheProgramCanBeLeft) {
  Ouvre(kPetitEcran);
  std::string lignes;
  for (int i = 0; i < 40; ++i) {
    lignes += "05\r\n";
  }
  Pose(Accueil() / "long.LoP", lignes);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  bureau.ports.boite = [](const Boite &) { return true; };
  bool repond = false;
  double processeur = 0;
  QTimer::singleShot(100, fenetre.get(), [&] {
    Trouve<QAbstractButton>("Command23")->click();
    repond = Trouve<QWidget>("Frame10")->isVisible();
    processeur = static_cast<double>(std::clock());
  });
  QTimer::singleShot(1100, fenetre.get(), [&] {
    processeur = (static_cast<double>(std::clock()) - processeur) / CLOCKS_PER_SEC;
    fenetre->close();
  });
  Joue([&] { ChargeVisee(bureau, Accueil() / "long.LoP"); });
  EXPECT_TRUE(repond);
  EXPECT_LT(processeur, 0.3) << "of one second";
  EXPECT_TRUE(bureau.termine);
}

TEST_F(FenetreOuverte, ThePositionWorkedOutGoesIntoTheSightByKeyboard) {
  Ouvre(kPetitEcran);
  Joue([this] {
    TapeVisee();
    ClicControle(bureau, d.Command22);
    Tape(d.Text1, "90");
    Tape(d.Text15, "10");
    ClicControle(bureau, d.Command15);
  });
  auto *latitude = Trouve<QLabel>("LabLatEst");
  EXPECT_EQ(latitude->text(), QString::fromStdString(d.LabLatEst.legende));
  EXPECT_NE(latitude->focusPolicy(), Qt::NoFocus);
  Touche(latitude, Qt::Key_Space);
  EXPECT_EQ(d.LabLatEst.legende, "");
  EXPECT_EQ(Trouve<QLineEdit>("Text8")->text(), "47");
  EXPECT_FALSE(Trouve<QWidget>("Option14")->isEnabled());
}

TEST_F(FenetreOuverte, AnHourThatIsNoLineOfTheListIsShownAllTheSame) {
  Ouvre(kPetitEcran);
  Joue([this] {
    Tape(d.Text3, "60");
    ClicControle(bureau, d.Command2);
  });
  auto *heures = Trouve<QComboBox>("Combo1");
  EXPECT_EQ(heures->currentIndex(), -1);
  EXPECT_EQ(heures->placeholderText(), "60");
  Joue([this] {
    ChoisitLigne(bureau, d.Combo1, 5);
    Tape(d.Text3, "12");
    ClicControle(bureau, d.Command2);
  });
  EXPECT_EQ(heures->currentText(), "12") << "what was chosen before doesn't stay";
}

TEST_F(FenetreOuverte, FiguresStandAtTheRightOfTheirFieldsAndResultsAreNotTyped) {
  Ouvre(kPetitEcran);
  for (const qt::Lien &lien : fenetre->rendu().liens()) {
    if (const auto *champ = qobject_cast<QLineEdit *>(lien.widget)) {
      EXPECT_TRUE(champ->alignment() & Qt::AlignRight) << lien.controle->nom;
    }
  }
  EXPECT_TRUE(Trouve<QLineEdit>("Text24")->isReadOnly());
  EXPECT_TRUE(Trouve<QLineEdit>("Text23")->isReadOnly());
}

} // namespace
} // namespace velmaris::essais

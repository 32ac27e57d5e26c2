#include "OutilsFenetre.hpp"

#include "shell/qt/peinture/Toile.hpp"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QRadioButton>
#include <QToolButton>

#include <map>

/// What hands do to the main window: modules taken and drawn along, flags, the keys of the zoom and of the keyboard.
namespace velmaris::essais {
namespace {

class Mains : public FenetreOuverte {
protected:
  void SetUp() override { Ouvre(kGrandEcran); }

  void Evenement(QWidget &widget, QEvent::Type genre, QPoint place, Qt::MouseButtons boutons = Qt::LeftButton) {
    QMouseEvent souris(genre, place, widget.mapToGlobal(place), Qt::LeftButton, boutons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &souris);
    QApplication::processEvents();
  }

  void Presse(const char *nom, QPoint place = {5, 5}) {
    QWidget *widget = Trouve<QWidget>(nom);
    ASSERT_NE(widget, nullptr) << nom;
    Evenement(*widget, QEvent::MouseButtonPress, place);
    Evenement(*widget, QEvent::MouseButtonRelease, place, Qt::NoButton);
  }

  void Signe(QWidget &widget, int touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
    QKeyEvent appui(QEvent::KeyPress, touche, avec, QString(QChar(touche)));
    QApplication::sendEvent(&widget, &appui);
    QApplication::processEvents();
  }
};

TEST_F(Mains, OnlyFrameTitleDetailsAndDialsTakeAModule) {
  Joue([this] {
    TapeVisee();
    d.Check2.valeur = 0;
    ClicControle(bureau, d.Command2);
    ClicControle(bureau, d.Command26);
    d.Frame8.visible = true;
  });
  for (const char *nom : {"Label18", "Affichage_Intercept", "Affichage_Azimuth", "Frame6", "Label14", "Frame17",
                          "Label4", "Label23", "Label35"}) {
    Presse(nom);
    EXPECT_EQ(bureau.ModuleDeplace, 0) << nom;
  }
  for (const auto &[nom, numero] : {std::pair{"Label63", 7},
                                    {"Frame7", 7},
                                    {"Label700", 3},
                                    {"Label705", 3},
                                    {"PicAZ", 8},
                                    {"PicHE", 8},
                                    {"Frame8", 8}}) {
    Presse(nom);
    EXPECT_EQ(bureau.ModuleDeplace, numero) << nom;
    Presse(nom);
    EXPECT_EQ(bureau.ModuleDeplace, 0) << nom;
  }
}

TEST_F(Mains, APressOnTheChartLeavesAHeldModuleWhereItIsAndAMoveWithTheButtonTakesItAlong) {
  Presse("Label63");
  ASSERT_EQ(bureau.ModuleDeplace, 7);
  const Place avant = d.Frame7.place;
  QWidget &toile = *Trouve<QWidget>("Image1");
  Evenement(toile, QEvent::MouseButtonPress, {900, 300});
  EXPECT_EQ(d.Frame7.place, avant);
  Evenement(toile, QEvent::MouseMove, {910, 305});
  EXPECT_NE(d.Frame7.place, avant);
  Evenement(toile, QEvent::MouseButtonRelease, {910, 305}, Qt::NoButton);
}

TEST_F(Mains, AModuleIsDrawnAlongByItsTitleAtOnce) {
  QWidget &volet = *Trouve<QWidget>("Frame7");
  const QPoint debut = volet.pos();
  Evenement(volet, QEvent::MouseButtonPress, {40, 5});
  Evenement(volet, QEvent::MouseMove, {140, 45});
  EXPECT_EQ(volet.pos(), debut + QPoint(100, 40));
  Evenement(volet, QEvent::MouseButtonRelease, {40, 5}, Qt::NoButton);
  EXPECT_EQ(bureau.ModuleDeplace, 0);
  EXPECT_FALSE(d.Label62.visible);
}

TEST_F(Mains, TheTitleOfAModuleThatIsDrawnAlongStaysInReach) {
  QWidget &volet = *Trouve<QWidget>("Frame7");
  Evenement(volet, QEvent::MouseButtonPress, {40, 5});
  for (const QPoint ailleurs : {QPoint(-5000, -5000), QPoint(9000, 9000)}) {
    Evenement(volet, QEvent::MouseMove, ailleurs);
    EXPECT_TRUE(fenetre->rect().intersects(QRect(volet.pos(), QSize(volet.width(), 20)).adjusted(20, 2, -20, -2)));
  }
}

TEST_F(Mains, TheWordsOfAHeldModuleLieOverEverything) {
  Presse("Label63");
  QWidget *aide = Trouve<QWidget>("Label62");
  ASSERT_TRUE(aide->isVisible());
  EXPECT_TRUE(aide->autoFillBackground());
  EXPECT_EQ(aide->parentWidget()->children().last(), aide);
}

TEST_F(Mains, ReturnPressesFlagsAndClosePicturesAndTheOtherFlagTakesTheKeyboard) {
  auto *anglais = Trouve<QToolButton>("Image101");
  auto *francais = Trouve<QToolButton>("Image100");
  anglais->setFocus(Qt::TabFocusReason);
  Touche(anglais, Qt::Key_Return);
  EXPECT_EQ(bureau.FichierLangue, "\\EN.txt");
  EXPECT_EQ(fenetre->focusWidget(), francais);
  Touche(Trouve<QToolButton>("Image6"), Qt::Key_Return);
  EXPECT_FALSE(d.Frame7.visible);
}

TEST_F(Mains, ADoubleClickOnTheFlagIsOneClick) {
  Presse("Image101");
  ASSERT_EQ(bureau.FichierLangue, "\\EN.txt");
  QWidget &autre = *Trouve<QWidget>("Image100");
  Evenement(autre, QEvent::MouseButtonDblClick, {5, 5});
  Evenement(autre, QEvent::MouseButtonRelease, {5, 5}, Qt::NoButton);
  EXPECT_EQ(bureau.FichierLangue, "\\EN.txt");
}

TEST_F(Mains, TheDaysFieldHasTheKeyboardAtTheStart) {
  EXPECT_EQ(fenetre->focusWidget(), Trouve<QLineEdit>("TDate0"));
  EXPECT_EQ(Trouve<QLineEdit>("TDate0")->selectedText().toStdString(), d.TDate[0].texte);
}

TEST_F(Mains, TheFirstClickInTheFieldOfTheStartSelectsItsTextLikeAnyOther) {
  auto *jour = Trouve<QLineEdit>("TDate0");
  ASSERT_EQ(fenetre->focusWidget(), jour);
  Presse("TDate0");
  EXPECT_EQ(jour->selectedText().toStdString(), d.TDate[0].texte);
  Presse("TDate0"); // the next one sets the cursor
  EXPECT_TRUE(jour->selectedText().isEmpty());
}

TEST_F(Mains, SignsZoomOnTheSurfaceOrWithTheControlKeyAlone) {
  Joue([this] { d.Check2.valeur = 0; });
  const int avant = d.HScroll1.valeur;
  Signe(*Trouve<QWidget>("Command2"), Qt::Key_Minus);
  Signe(*Trouve<QWidget>("OptN0"), Qt::Key_Plus);
  EXPECT_EQ(d.HScroll1.valeur, avant);
  Signe(*Trouve<QWidget>("Command2"), Qt::Key_Minus, Qt::ControlModifier);
  const int apres = d.HScroll1.valeur;
  EXPECT_GT(apres, avant);
  Signe(*Trouve<QWidget>("Image1"), Qt::Key_Plus);
  EXPECT_EQ(d.HScroll1.valeur, avant);
}

TEST_F(Mains, AZoomByKeysWithAStarHalfTypedGoesOn) {
  Joue([this] {
    d.Check2.valeur = 0;
    ClicOption(bureau, d.Option7[3]);
    d.Text13.texte = "40";
    d.Text3.texte.clear();
  });
  Signe(*Trouve<QWidget>("Image1"), Qt::Key_Minus);
  EXPECT_FALSE(bureau.termine);
}

TEST_F(Mains, TabLeadsFromTheSpeedToTheCalculation) {
  Joue([this] { d.Frame4.visible = true; });
  QWidget *suivant = Trouve<QLineEdit>("Text2")->nextInFocusChain();
  while ((suivant->focusPolicy() & Qt::TabFocus) == 0) {
    suivant = suivant->nextInFocusChain();
  }
  EXPECT_EQ(suivant, Trouve<QWidget>("Command15"));
}

TEST_F(Mains, ReturnInAFieldPressesTheCalculationOfItsModule) {
  Joue([this] {
    TapeVisee();
    d.Check2.valeur = 0;
  });
  Touche(Trouve<QLineEdit>("Text13"), Qt::Key_Return);
  EXPECT_FALSE(d.Affichage_Intercept.legende.empty());
  Joue([this] {
    d.Frame4.visible = true;
    d.Text1.texte = "0";
    PoseTexte(bureau, d.Combo1, "12");
    PoseTexte(bureau, d.Combo2, "00");
    PoseTexte(bureau, d.Combo3, "13");
    PoseTexte(bureau, d.Combo4, "00");
  });
  auto *vitesse = Trouve<QLineEdit>("Text2");
  vitesse->setFocus(Qt::TabFocusReason);
  vitesse->selectAll();
  Touche(vitesse, Qt::Key_6, "6");
  Touche(vitesse, Qt::Key_Return);
  EXPECT_FALSE(d.LabLatEst.legende.empty());
}

TEST_F(Mains, TheKeyboardFollowsTheChoiceOfItsGroup) {
  Joue([this] { d.Frame10.visible = true; });
  auto *enregistre = Trouve<QRadioButton>("Option10");
  auto *affiche = Trouve<QRadioButton>("Option12");
  Joue([this] { ClicOption(bureau, d.Option1[0]); });
  enregistre->setFocus(Qt::TabFocusReason);
  Joue([this] { ClicControle(bureau, d.Droite[0]); });
  ASSERT_TRUE(d.Option1[2].choisi);
  EXPECT_EQ(fenetre->focusWidget(), affiche);
}

TEST_F(Mains, TheCaptionOfLatitudeLiesUnderNoModuleOfTheStart) {
  const QRect titre(Trouve<QWidget>("LabLat")->mapTo(fenetre.get(), QPoint(0, 0)), Trouve<QWidget>("LabLat")->size());
  for (const char *module : {"Frame7", "Frame3"}) {
    EXPECT_FALSE(Trouve<QWidget>(module)->geometry().intersects(titre)) << module;
  }
  EXPECT_TRUE(fenetre->rect().contains(titre));
}

TEST_F(Mains, AStoredStarOnShowIsAsDarkAsOneThatIsChosen) {
  const QPalette palette = Trouve<QWidget>("Combo6")->palette();
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::PlaceholderText),
            palette.color(QPalette::Active, QPalette::Text));
}

TEST_F(Mains, EachFieldIsNamedByWhatItHoldsAndItsUnit) {
  std::map<QString, QString> noms;
  for (auto *champ : fenetre->findChildren<QLineEdit *>()) {
    if (champ->objectName().startsWith("qt_")) {
      continue;
    }
    const QString nom = champ->accessibleName();
    EXPECT_FALSE(nom.isEmpty()) << champ->objectName().toStdString();
    const bool seul = noms.emplace(nom, champ->objectName()).second;
    EXPECT_TRUE(seul || nom == "Route suivie, degrés" || nom == "Distance, milles") << nom.toStdString();
  }
  EXPECT_EQ(Trouve<QLineEdit>("Text12")->accessibleName(), "Hauteur lue, minutes");
  EXPECT_EQ(Trouve<QWidget>("Frame7")->accessibleName(), "Données");
  EXPECT_EQ(Trouve<QWidget>("Image6")->accessibleName(), "Ferme la visée");
  Joue([this] { ClicControle(bureau, d.Image10[1]); });
  EXPECT_EQ(Trouve<QLineEdit>("Text12")->accessibleName(), "Sextant reading, minutes");
  Joue([this] {
    TapeVisee();
    ClicControle(bureau, d.Command2);
  });
  EXPECT_TRUE(Trouve<QWidget>("Affichage_Intercept")
                  ->accessibleName()
                  .endsWith(QString::fromStdString(d.Affichage_Intercept.legende)));
}

TEST_F(Mains, AModuleIsAGroupTheSheetACanvasAndACaptionThatActsALink) {
  const auto role = [this](const char *nom) {
    return QAccessible::queryAccessibleInterface(Trouve<QWidget>(nom))->role();
  };
  EXPECT_EQ(role("Frame7"), QAccessible::Grouping);
  EXPECT_EQ(role("Image1"), QAccessible::Canvas);
  EXPECT_EQ(role("PicAZ"), QAccessible::Canvas);
  EXPECT_EQ(role("Image6"), QAccessible::Button);
}

TEST_F(Mains, AClosedListTellsWhatItIsForAndWhatItHasChosen) {
  auto *liste = Trouve<QComboBox>("Combo1");
  QAccessibleInterface *dit = QAccessible::queryAccessibleInterface(liste);
  EXPECT_EQ(dit->role(), QAccessible::ComboBox);
  EXPECT_EQ(dit->text(QAccessible::Name), "Départ de l'estime, heure");
  EXPECT_EQ(dit->text(QAccessible::Value), liste->currentText());
  ASSERT_EQ(dit->childCount(), 1);
  EXPECT_EQ(dit->indexOfChild(dit->child(0)), 0);
  EXPECT_EQ(dit->child(0)->childCount(), liste->count());
  QAccessibleActionInterface *actions = dit->actionInterface();
  ASSERT_NE(actions, nullptr);
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(liste->view()->isVisible());
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(liste->view()->isVisible());
}

} // namespace
} // namespace velmaris::essais

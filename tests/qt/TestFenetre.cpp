#include "OutilsFenetre.hpp"

#include "shell/qt/widgets/Widgets.hpp"

#include <QFontMetricsF>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTextDocument>

#include <map>
#include <tuple>

namespace velmaris::essais {
namespace {

/// Room that a caption needs, its lines and its mark or picture.
QSizeF Besoin(const QWidget &widget, const QString &texte) {
  const QFontMetricsF metrique(widget.font());
  QSizeF besoin;
  for (const QString &ligne : texte.split('\n')) {
    besoin.setWidth(std::max(besoin.width(), metrique.horizontalAdvance(QString(ligne).replace("&&", "&"))));
    besoin.setHeight(besoin.height() + metrique.height());
  }
  const auto *bouton = qobject_cast<const QAbstractButton *>(&widget);
  if (bouton != nullptr && qobject_cast<const QPushButton *>(bouton) == nullptr) {
    besoin.rwidth() += qt::LargeurMarque(widget);
  } else if (bouton != nullptr && !texte.isEmpty() && !bouton->icon().isNull()) {
    besoin.rwidth() += bouton->iconSize().width() + 4;
  }
  return besoin;
}

struct Vue {
  const char *nom;
  Ecran ecran;
  bool anglais;
};

class ToutesLesVues : public FenetreOuverte, public ::testing::WithParamInterface<Vue> {
protected:
  void MontreTout() {
    Joue([this] {
      TapeVisee();
      Calcule();
      for (const int numero : {1, 2, 3, 4, 7, 8, 9, 10}) {
        Module(d, numero)->visible = true;
      }
      d.Command8.visible = true;
      d.Label62.visible = true;
    });
  }
};

TEST_P(ToutesLesVues, NoCaptionIsCut) {
  Ouvre(GetParam().ecran, GetParam().anglais);
  MontreTout();
  for (const qt::Lien &lien : fenetre->rendu().liens()) {
    QString texte;
    if (const auto *label = qobject_cast<QLabel *>(lien.widget)) {
      texte = label->text();
    } else if (const auto *bouton = qobject_cast<QAbstractButton *>(lien.widget)) {
      texte = bouton->text();
    }
    if (texte.isEmpty()) {
      continue;
    }
    const QSizeF besoin = Besoin(*lien.widget, texte);
    EXPECT_LE(besoin.width(), lien.widget->width() + 0.5) << lien.controle->nom << " " << texte.toStdString();
    EXPECT_LE(besoin.height(), lien.widget->height() + 2.5) << lien.controle->nom << " " << texte.toStdString();
  }
}

TEST_P(ToutesLesVues, ASunSightIsShown) {
  Ouvre(GetParam().ecran, GetParam().anglais);
  Joue([this] {
    TapeVisee();
    Calcule();
    ClicControle(bureau, d.Command26);
    ClicControle(bureau, d.Command14);
  });
  EXPECT_EQ(Trouve<QLabel>("Affichage_Intercept")->text().toStdString(), d.Affichage_Intercept.legende);
  EXPECT_EQ(Trouve<QLineEdit>("Text13")->text(), "65");
  Image(QString("fenetre-%1").arg(GetParam().nom));
}

INSTANTIATE_TEST_SUITE_P(Tailles, ToutesLesVues,
                         ::testing::Values(Vue{"1024-fr", kPetitEcran, false}, Vue{"1024-en", kPetitEcran, true},
                                           Vue{"1920-fr", kGrandEcran, false}, Vue{"1920-en", kGrandEcran, true},
                                           Vue{"600-fr", kEcranBas, false}, Vue{"600-en", kEcranBas, true}),
                         [](const auto &cas) {
                           std::string nom = cas.param.nom;
                           std::replace(nom.begin(), nom.end(), '-', '_');
                           return nom;
                         });

TEST_F(FenetreOuverte, AModuleThatOpensBeforeTheRestIsLaidOutStandsAsItDoesAfter) {
  Demarre(kPetitEcran);
  fenetre = std::make_unique<qt::Fenetre>(scene);
  fenetre->show();
  QApplication::processEvents();
  Joue([&] { d.Frame7.visible = true; });
  EXPECT_EQ(scene.Ecart(), nullptr);
  const auto tenues = [&] {
    std::map<QString, std::tuple<QRect, QFont, QString>> widgets;
    for (const auto *widget : Trouve<QWidget>("Frame7")->findChildren<QWidget *>()) {
      if (widget->isVisible()) {
        widgets[widget->objectName()] = {widget->geometry(), widget->font(), widget->accessibleName()};
      }
    }
    return widgets;
  };
  const auto avant = tenues();
  EXPECT_GT(avant.size(), 10U);
  fenetre->Complete();
  EXPECT_TRUE(avant == tenues());
  EXPECT_EQ(scene.Ecart(), nullptr);
}

TEST_F(FenetreOuverte, EveryWidgetThatTakesTheFocusHasAnAccessibleName) {
  Ouvre(kPetitEcran);
  for (const qt::Lien &lien : fenetre->rendu().liens()) {
    if (lien.widget != nullptr && lien.widget->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE(lien.widget->accessibleName().isEmpty()) << lien.controle->nom;
    }
  }
}

TEST_F(FenetreOuverte, TypingAndLeavingAFieldFollowsItsRules) {
  Ouvre(kPetitEcran);
  auto *champ = Trouve<QLineEdit>("TDate2");
  fenetre->activateWindow();
  champ->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(champ->selectedText(), champ->text()) << "typing replaces the whole text";
  Touche(champ, Qt::Key_9, "9");
  EXPECT_EQ(d.TDate[2].texte, "9");
  Trouve<QLineEdit>("Text3")->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(champ->text(), "2009");
}

TEST_F(FenetreOuverte, FunctionKeysWorkWhateverHasTheFocus) {
  Ouvre(kPetitEcran);
  for (const char *nom : {"Text13", "Command2", "HScroll1", "Option60"}) {
    Joue([this] { d.HScroll1.valeur = 2000; });
    Touche(Trouve<QWidget>(nom), Qt::Key_F9);
    EXPECT_EQ(d.HScroll1.valeur, 4000) << nom;
    EXPECT_EQ(Trouve<QSlider>("HScroll1")->value(), 4000) << nom;
  }
}

TEST_F(FenetreOuverte, WhatIsTypedRightAfterTopReplacesTheReadingWhole) {
  Ouvre(kPetitEcran);
  fenetre->activateWindow();
  Trouve<QWidget>("Text8")->setFocus();
  Touche(Trouve<QWidget>("Text8"), Qt::Key_F3);
  auto *lecture = Trouve<QLineEdit>("Text13");
  EXPECT_TRUE(lecture->hasFocus());
  Touche(lecture, Qt::Key_6, "6");
  Touche(lecture, Qt::Key_7, "7");
  EXPECT_EQ(d.Text13.texte, "67");
}

TEST_F(FenetreOuverte, TheKeyboardEntersAGroupAtItsChosenOption) {
  Ouvre(kPetitEcran);
  EXPECT_TRUE(Trouve<QWidget>("OptN1")->focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(Trouve<QWidget>("OptN0")->focusPolicy() & Qt::TabFocus);
  auto *sud = Trouve<QRadioButton>("OptN1");
  fenetre->activateWindow();
  sud->setFocus();
  Touche(sud, Qt::Key_Left);
  EXPECT_TRUE(d.OptN[0].choisi);
  EXPECT_TRUE(Trouve<QRadioButton>("OptN0")->isChecked());
}

TEST_F(FenetreOuverte, ReturnPressesTheButtonThatHasTheFocus) {
  Ouvre(kPetitEcran);
  Joue([this] { TapeVisee(); });
  Touche(Trouve<QWidget>("Command2"), Qt::Key_Return);
  EXPECT_NE(d.Affichage_Intercept.legende, "");
}

TEST_F(FenetreOuverte, ACloseRequestAsksAndStaysRefusedOnNo) {
  Ouvre(kPetitEcran);
  EXPECT_FALSE(fenetre->close());
  EXPECT_TRUE(fenetre->isVisible());
  EXPECT_EQ(boites.size(), 1U);
  reponse = true;
  EXPECT_TRUE(fenetre->close());
  EXPECT_TRUE(bureau.termine);
}

TEST_F(FenetreOuverte, TheLitLimbStandsOutWithinItsPlaceInBothLanguages) {
  for (const bool anglais : {false, true}) {
    Ouvre(kPetitEcran, anglais);
    for (const std::size_t bord : {0U, 1U}) {
      Joue([&] { d.Option6[bord].accent = true; });
      const auto *option = Trouve<QAbstractButton>(bord == 0 ? "Option60" : "Option61");
      EXPECT_TRUE(option->font().bold());
      EXPECT_LE(QFontMetricsF(option->font()).horizontalAdvance(option->text()) + qt::LargeurMarque(*option),
                option->width())
          << option->text().toStdString();
      Joue([&] { d.Option6[bord].accent = false; });
    }
    fenetre.reset();
  }
}

TEST_F(FenetreOuverte, ToolTipsAreInTheLanguageOfTheWindow) {
  Ouvre(kPetitEcran, true);
  EXPECT_EQ(Trouve<QWidget>("Command6")->toolTip(), "Clears the screen");
}

TEST_F(FenetreOuverte, AStoredNameThatLooksLikeMarkupIsShownAsItStandsInAToolTip) {
  Ouvre(kPetitEcran);
  for (const std::string nom : {"<b>Véga</b><img src='/etc/x'>", "<qt>a &amp; b", "Véga", "a < b"}) {
    Joue([&] { d.Droite[0].infobulle = nom; });
    const QString bulle = Trouve<QWidget>("Droite0")->toolTip();
    QTextDocument shown;
    Qt::mightBeRichText(bulle) ? shown.setHtml(bulle) : shown.setPlainText(bulle);
    EXPECT_EQ(shown.toPlainText().toStdString(), nom);
  }
}

TEST_F(FenetreOuverte, TheGuidesKeyHeldDownOpensItOnce) {
  Ouvre(kPetitEcran);
  for (const bool repete : {false, true, true}) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, repete);
    QApplication::sendEvent(Trouve<QWidget>("Text13"), &appui);
  }
  EXPECT_EQ(boites.size(), 1U) << "no guide lies beside the tests, which is told";
}

TEST_F(FenetreOuverte, AHeldModuleFollowsTheMouseOverTheSurface) {
  Ouvre(kPetitEcran);
  const auto presse = [](QWidget *widget, QEvent::Type type, QPointF place) {
    QMouseEvent souris(type, place, widget->mapToGlobal(place),
                       type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &souris);
  };
  presse(Trouve<QWidget>("Frame7"), QEvent::MouseButtonPress, {100, 600});
  EXPECT_EQ(bureau.ModuleDeplace, 7);
  auto *surface = Trouve<QWidget>("Image1");
  presse(surface, QEvent::MouseButtonPress, {400, 100});
  presse(surface, QEvent::MouseMove, {500, 120});
  EXPECT_EQ(Trouve<QWidget>("Frame7")->pos(), QPoint(500, 120));
}

TEST_F(FenetreOuverte, AFailureThatNothingCatchesIsReportedAndKeepsTheSight) {
  Ouvre(kPetitEcran);
  scene.Joue([] { throw Erreur(13); });
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(dossier.chemin() / "utilisateur" / "secours.LoP"));
}

} // namespace
} // namespace velmaris::essais

#include "OutilsFenetre.hpp"

#include "shell/ecran/ChoixFichier.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Nuit.hpp"

#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>

#include <set>

namespace velmaris::essais {
namespace {

constexpr int kTrace = 16;    ///< green or blue that no eye sees
constexpr int kPlusVif = 200; ///< red that leaves the eyes used to the dark

/// The window by night.
class VueDeNuit : public FenetreOuverte {
protected:
  ~VueDeNuit() override { qt::AccordeNuit(false); }
  VueDeNuit() = default;
  VueDeNuit(const VueDeNuit &) = delete;
  VueDeNuit &operator=(const VueDeNuit &) = delete;
  VueDeNuit(VueDeNuit &&) = delete;
  VueDeNuit &operator=(VueDeNuit &&) = delete;

  void OuvreTout(const Ecran &ecran) {
    Ouvre(ecran);
    fenetre->activateWindow();
    Joue([this] {
      TapeVisee();
      Calcule();
      ClicControle(bureau, d.Command14);
    });
  }

  void CtrlN(QWidget *widget) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_N, Qt::ControlModifier);
    QApplication::sendEvent(widget, &appui);
    QApplication::processEvents();
  }

  static void EstRouge(QWidget *widget, const QString &nom) {
    QDir().mkpath(VELMARIS_IMAGES);
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.save(QString(VELMARIS_IMAGES) + "/nuit-" + nom + ".png");
    int autres = 0;
    int vifs = 0;
    int visibles = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb c = image.pixel(x, y);
        autres += std::max(qGreen(c), qBlue(c)) > kTrace ? 1 : 0;
        vifs += qRed(c) > kPlusVif ? 1 : 0;
        visibles += qRed(c) > 100 ? 1 : 0;
      }
    }
    EXPECT_EQ(autres, 0) << nom.toStdString();
    EXPECT_EQ(vifs, 0) << nom.toStdString();
    EXPECT_GT(visibles, 50) << nom.toStdString();
  }
};

TEST_F(VueDeNuit, SheetAndChartAreRedOnBlack) {
  for (const Ecran &ecran : {kPetitEcran, kGrandEcran}) {
    OuvreTout(ecran);
    CtrlN(fenetre.get());
    EXPECT_TRUE(bureau.nuit);
    EstRouge(fenetre.get(), "feuille-" + QString::number(ecran.pixelsHaut));
    Joue([this] { ClicControle(bureau, d.PU_Nuit); });
    fenetre.reset();
  }
}

TEST_F(VueDeNuit, AllModulesAreRedOnBlack) {
  OuvreTout(kGrandEcran);
  Joue([this] {
    for (Controle *bouton : {&d.Command23, &d.Command21, &d.Command22, &d.Command9, &d.Command7, &d.Command26}) {
      ClicControle(bureau, *bouton);
    }
    ClicControle(bureau, d.PU_Distance);
    ClicControle(bureau, d.PU_Coord);
    ClicControle(bureau, d.Option1[0]);
    ClicControle(bureau, d.Droite[0]);
    d.LHeure[1].couleur = kRouge;
    d.Text10.actif = false;
    d.Check3.valeur = 2;
    ClicControle(bureau, d.PU_Nuit);
  });
  Trouve<QWidget>("Text8")->setFocus();
  EstRouge(fenetre.get(), "modules");
}

TEST_F(VueDeNuit, TheDayIsTheSameToThePixelAfterSwitchingTwice) {
  OuvreTout(kPetitEcran);
  Joue([this] {
    ClicControle(bureau, d.PU_Coord);
    ClicControle(bureau, d.Command23);
    d.LHeure[1].couleur = kRouge;
  });
  const QImage avant = fenetre->grab().toImage();
  CtrlN(Trouve<QWidget>("Text8"));
  EXPECT_NE(fenetre->grab().toImage(), avant);
  CtrlN(Trouve<QWidget>("Text8"));
  EXPECT_EQ(fenetre->grab().toImage(), avant);
}

TEST_F(VueDeNuit, MenuListAndToolTipAreRedOnBlack) {
  OuvreTout(kPetitEcran);
  Joue([this] {
    ClicControle(bureau, d.PU_Nuit);
    ClicControle(bureau, d.Command22);
    Image1_MouseDown(bureau, BoutonSouris::Gauche, 6000, 4000);
  });
  auto *menu = fenetre->findChild<QMenu *>("PopUp");
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->findChild<QAction *>("PU_Nuit")->isChecked());
  menu->setActiveAction(menu->findChild<QAction *>("PU_Coord"));
  EstRouge(menu, "menu");
  menu->close();
  auto *liste = Trouve<QComboBox>("Combo1");
  liste->showPopup();
  QApplication::processEvents();
  EstRouge(QApplication::activePopupWidget(), "liste");
  liste->hidePopup();
  QToolTip::showText({100, 100}, "Ajoute l'objet à la fin de la liste", fenetre.get());
  QApplication::processEvents();
  bool vue = false;
  for (QWidget *haute : QApplication::topLevelWidgets()) {
    if (haute->inherits("QTipLabel")) {
      vue = true;
      EstRouge(haute, "infobulle");
    }
  }
  EXPECT_TRUE(vue);
  QToolTip::hideText();
}

TEST_F(VueDeNuit, TheOtherWindowsAreRedOnBlackAndSwitchByTheSameKey) {
  OuvreTout(kPetitEcran);
  Joue([this] { ClicControle(bureau, d.Command18); });
  auto *editeur = fenetre->findChild<qt::Dialogue *>();
  ASSERT_NE(editeur, nullptr);
  CtrlN(editeur->focusWidget() == nullptr ? editeur : editeur->focusWidget());
  EXPECT_TRUE(bureau.nuit);
  EstRouge(editeur, "objets");
  for (const char *nom : {"a.LoP", "b.LoP"}) {
    Pose(bureau.dossiers.accueil / nom, "");
  }
  bureau.ports.modale = [&](CadreFenetre &cadre) {
    qt::Dialogue dialogue(scene, cadre, fenetre.get());
    QTimer::singleShot(0, &dialogue, [&] {
      EstRouge(&dialogue, "fichier");
      CtrlN(&dialogue);
      EXPECT_FALSE(bureau.nuit);
      dialogue.reject();
    });
    dialogue.Montre();
  };
  ChoisitFichier(bureau, "Sauvegarder le FICHIER", "15MAR09 120530.LoP", "*LoP");
}

TEST_F(VueDeNuit, BoxesAreRedOnBlack) {
  OuvreTout(kPetitEcran);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  Joue([this] { ClicControle(bureau, d.PU_Nuit); });
  for (const auto icone : {Icone::Question, Icone::Attention, Icone::Information, Icone::Erreur}) {
    QTimer::singleShot(0, fenetre.get(), [&] {
      auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      ASSERT_NE(boite, nullptr);
      EstRouge(boite, "boite-" + QString::number(static_cast<int>(icone)));
      boite->reject();
    });
    bureau.ports.boite({.texte = "Faut-il quitter ?", .icone = icone, .question = icone == Icone::Question});
  }
}

TEST(Teinte, WhatStandsOutByDayStandsOutByNight) {
  EXPECT_EQ(qt::FondDeNuit(Qt::white), QColor(Qt::black));
  EXPECT_GT(qt::EncreDeNuit(Qt::black).red(), 180);
  EXPECT_LT(qt::EncreDeNuit(QColor(220, 220, 220)).red(), 50);
  const QColor ciel(0, 0, 255);
  EXPECT_GT(qt::EncreDeNuit(Qt::white, ciel).red(), 180);
  EXPECT_EQ(qt::EncreDeNuit(ciel, ciel), qt::FondDeNuit(ciel));
  EXPECT_LE(qt::FondDeNuit(ciel).red(), 30);
}

TEST(Teinte, LinesOfDifferentColoursStayApart) {
  std::set<int> rouges;
  for (const QColor &c : {QColor(Qt::black), QColor(Qt::blue), QColor(Qt::red), QColor(Qt::magenta), QColor(Qt::green),
                          QColor(Qt::yellow), QColor(220, 220, 220)}) {
    const int rouge = qt::EncreDeNuit(c).red();
    for (const int autre : rouges) {
      EXPECT_GE(std::abs(rouge - autre), 12) << c.name().toStdString();
    }
    EXPECT_TRUE(qt::EncreDeNuit(c).green() == 0 && qt::EncreDeNuit(c).blue() == 0);
    rouges.insert(rouge);
  }
}

} // namespace
} // namespace velmaris::essais

#include "OutilsFenetre.hpp"

#include "shell/ecran/Echelle.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>

#include <cmath>
#include <utility>

namespace velmaris::essais {
namespace {

struct Bureautique {
  int largeur, hauteur;
};
constexpr Bureautique kEcrans[] = {{1366, 768}, {1920, 1080}, {2560, 1440}, {3840, 2160}}; // NOLINT(*-c-arrays)

class EchelleOuverte : public FenetreOuverte {
protected:
  EchelleOuverte() { LanguesSeules(); }

  void OuvreSur(const Bureautique &ecran, bool anglais = false) {
    Ouvre(EcranDe(ecran.largeur, ecran.hauteur, ecran.hauteur), anglais);
  }
  void Retaille(int largeur, int hauteur) {
    fenetre->resize(largeur, hauteur);
    QApplication::processEvents();
  }
  QScrollArea *Vue() { return fenetre->findChild<QScrollArea *>(); }
  QWidget *Contenu() { return Vue()->widget(); }
  double Pixels(double unites) { return unites * fenetre->echelle() / 15; }
  qt::Toile &Toile() { return dynamic_cast<qt::Toile &>(*Trouve<QWidget>("Image1")); }

  /// Every caption on show has its place, and every control lies in the content.
  void RienDeCoupe() {
    for (const qt::Lien &lien : fenetre->rendu().liens()) {
      const QWidget *w = lien.widget;
      if (w == nullptr || !w->isVisible() || w->parentWidget()->objectName() == "Image1") {
        continue;
      }
      EXPECT_TRUE(w->parentWidget()->rect().adjusted(0, 0, 1, 1).contains(w->geometry())) << lien.controle->nom;
      const auto *bouton = qobject_cast<const QAbstractButton *>(w);
      const auto *label = qobject_cast<const QLabel *>(w);
      const QString texte = bouton != nullptr ? bouton->text() : label != nullptr ? label->text() : QString();
      const double marque = bouton == nullptr || texte.isEmpty()              ? 0
                            : qobject_cast<const QPushButton *>(w) == nullptr ? qt::LargeurMarque(*w)
                            : bouton->icon().isNull()                         ? 4
                                                                              : bouton->iconSize().width() + 4;
      EXPECT_LE(qt::LargeurTexte(texte, *w) + marque, w->width()) << lien.controle->nom << " " << texte.toStdString();
      const double lignes = 1 + texte.count('\n');
      EXPECT_LE(QFontMetricsF(w->font()).ascent() * lignes, w->height() + 1) << lien.controle->nom;
    }
  }

  /// All modules on show, each where it comes up.
  void MontreModules() {
    Joue([this] {
      for (Controle *module : {&d.Frame2, &d.Frame4, &d.Frame7, &d.Frame8, &d.Frame9, &d.Frame10, &d.FOptionCarte}) {
        module->visible = true;
      }
    });
  }
};

TEST_F(EchelleOuverte, TheProgramFillsEveryScreenByOneScale) {
  for (const Bureautique &ecran : kEcrans) {
    OuvreSur(ecran);
    EXPECT_NEAR(fenetre->echelle(), (ecran.hauteur - 32) / 839.5, 2e-3);
    EXPECT_NEAR(fenetre->width(), ecran.largeur, 1);
    EXPECT_NEAR(Contenu()->width(), ecran.largeur, 2);
    EXPECT_NEAR(Toile().height(), Pixels(10800), 1);
    EXPECT_FALSE(Vue()->verticalScrollBar()->isVisible());
    EXPECT_FALSE(Vue()->horizontalScrollBar()->isVisible());
    fenetre.reset();
  }
}

TEST_F(EchelleOuverte, ThePointersPlaceIsTheRecordsOnEveryScreen) {
  for (const Bureautique &ecran : kEcrans) {
    OuvreSur(ecran);
    Point vu;
    Toile().auMouvement = [&](bool, double x, double y) { vu = {x, y}; };
    const QPoint pixel = Toile().PixelDe({9000, 7000});
    QMouseEvent bouge(QEvent::MouseMove, pixel, pixel, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&Toile(), &bouge);
    EXPECT_NEAR(vu.x, 9000, 15 / fenetre->echelle());
    EXPECT_NEAR(vu.y, 7000, 15 / fenetre->echelle());
    fenetre.reset();
  }
}

TEST_F(EchelleOuverte, NothingIsCutOnAnyScreenInEitherLanguage) {
  for (const Bureautique &ecran : kEcrans) {
    for (const bool anglais : {false, true}) {
      SCOPED_TRACE(testing::Message() << ecran.hauteur << (anglais ? " en" : " fr"));
      OuvreSur(ecran, anglais);
      MontreModules();
      RienDeCoupe();
      fenetre.reset();
    }
  }
}

TEST_F(EchelleOuverte, TheSidesOfAPositionAreWrittenInOneSizeOnEveryScreenInEitherLanguage) {
  for (const Bureautique &ecran : kEcrans) {
    for (const bool anglais : {false, true}) {
      OuvreSur(ecran, anglais);
      const auto points = [this](const char *nom) { return Trouve<QRadioButton>(nom)->font().pointSizeF(); };
      for (const char *cote : {"OptN1", "OptE0", "OptE1"}) {
        EXPECT_EQ(points(cote), points("OptN0")) << cote << " " << ecran.hauteur << (anglais ? " en" : " fr");
      }
      fenetre.reset();
    }
  }
}

TEST_F(EchelleOuverte, AWindowMadeSmallerOrLargerScalesAsAWholeCentredAndNeverCut) {
  OuvreSur({1920, 1080});
  for (const auto &[largeur, hauteur] : {std::pair{640, 400}, {1000, 900}, {1920, 600}, {1280, 720}, {2400, 1500}}) {
    SCOPED_TRACE(testing::Message() << largeur << "x" << hauteur);
    Retaille(largeur, hauteur);
    EXPECT_FALSE(Vue()->verticalScrollBar()->isVisible());
    EXPECT_FALSE(Vue()->horizontalScrollBar()->isVisible());
    EXPECT_LE(Contenu()->width(), largeur);
    EXPECT_LE(Contenu()->height(), hauteur);
    EXPECT_TRUE(largeur - Contenu()->width() <= 1 || hauteur - Contenu()->height() <= 1);
    EXPECT_NEAR(Contenu()->x(), largeur - Contenu()->width() - Contenu()->x(), 1);
    EXPECT_NEAR(Contenu()->y(), hauteur - Contenu()->height() - Contenu()->y(), 1);
    EXPECT_NEAR(Trouve<QPushButton>("Command2")->x(), Pixels(d.Command2.place.gauche), 1);
    RienDeCoupe();
  }
}

TEST_F(EchelleOuverte, WhatIsTypedStaysWhileTheWindowIsResized) {
  OuvreSur({1920, 1080});
  auto *champ = Trouve<QLineEdit>("Text6");
  champ->setFocus();
  Touche(champ, Qt::Key_4, "4");
  Touche(champ, Qt::Key_7, "7");
  Retaille(800, 600);
  EXPECT_EQ(champ->text(), "47");
  EXPECT_TRUE(champ->isUndoAvailable());
  EXPECT_EQ(scene.Ecart(), nullptr);
}

TEST_F(EchelleOuverte, FontsAndTheSurfaceFollowTheScaleSharply) {
  OuvreSur({1920, 1080});
  const auto hauteur = [this] { return QFontMetricsF(Trouve<QLabel>("Label1")->font()).height(); };
  const double grande = hauteur();
  Joue([this] { Ligne(bureau.image1, {6000, 4000}, {9000, 4000}, kNoir); });
  Retaille(960, 534);
  EXPECT_NEAR(hauteur() / grande, 0.5, 0.08);
  const QImage image = Toile().grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(image.width(), Toile().width());
  // One pixel of full ink: painted anew, not shrunk.
  const int x = static_cast<int>(Pixels(7500));
  int encre = 0;
  for (int y = 0; y < image.height(); ++y) {
    encre += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
  }
  EXPECT_EQ(encre, 1);
}

TEST_F(EchelleOuverte, ATargetOfTheMouseIsAtLeast24PixelsHighAt1080And18At768) {
  for (const auto &[ecran, moindre] : {std::pair{kEcrans[0], 18}, {kEcrans[1], 24}}) {
    OuvreSur(ecran);
    MontreModules();
    for (auto *widget : fenetre->findChildren<QWidget *>()) {
      const bool cible = qobject_cast<QAbstractButton *>(widget) != nullptr ||
                         qobject_cast<QLineEdit *>(widget) != nullptr || qobject_cast<QComboBox *>(widget) != nullptr ||
                         qobject_cast<QSlider *>(widget) != nullptr;
      if (cible && fenetre->rendu().ControleDe(*widget) != nullptr) {
        EXPECT_GE(widget->height(), moindre) << widget->objectName().toStdString() << " " << ecran.hauteur;
      }
    }
    fenetre.reset();
  }
}

TEST_F(EchelleOuverte, MadeLargerByTheUserItIsPannedAndTheKeyboardBringsItsFieldIntoSight) {
  OuvreSur({1366, 768});
  fenetre->activateWindow();
  Trouve<QLineEdit>("TDate0")->setFocus();
  for (int i = 0; i < 4; ++i) {
    QKeyEvent plus(QEvent::KeyPress, Qt::Key_Plus, Qt::ControlModifier | Qt::AltModifier);
    QApplication::sendEvent(Trouve<QLineEdit>("TDate0"), &plus);
  }
  QApplication::processEvents();
  EXPECT_EQ(bureau.taille, 175);
  EXPECT_EQ(d.HScroll1.valeur, 2000); // no zoom of the chart
  EXPECT_TRUE(Vue()->verticalScrollBar()->isVisible());
  auto *bas = Trouve<QPushButton>("Command2");
  EXPECT_GT(bas->mapTo(fenetre.get(), QPoint()).y(), fenetre->height());
  for (int i = 0; i < 40 && fenetre->focusWidget() != bas; ++i) {
    Touche(fenetre->focusWidget(), Qt::Key_Tab);
  }
  ASSERT_EQ(fenetre->focusWidget(), bas);
  EXPECT_TRUE(fenetre->rect().contains(QRect(bas->mapTo(fenetre.get(), QPoint()), bas->size())));
  QKeyEvent nul(QEvent::KeyPress, Qt::Key_0, Qt::ControlModifier | Qt::AltModifier);
  QApplication::sendEvent(bas, &nul);
  QApplication::processEvents();
  EXPECT_EQ(bureau.taille, 100);
  EXPECT_FALSE(Vue()->verticalScrollBar()->isVisible());
}

TEST_F(EchelleOuverte, TheStatusLineFollowsThePointerAndLosesItWithTheSurface) {
  OuvreSur({1920, 1080});
  Joue([this] {
    TapeVisee();
    Calcule();
  });
  const auto *position = Trouve<QLabel>("Position");
  const QPoint milieu = Toile().PixelDe({bureau.feuille.CentreX, bureau.feuille.CentreY});
  QMouseEvent bouge(QEvent::MouseMove, milieu, milieu, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&Toile(), &bouge);
  EXPECT_TRUE(position->text().startsWith("47° ")) << position->text().toStdString();
  EXPECT_LE(qt::LargeurTexte("88° 88.8' N  188° 88.8' W", *position), position->width());
  QEvent sort(QEvent::Leave);
  QApplication::sendEvent(&Toile(), &sort);
  EXPECT_EQ(position->text(), "");
}

TEST_F(EchelleOuverte, EveryWordOfTheStatusLineHasItsPlaceOnEveryScreenInEitherLanguage) {
  for (const Bureautique &ecran : kEcrans) {
    for (const bool anglais : {false, true}) {
      OuvreSur(ecran, anglais);
      const auto *dit = Trouve<QLabel>("Dit");
      for (const Controle *mots : ControlesDe(bureau, kFenetreEtat)) {
        if (mots->genre == Genre::Texte) {
          EXPECT_LE(qt::LargeurTexte(QString::fromStdString(mots->legende), *dit), dit->width()) << mots->legende;
        }
      }
      fenetre.reset();
    }
  }
}

TEST_F(EchelleOuverte, F11FillsTheScreenAndGivesItBack) {
  OuvreSur({1366, 768});
  Touche(Trouve<QLineEdit>("TDate0"), Qt::Key_F11);
  EXPECT_TRUE(fenetre->isFullScreen());
  Touche(Trouve<QLineEdit>("TDate0"), Qt::Key_F11);
  EXPECT_FALSE(fenetre->isFullScreen());
}

} // namespace
} // namespace velmaris::essais

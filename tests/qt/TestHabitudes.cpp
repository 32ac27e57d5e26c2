#include "OutilsFenetre.hpp"

#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/TailleFenetres.hpp"
#include "shell/qt/cadre/FenetreCiel.hpp"
#include "shell/qt/cadre/FenetreImpression.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/systeme/Images.hpp"
#include "shell/qt/systeme/Repos.hpp"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

/// The habits of a desktop in the real window.
namespace velmaris::essais {
namespace {

class Habitudes : public FenetreOuverte {
protected:
  Habitudes() {
    const qt::Boites ports(bureau); // for clipboard and pictures
    bureau.ports.boite = [this](const Boite &boite) {
      boites.push_back(boite);
      return reponse;
    };
    LanguesSeules();
  }

  void Presse(QWidget *widget, int touche, Qt::KeyboardModifiers avec) {
    QKeyEvent appui(QEvent::KeyPress, touche, avec);
    QApplication::sendEvent(widget, &appui);
    QApplication::processEvents();
  }

  static void Souris(QWidget *widget, QEvent::Type genre) {
    const QPointF place(5, 5);
    QMouseEvent event(genre, place, widget->mapToGlobal(place), Qt::LeftButton,
                      genre == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    QApplication::processEvents();
  }

  static void Attend(int millisecondes) {
    QEventLoop boucle;
    QTimer::singleShot(millisecondes, &boucle, &QEventLoop::quit);
    boucle.exec();
  }

  void Calcule() {
    Joue([this] {
      TapeVisee();
      ClicControle(bureau, d.Command2);
    });
  }

  QMenu *Menu(const char *nom) {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return fenetre->findChild<QMenu *>(nom);
  }

  /// A window beside the main one that is on show.
  template <class Fenetre> Fenetre *Ouverte() {
    for (auto *fille : fenetre->findChildren<qt::Dialogue *>()) {
      if (auto *ouverte = dynamic_cast<Fenetre *>(fille); ouverte != nullptr && ouverte->isVisible()) {
        return ouverte;
      }
    }
    return nullptr;
  }

  /// Drops a file on a widget.
  /// @return whether it is taken
  bool Depose(QWidget *widget, const std::filesystem::path &fichier) {
    QMimeData donnees;
    donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(fichier.string()))});
    QDragEnterEvent arrivee({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &arrivee);
    QDropEvent depot({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    depot.setAccepted(false);
    QApplication::sendEvent(widget, &depot);
    QApplication::processEvents();
    return depot.isAccepted();
  }
};

TEST_F(Habitudes, AFieldCopiesItsSelectionAndWithoutOneItsModulesResults) {
  Ouvre(kGrandEcran);
  Calcule();
  auto *champ = Trouve<QLineEdit>("Text13");
  champ->setFocus();
  champ->selectAll();
  Presse(champ, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "65");
  champ->deselect();
  Presse(champ, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QString::fromStdString(d.Affichage_Intercept.legende)));
}

TEST_F(Habitudes, TheSurfaceCopiesItsPicture) {
  Ouvre(kGrandEcran);
  Calcule();
  QApplication::clipboard()->clear();
  Presse(Trouve<QWidget>("Image1"), Qt::Key_C, Qt::ControlModifier);
  const QImage image = QApplication::clipboard()->image();
  ASSERT_FALSE(image.isNull());
  EXPECT_NEAR(static_cast<double>(image.width()) / image.height(), bureau.image1.largeur / bureau.image1.hauteur, 0.01);
}

TEST_F(Habitudes, ControlWithPAndQAreTheButtonsAlsoWhileAFieldHasTheKeyboard) {
  Ouvre(kGrandEcran);
  auto *champ = Trouve<QLineEdit>("Text13");
  const QString avant = champ->text();
  Presse(champ, Qt::Key_P, Qt::ControlModifier);
  EXPECT_NE(Ouverte<qt::FenetreImpression>(), nullptr);
  EXPECT_EQ(champ->text(), avant);
  Presse(champ, Qt::Key_Q, Qt::ControlModifier);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(boites[0].question);
}

TEST_F(Habitudes, ShiftF10OpensTheMenuUnderWhatHasTheKeyboardAndLeavesTheZoom) {
  Ouvre(kGrandEcran);
  QCursor::setPos(-100, -100);
  const int zoom = d.HScroll1.valeur;
  auto *bouton = Trouve<QPushButton>("Command2");
  Presse(bouton, Qt::Key_F10, Qt::ShiftModifier);
  QMenu *menu = Menu("PopUp");
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->x(), bouton->mapToGlobal(QPoint(0, 0)).x());
  EXPECT_EQ(d.HScroll1.valeur, zoom);
  menu->close();
}

TEST_F(Habitudes, TheRightButtonOnAResultOpensItsMenuUnderIt) {
  Ouvre(kGrandEcran);
  Calcule();
  auto *resultat = Trouve<QWidget>("Affichage_Intercept");
  QContextMenuEvent demande(QContextMenuEvent::Mouse, {5, 5}, resultat->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(resultat, &demande);
  QApplication::processEvents();
  QMenu *menu = Menu("MenuCopie");
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 1);
  menu->actions()[0]->trigger();
  menu->close();
  QApplication::processEvents();
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QString::fromStdString(d.Affichage_Azimuth.legende)));
}

TEST_F(Habitudes, OuvreHeldDownOpensTheRecentSightsAndIsNoClick) {
  Ouvre(kGrandEcran);
  int dialogues = 0;
  bureau.ports.modale = [&](CadreFenetre &cadre) {
    ++dialogues;
    cadre.visible = false;
  };
  auto *ouvre = Trouve<QPushButton>("Command4");
  Souris(ouvre, QEvent::MouseButtonPress);
  Attend(900);
  QMenu *menu = Menu("Recentes");
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions()[0]->text(), "Aucune visée récente");
  EXPECT_FALSE(menu->actions()[0]->isEnabled());
  menu->close();
  Souris(ouvre, QEvent::MouseButtonRelease);
  EXPECT_EQ(dialogues, 0);
  Souris(ouvre, QEvent::MouseButtonPress);
  Souris(ouvre, QEvent::MouseButtonRelease);
  EXPECT_EQ(dialogues, 1) << "a short press is";
}

TEST_F(Habitudes, ASightDroppedAnywhereOnTheWindowOpensAndAnotherFileIsNotTaken) {
  Ouvre(kGrandEcran);
  const std::filesystem::path visee = std::filesystem::path(VELMARIS_DONNEES) / "exemples" / "21JUN26 120530.LoP";
  EXPECT_TRUE(Depose(Trouve<QLineEdit>("Text10"), visee));
  EXPECT_EQ(d.Text13.texte, "65");
  EXPECT_EQ(bureau.TitreFichier, "21JUN26 120530");
  EXPECT_NE(d.Text10.texte, "") << "the field takes no path";
  Joue([this] { Tape(d.Text13, "11"); });
  EXPECT_TRUE(Depose(fenetre.get(), visee));
  EXPECT_EQ(d.Text13.texte, "65");
  EXPECT_FALSE(Depose(fenetre.get(), dossier / "FR.txt"));
  EXPECT_EQ(bureau.TitreFichier, "21JUN26 120530");
}

TEST_F(Habitudes, APictureIsMadeInEachFormWithTheTextsOfTheSheet) {
  Ouvre(kGrandEcran);
  Calcule();
  const std::string png = qt::OctetsImage(bureau.image1, FormeImage::Png);
  EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(png), "PNG").isNull());
  const std::string svg = qt::OctetsImage(bureau.image1, FormeImage::Svg);
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_NE(svg.find(d.Affichage_Azimuth.legende), std::string::npos) << "texts stay texts";
  EXPECT_EQ(qt::OctetsImage(bureau.image1, FormeImage::Pdf).substr(0, 5), "%PDF-");
}

TEST_F(Habitudes, APictureIsByDayAlsoWhileTheNightIsOn) {
  Ouvre(kGrandEcran);
  Calcule();
  const QImage jour = qt::ImageDe(bureau.image1);
  Joue([this] { ClicControle(bureau, d.PU_Nuit); });
  EXPECT_EQ(qt::ImageDe(bureau.image1), jour);
  Joue([this] { ClicControle(bureau, d.PU_Nuit); });
}

TEST_F(Habitudes, TheSkyWindowStepsByItsKeysScalesWithItsWindowAndKeepsItsSize) {
  Ouvre(kGrandEcran);
  Joue([this] {
    TapeVisee();
    ClicControle(bureau, d.Command13);
  });
  auto *ciel = Ouverte<qt::FenetreCiel>();
  ASSERT_NE(ciel, nullptr);
  const std::string avant = bureau.ciel.Moment.legende;
  Presse(ciel->focusWidget(), Qt::Key_Plus, Qt::NoModifier);
  EXPECT_NE(bureau.ciel.Moment.legende, avant);
  EXPECT_EQ(bureau.ciel.Check2.valeur, 0);
  ciel->resize(700, 450);
  QApplication::processEvents();
  for (const char *nom : {"PicAZ", "PicHE", "Check2", "Command1", "Command4", "Moment", "Lieu", "Recule", "Avance"}) {
    const auto *widget = ciel->findChild<QWidget *>(nom);
    ASSERT_NE(widget, nullptr) << nom;
    EXPECT_TRUE(ciel->rect().contains(QRect(widget->mapTo(ciel, QPoint(0, 0)), widget->size()))) << nom;
  }
  Joue([this] { ClicControle(bureau, bureau.ciel.Command4); });
  EXPECT_EQ(TailleGardee(bureau, kFenetreCiel), (TailleFenetre{700, 450}));
  Joue([this] { ClicControle(bureau, d.Command13); });
  ciel = Ouverte<qt::FenetreCiel>();
  ASSERT_NE(ciel, nullptr);
  EXPECT_EQ(ciel->size(), QSize(700, 450));
}

TEST_F(Habitudes, TheArrowOfAClosedListIsLargerOnALargerScreen) {
  const auto encre = [this](double hauteur) {
    Ouvre(EcranDe(hauteur * 16 / 9, hauteur, static_cast<int>(hauteur)));
    Joue([this] { ClicControle(bureau, d.Command22); });
    const QImage liste = Trouve<QWidget>("Combo1")->grab().toImage();
    int sombres = 0;
    const int large = static_cast<int>(16 * fenetre->echelle());
    for (int y = liste.height() / 4; y < liste.height() * 3 / 4; ++y) {
      for (int x = liste.width() - large; x < liste.width() - large / 4; ++x) {
        sombres += qGray(liste.pixel(x, y)) < 128 ? 1 : 0;
      }
    }
    fenetre.reset();
    return sombres;
  };
  const int petite = encre(1080);
  EXPECT_GT(petite, 4);
  EXPECT_GT(encre(2160), 3 * petite);
}

TEST_F(Habitudes, ThePrintPageGrowsWithItsWindowAndKeepsItsSize) {
  Ouvre(kGrandEcran);
  Joue([this] { ClicControle(bureau, d.Command11); });
  auto *page = Ouverte<qt::FenetreImpression>();
  ASSERT_NE(page, nullptr);
  page->resize(600, 400);
  QApplication::processEvents();
  const CadreFenetre &cadre = bureau.impression.cadre;
  EXPECT_LE(cadre.largeur * page->echelle() / 15, 600.5);
  EXPECT_LE(cadre.hauteur * page->echelle() / 15, 400.5);
  Joue([this] { ClicControle(bureau, bureau.impression.Image1); });
  Joue([this] { ClicControle(bureau, d.Command11); });
  page = Ouverte<qt::FenetreImpression>();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->size(), QSize(600, 400));
}

void Attends(int ms) {
  QEventLoop boucle;
  QTimer::singleShot(ms, &boucle, &QEventLoop::quit);
  boucle.exec();
}

TEST_F(Habitudes, TheCursorOfAProgramThatNobodyTouchesStopsBlinkingUntilTheNextKey) {
  const int cadence = QApplication::cursorFlashTime();
  ASSERT_GT(cadence, 0);
  {
    Ouvre(kGrandEcran);
    auto *champ = Trouve<QLineEdit>("Text6");
    const qt::Repos repos(std::chrono::milliseconds(30));
    EXPECT_EQ(QApplication::cursorFlashTime(), cadence);
    Attends(120);
    EXPECT_EQ(QApplication::cursorFlashTime(), 0);
    Touche(champ, Qt::Key_Left);
    EXPECT_EQ(QApplication::cursorFlashTime(), cadence);
    Attends(120);
    EXPECT_EQ(QApplication::cursorFlashTime(), 0);
  }
  EXPECT_EQ(QApplication::cursorFlashTime(), cadence) << "as the desktop has it";
}

} // namespace
} // namespace velmaris::essais

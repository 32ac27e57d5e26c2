#include "OutilsFenetre.hpp"

#include "shell/ecran/PageImprimee.hpp"
#include "shell/qt/cadre/FenetreImpression.hpp"
#include "shell/qt/cadre/PortsQt.hpp"

#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMetaObject>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

/// How events go into the core, and what happens to windows meanwhile.
namespace velmaris::essais {
namespace {

class SceneOuverte : public FenetreOuverte {
protected:
  qt::FenetreImpression *OuvrePage() {
    Joue([this] { ClicControle(bureau, d.Command11); });
    for (QWidget *fille : fenetre->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
      if (auto *page = dynamic_cast<qt::FenetreImpression *>(fille)) {
        return page;
      }
    }
    return nullptr;
  }
};

TEST_F(SceneOuverte, AWindowPutAwayLivesAsLongAsAnEventIsPlayed) {
  Ouvre(kGrandEcran);
  qt::FenetreImpression *page = OuvrePage();
  ASSERT_NE(page, nullptr);
  const QPointer<QObject> vie = page;
  scene.Joue([&] {
    scene.Joue([&] { ClicControle(bureau, bureau.impression.Image1); });
    EXPECT_FALSE(page->isVisible());
    QApplication::processEvents(); // as a long drawing does
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(vie.isNull());
  });
  QApplication::processEvents();
  EXPECT_TRUE(vie.isNull());
}

TEST_F(SceneOuverte, AWindowThatAsksForItsOwnEndLivesUntilItsEventIsOver) {
  Ouvre(kGrandEcran);
  qt::FenetreImpression *page = OuvrePage();
  ASSERT_NE(page, nullptr);
  const QPointer<QObject> vie = page;
  page->reject();
  EXPECT_FALSE(vie.isNull());
  QApplication::processEvents();
  EXPECT_TRUE(vie.isNull());
}

TEST_F(SceneOuverte, AKeyThatIsStillHeldDownAnswersNoBox) {
  Ouvre(kGrandEcran);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  for (const int touche : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
    bool resiste = false;
    QTimer::singleShot(0, fenetre.get(), [&] {
      auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      ASSERT_NE(boite, nullptr);
      for (const bool repetee : {true, false}) {
        QWidget *cible = boite->defaultButton();
        QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier, QString(), repetee);
        QKeyEvent relache(QEvent::KeyRelease, touche, Qt::NoModifier, QString(), repetee);
        QApplication::sendEvent(cible, &appui);
        QApplication::sendEvent(cible, &relache);
        resiste = resiste || (repetee && boite->isVisible());
      }
      EXPECT_FALSE(boite->isVisible()) << touche;
      boite->reject();
    });
    bureau.ports.boite({.texte = "Un mot", .icone = Icone::Erreur});
    EXPECT_TRUE(resiste) << touche;
  }
}

TEST_F(SceneOuverte, APageThatComesToTheFrontLetsNoEventIn) {
  Ouvre(kGrandEcran);
  bureau.ports.respire = [] { ADD_FAILURE() << "events are let in"; };
  bureau.ports.attend = bureau.ports.respire;
  const unsigned prises = bureau.impression.prises;
  Impression_Activate(bureau);
  EXPECT_EQ(bureau.impression.prises, prises + 1);
}

TEST_F(SceneOuverte, ALongDrawingPaintsTheWindowsAndLetsNoEventIn) {
  Ouvre(kGrandEcran);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  bool minuterie = false;
  bool evenement = false;
  QTimer::singleShot(0, fenetre.get(), [&] { minuterie = true; });
  QMetaObject::invokeMethod(
      fenetre.get(), [&] { evenement = true; }, Qt::QueuedConnection);
  bureau.ports.respire();
  EXPECT_FALSE(minuterie);
  EXPECT_FALSE(evenement);
  QApplication::processEvents();
  EXPECT_TRUE(evenement);
}

TEST_F(SceneOuverte, ABoxOutlivesTheMenuThatWasOpenWhenItCame) {
  Ouvre(kGrandEcran);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  auto *menu = new QMenu(fenetre.get());
  menu->addAction("entree");
  QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
  menu->popup(QPoint(50, 50));
  ASSERT_EQ(QApplication::activePopupWidget(), menu);
  bool vue = false;
  QTimer::singleShot(0, fenetre.get(), [&] {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    vue = boite != nullptr && boite->parentWidget() == fenetre.get();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    boite == nullptr ? void() : boite->reject();
  });
  bureau.ports.boite({.texte = "Un mot", .icone = Icone::Attention});
  EXPECT_TRUE(vue);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

TEST_F(SceneOuverte, APageThatComesToTheFrontIsPaintedAtOnce) {
  Ouvre(kGrandEcran);
  qt::FenetreImpression *page = OuvrePage();
  ASSERT_NE(page, nullptr);
  struct Guet : QObject {
    bool eventFilter(QObject * /*objet*/, QEvent *event) override {
      peinte = peinte || event->type() == QEvent::Paint;
      return false;
    }
    bool peinte = false;
  } guet;
  page->installEventFilter(&guet);
  scene.Joue([&] { Impression_Activate(bureau); });
  EXPECT_TRUE(guet.peinte);
}

TEST_F(SceneOuverte, APressOnAnOptionIsNotLostToWhatIsShownBeforeTheButtonIsUp) {
  Ouvre(kGrandEcran);
  fenetre->activateWindow();
  QApplication::processEvents();
  auto *option = Trouve<QAbstractButton>("Option71"); // "Lune"
  ASSERT_NE(option, nullptr);
  const auto souris = [&](QEvent::Type genre) {
    const QPointF place(5, 5);
    QMouseEvent event(genre, place, option->mapToGlobal(place), Qt::LeftButton,
                      genre == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(option, &event);
  };
  Trouve<QAbstractButton>("Option70")->setFocus(); // out of the fields
  option->setFocus(Qt::MouseFocusReason);          // as a press of a hand does first
  souris(QEvent::MouseButtonPress);
  ASSERT_TRUE(option->hasFocus() && option->isDown());
  Joue([] {}); // the clock beats
  souris(QEvent::MouseButtonRelease);
  QApplication::processEvents();
  EXPECT_TRUE(d.Option7[1].choisi);
  EXPECT_TRUE(option->hasFocus());
  EXPECT_EQ(scene.Ecart(), nullptr);
}

} // namespace
} // namespace velmaris::essais

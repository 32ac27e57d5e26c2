#include "OutilsFenetre.hpp"

#include "shell/ciel/EcranCiel.hpp"
#include "shell/qt/cadre/FenetreCiel.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/ToileCiel.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace velmaris::essais {
namespace {

/// The sky off Brittany in a June night, in its window beside the main one.
class CielOuvert : public FenetreOuverte {
protected:
  CielOuvert() {
    LanguesSeules();
    temps.heure = 23;
  }
  ~CielOuvert() override { qt::AccordeEclairage(Eclairage::Jour); }
  CielOuvert(const CielOuvert &) = delete;
  CielOuvert &operator=(const CielOuvert &) = delete;
  CielOuvert(CielOuvert &&) = delete;
  CielOuvert &operator=(CielOuvert &&) = delete;

  void Ouvre(const Ecran &ecran = kGrandEcran, bool anglais = false) {
    const qt::Boites ports(bureau); // for the widths of texts
    bureau.ports.boite = [this](const Boite &boite) {
      boites.push_back(boite);
      return reponse;
    };
    FenetreOuverte::Ouvre(ecran, anglais);
    Joue([this] {
      TapeVisee();
      ClicControle(bureau, d.Command1); // the present moment
    });
    fenetre->activateWindow();
    Trouve<QPushButton>("Command13")->click();
    QApplication::processEvents();
    if (FenetreQt() != nullptr) {
      // The platform without a screen is small: the size that a screen of that kind gives.
      FenetreQt()->resize(static_cast<int>(ecran.largeur / 15) - 7, static_cast<int>(ecran.hauteur / 15) - 40);
      QApplication::processEvents();
    }
  }

  qt::FenetreCiel *FenetreQt() {
    for (auto *ouverte : fenetre->findChildren<qt::Dialogue *>()) {
      if (auto *ciel = dynamic_cast<qt::FenetreCiel *>(ouverte); ciel != nullptr && ciel->isVisible()) {
        return ciel;
      }
    }
    return nullptr;
  }
  template <class Widget> Widget *Sien(const char *nom) { return FenetreQt()->findChild<Widget *>(nom); }
  qt::ToileCiel &Toile() { return dynamic_cast<qt::ToileCiel &>(*Sien<QWidget>("Picture1")); }
  QTimer *Horloge() { return FenetreQt() == nullptr ? nullptr : FenetreQt()->findChild<QTimer *>("TimerCiel"); }

  static QPointF Milieu(const Controle &c) {
    return {(c.place.gauche + c.place.largeur / 2) / 15, (c.place.haut + c.place.hauteur / 2) / 15};
  }

  /// A named star whose label is the one under its own middle: the first of them from a number on.
  Controle &EtoileLibre() {
    for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
      Controle &label = c.Laet[i];
      const QPointF milieu = Milieu(label);
      if (label.gras && label.legende != "   " && milieu.y() > 20 && milieu.y() < Toile().height() - 20 &&
          Toile().CorpsSous(milieu).astre == &label) {
        return label;
      }
    }
    ADD_FAILURE() << "no star is up";
    return c.Laet[1];
  }

  void Souris(QEvent::Type genre, QPointF place, Qt::MouseButton bouton = Qt::NoButton) {
    QMouseEvent event(genre, place, Toile().mapToGlobal(place), bouton, bouton, Qt::NoModifier);
    QApplication::sendEvent(&Toile(), &event);
    QApplication::processEvents();
  }
  void Bouge(QPointF place) { Souris(QEvent::MouseMove, place); }
  void Clique(QPointF place) {
    Bouge(place);
    Souris(QEvent::MouseButtonPress, place, Qt::LeftButton);
  }

  void ImageCiel(const QString &nom) {
    QDir().mkpath(VELMARIS_IMAGES);
    FenetreQt()->grab().save(QString(VELMARIS_IMAGES) + "/ciel-" + nom + ".png");
  }

  Ciel &c = bureau.ciel;
};

TEST_F(CielOuvert, AstresOpensItBesideTheMainWindowOnceAndTheChartHasTheKeyboard) {
  Ouvre();
  qt::FenetreCiel *ciel = FenetreQt();
  ASSERT_NE(ciel, nullptr);
  EXPECT_FALSE(ciel->isModal());
  EXPECT_EQ(ciel->windowTitle(), "Astres");
  EXPECT_EQ(ciel->focusWidget(), &Toile());
  fenetre->activateWindow();
  Trouve<QPushButton>("Command13")->click();
  QApplication::processEvents();
  EXPECT_EQ(FenetreQt(), ciel);
  EXPECT_TRUE(ciel->isActiveWindow());
}

TEST_F(CielOuvert, ItHasNoWidgetForEachStar) {
  Ouvre();
  EXPECT_EQ(Sien<QWidget>("Laet1"), nullptr);
  EXPECT_LT(FenetreQt()->findChildren<QWidget *>().size(), 60);
}

TEST_F(CielOuvert, ThePointerOverALabelTellsItsStarAndLightsItsConstellation) {
  Ouvre();
  Controle &label = EtoileLibre();
  Bouge(Milieu(label));
  EXPECT_EQ(c.Label2.legende, label.legende);
  EXPECT_EQ(label.couleur, kRouge);
  EXPECT_EQ(c.etoileDevant, static_cast<std::size_t>(label.indice));
  EXPECT_EQ(Sien<QLabel>("Label2")->text().toStdString(), label.legende);
  const QString lettre = Sien<QLabel>("Bayer1")->text();
  ASSERT_EQ(lettre.size(), 1);
  EXPECT_EQ(lettre[0].script(), QChar::Script_Greek);
  EXPECT_EQ(Toile().accessibleDescription().toStdString(), label.legende);
  Bouge({1, Toile().height() - 2.0});
  EXPECT_EQ(c.Label2.legende, "");
}

TEST_F(CielOuvert, TheMarkOfAStarStandsForItsLabel) {
  Ouvre();
  Controle &label = EtoileLibre();
  const QPointF marque = Milieu(c.Shet[static_cast<std::size_t>(label.indice)]);
  EXPECT_EQ(Toile().CorpsSous(marque).astre, &label);
}

TEST_F(CielOuvert, AClickOnAStarChoosesItForTheSightAndTheMainWindowComesToTheFront) {
  Ouvre();
  Controle &label = EtoileLibre();
  const std::string nom = label.legende;
  Clique(Milieu(label));
  EXPECT_TRUE(d.Option7[3].choisi);
  EXPECT_EQ(d.Combo8.texte, nom);
  EXPECT_TRUE(fenetre->isActiveWindow());
}

TEST_F(CielOuvert, AClickOnTheMoonAndAPlanetChoosesThem) {
  temps.heure = 20;
  Ouvre();
  for (auto &[corps, rang] : {std::pair<Controle *, std::size_t>{&c.SOL, 0U}, {&c.Lune, 1U}, {&c.LaP[0], 2U}}) {
    if (Toile().CorpsSous(Milieu(*corps)).astre == corps) {
      Clique(Milieu(*corps));
      EXPECT_TRUE(d.Option7.at(rang).choisi) << corps->nom;
    }
  }
}

TEST_F(CielOuvert, TheArrowsMoveThroughTheBodiesReturnTakesOneAndEscapeCloses) {
  Ouvre();
  Touche(&Toile(), Qt::Key_Right);
  ASSERT_NE(c.astreCourant, nullptr);
  const Controle *premier = c.astreCourant;
  EXPECT_NE(c.Label2.legende + c.Bayer2.legende, "");
  Touche(&Toile(), Qt::Key_Left);
  Touche(&Toile(), Qt::Key_Left);
  EXPECT_NE(c.astreCourant, premier);
  Touche(&Toile(), Qt::Key_Return);
  EXPECT_TRUE(fenetre->isActiveWindow());
  Touche(&Toile(), Qt::Key_Escape);
  EXPECT_EQ(FenetreQt(), nullptr);
}

TEST_F(CielOuvert, ItsTimerRunsWhileTheBoxIsTickedAndStopsWithTheWindow) {
  Ouvre();
  const QPointer<QTimer> horloge = Horloge();
  ASSERT_NE(horloge, nullptr);
  EXPECT_TRUE(horloge->isActive());
  EXPECT_EQ(horloge->interval(), 10000);
  Joue([this] { ClicCase(bureau, c.Check2); });
  EXPECT_FALSE(horloge->isActive());
  Joue([this] { ClicCase(bureau, c.Check2); });
  EXPECT_TRUE(horloge->isActive());
  Joue([this] { ClicControle(bureau, c.Command4); });
  EXPECT_FALSE(horloge != nullptr && horloge->isActive()); // the window may be deleted already
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(horloge, nullptr);
  EXPECT_EQ(Horloge(), nullptr);
  EXPECT_TRUE(fenetre->isActiveWindow());
}

TEST_F(CielOuvert, ItsPartsFollowItsSize) {
  Ouvre();
  FenetreQt()->resize(1200, 700);
  QApplication::processEvents();
  EXPECT_NEAR(c.cadre.largeur, 18000, 1);
  EXPECT_NEAR(c.picture1.largeur, 18000 - 400 - c.List1.place.largeur, 1);
  EXPECT_NEAR(Toile().width(), c.picture1.largeur / 15, 1);
  EXPECT_GE(Sien<QWidget>("Frame8")->x(), 0);
}

TEST_F(CielOuvert, ASizeThatComesInTheMiddleOfARedrawIsTakenAfterIt) {
  Ouvre();
  bool change = false;
  const auto horloge = bureau.horloge.source;
  bureau.horloge.source = [&] {
    if (!std::exchange(change, true)) {
      FenetreQt()->resize(1300, 720);
      QApplication::processEvents();
    }
    return horloge();
  };
  FenetreQt()->resize(1100, 640);
  QApplication::processEvents();
  bureau.horloge.source = horloge;
  EXPECT_TRUE(change);
  EXPECT_NEAR(c.cadre.largeur, 1300 * 15, 1);
  EXPECT_NEAR(Toile().width(), c.picture1.largeur / 15, 1);
}

TEST_F(CielOuvert, BothChartsAndALitConstellationByDayAndByNight) {
  Ouvre();
  for (const bool nuit : {false, true}) {
    const QString suffixe = nuit ? "-nuit" : "";
    if (nuit) {
      Joue([this] { ClicControle(bureau, d.PU_Nuit); });
    }
    Sien<QRadioButton>("Option11")->click();
    Bouge(Milieu(EtoileLibre()));
    ImageCiel("horizontale" + suffixe);
    Sien<QRadioButton>("Option10")->click();
    EXPECT_TRUE(c.Option1[0].choisi);
    Bouge(Milieu(EtoileLibre()));
    ImageCiel("equatoriale" + suffixe);
    const QImage image = FenetreQt()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    int autres = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb p = image.pixel(x, y);
        autres += std::max(qGreen(p), qBlue(p)) > 16 || qRed(p) > 200 ? 1 : 0;
      }
    }
    EXPECT_EQ(autres == 0, nuit) << autres;
  }
}

TEST_F(CielOuvert, NoLabelIsPaintedOverAnother) {
  Ouvre();
  const QImage avant = Toile().grab().toImage();
  Bouge(Milieu(EtoileLibre()));
  EXPECT_NE(Toile().grab().toImage(), avant);
  ImageCiel("constellation");
}

TEST_F(CielOuvert, NothingIsCutInEitherLanguageAndWhatTakesTheKeyboardIsNamed) {
  for (const bool anglais : {false, true}) {
    for (const Ecran &ecran : {kPetitEcran, kGrandEcran}) {
      Ouvre(ecran, anglais);
      Bouge(Milieu(EtoileLibre()));
      RienDeCoupe(*FenetreQt(), Sien<QListWidget>("List1"));
      ImageCiel(QString(anglais ? "en-" : "fr-") + QString::number(ecran.pixelsHaut));
      Joue([this] { ClicControle(bureau, c.Command4); });
      fenetre.reset();
    }
  }
}

TEST_F(CielOuvert, LeavingTheProgramClosesIt) {
  Ouvre();
  reponse = true;
  fenetre->close();
  EXPECT_TRUE(bureau.termine);
  EXPECT_EQ(FenetreQt(), nullptr);
}

TEST_F(CielOuvert, TheFirstPictureIsThereWithinAQuarterOfASecond) {
  FenetreOuverte::Ouvre(kGrandEcran);
  QElapsedTimer montre;
  montre.start();
  Trouve<QPushButton>("Command13")->click();
  QApplication::processEvents();
  FenetreQt()->grab();
  RecordProperty("millisecondes", static_cast<int>(montre.elapsed()));
  EXPECT_LT(montre.elapsed(), 1000) << "under 250 on a quiet machine";
}

} // namespace
} // namespace velmaris::essais

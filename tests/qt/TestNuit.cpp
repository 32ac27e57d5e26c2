#include "OutilsFenetre.hpp"

#include "shell/ecran/ChoixFichier.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Apparence.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>

#include <array>
#include <set>
#include <utility>

namespace velmaris::essais {
namespace {

constexpr int kTrace = 16;    ///< green or blue that no eye sees
constexpr int kPlusVif = 200; ///< red that leaves the eyes used to the dark

/// The window by night.
class VueDeNuit : public FenetreOuverte {
protected:
  ~VueDeNuit() override { qt::AccordeEclairage(Eclairage::Jour); }
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

  /// By the key that goes round.
  void PasseA(QWidget *widget, Eclairage voulu) {
    for (int fois = 0; fois < 3 && bureau.eclairage != voulu; ++fois) {
      CtrlN(widget);
    }
    EXPECT_EQ(bureau.eclairage, voulu);
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
    PasseA(fenetre.get(), Eclairage::Nuit);
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
  PasseA(Trouve<QWidget>("Text8"), Eclairage::Nuit);
  EXPECT_NE(fenetre->grab().toImage(), avant);
  PasseA(Trouve<QWidget>("Text8"), Eclairage::Jour);
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
  PasseA(editeur->focusWidget() == nullptr ? editeur : editeur->focusWidget(), Eclairage::Nuit);
  EstRouge(editeur, "objets");
  for (const char *nom : {"a.LoP", "b.LoP"}) {
    Pose(bureau.dossiers.accueil / nom, "");
  }
  bureau.ports.modale = [&](CadreFenetre &cadre) {
    qt::Dialogue dialogue(scene, cadre, fenetre.get());
    QTimer::singleShot(0, &dialogue, [&] {
      EstRouge(&dialogue, "fichier");
      CtrlN(&dialogue);
      EXPECT_NE(bureau.eclairage, Eclairage::Nuit);
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

/// The text of every role of the toolkit on the ground that it is painted on.
TEST(Palette, WhatIsWrittenInWindowsCanBeRead) {
  for (const Eclairage vue : {Eclairage::Jour, Eclairage::Crepuscule, Eclairage::Nuit}) {
    const QPalette p = qt::PaletteDe(vue);
    const qt::Teintes &t = qt::TeintesDe(vue);
    const std::pair<QColor, QColor> paires[] = {
        {p.color(QPalette::WindowText), p.color(QPalette::Window)},
        {p.color(QPalette::WindowText), t.carte},
        {p.color(QPalette::WindowText), t.bande},
        {p.color(QPalette::WindowText), t.fenetre},
        {p.color(QPalette::ButtonText), p.color(QPalette::Button)},
        {p.color(QPalette::Text), p.color(QPalette::Base)},
        {p.color(QPalette::HighlightedText), p.color(QPalette::Highlight)},
        {p.color(QPalette::ToolTipText), p.color(QPalette::ToolTipBase)},
    };
    for (const auto &[encre, fond] : paires) {
      EXPECT_GE(qt::Contraste(encre, fond), qt::ContrasteDeTexte(vue))
          << static_cast<int>(vue) << " " << encre.name().toStdString() << " " << fond.name().toStdString();
    }
  }
}

TEST(Palette, ADesktopThatWantsAHighContrastGetsIt) {
  for (const Eclairage vue : {Eclairage::Jour, Eclairage::Crepuscule}) {
    const QPalette p = qt::PaletteDe(vue, true);
    for (const auto &[encre, fond] : {std::pair{QPalette::WindowText, QPalette::Window},
                                      {QPalette::ButtonText, QPalette::Button},
                                      {QPalette::Text, QPalette::Base},
                                      {QPalette::HighlightedText, QPalette::Highlight}}) {
      EXPECT_GE(qt::Contraste(p.color(encre), p.color(fond)), 7.0) << static_cast<int>(vue) << " " << encre;
    }
    EXPECT_GE(qt::Contraste(p.color(QPalette::Disabled, QPalette::Text), p.color(QPalette::Base)), 4.5);
  }
}

TEST(Palette, ContrastIsThatOfItsDefinition) {
  EXPECT_NEAR(qt::Contraste(Qt::black, Qt::white), 21.0, 1e-9);
  EXPECT_NEAR(qt::Contraste(Qt::white, Qt::white), 1.0, 1e-9);
  EXPECT_NEAR(qt::Contraste(QColor(119, 119, 119), Qt::white), 4.48, 0.005); // the well known grey that just fails
}

/// The colours that drawings are recorded in.
constexpr std::array<Couleur, 14> kEncres = {kNoir,
                                             kRouge,
                                             kBleu,
                                             kJaune,
                                             kMagenta,
                                             kGris,
                                             0x00C000,
                                             0x008000,
                                             Rvb(130, 130, 130),
                                             Rvb(0, 0, 100),
                                             Rvb(0, 100, 0),
                                             Rvb(100, 100, 100),
                                             Rvb(0, 150, 180),
                                             Rvb(130, 150, 130)};

TEST(Palette, FiguresAndNamesOfTheSheetCanBeRead) {
  for (const Eclairage vue : {Eclairage::Jour, Eclairage::Crepuscule, Eclairage::Nuit}) {
    const QColor papier = qt::FondA(vue, Qt::white);
    for (const Couleur c : kEncres) {
      for (const GenreTexte genre : {GenreTexte::DegreLatitude, GenreTexte::Minute, GenreTexte::Ville}) {
        EXPECT_GE(qt::Contraste(qt::EncreDeTexte(vue, c, genre, Qt::white), papier), qt::ContrasteDeTexte(vue));
      }
      EXPECT_GE(qt::Contraste(qt::EncreDeLegende(vue, c), qt::TeintesDe(vue).carte), qt::ContrasteDeTexte(vue) - 0.2);
    }
  }
}

TEST(Palette, ByDayLinesHaveTheColoursThatTheyAreRecordedIn) {
  for (const Couleur c : kEncres) {
    for (const GenreLigne genre : {GenreLigne::Libre, GenreLigne::Droite, GenreLigne::Cote, GenreLigne::Grille}) {
      EXPECT_EQ(qt::EncreDeLigne(Eclairage::Jour, c, genre, Qt::white), qt::CouleurQt(c));
    }
  }
}

TEST(Palette, LinesOfPositionStandOutOnTheDarkSheet) {
  for (const Eclairage vue : {Eclairage::Crepuscule, Eclairage::Nuit}) {
    for (const Couleur c : kEncres) {
      EXPECT_GE(qt::Contraste(qt::EncreDeLigne(vue, c, GenreLigne::Droite, Qt::white), qt::FondA(vue, Qt::white)), 3.0);
    }
  }
}

TEST(Palette, ByNightAllIsRedInOneOrderOfBrightness) {
  const Eclairage nuit = Eclairage::Nuit;
  for (const Couleur c : kEncres) {
    const std::array<QColor, 5> ordre = {qt::EncreDeLigne(nuit, c, GenreLigne::Droite, Qt::white),
                                         qt::EncreDeTexte(nuit, c, GenreTexte::DegreLatitude, Qt::white),
                                         qt::EncreDeLigne(nuit, c, GenreLigne::Cote, Qt::white),
                                         qt::EncreDeTexte(nuit, c, GenreTexte::Ville, Qt::white),
                                         qt::TeintesDe(nuit).terre};
    for (std::size_t i = 0; i < ordre.size(); ++i) {
      EXPECT_TRUE(ordre[i].green() == 0 && ordre[i].blue() == 0 && ordre[i].red() < 200);
      EXPECT_TRUE(i == 0 || ordre[i].red() < ordre[i - 1].red()) << i;
    }
  }
}

TEST(Palette, ByDuskInksOfDifferentColoursKeepTheirHue) {
  for (const Couleur c : {kRouge, kBleu, kMagenta, Couleur{0x00C000}, kJaune}) {
    const QColor jour = qt::CouleurQt(c);
    const QColor soir = qt::EncreA(Eclairage::Crepuscule, jour);
    EXPECT_NEAR(soir.hslHue(), jour.hslHue(), 2) << jour.name().toStdString();
    EXPECT_GT(soir.hslSaturation(), 80) << jour.name().toStdString();
  }
}

TEST_F(VueDeNuit, ByDuskNothingIsWhiteAndTheSheetIsDark) {
  OuvreTout(kGrandEcran);
  Joue([this] { ClicControle(bureau, d.Command17); });
  PasseA(fenetre.get(), Eclairage::Crepuscule);
  const QImage image = fenetre->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QDir().mkpath(VELMARIS_IMAGES);
  image.save(QString(VELMARIS_IMAGES) + "/crepuscule-feuille.png");
  int clairs = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      clairs += qGray(image.pixel(x, y)) > 128 ? 1 : 0;
      ASSERT_LT(qGray(image.pixel(x, y)), 250) << x << " " << y;
    }
  }
  EXPECT_LT(clairs, image.width() * image.height() / 12);
}

TEST_F(VueDeNuit, TheWindowsPictureComesBackToDayWithThem) {
  OuvreTout(kPetitEcran);
  qt::PoseIcone();
  const auto vue = [this] { return fenetre->windowIcon().pixmap(32, 32).toImage(); };
  const QImage jour = vue();
  PasseA(fenetre.get(), Eclairage::Nuit);
  const QImage nuit = vue();
  EXPECT_NE(nuit, jour);
  PasseA(fenetre.get(), Eclairage::Jour);
  EXPECT_EQ(vue(), jour);
  QApplication::setWindowIcon({});
}

TEST(Teinte, WhatStandsOutByDayStandsOutByNight) {
  EXPECT_EQ(qt::FondA(Eclairage::Nuit, Qt::white), QColor(Qt::black));
  EXPECT_GT(qt::EncreA(Eclairage::Nuit, Qt::black).red(), 180);
  EXPECT_LT(qt::EncreA(Eclairage::Nuit, QColor(220, 220, 220)).red(), 50);
  const QColor ciel(0, 0, 255);
  EXPECT_GT(qt::EncreA(Eclairage::Nuit, Qt::white, ciel).red(), 180);
  EXPECT_EQ(qt::EncreA(Eclairage::Nuit, ciel, ciel), qt::FondA(Eclairage::Nuit, ciel));
  EXPECT_LE(qt::FondA(Eclairage::Nuit, ciel).red(), 30);
}

TEST(Teinte, LinesOfDifferentColoursStayApart) {
  std::set<int> rouges;
  for (const QColor &c : {QColor(Qt::black), QColor(Qt::blue), QColor(Qt::red), QColor(Qt::magenta), QColor(Qt::green),
                          QColor(Qt::yellow), QColor(220, 220, 220)}) {
    const int rouge = qt::EncreA(Eclairage::Nuit, c).red();
    for (const int autre : rouges) {
      EXPECT_GE(std::abs(rouge - autre), 12) << c.name().toStdString();
    }
    EXPECT_TRUE(qt::EncreA(Eclairage::Nuit, c).green() == 0 && qt::EncreA(Eclairage::Nuit, c).blue() == 0);
    rouges.insert(rouge);
  }
}

} // namespace
} // namespace velmaris::essais

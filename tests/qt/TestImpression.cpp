#include "OutilsFenetre.hpp"

#include "shell/qt/cadre/FenetreImpression.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/systeme/Imprimante.hpp"

#include "shell/qt/peinture/Grandeur.hpp"

#include <QAbstractButton>
#include <QEventLoop>
#include <QMessageBox>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>

/// The print page on the screen and on paper, as other programs read it.
namespace velmaris::essais {
namespace {

const QPageLayout kA4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15));

/// What a program of the system prints about a file.
QString Sortie(const QString &programme, const QStringList &arguments) {
  QProcess processus;
  processus.start(programme, arguments);
  EXPECT_TRUE(processus.waitForFinished()) << programme.toStdString();
  EXPECT_EQ(processus.exitCode(), 0) << programme.toStdString();
  return QString::fromUtf8(processus.readAllStandardOutput());
}

class PageOuverte : public FenetreOuverte {
protected:
  /// Two lines on a sheet with the chart, and the page over them.
  void OuvrePage(const Ecran &ecran = kGrandEcran) {
    Ouvre(ecran);
    Joue([this] {
      TapeVisee();
      ClicControle(bureau, d.Command2);
      Range(0);
      Tape(d.Text3, "16");
      Tape(d.Text13, "33");
      ClicControle(bureau, d.Command2);
      Range(1);
      ClicControle(bureau, d.Command6);
      ClicControle(bureau, d.Droite[0]);
      ClicControle(bureau, d.Droite[1]);
    });
    MontrePage();
  }

  void Range(std::size_t ligne) {
    ClicOption(bureau, d.Option1[0]);
    ClicControle(bureau, d.Droite[ligne]);
  }

  void MontrePage() {
    Joue([this] { ClicControle(bureau, d.Command11); });
    ASSERT_NE(Page(), nullptr);
    Page()->activateWindow();
    QApplication::processEvents();
  }

  QWidget *Page() {
    for (QWidget *fille : fenetre->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
      if (dynamic_cast<qt::FenetreImpression *>(fille) != nullptr && fille->isVisible()) {
        return fille;
      }
    }
    return nullptr;
  }

  QString Pdf() { return QString::fromStdString((dossier / "page.pdf").string()); }

  bool Imprime() { return qt::EcritPdf(bureau.impression, Pdf().toStdString(), kA4); }
};

TEST_F(PageOuverte, ThePdfIsOneLandscapeSheet) {
  OuvrePage();
  ASSERT_TRUE(Imprime());
  const QString tout = Sortie("pdfinfo", {Pdf()});
  EXPECT_TRUE(tout.contains(QRegularExpression("Pages: +1\n"))) << tout.toStdString();
  const auto taille = QRegularExpression("Page size: +([0-9.]+) x ([0-9.]+)").match(tout);
  ASSERT_TRUE(taille.hasMatch());
  EXPECT_NEAR(taille.captured(1).toDouble(), 842, 1) << "points of A4 on its long side";
  EXPECT_NEAR(taille.captured(2).toDouble(), 595, 1);
}

TEST_F(PageOuverte, TheTextsOfTheRowsCanBeReadFromThePdf) {
  OuvrePage();
  ASSERT_TRUE(Imprime());
  const QString texte = Sortie("pdftotext", {"-layout", Pdf(), "-"}).simplified();
  const Impression &page = bureau.impression;
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_TRUE(texte.contains(QString::fromStdString(page.Frame4[i].legende).simplified())) << i;
    for (const Controle *etiquette : EtiquettesDe(page, i)) {
      EXPECT_TRUE(texte.contains(QString::fromStdString(etiquette->legende).simplified())) << etiquette->legende;
    }
  }
  EXPECT_FALSE(texte.contains("00:00:00")) << "empty rows aren't printed";
  EXPECT_FALSE(texte.contains("Imprimer")) << "nor is the button";
  EXPECT_TRUE(texte.contains("Lorient")) << "the chart's names are texts";
}

TEST_F(PageOuverte, ThePictureIsPrintedAsLinesNotAsPixels) {
  OuvrePage();
  ASSERT_TRUE(Imprime());
  const QString images = Sortie("pdfimages", {"-list", Pdf()});
  EXPECT_EQ(images.count('\n'), 2) << "a title of two lines and no picture:\n" << images.toStdString();
  // Lines told as vectors: the coast alone has hundreds of segments.
  const QString dessin = QString::fromStdString((dossier / "page.svg").string());
  Sortie("pdftocairo", {"-svg", Pdf(), dessin});
  EXPECT_GT(QString::fromStdString(Contenu(dessin.toStdString())).count(" L "), 500);
}

TEST_F(PageOuverte, ASheetTooSmallTakesThePageSmallerAndALargeOneAtItsFullSize) {
  OuvrePage();
  const auto ecartRangees = [&](QPageSize::PageSizeId feuille) {
    EXPECT_TRUE(qt::EcritPdf(bureau.impression, Pdf().toStdString(),
                             {QPageSize(feuille), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10)}));
    // Left edges of the first row's title and of the second's, in points.
    const QString mots = Sortie("pdftotext", {"-bbox", Pdf(), "-"});
    const auto un = QRegularExpression("xMin=\"([0-9.]+)\"[^>]*>1°<").match(mots);
    const auto deux = QRegularExpression("xMin=\"([0-9.]+)\"[^>]*>2°<").match(mots);
    return deux.captured(1).toDouble() - un.captured(1).toDouble();
  };
  constexpr double kPoints = (2850.0 - 60.0) / 20.0;
  EXPECT_NEAR(ecartRangees(QPageSize::A4), kPoints, 0.5);
  EXPECT_NEAR(ecartRangees(QPageSize::A3), kPoints, 0.5);
  constexpr double kHauteurA5 = 419.5 - 2 * 10.0; // the margins are of ten points
  EXPECT_NEAR(ecartRangees(QPageSize::A5), kPoints * kHauteurA5 / (10860.0 / 20.0), 0.5);
}

TEST_F(PageOuverte, ItIsPrintedAsByDayAlsoByNight) {
  OuvrePage();
  ASSERT_TRUE(Imprime());
  const auto image = [this] {
    const QString prefixe = QString::fromStdString((dossier / "page").string());
    Sortie("pdftoppm", {"-r", "40", "-singlefile", Pdf(), prefixe});
    return Contenu(dossier / "page.ppm");
  };
  const std::string jour = image();
  Joue([this] { bureau.eclairage = Eclairage::Nuit; });
  ASSERT_TRUE(Imprime());
  EXPECT_FALSE(jour.empty());
  EXPECT_EQ(image(), jour);
  Joue([this] { bureau.eclairage = Eclairage::Jour; });
}

TEST_F(PageOuverte, AFileThatCantBeWrittenIsAFailureAndAnOldOneStaysWhole) {
  OuvrePage();
  EXPECT_FALSE(qt::EcritPdf(bureau.impression, dossier / "absent" / "page.pdf", kA4));
  Pose(dossier / "occupe.pdf", "ancien");
  std::filesystem::create_directories(dossier / "dossier.pdf");
  EXPECT_FALSE(qt::EcritPdf(bureau.impression, dossier / "dossier.pdf", kA4));
  EXPECT_EQ(Contenu(dossier / "occupe.pdf"), "ancien");
}

TEST_F(PageOuverte, AClickEscapeAndTheCloseButtonPutItAway) {
  OuvrePage();
  const auto estPartie = [&] { return Page() == nullptr && !bureau.impression.cadre.visible; };
  const QPointF place(300, 60);
  QMouseEvent relache(QEvent::MouseButtonRelease, place, Page()->mapToGlobal(place), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(Page(), &relache);
  QApplication::processEvents();
  EXPECT_TRUE(estPartie());
  MontrePage();
  Touche(Page(), Qt::Key_Escape);
  EXPECT_TRUE(estPartie());
  MontrePage();
  Page()->close();
  QApplication::processEvents();
  EXPECT_TRUE(estPartie());
  EXPECT_TRUE(bureau.impression.Frame4[1].visible) << "its rows stay";
}

TEST_F(PageOuverte, ItsButtonLiesAtItsPlaceOnThePageNotOfItsWindow) {
  OuvrePage();
  const Place &cadre = bureau.impression.Frame1.place;
  const Place &bouton = bureau.impression.Command1.place;
  const auto *widget = Page()->findChild<QAbstractButton *>("Command1");
  ASSERT_NE(widget, nullptr);
  const double facteur = qt::PixelsParTwip(*widget);
  const QPoint place = widget->mapTo(Page(), QPoint());
  constexpr double kTapis = 20; // pixels of the mat around the page
  EXPECT_NEAR(place.x(), kTapis + (cadre.gauche + bouton.gauche) * facteur, 1);
  EXPECT_NEAR(place.y(), kTapis + (cadre.haut + bouton.haut) * facteur, 1);
}

TEST_F(PageOuverte, AChartDrawnBehindItShowsOnReturn) {
  OuvrePage();
  const QImage avant = Page()->grab().toImage();
  Joue([this] { BougeCurseur(bureau, d.HScroll1, 4000); });
  EXPECT_EQ(Page()->grab().toImage(), avant);
  fenetre->activateWindow();
  QApplication::processEvents();
  Page()->activateWindow();
  QApplication::processEvents();
  EXPECT_NE(Page()->grab().toImage(), avant);
}

TEST_F(PageOuverte, ReturnPrintsAndAFailureLeavesThePageWithoutItsButton) {
  OuvrePage();
  int imprimees = 0;
  bureau.ports.imprime = [&](const Impression &) { return ++imprimees > 1; };
  auto *bouton = Page()->findChild<QPushButton *>("Command1");
  EXPECT_TRUE(bouton->isVisible());
  Touche(Page(), Qt::Key_Return);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_TRUE(Page()->isVisible());
  EXPECT_FALSE(bouton->isVisible());
  fenetre->activateWindow();
  QApplication::processEvents();
  Page()->activateWindow();
  QApplication::processEvents();
  EXPECT_TRUE(bouton->isVisible());
  Touche(Page(), Qt::Key_Return);
  EXPECT_EQ(imprimees, 2);
  EXPECT_TRUE(bouton->isVisible());
}

TEST_F(PageOuverte, ABoxThatGoesIsNoComingToTheFront) {
  OuvrePage();
  const unsigned prises = bureau.impression.prises;
  QMessageBox boite(Page());
  QTimer::singleShot(0, &boite, [&] {
    boite.activateWindow();
    QApplication::processEvents();
    EXPECT_FALSE(Page()->isActiveWindow());
    boite.accept();
  });
  boite.exec();
  Page()->activateWindow();
  QApplication::processEvents();
  EXPECT_TRUE(Page()->isActiveWindow());
  EXPECT_EQ(bureau.impression.prises, prises);
}

TEST_F(PageOuverte, AWindowThatCameBetweenABoxAndThePageBringsThePageToTheFront) {
  OuvrePage();
  bureau.impression.Frame1.visible = false; // as a failed printing leaves it
  const unsigned prises = bureau.impression.prises;
  QMessageBox boite(Page());
  QTimer::singleShot(0, &boite, [&] {
    boite.activateWindow();
    QApplication::processEvents();
    boite.accept();
    fenetre->activateWindow();
    QApplication::processEvents();
  });
  boite.exec();
  fenetre->activateWindow();
  QApplication::processEvents();
  Page()->activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(bureau.impression.prises, prises + 1);
  EXPECT_TRUE(Page()->findChild<QPushButton *>("Command1")->isVisible());
}

TEST_F(PageOuverte, TheBoxOfAFailedPrintingBelongsToThePage) {
  OuvrePage();
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  bureau.ports.imprime = [](const Impression &) { return false; };
  fenetre->activateWindow(); // as when the printer's dialog has given the focus to another window
  QApplication::processEvents();
  const QWidget *parent = nullptr;
  QTimer::singleShot(0, fenetre.get(), [&] {
    QWidget *boite = QApplication::activeModalWidget();
    ASSERT_NE(boite, nullptr);
    parent = boite->parentWidget();
    boite->close();
  });
  Joue([this] { ClicControle(bureau, bureau.impression.Command1); });
  EXPECT_NE(Page(), nullptr);
  EXPECT_EQ(parent, Page());
}

TEST_F(PageOuverte, ItsTitleLiesOnTheScreen) {
  OuvrePage(kPetitEcran);
  const QRect libre = Page()->screen()->availableGeometry();
  EXPECT_GE(Page()->frameGeometry().top(), libre.top());
  EXPECT_LE(Page()->frameGeometry().top() + 32 + Page()->height(), libre.bottom() + 1) << "its title over it";
  EXPECT_GE(Page()->geometry().left(), libre.left());
}

TEST_F(PageOuverte, ASmallScreenShowsThePageSmallerWithItsButtonInReach) {
  OuvrePage(kEcranBas);
  auto *bouton = Page()->findChild<QPushButton *>("Command1");
  EXPECT_TRUE(Page()->rect().contains(bouton->geometry().translated(bouton->parentWidget()->pos())));
  EXPECT_LE(Page()->height(), Page()->screen()->availableGeometry().height());
}

TEST_F(PageOuverte, ByNightThePageIsRed) {
  OuvrePage();
  Joue([this] { bureau.eclairage = Eclairage::Nuit; });
  const QImage image = Page()->grab().toImage();
  int pire = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      pire = std::max({pire, qGreen(image.pixel(x, y)), qBlue(image.pixel(x, y))});
    }
  }
  EXPECT_LE(pire, 16);
  Joue([this] { bureau.eclairage = Eclairage::Jour; });
}

/// The dialog that chooses the printer, played by a function once it is there.
class Imprimeur : public PageOuverte {
protected:
  /// "Imprimer" by the real port.
  void Imprime(const std::function<void(QPrintDialog &)> &geste) {
    qt::Boites ports(bureau);
    ports.Ouvre(scene, *fenetre);
    bureau.ports.boite = [this](const Boite &boite) {
      boites.push_back(boite);
      return true;
    };
    QTimer::singleShot(0, fenetre.get(), [&] {
      auto *dialogue = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
      ASSERT_NE(dialogue, nullptr);
      ++dialogues;
      EXPECT_EQ(dialogue->printer()->pageLayout().orientation(), QPageLayout::Landscape);
      EXPECT_FALSE(Page()->findChild<QPushButton *>("Command1")->isVisible());
      geste(*dialogue);
    });
    Joue([this] { ClicControle(bureau, bureau.impression.Command1); });
  }

  int dialogues = 0;
};

TEST_F(Imprimeur, GivingUpIsNoFailure) {
  OuvrePage();
  Imprime([](QPrintDialog &dialogue) { dialogue.reject(); });
  EXPECT_EQ(dialogues, 1);
  EXPECT_TRUE(boites.empty());
  EXPECT_TRUE(bureau.impression.Frame1.visible);
}

TEST_F(Imprimeur, TheDialogPrintsToAPdfFile) {
  OuvrePage();
  Imprime([this](QPrintDialog &dialogue) {
    dialogue.printer()->setOutputFileName(Pdf());
    dialogue.done(QDialog::Accepted);
  });
  EXPECT_TRUE(boites.empty());
  EXPECT_EQ(Contenu(Pdf().toStdString()).substr(0, 5), "%PDF-");
}

TEST_F(Imprimeur, APrintingThatFailsIsToldByItsMessage) {
  OuvrePage();
  Imprime([this](QPrintDialog &dialogue) {
    dialogue.printer()->setOutputFileName(QString::fromStdString((dossier / "absent" / "page.pdf").string()));
    dialogue.done(QDialog::Accepted);
  });
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[24]);
  EXPECT_FALSE(bureau.impression.Frame1.visible);
  EXPECT_TRUE(Page()->isVisible());
}

TEST_F(Imprimeur, ReturnPrintsToTheNameThatIsTypedWhateverFilesLieThere) {
  OuvrePage();
  Pose(dossier / "page.pdf.ancien", "avant");
  Imprime([this](QPrintDialog &dialogue) {
    auto *nom = dialogue.findChild<QLineEdit *>("filename");
    ASSERT_NE(nom, nullptr);
    nom->setFocus();
    nom->clear();
    for (const QChar &lettre : Pdf()) {
      Touche(nom, 0, lettre);
    }
    // A list of the folder's files would be filled from the disk, and open by itself over the field.
    for (int i = 0; i < 20 && QApplication::activePopupWidget() == nullptr; ++i) {
      QEventLoop pause;
      QTimer::singleShot(50, &pause, &QEventLoop::quit);
      pause.exec();
    }
    QWidget *cible = QApplication::activePopupWidget();
    Touche(cible == nullptr ? nom : cible, Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
    if (dialogue.isVisible()) {
      dialogue.reject();
    }
  });
  EXPECT_EQ(Contenu(Pdf().toStdString()).substr(0, 5), "%PDF-");
}

TEST_F(Imprimeur, TheDialogSpeaksTheLanguageOfTheProgram) {
  OuvrePage();
  Imprime([](QPrintDialog &dialogue) {
    EXPECT_EQ(dialogue.windowTitle(), "Imprimer");
    dialogue.reject();
  });
  Joue([this] { ClicControle(bureau, d.Image10[1]); });
  Imprime([](QPrintDialog &dialogue) {
    EXPECT_EQ(dialogue.windowTitle(), "Print");
    dialogue.reject();
  });
}

} // namespace
} // namespace velmaris::essais

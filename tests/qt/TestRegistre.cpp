#include "OutilsFenetre.hpp"

#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/widgets/Table.hpp"
#include "shell/registre/LecteurRegistre.hpp"
#include "shell/registre/Registre.hpp"

#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

/// The log's window on the screen.
namespace velmaris::essais {
namespace {

class FenetreDuRegistre : public FenetreOuverte {
protected:
  ~FenetreDuRegistre() override { qt::AccordeEclairage(Eclairage::Jour); }
  FenetreDuRegistre() = default;
  FenetreDuRegistre(const FenetreDuRegistre &) = delete;
  FenetreDuRegistre &operator=(const FenetreDuRegistre &) = delete;
  FenetreDuRegistre(FenetreDuRegistre &&) = delete;
  FenetreDuRegistre &operator=(FenetreDuRegistre &&) = delete;

  /// The program with two sights, the log open.
  void OuvreLog(const Ecran &ecran, bool anglais = false) {
    Ouvre(ecran, anglais);
    Joue([this] {
      TapeVisee();
      Calcule();
      Tape(d.Text3, "09");
      Calcule();
      ClicControle(bureau, d.PU_Registre);
    });
    journal = fenetre->findChild<QDialog *>("Registre");
    ASSERT_NE(journal, nullptr);
    table = journal->findChild<qt::Table *>("Table1");
    ASSERT_NE(table, nullptr);
    QApplication::processEvents();
  }

  void Verifie() {
    const Controle *ecart = scene.Ecart();
    EXPECT_EQ(ecart, nullptr) << ecart->nom;
  }

  QDialog *journal = nullptr;
  qt::Table *table = nullptr;
};

TEST_F(FenetreDuRegistre, ItHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    OuvreLog(kPetitEcran, anglais);
    EXPECT_TRUE(journal->isVisible());
    RienDeCoupe(*journal, nullptr);
    Verifie();
    for (int colonne = 1; colonne < table->model()->columnCount() - 1; ++colonne) {
      const QString mots = table->model()->index(0, colonne).data().toString();
      EXPECT_LT(table->fontMetrics().horizontalAdvance(mots) + 6, table->columnWidth(colonne)) << mots.toStdString();
    }
    fenetre.reset();
    bureau.registre.cadre.visible = false;
  }
}

TEST_F(FenetreDuRegistre, TheKeyboardIsInTheListAndReturnTakesARowUp) {
  OuvreLog(kGrandEcran);
  journal->activateWindow();
  EXPECT_EQ(journal->focusWidget(), table);
  Joue([this] { Tape(d.Text13, "20"); });
  Touche(table, Qt::Key_Home);
  Touche(table, Qt::Key_Return);
  EXPECT_EQ(d.Text13.texte, "65");
  EXPECT_EQ(d.Text3.texte, "12") << "the newer of the two";
  EXPECT_TRUE(journal->isVisible());
  Verifie();
  Touche(table, Qt::Key_Space, " ");
  EXPECT_EQ(bureau.registreOuvert.auPoint.size(), 1U);
  EXPECT_EQ(table->model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  Verifie();
  QKeyEvent echap(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(journal, &echap);
  QApplication::processEvents();
  EXPECT_FALSE(bureau.registre.cadre.visible);
}

TEST_F(FenetreDuRegistre, MadeLargerItShowsMoreRowsAndItsSizeIsKept) {
  OuvreLog(kPetitEcran);
  const int avant = table->height();
  journal->resize(journal->size() + QSize(0, 30));
  QApplication::processEvents();
  EXPECT_NEAR(table->height(), avant + 30, 2);
  const QSize taille = journal->size();
  Verifie();
  Joue([this] { ClicControle(bureau, bureau.registre.Command7); });
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  Joue([this] { ClicControle(bureau, d.PU_Registre); });
  journal = nullptr;
  for (auto *ouverte : fenetre->findChildren<QDialog *>("Registre")) {
    journal = ouverte->isVisible() ? ouverte : journal;
  }
  ASSERT_NE(journal, nullptr);
  EXPECT_EQ(journal->size(), taille);
}

TEST_F(FenetreDuRegistre, ClosedAndOpenedItIsAsLargeAsItWas) {
  OuvreLog(kGrandEcran);
  const QSize taille = journal->size();
  for (int i = 0; i < 3; ++i) {
    Joue([this] { ClicControle(bureau, bureau.registre.Command7); });
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    Joue([this] { ClicControle(bureau, d.PU_Registre); });
    QApplication::processEvents();
    for (auto *ouverte : fenetre->findChildren<QDialog *>("Registre")) {
      journal = ouverte->isVisible() ? ouverte : journal;
    }
    EXPECT_EQ(journal->size(), taille);
    EXPECT_LE(journal->minimumHeight(), taille.height());
  }
}

TEST_F(FenetreDuRegistre, AFileOfASightDroppedOnItComesIn) {
  OuvreLog(kGrandEcran);
  const std::string panneau = d.Text13.texte;
  QMimeData fichiers;
  fichiers.setUrls({QUrl::fromLocalFile(QString(VELMARIS_DONNEES) + "/exemples/24SEP26 203025.LoP")});
  QDragEnterEvent arrivee({10, 10}, Qt::CopyAction, &fichiers, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(journal, &arrivee);
  EXPECT_TRUE(arrivee.isAccepted());
  QDropEvent depot(QPointF(10, 10), Qt::CopyAction, &fichiers, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(journal, &depot);
  QApplication::processEvents();
  EXPECT_EQ(bureau.registre.Table1.tableau.lignes, 3U);
  EXPECT_EQ(table->model()->rowCount(), 3);
  EXPECT_EQ(d.Text13.texte, panneau);
  Verifie();
}

TEST_F(FenetreDuRegistre, TheJournalsAreReadBesideTheInterface) {
  qt::Boites ports(bureau);
  Ouvre(kGrandEcran);
  ports.Ouvre(scene, *fenetre);
  Joue([this] {
    TapeVisee();
    Calcule();
    ClicControle(bureau, d.PU_Registre);
  });
  for (int i = 0; i < 1000 && bureau.registreOuvert.lu == nullptr; ++i) {
    QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
  }
  ASSERT_NE(bureau.registreOuvert.lu, nullptr);
  EXPECT_EQ(bureau.registre.Table1.tableau.lignes, 1U);
  // Asked for and never waited for: the program may end meanwhile.
  Joue([this] { SaisitTexte(bureau, bureau.registre.Text1[0], "x"); });
}

TEST_F(FenetreDuRegistre, ByNightItIsRed) {
  OuvreLog(kGrandEcran);
  Joue([this] {
    bureau.eclairage = Eclairage::Nuit;
    SaisitTexte(bureau, bureau.registre.Text1[2], "demain");
  });
  const QImage image = journal->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QDir().mkpath(VELMARIS_IMAGES);
  image.save(QString(VELMARIS_IMAGES) + "/registre-nuit.png");
  int autres = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb c = image.pixel(x, y);
      autres += std::max(qGreen(c), qBlue(c)) > 16 || qRed(c) > 200 ? 1 : 0;
    }
  }
  EXPECT_EQ(autres, 0);
}

} // namespace
} // namespace velmaris::essais

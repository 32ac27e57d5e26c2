#include "OutilsFenetre.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/widgets/Rendu.hpp"
#include "shell/qt/widgets/Table.hpp"

#include <QAccessible>
#include <QDialog>
#include <QHeaderView>

#include <algorithm>
#include <chrono>
#include <set>

/// A long list in columns: the core holds what is chosen, the toolkit asks for the rows in sight.
namespace velmaris::essais {
namespace {

constexpr std::size_t kLongue = 100'000;

/// Rows that bear their number, and note which of them were asked for.
class Numerotees : public LecteurLignes {
public:
  std::string texte(std::size_t ligne, std::size_t colonne) const override {
    lues.insert(ligne);
    return std::to_string(ligne) + "/" + std::to_string(colonne);
  }
  bool coche(std::size_t ligne) const override { return cochees.contains(ligne); }
  TonLigne ton(std::size_t ligne) const override { return ligne % 2 == 0 ? TonLigne::Alerte : TonLigne::Faible; }

  mutable std::set<std::size_t> lues;
  std::set<std::size_t> cochees;
};

/// A dialog with a scale of its own.
class Cadre : public QDialog, public qt::Echelonnee {
public:
  Cadre() : Echelonnee(1.0) {}
  void Grandit(double echelle) { PoseEchelle(echelle); }
};

class TableLongue : public Programme {
protected:
  ~TableLongue() override { qt::AccordeEclairage(Eclairage::Jour); }
  TableLongue() = default;
  TableLongue(const TableLongue &) = delete;
  TableLongue &operator=(const TableLongue &) = delete;
  TableLongue(TableLongue &&) = delete;
  TableLongue &operator=(TableLongue &&) = delete;

  void Ouvre(std::size_t lignes = kLongue) {
    Demarre();
    controle.nom = "Table1";
    controle.genre = Genre::Table;
    controle.infobulle = "Visées";
    controle.place = {0, 0, 6000, 4500};
    controle.tableau.colonnes = {{"Date", 1500, Cote::Gauche}, {"Azimut", 1500, Cote::Droite}, {"Note", 900, Cote{}}};
    controle.tableau.coches = true;
    PoseLignes(controle.tableau, lignes, lecteur);
    cadre.resize(400, 300);
    rendu = std::make_unique<qt::Rendu>(scene, cadre, ListeControles{&controle});
    scene.Accorde();
    cadre.show();
    table = cadre.findChild<qt::Table *>("Table1");
    ASSERT_NE(table, nullptr);
    table->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
  }

  void Touche(int touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
    QKeyEvent appui(QEvent::KeyPress, touche, avec, touche == Qt::Key_Space ? " " : "");
    QApplication::sendEvent(table, &appui);
    QApplication::processEvents();
    EXPECT_EQ(scene.Ecart(), nullptr);
  }

  void Presse(QEvent::Type genre, int ligne, int colonne) {
    const QPointF place = table->visualRect(table->model()->index(ligne, colonne)).center();
    QWidget *dans = table->viewport();
    QMouseEvent souris(genre, place, dans->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(dans, &souris);
    QMouseEvent lache(QEvent::MouseButtonRelease, place, dans->mapToGlobal(place), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(dans, &lache);
    QApplication::processEvents();
  }

  std::shared_ptr<Numerotees> lecteur = std::make_shared<Numerotees>();
  qt::Scene scene{bureau};
  Cadre cadre;
  Controle controle;
  Tableau &t = controle.tableau;
  std::unique_ptr<qt::Rendu> rendu;
  qt::Table *table = nullptr;
};

TEST_F(TableLongue, OnlyRowsThatComeIntoSightAreRead) {
  Ouvre();
  EXPECT_EQ(table->model()->rowCount(), static_cast<int>(kLongue));
  EXPECT_FALSE(lecteur->lues.empty());
  Touche(Qt::Key_End);
  table->grab();
  EXPECT_TRUE(lecteur->lues.contains(kLongue - 1));
  EXPECT_LT(lecteur->lues.size(), 120U);
  EXPECT_GT(t.premiere, static_cast<int>(kLongue) - 60);
}

TEST_F(TableLongue, TheKeyboardGoesToEveryRowAndChoosesMore) {
  Ouvre();
  Touche(Qt::Key_Home);
  EXPECT_EQ(t.courante, 0);
  Touche(Qt::Key_Down);
  Touche(Qt::Key_Right);
  EXPECT_EQ(t.choisies, std::vector<std::size_t>{1});
  Touche(Qt::Key_Down, Qt::ShiftModifier);
  Touche(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(t.choisies, (std::vector<std::size_t>{1, 2, 3}));
  EXPECT_EQ(t.courante, 3);
  Touche(Qt::Key_End);
  EXPECT_EQ(t.choisies, std::vector<std::size_t>{kLongue - 1});
  Touche(Qt::Key_PageUp);
  EXPECT_LT(t.courante, static_cast<int>(kLongue) - 5);
  Touche(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(t.choisies.size(), kLongue);
}

TEST_F(TableLongue, SpaceAndAClickPressABoxAndLeaveTheChosenRows) {
  Ouvre();
  std::vector<int> pressees;
  table->auCoche = [&](int ligne) { pressees.push_back(ligne); };
  Touche(Qt::Key_Home);
  Touche(Qt::Key_Space);
  Presse(QEvent::MouseButtonPress, 3, 0);
  Presse(QEvent::MouseButtonDblClick, 3, 0);
  EXPECT_EQ(pressees, (std::vector<int>{0, 3, 3}));
  EXPECT_EQ(t.choisies, std::vector<std::size_t>{0});
}

TEST_F(TableLongue, ReturnAndADoubleClickAreForTheRowAndTheWindowStays) {
  Ouvre();
  std::vector<int> faites;
  table->auValide = [&](int ligne) { faites.push_back(ligne); };
  Touche(Qt::Key_Home);
  Touche(Qt::Key_Down);
  Touche(Qt::Key_Return);
  Touche(Qt::Key_Enter);
  Presse(QEvent::MouseButtonDblClick, 4, 1);
  EXPECT_EQ(faites, (std::vector<int>{1, 1, 4}));
  EXPECT_TRUE(cadre.isVisible());
}

TEST_F(TableLongue, WhatTheCoreChoosesIsShown) {
  Ouvre();
  t.choisies = {5, 6, 9};
  t.courante = 9;
  scene.Accorde();
  EXPECT_EQ(table->Choisies(), t.choisies);
  EXPECT_EQ(table->Courante(), 9);
  auto autres = std::make_shared<Numerotees>();
  PoseLignes(t, 3, autres);
  scene.Accorde();
  EXPECT_EQ(table->model()->rowCount(), 3);
  EXPECT_TRUE(table->Choisies().empty());
  EXPECT_EQ(table->Courante(), kSansLigne);
  autres->cochees = {1};
  ++t.version;
  t.colonnes[0].legende = "Day";
  scene.Accorde();
  EXPECT_EQ(table->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal).toString(), "Day");
  PoseLignes(t, 0, nullptr);
  scene.Accorde();
  Touche(Qt::Key_End);
  EXPECT_EQ(t.courante, kSansLigne);
}

TEST_F(TableLongue, AScreenReaderHearsNamesHeadersAndCells) {
  Ouvre();
  lecteur->cochees = {0};
  EXPECT_EQ(table->accessibleName(), QString("Visées"));
  const QAccessibleInterface *lu = QAccessible::queryAccessibleInterface(table);
  ASSERT_NE(lu, nullptr);
  EXPECT_EQ(lu->role(), QAccessible::Table);
  const auto *grille = const_cast<QAccessibleInterface *>(lu)->tableInterface();
  ASSERT_NE(grille, nullptr);
  auto *cellules = const_cast<QAccessibleTableInterface *>(grille);
  EXPECT_EQ(cellules->columnDescription(2), QString("Azimut"));
  EXPECT_EQ(cellules->cellAt(7, 2)->text(QAccessible::Name), QString("7/1"));
  EXPECT_EQ(cellules->cellAt(0, 0)->text(QAccessible::Name), QString("0/0"));
  EXPECT_TRUE(cellules->cellAt(0, 0)->state().checked);
  EXPECT_FALSE(cellules->cellAt(1, 0)->state().checked);
}

TEST_F(TableLongue, RowsAndColumnsGrowWithTheWindow) {
  Ouvre();
  const int ligne = table->rowHeight(0);
  const int colonne = table->columnWidth(1);
  EXPECT_EQ(colonne, 100); // 1500 units, 15 to the pixel
  cadre.Grandit(2.0);
  const auto debut = std::chrono::steady_clock::now();
  rendu->AccordeEchelle();
  EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(2)) << "all rows at once, not one by one";
  EXPECT_EQ(table->columnWidth(1), 2 * colonne);
  EXPECT_NEAR(table->rowHeight(0), 2 * ligne, 3);
}

TEST_F(TableLongue, ByNightItIsRed) {
  Ouvre();
  bureau.eclairage = Eclairage::Nuit;
  lecteur->cochees = {1, 2};
  t.choisies = {2, 3};
  t.courante = 3;
  scene.Accorde();
  QApplication::processEvents();
  const QImage image = table->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QDir().mkpath(VELMARIS_IMAGES);
  image.save(QString(VELMARIS_IMAGES) + "/table-nuit.png");
  int autres = 0;
  int visibles = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb c = image.pixel(x, y);
      autres += std::max(qGreen(c), qBlue(c)) > 16 || qRed(c) > 200 ? 1 : 0;
      visibles += qRed(c) > 100 ? 1 : 0;
    }
  }
  EXPECT_EQ(autres, 0);
  EXPECT_GT(visibles, 200);
  bureau.eclairage = Eclairage::Jour;
  scene.Accorde();
  QApplication::processEvents();
  table->grab().save(QString(VELMARIS_IMAGES) + "/table-jour.png");
}

} // namespace
} // namespace velmaris::essais

#include "OutilsFenetre.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/widgets/Elements.hpp"

#include <QAccessible>

#include <algorithm>

/// Undo by the keyboard; fields that are to be mended and results that are out of date, as they are seen and heard.
namespace velmaris::essais {
namespace {

class Annule : public FenetreOuverte {
protected:
  void SetUp() override {
    Ouvre(kGrandEcran);
    fenetre->activateWindow();
    d.Check2.valeur = 0;
  }
  ~Annule() override { qt::AccordeEclairage(Eclairage::Jour); }
  Annule() = default;
  Annule(const Annule &) = delete;
  Annule &operator=(const Annule &) = delete;
  Annule(Annule &&) = delete;
  Annule &operator=(Annule &&) = delete;

  void CtrlZ(QWidget &widget, Qt::KeyboardModifiers avec = {}) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier | avec);
    QApplication::sendEvent(&widget, &appui);
    QApplication::processEvents();
  }

  void Frappe(QWidget &widget, const QString &texte) {
    for (const QChar c : texte) {
      Touche(&widget, Qt::Key_0 + c.digitValue(), c);
    }
  }

  static int Pixels(QWidget &widget, const std::function<bool(QColor)> &est) {
    const QImage image = widget.grab().toImage();
    int nombre = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        nombre += est(image.pixelColor(x, y)) ? 1 : 0;
      }
    }
    return nombre;
  }

  static bool EstAmbre(QColor c) { return c.red() > 180 && c.green() > 80 && c.green() < 150 && c.blue() < 60; }
};

TEST_F(Annule, TypingInTheFieldComesFirstAndThenTheGesture) {
  Joue([this] { TapeVisee(); });
  temps.heure = 17;
  Joue([this] { ClicControle(bureau, d.Command1); });
  ASSERT_EQ(d.Text3.texte, "17");
  auto &champ = *Trouve<QLineEdit>("Text13");
  champ.setFocus();
  champ.selectAll();
  Frappe(champ, "22");
  ASSERT_EQ(d.Text13.texte, "22");
  while (champ.isUndoAvailable()) {
    CtrlZ(champ);
  }
  EXPECT_EQ(d.Text13.texte, "65");
  EXPECT_EQ(d.Text3.texte, "17");
  CtrlZ(champ);
  EXPECT_EQ(d.Text3.texte, "12");
  EXPECT_EQ(Trouve<QLineEdit>("Text3")->text(), "12");
  CtrlZ(*Trouve<QWidget>("Command2"), Qt::ShiftModifier);
  EXPECT_EQ(Trouve<QLineEdit>("Text3")->text(), "17");
}

TEST_F(Annule, APanelThatALineHasEmptiedIsSeenAgain) {
  Joue([this] {
    TapeVisee();
    Calcule();
  });
  const QString intercept = Trouve<QLabel>("Affichage_Intercept")->text();
  Touche(Trouve<QWidget>("Text13"), Qt::Key_F6);
  ASSERT_EQ(Trouve<QLineEdit>("Text8")->text(), "");
  CtrlZ(*Trouve<QWidget>("Text13"));
  EXPECT_EQ(Trouve<QLineEdit>("Text8")->text(), "47");
  EXPECT_EQ(Trouve<QLabel>("Affichage_Intercept")->text(), intercept);
  EXPECT_EQ(scene.Ecart(), nullptr);
}

TEST_F(Annule, AFieldToBeMendedStandsInAnAmberFrameAndIsHeard) {
  Joue([this] { TapeVisee(); });
  auto &champ = *Trouve<qt::Champ>("Text8");
  EXPECT_EQ(Pixels(champ, EstAmbre), 0);
  Joue([this] { Tape(d.Text8, ""); });
  EXPECT_TRUE(champ.alerte());
  EXPECT_GT(Pixels(champ, EstAmbre), champ.width()); // above and below
  EXPECT_EQ(champ.accessibleDescription().toStdString(), d.Text8.alerte);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&champ)->text(QAccessible::Description).toStdString(),
            d.Text8.alerte);
  Image("cadre-ambre");
  Joue([this] { Tape(d.Text8, "47"); });
  EXPECT_EQ(Pixels(champ, EstAmbre), 0);
  EXPECT_TRUE(champ.accessibleDescription().isEmpty());
}

TEST_F(Annule, AListWithoutItsPlanetStandsInAFrameToo) {
  Joue([this] {
    TapeVisee();
    ClicOption(bureau, d.Option7[2]);
  });
  auto &liste = *Trouve<qt::Deroulante>("Combo7");
  EXPECT_GT(Pixels(liste, EstAmbre), liste.width());
  Joue([this] { ChoisitLigne(bureau, d.Combo7, 1); });
  EXPECT_EQ(Pixels(liste, EstAmbre), 0);
}

TEST_F(Annule, ByNightTheFrameIsDashedRed) {
  Joue([this] {
    TapeVisee();
    Tape(d.Text8, "");
    bureau.eclairage = Eclairage::Nuit;
  });
  auto &champ = *Trouve<qt::Champ>("Text8");
  const QImage image = champ.grab().toImage();
  int changements = 0; // of brightness along the upper edge
  for (int x = 1; x < image.width(); ++x) {
    changements += (image.pixelColor(x, 0).red() > 140) != (image.pixelColor(x - 1, 0).red() > 140) ? 1 : 0;
    EXPECT_LE(image.pixelColor(x, 0).green(), 16);
    EXPECT_LE(image.pixelColor(x, 0).red(), 200);
  }
  EXPECT_GT(changements, 4);
  Image("cadre-nuit");
}

TEST_F(Annule, ResultsOutOfDateAreGreyAndSaySo) {
  Joue([this] {
    TapeVisee();
    Calcule();
  });
  auto &resultat = *Trouve<QLabel>("Affichage_Azimuth");
  const QColor encre = resultat.palette().color(resultat.foregroundRole());
  const QString texte = resultat.text();
  Joue([this] { Tape(d.Text12, "35"); });
  const QColor gris = resultat.palette().color(resultat.foregroundRole());
  EXPECT_GT(gris.lightness(), encre.lightness() + 60);
  EXPECT_EQ(resultat.text(), texte);
  EXPECT_EQ(resultat.accessibleDescription().toStdString(), bureau.etat.TexteResultatPerime.legende);
  Image("resultat-gris");
  Joue([this] { Calcule(); });
  EXPECT_EQ(resultat.palette().color(resultat.foregroundRole()), encre);
}

TEST_F(Annule, TheMenuUndoesToo) {
  Joue([this] { TapeVisee(); });
  temps.heure = 17;
  Joue([this] { ClicControle(bureau, d.Command1); });
  Joue([this] { ClicControle(bureau, d.PU_Annule); });
  EXPECT_EQ(Trouve<QLineEdit>("Text3")->text(), "12");
}

} // namespace
} // namespace velmaris::essais

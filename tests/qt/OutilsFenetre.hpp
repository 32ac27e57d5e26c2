#pragma once

#include "shell/qt/cadre/Fenetre.hpp"
#include "shell/qt/widgets/Widgets.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include <memory>

namespace velmaris::essais {

constexpr Ecran kPetitEcran{15360, 11520, 768};
constexpr Ecran kGrandEcran{28800, 16200, 1080};
constexpr Ecran kEcranBas{15360, 9000, 600};

/// Whether a widget is one that the toolkit has put into a closed list.
inline bool DansUneListe(const QWidget &widget) {
  const QWidget *autour = widget.parentWidget();
  while (autour != nullptr && qobject_cast<const QComboBox *>(autour) == nullptr) {
    autour = autour->parentWidget();
  }
  return autour != nullptr;
}

/// Every caption on show fits its widget, and what takes the keyboard has a name for a screen reader.
/// @param liste  a list, whose inner widget has the list's name
inline void RienDeCoupe(const QWidget &fenetre, const QWidget *liste) {
  for (auto *widget : fenetre.findChildren<QWidget *>()) {
    QString texte;
    double marge = 0;
    if (const auto *label = qobject_cast<QLabel *>(widget)) {
      texte = label->text();
    } else if (const auto *groupe = qobject_cast<QGroupBox *>(widget)) {
      texte = groupe->title();
    } else if (const auto *bouton = qobject_cast<QAbstractButton *>(widget)) {
      texte = bouton->text();
      marge = qobject_cast<QPushButton *>(widget) == nullptr ? qt::LargeurMarque(*widget) : 8;
      marge += bouton->icon().isNull() ? 0 : bouton->iconSize().width() + 4;
    }
    if (!texte.isEmpty() && widget->isVisible()) {
      EXPECT_LE(QFontMetricsF(widget->font()).horizontalAdvance(texte) + marge, widget->width()) << texte.toStdString();
    }
    if (widget->focusPolicy() != Qt::NoFocus && widget->parentWidget() != liste && !DansUneListe(*widget)) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
  }
}

/// The program with its window.
class FenetreOuverte : public Programme {
protected:
  void Ouvre(const Ecran &ecran, bool anglais = false) {
    Demarre(ecran);
    if (anglais) {
      ClicControle(bureau, d.Image10[1]);
    }
    fenetre = std::make_unique<qt::Fenetre>(scene);
    fenetre->Complete();
    fenetre->show();
    QApplication::processEvents();
  }

  /// Does something to the core and shows it.
  template <class Geste> void Joue(Geste &&geste) {
    scene.Joue(geste);
    QApplication::processEvents();
  }

  template <class Widget> Widget *Trouve(const char *nom) { return fenetre->findChild<Widget *>(nom); }

  void Touche(QWidget *widget, int touche, const QString &texte = {}) {
    QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier, texte);
    QApplication::sendEvent(widget, &appui);
    QKeyEvent relache(QEvent::KeyRelease, touche, Qt::NoModifier, texte);
    QApplication::sendEvent(widget, &relache);
    QApplication::processEvents();
  }

  void Image(const QString &nom) {
    QDir().mkpath(VELMARIS_IMAGES);
    fenetre->grab().save(QString(VELMARIS_IMAGES) + "/" + nom + ".png");
  }

  qt::Scene scene{bureau};
  std::unique_ptr<qt::Fenetre> fenetre;
};

} // namespace velmaris::essais

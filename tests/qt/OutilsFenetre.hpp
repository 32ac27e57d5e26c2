#pragma once

#include "OutilsBureau.hpp"
#include "shell/qt/Fenetre.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

#include <memory>

namespace velmaris::essais {

constexpr Ecran kPetitEcran{15360, 11520, 768};
constexpr Ecran kGrandEcran{28800, 16200, 1080};
constexpr Ecran kEcranBas{15360, 9000, 600};

/// The program with its window.
class FenetreOuverte : public Programme {
protected:
  void Ouvre(const Ecran &ecran, bool anglais = false) {
    Demarre(ecran);
    if (anglais) {
      ClicControle(bureau, d.Image10[1]);
    }
    fenetre = std::make_unique<qt::Fenetre>(scene);
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

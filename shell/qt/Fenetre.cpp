#include "shell/qt/Fenetre.hpp"

#include "shell/Demarrage.hpp"
#include "shell/Modules.hpp"
#include "shell/qt/Toile.hpp"
#include "shell/qt/Widgets.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include <cmath>

namespace velmaris::qt {
namespace {

constexpr int kCodeF1 = 112;

} // namespace

Fenetre::Fenetre(Scene &scene)
    : scene_(scene), bureau_(scene.bureau()), rendu_(scene, *this, ControlesDe(bureau_, kFenetreDonnees)) {
  const double f = PixelsParTwip(*this);
  resize(static_cast<int>(std::lround(bureau_.largeurFenetre * f)),
         static_cast<int>(std::lround(bureau_.hauteurFenetre * f)));
  for (Surface *surface : {&bureau_.image1, &bureau_.picAZ, &bureau_.picHE}) {
    surface->interligne = QFontMetricsF(PoliceQt(surface->police), this).height() / f;
  }
  BrancheDessin();
  rendu_.AccordeFenetre = [this] {
    setWindowTitle(QString::fromStdString(bureau_.titre));
    if (bureau_.termine) {
      horloge_.stop();
    }
  };
  scene_.Accorde();
  qApp->installEventFilter(this);
  horloge_.callOnTimeout(this, [this] {
    if (!bureau_.termine) {
      scene_.Joue([this] { Timer1_Tick(bureau_); });
    }
  });
  horloge_.start(kPeriodeTimer1);
}

/// The mouse over the drawing surface moves the module that is held.
void Fenetre::BrancheDessin() {
  auto &toile = dynamic_cast<Toile &>(*rendu_.WidgetDe(bureau_.donnees.Image1));
  toile.auClic = nullptr;
  toile.auMouvement = [this](bool gauche, double x, double y) {
    if (bureau_.ModuleDeplace != 0) {
      scene_.Joue([&] { Image1_MouseMove(bureau_, gauche, x, y); });
    }
  };
  toile.auRelache = [this] { scene_.Joue([this] { Image1_MouseUp(bureau_); }); };
}

void Fenetre::closeEvent(QCloseEvent *event) {
  if (!bureau_.termine) {
    scene_.Joue([this] { Sortie_Click(bureau_, -1); });
  }
  event->setAccepted(bureau_.termine);
}

bool Fenetre::Touche(QObject *objet, int touche) {
  const auto *widget = qobject_cast<QWidget *>(objet);
  if (widget == nullptr || widget->window() != this || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  if (auto *bouton = qobject_cast<QPushButton *>(objet);
      bouton != nullptr && (touche == Qt::Key_Return || touche == Qt::Key_Enter)) {
    bouton->click();
    return true;
  }
  if (touche < Qt::Key_F1 || touche > Qt::Key_F12) {
    return false;
  }
  bool prise = false;
  scene_.Joue([&] { prise = Donnees_KeyDown(bureau_, kCodeF1 + touche - Qt::Key_F1); });
  return prise;
}

bool Fenetre::eventFilter(QObject *objet, QEvent *event) {
  return event->type() == QEvent::KeyPress && Touche(objet, static_cast<QKeyEvent *>(event)->key());
}

void Fenetre::paintEvent(QPaintEvent *event) {
  QPainter p(this);
  p.fillRect(event->rect(), kFondFenetre);
}

} // namespace velmaris::qt

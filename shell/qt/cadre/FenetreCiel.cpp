#include "shell/qt/cadre/FenetreCiel.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/ciel/SourisCiel.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/qt/peinture/ToileCiel.hpp"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace velmaris::qt {
namespace {

constexpr int kBord = 3; ///< pixels of a window manager's border
constexpr QSize kPlusPetite(640, 400);

ToileCiel &ToileDe(const Rendu &rendu, const Ciel &ciel) {
  return dynamic_cast<ToileCiel &>(*rendu.WidgetDe(ciel.Picture1));
}

} // namespace

FenetreCiel::FenetreCiel(Scene &scene, QWidget *parent)
    : Dialogue(scene, scene.bureau().ciel.cadre, parent, Etirable::MontrePlus), bureau_(scene.bureau()),
      toile_(ToileDe(rendu(), bureau_.ciel)), horloge_(this) {
  horloge_.setObjectName("TimerCiel");
  horloge_.setInterval(kPeriodeCiel);
  horloge_.callOnTimeout(this, [this] { this->scene().Joue([this] { ciel::Timer1_Tick(bureau_); }); });
  // A window of its own: as a dialog of the main one it would stay over it, which comes to the front with a choice.
  setWindowFlags(Qt::Window);
  setMinimumSize(kPlusPetite.boundedTo(screen()->availableSize()));
  resize(size().boundedTo(screen()->availableSize() - QSize(0, kBarreTitre)));
  // In the middle of the screen its title would leave it. A place given before the window is made is that of the frame,
  // title included; given after, it would be that of what lies within.
  move(screen()->availableGeometry().topLeft() + QPoint(kBord, 0));
  create();
  windowHandle()->setTransientParent(nullptr);
  for (Surface *surface : {&bureau_.ciel.picture1, &bureau_.ciel.picAZ, &bureau_.ciel.picHE}) {
    surface->interligne = Interligne(*surface, *this);
  }
  Branche();
  ReprendSaTaille();
  toile_.setFocus(Qt::OtherFocusReason);
}

void FenetreCiel::Branche() {
  toile_.auMouvement = [this](bool /*gauche*/, double x, double y) {
    scene().Joue([&] { ciel::Picture1_MouseMove(bureau_, x, y); });
  };
  toile_.auSurvol = [this](Controle &astre, Controle &pointe) {
    scene().Joue([&] { ciel::Survole(bureau_, astre, pointe); });
  };
  toile_.auAide = [this](const Controle &astre) { return ciel::AideAstre(bureau_, astre); };
  toile_.auChoix = [this](Controle &corps) { scene().Joue([&] { ClicControle(bureau_, corps); }); };
  toile_.auTouche = [this](int touche) { return Touche(touche); };
}

bool FenetreCiel::Touche(int touche) {
  const auto va = [this](Direction direction) {
    scene().Joue([&] { ciel::DeplaceAstre(bureau_, direction); });
    return true;
  };
  switch (touche) {
  case Qt::Key_Left:
    return va(Direction::Gauche);
  case Qt::Key_Right:
    return va(Direction::Droite);
  case Qt::Key_Up:
    return va(Direction::Haut);
  case Qt::Key_Down:
    return va(Direction::Bas);
  case Qt::Key_Return:
  case Qt::Key_Enter:
    scene().Joue([this] { ciel::PrendAstre(bureau_); });
    return true;
  case Qt::Key_Plus:
  case Qt::Key_Equal: // the key of the plus sign on many keyboards
    scene().Joue([this] { ClicControle(bureau_, bureau_.ciel.Avance); });
    return true;
  case Qt::Key_Minus:
    scene().Joue([this] { ClicControle(bureau_, bureau_.ciel.Recule); });
    return true;
  default:
    return false;
  }
}

/// The steps of time have their keys in the whole window.
void FenetreCiel::keyPressEvent(QKeyEvent *event) {
  const int touche = event->key();
  const bool pas = touche == Qt::Key_Plus || touche == Qt::Key_Equal || touche == Qt::Key_Minus;
  if (!pas || event->modifiers().testFlag(Qt::ControlModifier) || !Touche(touche)) {
    Dialogue::keyPressEvent(event);
  }
}

double FenetreCiel::EchelleVoulue() const { return EchelleCiel(bureau_, width(), height()); }

void FenetreCiel::AccordeFenetre() {
  Dialogue::AccordeFenetre();
  const Ciel &c = bureau_.ciel;
  const bool marche = c.minuterie && c.cadre.visible && !bureau_.termine;
  if (!marche) {
    horloge_.stop();
  } else if (!horloge_.isActive()) {
    horloge_.start();
  }
  toile_.setAccessibleDescription(QString::fromStdString(c.Label2.legende));
}

void FenetreCiel::resizeEvent(QResizeEvent *event) {
  Dialogue::resizeEvent(event);
  Echelonne();
  Redimensionne();
}

void FenetreCiel::Redimensionne() {
  Redispose([this](double largeur, double hauteur) { Ciel_Redimensionne(bureau_, largeur, hauteur); });
}

} // namespace velmaris::qt

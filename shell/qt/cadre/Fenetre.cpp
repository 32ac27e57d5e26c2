#include "shell/qt/cadre/Fenetre.hpp"

#include "shell/Aide.hpp"
#include "shell/Demarrage.hpp"
#include "shell/Sortie.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Eclairage.hpp"
#include "shell/ecran/Statut.hpp"
#include "shell/qt/cadre/MenuCarte.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QToolButton>

#include <cmath>
#include <optional>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr QSize kPlusPetite(640, 400);
constexpr double kArrondi = -0.499; ///< pixels: the content is never larger than the window that it fills

/// What is seen of the content. It takes no keyboard and paints no ground of its own.
void PrepareVue(QScrollArea &vue, QWidget &contenu) {
  vue.setFrameShape(QFrame::NoFrame);
  vue.setFocusPolicy(Qt::NoFocus);
  vue.setAlignment(Qt::AlignCenter);
  vue.setWidget(&contenu);
  vue.viewport()->setAutoFillBackground(false);
  contenu.setAutoFillBackground(false);
}

/// The notch of the zoom that a key stands for, 0 for none.
int CranDeZoom(int touche) {
  switch (touche) {
  case Qt::Key_Plus:
  case Qt::Key_Equal: // the key of the plus sign on many keyboards
    return 1;
  case Qt::Key_Minus:
    return -1;
  default:
    return 0;
  }
}

bool EstRetour(int touche) { return touche == Qt::Key_Return || touche == Qt::Key_Enter; }

} // namespace

Fenetre::Fenetre(Scene &scene)
    : Echelonnee(scene.bureau().ecran.echelle), scene_(scene), bureau_(scene.bureau()), vue_(this),
      contenu_(*new QWidget), rendu_(scene, contenu_, ControlesDe(bureau_, kFenetreDonnees)),
      etat_(scene, contenu_, ControlesDe(bureau_, kFenetreEtat)), horloge_(this), libres_(scene, *this) {
  horloge_.setObjectName("Timer1");
  PrepareVue(vue_, contenu_);
  setMinimumSize(kPlusPetite);
  const double f = PixelsParTwip(*this);
  resize(static_cast<int>(std::lround(bureau_.largeurFenetre * f)),
         static_cast<int>(std::lround(bureau_.hauteurFenetre * f)));
  for (Surface *surface : {&bureau_.image1, &bureau_.picAZ, &bureau_.picHE}) {
    surface->interligne = Interligne(*surface, *this);
  }
  BrancheDessin();
  rendu_.AccordeFenetre = [this] { AccordeFenetre(); };
  scene_.Accorde();
  qApp->installEventFilter(this);
  horloge_.callOnTimeout(this, [this] {
    if (!bureau_.termine) {
      scene_.Joue([this] { Timer1_Tick(bureau_); });
    }
  });
  AccordeHorloge();
}

/// Lays the content out by the scale with which it fills the window.
void Fenetre::Echelonne() {
  const double avant = echelle();
  PoseEchelle(EchelleContenu(bureau_, width(), height()));
  const double f = PixelsParTwip(*this);
  const QSizeF taille(bureau_.largeurFenetre * f, bureau_.hauteurFenetre * f);
  contenu_.resize((taille + QSizeF(kArrondi, kArrondi)).toSize());
  if (echelle() != avant) {
    rendu_.AccordeEchelle();
    etat_.AccordeEchelle();
  }
}

void Fenetre::AccordePleinEcran() {
  if (isVisible() && isFullScreen() != bureau_.pleinEcran) {
    bureau_.pleinEcran ? showFullScreen() : showNormal();
  }
}

/// The clock stands still when the core says so, and when the program has ended.
void Fenetre::AccordeHorloge() {
  const bool arretee = bureau_.horlogeArretee || bureau_.termine;
  if (arretee) {
    horloge_.stop();
  } else if (!horloge_.isActive()) {
    horloge_.start(kPeriodeTimer1);
  }
}

/// The mouse over the drawing surface.
void Fenetre::BrancheDessin() {
  Toile &toile = Dessin();
  toile.auClic = nullptr;
  toile.setFocusPolicy(Qt::ClickFocus);
  toile.auMouvement = [this](bool gauche, double x, double y) {
    if (SuitPointeur(bureau_)) {
      scene_.Joue([&] { Image1_MouseMove(bureau_, gauche, x, y); });
    }
  };
  toile.auSortie = [this] { scene_.Joue([this] { PerdPosition(bureau_); }); };
  toile.auPresse = [this](bool gauche, double x, double y) {
    scene_.Joue([&] { Image1_MouseDown(bureau_, gauche ? BoutonSouris::Gauche : BoutonSouris::Droit, x, y); });
  };
  toile.auRelache = [this](Qt::MouseButton bouton) {
    scene_.Joue([&] {
      Image1_MouseUp(bureau_, bouton == Qt::RightButton  ? BoutonSouris::Droit
                              : bouton == Qt::LeftButton ? BoutonSouris::Gauche
                                                         : BoutonSouris::Autre);
    });
  };
  toile.auZoom = [this](int crans) { scene_.Joue([&] { ZoomeCrans(bureau_, crans); }); };
}

Toile &Fenetre::Dessin() { return dynamic_cast<Toile &>(*rendu_.WidgetDe(bureau_.donnees.Image1)); }

/// What the main window has beside its controls.
void Fenetre::AccordeFenetre() {
  setWindowTitle(QString::fromStdString(bureau_.titre));
  Echelonne();
  AccordePleinEcran();
  AccordeHorloge();
  libres_.Accorde();
  std::optional<QLineF> elastique;
  if (const auto branche = BrancheEnCours(bureau_)) {
    elastique = QLineF(branche->debut.x, branche->debut.y, branche->fin.x, branche->fin.y);
  }
  Toile &toile = Dessin();
  toile.MontreElastique(elastique);
  if (const Controle *menu = std::exchange(bureau_.menu, nullptr); menu != nullptr && !bureau_.termine) {
    const QPoint place = toile.PixelDe({bureau_.souris.ClicX, bureau_.souris.ClicY});
    OuvreMenu(scene_, *menu, *this, toile.mapToGlobal(place));
  }
}

void Fenetre::closeEvent(QCloseEvent *event) {
  if (!bureau_.termine) {
    scene_.Joue([this] { Sortie_Click(bureau_, -1); });
  }
  event->setAccepted(bureau_.termine);
}

/// Return presses the button that has the keyboard, and in a field the "Calcul" of its module.
bool Fenetre::Retour(QWidget &widget) {
  if (qobject_cast<QPushButton *>(&widget) != nullptr || qobject_cast<QToolButton *>(&widget) != nullptr) {
    qobject_cast<QAbstractButton *>(&widget)->click();
    return true;
  }
  Controle *champ = rendu_.ControleDe(widget);
  if (champ == nullptr || champ->genre != Genre::Champ) {
    return false;
  }
  bool prise = false;
  scene_.Joue([&] { prise = RetourDansChamp(bureau_, *champ); });
  return prise;
}

bool Fenetre::Touche(QObject *objet, int touche, bool controle) {
  auto *widget = qobject_cast<QWidget *>(objet);
  if (widget == nullptr || widget->window() != this || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  if (EstRetour(touche)) {
    return Retour(*widget);
  }
  if (touche == Qt::Key_Menu) {
    scene_.Joue([this] {
      Image1_MouseDown(bureau_, BoutonSouris::Gauche, bureau_.image1.largeur / 2, bureau_.image1.hauteur / 2);
    });
    return true;
  }
  // Signs are typed: only on the surface they are the zoom's, or with the control key.
  if (const int cran = CranDeZoom(touche); cran != 0 && (controle || widget == &Dessin())) {
    scene_.Joue([&] { ZoomeTouche(bureau_, cran); });
    return true;
  }
  if (touche < Qt::Key_F1 || touche > Qt::Key_F12) {
    return false;
  }
  bool prise = false;
  scene_.Joue([&] { prise = Donnees_KeyDown(bureau_, kToucheF1 + touche - Qt::Key_F1); });
  return prise;
}

/// Control and Alt with a sign or a nought: how large everything is. In every window.
bool Fenetre::ToucheTaille(const QKeyEvent &appui) {
  if ((appui.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != (Qt::ControlModifier | Qt::AltModifier)) {
    return false;
  }
  const int cran = CranDeZoom(appui.key());
  if (cran == 0 && appui.key() != Qt::Key_0) {
    return false;
  }
  scene_.Joue([&] {
    (cran > 0 ? PU_TaillePlus_Click : cran < 0 ? PU_TailleMoins_Click : PU_TailleAuto_Click)(bureau_, -1);
  });
  return true;
}

bool Fenetre::eventFilter(QObject *objet, QEvent *event) {
  if (event->type() != QEvent::KeyPress || !objet->isWidgetType()) {
    return false;
  }
  const auto &appui = *static_cast<QKeyEvent *>(event);
  if (appui.key() == Qt::Key_N && appui.modifiers() == Qt::ControlModifier) {
    scene_.Joue([this] { TourneEclairage(bureau_); });
    return true;
  }
  if (appui.key() == Qt::Key_F1) { // in every window; a key held down opens the guide once
    if (!appui.isAutoRepeat()) {
      scene_.Joue([this] { OuvreAide(bureau_); });
    }
    return true;
  }
  return ToucheTaille(appui) || Touche(objet, appui.key(), appui.modifiers().testFlag(Qt::ControlModifier));
}

void Fenetre::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  vue_.setGeometry(rect());
  Echelonne();
}

void Fenetre::paintEvent(QPaintEvent *event) {
  QPainter p(this);
  p.fillRect(event->rect(), TeintesDe(EclairageVu()).fenetre);
}

} // namespace velmaris::qt

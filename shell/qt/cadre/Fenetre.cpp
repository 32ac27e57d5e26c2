#include "shell/qt/cadre/Fenetre.hpp"

#include "shell/Aide.hpp"
#include "shell/Demarrage.hpp"
#include "shell/Sortie.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/droites/Recentes.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/ecran/Copie.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Eclairage.hpp"
#include "shell/ecran/Statut.hpp"
#include "shell/qt/cadre/FenetreEtiree.hpp"
#include "shell/qt/cadre/MenuCarte.hpp"
#include "shell/qt/cadre/TouchesFenetres.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCursor>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QToolButton>
#include <QUrl>

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

/// The first sight among the files that are dropped, empty for none.
std::filesystem::path ViseeDeposee(const QMimeData &donnees) {
  for (const QUrl &adresse : donnees.urls()) {
    std::filesystem::path chemin = QFile::encodeName(adresse.toLocalFile()).toStdString();
    if (EstNomDeVisee(chemin)) {
      return chemin;
    }
  }
  return {};
}

bool EstRetour(int touche) { return touche == Qt::Key_Return || touche == Qt::Key_Enter; }

} // namespace

Fenetre::Fenetre(Scene &scene)
    : Echelonnee(scene.bureau().ecran.echelle), scene_(scene), bureau_(scene.bureau()), vue_(this),
      contenu_(*new QWidget), rendu_(scene, contenu_, ControlesDe(bureau_, kFenetreDonnees), true),
      etat_(scene, contenu_, ControlesDe(bureau_, kFenetreEtat)), horloge_(this), libres_(scene, *this) {
  horloge_.setObjectName("Timer1");
  PrepareVue(vue_, contenu_);
  setMinimumSize(kPlusPetite);
  setAcceptDrops(true);
  const double f = PixelsParTwip(*this);
  resize(static_cast<int>(std::lround(bureau_.largeurFenetre * f)),
         static_cast<int>(std::lround(bureau_.hauteurFenetre * f)));
  PoseEchelle(EchelleContenu(bureau_, width(), height())); // before all is laid out by it for the first time
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
  OuvreMenuDemande();
}

/// Opens the menu that the core asks for, under its control or at the place of the click.
void Fenetre::OuvreMenuDemande() {
  const Controle *menu = std::exchange(bureau_.menu, nullptr);
  const Controle *sous = std::exchange(bureau_.menuSous, nullptr);
  if (menu == nullptr || bureau_.termine) {
    return;
  }
  const QWidget *widget = sous == nullptr ? nullptr : WidgetDe(*sous);
  const Toile &toile = Dessin();
  OuvreMenu(scene_, *menu, *this,
            widget != nullptr ? widget->mapToGlobal(QPoint(0, widget->height()))
                              : toile.mapToGlobal(toile.PixelDe({bureau_.souris.ClicX, bureau_.souris.ClicY})));
}

/// The control that a widget shows, or lies in; null for none of this window.
Controle *Fenetre::ControleDe(QWidget *widget) const {
  Controle *controle = nullptr;
  while (controle == nullptr && widget != nullptr && widget->window() == this) {
    controle = rendu_.ControleDe(*widget);
    controle = controle == nullptr ? etat_.ControleDe(*widget) : controle;
    widget = widget->parentWidget();
  }
  return controle;
}

QWidget *Fenetre::WidgetDe(const Controle &controle) const {
  QWidget *widget = rendu_.WidgetDe(controle);
  return widget == nullptr ? etat_.WidgetDe(controle) : widget;
}

/// The right button on a module's results opens their menu. The menu key has been dealt with as a key.
bool Fenetre::MenuDe(QObject *objet, const QContextMenuEvent &event) {
  auto *widget = qobject_cast<QWidget *>(objet);
  const Controle *pointe = ControleDe(widget);
  if (pointe == nullptr || pointe->genre == Genre::Champ) {
    return pointe != nullptr && event.reason() == QContextMenuEvent::Keyboard;
  }
  if (event.reason() == QContextMenuEvent::Mouse) {
    scene_.Joue([&] { OuvreMenuCopie(bureau_, *pointe); });
  }
  return true;
}

/// A sight's file over the window, or dropped on it: it is opened once the desktop has its answer.
bool Fenetre::Depose(QObject *objet, QDropEvent &event) {
  const auto *widget = qobject_cast<QWidget *>(objet);
  const std::filesystem::path visee = ViseeDeposee(*event.mimeData());
  if (widget == nullptr || widget->window() != this || visee.empty() || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  event.acceptProposedAction();
  if (event.type() == QEvent::Drop) {
    QMetaObject::invokeMethod(
        this, [this, visee] { scene_.Joue([&] { OuvreVisee(bureau_, visee); }); }, Qt::QueuedConnection);
  }
  return true;
}

/// The keys that every desktop has.
bool Fenetre::ToucheHabitude(QWidget &widget, const QKeyEvent &appui) {
  const Qt::KeyboardModifiers avec = appui.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
  const Controle *clavier = ControleDe(&widget);
  const QPoint curseur = QCursor::pos();
  const Controle *pointe = ControleDe(QApplication::widgetAt(curseur));
  if (appui.key() == Qt::Key_Menu || (appui.key() == Qt::Key_F10 && avec == Qt::ShiftModifier)) {
    const QPointF place = QPointF(Dessin().mapFromGlobal(curseur)) / PixelsParTwip(*this);
    scene_.Joue([&] { ToucheMenu(bureau_, pointe, {place.x(), place.y()}, clavier); });
    return true;
  }
  const char lettre = LettreControle(appui);
  if (lettre == 0) {
    return false;
  }
  if (lettre == 'C') {
    const auto *champ = qobject_cast<const QLineEdit *>(&widget);
    if (champ != nullptr && champ->hasSelectedText()) {
      return false; // a field copies what is selected in it
    }
    scene_.Joue([&] { Copie(bureau_, pointe, clavier); });
    return true;
  }
  if (appui.isAutoRepeat()) {
    return false;
  }
  bool prise = false;
  scene_.Joue([&] { prise = ToucheControle(bureau_, lettre); });
  return prise;
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

bool Fenetre::Touche(QObject *objet, const QKeyEvent &appui) {
  const int touche = appui.key();
  const bool controle = appui.modifiers().testFlag(Qt::ControlModifier);
  auto *widget = qobject_cast<QWidget *>(objet);
  if (widget == nullptr || widget->window() != this || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  if (EstRetour(touche)) {
    return appui.isAutoRepeat() || Retour(*widget); // a key held down computes once
  }
  if (ToucheHabitude(*widget, appui)) {
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

/// Control with Z; with the shift key too, or with Y, to redo: the field's own typing first, then the last gesture of
/// its window.
bool Fenetre::ToucheAnnule(QObject *objet, const QKeyEvent &appui) {
  const Qt::KeyboardModifiers avec = appui.modifiers() & ~Qt::KeypadModifier;
  const bool retablit = (appui.key() == Qt::Key_Z && avec == (Qt::ControlModifier | Qt::ShiftModifier)) ||
                        (appui.key() == Qt::Key_Y && avec == Qt::ControlModifier);
  const auto *widget = qobject_cast<QWidget *>(objet);
  if (!(retablit || (appui.key() == Qt::Key_Z && avec == Qt::ControlModifier)) ||
      QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  if (auto *champ = qobject_cast<QLineEdit *>(objet);
      champ != nullptr && (retablit ? champ->isRedoAvailable() : champ->isUndoAvailable())) {
    if (appui.key() == Qt::Key_Z) {
      return false; // it does so itself
    }
    champ->redo();
    return true;
  }
  const QWidget *fenetre = widget->window();
  const std::string nom = fenetre == this ? std::string(kFenetreDonnees) : fenetre->objectName().toStdString();
  bool prise = false;
  scene_.Joue([&] { prise = RevientDans(bureau_, nom, retablit); });
  return prise;
}

/// A key of the windows of the complements: their tabs, and from one of them to another.
bool Fenetre::ToucheDesComplements(const QObject *objet, const QKeyEvent &appui) {
  const auto *widget = qobject_cast<const QWidget *>(objet);
  const auto *fenetre = dynamic_cast<const FenetreEtiree *>(widget->window());
  if (fenetre == nullptr || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  if (TourneOnglet(*fenetre, appui)) {
    return true;
  }
  const char lettre = appui.isAutoRepeat() ? '\0' : LettreControle(appui);
  bool prise = false;
  if (lettre != 0) {
    scene_.Joue([&] { prise = ToucheComplement(bureau_, lettre); });
  }
  return prise;
}

bool Fenetre::eventFilter(QObject *objet, QEvent *event) {
  switch (event->type()) {
  case QEvent::KeyPress:
    return objet->isWidgetType() && Appui(objet, *static_cast<QKeyEvent *>(event));
  case QEvent::ContextMenu:
    return MenuDe(objet, *static_cast<QContextMenuEvent *>(event));
  case QEvent::DragEnter:
  case QEvent::DragMove:
  case QEvent::Drop:
    return Depose(objet, *static_cast<QDropEvent *>(event));
  default:
    return false;
  }
}

/// A key, in any window of the program.
bool Fenetre::Appui(QObject *objet, const QKeyEvent &appui) {
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
  return ToucheAnnule(objet, appui) || ToucheTaille(appui) || ToucheDesComplements(objet, appui) ||
         Touche(objet, appui);
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

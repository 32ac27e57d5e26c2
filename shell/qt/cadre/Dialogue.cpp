#include "shell/qt/cadre/Dialogue.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/TailleFenetres.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/systeme/EcranLibre.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace velmaris::qt {
namespace {

/// The scale of a window: one that the user stretches shows what it has room for.
double EchelleDe(const Bureau &bureau, const CadreFenetre &cadre, Etirable etirable) {
  const QSize libre = EcranLibre();
  return etirable == Etirable::MontrePlus ? EchelleFenetre(bureau)
                                          : EchelleDialogue(bureau, cadre, libre.width(), libre.height());
}

/// Whether Return has a button of its own among the controls.
bool AParDefaut(const Rendu &rendu) {
  return std::any_of(rendu.liens().begin(), rendu.liens().end(),
                     [](const Lien &lien) { return lien.controle->role == Role::Defaut; });
}

QWidget *PlaceContenu(QWidget &fenetre, int marge) {
  if (marge == 0) {
    return &fenetre;
  }
  auto *contenu = new QWidget(&fenetre);
  contenu->move(marge, marge);
  return contenu;
}

} // namespace

Dialogue::Dialogue(Scene &scene, CadreFenetre &cadre, QWidget *parent, Etirable etirable, int marge)
    : QDialog(parent), Echelonnee(EchelleDe(scene.bureau(), cadre, etirable)), scene_(scene), cadre_(cadre),
      contenu_(PlaceContenu(*this, marge)), rendu_(scene, *contenu_, ControlesDe(scene.bureau(), cadre.nom)),
      etirable_(etirable), parDefaut_(AParDefaut(rendu_)) {
  setObjectName(QString::fromUtf8(cadre.nom.data(), static_cast<qsizetype>(cadre.nom.size())));
  etirable != Etirable::Non ? resize(Taille()) : setFixedSize(Taille());
  EtendContenu();
  for (const Lien &lien : rendu_.liens()) {
    if (auto *bouton = qobject_cast<QPushButton *>(lien.widget)) {
      bouton->setAutoDefault(parDefaut_); // else the toolkit would give Return to the first one
      bouton->setDefault(lien.controle->role == Role::Defaut);
    }
  }
  rendu_.AccordeFenetre = [this] { AccordeFenetre(); };
}

/// A content of its own takes the record's size.
void Dialogue::EtendContenu() {
  if (contenu_ != this) {
    contenu_->resize(Taille());
  }
}

/// The record's size in pixels.
QSize Dialogue::Taille() const {
  const double f = PixelsParTwip(*this);
  return {static_cast<int>(std::lround(cadre_.largeur * f)), static_cast<int>(std::lround(cadre_.hauteur * f))};
}

double Dialogue::EchelleVoulue() const { return EchelleDe(scene_.bureau(), cadre_, etirable_); }

void Dialogue::ReprendSaTaille() {
  if (const auto gardee = TailleGardee(scene_.bureau(), cadre_.nom)) {
    const QSize libre = screen()->availableSize() - QSize(0, kBarreTitre);
    resize(QSize(gardee->largeur, gardee->hauteur).boundedTo(libre).expandedTo(minimumSize()));
  }
  ouverte_ = size();
}

void Dialogue::GardeSaTaille() {
  if (etirable_ != Etirable::Non && size() != ouverte_) {
    GardeTaille(scene_.bureau(), cadre_.nom, {width(), height()});
  }
}

void Dialogue::Redimensionne() { setFixedSize(Taille()); }

/// Before it is shown no event may be played: the core doesn't know that it is made, and would have it made again.
void Dialogue::Redispose(const std::function<void(double, double)> &dispose) {
  if (enTaille_ || !isVisible() || !cadre_.visible) {
    return;
  }
  enTaille_ = true;
  const double f = PixelsParTwip(*this);
  QSize faite;
  while (faite != size()) {
    faite = size();
    scene_.Joue([&] { dispose(faite.width() / f, faite.height() / f); });
  }
  enTaille_ = false;
}

void Dialogue::Echelonne() {
  const double voulue = EchelleVoulue();
  if (voulue != echelle()) {
    PoseEchelle(voulue);
    Redimensionne();
    EtendContenu();
    rendu_.AccordeEchelle();
  }
}

void Dialogue::AccordeFenetre() {
  setWindowTitle(QString::fromStdString(cadre_.titre));
  Echelonne();
  if ((!cadre_.visible || scene_.bureau().termine) && isVisible()) {
    done(QDialog::Accepted);
  }
}

void Dialogue::Montre() {
  scene_.Accorde();
  if (cadre_.visible) {
    exec();
  }
}

void Dialogue::MontreACote() {
  scene_.Accorde();
  if (cadre_.visible) {
    show();
  }
}

void Dialogue::reject() {
  for (const Lien &lien : rendu_.liens()) {
    if (lien.controle->role == Role::Annule) {
      scene_.Joue([&] { ClicControle(scene_.bureau(), *lien.controle); });
      return;
    }
  }
  QDialog::reject();
}

bool Dialogue::VientDevant() { return isActiveWindow(); }

void Dialogue::changeEvent(QEvent *event) {
  if (event->type() == QEvent::ActivationChange && VientDevant()) {
    scene_.Joue([this] { ActiveFenetre(scene_.bureau(), cadre_.nom); });
  }
  QDialog::changeEvent(event);
}

/// Return on the control that has the keyboard, where it has a use of its own for it.
bool Dialogue::Valide() {
  const auto &liens = rendu_.liens();
  const auto lien =
      std::find_if(liens.begin(), liens.end(), [this](const Lien &l) { return l.widget == focusWidget(); });
  bool faite = false;
  if (lien != liens.end()) {
    scene_.Joue([&] { faite = ValideControle(scene_.bureau(), *lien->controle); });
  }
  return faite;
}

void Dialogue::keyPressEvent(QKeyEvent *event) {
  const bool retour = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (retour && Valide()) {
    return;
  }
  if (auto *bouton = qobject_cast<QPushButton *>(focusWidget()); retour && !parDefaut_ && bouton != nullptr) {
    bouton->click();
  } else {
    QDialog::keyPressEvent(event);
  }
}

void Dialogue::paintEvent(QPaintEvent *event) {
  QPainter p(this);
  p.fillRect(event->rect(), TeintesDe(EclairageVu()).fenetre);
}

} // namespace velmaris::qt

#include "shell/qt/widgets/Rendu.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/peinture/ToileCiel.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace velmaris::qt {

Rendu::Rendu(Scene &scene, QWidget &fenetre, const ListeControles &controles, bool presse)
    : scene_(scene), bureau_(scene.bureau()), fenetre_(fenetre), presse_(presse) {
  CreeWidgets(controles);
  BrancheLibelles();
  TrouveHomonymes();
  scene_.Ajoute(*this);
  qApp->installEventFilter(this);
}

Rendu::~Rendu() { scene_.Retire(*this); }

void Rendu::CreeWidgets(const ListeControles &controles) {
  QWidget *precedent = nullptr;
  liens_.reserve(controles.size()); // they point to one another
  for (Controle *c : controles) {
    if (c->peint) {
      continue;
    }
    const Lien *parent = Trouve(c->parent, -1);
    if (auto *ciel = dynamic_cast<ToileCiel *>(parent == nullptr ? nullptr : parent->widget)) {
      ciel->Ajoute(*c);
      continue;
    }
    std::unique_ptr<Adaptateur> adaptateur =
        CreeAdaptateur(bureau_, *c, parent == nullptr ? &fenetre_ : parent->widget);
    QWidget *widget = adaptateur == nullptr ? nullptr : &adaptateur->widget();
    liens_.push_back({c, widget, std::move(adaptateur), {}, c, false, parent});
    if (widget == nullptr) {
      continue;
    }
    widget->setObjectName(QString::fromStdString(c->nom) + (c->indice < 0 ? QString() : QString::number(c->indice)));
    Branche(liens_.back());
    if (widget->focusPolicy() != Qt::NoFocus) {
      if (precedent != nullptr) {
        QWidget::setTabOrder(precedent, widget);
      }
      precedent = widget;
    }
  }
}

void Rendu::Branche(const Lien &lien) {
  Controle &c = *lien.controle;
  lien.adaptateur->Ecoute(bureau_, c, [this](const std::function<void()> &evenement) { Joue(evenement); });
  if (lien.adaptateur->EstChamp()) {
    champs_.insert(lien.widget, &c);
  }
  if (auto *option = qobject_cast<QRadioButton *>(lien.widget)) {
    QButtonGroup *&groupe = groupes_[c.groupe];
    if (groupe == nullptr) {
      groupe = new QButtonGroup(this);
    }
    groupe->addButton(option);
  }
}

/// A caption names the control that it belongs to; with a key of its own it leads there.
void Rendu::BrancheLibelles() {
  for (Lien &lien : liens_) {
    const Lien *libelle = lien.controle->par.empty() ? nullptr : Trouve(lien.controle->par, lien.controle->parIndice);
    if (libelle == nullptr) {
      continue;
    }
    lien.nomme = libelle->controle;
    if (!libelle->controle->raccourci) {
      continue;
    }
    if (auto *label = qobject_cast<QLabel *>(libelle->widget); label != nullptr && label->buddy() == nullptr) {
      label->setBuddy(lien.widget);
    }
  }
}

/// Finds the fields that a caption doesn't tell apart: a date and a time after the same words.
void Rendu::TrouveHomonymes() {
  const auto estChamp = [](const Lien &lien) {
    return lien.widget != nullptr && (lien.controle->genre == Genre::Champ || lien.controle->genre == Genre::Liste) &&
           !lien.nomme->legende.empty();
  };
  for (Lien &lien : liens_) {
    lien.homonyme = estChamp(lien) && std::any_of(liens_.begin(), liens_.end(), [&](const Lien &autre) {
                      return &autre != &lien && estChamp(autre) && autre.dans == lien.dans &&
                             autre.nomme->legende == lien.nomme->legende;
                    });
  }
}

const Lien *Rendu::Trouve(std::string_view nom, int indice) const {
  for (const Lien &lien : liens_) {
    if (lien.controle->nom == nom && lien.controle->indice == indice) {
      return &lien;
    }
  }
  return nullptr;
}

Controle *Rendu::ControleDe(const QWidget &widget) const {
  for (const Lien &lien : liens_) {
    if (lien.widget == &widget) {
      return lien.controle;
    }
  }
  return nullptr;
}

QWidget *Rendu::WidgetDe(const Controle &controle) const {
  for (const Lien &lien : liens_) {
    if (lien.controle == &controle) {
      return lien.widget;
    }
  }
  return nullptr;
}

/// The words that name a control to a screen reader: those that its table gives it, its own caption, or its tool tip;
/// the tool tip too where those words are another field's as well.
QString Rendu::NomLisible(const Lien &lien) {
  const Controle &c = *lien.controle;
  const Controle &nomme = *lien.nomme;
  if (lien.widget->focusPolicy() == Qt::NoFocus && &nomme == &c && c.genre != Genre::Surface) {
    return {}; // plain words speak for themselves
  }
  QString nom = QString::fromStdString(nomme.legende.empty() ? c.infobulle : nomme.legende).simplified();
  if (lien.homonyme) {
    nom += ", " + QString::fromStdString(c.infobulle);
  }
  if (c.genre == Genre::Etiquette && &nomme != &c) { // a result says what it is, and how much
    nom += ' ' + QString::fromStdString(c.legende);
  }
  if (nomme.raccourci) {
    nom.remove('&');
  }
  return nom;
}

/// Whether a control is to be seen: it, and all that it lies in.
bool Rendu::EstMontre(const Lien &lien) {
  return lien.controle->visible && (lien.dans == nullptr || EstMontre(*lien.dans));
}

void Rendu::AccordeLien(Lien &lien) const {
  Controle &c = *lien.controle;
  if (presse_ && lien.neuf && !EstMontre(lien)) {
    if (!c.visible) {
      lien.widget->hide();
    }
    return;
  }
  const bool tout = std::exchange(lien.neuf, false);
  const QString nom = NomLisible(lien);
  if (!tout && c == lien.vu && lien.adaptateur->EnAccord(c, nom)) {
    return;
  }
  lien.adaptateur->Accorde(c, lien.vu, nom, tout);
  if (c.toutSelectionne) {
    lien.adaptateur->SelectionneTout();
  }
  c.toutSelectionne = false;
  lien.vu = c;
}

const Controle *Rendu::Ecart() const {
  const auto ecart = std::find_if(liens_.begin(), liens_.end(), [](const Lien &lien) {
    return !lien.neuf && lien.adaptateur != nullptr && !lien.adaptateur->EnAccord(*lien.controle, NomLisible(lien));
  });
  return ecart == liens_.end() ? nullptr : ecart->controle;
}

/// The keyboard enters a group of options at its chosen one, or at each while none is chosen.
void Rendu::AccordeGroupes() {
  for (const QButtonGroup *groupe : groupes_) {
    for (QAbstractButton *option : groupe->buttons()) {
      const bool entree = option->isChecked() || groupe->checkedButton() == nullptr;
      option->setFocusPolicy(entree ? Qt::StrongFocus : Qt::ClickFocus);
      // The core has chosen another one. Under the mouse's button it is about to be chosen itself: without the keyboard
      // it would forget the press, and a click would be lost to each beat of the clock that comes before the release.
      if (option->hasFocus() && !entree && !option->isDown()) {
        groupe->checkedButton()->setFocus(Qt::OtherFocusReason);
      }
    }
  }
}

/// What has the keyboard in this window, null for nothing of it.
const Lien *Rendu::LienDuClavier() const {
  const QWidget *widget = fenetre_.focusWidget();
  const auto lien = std::find_if(liens_.begin(), liens_.end(),
                                 [&](const Lien &l) { return widget != nullptr && l.widget == widget; });
  return lien == liens_.end() || !lien->widget->hasFocus() ? nullptr : &*lien;
}

/// Of two controls of one name on one spot, the one that shows now takes the keyboard from the one that has gone.
void Rendu::PasseClavier(const Lien *tenu) const {
  if (tenu == nullptr || tenu->controle->visible) {
    return;
  }
  const Controle &parti = *tenu->controle;
  for (const Lien &lien : liens_) {
    const Controle &c = *lien.controle;
    if (lien.widget != nullptr && &c != &parti && c.visible && c.nom == parti.nom && c.place == parti.place) {
      lien.widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

void Rendu::Accorde() {
  const bool change = std::exchange(eclairage_, EclairageVu()) != EclairageVu();
  const Lien *tenu = LienDuClavier();
  for (Lien &lien : liens_) {
    if (lien.adaptateur == nullptr) {
      continue;
    }
    const bool neuf = lien.neuf;
    AccordeLien(lien);
    if (lien.neuf) {
      continue;
    }
    if (change || neuf) {
      lien.adaptateur->AccordeTeintes(*lien.controle);
    }
    if (auto *toile = dynamic_cast<Toile *>(lien.widget)) {
      toile->Accorde();
    }
  }
  PasseClavier(tenu);
  AccordeGroupes();
}

void Rendu::Complete() {
  if (std::exchange(presse_, false)) {
    Accorde();
  }
}

void Rendu::AccordeEchelle() {
  for (const Lien &lien : liens_) {
    if (lien.adaptateur != nullptr && !lien.neuf) {
      lien.adaptateur->AccordeEchelle(*lien.controle);
    }
  }
  Accorde();
}

bool Rendu::DonneFocus(const Controle &controle) {
  QWidget *widget = WidgetDe(controle);
  if (widget != nullptr) {
    widget->setFocus(Qt::OtherFocusReason);
    champDonne_ = widget;
  }
  return widget != nullptr;
}

void Rendu::Champ(QObject *objet, QEvent *event) {
  const auto trouve = champs_.constFind(objet);
  if (trouve == champs_.constEnd()) {
    return;
  }
  const Qt::FocusReason raison = static_cast<QFocusEvent *>(event)->reason();
  if (raison == Qt::ActiveWindowFocusReason || raison == Qt::PopupFocusReason) {
    return;
  }
  Controle &c = **trouve;
  if (event->type() == QEvent::FocusOut && objet == champDonne_) {
    champDonne_ = nullptr;
  }
  if (event->type() == QEvent::FocusIn) {
    champPresse_ = raison == Qt::MouseFocusReason ? objet : nullptr;
    Joue([&] { EntreChamp(bureau_, c); });
  } else {
    Joue([&] { QuitteChamp(bureau_, c); });
  }
}

bool Rendu::eventFilter(QObject *objet, QEvent *event) {
  switch (event->type()) {
  case QEvent::FocusIn:
  case QEvent::FocusOut:
    Champ(objet, event);
    break;
  case QEvent::KeyPress:
    champDonne_ = objet == champDonne_ ? nullptr : champDonne_;
    break;
  case QEvent::MouseButtonPress:
    // The first click in a field that the core has given the keyboard to is as one that brings it there.
    if (objet == champDonne_ && champs_.contains(objet)) {
      champPresse_ = std::exchange(champDonne_, nullptr);
    }
    break;
  case QEvent::MouseButtonRelease:
    // The press that brought the focus has set the cursor: the whole text is selected once the button is up.
    if (auto *champ = qobject_cast<QLineEdit *>(objet); champ != nullptr && objet == champPresse_) {
      champPresse_ = nullptr;
      if (!champ->hasSelectedText()) {
        champ->selectAll();
      }
    }
    break;
  default:
    break;
  }
  return false;
}

} // namespace velmaris::qt

#include "shell/qt/Rendu.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/Elements.hpp"
#include "shell/qt/Nuit.hpp"
#include "shell/qt/Toile.hpp"
#include "shell/qt/ToileCiel.hpp"
#include "shell/qt/Widgets.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSlider>

#include <utility>

namespace velmaris::qt {

Rendu::Rendu(Scene &scene, QWidget &fenetre, const ListeControles &controles)
    : scene_(scene), bureau_(scene.bureau()), fenetre_(fenetre) {
  CreeWidgets(controles);
  BrancheLibelles();
  scene_.Ajoute(*this);
  qApp->installEventFilter(this);
}

Rendu::~Rendu() { scene_.Retire(*this); }

void Rendu::CreeWidgets(const ListeControles &controles) {
  QWidget *precedent = nullptr;
  for (Controle *c : controles) {
    if (c->peint) {
      continue;
    }
    const Lien *parent = Trouve(c->parent, -1);
    if (auto *ciel = dynamic_cast<ToileCiel *>(parent == nullptr ? nullptr : parent->widget)) {
      ciel->Ajoute(*c);
      continue;
    }
    QWidget *widget = CreeWidget(bureau_, *c, parent == nullptr ? &fenetre_ : parent->widget);
    liens_.push_back({c, widget, {}});
    if (widget == nullptr) {
      continue;
    }
    widget->setObjectName(QString::fromStdString(c->nom) + (c->indice < 0 ? QString() : QString::number(c->indice)));
    Branche(widget, *c);
    if (widget->focusPolicy() != Qt::NoFocus) {
      if (precedent != nullptr) {
        QWidget::setTabOrder(precedent, widget);
      }
      precedent = widget;
    }
  }
}

void Rendu::Branche(QWidget *widget, Controle &c) {
  const auto clic = [this, &c] { Joue([this, &c] { ClicControle(bureau_, c); }); };
  if (auto *toile = dynamic_cast<Toile *>(widget)) {
    toile->auClic = clic;
  } else if (auto *volet = dynamic_cast<Volet *>(widget)) {
    volet->auClic = [volet, clic] {
      volet->raise();
      clic();
    };
  } else if (auto *figure = dynamic_cast<Figure *>(widget)) {
    figure->auSurvol = [this, &c] { Joue([this, &c] { SurvoleControle(bureau_, c); }); };
  } else if (auto *renvoi = dynamic_cast<Renvoi *>(widget)) {
    renvoi->auClic = clic;
  } else if (auto *champ = qobject_cast<QLineEdit *>(widget)) {
    champs_.insert(champ, &c);
    connect(champ, &QLineEdit::textEdited, this,
            [this, &c](const QString &t) { Joue([&] { SaisitTexte(bureau_, c, t.toStdString()); }); });
  } else if (auto *option = qobject_cast<QRadioButton *>(widget)) {
    BrancheOption(*option, c);
  } else if (auto *coche = qobject_cast<QCheckBox *>(widget)) {
    connect(coche, &QCheckBox::clicked, this, [this, &c] { Joue([this, &c] { ClicCase(bureau_, c); }); });
  } else if (auto *bouton = qobject_cast<QAbstractButton *>(widget)) {
    connect(bouton, &QAbstractButton::clicked, this, clic);
  } else if (auto *curseur = qobject_cast<QSlider *>(widget)) {
    connect(curseur, &QSlider::valueChanged, this,
            [this, &c](int v) { Joue([this, &c, v] { BougeCurseur(bureau_, c, v); }); });
  } else {
    BrancheListe(widget, c);
  }
}

void Rendu::BrancheListe(QWidget *widget, Controle &c) {
  const auto choisit = [this, &c](int rang) { Joue([this, &c, rang] { ChoisitLigne(bureau_, c, rang); }); };
  if (auto *deroulante = qobject_cast<QComboBox *>(widget)) {
    connect(deroulante, &QComboBox::activated, this, choisit);
  } else if (auto *liste = qobject_cast<QListWidget *>(widget)) {
    champs_.insert(liste, &c);
    connect(liste, &QListWidget::currentRowChanged, this, choisit);
    connect(liste, &QListWidget::itemPressed, this,
            [liste, choisit](QListWidgetItem *ligne) { choisit(liste->row(ligne)); });
    connect(liste, &QListWidget::itemDoubleClicked, this,
            [this, &c] { Joue([this, &c] { DoubleClicControle(bureau_, c); }); });
  }
}

void Rendu::BrancheOption(QRadioButton &option, Controle &c) {
  QButtonGroup *&groupe = groupes_[c.groupe];
  if (groupe == nullptr) {
    groupe = new QButtonGroup(this);
  }
  groupe->addButton(&option);
  connect(&option, &QRadioButton::clicked, this, [this, &c] { Joue([this, &c] { ClicOption(bureau_, c); }); });
}

/// A caption with a key of its own leads to the control that it names.
void Rendu::BrancheLibelles() {
  for (const Lien &lien : liens_) {
    const Lien *libelle = lien.controle->par.empty() ? nullptr : Trouve(lien.controle->par, lien.controle->parIndice);
    if (libelle == nullptr || !libelle->controle->raccourci) {
      continue;
    }
    if (auto *label = qobject_cast<QLabel *>(libelle->widget); label != nullptr && label->buddy() == nullptr) {
      label->setBuddy(lien.widget);
    }
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

QWidget *Rendu::WidgetDe(const Controle &controle) const {
  for (const Lien &lien : liens_) {
    if (lien.controle == &controle) {
      return lien.widget;
    }
  }
  return nullptr;
}

/// The words that name a control to a screen reader: its own caption, that of its label, or its tool tip.
QString Rendu::NomLisible(const Controle &c) const {
  const Lien *libelle = c.par.empty() ? nullptr : Trouve(c.par, c.parIndice);
  const Controle &nomme = libelle == nullptr ? c : *libelle->controle;
  QString nom = QString::fromStdString(nomme.legende.empty() ? c.infobulle : nomme.legende).simplified();
  if (nomme.raccourci) {
    nom.remove('&');
  }
  return nom;
}

void Rendu::AccordeWidget(Lien &lien, bool tout) {
  if (lien.widget == nullptr) {
    return;
  }
  if (!tout && *lien.controle == lien.vu && !lien.controle->toutSelectionne) {
    // A box or an option that the toolkit has switched by itself follows its control all the same.
    if (auto *bouton = qobject_cast<QAbstractButton *>(lien.widget); bouton == nullptr || !bouton->isCheckable()) {
      return;
    }
  }
  Controle &c = *lien.controle;
  qt::AccordeWidget(*lien.widget, c, lien.vu, tout);
  const QString nom = NomLisible(c);
  if (lien.widget->focusPolicy() != Qt::NoFocus && lien.widget->accessibleName() != nom) {
    lien.widget->setAccessibleName(nom);
  }
  if (auto *champ = qobject_cast<QLineEdit *>(lien.widget); champ != nullptr && c.toutSelectionne) {
    champ->selectAll();
  }
  c.toutSelectionne = false;
  lien.vu = c;
}

/// The keyboard enters a group of options at its chosen one, or at each while none is chosen.
void Rendu::AccordeGroupes() {
  for (const QButtonGroup *groupe : groupes_) {
    for (QAbstractButton *option : groupe->buttons()) {
      const bool entree = option->isChecked() || groupe->checkedButton() == nullptr;
      option->setFocusPolicy(entree ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }
}

void Rendu::Accorde() {
  const bool change = std::exchange(nuit_, EstNuit()) != EstNuit() || premier_;
  for (Lien &lien : liens_) {
    AccordeWidget(lien, premier_);
    if (change && lien.widget != nullptr) {
      AccordeTeintes(*lien.widget, *lien.controle);
    }
    if (auto *toile = dynamic_cast<Toile *>(lien.widget)) {
      toile->Accorde();
    }
  }
  premier_ = false;
  AccordeGroupes();
}

bool Rendu::DonneFocus(const Controle &controle) const {
  QWidget *widget = WidgetDe(controle);
  if (widget != nullptr) {
    widget->setFocus(Qt::OtherFocusReason);
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

#include "shell/qt/Fenetre.hpp"

#include "shell/Demarrage.hpp"
#include "shell/Evenements.hpp"
#include "shell/Modules.hpp"
#include "shell/qt/Widgets.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>

#include <cmath>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr int kCodeF1 = 112;
const QColor kFondFenetre(238, 240, 243);

/// The words that name a control to a screen reader: its own caption, that of its label, or its tool tip.
QString NomLisible(Donnees &donnees, const LigneDonnees &ligne, const Controle &c) {
  const Controle *label =
      ligne.traits.par.empty() ? nullptr : Cherche(donnees, ligne.traits.par, ligne.traits.parIndice);
  const std::string &texte = label != nullptr ? label->legende : !c.legende.empty() ? c.legende : c.infobulle;
  return QString::fromStdString(texte).simplified();
}

} // namespace

Fenetre::Fenetre(Bureau &bureau) : bureau_(bureau) {
  const double f = PixelsParTwip(*this);
  resize(static_cast<int>(std::lround(bureau.largeurFenetre * f)),
         static_cast<int>(std::lround(bureau.hauteurFenetre * f)));
  for (Surface *surface : {&bureau_.image1, &bureau_.picAZ, &bureau_.picHE}) {
    surface->interligne = QFontMetricsF(PoliceQt(surface->police), this).height() / f;
  }
  CreeWidgets();
  Accorde();
  qApp->installEventFilter(this);
  horloge_.callOnTimeout(this, [this] { Joue([this] { Timer1_Tick(bureau_); }); });
  horloge_.start(kPeriodeTimer1);
}

QWidget *Fenetre::Parent(std::string_view nom) {
  for (const Lien &lien : liens_) {
    if (lien.ligne->nom == nom) {
      return lien.widget;
    }
  }
  return this;
}

void Fenetre::CreeWidgets() {
  QWidget *precedent = nullptr;
  PourChaque(bureau_.donnees, [&](const LigneDonnees &ligne, Controle &c) {
    QWidget *widget = CreeWidget(bureau_, c, Parent(ligne.parent));
    liens_.push_back({&ligne, &c, widget, {}});
    if (widget == nullptr) {
      return;
    }
    widget->setObjectName(QString::fromStdString(c.nom) + (c.indice < 0 ? QString() : QString::number(c.indice)));
    Branche(liens_.back());
    if (widget->focusPolicy() != Qt::NoFocus) {
      if (precedent != nullptr) {
        setTabOrder(precedent, widget);
      }
      precedent = widget;
    }
  });
}

void Fenetre::Branche(Lien &lien) {
  Controle &c = *lien.controle;
  QWidget *widget = lien.widget;
  if (auto *toile = dynamic_cast<Toile *>(widget)) {
    BrancheToile(*toile, c);
  } else if (auto *carte = dynamic_cast<Carte *>(widget)) {
    carte->auClic = [this, &c, carte] {
      carte->raise();
      Joue([this, &c] { ClicControle(bureau_, c); });
    };
  } else if (auto *champ = qobject_cast<QLineEdit *>(widget)) {
    champs_.insert(champ, &c);
    connect(champ, &QLineEdit::textEdited, this,
            [this, &c](const QString &t) { Joue([&] { SaisitTexte(bureau_, c, t.toStdString()); }); });
  } else if (auto *option = qobject_cast<QRadioButton *>(widget)) {
    BrancheOption(*option, c);
  } else if (auto *coche = qobject_cast<QCheckBox *>(widget)) {
    connect(coche, &QCheckBox::clicked, this, [this, &c] { Joue([this, &c] { ClicCase(bureau_, c); }); });
  } else if (auto *bouton = qobject_cast<QAbstractButton *>(widget)) {
    connect(bouton, &QAbstractButton::clicked, this, [this, &c] { Joue([this, &c] { ClicControle(bureau_, c); }); });
  } else if (auto *liste = qobject_cast<QComboBox *>(widget)) {
    connect(liste, &QComboBox::activated, this,
            [this, &c](int rang) { Joue([this, &c, rang] { ChoisitLigne(bureau_, c, rang); }); });
  } else if (auto *curseur = qobject_cast<QSlider *>(widget)) {
    connect(curseur, &QSlider::valueChanged, this,
            [this, &c](int v) { Joue([this, &c, v] { BougeCurseur(bureau_, c, v); }); });
  }
}

void Fenetre::BrancheToile(Toile &toile, Controle &c) {
  if (&c == &bureau_.donnees.Image1) {
    toile.auMouvement = [this](bool gauche, double x, double y) {
      if (bureau_.ModuleDeplace != 0) {
        Joue([&] { Image1_MouseMove(bureau_, gauche, x, y); });
      }
    };
    toile.auRelache = [this] { Joue([this] { Image1_MouseUp(bureau_); }); };
  } else {
    toile.auClic = [this, &c] { Joue([this, &c] { ClicControle(bureau_, c); }); };
  }
}

void Fenetre::BrancheOption(QRadioButton &option, Controle &c) {
  QButtonGroup *&groupe = groupes_[c.groupe];
  if (groupe == nullptr) {
    groupe = new QButtonGroup(this);
  }
  groupe->addButton(&option);
  connect(&option, &QRadioButton::clicked, this, [this, &c] { Joue([this, &c] { ClicOption(bureau_, c); }); });
}

void Fenetre::Joue(const std::function<void()> &evenement) {
  try {
    evenement();
  } catch (const std::exception &erreur) {
    horloge_.stop();
    Secours(bureau_, erreur);
    QApplication::exit(1);
    return;
  }
  Accorde();
}

void Fenetre::AccordeWidget(Lien &lien, bool tout) {
  if (lien.widget == nullptr || (!tout && *lien.controle == lien.vu && !lien.controle->toutSelectionne)) {
    // A box or an option that the toolkit has switched by itself follows its control all the same.
    if (auto *bouton = qobject_cast<QAbstractButton *>(lien.widget); bouton == nullptr || !bouton->isCheckable()) {
      return;
    }
  }
  Controle &c = *lien.controle;
  qt::AccordeWidget(*lien.widget, c, lien.vu, tout, QString::fromStdString(bureau_.donnees.TexteAVenir.legende));
  const QString nom = NomLisible(bureau_.donnees, *lien.ligne, c);
  if (lien.widget->focusPolicy() != Qt::NoFocus && lien.widget->accessibleName() != nom) {
    lien.widget->setAccessibleName(nom);
  }
  if (auto *champ = qobject_cast<QLineEdit *>(lien.widget);
      champ != nullptr && c.toutSelectionne && champ->hasFocus()) {
    champ->selectAll();
  }
  c.toutSelectionne = false;
  lien.vu = c;
}

void Fenetre::AccordeTout() {
  for (Lien &lien : liens_) {
    AccordeWidget(lien, premier_);
    if (auto *toile = dynamic_cast<Toile *>(lien.widget)) {
      toile->Accorde();
    }
  }
  premier_ = false;
}

/// The keyboard enters a group of options at its chosen one, or at each while none is chosen.
void Fenetre::AccordeGroupes() {
  for (const QButtonGroup *groupe : groupes_) {
    for (QAbstractButton *option : groupe->buttons()) {
      const bool entree = option->isChecked() || groupe->checkedButton() == nullptr;
      option->setFocusPolicy(entree ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }
}

void Fenetre::Accorde() {
  encore_ = true;
  if (accorde_) {
    return;
  }
  accorde_ = true;
  // Moving the focus, or hiding what has it, is an event in its turn.
  while (encore_) {
    encore_ = false;
    AccordeTout();
    AccordeGroupes();
    if (const Controle *voulu = std::exchange(bureau_.focus, nullptr)) {
      for (const Lien &lien : liens_) {
        if (lien.controle == voulu && lien.widget != nullptr) {
          lien.widget->setFocus(Qt::OtherFocusReason);
        }
      }
    }
  }
  accorde_ = false;
  setWindowTitle(QString::fromStdString(bureau_.titre));
  if (bureau_.termine) {
    horloge_.stop();
    QApplication::quit();
  }
}

void Fenetre::closeEvent(QCloseEvent *event) {
  if (!bureau_.termine) {
    Joue([this] { Sortie_Click(bureau_, -1); });
  }
  event->setAccepted(bureau_.termine);
}

bool Fenetre::Champ(QObject *objet, QEvent *event) {
  const auto trouve = champs_.constFind(objet);
  if (trouve == champs_.constEnd()) {
    return false;
  }
  const Qt::FocusReason raison = static_cast<QFocusEvent *>(event)->reason();
  if (raison == Qt::ActiveWindowFocusReason || raison == Qt::PopupFocusReason) {
    return false;
  }
  Controle &c = **trouve;
  if (event->type() == QEvent::FocusIn) {
    champPresse_ = raison == Qt::MouseFocusReason ? objet : nullptr;
    Joue([&] { EntreChamp(bureau_, c); });
  } else {
    Joue([&] { QuitteChamp(bureau_, c); });
  }
  return false;
}

bool Fenetre::eventFilter(QObject *objet, QEvent *event) {
  switch (event->type()) {
  case QEvent::FocusIn:
  case QEvent::FocusOut:
    return Champ(objet, event);
  case QEvent::MouseButtonRelease:
    // The press that brought the focus has set the cursor: the whole text is selected once the button is up.
    if (auto *champ = qobject_cast<QLineEdit *>(objet); champ != nullptr && objet == champPresse_) {
      champPresse_ = nullptr;
      if (!champ->hasSelectedText()) {
        champ->selectAll();
      }
    }
    return false;
  case QEvent::KeyPress: {
    const int touche = static_cast<QKeyEvent *>(event)->key();
    const auto *widget = qobject_cast<QWidget *>(objet);
    if (auto *bouton = qobject_cast<QPushButton *>(objet);
        bouton != nullptr && bouton->window() == this && (touche == Qt::Key_Return || touche == Qt::Key_Enter)) {
      bouton->click();
      return true;
    }
    if (touche < Qt::Key_F1 || touche > Qt::Key_F12 || widget == nullptr || widget->window() != this ||
        QApplication::activeModalWidget() != nullptr) {
      return false;
    }
    bool prise = false;
    Joue([&] { prise = Donnees_KeyDown(bureau_, kCodeF1 + touche - Qt::Key_F1); });
    return prise;
  }
  default:
    return false;
  }
}

void Fenetre::paintEvent(QPaintEvent *event) {
  QPainter p(this);
  p.fillRect(event->rect(), kFondFenetre);
}

} // namespace velmaris::qt

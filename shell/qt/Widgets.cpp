#include "shell/qt/Widgets.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/Elements.hpp"
#include "shell/qt/Icones.hpp"
#include "shell/qt/Nuit.hpp"
#include "shell/qt/Toile.hpp"
#include "shell/qt/ToileCiel.hpp"
#include "sky/LettreGrecque.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace velmaris::qt {
namespace {

constexpr double kPlusPetite = 7.0; ///< points of a caption that stands out

QString Texte(const std::string &texte) { return QString::fromStdString(texte); }

/// A caption as the toolkit takes it: an ampersand marks a key only where the control has one. The letter of a star is
/// a Greek one.
QString Legende(const Controle &c) {
  if (c.nom == "Bayer1") {
    return Texte(std::string(LettreGrecque(c.legende)));
  }
  return c.raccourci ? Texte(c.legende) : Texte(c.legende).replace('&', QLatin1String("&&"));
}

Qt::Alignment Alignement(Cote cote) {
  switch (cote) {
  case Cote::Centre:
    return Qt::AlignCenter;
  case Cote::Droite:
    return Qt::AlignRight | Qt::AlignVCenter;
  case Cote::Gauche:
  default:
    return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

/// The background of a caption on the drawing surface. Not quite opaque: an opaque widget that moves is copied from
/// place to place by the toolkit, which then paints what lies under it over the modules.
void PoseFond(QWidget &widget) {
  QPalette palette = widget.palette();
  QColor fond = QApplication::palette().color(QPalette::Base);
  fond.setAlpha(254);
  palette.setColor(QPalette::Base, fond);
  widget.setPalette(palette);
}

QWidget *CreeEtiquette(const Controle &c, QWidget *parent) {
  auto *label = c.renvoi ? new Renvoi(parent) : new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Alignement(c.cote));
  if (c.opaque) {
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Base);
  }
  if (c.cadre) {
    label->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Base);
  }
  return label;
}

QWidget *CreeImage(const Controle &c, QWidget *parent) {
  if (Ecoute(c, Evenement::Clic)) {
    auto *bouton = new QToolButton(parent);
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::TabFocus);
    return bouton;
  }
  return Ecoute(c, Evenement::Survol) ? new Figure(parent) : new QLabel(parent);
}

/// A list that chooses nothing by itself when the keyboard comes to it.
class ListeSansChoix : public QListWidget {
public:
  using QListWidget::QListWidget;

protected:
  void focusInEvent(QFocusEvent *event) override {
    const bool sansChoix = !currentIndex().isValid();
    const QSignalBlocker silence(this);
    QListWidget::focusInEvent(event);
    if (sansChoix) {
      setCurrentIndex({});
    }
  }
};

/// A field whose cursor, which the toolkit draws as the negative of the ground, is red by night.
class Champ : public QLineEdit {
public:
  using QLineEdit::QLineEdit;

protected:
  void paintEvent(QPaintEvent *event) override {
    QLineEdit::paintEvent(event);
    if (EstNuit()) {
      QPainter p(this);
      p.setCompositionMode(QPainter::CompositionMode_Darken);
      p.fillRect(event->rect(), palette().color(QPalette::BrightText));
    }
  }
};

QWidget *CreeListeBoite(QWidget *parent) {
  auto *liste = new ListeSansChoix(parent);
  liste->setUniformItemSizes(true);
  liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  return liste;
}

QWidget *CreeCurseur(const Controle &c, QWidget *parent) {
  auto *curseur = new QSlider(Qt::Horizontal, parent);
  curseur->setRange(c.minimum, c.maximum);
  curseur->setSingleStep(c.petitPas);
  curseur->setPageStep(c.grandPas);
  return curseur;
}

void PoseImage(QWidget &widget, const Controle &c) {
  const QSize taille = widget.size();
  if (auto *bouton = qobject_cast<QAbstractButton *>(&widget)) {
    const int cote = std::min(taille.height() - 8, 26);
    bouton->setIcon(Icone(c.image));
    bouton->setIconSize(c.genre == Genre::Image ? taille - QSize(4, 4) : QSize(cote, cote));
  } else if (auto *label = qobject_cast<QLabel *>(&widget)) {
    label->setPixmap(Icone(c.image).pixmap(taille, widget.devicePixelRatioF()));
  }
}

void PoseLegende(QWidget &widget, const Controle &c) {
  if (auto *groupe = qobject_cast<QGroupBox *>(&widget)) {
    groupe->setTitle(Legende(c));
  }
  if (auto *label = qobject_cast<QLabel *>(&widget); label != nullptr && c.genre == Genre::Etiquette) {
    label->setText(
        CoupeLegende(c.nom == "Bayer1" ? Legende(c) : Texte(c.legende), widget, widget.width(), widget.height()));
  } else if (auto *bouton = qobject_cast<QAbstractButton *>(&widget); bouton != nullptr) {
    const int marque = qobject_cast<QPushButton *>(&widget) == nullptr ? LargeurMarque(widget) : 8;
    bouton->setText(CoupeLegende(Legende(c), widget, widget.width() - marque, widget.height()));
  }
}

void PoseCouleur(QWidget &widget, const Controle &c) {
  QPalette palette = widget.palette();
  const QColor couleur = EstNuit() ? EncreDeNuit(CouleurQt(c.couleur)) : CouleurQt(c.couleur);
  palette.setColor(QPalette::Active, widget.foregroundRole(), couleur);
  palette.setColor(QPalette::Inactive, widget.foregroundRole(), couleur);
  widget.setPalette(palette);
}

/// The font of a control; a caption that stands out takes no more room than its place has.
void PosePolice(QWidget &widget, const Controle &c) {
  QFont font = widget.font();
  font.setPointSizeF(c.taille);
  font.setBold(c.gras || c.accent);
  font.setUnderline(c.accent);
  const double place = widget.width() - LargeurMarque(widget);
  while (c.accent && font.pointSizeF() > kPlusPetite && QFontMetricsF(font).horizontalAdvance(Legende(c)) > place) {
    font.setPointSizeF(font.pointSizeF() - 0.5);
  }
  widget.setFont(font);
}

void RemplitDeroulante(QComboBox &deroulante, const Controle &c, const Controle &vu, bool tout) {
  if (tout || c.liste != vu.liste) {
    deroulante.clear();
    for (const std::string &ligne : c.liste) {
      deroulante.addItem(Texte(ligne));
    }
  }
  // A text that is no line of the list is shown all the same.
  deroulante.setPlaceholderText(Texte(c.texte));
  deroulante.setCurrentIndex(c.rang);
}

void RemplitListe(QListWidget &liste, const Controle &c, const Controle &vu, bool tout) {
  const bool ajout =
      !tout && c.liste.size() == vu.liste.size() + 1 && std::equal(vu.liste.begin(), vu.liste.end(), c.liste.begin());
  if (ajout) {
    liste.addItem(Texte(c.liste.back()));
    liste.scrollToBottom();
  } else if (tout || c.liste != vu.liste) {
    QStringList lignes;
    lignes.reserve(static_cast<qsizetype>(c.liste.size()));
    for (const std::string &ligne : c.liste) {
      lignes << Texte(ligne);
    }
    liste.clear();
    liste.addItems(lignes);
  }
  if (liste.currentRow() != c.rang) {
    liste.setCurrentRow(c.rang);
  }
}

void PosePointeur(QWidget &widget, const Controle &c, const Controle &vu) {
  if (c.pointeur != vu.pointeur) {
    widget.setCursor(c.pointeur == Pointeur::Croix ? Qt::CrossCursor : Qt::ArrowCursor);
  }
}

/// Text, value or choice of a control that the user fills.
void PoseContenu(QWidget &widget, const Controle &c, const Controle &vu, bool tout) {
  const QSignalBlocker silence(&widget);
  if (auto *champ = qobject_cast<QLineEdit *>(&widget)) {
    if (champ->text() != Texte(c.texte)) {
      champ->setText(Texte(c.texte));
    }
  } else if (auto *deroulante = qobject_cast<QComboBox *>(&widget)) {
    RemplitDeroulante(*deroulante, c, vu, tout);
  } else if (auto *liste = qobject_cast<QListWidget *>(&widget)) {
    RemplitListe(*liste, c, vu, tout);
  } else if (auto *option = qobject_cast<QRadioButton *>(&widget)) {
    option->setChecked(c.choisi);
  } else if (auto *coche = qobject_cast<QCheckBox *>(&widget)) {
    coche->setCheckState(c.valeur == 2 ? Qt::PartiallyChecked : c.valeur == 0 ? Qt::Unchecked : Qt::Checked);
  } else if (auto *curseur = qobject_cast<QSlider *>(&widget)) {
    curseur->setValue(c.valeur);
  }
}

} // namespace

QWidget *CreeWidget(Bureau &bureau, const Controle &c, QWidget *parent) {
  switch (c.genre) {
  case Genre::Surface:
    if (&c == &bureau.ciel.Picture1) {
      return new ToileCiel(bureau.ciel, parent);
    }
    return new Toile(*SurfaceDe(bureau, c), parent);
  case Genre::Cadre:
    return new Volet(c.titre, parent);
  case Genre::Groupe:
    return c.legende.empty() ? new QWidget(parent) : new QGroupBox(parent);
  case Genre::Etiquette:
    return CreeEtiquette(c, parent);
  case Genre::Champ: {
    auto *champ = new Champ(parent);
    champ->setAlignment(Alignement(c.cote));
    champ->setReadOnly(c.lectureSeule);
    return champ;
  }
  case Genre::Bouton:
    return new QPushButton(parent);
  case Genre::Option:
    return new QRadioButton(parent);
  case Genre::Case:
    return new QCheckBox(parent);
  case Genre::Liste:
    return new QComboBox(parent);
  case Genre::ListeBoite:
    return CreeListeBoite(parent);
  case Genre::Curseur:
    return CreeCurseur(c, parent);
  case Genre::Image:
    return CreeImage(c, parent);
  case Genre::Marque: // the sky's chart paints its own
  case Genre::Texte:
  case Genre::Menu:
  case Genre::Entree:
  case Genre::Separateur:
  default:
    return nullptr;
  }
}

namespace {

void AccordePolice(QWidget &widget, const Controle &c, const Controle &vu, bool tout) {
  if (tout || c.taille != vu.taille || c.gras != vu.gras || c.accent != vu.accent ||
      (c.accent && c.legende != vu.legende)) {
    PosePolice(widget, c);
  }
  if ((tout || c.image != vu.image) && (!c.image.empty() || !vu.image.empty())) {
    PoseImage(widget, c);
  }
}

} // namespace

void AccordeWidget(QWidget &widget, const Controle &c, const Controle &vu, bool tout) {
  if (tout || c.place != vu.place) {
    widget.setGeometry(PlaceQt(c.place, widget));
  }
  AccordePolice(widget, c, vu, tout);
  if (tout || c.legende != vu.legende || c.place != vu.place || c.accent != vu.accent) {
    PoseLegende(widget, c);
  }
  if (c.couleur != vu.couleur || (tout && c.couleur != kNoir)) {
    PoseCouleur(widget, c);
  }
  PoseContenu(widget, c, vu, tout);
  if (widget.toolTip() != Texte(c.infobulle)) {
    widget.setToolTip(Texte(c.infobulle));
  }
  PosePointeur(widget, c, vu);
  if (tout || c.actif != vu.actif) {
    widget.setEnabled(c.actif);
  }
  if (tout || c.visible != vu.visible) {
    widget.setVisible(c.visible);
    if (c.visible && (c.genre == Genre::Cadre || c.couleur != kNoir)) {
      widget.raise();
    }
  }
}

void AccordeTeintes(QWidget &widget, const Controle &c) {
  if (c.opaque) {
    PoseFond(widget);
  }
  if (!c.image.empty()) {
    PoseImage(widget, c);
  }
  if (widget.palette().isBrushSet(QPalette::Active, widget.foregroundRole()) &&
      widget.testAttribute(Qt::WA_SetPalette)) {
    PoseCouleur(widget, c);
  }
}

QString CoupeLegende(const QString &texte, const QWidget &widget, double largeur, double hauteur) {
  const QFontMetricsF metrique(widget.font());
  if (texte.contains('\n') || metrique.horizontalAdvance(texte) <= largeur || hauteur < 2 * metrique.height()) {
    return texte;
  }
  for (qsizetype i = texte.lastIndexOf(' '); i > 0; i = texte.lastIndexOf(' ', i - 1)) {
    if (metrique.horizontalAdvance(texte.left(i)) <= largeur) {
      return texte.left(i) + '\n' + texte.mid(i + 1);
    }
  }
  return texte;
}

QRect PlaceQt(const Place &place, const QWidget &widget) {
  const double f = PixelsParTwip(widget);
  const int x = static_cast<int>(std::lround(place.gauche * f));
  const int y = static_cast<int>(std::lround(place.haut * f));
  return {x, y, static_cast<int>(std::lround(place.largeur * f)), static_cast<int>(std::lround(place.hauteur * f))};
}

int LargeurMarque(const QWidget &widget) {
  const QStyle &style = *widget.style();
  return style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &widget) +
         style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &widget) + 2;
}

} // namespace velmaris::qt

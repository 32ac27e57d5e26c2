#include "shell/qt/widgets/Elements.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr int kHautTitre = 20;        ///< pixels of a module's title band at scale 1
constexpr double kPlaceFleche = 10;   ///< from the right edge of a closed list to the middle of its arrow
constexpr double kMiFleche = 3.5;     ///< half its width, and its height
constexpr double kTraitFleche = 1.25; ///< width of its strokes
constexpr int kAlerte = 2;            ///< of the frame around a field that is to be mended
constexpr double kTiret = 2.5;        ///< of its dashes by night, in its own width

/// The frame around what is to be mended.
void EncadreAlerte(QWidget &widget) {
  QPainter p(&widget);
  const int epais = Pixels(kAlerte, widget);
  QPen plume(TeintesDe(EclairageVu()).alerte, epais, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (EstNuit()) {
    plume.setDashPattern({kTiret, kTiret});
  }
  p.setPen(plume);
  const double demi = epais / 2.0;
  p.drawRect(QRectF(widget.rect()).adjusted(demi, demi, -demi, -demi));
}

} // namespace

Volet::Volet(bool titre, QWidget *parent) : QFrame(parent), titre_(titre) {}

void Volet::paintEvent(QPaintEvent * /*event*/) {
  QPainter p(this);
  const Teintes &teintes = TeintesDe(EclairageVu());
  p.fillRect(rect(), teintes.carte);
  if (titre_) {
    p.fillRect(QRect(0, 0, width(), Pixels(kHautTitre, *this)), teintes.bande);
  }
  p.setPen(teintes.bord);
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Volet::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton || !auClic) {
    return;
  }
  prise_ = event->position().toPoint();
  presse_ = titre_ && prise_.y() < Pixels(kHautTitre, *this);
  tire_ = false;
  auClic();
}

void Volet::mouseMoveEvent(QMouseEvent *event) {
  const QPoint chemin = event->position().toPoint() - prise_;
  tire_ = presse_ && (tire_ || chemin.manhattanLength() >= QApplication::startDragDistance());
  if (tire_ && auTrait) {
    auTrait(pos() + chemin);
  }
}

void Volet::mouseReleaseEvent(QMouseEvent * /*event*/) {
  presse_ = false;
  if (std::exchange(tire_, false) && auLache) {
    auLache();
  }
}

void Inscription::paintEvent(QPaintEvent * /*event*/) {
  QPainter p(this);
  QColor bord = palette().color(QPalette::Base);
  bord.setAlpha(255);
  const int epaisseur = std::max(1, fontMetrics().height() / 12);
  const int maniere = static_cast<int>(alignment());
  p.setPen(bord);
  for (const QPoint &ecart : {QPoint(1, 1), QPoint(-1, 1), QPoint(1, -1), QPoint(-1, -1)}) {
    p.drawText(contentsRect().translated(ecart * epaisseur), maniere, text());
  }
  p.setPen(palette().color(foregroundRole()));
  p.drawText(contentsRect(), maniere, text());
}

Renvoi::Renvoi(QWidget *parent) : QLabel(parent) {
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
}

void Renvoi::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && auClic) {
    auClic();
  }
}

void Renvoi::keyPressEvent(QKeyEvent *event) {
  const int touche = event->key();
  if ((touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space) && auClic) {
    auClic();
  } else {
    QLabel::keyPressEvent(event);
  }
}

void Renvoi::paintEvent(QPaintEvent *event) {
  QLabel::paintEvent(event);
  if (hasFocus()) {
    QPainter p(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(1, 1, -1, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &p, this);
  }
}

void Champ::paintEvent(QPaintEvent *event) {
  QLineEdit::paintEvent(event);
  if (EstNuit()) {
    QPainter p(this);
    p.setCompositionMode(QPainter::CompositionMode_Darken);
    p.fillRect(event->rect(), palette().color(QPalette::BrightText));
  }
  if (alerte_) {
    EncadreAlerte(*this);
  }
}

void Champ::PoseAlerte(bool alerte) {
  alerte_ = alerte;
  update();
}

void Deroulante::PoseAlerte(bool alerte) {
  alerte_ = alerte;
  update();
}

Deroulante::Deroulante(QWidget *parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  Noircit();
}

/// A text that is no line of the list, as a stored star's, is as good as one that is.
void Deroulante::Noircit() {
  QPalette egale = palette();
  const QColor encre = egale.color(QPalette::Active, QPalette::Text);
  if (egale.color(QPalette::Active, QPalette::PlaceholderText) != encre) {
    egale.setColor(QPalette::PlaceholderText, encre);
    setPalette(egale);
  }
}

void Deroulante::changeEvent(QEvent *event) {
  QComboBox::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    Noircit();
  }
}

void Deroulante::paintEvent(QPaintEvent * /*event*/) {
  QStylePainter p(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.subControls &= ~QStyle::SubControls(QStyle::SC_ComboBoxArrow);
  p.drawComplexControl(QStyle::CC_ComboBox, option);
  if (currentIndex() < 0 && !placeholderText().isEmpty()) {
    option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
    option.currentText = placeholderText();
  }
  const double g = Grandeur(*this);
  QStyleOptionComboBox mots = option;
  mots.rect.adjust(0, 0, -static_cast<int>(std::max(0.0, g - 1) * kPlaceFleche), 0);
  p.drawControl(QStyle::CE_ComboBoxLabel, mots);
  const QPointF pointe(width() - kPlaceFleche * g, height() / 2.0 + kMiFleche * g / 2);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(option.palette.color(QPalette::ButtonText), kTraitFleche * g, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(pointe, pointe - QPointF(kMiFleche, kMiFleche) * g);
  p.drawLine(pointe, pointe - QPointF(-kMiFleche, kMiFleche) * g);
  p.end();
  if (alerte_) {
    EncadreAlerte(*this);
  }
}

void Deroulante::wheelEvent(QWheelEvent *event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void ListeSansChoix::focusInEvent(QFocusEvent *event) {
  const bool sansChoix = !currentIndex().isValid();
  const QSignalBlocker silence(this);
  QListWidget::focusInEvent(event);
  if (sansChoix) {
    setCurrentIndex({});
  }
}

Poussoir::Poussoir(QWidget *parent) : QToolButton(parent) {
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
}

void Poussoir::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

Figure::Figure(QWidget *parent) : QLabel(parent) { setMouseTracking(true); }

void Figure::mouseMoveEvent(QMouseEvent * /*event*/) { auSurvol(); }

} // namespace velmaris::qt

#include "shell/qt/Elements.hpp"

#include "shell/qt/Nuit.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace velmaris::qt {
namespace {

constexpr int kHautTitre = 20; ///< pixels of a module's title band

} // namespace

Volet::Volet(bool titre, QWidget *parent) : QFrame(parent), titre_(titre) {}

void Volet::paintEvent(QPaintEvent * /*event*/) {
  QPainter p(this);
  const Teintes &teintes = TeintesDe(EstNuit());
  p.fillRect(rect(), teintes.carte);
  if (titre_) {
    p.fillRect(QRect(0, 0, width(), kHautTitre), teintes.bande);
  }
  p.setPen(teintes.bord);
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Volet::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && auClic) {
    auClic();
  }
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

Figure::Figure(QWidget *parent) : QLabel(parent) { setMouseTracking(true); }

void Figure::mouseMoveEvent(QMouseEvent * /*event*/) { auSurvol(); }

} // namespace velmaris::qt

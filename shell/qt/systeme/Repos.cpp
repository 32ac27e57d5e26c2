#include "shell/qt/systeme/Repos.hpp"

#include <QApplication>
#include <QEvent>

namespace velmaris::qt {

Repos::Repos(std::chrono::milliseconds apres) : cadence_(QApplication::cursorFlashTime()) {
  attente_.setSingleShot(true);
  attente_.setInterval(apres);
  attente_.callOnTimeout(this, [] { QApplication::setCursorFlashTime(0); });
  attente_.start();
  qApp->installEventFilter(this);
}

Repos::~Repos() { QApplication::setCursorFlashTime(cadence_); }

bool Repos::eventFilter(QObject *objet, QEvent *event) {
  switch (event->type()) {
  case QEvent::KeyPress:
  case QEvent::MouseButtonPress:
  case QEvent::Wheel:
  case QEvent::WindowActivate:
    if (objet->isWidgetType()) {
      if (!attente_.isActive()) {
        QApplication::setCursorFlashTime(cadence_);
      }
      attente_.start();
    }
    break;
  default:
    break;
  }
  return QObject::eventFilter(objet, event);
}

} // namespace velmaris::qt

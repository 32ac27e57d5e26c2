#include "shell/qt/cadre/TouchesFenetres.hpp"

#include <QKeyEvent>
#include <QTabBar>

namespace velmaris::qt {
namespace {

/// @return 1 for the next tab, -1 for the one before, 0 for another key
int PasDOnglet(const QKeyEvent &appui) {
  if (!appui.modifiers().testFlag(Qt::ControlModifier) || appui.modifiers().testFlag(Qt::AltModifier)) {
    return 0;
  }
  switch (appui.key()) {
  case Qt::Key_Tab:
  case Qt::Key_PageDown:
    return 1;
  case Qt::Key_Backtab:
  case Qt::Key_PageUp:
    return -1;
  default:
    return 0;
  }
}

} // namespace

bool TourneOnglet(const QWidget &fenetre, const QKeyEvent &appui) {
  const int pas = PasDOnglet(appui);
  auto *onglets = pas == 0 ? nullptr : fenetre.findChild<QTabBar *>();
  if (onglets == nullptr || onglets->count() == 0) {
    return false;
  }
  onglets->setFocus(Qt::ShortcutFocusReason); // what had the keyboard may lie on the page that goes
  onglets->setCurrentIndex((onglets->currentIndex() + pas + onglets->count()) % onglets->count());
  return true;
}

char LettreControle(const QKeyEvent &appui) {
  const Qt::KeyboardModifiers avec = appui.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
  const bool majuscule = avec == (Qt::ControlModifier | Qt::ShiftModifier);
  if ((avec != Qt::ControlModifier && !majuscule) || appui.key() < Qt::Key_A || appui.key() > Qt::Key_Z) {
    return 0;
  }
  return static_cast<char>((majuscule ? 'a' : 'A') + appui.key() - Qt::Key_A);
}

} // namespace velmaris::qt

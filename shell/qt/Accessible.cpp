#include "shell/qt/Accessible.hpp"

#include "shell/qt/Elements.hpp"
#include "shell/qt/Toile.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

namespace velmaris::qt {
namespace {

/// A widget with a role; the toolkit takes what this gives, and deletes it with the widget.
/// @return null for a widget that the toolkit knows by itself
QAccessibleInterface *Interface(const QString & /*classe*/, QObject *objet) {
  auto *widget = qobject_cast<QWidget *>(objet);
  if (dynamic_cast<Volet *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Grouping);
  }
  if (dynamic_cast<Toile *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Canvas);
  }
  if (dynamic_cast<Renvoi *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Link);
  }
  return nullptr;
}

} // namespace

void PoseRolesAccessibles() { QAccessible::installFactory(Interface); }

} // namespace velmaris::qt

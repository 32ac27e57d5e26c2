#include "shell/qt/widgets/Accessible.hpp"

#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/widgets/Elements.hpp"
#include "shell/qt/widgets/Papier.hpp"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>

namespace velmaris::qt {
namespace {

/// A closed list. The toolkit's own, on this desktop, is named by what it has chosen: two of them with the same hour
/// would be one and the same to who hears them.
class ListeFermee : public QAccessibleWidget {
public:
  explicit ListeFermee(Deroulante &liste) : QAccessibleWidget(&liste, QAccessible::ComboBox), liste_(liste) {}

  QString text(QAccessible::Text quoi) const override {
    return quoi == QAccessible::Value ? liste_.currentText() : QAccessibleWidget::text(quoi);
  }
  int childCount() const override { return 1; }
  QAccessibleInterface *child(int rang) const override {
    return rang == 0 ? QAccessible::queryAccessibleInterface(liste_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface *enfant) const override {
    return enfant->object() == liste_.view() ? 0 : -1;
  }
  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
  void doAction(const QString &action) override {
    if (liste_.isEnabled() && (action == showMenuAction() || action == pressAction())) {
      liste_.view()->isVisible() ? liste_.hidePopup() : liste_.showPopup();
    }
  }
  QStringList keyBindingsForAction(const QString & /*action*/) const override { return {}; }

private:
  Deroulante &liste_;
};

/// A widget with a role; the toolkit takes what this gives, and deletes it with the widget.
/// @return null for a widget that the toolkit knows by itself
QAccessibleInterface *Interface(const QString & /*classe*/, QObject *objet) {
  auto *widget = qobject_cast<QWidget *>(objet);
  if (dynamic_cast<Volet *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Grouping);
  }
  if (dynamic_cast<Toile *>(widget) != nullptr || dynamic_cast<Papier *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Canvas);
  }
  if (auto *liste = dynamic_cast<Deroulante *>(widget)) {
    return new ListeFermee(*liste);
  }
  if (dynamic_cast<Renvoi *>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Link);
  }
  return nullptr;
}

} // namespace

void PoseRolesAccessibles() { QAccessible::installFactory(Interface); }

} // namespace velmaris::qt

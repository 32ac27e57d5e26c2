#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace velmaris::qt {

class Scene;

/// What the desktop says of its own look, at the start and whenever it changes: whether its colours are dark, and
/// whether its user wants a high contrast (the settings portal of the freedesktop organisation). Nobody is waited for,
/// and where no desktop answers nothing changes.
class Portail : public QObject {
  Q_OBJECT

public:
  explicit Portail(Scene &scene);

private:
  Q_SLOT void Change(const QString &espace, const QString &cle, const QDBusVariant &valeur);
  void Demande(const QString &cle);
  void Suit(const QString &cle, const QVariant &valeur);

  Scene &scene_;
};

} // namespace velmaris::qt

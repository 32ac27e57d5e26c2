#include "shell/qt/systeme/Portail.hpp"

#include "shell/ecran/Eclairage.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/widgets/Scene.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>

namespace velmaris::qt {
namespace {

constexpr const char *kService = "org.freedesktop.portal.Desktop";
constexpr const char *kObjet = "/org/freedesktop/portal/desktop";
constexpr const char *kInterface = "org.freedesktop.portal.Settings";
constexpr const char *kEspace = "org.freedesktop.appearance";
constexpr const char *kCouleurs = "color-scheme"; ///< 1 for dark, 2 for light
constexpr const char *kContraste = "contrast";    ///< 1 for high
constexpr uint kOui = 1;

/// Whether there is a bus to ask on: without one the library would start its own.
bool BusLa() {
  return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

/// A value out of the wrappings that the bus puts around it.
QVariant Nue(QVariant valeur) {
  while (valeur.canConvert<QDBusVariant>()) {
    valeur = valeur.value<QDBusVariant>().variant();
  }
  return valeur;
}

} // namespace

Portail::Portail(Scene &scene) : scene_(scene) {
  if (!BusLa()) {
    return;
  }
  // A slot is sought by the types it takes, and the bus makes this one known only with the first value it carries.
  qRegisterMetaType<QDBusVariant>("QDBusVariant");
  QDBusConnection::sessionBus().connect(kService, kObjet, kInterface, "SettingChanged", this,
                                        SLOT(Change(QString, QString, QDBusVariant)));
  Demande(kCouleurs);
  Demande(kContraste);
}

void Portail::Demande(const QString &cle) {
  QDBusMessage appel = QDBusMessage::createMethodCall(kService, kObjet, kInterface, "Read");
  appel << QString(kEspace) << cle;
  auto *attente = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(appel), this);
  connect(attente, &QDBusPendingCallWatcher::finished, this, [this, cle](QDBusPendingCallWatcher *fini) {
    const QDBusPendingReply<QDBusVariant> reponse = *fini;
    if (!reponse.isError()) {
      Suit(cle, reponse.value().variant());
    }
    fini->deleteLater();
  });
}

void Portail::Change(const QString &espace, const QString &cle, const QDBusVariant &valeur) {
  if (espace == kEspace) {
    Suit(cle, valeur.variant());
  }
}

void Portail::Suit(const QString &cle, const QVariant &valeur) {
  const bool oui = Nue(valeur).toUInt() == kOui;
  scene_.Joue([&] {
    if (cle == kCouleurs) {
      SuitBureauSombre(scene_.bureau(), oui);
    } else if (cle == kContraste) {
      AccordeContraste(oui);
    }
  });
}

} // namespace velmaris::qt

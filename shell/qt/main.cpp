#include "shell/Demarrage.hpp"
#include "shell/qt/Apparence.hpp"
#include "shell/qt/Fenetre.hpp"
#include "shell/qt/PortsQt.hpp"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <exception>
#include <memory>

namespace {

constexpr double kTwipsParPouce = 1440.0;

velmaris::Ecran EcranPrincipal() {
  const QScreen &ecran = *QGuiApplication::primaryScreen();
  const double twips = kTwipsParPouce / ecran.logicalDotsPerInch();
  return {ecran.geometry().width() * twips, ecran.geometry().height() * twips, ecran.geometry().height()};
}

} // namespace

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  velmaris::qt::PoseApparence();

  velmaris::Bureau bureau;
  velmaris::qt::Boites boites(bureau);
  bureau.dossiers = velmaris::TrouveDossiers(QApplication::applicationDirPath().toStdString());
  try {
    velmaris::Donnees_Charge(bureau, EcranPrincipal());
  } catch (const std::exception &erreur) {
    velmaris::Secours(bureau, erreur);
    return 1;
  }
  velmaris::qt::Scene scene(bureau);
  velmaris::qt::Fenetre fenetre(scene);
  fenetre.show();
  QTimer::singleShot(0, &fenetre, [&] { boites.Ouvre(scene, fenetre); });
  return QApplication::exec();
}

#include "shell/Demarrage.hpp"
#include "shell/Reprise.hpp"
#include "shell/RepriseSeance.hpp"
#include "shell/Sortie.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Rangement.hpp"
#include "shell/qt/cadre/Fenetre.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Apparence.hpp"
#include "shell/qt/systeme/Commande.hpp"
#include "shell/qt/systeme/EcranLibre.hpp"
#include "shell/qt/systeme/Portail.hpp"
#include "shell/qt/systeme/Repos.hpp"
#include "shell/qt/systeme/Signaux.hpp"
#include "shell/qt/widgets/Accessible.hpp"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int kMoitie = 128;         ///< of the lightest
constexpr int kApres = 100;          ///< ms from the window to what it didn't wait for
constexpr int kCommandeInconnue = 2; ///< status of a command line that isn't understood

velmaris::Ecran EcranPrincipal() {
  velmaris::qt::AttendEcran();
  const QSize libre = velmaris::qt::EcranLibre();
  return velmaris::EcranDe(libre.width(), libre.height(), velmaris::qt::HauteurEcran());
}

/// The program from its start sequence to its end.
/// @param sombre      whether the desktop is set to dark colours
/// @param recommence  whether it is to be started again
/// @return its status
int Joue(const velmaris::qt::Commande &commande, bool sombre, bool &recommence) {
  velmaris::Bureau bureau;
  velmaris::qt::Boites boites(bureau);
  bureau.sombreAilleurs = sombre;
  bureau.dossiers = velmaris::TrouveDossiers(QApplication::applicationDirPath().toStdString());
  try {
    velmaris::Donnees_Charge(bureau, EcranPrincipal());
  } catch (const std::exception &erreur) {
    velmaris::Secours(bureau, erreur);
    return 1;
  }
  velmaris::RemetDisposition(bureau);
  velmaris::PoseSignauxMortels();
  velmaris::OuvreReprise(bureau);
  velmaris::qt::Scene scene(bureau);
  const velmaris::qt::Signaux signaux(scene);
  const velmaris::qt::Repos repos;
  velmaris::qt::Fenetre fenetre(scene);
  fenetre.show();
  std::optional<velmaris::qt::Portail> portail;
  QTimer::singleShot(0, &fenetre, [&] {
    portail.emplace(scene);
    boites.Ouvre(scene, fenetre);
    scene.Joue([&] { velmaris::ProposeReprise(bureau, commande.reprend); });
    if (!commande.fichier.empty() && !commande.reprend && !bureau.termine) {
      scene.Joue([&] { velmaris::OuvreVisee(bureau, commande.fichier); });
    }
  });
  QTimer::singleShot(kApres, &fenetre, [&] {
    velmaris::qt::PoseIcone();
    fenetre.Complete();
  });
  const int statut = QApplication::exec();
  recommence = bureau.recommence;
  return statut;
}

} // namespace

int main(int argc, char **argv) {
  const std::vector<std::string> ligne(argv, argv + argc);
  const velmaris::Langue dit =
      velmaris::LangueDuSysteme(std::getenv("LC_ALL"), std::getenv("LC_MESSAGES"), std::getenv("LANG"));
  if (const auto reponse = velmaris::qt::ReponseSansFenetre({argv + 1, argv + argc}, dit)) {
    std::fputs(reponse->c_str(), stdout);
    return 0;
  }
  const QApplication application(argc, argv);
  const velmaris::qt::Commande commande = velmaris::qt::LitCommande({argv + 1, argv + argc});
  if (!commande.inconnue.empty()) {
    const std::string plainte = dit("velmaris : option inconnue ", "velmaris: unknown option ") + commande.inconnue +
                                dit(" (voir velmaris --help)", " (see velmaris --help)") + "\n";
    std::fputs(plainte.c_str(), stderr);
    return kCommandeInconnue;
  }
  const bool sombre = QGuiApplication::palette().color(QPalette::Window).lightness() < kMoitie; // the desktop's own
  velmaris::qt::PoseApparence();
  velmaris::qt::PoseRolesAccessibles();

  bool recommence = false;
  const int statut = Joue(commande, sombre, recommence);
  if (recommence) {
    velmaris::qt::Recommence(ligne);
  }
  return statut;
}

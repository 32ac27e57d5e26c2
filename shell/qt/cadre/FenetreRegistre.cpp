#include "shell/qt/cadre/FenetreRegistre.hpp"

#include "shell/droites/Recentes.hpp"
#include "shell/registre/FichiersRegistre.hpp"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>

#include <filesystem>
#include <vector>

namespace velmaris::qt {
namespace {

/// The sights among files that are dropped.
std::vector<std::filesystem::path> Visees(const QMimeData &donnees) {
  std::vector<std::filesystem::path> visees;
  for (const QUrl &adresse : donnees.urls()) {
    std::filesystem::path chemin = QFile::encodeName(adresse.toLocalFile()).toStdString();
    if (EstNomDeVisee(chemin)) {
      visees.push_back(std::move(chemin));
    }
  }
  return visees;
}

} // namespace

/// A window of its own, that the main one may cover: rows are taken up in it one after the other.
FenetreRegistre::FenetreRegistre(Scene &scene, QWidget *parent)
    : FenetreEtiree(scene, scene.bureau().registre.cadre, parent, Qt::Window), bureau_(scene.bureau()) {
  setAcceptDrops(true);
}

void FenetreRegistre::dragEnterEvent(QDragEnterEvent *event) {
  if (!Visees(*event->mimeData()).empty()) {
    event->acceptProposedAction();
  }
}

/// The files are read once the desktop has its answer.
void FenetreRegistre::dropEvent(QDropEvent *event) {
  event->acceptProposedAction();
  QMetaObject::invokeMethod(
      this, [this, visees = Visees(*event->mimeData())] { scene().Joue([&] { EntreFichiers(bureau_, visees); }); },
      Qt::QueuedConnection);
}

} // namespace velmaris::qt

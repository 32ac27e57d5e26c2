#include "shell/qt/cadre/FenetreRegistre.hpp"

#include "shell/droites/Recentes.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/registre/FichiersRegistre.hpp"
#include "shell/registre/Registre.hpp"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QResizeEvent>
#include <QScreen>
#include <QUrl>

#include <filesystem>
#include <vector>

namespace velmaris::qt {
namespace {

constexpr double kMoindreTable = 1800; ///< 1/1440 inch of height that the list keeps

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

FenetreRegistre::FenetreRegistre(Scene &scene, QWidget *parent)
    : Dialogue(scene, scene.bureau().registre.cadre, parent, Etirable::MontrePlus), bureau_(scene.bureau()) {
  // A window of its own, that the main one may cover: rows are taken up in it one after the other.
  setWindowFlags(Qt::Window);
  setAcceptDrops(true);
  Echelonne();
  const QSize libre = screen()->availableSize() - QSize(0, kBarreTitre);
  const double f = PixelsParTwip(*this);
  const double moins = bureau_.registre.Table1.place.hauteur - kMoindreTable;
  setMinimumSize((Taille() - QSize(0, static_cast<int>(moins * f))).boundedTo(libre));
  resize(Taille().boundedTo(libre));
  ReprendSaTaille();
  DisposeRegistre(bureau_, width() / f, height() / f);
  enTaille_ = false; // NOLINT(cppcoreguidelines-prefer-member-initializer): sizes that came until here were its own
}

double FenetreRegistre::EchelleVoulue() const {
  const QSize libre = screen()->availableSize();
  return EchelleDialogue(bureau_, bureau_.registre.cadre, libre.width(), libre.height());
}

void FenetreRegistre::resizeEvent(QResizeEvent *event) {
  Dialogue::resizeEvent(event);
  Redimensionne();
}

/// A size that comes in the middle of a layout is taken after it.
void FenetreRegistre::Redimensionne() {
  if (enTaille_ || !bureau_.registre.cadre.visible) {
    return;
  }
  enTaille_ = true;
  const double f = PixelsParTwip(*this);
  QSize faite;
  while (faite != size()) {
    faite = size();
    scene().Joue([&] { DisposeRegistre(bureau_, faite.width() / f, faite.height() / f); });
  }
  enTaille_ = false;
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

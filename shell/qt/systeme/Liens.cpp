#include "shell/qt/systeme/Liens.hpp"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace velmaris::qt {
namespace {

constexpr int kAttenteLecteur = 2000; ///< milliseconds

} // namespace

// The toolkit's own way starts the desktop's opener and never learns that it found nothing: here its end is heard.
void OuvreLien(QObject &parent, const std::string &adresse, const std::function<void()> &sansProgramme) {
  const QString texte = QString::fromStdString(adresse);
  const QString ouvreur = QStandardPaths::findExecutable("xdg-open");
  if (ouvreur.isEmpty()) {
    const QUrl url = texte.startsWith('/') ? QUrl::fromLocalFile(texte) : QUrl(texte);
    if (!QDesktopServices::openUrl(url)) {
      sansProgramme();
    }
    return;
  }
  // Nobody's child: an opener that stays as long as its browser mustn't be ended with this program.
  auto *processus = new QProcess;
  processus->setStandardInputFile(QProcess::nullDevice());
  processus->setStandardOutputFile(QProcess::nullDevice());
  processus->setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(processus, &QProcess::finished, processus, &QObject::deleteLater);
  QObject::connect(processus, &QProcess::finished, &parent, [sansProgramme](int code, QProcess::ExitStatus etat) {
    if (etat == QProcess::NormalExit && code != 0) {
      sansProgramme();
    }
  });
  QObject::connect(processus, &QProcess::errorOccurred, &parent, [processus, sansProgramme](QProcess::ProcessError e) {
    if (e == QProcess::FailedToStart) {
      processus->deleteLater();
      sansProgramme();
    }
  });
  processus->start(ouvreur, {texte});
}

bool AUnLecteur(const std::string &type) {
  const QString xdgMime = QStandardPaths::findExecutable("xdg-mime");
  if (xdgMime.isEmpty()) {
    return false;
  }
  QProcess processus;
  processus.start(xdgMime, {"query", "default", QString::fromStdString(type)});
  return processus.waitForFinished(kAttenteLecteur) && !processus.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace velmaris::qt

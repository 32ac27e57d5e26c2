#include "shell/qt/peinture/Apparence.hpp"

#include "shell/bureau/Identite.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Icones.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QTranslator>

namespace velmaris::qt {
namespace {

constexpr double kTaillePolice = 9.0; ///< points
constexpr const char *kTraducteur = "traducteur";

QString Texte(std::string_view texte) { return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size())); }

} // namespace

void PoseApparence() {
  QApplication::setStyle(new Apparat);
  QApplication::setPalette(PaletteDe(Eclairage::Jour));
  QFont police = QApplication::font();
  police.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"});
  police.setPointSizeF(kTaillePolice);
  QApplication::setFont(police);
  QApplication::setApplicationName("velmaris");
  QApplication::setApplicationVersion(Texte(TexteVersion()));
  QGuiApplication::setDesktopFileName(Texte(Identifiant()));
}

void PoseIcone() { QApplication::setWindowIcon(QIcon::fromTheme(Texte(Identifiant()), Icone("velmaris-jour"))); }

void AccordeIcone() {
  if (!QApplication::windowIcon().isNull()) {
    PoseIcone();
  }
}

void AccordeLangue(bool francais) {
  auto *pose = QApplication::instance()->findChild<QTranslator *>(kTraducteur);
  if (francais == (pose != nullptr)) {
    return;
  }
  delete pose; // English is the toolkit's own
  if (francais) {
    auto *traducteur = new QTranslator(QApplication::instance());
    traducteur->setObjectName(kTraducteur);
    if (traducteur->load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
      QApplication::installTranslator(traducteur);
    }
  }
}

} // namespace velmaris::qt

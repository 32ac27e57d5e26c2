#include "shell/qt/systeme/Imprimante.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/qt/peinture/FeuilletQt.hpp"
#include "shell/qt/peinture/PageQt.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QBuffer>
#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include <algorithm>

namespace velmaris::qt {
namespace {

constexpr int kResolutionPdf = 1200; ///< points an inch

QPageLayout::Orientation Orientation(const Impression &page) {
  return page.paysage ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// Where a PDF file goes at first: the user's documents, or their own folder.
QString FichierPropose() {
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return (documents.exists() ? documents : QDir::home()).filePath("Velmaris.pdf");
}

/// Lets the user choose where to print. @return false when they gave up
bool Choisit(QPrinter &imprimante, QPageLayout::Orientation orientation, QWidget *parent) {
  imprimante.setDocName("Velmaris");
  imprimante.setCreator("Velmaris");
  imprimante.setPageOrientation(orientation);
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    imprimante.setOutputFileName(FichierPropose());
  }
  QPrintDialog choix(&imprimante, parent);
  choix.setOptions(QAbstractPrintDialog::PrintToFile);
  // The toolkit's list of the folder's files opens over the field when the disk has answered, and takes the Return that
  // was meant for the dialog.
  for (QLineEdit *champ : choix.findChildren<QLineEdit *>()) {
    champ->setCompleter(nullptr);
  }
  if (choix.exec() != QDialog::Accepted) {
    return false;
  }
  imprimante.setPageOrientation(orientation); // whatever else was chosen for it
  return true;
}

} // namespace

bool Imprime(const Impression &page, QWidget *parent, const std::filesystem::path &registre) {
  QPrinter imprimante(QPrinter::HighResolution);
  if (!Choisit(imprimante, Orientation(page), parent)) {
    return true;
  }
  if (imprimante.outputFormat() == QPrinter::PdfFormat) {
    return EcritPdf(page, imprimante.outputFileName().toStdString(), imprimante.pageLayout(), registre);
  }
  return PeintFeuille(page, imprimante) && imprimante.printerState() != QPrinter::Error;
}

bool ImprimeFeuillets(const std::vector<Feuillet> &feuillets, QWidget *parent, const std::filesystem::path &registre) {
  QPrinter imprimante(QPrinter::HighResolution);
  const bool couche = !feuillets.empty() && feuillets.front().largeur > feuillets.front().hauteur;
  if (!Choisit(imprimante, couche ? QPageLayout::Landscape : QPageLayout::Portrait, parent)) {
    return true;
  }
  if (imprimante.outputFormat() == QPrinter::PdfFormat) {
    const std::string octets = OctetsPdf(feuillets, {});
    return !octets.empty() && Passe([&] { EcritFichier(imprimante.outputFileName().toStdString(), octets, registre); });
  }
  imprimante.setFullPage(true);
  return PeintFeuillets(feuillets, imprimante, {}) && imprimante.printerState() != QPrinter::Error;
}

bool EcritPdf(const Impression &page, const std::filesystem::path &fichier, QPageLayout feuille,
              const std::filesystem::path &registre) {
  QBuffer pdf;
  QPdfWriter ecrivain(&pdf);
  feuille.setOrientation(Orientation(page));
  ecrivain.setPageLayout(feuille);
  ecrivain.setResolution(kResolutionPdf);
  ecrivain.setTitle("Velmaris");
  ecrivain.setCreator("Velmaris");
  if (!pdf.open(QIODevice::WriteOnly) || !PeintFeuille(page, ecrivain)) {
    return false;
  }
  return Passe([&] { EcritFichier(fichier, pdf.data().toStdString(), registre); });
}

bool PeintFeuille(const Impression &page, QPagedPaintDevice &imprimante) {
  QPainter painter;
  if (!painter.begin(&imprimante)) {
    return false;
  }
  const double facteur = imprimante.logicalDpiX() / kTwipsParPouce;
  const QSizeF taille(page.cadre.largeur * facteur, page.cadre.hauteur * facteur);
  const QSizeF place = imprimante.pageLayout().paintRectPixels(imprimante.logicalDpiX()).size();
  const double echelle = std::min({1.0, place.width() / taille.width(), place.height() / taille.height()});
  painter.translate((place.width() - taille.width() * echelle) / 2, (place.height() - taille.height() * echelle) / 2);
  painter.scale(echelle, echelle);
  PeintPage(painter, page, facteur, Eclairage::Jour);
  return painter.end();
}

} // namespace velmaris::qt

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

/// Lets the user choose where to print, and of several pages which. @return false when they gave up
bool Choisit(QPrinter &imprimante, QPageLayout::Orientation orientation, QWidget *parent, int pages = 1) {
  imprimante.setDocName("Velmaris");
  imprimante.setCreator("Velmaris");
  imprimante.setPageOrientation(orientation);
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    imprimante.setOutputFileName(FichierPropose());
  }
  QPrintDialog choix(&imprimante, parent);
  choix.setOptions(QAbstractPrintDialog::PrintToFile);
  if (pages > 1) {
    choix.setOption(QAbstractPrintDialog::PrintPageRange);
    choix.setMinMax(1, pages);
  }
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

std::vector<Feuillet> FeuilletsChoisis(const std::vector<Feuillet> &feuillets, const QPrinter &imprimante) {
  if (imprimante.printRange() != QPrinter::PageRange) {
    return feuillets;
  }
  std::vector<Feuillet> choisis;
  for (std::size_t i = 0; i < feuillets.size(); ++i) {
    const int page = static_cast<int>(i) + 1;
    const bool plages = !imprimante.pageRanges().isEmpty();
    const bool bornee = page >= imprimante.fromPage() && (imprimante.toPage() == 0 || page <= imprimante.toPage());
    if (plages ? imprimante.pageRanges().contains(page) : bornee) {
      choisis.push_back(feuillets[i]);
    }
  }
  return choisis;
}

std::optional<std::size_t> ImprimeFeuillets(const std::vector<Feuillet> &feuillets, QWidget *parent,
                                            const std::filesystem::path &registre) {
  QPrinter imprimante(QPrinter::HighResolution);
  const bool couche = !feuillets.empty() && feuillets.front().largeur > feuillets.front().hauteur;
  if (!Choisit(imprimante, couche ? QPageLayout::Landscape : QPageLayout::Portrait, parent,
               static_cast<int>(feuillets.size()))) {
    return 0;
  }
  const std::vector<Feuillet> choisis = FeuilletsChoisis(feuillets, imprimante);
  bool faite = false;
  if (imprimante.outputFormat() == QPrinter::PdfFormat) {
    const std::string octets = choisis.empty() ? std::string() : OctetsPdf(choisis, {});
    faite =
        !octets.empty() && Passe([&] { EcritFichier(imprimante.outputFileName().toStdString(), octets, registre); });
  } else {
    imprimante.setFullPage(true);
    faite = PeintFeuillets(choisis, imprimante, {}) && imprimante.printerState() != QPrinter::Error;
  }
  return faite ? std::optional(choisis.size()) : std::nullopt;
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

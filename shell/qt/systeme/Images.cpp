#include "shell/qt/systeme/Images.hpp"

#include "foundations/Surface.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Traces.hpp"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace velmaris::qt {
namespace {

constexpr int kPixelsParPouce = 192; ///< of a picture made of pixels
constexpr int kTraitsParPouce = 96;  ///< of one made of lines: a line of width 1 is one of them
constexpr int kPointsParPouce = 72;
constexpr int kResolutionPdf = 1200; ///< points an inch

QSize TailleA(const Surface &surface, double facteur) {
  return {static_cast<int>(std::ceil(surface.largeur * facteur)),
          static_cast<int>(std::ceil(surface.hauteur * facteur))};
}

bool Peint(QPaintDevice &support, const Surface &surface, int parPouce) {
  QPainter painter;
  if (!painter.begin(&support)) {
    return false;
  }
  const double facteur = parPouce / kTwipsParPouce;
  const QRect zone(QPoint(0, 0), TailleA(surface, facteur));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(zone, CouleurQt(surface.fond));
  painter.setClipRect(zone);
  PeintTraces(painter, surface, facteur,
              {.eclairage = Eclairage::Jour, .pixel = static_cast<double>(parPouce) / kTraitsParPouce});
  return painter.end();
}

bool PeintSvg(QBuffer &octets, const Surface &surface) {
  QSvgGenerator svg;
  const QSize taille = TailleA(surface, kTraitsParPouce / kTwipsParPouce);
  svg.setOutputDevice(&octets);
  svg.setTitle("Velmaris");
  svg.setResolution(kTraitsParPouce);
  svg.setSize(taille);
  svg.setViewBox(QRect(QPoint(0, 0), taille));
  return Peint(svg, surface, kTraitsParPouce);
}

bool PeintPdf(QBuffer &octets, const Surface &surface) {
  QPdfWriter pdf(&octets);
  const double points = kPointsParPouce / kTwipsParPouce;
  pdf.setTitle("Velmaris");
  pdf.setCreator("Velmaris");
  pdf.setPageSize(QPageSize(QSizeF(surface.largeur, surface.hauteur) * points, QPageSize::Point));
  pdf.setPageMargins({});
  pdf.setResolution(kResolutionPdf);
  return Peint(pdf, surface, kResolutionPdf);
}

} // namespace

QImage ImageDe(const Surface &surface) {
  QImage image(TailleA(surface, kPixelsParPouce / kTwipsParPouce), QImage::Format_RGB32);
  constexpr double kPouceParMetre = 1000 / 25.4;
  image.setDotsPerMeterX(static_cast<int>(std::lround(kPixelsParPouce * kPouceParMetre)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  return Peint(image, surface, kPixelsParPouce) ? image : QImage();
}

std::string OctetsImage(const Surface &surface, FormeImage forme) {
  QBuffer octets;
  if (!octets.open(QIODevice::WriteOnly)) {
    return {};
  }
  const bool faite = forme == FormeImage::Svg   ? PeintSvg(octets, surface)
                     : forme == FormeImage::Pdf ? PeintPdf(octets, surface)
                                                : ImageDe(surface).save(&octets, "PNG");
  return faite ? octets.data().toStdString() : std::string();
}

} // namespace velmaris::qt

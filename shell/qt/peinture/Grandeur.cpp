#include "shell/qt/peinture/Grandeur.hpp"

#include "shell/qt/peinture/Apparat.hpp"

#include <QApplication>
#include <QToolTip>
#include <QWidget>

#include <cmath>

namespace velmaris::qt {
namespace {

constexpr double kTwipsParPixel = 15.0;
constexpr double kTwipsParPoint = 20.0;
constexpr double kPointsParPouce = 72.0;
constexpr double kPoints = 9.0; ///< of the toolkit's own texts at scale 1

} // namespace

double PixelsParTwip(const QWidget &widget) {
  const auto *fenetre = dynamic_cast<const Echelonnee *>(widget.window());
  return fenetre == nullptr ? widget.logicalDpiX() / kTwipsParPouce : fenetre->echelle() / kTwipsParPixel;
}

double Grandeur(const QWidget &widget) { return PixelsParTwip(widget) * kTwipsParPixel; }

int Pixels(double nombre, const QWidget &widget) { return static_cast<int>(std::lround(nombre * Grandeur(widget))); }

QFont PoliceA(QFont police, double points, double pixelsParTwip, const QPaintDevice &support) {
  police.setPointSizeF(points * kTwipsParPoint * pixelsParTwip * kPointsParPouce / support.logicalDpiY());
  return police;
}

void AccordeGrandeur(double grandeur) {
  auto *apparat = dynamic_cast<Apparat *>(QApplication::style());
  if (apparat == nullptr || apparat->grandeur() == grandeur) {
    return;
  }
  apparat->PoseGrandeur(grandeur);
  QFont police = QApplication::font();
  police.setPointSizeF(kPoints * grandeur);
  QApplication::setFont(police);
  QToolTip::setFont(police);
}

} // namespace velmaris::qt

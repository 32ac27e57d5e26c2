#include "shell/qt/peinture/Vignettes.hpp"

#include <QPainter>
#include <QPainterPath>

namespace velmaris::qt {
namespace {

// Both pictures lie on a square of 24 units.
constexpr double kCote = 24.0;
constexpr double kHorizon = 14.5;
constexpr double kArrondi = 4.0; ///< of the square's corners

struct Couleurs {
  QColor haut;   ///< of the sky
  QColor bas;    ///< of the sky, at the horizon
  QColor mer;    ///< at the horizon
  QColor fond;   ///< of the sea
  QColor droite; ///< of a line of position
  QColor navire; ///< where they cross
};

void Scene(QPainter &p, const Couleurs &c) {
  QPainterPath bord;
  bord.addRoundedRect(QRectF(0, 0, kCote, kCote), kArrondi, kArrondi);
  p.setClipPath(bord);
  QLinearGradient ciel(0, 0, 0, kHorizon);
  ciel.setColorAt(0, c.haut);
  ciel.setColorAt(1, c.bas);
  p.fillRect(QRectF(0, 0, kCote, kHorizon), ciel);
  QLinearGradient mer(0, kHorizon, 0, kCote);
  mer.setColorAt(0, c.mer);
  mer.setColorAt(1, c.fond);
  p.fillRect(QRectF(0, kHorizon, kCote, kCote - kHorizon), mer);
}

void Droites(QPainter &p, const Couleurs &c) {
  p.setPen(QPen(c.droite, 0.7, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(3, 22), QPointF(21, 16.2));
  p.drawLine(QPointF(5, 16), QPointF(19, 22.6));
  p.setPen(QPen(c.navire, 0.8));
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(12, 19.2), 1.3, 1.3);
}

} // namespace

void VignetteJour(QPainter &p) {
  const Couleurs c{{70, 140, 205}, {214, 234, 246}, {32, 104, 158}, {12, 52, 92}, {255, 226, 120}, {192, 57, 43}};
  Scene(p, c);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 214, 90, 90));
  p.drawEllipse(QPointF(12, 8), 5.4, 5.4);
  p.setBrush(QColor(255, 205, 60));
  p.drawEllipse(QPointF(12, 8), 3.6, 3.6);
  Droites(p, c);
}

void VignetteNuit(QPainter &p) {
  const Couleurs c{{10, 18, 48}, {42, 66, 112}, {20, 40, 74}, {6, 14, 32}, {150, 190, 235}, {230, 180, 70}};
  Scene(p, c);
  p.setPen(Qt::NoPen);
  QPainterPath lune;
  lune.addEllipse(QPointF(12, 8), 3.6, 3.6);
  QPainterPath ombre;
  ombre.addEllipse(QPointF(13.9, 7), 3.3, 3.3);
  p.setBrush(QColor(246, 240, 214));
  p.drawPath(lune.subtracted(ombre));
  p.setBrush(Qt::white);
  for (const QPointF &etoile :
       {QPointF(4, 4), QPointF(7, 10.5), QPointF(19.5, 3.5), QPointF(20.5, 10), QPointF(16, 12)}) {
    p.drawEllipse(etoile, 0.45, 0.45);
  }
  Droites(p, c);
}

} // namespace velmaris::qt

#include "shell/qt/peinture/DessinsComplements.hpp"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <initializer_list>

namespace velmaris::qt {
namespace {

const QColor kAccent(31, 111, 178);
const QColor kOr(240, 176, 32);
const QColor kAlerte(192, 57, 43);

void Encre(QPainter &p, const QColor &couleur, double largeur = 1.8) {
  QPen plume = p.pen();
  plume.setColor(couleur);
  plume.setWidthF(largeur);
  p.setPen(plume);
}

void Brise(QPainter &p, std::initializer_list<QPointF> points) {
  QPainterPath chemin;
  for (const QPointF &point : points) {
    chemin.elementCount() == 0 ? chemin.moveTo(point) : chemin.lineTo(point);
  }
  p.drawPath(chemin);
}

/// Filled dots in the pen's colour.
void Disques(QPainter &p, std::initializer_list<QPointF> centres, double rayon) {
  p.setBrush(p.pen().color());
  for (const QPointF &centre : centres) {
    p.drawEllipse(centre, rayon, rayon);
  }
  p.setBrush(Qt::NoBrush);
}

} // namespace

void DessineFiche(QPainter &p) {
  Brise(p, {{18, 11}, {18, 3}, {5, 3}, {5, 21}, {11, 21}});
  p.drawLine(QPointF(8, 8), QPointF(15, 8));
  p.drawLine(QPointF(8, 12), QPointF(13, 12));
  Encre(p, kAccent, 2.2);
  Brise(p, {{12, 17}, {15, 20.5}, {21, 13.5}});
}

void DessineRegistre(QPainter &p) {
  p.drawRect(QRectF(3, 4, 18, 16));
  p.drawLine(QPointF(3, 9), QPointF(21, 9));
  Encre(p, kAccent, 1.6);
  for (const double y : {12.5, 16.0}) {
    p.drawLine(QPointF(6, y), QPointF(8, y));
    p.drawLine(QPointF(11, y), QPointF(18, y));
  }
}

void DessinePoint(QPainter &p) {
  p.drawLine(QPointF(3, 18), QPointF(21, 7));
  p.drawLine(QPointF(7, 3), QPointF(16, 21));
  p.drawLine(QPointF(3, 8), QPointF(21, 15));
  Encre(p, kAlerte, 1.8);
  p.drawEllipse(QPointF(11.6, 12), 4.6, 4.6);
  Disques(p, {{11.6, 12}}, 1.1);
}

void DessinePlan(QPainter &p) {
  p.drawLine(QPointF(2, 20), QPointF(22, 20));
  p.drawArc(QRectF(3, 5, 18, 30), 20 * 16, 140 * 16);
  Encre(p, kOr, 1.2);
  Disques(p, {{12, 10}, {16.5, 13.5}, {7.5, 14.5}}, 1.5);
  Encre(p, kAccent, 1.6);
  p.drawLine(QPointF(12, 13), QPointF(12, 18));
}

void DessineSerie(QPainter &p) {
  Brise(p, {{3, 3}, {3, 21}, {21, 21}});
  Encre(p, kAccent, 1.6);
  p.drawLine(QPointF(5, 18), QPointF(20, 6));
  Encre(p, kAlerte, 0.8);
  Disques(p, {{7, 15}, {10.5, 15}, {13.5, 10}, {17.5, 9.5}}, 1.5);
}

void DessineExercice(QPainter &p) {
  p.drawEllipse(QPointF(12, 12), 9, 9);
  p.drawEllipse(QPointF(12, 12), 5, 5);
  Encre(p, kAlerte, 1);
  Disques(p, {{12, 12}}, 1.8);
  Encre(p, kAccent, 1.8);
  p.drawLine(QPointF(12, 12), QPointF(20, 4));
  Brise(p, {{17, 4}, {20, 4}, {20, 7}});
}

void DessinePapier(QPainter &p) {
  Brise(p, {{8, 3}, {20, 3}, {20, 18}});
  p.drawRect(QRectF(4, 6, 13, 15));
  Encre(p, kAccent, 1.2);
  for (const double y : {10.0, 13.0, 16.0, 19.0}) {
    p.drawLine(QPointF(6, y), QPointF(9, y));
    p.drawLine(QPointF(11, y), QPointF(15, y));
  }
}

} // namespace velmaris::qt

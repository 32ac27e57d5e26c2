#include "shell/qt/peinture/Icones.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/DessinsComplements.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Vignettes.hpp"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPixmapCache>

#include <cmath>
#include <numbers>

namespace velmaris::qt {
namespace {

// Every picture is drawn on a square of 24 units.
constexpr double kCote = 24.0;

const QColor kTrait(52, 73, 94);
const QColor kAccent(31, 111, 178);
const QColor kOr(240, 176, 32);
const QColor kAlerte(192, 57, 43);

QPen Trait(const QColor &couleur = kTrait, double largeur = 1.7) {
  return {couleur, largeur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void Brise(QPainter &p, std::initializer_list<QPointF> points) {
  QPainterPath chemin;
  for (const QPointF &point : points) {
    chemin.elementCount() == 0 ? chemin.moveTo(point) : chemin.lineTo(point);
  }
  p.drawPath(chemin);
}

QPointF Polaire(double rayon, double degres) {
  const double a = degres * std::numbers::pi / 180.0;
  return {12 + rayon * std::cos(a), 12 + rayon * std::sin(a)};
}

QPolygonF PolygoneEtoile(double grand, double petit) {
  QPolygonF etoile;
  for (int i = 0; i < 10; ++i) {
    etoile << Polaire(i % 2 == 0 ? grand : petit, -90 + i * 36);
  }
  return etoile;
}

void Sauve(QPainter &p) {
  Brise(p, {{4, 15}, {4, 20}, {20, 20}, {20, 15}});
  p.setPen(Trait(kAccent, 2));
  p.drawLine(QPointF(12, 4), QPointF(12, 14.5));
  Brise(p, {{8, 11}, {12, 15}, {16, 11}});
}

void Ouvre(QPainter &p) {
  Brise(p, {{3, 19}, {3, 5}, {9, 5}, {11, 8}, {19, 8}, {19, 11}});
  p.setBrush(QColor(214, 228, 240));
  p.drawPolygon(QPolygonF({{3, 19}, {6, 11}, {22, 11}, {19, 19}}));
}

void Imprime(QPainter &p) {
  p.drawRect(QRectF(7, 3, 10, 6));
  p.setBrush(QColor(214, 228, 240));
  p.drawRoundedRect(QRectF(3, 9, 18, 8), 1.5, 1.5);
  p.setBrush(Qt::white);
  p.drawRect(QRectF(7, 14, 10, 7));
}

void Grille(QPainter &p, bool tracee) {
  p.drawRect(QRectF(4, 4, 16, 16));
  p.setPen(Trait(tracee ? kAccent : QColor(190, 200, 210), 1.3));
  for (const double x : {9.3, 14.7}) {
    p.drawLine(QPointF(x, 4), QPointF(x, 20));
    p.drawLine(QPointF(4, x), QPointF(20, x));
  }
}

void Ecran(QPainter &p) {
  p.drawRect(QRectF(3, 4, 18, 13));
  p.drawLine(QPointF(8, 21), QPointF(16, 21));
  p.setPen(Trait(kAlerte, 1.8));
  p.drawLine(QPointF(9, 7.5), QPointF(15, 13.5));
  p.drawLine(QPointF(15, 7.5), QPointF(9, 13.5));
}

void Memoire(QPainter &p) {
  for (const double y : {6.0, 10.0, 14.0, 18.0}) {
    p.drawLine(QPointF(4, y), QPointF(12, y));
  }
  p.setPen(Trait(kAlerte, 1.8));
  p.drawLine(QPointF(15, 9), QPointF(21, 15));
  p.drawLine(QPointF(21, 9), QPointF(15, 15));
}

void Multiples(QPainter &p) {
  p.drawLine(QPointF(3, 17), QPointF(21, 6));
  p.drawLine(QPointF(6, 4), QPointF(17, 21));
  p.setPen(Trait(kAccent));
  p.drawLine(QPointF(3, 8), QPointF(21, 16));
}

void Simples(QPainter &p) {
  p.drawLine(QPointF(4, 8), QPointF(18, 20));
  p.setPen(Trait(kAccent));
  p.drawLine(QPointF(11, 14), QPointF(19, 5));
  Brise(p, {{14, 5}, {19, 5}, {19, 10}});
}

void Soleil(QPainter &p) {
  p.setPen(Trait(kOr, 2));
  for (int i = 0; i < 8; ++i) {
    p.drawLine(Polaire(8, i * 45), Polaire(10.5, i * 45));
  }
  p.setBrush(kOr);
  p.drawEllipse(QPointF(12, 12), 4.8, 4.8);
}

void Lune(QPainter &p) {
  QPainterPath disque;
  disque.addEllipse(QPointF(12, 12), 9, 9);
  QPainterPath ombre;
  ombre.addEllipse(QPointF(16.5, 9.5), 8, 8);
  p.setPen(Trait(QColor(130, 130, 130), 1));
  p.setBrush(QColor(205, 208, 212));
  p.drawPath(disque.subtracted(ombre));
}

void Planete(QPainter &p) {
  p.setPen(Trait(QColor(150, 80, 150), 1.3));
  p.setBrush(QColor(225, 185, 225));
  p.drawEllipse(QPointF(12, 12), 6, 6);
  p.setBrush(Qt::NoBrush);
  p.translate(12, 12);
  p.rotate(-20);
  p.drawEllipse(QPointF(0, 0), 11, 3.2);
}

void Etoile(QPainter &p) {
  p.setPen(Trait(QColor(0, 140, 0), 1.3));
  p.setBrush(QColor(150, 225, 150));
  p.drawPolygon(PolygoneEtoile(10, 4.2));
}

void Carte(QPainter &p) {
  p.setBrush(QColor(214, 228, 240));
  p.drawRect(QRectF(3, 4, 18, 16));
  p.setBrush(QColor(236, 222, 178));
  QPainterPath terre(QPointF(3, 12));
  terre.cubicTo(8, 7, 9, 13, 13, 11);
  terre.cubicTo(16, 9, 14, 16, 17, 20);
  terre.lineTo(3, 20);
  terre.closeSubpath();
  p.drawPath(terre);
}

void Estime(QPainter &p) {
  QPen pointille = Trait();
  pointille.setDashPattern({1.5, 2});
  p.setPen(pointille);
  p.drawLine(QPointF(5, 19), QPointF(17, 7));
  p.setPen(Trait(kAccent));
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(5, 19), 2.2, 2.2);
  p.drawPolygon(QPolygonF({{18, 2.5}, {21.5, 8.5}, {14.5, 8.5}}));
}

void Cap(QPainter &p) {
  p.drawEllipse(QPointF(12, 12), 9, 9);
  p.setPen(Trait(kAccent, 1));
  p.setBrush(kAccent);
  p.drawPolygon(QPolygonF({{16.5, 7.5}, {13.4, 13.4}, {10.6, 10.6}}));
  p.setBrush(Qt::white);
  p.drawPolygon(QPolygonF({{7.5, 16.5}, {13.4, 13.4}, {10.6, 10.6}}));
}

void Astres(QPainter &p) {
  p.setPen(Trait(kTrait, 1.1));
  Brise(p, {{5, 18}, {9, 8}, {15, 13}, {20, 5}});
  p.setBrush(kOr);
  for (const QPointF &etoile : {QPointF(5, 18), QPointF(9, 8), QPointF(15, 13), QPointF(20, 5)}) {
    p.drawEllipse(etoile, 2, 2);
  }
}

void Aide(QPainter &p) {
  p.drawEllipse(QPointF(12, 12), 9.5, 9.5);
  QPainterPath question(QPointF(9, 9.5));
  question.cubicTo(9, 5, 15.5, 5.5, 15, 9.5);
  question.cubicTo(14.7, 12, 12, 11.5, 12, 14.5);
  p.setPen(Trait(kAccent, 2));
  p.drawPath(question);
  p.drawPoint(QPointF(12, 17.8));
}

void Quitter(QPainter &p) {
  Brise(p, {{13, 4}, {5, 4}, {5, 20}, {13, 20}});
  p.setPen(Trait(kAlerte, 2));
  p.drawLine(QPointF(10, 12), QPointF(20, 12));
  Brise(p, {{16, 8}, {20, 12}, {16, 16}});
}

void Attention(QPainter &p) {
  p.setPen(Trait(kAlerte, 2));
  p.drawPolygon(QPolygonF{{12, 3}, {22, 20.5}, {2, 20.5}});
  p.drawLine(QPointF(12, 9), QPointF(12, 14));
  p.drawPoint(QPointF(12, 17.2));
}

void Ferme(QPainter &p) {
  p.setPen(Trait(kTrait, 2.4));
  p.drawLine(QPointF(6, 6), QPointF(18, 18));
  p.drawLine(QPointF(18, 6), QPointF(6, 18));
}

void Top(QPainter &p) {
  p.drawEllipse(QPointF(12, 13), 8.5, 8.5);
  p.drawLine(QPointF(10, 2.5), QPointF(14, 2.5));
  p.setPen(Trait(kAccent, 2));
  Brise(p, {{12, 8}, {12, 13}, {15.5, 15}});
}

void Calcul(QPainter &p) {
  QPainterPath arc;
  arc.moveTo(3, 19);
  arc.cubicTo(5, 6, 19, 6, 21, 19);
  p.drawPath(arc);
  p.drawLine(QPointF(3, 19), QPointF(21, 19));
  p.setPen(Trait(kAccent, 2));
  p.drawLine(QPointF(12, 19), QPointF(17, 5));
}

void DrapeauFr(QPainter &p) {
  p.setPen(Qt::NoPen);
  p.fillRect(QRectF(0, 4, 8, 16), QColor(0, 38, 84));
  p.fillRect(QRectF(8, 4, 8, 16), Qt::white);
  p.fillRect(QRectF(16, 4, 8, 16), QColor(206, 17, 38));
  p.setPen(Trait(QColor(160, 160, 160), 0.6));
  p.drawRect(QRectF(0, 4, 24, 16));
}

void DrapeauEn(QPainter &p) {
  p.setClipRect(QRectF(0, 4, 24, 16));
  p.fillRect(QRectF(0, 4, 24, 16), QColor(1, 33, 105));
  const auto croix = [&](const QColor &couleur, double diagonale, double droite) {
    p.setPen(QPen(couleur, diagonale));
    p.drawLine(QPointF(0, 4), QPointF(24, 20));
    p.drawLine(QPointF(24, 4), QPointF(0, 20));
    p.fillRect(QRectF(12 - droite / 2, 4, droite, 16), couleur);
    p.fillRect(QRectF(0, 12 - droite / 2, 24, droite), couleur);
  };
  croix(Qt::white, 3, 5);
  p.setPen(QPen(QColor(200, 16, 46), 1));
  p.drawLine(QPointF(0, 4), QPointF(24, 20));
  p.drawLine(QPointF(24, 4), QPointF(0, 20));
  p.fillRect(QRectF(10.5, 4, 3, 16), QColor(200, 16, 46));
  p.fillRect(QRectF(0, 10.5, 24, 3), QColor(200, 16, 46));
}

struct Dessin {
  std::string_view nom;
  void (*trace)(QPainter &);
};

constexpr Dessin kDessins[] = {{"sauve", Sauve},
                               {"ouvre", Ouvre},
                               {"imprime", Imprime},
                               {"grille", [](QPainter &p) { Grille(p, true); }},
                               {"grille-sans", [](QPainter &p) { Grille(p, false); }},
                               {"ecran", Ecran},
                               {"memoire", Memoire},
                               {"multiples", Multiples},
                               {"simples", Simples},
                               {"soleil", Soleil},
                               {"lune", Lune},
                               {"planete", Planete},
                               {"etoile", Etoile},
                               {"carte", Carte},
                               {"estime", Estime},
                               {"cap", Cap},
                               {"astres", Astres},
                               {"fiche", DessineFiche},
                               {"registre", DessineRegistre},
                               {"point", DessinePoint},
                               {"plan", DessinePlan},
                               {"serie", DessineSerie},
                               {"exercice", DessineExercice},
                               {"almanach", DessinePapier},
                               {"aide", Aide},
                               {"quitter", Quitter},
                               {"attention", Attention},
                               {"ferme", Ferme},
                               {"top", Top},
                               {"calcul", Calcul},
                               {"drapeau-fr", DrapeauFr},
                               {"drapeau-en", DrapeauEn},
                               {"velmaris-jour", VignetteJour},
                               {"velmaris-nuit", VignetteNuit}};

/// A picture by day.
void Peint(QPainter &painter, const QRect &rect, QIcon::Mode mode, void (*trace)(QPainter &)) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double cote = std::min(rect.width(), rect.height());
  painter.translate(rect.x() + (rect.width() - cote) / 2, rect.y() + (rect.height() - cote) / 2);
  painter.scale(cote / kCote, cote / kCote);
  painter.setOpacity(mode == QIcon::Disabled ? 0.35 : 1.0);
  painter.setPen(Trait());
  painter.setBrush(Qt::NoBrush);
  trace(painter);
  painter.restore();
}

class MoteurIcone : public QIconEngine {
public:
  MoteurIcone(std::string_view nom, void (*trace)(QPainter &))
      : nom_(QString::fromUtf8(nom.data(), static_cast<qsizetype>(nom.size()))), trace_(trace) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    if (EclairageVu() != Eclairage::Jour) {
      PeintTeinte(*painter, rect, mode);
    } else {
      Peint(*painter, rect, mode, trace_);
    }
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    const QString cle = QStringLiteral("%1-%2-%3x%4-%5")
                            .arg(nom_)
                            .arg(static_cast<int>(EclairageVu()))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(static_cast<int>(mode));
    QPixmap image;
    if (!QPixmapCache::find(cle, &image)) {
      image = QPixmap(size);
      image.fill(Qt::transparent);
      QPainter painter(&image);
      paint(&painter, QRect(QPoint(0, 0), size), mode, state);
      painter.end();
      QPixmapCache::insert(cle, image);
    }
    return image;
  }

  QIconEngine *clone() const override { return new MoteurIcone(*this); }

private:
  void PeintTeinte(QPainter &painter, const QRect &rect, QIcon::Mode mode) const {
    const double densite = painter.device()->devicePixelRatioF();
    QImage image(rect.size() * densite, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::transparent);
    QPainter apart(&image);
    Peint(apart, QRect(QPoint(0, 0), rect.size()), mode, trace_);
    apart.end();
    TeinteImage(EclairageVu(), image);
    painter.drawImage(rect.topLeft(), image);
  }

  QString nom_;
  void (*trace_)(QPainter &);
};

} // namespace

QIcon Icone(std::string_view nom) {
  for (const Dessin &dessin : kDessins) {
    if (dessin.nom == nom) {
      return QIcon(new MoteurIcone(dessin.nom, dessin.trace));
    }
  }
  return {};
}

QImage ImageJour(std::string_view nom, int cote, double densite) {
  QImage image(QSize(cote, cote) * densite, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(densite);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  for (const Dessin &dessin : kDessins) {
    if (dessin.nom == nom) {
      Peint(painter, QRect(0, 0, cote, cote), QIcon::Normal, dessin.trace);
    }
  }
  return image;
}

} // namespace velmaris::qt

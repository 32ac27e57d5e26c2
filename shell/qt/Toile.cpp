#include "shell/qt/Toile.hpp"

#include "shell/qt/Nuit.hpp"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr double kPasVisible = 0.25; ///< pixels under which two points of a line are one
constexpr double kPortee = 1e8;      ///< 1/1440 inch from the surface's corner

QPen PlumeQt(const Plume &plume, const QColor &couleur, double pixel) {
  QPen pen(couleur, plume.largeur * pixel);
  pen.setCapStyle(Qt::FlatCap);
  switch (plume.style) {
  case Style::Tirets:
    pen.setStyle(Qt::DashLine);
    break;
  case Style::Points:
    pen.setStyle(Qt::DotLine);
    break;
  case Style::TiretPoint:
    pen.setStyle(Qt::DashDotLine);
    break;
  case Style::Plein:
  default:
    break;
  }
  return pen;
}

constexpr double kContrasteFaible = 0.25; ///< of lightness, under which a bright colour needs a border to be seen
constexpr double kEcartFigures = 3.0;     ///< pixels between two figures
const QColor kLisere(96, 84, 0, 150);

/// Whether a bright colour would be lost on the background: the yellow line on the white sheet.
bool FautLisere(const QColor &couleur, const QColor &fond) {
  const auto clarte = [](const QColor &c) { return qGray(c.rgb()) / 255.0; };
  return couleur.hsvSaturationF() > 0.5F && std::abs(clarte(couleur) - clarte(fond)) < kContrasteFaible;
}

/// Paints one recorded trace.
struct Peintre {
  QPainter &painter;
  double facteur = 1.0;
  QColor fond;
  std::vector<QRectF> &figures;
  bool nuit = false;
  double pixel = 1.0;
  double bas = kPortee; ///< unit that no text goes under

  QColor Encre(Couleur couleur) const { return nuit ? EncreDeNuit(CouleurQt(couleur), fond) : CouleurQt(couleur); }
  QPointF Place(Point p) const { return {p.x * facteur, p.y * facteur}; }

  /// The points of a line that can be told apart. One that never leaves its first point is only that.
  QPolygonF Amincit(const Polyligne &ligne) const {
    const double pas = kPasVisible * pixel / facteur;
    const double seuil = pas * pas;
    const auto distinct = [&](Point a, Point b) {
      return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) >= seuil;
    };
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(ligne.points.size()));
    Point garde = ligne.points.front();
    points << Place(garde);
    for (const Point &p : ligne.points) {
      if (distinct(p, garde)) {
        points << Place(p);
        garde = p;
      }
    }
    if (points.size() > 1) {
      points.last() = Place(ligne.points.back()); // less than a step away
    }
    return points;
  }

  void operator()(const Polyligne &ligne) const {
    const QPolygonF points = Amincit(ligne);
    if (points.size() < 2) {
      return;
    }
    painter.setPen(PlumeQt(ligne.plume, Encre(ligne.plume.couleur), pixel));
    // A single line along an axis is sharp only without smoothing.
    const bool droite =
        ligne.points.size() == 2 && (ligne.points[0].x == ligne.points[1].x || ligne.points[0].y == ligne.points[1].y);
    painter.setRenderHint(QPainter::Antialiasing, !droite);
    QPen pen = painter.pen();
    const bool faible = FautLisere(CouleurQt(ligne.plume.couleur), fond);
    if (faible && nuit) {
      pen.setWidthF(pen.widthF() + pixel);
      painter.setPen(pen);
    } else if (faible) {
      painter.setPen(QPen(kLisere, pen.widthF() + 2 * pixel));
      painter.drawPolyline(points);
      painter.setPen(QPen(pen.color(), pen.widthF() + pixel / 2));
    }
    painter.drawPolyline(points);
  }
  void operator()(const CercleTrace &cercle) const {
    painter.setPen(PlumeQt(cercle.plume, Encre(cercle.plume.couleur), pixel));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(Place(cercle.centre), cercle.rayon * facteur, cercle.rayon * facteur);
  }
  /// Where a text is painted.
  QRectF Zone(const TexteTrace &texte) const {
    const QFontMetricsF metrique(PoliceQt(texte.police), painter.device());
    QPointF place = Place(texte.position);
    if (place.y() < bas) {
      place.setY(std::min(place.y(), bas - metrique.ascent()));
    }
    return {place, QSizeF(metrique.horizontalAdvance(QString::fromStdString(texte.texte)) + kEcartFigures * pixel,
                          metrique.ascent())};
  }

  void operator()(const TexteTrace &texte) const {
    const QRectF zone = Zone(texte);
    if (texte.couleur != kNoir && !texte.insistant) {
      if (std::any_of(figures.begin(), figures.end(), [&](const QRectF &f) { return f.intersects(zone); })) {
        return;
      }
      figures.push_back(zone);
    }
    painter.setPen(Encre(texte.couleur));
    painter.setFont(PoliceQt(texte.police));
    painter.drawText(zone.topLeft() + QPointF(0, zone.height()), QString::fromStdString(texte.texte));
  }
};

/// Whether a place can be painted: finite, and within what the toolkit's lines can reach.
bool Peignable(Point p) { return std::fabs(p.x) < kPortee && std::fabs(p.y) < kPortee; }

struct Visible {
  bool operator()(const Polyligne &ligne) const {
    return std::all_of(ligne.points.begin(), ligne.points.end(), Peignable);
  }
  bool operator()(const CercleTrace &cercle) const { return Peignable(cercle.centre) && cercle.rayon < kPortee; }
  bool operator()(const TexteTrace &texte) const { return Peignable(texte.position); }
};

std::size_t NombrePoints(const Surface &surface) {
  const auto *ligne = surface.traces.empty() ? nullptr : std::get_if<Polyligne>(&surface.traces.back());
  return ligne == nullptr ? 0 : ligne->points.size();
}

} // namespace

double PixelsParTwip(const QWidget &widget) { return widget.logicalDpiX() / kTwipsParPouce; }

QFont PoliceQt(const Police &police) {
  QFont font;
  font.setPointSizeF(police.taille);
  font.setBold(police.gras);
  return font;
}

QColor CouleurQt(Couleur couleur) {
  return {static_cast<int>(couleur & 0xFFU), static_cast<int>((couleur >> 8U) & 0xFFU),
          static_cast<int>((couleur >> 16U) & 0xFFU)};
}

void PeintTraces(QPainter &painter, const Surface &surface, double facteur, std::size_t premier,
                 std::vector<QRectF> &figures, Maniere maniere) {
  const double bas = maniere.textesEntiers ? surface.hauteur * facteur : kPortee;
  const Peintre peintre{painter, facteur, CouleurQt(surface.fond), figures, maniere.nuit, maniere.pixel, bas};
  for (std::size_t i = premier; i < surface.traces.size(); ++i) {
    const auto *texte = std::get_if<TexteTrace>(&surface.traces[i]);
    if (texte != nullptr && texte->insistant && Visible{}(*texte)) {
      figures.push_back(peintre.Zone(*texte));
    }
  }
  // Texts come over lines, so that no line strikes a figure through.
  for (const bool textes : {false, true}) {
    for (std::size_t i = premier; i < surface.traces.size(); ++i) {
      const Trace &trace = surface.traces[i];
      if (std::holds_alternative<TexteTrace>(trace) == textes && std::visit(Visible{}, trace)) {
        std::visit(peintre, trace);
      }
    }
  }
}

Toile::Toile(const Surface &surface, QWidget *parent) : QWidget(parent), surface_(surface) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void Toile::Accorde() {
  const QSize taille = size() * devicePixelRatioF();
  // A layer drawn twice in the same place is dropped from the record; what is painted of it stays.
  traces_ = std::min(traces_, surface_.traces.size());
  const bool tourne = std::exchange(nuit_, EstNuit()) != EstNuit();
  const bool neuve = tourne || image_.size() != taille || effacements_ != surface_.effacements;
  if (!neuve && traces_ == surface_.traces.size() && points_ == NombrePoints(surface_)) {
    return;
  }
  if (image_.size() != taille) {
    image_ = QImage(taille, QImage::Format_RGB32);
    image_.setDevicePixelRatio(devicePixelRatioF());
  }
  if (neuve) {
    image_.fill(nuit_ ? FondDeNuit(CouleurQt(surface_.fond)) : CouleurQt(surface_.fond));
    traces_ = 0;
    figures_.clear();
  }
  QPainter painter(&image_);
  // The last polyline may have grown since it was painted: it is painted again.
  const bool reprise = traces_ > 0 && traces_ <= surface_.traces.size() && points_ != 0;
  PeintTraces(painter, surface_, PixelsParTwip(*this), reprise ? traces_ - 1 : traces_, figures_,
              {nuit_, textesEntiers_});
  effacements_ = surface_.effacements;
  traces_ = surface_.traces.size();
  points_ = NombrePoints(surface_);
  update();
}

void Toile::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  if (image_.isNull()) {
    painter.fillRect(event->rect(), EstNuit() ? FondDeNuit(CouleurQt(surface_.fond)) : CouleurQt(surface_.fond));
    return;
  }
  const double ratio = devicePixelRatioF();
  const QRectF zone = event->rect();
  painter.drawImage(zone, image_, QRectF(zone.topLeft() * ratio, zone.size() * ratio));
  if (elastique_) {
    const double facteur = PixelsParTwip(*this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(nuit_ ? EncreDeNuit(CouleurQt(kMagenta)) : CouleurQt(kMagenta), 1, Qt::DotLine));
    painter.drawLine(elastique_->p1() * facteur, elastique_->p2() * facteur);
  }
}

void Toile::MontreElastique(const std::optional<QLineF> &ligne) {
  if (elastique_ != ligne) {
    elastique_ = ligne;
    update();
  }
}

QPoint Toile::PixelDe(Point point) const {
  const double facteur = PixelsParTwip(*this);
  return QPointF(point.x * facteur, point.y * facteur).toPoint();
}

void Toile::Mouvement(const QMouseEvent &event) const {
  const double facteur = PixelsParTwip(*this);
  const QPointF p = event.position();
  auMouvement(event.buttons().testFlag(Qt::LeftButton), p.x() / facteur, p.y() / facteur);
}

void Toile::mousePressEvent(QMouseEvent *event) {
  const bool gauche = event->button() == Qt::LeftButton;
  if (gauche && auClic) {
    auClic();
  }
  if (!auPresse || (!gauche && event->button() != Qt::RightButton)) {
    return;
  }
  presseDroite_ = event->position();
  Mouvement(*event);
  const double facteur = PixelsParTwip(*this);
  auPresse(gauche, event->position().x() / facteur, event->position().y() / facteur);
}

void Toile::mouseMoveEvent(QMouseEvent *event) {
  const bool tremble = event->buttons().testFlag(Qt::RightButton) &&
                       (event->position() - presseDroite_).manhattanLength() < QApplication::startDragDistance();
  if (auMouvement && !tremble) {
    Mouvement(*event);
  }
}

void Toile::mouseReleaseEvent(QMouseEvent * /*event*/) {
  if (auRelache) {
    auRelache();
  }
}

void Toile::wheelEvent(QWheelEvent *event) {
  if (!auZoom || !event->modifiers().testFlag(Qt::ControlModifier)) {
    event->ignore();
    return;
  }
  molette_ += event->angleDelta().y();
  const int crans = molette_ / QWheelEvent::DefaultDeltasPerStep;
  molette_ -= crans * QWheelEvent::DefaultDeltasPerStep;
  if (crans != 0) {
    auZoom(crans);
  }
}

} // namespace velmaris::qt

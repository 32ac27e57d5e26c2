#include "shell/qt/peinture/Toile.hpp"

#include "shell/qt/peinture/Nuit.hpp"

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
constexpr double kGrandTrait = 1.5;  ///< scale from which lines grow with it
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
  bool nuit = false;
  double pixel = 1.0;

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
  void operator()(const TexteTrace & /*texte*/) const {} // texts have their own turn

  /// A text; over lines it has a thin border of the background, so that none strikes it through.
  void Texte(const TexteTrace &texte, const ZoneTexte &zone) const {
    painter.setFont(PoliceQt(texte.police, facteur, *painter.device()));
    const QPointF pied =
        Place({zone.gauche, zone.haut}) + QPointF(0, QFontMetricsF(painter.font(), painter.device()).ascent());
    const QString mots = QString::fromStdString(texte.texte);
    if (texte.role.genre != GenreTexte::Libre) {
      painter.setPen(nuit ? FondDeNuit(fond) : fond);
      for (const QPointF &ecart : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
        painter.drawText(pied + ecart * pixel, mots);
      }
    }
    painter.setPen(Encre(texte.couleur));
    painter.drawText(pied, mots);
  }
};

/// Whether a place can be painted: finite, and within what the toolkit's lines can reach.
bool Peignable(Point p) { return std::fabs(p.x) < kPortee && std::fabs(p.y) < kPortee; }

struct Visible {
  bool operator()(const Polyligne &ligne) const {
    return std::all_of(ligne.points.begin(), ligne.points.end(), Peignable);
  }
  bool operator()(const CercleTrace &cercle) const { return Peignable(cercle.centre) && cercle.rayon < kPortee; }
  bool operator()(const TexteTrace & /*texte*/) const { return false; }
};

/// Pixels of the toolkit that a line of width 1 takes: a hair line stays one up to a scale where it would be lost.
double Trait(const QWidget &widget) {
  const double grandeur = Grandeur(widget);
  return grandeur < kGrandTrait ? 1 : grandeur;
}

std::size_t NombrePoints(const Surface &surface) {
  const auto *ligne = surface.traces.empty() ? nullptr : std::get_if<Polyligne>(&surface.traces.back());
  return ligne == nullptr ? 0 : ligne->points.size();
}

} // namespace

QFont PoliceQt(const Police &police, double facteur, const QPaintDevice &support) {
  QFont font = PoliceA({}, police.taille, facteur, support);
  font.setBold(police.gras);
  return font;
}

double Interligne(const Surface &surface, const QWidget &widget) {
  const double facteur = widget.logicalDpiX() / kTwipsParPouce;
  return QFontMetricsF(PoliceQt(surface.police, facteur, widget), &widget).height() / facteur;
}

QColor CouleurQt(Couleur couleur) {
  return {static_cast<int>(couleur & 0xFFU), static_cast<int>((couleur >> 8U) & 0xFFU),
          static_cast<int>((couleur >> 16U) & 0xFFU)};
}

void PeintLignes(QPainter &painter, const Surface &surface, double facteur, std::size_t premier, Maniere maniere) {
  const Peintre peintre{painter, facteur, CouleurQt(surface.fond), maniere.nuit, maniere.pixel};
  for (std::size_t i = premier; i < surface.traces.size(); ++i) {
    if (std::visit(Visible{}, surface.traces[i])) {
      std::visit(peintre, surface.traces[i]);
    }
  }
}

std::vector<TextePlace> TextesPeints(const QPainter &painter, const Surface &surface, double facteur) {
  return PlaceTextes(surface, [&](const TexteTrace &texte) {
    const QFontMetricsF metrique(PoliceQt(texte.police, facteur, *painter.device()), painter.device());
    const QString mots = QString::fromStdString(texte.texte);
    const bool lettres = std::any_of(mots.begin(), mots.end(), [](QChar c) { return c.isLetter(); });
    return TailleTexte{metrique.horizontalAdvance(mots) / facteur,
                       (lettres ? metrique.ascent() + metrique.descent() : metrique.ascent()) / facteur};
  });
}

void PeintTextes(QPainter &painter, const Surface &surface, double facteur, const std::vector<TextePlace> &textes,
                 Maniere maniere) {
  const Peintre peintre{painter, facteur, CouleurQt(surface.fond), maniere.nuit, maniere.pixel};
  for (const TextePlace &place : textes) {
    peintre.Texte(std::get<TexteTrace>(surface.traces.at(place.rang)), place.zone);
  }
}

std::vector<TextePlace> PeintTraces(QPainter &painter, const Surface &surface, double facteur, Maniere maniere) {
  PeintLignes(painter, surface, facteur, 0, maniere);
  std::vector<TextePlace> textes = TextesPeints(painter, surface, facteur);
  // Texts come over lines, so that no line strikes a figure through.
  PeintTextes(painter, surface, facteur, textes, maniere);
  return textes;
}

Toile::Toile(const Surface &surface, QWidget *parent) : QWidget(parent), surface_(surface) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

/// Whether a text was recorded from a trace on.
bool Toile::TexteDepuis(std::size_t premier) const {
  return std::any_of(surface_.traces.begin() + static_cast<std::ptrdiff_t>(premier), surface_.traces.end(),
                     [](const Trace &trace) { return std::holds_alternative<TexteTrace>(trace); });
}

void Toile::Accorde() {
  const QSize taille = size() * devicePixelRatioF();
  // A layer drawn twice in the same place is dropped from the record; what is painted of it stays.
  const bool retiree = traces_ > surface_.traces.size();
  traces_ = std::min(traces_, surface_.traces.size());
  const bool tourne = std::exchange(nuit_, EstNuit()) != EstNuit();
  const double facteur = PixelsParTwip(*this);
  const bool change = std::exchange(facteur_, facteur) != facteur;
  const bool neuve = tourne || change || lignes_.size() != taille || effacements_ != surface_.effacements;
  if (!neuve && !retiree && traces_ == surface_.traces.size() && points_ == NombrePoints(surface_)) {
    return;
  }
  if (lignes_.size() != taille) {
    lignes_ = QImage(taille, QImage::Format_RGB32);
    lignes_.setDevicePixelRatio(devicePixelRatioF());
  }
  if (neuve) {
    lignes_.fill(nuit_ ? FondDeNuit(CouleurQt(surface_.fond)) : CouleurQt(surface_.fond));
    traces_ = 0;
  }
  const Maniere maniere{.nuit = nuit_, .pixel = Trait(*this)};
  {
    QPainter painter(&lignes_);
    // The last polyline may have grown since it was painted: it is painted again.
    const bool reprise = traces_ > 0 && traces_ <= surface_.traces.size() && points_ != 0;
    PeintLignes(painter, surface_, facteur, reprise ? traces_ - 1 : traces_, maniere);
  }
  image_ = lignes_;
  QPainter painter(&image_);
  if (neuve || retiree || TexteDepuis(traces_)) {
    textes_ = TextesPeints(painter, surface_, facteur);
  }
  PeintTextes(painter, surface_, facteur, textes_, maniere);
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
    painter.setPen(QPen(nuit_ ? EncreDeNuit(CouleurQt(kMagenta)) : CouleurQt(kMagenta), Trait(*this), Qt::DotLine));
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
  const double facteur = PixelsParTwip(*this);
  if (auMouvement) { // to the place of the press, with no button held yet
    auMouvement(false, event->position().x() / facteur, event->position().y() / facteur);
  }
  auPresse(gauche, event->position().x() / facteur, event->position().y() / facteur);
}

void Toile::mouseMoveEvent(QMouseEvent *event) {
  const bool tremble = event->buttons().testFlag(Qt::RightButton) &&
                       (event->position() - presseDroite_).manhattanLength() < QApplication::startDragDistance();
  if (auMouvement && !tremble) {
    Mouvement(*event);
  }
}

void Toile::mouseReleaseEvent(QMouseEvent *event) {
  if (auRelache) {
    auRelache(event->button());
  }
}

void Toile::leaveEvent(QEvent *event) {
  QWidget::leaveEvent(event);
  if (auSortie) {
    auSortie();
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

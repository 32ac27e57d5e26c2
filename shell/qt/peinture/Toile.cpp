#include "shell/qt/peinture/Toile.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Bandes.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr double kGrandTrait = 1.5; ///< scale from which lines grow with it
const std::vector<Aire> kSansAires;
const std::vector<Etiquette> kSansEtiquettes;

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

Toile::Toile(const Surface &surface, QWidget *parent) : QWidget(parent), surface_(surface) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

/// Whether a text was recorded from a trace on.
bool Toile::TexteDepuis(std::size_t premier) const {
  return std::any_of(surface_.traces.begin() + static_cast<std::ptrdiff_t>(premier), surface_.traces.end(),
                     [](const Trace &trace) { return std::holds_alternative<TexteTrace>(trace); });
}

/// Whether nothing is to be seen but the ground.
bool Toile::EstNue() const {
  return surface_.traces.empty() && surface_.aires.empty() && surface_.etiquettes.empty() &&
         surface_.calque == Calque();
}

/// Lets go of the images of what was there before.
/// @param change  whether the ground looks otherwise than before
void Toile::AccordeNue(bool change) {
  if (std::exchange(effacements_, surface_.effacements) != surface_.effacements || !image_.isNull() || change) {
    update();
  }
  image_ = lignes_ = QImage();
  textes_.clear();
  aires_.clear();
  etiquettes_.clear();
  calque_ = surface_.calque;
  traces_ = 0;
  points_ = 0;
}

/// The lines into the picture that gets the texts; its memory stays the same.
void Toile::Recopie() {
  if (image_.size() != lignes_.size()) {
    image_ = QImage(lignes_.size(), lignes_.format());
  }
  image_.setDevicePixelRatio(lignes_.devicePixelRatio());
  std::copy_n(lignes_.constBits(), lignes_.sizeInBytes(), image_.bits());
}

/// The ground, the filled shapes and the lines; a chart has so many of them that the processors share them out.
void Toile::PeintToutes(double facteur, Maniere maniere) {
  const QColor fond = FondA(eclairage_, CouleurQt(surface_.fond));
  const auto peint = [&](QPainter &painter) {
    painter.fillRect(rect().adjusted(0, 0, 1, 1), fond); // a part of a pixel at the edge too
    PeintAires(painter, surface_, facteur, maniere);
    PeintLignes(painter, surface_, facteur, 0, maniere);
  };
  if (!surface_.aires.empty()) {
    PeintEnBandes(lignes_, peint);
  } else {
    QPainter painter(&lignes_);
    peint(painter);
  }
}

/// The layer and the texts over the lines; where there is neither, the lines are the whole picture.
void Toile::PeintDessus(double facteur, Maniere maniere) {
  if (textes_.empty() && calque_.traces.empty()) {
    image_ = lignes_;
    return;
  }
  Recopie();
  QPainter painter(&image_);
  PeintCalque(painter, surface_, facteur, maniere);
  PeintTextes(painter, surface_, facteur, textes_, maniere);
}

void Toile::Accorde() {
  const QSize taille = size() * devicePixelRatioF();
  // A layer drawn twice in the same place is dropped from the record; what is painted of it stays.
  const bool retiree = traces_ > surface_.traces.size();
  traces_ = std::min(traces_, surface_.traces.size());
  const bool tourne = std::exchange(eclairage_, EclairageVu()) != EclairageVu();
  const double facteur = PixelsParTwip(*this);
  const bool change = std::exchange(facteur_, facteur) != facteur;
  if (EstNue()) {
    AccordeNue(tourne || change);
    return;
  }
  const std::vector<Aire> &aires = surface_.teintee ? surface_.aires : kSansAires;
  const bool neuve =
      tourne || change || lignes_.size() != taille || effacements_ != surface_.effacements || aires_ != aires;
  const std::vector<Etiquette> &etiquettes = surface_.etiquetee ? surface_.etiquettes : kSansEtiquettes;
  const bool nomme = etiquettes_ != etiquettes;
  const bool decalque = calque_ != surface_.calque;
  const bool tracee = neuve || traces_ != surface_.traces.size() || points_ != NombrePoints(surface_);
  if (!tracee && !retiree && !nomme && !decalque) {
    return;
  }
  if (image_.constBits() == lignes_.constBits()) {
    image_ = QImage(); // one picture for both, as long as nothing lay over the lines
  }
  if (lignes_.size() != taille) {
    lignes_ = QImage(taille, QImage::Format_RGB32);
    lignes_.setDevicePixelRatio(devicePixelRatioF());
  }
  const Maniere maniere{.eclairage = eclairage_, .pixel = Trait(*this)};
  if (neuve) {
    PeintToutes(facteur, maniere);
    aires_ = aires;
    traces_ = 0;
  } else if (tracee) {
    QPainter painter(&lignes_);
    // The last polyline may have grown since it was painted: it is painted again.
    const bool reprise = traces_ > 0 && traces_ <= surface_.traces.size() && points_ != 0;
    PeintLignes(painter, surface_, facteur, reprise ? traces_ - 1 : traces_, maniere);
  }
  etiquettes_ = etiquettes;
  calque_ = surface_.calque;
  if (neuve || retiree || nomme || decalque || TexteDepuis(traces_)) {
    textes_ = TextesPeints(QPainter(&lignes_), surface_, facteur, mesures_, Reserves(facteur));
  }
  PeintDessus(facteur, maniere);
  effacements_ = surface_.effacements;
  traces_ = surface_.traces.size();
  points_ = NombrePoints(surface_);
  update();
}

void Toile::Reserve(const QWidget &inscription) { inscriptions_.push_back(&inscription); }

std::vector<ZoneTexte> Toile::Reserves(double facteur) const {
  std::vector<ZoneTexte> zones;
  for (const QWidget *inscription : inscriptions_) {
    const QRectF la = inscription->geometry();
    zones.push_back({la.x() / facteur, la.y() / facteur, la.width() / facteur, la.height() / facteur});
  }
  return zones;
}

void Toile::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  const QRectF zone = event->rect();
  if (image_.isNull()) {
    painter.fillRect(zone, FondA(EclairageVu(), CouleurQt(surface_.fond)));
  } else {
    const double ratio = devicePixelRatioF();
    painter.drawImage(zone, image_, QRectF(zone.topLeft() * ratio, zone.size() * ratio));
  }
  if (elastique_) {
    const double facteur = PixelsParTwip(*this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(EncreA(eclairage_, CouleurQt(kMagenta)), Trait(*this), Qt::DotLine));
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

#include "shell/qt/widgets/Papier.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/FeuilletQt.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr double kMarge = 6;            ///< pixels around the whole page
constexpr double kGrossissement = 2;    ///< at least, of the whole page
constexpr int kPixelsTremblement = 4;   ///< by which a hand trembles during a click
constexpr double kPasFleche = 60;       ///< pixels that an arrow key draws it along
constexpr double kPixelsParCran = 0.75; ///< of an eighth of a degree of the wheel

} // namespace

Papier::Papier(QWidget *parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_NoMousePropagation);
  setMinimumSize(1, 1);
}

void Papier::Montre(std::shared_ptr<const Feuillet> feuillet) {
  if (feuillet_ != feuillet) {
    feuillet_ = std::move(feuillet);
    update();
  }
}

double Papier::FacteurEntier() const {
  return std::max(1e-3,
                  std::min((width() - 2 * kMarge) / feuillet_->largeur, (height() - 2 * kMarge) / feuillet_->hauteur));
}

double Papier::Facteur() const {
  return gros_ ? std::max(logicalDpiX() / kTwipsParPouce, kGrossissement * FacteurEntier()) : FacteurEntier();
}

QPointF Papier::Coin() const {
  const QPointF centre(width() / 2.0, height() / 2.0);
  return centre - (gros_ ? milieu_ : QPointF(feuillet_->largeur, feuillet_->hauteur) / 2) * Facteur();
}

void Papier::Glisse(QPointF pixels) {
  milieu_ -= pixels / Facteur();
  milieu_ = {std::clamp(milieu_.x(), 0.0, feuillet_->largeur), std::clamp(milieu_.y(), 0.0, feuillet_->hauteur)};
  update();
}

void Papier::Grossit(QPointF autour) {
  if (feuillet_ == nullptr) {
    return;
  }
  const QPointF place = (autour - Coin()) / Facteur();
  gros_ = !gros_;
  milieu_ = place;
  Glisse(autour - QPointF(width(), height()) / 2.0);
}

void Papier::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  const Eclairage eclairage = EclairageVu();
  painter.fillRect(rect(), TeintesDe(eclairage).mat);
  if (feuillet_ != nullptr) {
    const double facteur = Facteur();
    const QRectF page(Coin(), QSizeF(feuillet_->largeur, feuillet_->hauteur) * facteur);
    painter.fillRect(page.translated(2, 2), TeintesDe(eclairage).ombre);
    painter.fillRect(page, FondA(eclairage, Qt::white));
    painter.translate(page.topLeft());
    PeintFeuillet(painter, *feuillet_, facteur, eclairage);
    painter.resetTransform();
  }
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

void Papier::mousePressEvent(QMouseEvent *event) {
  prise_ = event->position();
  tire_ = false;
}

void Papier::mouseMoveEvent(QMouseEvent *event) {
  if (feuillet_ == nullptr || !event->buttons().testFlag(Qt::LeftButton)) {
    return;
  }
  const QPointF pas = event->position() - prise_;
  if (tire_ || pas.manhattanLength() > kPixelsTremblement) {
    tire_ = true;
    if (gros_) {
      Glisse(pas);
    }
    prise_ = event->position();
  }
}

void Papier::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && !std::exchange(tire_, false)) {
    Grossit(event->position());
  }
}

void Papier::wheelEvent(QWheelEvent *event) {
  if (feuillet_ == nullptr || !gros_) {
    event->ignore();
    return;
  }
  Glisse(QPointF(event->angleDelta()) * kPixelsParCran);
}

void Papier::keyPressEvent(QKeyEvent *event) {
  if (feuillet_ != nullptr && (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return)) {
    Grossit({width() / 2.0, height() / 2.0});
    return;
  }
  const QPointF pas = event->key() == Qt::Key_Left    ? QPointF(kPasFleche, 0)
                      : event->key() == Qt::Key_Right ? QPointF(-kPasFleche, 0)
                      : event->key() == Qt::Key_Up    ? QPointF(0, kPasFleche)
                      : event->key() == Qt::Key_Down  ? QPointF(0, -kPasFleche)
                                                      : QPointF();
  if (feuillet_ != nullptr && gros_ && !pas.isNull()) {
    Glisse(pas);
    return;
  }
  QWidget::keyPressEvent(event);
}

namespace {

class APapier : public Adaptateur {
public:
  explicit APapier(Papier *papier) : Adaptateur(*papier), w(*papier) {}
  void AccordeTeintes(const Controle & /*controle*/) override { w.update(); }
  Contenu Montre() const override { return {{}, 0, Numero(w.feuillet())}; }
  Contenu Voulu(const Controle &c) const override { return {{}, 0, Numero(c.feuillet)}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override { w.Montre(c.feuillet); }

private:
  /// What tells one page from another.
  static qsizetype Numero(const std::shared_ptr<const Feuillet> &feuillet) {
    return static_cast<qsizetype>(reinterpret_cast<quintptr>(feuillet.get()));
  }
  Papier &w;
};

} // namespace

std::unique_ptr<Adaptateur> CreePapier(QWidget *parent) { return std::make_unique<APapier>(new Papier(parent)); }

} // namespace velmaris::qt

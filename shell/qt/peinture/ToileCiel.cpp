#include "shell/qt/peinture/ToileCiel.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Icones.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <iterator>

namespace velmaris::qt {
namespace {

constexpr double kPrise = 60;         ///< 1/1440 inch around a mark that still take the pointer
constexpr double kGrandeMarque = 150; ///< 1/1440 inch from which a mark has a broad border

QString Texte(const std::string &texte) { return QString::fromStdString(texte); }

/// Whether a body stands out with its constellation: by night a ring tells it, as there is no other red.
bool Eclaire(const Controle &corps) {
  return corps.genre == Genre::Marque ? corps.bordure == kRouge : corps.couleur == kRouge;
}

QFont PoliceDe(const Controle &etiquette, bool gras, const QWidget &widget) {
  QFont police = PoliceA(QApplication::font(), etiquette.taille, PixelsParTwip(widget), widget);
  police.setBold(gras || etiquette.gras);
  return police;
}

} // namespace

ToileCiel::ToileCiel(const Ciel &ciel, QWidget *parent) : Toile(ciel.picture1, parent), ciel_(ciel) {
  setFocusPolicy(Qt::StrongFocus);
}

void ToileCiel::Ajoute(Controle &corps) { corps_.push_back(&corps); }

void ToileCiel::Accorde() {
  Toile::Accorde();
  const bool pareils = std::equal(corps_.begin(), corps_.end(), vus_.begin(), vus_.end(),
                                  [](const Controle *c, const Controle &vu) { return *c == vu; });
  if (!pareils) {
    vus_.clear();
    for (const Controle *c : corps_) {
      vus_.push_back(*c);
    }
    update();
  }
}

QRectF ToileCiel::Zone(const Controle &corps) const {
  const double f = PixelsParTwip(*this);
  const Place &p = corps.place;
  return {p.gauche * f, p.haut * f, p.largeur * f, p.hauteur * f};
}

QColor ToileCiel::Encre(Couleur couleur) const {
  return EncreA(EclairageVu(), CouleurQt(couleur), CouleurQt(ciel_.picture1.fond));
}

QRectF ToileCiel::Zone(const ZoneTexte &zone) const {
  const double f = PixelsParTwip(*this);
  return {zone.gauche * f, zone.haut * f, zone.largeur * f, zone.hauteur * f};
}

/// Where the scales' figures stand.
std::vector<ZoneTexte> ToileCiel::Pris() const {
  std::vector<ZoneTexte> pris;
  std::transform(textes().begin(), textes().end(), std::back_inserter(pris),
                 [](const TextePlace &place) { return place.zone; });
  return pris;
}

ciel::AstreTrouve ToileCiel::CorpsSous(QPointF pixel) const {
  const double f = PixelsParTwip(*this);
  return ciel::AstreAu(ciel_, corps_, {pixel.x() / f, pixel.y() / f}, kPrise, Pris());
}

void ToileCiel::PeintMarque(QPainter &painter, const Controle &marque) const {
  const bool eclaire = Eclaire(marque) && EstNuit();
  const double g = Grandeur(*this);
  const double trait = (marque.place.largeur >= kGrandeMarque || Eclaire(marque) ? 2 : 1) * g;
  const QRectF zone = Zone(marque).adjusted(trait / 2, trait / 2, -trait / 2, -trait / 2);
  painter.setPen(QPen(Encre(eclaire ? kBlanc : marque.bordure), trait));
  painter.setBrush(Encre(marque.couleur));
  painter.drawEllipse(zone);
  if (!marque.marque.empty()) { // struck through: no star stands where this row puts it
    const double d = 2 * g;
    painter.drawLine(zone.bottomLeft() + QPointF(-d, d), zone.topRight() + QPointF(d, -d));
  }
  if (eclaire) {
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(zone.adjusted(-4 * g, -4 * g, 4 * g, 4 * g));
  }
}

void ToileCiel::PeintEtiquette(QPainter &painter, const Controle &etiquette, const QRectF &zone) const {
  if (etiquette.opaque) {
    const QColor fond = CouleurQt(etiquette.fond);
    painter.fillRect(zone.adjusted(-2, 0, 2, 0), FondA(EclairageVu(), fond));
  }
  const bool eclaire = Eclaire(etiquette);
  painter.setFont(PoliceDe(etiquette, eclaire, *this));
  painter.setPen(Encre(eclaire && EstNuit() ? kBlanc : etiquette.couleur));
  painter.drawText(zone, static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextDontClip),
                   Texte(etiquette.legende));
  if (!etiquette.marque.empty() && !Texte(etiquette.legende).trimmed().isEmpty()) {
    const QRectF suite(zone.topRight() + QPointF(2 * Grandeur(*this), 0), zone.size());
    painter.drawText(suite,
                     static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter) |
                         static_cast<int>(Qt::TextDontClip),
                     Texte(etiquette.marque));
  }
}

void ToileCiel::PeintImage(QPainter &painter, const Controle &astre) const {
  const QRectF zone = Zone(astre);
  QImage image = ImageJour(astre.image, static_cast<int>(zone.width()), devicePixelRatioF());
  TeinteImage(EclairageVu(), image, CouleurQt(ciel_.picture1.fond));
  painter.drawImage(zone.topLeft(), image);
}

void ToileCiel::paintEvent(QPaintEvent *event) {
  Toile::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Controle *c : ciel::MarquesMontrees(corps_)) {
    if (Zone(*c).intersects(event->rect())) {
      PeintMarque(painter, *c);
    }
  }
  for (const Controle *c : corps_) {
    if (c->genre == Genre::Image && c->visible) {
      PeintImage(painter, *c);
    }
  }
  const Controle *courant = ciel_.astreCourant;
  QRectF cadre = courant == nullptr ? QRectF() : Zone(*courant);
  for (const ciel::LabelMontre &montre : ciel::LabelsMontres(ciel_, corps_, Pris())) {
    const QRectF zone = Zone(montre.zone);
    PeintEtiquette(painter, *montre.label, zone);
    cadre = montre.label == courant ? zone : cadre;
  }
  painter.setBrush(Qt::NoBrush);
  if (courant != nullptr && courant->visible && hasFocus()) {
    painter.setPen(QPen(Encre(kBlanc), 1, Qt::DashLine));
    painter.drawRect(cadre.adjusted(-3, -1, 3, 1));
  } else if (hasFocus()) {
    painter.setPen(QPen(Encre(kBlanc), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

bool ToileCiel::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) {
    return Toile::event(event);
  }
  const auto &aide = *static_cast<QHelpEvent *>(event);
  const ciel::AstreTrouve trouve = CorpsSous(aide.pos());
  const std::string texte = trouve.astre == nullptr || !auAide ? std::string() : auAide(*trouve.astre);
  if (texte.empty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(aide.globalPos(), Texte(texte), this, Zone(*trouve.pointe).toAlignedRect());
  }
  return true;
}

void ToileCiel::keyPressEvent(QKeyEvent *event) {
  if (!auTouche || !auTouche(event->key())) {
    Toile::keyPressEvent(event);
  }
}

void ToileCiel::mouseMoveEvent(QMouseEvent *event) {
  const ciel::AstreTrouve trouve = CorpsSous(event->position());
  setCursor(trouve.astre == nullptr ? Qt::ArrowCursor : Qt::PointingHandCursor);
  if (trouve.astre != nullptr && auSurvol) {
    auSurvol(*trouve.astre, *trouve.pointe);
  } else if (trouve.astre == nullptr) {
    Toile::mouseMoveEvent(event);
  }
}

void ToileCiel::mousePressEvent(QMouseEvent *event) {
  Controle *corps = CorpsSous(event->position()).astre;
  if (event->button() == Qt::LeftButton && corps != nullptr && auChoix) {
    auChoix(*corps);
  }
}

void ToileCiel::focusInEvent(QFocusEvent *event) {
  Toile::focusInEvent(event);
  update();
}

void ToileCiel::focusOutEvent(QFocusEvent *event) {
  Toile::focusOutEvent(event);
  update();
}

} // namespace velmaris::qt

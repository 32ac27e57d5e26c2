#include "shell/qt/ToileCiel.hpp"

#include "shell/qt/Icones.hpp"
#include "shell/qt/Nuit.hpp"
#include "sky/LettreGrecque.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace velmaris::qt {
namespace {

constexpr double kPrise = 4;          ///< pixels around a mark that still take the pointer
constexpr double kGrandeMarque = 150; ///< 1/1440 inch from which a mark has a broad border

QString Texte(const std::string &texte) { return QString::fromStdString(texte); }

bool EstMuette(const Controle &etiquette) { return etiquette.legende.find_first_not_of(' ') == std::string::npos; }

/// Which of two labels stays where both can't: the one under the pointer, then lit ones, planets, and stars for
/// navigation.
int Importance(const Controle &etiquette) {
  const int navigation = etiquette.gras ? 1 : 0;
  if (etiquette.opaque) {
    return 5;
  }
  if (etiquette.couleur == kRouge) {
    return 3 + navigation;
  }
  return etiquette.nom == "LaP" ? 2 : navigation;
}

/// Whether a body stands out with its constellation: by night a ring tells it, as there is no other red.
bool Eclaire(const Controle &corps) {
  return corps.genre == Genre::Marque ? corps.bordure == kRouge : corps.couleur == kRouge;
}

QFont PoliceDe(const Controle &etiquette, bool gras) {
  QFont police = QApplication::font();
  police.setPointSizeF(etiquette.taille);
  police.setBold(gras || etiquette.gras);
  return police;
}

} // namespace

ToileCiel::ToileCiel(const Ciel &ciel, QWidget *parent) : Toile(ciel.picture1, parent), ciel_(ciel) {
  setFocusPolicy(Qt::StrongFocus);
  textesEntiers_ = true;
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
  const QColor jour = CouleurQt(couleur);
  return EstNuit() ? EncreDeNuit(jour, CouleurQt(ciel_.picture1.fond)) : jour;
}

Controle *ToileCiel::CorpsSous(QPointF pixel) const {
  std::vector<Controle *> etoiles(kEtoilesCiel + 1, nullptr);
  std::vector<Controle *> devant;
  std::vector<Controle *> marques;
  Controle *mobile = nullptr; // Sun, Moon or planet
  for (Controle *c : corps_) {
    if (!c->visible) {
      continue;
    }
    if (c->genre == Genre::Marque) {
      marques.push_back(c);
    } else if (c->nom == "Laet") {
      etoiles[static_cast<std::size_t>(c->indice)] = c;
    } else if (Zone(*c).contains(pixel)) {
      mobile = c;
    }
  }
  const auto touche = [&](std::size_t i) { return etoiles[i] != nullptr && Zone(*etoiles[i]).contains(pixel); };
  if (touche(ciel_.etoileDevant)) {
    return etoiles[ciel_.etoileDevant];
  }
  if (mobile != nullptr) {
    return mobile;
  }
  const auto marque = [&](double autour) -> Controle * {
    const auto trouvee = std::find_if(marques.rbegin(), marques.rend(), [&](const Controle *m) {
      return Zone(*m).adjusted(-autour, -autour, autour, autour).contains(pixel);
    });
    return trouvee == marques.rend() ? nullptr : EtiquetteDe(**trouvee);
  };
  if (Controle *disque = marque(0)) {
    return disque;
  }
  const auto etoile = std::find_if(ciel_.pile.rbegin(), ciel_.pile.rend(),
                                   [&](std::size_t i) { return touche(i) && !EstMuette(*etoiles[i]); });
  return etoile != ciel_.pile.rend() ? etoiles[*etoile] : marque(kPrise);
}

/// The label of a mark.
Controle *ToileCiel::EtiquetteDe(const Controle &marque) const {
  const std::string_view nom = marque.nom == "Shet" ? "Laet" : "LaP";
  const auto label = std::find_if(corps_.begin(), corps_.end(),
                                  [&](const Controle *c) { return c->nom == nom && c->indice == marque.indice; });
  return label == corps_.end() ? nullptr : *label;
}

/// The labels that are painted, the least first: none overprints a greater one.
std::vector<const Controle *> ToileCiel::EtiquettesLisibles() const {
  std::vector<const Controle *> labels;
  for (const Controle *c : corps_) {
    if (c->genre == Genre::Etiquette && c->visible && !EstMuette(*c) && Zone(*c).intersects(rect())) {
      labels.push_back(c);
    }
  }
  std::stable_sort(labels.begin(), labels.end(),
                   [](const Controle *a, const Controle *b) { return Importance(*a) > Importance(*b); });
  std::vector<const Controle *> lisibles;
  std::vector<QRectF> prises;
  for (const Controle *c : labels) {
    const QRectF zone = Zone(*c);
    if (std::none_of(prises.begin(), prises.end(), [&](const QRectF &prise) { return prise.intersects(zone); })) {
      prises.push_back(zone);
      lisibles.push_back(c);
    }
  }
  std::reverse(lisibles.begin(), lisibles.end());
  return lisibles;
}

void ToileCiel::PeintMarque(QPainter &painter, const Controle &marque) const {
  const bool eclaire = Eclaire(marque) && EstNuit();
  const double trait = marque.place.largeur >= kGrandeMarque || Eclaire(marque) ? 2 : 1;
  const QRectF zone = Zone(marque).adjusted(trait / 2, trait / 2, -trait / 2, -trait / 2);
  painter.setPen(QPen(Encre(eclaire ? kBlanc : marque.bordure), trait));
  painter.setBrush(Encre(marque.couleur));
  painter.drawEllipse(zone);
  if (eclaire) {
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(zone.adjusted(-4, -4, 4, 4));
  }
}

void ToileCiel::PeintEtiquette(QPainter &painter, const Controle &etiquette) const {
  const QRectF zone = Zone(etiquette);
  if (etiquette.opaque) {
    const QColor fond = CouleurQt(etiquette.fond);
    painter.fillRect(zone.adjusted(-2, 0, 2, 0), EstNuit() ? FondDeNuit(fond) : fond);
  }
  const bool eclaire = Eclaire(etiquette);
  painter.setFont(PoliceDe(etiquette, eclaire));
  painter.setPen(Encre(eclaire && EstNuit() ? kBlanc : etiquette.couleur));
  painter.drawText(zone, static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextDontClip),
                   Texte(etiquette.legende));
}

void ToileCiel::PeintImage(QPainter &painter, const Controle &astre) const {
  const QRectF zone = Zone(astre);
  QImage image = ImageJour(astre.image, static_cast<int>(zone.width()), devicePixelRatioF());
  if (EstNuit()) {
    RougitImage(image, CouleurQt(ciel_.picture1.fond));
  }
  painter.drawImage(zone.topLeft(), image);
}

void ToileCiel::paintEvent(QPaintEvent *event) {
  Toile::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Controle *c : corps_) {
    if (c->genre == Genre::Marque && c->visible && Zone(*c).intersects(event->rect())) {
      PeintMarque(painter, *c);
    }
  }
  for (const Controle *c : corps_) {
    if (c->genre == Genre::Image && c->visible) {
      PeintImage(painter, *c);
    }
  }
  for (const Controle *c : EtiquettesLisibles()) {
    PeintEtiquette(painter, *c);
  }
  painter.setBrush(Qt::NoBrush);
  if (ciel_.astreCourant != nullptr && ciel_.astreCourant->visible && hasFocus()) {
    painter.setPen(QPen(Encre(kBlanc), 1, Qt::DashLine));
    painter.drawRect(Zone(*ciel_.astreCourant).adjusted(-3, -1, 3, 1));
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
  const Controle *corps = CorpsSous(aide.pos());
  if (corps == nullptr || corps->infobulle.empty()) {
    QToolTip::hideText();
  } else {
    const std::string_view bayer = corps->infobulle;
    QToolTip::showText(aide.globalPos(),
                       Texte(std::string(LettreGrecque(bayer.substr(0, 1))) + corps->infobulle.substr(1)), this,
                       Zone(*corps).toAlignedRect());
  }
  return true;
}

void ToileCiel::keyPressEvent(QKeyEvent *event) {
  if (!auTouche || !auTouche(event->key())) {
    Toile::keyPressEvent(event);
  }
}

void ToileCiel::mouseMoveEvent(QMouseEvent *event) {
  Controle *corps = CorpsSous(event->position());
  setCursor(corps == nullptr ? Qt::ArrowCursor : Qt::PointingHandCursor);
  if (corps != nullptr && auSurvol) {
    auSurvol(*corps);
  } else if (corps == nullptr) {
    Toile::mouseMoveEvent(event);
  }
}

void ToileCiel::mousePressEvent(QMouseEvent *event) {
  Controle *corps = CorpsSous(event->position());
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

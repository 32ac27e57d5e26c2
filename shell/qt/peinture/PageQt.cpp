#include "shell/qt/peinture/PageQt.hpp"

#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QFontDatabase>
#include <QPainter>

namespace velmaris::qt {
namespace {

constexpr double kTwipsParPixel = 15.0;
constexpr double kHautTitre = 225.0;  ///< of a row's title, 1/1440 inch
constexpr double kMargeTitre = 90.0;  ///< left of it
constexpr int kEtroite = 82;          ///< percent of the width, where no narrow face is installed
const QColor kBordure(150, 158, 166); ///< of a row

QFont PolicePage(double taille, double facteur, const QPaintDevice &support) {
  QFont police = PoliceA({}, taille, facteur, support);
  for (const char *famille : {"Arial Narrow", "Liberation Sans Narrow", "Nimbus Sans Narrow"}) {
    if (QFontDatabase::hasFamily(famille)) {
      police.setFamily(famille);
      return police;
    }
  }
  police.setStretch(kEtroite);
  return police;
}

/// Paints the page's controls, each in its place.
struct Peintre {
  QPainter &painter;
  double facteur;
  Eclairage eclairage;

  QColor Encre(const QColor &jour) const { return EncreA(eclairage, jour); }
  QColor Fond(const QColor &jour) const { return FondA(eclairage, jour); }
  QRectF Zone(const Place &p) const {
    return {p.gauche * facteur, p.haut * facteur, p.largeur * facteur, p.hauteur * facteur};
  }

  void Image(const Surface &surface, const Place &place) const {
    if (surface.largeur <= 0 || surface.hauteur <= 0) {
      return;
    }
    const QRectF zone = Zone(place);
    painter.save();
    painter.setClipRect(zone, Qt::IntersectClip);
    painter.fillRect(zone, Fond(CouleurQt(surface.fond)));
    painter.translate(zone.topLeft());
    painter.scale(place.largeur / surface.largeur, place.hauteur / surface.hauteur);
    PeintTraces(painter, surface, facteur, {.eclairage = eclairage, .pixel = facteur * kTwipsParPixel});
    painter.restore();
  }

  void Rangee(const Controle &rangee) const {
    const QRectF zone = Zone(rangee.place);
    painter.fillRect(zone, Fond(Qt::white));
    painter.setPen(QPen(Encre(kBordure), facteur * kTwipsParPixel));
    const double titre = kHautTitre * facteur;
    painter.drawRect(zone.adjusted(0, titre / 2, 0, 0));
    painter.setFont(PolicePage(rangee.taille, facteur, *painter.device()));
    const QString texte = QString::fromStdString(rangee.legende);
    const QRectF place(zone.left() + kMargeTitre * facteur, zone.top(),
                       QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(texte + ' '), titre);
    painter.fillRect(place, Fond(Qt::white));
    painter.setPen(Encre(Qt::black));
    painter.drawText(place, static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter), texte);
  }

  void Etiquette(const Controle &c, const Controle &rangee) const {
    Place place = c.place;
    place.gauche += rangee.place.gauche;
    place.haut += rangee.place.haut;
    painter.setFont(PolicePage(c.taille, facteur, *painter.device()));
    painter.setPen(Encre(CouleurQt(c.couleur)));
    painter.drawText(Zone(place), static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter),
                     QString::fromStdString(c.legende));
  }
};

} // namespace

void PeintPage(QPainter &painter, const Impression &page, double facteur, Eclairage eclairage) {
  const Peintre peintre{painter, facteur, eclairage};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(peintre.Zone({0, 0, page.cadre.largeur, page.cadre.hauteur}), peintre.Fond(Qt::white));
  peintre.Image(page.image, page.Image1.place);
  painter.setBrush(Qt::NoBrush);
  for (std::size_t i = 0; i < page.Frame4.size(); ++i) {
    const Controle &rangee = page.Frame4.at(i);
    if (!rangee.visible) {
      continue;
    }
    peintre.Rangee(rangee);
    for (const Controle *etiquette : EtiquettesDe(page, i)) {
      peintre.Etiquette(*etiquette, rangee);
    }
  }
}

} // namespace velmaris::qt

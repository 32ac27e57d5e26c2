#include "shell/qt/peinture/FeuilletQt.hpp"

#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace velmaris::qt {
namespace {

constexpr int kResolutionPdf = 1200; ///< points an inch
constexpr double kTwipsParPoint = 20;

QFont PoliceDe(const Graphie &g, double facteur, const QPaintDevice &support) {
  QFont police = PoliceA({}, g.taille, facteur, support);
  police.setBold(g.gras);
  police.setItalic(g.italique);
  return police;
}

/// Part of a text's width that lies left of its place.
double PartGauche(Ancrage ancrage) { return ancrage == Ancrage::Gauche ? 0.0 : ancrage == Ancrage::Milieu ? 0.5 : 1.0; }

/// Paints the elements of one page.
class Peintre {
public:
  Peintre(QPainter &painter, double facteur, Eclairage eclairage)
      : painter_(painter), facteur_(facteur), eclairage_(eclairage) {}

  void operator()(const TraitFeuillet &trait) {
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(trait.points.size()));
    for (const Point &p : trait.points) {
      points << Place(p);
    }
    painter_.setRenderHint(QPainter::Antialiasing, !SurAxe(trait));
    if (trait.plein) {
      QPainterPath chemin;
      chemin.addPolygon(points);
      painter_.fillPath(chemin, Teinte(trait.encre.gris));
      return;
    }
    painter_.setPen(Plume(trait.encre));
    painter_.setBrush(Qt::NoBrush);
    trait.ferme ? painter_.drawPolygon(points) : painter_.drawPolyline(points);
  }

  void operator()(const RondFeuillet &rond) {
    const double rayon = rond.rayon * facteur_;
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(rond.plein ? QPen(Qt::NoPen) : Plume(rond.encre));
    painter_.setBrush(rond.plein ? QBrush(Teinte(rond.encre.gris)) : QBrush(Qt::NoBrush));
    painter_.drawEllipse(Place(rond.centre), rayon, rayon);
  }

  void operator()(const MotFeuillet &mot) {
    const Fonte &fonte = FonteDe(mot.graphie);
    painter_.setFont(fonte.police);
    painter_.setPen(Teinte(0));
    const QString mots = QString::fromStdString(mot.texte);
    const double part = PartGauche(mot.graphie.ancrage);
    const double recul = part == 0 ? 0.0 : part * fonte.metrique.horizontalAdvance(mots);
    if (mot.graphie.angle == 0) {
      painter_.drawText(Place(mot.pied) - QPointF(recul, 0), mots);
      return;
    }
    painter_.save();
    painter_.translate(Place(mot.pied));
    painter_.rotate(mot.graphie.angle);
    painter_.drawText(QPointF(-recul, 0), mots);
    painter_.restore();
  }

private:
  struct Fonte {
    QFont police;
    QFontMetricsF metrique;
  };

  const Fonte &FonteDe(const Graphie &g) {
    const auto cle = std::make_tuple(g.taille, g.gras, g.italique);
    auto connue = fontes_.find(cle);
    if (connue == fontes_.end()) {
      const QFont police = PoliceDe(g, facteur_, *painter_.device());
      connue = fontes_.emplace(cle, Fonte{police, QFontMetricsF(police, painter_.device())}).first;
    }
    return connue->second;
  }

  QPointF Place(Point p) const { return {p.x * facteur_, p.y * facteur_}; }

  /// A grey between the ink and the paper.
  QColor Teinte(double gris) const {
    const QColor encre = EncreA(eclairage_, Qt::black);
    const QColor papier = FondA(eclairage_, CouleurQt(kBlanc));
    const auto entre = [gris](int a, int b) { return static_cast<int>(std::lround(a + gris * (b - a))); };
    return {entre(encre.red(), papier.red()), entre(encre.green(), papier.green()), entre(encre.blue(), papier.blue())};
  }

  QPen Plume(const Encre &encre) const {
    QPen plume(Teinte(encre.gris), encre.largeur * kTwipsParPoint * facteur_);
    plume.setCapStyle(Qt::FlatCap);
    plume.setJoinStyle(Qt::MiterJoin);
    if (encre.tiret > 0 && encre.largeur > 0) {
      const double pas = encre.tiret / encre.largeur;
      plume.setDashPattern({pas, pas});
    }
    return plume;
  }

  static bool SurAxe(const TraitFeuillet &trait) {
    if (trait.ferme) {
      return trait.points.size() == 4 && trait.points[0].y == trait.points[1].y;
    }
    return trait.points.size() == 2 &&
           (trait.points[0].x == trait.points[1].x || trait.points[0].y == trait.points[1].y);
  }

  QPainter &painter_;
  double facteur_;
  Eclairage eclairage_;
  std::map<std::tuple<double, bool, bool>, Fonte> fontes_;
};

QPageSize TaillePage(const Feuillet &feuillet) {
  const QSizeF points(feuillet.largeur / kTwipsParPoint, feuillet.hauteur / kTwipsParPoint);
  return QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch);
}

} // namespace

void PeintFeuillet(QPainter &painter, const Feuillet &feuillet, double facteur, Eclairage eclairage) {
  painter.save();
  Peintre peintre(painter, facteur, eclairage);
  for (const ElementFeuillet &element : feuillet.elements) {
    std::visit(peintre, element);
  }
  painter.restore();
}

QRectF ZoneDuMot(const MotFeuillet &mot, const QPaintDevice &support, double facteur) {
  const QFontMetricsF metrique(PoliceDe(mot.graphie, facteur, support), &support);
  const double largeur = metrique.horizontalAdvance(QString::fromStdString(mot.texte)) / facteur;
  const double haut = metrique.ascent() / facteur;
  return {mot.pied.x - PartGauche(mot.graphie.ancrage) * largeur, mot.pied.y - haut, largeur,
          haut + metrique.descent() / facteur};
}

bool PeintFeuillets(const std::vector<Feuillet> &feuillets, QPagedPaintDevice &support, const Avancement &avancement) {
  QPainter painter;
  for (std::size_t i = 0; i < feuillets.size(); ++i) {
    const Feuillet &feuillet = feuillets[i];
    support.setPageOrientation(feuillet.largeur > feuillet.hauteur ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (avancement.Cesse() || !(i == 0 ? painter.begin(&support) : support.newPage())) {
      return false;
    }
    const double facteur = support.logicalDpiX() / kTwipsParPouce;
    const QSizeF taille(feuillet.largeur * facteur, feuillet.hauteur * facteur);
    const QSizeF place = support.pageLayout().paintRectPixels(support.logicalDpiX()).size();
    const double echelle = std::min({1.0, place.width() / taille.width(), place.height() / taille.height()});
    painter.save();
    painter.translate((place.width() - taille.width() * echelle) / 2, (place.height() - taille.height() * echelle) / 2);
    painter.scale(echelle, echelle);
    PeintFeuillet(painter, feuillet, facteur);
    painter.restore();
    avancement.Dit(static_cast<double>(i + 1) / static_cast<double>(feuillets.size()));
  }
  return feuillets.empty() || painter.end();
}

std::string OctetsPdf(const std::vector<Feuillet> &feuillets, const Avancement &avancement) {
  QBuffer octets;
  if (feuillets.empty() || !octets.open(QIODevice::WriteOnly)) {
    return {};
  }
  QPdfWriter pdf(&octets);
  pdf.setTitle(QString::fromStdString(feuillets.front().titre));
  pdf.setCreator("Velmaris");
  pdf.setResolution(kResolutionPdf);
  pdf.setPageSize(TaillePage(feuillets.front()));
  pdf.setPageMargins({});
  return PeintFeuillets(feuillets, pdf, avancement) ? octets.data().toStdString() : std::string();
}

} // namespace velmaris::qt

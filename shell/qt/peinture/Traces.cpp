#include "shell/qt/peinture/Traces.hpp"

#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QStaticText>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr double kPasVisible = 0.5; ///< pixels under which two points of a line are one
constexpr double kPasAire = 0.75;   ///< pixels under which two points of a filled shape are one
constexpr double kMargeAire = 60.0; ///< 1/1440 inch that filled shapes reach beyond the surface
constexpr double kFinesse = 0.5;    ///< of the fine grid's lines
constexpr std::size_t kTaillesGardees = 10000;
constexpr double kPortee = 1e8; ///< 1/1440 inch from the surface's corner

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

/// Paints recorded traces, one after the other.
struct Peintre {
  QPainter &painter;
  double facteur = 1.0;
  QColor fond;
  Eclairage eclairage = Eclairage::Jour;
  double pixel = 1.0;

  /// How lines of one pen and kind are painted: a chart has thousands of them in a row.
  struct Trait {
    Plume plume;
    GenreLigne genre = GenreLigne::Libre;
    QPen pen;
    std::optional<QPen> lisere;
  };
  std::optional<Trait> trait = {};
  QPolygonF points = {}; ///< of the line under way

  QPointF Place(Point p) const { return {p.x * facteur, p.y * facteur}; }

  /// The points of a line that can be told apart. One that never leaves its first point is only that.
  void Amincit(const Polyligne &ligne) {
    const double pas = kPasVisible * pixel / facteur;
    const double seuil = pas * pas;
    const auto distinct = [&](Point a, Point b) {
      return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) >= seuil;
    };
    points.clear();
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
  }

  /// The pen of a line. By night lines of position are broader, since they have no colour of their own.
  QPen PlumeDe(const Polyligne &ligne) const {
    QPen plume = PlumeQt(ligne.plume, EncreDeLigne(eclairage, ligne.plume.couleur, ligne.genre, fond), pixel);
    if (ligne.genre == GenreLigne::GrilleFine) {
      plume.setWidthF(plume.widthF() * kFinesse);
    } else if (ligne.genre == GenreLigne::Droite && eclairage == Eclairage::Nuit) {
      plume.setWidthF(plume.widthF() + pixel);
    }
    return plume;
  }

  const Trait &TraitDe(const Polyligne &ligne) {
    if (!trait || trait->plume != ligne.plume || trait->genre != ligne.genre) {
      trait = {.plume = ligne.plume, .genre = ligne.genre, .pen = PlumeDe(ligne), .lisere = {}};
      if (eclairage == Eclairage::Jour && FautLisere(CouleurQt(ligne.plume.couleur), fond)) {
        trait->lisere = QPen(kLisere, trait->pen.widthF() + 2 * pixel);
        trait->pen = QPen(trait->pen.color(), trait->pen.widthF() + pixel / 2);
      }
    }
    return *trait;
  }

  /// A thin line along an axis in the middle of its row of pixels, so that it is of one shade.
  void PoseSurPixels() {
    const double densite = painter.device()->devicePixelRatioF();
    for (QPointF &p : points) {
      p = {(std::floor(p.x() * densite) + 0.5) / densite, (std::floor(p.y() * densite) + 0.5) / densite};
    }
  }

  void operator()(const Polyligne &ligne) {
    Amincit(ligne);
    if (points.size() < 2) {
      return;
    }
    const Trait &ici = TraitDe(ligne);
    // A single line along an axis is sharp only without smoothing, or on a row of pixels.
    const bool droite =
        ligne.points.size() == 2 && (ligne.points[0].x == ligne.points[1].x || ligne.points[0].y == ligne.points[1].y);
    const bool fine = ligne.genre == GenreLigne::GrilleFine;
    painter.setRenderHint(QPainter::Antialiasing, !droite || fine);
    if (ici.lisere) {
      painter.setPen(*ici.lisere);
      painter.drawPolyline(points);
    }
    if (fine) {
      PoseSurPixels();
    }
    painter.setPen(ici.pen);
    painter.drawPolyline(points);
  }
  void operator()(const CercleTrace &cercle) const {
    painter.setPen(
        PlumeQt(cercle.plume, EncreDeLigne(eclairage, cercle.plume.couleur, GenreLigne::Libre, fond), pixel));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(Place(cercle.centre), cercle.rayon * facteur, cercle.rayon * facteur);
  }
  void operator()(const TexteTrace & /*texte*/) const {} // texts have their own turn

  /// A text; over lines it has a thin border of the background, so that none strikes it through.
  void Texte(const TexteTrace &texte, const ZoneTexte &zone) const {
    painter.setFont(PoliceQt(texte.police, facteur, *painter.device()));
    QStaticText mots(QString::fromStdString(texte.texte)); // its letters are laid out once for all five
    mots.setTextFormat(Qt::PlainText);
    const QPointF coin = Place({zone.gauche, zone.haut});
    if (texte.role.genre != GenreTexte::Libre) {
      painter.setPen(FondA(eclairage, fond));
      for (const QPointF &ecart : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
        painter.drawStaticText(coin + ecart * pixel, mots);
      }
    }
    painter.setPen(EncreDeTexte(eclairage, texte.couleur, texte.role.genre, fond));
    painter.drawStaticText(coin, mots);
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

void PeintAires(QPainter &painter, const Surface &surface, double facteur, Maniere maniere) {
  if (!surface.teintee) {
    return;
  }
  const Teintes &teintes = TeintesDe(maniere.eclairage);
  const QRectF vue = painter.transform().inverted().mapRect(QRectF(painter.viewport()));
  const Cadrage cadrage{
      {std::max(vue.left() / facteur, 0.0) - kMargeAire, std::max(vue.top() / facteur, 0.0) - kMargeAire},
      {std::min(vue.right() / facteur, surface.largeur) + kMargeAire,
       std::min(vue.bottom() / facteur, surface.hauteur) + kMargeAire}};
  painter.setPen(Qt::NoPen);
  // Their edges lie under their outlines; smoothing them would take ten times as long.
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (const Aire &aire : surface.aires) {
    QPainterPath chemin;
    for (const std::vector<Point> &anneau : Decoupe(aire, cadrage, kPasAire * maniere.pixel / facteur)) {
      QPolygonF points;
      points.reserve(static_cast<qsizetype>(anneau.size()) + 1);
      for (const Point &p : anneau) {
        points << QPointF(p.x * facteur, p.y * facteur);
      }
      chemin.addPolygon(points);
      chemin.closeSubpath();
    }
    painter.fillPath(chemin, aire.teinte == Teinte::Eau ? teintes.eau : teintes.terre);
  }
}

void PeintLignes(QPainter &painter, const Surface &surface, double facteur, std::size_t premier, Maniere maniere) {
  Peintre peintre{painter, facteur, CouleurQt(surface.fond), maniere.eclairage, maniere.pixel};
  for (std::size_t i = premier; i < surface.traces.size(); ++i) {
    if (std::visit(Visible{}, surface.traces[i])) {
      std::visit(peintre, surface.traces[i]);
    }
  }
}

void PeintCalque(QPainter &painter, const Surface &surface, double facteur, Maniere maniere) {
  Peintre peintre{painter, facteur, CouleurQt(surface.fond), maniere.eclairage, maniere.pixel};
  for (const Trace &trace : surface.calque.traces) {
    if (std::visit(Visible{}, trace)) {
      std::visit(peintre, trace);
    }
  }
}

MesuresTextes::Fonte &MesuresTextes::FonteDe(const Police &police, const QPaintDevice &support) {
  const auto connue =
      std::find_if(fontes_.begin(), fontes_.end(), [&](const Fonte &fonte) { return fonte.police == police; });
  return connue != fontes_.end()
             ? *connue
             : fontes_.emplace_back(Fonte{police, QFontMetricsF(PoliceQt(police, facteur_, support), &support), {}});
}

TailleTexte MesuresTextes::De(const TexteTrace &texte, const QPaintDevice &support, double facteur) {
  if (std::exchange(facteur_, facteur) != facteur) {
    fontes_.clear();
  }
  Fonte &fonte = FonteDe(texte.police, support);
  if (fonte.tailles.size() > kTaillesGardees) {
    fonte.tailles.clear();
  }
  const auto [place, nouvelle] = fonte.tailles.try_emplace(texte.texte);
  if (nouvelle) {
    const QString mots = QString::fromStdString(texte.texte);
    const bool lettres = std::any_of(mots.begin(), mots.end(), [](QChar c) { return c.isLetter(); });
    const double hauteur = fonte.metrique.ascent() + (lettres ? fonte.metrique.descent() : 0.0);
    place->second = {fonte.metrique.horizontalAdvance(mots) / facteur, hauteur / facteur};
  }
  return place->second;
}

std::vector<TextePlace> TextesPeints(const QPainter &painter, const Surface &surface, double facteur,
                                     MesuresTextes &mesures, std::span<const ZoneTexte> reserves) {
  const auto mesure = [&](const TexteTrace &texte) { return mesures.De(texte, *painter.device(), facteur); };
  return PlaceTextes(surface, mesure, reserves);
}

void PeintTextes(QPainter &painter, const Surface &surface, double facteur, const std::vector<TextePlace> &textes,
                 Maniere maniere) {
  const Peintre peintre{painter, facteur, CouleurQt(surface.fond), maniere.eclairage, maniere.pixel};
  for (const TextePlace &place : textes) {
    peintre.Texte(TexteDe(surface, place), place.zone);
  }
}

std::vector<TextePlace> PeintTraces(QPainter &painter, const Surface &surface, double facteur, Maniere maniere) {
  PeintAires(painter, surface, facteur, maniere);
  PeintLignes(painter, surface, facteur, 0, maniere);
  PeintCalque(painter, surface, facteur, maniere);
  MesuresTextes mesures;
  std::vector<TextePlace> textes = TextesPeints(painter, surface, facteur, mesures);
  // Texts come over lines, so that no line strikes a figure through.
  PeintTextes(painter, surface, facteur, textes, maniere);
  return textes;
}

} // namespace velmaris::qt

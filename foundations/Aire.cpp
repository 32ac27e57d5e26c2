#include "foundations/Aire.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

using Chemin = std::vector<Point>;

/// One side of the rectangle: what is kept lies where `signe` times the coordinate is at most `signe` times the bound.
struct Bord {
  double Point::*axe;
  double borne;
  double signe;

  bool Dedans(Point p) const { return signe * p.*axe <= signe * borne; }
  Point Croise(Point a, Point b) const {
    const double t = (borne - a.*axe) / (b.*axe - a.*axe);
    Point p{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
    p.*axe = borne;
    return p;
  }
};

/// A ring without what lies beyond one side (Sutherland and Hodgman, 1974).
Chemin Rogne(const Chemin &chemin, const Bord &bord) {
  Chemin reste;
  reste.reserve(chemin.size());
  for (std::size_t i = 0; i < chemin.size(); ++i) {
    const Point avant = chemin[i == 0 ? chemin.size() - 1 : i - 1];
    const Point p = chemin[i];
    if (bord.Dedans(p) != bord.Dedans(avant)) {
      reste.push_back(bord.Croise(avant, p));
    }
    if (bord.Dedans(p)) {
      reste.push_back(p);
    }
  }
  return reste;
}

/// The rectangle of a ring on the surface.
Cadrage Etendue(const Aire &aire, const Anneau &anneau) {
  const double x1 = aire.origine.x + anneau.bas.x * aire.unite.x;
  const double x2 = aire.origine.x + anneau.haut.x * aire.unite.x;
  const double y1 = aire.origine.y + anneau.bas.y * aire.unite.y;
  const double y2 = aire.origine.y + anneau.haut.y * aire.unite.y;
  return {{std::min(x1, x2), std::min(y1, y2)}, {std::max(x1, x2), std::max(y1, y2)}};
}

Chemin Place(const Aire &aire, const Anneau &anneau, double pas) {
  Chemin chemin;
  chemin.reserve(anneau.points.size());
  for (const PointAnneau &a : anneau.points) {
    const Point p{aire.origine.x + a.x * aire.unite.x, aire.origine.y + a.y * aire.unite.y};
    if (chemin.empty() || std::fabs(p.x - chemin.back().x) >= pas || std::fabs(p.y - chemin.back().y) >= pas) {
      chemin.push_back(p);
    }
  }
  return chemin;
}

} // namespace

std::vector<std::vector<Point>> Decoupe(const Aire &aire, const Cadrage &cadrage, double pas) {
  const std::array<Bord, 4> bords = {{{&Point::x, cadrage.debut.x, -1.0},
                                      {&Point::x, cadrage.fin.x, 1.0},
                                      {&Point::y, cadrage.debut.y, -1.0},
                                      {&Point::y, cadrage.fin.y, 1.0}}};
  std::vector<Chemin> chemins;
  for (const Anneau &anneau : *aire.anneaux) {
    const Cadrage e = Etendue(aire, anneau);
    const bool dehors = !(e.fin.x >= cadrage.debut.x && e.debut.x <= cadrage.fin.x && e.fin.y >= cadrage.debut.y &&
                          e.debut.y <= cadrage.fin.y);
    if (dehors || std::max(e.fin.x - e.debut.x, e.fin.y - e.debut.y) < pas) {
      continue;
    }
    Chemin chemin = Place(aire, anneau, pas);
    for (const Bord &bord : bords) {
      if (!bord.Dedans(e.debut) || !bord.Dedans(e.fin)) {
        chemin = Rogne(chemin, bord);
      }
    }
    if (chemin.size() > 2) {
      chemins.push_back(std::move(chemin));
    }
  }
  return chemins;
}

} // namespace velmaris

#include "chart/Terres.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr float kAuBord = 1e-5F; ///< of 180 degrees, within which an outline ends there: some 400 metres

/// On which side of the chart a point lies at 180 degrees: -1 at its left edge, 1 at its right one, 0 on neither.
int CoteDuBord(const PointAnneau &p) {
  if (p.x <= kAuBord) {
    return -1;
  }
  return p.x >= 1.0F - kAuBord ? 1 : 0;
}

/// Closes an outline that can be.
/// @return whether it was
bool Ferme(Anneau &anneau) {
  std::vector<PointAnneau> &points = anneau.points;
  if (points.size() < 3) {
    return false;
  }
  if (points.front() == points.back()) {
    points.pop_back();
    return points.size() > 2;
  }
  const int debut = CoteDuBord(points.front());
  const int fin = CoteDuBord(points.back());
  if (debut == 0 || fin == 0) {
    return false;
  }
  if (debut != fin) {
    points.push_back({points.back().x, 0.0F});
    points.push_back({points.front().x, 0.0F});
  }
  return true;
}

void Etend(Anneau &anneau) {
  const auto [gauche, droite] =
      std::minmax_element(anneau.points.begin(), anneau.points.end(), [](auto &a, auto &b) { return a.x < b.x; });
  const auto [bas, haut] =
      std::minmax_element(anneau.points.begin(), anneau.points.end(), [](auto &a, auto &b) { return a.y < b.y; });
  anneau.bas = {gauche->x, bas->y};
  anneau.haut = {droite->x, haut->y};
}

} // namespace

Anneaux AnneauxFermes(const Polygone &polygone) {
  Anneaux anneaux;
  Anneau anneau;
  const auto acheve = [&] {
    if (Ferme(anneau)) {
      Etend(anneau);
      anneaux.push_back(std::exchange(anneau, {}));
    }
    anneau.points.clear();
  };
  for (std::size_t i = 0; i < polygone.PolyX.size() && (polygone.PolyX[i] != 0.0F || polygone.PolyY[i] != 0.0F); ++i) {
    if (polygone.PolyX[i] > 1.0F) {
      acheve();
    } else if (std::isfinite(polygone.PolyX[i]) && std::isfinite(polygone.PolyY[i])) {
      anneau.points.push_back({polygone.PolyX[i], polygone.PolyY[i]});
    }
  }
  acheve();
  return anneaux;
}

Aire AireSurCarte(const VueCarte &vue, const Feuille &feuille, Teinte teinte, std::shared_ptr<const Anneaux> anneaux) {
  const Point origine = PlaceSurCarte(vue, feuille, 0.0, 0.0);
  const Point unite = PlaceSurCarte(vue, feuille, 1.0, 1.0);
  return {teinte, std::move(anneaux), origine, {unite.x - origine.x, unite.y - origine.y}};
}

} // namespace velmaris

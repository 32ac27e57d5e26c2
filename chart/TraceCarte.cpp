#include "chart/TraceCarte.hpp"

#include "chart/Projection.hpp"

namespace velmaris {
namespace {

constexpr double kMarge = 100.0; ///< times the scale factor: outside the surface lines are drawn within it
constexpr std::size_t kPasRespiration = 10000;

} // namespace

void Affiche(Polygone &polygone, Feuille &feuille, Surface &surface, Couleur couleur,
             const std::function<void()> &respire) {
  const VueCarte vue = ChoisitVue(feuille, surface);
  const double M = vue.Rapport * kMarge;
  const auto proche = [&](Point p) {
    return p.y >= -M && p.y <= surface.hauteur + M && p.x >= -M && p.x <= surface.largeur + M;
  };
  const std::vector<float> &x = polygone.PolyX;
  const std::vector<float> &y = polygone.PolyY;
  Point fin = PlaceSurCarte(vue, feuille, x[0], y[0]);
  bool finProche = proche(fin);
  // A full table has no pair after its last point.
  for (std::size_t i = 0; i + 1 < x.size() && (x[i] != 0.0F || y[i] != 0.0F); ++i) {
    const Point debut = fin;
    const bool debutProche = finProche;
    fin = PlaceSurCarte(vue, feuille, x[i + 1], y[i + 1]);
    finProche = proche(fin);
    if (x[i + 1] > 1.0F || x[i] > 1.0F || x[i + 1] == 0.0F || !debutProche || !finProche) {
      continue;
    }
    Ligne(surface, debut, fin, couleur);
    if (i % kPasRespiration == 1) {
      respire();
    }
  }
  Vide(polygone);
}

} // namespace velmaris

#include "lines/Echelle.hpp"

#include "foundations/TexteNombre.hpp"

namespace velmaris {
namespace {

/// One band of ticks: every how many miles, and how many tens of miles between two figures.
struct Bande {
  int zoomMax;       ///< last zoom of the band
  double seuil;      ///< bar length above which figures stand farther apart
  int pasFigures;    ///< tens of miles between figures up to the threshold
  int pasFiguresMax; ///< and above it
  int pasTraits;     ///< miles between short ticks
};

constexpr Bande kBandes[] = {
    {500, 250, 1, 2, 1}, {1000, 700, 5, 10, 5}, {2000, 1500, 10, 20, 10}, {3000, 2500, 25, 50, 20}};

void TraceTrait(Surface &surface, double x, double y, double longueur) {
  Ligne(surface, {x, y}, {x, y + longueur}, kNoir);
}

void TraceBande(const Feuille &feuille, Surface &surface, const Bande &bande, double longueurMilles, Point debut) {
  const double W = surface.largeur;
  const double H = surface.hauteur;
  const bool fin = bande.zoomMax == kBandes[0].zoomMax;
  for (int mille = 0; mille <= longueurMilles; mille += bande.pasTraits) {
    TraceTrait(surface, debut.x + feuille.EchelleY * static_cast<double>(mille), debut.y,
               fin && mille % 5 != 0 ? H / 90 : H / 60);
  }
  const int pas = 10 * (longueurMilles > bande.seuil ? bande.pasFiguresMax : bande.pasFigures);
  for (int mille = 0; mille <= longueurMilles; mille += pas) {
    const double x = debut.x + feuille.EchelleY * static_cast<double>(mille);
    TraceTrait(surface, x, debut.y, H / 40);
    EcritEn(surface, {x - W / 100 - 50, H / 1.08 + W / 60}, TexteGeneral(static_cast<double>(mille)),
            {GenreTexte::Echelle});
  }
}

} // namespace

void TraceEchelle(const Feuille &feuille, Surface &surface) {
  const double W = surface.largeur;
  const double H = surface.hauteur;
  surface.encre = kNoir;
  const double L = feuille.Zoom >= 11 ? Int(feuille.Zoom / 10.0) * 10 : 10;
  const Point debut{W / 6, H / 1.08};
  const Point fin{W / 6 + feuille.EchelleY * L, debut.y};
  surface.epaisseur = 2;
  Ligne(surface, debut, fin, kNoir);
  surface.epaisseur = 1;
  EcritEn(surface, {fin.x + W / 100, debut.y + H / 100}, "Milles Nautiques ", {GenreTexte::Echelle});
  for (const Bande &bande : kBandes) {
    if (feuille.Zoom <= bande.zoomMax) {
      TraceBande(feuille, surface, bande, L, debut);
      break;
    }
  }
}

} // namespace velmaris

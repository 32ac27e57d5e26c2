#include "sky/TraceCiel.hpp"

#include "foundations/TexteNombre.hpp"
#include "sky/Constellations.hpp"

#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr Couleur kEncreEchelle = 0xFFFF80;
constexpr double kEcartMaximal = 900;  ///< between the two ends of a piece of a tick
constexpr double kSousTrait = 200;     ///< from the tick's end to its figures
constexpr double kTraitHauteur = 150;  ///< length of a tick of the height scale
constexpr double kFigureHauteur = 430; ///< room of its figures
constexpr double kMiFigure = 110;      ///< half their height

double AbscisseEchelle(const CadreCiel &cadre, int az) {
  double x = az / 360.0 * cadre.W + cadre.S * cadre.W / 2;
  if (x > cadre.W) {
    x = x - cadre.W;
  }
  if (x < 0) {
    x = x + cadre.W;
  }
  return x > cadre.W ? x - cadre.W : x;
}

/// @param bas  where the last piece of a tick has ended
void EcritGraduation(Surface &carte, const CadreCiel &cadre, int az, double x, double bas) {
  const int v = az < 0 ? az + 360 : az;
  carte.police.gras = true;
  carte.encre = kEncreEchelle;
  carte.police.taille = cadre.carte == CarteCiel::Horizontale && v % 45 == 0 ? 18 : 8;
  if (cadre.carte == CarteCiel::Horizontale) {
    EcritEn(carte, {x - carte.police.taille * 15, bas + kSousTrait}, std::to_string(v) + "°", {GenreTexte::Echelle});
  } else {
    EcritEn(carte, {x - 200, bas + kSousTrait}, Format((360 - v) / 15.0, "00") + "h", {GenreTexte::Echelle});
  }
}

} // namespace

void TraceEchelleCiel(Surface &carte, const CadreCiel &cadre) {
  double bas = 0;
  for (int az = -180; az <= 180; az += 15) {
    const double x = AbscisseEchelle(cadre, az);
    Point precedent;
    for (int h = 3; h <= 7; ++h) {
      const Point point{x, cadre.H - h / 90.0 * cadre.H};
      // Both ends of a piece stand over one another.
      if (h > 3 && std::abs(point.y - precedent.y) < kEcartMaximal) {
        Ligne(carte, point, precedent, kJaune);
        bas = precedent.y;
      }
      precedent = point;
      if (h == 5) {
        EcritGraduation(carte, cadre, az, x, bas);
      }
    }
  }
}

void TraceHauteurs(Surface &carte, const CadreCiel &cadre) {
  const bool horizon = cadre.carte == CarteCiel::Horizontale;
  const int pas = horizon ? 10 : 30;
  carte.police.gras = true;
  carte.police.taille = 8;
  carte.encre = kEncreEchelle;
  for (int h = horizon ? pas : -60; h < 90; h += pas) {
    const double y = horizon ? cadre.H - h / 90.0 * cadre.H : cadre.H - (h + 90) / 180.0 * cadre.H;
    const std::string figure = std::to_string(h) + "°";
    Ligne(carte, {0, y}, {kTraitHauteur, y}, kJaune);
    Ligne(carte, {cadre.W - kTraitHauteur, y}, {cadre.W, y}, kJaune);
    EcritEn(carte, {kTraitHauteur + 50, y - kMiFigure}, figure, {GenreTexte::Echelle});
    EcritEn(carte, {cadre.W - kTraitHauteur - kFigureHauteur, y - kMiFigure}, figure, {GenreTexte::Echelle});
  }
}

} // namespace velmaris

#include "sky/ProjectionCiel.hpp"

namespace velmaris {

bool ADeLaPlace(const CadreCiel &cadre) { return cadre.W > 0 && cadre.H > 0; }

double Decale(const CadreCiel &cadre, double x) {
  x = x + cadre.S * cadre.W / 2;
  return x > cadre.W ? x - cadre.W : x;
}

Point ProjetteHorizon(const CadreCiel &cadre, double az, double h) {
  return {Decale(cadre, az / 360 * cadre.W), cadre.H - h / 90 * cadre.H};
}

Point ProjetteEquateur(const CadreCiel &cadre, double a, double dec90, double tour) {
  return {Decale(cadre, cadre.W - a / tour * cadre.W), cadre.H - dec90 / 180 * cadre.H};
}

HorizonPointe LitHorizonPointe(const CadreCiel &cadre, Point point) {
  HorizonPointe sous;
  sous.h = 90 - point.y / cadre.H * 90;
  sous.az = 360 * point.x / cadre.W - cadre.S * (cadre.W / 2) * 360 / cadre.W;
  if (sous.az < 0) {
    sous.az = sous.az + 360;
  } else if (sous.az > 360) {
    sous.az = sous.az - 360;
  }
  return sous;
}

double GaucheLabel(const CadreCiel &cadre, double x, double largeur) {
  const double gauche = x - largeur / 2;
  return GaucheMarque(cadre, gauche < 0 ? largeur / 2 : x, largeur);
}

double GaucheMarque(const CadreCiel &cadre, double x, double largeur) {
  const double gauche = x - largeur / 2;
  return gauche + largeur >= cadre.W ? cadre.W - largeur : gauche;
}

} // namespace velmaris

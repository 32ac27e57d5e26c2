#include "sky/Cadrans.hpp"

#include "foundations/Angles.hpp"

#include <cmath>

namespace velmaris {
namespace {

Point Sur(Point centre, double rayon, double angle) {
  return {centre.x + rayon * std::cos(angle), centre.y + rayon * std::sin(angle)};
}

/// A needle's head: its tip joined to two points, and these to each other.
void TraceTete(Surface &cadran, Point pointe, Point a, Point b) {
  Ligne(cadran, a, pointe, kNoir);
  Ligne(cadran, pointe, b, kNoir);
  Ligne(cadran, b, a, kNoir);
}

/// A point of the scale, on a circle whose twelfths count from the foot against the clock.
/// @param part  of the dial's width, that the circle's radius is
void TracePoint(Surface &cadran, Point centre, double douzieme, double part, double rayon) {
  const double angle = kDeuxPiCourt * douzieme / 12;
  const double w = cadran.largeur;
  Cercle(cadran, {centre.x + std::sin(angle) * w / part, centre.y + std::cos(angle) * w / part}, rayon, kGris);
}

} // namespace

void DessineCadranAzimut(Surface &cadran, float azimut) {
  const double w = cadran.largeur;
  const Point c{w / 2, w / 2 - 80};
  Efface(cadran);
  cadran.epaisseur = 1;
  Ligne(cadran, {350, c.y}, {w - 300, c.y}, kGris);
  Ligne(cadran, {c.x, 300}, {c.x, w - 400}, kGris);
  for (int k = 0; k <= 12; ++k) {
    TracePoint(cadran, c, k, 3, w / 75);
  }
  cadran.epaisseur = 2;
  const double a = EnRadiansCourt(azimut - 90.0);
  const Point pointe = Sur(c, w / 3.5, a);
  Ligne(cadran, c, pointe, kNoir);
  TraceTete(cadran, pointe, Sur(c, 200, EnRadiansCourt(azimut - 75.0)), Sur(c, 200, EnRadiansCourt(azimut - 105.0)));
  Ligne(cadran, c, Sur(c, -w / 3.5, a), kNoir);
  EcritEn(cadran, {c.x - 50, 0}, "N");
  EcritEn(cadran, {c.x - 50, w - 250}, "S");
  EcritEn(cadran, {50, c.y - 100}, "O");
  EcritEn(cadran, {w - 200, c.y - 100}, "E");
}

void DessineCadranHauteur(Surface &cadran, float hauteur) {
  const double w = cadran.largeur;
  const Point c{w - 200, cadran.hauteur - 200};
  Efface(cadran);
  cadran.epaisseur = 1;
  for (int demi = 12; demi <= 18; ++demi) {
    TracePoint(cadran, c, demi / 2.0, 1.5, 30);
  }
  Ligne(cadran, {500, c.y}, c, kGris);
  Ligne(cadran, {c.x, 400}, c, kGris);
  cadran.epaisseur = 2;
  const double a = EnRadiansCourt(hauteur - 180.0);
  const Point pointe = Sur(c, w / 1.7, a);
  Ligne(cadran, c, pointe, kNoir);
  TraceTete(cadran, pointe, Sur(c, 500, a - 0.15), Sur(c, 500, a + 0.15));
}

} // namespace velmaris

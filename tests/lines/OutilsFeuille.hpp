#pragma once

#include "lines/Feuille.hpp"
#include "tests/OutilsTests.hpp"

#include <cmath>
#include <string>

/// A sheet with its surface and its sight, as the tests of the sheet set it up.
namespace velmaris::essais {

inline constexpr double kLargeur = 12000;
inline constexpr double kHauteur = 9000;
inline constexpr double kPi = 3.141592653589;

struct Planche {
  Surface surface = SurfaceNeuve(kLargeur, kHauteur);
  Feuille feuille;
  Observation observation;
  ValeursVisee valeurs;
};

/// @param latitude, longitude  whole degrees and minutes as typed; the side is beside them
inline Observation Position(int latD, int latM, bool sud, int lonD, int lonM, bool est) {
  Observation o;
  const auto deux = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  o.latitudeDegres = deux(latD);
  o.latitudeMinutes = deux(latM);
  o.sud = sud;
  o.longitudeDegres = deux(lonD);
  o.longitudeMinutes = deux(lonM);
  o.est = est;
  return o;
}

/// A sight of the Sun at 45° 30' N 5° 15' W with a line 12.5 miles towards 135 degrees, the grid off.
inline Planche PlancheCourante(int zoom = 60) {
  Planche p;
  p.observation = Position(45, 30, false, 5, 15, false);
  LitEstime(p.observation, p.valeurs);
  p.valeurs.Azimut = 135;
  p.valeurs.Intercept = 12.5F;
  p.feuille.Zoom = static_cast<std::int16_t>(zoom);
  p.feuille.CouleurGrille = static_cast<float>(Rvb(220, 220, 220));
  return p;
}

/// A sheet with its grid, around a position.
inline Planche PlancheQuadrillee(const Observation &observation, int zoom) {
  Planche p = PlancheCourante(zoom);
  p.observation = observation;
  LitEstime(observation, p.valeurs);
  p.feuille.Grille = 0;
  return p;
}

inline void NouvelleFeuille(Planche &p) { TraceDroites(p.feuille, p.surface, p.observation, p.valeurs); }

/// Whether two points are one to a thousandth of a surface unit, the noise of 32-bit scales being below.
inline bool Pres(Point a, Point b, double tolerance = 1E-3) {
  return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

/// The segments in one colour, in drawing order.
inline std::vector<Segment> EnCouleur(const Surface &surface, Couleur couleur) {
  std::vector<Segment> resultat;
  for (const Segment &s : Segments(surface)) {
    if (s.plume.couleur == couleur) {
      resultat.push_back(s);
    }
  }
  return resultat;
}

} // namespace velmaris::essais

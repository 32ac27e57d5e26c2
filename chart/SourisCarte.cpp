#include "chart/SourisCarte.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kPiBranche = 3.141592653589;
constexpr double kRayonCroix = 80.0; ///< of the mark at the start of a leg, 1/1440 inch

/// Draws by a function, and notes what it has left in the surface's list.
template <class Dessin> void Note(SourisCarte &souris, Surface &surface, Dessin &&dessin) {
  if (souris.effacements != surface.effacements) {
    souris.traces.clear();
    souris.effacements = surface.effacements;
  }
  surface.plumeLevee = true;
  const std::size_t premier = surface.traces.size();
  dessin();
  souris.traces.push_back({premier, surface.traces.size()});
  surface.plumeLevee = true;
}

} // namespace

std::string TexteCoordonnees(const PlaceCarte &place) {
  return (place.latitude > 0 ? "N" : "S") + DegresPointMinutes(place.latitude) + "   " +
         (place.longitude > 0 ? "W" : "E") + DegresPointMinutes(place.longitude);
}

std::int16_t DistanceBranche(Point debut, Point fin, float EchelleY) {
  const double dy = Divise(std::fabs(debut.y - fin.y), EchelleY);
  const double dx = Divise(std::fabs(debut.x - fin.x), EchelleY);
  return Entier16(Racine(dy * dy + dx * dx));
}

std::int16_t CapBranche(Point debut, Point fin, float EchelleY) {
  const double dy = Divise(std::fabs(debut.y - fin.y), EchelleY);
  const double dx = Divise(std::fabs(debut.x - fin.x), EchelleY);
  if (dx == 0.0) {
    return fin.y > debut.y ? 180 : 0;
  }
  const bool droite = fin.x > debut.x;
  if (dy == 0.0) {
    return droite ? 90 : 270;
  }
  const int a = Entier16(std::atan(dx / dy) / kPiBranche * 180.0);
  const bool dessous = fin.y > debut.y;
  const int cap = droite ? (dessous ? 180 - a : a) : (dessous ? a + 180 : 270 + (90 - a));
  return static_cast<std::int16_t>(cap);
}

void TraceCroixBranche(SourisCarte &souris, Surface &surface) {
  Note(souris, surface, [&] {
    const Point centre{souris.DebutX, souris.DebutY};
    Cercle(surface, centre, kRayonCroix, surface.encre);
    for (const Point bras : {Point{0, -1}, Point{1, 0}, Point{0, 1}, Point{-1, 0}}) {
      Ligne(surface, centre, {centre.x + bras.x * kRayonCroix, centre.y + bras.y * kRayonCroix}, kNoir);
    }
  });
}

void TraceBranche(SourisCarte &souris, Surface &surface) {
  Note(souris, surface, [&] {
    surface.style = Style::TiretPoint;
    Ligne(surface, {souris.DebutX, souris.DebutY}, {souris.FinX, souris.FinY}, kMagenta);
    surface.style = Style::Plein;
  });
}

void EffaceBranches(SourisCarte &souris, Surface &surface, std::vector<Tranche> avec) {
  if (souris.effacements == surface.effacements) {
    avec.insert(avec.end(), souris.traces.begin(), souris.traces.end());
  }
  souris.traces.clear();
  RetireTranches(surface, avec);
}

} // namespace velmaris

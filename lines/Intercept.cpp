#include "lines/Intercept.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr int kZoomSansTraits = 250; ///< miles from which on ticks would run together
constexpr double kMillesMax = 32767; ///< no sight on the Earth is so far out; a file can hold any reading

/// A segment across the direction t, centred at a point.
void TraceTravers(Surface &surface, Point centre, double demiLongueur, double t, Couleur couleur) {
  const double dx = demiLongueur * std::sin(t);
  const double dy = demiLongueur * std::cos(t);
  Ligne(surface, {centre.x + dx, centre.y + dy}, {centre.x - dx, centre.y - dy}, couleur);
}

/// Mile ticks from the point towards the line.
/// @return the loop's counter after its loop: one past the last tick, 0 when there was none
int TraceMilles(Surface &surface, const ValeursVisee &valeurs, Point origine, float demiTrait, float echelle,
                double t) {
  const int pas = valeurs.Intercept > 0 ? 1 : -1;
  const double dernier = std::clamp(Fix(valeurs.Intercept), -kMillesMax, kMillesMax);
  int i = 0;
  for (int n = pas; pas > 0 ? n <= dernier : n >= dernier; n += pas) {
    const double distance = n * double{echelle};
    TraceTravers(surface, {origine.x + distance * std::cos(t), origine.y - distance * std::sin(t)}, demiTrait, t,
                 kMagenta);
    i = n + pas;
  }
  return i;
}

} // namespace

void AffIntercept(const Feuille &feuille, Surface &surface, const ValeursVisee &valeurs, double x, double y,
                  float couleur, std::int16_t &drapeau) {
  const auto DemiLigne = static_cast<float>(surface.hauteur / 3.0);
  const auto DemiTrait = static_cast<float>(surface.hauteur / 50.0);
  const auto Decalage = static_cast<float>(surface.hauteur / 10.0);
  drapeau = feuille.Zoom < kZoomSansTraits ? std::int16_t{-1} : std::int16_t{0};
  const double t = feuille.AngleDroite;
  const double G = feuille.LongueurIntercept;
  const auto sur = [&](double distance) { return Point{x + distance * std::cos(t), y - distance * std::sin(t)}; };

  if (valeurs.Azimut != 180.0F && valeurs.Intercept != 0.0F) {
    surface.genre = GenreLigne::Droite;
    TraceTravers(surface, sur(G), DemiLigne, t, static_cast<Couleur>(couleur));
    surface.genre = GenreLigne::Libre;
    const bool traits = feuille.TransportEnCours == 0 && drapeau != 0;
    const int i = traits ? TraceMilles(surface, valeurs, {x, y}, DemiTrait, feuille.EchelleY, t) : 0;
    // Only a line towards a body east of the meridian has its figure by the line; the others have it by the last tick.
    const bool versEst = valeurs.Azimut < 180.0F && valeurs.Intercept > 0.0F;
    const Point pied = sur(versEst ? G : i * double{feuille.EchelleY});
    surface.position = {pied.x + Decalage * std::sin(t), pied.y + Decalage * std::cos(t)};
  }
  Ecrit(surface, Format(valeurs.Intercept, "#.0#") + " '", {GenreTexte::Droite});
}

} // namespace velmaris

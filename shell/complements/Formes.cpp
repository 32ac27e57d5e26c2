#include "shell/complements/Formes.hpp"

#include <utility>

namespace velmaris {

void EcritEnCouleur(Surface &s, Point place, Couleur couleur, std::string mots, RoleTexte role) {
  const Couleur avant = std::exchange(s.encre, couleur);
  EcritEn(s, place, std::move(mots), role);
  s.encre = avant;
}

void Rond(Surface &s, Point centre, double rayon, Couleur couleur, int largeur) {
  s.traces.emplace_back(CercleTrace{{couleur, largeur, Style::Plein}, centre, rayon});
}

void Disque(Surface &s, Point centre, int pixels, Couleur couleur) {
  constexpr double kPixel = 8; // radius of a ring for each of its pen's widths: half of it, so that it is a dot
  constexpr double kBarre = 5; // half of it, for each of the pen's widths
  const Plume plume{couleur, pixels, Style::Plein};
  s.traces.emplace_back(CercleTrace{plume, centre, kPixel * pixels});
  Segment(s, {centre.x - kBarre * pixels, centre.y}, {centre.x + kBarre * pixels, centre.y}, plume);
}

void Segment(Surface &s, Point debut, Point fin, const Plume &plume) {
  s.traces.emplace_back(Polyligne{plume, {debut, fin}, GenreLigne::Libre});
}

} // namespace velmaris

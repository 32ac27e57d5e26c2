#include "shell/ecran/TailleFenetres.hpp"

#include "foundations/TexteNombre.hpp"

#include <string>

namespace velmaris {
namespace {

constexpr double kPlusGrande = 100'000; ///< pixels that no screen has

std::string Cle(std::string_view fenetre) { return "Taille " + std::string(fenetre); }

} // namespace

std::optional<TailleFenetre> TailleGardee(const Bureau &bureau, std::string_view fenetre) {
  const std::string texte = LitReglage(bureau, Cle(fenetre));
  const std::size_t croix = texte.find('x');
  const double largeur = Val(texte.substr(0, croix));
  const double hauteur = croix == std::string::npos ? 0 : Val(texte.substr(croix + 1));
  if (!(largeur >= 1 && hauteur >= 1 && largeur <= kPlusGrande && hauteur <= kPlusGrande)) {
    return std::nullopt;
  }
  return TailleFenetre{static_cast<int>(largeur), static_cast<int>(hauteur)};
}

void GardeTaille(Bureau &bureau, std::string_view fenetre, TailleFenetre taille) {
  EcritReglage(bureau, Cle(fenetre), std::to_string(taille.largeur) + "x" + std::to_string(taille.hauteur));
}

} // namespace velmaris

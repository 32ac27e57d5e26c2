#include "shell/ecran/TailleFenetres.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr double kPlusGrande = 100'000; ///< pixels that no screen has

/// Pixels now for each pixel then: a size is kept with the scale of its screen.
double Agrandit(const Bureau &bureau, std::string_view echelle) {
  constexpr double kMoindre = 0.1;
  constexpr double kPlusForte = 20;
  const double dAlors = Val(echelle);
  return dAlors >= kMoindre && dAlors <= kPlusForte ? bureau.ecran.echelle / dAlors : 1;
}

std::string Cle(std::string_view fenetre) { return "Taille " + std::string(fenetre); }

} // namespace

std::optional<TailleFenetre> TailleGardee(const Bureau &bureau, std::string_view fenetre) {
  const std::string texte = LitReglage(bureau, Cle(fenetre));
  const std::size_t croix = texte.find('x');
  const std::size_t arobase = std::min(texte.find('@'), texte.size());
  const double facteur = Agrandit(bureau, std::string_view(texte).substr(std::min(arobase + 1, texte.size())));
  const double largeur = Val(texte.substr(0, croix)) * facteur;
  const double hauteur = croix == std::string::npos ? 0 : Val(texte.substr(croix + 1)) * facteur;
  if (!(largeur >= 1 && hauteur >= 1 && largeur <= kPlusGrande && hauteur <= kPlusGrande)) {
    return std::nullopt;
  }
  return TailleFenetre{static_cast<int>(std::lround(largeur)), static_cast<int>(std::lround(hauteur))};
}

void GardeTaille(Bureau &bureau, std::string_view fenetre, TailleFenetre taille) {
  EcritReglage(bureau, Cle(fenetre),
               std::to_string(taille.largeur) + "x" + std::to_string(taille.hauteur) + "@" +
                   TexteGeneral(bureau.ecran.echelle));
}

} // namespace velmaris

#include "chart/FichierLieux.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {
namespace {

constexpr int kSansChamp = 5;

/// The byte that lies a number of characters after another; the text's end when it is shorter.
std::size_t Avance(std::string_view texte, std::size_t octet, std::size_t caracteres) {
  const auto suite = [&] { return (static_cast<unsigned char>(texte[octet]) & 0xC0U) == 0x80U; };
  while (caracteres > 0 && octet < texte.size()) {
    do {
      ++octet;
    } while (octet < texte.size() && suite());
    --caracteres;
  }
  return octet;
}

/// The first blank from a byte on.
std::size_t Blanc(std::string_view ligne, std::size_t depuis) {
  const std::size_t octet = ligne.find(' ', depuis);
  if (octet == std::string_view::npos) {
    throw Erreur(kSansChamp);
  }
  return octet;
}

} // namespace

bool EstLigneVille(std::string_view ligne) { return !ligne.empty() && ligne.find(';') == std::string_view::npos; }

bool EstLigneObjet(std::string_view ligne) { return !ligne.empty() && ligne.front() != ';'; }

PositionLieu DecoupePosition(std::string_view ligne) {
  const std::size_t blanc = Blanc(ligne, 0);
  const std::string_view latitude = ligne.substr(0, blanc);
  // The blank and a longitude one character longer than the latitude.
  const std::size_t fin = Avance(ligne, blanc, NombreCaracteres(latitude) + 2);
  return {latitude, SansBlancs(ligne.substr(blanc, fin - blanc)), blanc};
}

DetailsVille DecoupeVille(std::string_view ligne, std::size_t blanc) {
  const std::size_t finLongitude = Blanc(ligne, Avance(ligne, blanc, 4));
  const std::size_t classe = finLongitude + 1;
  const std::size_t finClasse = Avance(ligne, classe, 1);
  // The field that isn't used lies after the class and its blank, and is at least one character long.
  const std::size_t finQuatrieme = Blanc(ligne, Avance(ligne, finLongitude, 3));
  return {ligne.substr(classe, finClasse - classe), ligne.substr(finQuatrieme + 1)};
}

DetailsObjet DecoupeObjet(std::string_view ligne, std::size_t blanc) {
  const std::size_t finLongitude = Blanc(ligne, Avance(ligne, blanc, 4));
  const std::size_t finRayon = Blanc(ligne, finLongitude + 1);
  return {ligne.substr(finLongitude + 1, finRayon - finLongitude - 1), ligne.substr(finRayon + 1)};
}

} // namespace velmaris

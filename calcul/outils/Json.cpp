#include "calcul/outils/Json.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace velmaris {
namespace {

/// The shortest text of a number in its own width.
template <class Nombre> void AjoutePlusCourt(std::string &sortie, Nombre valeur) {
  if (!std::isfinite(valeur)) {
    sortie += "null";
    return;
  }
  std::array<char, 32> tampon{};
  const auto resultat = std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur);
  sortie.append(tampon.data(), resultat.ptr);
}

} // namespace

void AjouteCle(std::string &sortie, std::string_view cle) {
  if (!sortie.empty() && sortie.back() != '{') {
    sortie += ',';
  }
  sortie += '"';
  sortie += cle;
  sortie += "\":";
}

void AjouteTexte(std::string &sortie, std::string_view texte) {
  using nlohmann::json;
  sortie += json(texte).dump(-1, ' ', false, json::error_handler_t::replace);
}

void AjouteNombre(std::string &sortie, double valeur) { AjoutePlusCourt(sortie, valeur); }

void AjouteNombre(std::string &sortie, float valeur) { AjoutePlusCourt(sortie, valeur); }

void AjouteMembre(std::string &sortie, std::string_view cle, std::string_view texte) {
  AjouteCle(sortie, cle);
  AjouteTexte(sortie, texte);
}

void AjouteMembre(std::string &sortie, std::string_view cle, double valeur) {
  AjouteCle(sortie, cle);
  AjouteNombre(sortie, valeur);
}

void AjouteMembre(std::string &sortie, std::string_view cle, float valeur) {
  AjouteCle(sortie, cle);
  AjouteNombre(sortie, valeur);
}

void AjouteErreur(std::string &sortie, int numero, std::string_view texte) {
  AjouteCle(sortie, "erreur");
  sortie += '{';
  AjouteCle(sortie, "numero");
  sortie += std::to_string(numero);
  AjouteCle(sortie, "texte");
  AjouteTexte(sortie, texte);
  sortie += '}';
}

} // namespace velmaris

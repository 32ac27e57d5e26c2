#include "complements/point/LignesTexte.hpp"

#include <algorithm>
#include <charconv>
#include <string>

namespace velmaris {
namespace {

constexpr std::string_view kBlancs = " \t\r";
constexpr int kType = 13;

} // namespace

std::string_view MotSuivant(std::string_view &ligne) {
  ligne.remove_prefix(std::min(ligne.find_first_not_of(kBlancs), ligne.size()));
  const std::string_view mot = ligne.substr(0, ligne.find_first_of(kBlancs));
  ligne.remove_prefix(mot.size());
  return mot;
}

double NombreLu(std::string_view mot, double limite) {
  std::string texte(mot);
  std::replace(texte.begin(), texte.end(), ',', '.');
  double valeur = 0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (code != std::errc() || fin != texte.data() + texte.size() || !(valeur >= 0 && valeur <= limite)) {
    throw Erreur(kType);
  }
  return valeur;
}

bool LigneMuette(std::string_view ligne) {
  const std::string_view mot = MotSuivant(ligne);
  return mot.empty() || mot.front() == '#';
}

} // namespace velmaris

#include "foundations/Erreur.hpp"

#include <cmath>

namespace velmaris {

std::string_view SensErreur(int numero) {
  switch (numero) {
  case 5:
    return "Argument ou appel de procédure incorrect";
  case 6:
    return "Dépassement de capacité";
  case 9:
    return "L'indice n'appartient pas à la sélection";
  case 11:
    return "Division par zéro";
  case 13:
    return "Incompatibilité de type";
  case 52:
    return "Nom ou numéro de fichier incorrect";
  case 53:
    return "Fichier introuvable";
  case 75:
    return "Erreur dans le chemin d'accès";
  default:
    return "Erreur d'exécution";
  }
}

const char *Erreur::what() const noexcept { return SensErreur(numero).data(); }

double Divise(double numerateur, double denominateur) {
  if (denominateur == 0.0) {
    throw Erreur(11);
  }
  const double quotient = numerateur / denominateur;
  if (!std::isfinite(quotient)) {
    throw Erreur(6);
  }
  return quotient;
}

double Racine(double x) {
  if (!(x >= 0.0)) {
    throw Erreur(5);
  }
  return std::sqrt(x);
}

double Log(double x) {
  if (!(x > 0.0)) {
    throw Erreur(5);
  }
  return std::log(x);
}

float Simple(double x) {
  const auto resultat = static_cast<float>(x);
  if (!std::isfinite(resultat)) {
    throw Erreur(6);
  }
  return resultat;
}

} // namespace velmaris

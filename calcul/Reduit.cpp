#include "calcul/Reduit.hpp"

#include "calcul/outils/ViseeReduite.hpp"

namespace velmaris {
namespace {

void AjouteResultat(std::string &sortie, const ViseeReduite &visee) {
  AjouteFigures(sortie, visee);
  AjouteMembre(sortie, "affiche_intercept", visee.affichage.intercept);
  AjouteMembre(sortie, "affiche_azimut", visee.affichage.azimut);
  AjouteMembre(sortie, "infobulle", visee.affichage.infobulle);
  AjouteCle(sortie, "details");
  char separateur = '[';
  for (const std::string &detail : visee.affichage.details) {
    sortie += separateur;
    AjouteTexte(sortie, detail);
    separateur = ',';
  }
  sortie += ']';
}

void AjouteVisee(std::string &sortie, const ViseeReduite &visee) {
  AjouteCle(sortie, "corps");
  sortie += std::to_string(static_cast<int>(visee.observation.corps));
  AjouteMembre(sortie, "nom", NomAstre(visee.observation));
  AjouteCle(sortie, "reduit");
  sortie += visee.faite ? "true" : "false";
  if (visee.faite) {
    AjouteResultat(sortie, visee);
  }
}

} // namespace

bool ReduitFichier(const std::string &fichier, const TexteMsg &messages, std::string &sortie) {
  return EcritFichier(sortie, fichier, [&] { AjouteVisee(sortie, ReduitLoP(fichier, messages)); });
}

} // namespace velmaris

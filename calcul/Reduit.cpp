#include "calcul/Reduit.hpp"

#include "calcul/Json.hpp"
#include "foundations/Erreur.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteSOL.hpp"

#include <new>
#include <stdexcept>
#include <string_view>

namespace velmaris {
namespace {

constexpr int kArgumentIncorrect = 5;
constexpr int kAccesFichier = 75;

/// A sight that has been through a reduction, with all that it left.
struct ViseeReduite {
  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  ReductionSoleil reduction;
};

std::string_view NomCorps(Corps corps) {
  switch (corps) {
  case Corps::Lune:
    return "Lune";
  case Corps::Planetes:
    return "Planètes";
  case Corps::Etoiles:
    return "Etoiles";
  case Corps::Soleil:
  default:
    return "Soleil";
  }
}

void AjouteResultat(std::string &sortie, const ViseeReduite &visee) {
  AjouteCle(sortie, "ho");
  AjouteNombre(sortie, visee.reduction.lue.Ho);
  AjouteCle(sortie, "hc");
  AjouteNombre(sortie, visee.reduction.Hc);
  AjouteCle(sortie, "azimut");
  AjouteNombre(sortie, visee.valeurs.Azimut);
  AjouteCle(sortie, "intercept");
  AjouteNombre(sortie, visee.valeurs.Intercept);
  AjouteCle(sortie, "affiche_intercept");
  AjouteTexte(sortie, visee.affichage.intercept);
  AjouteCle(sortie, "affiche_azimut");
  AjouteTexte(sortie, visee.affichage.azimut);
  AjouteCle(sortie, "infobulle");
  AjouteTexte(sortie, visee.affichage.infobulle);
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
  AjouteCle(sortie, "nom");
  AjouteTexte(sortie, NomCorps(visee.observation.corps));
  AjouteCle(sortie, "reduit");
  sortie += visee.reduction.faite ? "true" : "false";
  if (visee.reduction.faite) {
    AjouteResultat(sortie, visee);
  }
}

/// Reduces a file's sight and appends its members, or those of its error.
bool AjouteReduction(std::string &sortie, const std::string &fichier, const TexteMsg &messages) {
  ViseeReduite visee;
  ChargeLoP(fichier, visee.observation);
  if (visee.observation.corps != Corps::Soleil) {
    AjouteErreur(sortie, kArgumentIncorrect,
                 "Ce corps n'est pas encore réduit : " + std::string(NomCorps(visee.observation.corps)));
    return false;
  }
  visee.valeurs.HeureDecimale = HeureDesChamps(visee.observation);
  LitEstime(visee.observation, visee.valeurs);
  visee.reduction = Calcul_DroiteSOL(visee.observation, visee.valeurs, visee.affichage, messages);
  AjouteVisee(sortie, visee);
  return true;
}

} // namespace

bool ReduitFichier(const std::string &fichier, const TexteMsg &messages, std::string &sortie) {
  sortie += '{';
  AjouteCle(sortie, "fichier");
  AjouteTexte(sortie, fichier);
  bool reussi = false;
  try {
    reussi = AjouteReduction(sortie, fichier, messages);
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  } catch (const std::bad_alloc &) {
    AjouteErreur(sortie, kAccesFichier, "Fichier trop grand pour la mémoire");
  } catch (const std::length_error &) {
    AjouteErreur(sortie, kAccesFichier, "Fichier trop grand pour la mémoire");
  }
  sortie += "}\n";
  return reussi;
}

} // namespace velmaris

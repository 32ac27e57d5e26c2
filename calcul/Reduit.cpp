#include "calcul/Reduit.hpp"

#include "calcul/Json.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

#include <string_view>
#include <vector>

namespace velmaris {
namespace {

constexpr int kArgumentIncorrect = 5;

/// A sight that has been through a reduction, with all that it left.
struct ViseeReduite {
  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  bool faite = false;
  double Ho = 0.0;
  double Hc = 0.0;
  bool simple = false; ///< a Sun sight: Ho is a 32-bit value and Hc a 64-bit one; the reverse for the others
};

/// The star table, split once for all files.
const Etoiles &TableDesEtoiles() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

/// Reduces a sight by its kind of body.
/// @throws Erreur 5 when no star or planet is chosen, and what the reduction raises
void ReduitVisee(ViseeReduite &v, const TexteMsg &messages) {
  if (v.observation.corps == Corps::Soleil) {
    const ReductionSoleil soleil = Calcul_DroiteSOL(v.observation, v.valeurs, v.affichage, messages);
    v.faite = soleil.faite;
    v.Ho = soleil.lue.Ho;
    v.Hc = soleil.Hc;
    v.simple = true;
    return;
  }
  Reduction r;
  if (v.observation.corps == Corps::Lune) {
    Lune lune;
    r = Calcul_DroiteLUN(v.observation, v.valeurs, lune, v.affichage, messages);
  } else if (v.observation.corps == Corps::Planetes) {
    r = Calcul_DroitePLA(v.observation, v.valeurs, v.affichage, messages);
  } else {
    r = Calcul_DroiteSTAR(v.observation, v.valeurs, TableDesEtoiles(), v.affichage, messages);
  }
  if (r.etat == EtatReduction::SansAstre) {
    throw Erreur(kArgumentIncorrect);
  }
  v.faite = r.etat == EtatReduction::Faite;
  v.Ho = r.lue.Ho;
  v.Hc = v.valeurs.HauteurCalculee;
}

/// Name of a sight's body: the Sun, the Moon, or the chosen planet or star.
std::string NomAstre(const Observation &observation) {
  switch (observation.corps) {
  case Corps::Lune:
    return "Lune";
  case Corps::Planetes:
    return NomPlanete(observation.planete);
  case Corps::Etoiles:
    return std::string(TableDesEtoiles().EtoileNom.at(static_cast<std::size_t>(observation.etoile) + 1));
  case Corps::Soleil:
  case Corps::Aucun:
  default:
    return "Soleil";
  }
}

void AjouteResultat(std::string &sortie, const ViseeReduite &visee) {
  AjouteCle(sortie, "ho");
  if (visee.simple) {
    AjouteNombre(sortie, static_cast<float>(visee.Ho));
  } else {
    AjouteNombre(sortie, visee.Ho);
  }
  AjouteCle(sortie, "hc");
  if (visee.simple) {
    AjouteNombre(sortie, visee.Hc);
  } else {
    AjouteNombre(sortie, static_cast<float>(visee.Hc));
  }
  AjouteMembre(sortie, "azimut", visee.valeurs.Azimut);
  AjouteMembre(sortie, "intercept", visee.valeurs.Intercept);
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

/// Reduces a file's sight and appends its members.
void AjouteReduction(std::string &sortie, const std::string &fichier, const TexteMsg &messages) {
  ViseeReduite visee;
  ChargeLoP(fichier, visee.observation);
  visee.valeurs.HeureDecimale = HeureDesChamps(visee.observation);
  LitEstime(visee.observation, visee.valeurs);
  ReduitVisee(visee, messages);
  AjouteVisee(sortie, visee);
}

} // namespace

bool ReduitFichier(const std::string &fichier, const TexteMsg &messages, std::string &sortie) {
  sortie += '{';
  AjouteMembre(sortie, "fichier", fichier);
  bool reussi = false;
  try {
    AjouteReduction(sortie, fichier, messages);
    reussi = true;
  } catch (const FichierTropGrand &erreur) {
    AjouteErreur(sortie, erreur.numero, "Fichier trop grand");
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  }
  sortie += "}\n";
  return reussi;
}

} // namespace velmaris

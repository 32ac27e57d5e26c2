#include "calcul/outils/ViseeReduite.hpp"

#include "foundations/Erreur.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

#include <vector>

namespace velmaris {
namespace {

constexpr int kArgumentIncorrect = 5;

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

} // namespace

const Etoiles &TableDesEtoiles() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

ViseeReduite ReduitLoP(const std::string &fichier, const TexteMsg &messages) {
  ViseeReduite visee;
  ChargeLoP(fichier, visee.observation);
  visee.valeurs.HeureDecimale = HeureDesChamps(visee.observation);
  LitEstime(visee.observation, visee.valeurs);
  ReduitVisee(visee, messages);
  return visee;
}

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

void AjouteFigures(std::string &sortie, const ViseeReduite &visee) {
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
}

} // namespace velmaris

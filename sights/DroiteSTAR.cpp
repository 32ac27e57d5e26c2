#include "sights/DroiteSTAR.hpp"

#include "foundations/CelHor.hpp"

namespace velmaris {

std::string HorizonEtoile(const Etoiles &etoiles, int etoile, const DateEtoile &jour, const ValeurDate &date,
                          double latitude, double longitudeEst, double &AD, double &Dec) {
  const PaireX place = LitPaireX(CoordEtoile(etoiles, 0, etoile, jour));
  AD = place.gauche;
  Dec = place.droite;
  return CelesteVersHorizon(date, AD, Dec, latitude, longitudeEst);
}

Reduction Calcul_DroiteSTAR(Observation &observation, ValeursVisee &valeurs, const Etoiles &etoiles,
                            AffichageDroite &affichage, const TexteMsg &messages) {
  Reduction r;
  if (observation.etoile < 0) {
    r.etat = EtatReduction::SansAstre;
    return r;
  }
  r.lue.H = LitSextant<double>(observation);
  if (r.lue.H == 0) {
    return r;
  }
  CorrigeAstre(observation, r.lue, affichage, messages);
  affichage.details[2] = messages[16] + "0.0'";
  const ValeurDate date = DateDeVisee(observation);
  double AD = 0;
  double Dec = 0;
  PrendHorizon(HorizonEtoile(etoiles, observation.etoile, {observation.jour, observation.mois, observation.annee}, date,
                             valeurs.LatEstimee, -valeurs.LonEstimee, AD, Dec),
               valeurs);
  ConclutAstre(valeurs, r.lue, AD, Dec, affichage, messages);
  r.etat = EtatReduction::Faite;
  return r;
}

} // namespace velmaris

#include "sights/ConseilLune.hpp"

#include "foundations/Erreur.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroiteSOL.hpp"

namespace velmaris {

Bord BordEclaire(const Observation &observation, ValeursVisee &valeurs, Lune &lune, const TexteMsg &messages) {
  float latitude = 0.0F;
  float longitude = 0.0F;
  Passe([&] { latitude = Simple(LatitudeEstimee(observation)); });
  Passe([&] { longitude = Simple(LongitudeEstimee(observation)); });
  valeurs.HeureDecimale = HeureDesChamps(observation);
  const double soleil = HauteurSoleil(observation, valeurs.HeureDecimale, latitude, longitude);
  PoseMomentLune(observation, lune);
  Passe([&] { CalculLune(lune); });
  Passe([&] { TopoLune(lune, lune.LuneAD, lune.LuneDecl, latitude, -longitude, messages[33]); });
  return soleil > lune.LuneHauteur ? Bord::Superieur : Bord::Inferieur;
}

} // namespace velmaris

#include "sights/Observation.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {

double LatitudeEstimee(const Observation &observation) {
  const double latitude = Val(observation.latitudeDegres) + Val(observation.latitudeMinutes) / 60;
  return observation.sud ? -latitude : latitude;
}

double LongitudeEstimee(const Observation &observation) {
  const double longitude = Val(observation.longitudeDegres) + Val(observation.longitudeMinutes) / 60;
  return observation.est ? -longitude : longitude;
}

void LitEstime(const Observation &observation, ValeursVisee &valeurs) {
  valeurs.LatEstimee = Simple(LatitudeEstimee(observation));
  valeurs.LonEstimee = Simple(LongitudeEstimee(observation));
}

double HeureDesChamps(const Observation &observation) {
  return (Val(observation.heure) / 24.0 + Val(observation.minute) / 1440.0 + Val(observation.seconde) / 86400.0) * 24.0;
}

void NormaliseLecture(Observation &observation) {
  if (Val(observation.lectureMinutes) == 0 && Val(observation.lectureDegres) == 0) {
    observation.lectureMinutes = "00";
    observation.lectureDegres = "00";
  }
  if (NombreCaracteres(observation.lectureFraction) == 1) {
    observation.lectureFraction = "0" + observation.lectureFraction;
  }
}

void BordDuCorps(Observation &observation, int corps) {
  switch (corps) {
  case static_cast<int>(Corps::Soleil):
    observation.bord = Bord::Inferieur;
    break;
  case static_cast<int>(Corps::Planetes):
  case static_cast<int>(Corps::Etoiles):
    observation.bord = Bord::Centre;
    break;
  default:
    break;
  }
}

void BordDeLHorizon(Observation &observation) {
  observation.bord = observation.horizon == Horizon::Artificiel ? Bord::Centre : Bord::Inferieur;
}

} // namespace velmaris

#include "calcul/dit/Horizon.hpp"

#include "calcul/outils/Json.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kAngleMax = 1.0E6; ///< degrees past which an angle is a mistake

/// An angle that somebody can have meant.
double Angle(double degres) {
  if (std::fabs(degres) > kAngleMax) {
    throw Erreur(5);
  }
  return degres;
}

} // namespace

bool EcritHorizon(const DemandeHorizon &demande, std::string &sortie) {
  return EcritTexte(sortie, [&] {
    const ValeurDate date = LitDateHeure(demande.date + " " + demande.heure);
    double dec = Angle(demande.Dec);
    double latitude = Angle(demande.latitude);
    return CelesteVersHorizon(date, Angle(demande.AD), dec, latitude, Angle(demande.lonEst));
  });
}

} // namespace velmaris

#include "calcul/Horizon.hpp"

#include "calcul/Json.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"

#include <charconv>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kAngleMax = 1.0E6; ///< degrees past which an angle is a mistake

/// An angle that the reduction to one turn can work with.
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

bool LitNombre(std::string_view texte, double &valeur) {
  if (texte.starts_with('+') && !texte.starts_with("+-")) {
    texte.remove_prefix(1);
  }
  double lu = 0.0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), lu);
  if (code != std::errc() || fin != texte.data() + texte.size() || !std::isfinite(lu)) {
    return false;
  }
  valeur = lu;
  return true;
}

} // namespace velmaris

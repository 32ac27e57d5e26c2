#include "calcul/Horizon.hpp"

#include "calcul/Json.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"

#include <charconv>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kAngleMax = 1.0E6; ///< degrees past which an angle is a mistake

/// One or two digits of a time of day, not above `maximum`.
int LitPartieHeure(std::string_view texte, int maximum) {
  int valeur = 0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (texte.size() > 2 || code != std::errc() || fin != texte.data() + texte.size() || valeur < 0 || valeur > maximum) {
    throw Erreur(13);
  }
  return valeur;
}

/// Hour, minute and second from a text hour ":" minute ":" second.
void LitHeure(std::string_view texte, ValeurDate &date) {
  const std::size_t p1 = texte.find(':');
  const std::size_t p2 = p1 == std::string_view::npos ? p1 : texte.find(':', p1 + 1);
  if (p2 == std::string_view::npos) {
    throw Erreur(13);
  }
  date.heure = LitPartieHeure(texte.substr(0, p1), 23);
  date.minute = LitPartieHeure(texte.substr(p1 + 1, p2 - p1 - 1), 59);
  date.seconde = LitPartieHeure(texte.substr(p2 + 1), 59);
}

/// An angle that the reduction to one turn can work with.
double Angle(double degres) {
  if (std::fabs(degres) > kAngleMax) {
    throw Erreur(5);
  }
  return degres;
}

} // namespace

bool EcritHorizon(const DemandeHorizon &demande, std::string &sortie) {
  bool reussi = false;
  sortie += '{';
  try {
    ValeurDate date = LitDate(demande.date);
    LitHeure(demande.heure, date);
    double dec = Angle(demande.Dec);
    double latitude = Angle(demande.latitude);
    const std::string texte = CelesteVersHorizon(date, Angle(demande.AD), dec, latitude, Angle(demande.lonEst));
    AjouteCle(sortie, "texte");
    AjouteTexte(sortie, texte);
    reussi = true;
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  }
  sortie += "}\n";
  return reussi;
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

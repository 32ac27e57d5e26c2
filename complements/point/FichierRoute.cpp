#include "complements/point/FichierRoute.hpp"

#include "complements/point/LignesTexte.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/ValeurDate.hpp"

#include <cmath>

namespace velmaris {
namespace {

/// @throws Erreur 13, Refus
Jambe LitJambe(std::string_view ligne) {
  constexpr double kTour = 360;
  constexpr double kVitesseMax = 100;
  const std::string_view date = MotSuivant(ligne);
  const std::string_view heure = MotSuivant(ligne);
  Jambe jambe;
  jambe.depuis = LitInstant(std::string(date) + " " + std::string(heure));
  jambe.cap = NombreLu(MotSuivant(ligne), kTour);
  jambe.vitesse = NombreLu(MotSuivant(ligne), kVitesseMax);
  if (!MotSuivant(ligne).empty()) {
    throw Erreur(13);
  }
  return jambe;
}

} // namespace

RouteLue LitRoute(std::string_view octets) {
  RouteLue route;
  const std::string texte = EnUtf8(octets);
  route.ligneFautive = LitLignes(texte, [&](std::string_view ligne) { route.jambes.push_back(LitJambe(ligne)); });
  return route;
}

InstantUTC LitInstant(std::string_view texte) {
  const ValeurDate d = LitDateHeure(texte);
  return UTCDe({d.annee, d.mois, d.jour, d.heure, d.minute, static_cast<double>(d.seconde)});
}

std::string TexteInstant(const InstantUTC &utc) {
  constexpr double kDemiSeconde = 0.5;
  const DateCivile d = CivileDe(PlusTard(utc, kDemiSeconde));
  return TexteDateHeure({d.annee, d.mois, d.jour, d.heure, d.minute, static_cast<int>(std::floor(d.seconde))});
}

} // namespace velmaris

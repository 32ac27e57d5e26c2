#include "complements/point/FichierRoute.hpp"

#include "complements/ciel/Refus.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/ValeurDate.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace velmaris {
namespace {

constexpr std::string_view kBlancs = " \t\r";

/// Cuts the first word off a line.
std::string_view Mot(std::string_view &ligne) {
  ligne.remove_prefix(std::min(ligne.find_first_not_of(kBlancs), ligne.size()));
  const std::string_view mot = ligne.substr(0, ligne.find_first_of(kBlancs));
  ligne.remove_prefix(mot.size());
  return mot;
}

/// @throws Erreur 13 for what is no number from 0 to a limit
double Nombre(std::string_view mot, double limite) {
  std::string texte(mot);
  std::replace(texte.begin(), texte.end(), ',', '.');
  double valeur = 0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (code != std::errc() || fin != texte.data() + texte.size() || !(valeur >= 0 && valeur <= limite)) {
    throw Erreur(13);
  }
  return valeur;
}

/// @throws Erreur 13, Refus
Jambe LitJambe(std::string_view ligne) {
  constexpr double kTour = 360;
  constexpr double kVitesseMax = 100;
  const std::string_view date = Mot(ligne);
  const std::string_view heure = Mot(ligne);
  Jambe jambe;
  jambe.depuis = LitInstant(std::string(date) + " " + std::string(heure));
  jambe.cap = Nombre(Mot(ligne), kTour);
  jambe.vitesse = Nombre(Mot(ligne), kVitesseMax);
  if (!Mot(ligne).empty()) {
    throw Erreur(13);
  }
  return jambe;
}

bool SansJambe(std::string_view ligne) {
  const std::string_view mot = Mot(ligne);
  return mot.empty() || mot.front() == '#';
}

} // namespace

RouteLue LitRoute(std::string_view octets) {
  RouteLue route;
  const std::string texte = EnUtf8(octets);
  std::string_view reste = texte;
  for (std::size_t numero = 1; !reste.empty(); ++numero) {
    const std::string_view ligne = reste.substr(0, reste.find('\n'));
    reste.remove_prefix(std::min(ligne.size() + 1, reste.size()));
    if (SansJambe(ligne)) {
      continue;
    }
    try {
      route.jambes.push_back(LitJambe(ligne));
    } catch (const Erreur &) {
      route.ligneFautive = numero;
      break;
    } catch (const Refus &) {
      route.ligneFautive = numero;
      break;
    }
  }
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

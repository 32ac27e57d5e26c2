#include "sights/DroitePLA.hpp"

#include "ephemerides/pLANETE.hpp"
#include "foundations/Angles.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kDiametreLune = 3476; ///< km; it stands where the Earth's radius would, and is only shown

/// The list of planets; their names decide which of them get a diameter and a magnitude.
constexpr std::array<const char *, kNombrePlanetes> kPlanetes = {"Venus", "Mars", "Jupiter", "Saturne"};

/// A field of the line by its number, without the blanks around it.
std::string_view Champ(std::string_view ligne, int numero) {
  for (int i = 0; i < numero; ++i) {
    const std::size_t barre = ligne.find('|');
    if (barre == std::string_view::npos) {
      throw Erreur(9);
    }
    ligne.remove_prefix(barre + 1);
  }
  return SansBlancs(ligne.substr(0, ligne.find('|')));
}

/// Characters of a field from a place, as a number; a field that ends before it is no number.
double Nombre(std::string_view champ, std::size_t place, std::size_t longueur) {
  return Val(champ.substr(std::min(place, champ.size()), longueur));
}

/// The sign is that of the degrees as a number: "-00" is north.
double LitDeclinaison(std::string_view champ) {
  constexpr std::string_view kDegre = "°";
  const std::size_t p1 = champ.find(kDegre);
  const std::size_t p2 = champ.find('\'');
  if (p1 == std::string_view::npos || p2 == std::string_view::npos || p2 < p1) {
    throw Erreur(5);
  }
  const double degres = Val(champ.substr(0, p1));
  const double minutes = Val(champ.substr(p1 + kDegre.size(), p2 - p1));
  const double secondes = Val(champ.substr(p2 + 1, champ.size() - p2 - 2));
  const double Dec = std::abs(degres) + std::abs(minutes) / 60 + std::abs(secondes) / 3600;
  return degres < 0 ? -Dec : Dec;
}

} // namespace

std::string NomPlanete(int planete) {
  if (planete < 0 || planete >= kNombrePlanetes) {
    throw Erreur(9);
  }
  return kPlanetes.at(static_cast<std::size_t>(planete));
}

PlacePlanete LitPlacePlanete(const std::string &ligne) {
  PlacePlanete place;
  place.Dist = Int(Val(Champ(ligne, 2)) * 1000 + 0.5) / 1000;
  const std::string_view ad = Champ(ligne, 0);
  std::optional<double> secondes = Nombre(ad, 8, 4);
  place.AD = HeuresEnDegres(Nombre(ad, 0, 2), Nombre(ad, 4, 2), secondes);
  place.Dec = LitDeclinaison(Champ(ligne, 1));
  return place;
}

Reduction Calcul_DroitePLA(Observation &observation, ValeursVisee &valeurs, AffichageDroite &affichage,
                           const TexteMsg &messages) {
  Reduction r;
  const float latitude = Simple(LatitudeEstimee(observation));
  const float longitude = Simple(LongitudeEstimee(observation));
  if (observation.planete < 0) {
    r.etat = EtatReduction::SansAstre;
    return r;
  }
  r.lue.H = LitSextant<double>(observation);
  if (r.lue.H == 0) {
    return r;
  }
  CorrigeAstre(observation, r.lue, affichage, messages);
  const ValeurDate date = DateDeVisee(observation);
  std::string nom = EnCapitales(NomPlanete(observation.planete));
  const PlacePlanete place =
      LitPlacePlanete(PositionPlanete(nom, {observation.jour, observation.mois, observation.annee, observation.heure,
                                            observation.minute, observation.seconde}));
  const double P = ArcSinDouble(Divise(kDiametreLune, place.Dist));
  affichage.details[2] = messages[16] + Format(P * 6000.0 / kRadCourt, "0.00") + " ''";
  double Dec = place.Dec;
  double lat = latitude;
  PrendHorizon(CelesteVersHorizon(date, place.AD, Dec, lat, -longitude), valeurs);
  ConclutAstre(valeurs, r.lue, place.AD, Dec, affichage, messages);
  r.etat = EtatReduction::Faite;
  return r;
}

} // namespace velmaris

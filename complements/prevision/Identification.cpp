#include "complements/prevision/Identification.hpp"

#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kTropLoin = 5;  ///< doubts
constexpr double kEclatMax = -1; ///< magnitude from which on a body isn't likelier for being brighter

/// The height without air of what was seen.
std::optional<double> HauteurVue(const CielDuPlan &ciel, const ReglagesPlan &reglages, const AstreInconnu &inconnu) {
  const LectureSextant &sextant = reglages.sextant;
  if (inconnu.lecture) {
    LectureSextant lecture = sextant;
    lecture.lecture = *inconnu.lecture;
    lecture.hauteurOeil = ciel.hauteurOeil;
    lecture.contact = Contact::Centre;
    // A body without parallax stands where it is seen, from any place.
    return CorrigeLecture(lecture, PlaceGeocentrique{}, Station{}).topocentrique;
  }
  if (inconnu.apparente) {
    return *inconnu.apparente - Refraction(*inconnu.apparente, sextant.pression, sextant.temperature) / 60;
  }
  return std::nullopt;
}

/// Minus twice the logarithm of how likely a body is to be shot, but for a constant.
double Rarete(double magnitude) {
  constexpr double kParMagnitude = 1.8420680743952367; ///< 0.8 times the logarithm of 10
  return kParMagnitude * std::max(magnitude, kEclatMax);
}

} // namespace

std::vector<AstreProbable> IdentifieAstre(const CielDuPlan &ciel, const ReglagesPlan &reglages,
                                          const AstreInconnu &inconnu, std::size_t combien) {
  const std::optional<double> hauteur = HauteurVue(ciel, reglages, inconnu);
  std::vector<AstreProbable> probables;
  if (!hauteur && !inconnu.azimut) {
    return probables;
  }
  for (std::size_t rang = 0; rang < ciel.astres.size(); ++rang) {
    const AstreDuPlan &a = ciel.astres[rang];
    if (a.astre.genre <= GenreAstre::Lune || Tient(a.raisons, RaisonPale::SousHorizon)) {
      continue;
    }
    AstreProbable p{rang};
    p.ecartHauteur = hauteur ? *hauteur - a.hauteur : 0;
    p.ecartAzimut = inconnu.azimut ? LongitudeUnTour(*inconnu.azimut - a.azimut) : 0;
    p.distance = std::hypot(p.ecartHauteur / inconnu.douteHauteur, p.ecartAzimut / inconnu.douteAzimut);
    if (p.distance < kTropLoin) {
      p.chance = std::exp(-(p.distance * p.distance + Rarete(a.magnitude)) / 2);
      probables.push_back(p);
    }
  }
  std::stable_sort(probables.begin(), probables.end(),
                   [](const AstreProbable &a, const AstreProbable &b) { return a.chance > b.chance; });
  probables.resize(std::min(probables.size(), combien));
  double somme = 0;
  for (const AstreProbable &p : probables) {
    somme += p.chance;
  }
  for (AstreProbable &p : probables) {
    p.chance /= somme;
  }
  return probables;
}

} // namespace velmaris

#include "complements/almanach/JourDuCiel.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Traversees.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kJour = 86400; ///< seconds
constexpr double kHeure = 3600; ///< seconds
constexpr double kMinutes = 60;
constexpr double kRefraction = 34; ///< minutes of arc on the horizon
constexpr double kSoleilBord = -50 / kMinutes;
constexpr double kCivil = -6;
constexpr double kNautique = -12;

/// Where the day begins within its sky, seconds: one hour is prepared on either side.
constexpr double kDebut = kHeure;

PlaceGeocentrique PlaceA(const CielDuJour &ciel, std::size_t rang, double secondes) {
  return PlaceDuJour(ciel, rang, SitueInstant(ciel, PlusTard(ciel.debut, kDebut + secondes)));
}

/// Height from the Earth's centre at longitude 0, degrees.
double Hauteur(const PlaceGeocentrique &place, double latitude) {
  const double sinus =
      std::sin(latitude * kRadian) * std::sin(place.declinaison * kRadian) +
      std::cos(latitude * kRadian) * std::cos(place.declinaison * kRadian) * std::cos(place.gha * kRadian);
  return std::asin(std::fmax(-1.0, std::fmin(1.0, sinus))) / kRadian;
}

/// Crossings upwards and downwards.
struct Paire {
  HeuresHorizon monte;
  HeuresHorizon descend;
};

/// @param f  height over the wanted one, degrees, by seconds of the day
Paire Franchit(const std::function<double(double)> &f) {
  Paire paire;
  const std::vector<Traversee> traversees = TraverseesDe(f, {.de = 0, .a = kJour});
  for (const Traversee &t : traversees) {
    (t.monte ? paire.monte : paire.descend).heures.push_back(t.t / kHeure);
  }
  const RaisonAbsence sans = f(kJour / 2) >= 0 ? RaisonAbsence::ToujoursAuDessus : RaisonAbsence::ToujoursAuDessous;
  for (HeuresHorizon *heures : {&paire.monte, &paire.descend}) {
    if (heures->heures.empty()) {
      heures->absence = traversees.empty() ? sans : RaisonAbsence::AutreJour;
    }
  }
  return paire;
}

} // namespace

std::vector<SoleilHorizon> SoleilAuxHorizons(const CielDuJour &ciel, const std::vector<double> &latitudes) {
  std::vector<SoleilHorizon> horizons;
  for (const double latitude : latitudes) {
    const auto franchit = [&](double hauteur) {
      return Franchit([&](double s) { return Hauteur(PlaceA(ciel, kSoleilAlmanach, s), latitude) - hauteur; });
    };
    Paire nautique = franchit(kNautique);
    Paire civil = franchit(kCivil);
    Paire bord = franchit(kSoleilBord);
    horizons.push_back({std::move(nautique.monte), std::move(civil.monte), std::move(bord.monte),
                        std::move(bord.descend), std::move(civil.descend), std::move(nautique.descend)});
  }
  return horizons;
}

std::vector<LuneHorizon> LuneAuxHorizons(const CielDuJour &ciel, const std::vector<double> &latitudes) {
  std::vector<LuneHorizon> horizons;
  for (const double latitude : latitudes) {
    Paire bord = Franchit([&](double s) {
      const PlaceGeocentrique lune = PlaceA(ciel, kLuneAlmanach, s);
      return Hauteur(lune, latitude) + (kRefraction + lune.demiDiametre - lune.parallaxe) / kMinutes;
    });
    horizons.push_back({std::move(bord.monte), std::move(bord.descend)});
  }
  return horizons;
}

} // namespace velmaris

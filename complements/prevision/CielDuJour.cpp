#include "complements/prevision/CielDuJour.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Refus.hpp"
#include "complements/controle/LignesEtoiles.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Magnitudes.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double kPas = 6;    ///< hours between two nodes
constexpr double kAvant = 12; ///< hours that the nodes begin before the stretch, and end after it
constexpr double kMinutes = 60;
constexpr double kSecondesParHeure = 3600;
constexpr std::array kErrants{GenreAstre::Soleil, GenreAstre::Lune,    GenreAstre::Venus,
                              GenreAstre::Mars,   GenreAstre::Jupiter, GenreAstre::Saturne};

CielDuMoment CielA(const CielDuJour &ciel, double heures) {
  const InstantUTC utc = PlusTard(ciel.debut, heures * kSecondesParHeure);
  return PrepareCiel({TTDe(utc), UT1De(utc, ciel.dut1)});
}

/// The direction of a place on the equator of the date.
Vecteur3 DirectionDuCiel(const PlaceGeocentrique &place) { return DirectionDe({place.declinaison, place.ascension}); }

/// Lagrange's weights of nodes that stand a unit apart, at a distance from the first.
template <std::size_t N> std::array<double, N> PoidsDe(double u) {
  std::array<double, N> poids{};
  for (std::size_t i = 0; i < N; ++i) {
    poids[i] = 1;
    for (std::size_t j = 0; j < N; ++j) {
      const auto autre = static_cast<double>(j);
      poids[i] *= i == j ? 1 : (u - autre) / (static_cast<double>(i) - autre);
    }
  }
  return poids;
}

/// A body's node; its sizes are those of the first.
void AjouteNoeud(AstreDuJour &a, const PlaceGeocentrique &place) {
  const double distance = place.distance > 0 ? place.distance : 1;
  if (a.noeuds.empty() && place.distance > 0) {
    a.rayon = std::sin(place.demiDiametre / kMinutes * kRadian) * distance;
    a.rayonTerre = std::sin(place.parallaxe / kMinutes * kRadian) * distance;
  }
  a.noeuds.push_back(Fois(distance, DirectionDuCiel(place)));
}

/// Sun, Moon and planets at the nodes, and the sidereal time.
/// @return whether it wasn't stopped
bool PrepareErrants(CielDuJour &ciel, const std::stop_token &arret) {
  const auto noeuds = static_cast<int>(std::ceil((ciel.heures + 2 * kAvant) / kPas)) + 1;
  for (int i = 0; i < noeuds; ++i) {
    if (arret.stop_requested()) {
      return false;
    }
    const CielDuMoment moment = CielA(ciel, i * kPas - kAvant);
    const double avant = ciel.tempsSideral.empty() ? moment.tempsSideral : ciel.tempsSideral.back();
    const double tours = std::round((avant + kPas * 15 - moment.tempsSideral) / 360); // 15 degrees an hour, nearly
    ciel.tempsSideral.push_back(ciel.tempsSideral.empty() ? moment.tempsSideral : moment.tempsSideral + 360 * tours);
    for (AstreDuJour &a : ciel.astres) {
      AjouteNoeud(a, PlaceDe(moment, a.astre));
    }
  }
  return true;
}

/// Whether the Moon is known as far as the nodes go.
bool LuneConnue(const CielDuJour &ciel) {
  try {
    const Astre lune{GenreAstre::Lune, 0};
    PlaceDe(CielA(ciel, -kAvant), lune);
    PlaceDe(CielA(ciel, ciel.heures + kAvant + kPas), lune);
    return true;
  } catch (const Refus &) {
    return false;
  }
}

/// The stars at the beginning, in the middle and at the end.
bool PrepareEtoiles(CielDuJour &ciel, const Etoiles &etoiles, const std::stop_token &arret) {
  const std::array<CielDuMoment, 3> moments{CielA(ciel, 0), CielA(ciel, ciel.heures / 2), CielA(ciel, ciel.heures)};
  for (int rang = 1; std::cmp_less_equal(rang, kNombreEtoilesIcrs); ++rang) {
    const auto &etoile = kEtoilesIcrs[static_cast<std::size_t>(rang) - 1];
    if (!etoile) {
      continue;
    }
    if (arret.stop_requested()) {
      return false;
    }
    AstreDuJour a{{GenreAstre::Etoile, rang}, etoile->magnitude};
    a.ligneLoin = EcartDeLigne(etoiles, rang).value_or(0) > kLigneMarquee;
    for (const CielDuMoment &moment : moments) {
      a.noeuds.push_back(DirectionDuCiel(PlaceEtoile(moment, *etoile)));
    }
    ciel.astres.push_back(std::move(a));
  }
  return true;
}

/// The light of Sun, Moon and planets in the middle of the stretch.
void PrepareEclats(CielDuJour &ciel) {
  const CielDuMoment milieu = CielA(ciel, ciel.heures / 2);
  const PlaceGeocentrique soleil = PlaceDe(milieu, {GenreAstre::Soleil, 0});
  for (AstreDuJour &a : ciel.astres) {
    const PlaceGeocentrique place = PlaceDe(milieu, a.astre);
    const double ouverture = a.astre.genre == GenreAstre::Saturne ? OuvertureAnneaux(milieu, place, soleil) : 0;
    a.magnitude = MagnitudeDe(a.astre.genre, EclairementDe(place, soleil), ouverture);
  }
}

} // namespace

std::optional<CielDuJour> PrepareCielDuJour(const Etoiles &etoiles, const InstantUTC &debut, double heures, double dut1,
                                            const std::stop_token &arret) {
  CielDuJour ciel{debut, heures, dut1};
  const bool lune = LuneConnue(ciel);
  for (const GenreAstre genre : kErrants) {
    if (lune || genre != GenreAstre::Lune) {
      ciel.astres.push_back({{genre, 0}});
    }
  }
  if (!PrepareErrants(ciel, arret)) {
    return std::nullopt;
  }
  PrepareEclats(ciel);
  if (!PrepareEtoiles(ciel, etoiles, arret)) {
    return std::nullopt;
  }
  return ciel;
}

std::optional<std::size_t> PlaceDansLeCiel(const CielDuJour &ciel, const Astre &astre) {
  const auto la =
      std::find_if(ciel.astres.begin(), ciel.astres.end(), [&](const AstreDuJour &a) { return a.astre == astre; });
  return la == ciel.astres.end() ? std::nullopt : std::optional(static_cast<std::size_t>(la - ciel.astres.begin()));
}

InstantDuJour SitueInstant(const CielDuJour &ciel, const InstantUTC &utc) {
  InstantDuJour instant{utc};
  const double heures = SecondesEntre(ciel.debut, utc) / kSecondesParHeure;
  const double place = (heures + kAvant) / kPas;
  const auto dernier = static_cast<double>(ciel.tempsSideral.size() - instant.poids.size());
  const double premier = std::clamp(std::floor(place) - 2, 0.0, dernier);
  instant.noeud = static_cast<std::size_t>(premier);
  instant.poids = PoidsDe<6>(place - premier);
  instant.poidsEtoiles = PoidsDe<3>(heures / ciel.heures * 2);
  double sideral = 0;
  for (std::size_t i = 0; i < instant.poids.size(); ++i) {
    sideral += instant.poids[i] * ciel.tempsSideral[instant.noeud + i];
  }
  instant.tempsSideral = AngleUnTour(sideral);
  return instant;
}

PlaceGeocentrique PlaceDuJour(const CielDuJour &ciel, std::size_t rang, const InstantDuJour &instant) {
  const AstreDuJour &a = ciel.astres[rang];
  Vecteur3 v{};
  if (a.astre.genre == GenreAstre::Etoile) {
    for (std::size_t i = 0; i < instant.poidsEtoiles.size(); ++i) {
      v = Ajoute(v, instant.poidsEtoiles[i], a.noeuds[i]);
    }
  } else {
    for (std::size_t i = 0; i < instant.poids.size(); ++i) {
      v = Ajoute(v, instant.poids[i], a.noeuds[instant.noeud + i]);
    }
  }
  PlaceGeocentrique place;
  place.ascension = AngleUnTour(std::atan2(v[1], v[0]) / kRadian);
  place.declinaison = std::atan2(v[2], std::hypot(v[0], v[1])) / kRadian;
  place.gha = AngleUnTour(instant.tempsSideral - place.ascension);
  if (a.rayonTerre > 0) {
    place.distance = Longueur(v);
    place.demiDiametre = std::asin(a.rayon / place.distance) / kRadian * kMinutes;
    place.parallaxe = std::asin(a.rayonTerre / place.distance) / kRadian * kMinutes;
  }
  return place;
}

} // namespace velmaris

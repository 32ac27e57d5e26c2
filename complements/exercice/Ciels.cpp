#include "complements/exercice/Ciels.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Places.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kHeure = 3600; ///< seconds
constexpr Astre kSoleil{GenreAstre::Soleil, 0};
constexpr Astre kLune{GenreAstre::Lune, 0};

/// Bright stars by their rows of the table, all of them near their true places.
constexpr std::array kBrillantes{3,  10, 18,  26,  29,  34,  43,  47,  48,  56, 60,
                                 65, 97, 113, 114, 119, 121, 122, 136, 138, 147};
constexpr std::array kPlanetesVues{GenreAstre::Venus, GenreAstre::Mars, GenreAstre::Jupiter, GenreAstre::Saturne};

PlaceTopocentrique Vue(const CadreExercice &cadre, const Astre &astre, const InstantUTC &utc) {
  const LieuNavire lieu = LieuVrai(cadre, utc);
  return VueDe(PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, 0)}), astre), {lieu.latitude, lieu.longitude, 0});
}

InstantUTC ALaSeconde(const InstantUTC &utc) {
  constexpr double kJour = 86400;
  return PlusTard({utc.jour, 0}, std::round(utc.fraction * kJour));
}

/// Heights that are shot with ease.
bool Commode(double hauteur) { return hauteur > 15 && hauteur < 70; }

/// When the Sun passes the meridian.
InstantUTC Midi(const CadreExercice &cadre) {
  constexpr int kTours = 4;
  constexpr double kSecondesParDegre = 240;
  InstantUTC utc = cadre.reference;
  for (int tour = 0; tour < kTours; ++tour) {
    const double gha = PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, 0)}), kSoleil).gha;
    utc = PlusTard(utc, -LongitudeUnTour(gha + LieuVrai(cadre, utc).longitude) * kSecondesParDegre);
  }
  return ALaSeconde(utc);
}

/// The Sun at some times around noon.
/// @param intervalle  seconds between two sights
std::optional<OffreExercice> OffreSoleil(const CadreExercice &cadre, double intervalle) {
  OffreExercice offre;
  const InstantUTC midi = Midi(cadre);
  const int n = cadre.conditions.visees;
  for (int i = 0; i < n; ++i) {
    const InstantUTC utc = PlusTard(midi, std::round((i - (n - 1) / 2.0) * intervalle));
    const double hauteur = Vue(cadre, kSoleil, utc).hauteur;
    if (hauteur < 10 || hauteur > 85) {
      return std::nullopt;
    }
    offre.visees.push_back({kSoleil, utc});
  }
  return offre;
}

/// Sun and Moon in turn, when both stand well and apart.
std::optional<OffreExercice> OffreSoleilLune(const CadreExercice &cadre, Tirage &tirage) {
  const InstantUTC debut = ALaSeconde(PlusTard(cadre.reference, TireEntre(tirage, -4, 4) * kHeure));
  const PlaceTopocentrique soleil = Vue(cadre, kSoleil, debut);
  const PlaceTopocentrique lune = Vue(cadre, kLune, debut);
  constexpr double kQuarante = 40; ///< degrees that the lines cross at least
  if (!Commode(soleil.hauteur) || !Commode(lune.hauteur) ||
      std::fabs(std::sin((soleil.azimut - lune.azimut) * kRadian)) < std::sin(kQuarante * kRadian)) {
    return std::nullopt;
  }
  OffreExercice offre;
  for (int i = 0; i < cadre.conditions.visees; ++i) {
    offre.visees.push_back({i % 2 == 0 ? kSoleil : kLune, PlusTard(debut, 150.0 * i)});
  }
  return offre;
}

/// When the Sun stands seven degrees under the horizon, in the evening or the morning.
std::optional<InstantUTC> Crepuscule7(const CadreExercice &cadre, bool soir) {
  constexpr double kSous = -7;
  constexpr int kTours = 20;
  const double sens = soir ? 1 : -1;
  double jour = 0;
  double nuit = 12 * kHeure;
  const auto hauteur = [&](double s) { return Vue(cadre, kSoleil, PlusTard(cadre.reference, sens * s)).hauteur; };
  if (hauteur(jour) < kSous || hauteur(nuit) > kSous) {
    return std::nullopt;
  }
  for (int tour = 0; tour < kTours; ++tour) {
    const double milieu = (jour + nuit) / 2;
    (hauteur(milieu) > kSous ? jour : nuit) = milieu;
  }
  return ALaSeconde(PlusTard(cadre.reference, sens * jour));
}

/// A body that could be shot.
struct Candidat {
  Astre astre;
  double azimut = 0;
};

/// Bodies that stand well in the twilight, and those of them that clouds hide.
void TrieCandidats(const CadreExercice &cadre, const InstantUTC &utc, Tirage &tirage, std::vector<Candidat> &vus,
                   std::vector<Candidat> &caches) {
  std::vector<Astre> astres;
  astres.reserve(kPlanetesVues.size() + kBrillantes.size());
  for (const GenreAstre planete : kPlanetesVues) {
    astres.push_back({planete, 0});
  }
  for (const int rang : kBrillantes) {
    astres.push_back({GenreAstre::Etoile, rang});
  }
  for (const Astre &astre : astres) {
    const PlaceTopocentrique vue = Vue(cadre, astre, utc);
    if (Commode(vue.hauteur)) {
      (TireChance(tirage, cadre.conditions.nuages) ? caches : vus).push_back({astre, vue.azimut});
    }
  }
}

/// How far a direction lies from the nearest of those taken, degrees.
double Ecartement(const std::vector<Candidat> &pris, double azimut) {
  double moindre = 180;
  for (const Candidat &c : pris) {
    moindre = std::min(moindre, std::fabs(LongitudeUnTour(c.azimut - azimut)));
  }
  return moindre;
}

/// Stars and planets spread around the horizon, two minutes and a half apart.
std::optional<OffreExercice> OffreCrepuscule(const CadreExercice &cadre, Tirage &tirage) {
  const bool soir = TireChance(tirage, 0.5);
  const std::optional<InstantUTC> debut = Crepuscule7(cadre, soir);
  if (!debut) {
    return std::nullopt;
  }
  const auto voulues = static_cast<std::size_t>(cadre.conditions.visees);
  std::vector<Candidat> vus;
  std::vector<Candidat> caches;
  TrieCandidats(cadre, *debut, tirage, vus, caches);
  while (vus.size() < voulues && !caches.empty()) {
    vus.push_back(caches.back());
    caches.pop_back();
  }
  if (vus.size() < voulues) {
    return std::nullopt;
  }
  std::vector<Candidat> pris;
  while (pris.size() < voulues) {
    const auto plusLoin = std::max_element(vus.begin(), vus.end(), [&](const Candidat &a, const Candidat &b) {
      return Ecartement(pris, a.azimut) < Ecartement(pris, b.azimut);
    });
    pris.push_back(*plusLoin);
    vus.erase(plusLoin);
  }
  OffreExercice offre;
  for (const Candidat &c : pris) {
    offre.visees.push_back({c.astre, PlusTard(*debut, 150.0 * static_cast<double>(offre.visees.size()))});
  }
  for (const Candidat &c : caches) {
    offre.caches.push_back(c.astre);
  }
  return offre;
}

} // namespace

LieuNavire LieuVrai(const CadreExercice &cadre, const InstantUTC &utc) {
  return Deplace(cadre.route, cadre.lieu, cadre.reference, utc).lieu;
}

std::optional<OffreExercice> OffreDuJour(const CadreExercice &cadre, Tirage &tirage) {
  constexpr double kMinute = 60;
  constexpr double kTroisHeures = 3 * kHeure;
  switch (cadre.conditions.sujet) {
  case SujetExercice::SoleilMidi:
    return OffreSoleil(cadre, kMinute);
  case SujetExercice::SoleilCourse:
    return OffreSoleil(cadre, kTroisHeures);
  case SujetExercice::SoleilLune:
    return OffreSoleilLune(cadre, tirage);
  case SujetExercice::Crepuscule:
    break;
  }
  return OffreCrepuscule(cadre, tirage);
}

} // namespace velmaris

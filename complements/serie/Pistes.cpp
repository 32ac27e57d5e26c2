#include "complements/serie/Pistes.hpp"

#include "complements/serie/Pente.hpp"
#include "sights/Observation.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace velmaris {
namespace {

constexpr double kHauteurMax = 90;   ///< minutes that a height may be off
constexpr double kPentesMax = 3;     ///< deviations that a slope may be off
constexpr double kDouteHauteur = 30; ///< minutes: what the dead reckoning leaves of a height
constexpr double kDoutePente = 0.05; ///< minutes a minute: what it leaves of a slope
constexpr int kHeuresMax = 12;       ///< a morning for an evening
constexpr double kSecondes = 3600;   ///< in an hour
constexpr std::size_t kPistesMax = 8;

/// A search under way.
struct Recherche {
  const BaseLectures &base;
  const AllureSerie &allure;
  LieuNavire avant; ///< the ship half a minute before the middle
  LieuNavire apres; ///< and after
  double present;   ///< how unlikely the run is as it was told
  std::vector<Piste> pistes;
};

CielDuMoment CielA(const BaseLectures &base, const InstantUTC &utc) {
  return PrepareCiel({TTDe(utc), UT1De(utc, base.dut1)});
}

/// Two skies, half a minute to either side.
struct CielsAutour {
  CielDuMoment avant;
  CielDuMoment apres;
};

CielsAutour CielsPresDe(const BaseLectures &base, const InstantUTC &utc) {
  return {CielA(base, PlusTard(utc, -kDemiPas)), CielA(base, PlusTard(utc, kDemiPas))};
}

PlacesAutour PlacesDans(const CielsAutour &ciels, const Astre &astre) {
  return {PlaceDe(ciels.avant, astre), PlaceDe(ciels.apres, astre)};
}

/// Weighs one explanation.
void Pese(const AllureSerie &allure, const AllureCiel &ciel, Piste &piste) {
  const double ecart = std::hypot(allure.ecartPente, kDoutePente);
  piste.pente = ciel.pente;
  piste.ecartPente = allure.pente - ciel.pente;
  piste.ecartHauteur = (allure.hauteur - ciel.hauteur) * 60;
  const double pente = piste.ecartPente / ecart;
  const double hauteur = piste.ecartHauteur / kDouteHauteur;
  piste.invraisemblance = pente * pente + hauteur * hauteur;
}

/// Keeps an explanation that is near enough, and nearer than the run as it was told.
void Retient(Recherche &r, Piste piste, const PlacesAutour &places, const LieuNavire &avant, const LieuNavire &apres) {
  const AllureCiel ciel = AllureDe(r.base, places, avant, apres);
  Pese(r.allure, ciel, piste);
  const double ecart = std::hypot(r.allure.ecartPente, kDoutePente);
  const bool proche = ciel.hauteur > 0 && std::fabs(piste.ecartHauteur) <= kHauteurMax &&
                      std::fabs(piste.ecartPente) <= kPentesMax * ecart;
  if (proche && piste.invraisemblance < r.present) {
    r.pistes.push_back(piste);
  }
}

void EssaieAstres(Recherche &r, const CielsAutour &ciels) {
  const auto essaie = [&](const Astre &astre) {
    if (!(astre == r.base.astre)) {
      Retient(r, {GenrePiste::AutreAstre, astre}, PlacesDans(ciels, astre), r.avant, r.apres);
    }
  };
  for (const GenreAstre genre : {GenreAstre::Soleil, GenreAstre::Lune, GenreAstre::Venus, GenreAstre::Mars,
                                 GenreAstre::Jupiter, GenreAstre::Saturne}) {
    essaie({genre, 0});
  }
  for (int rang = 1; rang <= kNombreEtoiles; ++rang) {
    if (rang != kRangSansPlace) {
      essaie({GenreAstre::Etoile, rang});
    }
  }
}

/// The ship stands where she stood: her reckoning was kept by the same clock.
void EssaieHeures(Recherche &r) {
  for (int heures = -kHeuresMax; heures <= kHeuresMax; ++heures) {
    if (heures != 0) {
      const CielsAutour ciels = CielsPresDe(r.base, PlusTard(r.allure.milieu, heures * kSecondes));
      Retient(r, {GenrePiste::Heure, r.base.astre, heures}, PlacesDans(ciels, r.base.astre), r.avant, r.apres);
    }
  }
}

void EssaieCotes(Recherche &r, const PlacesAutour &places) {
  struct Cote {
    GenrePiste genre;
    double latitude;
    double longitude;
  };
  for (const Cote &cote : {Cote{GenrePiste::CoteLatitude, -1, 1}, Cote{GenrePiste::CoteLongitude, 1, -1},
                           Cote{GenrePiste::DeuxCotes, -1, -1}}) {
    // The run's small way is kept as it is.
    const LieuNavire avant{r.avant.latitude * cote.latitude, r.avant.longitude * cote.longitude};
    const LieuNavire apres{avant.latitude + r.apres.latitude - r.avant.latitude,
                           avant.longitude + std::remainder(r.apres.longitude - r.avant.longitude, 360)};
    Retient(r, {cote.genre, r.base.astre}, places, avant, apres);
  }
}

} // namespace

std::vector<Piste> CherchePistes(const BaseLectures &base, const AllureSerie &allure) {
  ExigePlace(base.astre);
  const CielsAutour ciels = CielsPresDe(base, allure.milieu);
  const PlacesAutour places = PlacesDans(ciels, base.astre);
  Recherche r{base,
              allure,
              LieuDeLaBase(base, PlusTard(allure.milieu, -kDemiPas)),
              LieuDeLaBase(base, PlusTard(allure.milieu, kDemiPas)),
              0,
              {}};
  Piste present;
  Pese(allure, AllureDe(base, places, r.avant, r.apres), present);
  r.present = present.invraisemblance;
  EssaieAstres(r, ciels);
  EssaieHeures(r);
  EssaieCotes(r, places);
  std::stable_sort(r.pistes.begin(), r.pistes.end(),
                   [](const Piste &a, const Piste &b) { return a.invraisemblance < b.invraisemblance; });
  r.pistes.resize(std::min(r.pistes.size(), kPistesMax));
  return std::move(r.pistes);
}

} // namespace velmaris

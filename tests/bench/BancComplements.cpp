#include "Mesure.hpp"
#include "complements/ciel/Cosinus.hpp"
#include "complements/ciel/Heliocentre.hpp"
#include "complements/ciel/LuneDuMoment.hpp"
#include "complements/ciel/Places.hpp"
#include "ephemerides/pLANETE.hpp"

#include <libnova/libnova.h>

#include <cmath>
#include <string>

/// The sky of today, against what the rest of the program or a library takes for the same.
namespace velmaris {
namespace {

struct Planete {
  const char *nom; ///< of the place that is told
  GenreAstre genre;
  const SeriesCiel *series;
};

constexpr Planete kPlanetes[] = {{"Venus", GenreAstre::Venus, &kCielVenus},
                                 {"Mars", GenreAstre::Mars, &kCielMars},
                                 {"Jupiter", GenreAstre::Jupiter, &kCielJupiter},
                                 {"SATURNE", GenreAstre::Saturne, &kCielSaturne}};

constexpr int kAppels = 100;

/// A moment of this century that no call has had before, or not for long.
Moment NouveauMoment() {
  static double jours = 0.0;
  jours = std::fmod(jours + 0.37, 36500.0);
  return {{2451545.0, jours}, {2451545.0, jours}};
}

/// An apparent place with all that its moment needs, against the place of the told system with its texts.
void CielContreDit(benchmark::State &etat) {
  const Planete &planete = kPlanetes[etat.range(0)];
  std::string nom = planete.nom;
  etat.SetLabel(planete.nom);
  const auto actuelle = [&] { benchmark::DoNotOptimize(PlaceDe(PrepareCiel(NouveauMoment()), {planete.genre})); };
  const auto dite = [&] { benchmark::DoNotOptimize(PlaceApparente(nom, 2451545.0 + NouveauMoment().tt.fraction)); };
  Compare(etat, actuelle, dite, kAppels);
}
BENCHMARK(CielContreDit)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

/// The planet's and the Earth's sums two at a time, against the told place: what a processor without wide vectors does.
void DeuxContreDit(benchmark::State &etat) {
  const Planete &planete = kPlanetes[etat.range(0)];
  std::string nom = planete.nom;
  etat.SetLabel(planete.nom);
  const auto sommes = [&] {
    const Moment moment = NouveauMoment();
    const double t = Millenaires(moment.tt);
    benchmark::DoNotOptimize(Heliocentre(*planete.series, t, kTousLesTermes, Voie::Deux));
    benchmark::DoNotOptimize(Heliocentre(kCielTerre, t, kTousLesTermes, Voie::Deux));
  };
  const auto dite = [&] { benchmark::DoNotOptimize(PlaceApparente(nom, 2451545.0 + NouveauMoment().tt.fraction)); };
  Compare(etat, sommes, dite, kAppels);
}
BENCHMARK(DeuxContreDit)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

/// The Moon with all that its moment needs, against libnova's whole theory.
void LuneContreEntiere(benchmark::State &etat) {
  const auto lune = [] { benchmark::DoNotOptimize(PlaceDe(PrepareCiel(NouveauMoment()), {GenreAstre::Lune})); };
  const auto entiere = [] {
    ln_rect_posn place{};
    ln_get_lunar_geo_posn(2451545.0 + NouveauMoment().tt.fraction, &place, 0);
    benchmark::DoNotOptimize(place);
  };
  Compare(etat, lune, entiere, kAppels);
}
BENCHMARK(LuneContreEntiere)->Unit(benchmark::kMicrosecond);

/// A star in a sky that is there, against the making of that sky.
void EtoileDansCiel(benchmark::State &etat) {
  const CielDuMoment ciel = PrepareCiel(NouveauMoment());
  int rang = 0;
  const auto etoile = [&] { benchmark::DoNotOptimize(PlaceDe(ciel, {GenreAstre::Etoile, 1 + rang++ % 60})); };
  Compare(
      etat, etoile, [] { benchmark::DoNotOptimize(PrepareCiel(NouveauMoment())); }, kAppels);
}
BENCHMARK(EtoileDansCiel);

} // namespace
} // namespace velmaris

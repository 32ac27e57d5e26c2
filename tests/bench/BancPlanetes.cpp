#include "Mesure.hpp"
#include "ephemerides/Nutation.hpp"
#include "ephemerides/ParamPlanet.hpp"
#include "ephemerides/Series.hpp"
#include "ephemerides/pLANETE.hpp"

#include <libnova/libnova.h>

#include <cmath>
#include <string>

namespace velmaris {
namespace {

struct Planete {
  const char *nom;
  const SeriesPlanete *series;
  void (*nova)(double, ln_helio_posn *);
};

constexpr Planete kPlanetes[] = {{"VENUS", &kSeriesVenus, ln_get_venus_helio_coords},
                                 {"EARTH", &kSeriesTerre, ln_get_earth_helio_coords},
                                 {"MARS", &kSeriesMars, ln_get_mars_helio_coords},
                                 {"JUPITER", &kSeriesJupiter, ln_get_jupiter_helio_coords},
                                 {"SATURNE", &kSeriesSaturne, ln_get_saturn_helio_coords}};

constexpr int kAppels = 300;

/// A date that no call has had before: a library that keeps the last place must work too.
double NouvelleDate() {
  static double jours = 2451545.0;
  jours += 0.37;
  return jours;
}

/// The terms of one coordinate and nothing else.
double Cosinus(const CoordonneeVsop &series, double t) {
  double somme = 0.0;
  for (const auto &termes : series) {
    for (const TermeVsop &terme : termes) {
      somme += terme.A * std::cos(terme.B + terme.C * t);
    }
  }
  return somme;
}

void CosinusNus(const SeriesPlanete &series, double t) {
  benchmark::DoNotOptimize(Cosinus(series.L, t));
  benchmark::DoNotOptimize(Cosinus(series.B, t));
  benchmark::DoNotOptimize(Cosinus(series.R, t));
}

/// A heliocentric place with its text, against the bare cosines of the same terms.
void HelioContreCosinus(benchmark::State &etat) {
  const Planete &planete = kPlanetes[etat.range(0)];
  etat.SetLabel(planete.nom);
  Compare(
      etat, [&] { benchmark::DoNotOptimize(PositionHelio(planete.nom, NouvelleDate())); },
      [&] { CosinusNus(*planete.series, (NouvelleDate() - 2451545.0) / 365250); }, kAppels);
}
BENCHMARK(HelioContreCosinus)->DenseRange(0, 4)->Unit(benchmark::kMicrosecond);

/// A heliocentric place, against libnova's untruncated series.
void HelioContreLibnova(benchmark::State &etat) {
  const Planete &planete = kPlanetes[etat.range(0)];
  etat.SetLabel(planete.nom);
  const auto nova = [&] {
    ln_helio_posn place{};
    planete.nova(NouvelleDate(), &place);
    benchmark::DoNotOptimize(place);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(PositionHelio(planete.nom, NouvelleDate())); }, nova, kAppels);
}
BENCHMARK(HelioContreLibnova)->Arg(0)->Arg(2)->Arg(4)->Unit(benchmark::kMicrosecond);

/// An apparent place, against the cosines of its four heliocentric ones.
void PlaceContreCosinus(benchmark::State &etat) {
  const Planete &planete = kPlanetes[etat.range(0)];
  etat.SetLabel(planete.nom);
  std::string nom = planete.nom;
  const auto cosinus = [&] {
    for (int i = 0; i < 2; ++i) {
      const double t = (NouvelleDate() - 2451545.0) / 365250;
      CosinusNus(kSeriesTerre, t);
      CosinusNus(*planete.series, t);
    }
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(PlaceApparente(nom, NouvelleDate())); }, cosinus, kAppels);
}
BENCHMARK(PlaceContreCosinus)->Arg(0)->Arg(2)->Arg(3)->Arg(4)->Unit(benchmark::kMicrosecond);

/// Nutation and obliquity, against libnova's pair of them.
void NutationContreLibnova(benchmark::State &etat) {
  const auto nova = [] {
    ln_nutation nutation{};
    ln_get_nutation(NouvelleDate(), &nutation);
    benchmark::DoNotOptimize(nutation);
  };
  const auto nutation = [] {
    const double JD = NouvelleDate();
    benchmark::DoNotOptimize(NutationLongitude(JD));
    benchmark::DoNotOptimize(ObliquiteVraie(JD));
  };
  Compare(etat, nutation, nova);
}
BENCHMARK(NutationContreLibnova);

} // namespace
} // namespace velmaris

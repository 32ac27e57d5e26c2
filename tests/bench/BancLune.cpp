#include "Mesure.hpp"
#include "ephemerides/ModulePosLune.hpp"

#include <cmath>
#include <libnova/libnova.h>

namespace velmaris {
namespace {

/// Sines and cosines that one place of the Moon holds: 405 and 201 and 105 of the series, 63 and 38 of the nutation.
constexpr int kSinus = 405 + 201 + 105 + 63 + 38;

/// The moment's seconds, changed at each call so that nothing is worked out once and for all.
Lune Moment(int tour) {
  Lune lune;
  lune.LuneAn = 2026;
  lune.LuneMois = 6;
  lune.LuneJour = 21;
  lune.LuneHeure = 12;
  lune.LuneSeconde = static_cast<float>(tour % 60);
  return lune;
}

/// Bare sines over one turn, as many as a place of the Moon needs.
void SinusNus() {
  double somme = 0;
  double x = 0.1;
  for (int i = 0; i < kSinus; ++i) {
    benchmark::DoNotOptimize(x);
    somme += std::sin(x);
    x += 0.0077;
  }
  benchmark::DoNotOptimize(somme);
}

/// The Moon's place from the Earth's centre and from an observer, against its sines alone.
void LuneComplete(benchmark::State &etat) {
  int tour = 0;
  const auto lune = [&] {
    Lune l = Moment(tour++);
    CalculLune(l);
    TopoLune(l, l.LuneAD, l.LuneDecl, 47.5F, -5.17F, "Asc. droite : ");
    benchmark::DoNotOptimize(l);
  };
  Compare(etat, lune, SinusNus);
}
BENCHMARK(LuneComplete);

/// The Moon from the Earth's centre, against the whole theory of the library.
void LuneContreTheorieEntiere(benchmark::State &etat) {
  int tour = 0;
  const auto lune = [&] {
    Lune l = Moment(tour++);
    CalculLune(l);
    benchmark::DoNotOptimize(l);
  };
  const auto entiere = [&] {
    ln_rect_posn place{};
    ln_get_lunar_geo_posn(2461213.0 + tour++ / 86400.0, &place, 0);
    benchmark::DoNotOptimize(place);
  };
  Compare(etat, lune, entiere, 100);
}
BENCHMARK(LuneContreTheorieEntiere);

/// The observer's part alone, with its texts, against twenty bare sines.
void LuneDuLieu(benchmark::State &etat) {
  Lune l = Moment(0);
  CalculLune(l);
  const auto lieu = [&] {
    TopoLune(l, l.LuneAD, l.LuneDecl, 47.5F, -5.17F, "Asc. droite : ");
    benchmark::DoNotOptimize(l);
  };
  const auto nu = [] {
    double x = 0.3;
    for (int i = 0; i < 20; ++i) {
      benchmark::DoNotOptimize(x);
      x = std::sin(x) + 0.1 * i;
    }
    benchmark::DoNotOptimize(x);
  };
  Compare(etat, lieu, nu);
}
BENCHMARK(LuneDuLieu);

} // namespace
} // namespace velmaris

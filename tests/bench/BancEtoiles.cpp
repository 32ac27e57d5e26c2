#include "Mesure.hpp"
#include "ephemerides/Etoiles.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <libnova/libnova.h>

namespace velmaris {
namespace {

/// The table, split, and a date.
struct Ciel {
  Ciel() { ChargeEtoiles(etoiles, liste); }
  Etoiles etoiles;
  std::vector<std::string> liste;
  DateEtoile date{"21", "06", "2026"};
};

/// A star's place as text, against its three functions and the two conversions to text that it can't do without.
void PlaceEtoile(benchmark::State &etat) {
  const Ciel ciel;
  int tour = 0;
  const auto place = [&] {
    const auto rang = static_cast<std::int16_t>(tour++ % 246 + 1);
    benchmark::DoNotOptimize(CoordEtoile(ciel.etoiles, rang, -1, ciel.date));
  };
  const auto nu = [&] {
    double x = 0.1 + tour++ % 246 * 0.005;
    benchmark::DoNotOptimize(x);
    const double y = std::sin(x) * std::tan(x) + std::cos(x);
    std::array<char, 64> texte{};
    const auto fin = std::to_chars(texte.data(), texte.data() + 30, x * 57.3, std::chars_format::general, 15);
    std::to_chars(fin.ptr, texte.data() + 64, y * 57.3, std::chars_format::general, 15);
    benchmark::DoNotOptimize(texte);
  };
  Compare(etat, place, nu);
}
BENCHMARK(PlaceEtoile);

/// A star's place, against the library's precession of numbers, without texts.
void PlaceContrePrecession(benchmark::State &etat) {
  const Ciel ciel;
  int tour = 0;
  const auto place = [&] {
    const auto rang = static_cast<std::int16_t>(tour++ % 246 + 1);
    benchmark::DoNotOptimize(CoordEtoile(ciel.etoiles, rang, -1, ciel.date));
  };
  const auto precession = [&] {
    ln_equ_posn moyenne{tour++ % 360 * 1.0, 30.0};
    ln_equ_posn vue{};
    ln_get_equ_prec(&moyenne, 2461212.5, &vue);
    benchmark::DoNotOptimize(vue);
  };
  Compare(etat, place, precession);
}
BENCHMARK(PlaceContrePrecession);

/// The list of visible stars, against the places of its stars alone.
void EtoilesVisibles(benchmark::State &etat) {
  const Ciel ciel;
  const ValeurDate moment{2026, 6, 21, 22, 0, 0};
  const auto visibles = [&] { benchmark::DoNotOptimize(ListeVisibles(ciel.etoiles, ciel.date, moment, 47.5, 5.17)); };
  const auto places = [&] {
    for (std::int16_t i = 1; i <= 25; ++i) {
      benchmark::DoNotOptimize(CoordEtoile(ciel.etoiles, i, -1, ciel.date));
    }
  };
  Compare(etat, visibles, places, 200);
}
BENCHMARK(EtoilesVisibles)->Unit(benchmark::kMicrosecond);

/// The whole table split, against the names' copies alone.
void ChargeTable(benchmark::State &etat) {
  const Ciel modele;
  const auto charge = [] { benchmark::DoNotOptimize(Ciel()); };
  const auto copie = [&] {
    std::vector<std::string> liste = modele.liste;
    benchmark::DoNotOptimize(liste.data());
  };
  Compare(etat, charge, copie);
}
BENCHMARK(ChargeTable)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmaris

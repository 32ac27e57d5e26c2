#include "Mesure.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/exercice/Exercice.hpp"
#include "complements/lunaire/Classement.hpp"
#include "complements/lunaire/Lunaire.hpp"
#include "complements/serie/LecturesPretes.hpp"
#include "complements/serie/Meridienne.hpp"
#include "complements/serie/Serie.hpp"

#include <string>
#include <vector>

/// Runs of readings, noon, the clock from the Moon, practice: each against the sky of as many moments.
namespace velmaris {
namespace {

constexpr int kAppels = 10;

BaseLectures Base() {
  BaseLectures base;
  base.lieu = {40, -30};
  base.heureLieu = UTCDe({2026, 3, 20, 14, 7, 0});
  base.corrections.contact = Contact::Inferieur;
  base.route.jambes.push_back({base.heureLieu, 230, 7});
  return base;
}

/// Readings two minutes apart around noon, off by some tenths.
std::vector<LectureSerie> Lectures(const BaseLectures &base, int nombre) {
  std::vector<LectureSerie> lectures;
  for (int i = 0; i < nombre; ++i) {
    const InstantUTC utc = PlusTard(base.heureLieu, 120.0 * (i - nombre / 2));
    const PlaceGeocentrique place = PlaceA(base.astre, utc, 0);
    const Station station = StationDe(base, LieuDeLaBase(base, utc));
    const double juste = LecturePour(base.corrections, place, station, VueDe(place, station).hauteur);
    lectures.push_back({utc, juste + 0.4 / 60 * (i % 3 - 1)});
  }
  return lectures;
}

/// The sky of some moments, and a body in it.
void Ciels(const InstantUTC &utc, int nombre, const Astre &astre) {
  for (int i = 0; i < nombre; ++i) {
    benchmark::DoNotOptimize(PlaceA(astre, PlusTard(utc, i), 0));
  }
}

void Serie(benchmark::State &etat) {
  const int nombre = static_cast<int>(etat.range(0));
  etat.SetLabel(std::to_string(nombre) + " readings");
  const BaseLectures base = Base();
  const std::vector<LectureSerie> lectures = Lectures(base, nombre);
  Compare(
      etat, [&] { benchmark::DoNotOptimize(ReduitSerie(base, lectures)); },
      [&] { Ciels(base.heureLieu, nombre, base.astre); }, kAppels);
}
BENCHMARK(Serie)->Arg(5)->Arg(30)->Unit(benchmark::kMicrosecond);

void Meridienne(benchmark::State &etat) {
  const int nombre = static_cast<int>(etat.range(0));
  etat.SetLabel(std::to_string(nombre) + " readings");
  const BaseLectures base = Base();
  const std::vector<LectureSerie> lectures = Lectures(base, nombre);
  Compare(
      etat, [&] { benchmark::DoNotOptimize(ReduitMeridienne(base, lectures)); },
      [&] { Ciels(base.heureLieu, nombre, base.astre); }, kAppels);
}
BENCHMARK(Meridienne)->Arg(10)->Unit(benchmark::kMicrosecond);

/// One distance of a planet, searched six hours either way, against the sky of as many times as are tried first.
void Lunaire(benchmark::State &etat) {
  const int nombre = static_cast<int>(etat.range(0));
  etat.SetLabel(std::to_string(nombre) + (nombre == 1 ? " distance" : " distances"));
  ReglagesLunaire reglages;
  reglages.lieu = {20, -150};
  reglages.heureLieu = UTCDe({2026, 9, 20, 5, 0, 0});
  std::vector<MesureLunaire> mesures;
  for (int i = 0; i < nombre; ++i) {
    MesureLunaire m;
    m.montre = PlusTard(reglages.heureLieu, 60.0 * i);
    m.astre = {GenreAstre::Etoile, 32};
    const InstantUTC utc = PlusTard(m.montre, 100);
    m.lecture = VoitDistance(PlaceA({GenreAstre::Lune, 0}, utc, 0), m.bordLune, PlaceA(m.astre, utc, 0), m.bordAstre,
                             {20, -150, 0}, reglages.air)
                    .distance;
    mesures.push_back(m);
  }
  constexpr int kEssais = 75;
  Compare(
      etat, [&] { benchmark::DoNotOptimize(ReduitLunaires(mesures, reglages)); },
      [&] {
        Ciels(reglages.heureLieu, kEssais, {GenreAstre::Lune, 0});
      },
      1);
}
BENCHMARK(Lunaire)->Arg(1)->Arg(5)->Unit(benchmark::kMillisecond);

void ClasseLune(benchmark::State &etat) {
  std::vector<Astre> astres;
  for (int rang = 1; rang <= 60; ++rang) {
    astres.push_back({GenreAstre::Etoile, rang});
  }
  const InstantUTC utc = UTCDe({2026, 9, 20, 5, 0, 0});
  Compare(
      etat,
      [&] {
        benchmark::DoNotOptimize(ClasseLunaires(utc, {20, -150}, 2, astres));
      },
      [&] {
        Ciels(utc, 3, {GenreAstre::Lune, 0});
      },
      1);
}
BENCHMARK(ClasseLune)->Unit(benchmark::kMillisecond);

void FaitVoyage(benchmark::State &etat) {
  const NiveauExercice &niveau = NiveauDe(static_cast<std::size_t>(etat.range(0)));
  Compare(
      etat, [&] { benchmark::DoNotOptimize(FaitExercice(niveau.graine, niveau.conditions)); },
      [&] {
        Ciels(UTCDe({2026, 9, 20, 5, 0, 0}), niveau.conditions.visees, {GenreAstre::Lune, 0});
      },
      1);
}
BENCHMARK(FaitVoyage)->Arg(9)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

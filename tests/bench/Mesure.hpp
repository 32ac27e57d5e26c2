#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>

namespace velmaris {

/// Nanoseconds a call takes: the best of several rounds of one length.
template <class Appel> double Nanosecondes(Appel &&appel, int appels = 2000) {
  constexpr int kTours = 7;
  double meilleur = 1.0E300;
  for (int tour = 0; tour < kTours; ++tour) {
    const auto debut = std::chrono::steady_clock::now();
    for (int i = 0; i < appels; ++i) {
      appel();
    }
    const std::chrono::duration<double, std::nano> duree = std::chrono::steady_clock::now() - debut;
    meilleur = std::min(meilleur, duree.count() / appels);
  }
  return meilleur;
}

/// Runs the benchmark, then tells beside its time what the bare lower bound takes and how many times more it is.
/// Both are measured in the same way, one after the other.
template <class Appel, class Borne>
void Compare(benchmark::State &etat, Appel &&appel, Borne &&borne, int appels = 2000) {
  for ([[maybe_unused]] auto tour : etat) {
    appel();
  }
  const double nu = Nanosecondes(borne, appels);
  const double entier = Nanosecondes(appel, appels);
  etat.counters["borne_ns"] = nu;
  etat.counters["rapport"] = entier / nu;
}

} // namespace velmaris

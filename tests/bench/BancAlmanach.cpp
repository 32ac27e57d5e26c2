#include "Mesure.hpp"
#include "complements/almanach/JourDuCiel.hpp"
#include "complements/papier/PagesAlmanach.hpp"

#include <string>
#include <vector>

/// The almanac of a passage.
namespace velmaris {
namespace {

constexpr int kJours = 30;
constexpr int kAppels = 2;

Etoiles EtoilesDuBanc() {
  Etoiles etoiles;
  std::vector<std::string> noms;
  ChargeEtoiles(etoiles, noms);
  return etoiles;
}

DemandeAlmanach Mois() {
  DemandeAlmanach demande{.debut = {2026, 6, 1}, .fin = {2026, 6, kJours}, .latitudes = {}};
  for (double latitude = 60; latitude >= -60; latitude -= 10) {
    demande.latitudes.push_back(latitude);
  }
  return demande;
}

/// Thirty days with thirteen latitudes, figures and pages, against the bare places of their hours.
void MoisDAlmanach(benchmark::State &etat) {
  const Etoiles etoiles = EtoilesDuBanc();
  const DemandeAlmanach demande = Mois();
  const auto mois = [&] {
    const auto almanach = CalculeAlmanach(demande, etoiles);
    benchmark::DoNotOptimize(PagesAlmanach(*almanach, {}, {}));
  };
  const auto places = [&] {
    for (int jour = 0; jour < kJours; ++jour) {
      for (int h = 0; h < 24; ++h) {
        const CielDuMoment ciel = CielDeLHeure(JourPlusTard(demande.debut, jour), h, 0);
        for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
          benchmark::DoNotOptimize(PlaceDe(ciel, AstreAlmanachDe(i)));
        }
      }
    }
  };
  Compare(etat, mois, places, kAppels);
}
BENCHMARK(MoisDAlmanach)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

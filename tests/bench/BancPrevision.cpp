#include "Mesure.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Vue.hpp"
#include "complements/prevision/JeuxAstres.hpp"
#include "complements/prevision/Journee.hpp"

#include <string>
#include <vector>

/// The plan of a day.
namespace velmaris {
namespace {

constexpr int kAppels = 10;
constexpr JourCivil kJour{2026, 6, 21, std::nullopt};

/// A ship under way, with her day made ready.
struct JourDuBanc {
  Etoiles etoiles;
  NavirePrevu navire;
  CielDuJour ciel;
};

JourDuBanc Jour() {
  JourDuBanc j;
  std::vector<std::string> noms;
  ChargeEtoiles(j.etoiles, noms);
  j.navire.heure = UTCDe({2026, 6, 21, 12});
  j.navire.lieu = {47, -6};
  j.navire.hauteurOeil = 3;
  j.navire.route.jambes.push_back({j.navire.heure, 225, 6});
  j.ciel = *CielDeLaJournee(j.etoiles, kJour, j.navire);
  return j;
}

/// All bodies through a day, against their places at one moment.
void JourDuPlan(benchmark::State &etat) {
  const JourDuBanc j = Jour();
  const auto jour = [&] { benchmark::DoNotOptimize(CielDeLaJournee(j.etoiles, kJour, j.navire)); };
  const auto moment = [&] {
    const CielDuMoment ciel = PrepareCiel(MomentDe({2026, 6, 21, 12}));
    for (const AstreDuJour &a : j.ciel.astres) {
      benchmark::DoNotOptimize(PlaceDe(ciel, a.astre));
    }
  };
  Compare(etat, jour, moment, kAppels);
}
BENCHMARK(JourDuPlan)->Unit(benchmark::kMillisecond);

/// What a slider costs, against the altitudes alone.
void MomentDuPlan(benchmark::State &etat) {
  const JourDuBanc j = Jour();
  const InstantUTC utc = UTCDe({2026, 6, 21, 21, 30, 0});
  const auto moment = [&] { benchmark::DoNotOptimize(RegardeCiel(j.ciel, j.navire, utc, {})); };
  const auto hauteurs = [&] {
    const InstantDuJour instant = SitueInstant(j.ciel, utc);
    const Repere repere = RepereDe(StationDuNavire(j.navire, utc));
    for (std::size_t i = 0; i < j.ciel.astres.size(); ++i) {
      benchmark::DoNotOptimize(VueDuRepere(PlaceDuJour(j.ciel, i, instant), repere));
    }
  };
  Compare(etat, moment, hauteurs, kAppels);
}
BENCHMARK(MomentDuPlan)->Unit(benchmark::kMicrosecond);

/// Twilights, rises and passages, against a hundred altitudes of the Sun from the ship.
void JourneeDuPlan(benchmark::State &etat) {
  const JourDuBanc j = Jour();
  const auto journee = [&] { benchmark::DoNotOptimize(CalculeJournee(j.ciel, kJour, j.navire)); };
  const auto soleil = [&] {
    for (int i = 0; i < 100; ++i) {
      const InstantUTC utc = PlusTard(j.ciel.debut, 600.0 * i);
      benchmark::DoNotOptimize(
          VueDe(PlaceDuJour(j.ciel, 0, SitueInstant(j.ciel, utc)), StationDuNavire(j.navire, utc)));
    }
  };
  Compare(etat, journee, soleil, kAppels);
}
BENCHMARK(JourneeDuPlan)->Unit(benchmark::kMicrosecond);

/// The best sets of both twilights minute by minute, against the skies of those minutes.
void NuitDuPlan(benchmark::State &etat) {
  const JourDuBanc j = Jour();
  const std::vector<InstantUTC> moments = InstantsDePrise(*CalculeJournee(j.ciel, kJour, j.navire), 1);
  etat.SetLabel(std::to_string(moments.size()) + " minutes");
  const auto nuit = [&] { benchmark::DoNotOptimize(JeuxDesMoments(j.ciel, j.navire, moments, {}, {})); };
  const auto ciels = [&] {
    for (const InstantUTC &utc : moments) {
      benchmark::DoNotOptimize(RegardeCiel(j.ciel, j.navire, utc, {}, Prereglages::Sans));
    }
  };
  Compare(etat, nuit, ciels, kAppels);
}
BENCHMARK(NuitDuPlan)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

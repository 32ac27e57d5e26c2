#include "Mesure.hpp"
#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "shell/Demarrage.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/ciel/DessinCiel.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/visee/PanneauDirect.hpp"
#include "sky/AstresCiel.hpp"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

/// The whole sky drawn anew, against the bare sum of what it calls: 246 stars' places and conversions, the Sun, the
/// Moon and four planets by their full series, with nothing placed, listed or drawn. Argument: 1 for the horizontal
/// chart, 0 for the equatorial one.
void RedessineCiel(benchmark::State &etat) {
  Bureau bureau;
  std::string modele = (fs::temp_directory_path() / "velmaris-banc-XXXXXX").string();
  const fs::path dossier = ::mkdtemp(modele.data());
  bureau.dossiers = {dossier, VELMARIS_DONNEES, VELMARIS_DONNEES, dossier};
  bureau.ports.boite = [](const Boite &) -> bool { std::abort(); };
  bureau.horloge.source = [] { return TempsSysteme{2026, 6, 0, 21, 22, 5, 30, 0}; };
  bureau.horloge.locale = [] { return ValeurDate{2026, 6, 21, 22, 5, 30}; };
  Donnees_Charge(bureau, Ecran{});
  Command13_Click(bureau, -1);
  const bool horizontale = etat.range(0) == 1;
  bureau.ciel.Option1[0].choisi = !horizontale;
  bureau.ciel.Option1[1].choisi = horizontale;

  const ValeurDate date{2026, 6, 21, 22, 5, 30};
  const auto dessine = [&] { TraceCiel(bureau); };
  const auto somme = [&] {
    for (std::int16_t i = 1; i <= 246; ++i) {
      PaireX place = LitPaireX(CoordEtoile(bureau.etoiles, i, -1, {"21", "06", "2026"}));
      double latitude = 47.5;
      benchmark::DoNotOptimize(LitPaireX(CelesteVersHorizon(date, place.gauche, place.droite, latitude, -5.17)));
    }
    PosSoleil(bureau, true, true);
    PosLune(bureau, true, true);
    for (const std::string_view planete : kPlanetesCiel) {
      std::string nom(planete);
      benchmark::DoNotOptimize(PositionPlanete(nom, bureau.horloge));
    }
  };
  Compare(etat, dessine, somme, 30);
  bureau.valeurs.reset();
  fs::remove_all(dossier);
}
BENCHMARK(RedessineCiel)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

#include "Mesure.hpp"
#include "complements/registre/FiltreRegistre.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "foundations/Fichiers.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/// The log: a hundred thousand rows opened, and a page of them split, against what the bare file takes.
namespace velmaris {
namespace {

constexpr int kLignes = 100'000;
constexpr std::size_t kPage = 30; ///< rows in sight

/// A folder with a journal of that many rows, made once and removed at the end.
class Dossier {
public:
  Dossier() {
    std::string modele = (std::filesystem::temp_directory_path() / "velmaris-banc-XXXXXX").string();
    chemin = ::mkdtemp(modele.data());
    std::string texte = std::string(kTitresJournal) + "\n";
    for (int i = 0; i < kLignes; ++i) {
      std::array<char, 256> ligne{};
      std::snprintf(ligne.data(), ligne.size(),
                    "2026-06-21T12:05:40Z,Etoiles,Vega,%d,%d,%d,%d,%d,30,47,30,N,5,10,W,65,34,38,secondes,\"-1,0\","
                    "\"2,5\",centre,naturel,65.7687,65.6998,4.136212,190.6131,2,%016d,4.168,-0.032\n",
                    i % 28 + 1, i % 12 + 1, 1990 + i % 37, i % 24, i % 60, i);
      texte += ligne.data();
    }
    std::ofstream(chemin / "journal.csv", std::ios::binary) << texte;
  }
  ~Dossier() { std::filesystem::remove_all(chemin); }
  Dossier(const Dossier &) = delete;
  Dossier &operator=(const Dossier &) = delete;
  Dossier(Dossier &&) = delete;
  Dossier &operator=(Dossier &&) = delete;
  std::filesystem::path chemin;
};

const Dossier &LeDossier() {
  static const Dossier dossier;
  return dossier;
}

void RegistreContreFichier(benchmark::State &etat) {
  const std::filesystem::path &dossier = LeDossier().chemin;
  Compare(
      etat, [&] { benchmark::DoNotOptimize(LitRegistre(dossier)); },
      [&] { benchmark::DoNotOptimize(LitFichier(dossier / "journal.csv")); }, 1);
}
BENCHMARK(RegistreContreFichier)->Unit(benchmark::kMillisecond);

void PageContreRegistre(benchmark::State &etat) {
  const auto registre = LitRegistre(LeDossier().chemin);
  std::size_t debut = 0;
  const auto page = [&] {
    debut = (debut + 7919) % (registre->lignes.size() - kPage);
    for (std::size_t i = 0; i < kPage; ++i) {
      benchmark::DoNotOptimize(RangeeDe(*registre, debut + i));
    }
  };
  Compare(
      etat, page, [&] { benchmark::DoNotOptimize(Filtre(*registre, {}, {})); }, 1);
}
BENCHMARK(PageContreRegistre)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmaris

#include "Mesure.hpp"
#include "chart/Polygones.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/Demarrage.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/carte/Carte.hpp"

#include <charconv>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

const fs::path kContours = fs::path(VELMARIS_DONNEES) / "Contours.Asc";

/// A file's bytes with nothing but the system's calls.
std::string LitNu(const fs::path &chemin) {
  const int fichier = ::open(chemin.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat etat {};
  if (fichier < 0 || ::fstat(fichier, &etat) != 0) {
    std::abort();
  }
  std::string octets(static_cast<std::size_t>(etat.st_size), '\0');
  if (::read(fichier, octets.data(), octets.size()) != etat.st_size) {
    std::abort();
  }
  ::close(fichier);
  return octets;
}

/// All numbers of a text, and no rule about them.
void ConvertitNu(const std::string &octets, std::vector<double> &nombres) {
  nombres.clear();
  const char *p = octets.data();
  const char *fin = p + octets.size();
  while (p < fin) {
    double valeur = 0.0;
    const auto [suite, code] = std::from_chars(p, fin, valeur);
    nombres.push_back(valeur);
    p = suite + 1;
  }
}

/// One full polygon file, read into the table, against a bare read and std::from_chars of the same bytes.
void LitUnFichier(benchmark::State &etat) {
  Polygone polygone;
  std::vector<double> nombres;
  nombres.reserve(2 * kPointsPolygone);
  const auto lit = [&] {
    Vide(polygone);
    benchmark::DoNotOptimize(LitPolygone(polygone, LitFichier(kContours)));
  };
  const auto nu = [&] {
    ConvertitNu(LitNu(kContours), nombres);
    benchmark::DoNotOptimize(nombres.data());
  };
  Compare(etat, lit, nu, 20);
}
BENCHMARK(LitUnFichier)->Unit(benchmark::kMillisecond);

/// The whole chart with all its layers, files read and segments recorded, against a bare read and std::from_chars of
/// all its files. Argument 0: the whole world; else miles over the height of a sheet off Brittany.
void DessineCarte(benchmark::State &etat) {
  Bureau bureau;
  std::string modele = (fs::temp_directory_path() / "velmaris-banc-XXXXXX").string();
  const fs::path dossier = ::mkdtemp(modele.data());
  bureau.dossiers = {dossier, VELMARIS_DONNEES, VELMARIS_DONNEES, dossier};
  bureau.ports.boite = [](const Boite &) -> bool { std::abort(); };
  Donnees_Charge(bureau, Ecran{});
  if (const auto milles = static_cast<std::int16_t>(etat.range(0)); milles != 0) {
    bureau.feuille.OrigineFeuille = {47.5F, 5.0F};
    bureau.feuille.Zoom = milles;
    bureau.feuille.EchelleY = static_cast<float>(bureau.image1.hauteur / milles);
    bureau.feuille.EchelleX = bureau.feuille.EchelleY * 0.6756F;
  }
  std::vector<double> nombres;
  const auto nu = [&] {
    for (const char *nom : {"Contours.Asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc"}) {
      ConvertitNu(LitNu(fs::path(VELMARIS_DONNEES) / nom), nombres);
      benchmark::DoNotOptimize(nombres.data());
    }
  };
  const auto dessine = [&] {
    Efface(bureau.image1);
    OuvreCartes(bureau);
  };
  Compare(etat, dessine, nu, 5);
  etat.counters["traces"] = static_cast<double>(bureau.image1.traces.size());
  bureau.valeurs.reset();
  fs::remove_all(dossier);
}
BENCHMARK(DessineCarte)->ArgName("milles")->Arg(0)->Arg(8)->Arg(200)->Arg(3000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

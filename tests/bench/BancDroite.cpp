#include "Mesure.hpp"
#include "shell/Demarrage.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/ecran/ChoixFichier.hpp"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <unistd.h>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

/// The program without a screen, with three sights of the Sun in its store.
class Programme {
public:
  Programme() {
    std::string modele = (fs::temp_directory_path() / "velmaris-banc-XXXXXX").string();
    dossier_ = ::mkdtemp(modele.data());
    bureau.dossiers = {dossier_ / "utilisateur", "/nulle/part", "/nulle/part", dossier_};
    bureau.ports.boite = [](const Boite &) { return true; };
    Donnees_Charge(bureau, Ecran{});
    for (int ligne = 0; ligne < 3; ++ligne) {
      TapeVisee(ligne);
      Command2_Click(bureau, -1);
      Clic(ModeDroite::Enregistre, ligne);
    }
    Command6_Click(bureau, -1);
  }
  ~Programme() {
    bureau.valeurs.reset();
    std::error_code refus;
    fs::remove_all(dossier_, refus);
  }
  Programme(const Programme &) = delete;
  Programme &operator=(const Programme &) = delete;
  Programme(Programme &&) = delete;
  Programme &operator=(Programme &&) = delete;

  void Clic(ModeDroite mode, int ligne) {
    PoseMode(bureau, mode);
    Droite_Click(bureau, ligne);
  }

  void TapeVisee(int ligne) {
    Donnees &d = bureau.donnees;
    const std::pair<Controle *, const char *> champs[] = {
        {&d.TDate[0], "21"}, {&d.TDate[1], "06"}, {&d.TDate[2], "2026"}, {&d.Text4, "05"},  {&d.Text5, "30"},
        {&d.Text6, "05"},    {&d.Text7, "10"},    {&d.Text8, "47"},      {&d.Text9, "30"},  {&d.Text10, "2,5"},
        {&d.Text11, "-1"},   {&d.Text12, "34"},   {&d.Text13, "65"},     {&d.Text25, "38"}, {&d.Text3, "12"}};
    for (const auto &[champ, texte] : champs) {
      PoseTexte(bureau, *champ, texte);
    }
    PoseTexte(bureau, d.Text9, std::to_string(30 + ligne));
    PoseOption(bureau, d.OptN[0]);
  }

  const fs::path &dossier() const { return dossier_; }

  Bureau bureau;

private:
  fs::path dossier_;
};

/// A write of a line's size, flushed: what no durable store can go under.
void EcritNu(int fichier) {
  constexpr std::size_t kOctets = 4096;
  const std::string octets(kOctets, 'x');
  if (::pwrite(fichier, octets.data(), octets.size(), 0) < 0 || ::fdatasync(fichier) != 0) {
    std::abort();
  }
}

/// "Afficher" of a line on a sheet, store and drawing included, against a copy of the sheet.
void ClicDroite(benchmark::State &etat) {
  Programme p;
  p.bureau.feuille.Grille = static_cast<std::int16_t>(etat.range(0));
  p.Clic(ModeDroite::Affiche, 0);
  const std::vector<Trace> modele = p.bureau.image1.traces;
  const auto copie = [&] {
    std::vector<Trace> traces = modele;
    benchmark::DoNotOptimize(traces.data());
  };
  const auto clic = [&] {
    Command6_Click(p.bureau, -1);
    p.Clic(ModeDroite::Affiche, 0);
  };
  Compare(etat, clic, copie, 50);
}
BENCHMARK(ClicDroite)->ArgName("grille")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

/// A redraw of three lines and two transports, as each step of the zoom slider makes it.
void RetraceTrois(benchmark::State &etat) {
  Programme p;
  for (int ligne = 0; ligne < 3; ++ligne) {
    p.Clic(ModeDroite::Affiche, ligne);
  }
  PoseTexte(p.bureau, p.bureau.donnees.Combo5, "3");
  p.Clic(ModeDroite::TransporteDroite, 0);
  p.Clic(ModeDroite::TransporteDroite, 1);
  const std::vector<Trace> modele = p.bureau.image1.traces;
  const auto copie = [&] {
    std::vector<Trace> traces = modele;
    benchmark::DoNotOptimize(traces.data());
  };
  Compare(
      etat, [&] { RetraceDroites(p.bureau); }, copie, 50);
}
BENCHMARK(RetraceTrois)->Unit(benchmark::kMicrosecond);

/// "Enregistrer", all its keys in one durable commit, against one flushed write.
void EnregistreDurable(benchmark::State &etat) {
  Programme p;
  const int fichier = ::open((p.dossier() / "nu").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  int tour = 0;
  const auto range = [&] {
    PoseTexte(p.bureau, p.bureau.donnees.Text5, std::to_string(10 + tour++ % 50));
    p.Clic(ModeDroite::Enregistre, 3);
  };
  Compare(
      etat, range, [&] { EcritNu(fichier); }, 20);
  ::close(fichier);
}
BENCHMARK(EnregistreDurable)->Unit(benchmark::kMicrosecond);

/// The file dialog on a folder of 10,000 sights, against a bare walk through the folder.
void OuvreDossier(benchmark::State &etat) {
  Programme p;
  constexpr int kFichiers = 10000;
  for (int i = 0; i < kFichiers; ++i) {
    std::ofstream(p.dossier() / ("21JUN26 " + std::to_string(i) + ".LoP")) << i;
  }
  const auto parcourt = [&] {
    std::size_t octets = 0;
    for (const auto &entree : fs::directory_iterator(p.dossier())) {
      octets += entree.path().native().size();
    }
    benchmark::DoNotOptimize(octets);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(ChoisitFichier(p.bureau, "", "*LoP", "*LoP")); }, parcourt, 3);
}
BENCHMARK(OuvreDossier)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

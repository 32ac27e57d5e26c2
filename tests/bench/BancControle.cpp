#include "Mesure.hpp"
#include "complements/controle/Controle.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

#include <filesystem>
#include <string>
#include <vector>

/// The check of a sight against its told reduction.
namespace velmaris {
namespace {

constexpr int kAppels = 100;

struct Exemple {
  const char *nom;
  const char *fichier;
};

constexpr Exemple kExemples[] = {{"the Sun", "21JUN26 120530.LoP"},
                                 {"the Moon", "24SEP26 203025.LoP"},
                                 {"Venus", "30JUN26 204020.LoP"},
                                 {"a star", "03MAI26 210540.LoP"}};

const Etoiles &Table() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

Observation Visee(const char *fichier) {
  Observation observation;
  ChargeLoP(std::filesystem::path(VELMARIS_DONNEES) / "exemples" / fichier, observation);
  return observation;
}

/// Reduces a sight by its kind of body.
ResultatDit Reduis(Observation &o) {
  ValeursVisee v;
  AffichageDroite affichage;
  v.HeureDecimale = HeureDesChamps(o);
  LitEstime(o, v);
  if (o.corps == Corps::Soleil) {
    const ReductionSoleil soleil = Calcul_DroiteSOL(o, v, affichage, {});
    return {soleil.lue.Ho, soleil.Hc, v.Azimut, v.Intercept};
  }
  Lune lune;
  const Reduction r = o.corps == Corps::Lune       ? Calcul_DroiteLUN(o, v, lune, affichage, {})
                      : o.corps == Corps::Planetes ? Calcul_DroitePLA(o, v, affichage, {})
                                                   : Calcul_DroiteSTAR(o, v, Table(), affichage, {});
  return {r.lue.Ho, v.HauteurCalculee, v.Azimut, v.Intercept};
}

/// Every check is of another second, so that nothing is found ready.
void Avance(Observation &o) {
  static int secondes = 0;
  secondes = (secondes + 7) % 60;
  o.seconde = std::to_string(secondes);
}

void Controle(benchmark::State &etat) {
  const Exemple &exemple = kExemples[etat.range(0)];
  etat.SetLabel(exemple.nom);
  Observation o = Visee(exemple.fichier);
  const ResultatDit dit = Reduis(o);
  const auto controle = [&] {
    Avance(o);
    benchmark::DoNotOptimize(ControleVisee(o, dit, Table()));
  };
  const auto reduction = [&] {
    Avance(o);
    benchmark::DoNotOptimize(Reduis(o));
  };
  Compare(etat, controle, reduction, kAppels);
}
BENCHMARK(Controle)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

/// A sight 60 miles off is searched for a slip.
void Glissades(benchmark::State &etat) {
  const Exemple &exemple = kExemples[etat.range(0)];
  etat.SetLabel(exemple.nom);
  Observation o = Visee(exemple.fichier);
  const ResultatDit dit = Reduis(o);
  const auto controle = [&] {
    Avance(o);
    benchmark::DoNotOptimize(ControleVisee(o, dit, Table()));
  };
  const auto recherche = [&] {
    Avance(o);
    benchmark::DoNotOptimize(ChercheGlissades(o, {}));
  };
  Compare(etat, recherche, controle, kAppels);
}
BENCHMARK(Glissades)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmaris

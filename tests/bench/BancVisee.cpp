#include "Mesure.hpp"
#include "foundations/Angles.hpp"
#include "lines/Feuille.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteSOL.hpp"

#include <cmath>
#include <cstring>

namespace velmaris {
namespace {

/// The surface of a large window on a dense screen, 1/1440 inch.
constexpr double kLargeur = 28800.0;
constexpr double kHauteur = 14000.0;

Observation Visee() {
  Observation o;
  o.jour = "21";
  o.mois = "06";
  o.annee = "2026";
  o.heure = "12";
  o.minute = "05";
  o.seconde = "30";
  o.longitudeDegres = "05";
  o.longitudeMinutes = "10";
  o.latitudeDegres = "47";
  o.latitudeMinutes = "30";
  o.hauteurOeil = "2,5";
  o.collimation = "-1";
  o.lectureMinutes = "34";
  o.lectureDegres = "65";
  o.lectureFraction = "38";
  return o;
}

TexteMsg Messages() {
  TexteMsg messages;
  messages.fill("Hauteur observée : ");
  return messages;
}

/// Everything that a click on "Calcul" works on.
struct Table {
  Observation observation = Visee();
  ValeursVisee valeurs;
  AffichageDroite affichage;
  Feuille feuille;
  Surface surface;
  TexteMsg messages = Messages();
};

void Reduit(Table &t) {
  t.valeurs.HeureDecimale = HeureDesChamps(t.observation);
  LitEstime(t.observation, t.valeurs);
  benchmark::DoNotOptimize(Calcul_DroiteSOL(t.observation, t.valeurs, t.affichage, t.messages));
}

void Clic(Table &t) {
  NormaliseLecture(t.observation);
  Reduit(t);
  TraceDroites(t.feuille, t.surface, t.observation, t.valeurs);
  benchmark::DoNotOptimize(t.surface.traces.data());
}

/// The functions of one reduction in 64 bits, on figures already read, with no text.
double CalculNu(double heure, double lecture, double latitude, double longitude) {
  constexpr double R = kRadCourt;
  const double T = 1.26468 + heure / 876600.0;
  const double correction = 0.0321 * std::sqrt(2.5) + R / std::tan((lecture + 7.31 / lecture + 4.4) * R) +
                            0.06 * std::sin(13.0 * R + lecture) + 0.147 * std::cos(lecture * R) / 60;
  const double Ma = (358.47583 + 35999.04975 * T) * R;
  const double Lg = (279.69668 + 36000.76892 * T + 1.919 * std::sin(Ma) + 0.020094 * std::sin(2.0 * Ma)) * R;
  const double Eps = (23.452294 - 0.01301 * T) * R;
  double AD = std::atan(std::tan(Lg) * std::cos(Eps));
  AD = std::cos(Lg) < 0 ? AD + 180.0 * R : AD;
  const double s = std::sin(Lg) * std::sin(Eps);
  const double Dec = std::atan(s / std::sqrt(1.0 - s * s));
  const double ST = 6.6460656 + 2400.051262 * T + heure * 1.0027389;
  const double AHL = 15 * (ST - 24 * std::floor(ST / 24)) * R - AD - longitude * R;
  const double L = latitude * R;
  const double x = std::sin(L) * std::sin(Dec) + std::cos(Dec) * std::cos(L) * std::cos(AHL);
  const double Hc = std::atan(x / std::sqrt(1.0 - x * x));
  const double y = (std::sin(Dec) - std::sin(L) * std::sin(Hc)) / (std::cos(L) * std::cos(Hc));
  const double azimut = std::atan(-y / std::sqrt(1.0 - y * y)) + 2.0 * std::atan(1.0);
  return azimut + lecture - correction - Hc / R;
}

/// The figures of the sight, read afresh so that no compiler knows them.
const volatile double kHeure = 12.09;
const volatile double kLecture = 65.58;
const volatile double kLatitude = 47.5;
const volatile double kLongitude = 5.17;

void CalculNuMesure() { benchmark::DoNotOptimize(CalculNu(kHeure, kLecture, kLatitude, kLongitude)); }

/// A reduction of the Sun with its texts, against its bare functions.
void ReductionSoleil(benchmark::State &etat) {
  Table t;
  Compare(
      etat, [&] { Reduit(t); }, CalculNuMesure);
  etat.SetItemsProcessed(etat.iterations());
}
BENCHMARK(ReductionSoleil);

/// The core's work for a click on "Calcul", against a copy of what it draws.
void ClicCalcul(benchmark::State &etat) {
  Table t;
  t.feuille.Zoom = static_cast<std::int16_t>(etat.range(0));
  t.feuille.Grille = static_cast<std::int16_t>(etat.range(1));
  t.surface.largeur = kLargeur;
  t.surface.hauteur = kHauteur;
  Clic(t);
  const std::vector<Trace> modele = t.surface.traces;
  const auto copie = [&] {
    std::vector<Trace> traces = modele;
    benchmark::DoNotOptimize(traces.data());
  };
  Compare(
      etat, [&] { Clic(t); }, copie, 50);
  etat.counters["traces"] = static_cast<double>(t.surface.traces.size());
}
BENCHMARK(ClicCalcul)
    ->ArgNames({"zoom", "grille"})
    ->ArgsProduct({{20, 60, 240, 1000, 3000}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);

/// A file's bytes to a reduced sight, against a search for its line ends.
void FichierEnMemoire(benchmark::State &etat) {
  const std::string octets = EcritLoP(Visee());
  const TexteMsg messages = Messages();
  const auto charge = [&] {
    Table t;
    TableLoP lignes;
    LitLignesLoP(octets, lignes);
    AppliqueLoP(lignes, t.observation);
    t.valeurs.HeureDecimale = HeureDesChamps(t.observation);
    LitEstime(t.observation, t.valeurs);
    benchmark::DoNotOptimize(Calcul_DroiteSOL(t.observation, t.valeurs, t.affichage, messages));
  };
  const auto parcourt = [&] {
    const char *place = octets.data();
    const char *fin = place + octets.size();
    while (place != nullptr && place < fin) {
      const void *ligne = std::memchr(place, '\n', static_cast<std::size_t>(fin - place));
      benchmark::DoNotOptimize(ligne);
      place = ligne == nullptr ? nullptr : static_cast<const char *>(ligne) + 1;
    }
  };
  Compare(etat, charge, parcourt);
  etat.SetItemsProcessed(etat.iterations());
  etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(octets.size()));
}
BENCHMARK(FichierEnMemoire);

} // namespace
} // namespace velmaris

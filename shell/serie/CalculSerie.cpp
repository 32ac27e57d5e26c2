#include "shell/serie/CalculSerie.hpp"

#include "complements/serie/LecturesPretes.hpp"
#include "shell/complements/CandidatsLune.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/GardeSerie.hpp"
#include "shell/serie/LectureChamps.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMinute = 60; ///< seconds; of arc in a degree too

/// What the core takes: the readings that have their angle.
std::vector<LectureSerie> LecturesLues(SerieOuverte &p) {
  std::vector<LectureSerie> lues;
  p.rangs.clear();
  for (std::size_t i = 0; i < p.lectures.size(); ++i) {
    if (p.lectures[i].lecture) {
      p.rangs.push_back(i);
      lues.push_back({p.lectures[i].utc, *p.lectures[i].lecture, p.lectures[i].ecartee});
    }
  }
  return lues;
}

void RefaitUneSerie(SerieOuverte &p, const BaseLectures &base) {
  constexpr std::size_t kPoints = 61;
  const std::vector<LectureSerie> lues = LecturesLues(p);
  p.fiche = ReduitSerie(base, lues);
  p.course = CourseSerie(base, lues, p.fiche, kPoints);
}

/// The longitude by the two times of equal altitudes; nothing where a field is empty or can't be used.
void RefaitEgales(FenetreSerie &f, SerieOuverte &p, const BaseLectures &base) {
  p.egales.reset();
  std::array<std::optional<InstantUTC>, 2> heures;
  for (std::size_t i = 0; i < heures.size(); ++i) {
    heures.at(i) = LitHeureProche(f.Text6.at(i).texte, base.heureLieu);
    MarqueChamp(f.Text6.at(i), heures.at(i) || f.Text6.at(i).texte.empty(), f.TexteHors.legende);
  }
  if (heures[0] && heures[1]) {
    try {
      p.egales = LongitudeDeHauteursEgales(base, *heures[0], *heures[1]);
    } catch (const Refus &) {
      p.egales.reset();
    }
  }
}

void RefaitMidi(FenetreSerie &f, SerieOuverte &p, const BaseLectures &base) {
  constexpr double kCosinusMin = 0.05;
  const std::vector<LectureSerie> lues = LecturesLues(p);
  const double cosinus = std::cos(base.lieu.latitude * std::numbers::pi / 180);
  p.midi = ReduitMeridienne(base, lues, base.douteLieu / std::max(kCosinusMin, cosinus));
  p.courbe = p.midi.passage ? CourbeMidi(base, p.midi) : std::vector<PointMidi>();
  RefaitEgales(f, p, base);
}

/// Reduces distances beside the interface: ten of them take 70 ms. A result of other figures than those that the window
/// holds by then is dropped.
void DemandeLune(Bureau &bureau, std::vector<MesureLunaire> mesures, const ReglagesLunaire &reglages) {
  bureau.ports.travaille(
      [mesures = std::move(mesures), reglages, pour = TexteSerie(bureau), &bureau]() -> std::function<void()> {
        return [fiche = ReduitLunaires(mesures, reglages), pour, &bureau] {
          if (TexteSerie(bureau) == pour) {
            bureau.serie.lune = fiche;
            bureau.serie.aMontrer = true;
          }
        };
      });
}

void RefaitLune(Bureau &bureau, const BaseLectures &base) {
  SerieOuverte &p = bureau.serie;
  const ReglagesLunaire reglages = LitReglagesLunaire(bureau, base);
  p.lune = FicheLunaire();
  if (!p.distances.empty()) {
    DemandeLune(bureau, MesuresDe(p.distances, base), reglages);
  }
  p.candidats = CandidatsLune(base.heureLieu, base.lieu, reglages.hauteurOeil, reglages.air, base.dut1);
}

/// Sorts rows by time, and drops those that a later one of the same second replaces.
template <class Ligne, class Temps> void Ordonne(std::vector<Ligne> &lignes, std::size_t &suivie, Temps &&temps) {
  std::vector<std::size_t> ordre;
  for (std::size_t i = 0; i < lignes.size(); ++i) {
    const bool remplacee =
        std::any_of(lignes.begin() + static_cast<std::ptrdiff_t>(i) + 1, lignes.end(),
                    [&](const Ligne &l) { return SecondesDe(temps(l)) == SecondesDe(temps(lignes[i])); });
    if (!remplacee) {
      ordre.push_back(i);
    }
  }
  std::stable_sort(ordre.begin(), ordre.end(),
                   [&](std::size_t a, std::size_t b) { return SecondesEntre(temps(lignes[a]), temps(lignes[b])) > 0; });
  std::vector<Ligne> rangees;
  rangees.reserve(ordre.size());
  for (const std::size_t rang : ordre) {
    rangees.push_back(lignes[rang]);
  }
  suivie = static_cast<std::size_t>(std::find(ordre.begin(), ordre.end(), suivie) - ordre.begin());
  lignes = std::move(rangees);
}

void OublieResultats(SerieOuverte &p) {
  p.rangs.clear();
  p.fiche = FicheSerie();
  p.course.clear();
  p.midi = FicheMeridienne();
  p.courbe.clear();
  p.egales.reset();
  p.lune = FicheLunaire();
  p.candidats.clear();
}

} // namespace

void RefaitSerie(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
  p.aMontrer = true;
  p.dit.clear();
  GardeSerie(bureau);
  const std::optional<BaseLectures> base = LitBase(bureau);
  if (!base) { // what was worked out stays in sight while a field is mended, but not beside other readings than its own
    if (p.lectures != p.lecturesReduites || p.distances != p.distancesReduites) {
      OublieResultats(p);
    }
    return;
  }
  p.lecturesReduites = p.lectures;
  p.distancesReduites = p.distances;
  switch (static_cast<PageSerie>(f.Onglets1.rang)) {
  case PageSerie::Serie:
    RefaitUneSerie(p, *base);
    break;
  case PageSerie::Midi:
    RefaitMidi(f, p, *base);
    break;
  case PageSerie::Lune:
    RefaitLune(bureau, *base);
    break;
  }
}

std::vector<MesureLunaire> MesuresDe(const std::vector<DistanceListee> &distances, const BaseLectures &base) {
  const double collimation = base.corrections.collimation;
  const double correction = (collimation - Depression(base.corrections.hauteurOeil)) / kMinute;
  std::vector<MesureLunaire> mesures;
  for (const DistanceListee &d : distances) {
    MesureLunaire m = d.mesure;
    m.collimation = collimation;
    if (d.hauteurLune && d.hauteurAstre) {
      m.hauteurLune = *d.hauteurLune + correction;
      m.hauteurAstre = *d.hauteurAstre + correction;
    }
    mesures.push_back(m);
  }
  return mesures;
}

std::vector<PointMidi> CourbeMidi(const BaseLectures &base, const FicheMeridienne &midi) {
  constexpr int kPoints = 41;
  constexpr double kMoins = 6; // minutes that it shows at least, either way
  BaseLectures ici = base;
  ici.heureLieu = midi.passage->heure;
  ici.lieu = midi.passage->lieu;
  ici.lieu.latitude = midi.latitude ? midi.latitude->latitude : ici.lieu.latitude;
  ici.lieu.longitude = midi.longitude ? midi.longitude->longitude : ici.lieu.longitude;
  double debut = -kMoins;
  double fin = kMoins;
  for (const ResiduMidi &r : midi.residus) {
    debut = std::min(debut, r.minutes);
    fin = std::max(fin, r.minutes);
  }
  std::vector<PointMidi> courbe;
  try {
    for (int i = 0; i < kPoints; ++i) {
      const double minutes = debut + (fin - debut) * i / (kPoints - 1);
      const InstantUTC utc = PlusTard(midi.passage->heure, minutes * kMinute);
      const Station station = StationDe(ici, LieuDeLaBase(ici, utc));
      courbe.push_back({minutes, VueDe(PlaceA(ici.astre, utc, ici.dut1), station).hauteur});
    }
  } catch (const Refus &) {
    courbe.clear();
  }
  return courbe;
}

double HauteurSurCourbe(const std::vector<PointMidi> &courbe, double minutes) {
  const auto apres = std::find_if(courbe.begin() + 1, courbe.end() - 1,
                                  [&](const PointMidi &point) { return point.minutes >= minutes; });
  const PointMidi &a = *(apres - 1);
  const PointMidi &b = *apres;
  return a.hauteur + (b.hauteur - a.hauteur) * (minutes - a.minutes) / (b.minutes - a.minutes);
}

void OrdonneLectures(std::vector<LectureListee> &lectures, std::size_t &suivie) {
  Ordonne(lectures, suivie, [](const LectureListee &l) { return l.utc; });
}

void OrdonneDistances(std::vector<DistanceListee> &distances, std::size_t &suivie) {
  Ordonne(distances, suivie, [](const DistanceListee &d) { return d.mesure.montre; });
}

} // namespace velmaris

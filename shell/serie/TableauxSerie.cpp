#include "shell/serie/TableauxSerie.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/CandidatsLune.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/RangeesTexte.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace velmaris {
namespace {

/// What the page in front says of a reading, by its place among those that have their angle.
struct DitDeLecture {
  std::optional<double> residu; ///< minutes
  bool improbable = false;
  bool plusHaute = false;
};

DitDeLecture DitDe(const Bureau &bureau, std::size_t place) {
  const SerieOuverte &p = bureau.serie;
  const bool midi = bureau.fenetreSerie.Onglets1.rang == static_cast<int>(PageSerie::Midi);
  DitDeLecture dit;
  if (midi && place < p.midi.residus.size()) {
    dit.residu = p.midi.residus[place].residu;
  } else if (!midi && p.fiche.faite && place < p.fiche.residus.size()) {
    dit.residu = p.fiche.residus[place].residu;
  }
  dit.improbable = (midi ? p.midi.improbable : p.fiche.improbable) == place;
  dit.plusHaute = midi && p.midi.plusHaute == place;
  return dit;
}

RangeeTexte RangeeDeLecture(const Bureau &bureau, std::size_t rang) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  const LectureListee &lecture = p.lectures[rang];
  const auto place = std::find(p.rangs.begin(), p.rangs.end(), rang);
  RangeeTexte r;
  r.cochee = !lecture.ecartee;
  r.ton = lecture.ecartee || !lecture.lecture ? TonLigne::Faible : TonLigne::Ordinaire;
  r.textes = {TexteHeureUtc(lecture.utc), lecture.lecture ? TexteAngleSigne(*lecture.lecture) : "", "",
              lecture.lecture ? (lecture.ecartee ? f.TexteEcartee.legende : "") : f.TexteAttend.legende};
  if (place == p.rangs.end()) {
    return r;
  }
  const DitDeLecture dit = DitDe(bureau, static_cast<std::size_t>(place - p.rangs.begin()));
  r.textes[2] = dit.residu ? DixiemesSignes(*dit.residu) + "'" : "";
  if (dit.improbable) {
    r.textes[3] = f.TexteImprobable.legende;
    r.ton = TonLigne::Alerte;
  } else if (dit.plusHaute && !lecture.ecartee) {
    r.textes[3] = f.TextePlusHaute.legende;
  }
  return r;
}

/// The row that is chosen in the list is the table's current one.
void Suit(Tableau &t, std::size_t choisie) {
  if (choisie < t.lignes) {
    t.courante = static_cast<int>(choisie);
    t.choisies = {choisie};
  }
}

std::string MotsBords(const FenetreSerie &f, const MesureLunaire &m) {
  return f.MotBordDistance.at(static_cast<std::size_t>(m.bordLune)).legende + ", " +
         f.MotBordDistance.at(static_cast<std::size_t>(m.bordAstre)).legende;
}

RangeeTexte RangeeDeDistance(const Bureau &bureau, std::size_t rang) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  const DistanceListee &d = p.distances[rang];
  const auto &solution = p.lune.solution;
  const auto angle = [](const std::optional<double> &degres) { return degres ? TexteAngleSigne(*degres) : ""; };
  const bool connue = solution && rang < solution->residus.size();
  RangeeTexte r;
  r.cochee = !d.mesure.ecartee;
  r.ton = d.mesure.ecartee ? TonLigne::Faible : TonLigne::Ordinaire;
  r.textes = {TexteHeureUtc(d.mesure.montre),
              NomDAstre(bureau, d.mesure.astre),
              MotsBords(f, d.mesure),
              TexteAngleSigne(d.mesure.lecture),
              angle(d.hauteurLune),
              angle(d.hauteurAstre),
              connue ? DixiemesSignes(solution->residus[rang].residu) + "'" : "",
              d.mesure.ecartee ? f.TexteEcartee.legende : ""};
  if (solution && solution->improbable == rang) {
    r.textes.back() = f.TexteImprobable.legende;
    r.ton = TonLigne::Alerte;
  }
  return r;
}

} // namespace

void PoseLectures(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.serie.lectures.size());
  for (std::size_t i = 0; i < bureau.serie.lectures.size(); ++i) {
    rangees.push_back(RangeeDeLecture(bureau, i));
  }
  f.Lectures.tableau.coches = true;
  PoseRangees(f.Lectures.tableau, ColonnesDe<4>(f.MotColonne, {1350, 1350, 1050, 2000}, 0, 2), std::move(rangees));
  Suit(f.Lectures.tableau, bureau.serie.choisie);
}

void PoseDistances(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.serie.distances.size());
  for (std::size_t i = 0; i < bureau.serie.distances.size(); ++i) {
    rangees.push_back(RangeeDeDistance(bureau, i));
  }
  f.Distances.tableau.coches = true;
  PoseRangees(f.Distances.tableau,
              ColonnesDe<8>(f.MotColonneDistance, {960, 1080, 1320, 1020, 960, 960, 840, 900}, 3, 6),
              std::move(rangees));
  Suit(f.Distances.tableau, bureau.serie.choisieLune);
  PoseCandidatsLune(bureau, bureau.serie.candidats, bureau.fenetreSerie.Candidats.tableau);
}

} // namespace velmaris

#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/DessinSerie.hpp"
#include "shell/serie/LectureChamps.hpp"
#include "shell/serie/MotsSerie.hpp"
#include "shell/serie/Serie.hpp"
#include "shell/serie/TableauxSerie.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace velmaris {
namespace {

/// A surface as large as the control that shows it.
/// @return whether it was another size
bool Etend(Surface &surface, const Controle &c) {
  const bool autre = surface.largeur != c.place.largeur || surface.hauteur != c.place.hauteur;
  surface.largeur = c.place.largeur;
  surface.hauteur = c.place.hauteur;
  return autre;
}

/// Lines of words in their places; those that have none left are empty.
template <std::size_t N, class Lignes> void PoseLignesDe(std::array<Controle, N> &places, const Lignes &lignes) {
  for (std::size_t i = 0; i < N; ++i) {
    places.at(i).legende = i < lignes.size() ? lignes[i] : std::string();
  }
}

double EcartTypeDe(Bureau &bureau) {
  const std::optional<BaseLectures> base = LitBase(bureau);
  return base ? base->ecartType : BaseLectures().ecartType;
}

TraceLectures TraceSerie(const SerieOuverte &p, double ecartType) {
  TraceLectures trace;
  trace.ecartType = ecartType;
  trace.origine = p.fiche.milieu;
  for (const PointCourse &point : p.course) {
    trace.course.push_back({point.minutes, point.hauteur});
  }
  for (std::size_t i = 0; i < std::min(p.rangs.size(), p.fiche.residus.size()); ++i) {
    const ResiduSerie &r = p.fiche.residus[i];
    // The course bears the run's offset; so does the reading.
    const double hauteur = r.hauteur + (p.fiche.decalage + r.residu) / 60;
    trace.lectures.push_back(
        {r.minutes, hauteur, r.residu, !p.lectures.at(p.rangs[i]).ecartee, p.fiche.improbable == i});
  }
  return trace;
}

TraceLectures TraceMidi(const SerieOuverte &p, double ecartType) {
  TraceLectures trace;
  trace.ecartType = ecartType;
  if (!p.midi.passage || p.courbe.size() < 2) {
    return trace;
  }
  trace.origine = p.midi.passage->heure;
  trace.passage = 0;
  for (const PointMidi &point : p.courbe) {
    trace.course.push_back({point.minutes, point.hauteur});
  }
  for (std::size_t i = 0; i < std::min(p.rangs.size(), p.midi.residus.size()); ++i) {
    const ResiduMidi &r = p.midi.residus[i];
    const double hauteur = HauteurSurCourbe(p.courbe, r.minutes) + r.residu / 60;
    trace.lectures.push_back(
        {r.minutes, hauteur, r.residu, !p.lectures.at(p.rangs[i]).ecartee, p.midi.improbable == i});
  }
  return trace;
}

void MontrePages(FenetreSerie &f) {
  f.Onglets1.liste.clear();
  for (const Controle &mot : f.MotOnglet) {
    f.Onglets1.liste.push_back(mot.legende);
  }
  const auto page = static_cast<PageSerie>(f.Onglets1.rang);
  f.PageLectures.visible = page != PageSerie::Lune;
  f.PageSerie.visible = page == PageSerie::Serie;
  f.PageMidi.visible = page == PageSerie::Midi;
  f.PageLune.visible = page == PageSerie::Lune;
}

void MontreLune(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  PoseDistances(bureau);
  PoseLignesDe(f.Lune, MotsResultatLune(bureau));
  PoseLignesDe(f.LabLune, MotsAvisLune(bureau));
}

void Montre(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  f.cadre.titre = bureau.donnees.PU_Serie.legende;
  MontrePages(f);
  const std::string faute = PremiereFaute(Liste(f));
  f.LabAvis.legende = faute.empty() ? p.dit : faute;
  const double ecartType = EcartTypeDe(bureau);
  switch (static_cast<PageSerie>(f.Onglets1.rang)) {
  case PageSerie::Serie:
    PoseLectures(bureau);
    PoseLignesDe(f.Resultat, MotsResultatSerie(bureau, ecartType));
    PoseLignesDe(f.LabSerie, MotsAvisSerie(bureau));
    DessineLectures(f.dessin, TraceSerie(p, ecartType));
    break;
  case PageSerie::Midi:
    PoseLectures(bureau);
    PoseLignesDe(f.Midi, MotsResultatMidi(bureau));
    PoseLignesDe(f.LabMidi, MotsAvisMidi(bureau));
    f.Egales.legende = MotsEgales(bureau);
    DessineLectures(f.dessinMidi, TraceMidi(p, ecartType));
    break;
  case PageSerie::Lune:
    MontreLune(bureau);
    break;
  }
}

} // namespace

void AccordeSerie(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  if (!f.cadre.visible) {
    return;
  }
  const bool etendue = Etend(f.dessin, f.Dessin);
  const bool midi = Etend(f.dessinMidi, f.DessinMidi);
  const bool langue = std::exchange(bureau.serie.langue, bureau.FichierLangue) != bureau.FichierLangue;
  if (langue) { // what was said is said anew where it still holds
    PoseListes(bureau);
    OublieFautes(Liste(f));
    RefaitSerie(bureau);
  }
  if (std::exchange(bureau.serie.aMontrer, false) || langue || etendue || midi) {
    Montre(bureau);
  }
}

} // namespace velmaris

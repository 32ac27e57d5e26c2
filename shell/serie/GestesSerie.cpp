#include "shell/serie/GestesSerie.hpp"

#include "shell/bureau/Avis.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/GardeSerie.hpp"

#include <array>
#include <cstddef>
#include <deque>
#include <tuple>
#include <utility>

namespace velmaris {
namespace {

using Champs = std::array<Controle *, std::tuple_size_v<decltype(EtatSerie::champs)>>;

/// The fields that gestures fill or empty.
Champs ChampsDesGestes(FenetreSerie &f) {
  return {&f.Text4[0], &f.Text4[1], &f.Text5[0], &f.Text5[1], &f.Text5[2], &f.Text5[3], &f.Text2[2], &f.Text2[3]};
}

EtatSerie PriseEtatSerie(Bureau &bureau) {
  const SerieOuverte &p = bureau.serie;
  EtatSerie etat{p.lectures, p.distances, p.choisie, p.choisieLune, {}};
  const Champs champs = ChampsDesGestes(bureau.fenetreSerie);
  for (std::size_t i = 0; i < champs.size(); ++i) {
    etat.champs.at(i) = champs.at(i)->texte;
  }
  return etat;
}

/// Puts a state back; of the fields those that the gesture has changed, so that what was typed since stays.
void Remet(Bureau &bureau, const EtatSerie &de, const EtatSerie &vers) {
  SerieOuverte &p = bureau.serie;
  p.lectures = vers.lectures;
  p.distances = vers.distances;
  p.choisie = vers.choisie;
  p.choisieLune = vers.choisieLune;
  const Champs champs = ChampsDesGestes(bureau.fenetreSerie);
  for (std::size_t i = 0; i < champs.size(); ++i) {
    if (de.champs.at(i) != vers.champs.at(i)) {
      champs.at(i)->texte = vers.champs.at(i);
      champs.at(i)->alerte.clear();
    }
  }
}

void Entre(std::deque<PasSerie> &liste, PasSerie pas) {
  liste.push_back(std::move(pas));
  if (liste.size() > kPasGardes) {
    liste.pop_front();
  }
}

/// Takes the latest step of a list back, and enters it in the other one. A step of the panel that the main window's
/// list no longer ends with was taken back there: it is passed over.
/// @param panneau   the main window's list of such steps
/// @param revient   takes the latest of these back
void Revient(Bureau &bureau, std::deque<PasSerie> &liste, std::deque<PasSerie> &autre,
             const std::deque<PasRevocable> &panneau, void (*revient)(Bureau &, int), const std::string &dit,
             const std::string &rien) {
  while (!liste.empty() && liste.back().auPanneau && (panneau.empty() || panneau.back().nom != liste.back().nom)) {
    liste.pop_back();
  }
  if (liste.empty()) {
    DitSerie(bureau, rien);
    return;
  }
  PasSerie pas = std::move(liste.back());
  liste.pop_back();
  const std::string mots = dit + pas.nom;
  if (pas.auPanneau) {
    revient(bureau, -1);
    Entre(autre, std::move(pas));
  } else {
    EtatSerie present = PriseEtatSerie(bureau);
    Remet(bureau, pas.apres, pas.avant);
    Entre(autre, {pas.nom, std::move(present), std::move(pas.avant), false});
    RefaitSerie(bureau);
  }
  DitSerie(bureau, mots);
}

} // namespace

void RetientGesteSerie(Bureau &bureau, const std::string &nom, const std::function<void()> &geste) {
  const std::string texteAvant = TexteSerie(bureau);
  EtatSerie avant = PriseEtatSerie(bureau);
  geste();
  if (TexteSerie(bureau) != texteAvant) {
    bureau.serie.defaits.clear();
    Entre(bureau.serie.faits, {nom, std::move(avant), PriseEtatSerie(bureau), false});
  }
}

void NoteGesteAuPanneau(Bureau &bureau, std::size_t avant) {
  const std::deque<PasRevocable> &faits = bureau.annulations.faits;
  if (faits.size() > avant || (avant == kPasGardes && !faits.empty())) {
    bureau.serie.defaits.clear();
    Entre(bureau.serie.faits, {faits.back().nom, {}, {}, true});
  }
}

void DitSerie(Bureau &bureau, const std::string &mots) {
  bureau.serie.dit = mots;
  bureau.serie.aMontrer = true;
  Avise(bureau, mots);
}

void AnnuleSerie(Bureau &bureau) {
  Revient(bureau, bureau.serie.faits, bureau.serie.defaits, bureau.annulations.faits, PU_Annule_Click,
          bureau.etat.TexteAnnule.legende, bureau.etat.TexteRienAnnuler.legende);
}

void RetablitSerie(Bureau &bureau) {
  Revient(bureau, bureau.serie.defaits, bureau.serie.faits, bureau.annulations.defaits, PU_Retablit_Click,
          bureau.etat.TexteRetabli.legende, bureau.etat.TexteRienRetablir.legende);
}

} // namespace velmaris

#include "shell/complements/ExerciceEnCours.hpp"

#include "complements/exercice/ViseesTypees.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Exercice";
constexpr std::size_t kAnciens = 5; ///< practices before that are still known
constexpr int kAvecFautes = 2;      ///< of body, day and reading, while a practice goes on
constexpr int kCommeMontree = 3;    ///< the same for one that is over
constexpr int kDernierSujet = static_cast<int>(SujetExercice::Crepuscule);

std::string EcritDemande(const DemandeExercice &d) {
  const ConditionsExercice &c = d.conditions;
  std::string texte =
      std::to_string(d.graine) + " " + std::to_string(static_cast<int>(c.sujet)) + " " + std::to_string(c.visees);
  for (const double valeur : {c.bruit, c.collimationMax, c.vitesseMax, c.nuages, c.erreurEstime, c.latitudeMax}) {
    texte += " " + TexteGeneral(valeur);
  }
  return texte;
}

/// The next number of a text of numbers, which is taken off it.
double Prend(std::string_view &texte) {
  texte.remove_prefix(std::min(texte.find_first_not_of(' '), texte.size()));
  const double valeur = Val(texte);
  texte.remove_prefix(std::min(texte.find(' '), texte.size()));
  return valeur;
}

/// A practice that is over is known as it was shown, the last ones alone.
void Range(std::vector<Exercice> &anciens, Exercice exercice) {
  anciens.push_back(std::move(exercice));
  if (anciens.size() > kAnciens) {
    anciens.erase(anciens.begin());
  }
}

/// The practice of an earlier start among those that are over, once.
void ReprendAncien(Bureau &bureau) {
  ExerciceOuvert &e = bureau.exercice;
  if (!std::exchange(e.repris, true)) {
    if (const auto garde = LitExerciceGarde(bureau)) {
      Range(e.anciens, FaitExercice(garde->graine, garde->conditions).exercice);
    }
  }
}

} // namespace

std::optional<DemandeExercice> LitExerciceGarde(const Bureau &bureau) {
  const std::string garde = LitReglage(bureau, kCle);
  if (garde.empty()) {
    return std::nullopt;
  }
  constexpr double kGraineMax = 1E6;
  constexpr double kViseesMax = 10;
  std::string_view reste = garde;
  DemandeExercice d;
  d.graine = static_cast<std::uint64_t>(std::clamp(Prend(reste), 0.0, kGraineMax));
  d.conditions.sujet = static_cast<SujetExercice>(std::clamp(static_cast<int>(Prend(reste)), 0, kDernierSujet));
  d.conditions.visees = static_cast<int>(std::clamp(Prend(reste), 1.0, kViseesMax));
  for (double *valeur : {&d.conditions.bruit, &d.conditions.collimationMax, &d.conditions.vitesseMax,
                         &d.conditions.nuages, &d.conditions.erreurEstime, &d.conditions.latitudeMax}) {
    *valeur = Prend(reste);
  }
  return d;
}

void CommenceExercice(Bureau &bureau, const DemandeExercice &demande) {
  ExerciceOuvert &e = bureau.exercice;
  ReprendAncien(bureau);
  if (e.enCours) {
    Range(e.anciens, std::move(e.enCours->exercice));
  }
  e.enCours = FaitExercice(demande.graine, demande.conditions);
  e.typees.assign(e.enCours->exercice.visees.size(), std::nullopt);
  e.correction.reset();
  e.corrigees.clear();
  e.point.reset();
  e.aMontrer = true;
  EcritReglage(bureau, kCle, EcritDemande(demande));
}

bool NoteViseeExercice(Bureau &bureau, const Observation &observation) {
  ExerciceOuvert &e = bureau.exercice;
  ReprendAncien(bureau);
  const auto rang = e.enCours ? ViseeReconnue(e.enCours->exercice, observation, kAvecFautes) : std::nullopt;
  const bool ancienne = std::any_of(e.anciens.begin(), e.anciens.end(), [&](const Exercice &ancien) {
    return ViseeReconnue(ancien, observation, kCommeMontree).has_value();
  });
  if (rang) {
    e.typees.at(*rang) = observation;
    e.aMontrer = true;
    if (e.correction) {
      JugeExercice(bureau, e.point);
    }
  }
  if (rang || ancienne) {
    Avise(bureau, bureau.fenetreExercice.TexteHorsRegistre.legende);
  }
  return rang || ancienne;
}

void JugeExercice(Bureau &bureau, const std::optional<LieuNavire> &point) {
  ExerciceOuvert &e = bureau.exercice;
  if (!e.enCours) {
    return;
  }
  std::vector<Observation> notees;
  e.corrigees.clear();
  for (std::size_t i = 0; i < e.typees.size(); ++i) {
    if (e.typees[i]) {
      notees.push_back(*e.typees[i]);
      e.corrigees.push_back(i);
    }
  }
  e.point = point;
  e.correction = CorrigeExercice(*e.enCours, notees, point);
  e.aMontrer = true;
}

} // namespace velmaris

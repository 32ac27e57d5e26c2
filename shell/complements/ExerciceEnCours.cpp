#include "shell/complements/ExerciceEnCours.hpp"

#include "complements/exercice/ViseesTypees.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Avis.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Exercice";
constexpr std::string_view kCleNotes = "ExerciceNotes";
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

/// A field's text in one line.
std::string EnUneLigne(std::string texte) {
  std::replace(texte.begin(), texte.end(), '\n', ' ');
  return texte;
}

/// What the user has made of the practice: a line of what makes it, two of his fix as typed, a line of the fix that was
/// judged, empty before, then each sight that was reduced: its place and the size of its text, and that text.
std::string TexteNotes(const Bureau &bureau, const DemandeExercice &demande) {
  const ExerciceOuvert &e = bureau.exercice;
  std::string texte = EcritDemande(demande) + "\n";
  for (const Controle &champ : bureau.fenetreExercice.Text3) {
    texte += EnUneLigne(champ.texte) + "\n";
  }
  if (e.correction) {
    texte += e.point ? "1 " + TexteGeneral(e.point->latitude) + " " + TexteGeneral(e.point->longitude) : "0";
  }
  texte += "\n";
  for (std::size_t i = 0; i < e.typees.size(); ++i) {
    if (e.typees[i]) {
      const std::string visee = EcritLoP(*e.typees[i]);
      texte += std::to_string(i) + " " + std::to_string(visee.size()) + "\n" + visee;
    }
  }
  return texte;
}

/// The first line of a text, which is taken off it.
std::string_view PrendLigne(std::string_view &texte) {
  const std::string_view ligne = texte.substr(0, texte.find('\n'));
  texte.remove_prefix(std::min(ligne.size() + 1, texte.size()));
  return ligne;
}

/// Reads the notes of sights; one that is none is left out, and what comes after.
void LitViseesNotees(std::string_view texte, ExerciceOuvert &e) {
  while (!texte.empty()) {
    std::string_view tete = PrendLigne(texte);
    const double rang = Prend(tete);
    const double taille = Prend(tete);
    if (!(rang >= 0 && rang < static_cast<double>(e.typees.size()) && taille > 0 &&
          taille <= static_cast<double>(texte.size()))) {
      return;
    }
    const std::string_view visee = texte.substr(0, static_cast<std::size_t>(taille));
    Passe([&] {
      TableLoP table;
      LitLignesLoP(visee, table);
      Observation observation;
      AppliqueLoP(table, observation);
      e.typees.at(static_cast<std::size_t>(rang)) = observation;
    });
    texte.remove_prefix(visee.size());
  }
}

/// Puts the notes back that belong to the practice.
void ReprendNotes(Bureau &bureau, const DemandeExercice &demande, std::string_view notes) {
  ExerciceOuvert &e = bureau.exercice;
  if (PrendLigne(notes) != EcritDemande(demande)) {
    return;
  }
  for (Controle &champ : bureau.fenetreExercice.Text3) {
    champ.texte = PrendLigne(notes);
  }
  std::string_view juge = PrendLigne(notes);
  LitViseesNotees(notes, e);
  if (!juge.empty()) {
    const bool avecPoint = Prend(juge) == 1;
    const double latitude = Prend(juge);
    const double longitude = Prend(juge);
    JugeExercice(bureau, avecPoint ? std::optional(LieuNavire{latitude, longitude}) : std::nullopt);
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
  EcritReglage(bureau, kCleNotes, "");
}

bool RouvreExercice(Bureau &bureau) {
  const std::optional<DemandeExercice> garde = LitExerciceGarde(bureau);
  if (!garde) {
    return false;
  }
  const std::string notes = LitReglage(bureau, kCleNotes);
  CommenceExercice(bureau, *garde);
  ReprendNotes(bureau, *garde, notes);
  GardeNotesExercice(bureau);
  return true;
}

void GardeNotesExercice(Bureau &bureau) {
  const ExerciceOuvert &e = bureau.exercice;
  if (!e.enCours) {
    return;
  }
  const Exercice &exercice = e.enCours->exercice;
  const std::string texte = TexteNotes(bureau, {exercice.graine, exercice.conditions});
  if (texte != LitReglage(bureau, kCleNotes)) {
    EcritReglage(bureau, kCleNotes, texte);
  }
}

bool NoteViseeExercice(Bureau &bureau, const Observation &observation) {
  ExerciceOuvert &e = bureau.exercice;
  if (const auto garde = e.enCours ? std::nullopt : LitExerciceGarde(bureau);
      garde && ViseeReconnue(FaitExercice(garde->graine, garde->conditions).exercice, observation, kCommeMontree)) {
    RouvreExercice(bureau);
  }
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
    GardeNotesExercice(bureau);
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

#include "shell/exercice/LectureExercice.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/complements/Saisies.hpp"

#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kCent = 100;
constexpr double kGraineMax = 999999;

/// What a field of the conditions takes.
struct Limites {
  double moindre = 0;
  double plusGrand = 0;
  bool entier = false;
};

/// In the order of the fields: sights, noise, index error, clouds in per cent, speed, doubt, latitude.
constexpr std::array<Limites, 7> kLimites = {{{1, 10, true}, {0, 10}, {0, 10}, {0, 90}, {0, 30}, {0, 60}, {1, 70}}};

/// The number of a field, which is marked where it can't be used; an empty one can't.
std::optional<double> LitObligatoire(FenetreExercice &f, Controle &champ, const Limites &limites) {
  std::optional<double> valeur = LitNombreBorne(champ.texte, limites.moindre, limites.plusGrand);
  if (valeur && limites.entier && *valeur != Int(*valeur)) {
    valeur.reset();
  }
  MarqueChamp(champ, valeur.has_value(), f.TexteHors.legende);
  return valeur;
}

} // namespace

void PoseDemande(FenetreExercice &f, const DemandeExercice &demande) {
  const ConditionsExercice &c = demande.conditions;
  const std::array<double, kLimites.size()> valeurs = {static_cast<double>(c.visees),
                                                       c.bruit,
                                                       c.collimationMax,
                                                       std::round(c.nuages * kCent),
                                                       c.vitesseMax,
                                                       c.erreurEstime,
                                                       c.latitudeMax};
  f.Text1.texte = std::to_string(demande.graine);
  f.Combo2.rang = static_cast<int>(c.sujet);
  for (std::size_t i = 0; i < valeurs.size(); ++i) {
    f.Text2.at(i).texte = TexteGeneral(valeurs.at(i));
  }
}

std::optional<DemandeExercice> LitDemandeExercice(FenetreExercice &f) {
  const auto graine = LitObligatoire(f, f.Text1, {0, kGraineMax, true});
  std::array<double, kLimites.size()> valeurs{};
  bool bonnes = graine.has_value() && f.Combo2.rang >= 0;
  for (std::size_t i = 0; i < kLimites.size(); ++i) {
    const auto valeur = LitObligatoire(f, f.Text2.at(i), kLimites.at(i));
    valeurs.at(i) = valeur.value_or(0);
    bonnes = bonnes && valeur;
  }
  if (!bonnes) {
    return std::nullopt;
  }
  const auto &[visees, bruit, collimation, nuages, vitesse, estime, latitude] = valeurs;
  DemandeExercice demande;
  demande.graine = static_cast<std::uint64_t>(*graine);
  demande.conditions.sujet = static_cast<SujetExercice>(f.Combo2.rang);
  demande.conditions.visees = static_cast<int>(visees);
  demande.conditions.bruit = bruit;
  demande.conditions.collimationMax = collimation;
  demande.conditions.nuages = nuages / kCent;
  demande.conditions.vitesseMax = vitesse;
  demande.conditions.erreurEstime = estime;
  demande.conditions.latitudeMax = latitude;
  return demande;
}

std::optional<LieuNavire> LitPointExercice(FenetreExercice &f) {
  const auto latitude = LitLatitudeTapee(f.Text3[0].texte);
  const auto longitude = LitLongitudeTapee(f.Text3[1].texte);
  MarqueChamp(f.Text3[0], latitude || SansBlancs(f.Text3[0].texte).empty(), f.TexteHors.legende);
  MarqueChamp(f.Text3[1], longitude || SansBlancs(f.Text3[1].texte).empty(), f.TexteHors.legende);
  return latitude && longitude ? std::optional(LieuNavire{*latitude, *longitude}) : std::nullopt;
}

int NiveauDesChamps(FenetreExercice &f) {
  const auto demande = LitDemandeExercice(f);
  for (std::size_t rang = 0; demande && rang < kNiveaux; ++rang) {
    const NiveauExercice &niveau = NiveauDe(rang);
    if (demande->graine == niveau.graine && demande->conditions == niveau.conditions) {
      return static_cast<int>(rang);
    }
  }
  return -1;
}

} // namespace velmaris

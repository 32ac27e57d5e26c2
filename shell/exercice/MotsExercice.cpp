#include "shell/exercice/MotsExercice.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/MotsControle.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace velmaris {
namespace {

template <class Enum> std::size_t Rang(Enum valeur) { return static_cast<std::size_t>(valeur); }

/// The verdict on a sight.
/// @return null before the truth was asked for, and for a sight that wasn't reduced
const VerdictVisee *VerdictDe(const ExerciceOuvert &e, std::size_t visee) {
  const auto place = std::find(e.corrigees.begin(), e.corrigees.end(), visee);
  return e.correction && place != e.corrigees.end()
             ? &e.correction->visees.at(static_cast<std::size_t>(place - e.corrigees.begin()))
             : nullptr;
}

/// What is wrong with a sight; why it can't be read stands for that it can't.
std::string MotsAvis(const Bureau &bureau, const VerdictVisee &verdict, AvisCorrection avis) {
  return avis == AvisCorrection::Illisible && verdict.refus ? bureau.fiche.MotRefus.at(Rang(*verdict.refus)).legende
                                                            : bureau.fenetreExercice.MotAvis.at(Rang(avis)).legende;
}

} // namespace

std::string MotsConditions(const FenetreExercice &f, const ConditionsExercice &c) {
  constexpr double kCent = 100;
  std::string mots = f.MotSujet.at(Rang(c.sujet)).legende + ", " + std::to_string(c.visees) +
                     (c.visees == 1 ? f.TexteVisee : f.TexteVisees).legende;
  const auto ajoute = [&](double valeur, const std::string &avant, const std::string &apres) {
    mots += valeur > 0 ? ", " + avant + TexteGeneral(valeur) + apres : "";
  };
  ajoute(c.bruit, f.TexteBruit.legende, "'");
  ajoute(c.collimationMax, f.TexteCollimation.legende, "'");
  ajoute(std::round(c.nuages * kCent), f.TexteNuages.legende, " %");
  ajoute(c.vitesseMax, "", f.TexteNoeuds.legende);
  return mots;
}

std::vector<std::string> MotsNiveaux(const FenetreExercice &f) {
  std::vector<std::string> mots;
  mots.reserve(kNiveaux);
  for (std::size_t rang = 0; rang < kNiveaux; ++rang) {
    mots.push_back(std::to_string(rang + 1) + ". " + MotsConditions(f, NiveauDe(rang).conditions));
  }
  return mots;
}

std::vector<std::string> MotsDuBord(const Bureau &bureau, const Exercice &e) {
  const FenetreExercice &f = bureau.fenetreExercice;
  const Jambe route = e.route.jambes.empty() ? Jambe() : e.route.jambes.front();
  std::string caches;
  for (const Astre &astre : e.caches) {
    caches += (caches.empty() ? "" : ", ") + NomDAstre(bureau, astre);
  }
  std::vector<std::string> mots(f.Donne.size());
  mots[0] = TexteLieu(e.estime);
  mots[1] = f.TexteArret.legende;
  if (route.vitesse > 0) {
    mots[1] = TexteDirection(route.cap) + ", " + Dixiemes(route.vitesse) + f.TexteNoeuds.legende;
  }
  mots[2] = Dixiemes(e.hauteurOeil) + " m";
  mots[3] = AvecSigne(e.collimation) + "'";
  mots[4] = TexteDate(e.heurePoint) + " " + TexteHeureUtc(e.heurePoint) + " UTC";
  mots[5] = caches.empty() ? "-" : caches;
  return mots;
}

std::string MotsVisee(const Bureau &bureau, std::size_t visee) {
  const FenetreExercice &f = bureau.fenetreExercice;
  const ExerciceOuvert &e = bureau.exercice;
  const VerdictVisee *verdict = VerdictDe(e, visee);
  if (verdict == nullptr) {
    return (visee < e.typees.size() && e.typees[visee] ? f.TexteTypee : f.TexteNonTypee).legende;
  }
  if (verdict->refus) {
    return MotsAvis(bureau, *verdict, AvisCorrection::Illisible);
  }
  return AvecSigne(verdict->ecart) + f.TexteMilles.legende + ", " +
         (verdict->avis.empty() ? f.TexteBonne.legende : MotsAvis(bureau, *verdict, verdict->avis.front()));
}

std::vector<std::string> MotsDetail(const Bureau &bureau, std::size_t visee) {
  const VerdictVisee *verdict = VerdictDe(bureau.exercice, visee);
  if (verdict == nullptr) {
    return {};
  }
  std::string avis;
  for (const AvisCorrection a : verdict->avis) {
    avis += (avis.empty() ? "" : ", ") + MotsAvis(bureau, *verdict, a);
  }
  FicheControle fiche;
  fiche.glissades = verdict->glissades;
  std::vector<std::string> lignes;
  lignes.push_back(avis.empty() ? MotsVisee(bureau, visee) : avis);
  for (std::string &glissade : MotsDesGlissades(bureau, fiche)) {
    lignes.push_back(std::move(glissade));
  }
  return lignes;
}

std::vector<std::string> MotsVerite(const Bureau &bureau) {
  const FenetreExercice &f = bureau.fenetreExercice;
  const ExerciceOuvert &e = bureau.exercice;
  std::vector<std::string> lignes(f.Resultat.size());
  if (!e.enCours || !e.correction) {
    return lignes;
  }
  lignes[0] = TexteLieu(e.enCours->verite.lieu);
  if (const auto &point = e.correction->point) {
    lignes[1] = Dixiemes(point->distance) + f.TexteVers.legende + TexteDirection(point->direction);
    if (point->attendu > 0) {
      lignes[1] += f.TexteAttendu.legende + Dixiemes(point->attendu) + f.TexteMilles.legende;
    }
    lignes[2] = Dixiemes(point->estime) + f.TexteEstime.legende;
  }
  return lignes;
}

} // namespace velmaris

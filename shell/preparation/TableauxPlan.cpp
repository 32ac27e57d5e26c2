#include "shell/preparation/TableauxPlan.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/CandidatsLune.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/RangeesTexte.hpp"
#include "shell/preparation/MotsPlan.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

RangeeTexte RangeeAstre(const Bureau &bureau, const AstreDuPlan &astre) {
  RangeeTexte r;
  r.textes = {NomDAstre(bureau, astre.astre),
              TexteAngleSigne(astre.apparente),
              TexteDirection(astre.azimut),
              Dixiemes(astre.magnitude),
              astre.prereglage ? TexteAngleSigne(*astre.prereglage) : std::string(),
              DixiemesSignes(astre.mouvement),
              MotsRemarque(bureau.preparation, bureau.plan.vue, astre)};
  r.ton = astre.raisons.none() ? TonLigne::Ordinaire : TonLigne::Faible;
  return r;
}

void PoseAstres(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.plan.montres.size());
  for (const std::size_t rang : bureau.plan.montres) {
    rangees.push_back(RangeeAstre(bureau, bureau.plan.vue.astres.at(rang)));
  }
  PoseRangees(f.Astres.tableau, ColonnesDe<7>(f.MotColonne, {1650, 1000, 780, 660, 1080, 720, 2000}, 1, 5),
              std::move(rangees));
}

void PoseJour(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const Journee &journee = *bureau.plan.journee;
  std::vector<RangeeTexte> rangees;
  for (const EvenementDuPlan &e : EvenementsDuJour(journee)) {
    RangeeTexte r;
    if (e.moment) {
      r.textes = {NomEvenement(f, e.genre), TexteHeureUtc(e.moment->utc), HeureDuBord(journee, e.moment->utc),
                  TexteDirection(e.moment->azimut), TexteLieu(e.moment->lieu)};
    } else {
      r.textes = {NomEvenement(f, e.genre), "", "", "", f.MotAbsence.at(static_cast<std::size_t>(e.absence)).legende};
      r.ton = TonLigne::Faible;
    }
    rangees.push_back(std::move(r));
  }
  PoseRangees(f.Jour.tableau, ColonnesDe<5>(f.MotColonneJour, {3900, 1500, 1500, 1350, 5400}, 1, 3),
              std::move(rangees));
}

void PoseJeux(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  std::vector<RangeeTexte> rangees;
  for (const auto &jeux : bureau.plan.jeux) {
    for (const JeuAstres &jeu : jeux) {
      rangees.push_back(
          {{std::to_string(jeu.astres.size()) + " : " + MotsJeu(bureau, jeu), Format(std::sqrt(jeu.trace), "0.00")},
           false,
           TonLigne::Ordinaire});
    }
  }
  PoseRangees(f.Jeux.tableau, ColonnesDe<2>(f.MotColonneJeux, {7600, 1200}, 1, 1), std::move(rangees));
}

void PoseAmplitudes(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.plan.amplitudes.amplitudes.size());
  for (const AmplitudeSoleil &a : bureau.plan.amplitudes.amplitudes) {
    rangees.push_back(
        {{(a.lever ? f.TexteLever : f.TexteCoucher).legende, TexteHeureUtc(a.moment.utc),
          Dixiemes(a.moment.azimut) + "°", MotsAmplitude(f, a.lever, a.amplitude), Dixiemes(a.bordInferieur) + "'"},
         false,
         TonLigne::Ordinaire});
  }
  PoseRangees(f.Amplitudes.tableau, ColonnesDe<5>(f.MotColonneAmplitude, {1800, 1500, 1500, 2100, 4200}, 1, 4),
              std::move(rangees));
}

void PoseInconnus(Bureau &bureau) {
  constexpr double kCent = 100;
  Preparation &f = bureau.preparation;
  std::vector<RangeeTexte> rangees;
  for (const AstreProbable &probable : bureau.plan.inconnus) {
    const AstreDuPlan &astre = bureau.plan.vue.astres.at(probable.rang);
    rangees.push_back({{NomDAstre(bureau, astre.astre), Format(std::round(probable.chance * kCent), "0") + " %",
                        DixiemesSignes(probable.ecartHauteur) + "°", DixiemesSignes(probable.ecartAzimut) + "°",
                        Dixiemes(astre.magnitude), MotsRemarque(f, bureau.plan.vue, astre)},
                       false,
                       TonLigne::Ordinaire});
  }
  PoseRangees(f.Inconnus.tableau, ColonnesDe<6>(f.MotColonneInconnu, {2700, 1200, 1700, 1700, 1000, 4000}, 1, 4),
              std::move(rangees));
}

} // namespace

std::vector<std::size_t> AstresMontres(const PlanOuvert &plan, bool ecartes) {
  std::vector<std::size_t> montres;
  const std::vector<AstreDuPlan> &astres = plan.vue.astres;
  for (std::size_t i = 0; i < astres.size(); ++i) {
    const RaisonsPales &raisons = astres[i].raisons;
    if (!Tient(raisons, RaisonPale::SousHorizon) && (ecartes || raisons.none())) {
      montres.push_back(i);
    }
  }
  std::stable_sort(montres.begin(), montres.end(),
                   [&](std::size_t a, std::size_t b) { return astres[a].magnitude < astres[b].magnitude; });
  return montres;
}

void PoseTableauxPlan(Bureau &bureau) {
  PoseAstres(bureau);
  PoseJour(bureau);
  PoseJeux(bureau);
  PoseCandidatsLune(bureau, bureau.plan.lunaires, bureau.preparation.Lunaires.tableau);
  PoseAmplitudes(bureau);
  PoseInconnus(bureau);
}

} // namespace velmaris

#include "complements/controle/Controle.hpp"

#include "complements/controle/Lignes.hpp"
#include "complements/controle/LignesEtoiles.hpp"
#include "complements/controle/Parts.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kLigneFautive = 0.5; ///< minutes: what is less is aberration and nutation, which no row has

GradeControle GradeDe(double ecart) {
  if (std::fabs(ecart) <= kAccord) {
    return GradeControle::Accord;
  }
  return std::fabs(ecart) <= kManiere ? GradeControle::Maniere : GradeControle::Avertissement;
}

/// Names the causes, Horizon before all, then the largest first, and what they leave.
void NommeCauses(FicheControle &fiche, const std::vector<PartCause> &parts) {
  fiche.inexplique = fiche.ecart;
  for (const PartCause &part : parts) {
    if (part.cause == Cause::Horizon || std::fabs(part.minutes) > kPartNommee) {
      fiche.causes.push_back(part);
      fiche.inexplique -= part.minutes;
    }
  }
  std::stable_sort(fiche.causes.begin(), fiche.causes.end(), [](const PartCause &a, const PartCause &b) {
    const bool horizon = a.cause == Cause::Horizon || b.cause == Cause::Horizon;
    return horizon ? a.cause == Cause::Horizon && b.cause != Cause::Horizon
                   : std::fabs(a.minutes) > std::fabs(b.minutes);
  });
}

ResultatActuel ResultatDe(const RouteActuelle &route) {
  return {route.etapes.observee, route.vue.hauteurCentre, route.vue.azimutCentre,
          route.intercept,       route.place.gha,         route.place.declinaison};
}

bool LigneFautive(const ViseeTypee &visee, const Etoiles &etoiles) {
  if (visee.astre.genre != GenreAstre::Etoile) {
    return false;
  }
  return EcartDeLigne(etoiles, visee.astre.rang).value_or(0) > kLigneFautive;
}

/// Fills in what today's road gives.
void PoseRoute(FicheControle &fiche, const RouteActuelle &route, const std::vector<PartCause> &parts) {
  fiche.actuel = ResultatDe(route);
  fiche.ecart = route.intercept - fiche.dit.intercept;
  fiche.grade = GradeDe(fiche.ecart);
  NommeCauses(fiche, parts);
}

} // namespace

FicheControle ControleVisee(const Observation &observation, const ResultatDit &dit, const Etoiles &etoiles,
                            const ReglagesControle &reglages) {
  FicheControle fiche;
  fiche.dit = dit;
  EtapesDites dites;
  std::optional<ViseeTypee> visee;
  std::optional<RouteActuelle> route;
  std::vector<PartCause> parts;
  bool fautive = false;
  try {
    visee = LitVisee(observation, reglages);
    fiche.astre = visee->astre;
    fiche.utc = visee->date;
    dites = RefaitEtapes(observation, *visee, etoiles);
    route = SuitRoute(*visee, reglages.dut1);
    fautive = LigneFautive(*visee, etoiles);
    parts = PartsDesCauses(*visee, *route, dites, etoiles, reglages.dut1);
    PoseRoute(fiche, *route, parts);
    if (std::fabs(route->intercept) > kInterceptSuspect) {
      fiche.glissades = ChercheGlissades(observation, reglages);
    }
  } catch (const Refus &refus) {
    fiche.refus = refus.raison;
  }
  fiche.lignes = LignesDuControle(dit, dites, visee ? &*visee : nullptr, route ? &*route : nullptr, parts, fautive);
  return fiche;
}

} // namespace velmaris

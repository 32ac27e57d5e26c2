#include "shell/point/TracePoint.hpp"

#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

/// The track of a fix: the ship's places at the sights, at the beginning of each leg between them, and at the fix.
void PoseRoute(PointTrace &trace, const PointOuvert &point, const SolutionPoint &solution) {
  std::vector<std::pair<InstantUTC, LieuNavire>> lieux = {{*point.heure, solution.lieu}};
  for (std::size_t i = 0; i < solution.residus.size(); ++i) {
    if (solution.residus[i].utilisee && point.visees.at(i).hauteur) {
      lieux.emplace_back(point.visees[i].hauteur->utc, solution.residus[i].lieu);
    }
  }
  const auto avant = [](const auto &a, const auto &b) { return SecondesEntre(a.first, b.first) > 0; };
  const auto [premier, dernier] = std::minmax_element(lieux.begin(), lieux.end(), avant);
  const InstantUTC debut = premier->first;
  const InstantUTC fin = dernier->first;
  for (const Jambe &jambe : point.jambes) {
    if (!solution.fond && SecondesEntre(debut, jambe.depuis) > 0 && SecondesEntre(jambe.depuis, fin) > 0) {
      lieux.emplace_back(jambe.depuis, Deplace(point.route, solution.lieu, *point.heure, jambe.depuis).lieu);
    }
  }
  std::sort(lieux.begin(), lieux.end(), avant);
  for (const auto &[instant, lieu] : lieux) {
    trace.route.push_back(lieu);
    trace.heures.push_back(TexteHeureMinute(instant));
  }
}

} // namespace

const SolutionPoint *SolutionVue(const PointOuvert &point, const FichePoint &fiche) {
  const std::optional<SolutionPoint> &vue = point.seconde && fiche.seconde ? fiche.seconde : fiche.solution;
  return vue ? &*vue : nullptr;
}

const SolutionPoint *SolutionRetenue(const PointOuvert &point) {
  const SolutionPoint *actuelle = SolutionVue(point, point.actuelle);
  return actuelle != nullptr ? actuelle : SolutionVue(point, point.dite);
}

PointTrace TraceDe(const PointOuvert &point, const SolutionPoint &solution) {
  constexpr std::size_t kHeureMinute = 5;
  PointTrace trace{.lieu = solution.lieu,
                   .ellipse = solution.ellipse,
                   .heure = TexteHeureUtc(*point.heure).substr(0, kHeureMinute),
                   .droites = {},
                   .heures = {},
                   .route = {}};
  PoseRoute(trace, point, solution);
  for (std::size_t i = 0; i < solution.residus.size(); ++i) {
    const ResiduPoint &residu = solution.residus[i];
    if (residu.utilisee) {
      trace.droites.push_back({residu.azimut, residu.residu, point.visees.at(i).hauteur->apparente});
    }
  }
  return trace;
}

} // namespace velmaris

#include "shell/preparation/EvenementsPlan.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace velmaris {
namespace {

std::array<std::pair<GenreEvenement, const Passages *>, kGenresEvenement> PassagesDe(const Journee &j) {
  using G = GenreEvenement;
  return {{{G::AubeAstronomique, &j.astronomique.matin},
           {G::AubeNautique, &j.nautique.matin},
           {G::AubeCivile, &j.civil.matin},
           {G::LeverSoleil, &j.soleil.lever},
           {G::MeridienSoleil, &j.soleil.meridien},
           {G::CoucherSoleil, &j.soleil.coucher},
           {G::SoirCivil, &j.civil.soir},
           {G::SoirNautique, &j.nautique.soir},
           {G::SoirAstronomique, &j.astronomique.soir},
           {G::LeverLune, &j.lune.lever},
           {G::MeridienLune, &j.lune.meridien},
           {G::CoucherLune, &j.lune.coucher}}};
}

} // namespace

std::vector<EvenementDuPlan> EvenementsDuJour(const Journee &journee) {
  std::vector<EvenementDuPlan> evenements;
  for (const auto &[genre, passages] : PassagesDe(journee)) {
    for (const EvenementCiel &moment : passages->moments) {
      evenements.push_back({genre, moment, RaisonAbsence::Aucune});
    }
    if (passages->moments.empty()) {
      evenements.push_back({genre, std::nullopt, passages->absence});
    }
  }
  std::stable_sort(evenements.begin(), evenements.end(), [](const EvenementDuPlan &a, const EvenementDuPlan &b) {
    if (!a.moment || !b.moment) {
      return a.moment.has_value() && !b.moment;
    }
    return SecondesEntre(a.moment->utc, b.moment->utc) > 0;
  });
  return evenements;
}

std::vector<int> MinutesDesEvenements(const Journee &journee) {
  constexpr double kMinute = 60;
  std::vector<int> minutes;
  for (const EvenementDuPlan &evenement : EvenementsDuJour(journee)) {
    if (evenement.moment) {
      minutes.push_back(static_cast<int>(std::lround(SecondesEntre(journee.debut, evenement.moment->utc) / kMinute)));
    }
  }
  minutes.erase(std::unique(minutes.begin(), minutes.end()), minutes.end());
  return minutes;
}

int Accroche(const std::vector<int> &minutes, int avant, int minute) {
  constexpr int kPres = 5;
  constexpr int kGrandPas = 10;
  const int pas = std::abs(minute - avant);
  if (pas <= 1 || pas == kGrandPas) {
    return minute;
  }
  const auto proche = std::min_element(minutes.begin(), minutes.end(),
                                       [&](int a, int b) { return std::abs(a - minute) < std::abs(b - minute); });
  return proche != minutes.end() && std::abs(*proche - minute) <= kPres ? *proche : minute;
}

} // namespace velmaris

#include "complements/point/Epreuve.hpp"

#include "complements/point/Lois.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kSansControle = 1E-4; ///< a redundancy under it controls nothing

/// The correlations of the residuals that are tested.
std::vector<double> Correlations(std::span<const double> partages, const EpreuveMesures &epreuve,
                                 const std::vector<std::size_t> &testees) {
  const std::size_t n = epreuve.redondances.size();
  std::vector<double> correlations;
  correlations.reserve(testees.size() * testees.size());
  for (const std::size_t i : testees) {
    for (const std::size_t j : testees) {
      const double racine = std::sqrt(epreuve.redondances[i] * epreuve.redondances[j]);
      correlations.push_back(i == j ? 1 : -partages[i * n + j] / racine);
    }
  }
  return correlations;
}

} // namespace

EpreuveMesures EprouveMesures(std::span<const double> ecarts, std::span<const double> partages, int surplus,
                              double chanceAlarme) {
  const std::size_t n = ecarts.size();
  EpreuveMesures e;
  e.redondances.resize(n);
  e.statistiques.resize(n, 0);
  std::vector<std::size_t> testees;
  for (std::size_t i = 0; i < n; ++i) {
    e.redondances[i] = std::clamp(1 - partages[i * n + i], 0.0, 1.0);
    if (e.redondances[i] > kSansControle && surplus > 0) {
      e.statistiques[i] = ecarts[i] / std::sqrt(e.redondances[i]);
      testees.push_back(i);
    }
  }
  if (testees.empty()) {
    return e;
  }
  e.seuil = SeuilDuPlusGrand(Correlations(partages, e, testees), chanceAlarme);
  const auto grandeur = [&](std::size_t i) { return std::fabs(e.statistiques[i]); };
  std::sort(testees.begin(), testees.end(), [&](std::size_t i, std::size_t j) { return grandeur(i) > grandeur(j); });
  const double pire = grandeur(testees.front());
  if (!(pire > e.seuil)) {
    return e;
  }
  const double suivante = testees.size() > 1 ? grandeur(testees[1]) : 0;
  e.sansNom = surplus < 2 || pire * pire - suivante * suivante < kNettement;
  if (!e.sansNom) {
    e.improbable = testees.front();
  }
  return e;
}

} // namespace velmaris

#include "complements/point/Lois.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace velmaris {
namespace {

/// Chance that a normal is greater.
double Queue(double x) { return std::erfc(x / std::numbers::sqrt2) / 2; }

double Densite(double x) { return std::exp(-x * x / 2) / std::sqrt(2 * std::numbers::pi); }

struct Noeud {
  double place;
  double poids;
};

/// Gauss and Legendre's rule of eight points on [-1, 1], the right half.
constexpr std::array kGauss{
    Noeud{0.18343464249564981, 0.36268378337836199}, Noeud{0.52553240991632899, 0.31370664587788729},
    Noeud{0.79666647741362674, 0.22238103445337448}, Noeud{0.96028985649753623, 0.10122853629037626}};

/// Chance that two normals are both off by more than a bound.
/// @param correlation  0 to 1
double ChanceDesDeux(double seuil, double correlation) {
  constexpr double kEgales = 1E-9;
  constexpr double kDemiIntervalle = 1; ///< of two, beyond which the density is of no account
  const double s2 = 1 - correlation * correlation;
  if (s2 < kEgales) {
    return ChanceNormale(seuil);
  }
  const double s = std::sqrt(s2);
  const auto integrande = [&](double x) {
    return Densite(x) * (Queue((seuil - correlation * x) / s) + Queue((seuil + correlation * x) / s));
  };
  double somme = 0;
  for (const double milieu : {seuil + kDemiIntervalle, seuil + 3 * kDemiIntervalle}) {
    for (const Noeud &n : kGauss) {
      somme += n.poids * kDemiIntervalle *
               (integrande(milieu + n.place * kDemiIntervalle) + integrande(milieu - n.place * kDemiIntervalle));
    }
  }
  return 2 * somme;
}

/// Chance that Student's t is within bounds of either side, as a finite sum.
/// Source: Abramowitz and Stegun, 26.7.3 and 26.7.4.
double PartStudent(double t, int libertes) {
  const double angle = std::atan(t / std::sqrt(libertes));
  const double carre = std::cos(angle) * std::cos(angle);
  const bool impair = libertes % 2 == 1;
  double terme = impair ? std::cos(angle) : 1;
  double somme = 0;
  for (int n = impair ? 3 : 2; n <= libertes; n += 2) {
    somme += terme;
    terme *= carre * (n - 1) / n;
  }
  return impair ? 2 / std::numbers::pi * (angle + std::sin(angle) * somme) : std::sin(angle) * somme;
}

/// The closest pairs that join all normals: for each but the first its correlation, without sign, to the tree.
std::vector<double> PairesDeLArbre(std::span<const double> correlations, std::size_t n) {
  std::vector<double> proche(n, 0);
  std::vector<bool> dedans(n, false);
  std::vector<double> paires;
  std::size_t dernier = 0;
  for (std::size_t fois = 1; fois < n; ++fois) {
    dedans[dernier] = true;
    std::size_t suivant = n;
    for (std::size_t j = 0; j < n; ++j) {
      proche[j] = std::max(proche[j], std::fabs(correlations[dernier * n + j]));
      if (!dedans[j] && (suivant == n || proche[j] > proche[suivant])) {
        suivant = j;
      }
    }
    paires.push_back(std::min(proche[suivant], 1.0));
    dernier = suivant;
  }
  return paires;
}

} // namespace

double FacteurFisher(int surplus) { return surplus * (std::pow(0.05, -2.0 / surplus) - 1); }

double FacteurStudent(int libertes) {
  constexpr double kPart = 0.95;
  constexpr double kPlusGrand = 13; ///< with one degree of freedom it is 12.706
  constexpr int kTours = 60;
  double bas = 0;
  double haut = kPlusGrand;
  for (int tour = 0; tour < kTours; ++tour) {
    const double milieu = (bas + haut) / 2;
    (PartStudent(milieu, libertes) < kPart ? bas : haut) = milieu;
  }
  return (bas + haut) / 2;
}

double ChanceKhi2(double khi2, int libertes) {
  if (libertes <= 0 || !(khi2 > 0)) {
    return 1;
  }
  const double x = khi2 / 2;
  const bool impair = libertes % 2 == 1;
  double somme = impair ? std::erfc(std::sqrt(x)) : std::exp(-x);
  double terme = impair ? 2 * std::sqrt(x / std::numbers::pi) * std::exp(-x) : x * std::exp(-x);
  for (int n = impair ? 3 : 4; n <= libertes; n += 2) {
    somme += terme;
    terme *= 2 * x / n;
  }
  return std::min(somme, 1.0);
}

double ChanceNormale(double ecart) { return 2 * Queue(std::fabs(ecart)); }

double SeuilDuPlusGrand(std::span<const double> correlations, double chance) {
  constexpr double kSansLien = 0.2; ///< under it two rarely are large together: leaving the pair out costs nothing
  constexpr double kPlusHaut = 9;
  constexpr int kTours = 16;
  const auto n = static_cast<std::size_t>(std::lround(std::sqrt(static_cast<double>(correlations.size()))));
  if (n == 0) {
    return 0;
  }
  const std::vector<double> paires = PairesDeLArbre(correlations, n);
  const auto borne = [&](double seuil) {
    double somme = static_cast<double>(n) * ChanceNormale(seuil);
    for (const double paire : paires) {
      somme -= paire > kSansLien ? ChanceDesDeux(seuil, paire) : 0;
    }
    return somme;
  };
  double bas = 0;
  double haut = kPlusHaut;
  for (int tour = 0; tour < kTours; ++tour) {
    const double milieu = (bas + haut) / 2;
    (borne(milieu) > chance ? bas : haut) = milieu;
  }
  return haut;
}

} // namespace velmaris

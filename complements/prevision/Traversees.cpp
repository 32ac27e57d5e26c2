#include "complements/prevision/Traversees.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace velmaris {
namespace {

struct Echantillon {
  double t;
  double valeur;
};

/// The point between two others where a function times a sign is the highest.
Echantillon Sommet(const std::function<double(double)> &f, double signe, double de, double a, double precision) {
  constexpr double kOr = std::numbers::phi - 1;
  double x = a - kOr * (a - de);
  double y = de + kOr * (a - de);
  double fx = signe * f(x);
  double fy = signe * f(y);
  while (a - de > precision) {
    if (fx > fy) {
      a = y;
      y = x;
      fy = fx;
      x = a - kOr * (a - de);
      fx = signe * f(x);
    } else {
      de = x;
      x = y;
      fx = fy;
      y = de + kOr * (a - de);
      fy = signe * f(y);
    }
  }
  return fx > fy ? Echantillon{x, signe * fx} : Echantillon{y, signe * fy};
}

double Racine(const std::function<double(double)> &f, Echantillon de, Echantillon a, double precision) {
  const bool dessus = de.valeur >= 0;
  while (a.t - de.t > precision) {
    const double milieu = (de.t + a.t) / 2;
    ((f(milieu) >= 0) == dessus ? de.t : a.t) = milieu;
  }
  return (de.t + a.t) / 2;
}

/// The samples, with the highest and lowest points that may reach over 0 between them.
std::vector<Echantillon> Echantillonne(const std::function<double(double)> &f, const Balayage &b) {
  const auto nombre = static_cast<std::size_t>(std::ceil((b.a - b.de) / b.pas)) + 3;
  std::vector<Echantillon> bruts;
  for (std::size_t i = 0; i < nombre; ++i) {
    const double t = b.de + (static_cast<double>(i) - 1) * b.pas;
    bruts.push_back({t, f(t)});
  }
  std::vector<Echantillon> tous{bruts.front()};
  for (std::size_t i = 1; i + 1 < bruts.size(); ++i) {
    const double signe = bruts[i].valeur >= 0 ? -1 : 1;
    const double ici = signe * bruts[i].valeur; // not over 0: what would cross is a top
    const double voisin = std::max(signe * bruts[i - 1].valeur, signe * bruts[i + 1].valeur);
    if (ici < voisin || voisin > 0 || ici < -b.pres) {
      tous.push_back(bruts[i]);
      continue;
    }
    const Echantillon haut = Sommet(f, signe, bruts[i - 1].t, bruts[i + 1].t, b.precision);
    const bool avant = haut.t < bruts[i].t;
    tous.push_back(avant ? haut : bruts[i]);
    tous.push_back(avant ? bruts[i] : haut);
  }
  tous.push_back(bruts.back());
  return tous;
}

} // namespace

std::vector<Traversee> TraverseesDe(const std::function<double(double)> &f, const Balayage &balayage) {
  const std::vector<Echantillon> tous = Echantillonne(f, balayage);
  std::vector<Traversee> traversees;
  for (std::size_t i = 1; i < tous.size(); ++i) {
    const bool dessus = tous[i].valeur >= 0;
    if ((tous[i - 1].valeur >= 0) == dessus) {
      continue;
    }
    const double t = Racine(f, tous[i - 1], tous[i], balayage.precision);
    if (t >= balayage.de && t < balayage.a) {
      traversees.push_back({t, dessus});
    }
  }
  return traversees;
}

} // namespace velmaris

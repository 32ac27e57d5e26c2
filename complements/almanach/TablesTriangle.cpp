#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/TablesAlmanach.hpp"
#include "complements/point/Sphere.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kMinutesParRadian = kMinutes / kRadian;
constexpr double kUnite = 1E6; ///< of logarithms and natural haversines
constexpr double kDistanceMoyenne = 37;

long Logarithme(double x) { return x > 0 ? std::lround(-std::log10(x) * kUnite) : kSansLogarithme; }

double Degres(int rang) { return rang * kPasHaversine / kMinutes; }

int RangDe(int degres) { return degres * 60 / kPasHaversine; }

} // namespace

TableDouble TablePolaire(const std::vector<long> &distances) {
  TableDouble table;
  table.y.assign(distances.begin(), distances.end());
  for (int angle = 0; angle <= 180; ++angle) {
    table.x.push_back(angle);
    table.z.emplace_back();
    for (const long distance : distances) {
      table.z.back().push_back(std::lround(-static_cast<double>(distance) * std::cos(angle * kRadian)));
    }
  }
  return table;
}

TableDouble TablePolaireHauteur() {
  TableDouble table;
  table.y = {0, 10, 20, 30, 40, 50, 55, 60, 65, 70};
  for (int angle = 0; angle <= 180; angle += 10) {
    table.x.push_back(angle);
    table.z.emplace_back();
    for (const double hauteur : table.y) {
      const double travers = kDistanceMoyenne * std::sin(angle * kRadian);
      table.z.back().push_back(ArrondiDixieme(travers * travers / 2 / kMinutesParRadian * std::tan(hauteur * kRadian)));
    }
  }
  return table;
}

TableDouble TablePolaireAzimut(double distance) {
  TableDouble table;
  table.y = {0, 10, 20, 30, 40, 50, 55, 60, 65, 70};
  for (int angle = 0; angle <= 180; angle += 10) {
    table.x.push_back(angle);
    table.z.emplace_back();
    for (const double latitude : table.y) {
      const double degres = distance / kMinutes * std::sin(angle * kRadian) / std::cos(latitude * kRadian);
      table.z.back().push_back(ArrondiDixieme(degres));
    }
  }
  return table;
}

TableHaversines Haversines() {
  TableHaversines table;
  table.logarithmes.reserve(static_cast<std::size_t>(RangDe(180)) + 1);
  table.naturels.reserve(static_cast<std::size_t>(RangDe(180)) + 1);
  for (int rang = 0; rang <= RangDe(180); ++rang) {
    const double moitie = std::sin(Degres(rang) / 2 * kRadian);
    table.logarithmes.push_back(Logarithme(moitie * moitie));
    table.naturels.push_back(std::lround(moitie * moitie * kUnite));
  }
  return table;
}

std::vector<long> LogarithmesCosinus() {
  std::vector<long> logarithmes;
  logarithmes.reserve(static_cast<std::size_t>(RangDe(90)) + 1);
  for (int rang = 0; rang < RangDe(90); ++rang) {
    logarithmes.push_back(Logarithme(std::cos(Degres(rang) * kRadian)));
  }
  logarithmes.push_back(kSansLogarithme);
  return logarithmes;
}

} // namespace velmaris

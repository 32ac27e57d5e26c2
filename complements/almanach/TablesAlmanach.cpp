#include "complements/almanach/TablesAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kPression = 1010;  ///< hPa, of the tables
constexpr double kTemperature = 10; ///< degrees Celsius
constexpr double kParallaxeSoleil = 8.794 / 60;
constexpr double kRayonLune = 0.2725076; ///< of the Earth's equator
constexpr double kParallaxeLune = 57.0;  ///< mean, minutes
constexpr double kAplatissement = 1 / 298.257;

double RefractionNormale(double hauteur) { return Refraction(hauteur, kPression, kTemperature); }

/// From one number to another by steps, both ends with them.
std::vector<double> Suite(double de, double a, double pas) {
  std::vector<double> suite;
  const long nombre = std::lround((a - de) / pas);
  for (long i = 0; i <= nombre; ++i) {
    suite.push_back(de + pas * static_cast<double>(i));
  }
  return suite;
}

void Ajoute(std::vector<double> &suite, const std::vector<double> &autres) {
  suite.insert(suite.end(), autres.begin(), autres.end());
}

template <class F> TableSimple Simple1(std::vector<double> x, F &&f) {
  TableSimple table{std::move(x), {}};
  for (const double valeur : table.x) {
    table.y.push_back(f(valeur));
  }
  return table;
}

template <class F> TableDouble Double2(std::vector<double> x, std::vector<double> y, F &&f) {
  TableDouble table{std::move(x), std::move(y), {}};
  for (const double a : table.x) {
    table.z.emplace_back();
    for (const double b : table.y) {
      table.z.back().push_back(f(a, b));
    }
  }
  return table;
}

double PourCent(double temperature, double pression) {
  constexpr double kCent = 100;
  // High enough that the refraction's own form, which air leaves alone, isn't in it.
  constexpr double kHauteur = 45;
  return (Refraction(kHauteur, pression, temperature) / RefractionNormale(kHauteur) - 1) * kCent;
}

/// The Moon's whole correction on a round Earth, minutes.
/// @param bord  +1 for the lower limb, -1 for the upper one
double CorrectionLune(double apparente, double hp, double bord) {
  constexpr int kTours = 4;
  const double sinHp = std::sin(hp / kMinutes * kRadian);
  const double vuDuBord = apparente - RefractionNormale(apparente) / kMinutes;
  double vu = vuDuBord;
  double vraie = vu;
  for (int tour = 0; tour < kTours; ++tour) {
    // From the place the Moon is nearer by sin(true zenith distance) over sin(seen one).
    vraie = vu + std::asin(sinHp * std::cos(vu * kRadian)) / kRadian;
    const double proche =
        std::sqrt(1 + sinHp * sinHp - 2 * sinHp * std::sin(vraie * kRadian)); // distance over that of the centres
    vu = vuDuBord + bord * std::asin(kRayonLune * sinHp / proche) / kRadian;
  }
  return (vraie - apparente) * kMinutes;
}

} // namespace

TableSimple TableDepression() {
  std::vector<double> metres = Suite(0.4, 10, 0.2);
  Ajoute(metres, Suite(10.5, 20, 0.5));
  Ajoute(metres, Suite(21, 40, 1));
  return Simple1(std::move(metres), [](double m) { return ArrondiDixieme(Depression(m)); });
}

TableSimple TableDepressionPieds() {
  constexpr double kPied = 0.3048;
  std::vector<double> pieds = Suite(2, 40, 1);
  Ajoute(pieds, Suite(42, 80, 2));
  Ajoute(pieds, Suite(85, 130, 5));
  return Simple1(std::move(pieds), [](double p) { return ArrondiDixieme(Depression(p * kPied)); });
}

std::vector<double> HauteursRefraction() {
  std::vector<double> hauteurs;
  for (const double minutes : Suite(0, 600, 10)) {
    hauteurs.push_back(minutes / kMinutes);
  }
  Ajoute(hauteurs, Suite(10.5, 20, 0.5));
  Ajoute(hauteurs, Suite(21, 30, 1));
  Ajoute(hauteurs, Suite(32, 50, 2));
  Ajoute(hauteurs, Suite(55, 90, 5));
  return hauteurs;
}

TableSimple TableRefraction() {
  return Simple1(HauteursRefraction(), [](double h) { return ArrondiDixieme(RefractionNormale(h)); });
}

TableDouble TableSoleil(const std::vector<long> &demiDiametres, bool superieur) {
  const std::vector<double> colonnes(demiDiametres.begin(), demiDiametres.end());
  return Double2(HauteursRefraction(), colonnes, [superieur](double h, double dixiemes) {
    const double demi = dixiemes / 10;
    return ArrondiDixieme(kParallaxeSoleil * std::cos(h * kRadian) - RefractionNormale(h) + (superieur ? -demi : demi));
  });
}

TableDouble TableAir() {
  return Double2(Suite(-30, 45, 5), Suite(960, 1050, 10),
                 [](double temperature, double pression) { return std::lround(PourCent(temperature, pression)); });
}

TableDouble TableCorrectionAir() {
  std::vector<double> hauteurs = Suite(0, 5, 0.5);
  Ajoute(hauteurs, Suite(6, 10, 1));
  Ajoute(hauteurs, {12, 14, 16, 18, 20, 25, 30, 35, 40, 50, 60, 90});
  constexpr double kCent = 100;
  return Double2(std::move(hauteurs), Suite(2, 24, 2),
                 [](double h, double parts) { return ArrondiDixieme(-RefractionNormale(h) * parts / kCent); });
}

TableDouble TableParallaxe() {
  return Double2(Suite(0, 90, 10), Suite(1, 6, 1),
                 [](double h, double dixiemes) { return ArrondiDixieme(dixiemes / 10 * std::cos(h * kRadian)); });
}

TableSimple TableBordLune() {
  std::vector<double> hauteurs;
  for (const double minutes : Suite(0, 5390, 10)) {
    hauteurs.push_back(minutes / kMinutes);
  }
  return Simple1(std::move(hauteurs), [](double h) { return ArrondiDixieme(CorrectionLune(h, kParallaxeLuneMin, 1)); });
}

TableDouble TableLuneParallaxe(bool superieur) {
  return Double2(Suite(kParallaxeLuneMin, 61.6, 0.3), Suite(0, 90, 5), [superieur](double hp, double h) {
    return ArrondiDixieme(CorrectionLune(h, hp, superieur ? -1 : 1) - CorrectionLune(h, kParallaxeLuneMin, 1));
  });
}

TableDouble TableFormeTerre(double latitude) {
  const double phi = latitude * kRadian;
  return Double2({10, 30, 50, 70}, Suite(0, 180, 30), [phi](double hauteur, double azimut) {
    const double h = hauteur * kRadian;
    const double cote = std::sin(2 * phi) * std::cos(azimut * kRadian) * std::sin(h);
    return ArrondiDixieme(kParallaxeLune * kAplatissement * (cote - std::sin(phi) * std::sin(phi) * std::cos(h)));
  });
}

std::vector<double> LatitudesFormeTerre() { return Suite(0, 75, 15); }

long Increment(TauxIncrement taux, int secondes) {
  // Tenths of a minute an hour: 15 degrees, 15 degrees 2.46', 14 degrees 19.0'.
  constexpr std::array kParHeure{9000.0, 9024.6, 8590.0};
  constexpr double kHeure = 3600;
  return std::lround(kParHeure.at(static_cast<std::size_t>(taux)) * secondes / kHeure);
}

long CorrectionVD(int minute, long dixiemes) {
  return std::lround(static_cast<double>(dixiemes) * (minute + 0.5) / kMinutes);
}

} // namespace velmaris

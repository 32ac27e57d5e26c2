#pragma once

#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// A second way to a heliocentric place: the published text read at run time, its terms summed here.
namespace velmaris::essais {

/// The terms A, B, C of each section ("L0", "R5") of a planet's table.
using TableVsop = std::map<std::string, std::vector<std::array<double, 3>>>;

struct PlaneteEssai {
  const char *nom;     ///< as PositionHelio takes it
  const char *fichier; ///< its table
};

inline constexpr PlaneteEssai kPlanetesEssai[] = {{"VENUS", "vsop87d_venus.txt"},
                                                  {"EARTH", "vsop87d_earth.txt"},
                                                  {"MARS", "vsop87d_mars.txt"},
                                                  {"JUPITER", "vsop87d_jupiter.txt"},
                                                  {"SATURNE", "vsop87d_saturn.txt"}};

inline TableVsop LitTable(const std::string &fichier) {
  std::ifstream flux(std::string(VELMARIS_TABLES) + "/" + fichier);
  if (!flux) {
    throw std::runtime_error("no table " + fichier);
  }
  TableVsop table;
  std::string section;
  for (std::string ligne; std::getline(flux, ligne);) {
    if (ligne.empty() || ligne[0] == '#') {
      continue;
    }
    if (std::isalpha(static_cast<unsigned char>(ligne[0])) != 0) {
      section = ligne.substr(0, ligne.find(' '));
      continue;
    }
    std::istringstream champs(ligne);
    std::array<double, 3> terme{};
    champs >> terme[0] >> terme[1] >> terme[2];
    table[section].push_back(terme);
  }
  return table;
}

/// How a coordinate is summed: in pieces of so many terms, each multiplied by the powers of t on its own.
/// @tparam Nombre  double as the program does it, long double for a sum without its rounding errors
template <class Nombre>
Nombre SommeTable(const TableVsop &table, char coordonnee, Nombre t, std::size_t morceau,
                  bool puissanceDabord = false) {
  Nombre total = 0;
  for (int k = 0; k < 6; ++k) {
    const auto section = table.find(std::string(1, coordonnee) + std::to_string(k));
    if (section == table.end()) {
      continue;
    }
    const auto &termes = section->second;
    for (std::size_t debut = 0; debut < termes.size(); debut += morceau) {
      Nombre S = 0;
      for (std::size_t i = debut; i < termes.size() && i < debut + morceau; ++i) {
        const Nombre argument = Nombre{termes[i][1]} + Nombre{termes[i][2]} * t;
        S += Nombre{termes[i][0]} * std::cos(argument);
      }
      Nombre facteur = 1;
      for (int j = 0; j < k; ++j) {
        if (puissanceDabord) {
          facteur *= t;
        } else {
          S *= t;
        }
      }
      total += S * facteur;
    }
  }
  return total;
}

inline constexpr std::size_t kMorceau = 500;
inline constexpr std::size_t kSansMorceaux = 100000;

/// Millennia from J2000.0.
inline double Millenaires(double JD) { return (JD - 2451545.0) / 365250; }

/// `nombre` dates from the start of 1900 to the end of 2100, at all times of the day.
inline std::vector<double> Dates(int nombre) {
  std::vector<double> dates;
  for (int i = 0; i < nombre; ++i) {
    dates.push_back(2415020.5 + 73414.0 * i / nombre + 0.137 * (i % 7));
  }
  return dates;
}

/// The longitude's steps in 32 bits, written out.
inline float TrenteDeuxBits(double somme) {
  const auto radians = static_cast<float>(somme);
  auto degres = static_cast<float>(static_cast<double>(radians) * 45.0 / std::atan(1.0));
  if (degres >= 360.0F || degres <= -360.0F) {
    degres = static_cast<float>(degres - std::floor(degres / 360.0) * 360.0);
  }
  if (degres < 0.0F) {
    degres = static_cast<float>(degres + 360.0);
  }
  return degres;
}

} // namespace velmaris::essais

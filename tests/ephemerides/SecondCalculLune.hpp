#pragma once

#include "ephemerides/ModulePosLune.hpp"

#include <array>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// The Moon worked a second time, from the published tables as text and with no routine of the program. In 64 bits the
/// results are compared exactly; in the longer width they tell what rounding costs.
namespace velmaris::essais {

struct LigneLune {
  double amplitude = 0;
  std::array<int, 9> multiples{}; ///< of D M l F Ve Te Ma Ju Lp
  double phase = 0;               ///< degrees
};

/// Rows of a table in ephemerides/tables.
inline std::vector<std::vector<double>> LitColonnes(const std::string &nom) {
  std::ifstream fichier(std::string(VELMARIS_TABLES) + "/" + nom);
  std::vector<std::vector<double>> lignes;
  for (std::string ligne; std::getline(fichier, ligne);) {
    if (ligne.empty() || ligne.front() == '#') {
      continue;
    }
    std::istringstream mots(ligne);
    std::vector<double> colonnes;
    for (double x = 0; mots >> x;) {
      colonnes.push_back(x);
    }
    lignes.push_back(colonnes);
  }
  return lignes;
}

inline std::vector<LigneLune> LitTableLune(const std::string &nom) {
  std::vector<LigneLune> lignes;
  for (const auto &colonnes : LitColonnes(nom)) {
    LigneLune l;
    l.amplitude = colonnes.at(0);
    for (std::size_t i = 0; i < l.multiples.size(); ++i) {
      l.multiples.at(i) = static_cast<int>(colonnes.at(i + 1));
    }
    l.phase = colonnes.at(10);
    lignes.push_back(l);
  }
  return lignes;
}

struct TablesLune {
  std::vector<LigneLune> longitude = LitTableLune("moon_longitude.txt");
  std::vector<LigneLune> latitude = LitTableLune("moon_latitude.txt");
  std::vector<LigneLune> distance = LitTableLune("moon_distance.txt");
  std::vector<std::vector<double>> nutation = LitColonnes("nutation_iau1980.txt");
};

inline const TablesLune &Tables() {
  static const TablesLune tables;
  return tables;
}

/// The Moon in the width R, from a Julian day.
template <class R> struct LuneALaMain {
  R Om{}, Lm{}, M{}, F{}, l{}, D{}, Ve{}, Te{}, Ma{}, Ju{}, Lp{};
  R dPsi{}, dEps{}, obliquite{}, longitude{}, latitude{}, distance{};
  R Ms{}, longSoleil{}, parallaxe{}, ad{}, decl{}, phase{};

  static constexpr R deg = R(180.0) / R(3.141592653589);
  static constexpr R arcSec = R(4.84814e-06);

  static R Tour(R x) { return x - R(6.283185307178) * std::floor(x / R(6.283185307178)); }

  R Argument(const LigneLune &t) const {
    const std::array<R, 9> a{D, M, l, F, Ve, Te, Ma, Ju, Lp};
    R x = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
      x += t.multiples.at(i) * a.at(i);
    }
    return x + R(t.phase) / deg;
  }

  void Arguments(R T) {
    const R T2 = T * T;
    const R T3 = T2 * T;
    const R T4 = T3 * T;
    Ve = Tour((R(181.979801) + R(58517.815676) * T) / deg);
    Te = Tour((R(100.46645) + R(35999.372854) * T) / deg);
    Ma = Tour((R(355.433275) + R(19140.299331) * T) / deg);
    Ju = Tour((R(34.351484) + R(3034.905675) * T) / deg);
    Om = (R(125.044555) - R(1934.1361849) * T + R(0.0020762) * T2 + T3 / 467410 - T4 / 60616000) / deg;
    Lm = Tour((R(218.3164591) + R(481267.88134236) * T - R(0.0013268) * T2 + T3 / 538841 - T4 / 65194000) / deg);
    M = (R(357.5291092) + R(35999.0502909) * T - R(0.0001536) * T2 + T3 / 24490000) / deg;
    F = Tour((R(93.2720993) + R(483202.0175273) * T - R(0.0034029) * T2 - T3 / 3526000 + T4 / 863310000) / deg);
    l = Tour((R(134.9634114) + R(477198.8676313) * T + R(0.008997) * T2 + T3 / 69699 - T4 / 14712000) / deg);
    D = Tour((R(297.8502042) + R(445267.1115168) * T - R(0.00163) * T2 + T3 / 545868 - T4 / 113065000) / deg);
    Lp = Lm + ((R(5029.0966) / 3600) / deg) * T;
  }

  void Nutation(R T) {
    for (const auto &n : Tables().nutation) {
      const R x = R(n[0]) * D + R(n[1]) * M + R(n[2]) * l + R(n[3]) * F + R(n[4]) * Om;
      dPsi += (R(n[5]) + R(n[6]) * T) * std::sin(x);
      dEps += (R(n[7]) + R(n[8]) * T) * std::cos(x);
    }
    dPsi /= 10000;
    dEps /= 10000;
  }

  void Soleil(R T) {
    const auto rad = [](R x) { return x / deg; };
    const R L = rad(R(279.69668) + R(36000.76892) * T + R(0.0003025) * T * T);
    Ms = rad(R(358.47583) + R(35999.04975) * T - R(0.00015) * T * T - R(3.3e-06) * T * T * T);
    const R C = rad(R(1.91946) - R(0.004789) * T - R(1.4e-05) * T * T) * std::sin(Ms) +
                rad(R(0.020094) - R(0.0001) * T) * std::sin(2 * Ms) + rad(R(0.000293)) * std::sin(3 * Ms);
    const R Ls = (L + C) - rad(R(0.00569)) - rad(R(0.00479)) * std::sin(rad(R(259.18) - R(1934.142) * T));
    longSoleil = Tour(Ls + rad(R(0.00134)) * std::cos(rad(R(153.23) + R(22518.7541) * T)) +
                      rad(R(0.00154)) * std::cos(rad(R(216.57) + R(45037.5082) * T)) +
                      rad(R(0.002)) * std::cos(rad(R(312.69) + R(32964.3577) * T)) +
                      rad(R(0.00179)) * std::sin(rad(R(350.74) + R(445267.1142) * T - R(0.00144) * T * T)) +
                      rad(R(0.00178)) * std::sin(rad(R(231.19) + R(20.2) * T)));
  }

  void Place(R T) {
    R S = 0;
    for (const LigneLune &t : Tables().longitude) {
      S += R(t.amplitude) * std::sin(Argument(t));
    }
    longitude = Lm + (S / 3600) / deg + dPsi * arcSec;
    S = 0;
    for (const LigneLune &t : Tables().latitude) {
      S += R(t.amplitude) * std::sin(Argument(t));
    }
    S -= (R(0.063144) / deg) * std::sin(R(183.3) / deg + (R(483202) / deg) * T);
    latitude = (S / 3600) / deg;
    distance = R(385000.56);
    for (const LigneLune &t : Tables().distance) {
      distance += R(t.amplitude) * std::cos(Argument(t));
    }
    const R p = std::floor(std::sin(R(6378.136) / distance) * deg * 3600 * 1000 + R(0.5)) / 1000;
    parallaxe = ((p / 60) / 60) * R(0.017453292);
  }

  void Equateur() {
    const R y = std::cos(obliquite) * std::sin(longitude) - std::sin(obliquite) * std::tan(latitude);
    ad = (deg / 15) * std::atan(y / std::cos(longitude));
    ad = ad < 0 ? ad + 24 : ad;
    ad = std::cos(longitude) < 0 ? ad + 12 : ad;
    ad = ad > 24 ? ad - 24 : ad;
    const R s =
        std::sin(latitude) * std::cos(obliquite) + (std::sin(obliquite) * std::cos(latitude)) * std::sin(longitude);
    decl = deg * std::atan(s / std::sqrt(-s * s + 1));
    const R c = std::cos(latitude) * std::cos(longitude - longSoleil);
    const R e = std::atan(-c / std::sqrt(-c * c + 1)) + 2 * std::atan(R(1));
    const R i =
        (180 - e * deg) - ((1 - std::sin(M) * R(0.0549)) / (1 - std::sin(Ms) * R(0.0167))) * (std::sin(e) * R(0.1468));
    phase = i / deg;
  }

  explicit LuneALaMain(R jd) {
    const R T = (jd - R(2451545.0)) / R(36525.0);
    Arguments(T);
    Nutation(T);
    Soleil((jd - R(2415020.0)) / R(36525.0));
    obliquite = ((R(23) + R(26) / 60 + R(21.448) / 3600) - (R(46.815) / 3600) * T - (R(0.00059) / 3600) * (T * T) +
                 (R(0.001813) / 3600) * (T * T * T)) /
                    deg +
                dEps * arcSec;
    Place(T);
    Equateur();
  }
};

/// The first of a year's moments, spread over months, days and hours.
inline Lune MomentDe(int annee) {
  Lune lune;
  const int i = annee - 1900;
  lune.LuneAn = annee;
  lune.LuneMois = 1 + (i * 7) % 12;
  lune.LuneJour = 1 + (i * 11) % 28;
  lune.LuneHeure = (i * 5) % 24;
  lune.LuneMinute = (i * 13) % 60;
  lune.LuneSeconde = static_cast<float>((i * 17) % 60);
  return lune;
}

/// The Moon of a year's moment, from the Earth's centre.
inline Lune LuneDe(int annee) {
  Lune lune = MomentDe(annee);
  CalculLune(lune);
  return lune;
}

/// A moment as year, month, day, hour, minute, second.
inline Lune LuneA(int annee, int mois, int jour, double heure = 0, double minute = 0, float seconde = 0) {
  Lune lune;
  lune.LuneAn = annee;
  lune.LuneMois = mois;
  lune.LuneJour = jour;
  lune.LuneHeure = heure;
  lune.LuneMinute = minute;
  lune.LuneSeconde = seconde;
  CalculLune(lune);
  return lune;
}

} // namespace velmaris::essais

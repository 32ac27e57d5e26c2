#pragma once

#include "SecondCalculPlanetes.hpp"
#include "foundations/TexteNombre.hpp"

#include <erfa.h>
#include <erfam.h>
#include <libnova/libnova.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Judges of planetary places: libnova's series brought to the date, vectors, and the fields of a place's line.
namespace velmaris::essais {

/// A heliocentric place, degrees and astronomical units.
struct LieuHelio {
  double L, B, R;
};

/// libnova's untruncated series of a planet, freed from what it adds to them. They are of another variant, on the
/// ecliptic and equinox of J2000.0, to which it applies an FK5 reduction; and it keeps the place of the last date.
/// @return the place on the ecliptic and equinox J2000.0
inline LieuHelio HelioNova(const std::string &nom, double JD) {
  ln_helio_posn q{};
  if (nom == "VENUS") {
    ln_get_venus_helio_coords(JD, &q);
  } else if (nom == "EARTH") {
    ln_get_earth_helio_coords(JD, &q);
  } else if (nom == "MARS") {
    ln_get_mars_helio_coords(JD, &q);
  } else if (nom == "JUPITER") {
    ln_get_jupiter_helio_coords(JD, &q);
  } else {
    ln_get_saturn_helio_coords(JD, &q);
  }
  const double T = Millenaires(JD) * 10;
  const double Lp = (q.L - 1.397 * T - 0.00031 * T * T) * ERFA_DD2R;
  const double tan = std::tan(q.B * ERFA_DD2R);
  q.L -= (-0.09033 + 0.03916 * (std::cos(Lp) + std::sin(Lp)) * tan) / 3600;
  q.B -= 0.03916 * (std::cos(Lp) - std::sin(Lp)) / 3600;
  return {q.L, q.B, q.R};
}

/// From the ecliptic and equinox J2000.0 to those of the date: the inclination and node of the moving ecliptic of Simon
/// et al. (1994, Astron. Astrophys. 282, 663), the general precession with the constant of 1976 that the series hold.
inline LieuHelio ALaDate(const LieuHelio &lieu, double JD) {
  const double t = Millenaires(JD);
  const double inclinaison = ((469.973 - (3.3505 + 0.0124 * t) * t) * t) * ERFA_DAS2R;
  const double noeud = (629543.433 + (-8679.270 + 15.342 * t) * t) * ERFA_DAS2R;
  const double precession = ((50290.966 + (111.2022 + 0.0773 * t) * t) * t) * ERFA_DAS2R;
  double matrice[3][3];
  double v[3];
  double l = 0;
  double b = 0;
  eraIr(matrice);
  eraRz(noeud, matrice);
  eraRx(inclinaison, matrice);
  eraRz(-(noeud + precession), matrice);
  eraS2c(lieu.L * ERFA_DD2R, lieu.B * ERFA_DD2R, v);
  eraRxp(matrice, v, v);
  eraC2s(v, &l, &b);
  return {eraAnp(l) * ERFA_DR2D, b * ERFA_DR2D, lieu.R};
}

inline void Vecteur(const LieuHelio &lieu, double v[3]) { eraS2p(lieu.L * ERFA_DD2R, lieu.B * ERFA_DD2R, lieu.R, v); }

/// Difference of two angles in degrees, as seconds of arc.
inline double Secondes(double a, double b) { return std::remainder(a - b, 360.0) * 3600; }

/// An equatorial place, degrees and astronomical units.
struct LieuEquatorial {
  double AD, Dec, d;
};

/// Separation of two places, seconds of arc.
inline double Ecart(const LieuEquatorial &a, const LieuEquatorial &b) {
  return eraSeps(a.AD * ERFA_DD2R, a.Dec * ERFA_DD2R, b.AD * ERFA_DD2R, b.Dec * ERFA_DD2R) * ERFA_DR2AS;
}

/// A place's line taken apart.
struct LignePlace {
  std::string AD, Dec, distance, diametre, magnitude; ///< as they stand between the bars
  LieuEquatorial lieu{};
};

/// The three numbers of an angle's text, any signs and units between them.
inline double Sexagesimal(const std::string &texte) {
  double total = 0;
  double poids = 1;
  for (std::size_t i = texte.find_first_of("0123456789"); i != std::string::npos; poids /= 60) {
    const std::size_t fin = texte.find_first_not_of("0123456789.", i);
    total += poids * std::stod(texte.substr(i, fin - i));
    i = fin == std::string::npos ? fin : texte.find_first_of("0123456789", fin);
  }
  return texte.find('-') == std::string::npos ? total : -total;
}

inline LignePlace LitLigne(const std::string &texte) {
  std::vector<std::string> champs(1);
  for (const char c : texte) {
    if (c == '|') {
      champs.emplace_back();
    } else {
      champs.back() += c;
    }
  }
  EXPECT_EQ(champs.size(), 5U) << texte;
  champs.resize(5);
  LignePlace ligne{champs[0], champs[1], champs[2], champs[3], champs[4], {}};
  ligne.lieu = {Sexagesimal(champs[0]) * 15, Sexagesimal(champs[1]), std::stod(champs[2]) / 149597870.0};
  return ligne;
}

/// Half of the last digit that right ascension and declination show, seconds of arc.
inline constexpr double kDemiDixiemeAD = 0.05 * 15;
inline constexpr double kDemiDixiemeDec = 0.05;

/// The planets of the sky, as the panel names them.
inline constexpr const char *kNomsPlanetes[] = {"Venus", "Mars", "Jupiter", "SATURNE"};

} // namespace velmaris::essais

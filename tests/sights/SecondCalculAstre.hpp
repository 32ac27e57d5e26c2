#pragma once

#include "sights/Observation.hpp"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

/// A sight of a star, a planet or the Moon worked a second time: one line for each value that is stored, texts made
/// and read back where a number travels as one. Results are compared exactly.
namespace velmaris::essais {

struct ViseeAstre {
  int jour = 21, mois = 6, annee = 2026;
  int heure = 21, minute = 5, seconde = 30;
  int latDegres = 47, latMinutes = 30, lonDegres = 5, lonMinutes = 10;
  bool sud = false, est = false;
  int degres = 30, minutes = 15, fraction = 20;
  bool centiemes = false;
  double oeil = 2.5, collimation = -1; ///< of whole tenths
  int bord = 2;
  bool artificiel = false;
  int astre = 0; ///< place in the list of stars or planets
};

inline std::string Texte15(double x) {
  char tampon[64];
  std::snprintf(tampon, sizeof tampon, "%.15G", x);
  return tampon;
}

inline std::string Texte7(float x) {
  char tampon[64];
  std::snprintf(tampon, sizeof tampon, "%.7G", double{x});
  return tampon;
}

inline std::string EnVirgule(std::string texte) {
  const std::size_t point = texte.find('.');
  return point == std::string::npos ? texte : texte.replace(point, 1, ",");
}

/// A number once more after its text of 15 digits.
inline double ParTexte15(double x) { return std::strtod(Texte15(x).c_str(), nullptr); }

inline Observation ChampsAstre(const ViseeAstre &v, Corps corps) {
  Observation o;
  o.jour = std::to_string(v.jour);
  o.mois = std::to_string(v.mois);
  o.annee = std::to_string(v.annee);
  o.heure = std::to_string(v.heure);
  o.minute = std::to_string(v.minute);
  o.seconde = std::to_string(v.seconde);
  o.latitudeDegres = std::to_string(v.latDegres);
  o.latitudeMinutes = std::to_string(v.latMinutes);
  o.longitudeDegres = std::to_string(v.lonDegres);
  o.longitudeMinutes = std::to_string(v.lonMinutes);
  o.lectureDegres = std::to_string(v.degres);
  o.lectureMinutes = std::to_string(v.minutes);
  o.lectureFraction = std::to_string(v.fraction);
  o.hauteurOeil = EnVirgule(Texte15(v.oeil));
  o.collimation = EnVirgule(Texte15(v.collimation));
  o.sud = v.sud;
  o.est = v.est;
  o.fraction = v.centiemes ? Fraction::Centiemes : Fraction::Secondes;
  o.bord = static_cast<Bord>(v.bord);
  o.horizon = v.artificiel ? Horizon::Artificiel : Horizon::Naturel;
  o.corps = corps;
  o.etoile = corps == Corps::Etoiles ? v.astre : -1;
  o.planete = corps == Corps::Planetes ? v.astre : -1;
  return o;
}

inline float LatitudeALaMain(const ViseeAstre &v) {
  const double x = v.latDegres + v.latMinutes / 60.0;
  return static_cast<float>(v.sud ? -x : x);
}

/// West positive.
inline float LongitudeALaMain(const ViseeAstre &v) {
  const double x = v.lonDegres + v.lonMinutes / 60.0;
  return static_cast<float>(v.est ? -x : x);
}

/// The reading in 64 bits.
struct LectureALaMain {
  double H = 0, Depression = 0, Refraction = 0;

  explicit LectureALaMain(const ViseeAstre &v) {
    const double RAD = 0.017453292;
    H = v.degres + v.minutes / 60.0;
    H = v.centiemes ? H + v.fraction / 100.0 / 60 : H + v.fraction / 60.0 / 60;
    Depression = 0.0321 * std::sqrt(v.oeil);
    const double A = (H + 7.31 / H + 4.4) * RAD;
    const double R = 1.0 / std::tan(A) * RAD;
    const double B = (R * 14.7 + 13.0) * RAD;
    Refraction = R - 0.06 * std::sin(B) / 60;
  }

  /// Observed height of a star or a planet: no parallax, no limb.
  double Ho(const ViseeAstre &v) const {
    const double col = v.collimation / 60;
    return v.artificiel ? (H - Refraction + col) / 2 : H - Depression - Refraction + col;
  }
};

/// Azimuth and height of a place, each through its text and its 32 bits.
struct HorizonALaMain32 {
  float azimut = 0, hauteur = 0;
  double decRadians = 0;
  bool sentinelle = false; ///< the arc cosine failed

  /// @param ra, dec       degrees
  /// @param longitudeEst  degrees
  HorizonALaMain32(const ViseeAstre &v, double ra, double dec, double latitude, double longitudeEst) {
    const double pi = 3.141592653589;
    const int y = v.mois < 3 ? v.annee - 1 : v.annee;
    const double m = v.mois < 3 ? v.mois + 12 : v.mois;
    const double a = std::floor(y / 100.0);
    const double b = 2 - a + std::floor(a / 4);
    const double jours = b + std::floor(y * 365.25) + std::floor(30.6001 * (m + 1)) - 730550.5 + v.jour;
    const double n = jours + ((v.heure + v.minute / 60.0) + v.seconde / 3600.0) / 24.0;
    const double t = n / 36525;
    double S = ((280.46061837 + 360.98564736629 * n) + (0.000387933 * t) * t) - ((t * t) * t) / 38710000;
    S = S + longitudeEst;
    while (S > 360) {
      S = S - 360;
    }
    while (S < 0) {
      S = S + 360;
    }
    double angle = ParTexte15(S - ra);
    angle = angle < 0 ? ParTexte15(angle + 360) : angle;
    angle = ParTexte15(angle * pi / 180);
    decRadians = dec * pi / 180;
    Regarde(angle, latitude * pi / 180);
  }

private:
  void Regarde(double angle, double lat) {
    const double pi = 3.141592653589;
    const double s = std::sin(decRadians) * std::sin(lat) + (std::cos(lat) * std::cos(decRadians)) * std::cos(angle);
    const double h = std::atan(s / std::sqrt(-s * s + 1));
    const double c = (std::sin(decRadians) - std::sin(lat) * std::sin(h)) / (std::cos(lat) * std::cos(h));
    sentinelle = std::fabs(c) >= 1;
    const double arc = sentinelle ? 999 : std::atan(-c / std::sqrt(-c * c + 1)) + 2 * std::atan(1.0);
    float A = static_cast<float>(arc);
    A = static_cast<float>(A * 180.0 / pi);
    if (std::sin(angle) > 0) {
      A = static_cast<float>(360.0 - A);
    }
    azimut = static_cast<float>(std::strtod(Texte7(A).c_str(), nullptr));
    hauteur = static_cast<float>(ParTexte15(h * 180 / pi));
  }
};

/// Whole degrees and minutes, both floors.
inline std::string EntiersALaMain(double h) {
  const double degres = std::floor(h);
  return Texte15(degres) + "° " + Texte15(std::floor((h - degres) * 60)) + "'";
}

/// A sign and the whole degrees and minutes of what it precedes.
inline std::string SigneALaMain(double h) { return (h < 0 ? " - " : " + ") + EntiersALaMain(std::fabs(h)); }

/// Any sight of the years round the present.
inline ViseeAstre ViseeAuHasard(std::mt19937 &alea, int astres) {
  const auto entier = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(alea); };
  ViseeAstre v;
  v.jour = entier(1, 28);
  v.mois = entier(1, 12);
  v.annee = entier(1900, 2100);
  v.heure = entier(0, 23);
  v.minute = entier(0, 59);
  v.seconde = entier(0, 59);
  v.latDegres = entier(0, 88);
  v.latMinutes = entier(0, 59);
  v.lonDegres = entier(0, 179);
  v.lonMinutes = entier(0, 59);
  v.sud = entier(0, 1) == 1;
  v.est = entier(0, 1) == 1;
  v.artificiel = entier(0, 1) == 1;
  v.degres = entier(1, v.artificiel ? 140 : 89);
  v.minutes = entier(0, 60);
  v.fraction = entier(0, 99);
  v.centiemes = entier(0, 1) == 1;
  v.oeil = entier(0, 300) / 10.0;
  v.collimation = entier(-600, 600) / 10.0;
  v.bord = entier(0, 2);
  v.astre = entier(0, astres - 1);
  return v;
}

} // namespace velmaris::essais

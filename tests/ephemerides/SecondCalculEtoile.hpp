#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>

/// A star's place worked a second time: the row is taken apart by its shape and not by positions.
namespace velmaris::essais {

struct LigneEtoile {
  std::string bayer, nom;
  std::string heures, minutes, apresMinutes, decimales; ///< right ascension; `apresMinutes` is empty for a short one
  std::string signe, degres, minutesDec, secondesDec;
  char separateurDec = ':'; ///< between degrees and minutes
  char pointAD = ',';       ///< before the decimals
  bool reconnue = false;
};

/// The pieces of a row as its maker meant them.
inline LigneEtoile DecoupeALaMain(const std::string &ligne) {
  static const std::regex forme(
      R"(\((\S \w{3})\)([^X]*)X(\d\d):(\d\d)(?::(\d\d))?(?:([,.])(\d))?X([+-])(\d\d)([:,])(\d\d)(?::(\d\d?))?)");
  LigneEtoile l;
  std::smatch m;
  if (std::regex_match(ligne, m, forme)) {
    l.reconnue = true;
    l.bayer = m[1];
    l.nom = m[2];
    l.heures = m[3];
    l.minutes = m[4];
    l.apresMinutes = m[5];
    l.pointAD = m[6].length() > 0 ? *m[6].first : ' ';
    l.decimales = m[7];
    l.signe = m[8];
    l.degres = m[9];
    l.separateurDec = *m[10].first;
    l.minutesDec = m[11];
    l.secondesDec = m[12];
  }
  return l;
}

inline double Nombre(const std::string &texte) { return texte.empty() ? 0.0 : std::strtod(texte.c_str(), nullptr); }

struct PlaceEtoile {
  double ad = 0, dec = 0; ///< degrees
};

/// The place that a row means: tenths of a minute, decimals and signs respected.
inline PlaceEtoile PlaceVoulue(const LigneEtoile &l) {
  const double dixiemes = Nombre(l.decimales) / 10;
  const double secondes = l.apresMinutes.empty() ? dixiemes * 60 : Nombre(l.apresMinutes) + dixiemes;
  const double dec = Nombre(l.degres) + Nombre(l.minutesDec) / 60 + Nombre(l.secondesDec) / 3600;
  return {15 * (Nombre(l.heures) + Nombre(l.minutes) / 60 + secondes / 3600), l.signe == "-" ? -dec : dec};
}

/// The place that the program reads in a row.
inline PlaceEtoile PlaceLue(const LigneEtoile &l) {
  const double secondes = l.apresMinutes.empty() ? Nombre(l.decimales) : Nombre(l.apresMinutes);
  const double d = Nombre(l.signe + l.degres);
  const double m = Nombre(l.minutesDec) / 60;
  const double s = Nombre(l.secondesDec) / 3600;
  return {15 * ((Nombre(l.heures) + Nombre(l.minutes) / 60) + (secondes + 0.3) / 3600),
          d < 0 ? (d - m) - s : (d + m) + s};
}

/// Julian centuries from J2000.0 to a Gregorian date at 0 h, by counting days.
inline double Siecles(int jour, int mois, int annee) {
  long jours = 0;
  const auto bissextile = [](int a) { return (a % 4 == 0 && a % 100 != 0) || a % 400 == 0; };
  for (int a = 2000; a < annee; ++a) {
    jours += bissextile(a) ? 366 : 365;
  }
  for (int a = annee; a < 2000; ++a) {
    jours -= bissextile(a) ? 366 : 365;
  }
  constexpr int kLongueurs[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int m = 1; m < mois; ++m) {
    jours += kLongueurs[m - 1] + (m == 2 && bissextile(annee) ? 1 : 0);
  }
  return (static_cast<double>(jours + jour - 1) - 0.5) / 36525;
}

/// The text of a place carried to a date.
/// @param muAd   proper motion, seconds of time a year
/// @param muDec  proper motion, seconds of arc a year
inline std::string TexteALaMain(PlaceEtoile p, double muAd, double muDec, double T) {
  const double k = 0.017453292;
  const double m = 3.07496 + 0.00186 * T;
  const double n = 1.33621 - 0.00057 * T;
  const double n2 = 20.0431 - 0.0085 * T;
  const double da = (m + (n * std::sin(p.ad * k)) * std::tan(p.dec * k) + muAd) * (100 * T);
  const double dd = (n2 * std::cos(p.ad * k) + muDec) * (100 * T);
  char texte[80];
  std::snprintf(texte, sizeof texte, "%.15GX%.15G", p.ad + (da / 3600) * 15, p.dec + dd / 3600);
  return texte;
}

} // namespace velmaris::essais

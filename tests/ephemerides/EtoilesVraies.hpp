#pragma once

#include "tests/ephemerides/OutilsEtoiles.hpp"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

/// The true places of the table's rows, from an outside catalogue, and how far the program's rows lie from them.
namespace velmaris::essais {

/// A row of `etoiles_icrs.txt`.
struct EtoileVraie {
  double ad = 0, dec = 0;     ///< ICRS at J2000.0, degrees
  double muAd = 0, muDec = 0; ///< milliseconds of arc a year, the first times the cosine of the declination
  double parallaxe = 0;       ///< milliseconds of arc
  double ecart = 0;           ///< how far the row as written lies from there, minutes of arc
};

/// All rows, in the table's order; nothing where no catalogue of bright stars has the star.
inline std::vector<std::optional<EtoileVraie>> LitEtoilesVraies() {
  const auto racine = std::filesystem::path(VELMARIS_DONNEES).parent_path();
  std::ifstream fichier(racine / "tests" / "ephemerides" / "etoiles_icrs.txt");
  std::vector<std::optional<EtoileVraie>> etoiles;
  for (std::string ligne; std::getline(fichier, ligne);) {
    if (ligne.empty() || ligne.front() == '#') {
      continue;
    }
    std::replace(ligne.begin(), ligne.end(), '|', ' ');
    std::istringstream champs(ligne);
    int rang = 0;
    double magnitude = 0;
    EtoileVraie e;
    const bool lue =
        static_cast<bool>(champs >> rang >> e.ad >> e.dec >> e.muAd >> e.muDec >> e.parallaxe >> magnitude >> e.ecart);
    etoiles.push_back(lue ? std::optional(e) : std::nullopt);
  }
  return etoiles;
}

/// The mean place of a 1 January, by the catalogue's motion and the precession of 2006; radians.
inline void PlaceMoyenne(const EtoileVraie &e, int annee, double &ad, double &dec) {
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(annee, 1, 1, &jd0, &jd);
  const double mas = ERFA_DAS2R / 1000;
  const double d = e.dec * ERFA_DD2R;
  double parallaxe = 0;
  double vitesse = 0;
  double muAd = 0;
  double muDec = 0;
  eraPmsafe(e.ad * ERFA_DD2R, d, e.muAd * mas / std::cos(d), e.muDec * mas, e.parallaxe / 1000, 0, ERFA_DJ00, 0, jd0,
            jd, &ad, &dec, &muAd, &muDec, &parallaxe, &vitesse);
  double matrice[3][3];
  double v[3];
  eraPmat06(jd0, jd, matrice);
  eraS2c(ad, dec, v);
  eraRxp(matrice, v, v);
  eraC2s(v, &ad, &dec);
}

/// How far the program's place of a row lies from the true mean place, minutes of arc.
inline double EcartLu(const TableLue &table, int rang, const EtoileVraie &e, int annee) {
  double ad = 0;
  double dec = 0;
  PlaceMoyenne(e, annee, ad, dec);
  const PaireX p = table.place(rang, 1, 1, annee);
  return eraSeps(ad, dec, p.gauche * ERFA_DD2R, p.droite * ERFA_DD2R) * ERFA_DR2D * 60;
}

/// How far a row as it is written, tenths of a minute being tenths, lies from the true place at J2000.0; minutes of
/// arc.
inline double EcartEcrit(int rang, const EtoileVraie &e) {
  const std::string ligne(kLignesEtoiles[static_cast<std::size_t>(rang) - 1]);
  const std::size_t x1 = ligne.find('X');
  const std::size_t x2 = ligne.find('X', x1 + 1);
  std::string texteAd = ligne.substr(x1 + 1, x2 - x1 - 1);
  std::string texteDec = ligne.substr(x2 + 1);
  std::replace(texteAd.begin(), texteAd.end(), ',', '.');
  std::replace(texteAd.begin(), texteAd.end(), ':', ' ');
  for (char &c : texteDec) {
    c = c == ',' || c == ':' ? ' ' : c;
  }
  const auto sexa = [](const std::string &texte) {
    std::istringstream champs(texte);
    double a = 0;
    double b = 0;
    double c = 0;
    champs >> a >> b;
    champs >> c;
    return std::fabs(a) + b / 60 + (champs.fail() ? 0.0 : c / 3600);
  };
  const double ad = sexa(texteAd) * 15;
  const double dec = texteDec.front() == '-' ? -sexa(texteDec) : sexa(texteDec);
  return eraSeps(ad * ERFA_DD2R, dec * ERFA_DD2R, e.ad * ERFA_DD2R, e.dec * ERFA_DD2R) * ERFA_DR2D * 60;
}

} // namespace velmaris::essais

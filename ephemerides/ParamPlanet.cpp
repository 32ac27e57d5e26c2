#include "ephemerides/ParamPlanet.hpp"

#include "ephemerides/Conversions.hpp"
#include "ephemerides/Series.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kJoursParMillenaire = 365250.0;
/// A longer series is summed in pieces of so many terms, and the last digits of a place depend on it.
constexpr std::size_t kTermesParMorceau = 500;

/// The sum of some terms, times the power of t of their series. The cosines of a piece are worked out together: the
/// same figures in the same order, a twentieth faster.
double SommeMorceau(std::span<const TermeVsop> termes, double t, std::size_t puissance) {
  double S = 0.0;
  std::array<double, kTermesParMorceau> cosinus; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
  for (std::size_t i = 0; i < termes.size(); ++i) {
    cosinus[i] = termes[i].B + termes[i].C * t;
  }
  for (std::size_t i = 0; i < termes.size(); ++i) {
    cosinus[i] = std::cos(cosinus[i]);
  }
  for (std::size_t i = 0; i < termes.size(); ++i) {
    S = S + termes[i].A * cosinus[i];
  }
  for (std::size_t k = 0; k < puissance; ++k) {
    S = S * t;
  }
  return S;
}

double SommeCoordonnee(const CoordonneeVsop &series, double t) {
  double somme = 0.0;
  for (std::size_t puissance = 0; puissance < series.size(); ++puissance) {
    std::span<const TermeVsop> reste = series[puissance];
    while (!reste.empty()) {
      const std::size_t nombre = std::min(reste.size(), kTermesParMorceau);
      somme = somme + SommeMorceau(reste.first(nombre), t, puissance);
      reste = reste.subspan(nombre);
    }
  }
  if (!std::isfinite(somme)) {
    throw Erreur(6);
  }
  return somme;
}

std::string TextePlanete(const SeriesPlanete &series, double JD) {
  const double t = (JD - kJ2000) / kJoursParMillenaire;
  const double somme = SommeCoordonnee(series.L, t);
  const double B = SommeCoordonnee(series.B, t);
  const double R = SommeCoordonnee(series.R, t);
  return TexteGeneral(LongitudeDeSomme(somme)) + "|" + TexteGeneral(EnDegres(B)) + "|" + TexteGeneral(R);
}

/// Place of the first bar at or after a character, counted from 1; 0 when there is none.
std::size_t PlaceBarre(std::string_view texte, std::size_t depart) {
  const std::size_t barre = texte.find('|', depart - 1);
  return barre == std::string_view::npos ? 0 : barre + 1;
}

/// The number in the characters from `depart`, counted from 1, up to the one before `fin`.
double NombreEntre(std::string_view texte, std::size_t depart, std::size_t fin) {
  if (fin < depart) {
    throw Erreur(5);
  }
  return Val(texte.substr(depart - 1, fin - depart));
}

} // namespace

float LongitudeDeSomme(double somme) {
  float LongitudeR4 = Simple(somme);
  LongitudeR4 = Simple(EnDegres(double{LongitudeR4}));
  if (std::fabs(LongitudeR4) >= 360.0F) {
    LongitudeR4 = Simple(double{LongitudeR4} - Int(double{LongitudeR4} / 360) * 360);
  }
  if (LongitudeR4 < 0.0F) {
    LongitudeR4 = Simple(double{LongitudeR4} + 360);
  }
  return LongitudeR4;
}

std::string SeriesVenus(double JD) { return TextePlanete(kSeriesVenus, JD); }
std::string SeriesTerre(double JD) { return TextePlanete(kSeriesTerre, JD); }
std::string SeriesMars(double JD) { return TextePlanete(kSeriesMars, JD); }
std::string SeriesJupiter(double JD) { return TextePlanete(kSeriesJupiter, JD); }
std::string SeriesSaturne(double JD) { return TextePlanete(kSeriesSaturne, JD); }

std::string PositionHelio(std::string_view nom, double JD) {
  const std::string planete = EnCapitales(SansBlancs(nom));
  if (planete == "VENUS") {
    return SeriesVenus(JD);
  }
  if (planete == "EARTH") {
    return SeriesTerre(JD);
  }
  if (planete == "MARS") {
    return SeriesMars(JD);
  }
  if (planete == "JUPITER") {
    return SeriesJupiter(JD);
  }
  if (planete == "SATURNE") {
    return SeriesSaturne(JD);
  }
  return "";
}

double ExtraitCoord(std::string &cle, std::string_view texte) {
  cle = EnCapitales(cle);
  const std::size_t p = PlaceBarre(texte, 1);
  if (cle == "L" || cle == "X" || cle == "RA") {
    return NombreEntre(texte, 1, p);
  }
  const std::size_t deuxieme = PlaceBarre(texte, p + 1);
  if (cle == "B" || cle == "Y" || cle == "DECL") {
    return NombreEntre(texte, p + 1, deuxieme);
  }
  if (cle == "R" || cle == "Z" || cle == "DIST") {
    return Val(texte.substr(deuxieme));
  }
  return 0.0;
}

} // namespace velmaris

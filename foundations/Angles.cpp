#include "foundations/Angles.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kLogDeDix = 2.30258509299405;
constexpr std::size_t kColonnes = 16;
constexpr long kDixiemesParDegre = 600;

/// An angle in tenths of a minute as text.
/// @param masque  of the whole degrees
std::string TexteAngle(double degres, std::string_view masque, char positif, char negatif) {
  const long dixiemes = std::lround(std::fabs(degres) * static_cast<double>(kDixiemesParDegre));
  const long entiers = dixiemes / kDixiemesParDegre;
  const double minutes = static_cast<double>(dixiemes % kDixiemesParDegre) / 10;
  return Format(static_cast<double>(entiers), masque) + "° " + Format(minutes, "00.0") + "' " +
         (degres < 0 && dixiemes != 0 ? negatif : positif);
}

/// Arc tangent of the sine over the cosine that a sine implies.
double ArcDuSinus(double x) { return std::atan(Divise(x, Racine(-x * x + 1))); }

/// The three fields of an angle, each with the sign of the whole.
struct Champs {
  double entier, minutes, secondes;
};

Champs Decoupe(double x) {
  double reste = std::fabs(x);
  Champs c{};
  c.entier = Int(reste);
  reste = (reste - c.entier) * 60;
  c.minutes = Int(reste);
  c.secondes = (reste - c.minutes) * 60;
  if (x < 0) {
    c = {-c.entier, -c.minutes, -c.secondes};
  }
  return c;
}

} // namespace

double UnTourDegres(double degres) {
  if (degres >= 0 && degres <= 360) {
    return degres;
  }
  const double reste = std::fmod(degres, 360.0);
  if (reste == 0) {
    return degres > 0 ? 360 : 0;
  }
  return reste < 0 ? reste + 360 : reste;
}

double ReduitDeuxPi(float x) {
  const double q = double{x} / kDeuxPiCourt;
  return double{x} - Int(q) * kDeuxPiCourt;
}

double ArcTanQuadrant(double y, double x) {
  double a = std::atan(Divise(y, x));
  if (x < 0) {
    a = a + kPiCourt;
  }
  if (y < 0 && x > 0) {
    a = a + kDeuxPiCourt;
  }
  return a;
}

double ArcCosinus(double x) { return std::atan(Divise(-x, Racine(-x * x + 1))) + 2 * std::atan(1.0); }

double ArcCosDouble(double x) {
  double resultat = 999.0;
  Passe([&] { resultat = ArcCosinus(x); });
  return resultat;
}

double ArcSinDouble(double x) { return ArcDuSinus(x); }

double ArcCosVal(double x) { return ArcCosDouble(x); }

double ArcSinVal(double x) { return ArcDuSinus(x); }

double ArcSinDegres(double x) {
  const double r = std::fabs(x) == 1.0 ? (std::atan(1.0) + std::atan(1.0)) * x : ArcDuSinus(x);
  return (r * 45) / std::atan(1.0);
}

double HeuresEnDegres(double h, double m, std::optional<double> &s) {
  s = s.value_or(0.0);
  return 15 * ((h + m / 60) + *s / 3600);
}

double SexaEnDegres(double d, double m, double s) { return d < 0 ? (d - m / 60) - s / 3600 : (d + m / 60) + s / 3600; }

std::string DegresEnTexte(double x) {
  const Champs c = Decoupe(x);
  return Format(c.entier, "00") + "°" + Format(c.minutes, "00") + "'" + Format(c.secondes, "00") + "''";
}

std::string HeuresEnTexte(double &x) {
  x = (x * 24) / 360;
  const Champs c = Decoupe(x);
  return Format(c.entier, "00") + "h" + Format(c.minutes, "00") + "m" + Format(c.secondes, "00") + "s";
}

std::string DegresPointMinutes(double x) {
  return Format(std::fabs(Fix(x)), "00") + "." + Format(std::fabs(x - Fix(x)) * 60, "00");
}

std::string FormatAngle(double valeur, std::string &genre, bool montrePlus) {
  const std::string signe = valeur >= 0 ? (montrePlus ? "+" : "") : "-";
  const double x = std::fabs(valeur);
  genre = EnCapitales(SansBlancs(genre));
  const bool degres = genre == "DMS";
  double t = x * (degres ? 3600 : 240);
  double a = Int(t / 3600);
  t = t - 3600 * a;
  double m = Int(t / 60);
  const double s = t - 60 * m;
  std::string secondes = Format(s, "0#.0");
  if (Val(TexteGeneral(s)) == 60.0) {
    m = m + 1;
    secondes.clear();
  }
  std::string minutes = Format(m, "0#");
  if (m == 60.0) {
    a = a + 1;
    minutes.clear();
  }
  const std::string champs = degres ? Format(a, "#0") + "° " + minutes + "' " + secondes + "\""
                                    : Format(a, "0#") + "h " + minutes + "m " + secondes + "s";
  const std::string texte = signe + champs;
  return Droite(std::string(kColonnes, ' ') + std::string(SansBlancs(texte)), kColonnes);
}

std::string TexteTenue(double latitude, double longitude) {
  if (!(std::fabs(latitude) <= 90.0) || !std::isfinite(longitude)) {
    return "";
  }
  return TexteAngle(latitude, "00", 'N', 'S') + "  " + TexteAngle(std::remainder(longitude, 360.0), "000", 'W', 'E');
}

double LogDecimal(double x) { return Log(x) / kLogDeDix; }

double UAEnKm(double &d) {
  d = d * kUniteAstronomique;
  return d;
}

} // namespace velmaris

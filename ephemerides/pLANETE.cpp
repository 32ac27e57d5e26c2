#include "ephemerides/pLANETE.hpp"

#include "ephemerides/Conversions.hpp"
#include "ephemerides/Nutation.hpp"
#include "ephemerides/ParamPlanet.hpp"
#include "foundations/Angles.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kJoursParSiecle = 36525.0;
constexpr double kJoursParUA = 0.00577551830441213; ///< days that light takes for one astronomical unit
constexpr std::size_t kColonnesDiametre = 10;

struct Vecteur {
  double x = 0.0, y = 0.0, z = 0.0; ///< astronomical units, ecliptic of the date
};

/// A heliocentric place, read back from its text.
struct PlaceHelio {
  Vecteur v;
  double R = 0.0;
};

double Champ(std::string cle, const std::string &texte) { return ExtraitCoord(cle, texte); }

PlaceHelio LitHelio(std::string_view nom, double JD) {
  const std::string texte = PositionHelio(nom, JD);
  const double lambda = EnRadians(Champ("L", texte));
  const double beta = EnRadians(Champ("B", texte));
  PlaceHelio place;
  place.R = Champ("R", texte);
  place.v.x = (place.R * std::cos(beta)) * std::cos(lambda);
  place.v.y = (place.R * std::cos(beta)) * std::sin(lambda);
  place.v.z = place.R * std::sin(beta);
  return place;
}

/// A planet from the Earth, both at one moment.
struct Geocentre {
  Vecteur v;
  double R0 = 0.0; ///< Earth from the Sun, astronomical units
  double r = 0.0;  ///< planet from the Sun, astronomical units
};

Geocentre CalculeGeocentre(const std::string &nom, double JD) {
  PlaceHelio terre = LitHelio("EARTH", JD);
  if (nom == "Sun") {
    terre.v = {};
  }
  const PlaceHelio planete = LitHelio(nom, JD);
  return {{planete.v.x - terre.v.x, planete.v.y - terre.v.y, planete.v.z - terre.v.z}, terre.R, planete.R};
}

/// Angle of the point (x, y) in degrees, within a turn.
double AngleDuPoint(double y, double x) {
  double a = std::atan(Divise(y, x));
  if (x < 0) {
    a = a + std::atan(1.0) * 4;
  }
  if (a < 0) {
    a = a + std::atan(1.0) * 8;
  }
  return EnDegres(a);
}

/// Longitude of the date freed from precession, in radians, as the FK5 reduction takes it.
double LongitudeFK5(double JD, double lambda) {
  const double T = (JD - kJ2000) / kJoursParSiecle;
  return EnRadians((lambda - 1.397 * T) - (0.00031 * T) * T);
}

/// What the photometry works on.
struct Photometrie {
  double r = 0.0;   ///< from the Sun, astronomical units
  double d = 0.0;   ///< from the Earth, astronomical units
  double L10 = 0.0; ///< decimal logarithm of their product
  double i = 0.0;   ///< phase angle, degrees
};

/// Diameter and magnitude of a body by the exact spelling of its name.
struct LignePhotometrie {
  std::string_view nom;
  double k; ///< semi-diameter at one astronomical unit, seconds of arc
  double (*magnitude)(const Photometrie &);
};

constexpr LignePhotometrie kPhotometrie[] = {
    {"Sun", 959.63, nullptr}, // no figure: its magnitude is a dash
    {"Mercury", 3.36,
     [](const Photometrie &p) {
       return -0.42 + 5 * p.L10 + p.i * 0.038 - (p.i * 0.000273) * p.i + ((p.i * 2e-06) * p.i) * p.i;
     }},
    {"Venus", 8.41,
     [](const Photometrie &p) {
       return -4.4 + 5 * p.L10 + p.i * 0.0009 + (p.i * 0.000239) * p.i - ((p.i * 6.5e-07) * p.i) * p.i;
     }},
    {"Mars", 4.68, [](const Photometrie &p) { return -1.52 + 5 * p.L10 + p.i * 0.016; }},
    {"Jupiter", 98.44, [](const Photometrie &p) { return -9.4 + 5 * p.L10 + p.i * 0.005; }},
    // Neither phase nor tilt of the ring: the term in the distance stands for both.
    {"SATURNE", 82.73, [](const Photometrie &p) { return -7.4 + 5 * p.L10 - (8 / p.d) * 2; }},
    {"Uranus", 35.02, [](const Photometrie &p) { return -7.19 + 5 * p.L10; }},
    {"Neptune", 33.5, [](const Photometrie &p) { return -6.87 + 5 * p.L10; }},
};

/// Angle at the planet between the Sun and the Earth, degrees.
double AnglePhase(const Geocentre &g, double d) {
  const double c = Divise((g.r * g.r + d * d) - g.R0 * g.R0, (2 * g.r) * d);
  return EnDegres(ArcCosinus(c));
}

std::string TexteAngle(double degres, std::string genre, bool montrePlus) {
  return FormatAngle(degres, genre, montrePlus);
}

/// The last two fields of the line.
struct Aspect {
  std::string diametre, magnitude;
};

Aspect CalculeAspect(const std::string &nom, const Geocentre &g, double d) {
  Photometrie p{g.r, d, 0.0, AnglePhase(g, d)};
  double diametre = 0.0;
  Aspect aspect;
  for (const LignePhotometrie &ligne : kPhotometrie) {
    if (nom == ligne.nom) {
      diametre = Divise(ligne.k / 1800.0, d);
      p.L10 = LogDecimal(p.r * p.d);
      aspect.magnitude = ligne.magnitude == nullptr ? "- " : TexteGeneral(ligne.magnitude(p));
    }
  }
  aspect.diametre = Droite(TexteAngle(diametre, "DMS", false), kColonnesDiametre);
  return aspect;
}

} // namespace

double CorrectionFK5L(double JD, double lambda, double beta) {
  const double br = EnRadians(beta);
  const double Lp = LongitudeFK5(JD, lambda);
  return (((std::sin(Lp) + std::cos(Lp)) * 0.03916 * std::tan(br)) - 0.09033) / 3600;
}

double CorrectionFK5B(double JD, double lambda) {
  const double Lp = LongitudeFK5(JD, lambda);
  return ((std::cos(Lp) - std::sin(Lp)) * 0.03916) / 3600;
}

std::string PlaceApparente(std::string &nom, double JD) {
  nom = std::string(SansBlancs(nom));
  const Geocentre g = CalculeGeocentre(nom, JD);
  double d = Racine((g.v.x * g.v.x + g.v.y * g.v.y) + g.v.z * g.v.z);
  const Vecteur v = CalculeGeocentre(nom, JD - d * kJoursParUA).v;

  double lambda = AngleDuPoint(v.y, v.x);
  double beta = EnDegres(std::atan(Divise(v.z, Racine(v.x * v.x + v.y * v.y))));
  const double dL = CorrectionFK5L(JD, lambda, beta);
  const double dB = CorrectionFK5B(JD, lambda);
  beta = beta + dB;
  lambda = lambda + dL;
  const double eps = EnRadians(ObliquiteVraie(JD));
  lambda = lambda + NutationLongitude(JD);
  const Aspect aspect = CalculeAspect(nom, g, d);

  const double lr = EnRadians(lambda);
  const double br = EnRadians(beta);
  const double AD = AngleDuPoint(std::sin(lr) * std::cos(eps) - std::sin(eps) * std::tan(br), std::cos(lr));
  const double Dec = ArcSinDegres(std::sin(br) * std::cos(eps) + (std::sin(eps) * std::cos(br)) * std::sin(lr));
  return TexteAngle(AD, "HMS", false) + " |" + TexteAngle(Dec, "DMS", true) + " | " + TexteGeneral(UAEnKm(d)) + " | " +
         aspect.diametre + " | " + aspect.magnitude;
}

std::string PositionPlanete(std::string &nom, const DateHeureTexte &champs) {
  const auto nombre = [](const std::string &champ) { return TexteGeneral(Val(champ)); };
  const ValeurDate date =
      LitDateHeure(nombre(champs.jour) + "/" + nombre(champs.mois) + "/" + nombre(champs.annee) + " " +
                   nombre(champs.heure) + ":" + nombre(champs.minute) + ":" + nombre(champs.seconde));
  return PlaceApparente(nom, JourJulien(date, nullptr));
}

std::string PositionPlanete(std::string &nom, Horloge &horloge) {
  return PlaceApparente(nom, JourJulien(horloge.locale(), &horloge));
}

} // namespace velmaris

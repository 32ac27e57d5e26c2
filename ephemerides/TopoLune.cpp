#include "ephemerides/ModulePosLune.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kRadLong = 0.01745329251993889;
static_assert(kRadLong == kPiCourt / 180);

/// Half the Moon's disc in units of its horizontal parallax.
constexpr double kDemiDiametreParParallaxe = 0.2725;

/// Local sidereal time of the Julian day.
/// @param longitude  degrees, east positive
/// @return degrees within one turn
double TempsSideralLune(double jd, float longitude) {
  const auto [T, T2, T3, T4] = TempsLune(jd);
  const double S = (((jd - 2451545.0) * 360.98564736629 + 280.46061837) + 0.000387933 * T2 - T3 / 38710000) + longitude;
  return UnTourDegres(S);
}

struct Vecteur {
  double x, y, z;
};

/// The Moon from the Earth's centre in the equator of date, Earth radii.
Vecteur VecteurGeocentrique(const Lune &lune) {
  const double rho = Divise(1.0, std::sin(lune.LuneParallaxe));
  const double cosBeta = std::cos(lune.LuneLatitude);
  const double x = (rho * std::cos(lune.LuneLongitude)) * cosBeta;
  const double y = (rho * std::sin(lune.LuneLongitude)) * cosBeta;
  const double z = rho * std::sin(lune.LuneLatitude);
  const double cosEps = std::cos(lune.LuneObliquite);
  const double sinEps = std::sin(lune.LuneObliquite);
  return {x, y * cosEps - z * sinEps, y * sinEps + z * cosEps};
}

/// The same from an observer on a sphere of one Earth radius.
/// @param S  local sidereal time, degrees; as an angle it passes through 32 bits
Vecteur VecteurTopocentrique(const Lune &lune, float latitude, double S) {
  const Vecteur geo = VecteurGeocentrique(lune);
  const double phi = latitude * kRadLong;
  const double th = ReduitDeuxPi(Simple(S * kRadLong));
  return {geo.x - std::cos(phi) * std::cos(th), geo.y - std::cos(phi) * std::sin(th), geo.z - std::sin(phi)};
}

/// Whole units, whole minutes and seconds to the hundredth of a positive angle, with the words between them.
std::string TexteSexagesimal(double x, std::string_view apresUnites, std::string_view apresMinutes,
                             std::string_view apresSecondes) {
  const double m = (x - Int(x)) * 60;
  const double s = (m - Int(m)) * 60;
  std::string texte = Format(Int(x), "00");
  texte += apresUnites;
  texte += Format(Int(m), "00");
  texte += apresMinutes;
  texte += TexteGeneral(Int(s * 100 + 0.5) / 100);
  texte += apresSecondes;
  return texte;
}

/// Local hour angle, read back from its text of 15 digits after each step.
/// @param S   local sidereal time, degrees
/// @param ra  hours
/// @return degrees within one turn; exactly 360 stays 360
double AngleHoraire(double S, double ra) {
  std::string AngleHoraireTexte = TexteGeneral(S - ra * 15);
  while (Val(AngleHoraireTexte) < 0) {
    AngleHoraireTexte = TexteGeneral(Val(AngleHoraireTexte) + 360);
  }
  while (Val(AngleHoraireTexte) > 360) {
    AngleHoraireTexte = TexteGeneral(Val(AngleHoraireTexte) - 360);
  }
  return Val(AngleHoraireTexte);
}

/// Fills azimuth and altitude.
/// @param dec  topocentric declination, degrees
/// @param H    local hour angle, degrees
void HorizonLune(Lune &lune, double dec, double H, float latitude) {
  constexpr double k = kRadCourt;
  const double sinDec = std::sin(dec * k);
  const double sinLat = std::sin(latitude * k);
  const double cosLat = std::cos(latitude * k);
  const double sinh = sinDec * sinLat + (cosLat * std::cos(dec * k)) * std::cos(H * k);
  const double h = ArcSinDouble(sinh) / k;
  const double cosA = Divise(sinDec - sinLat * std::sin(h * k), cosLat * std::cos(h * k));
  const double A = ArcCosDouble(cosA) / k;
  // On the meridian itself the azimuth is 360 less the arc.
  const float AzimutCourant = Simple(std::sin(H * k) < 0 ? A : 360.0 - A);
  lune.LuneHauteur = Simple(h);
  lune.LuneAzimut = AzimutCourant;
}

} // namespace

void TopoLune(Lune &lune, double &ra, double &dec, float latitude, float longitude, std::string_view labelAD) {
  const double S = TempsSideralLune(lune.LuneJD, longitude);
  const double sd = lune.LuneParallaxe * kDemiDiametreParParallaxe;
  lune.LuneDemiDiametre = Simple((sd / kRadCourt) * 60);
  const Vecteur v = VecteurTopocentrique(lune, latitude, S);
  const double a = ArcTanQuadrant(v.y, v.x) / kRadCourt;
  const double d = std::atan(Divise(v.z, Racine(v.x * v.x + v.y * v.y))) / kRadCourt;
  dec = d;
  lune.LuneTexteDecl = std::string("D = ") + (d >= 0 ? "+" : "-") + TexteSexagesimal(std::fabs(d), "° ", "' ", "''");
  ra = a / 15;
  lune.LuneTexteAD = std::string(labelAD) + TexteSexagesimal(ra, " h ", " m ", "s");
  HorizonLune(lune, dec, AngleHoraire(S, ra), latitude);
}

} // namespace velmaris

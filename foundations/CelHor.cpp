#include "foundations/CelHor.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {

double JourJulien(const ValeurDate &date, Horloge *horloge) {
  const double d = date.jour;
  const double m = date.mois;
  const double y = date.annee;
  const double a = Int((14 - m) / 12);
  double n = d + Int((367 * ((m + a * 12) - 2)) / 12) + Int((1461 * ((y + 4800) - a)) / 4) - 32113;
  if (n > 2299160) {
    n = n - (Int((3 * Int(((y + 100) - a) / 100)) / 4) - 2);
  }
  n = n - 0.5;
  const double f = horloge != nullptr ? double{FractionJourUTC(*horloge)}
                                      : ((date.heure + date.minute / 60.0) + date.seconde / 3600.0) / 24;
  return n + f;
}

double TempsSideralLocal(const ValeurDate &date, double longitude) {
  std::int16_t y = Entier16(date.annee);
  double m = date.mois;
  if (date.mois == 1 || date.mois == 2) {
    y = Entier16(y - 1);
    m = m + 12;
  }
  const double a = Int(y / 100.0);
  const double b = (2 - a) + Int(a / 4);
  const double c = Int(y * 365.25);
  const double e = Int(30.6001 * (m + 1));
  const double n =
      (((b + c) + e) - 730550.5) + date.jour + ((date.heure + date.minute / 60.0) + date.seconde / 3600.0) / 24.0;
  const double t = n / 36525;
  const double s = ((280.46061837 + 360.98564736629 * n) + (0.000387933 * t) * t) - ((t * t) * t) / 38710000;
  return UnTourDegres(s + longitude);
}

std::string CelesteVersHorizon(const ValeurDate &date, double ra, double &dec, double &lat, double lon) {
  // The hour angle travels as text of 15 digits: every later use reads it back from there.
  std::string AngleHoraireTexte = TexteGeneral(TempsSideralLocal(date, lon) - ra);
  if (Val(AngleHoraireTexte) < 0) {
    AngleHoraireTexte = TexteGeneral(Val(AngleHoraireTexte) + 360.0);
  }
  AngleHoraireTexte = TexteGeneral((Val(AngleHoraireTexte) * kPiCourt) / 180.0);
  const double angle = Val(AngleHoraireTexte);
  dec = (dec * kPiCourt) / 180;
  lat = (lat * kPiCourt) / 180;
  const double sinh = std::sin(dec) * std::sin(lat) + (std::cos(lat) * std::cos(dec)) * std::cos(angle);
  double h = ArcSinVal(sinh);
  const double cosA = Divise(std::sin(dec) - std::sin(lat) * std::sin(h), std::cos(lat) * std::cos(h));
  auto AzimutCourant = static_cast<float>(ArcCosVal(cosA));
  h = (h * 180) / kPiCourt;
  AzimutCourant = static_cast<float>((AzimutCourant * 180.0) / kPiCourt);
  if (std::sin(angle) > 0) {
    AzimutCourant = static_cast<float>(360.0 - AzimutCourant);
  }
  return TexteGeneral(AzimutCourant) + "X" + TexteGeneral(h);
}

} // namespace velmaris

#include "sights/PositionDirecte.hpp"

#include "foundations/Angles.hpp"
#include "sights/TheorieSolaire.hpp"

#include <cmath>

namespace velmaris {
namespace {

/// Degrees and minutes of an angle without its sign; the minutes are rounded and don't carry.
} // namespace

SoleilDirect CalculeSoleilDirect(const Observation &observation, Horloge &horloge) {
  float latitude = 0.0F;
  Passe([&] { latitude = Simple(LatitudeEstimee(observation)); });
  const double longitude = LongitudeEstimee(observation);
  const ValeurDate date = horloge.locale();
  double M = date.mois;
  std::int16_t Y = 0;
  Passe([&] { Y = Entier16(date.annee); });
  const auto JJ = JourDuSoleil<double>(date.jour, M, Y);
  const double T0 = (JJ - 2415020) / 36525;
  LitHorloge(horloge);
  const double f = horloge.temps.heure / 24.0 + horloge.temps.minute / 1440.0 + horloge.temps.seconde / 86400.0;
  const double T = T0 + f / 36525;
  const double ST = TempsSideralSolaire(T0, f * 24);
  const auto place = CalculePlaceSoleil<double>(T);
  const auto angles = CalculeAnglesHoraires<double>(ST, place.AD, longitude);

  SoleilDirect soleil;
  soleil.AD = place.AD;
  soleil.Dec = place.Dec;
  CalculeHauteurAzimut<double>(place.Dec, angles.AHL, latitude, soleil.hauteur, soleil.azimut);
  Passe([&] { soleil.point.LatSoleil = Simple(place.Dec); });
  Passe([&] { soleil.point.LonSoleil = Simple(angles.AHG > 180 ? angles.AHG - 360 : angles.AHG); });
  return soleil;
}

std::string TextePointSolaire(const PointSolaire &point) {
  return (point.LatSoleil > 0 ? "N " : "S ") + DegresPointMinutes(point.LatSoleil) + "   " +
         (point.LonSoleil > 0 ? " W " : " E ") + DegresPointMinutes(point.LonSoleil);
}

} // namespace velmaris

#pragma once

#include "sights/Observation.hpp"

#include <optional>
#include <string>

namespace velmaris {

/// The fields of dead reckoning, as they stand.
struct RouteEstimee {
  std::string route;          ///< Text1, course, degrees
  std::string vitesse;        ///< Text2, knots
  std::string distance;       ///< Text15, miles
  std::string HeureDebut;     ///< "hh:mm"
  std::string HeureFin;       ///< "hh:mm"
  bool vitesseDonnee = false; ///< the speed is the given one of the two and the distance is worked out
};

/// A dead-reckoning point.
struct PointEstime {
  double Duree = 0.0;                  ///< interval, days
  double Dist = 0.0;                   ///< run, miles
  float LatEstimeTransport = 0.0F;     ///< degrees, north positive
  float LonEstimeTransport = 0.0F;     ///< degrees, west positive
  std::optional<std::string> vitesse;  ///< what the speed's field shows, when it was worked out
  std::optional<std::string> distance; ///< what the distance's field shows, when it was worked out
};

/// Carries an estimated position along a course for a time interval, by plane sailing with the cosine of the departure
/// latitude. An interval that ends before it starts passes midnight; with none the position stays. The field that is
/// worked out shows a whole number while the calculation goes on with all its digits.
/// @param depart  the sight whose estimated position is carried
/// @return nothing when course, hours, or both speed and distance are missing
/// @throws Erreur 6 when a result leaves 32 bits
std::optional<PointEstime> EstimePoint(const RouteEstimee &route, const Observation &depart);

/// A latitude as its caption: "N" or "S", whole degrees, ".", minutes. Latitude 0 is "S".
std::string LegendeLatitude(float latitude);

/// A longitude as its caption: "E" or "W", whole degrees of three digits, ".", minutes.
/// @param longitude  degrees, west positive
std::string LegendeLongitude(float longitude);

} // namespace velmaris

#pragma once

#include "lines/Grille.hpp"
#include "tests/lines/OutilsFeuille.hpp"

#include <cmath>
#include <string>
#include <vector>

/// A grid drawn alone, and the way back from a place on the surface to the coordinate it stands for.
namespace velmaris::essais {

struct Quadrillage {
  Planche planche;
  double latitude = 0;  ///< degrees, north positive
  double longitude = 0; ///< degrees, west positive

  /// Minutes of longitude of an abscissa, west positive.
  double MinutesLongitude(double x) const {
    return longitude * 60 - (x - planche.feuille.CentreX) / double{planche.feuille.EchelleX};
  }
  /// Minutes of latitude of an ordinate, north positive.
  double MinutesLatitude(double y) const {
    return latitude * 60 - (y - planche.feuille.CentreY) / double{planche.feuille.EchelleY};
  }
};

inline Quadrillage Quadrille(const Observation &observation, int zoom) {
  Quadrillage q;
  q.planche = PlancheQuadrillee(observation, zoom);
  Feuille &f = q.planche.feuille;
  q.latitude = LatitudeEstimee(observation);
  q.longitude = LongitudeEstimee(observation);
  f.CentreX = static_cast<float>(kLargeur / 2);
  f.CentreY = static_cast<float>(kHauteur / 2);
  f.EchelleY = static_cast<float>(kHauteur / zoom);
  f.EchelleX = static_cast<float>(f.EchelleY * std::cos(q.latitude * 0.017453292));
  TraceGrille(f, q.planche.surface, observation);
  return q;
}

/// Positions in the four quadrants and at the awkward places: Greenwich, the 180th meridian, the equator, the poles,
/// and both sides of the 10 and 170 degrees where the run of figures changes.
inline std::vector<Observation> PositionsDEssai() {
  std::vector<Observation> positions;
  const int latitudes[][2] = {{0, 0},   {0, 5},  {9, 59},  {10, 30}, {11, 0},
                              {45, 30}, {66, 6}, {80, 55}, {88, 30}, {89, 50}};
  const int longitudes[][2] = {{0, 0},    {0, 10},   {5, 50},  {10, 30},  {11, 0}, {45, 15},
                               {123, 59}, {169, 50}, {170, 0}, {179, 45}, {180, 0}};
  for (const auto &lat : latitudes) {
    for (const auto &lon : longitudes) {
      for (const bool sud : {false, true}) {
        for (const bool est : {false, true}) {
          positions.push_back(Position(lat[0], lat[1], sud, lon[0], lon[1], est));
        }
      }
    }
  }
  return positions;
}

inline std::string EnMots(const Observation &o, int zoom) {
  return o.latitudeDegres + ' ' + o.latitudeMinutes + (o.sud ? " S " : " N ") + o.longitudeDegres + ' ' +
         o.longitudeMinutes + (o.est ? " E zoom " : " W zoom ") + std::to_string(zoom);
}

/// The coordinate that a chart prints for minutes that ran past the end of their axis: 181 W is 179, 91 N is 89.
/// @param tour  degrees at the axis' end
inline double Repliees(double minutes, int tour) {
  const double grandeur = std::fabs(minutes);
  return grandeur > tour * 60 ? 2 * tour * 60 - grandeur : grandeur;
}

} // namespace velmaris::essais

#include "lines/CapsDistances.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {
namespace {

/// Course of the mean-latitude track; the latitudes differ.
float CapMoyen(double L1, double L2, double dG, bool ouest) {
  const double q = std::cos((L1 + L2) / 2) * dG / std::abs(L1 - L2);
  float cap = Simple(std::atan(q) * 180.0 / kPiCourt);
  if (ouest) {
    cap = Simple(L1 < L2 ? 360.0 - cap : cap + 180.0);
  } else if (L1 > L2) {
    cap = Simple(180.0 - cap);
  }
  return cap;
}

} // namespace

PlaceRoute LitBout(const BoutRoute &bout) {
  const double latitude = Val(bout.latitudeDegres) + Val(bout.latitudeMinutes) / 60;
  const double longitude = Val(bout.longitudeDegres) + Val(bout.longitudeMinutes) / 60;
  return {bout.sud ? -latitude : latitude, bout.ouest ? -longitude : longitude};
}

CapDistance CalculeCapDistance(const PlaceRoute &depart, const PlaceRoute &arrivee) {
  const double L1 = EnRadiansCourt(depart.latitude);
  const double G1 = EnRadiansCourt(depart.longitude);
  const double L2 = EnRadiansCourt(arrivee.latitude);
  const double G2 = EnRadiansCourt(arrivee.longitude);
  CapDistance resultat;
  if (L1 == L2 && G1 == G2) {
    resultat.memePoint = true;
    return resultat;
  }
  const double C1 = kPiCourt / 2 - L1;
  const double C2 = kPiCourt / 2 - L2;
  double dG = std::abs(G1 - G2);
  if (dG > kPiCourt) {
    dG = 360 - dG; // degrees less radians: the known slip
  }
  const double k = std::cos(C1) * std::cos(C2) + std::sin(C2) * std::sin(C1) * std::cos(dG);
  const double D = ArcCosinus(k);
  const bool ouest = DirectionWest(Simple(G1), Simple(G2));
  if (L1 == L2) {
    resultat.cap = ouest ? 270.0F : 90.0F;
  } else {
    resultat.cap = CapMoyen(L1, L2, dG, ouest);
  }
  resultat.milles = D * 180 * 60 / kPiCourt;
  return resultat;
}

bool DirectionWest(double A, float B) {
  if ((A >= 0 && B >= 0) || (A <= 0 && B <= 0)) {
    return A > B;
  }
  if (A >= 0) {
    return A - B <= (180 - A) + 180 + B;
  }
  return -A + B > (180 + A) + 180 - B;
}

} // namespace velmaris

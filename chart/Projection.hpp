#pragma once

#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"

#include <numbers>

namespace velmaris {

/// What one drawing of the chart is scaled and centred by.
struct VueCarte {
  float Rapport = 1.0F;      ///< chart scale factor: 10800 / Zoom around a sheet, 1 for the whole world
  double CentreCarteX = 0.5; ///< centre of the surface: 0 at 180 degrees west, 1 at 180 degrees east
  double CentreCarteY = 0.5; ///< 0 at the north pole, 1 at the south pole
  double hauteur = 0.0;      ///< of the surface, 1/1440 inch
};

/// A place in decimal degrees, north and west positive.
struct PlaceCarte {
  double latitude = 0.0;
  double longitude = 0.0;
};

/// Whether the chart is that of the whole world, for want of a sheet or of a centre chosen by hand.
bool EstMonde(const Feuille &feuille);

/// The view around the sheet, or of the whole world when there is none. The scales of the whole world stay in force for
/// the mouse and the marks until the next sheet: its vertical one is not that of the picture.
/// @param feuille  its scales are replaced for the whole world
/// @throws Erreur 11 around a sheet on a surface without height
VueCarte ChoisitVue(Feuille &feuille, const Surface &surface);

/// A point of the outlines on the surface, on a plain cylindrical equidistant projection.
/// @param x, y  normalised, as in the polygon files
inline Point PlaceSurCarte(const VueCarte &vue, const Feuille &feuille, double x, double y) {
  const double S = std::numbers::sqrt2;
  const double H = vue.hauteur;
  const double rapport = vue.Rapport;
  return {feuille.CentreX + (x - vue.CentreCarteX) * 360 * feuille.EchelleX * 60,
          (1 - y) * H * rapport * S - (H * rapport * S - H * rapport) - (vue.CentreCarteY * H * rapport - H / 2)};
}

/// The place that mouse and marks are reckoned from: the sheet's, or 0, 0 where a coordinate stands for no sheet.
PlaceCarte ReferenceCarte(const Feuille &feuille);

/// The place under a point of the surface. It isn't wrapped: past a pole or the antimeridian the figures go on.
/// @throws Erreur 11 while there is no scale
PlaceCarte PlaceSousPoint(const Feuille &feuille, Point point);

/// Where a place lies on the surface, by the same reference and scales as the mouse.
/// @param latitude, longitude  degrees, north and west positive
Point PointDePlace(const Feuille &feuille, double latitude, double longitude);

/// A centre brought back within 180 degrees of longitude and 90 of latitude, by one turn. Over a pole the place goes to
/// the other end of the scale, not over the pole.
Origine Enroule(Origine centre);

} // namespace velmaris

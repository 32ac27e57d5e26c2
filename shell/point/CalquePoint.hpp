#pragma once

#include "complements/point/Point.hpp"
#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// One line of a fix as it is drawn.
struct DroiteDuPoint {
  double azimut = 0;  ///< of the body from the ship at the sight's time, degrees
  double residu = 0;  ///< miles that the line lies from the fix, towards the body
  double hauteur = 0; ///< of the body, degrees: what bends the line
};

/// A fix as it is drawn on sheet and chart.
struct PointTrace {
  LieuNavire lieu;
  EllipsePoint ellipse;
  std::string heure; ///< what stands beside it
  std::vector<DroiteDuPoint> droites;
  std::vector<std::string> heures; ///< of the track's places
  std::vector<LieuNavire> route;   ///< the track, from the first sight to the fix or from the fix to the last sight
};

/// The layer of a fix, by the scales in force: advanced lines thin, the ellipse, the track, the place as a ringed dot
/// with its time.
/// @param feuille  sheet or chart
/// @param sillage  kept fixes, in the order of time, drawn as a track of their own
/// @return an empty layer where there is no scale
Calque CalqueDuPoint(const Feuille &feuille, const Surface &surface, const std::vector<PointTrace> &points,
                     const std::vector<LieuNavire> &sillage);

} // namespace velmaris

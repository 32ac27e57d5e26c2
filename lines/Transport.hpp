#pragma once

#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"
#include "sights/Observation.hpp"

#include <string>

namespace velmaris {

/// The lines carried to another point. A line keeps azimuth and intercept and is drawn again through that point; the
/// lists bring it back after every redraw of the sheet.
struct Transports {
  std::string ListeTransportDroite; ///< lines carried to another line, one digit from 0 to 3 each, in their order
  std::string CibleTransport;       ///< number of that line, 1 to 4, as it stood in the list
  std::string ListeTransportEstime; ///< lines carried to the dead-reckoning point
  float LatEstimeTransport = 0.0F;  ///< dead-reckoning point, degrees, north positive
  float LonEstimeTransport = 0.0F;  ///< degrees, west positive
  float PointX = 0.0F;              ///< where a carried line is drawn from, on the surface
  float PointY = 0.0F;
  bool operator==(const Transports &) const = default;
};

/// Draws a line through the point of another one, in green, with a circle there.
/// @param valeurs              azimuth and intercept of the line
/// @param latitude, longitude  the other line's estimated position, degrees, north and west positive
/// @return false when the intercept is 0 and nothing is drawn: the sheet's scale goes through it
bool TransporteADroite(Feuille &feuille, Surface &surface, Transports &transports, const ValeursVisee &valeurs,
                       double latitude, double longitude);

/// Draws a line through the dead-reckoning point, in green, with a red circle there and the run in red dots.
/// @param valeurs   azimuth and intercept of the line
/// @param distance  of the run, miles
/// @param route     course made good, degrees
/// @return false when the intercept is 0 and nothing is drawn
bool TransporteAEstime(Feuille &feuille, Surface &surface, Transports &transports, const ValeursVisee &valeurs,
                       double distance, double route);

/// Enters a line in a list of carried ones, once.
/// @return false when it was there
bool NoteTransport(std::string &liste, int ligne);

} // namespace velmaris

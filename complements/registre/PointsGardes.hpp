#pragma once

#include "complements/point/Point.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// First line of the file of kept fixes.
extern const std::string_view kTitresPoints;

/// A fix that was kept.
struct PointGarde {
  InstantUTC utc;
  LieuNavire lieu; ///< tenths of a minute
  EllipsePoint ellipse;
  int visees = 0; ///< that it was made from
  TheoriePoint theorie = TheoriePoint::Actuelle;
};

/// A fix as a line of the file, without its end: moment, latitude and longitude in degrees with five decimals (a tenth
/// of a minute is kept whole), half axes in miles, direction, sights, theory, and last the number of the form, as in
/// "2026-06-21T12:05:30Z,47.50500,-4.73500,1.20,0.80,35.0,4,actuelle,1".
std::string LignePoint(const PointGarde &point);

/// Reads a line.
/// @return nothing for the title, a line cut short or broken, a number that is none or beyond its limits, or a form
///         that this program doesn't know
std::optional<PointGarde> LitLignePoint(std::string_view ligne);

/// Reads the file. Of one moment and theory the later line counts; what is no line is passed over.
/// @param octets  of the whole file
/// @return in the order of time
std::vector<PointGarde> LitPoints(std::string_view octets);

/// The places of the fixes of the last days before the newest one; of one moment that by the sky of today.
/// @param points  in the order of time
/// @param jours   how many
std::vector<LieuNavire> SillageDe(const std::vector<PointGarde> &points, double jours);

} // namespace velmaris

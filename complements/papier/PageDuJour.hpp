#pragma once

#include "complements/papier/Canevas.hpp"
#include "complements/point/Point.hpp"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmaris {

/// A line of position on the day's page.
struct DroiteDuJour {
  std::string nom;     ///< body and time, at its end
  LieuNavire appui;    ///< the place that it is laid off from: the fix, or the estimated position of its sight
  double azimut = 0;   ///< of the body from there, degrees
  double vers = 0;     ///< miles from that place towards the body
  double hauteur = 0;  ///< of the body, degrees: what bends the line
  bool comptee = true; ///< in the fix; a dashed one isn't
};

/// A fix on it.
struct PointDuJour {
  LieuNavire lieu;
  EllipsePoint ellipse; ///< of 95 %; none with an axis of 0
  std::string heure;    ///< that stands beside it
};

inline constexpr std::size_t kColonnesJour = 9;

/// What a day's page shows.
struct DonneesJour {
  std::vector<DroiteDuJour> droites;
  std::optional<PointDuJour> point;
  std::vector<LieuNavire> route;   ///< the ship's track, by time
  std::vector<std::string> heures; ///< that stand beside its places, where they have room
  std::vector<std::string> lignes; ///< what is said of the fix, one line each
  std::vector<std::array<std::string, kColonnesJour>> visees;
  std::vector<std::string> meteo; ///< typed by hand, one for each of `MotsJour::meteo`; an empty one is a blank
};

/// The words of a day's page.
struct MotsJour {
  std::string titre;
  std::array<std::string, kColonnesJour> colonnes;
  std::vector<std::string> meteo;
  std::string suite; ///< after the title of a second page
  std::string pied;
  MotsCanevas canevas;
};

/// The day's page: a plotting sheet in true scale with lines, track and fix, what is said of the fix, the table of
/// sights, the weather. A table that would not fit makes the sheet lower, as far as two thirds of its height; a longer
/// one goes on on further pages. The scale is the largest that shows the fix or the places that lines are laid off
/// from, the track, and where the lines pass.
std::vector<Feuillet> PagesDuJour(const DonneesJour &jour, FormatPapier format, const MotsJour &mots);

/// The chart that shows all that a day has.
/// @param cadre  where it is drawn
PlanVrai PlanDuJour(const DonneesJour &jour, const CadrePage &cadre);

} // namespace velmaris

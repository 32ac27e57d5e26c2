#pragma once

#include "chart/Projection.hpp"
#include "foundations/Surface.hpp"
#include "lines/Feuille.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmaris {

/// What the mouse does on the chart: the coordinate label, the legs of a route, and where the menu was opened.
struct SourisCarte {
  std::int16_t ModeDistance = 0;   ///< -1 while legs are measured
  std::int16_t AfficheCoord = 0;   ///< -1 while the coordinate label shows
  float DebutX = 0.0F;             ///< start of the present leg, 1/1440 inch; 0 for none
  float DebutY = 0.0F;             ///< start of the present leg
  float FinX = 0.0F;               ///< its end
  float FinY = 0.0F;               ///< its end
  std::int16_t DistanceMilles = 0; ///< length of the leg, nautical miles
  std::int16_t CapDegres = 0;      ///< its course
  float ClicX = 0.0F;              ///< where the left button last opened the menu
  float ClicY = 0.0F;              ///< where the left button last opened the menu
  std::vector<Tranche> traces;     ///< what the legs have left in the surface's list
  std::uint64_t effacements = 0;   ///< of the surface when they did
};

/// A place as the coordinate label has it: whole degrees and minutes, which can read 60.
std::string TexteCoordonnees(const PlaceCarte &place);

/// Length of a leg on the sheet, on its one scale for both axes.
/// @param EchelleY  surface units per mile
/// @return nautical miles, rounded to a whole number, ties to even
/// @throws Erreur 11 while there is no scale, 6 past 16 bits
std::int16_t DistanceBranche(Point debut, Point fin, float EchelleY);

/// Course of a leg on the sheet, on its one scale for both axes: right only where a minute of longitude is nearly as
/// long as a mile. A leg of no length heads 0.
/// @param EchelleY  surface units per mile
/// @return whole degrees, 0 to 360
/// @throws Erreur 11 while there is no scale
std::int16_t CapBranche(Point debut, Point fin, float EchelleY);

/// The mark at the start of a leg: a circle with a cross in it.
void TraceCroixBranche(SourisCarte &souris, Surface &surface);

/// The present leg, from its start to its end.
void TraceBranche(SourisCarte &souris, Surface &surface);

/// Takes the legs and their marks off the surface, and leaves all else.
/// @param avec  runs of the surface's list that go with them
void EffaceBranches(SourisCarte &souris, Surface &surface, std::vector<Tranche> avec = {});

} // namespace velmaris

#pragma once

#include "complements/papier/Feuillet.hpp"
#include "complements/point/Route.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// A plain chart in true scale: a mile north is as long as a mile east, so that angles may be measured. What lies far
/// from its middle latitude is drawn by that latitude's departure.
struct PlanVrai {
  LieuNavire milieu; ///< its middle
  Point centre;      ///< where that stands on the page
  double mille = 0;  ///< length of a sea mile, 1/1440 inch
  Point PointDe(const LieuNavire &lieu) const;
  /// A place some miles from a point of the chart.
  Point Decale(Point de, double nord, double est) const { return {de.x + est * mille, de.y - nord * mille}; }
};

/// A rectangle of a page.
struct CadrePage {
  Point coin;
  Point oppose;
  double largeur() const { return oppose.x - coin.x; }
  double hauteur() const { return oppose.y - coin.y; }
};

/// The words of a plotting sheet.
struct MotsCanevas {
  std::string milles; ///< unit of the scale
  std::string plane;  ///< that it is a plain chart of a middle latitude, before that latitude
  std::string minute; ///< between it and the length of a minute of longitude
};

/// What a plotting sheet has.
struct Canevas {
  PlanVrai plan;
  CadrePage cadre;
  bool longitudesVides = false; ///< meridians stand without figures, to be written by hand
  Point rose;                   ///< middle of the compass rose
  double rayonRose = 0;         ///< 0 for none
};

/// Draws meridians, parallels and their figures, the frame with its minutes, the compass rose of true directions, a
/// scale of miles, and under the frame what the sheet is.
void DessineCanevas(Feuillet &page, const Canevas &canevas, const MotsCanevas &mots);

/// Joined segments as far as they lie in a rectangle.
std::vector<std::vector<Point>> CoupeAuCadre(const std::vector<Point> &points, const CadrePage &cadre);

/// Minutes of arc from one line of the graticule to the next: the least of a usual row that keeps them apart.
/// @param mille  length of a minute, 1/1440 inch
int PasDuCanevas(double mille);

/// A blank plotting sheet of a middle latitude.
/// @param latitude  degrees, north positive, under 85 either way
/// @param minutes   of latitude that it has from foot to head
/// @param titre     of the page, and `pied` under it
Feuillet PageVierge(double latitude, double minutes, FormatPapier format, const std::string &titre,
                    const std::string &pied, const MotsCanevas &mots);

} // namespace velmaris

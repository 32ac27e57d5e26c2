#pragma once

#include "complements/papier/PageDuJour.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// Where a line passes at some miles from the point that is nearest to the place which it is laid off from; bent by the
/// height of its body.
/// @param loin  miles along the line
Point SurDroite(const PlanVrai &plan, const DroiteDuJour &droite, double loin);

/// The corner of a sheet, upper right first, where a compass rose covers the least of a day.
/// @return the rose's middle
Point PlaceDeLaRose(const DonneesJour &jour, const PlanVrai &plan, const CadrePage &cadre, double rayon);

/// Draws what a day brought onto its sheet. Words stand where no others do, and clear of fix, ellipse and rose.
class DessinJour {
public:
  /// @param rose  middle and radius of the compass rose, which stays free of words
  DessinJour(Feuillet &page, const PlanVrai &plan, const CadrePage &cadre, Point rose, double rayonRose);

  /// Track, fix and lines, then their words.
  void Trace(const DonneesJour &jour);

private:
  /// A text along a line, and what it takes of the sheet.
  struct Nom {
    Point pied;
    Point sens; ///< from its place on, a length of 1
    std::vector<Point> pris;
  };

  void Ligne(const std::vector<Point> &points, const Encre &encre);
  void Route(const std::vector<LieuNavire> &route);
  void Fixe(const PointDuJour &point);
  void Depart(const DroiteDuJour &droite);
  std::vector<std::vector<Point>> Droite(const DroiteDuJour &droite);
  void Nomme(const std::vector<std::vector<Point>> &morceaux, const std::string &nom);
  void DateRoute(const DonneesJour &jour);
  double Jeu(const std::vector<Point> &points) const;
  void Prend(const std::vector<Point> &points);
  static std::vector<Nom> PlacesLeLong(const std::vector<Point> &morceau, double largeur);

  Feuillet &page_;
  const PlanVrai &plan_;
  const CadrePage &cadre_;
  Point rose_;
  double rayonRose_;
  std::vector<Point> pris_; ///< points that words, fix and ellipse take
};

} // namespace velmaris

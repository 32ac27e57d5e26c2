#include "shell/point/CalquePoint.hpp"

#include "chart/Projection.hpp"
#include "foundations/Erreur.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kMinutes = 60;
constexpr double kMinutesRayon = 60 / kRadian; ///< of the sphere
constexpr double kTour = 360;
constexpr double kLatitudeDessinee = 89; ///< degrees, past which a mile has no place on these scales
constexpr Couleur kEncreDroite = Rvb(70, 70, 90);
constexpr Couleur kEncreEllipse = kLien;
constexpr Couleur kEncreRoute = Rvb(120, 90, 40);
constexpr Couleur kEncreSillage = Rvb(150, 110, 50);
constexpr double kPoint = 25;     ///< radius of the dot, 1/1440 inch
constexpr double kAnneau = 110;   ///< of the ring around it
constexpr double kRelais = 45;    ///< of a place on the track
constexpr int kCotes = 72;        ///< of the ellipse
constexpr int kPas = 8;           ///< of half a line
constexpr double kPart = 0.22;    ///< of the surface's height that half a line takes
constexpr double kDemieMax = 120; ///< miles, past which half a line bends too much for its second order
constexpr double kTaille = 9.0;   ///< of words, points

/// Draws places on a surface by the scales in force.
class Traceur {
public:
  Traceur(const Feuille &feuille, const Surface &surface) : feuille_(feuille), surface_(surface) {}

  Point PointDe(const LieuNavire &lieu) const {
    const double reference = -ReferenceCarte(feuille_).longitude;
    const double tour = std::remainder(lieu.longitude - reference, kTour);
    return PointDePlace(feuille_, lieu.latitude, -(reference + tour));
  }

  void Trace(const std::vector<LieuNavire> &lieux, const Plume &plume) {
    Polyligne ligne{plume, {}, GenreLigne::Libre};
    for (const LieuNavire &lieu : lieux) {
      const Point point = PointDe(lieu);
      // Over the edge of the chart the line goes on at the other end.
      if (!ligne.points.empty() && std::fabs(point.x - ligne.points.back().x) > surface_.largeur) {
        Pose(std::exchange(ligne, Polyligne{plume, {}, GenreLigne::Libre}));
      }
      ligne.points.push_back(point);
    }
    Pose(std::move(ligne));
  }

  void Cercle(Point centre, double rayon, const Plume &plume) {
    calque_.traces.emplace_back(CercleTrace{plume, centre, rayon});
  }

  void Mots(Point ici, Point autre, const std::string &mots, Couleur couleur) {
    const Police police{surface_.police.famille, kTaille, true};
    // The words of a fix take their place before the names of lines.
    calque_.etiquettes.push_back({{couleur, police, ici, mots, {GenreTexte::Bout, -1}}, autre});
  }

  Calque Rend() { return std::move(calque_); }

private:
  void Pose(Polyligne ligne) {
    if (ligne.points.size() > 1) {
      calque_.traces.emplace_back(std::move(ligne));
    }
  }

  const Feuille &feuille_;
  const Surface &surface_;
  Calque calque_;
};

/// A place some miles north and east of another.
LieuNavire Deplace(const LieuNavire &lieu, double nord, double est) {
  const double latitude = std::clamp(lieu.latitude + nord / kMinutes, -kLatitudeDessinee, kLatitudeDessinee);
  return {latitude, lieu.longitude + est / kMinutes / std::cos(lieu.latitude * kRadian)};
}

/// Places on a line of position, which bends towards the body the more, the higher it stands.
std::vector<LieuNavire> LieuxDroite(const LieuNavire &point, const DroiteDuPoint &droite, double demie) {
  const double azimut = droite.azimut * kRadian;
  const double courbure = std::tan(droite.hauteur * kRadian) / (2 * kMinutesRayon);
  std::vector<LieuNavire> lieux;
  for (int i = -kPas; i <= kPas; ++i) {
    const double loin = demie * i / kPas;
    const double vers = droite.residu + std::clamp(loin * loin * courbure, -demie, demie);
    lieux.push_back(Deplace(point, vers * std::cos(azimut) - loin * std::sin(azimut),
                            vers * std::sin(azimut) + loin * std::cos(azimut)));
  }
  return lieux;
}

std::vector<LieuNavire> LieuxEllipse(const LieuNavire &point, const EllipsePoint &ellipse) {
  const double direction = ellipse.direction * kRadian;
  std::vector<LieuNavire> lieux;
  for (int i = 0; i <= kCotes; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCotes;
    const double long_ = ellipse.a * std::cos(angle);
    const double large = ellipse.b * std::sin(angle);
    lieux.push_back(Deplace(point, long_ * std::cos(direction) - large * std::sin(direction),
                            long_ * std::sin(direction) + large * std::cos(direction)));
  }
  return lieux;
}

void TracePoint(Traceur &traceur, const PointTrace &point, double demie) {
  if (std::fabs(point.lieu.latitude) > kLatitudeDessinee) {
    return;
  }
  traceur.Trace(point.route, {kEncreRoute, 1, Style::Tirets});
  for (const LieuNavire &lieu : point.route) {
    traceur.Cercle(traceur.PointDe(lieu), kRelais, {kEncreRoute, 1});
  }
  for (const DroiteDuPoint &droite : point.droites) {
    traceur.Trace(LieuxDroite(point.lieu, droite, demie), {kEncreDroite, 1});
  }
  traceur.Trace(LieuxEllipse(point.lieu, point.ellipse), {kEncreEllipse, 2});
  const Point centre = traceur.PointDe(point.lieu);
  traceur.Cercle(centre, kPoint, {kRouge, 2});
  traceur.Cercle(centre, kAnneau, {kRouge, 2});
  const Point droite{centre.x + kAnneau, centre.y + kAnneau};
  traceur.Mots(droite, {centre.x - 4 * kAnneau, centre.y - 3 * kAnneau}, point.heure, kRouge);
}

} // namespace

Calque CalqueDuPoint(const Feuille &feuille, const Surface &surface, const std::vector<PointTrace> &points,
                     const std::vector<LieuNavire> &sillage) {
  if (!(std::fabs(feuille.EchelleX) > 0) || !(std::fabs(feuille.EchelleY) > 0)) {
    return {};
  }
  Traceur traceur(feuille, surface);
  const double milles = surface.hauteur / std::fabs(feuille.EchelleY);
  traceur.Trace(sillage, {kEncreSillage, 1});
  for (const LieuNavire &lieu : sillage) {
    traceur.Cercle(traceur.PointDe(lieu), kRelais, {kEncreSillage, 2});
  }
  for (const PointTrace &point : points) {
    TracePoint(traceur, point, std::min(milles * kPart, kDemieMax));
  }
  return traceur.Rend();
}

} // namespace velmaris

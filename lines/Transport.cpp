#include "lines/Transport.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "lines/Intercept.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr Couleur kVert = 0x008000;

/// Sets the point that the line is drawn from.
Point PoseDepart(const Feuille &feuille, Transports &transports, double latitude, double longitude) {
  const Point p = PlaceSurFeuille(feuille, latitude, longitude);
  transports.PointX = Simple(p.x);
  transports.PointY = Simple(p.y);
  return {transports.PointX, transports.PointY};
}

/// Draws the line through a point; the scale is set anew through its intercept.
void TraceTransportee(Feuille &feuille, Surface &surface, const ValeursVisee &valeurs, Point depart) {
  feuille.AngleDroite = Simple((90.0 - valeurs.Azimut) * kPiCourt / 180.0);
  feuille.LongueurIntercept = Simple(Divise(surface.hauteur, feuille.Zoom) * valeurs.Intercept);
  feuille.EchelleY = Simple(Divise(feuille.LongueurIntercept, valeurs.Intercept));
  std::int16_t drapeau = 0;
  AffIntercept(feuille, surface, valeurs, depart.x, depart.y, static_cast<float>(kVert), drapeau);
}

} // namespace

bool TransporteADroite(Feuille &feuille, Surface &surface, Transports &transports, const ValeursVisee &valeurs,
                       double latitude, double longitude) {
  const Point depart = PoseDepart(feuille, transports, latitude, longitude);
  if (valeurs.Intercept == 0.0F) {
    return false;
  }
  TraceTransportee(feuille, surface, valeurs, depart);
  Cercle(surface, depart, surface.largeur / 200.0, kVert);
  return true;
}

bool TransporteAEstime(Feuille &feuille, Surface &surface, Transports &transports, const ValeursVisee &valeurs,
                       double distance, double route) {
  const Point depart = PoseDepart(feuille, transports, transports.LatEstimeTransport, transports.LonEstimeTransport);
  if (valeurs.Intercept == 0.0F) {
    return false;
  }
  TraceTransportee(feuille, surface, valeurs, depart);
  Cercle(surface, depart, surface.largeur / 150.0, kRouge);
  const double D = distance * feuille.EchelleY;
  const double a = (route - 90.0) * kPiCourt / 180.0;
  surface.style = Style::Points;
  Ligne(surface, {depart.x - D * std::cos(a), depart.y - D * std::sin(a)}, depart, kRouge);
  surface.style = Style::Plein;
  return true;
}

bool NoteTransport(std::string &liste, int ligne) {
  const std::string chiffre = std::to_string(ligne);
  if (liste.find(chiffre) != std::string::npos) {
    return false;
  }
  liste += chiffre;
  return true;
}

} // namespace velmaris

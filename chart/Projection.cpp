#include "chart/Projection.hpp"

#include "foundations/Erreur.hpp"

#include <numbers>

namespace velmaris {
namespace {

constexpr float kLimiteLatitude = 90.0F;   ///< above it, no sheet
constexpr float kLimiteLongitude = 200.0F; ///< from it on, no sheet

} // namespace

bool EstMonde(const Feuille &feuille) { return !(feuille.OrigineFeuille.longitude < kLimiteLongitude); }

VueCarte ChoisitVue(Feuille &feuille, const Surface &surface) {
  VueCarte vue;
  vue.hauteur = surface.hauteur;
  if (!EstMonde(feuille)) {
    vue.Rapport = Simple(Divise(feuille.EchelleY * 60.0 * 180.0, surface.hauteur));
    vue.CentreCarteX = (180.0 - feuille.OrigineFeuille.longitude) / 360;
    vue.CentreCarteY = 1 - (feuille.OrigineFeuille.latitude + 90.0) / 180;
  } else {
    feuille.EchelleX = static_cast<float>(std::numbers::sqrt2 / 2);
    feuille.EchelleY = 1.0F;
  }
  return vue;
}

PlaceCarte ReferenceCarte(const Feuille &feuille) {
  const Origine &origine = feuille.OrigineFeuille;
  return {origine.latitude <= kLimiteLatitude ? origine.latitude : 0.0,
          origine.longitude <= kLimiteLongitude ? origine.longitude : 0.0};
}

PlaceCarte PlaceSousPoint(const Feuille &feuille, Point point) {
  const PlaceCarte reference = ReferenceCarte(feuille);
  return {reference.latitude - Divise(point.y - feuille.CentreY, feuille.EchelleY) / 60,
          reference.longitude - Divise(point.x - feuille.CentreX, feuille.EchelleX) / 60};
}

Point PointDePlace(const Feuille &feuille, double latitude, double longitude) {
  const PlaceCarte reference = ReferenceCarte(feuille);
  return PointAutour(feuille, reference.latitude, reference.longitude, latitude, longitude);
}

Origine Enroule(Origine centre) {
  if (centre.longitude < -180.0F) {
    centre.longitude += 360.0F;
  }
  if (centre.longitude > 180.0F) {
    centre.longitude -= 360.0F;
  }
  if (centre.latitude < -90.0F) {
    centre.latitude += 180.0F;
  }
  if (centre.latitude > 90.0F) {
    centre.latitude -= 180.0F;
  }
  return centre;
}

} // namespace velmaris

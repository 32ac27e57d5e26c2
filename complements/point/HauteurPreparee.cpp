#include "complements/point/HauteurPreparee.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kTourParSeconde = 360.98564736629 / 86400; ///< degrees that the Earth turns by

/// The apparent height, by arc error, index and dip alone; no place of body or ship has a part in it.
double HauteurApparente(const LectureSextant &lecture) {
  return CorrigeLecture(lecture, PlaceGeocentrique{}, Station{}).apparente;
}

/// The latitude matters for the augmented semidiameter alone, by less than 0.001'; a fixed one keeps the height free of
/// what is typed.
HauteurActuelle PrepareActuelle(const ViseeTypee &visee, const Moment &moment) {
  constexpr double kLatitudeMoyenne = 45;
  ExigePlace(visee.astre);
  HauteurActuelle h;
  h.place = PlaceDe(PrepareCiel(moment), visee.astre);
  h.observee = CorrigeLecture(visee.lecture, h.place, {kLatitudeMoyenne, 0, visee.lecture.hauteurOeil}).topocentrique;
  if (!std::isfinite(h.observee)) {
    throw Refus(RaisonRefus::LieuImpossible);
  }
  return h;
}

std::optional<HauteurDite> PrepareDite(const ResultatDit &dit, const LieuNavire &estime, double corrigeMontre) {
  const bool nombres = std::isfinite(dit.Hc) && std::isfinite(dit.azimut) && std::isfinite(dit.intercept) &&
                       std::fabs(dit.Hc) <= 90 && std::fabs(estime.latitude) <= 90;
  if (!nombres) {
    return std::nullopt;
  }
  HauteurDite h;
  h.observee = dit.Hc + dit.intercept / 60;
  h.sous = GrandCercle(estime, dit.azimut, 90 - dit.Hc);
  h.sous.longitude = LongitudeUnTour(h.sous.longitude - corrigeMontre * kTourParSeconde);
  return h;
}

} // namespace

HauteurPreparee PrepareHauteur(const ViseeTypee &visee, const std::optional<ResultatDit> &dit, double corrigeMontre,
                               double dut1) {
  HauteurPreparee h;
  h.utc = PlusTard(UTCDe(visee.date), corrigeMontre);
  h.estime = {visee.station.latitude, visee.station.longitude};
  h.hauteurOeil = visee.lecture.hauteurOeil;
  h.artificiel = visee.lecture.horizonArtificiel;
  h.apparente = HauteurApparente(visee.lecture);
  try {
    h.actuelle = PrepareActuelle(visee, {TTDe(h.utc), UT1De(h.utc, dut1)});
  } catch (const Refus &refus) {
    h.refus = refus.raison;
  }
  if (dit) {
    h.dite = PrepareDite(*dit, h.estime, corrigeMontre);
  }
  return h;
}

double HauteurDuLieu(const HauteurPreparee &hauteur, TheoriePoint theorie, const LieuNavire &lieu) {
  if (theorie == TheoriePoint::Actuelle) {
    return VueDe(hauteur.actuelle->place, {lieu.latitude, lieu.longitude, hauteur.hauteurOeil}).hauteur;
  }
  return 90 - EcartLieux(lieu, hauteur.dite->sous);
}

double AzimutDuLieu(const HauteurPreparee &hauteur, TheoriePoint theorie, const LieuNavire &lieu) {
  if (theorie == TheoriePoint::Actuelle) {
    return VueDe(hauteur.actuelle->place, {lieu.latitude, lieu.longitude, hauteur.hauteurOeil}).azimut;
  }
  const LieuNavire &sous = hauteur.dite->sous;
  const double angle = (sous.longitude - lieu.longitude) * kRadian;
  const double lat = lieu.latitude * kRadian;
  const double dec = sous.latitude * kRadian;
  const double est = std::cos(dec) * std::sin(angle);
  const double nord = std::sin(dec) * std::cos(lat) - std::cos(dec) * std::sin(lat) * std::cos(angle);
  return AngleUnTour(std::atan2(est, nord) / kRadian);
}

double ErreurSupposee(double base, double apparente) {
  constexpr double kPart = 0.15;
  constexpr double kBasse = 10; ///< degrees
  if (apparente >= kBasse) {
    return base;
  }
  const auto refraction = [](double h) { return Refraction(h, 1010, 10); };
  return std::hypot(base, kPart * (refraction(apparente) - refraction(kBasse)));
}

} // namespace velmaris

#include "complements/controle/Parts.hpp"

#include "complements/controle/LignesEtoiles.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kSecondesParJour = 86400;
constexpr double kDegresParSeconde = 360.98564736629 / kSecondesParJour; ///< that the Earth turns by
constexpr double kRefractionHorizon = 34;                                ///< minutes: what lies lower can't be seen

/// What the parts are worked out from.
struct Etude {
  const ViseeTypee &visee;
  const RouteActuelle &route;
  const EtapesDites &dites;
  const Etoiles &etoiles;
  double dut1;
};

void Ajoute(std::vector<PartCause> &parts, Cause cause, double minutes) {
  if (minutes != 0 && std::isfinite(minutes)) {
    parts.push_back({cause, minutes});
  }
}

double HauteurCalculee(const Etude &e, const PlaceGeocentrique &place) {
  return VueDe(place, e.visee.station).hauteurCentre;
}

/// The place as it is without the difference of the time scales: UTC for all of them. But for the Moon, no body moves
/// by a tenth of a minute meanwhile.
PlaceGeocentrique PlaceSansEchelles(const Etude &e) {
  PlaceGeocentrique place = e.route.place;
  if (e.visee.astre.genre == GenreAstre::Lune) {
    CielDuMoment ciel = e.route.ciel;
    const InstantUT1 &ut1 = ciel.ut1;
    ciel.tt = {ut1.jour, ut1.fraction - e.dut1 / kSecondesParJour};
    place = PlaceDe(ciel, e.visee.astre);
  }
  place.gha -= e.dut1 * kDegresParSeconde;
  return place;
}

/// The place once the causes that have names of their own are in it.
struct PlaceNommee {
  PlaceGeocentrique place;
  Cause cause = Cause::Lieu; ///< the one that brought it there
};

PlaceNommee PlaceDesCausesNommees(const Etude &e, const PlaceGeocentrique &place) {
  PlaceNommee nommee{place, Cause::Lieu};
  if (e.visee.astre.genre == GenreAstre::Etoile) {
    if (const auto etoile = EtoileDeLigne(e.etoiles, e.visee.astre.rang)) {
      nommee = {PlaceEtoile(e.route.ciel, *etoile), Cause::Etoile};
      nommee.place.gha -= e.dut1 * kDegresParSeconde;
    }
  } else if (e.dites.signePerdu) {
    nommee.place.declinaison = -nommee.place.declinaison;
    nommee.cause = Cause::Signe;
  }
  return nommee;
}

/// Causes that lie in the body's place: from today's by way of each to the told one.
void PartsDuLieu(const Etude &e, std::vector<PartCause> &parts) {
  const double actuelle = e.route.vue.hauteurCentre;
  const PlaceGeocentrique sansEchelles = PlaceSansEchelles(e);
  const double apresTemps = HauteurCalculee(e, sansEchelles);
  Ajoute(parts, Cause::Temps, (apresTemps - actuelle) * kMinutes);
  const PlaceNommee nommee = PlaceDesCausesNommees(e, sansEchelles);
  const double apresNommee = HauteurCalculee(e, nommee.place);
  Ajoute(parts, nommee.cause, (apresNommee - apresTemps) * kMinutes);
  if (e.dites.gha && e.dites.declinaison) {
    PlaceGeocentrique dite = e.route.place;
    dite.gha = *e.dites.gha;
    dite.declinaison = *e.dites.declinaison;
    Ajoute(parts, Cause::Lieu, (HauteurCalculee(e, dite) - apresNommee) * kMinutes);
  }
}

/// Causes that lie in the correction of the reading.
void PartsDeLaLecture(const Etude &e, std::vector<PartCause> &parts) {
  const EtapesHauteur &etapes = e.route.etapes;
  const EtapesDites &dites = e.dites;
  const bool artificiel = e.visee.lecture.horizonArtificiel;
  const double refraction = dites.refraction ? *dites.refraction - etapes.refraction : 0;
  const double demiDiametre = dites.demiDiametre ? etapes.demiDiametre - *dites.demiDiametre : 0;
  const double parallaxe = dites.parallaxe ? etapes.parallaxe - *dites.parallaxe : 0;
  Ajoute(parts, Cause::ErreurArc, artificiel ? etapes.erreurArc / 2 : etapes.erreurArc);
  if (!artificiel) {
    Ajoute(parts, Cause::Depression, dites.depression ? *dites.depression - etapes.depression : 0);
    Ajoute(parts, Cause::Refraction, refraction);
    Ajoute(parts, Cause::DemiDiametre, demiDiametre);
    Ajoute(parts, Cause::Parallaxe, parallaxe);
    return;
  }
  const bool soleil = e.visee.astre.genre == GenreAstre::Soleil; // its parallax alone is added to the double angle
  Ajoute(parts, Cause::Artificiel, refraction + demiDiametre + (soleil ? parallaxe : 0));
  Ajoute(parts, Cause::Parallaxe, soleil ? 0 : parallaxe);
}

/// Whether no part of the body can be seen from the estimated position.
bool SousHorizon(const RouteActuelle &route) {
  return route.vue.hauteur * kMinutes + route.vue.demiDiametre + kRefractionHorizon + route.etapes.depression < 0;
}

} // namespace

std::vector<PartCause> PartsDesCauses(const ViseeTypee &visee, const RouteActuelle &route, const EtapesDites &dites,
                                      const Etoiles &etoiles, double dut1) {
  std::vector<PartCause> parts;
  const Etude etude{visee, route, dites, etoiles, dut1};
  if (SousHorizon(route)) {
    parts.push_back({Cause::Horizon, 0});
  }
  PartsDuLieu(etude, parts);
  PartsDeLaLecture(etude, parts);
  return parts;
}

} // namespace velmaris

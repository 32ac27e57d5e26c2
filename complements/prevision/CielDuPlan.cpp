#include "complements/prevision/CielDuPlan.hpp"

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/ciel/Vue.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Magnitudes.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kDemiPas = 30;     ///< seconds on either side that a height's motion is taken from
constexpr double kLoinDessous = -5; ///< degrees: no eye is so high that air and dip show such a body

/// A time of the day from the ship.
struct Regard {
  InstantDuJour instant;
  Repere repere;
};

Regard RegardDe(const CielDuJour &ciel, const NavirePrevu &navire, const InstantUTC &utc) {
  return {SitueInstant(ciel, utc), RepereDe(StationDuNavire(navire, utc))};
}

/// A direction over the horizon: east, north, up.
Vecteur3 SurLHorizon(const AstreDuPlan &a) { return DirectionDe({a.hauteur, 90 - a.azimut}); }

bool SontProches(const AstreDuPlan &a, const AstreDuPlan &b, double degres) {
  return Scalaire(SurLHorizon(a), SurLHorizon(b)) > std::cos(degres * kRadian);
}

/// The Moon's face from the ship.
PhaseLune FaceDe(const EclairementAstre &eclairage, const AstreDuPlan &lune, const AstreDuPlan &soleil,
                 double ecartAd) {
  const double hl = lune.hauteur * kRadian;
  const double hs = soleil.hauteur * kRadian;
  const double az = (soleil.azimut - lune.azimut) * kRadian;
  PhaseLune face;
  face.phase = eclairage.phase;
  face.eclairee = PartEclairee(eclairage);
  face.bord = AngleUnTour(std::atan2(std::sin(az) * std::cos(hs),
                                     std::cos(hl) * std::sin(hs) - std::sin(hl) * std::cos(hs) * std::cos(az)) /
                          kRadian);
  face.croissante = LongitudeUnTour(ecartAd) > 0;
  face.meilleur = std::cos(face.bord * kRadian) > 0 ? Contact::Superieur : Contact::Inferieur;
  return face;
}

void Juge(CielDuPlan &plan, const CielDuJour &ciel, const ReglagesPlan &reglages, std::size_t rang,
          std::optional<std::size_t> lune) {
  AstreDuPlan &a = plan.astres[rang];
  const auto note = [&](RaisonPale raison, bool vrai) { a.raisons[static_cast<std::size_t>(raison)] = vrai; };
  const bool grand = a.astre.genre <= GenreAstre::Lune;
  const bool artificiel = reglages.sextant.horizonArtificiel;
  const double horizon = artificiel ? 0 : -Depression(plan.hauteurOeil) / kMinutes;
  note(RaisonPale::SousHorizon, a.apparente < horizon);
  note(RaisonPale::LigneLoin, ciel.astres[rang].ligneLoin);
  if (Tient(a.raisons, RaisonPale::SousHorizon)) {
    return;
  }
  note(RaisonPale::PerduCrepuscule, !grand && a.magnitude > plan.magnitudeVisible);
  note(RaisonPale::PresDuSoleil, rang != 0 && SontProches(a, plan.astres[0], reglages.ecartSoleil));
  note(RaisonPale::PresDeLaLune, !grand && lune && !Tient(plan.astres[*lune].raisons, RaisonPale::SousHorizon) &&
                                     SontProches(a, plan.astres[*lune], reglages.ecartLune));
  note(RaisonPale::TropBas, a.apparente < reglages.hauteurMin);
  note(RaisonPale::TropHaut, a.apparente > reglages.hauteurMax);
  note(RaisonPale::HorsArc, artificiel && 2 * a.apparente > reglages.arcMax);
}

/// The limb that is brought to the horizon.
Contact ContactDe(const AstreDuPlan &a, const CielDuPlan &plan, const ReglagesPlan &reglages) {
  if (a.astre.genre == GenreAstre::Soleil) {
    return reglages.bordSoleil;
  }
  if (a.astre.genre == GenreAstre::Lune && plan.lune) {
    return reglages.bordLune.value_or(plan.lune->meilleur);
  }
  return Contact::Centre;
}

/// The ship's eyes at a moment and half a minute before and after it.
struct Guet {
  Regard ici;
  Regard avant;
  Regard apres;
};

/// How a body's height moves, minutes of arc a minute of time.
double Mouvement(const CielDuJour &ciel, const Guet &guet, std::size_t rang) {
  static_assert(2 * kDemiPas == 60, "the two moments lie a minute apart");
  const auto hauteur = [&](const Regard &r) {
    return VueDuRepere(PlaceDuJour(ciel, rang, r.instant), r.repere).hauteur;
  };
  return (hauteur(guet.apres) - hauteur(guet.avant)) * kMinutes;
}

/// What the Sun makes of the sky.
void PoseSoleil(CielDuPlan &plan, const CielDuJour &ciel, const Guet &guet) {
  const PlaceTopocentrique vue = VueDuRepere(PlaceDuJour(ciel, 0, guet.ici.instant), guet.ici.repere);
  plan.hauteurSoleil = vue.hauteur;
  plan.azimutSoleil = vue.azimut;
  plan.soleilMonte = Mouvement(ciel, guet, 0) > 0;
  plan.magnitudeVisible = MagnitudeVisible(-vue.hauteur);
}

/// All bodies with their heights, and the Moon's face.
void PoseAstres(CielDuPlan &plan, const CielDuJour &ciel, const Guet &guet, const LectureSextant &air) {
  plan.astres.reserve(ciel.astres.size());
  for (std::size_t rang = 0; rang < ciel.astres.size(); ++rang) {
    const PlaceGeocentrique place = PlaceDuJour(ciel, rang, guet.ici.instant);
    const PlaceTopocentrique vue = VueDuRepere(place, guet.ici.repere);
    AstreDuPlan a{ciel.astres[rang].astre, vue.hauteur, 0, vue.azimut, ciel.astres[rang].magnitude};
    const bool loinDessous = vue.hauteur < kLoinDessous;
    a.apparente = loinDessous ? vue.hauteur : ApparenteDe(vue.hauteur, air.pression, air.temperature);
    if (a.astre.genre == GenreAstre::Lune) {
      const PlaceGeocentrique soleil = PlaceDuJour(ciel, 0, guet.ici.instant);
      const EclairementAstre eclairage = EclairementDe(place, soleil);
      a.magnitude = MagnitudeDe(GenreAstre::Lune, eclairage);
      plan.lune = FaceDe(eclairage, a, plan.astres[0], place.ascension - soleil.ascension);
    }
    plan.astres.push_back(a);
  }
}

} // namespace

std::optional<RaisonPale> PremiereRaison(const RaisonsPales &raisons) {
  for (std::size_t i = 0; i < raisons.size(); ++i) {
    if (raisons[i]) {
      return static_cast<RaisonPale>(i);
    }
  }
  return std::nullopt;
}

CielDuPlan RegardeCiel(const CielDuJour &ciel, const NavirePrevu &navire, const InstantUTC &utc,
                       const ReglagesPlan &reglages, Prereglages prereglages) {
  CielDuPlan plan;
  plan.utc = utc;
  plan.lieu = LieuDuNavire(navire, utc);
  plan.hauteurOeil = navire.hauteurOeil;
  const Guet guet{RegardDe(ciel, navire, utc), RegardDe(ciel, navire, PlusTard(utc, -kDemiPas)),
                  RegardDe(ciel, navire, PlusTard(utc, kDemiPas))};
  LectureSextant sextant = reglages.sextant;
  sextant.hauteurOeil = navire.hauteurOeil;
  const Station station{plan.lieu.latitude, plan.lieu.longitude, navire.hauteurOeil};
  PoseSoleil(plan, ciel, guet);
  PoseAstres(plan, ciel, guet, sextant);
  const std::optional<std::size_t> lune = PlaceDansLeCiel(ciel, {GenreAstre::Lune, 0});
  for (std::size_t rang = 0; rang < ciel.astres.size(); ++rang) {
    Juge(plan, ciel, reglages, rang, lune);
    AstreDuPlan &a = plan.astres[rang];
    a.contact = ContactDe(a, plan, reglages);
    if (prereglages == Prereglages::Avec) {
      a.mouvement = Mouvement(ciel, guet, rang);
    }
    if (prereglages == Prereglages::Avec && !Tient(a.raisons, RaisonPale::SousHorizon)) {
      sextant.contact = a.contact;
      a.prereglage = LecturePour(sextant, PlaceDuJour(ciel, rang, guet.ici.instant), station, a.hauteur);
    }
  }
  return plan;
}

} // namespace velmaris

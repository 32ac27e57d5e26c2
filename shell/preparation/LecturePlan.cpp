#include "shell/preparation/LecturePlan.hpp"

#include "complements/ciel/Refus.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/visee/Saisie.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kTour = 360;
constexpr double kVitesseMax = 100;    ///< knots
constexpr double kOeilMax = 100;       ///< metres
constexpr double kCollimationMax = 60; ///< minutes
constexpr double kArcMax = 180;        ///< degrees
constexpr double kJour = 86400;        ///< seconds

void PoseMoment(Preparation &f, const InstantUTC &utc, double longitude) {
  constexpr double kHeure = 3600;
  f.Text1[0].texte = TexteDate(PlusTard(utc, FuseauDe(longitude) * kHeure));
  f.Text1[1].texte = TexteHeureMinute(utc);
}

/// A panel's field of a date or time as a whole number.
int Entier(const std::string &texte) { return static_cast<int>(Val(texte)); }

/// The panel's moment; what isn't typed, or is none, is the present one.
InstantUTC MomentDuPanneau(const Bureau &bureau, const Observation &o) {
  try {
    const bool vide = o.jour.empty() || o.mois.empty() || o.annee.empty() || o.heure.empty();
    return vide ? PresentUTC(bureau)
                : UTCDe({Entier(o.annee), Entier(o.mois), Entier(o.jour), Entier(o.heure), Entier(o.minute), 0.0});
  } catch (const Refus &) {
    return PresentUTC(bureau);
  }
}

/// The time of day nearest in the civil day that begins at an instant.
InstantUTC DansLeJour(const InstantUTC &heure, const InstantUTC &debut) {
  const double depuis = SecondesEntre(debut, heure);
  return PlusTard(heure, -std::floor(depuis / kJour) * kJour);
}

/// Course and speed as the only leg; none where either is missing.
RouteNavire LitRouteDuPlan(Preparation &f, const InstantUTC &heure) {
  const std::string &hors = f.TexteHors.legende;
  const auto cap = LitChampBorne(f.Text2[0], 0, kTour, hors);
  const auto vitesse = LitChampBorne(f.Text2[1], 0, kVitesseMax, hors);
  RouteNavire route;
  if (cap && vitesse && *vitesse > 0) {
    route.jambes = {{heure, *cap, *vitesse}};
  }
  return route;
}

/// The sextant as the check's settings and the fields have it.
void LitSextant(Bureau &bureau, DemandePlan &demande) {
  Preparation &f = bureau.preparation;
  const std::string &hors = f.TexteHors.legende;
  const ReglagesControle &reglages = bureau.verification.reglages;
  LectureSextant &sextant = demande.reglages.sextant;
  sextant.pression = reglages.pression;
  sextant.temperature = reglages.temperature;
  sextant.distanceHorizon = reglages.distanceHorizon;
  sextant.erreursArc = reglages.erreursArc;
  demande.navire.hauteurOeil = LitChampBorne(f.Text2[2], 0, kOeilMax, hors).value_or(0);
  sextant.hauteurOeil = demande.navire.hauteurOeil;
  sextant.collimation = LitChampBorne(f.Text2[3], -kCollimationMax, kCollimationMax, hors).value_or(0);
}

} // namespace

void ReprendPanneau(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const Donnees &d = bureau.donnees;
  const Observation o = LitPanneau(d);
  const double latitude = LatitudeEstimee(o);
  const double longitude = -LongitudeEstimee(o);
  f.Text1[2].texte = AngleTape(std::fabs(latitude) <= kTour / 4 ? latitude : 0, 2, 'N', 'S');
  f.Text1[3].texte = AngleTape(std::remainder(longitude, kTour), 3, 'E', 'W');
  PoseMoment(f, MomentDuPanneau(bureau, o), longitude);
  f.Text2[0].texte = d.Text1.texte;
  f.Text2[1].texte = d.Text2.texte;
  f.Text2[2].texte = o.hauteurOeil;
  f.Text2[3].texte = o.collimation;
}

void ReprendPresent(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  PoseMoment(f, PresentUTC(bureau), LitLongitudeTapee(f.Text1[3].texte).value_or(0));
}

std::optional<DemandePlan> LitDemandePlan(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const std::string &hors = f.TexteHors.legende;
  const auto jour = LitMomentTape(f.Text1[0].texte, "00:00");
  const auto heure = LitMomentTape("01/01/2000", f.Text1[1].texte);
  const auto latitude = LitLatitudeTapee(f.Text1[2].texte);
  const auto longitude = LitLongitudeTapee(f.Text1[3].texte);
  MarqueChamp(f.Text1[0], jour.has_value(), hors);
  MarqueChamp(f.Text1[1], heure.has_value(), hors);
  MarqueChamp(f.Text1[2], latitude.has_value(), hors);
  MarqueChamp(f.Text1[3], longitude.has_value(), hors);
  DemandePlan demande;
  LitSextant(bureau, demande);
  constexpr double kMagnitudeMin = -2;
  constexpr double kMagnitudeMax = 6;
  constexpr double kEcartMin = 0.1;
  constexpr double kEcartMax = 60;
  demande.jeux.magnitudeMax =
      LitChampBorne(f.Text3[0], kMagnitudeMin, kMagnitudeMax, hors).value_or(demande.jeux.magnitudeMax);
  demande.jeux.erreur = LitChampBorne(f.Text3[1], kEcartMin, kEcartMax, hors).value_or(demande.jeux.erreur);
  if (!jour || !heure || !latitude || !longitude) {
    LitRouteDuPlan(f, {});
    return std::nullopt;
  }
  const DateCivile date = CivileDe(*jour);
  demande.jour = {date.annee, date.mois, date.jour, FuseauDe(*longitude)};
  demande.navire.lieu = {*latitude, *longitude};
  demande.navire.heure = DansLeJour({jour->jour, heure->fraction}, DebutDuJour(demande.jour, demande.navire));
  demande.navire.route = LitRouteDuPlan(f, demande.navire.heure);
  return demande;
}

bool EstDuMemeJour(const DemandePlan &a, const DemandePlan &b) {
  const auto memeJambe = [](const Jambe &x, const Jambe &y) {
    return SecondesEntre(x.depuis, y.depuis) == 0 && x.cap == y.cap && x.vitesse == y.vitesse;
  };
  const NavirePrevu &n = a.navire;
  const NavirePrevu &m = b.navire;
  return SecondesEntre(DebutDuJour(a.jour, n), DebutDuJour(b.jour, m)) == 0 && SecondesEntre(n.heure, m.heure) == 0 &&
         n.lieu.latitude == m.lieu.latitude && n.lieu.longitude == m.lieu.longitude && n.hauteurOeil == m.hauteurOeil &&
         std::equal(n.route.jambes.begin(), n.route.jambes.end(), m.route.jambes.begin(), m.route.jambes.end(),
                    memeJambe);
}

AstreInconnu LitInconnu(Bureau &bureau) {
  constexpr double kDouteMin = 0.1;
  constexpr double kDouteHauteurMax = 30;
  constexpr double kDouteAzimutMax = 90;
  Preparation &f = bureau.preparation;
  const std::string &hors = f.TexteHors.legende;
  AstreInconnu inconnu;
  inconnu.lecture = LitAngleTape(f.Text5[0].texte, kArcMax);
  MarqueChamp(f.Text5[0], inconnu.lecture || SansBlancs(f.Text5[0].texte).empty(), hors);
  inconnu.azimut = LitChampBorne(f.Text5[1], 0, kTour, hors);
  inconnu.douteHauteur = LitChampBorne(f.Text5[2], kDouteMin, kDouteHauteurMax, hors).value_or(inconnu.douteHauteur);
  inconnu.douteAzimut = LitChampBorne(f.Text5[3], kDouteMin, kDouteAzimutMax, hors).value_or(inconnu.douteAzimut);
  return inconnu;
}

} // namespace velmaris

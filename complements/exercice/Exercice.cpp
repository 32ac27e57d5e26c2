#include "complements/exercice/Exercice.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/exercice/Ciels.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kDixiemes = 600; ///< tenths of a minute in a degree

double AuDixieme(double degres) { return std::round(degres * kDixiemes) / kDixiemes; }

LieuNavire AuDixieme(const LieuNavire &lieu) { return {AuDixieme(lieu.latitude), AuDixieme(lieu.longitude)}; }

/// Conditions within what a voyage can have.
ConditionsExercice Saines(ConditionsExercice c) {
  constexpr int kViseesMax = 10;
  constexpr double kLatitudeMax60 = 70;
  const auto entre = [](double valeur, double a) { return std::isfinite(valeur) ? std::clamp(valeur, 0.0, a) : 0; };
  c.visees = std::clamp(c.visees, 1, kViseesMax);
  c.bruit = entre(c.bruit, 10);
  c.collimationMax = entre(c.collimationMax, 10);
  c.vitesseMax = entre(c.vitesseMax, 30);
  c.nuages = entre(c.nuages, 0.9);
  c.erreurEstime = entre(c.erreurEstime, 60);
  c.latitudeMax = std::max(entre(c.latitudeMax, kLatitudeMax60), 1.0);
  return c;
}

/// A ship somewhere on some day.
CadreExercice TireCadre(Tirage &tirage, const ConditionsExercice &conditions) {
  constexpr int kPremierJour = 2451544; ///< of the year 2000, a day at 0 h less a half
  constexpr int kJours = 14610;         ///< forty years
  constexpr double kHeuresParDegre = 1.0 / 15;
  CadreExercice cadre;
  cadre.conditions = conditions;
  cadre.lieu.latitude = TireEntre(tirage, -conditions.latitudeMax, conditions.latitudeMax);
  cadre.lieu.longitude = TireEntre(tirage, -180, 180);
  const InstantUTC jour{kPremierJour + TireEntier(tirage, 0, kJours) + 0.5, 0};
  cadre.reference = PlusTard(jour, std::round((12 - cadre.lieu.longitude * kHeuresParDegre) * 3600));
  const double cap = TireEntier(tirage, 0, 359);
  const double vitesse = std::round(TireEntre(tirage, conditions.vitesseMax / 2, conditions.vitesseMax) * 2) / 2;
  cadre.route.jambes.push_back({PlusTard(cadre.reference, -86400), cap, vitesse});
  return cadre;
}

/// What the sextant shows, and what is told with it.
ViseeExercice Montre(const CadreExercice &cadre, const Exercice &exercice, const RendezVous &rendezVous, double bruit) {
  ViseeExercice visee;
  visee.astre = rendezVous.astre;
  visee.utc = CivileDe(rendezVous.utc);
  visee.utc.seconde = std::round(visee.utc.seconde);
  visee.contact = rendezVous.astre.genre <= GenreAstre::Lune ? Contact::Inferieur : Contact::Centre;
  const LieuNavire lieu = LieuVrai(cadre, rendezVous.utc);
  const Station station{lieu.latitude, lieu.longitude, exercice.hauteurOeil};
  const PlaceGeocentrique place =
      PlaceDe(PrepareCiel({TTDe(rendezVous.utc), UT1De(rendezVous.utc, 0)}), rendezVous.astre);
  const PlaceTopocentrique vue = VueDe(place, station);
  LectureSextant sextant;
  sextant.collimation = exercice.collimation;
  sextant.hauteurOeil = exercice.hauteurOeil;
  sextant.contact = visee.contact;
  visee.lecture = AuDixieme(LecturePour(sextant, place, station, vue.hauteur) + bruit / 60);
  visee.hauteur = vue.hauteur;
  visee.azimut = vue.azimut;
  return visee;
}

/// The sights of an offer, the true places apart.
void PoseVisees(const CadreExercice &cadre, const OffreExercice &offre, Tirage &tirage, ExerciceComplet &complet) {
  Exercice &e = complet.exercice;
  VeriteExercice &v = complet.verite;
  e.heurePoint = offre.visees.back().utc;
  e.caches = offre.caches;
  v.lieu = LieuVrai(cadre, e.heurePoint);
  const double cosinus = std::cos(v.lieu.latitude * kRadian);
  const double nord = TireNormale(tirage, cadre.conditions.erreurEstime) / 60;
  const double est = TireNormale(tirage, cadre.conditions.erreurEstime) / 60 / cosinus;
  e.estime = AuDixieme(LieuNavire{v.lieu.latitude + nord, LongitudeUnTour(v.lieu.longitude + est)});
  for (const RendezVous &rendezVous : offre.visees) {
    const double bruit = TireNormale(tirage, cadre.conditions.bruit);
    v.bruits.push_back(bruit);
    v.lieux.push_back(LieuVrai(cadre, rendezVous.utc));
    e.visees.push_back(Montre(cadre, e, rendezVous, bruit));
    e.visees.back().estime = AuDixieme(Deplace(e.route, e.estime, e.heurePoint, rendezVous.utc).lieu);
  }
}

} // namespace

ExerciceComplet FaitExercice(std::uint64_t graine, const ConditionsExercice &conditions) {
  constexpr int kJoursEssayes = 400;
  ExerciceComplet complet;
  Exercice &e = complet.exercice;
  e.graine = graine;
  e.conditions = Saines(conditions);
  Tirage tirage{std::mt19937_64(graine)};
  e.hauteurOeil = TireEntier(tirage, 4, 12) / 2.0;
  e.collimation = std::round(TireEntre(tirage, -e.conditions.collimationMax, e.conditions.collimationMax) * 10) / 10;
  try {
    for (int jour = 0; jour < kJoursEssayes; ++jour) {
      const CadreExercice cadre = TireCadre(tirage, e.conditions);
      const std::optional<OffreExercice> offre = OffreDuJour(cadre, tirage);
      if (offre) {
        e.route = cadre.route;
        PoseVisees(cadre, *offre, tirage, complet);
        break;
      }
    }
  } catch (const Refus &refus) {
    e.refus = refus.raison;
  }
  return complet;
}

} // namespace velmaris

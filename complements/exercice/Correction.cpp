#include "complements/exercice/Correction.hpp"

#include "complements/controle/RouteActuelle.hpp"
#include "complements/point/Point.hpp"
#include "complements/point/Sphere.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kSeconde = 0.5;
constexpr double kLecture = 0.06; ///< minutes: a tenth as whole seconds is the same
constexpr double kArrondi = 0.051;

ReglagesControle ReglagesDe(const Exercice &exercice) {
  ReglagesControle r;
  r.pression = exercice.pression;
  r.temperature = exercice.temperature;
  return r;
}

/// The sight typed as the panel has it, with its place the true one, so that its intercept is that of the line.
Observation AuLieuVrai(Observation observation, const LieuNavire &lieu) {
  const double longitude = LongitudeUnTour(lieu.longitude);
  observation.latitudeDegres = "0";
  observation.latitudeMinutes = TexteGeneral(std::fabs(lieu.latitude) * kMinutes);
  observation.sud = lieu.latitude < 0;
  observation.longitudeDegres = "0";
  observation.longitudeMinutes = TexteGeneral(std::fabs(longitude) * kMinutes);
  observation.est = longitude > 0;
  return observation;
}

/// Puts the typed position back where the true one stood.
void RendPosition(const Observation &typee, Observation &corrigee) {
  corrigee.latitudeDegres = typee.latitudeDegres;
  corrigee.latitudeMinutes = typee.latitudeMinutes;
  corrigee.sud = typee.sud;
  corrigee.longitudeDegres = typee.longitudeDegres;
  corrigee.longitudeMinutes = typee.longitudeMinutes;
  corrigee.est = typee.est;
}

bool EstDePosition(const Glissade &g) {
  return g.genre == GenreGlissade::CoteLatitude || g.genre == GenreGlissade::CoteLongitude ||
         (g.champ >= ChampGlisse::LatitudeDegres && g.champ <= ChampGlisse::LongitudeMinutes);
}

/// How many of the figures that were shown a sight has otherwise.
/// @param offerte  the offered sight; null for none, to which nothing is otherwise
int Differences(const Exercice &exercice, const ViseeExercice *offerte, const Observation &observation,
                const ReglagesControle &reglages) {
  constexpr int kTout = 10;
  if (offerte == nullptr) {
    return 0;
  }
  try {
    const ViseeTypee visee = LitVisee(observation, reglages);
    const DateCivile &a = offerte->utc;
    const DateCivile &b = visee.date;
    const LectureSextant &lue = visee.lecture;
    const std::array autres = {a.annee != b.annee,
                               a.mois != b.mois,
                               a.jour != b.jour,
                               a.heure != b.heure,
                               a.minute != b.minute,
                               std::fabs(a.seconde - b.seconde) > kSeconde,
                               std::fabs(lue.lecture - offerte->lecture) * kMinutes > kLecture,
                               std::fabs(lue.collimation - exercice.collimation) > kArrondi,
                               std::fabs(lue.hauteurOeil - exercice.hauteurOeil) > kArrondi,
                               lue.contact != offerte->contact};
    return static_cast<int>(std::count(autres.begin(), autres.end(), true));
  } catch (const Refus &) {
    return kTout;
  }
}

/// Single slips that would explain a line far from the truth. The first is the one that leaves the most as it was
/// shown: a year that was shown and typed alike isn't what went wrong.
std::vector<Glissade> Glissades(const Exercice &exercice, const ViseeExercice *offerte, const Observation &typee,
                                const LieuNavire &vrai) {
  const ReglagesControle reglages = ReglagesDe(exercice);
  std::vector<Glissade> glissades = ChercheGlissades(AuLieuVrai(typee, vrai), reglages);
  std::erase_if(glissades, EstDePosition);
  for (Glissade &g : glissades) {
    RendPosition(typee, g.corrigee);
  }
  std::stable_sort(glissades.begin(), glissades.end(), [&](const Glissade &a, const Glissade &b) {
    return Differences(exercice, offerte, a.corrigee, reglages) < Differences(exercice, offerte, b.corrigee, reglages);
  });
  return glissades;
}

/// Seconds between two civil times.
double SecondesDe(const DateCivile &de, const DateCivile &a) { return SecondesEntre(UTCDe(de), UTCDe(a)); }

/// The offered sight of a body, the nearest in time.
std::optional<std::size_t> Offerte(const Exercice &exercice, const ViseeTypee &visee) {
  std::optional<std::size_t> proche;
  double moindre = 0;
  for (std::size_t i = 0; i < exercice.visees.size(); ++i) {
    const double ecart = std::fabs(SecondesDe(exercice.visees[i].utc, visee.date));
    if (exercice.visees[i].astre == visee.astre && (!proche || ecart < moindre)) {
      proche = i;
      moindre = ecart;
    }
  }
  return proche;
}

/// What was typed otherwise than it was shown.
void Compare(const Exercice &exercice, const ViseeExercice &offerte, const ViseeTypee &visee, VerdictVisee &verdict) {
  const auto avise = [&](bool faux, AvisCorrection avis) {
    if (faux) {
      verdict.avis.push_back(avis);
    }
  };
  avise(std::fabs(SecondesDe(offerte.utc, visee.date)) > kSeconde, AvisCorrection::Temps);
  avise(std::fabs(visee.lecture.lecture - offerte.lecture) * kMinutes > kLecture, AvisCorrection::Lecture);
  avise(std::fabs(visee.lecture.collimation - exercice.collimation) > kArrondi, AvisCorrection::Collimation);
  avise(std::fabs(visee.lecture.hauteurOeil - exercice.hauteurOeil) > kArrondi, AvisCorrection::HauteurOeil);
  avise(visee.lecture.contact != offerte.contact, AvisCorrection::Bord);
}

VerdictVisee Juge(const ExerciceComplet &complet, const Observation &typee) {
  constexpr double kEcarts = 3;
  constexpr double kMille = 1;
  VerdictVisee verdict;
  const ReglagesControle reglages = ReglagesDe(complet.exercice);
  try {
    ViseeTypee visee = LitVisee(typee, reglages);
    verdict.offerte = Offerte(complet.exercice, visee);
    const LieuNavire vrai = verdict.offerte ? complet.verite.lieux[*verdict.offerte] : complet.verite.lieu;
    visee.station = {vrai.latitude, vrai.longitude, visee.lecture.hauteurOeil};
    verdict.ecart = InterceptActuel(visee, PlaceDe(PrepareCiel(MomentDe(visee.date)), visee.astre));
    if (verdict.offerte) {
      Compare(complet.exercice, complet.exercice.visees[*verdict.offerte], visee, verdict);
    } else {
      verdict.avis.push_back(AvisCorrection::PasOfferte);
    }
    if (std::fabs(verdict.ecart) > kEcarts * complet.exercice.conditions.bruit + kMille) {
      verdict.avis.push_back(AvisCorrection::Loin);
      const ViseeExercice *offerte = verdict.offerte ? &complet.exercice.visees[*verdict.offerte] : nullptr;
      verdict.glissades = Glissades(complet.exercice, offerte, typee, vrai);
    }
  } catch (const Refus &refus) {
    verdict = {};
    verdict.refus = refus.raison;
    verdict.avis.push_back(AvisCorrection::Illisible);
  }
  return verdict;
}

/// How good a fix of the offered sights can be: the greater half axis of its ellipse, miles; 0 where they make none.
double Attendu(const ExerciceComplet &complet) {
  constexpr double kTrace = 0.3; ///< minutes that plotting and tenths leave
  const Exercice &e = complet.exercice;
  ReglagesPoint reglages;
  reglages.heure = e.heurePoint;
  reglages.route = e.route;
  reglages.doutes = {std::hypot(e.conditions.bruit, kTrace), 0, 0, 0};
  std::vector<ViseePoint> visees;
  for (const ViseeExercice &v : e.visees) {
    ViseeTypee typee;
    typee.astre = v.astre;
    typee.date = v.utc;
    typee.station = {v.estime.latitude, v.estime.longitude, e.hauteurOeil};
    typee.lecture.lecture = v.lecture;
    typee.lecture.collimation = e.collimation;
    typee.lecture.hauteurOeil = e.hauteurOeil;
    typee.lecture.contact = v.contact;
    ViseePoint visee;
    visee.hauteur = PrepareHauteur(typee, {});
    visees.push_back(visee);
  }
  const FichePoint fiche = FaitPoint(visees, reglages);
  return fiche.solution ? fiche.solution->ellipse.a : 0;
}

VerdictPoint JugePoint(const ExerciceComplet &complet, const LieuNavire &point) {
  const LieuNavire &vrai = complet.verite.lieu;
  VerdictPoint verdict;
  verdict.distance = EcartLieux(vrai, point) * kMinutes;
  const double nord = point.latitude - vrai.latitude;
  const double est = LongitudeUnTour(point.longitude - vrai.longitude) * std::cos(vrai.latitude * kRadian);
  verdict.direction = AngleUnTour(std::atan2(est, nord) / kRadian);
  verdict.estime = EcartLieux(vrai, complet.exercice.estime) * kMinutes;
  verdict.attendu = Attendu(complet);
  return verdict;
}

} // namespace

CorrectionExercice CorrigeExercice(const ExerciceComplet &complet, std::span<const Observation> typees,
                                   const std::optional<LieuNavire> &point) {
  CorrectionExercice correction;
  for (const Observation &typee : typees) {
    correction.visees.push_back(Juge(complet, typee));
  }
  if (point) {
    correction.point = JugePoint(complet, *point);
  }
  return correction;
}

} // namespace velmaris

#include "complements/serie/Serie.hpp"

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Epreuve.hpp"
#include "complements/point/Lois.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/serie/Pente.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;     ///< of arc in a degree, seconds in a minute
constexpr double kHauteurLoin = 60; ///< minutes
constexpr double kChanceDispersion = 0.01;

/// A run under way: what each reading is off the sky by.
struct Course {
  const BaseLectures &base;
  std::vector<LecturePrete> lectures;
  std::vector<double> ecarts;  ///< read less computed height, minutes
  std::vector<double> minutes; ///< of time from the middle
  std::vector<std::size_t> comptees;
};

/// A straight line through residuals.
struct Droite {
  double moyenne = 0;
  double pente = 0;     ///< minutes of arc a minute
  double etalement = 0; ///< sum of the squares of the times from their mean, minutes squared
};

Droite DroiteDe(const Course &c, const std::vector<std::size_t> &lesquelles) {
  const auto n = static_cast<double>(lesquelles.size());
  Droite d;
  double milieu = 0;
  for (const std::size_t i : lesquelles) {
    d.moyenne += c.ecarts[i] / n;
    milieu += c.minutes[i] / n;
  }
  double produit = 0;
  for (const std::size_t i : lesquelles) {
    const double t = c.minutes[i] - milieu;
    d.etalement += t * t;
    produit += t * (c.ecarts[i] - d.moyenne);
  }
  d.pente = d.etalement > 0 ? produit / d.etalement : 0;
  return d;
}

Course PrepareCourse(const BaseLectures &base, std::span<const LectureSerie> lectures, FicheSerie &fiche) {
  Course c{base, PrepareLectures(base, lectures), {}, {}, {}};
  fiche.milieu = MilieuDe(lectures, [](const LectureSerie &l) { return !l.ecartee; });
  for (std::size_t i = 0; i < c.lectures.size(); ++i) {
    const LecturePrete &l = c.lectures[i];
    ResiduSerie r;
    r.hauteur = VueDe(l.place, StationDe(base, LieuDeLaBase(base, l.utc))).hauteur;
    r.minutes = SecondesEntre(fiche.milieu, l.utc) / kMinutes;
    fiche.residus.push_back(r);
    c.ecarts.push_back((l.observee - r.hauteur) * kMinutes);
    c.minutes.push_back(r.minutes);
    if (l.compte) {
      c.comptees.push_back(i);
    }
  }
  return c;
}

/// The doubt of the sky's slope by that of the position, minutes a minute.
double DoutePosition(const BaseLectures &base, const PlacesAutour &places, const LieuNavire &avant,
                     const LieuNavire &apres, double pente) {
  constexpr double kUnMille = 1.0 / 60;
  const double est = kUnMille / std::max(std::cos(avant.latitude * kRadian), 0.01);
  const auto deplace = [](LieuNavire lieu, double nord, double versEst) {
    lieu.latitude = std::clamp(lieu.latitude + nord, -90.0, 90.0);
    lieu.longitude += versEst;
    return lieu;
  };
  const double parNord = AllureDe(base, places, deplace(avant, kUnMille, 0), deplace(apres, kUnMille, 0)).pente - pente;
  const double parEst = AllureDe(base, places, deplace(avant, 0, est), deplace(apres, 0, est)).pente - pente;
  return base.douteLieu * std::hypot(parNord, parEst);
}

/// The slope of some readings against the sky's.
/// @param ciel   the sky's, minutes a minute
/// @param doute  of the sky's slope
PenteSerie PenteDe(const Course &c, const std::vector<std::size_t> &lesquelles, double ciel, double doute) {
  const Droite d = DroiteDe(c, lesquelles);
  PenteSerie p;
  p.ciel = ciel;
  p.trouvee = ciel + d.pente;
  if (d.etalement > 0) {
    p.ecartType = std::hypot(c.base.ecartType / std::sqrt(d.etalement), doute);
    p.chance = ChanceNormale(d.pente / p.ecartType);
  }
  return p;
}

/// Mean, residuals, scatter.
void PoseMoyenne(const Course &c, FicheSerie &fiche) {
  const auto n = static_cast<double>(c.comptees.size());
  fiche.decalage = DroiteDe(c, c.comptees).moyenne;
  double carres = 0;
  for (std::size_t i = 0; i < c.ecarts.size(); ++i) {
    fiche.residus[i].residu = c.ecarts[i] - fiche.decalage;
    carres += c.lectures[i].compte ? fiche.residus[i].residu * fiche.residus[i].residu : 0;
  }
  const int libertes = static_cast<int>(c.comptees.size()) - 1;
  fiche.ecartType = c.base.ecartType / std::sqrt(n);
  fiche.parDispersion.lecture = std::sqrt(carres / libertes);
  fiche.parDispersion.ecartType = fiche.parDispersion.lecture / std::sqrt(n);
  fiche.parDispersion.facteur = FacteurStudent(libertes);
  fiche.chance = ChanceKhi2(carres / (c.base.ecartType * c.base.ecartType), libertes);
}

/// The test of one reading at a time.
EpreuveMesures Eprouve(const Course &c, FicheSerie &fiche) {
  const std::size_t n = c.comptees.size();
  if (n < kLecturesEpreuve) {
    return {};
  }
  std::vector<double> ecarts;
  ecarts.reserve(c.comptees.size());
  for (const std::size_t i : c.comptees) {
    ecarts.push_back(fiche.residus[i].residu / c.base.ecartType);
  }
  const std::vector<double> partages(n * n, 1 / static_cast<double>(n));
  EpreuveMesures e = EprouveMesures(ecarts, partages, static_cast<int>(n) - 1, c.base.chanceAlarme);
  for (std::size_t k = 0; k < n; ++k) {
    fiche.residus[c.comptees[k]].statistique = e.statistiques[k];
  }
  fiche.seuil = e.seuil;
  return e;
}

/// The chance of the scatter that is left once the named blunder is aside and the readings have their own slope where
/// the sky's is wrong: what neither of these two explains.
double ChanceDuReste(const Course &c, const FicheSerie &fiche, bool penteFausse) {
  std::vector<std::size_t> autres = c.comptees;
  if (fiche.improbable) {
    std::erase(autres, *fiche.improbable);
  }
  const Droite d = DroiteDe(c, autres);
  double carres = 0;
  for (const std::size_t i : autres) {
    const double ecart = (c.ecarts[i] - d.moyenne) / c.base.ecartType;
    carres += ecart * ecart;
  }
  const double pente = d.pente / c.base.ecartType;
  const double explique = penteFausse ? pente * pente * d.etalement : 0;
  return ChanceKhi2(std::max(0.0, carres - explique), static_cast<int>(autres.size()) - (penteFausse ? 2 : 1));
}

/// Tells a blunder from a wrong slope: what explains more of the residuals is told, and the slope of a run with a named
/// blunder is that of the others.
void Juge(const Course &c, double doutePente, FicheSerie &fiche) {
  const double ciel = fiche.pente.ciel;
  const EpreuveMesures epreuve = Eprouve(c, fiche);
  fiche.pente = PenteDe(c, c.comptees, ciel, doutePente);
  double pire = 0;
  for (const double statistique : epreuve.statistiques) {
    pire = std::max(pire, std::fabs(statistique));
  }
  const double pente = fiche.pente.ecartType > 0 ? std::fabs(fiche.pente.trouvee - ciel) / fiche.pente.ecartType : 0;
  bool fausse = fiche.pente.chance < c.base.chanceAlarme;
  const bool lecture = (epreuve.improbable || epreuve.sansNom) && !(fausse && pente > pire);
  if (lecture && epreuve.improbable) {
    fiche.improbable = c.comptees[*epreuve.improbable];
    std::vector<std::size_t> autres = c.comptees;
    std::erase(autres, *fiche.improbable);
    fiche.pente = PenteDe(c, autres, ciel, doutePente);
    fausse = fiche.pente.chance < c.base.chanceAlarme;
  }
  if (fausse) {
    fiche.avis.push_back(AvisSerie::PenteFausse);
  }
  if (lecture) {
    fiche.avis.push_back(fiche.improbable ? AvisSerie::LectureImprobable : AvisSerie::ErreurSansNom);
  }
  if (ChanceDuReste(c, fiche, fausse) < kChanceDispersion) {
    fiche.avis.push_back(AvisSerie::Dispersion);
  }
}

/// The one reading that stands for the run.
void PoseLecture(const BaseLectures &base, const std::optional<InstantUTC> &heure, FicheSerie &fiche) {
  fiche.heure = heure ? *heure : ALaSeconde(fiche.milieu);
  const PlaceGeocentrique place = PlaceA(base.astre, fiche.heure, base.dut1);
  const Station station = StationDe(base, LieuDeLaBase(base, fiche.heure));
  fiche.lecture =
      LecturePour(base.corrections, place, station, VueDe(place, station).hauteur + fiche.decalage / kMinutes);
}

void Reduit(const BaseLectures &base, std::span<const LectureSerie> lectures, const std::optional<InstantUTC> &heure,
            FicheSerie &fiche) {
  const Course c = PrepareCourse(base, lectures, fiche);
  const LieuNavire avant = LieuDeLaBase(base, PlusTard(fiche.milieu, -kDemiPas));
  const LieuNavire apres = LieuDeLaBase(base, PlusTard(fiche.milieu, kDemiPas));
  const PlacesAutour places{PlaceA(base.astre, PlusTard(fiche.milieu, -kDemiPas), base.dut1),
                            PlaceA(base.astre, PlusTard(fiche.milieu, kDemiPas), base.dut1)};
  const AllureCiel ciel = AllureDe(base, places, avant, apres);
  PoseMoyenne(c, fiche);
  PoseLecture(base, heure, fiche);
  if (ciel.hauteur < 0) {
    fiche.avis.push_back(AvisSerie::SousHorizon);
  }
  const bool loin = std::fabs(fiche.decalage) > kHauteurLoin;
  if (loin) {
    fiche.avis.push_back(AvisSerie::HauteurLoin);
  }
  fiche.pente.ciel = ciel.pente;
  Juge(c, DoutePosition(base, places, avant, apres, ciel.pente), fiche);
  if (loin || std::find(fiche.avis.begin(), fiche.avis.end(), AvisSerie::PenteFausse) != fiche.avis.end()) {
    fiche.pistes = CherchePistes(
        base, {fiche.milieu, ciel.hauteur + fiche.decalage / kMinutes, fiche.pente.trouvee, fiche.pente.ecartType});
  }
  fiche.faite = true;
}

} // namespace

FicheSerie ReduitSerie(const BaseLectures &base, std::span<const LectureSerie> lectures,
                       const std::optional<InstantUTC> &heure) {
  FicheSerie fiche;
  fiche.comptees = static_cast<std::size_t>(
      std::count_if(lectures.begin(), lectures.end(), [](const LectureSerie &l) { return !l.ecartee; }));
  if (fiche.comptees < kLecturesMin || fiche.comptees > kLecturesMax) {
    fiche.avis.push_back(fiche.comptees < kLecturesMin ? AvisSerie::TropPeu : AvisSerie::Trop);
    return fiche;
  }
  try {
    Reduit(BaseSaine(base), lectures, heure, fiche);
  } catch (const Refus &refus) {
    fiche = {};
    fiche.refus = refus.raison;
    fiche.avis.push_back(AvisSerie::SansCiel);
  }
  return fiche;
}

std::vector<PointCourse> CourseSerie(const BaseLectures &base, std::span<const LectureSerie> lectures,
                                     const FicheSerie &fiche, std::size_t nombre) {
  std::vector<PointCourse> points;
  if (!fiche.faite || nombre < 2) {
    return points;
  }
  const auto tot = [](const LectureSerie &a, const LectureSerie &b) { return SecondesEntre(a.utc, b.utc) > 0; };
  const auto [premiere, derniere] = std::minmax_element(lectures.begin(), lectures.end(), tot);
  const double duree = SecondesEntre(premiere->utc, derniere->utc);
  for (std::size_t i = 0; i < nombre; ++i) {
    const InstantUTC utc = PlusTard(premiere->utc, duree * static_cast<double>(i) / static_cast<double>(nombre - 1));
    const PlaceGeocentrique place = PlaceA(base.astre, utc, base.dut1);
    const double hauteur = VueDe(place, StationDe(base, LieuDeLaBase(base, utc))).hauteur;
    points.push_back({SecondesEntre(fiche.milieu, utc) / kMinutes, hauteur + fiche.decalage / kMinutes});
  }
  return points;
}

} // namespace velmaris

#include "complements/lunaire/Lunaire.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Vue.hpp"
#include "complements/lunaire/Classement.hpp"
#include "complements/lunaire/Essai.hpp"
#include "complements/point/Epreuve.hpp"
#include "complements/point/Lois.hpp"
#include "complements/point/Sphere.hpp"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kHeure = 3600;       ///< seconds
constexpr double kPasCadence = 30;    ///< seconds to either side
constexpr double kPasRecherche = 600; ///< seconds between the times that are tried first
constexpr double kChanceDesaccord = 0.01;

/// Distances under way.
struct Recherche {
  std::vector<MesurePrete> mesures; ///< all of them
  std::vector<std::size_t> comptees;
  ReglagesLunaire reglages;
};

double EcartA(const Recherche &r, std::size_t i, double retard, const Decalage &decalage = {}) {
  const MesurePrete &m = r.mesures[i];
  return (m.distance - EssaieDistance(m, r.reglages, retard, decalage).vue.distance) * kMinutes;
}

/// The unknowns: the watch, and the position's two errors, which its doubt holds.
constexpr Eigen::Index kRetard = 0;
constexpr Eigen::Index kNord = 1;
constexpr Eigen::Index kEst = 2;
using Normale = Eigen::Matrix3d;
using Lignes = Eigen::Matrix<double, Eigen::Dynamic, 3>;

/// The equations at a time tried.
struct Systeme {
  Lignes lignes;          ///< slopes of the distances that count, over their assumed errors
  Eigen::VectorXd ecarts; ///< measured less the sky's, over the same
  Eigen::VectorXd sigmas; ///< minutes
  Normale cofacteurs;
  Eigen::Vector3d pas;    ///< seconds, miles, miles
  Eigen::VectorXd restes; ///< of `ecarts` once the position has taken its share
  double khi2 = 0;        ///< of what is left with the watch as it is tried
};

/// Assumed error of a distance, with what its heights are in doubt by.
double EcartTypeDe(const Recherche &r, std::size_t i, double retard) {
  if (!AHauteurs(*r.mesures[i].mesure)) {
    return r.reglages.ecartType;
  }
  const double ici = EcartA(r, i, retard);
  const double lune = EcartA(r, i, retard, {0, 0, 1, 0}) - ici;
  const double astre = EcartA(r, i, retard, {0, 0, 0, 1}) - ici;
  return std::hypot(r.reglages.ecartType, lune * r.reglages.ecartHauteur, astre * r.reglages.ecartHauteur);
}

/// The rate of a distance, minutes of arc a second.
double CadenceDe(const Recherche &r, std::size_t i, double retard) {
  return -(EcartA(r, i, retard + kPasCadence) - EcartA(r, i, retard - kPasCadence)) / (2 * kPasCadence);
}

/// What is left by the best position, the watch held.
void PoseRestes(Systeme &s, double poidsLieu) {
  const auto position = s.lignes.rightCols<2>();
  const Eigen::Matrix2d n = position.transpose() * position + poidsLieu * Eigen::Matrix2d::Identity();
  const Eigen::Vector2d lieu = n.ldlt().solve(position.transpose() * s.ecarts);
  s.khi2 = (s.ecarts - position * lieu).squaredNorm() + poidsLieu * lieu.squaredNorm();
}

Systeme SystemeA(const Recherche &r, double retard) {
  constexpr double kTenue = 1E-14; ///< holds the watch where the distances stand still
  const auto n = static_cast<Eigen::Index>(r.comptees.size());
  Systeme s;
  s.lignes.setZero(n, 3);
  s.ecarts.setZero(n);
  s.sigmas.setZero(n);
  for (Eigen::Index k = 0; k < n; ++k) {
    const std::size_t i = r.comptees[static_cast<std::size_t>(k)];
    const double sigma = EcartTypeDe(r, i, retard);
    const double ici = EcartA(r, i, retard);
    s.sigmas[k] = sigma;
    s.ecarts[k] = ici / sigma;
    s.lignes(k, kRetard) = CadenceDe(r, i, retard) / sigma;
    if (!AHauteurs(*r.mesures[i].mesure)) {
      s.lignes(k, kNord) = (ici - EcartA(r, i, retard, {1, 0, 0, 0})) / sigma;
      s.lignes(k, kEst) = (ici - EcartA(r, i, retard, {0, 1, 0, 0})) / sigma;
    }
  }
  const double poids = 1 / (r.reglages.douteLieu * r.reglages.douteLieu);
  Normale normale = s.lignes.transpose() * s.lignes;
  normale(kRetard, kRetard) += kTenue;
  normale(kNord, kNord) += poids;
  normale(kEst, kEst) += poids;
  s.cofacteurs = normale.inverse();
  s.pas = s.cofacteurs * (s.lignes.transpose() * s.ecarts);
  s.restes = s.ecarts - s.lignes * s.pas;
  PoseRestes(s, poids);
  return s;
}

/// The sum of squares at a time tried, by few distances: for the search alone.
double Grossier(const Recherche &r, double retard) {
  constexpr std::size_t kAssez = 5;
  const std::size_t saut = (r.comptees.size() + kAssez - 1) / kAssez;
  double somme = 0;
  for (std::size_t k = 0; k < r.comptees.size(); k += saut) {
    const double ecart = EcartA(r, r.comptees[k], retard);
    somme += ecart * ecart;
  }
  return somme;
}

/// Times near which the distances agree best.
std::vector<double> Creux(const Recherche &r) {
  const int pas = static_cast<int>(std::ceil(r.reglages.etendue * kHeure / kPasRecherche)) + 1;
  std::vector<double> sommes;
  for (int i = -pas; i <= pas; ++i) {
    sommes.push_back(Grossier(r, i * kPasRecherche));
  }
  std::vector<double> creux;
  for (std::size_t i = 1; i + 1 < sommes.size(); ++i) {
    if (sommes[i] <= sommes[i - 1] && sommes[i] < sommes[i + 1]) {
      creux.push_back((static_cast<double>(i) - pas) * kPasRecherche);
    }
  }
  return creux;
}

/// One time that no step makes better.
struct Trouve {
  double retard = 0;
  Systeme systeme;
};

/// Walks from a time to where no step makes it better, within a search step and a half of it. Near a turning distance
/// two times lie close: from which side it is come to decides.
std::optional<Trouve> Affine(const Recherche &r, double creux, double depart) {
  constexpr int kTours = 30;
  constexpr int kMoities = 6;
  constexpr double kAssezPres = 1E-4; ///< seconds
  Trouve t{depart, SystemeA(r, depart)};
  for (int tour = 0; tour < kTours; ++tour) {
    double pas = std::clamp(t.systeme.pas[kRetard], -kPasRecherche, kPasRecherche);
    Trouve suivant{t.retard + pas, SystemeA(r, t.retard + pas)};
    for (int i = 0; i < kMoities && suivant.systeme.khi2 > t.systeme.khi2; ++i) {
      pas /= 2;
      suivant = {t.retard + pas, SystemeA(r, t.retard + pas)};
    }
    if (std::fabs(suivant.retard - creux) > 1.5 * kPasRecherche || !std::isfinite(suivant.systeme.khi2)) {
      return std::nullopt;
    }
    const bool mieux = suivant.systeme.khi2 <= t.systeme.khi2;
    if (mieux) {
      t = std::move(suivant);
    }
    if (!mieux || std::fabs(pas) < kAssezPres) {
      break;
    }
  }
  return t;
}

/// All times that agree, the likeliest first; of two as likely the one nearer to the watch.
std::vector<Trouve> Cherche(const Recherche &r) {
  constexpr double kMeme = 2; ///< seconds
  std::vector<Trouve> trouves;
  for (const double creux : Creux(r)) {
    for (const double depart : {creux, creux - kPasRecherche, creux + kPasRecherche}) {
      std::optional<Trouve> t = Affine(r, creux, depart);
      const auto meme = [&](const Trouve &autre) { return std::fabs(autre.retard - t->retard) < kMeme; };
      if (t && std::fabs(t->retard) <= r.reglages.etendue * kHeure &&
          std::none_of(trouves.begin(), trouves.end(), meme)) {
        trouves.push_back(std::move(*t));
      }
    }
  }
  std::stable_sort(trouves.begin(), trouves.end(),
                   [](const Trouve &a, const Trouve &b) { return a.systeme.khi2 < b.systeme.khi2; });
  const auto loin = std::find_if(trouves.begin(), trouves.end(), [&](const Trouve &t) {
    return t.systeme.khi2 - trouves.front().systeme.khi2 >= kNettement;
  });
  std::stable_sort(trouves.begin(), loin,
                   [](const Trouve &a, const Trouve &b) { return std::fabs(a.retard) < std::fabs(b.retard); });
  return trouves;
}

/// The rate that all distances together have, minutes of arc an hour.
double CadenceCommune(const Systeme &s) {
  const Eigen::VectorXd cadences = s.lignes.col(kRetard).cwiseProduct(s.sigmas);
  return std::sqrt(cadences.squaredNorm() / static_cast<double>(cadences.size())) * kHeure;
}

void Eprouve(const Recherche &r, const Systeme &s, SolutionLunaire &solution) {
  constexpr int kSurplusMin = 2;
  if (solution.surplus < kSurplusMin) {
    return;
  }
  const Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> partages =
      s.lignes * s.cofacteurs * s.lignes.transpose();
  const std::size_t n = r.comptees.size();
  const EpreuveMesures e =
      EprouveMesures({s.restes.data(), n}, {partages.data(), n * n}, solution.surplus, r.reglages.chanceAlarme);
  for (std::size_t k = 0; k < n; ++k) {
    solution.residus[r.comptees[k]].statistique = e.statistiques[k];
  }
  solution.seuil = e.seuil;
  solution.sansNom = e.sansNom;
  if (e.improbable) {
    solution.improbable = r.comptees[*e.improbable];
  }
}

SolutionLunaire SolutionDe(const Recherche &r, const Trouve &t) {
  SolutionLunaire solution;
  const Systeme &s = t.systeme;
  solution.retard = t.retard;
  solution.ecartType = std::sqrt(s.cofacteurs(kRetard, kRetard));
  solution.cadence = CadenceCommune(s);
  solution.khi2 = s.khi2;
  solution.surplus = static_cast<int>(r.comptees.size()) - 1;
  solution.chance = ChanceKhi2(s.khi2, solution.surplus);
  for (std::size_t i = 0; i < r.mesures.size(); ++i) {
    const EssaiDistance essai = EssaieDistance(r.mesures[i], r.reglages, t.retard);
    ResiduLunaire residu;
    residu.residu = (r.mesures[i].distance - essai.vue.distance) * kMinutes;
    residu.ecartType = EcartTypeDe(r, i, t.retard);
    residu.cadence = CadenceDe(r, i, t.retard) * kHeure;
    residu.vue = essai.vue;
    residu.lieu = essai.lieu;
    solution.residus.push_back(residu);
  }
  Eprouve(r, s, solution);
  return solution;
}

void Ajoute(FicheLunaire &fiche, AvisLunaire avis) {
  if (std::find(fiche.avis.begin(), fiche.avis.end(), avis) == fiche.avis.end()) {
    fiche.avis.push_back(avis);
  }
}

/// A limb that isn't lit, bodies that stand low.
void JugeMesure(const Recherche &r, std::size_t i, FicheLunaire &fiche) {
  constexpr double kPleine = 170; ///< degrees from the Sun: both limbs are as good as lit
  constexpr double kBasse = 5;
  const MesureLunaire &m = *r.mesures[i].mesure;
  const DistanceVue &vue = fiche.solution->residus[i].vue;
  const double plusBas = std::min(vue.hauteurLune, vue.hauteurAstre);
  if (plusBas < kBasse) {
    Ajoute(fiche, plusBas < 0 ? AvisLunaire::SousHorizon : AvisLunaire::Basse);
  }
  const InstantUTC utc = PlusTard(m.montre, fiche.solution->retard);
  const CielDuMoment ciel = PrepareCiel({TTDe(utc), UT1De(utc, r.reglages.dut1)});
  const PlaceGeocentrique lune = PlaceDe(ciel, {GenreAstre::Lune, 0});
  const PlaceGeocentrique soleil = PlaceDe(ciel, {GenreAstre::Soleil, 0});
  const bool pleine = EcartLieux({lune.declinaison, -lune.gha}, {soleil.declinaison, -soleil.gha}) > kPleine;
  const bool bord = m.bordLune != BordDistance::Centre;
  if (bord && !pleine && BordEclaire(lune, soleil, PlaceDe(ciel, m.astre)) != m.bordLune) {
    Ajoute(fiche, AvisLunaire::BordSombre);
  }
}

void Juge(const Recherche &r, FicheLunaire &fiche) {
  for (const std::size_t i : r.comptees) {
    JugeMesure(r, i, fiche);
  }
  const SolutionLunaire &s = *fiche.solution;
  if (s.chance < kChanceDesaccord) {
    Ajoute(fiche, AvisLunaire::Desaccord);
  }
  if (s.improbable || s.sansNom) {
    Ajoute(fiche, s.improbable ? AvisLunaire::MesureImprobable : AvisLunaire::ErreurSansNom);
  }
  std::sort(fiche.avis.begin(), fiche.avis.end());
}

/// Whether what is left is more than a turning distance and a blunder explain: there is no such time.
bool SansAccord(const Recherche &r, const Systeme &s) {
  constexpr double kEcarts = 4; ///< deviations that one distance alone may be off
  constexpr double kDegre = 60; ///< minutes, of several
  const double moyen = std::sqrt(s.khi2 / static_cast<double>(r.comptees.size()));
  return r.comptees.size() == 1 ? moyen > kEcarts : moyen * s.sigmas.mean() > kDegre;
}

void Reduit(const Recherche &r, FicheLunaire &fiche) {
  // A track would hold any latitude at its edge.
  static_cast<void>(RepereDe({r.reglages.lieu.latitude, r.reglages.lieu.longitude, r.reglages.hauteurOeil}));
  const std::vector<Trouve> trouves = Cherche(r);
  if (trouves.empty() || SansAccord(r, trouves.front().systeme)) {
    Ajoute(fiche, AvisLunaire::SansSolution);
    return;
  }
  const Trouve &premier = trouves.front();
  fiche.cadence = CadenceCommune(premier.systeme);
  if (fiche.cadence < kCadenceMin) {
    Ajoute(fiche, AvisLunaire::TropLent);
    return;
  }
  fiche.solution = SolutionDe(r, premier);
  if (trouves.size() > 1 && trouves[1].systeme.khi2 - premier.systeme.khi2 < kNettement) {
    fiche.seconde = SolutionDe(r, trouves[1]);
    Ajoute(fiche, AvisLunaire::DeuxSolutions);
  }
  Juge(r, fiche);
}

/// Settings whose assumed errors are some.
ReglagesLunaire Sains(ReglagesLunaire r) {
  constexpr double kEtendueMax = 24;
  const ReglagesLunaire sains;
  const auto ou = [](double valeur, double sinon) { return valeur > 0 && std::isfinite(valeur) ? valeur : sinon; };
  r.ecartType = ou(r.ecartType, sains.ecartType);
  r.ecartHauteur = ou(r.ecartHauteur, sains.ecartHauteur);
  r.douteLieu = std::max(ou(r.douteLieu, sains.douteLieu), 1E-3);
  r.etendue = std::min(ou(r.etendue, sains.etendue), kEtendueMax);
  return r;
}

Recherche Prepare(std::span<const MesureLunaire> mesures, const ReglagesLunaire &reglages) {
  Recherche r{{}, {}, Sains(reglages)};
  for (const MesureLunaire &m : mesures) {
    if (!m.ecartee) {
      r.comptees.push_back(r.mesures.size());
    }
    r.mesures.push_back({&m, m.lecture + m.collimation / kMinutes,
                         Deplace(reglages.route, reglages.lieu, reglages.heureLieu, m.montre).lieu});
  }
  return r;
}

} // namespace

FicheLunaire ReduitLunaires(std::span<const MesureLunaire> mesures, const ReglagesLunaire &reglages) {
  FicheLunaire fiche;
  const Recherche r = Prepare(mesures, reglages);
  const auto pasUn = [](const MesureLunaire &m) {
    return m.astre.genre == GenreAstre::Lune || m.astre.genre == GenreAstre::Belier;
  };
  if (r.comptees.empty() || r.comptees.size() > kDistancesMax) {
    Ajoute(fiche, r.comptees.empty() ? AvisLunaire::SansMesure : AvisLunaire::Trop);
    return fiche;
  }
  if (std::any_of(mesures.begin(), mesures.end(), pasUn)) {
    Ajoute(fiche, AvisLunaire::PasUnAstre);
    return fiche;
  }
  try {
    Reduit(r, fiche);
  } catch (const Refus &refus) {
    fiche = {};
    fiche.refus = refus.raison;
    Ajoute(fiche, AvisLunaire::SansCiel);
  }
  return fiche;
}

} // namespace velmaris

#include "complements/point/Jugement.hpp"

#include "complements/point/Lois.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr std::size_t kViseesEllipse = 6; ///< from here on residuals say something of their own

/// The test of the sights that count, each against the others.
EpreuveMesures EpreuveDe(const EquilibrePoint &e, int surplus, double chanceAlarme) {
  const Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> partages =
      e.matrices.lignes * e.cofacteurs * e.matrices.lignes.transpose();
  const auto n = static_cast<std::size_t>(e.matrices.ecarts.size());
  return EprouveMesures({e.matrices.ecarts.data(), n}, {partages.data(), n * n}, surplus, chanceAlarme);
}

/// What a sight has from a place, whether it counts or not.
ResiduPoint ResiduDe(const ViseePoint &visee, const ReglagesPoint &reglages, const LieuNavire &lieu,
                     const EcartRoute &ecart) {
  ResiduPoint r;
  r.identite = visee.identite;
  const HauteurPreparee &h = visee.hauteur;
  const bool actuelle = reglages.theorie == TheoriePoint::Actuelle;
  r.mesuree = actuelle ? h.actuelle.has_value() : h.dite.has_value();
  if (!r.mesuree) {
    return r;
  }
  r.ecartType = EcartTypeDe(visee, reglages.doutes);
  r.lieu = SuitTroncons(TronconsEntre(reglages.route, reglages.heure, h.utc), reglages.route.courant, lieu, ecart).lieu;
  r.residu = ((actuelle ? h.actuelle->observee : h.dite->observee) - HauteurDuLieu(h, reglages.theorie, r.lieu)) * 60;
  r.azimut = AzimutDuLieu(h, reglages.theorie, r.lieu);
  return r;
}

/// The residuals, those of the sights that count with what the common errors explain of them.
void PoseResidus(SolutionPoint &solution, const SystemePoint &systeme, const EquilibrePoint &e,
                 std::span<const ViseePoint> visees, const ReglagesPoint &reglages, const EpreuveMesures &epreuve) {
  const EcartRoute ecart = EcartDeLEtat(systeme, e.etat);
  for (const ViseePoint &visee : visees) {
    solution.residus.push_back(ResiduDe(visee, reglages, e.etat.lieu, ecart));
  }
  for (std::size_t k = 0; k < systeme.visees.size(); ++k) {
    const auto i = static_cast<Eigen::Index>(k);
    ResiduPoint &r = solution.residus[systeme.visees[k].place];
    r.utilisee = true;
    r.residu = e.matrices.ecarts[i] * systeme.visees[k].ecartType;
    r.redondance = epreuve.redondances[k];
    r.statistique = epreuve.statistiques[k];
  }
}

void PoseCommunes(SolutionPoint &solution, const SystemePoint &systeme, const EquilibrePoint &e) {
  for (Eigen::Index k = 0; k < systeme.communes; ++k) {
    const InconnueCommune &inconnue = systeme.sens[static_cast<std::size_t>(k)];
    solution.communes.push_back(
        {inconnue.genre, inconnue.debut, e.etat.reste[k], std::sqrt(std::max(e.cofacteurs(k + 2, k + 2), 0.0))});
  }
}

/// Mean course and speed from the first to the last sight, by the vectors of the track.
FondTrouve FondDe(const SystemePoint &systeme, const EquilibrePoint &e, const ReglagesPoint &reglages) {
  const auto tot = [](const EquationVisee &a, const EquationVisee &b) {
    return SecondesEntre(a.hauteur->utc, b.hauteur->utc) > 0;
  };
  const auto [premiere, derniere] = std::minmax_element(systeme.visees.begin(), systeme.visees.end(), tot);
  double nord = 0;
  double est = 0;
  double heures = 0;
  for (const Troncon &t : TronconsEntre(reglages.route, premiere->hauteur->utc, derniere->hauteur->utc)) {
    nord += t.heures * t.vitesse * std::cos(t.cap * kRadian);
    est += t.heures * t.vitesse * std::sin(t.cap * kRadian);
    heures += t.heures;
  }
  const EcartRoute ecart = EcartDeLEtat(systeme, e.etat);
  const double vers = reglages.route.courant.direction * kRadian;
  nord = nord / heures + reglages.route.courant.vitesse * std::cos(vers) + ecart.nord;
  est = est / heures + reglages.route.courant.vitesse * std::sin(vers) + ecart.est;
  const Eigen::Index k = 2 + systeme.communes;
  return {AngleUnTour(std::atan2(est, nord) / kRadian), std::hypot(nord, est),
          std::sqrt(std::max(e.cofacteurs(k, k), 0.0)), std::sqrt(std::max(e.cofacteurs(k + 1, k + 1), 0.0))};
}

} // namespace

EllipsePoint EllipseDe(double nordNord, double nordEst, double estEst, double facteur) {
  const double demi = (nordNord + estEst) / 2;
  const double ecart = std::hypot((nordNord - estEst) / 2, nordEst);
  double direction = std::atan2(2 * nordEst, nordNord - estEst) / 2 / kRadian;
  direction += direction < 0 ? 180 : 0;
  return {std::sqrt(std::max(demi + ecart, 0.0) * facteur), std::sqrt(std::max(demi - ecart, 0.0) * facteur),
          direction >= 180 ? 0 : direction};
}

SolutionPoint JugeEquilibre(const SystemePoint &systeme, const EquilibrePoint &e, std::span<const ViseePoint> visees,
                            const ReglagesPoint &reglages) {
  SolutionPoint solution;
  const Eigen::MatrixXd &q = e.cofacteurs;
  solution.lieu = e.etat.lieu;
  solution.ellipse = EllipseDe(q(0, 0), q(0, 1), q(1, 1), kFacteurEllipse);
  solution.khi2 = e.matrices.khi2;
  solution.surplus = static_cast<int>(static_cast<Eigen::Index>(systeme.visees.size()) - InconnuesLibres(systeme));
  solution.chance = ChanceKhi2(solution.khi2, solution.surplus);
  if (systeme.visees.size() >= kViseesEllipse && solution.surplus > 0) {
    const double variance = solution.khi2 / solution.surplus;
    solution.parResidus = EllipseDe(q(0, 0), q(0, 1), q(1, 1), variance * FacteurFisher(solution.surplus));
  }
  const EpreuveMesures epreuve = EpreuveDe(e, solution.surplus, reglages.chanceAlarme);
  solution.seuil = epreuve.seuil;
  solution.sansNom = epreuve.sansNom;
  if (epreuve.improbable) {
    solution.improbable = systeme.visees[*epreuve.improbable].place;
  }
  PoseResidus(solution, systeme, e, visees, reglages, epreuve);
  PoseCommunes(solution, systeme, e);
  if (systeme.fond) {
    solution.fond = FondDe(systeme, e, reglages);
  }
  return solution;
}

} // namespace velmaris

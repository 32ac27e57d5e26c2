#pragma once

#include "complements/point/Point.hpp"
#include "complements/point/Route.hpp"

#include <Eigen/Core>

#include <optional>
#include <vector>

/// The least squares of a fix. Unknowns, in this order: miles north and east at the time of the fix; the common errors,
/// minutes; the speed over the ground that the track lacks, knots north and east; the doubts of the run, each in units
/// of its deviation, so that all are drawn to 0 alike.
namespace velmaris {

/// One sight that counts.
struct EquationVisee {
  const HauteurPreparee *hauteur = nullptr; ///< the caller's, which must outlive it
  std::size_t place = 0;                    ///< among the caller's sights
  double ecartType = 0;                     ///< minutes
  std::vector<Troncon> troncons;            ///< from the time of the fix to that of the sight
  std::vector<double> communes;             ///< how much of each common error it has
};

/// What a common error is of.
struct InconnueCommune {
  GenreCommune genre = GenreCommune::Horizon;
  int quart = 0; ///< the watch; that of the sextant has none
  InstantUTC debut;
};

/// A whole system.
struct SystemePoint {
  std::vector<EquationVisee> visees;
  TheoriePoint theorie = TheoriePoint::Actuelle;
  Courant courant;
  EcartRoute doute; ///< one deviation of each
  Eigen::Index communes = 0;
  std::vector<InconnueCommune> sens; ///< what each common error is of
  bool fond = false;                 ///< the speed over the ground is unknown, and the run has no other doubt
};

/// Unknowns without those of the run's doubts, which are known as well as they are doubted.
Eigen::Index InconnuesLibres(const SystemePoint &systeme);

/// Where the unknowns stand.
struct EtatPoint {
  LieuNavire lieu;       ///< at the time of the fix
  Eigen::VectorXd reste; ///< the unknowns after the first two
};

/// One state's equations.
struct MatricesPoint {
  Eigen::MatrixXd lignes;        ///< a row a sight: computed height by each unknown, over the assumed error
  Eigen::VectorXd ecarts;        ///< observed less computed, over the assumed error
  std::vector<double> azimuts;   ///< degrees
  std::vector<LieuNavire> lieux; ///< of the ship at each sight's time
  bool auPole = false;
  double khi2 = 0; ///< with what the doubts of the run have used up
};

/// The state of no doubt at a place.
EtatPoint EtatDe(const SystemePoint &systeme, const LieuNavire &lieu);

/// What the run is off by in a state.
EcartRoute EcartDeLEtat(const SystemePoint &systeme, const EtatPoint &etat);

/// Works the equations out. The doubts of the run act on the heights as they are linear along the logged track: that is
/// the full covariance of the sights, and a blunder can't bend the track.
MatricesPoint EquationsDe(const SystemePoint &systeme, const EtatPoint &etat);

/// A state that no step makes better.
struct EquilibrePoint {
  EtatPoint etat;
  MatricesPoint matrices;
  Eigen::MatrixXd cofacteurs; ///< covariances of the unknowns by the assumed errors
};

/// Steps of a walk that may take its time: few need ten.
inline constexpr int kTours = 60;

/// Walks to the least sum of squares by Gauss and Newton's steps, each halved until it makes the sum smaller, to within
/// 0.001 minute.
/// @param tours  steps after which it is given up
/// @return nothing where the equations don't determine the unknowns, or no end is found
std::optional<EquilibrePoint> Equilibre(const SystemePoint &systeme, const EtatPoint &depart, int tours = kTours);

} // namespace velmaris

#pragma once

#include "complements/point/HauteurPreparee.hpp"
#include "complements/point/Route.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// One sight of a fix.
struct ViseePoint {
  HauteurPreparee hauteur;
  std::int64_t identite = 0;       ///< the caller's own number, given back with its residual
  bool cochee = true;              ///< left out of the fix, but not of the residuals, when false
  std::optional<double> ecartType; ///< assumed error, minutes of arc; nothing for `ErreurSupposee`
};

/// What a fix assumes: standard deviations. 0 takes a doubt of the run for none.
struct DoutesPoint {
  double hauteur = 0.7; ///< of an altitude over 10 degrees, minutes of arc; over 0
  double cap = 3;       ///< of the course, degrees
  double vitesse = 5;   ///< of the speed, per cent
  double courant = 0.3; ///< of the current, knots, north and east each
};

/// What a fix is asked for.
struct ReglagesPoint {
  InstantUTC heure; ///< of the fix
  RouteNavire route;
  DoutesPoint doutes;
  TheoriePoint theorie = TheoriePoint::Actuelle;
  bool erreurCommune = false; ///< the errors that all heights share are unknowns, where the sights allow it
  bool routeFond = false;     ///< course and speed made good are unknowns, where the sights allow it
  double chanceAlarme = 0.01; ///< that a whole fix without any blunder has a sight called improbable
};

/// What is to be known of a fix; the words for it belong to the windows.
enum class AvisPoint : std::uint8_t {
  SansVisee,       ///< no sight is ticked: no fix
  UneVisee,        ///< one alone: a line, no fix
  AzimutsSerres,   ///< no two lines cross at more than 15 degrees: no fix
  SansSolution,    ///< no place agrees with the heights: no fix
  SansFigure,      ///< a ticked sight has no figure of this theory, and was left out
  AuPole,          ///< the track leads over a pole
  DeuxSolutions,   ///< a second place agrees with the heights as well
  Desaccord,       ///< the sights disagree by more than their assumed errors: one chance in a hundred
  ViseeImprobable, ///< one sight is improbable, and which one is told
  ErreurSansNom,   ///< some sight is improbable, but which one can't be told
  CommuneAzimuts,  ///< the common error was refused: the azimuths span 180 degrees or less
  CommuneTropPeu,  ///< it was refused: not one sight more than unknowns
  CommuneMalPosee, ///< it was refused: the sights can't part it from the place
  FondTropPeu,     ///< course and speed made good were refused: fewer than six sights, or than unknowns and one
  FondTropCourt,   ///< they were refused: under three hours from first to last
  FondMalPose,     ///< they were refused: they would be known to no better than two knots
};

/// An ellipse that holds the ship in 95 of 100 fixes.
struct EllipsePoint {
  double a = 0;         ///< miles, the greater half axis
  double b = 0;         ///< miles
  double direction = 0; ///< degrees in [0, 180), true, of the greater axis
};

/// What one sight makes of a fix.
struct ResiduPoint {
  std::int64_t identite = 0;
  bool utilisee = false;  ///< ticked and with a figure
  bool mesuree = false;   ///< has a figure: the rest is meaningful
  double residu = 0;      ///< observed less computed height, miles, positive towards the body
  double ecartType = 0;   ///< assumed error, miles
  double azimut = 0;      ///< of the body from the ship at the sight's time, degrees in [0, 360)
  LieuNavire lieu;        ///< of the ship at the sight's time, as the fix has it
  double redondance = 0;  ///< 0 where no other sight controls this one, to 1; 0 when not used
  double statistique = 0; ///< standardised test: normal of mean 0 and deviation 1 without a blunder; 0 when none
};

/// What an error that all heights share is of.
enum class GenreCommune : std::uint8_t {
  Horizon, ///< the sea's horizon in one watch: dip, eye height, index; the whole of it counts
  Sextant, ///< the index alone: half of it counts off an artificial horizon
};

/// A common error that was found.
struct ErreurCommune {
  GenreCommune genre = GenreCommune::Horizon;
  InstantUTC debut;     ///< of the first sight of its watch
  double valeur = 0;    ///< minutes of arc, by which readings are too great
  double ecartType = 0; ///< minutes of arc
};

/// Course and speed over the ground that were found, the mean from the first to the last sight.
struct FondTrouve {
  double cap = 0;       ///< degrees in [0, 360), true
  double vitesse = 0;   ///< knots
  double ecartNord = 0; ///< standard deviation of the speed's north component, knots
  double ecartEst = 0;  ///< of the east one, knots
};

/// One place that agrees with the heights.
struct SolutionPoint {
  LieuNavire lieu;                        ///< at the time of the fix
  EllipsePoint ellipse;                   ///< by the assumed errors
  std::optional<EllipsePoint> parResidus; ///< by the residuals, with six or more sights
  double khi2 = 0;                        ///< weighted sum of squares
  int surplus = 0;                        ///< sights more than unknowns
  double chance = 1;                      ///< that sights without blunder disagree as much
  std::vector<ResiduPoint> residus;       ///< in the order of the sights
  std::vector<ErreurCommune> communes;    ///< those that were solved, by time; the sextant's last
  std::optional<FondTrouve> fond;
  std::optional<std::size_t> improbable; ///< the sight that is, by its place in `residus`
  bool sansNom = false;                  ///< some sight is improbable, but which one can't be told
  double seuil = 0;                      ///< of the statistics, over which one is improbable; 0 without a test
};

/// A fix, or why there is none. It holds no words: they belong to the windows.
struct FichePoint {
  std::vector<AvisPoint> avis;           ///< by their order above, each once
  std::optional<SolutionPoint> solution; ///< the likeliest place
  std::optional<SolutionPoint> seconde;  ///< with DeuxSolutions
};

/// Makes the fix of the ticked sights. It changes nothing and never throws; any thread may call it.
/// Theory: weighted least squares on altitudes, each at the ship's place at its own time; course, speed and current are
/// nuisance unknowns with their doubts, so that altitudes far from the time of the fix count as little as they should
/// (the same as the full covariance of the sights). It starts from the crossings of two circles and needs no estimated
/// position; that of the sights only orders two solutions as likely as each other.
FichePoint FaitPoint(std::span<const ViseePoint> visees, const ReglagesPoint &reglages);

/// The assumed error that a sight is weighed by: its own, or that of its height. What is no number over 0 counts as not
/// given.
/// @return minutes of arc
double EcartTypeDe(const ViseePoint &visee, const DoutesPoint &doutes);

/// The watches of sights: each sight's watch, counted from 0 by time. One ends where the next sight comes over an hour
/// and a half later.
std::vector<int> QuartsDeVisees(std::span<const ViseePoint> visees);

} // namespace velmaris

#include "complements/point/Equations.hpp"

#include "complements/point/Sphere.hpp"

#include <Eigen/Cholesky>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr Eigen::Index kLieu = 2; ///< unknowns of the place
constexpr Eigen::Index kFond = 2; ///< of the speed over the ground
constexpr Eigen::Index kDoutes = 4;

/// What moves with one unit of an unknown of the run, in the order of `ParametreRoute` from the course on.
std::array<double, kDoutes> Unites(const SystemePoint &systeme) {
  return {systeme.doute.cap, systeme.doute.vitesse, systeme.doute.nord, systeme.doute.est};
}

/// Height by latitude and by longitude, minutes a degree. A near body's height changes faster than the place.
struct PenteHauteur {
  double latitude;
  double longitude;
};

PenteHauteur PenteDe(const HauteurPreparee &h, TheoriePoint theorie, double hauteur, double azimut, double latitude) {
  double facteur = kMinutes;
  if (theorie == TheoriePoint::Actuelle) {
    facteur *= 1 + h.actuelle->place.parallaxe / kMinutes * kRadian * std::sin(hauteur * kRadian);
  }
  const double a = azimut * kRadian;
  return {facteur * std::cos(a), facteur * std::sin(a) * std::cos(latitude * kRadian)};
}

struct Visee {
  double hauteur;
  double azimut;
};

/// Height and azimuth of a sight's body from a place, degrees.
Visee VueDuLieu(const HauteurPreparee &h, TheoriePoint theorie, const LieuNavire &lieu) {
  if (theorie == TheoriePoint::Actuelle) {
    const PlaceTopocentrique vue = VueDe(h.actuelle->place, {lieu.latitude, lieu.longitude, h.hauteurOeil});
    return {vue.hauteur, vue.azimut};
  }
  return {HauteurDuLieu(h, theorie, lieu), AzimutDuLieu(h, theorie, lieu)};
}

/// One row: what each unknown makes of the computed height, minutes.
std::vector<double> LigneDe(const SystemePoint &systeme, const EquationVisee &visee, const ArriveePentes &a,
                            const PenteHauteur &pente, double latitudeDuPoint) {
  constexpr double kPresPole = 1E-6;
  std::vector<double> ligne;
  const auto par = [&](std::size_t i) {
    return pente.latitude * a.latitude.at(i) + pente.longitude * a.longitude.at(i);
  };
  ligne.push_back(par(kLatitudeDepart) / kMinutes);
  ligne.push_back(par(kLongitudeDepart) / kMinutes / std::max(std::cos(latitudeDuPoint * kRadian), kPresPole));
  ligne.insert(ligne.end(), visee.communes.begin(), visee.communes.end());
  if (systeme.fond) {
    ligne.insert(ligne.end(), {par(kEcartNord), par(kEcartEst), 0, 0, 0, 0});
    return ligne;
  }
  const auto unites = Unites(systeme);
  for (std::size_t i = 0; i < unites.size(); ++i) {
    ligne.push_back(par(kEcartCap + i) * unites.at(i));
  }
  return ligne;
}

/// The state a step further: along a great circle, so that a pole is no obstacle.
EtatPoint Avance(const EtatPoint &etat, const Eigen::VectorXd &pas) {
  const double azimut = std::atan2(pas[1], pas[0]) / kRadian;
  const double distance = std::hypot(pas[0], pas[1]) / kMinutes;
  return {GrandCercle(etat.lieu, azimut, distance), etat.reste + pas.tail(etat.reste.size())};
}

/// Squares that draw the doubts of the run to 0.
Eigen::MatrixXd NormalesDe(const MatricesPoint &m) {
  Eigen::MatrixXd normales = m.lignes.transpose() * m.lignes;
  normales.diagonal().tail(kDoutes).array() += 1;
  return normales;
}

/// The step to the least sum of the squares as they are linear here, no longer than the eyes reach.
std::optional<Eigen::VectorXd> PasDe(const EtatPoint &etat, const MatricesPoint &m, const Eigen::MatrixXd &normales) {
  constexpr double kPasMax = 600; ///< miles
  Eigen::VectorXd second = m.lignes.transpose() * m.ecarts;
  second.tail(kDoutes) -= etat.reste.tail(kDoutes);
  Eigen::VectorXd pas = normales.ldlt().solve(second);
  if (!pas.allFinite()) {
    return std::nullopt;
  }
  const double longueur = std::hypot(pas[0], pas[1]);
  if (longueur > kPasMax) {
    pas *= kPasMax / longueur;
  }
  return pas;
}

/// Whether the equations determine the unknowns, each taken in a unit of its own.
bool Determine(const Eigen::MatrixXd &normales) {
  constexpr double kIndetermine = 1E-10;
  const Eigen::VectorXd echelle = normales.diagonal().cwiseMax(1E-300).cwiseSqrt().cwiseInverse();
  const Eigen::MatrixXd reduites = echelle.asDiagonal() * normales * echelle.asDiagonal();
  const Eigen::LDLT<Eigen::MatrixXd> ldlt(reduites);
  return ldlt.info() == Eigen::Success && ldlt.vectorD().minCoeff() > kIndetermine;
}

} // namespace

Eigen::Index InconnuesLibres(const SystemePoint &systeme) {
  return kLieu + systeme.communes + (systeme.fond ? kFond : 0);
}

EtatPoint EtatDe(const SystemePoint &systeme, const LieuNavire &lieu) {
  return {lieu, Eigen::VectorXd::Zero(InconnuesLibres(systeme) - kLieu + kDoutes)};
}

EcartRoute EcartDeLEtat(const SystemePoint &systeme, const EtatPoint &etat) {
  if (systeme.fond) {
    return {0, 0, etat.reste[systeme.communes], etat.reste[systeme.communes + 1]};
  }
  const auto doutes = etat.reste.tail(kDoutes);
  const auto unites = Unites(systeme);
  return {doutes[0] * unites[0], doutes[1] * unites[1], doutes[2] * unites[2], doutes[3] * unites[3]};
}

MatricesPoint EquationsDe(const SystemePoint &systeme, const EtatPoint &etat) {
  const auto n = static_cast<Eigen::Index>(systeme.visees.size());
  const EcartRoute ecart = systeme.fond ? EcartDeLEtat(systeme, etat) : EcartRoute{};
  MatricesPoint m;
  m.lignes.resize(n, InconnuesLibres(systeme) + kDoutes);
  m.ecarts.resize(n);
  for (Eigen::Index i = 0; i < n; ++i) {
    const EquationVisee &visee = systeme.visees[static_cast<std::size_t>(i)];
    const ArriveePentes a = SuitAvecPentes(visee.troncons, systeme.courant, etat.lieu, ecart);
    const LieuNavire &lieu = a.arrivee.lieu;
    const Visee vue = VueDuLieu(*visee.hauteur, systeme.theorie, lieu);
    const auto &h = *visee.hauteur;
    const double observee = systeme.theorie == TheoriePoint::Actuelle ? h.actuelle->observee : h.dite->observee;
    const PenteHauteur pente = PenteDe(h, systeme.theorie, vue.hauteur, vue.azimut, lieu.latitude);
    const std::vector<double> ligne = LigneDe(systeme, visee, a, pente, etat.lieu.latitude);
    m.lignes.row(i) = Eigen::RowVectorXd::Map(ligne.data(), m.lignes.cols());
    const double commun = m.lignes.row(i).segment(kLieu, systeme.communes).dot(etat.reste.head(systeme.communes));
    const double doute = m.lignes.row(i).tail(kDoutes).dot(etat.reste.tail(kDoutes));
    m.ecarts[i] = ((observee - vue.hauteur) * kMinutes - commun - doute) / visee.ecartType;
    m.lignes.row(i) /= visee.ecartType;
    m.azimuts.push_back(vue.azimut);
    m.lieux.push_back(lieu);
    m.auPole = m.auPole || a.arrivee.auPole;
  }
  m.khi2 = m.ecarts.squaredNorm() + etat.reste.tail(kDoutes).squaredNorm();
  return m;
}

std::optional<EquilibrePoint> Equilibre(const SystemePoint &systeme, const EtatPoint &depart, int tours) {
  constexpr double kAtteint = 0.001; ///< miles
  constexpr int kMoities = 12;
  EquilibrePoint e{depart, EquationsDe(systeme, depart), {}};
  for (int tour = 0; tour < tours; ++tour) {
    Eigen::MatrixXd normales = NormalesDe(e.matrices);
    const auto pas = PasDe(e.etat, e.matrices, normales);
    if (!pas || !Determine(normales)) {
      return std::nullopt;
    }
    const double longueur = std::hypot((*pas)[0], (*pas)[1]);
    double part = 1;
    EtatPoint essai = Avance(e.etat, *pas);
    MatricesPoint matrices = EquationsDe(systeme, essai);
    for (int i = 0; i < kMoities && longueur >= kAtteint && !(matrices.khi2 < e.matrices.khi2); ++i) {
      part /= 2;
      essai = Avance(e.etat, *pas * part);
      matrices = EquationsDe(systeme, essai);
    }
    e.etat = std::move(essai);
    e.matrices = std::move(matrices);
    if (longueur * part < kAtteint) {
      normales = NormalesDe(e.matrices);
      e.cofacteurs = normales.ldlt().solve(Eigen::MatrixXd::Identity(normales.rows(), normales.cols()));
      return Determine(normales) ? std::optional(std::move(e)) : std::nullopt;
    }
  }
  return std::nullopt;
}

} // namespace velmaris

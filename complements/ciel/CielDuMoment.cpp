#include "complements/ciel/CielDuMoment.hpp"

#include "complements/ciel/Heliocentre.hpp"
#include "complements/ciel/Refus.hpp"

#include <erfa.h>
#include <erfam.h>

namespace velmaris {
namespace {

constexpr double kDebut = 2378495.5;                 ///< a day before 1800
constexpr double kFin = 2524594.5;                   ///< a day into 2200
constexpr std::size_t kTermesVitesse = 64;           ///< of each sum: the velocity within a part in 100,000
constexpr double kPasVitesse = 0.05;                 ///< days
constexpr double kLumiere = ERFA_AULT / ERFA_DAYSEC; ///< days that light takes for one astronomical unit

/// The planets that move the Sun by more than 1 m/s, as ERFA numbers them, and its mass in theirs.
struct Masse {
  int numero;
  double inverse;
};
constexpr Masse kMasses[] = {{5, 1047.3486}, {6, 3497.898}};

/// From ICRS to the true equator and equinox of the date.
Matrice3 MatriceVraie(const InstantTT &tt) {
  double gamma = 0;
  double phi = 0;
  double psi = 0;
  double epsilon = 0;
  eraPfw06(tt.jour, tt.fraction, &gamma, &phi, &psi, &epsilon);
  double dpsi = 0;
  double deps = 0;
  eraNut00b(tt.jour, tt.fraction, &dpsi, &deps);
  double m[3][3];
  eraFw2m(gamma, phi, psi + dpsi, epsilon + deps, m);
  return {{{m[0][0], m[0][1], m[0][2]}, {m[1][0], m[1][1], m[1][2]}, {m[2][0], m[2][1], m[2][2]}}};
}

double TempsSideral(const Moment &moment, const Matrice3 &m) {
  double verite[3][3] = {{m[0][0], m[0][1], m[0][2]}, {m[1][0], m[1][1], m[1][2]}, {m[2][0], m[2][1], m[2][2]}};
  return eraGst06(moment.ut1.jour, moment.ut1.fraction, moment.tt.jour, moment.tt.fraction, verite) * ERFA_DR2D;
}

/// The Sun's velocity from the centre of mass, which the large planets make.
Vecteur3 VitesseSoleil(const InstantTT &tt) {
  Vecteur3 v{};
  for (const Masse &masse : kMasses) {
    double pv[2][3];
    eraPlan94(tt.jour, tt.fraction, masse.numero, pv);
    v = Ajoute(v, -1 / masse.inverse, {pv[1][0], pv[1][1], pv[1][2]});
  }
  return v;
}

/// The Earth's velocity from the Sun, astronomical units a day.
Vecteur3 VitesseTerre(double t, Voie voie) {
  constexpr double pas = kPasVitesse / ERFA_DJM;
  const Vecteur3 avant = Heliocentre(kCielTerre, t - pas, kTermesVitesse, voie);
  const Vecteur3 apres = Heliocentre(kCielTerre, t + pas, kTermesVitesse, voie);
  return Fois(0.5 / kPasVitesse, Ajoute(apres, -1, avant));
}

} // namespace

CielDuMoment PrepareCiel(const Moment &moment) {
  const double jd = moment.tt.jour + moment.tt.fraction;
  if (!(jd >= kDebut && jd < kFin)) {
    throw Refus(RaisonRefus::AnneeHorsLimites);
  }
  const Voie voie = VoieDuProcesseur();
  const double t = Millenaires(moment.tt);
  CielDuMoment ciel{moment.tt, moment.ut1};
  ciel.verite = MatriceVraie(moment.tt);
  ciel.tempsSideral = TempsSideral(moment, ciel.verite);
  ciel.terre = Heliocentre(kCielTerre, t, kTousLesTermes, voie);
  ciel.soleil = VitesseSoleil(moment.tt);
  ciel.vitesse = Fois(kLumiere, Ajoute(VitesseTerre(t, voie), 1, ciel.soleil));
  return ciel;
}

} // namespace velmaris

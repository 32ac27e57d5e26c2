#include "complements/ciel/Heliocentre.hpp"

#include <erfa.h>
#include <erfam.h>

namespace velmaris {
namespace {

/// From the dynamical ecliptic and equinox of J2000.0, as VSOP87 has them, to ICRS: the rotation of its authors to FK5,
/// then 14 mas about y and 21 mas about z, by which the Earth so found lay off that of ERFA (DE405, ICRS) around 2000.
constexpr Matrice3 kVersIcrs{{{1.0, 3.7429E-7, -8.990E-8},
                              {-3.7917E-7, 0.917482137087, -0.397776982902},
                              {-6.64E-8, 0.397776982902, 0.917482137087}}};

double SommeCoordonnee(const CoordonneeCiel &coordonnee, double t, std::size_t limite, Voie voie) {
  double somme = 0;
  for (std::size_t puissance = coordonnee.size(); puissance-- > 0;) {
    somme = somme * t + SommeCosinus(coordonnee[puissance], t, limite, voie);
  }
  return somme;
}

/// Precession of the ecliptic since J2000.0 and of the equinox on it, radians.
/// Source: Lieske et al. 1977, the IAU's of 1976.
struct PrecessionEcliptique {
  double noeud;       ///< longitude of the node of the two ecliptics, from the equinox of J2000.0
  double inclinaison; ///< between the two
  double generale;    ///< general precession in longitude
};

PrecessionEcliptique PrecessionDeSerie(double siecles) {
  const double T = siecles;
  return {ERFA_DAS2R * (629554.982 + (-869.8089 + 0.03536 * T) * T),
          ERFA_DAS2R * (47.0029 + (-0.03302 + 0.000060 * T) * T) * T,
          ERFA_DAS2R * (5029.0966 + (1.11113 - 0.000006 * T) * T) * T};
}

} // namespace

double Millenaires(const InstantTT &tt) { return ((tt.jour - ERFA_DJ00) + tt.fraction) / ERFA_DJM; }

Vecteur3 Heliocentre(const SeriesCiel &series, double tt, std::size_t limite, Voie voie) {
  const double L = SommeCoordonnee(series.L, tt, limite, voie);
  const double B = SommeCoordonnee(series.B, tt, limite, voie);
  const double R = SommeCoordonnee(series.R, tt, limite, voie);
  const PrecessionEcliptique p = PrecessionDeSerie(tt * 10);
  Vecteur3 v{};
  eraS2p(L - p.noeud - p.generale, B, R, v.data());
  double retour[3][3];
  eraIr(retour);
  eraRx(-p.inclinaison, retour);
  eraRz(-p.noeud, retour);
  eraRxp(retour, v.data(), v.data());
  return Tourne(kVersIcrs, v);
}

} // namespace velmaris

#include "complements/ciel/LuneDuMoment.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/ciel/TablesCiel.hpp"

#include <erfam.h>

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMetresParKm = 1000;

/// From the theory's ecliptic and equinox of J2000.0 to ICRS: the rotation of its authors to FK5, then the one that the
/// planets get (`Heliocentre`), since both theories are fitted to one ephemeris.
constexpr Matrice3 kVersIcrs{{{1.0, 3.7184E-7, -8.884E-8},
                              {-3.7650E-7, 0.917482137607, -0.397776981701},
                              {-6.64E-8, 0.397776981701, 0.917482137607}}};

/// A sum of Chebyshev polynomials, by Clenshaw's recurrence.
double Clenshaw(std::span<const std::int32_t> c, double x) {
  double b1 = 0;
  double b2 = 0;
  for (std::size_t j = c.size() - 1; j > 0; --j) {
    const double b = 2 * x * b1 - b2 + c[j];
    b2 = b1;
    b1 = b;
  }
  return x * b1 - b2 + c[0];
}

} // namespace

Vecteur3 LuneEcliptique(const InstantTT &tt) {
  const TableLune &table = kTableLune;
  const double place = ((tt.jour - table.debut) + tt.fraction) / table.jours;
  if (!(place >= 0 && place < static_cast<double>(table.morceaux))) {
    throw Refus(RaisonRefus::LuneHorsTable);
  }
  const double morceau = std::floor(place);
  const double x = 2 * (place - morceau) - 1;
  const std::size_t n = table.coefficients;
  const auto valeurs = table.valeurs.subspan(static_cast<std::size_t>(morceau) * 3 * n, 3 * n);
  Vecteur3 v{};
  for (std::size_t axe = 0; axe < v.size(); ++axe) {
    v[axe] = Clenshaw(valeurs.subspan(axe * n, n), x) / kMetresParKm;
  }
  return v;
}

Vecteur3 LuneIcrs(const InstantTT &tt) { return Fois(1E3 / ERFA_DAU, Tourne(kVersIcrs, LuneEcliptique(tt))); }

} // namespace velmaris

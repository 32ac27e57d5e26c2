#include "complements/controle/LignesEtoiles.hpp"

#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double kDegre = 0.017453292519943295; ///< radians

} // namespace

std::optional<EtoileIcrs> EtoileDeLigne(const Etoiles &etoiles, int rang) {
  if (rang < 1 || std::cmp_greater(rang, kNombreEtoilesIcrs) || !kEtoilesIcrs[static_cast<std::size_t>(rang) - 1]) {
    return std::nullopt;
  }
  EtoileIcrs etoile = *kEtoilesIcrs[static_cast<std::size_t>(rang) - 1];
  // Half a day before the epoch: neither precession nor motion moves anything by then.
  const PaireX lue = LitPaireX(CoordEtoile(etoiles, static_cast<std::int16_t>(rang), -1, {"1", "1", "2000"}));
  etoile.ad = lue.gauche;
  etoile.dec = lue.droite;
  return etoile;
}

std::optional<double> EcartDeLigne(const Etoiles &etoiles, int rang) {
  const std::optional<EtoileIcrs> lue = EtoileDeLigne(etoiles, rang);
  if (!lue) {
    return std::nullopt;
  }
  const EtoileIcrs &vraie = *kEtoilesIcrs[static_cast<std::size_t>(rang) - 1];
  const double dDec = std::sin((lue->dec - vraie.dec) * kDegre / 2);
  const double dAd = std::sin((lue->ad - vraie.ad) * kDegre / 2);
  const double cosinus = std::cos(lue->dec * kDegre) * std::cos(vraie.dec * kDegre);
  return 2 * std::asin(std::sqrt(dDec * dDec + cosinus * dAd * dAd)) / kDegre * 60;
}

} // namespace velmaris

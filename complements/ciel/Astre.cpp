#include "complements/ciel/Astre.hpp"

#include <utility>

#include "complements/ciel/Refus.hpp"
#include "complements/ciel/TablesCiel.hpp"

namespace velmaris {

void ExigePlace(const Astre &astre) {
  if (astre.genre != GenreAstre::Etoile) {
    return;
  }
  if (astre.rang < 1 || std::cmp_greater(astre.rang, kNombreEtoilesIcrs)) {
    throw Refus(RaisonRefus::RangInconnu);
  }
  if (!kEtoilesIcrs[static_cast<std::size_t>(astre.rang) - 1]) {
    throw Refus(RaisonRefus::EtoileSansPlace);
  }
}

} // namespace velmaris

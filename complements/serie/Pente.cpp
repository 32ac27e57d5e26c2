#include "complements/serie/Pente.hpp"

namespace velmaris {

AllureCiel AllureDe(const BaseLectures &base, const PlacesAutour &places, const LieuNavire &avant,
                    const LieuNavire &apres) {
  const double premiere = VueDe(places.avant, StationDe(base, avant)).hauteur;
  const double seconde = VueDe(places.apres, StationDe(base, apres)).hauteur;
  return {(premiere + seconde) / 2, (seconde - premiere) * 60 / (2 * kDemiPas / 60)};
}

} // namespace velmaris

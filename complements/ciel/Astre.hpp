#pragma once

#include <cstdint>

namespace velmaris {

/// What a place can be asked for.
enum class GenreAstre : std::uint8_t {
  Soleil,
  Lune,
  Venus,
  Mars,
  Jupiter,
  Saturne,
  Etoile, ///< a row of the star table
  Belier, ///< the true equinox of the date, a direction without distance
};

/// One body.
struct Astre {
  GenreAstre genre = GenreAstre::Soleil;
  int rang = 0; ///< of a star, 1 to 246
  bool operator==(const Astre &) const = default;
};

/// The row of the star table that no true place is known of.
inline constexpr int kRangSansPlace = 67;

/// Makes sure that a body can have a place.
/// @throws Refus RangInconnu or EtoileSansPlace
void ExigePlace(const Astre &astre);

} // namespace velmaris

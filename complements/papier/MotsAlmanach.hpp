#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace velmaris {

/// The words of an almanac's pages. Months and days of the week stand in their order; what a row of a text runs over
/// stands in several words, in their order too. `Virgule` is the sign before decimals. Beside each the English word.
enum class MotAlmanach : std::uint16_t {
  Virgule,      ///< .
  Titre,        ///< Almanac
  Janvier,      ///< January
  Fevrier,      ///< February
  Mars_,        ///< March
  Avril,        ///< April
  Mai,          ///< May
  Juin,         ///< June
  Juillet,      ///< July
  Aout,         ///< August
  Septembre,    ///< September
  Octobre,      ///< October
  Novembre,     ///< November
  Decembre,     ///< December
  Lundi,        ///< Mon
  Mardi,        ///< Tue
  Mercredi,     ///< Wed
  Jeudi,        ///< Thu
  Vendredi,     ///< Fri
  Samedi,       ///< Sat
  Dimanche,     ///< Sun
  Heure,        ///< UT
  Gha,          ///< GHA
  Declinaison,  ///< Dec
  Sha,          ///< SHA
  Hp,           ///< HP
  DemiDiametre, ///< SD
  Magnitude,    ///< Mag.
  Passage,      ///< Mer. pass.
  Belier,       ///< Aries
  Soleil,       ///< Sun
  Lune,         ///< Moon
  Venus,        ///< Venus
  MarsPlanete,  ///< Mars
  Jupiter,      ///< Jupiter
  Saturne,      ///< Saturn
};
inline constexpr std::size_t kMotsAlmanach = static_cast<std::size_t>(MotAlmanach::Saturne) + 1;

/// All words of one language.
struct MotsAlmanach {
  std::array<std::string, kMotsAlmanach> textes{};
  const std::string &operator[](MotAlmanach mot) const { return textes[static_cast<std::size_t>(mot)]; }
};

} // namespace velmaris

#pragma once

#include "complements/controle/Causes.hpp"
#include "sights/Observation.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// How far the told figures lie from the sky of today, over sights at random: what docs/EXACTITUDE.md tells.
namespace velmaris {

/// Root mean square and largest size of many figures, miles.
struct Ecarts {
  double carres = 0; ///< sum of squares
  double plusGrand = 0;
  int nombre = 0;
  void Ajoute(double milles);
  double Moyen() const; ///< root mean square; 0 of none
};

inline constexpr std::size_t kNombreCauses = 11;

/// What a group of sights differs by, as a whole and by each cause.
struct MesureTheorie {
  Ecarts total;
  int accords = 0;                         ///< up to half a mile
  int manieres = 0;                        ///< from there to a mile and a half
  std::array<Ecarts, kNombreCauses> parts; ///< by `Cause`; a sight without a part counts as one of 0
  Ecarts &De(Cause cause) { return parts.at(static_cast<std::size_t>(cause)); }
  const Ecarts &De(Cause cause) const { return parts.at(static_cast<std::size_t>(cause)); }
};

/// A line of the table: which sights are taken.
struct GroupeVisees {
  std::string nom;
  Corps corps = Corps::Soleil;
  std::vector<int> rangs{}; ///< of planets or stars, in their list from 0
  Horizon horizon = Horizon::Naturel;
  bool centre = false;     ///< shot at the centre and not by a limb
  bool signePerdu = false; ///< only, or none, of a planet's sights whose declination loses its sign
};

/// The lines of the table, in their order.
std::vector<GroupeVisees> GroupesDeLaTable();

/// Measures a group. Sights of 2020 to 2034, between 70 degrees south and north, the body 10 to 80 degrees up (off an
/// artificial horizon to 65), limbs in turn, an eye 2 to 10 metres up, a ship within 5 miles of the estimated position.
/// @param nombre  of sights that belong to the group
/// @param graine  of the random numbers: the same one gives the same figures
MesureTheorie Mesure(const GroupeVisees &groupe, int nombre, std::uint64_t graine);

/// The table's head, and a group's line in it.
std::string TeteDeTable();
std::string LigneDeTable(const GroupeVisees &groupe, const MesureTheorie &mesure);

} // namespace velmaris

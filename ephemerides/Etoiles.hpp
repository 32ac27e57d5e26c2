#pragma once

#include "foundations/ValeurDate.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Highest number of a row that the arrays have room for; rows 1 to 246 are filled.
inline constexpr int kRangEtoileMax = 300;

/// The star table, split once. The texts lie in the program itself and live as long as it.
struct Etoiles {
  using Textes = std::array<std::string_view, kRangEtoileMax + 1>;
  Textes EtoileLigne; ///< the whole row
  Textes EtoileNom;   ///< the proper name, empty from row 157 on
  Textes EtoileCoord; ///< right ascension "X" declination, as the row has them
  Textes EtoileBayer; ///< letter, blank and constellation: five characters
};

/// The date of an observation as the three fields hold it; a text without a number counts as 0.
struct DateEtoile {
  std::string_view jour, mois, annee;
};

/// Two numbers that travel as one text.
struct PaireX {
  double gauche = 0.0;
  double droite = 0.0;
};

/// Fills the rows and splits them.
/// @param liste  the list of stars, to which the 156 names are added in the order of the table
void ChargeEtoiles(Etoiles &etoiles, std::vector<std::string> &liste);

/// Splits `EtoileLigne` into label, name and coordinates, by fixed positions and the first "X".
/// @param liste  every name that isn't empty is added to it
void DecoupeEtoiles(Etoiles &etoiles, std::vector<std::string> &liste);

/// Place of a star for the equator and equinox of a date: annual precession from J2000.0, and proper motion for the
/// stars that have one here. No time of day enters.
/// The coordinates are cut at fixed positions: the tenth of a minute of a short right ascension is read as whole
/// seconds, the decimals of a long one fall away, 0.3 second is added to all, and "-00" degrees is north.
/// @param index      number of the row; 0 for the chosen one
/// @param selection  place of the chosen star in the list of stars, from 0; -1 for none
/// @return right ascension "X" declination, degrees, the right ascension not brought into one turn
/// @throws Erreur 9 for a number outside 0 to 300, 13 for an empty row, 6 when the date is beyond the range of numbers
/// Source: annual precession in right ascension and declination with the constants of Newcomb, on J2000.0.
std::string CoordEtoile(const Etoiles &etoiles, std::int16_t index, int selection, const DateEtoile &date);

/// The bright stars, those with a proper motion here, that stand above the horizon.
/// "Achenar" isn't among them, whose name is spelled otherwise in the list of proper motions.
/// @param champs     the date for the places, as the fields hold it
/// @param date       the moment for the horizon, UTC
/// @param latitude   degrees, south negative
/// @param longitude  degrees, west positive
/// @return the names in the order of the table
/// @throws Erreur 11 at a pole or for a star in the zenith, and what CoordEtoile raises
std::vector<std::string> ListeVisibles(const Etoiles &etoiles, const DateEtoile &champs, const ValeurDate &date,
                                       double latitude, double longitude);

/// The numbers left and right of the first "X" of a text; a missing one counts as 0.
PaireX LitPaireX(std::string_view texte);

} // namespace velmaris

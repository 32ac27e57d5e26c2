#pragma once

#include "sights/Observation.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The lines of position that are kept between runs, numbered 0 to 3; the user reads 1 to 4.
inline constexpr int kNombreDroites = 4;

/// A setting of the store.
struct CleValeur {
  std::string cle;
  std::string valeur;
  bool operator==(const CleValeur &) const = default;
};

/// The key of a field of a stored line: the field's text, the line's number and a closing bracket.
/// @param champ  with its opening bracket, as in "T3("
std::string CleDroite(std::string_view champ, int ligne);

/// What storing a sight writes, in this order. The star's or the planet's number is there only for that kind of body.
/// @param nom      the body of the line last reduced
/// @param valeurs  azimuth and intercept: kept times 1000, as the 32-bit product's text
/// @throws Erreur 6 when a product leaves 32 bits
std::vector<CleValeur> ClesEnregistrees(int ligne, const Observation &observation, const std::string &nom,
                                        const ValeursVisee &valeurs);

/// Reads the texts and the sides of a stored line into a sight.
/// @param lit  gives a key's value, empty when it is absent
void LitTextesEnregistres(int ligne, const std::function<std::string(const std::string &)> &lit,
                          Observation &observation);

/// What erasing a line writes, in this order. Body numbers, fraction kind and fraction keep their values: with the
/// others empty they mean nothing.
std::vector<CleValeur> ClesEffacees(int ligne);

/// All keys that a line can have in the store.
std::vector<std::string> ToutesClesDroite(int ligne);

/// The default tool tip of a line's button, its function key: "(F5)" to "(F8)".
std::string ToucheDroite(int ligne);

/// A stored azimuth or intercept.
/// @param texte  thousandths, as stored
/// @throws Erreur 6 when it leaves 32 bits
float LitMillieme(std::string_view texte);

} // namespace velmaris

#pragma once

#include <cstddef>
#include <string_view>

namespace velmaris {

/// Latitude and longitude of a named point as its line holds them: signed decimal degrees, north and west positive.
struct PositionLieu {
  std::string_view latitude;
  std::string_view longitude;
  std::size_t blanc = 0; ///< byte of the first blank of the line
};

/// What a line of the cities holds beside its position.
struct DetailsVille {
  std::string_view classe; ///< one digit: the smaller, the larger the city
  std::string_view nom;
};

/// What a line of the user's objects holds beside its position.
struct DetailsObjet {
  std::string_view rayon; ///< of its circle, nautical miles
  std::string_view nom;
};

/// Whether a line of the cities is one: not empty, and without the ";" that makes it a comment wherever it stands.
bool EstLigneVille(std::string_view ligne);

/// Whether a line of the user's objects is one: not empty, and not opening with ";".
bool EstLigneObjet(std::string_view ligne);

/// The position at the start of a line. Fields are found by place: the longitude is one character longer than the
/// latitude.
/// @return texts within the line, without their blanks
/// @throws Erreur 5 when the line has no blank
PositionLieu DecoupePosition(std::string_view ligne);

/// The rest of a line of the cities: class, a field that isn't used, name.
/// @param blanc  of its position
/// @return texts within the line
/// @throws Erreur 5 when a field's place can't be found
DetailsVille DecoupeVille(std::string_view ligne, std::size_t blanc);

/// The rest of a line of the user's objects: radius and name.
/// @param blanc  of its position
/// @return texts within the line
/// @throws Erreur 5 when a field's place can't be found
DetailsObjet DecoupeObjet(std::string_view ligne, std::size_t blanc);

} // namespace velmaris

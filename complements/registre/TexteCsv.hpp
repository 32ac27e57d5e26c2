#pragma once

#include <charconv>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace velmaris {

/// A text as one field of a line: without control characters, shown as it stands by a table program (a text, not a
/// number, that it would take for a formula follows an apostrophe), and in quotes when it holds what separates fields.
std::string ChampCsv(std::string_view texte);

/// Parts a line at its commas, those within quotes left out; the parts stand as they are written.
/// @param parties  filled from the first on; more fields than it has are counted and not kept
/// @return the number of fields; 0 when a quote isn't closed, or something stands behind a closed one
std::size_t PartiesCsv(std::string_view ligne, std::span<std::string_view> parties);

/// The text of a part: quotes off, and the apostrophe that keeps it from being a formula. UTF-8 whatever it was.
std::string TextePartie(std::string_view partie);

/// Lines of a file of lines: LF and CR LF end one, the last needs none. Each call takes one off.
/// @param reste  what is still to be read; it loses the line
std::string_view PrendLigne(std::string_view &reste);

/// A number as the files have it: the whole text, with a point.
/// @return nothing for another text, or a number that the type has no room for
template <class Nombre> std::optional<Nombre> NombreEcrit(std::string_view texte) {
  Nombre nombre{};
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
  return code == std::errc() && fin == texte.data() + texte.size() ? std::optional(nombre) : std::nullopt;
}

/// The same, within limits; what is no number is beyond them.
template <class Nombre> std::optional<Nombre> NombreEntre(std::string_view texte, Nombre moindre, Nombre plusGrand) {
  const std::optional<Nombre> nombre = NombreEcrit<Nombre>(texte);
  return nombre && *nombre >= moindre && *nombre <= plusGrand ? nombre : std::nullopt;
}

} // namespace velmaris

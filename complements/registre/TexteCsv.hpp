#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

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

} // namespace velmaris

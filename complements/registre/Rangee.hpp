#pragma once

#include "ephemerides/Etoiles.hpp"
#include "sights/Observation.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// The journal's first line: the names of its columns.
extern const std::string_view kTitresJournal;

/// What it was before rows had an identity and the check's figures.
extern const std::string_view kAnciensTitres;

/// Columns of both forms.
inline constexpr std::size_t kColonnesJournal = 31;
inline constexpr std::size_t kAnciennesColonnes = 27;

/// The parts of a line, as they are written.
using PartiesRangee = std::array<std::string_view, kColonnesJournal>;

/// One row of the journal: a sight as it was reduced.
struct Rangee {
  std::string utc;              ///< of the reduction, "2026-06-21T12:05:30Z"
  std::string astre;            ///< name of the body, in the language of that day
  Observation observation;      ///< the fields as they stood; planet and star by their place in the list, -1 for none
  double Ho = 0.0;              ///< observed altitude, degrees
  double Hc = 0.0;              ///< computed altitude, degrees
  float intercept = 0.0F;       ///< miles
  float azimut = 0.0F;          ///< degrees
  std::string identite;         ///< that no other row bears
  std::optional<double> actuel; ///< intercept by the sky of that day's program, miles, to the thousandth
  std::optional<double> ecart;  ///< how far the told one lies from it, miles
};

/// A row as a line of the newer form, without its end. Numbers in the program's general form: 15 digits of the
/// altitudes, 7 of intercept and azimuth; the last two figures to the thousandth.
std::string EcritRangee(const Rangee &rangee);

/// Whether a line's kind of body is one, and where in the list of kinds.
/// @param partie  as written; "Planètes" in UTF-8 or Windows-1252
std::optional<Corps> CorpsEcrit(std::string_view partie);

/// Reads a line of either form.
/// @return nothing for a line that is cut short, broken, or of neither form
std::optional<Rangee> LitRangee(std::string_view ligne);

/// Finds the body of a row in the lists: a star by its name.
/// @param rangee  its sight gets the star's place
/// @return false when no list has it: the sight can't be reduced again
bool ChoisitAstre(Rangee &rangee, const Etoiles &etoiles);

/// A number that no other row bears, as sixteen hexadecimal digits.
std::string IdentiteNeuve();

/// The moment of a sight from the parts of its line: its fields, or where they are no date and time, the moment that it
/// was written at.
/// @return seconds since 1970, UTC; nothing where neither is one
std::optional<std::int64_t> InstantRangee(const PartiesRangee &parties);

/// Seconds since 1970 of a moment as "2026-06-21T12:05:30Z".
/// @return nothing for another text, or a date that doesn't exist
std::optional<std::int64_t> InstantEcrit(std::string_view texte);

/// A moment in that form.
/// @param instant  seconds since 1970
std::string EcritInstant(std::int64_t instant);

/// The identity of a line of the older form, which bears none: sixteen hexadecimal digits that only its octets decide
/// (FNV-1a, 64 bits).
std::string IdentiteAncienne(std::string_view ligne);

} // namespace velmaris

#pragma once

#include "sights/Observation.hpp"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Entries of the table that a file of a sight is read into, one a line.
inline constexpr std::size_t kLignesLoP = 31;

/// The file's lines by number. A shorter file leaves the entries beyond its last line as they were.
using TableLoP = std::array<std::string, kLignesLoP>;

/// Reads the lines of a file of a sight. CR LF, LF and CR all end a line; the last line needs no end.
/// @param octets  the whole file, UTF-8 if it is valid UTF-8, else Windows-1252
/// @param table   its first entries are replaced
/// @throws Erreur 9 at a 32nd line, the table being full by then
void LitLignesLoP(std::string_view octets, TableLoP &table);

/// What the numbered lines of a file choose. A choice that the file doesn't hold, or whose number can't be read, is
/// absent and changes nothing; one that doesn't exist is there all the same.
struct ChoixLoP {
  std::optional<int> corps;       ///< line 17
  std::optional<Horizon> horizon; ///< line 18
  bool horizonEcrit = false;      ///< line 18 names the horizon: its consequences for the limb follow
  std::optional<int> bord;        ///< line 19, 1 when it is empty
  std::optional<int> fraction;    ///< line 20, 1 when it is empty
  std::optional<int> rang;        ///< line 21, of the list of stars or planets; 0 when it is empty
};

/// Reads the choices of a table of lines.
ChoixLoP LitChoixLoP(const TableLoP &table);

/// Pours the texts and the two sides of a table of lines into a sight.
void AppliqueTextesLoP(const TableLoP &table, Observation &observation);

/// Pours a table of lines into a sight, line by line; a line that says nothing valid changes nothing.
/// @return the number of the body as line 17 gives it
int AppliqueLoP(const TableLoP &table, Observation &observation);

/// The lines of a sight's file: 21 for the Sun and the Moon, 22 for a planet or a star.
/// @return text in UTF-8, every line ended by CR LF
std::string EcritLoP(const Observation &observation);

/// The name proposed for a sight's file: day, three letters of the month, two last characters of the year, a blank,
/// the time, ".LoP". A month outside 1 to 12 adds nothing.
std::string NomProposeLoP(const Observation &observation);

/// Reads a whole sight file from the disk into a sight.
/// @throws Erreur 53 when the file is missing, 75 when it can't be read, 9 when it has over 31 lines
void ChargeLoP(const std::filesystem::path &chemin, Observation &observation);

/// Writes a sight to a file in Windows-1252: to a new file beside it, flushed, then renamed over the old one.
/// @param registre  as for EcritFichier: where the unfinished file is noted; empty for nowhere
/// @throws Erreur 75 when it can't be written, or may not be; an old file is then whole
void SauveLoP(const std::filesystem::path &chemin, const Observation &observation,
              const std::filesystem::path &registre = {});

} // namespace velmaris

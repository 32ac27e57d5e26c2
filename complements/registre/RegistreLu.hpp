#pragma once

#include "complements/registre/Rangee.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Where a row stands in its journal, and the little that ordering and filtering ask for.
struct LigneIndexee {
  std::int64_t instant = 0;   ///< of the sight, seconds since 1970
  std::uint32_t debut = 0;    ///< octets from the file's first
  std::uint32_t longueur = 0; ///< octets, without the line's end
  std::uint32_t identite = 0; ///< octets from the line's first; 0 for a row of the older form, which bears none
  std::uint16_t fichier = 0;  ///< in the log's list
  Corps corps = Corps::Soleil;
};

/// One journal as it was read.
struct JournalLu {
  std::filesystem::path chemin;
  std::uintmax_t taille = 0; ///< octets
  std::filesystem::file_time_type date;
  std::string octets;
  std::vector<LigneIndexee> lignes; ///< in the order of the file
  std::size_t cassees = 0;          ///< lines that are no row
  bool illisible = false;           ///< it can't be read, or is larger than any file that is
};

/// All sights ever reduced, newest first. What is read is never changed: another reading is another record, so that any
/// thread may keep this one.
struct RegistreLu {
  std::vector<std::shared_ptr<const JournalLu>> journaux; ///< in the order of their names
  std::vector<LigneIndexee> lignes; ///< newest sight first; of one moment the one that was entered last
  std::size_t cassees = 0;          ///< lines that were passed over, in all journals
};

/// Indexes a journal: its title line, and what is no row, are passed over, the latter counted.
/// @param octets  of the whole file
/// @param lignes  gets the rows, in their order; `fichier` is left at 0
/// @return lines that are no row
std::size_t IndexeJournal(std::string_view octets, std::vector<LigneIndexee> &lignes);

/// The journals of a folder: "journal.csv" and all "journal-*.csv".
std::vector<std::filesystem::path> Journaux(const std::filesystem::path &dossier);

/// Reads all journals of a folder. It takes 0.2 s for 100,000 rows, so that it is done beside the interface.
/// @param avant  an earlier reading: what is the same by size and time is taken from it
/// @return `avant` itself when nothing has changed
std::shared_ptr<const RegistreLu> LitRegistre(const std::filesystem::path &dossier,
                                              std::shared_ptr<const RegistreLu> avant = nullptr);

/// Whether a folder's journals are still those that were read, by name, size and time. It opens no file.
bool EstAJour(const std::filesystem::path &dossier, const RegistreLu &registre);

/// A row's line as it stands in its journal.
/// @param rang  under the number of rows
std::string_view LigneBrute(const RegistreLu &registre, std::size_t rang);

/// A row, its fields split now.
/// @return nothing when its figures are none
std::optional<Rangee> RangeeDe(const RegistreLu &registre, std::size_t rang);

/// A row's identity: the one that it bears, or for the older form the one that its line makes.
std::string IdentiteDe(const RegistreLu &registre, std::size_t rang);

/// Rows as a journal of the newer form, which can be read again; those of the older form get their identity.
/// @param rangs  in the order wanted; a row whose figures are none is left out
std::string EnCsv(const RegistreLu &registre, const std::vector<std::size_t> &rangs);

} // namespace velmaris

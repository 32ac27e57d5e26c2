#pragma once

#include "complements/registre/Annotations.hpp"
#include "complements/registre/RegistreLu.hpp"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// A day, a month or a year, as far as each is given.
struct JourCherche {
  std::optional<int> jour = {}, mois = {}, annee = {};
};

/// A day as typed: "21/6/2026" or "2026-06-21", "6/2026" a month, "2026" a year, "21/6" a day of any year, "21" a day
/// of any month. Anything but digits parts the numbers.
/// @return nothing for a text that is none of these; a record without limits for an empty one
std::optional<JourCherche> LitJourCherche(std::string_view texte);

/// Which rows of the log are wanted.
struct FiltreRegistre {
  std::string texte = {}; ///< words of the line or of its note, without regard to the case of a to z; empty for any
  std::string astre = {}; ///< words of the body's name, or of its kind
  std::optional<Corps> corps = {}; ///< with `astre`: the kind of body that these words name in the user's language
  std::string jour = {};           ///< as `LitJourCherche` takes it; what it doesn't take is no limit
  bool masquees = false;           ///< hidden rows too
};

/// The wanted rows.
/// @return their places in the log, in its order
std::vector<std::size_t> Filtre(const RegistreLu &registre, const Annotations &annotations,
                                const FiltreRegistre &filtre);

/// Looks for rows by their identities.
/// @param rangs  places in the log that are looked among
/// @return where among `rangs` they stand, in ascending order; those that aren't there are left out
std::vector<std::size_t> RangsDe(const RegistreLu &registre, const std::vector<std::size_t> &rangs,
                                 const std::vector<std::string> &identites);

} // namespace velmaris

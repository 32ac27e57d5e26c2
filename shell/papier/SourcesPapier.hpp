#pragma once

#include "complements/papier/PageDuJour.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// Pages made, and what is to be said of them.
struct PagesFaites {
  Feuillets pages;
  std::string dit;
};

/// Log rows that worksheets are made of at most.
inline constexpr std::size_t kFichesMax = 60;

/// The worksheets of the panel's sight, or of the log's chosen rows.
/// @param duRegistre  the log's
/// @param blancs      with blanks, the answers apart
PagesFaites FichesVoulues(const Bureau &bureau, bool duRegistre, bool blancs, FormatPapier format);

/// What the day's page has: of the fix's window its lines, track, fix and sights; of this window the weather.
DonneesJour DonneesDuJour(const Bureau &bureau);

/// The day of the fix, else of the last sight; empty without any.
std::string DateDuJour(const Bureau &bureau);

/// The day's pages.
PagesFaites JourVoulu(const Bureau &bureau, FormatPapier format);

} // namespace velmaris
